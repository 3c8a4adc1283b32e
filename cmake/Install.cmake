# The installed form: shared object, headers, CMake package and pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
