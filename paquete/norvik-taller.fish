# SPDX-License-Identifier: MIT
# fish completion for norvik-taller

complete -c norvik-taller -l help -d 'cómo se usa'
complete -c norvik-taller -l version -d 'la versión'
complete -c norvik-taller -x -l lenguaje -k -a '(__fish_complete_suffix .nvk .bas)' -d 'lenguaje del texto'
