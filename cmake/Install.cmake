# The installed form: versioned shared object or Windows module, headers, the CMake package quorvan and a pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS quorvan EXPORT quorvan-targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/quorvan DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING
        PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR})

# find_package(quorvan) gives the target quorvan::quorvan. Before 1.0 a new minor version may break its callers.
set(QUORVAN_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/quorvan)
install(EXPORT quorvan-targets NAMESPACE quorvan:: DESTINATION ${QUORVAN_PACKAGE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/quorvan-config.cmake.in
                              ${PROJECT_BINARY_DIR}/quorvan-config.cmake
                              INSTALL_DESTINATION ${QUORVAN_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/quorvan-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quorvan-config.cmake ${PROJECT_BINARY_DIR}/quorvan-config-version.cmake
        DESTINATION ${QUORVAN_PACKAGE_DIR})

# The pkg-config file finds its prefix from where it lies, so that an installed tree can be moved.
file(RELATIVE_PATH QUORVAN_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/quorvan.pc.in ${PROJECT_BINARY_DIR}/quorvan.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quorvan.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The archive for Windows, by cpack in the build folder: module, import library, headers, documents.
if(WIN32)
    set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME quorvan-${PROJECT_VERSION}-windows-x86_64)
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
    set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
    set(CPACK_STRIP_FILES ON)
    set(CPACK_VERBATIM_VARIABLES ON)
    include(CPack)
endif()
