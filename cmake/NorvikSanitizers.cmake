# SPDX-License-Identifier: MIT
if(NORVIK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(NORVIK_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link) # the coverage that guides the fuzzer
endif()
