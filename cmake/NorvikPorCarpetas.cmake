# SPDX-License-Identifier: MIT
# With -DCMAKE_UNITY_BUILD=ON, as the scripts build, the files of a folder are compiled as one: the headers of others, two
# thirds of a file's time, are read once a folder. What a file keeps to itself must then have a name of its own in its
# folder.
function(norvik_por_carpetas target)
  get_target_property(fuentes ${target} SOURCES)
  foreach(fuente IN LISTS fuentes)
    cmake_path(ABSOLUTE_PATH fuente OUTPUT_VARIABLE lugar)
    cmake_path(GET lugar PARENT_PATH carpeta)
    cmake_path(RELATIVE_PATH carpeta BASE_DIRECTORY "${PROJECT_SOURCE_DIR}")
    string(MAKE_C_IDENTIFIER "${carpeta}" grupo)
    set_property(SOURCE "${fuente}" PROPERTY UNITY_GROUP "${grupo}")
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
  # A class that a file completes with parts of its own is as much its own there, though GCC no longer sees it.
  if(CMAKE_UNITY_BUILD)
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>
      $<$<CXX_COMPILER_ID:Clang>:-Wno-shadow>) # g++ finds what matters; clang takes one alias in two files for a fault
  endif()
endfunction()
