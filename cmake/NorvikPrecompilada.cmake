# SPDX-License-Identifier: MIT
# Headers of others that most files of a target read are read once: two thirds of the time that a file with windows
# takes are theirs. Not beside ccache, which keeps nothing of such files, nor in a package, where each file must
# include what it uses.
if(PROJECT_IS_TOP_LEVEL AND NOT CCACHE)
  set(NORVIK_PCH_INICIAL ON)
else()
  set(NORVIK_PCH_INICIAL OFF)
endif()
option(NORVIK_PCH "Read the headers of others once a target" ${NORVIK_PCH_INICIAL})

set(NORVIK_COMUNES <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <set> <span> <stop_token> <string>
  <string_view> <utility> <variant> <vector>)
set(NORVIK_COMUNES_QT ${NORVIK_COMUNES} <QtWidgets>)

function(norvik_precompila target)
  if(NORVIK_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
    # GCC 12 no longer knows then that what it inlines of std::string is a header of the system, and finds fault with it.
    target_compile_options(${target} PRIVATE
      $<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread>)
  endif()
endfunction()
