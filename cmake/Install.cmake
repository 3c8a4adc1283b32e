# The installed form: versioned shared object or Windows module, headers, the CMake package quorvan and a pkg-config
# file. Two components: what a program needs that runs (runtime), and what one needs that is built (development).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS quorvan EXPORT quorvan-targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/quorvan DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT development)

# find_package(quorvan) gives the target quorvan::quorvan. Before 1.0 a new minor version may break its callers.
set(QUORVAN_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/quorvan)
install(EXPORT quorvan-targets NAMESPACE quorvan:: DESTINATION ${QUORVAN_PACKAGE_DIR} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/quorvan-config.cmake.in
                              ${PROJECT_BINARY_DIR}/quorvan-config.cmake
                              INSTALL_DESTINATION ${QUORVAN_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/quorvan-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quorvan-config.cmake ${PROJECT_BINARY_DIR}/quorvan-config-version.cmake
        DESTINATION ${QUORVAN_PACKAGE_DIR} COMPONENT development)

# The pkg-config file finds its prefix from where it lies, so that an installed tree can be moved.
file(RELATIVE_PATH QUORVAN_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/quorvan.pc.in ${PROJECT_BINARY_DIR}/quorvan.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quorvan.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

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
    return()
endif()

# Debian packages, by `cpack` in the build folder: libquorvan0 and libquorvan-dev.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvan)
set(CPACK_PACKAGE_CONTACT "The Quorvan developers <quorvan@quorvan.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
get_target_property(QUORVAN_SOVERSION quorvan SOVERSION)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libquorvan${QUORVAN_SOVERSION})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS
    "libblas3 | libblas.so.3, liblapack3 | liblapack.so.3, libc6 (>= 2.34), libstdc++6 (>= 12)")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Flat functions over plain arrays: transforms, filters, measurements, statistics,
fits, matrices and special functions.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libquorvan-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libquorvan${QUORVAN_SOVERSION} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config file: what a program is built with.")
include(CPack)
