#compdef norvik-taller
# SPDX-License-Identifier: MIT

_arguments \
    '--lenguaje[lenguaje del texto]:lenguaje:_files -g "*.(nvk|bas)"' \
    '(- *)--help[cómo se usa]' '(- *)--version[la versión]' '1:texto o formulario:_files'
