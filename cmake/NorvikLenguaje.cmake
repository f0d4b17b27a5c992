# SPDX-License-Identifier: MIT
# norvik_add_language(TARGET FILE.nvk [NAME]) makes the C++ header of a language, NAME.hpp, when TARGET is built, and
# puts it where its sources can include it. NAME, which is the header's namespace too, is the file's with a capital when
# it is not given.
function(norvik_add_language destino especificacion)
  cmake_path(ABSOLUTE_PATH especificacion NORMALIZE)
  if(ARGC GREATER 2)
    set(nombre "${ARGV2}")
  else()
    cmake_path(GET especificacion STEM nombre)
    string(SUBSTRING "${nombre}" 0 1 inicial)
    string(SUBSTRING "${nombre}" 1 -1 resto)
    string(TOUPPER "${inicial}" inicial)
    set(nombre "${inicial}${resto}")
  endif()
  set(carpeta "${CMAKE_CURRENT_BINARY_DIR}/norvik-${destino}")
  file(MAKE_DIRECTORY "${carpeta}")
  add_custom_command(OUTPUT "${carpeta}/${nombre}.hpp" DEPENDS norvik::norvik "${especificacion}" VERBATIM
    COMMAND norvik::norvik modulo "${especificacion}" "${nombre}" --lenguaje cpp -o "${carpeta}")
  target_sources(${destino} PRIVATE "${carpeta}/${nombre}.hpp")
  target_include_directories(${destino} PRIVATE "${carpeta}")
endfunction()
