# SPDX-License-Identifier: MIT
# What a host program needs: the libraries, their headers, a CMake package and pkg-config files. All find their
# places relative to their own, so that an installation can be moved.
include(CMakePackageConfigHelpers)

set(NORVIK_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/norvik")
file(RELATIVE_PATH NORVIK_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" NORVIK_PC_PREFIX "${NORVIK_PC_PREFIX}")

configure_package_config_file(cmake/norvikConfig.cmake.in norvikConfig.cmake
  INSTALL_DESTINATION "${NORVIK_CMAKE_DIR}")
write_basic_package_version_file(norvikConfigVersion.cmake COMPATIBILITY SameMinorVersion)

# A library with the export set and the pkg-config file that name it.
function(norvik_install_library target export pc)
  configure_file(cmake/${pc}.in ${pc} @ONLY)
  install(TARGETS ${target} EXPORT ${export} ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT desarrollo)
  install(EXPORT ${export} NAMESPACE norvik:: DESTINATION "${NORVIK_CMAKE_DIR}" COMPONENT desarrollo)
  install(FILES "${PROJECT_BINARY_DIR}/${pc}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT desarrollo)
endfunction()

install(FILES "${PROJECT_BINARY_DIR}/norvikConfig.cmake" "${PROJECT_BINARY_DIR}/norvikConfigVersion.cmake"
  DESTINATION "${NORVIK_CMAKE_DIR}" COMPONENT desarrollo)
norvik_install_library(norvik-core norvikTargets norvik.pc)
install(DIRECTORY norvik DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT desarrollo
  FILES_MATCHING PATTERN "*.hpp" PATTERN qt EXCLUDE PATTERN tools EXCLUDE)
if(TARGET norvik-qt)
  norvik_install_library(norvik-qt norvikQtTargets norvik-qt.pc)
  install(DIRECTORY norvik/tools DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/norvik" COMPONENT desarrollo
    FILES_MATCHING PATTERN "*.hpp")
  install(DIRECTORY norvik/platform/qt DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/norvik/platform"
    COMPONENT desarrollo FILES_MATCHING PATTERN "*.hpp")
endif()

install(TARGETS norvik RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT orden)
