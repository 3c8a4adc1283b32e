# The suites run against quorvan.dll as it is shipped: programs on its import library, which put allocators that fail on
# request into its import table. Units that look inside the library, by a header of one of its rooms, form a second
# program over the library's objects; what runs once for each instruction set is in both, since only there it can choose.
set(QUORVAN_PROVIDER_FOLDER ${PROJECT_BINARY_DIR}/provider)
set(QUORVAN_WINE_ENVIRONMENT WINEPREFIX=${PROJECT_BINARY_DIR}/wine WINEDEBUG=-all "WINEDLLOVERRIDES=mscoree,mshtml=")

function(compile_as_tests target)
    target_link_libraries(${target} PRIVATE quorvan_options GTest::gtest Threads::Threads)
    target_compile_definitions(${target} PRIVATE _USE_MATH_DEFINES)
    target_compile_options(${target} PRIVATE -fexceptions -frtti -O1)
endfunction()

# A program finds the library in its working folder, and the library finds the provider in its own. The mathematics of
# the system with all digits is the tests' too.
add_custom_target(module_beside_provider ALL
                  COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:quorvan> ${QUORVAN_PROVIDER_FOLDER})
add_dependencies(module_beside_provider quorvan)
add_library(module_support OBJECT ${PROJECT_SOURCE_DIR}/tests/support/failing_heap.cpp
            ${PROJECT_SOURCE_DIR}/tests/support/fence_windows.cpp
            ${PROJECT_SOURCE_DIR}/frame/platform_windows_math.cpp
            ${CMAKE_CURRENT_LIST_DIR}/failing_heap_module.cpp)
compile_as_tests(module_support)
set_source_files_properties(${PROJECT_SOURCE_DIR}/frame/platform_windows_math.cpp PROPERTIES COMPILE_OPTIONS -fno-builtin)
target_link_libraries(quorvan_testable PUBLIC GTest::gtest)

# One program; a test at a time would start the emulator thousands of times.
function(add_windows_suite name)
    target_link_options(${name} PRIVATE -static -s)
    target_link_libraries(${name} PRIVATE GTest::gtest_main Threads::Threads)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 FIXTURES_REQUIRED wine
                         WORKING_DIRECTORY ${QUORVAN_PROVIDER_FOLDER} ENVIRONMENT "${QUORVAN_WINE_ENVIRONMENT}" ${ARGN})
    # The longest begin first.
    if(name MATCHES "^(measure_tests|transforms_tests_inside)$")
        set_tests_properties(${name} PROPERTIES COST 100)
    endif()
endfunction()

function(add_test_program name units)
    if(NOT units)
        return()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${units})
    list(JOIN QUORVAN_TEST_ROOMS "|" rooms)
    foreach(unit IN LISTS units)
        file(STRINGS ${unit} inside REGEX "^#include \"(${rooms})/")
        # What only declares.
        list(FILTER inside EXCLUDE REGEX "\"(frame/(status|types)|linalg/provider)\\.h\"")
        file(STRINGS ${unit} targets REGEX "^#include \"tests/support/targets\\.h\"")
        if(inside)
            list(APPEND inside_units ${unit})
        elseif(targets)
            list(APPEND both_units ${unit})
        else()
            list(APPEND module_units ${unit})
        endif()
    endforeach()
    if(both_units)
        add_library(${name}_both OBJECT ${both_units})
        compile_as_tests(${name}_both)
        set(both_objects $<TARGET_OBJECTS:${name}_both>)
    endif()
    if(module_units OR both_units)
        add_executable(${name} ${module_units} ${both_objects} $<TARGET_OBJECTS:module_support>)
        compile_as_tests(${name})
        target_link_libraries(${name} PRIVATE quorvan)
        add_windows_suite(${name} ${ARGN})
    endif()
    if(inside_units OR both_units)
        add_executable(${name}_inside ${inside_units} ${both_objects})
        compile_as_tests(${name}_inside)
        target_link_libraries(${name}_inside PRIVATE quorvan_testable)
        add_windows_suite(${name}_inside ${ARGN})
    endif()
endfunction()
