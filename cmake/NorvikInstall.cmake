# What a host program needs: the library, its headers, a CMake package and a pkg-config file. Both find their
# places relative to their own, so that an installation can be moved.
include(CMakePackageConfigHelpers)

set(NORVIK_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/norvik")
file(RELATIVE_PATH NORVIK_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" NORVIK_PC_PREFIX "${NORVIK_PC_PREFIX}")

configure_package_config_file(cmake/norvikConfig.cmake.in norvikConfig.cmake
  INSTALL_DESTINATION "${NORVIK_CMAKE_DIR}")
write_basic_package_version_file(norvikConfigVersion.cmake COMPATIBILITY SameMinorVersion)
configure_file(cmake/norvik.pc.in norvik.pc @ONLY)

install(TARGETS norvik-core EXPORT norvikTargets ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(TARGETS norvik RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(DIRECTORY norvik DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.hpp" PATTERN qt EXCLUDE PATTERN tools EXCLUDE)
install(EXPORT norvikTargets NAMESPACE norvik:: DESTINATION "${NORVIK_CMAKE_DIR}")
install(FILES "${PROJECT_BINARY_DIR}/norvikConfig.cmake" "${PROJECT_BINARY_DIR}/norvikConfigVersion.cmake"
  DESTINATION "${NORVIK_CMAKE_DIR}")
install(FILES "${PROJECT_BINARY_DIR}/norvik.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
