# SPDX-License-Identifier: MIT
# What makes a fault of ours harder to use by a hostile language or text, in all that is built here. Packages get the
# same from dpkg-buildflags; what the compiler does not know is left out. docs/rendimiento.md tells what it costs.
option(NORVIK_HARDENING "Harden what is built (with optimisation, and without sanitizers)" OFF)

if(NORVIK_HARDENING)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX) # programs too, not only libraries, go wherever the system puts them
  foreach(opcion -fstack-protector-strong -fstack-clash-protection -fcf-protection)
    string(MAKE_C_IDENTIFIER "NORVIK_KNOWS${opcion}" conoce)
    check_cxx_compiler_flag(${opcion} ${conoce})
    if(${conoce})
      add_compile_options(${opcion})
    endif()
  endforeach()
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_link_options(LINKER:-z,relro LINKER:-z,now)
endif()
