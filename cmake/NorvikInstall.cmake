# SPDX-License-Identifier: MIT
# What a host program needs: the libraries, their public headers, a CMake package and pkg-config files. All find their
# places relative to their own, so that an installation can be moved. The package serves this build tree, too.
include(CMakePackageConfigHelpers)

set(NORVIK_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/norvik")
file(RELATIVE_PATH NORVIK_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" NORVIK_PC_PREFIX "${NORVIK_PC_PREFIX}")

configure_package_config_file(cmake/norvikConfig.cmake.in norvikConfig.cmake
  INSTALL_DESTINATION "${NORVIK_CMAKE_DIR}")
write_basic_package_version_file(norvikConfigVersion.cmake COMPATIBILITY SameMinorVersion)
configure_file(cmake/NorvikLenguaje.cmake NorvikLenguaje.cmake COPYONLY)
install(FILES "${PROJECT_BINARY_DIR}/norvikConfig.cmake" "${PROJECT_BINARY_DIR}/norvikConfigVersion.cmake"
  cmake/NorvikLenguaje.cmake DESTINATION "${NORVIK_CMAKE_DIR}")

# Targets that a file of the CMake package declares, here and where they are installed.
function(norvik_install_targets fichero)
  install(TARGETS ${ARGN} EXPORT ${fichero})
  install(EXPORT ${fichero} NAMESPACE norvik:: DESTINATION "${NORVIK_CMAKE_DIR}")
  export(EXPORT ${fichero} NAMESPACE norvik:: FILE ${fichero}.cmake)
endfunction()

# A library, shared and static, with its pkg-config file.
function(norvik_install_library nombre pc)
  norvik_install_targets(norvik-${nombre}-shared norvik-${nombre}-compartida)
  norvik_install_targets(norvik-${nombre}-static norvik-${nombre})
  configure_file(cmake/${pc}.in ${pc} @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${pc}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()

# Only what hosts may include is there for them.
function(norvik_install_headers)
  file(STRINGS docs/referencia/cabeceras cabeceras REGEX "^norvik/")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS docs/referencia/cabeceras)
  if(NOT TARGET norvik-qt)
    list(FILTER cabeceras EXCLUDE REGEX "/(widget|tools|qt)/")
  endif()
  foreach(cabecera ${cabeceras})
    cmake_path(GET cabecera PARENT_PATH carpeta)
    install(FILES ${cabecera} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${carpeta}")
  endforeach()
  install(FILES "${PROJECT_BINARY_DIR}/include/norvik/version.hpp" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/norvik")
endfunction()

norvik_install_headers()
norvik_install_targets(norvik-orden norvik)
norvik_install_library(core norvik.pc)
if(TARGET norvik-qt)
  norvik_install_library(qt norvik-qt.pc)
endif()
