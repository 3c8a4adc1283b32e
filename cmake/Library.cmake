# The library: every *.cpp of the rooms, *.target.cpp once for each instruction set.

set(QUORVAN_ROOMS frame linalg transforms stats sources poly measure filters fit exports)

foreach(room IN LISTS QUORVAN_ROOMS)
    file(GLOB_RECURSE units CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${room}/*.cpp)
    list(APPEND QUORVAN_UNITS ${units})
endforeach()
set(QUORVAN_TARGET_UNITS ${QUORVAN_UNITS})
list(FILTER QUORVAN_TARGET_UNITS INCLUDE REGEX "\\.target\\.cpp$")
list(FILTER QUORVAN_UNITS EXCLUDE REGEX "\\.target\\.cpp$")
# The units that know the system: frame/platform_posix*, frame/platform_windows*.
if(WIN32)
    list(FILTER QUORVAN_UNITS EXCLUDE REGEX "/frame/platform_posix[^/]*$")
else()
    list(FILTER QUORVAN_UNITS EXCLUDE REGEX "/frame/platform_windows[^/]*$")
endif()
# The allocators stand apart: the tests link others that fail on request and tell mixed blocks.
set(QUORVAN_HEAP ${PROJECT_SOURCE_DIR}/frame/memory.cpp ${PROJECT_SOURCE_DIR}/linalg/provider_memory.cpp)
list(REMOVE_ITEM QUORVAN_UNITS ${QUORVAN_HEAP})
# So does the entry of a Windows module: a test program has another.
if(WIN32)
    set(QUORVAN_MODULE ${PROJECT_SOURCE_DIR}/frame/platform_windows_module.cpp)
    set(QUORVAN_PROGRAM ${PROJECT_SOURCE_DIR}/frame/platform_windows_program.cpp)
    list(REMOVE_ITEM QUORVAN_UNITS ${QUORVAN_MODULE} ${QUORVAN_PROGRAM})
endif()

# The linear algebra provider: LAPACK and CBLAS with 32-bit integers under their generic names, so that the system's
# alternatives decide (OpenBLAS, the reference libraries, ...). Debian's libblas carries the CBLAS entries.
if(NOT WIN32)
    find_library(QUORVAN_LAPACK NAMES lapack REQUIRED)
    find_library(QUORVAN_BLAS NAMES blas REQUIRED)
    set(QUORVAN_PROVIDER ${QUORVAN_LAPACK} ${QUORVAN_BLAS})
endif()
# On Windows the provider is a module that the library finds when it is loaded, and binds name by name. The names are
# those of linalg/provider.h, and its allocator.
if(WIN32)
    set(header ${PROJECT_SOURCE_DIR}/linalg/provider.h)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
    file(STRINGS ${header} lines REGEX "^[A-Za-z].* (QV_LAPACK\\(|cblas_)")
    set(names "QV_PROVIDER_NAME(MKL_malloc)\nQV_PROVIDER_NAME(MKL_free)\n")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "(QV_LAPACK\\(|cblas_)[a-z0-9_]+" name "${line}")
        string(REPLACE "QV_LAPACK(" "" name "${name}")
        string(APPEND names "QV_PROVIDER_NAME(${name})\n")
    endforeach()
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/generated/provider_names.inc CONTENT "${names}")
endif()

# What every unit is compiled with. No contraction and no fast-math: stated orders of operations hold everywhere.
add_library(quorvan_options INTERFACE)
target_include_directories(quorvan_options INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_compile_definitions(quorvan_options INTERFACE QUORVAN_BUILDING)
target_compile_options(quorvan_options INTERFACE
    -Wall -Wextra -Wpedantic -Wno-psabi -ffp-contract=off -fno-math-errno -fno-exceptions -fno-rtti
    $<$<CONFIG:Release>:-O3>)
if(WIN32)
    target_include_directories(quorvan_options INTERFACE ${PROJECT_BINARY_DIR}/generated)
    target_compile_definitions(quorvan_options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX)
endif()
if(MINGW)
    # The stack of 64-bit Windows is aligned to 16 bytes, and GCC does not align a frame further: wide registers must be
    # spilled by moves that need no alignment.
    target_compile_options(quorvan_options INTERFACE -Wa,-muse-unaligned-vector-move)
endif()
if(QUORVAN_SANITIZE)
    target_compile_options(quorvan_options INTERFACE -fsanitize=${QUORVAN_SANITIZE} -fno-omit-frame-pointer
                           -fno-sanitize-recover=all)
    target_link_options(quorvan_options INTERFACE -fsanitize=${QUORVAN_SANITIZE})
endif()

set(QUORVAN_TARGET_SETS baseline)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    list(APPEND QUORVAN_TARGET_SETS avx2 avx512)
    target_compile_definitions(quorvan_options INTERFACE QUORVAN_WIDE_TARGETS)
endif()
# No one reads the exception flags: without them a selection may compute both its sides in a wide register. Values stay.
set(QUORVAN_FLAGS_ALL -fno-trapping-math)
set(QUORVAN_FLAGS_baseline)
set(QUORVAN_FLAGS_avx2 -mavx2 -mfma)
# GCC 12 takes the don't-care operand of its own intrinsics for an uninitialised variable.
set(QUORVAN_FLAGS_avx512 -Wno-uninitialized -Wno-maybe-uninitialized -mavx2 -mfma -mavx512f -mavx512dq -mavx512vl -mprefer-vector-width=512)

add_library(quorvan_core OBJECT ${QUORVAN_UNITS})
set_source_files_properties(${PROJECT_SOURCE_DIR}/frame/platform_windows_math.cpp PROPERTIES COMPILE_OPTIONS -fno-builtin)
target_link_libraries(quorvan_core PRIVATE quorvan_options)
set(QUORVAN_OBJECTS $<TARGET_OBJECTS:quorvan_core>)
foreach(set IN LISTS QUORVAN_TARGET_SETS)
    if(QUORVAN_TARGET_UNITS)
        add_library(quorvan_${set} OBJECT ${QUORVAN_TARGET_UNITS})
        target_link_libraries(quorvan_${set} PRIVATE quorvan_options)
        target_compile_definitions(quorvan_${set} PRIVATE QV_TARGET=${set} QV_TARGET_${set})
        target_compile_options(quorvan_${set} PRIVATE ${QUORVAN_FLAGS_ALL} ${QUORVAN_FLAGS_${set}})
        list(APPEND QUORVAN_OBJECTS $<TARGET_OBJECTS:quorvan_${set}>)
    endif()
endforeach()
# Inside the FFT kernels only the level of rounding counts: there products and sums may fuse.
foreach(unit IN LISTS QUORVAN_TARGET_UNITS)
    if(unit MATCHES "/transforms/kernels/")
        set_source_files_properties(${unit} PROPERTIES COMPILE_OPTIONS
            "-ffp-contract=fast;$<$<CXX_COMPILER_ID:GNU>:-fno-var-tracking-assignments>")
    endif()
endforeach()

add_library(quorvan SHARED ${QUORVAN_OBJECTS} ${QUORVAN_HEAP} ${QUORVAN_MODULE})
add_library(quorvan::quorvan ALIAS quorvan)
target_link_libraries(quorvan PRIVATE quorvan_options)
target_include_directories(quorvan INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                           $<INSTALL_INTERFACE:include>)
if(WIN32)
    # Exactly the names of the module-definition file, and nothing that a machine might lack.
    set_target_properties(quorvan PROPERTIES PREFIX "" IMPORT_PREFIX "lib"
                          LINK_DEPENDS ${PROJECT_SOURCE_DIR}/exports/quorvan.def)
    target_sources(quorvan PRIVATE ${PROJECT_SOURCE_DIR}/exports/quorvan.def)
    target_link_options(quorvan PRIVATE -static -Wl,--no-undefined)
else()
    set_target_properties(quorvan PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 0
                          LINK_DEPENDS ${PROJECT_SOURCE_DIR}/exports/quorvan.map)
    target_link_options(quorvan PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/exports/quorvan.map -Wl,--no-undefined)
endif()
target_link_libraries(quorvan PRIVATE ${QUORVAN_PROVIDER} m)

# For tests only: the same objects over an allocator in which the k-th allocation fails on request.
add_library(quorvan_testable STATIC EXCLUDE_FROM_ALL ${QUORVAN_OBJECTS}
            ${PROJECT_SOURCE_DIR}/tests/support/failing_heap.cpp
            ${PROJECT_SOURCE_DIR}/tests/support/failing_heap_objects.cpp
            ${PROJECT_SOURCE_DIR}/tests/support/fence_$<IF:$<BOOL:${WIN32}>,windows,posix>.cpp)
target_link_libraries(quorvan_testable PUBLIC quorvan_options ${QUORVAN_PROVIDER} m)
if(WIN32)
    target_sources(quorvan_testable INTERFACE ${QUORVAN_PROGRAM})
    target_link_options(quorvan_testable PUBLIC -static)
endif()
