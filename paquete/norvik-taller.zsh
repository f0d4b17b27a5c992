#compdef norvik-taller
# SPDX-License-Identifier: MIT

_arguments \
    '--lenguaje[lenguaje del texto]:lenguaje:_files -g "*.(nvk|bas)"' \
    '(- *)--help[cómo se usa]' '(- *)--version[la versión]' '*:fichero:_files'
