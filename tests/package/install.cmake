# Installs the build into STAGING, checks what lies there, and moves it to PREFIX: an installed tree can be moved.
file(REMOVE_RECURSE ${STAGING} ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${STAGING} COMMAND_ERROR_IS_FATAL ANY
                OUTPUT_QUIET)

set(library ${STAGING}/${LIBDIR}/libquorvan.so)
foreach(file ${library} ${library}.${SOVERSION} ${library}.${VERSION} ${STAGING}/${LIBDIR}/pkgconfig/quorvan.pc
        ${STAGING}/${LIBDIR}/cmake/quorvan/quorvan-config.cmake ${STAGING}/include/quorvan/quorvan.h
        ${STAGING}/include/quorvan/types.h ${STAGING}/include/quorvan/quorvan.hpp)
    if(NOT EXISTS ${file})
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()

# Programs bind the name that carries the version of the binary interface.
foreach(link ${library} ${library}.${SOVERSION})
    if(NOT IS_SYMLINK ${link})
        message(FATAL_ERROR "not a link to the versioned file: ${link}")
    endif()
endforeach()
execute_process(COMMAND ${READELF} --dynamic ${library} OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "SONAME.*\\[libquorvan\\.so\\.${SOVERSION}\\]")
    message(FATAL_ERROR "unexpected soname:\n${dynamic}")
endif()
if(dynamic MATCHES "R(UN)?PATH")
    message(FATAL_ERROR "a path of the build is left in the library:\n${dynamic}")
endif()

file(RENAME ${STAGING} ${PREFIX})
