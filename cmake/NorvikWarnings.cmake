# SPDX-License-Identifier: MIT
# Warnings are errors in everything that is ours, where it is built by itself.
option(NORVIK_WERROR "Warnings are errors" ${PROJECT_IS_TOP_LEVEL})
function(norvik_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
    $<$<BOOL:${NORVIK_WERROR}>:-Werror>)
  # GCC 12 takes "literal" + std::string for an overlapping copy as soon as it inlines it.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
endfunction()
