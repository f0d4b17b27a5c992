#compdef norvik
# SPDX-License-Identifier: MIT

local -a ordenes comunes
ordenes=(
    'analiza:el árbol sintáctico de un texto'
    'lexemas:los tokens de un texto'
    'colorea:un texto con los colores de sus tokens'
    'informe:el informe de la gramática'
    'modulo:el módulo que carga el lenguaje'
    'revisa:lo que está mal en especificaciones'
    'prueba:textos que se deben aceptar o rechazar'
    'frases:textos del lenguaje'
)
if ((CURRENT == 2)); then
    _describe -t ordenes orden ordenes
    _arguments '--help[cómo se usa]' '--version[la versión]'
    return
fi

local orden=$words[2]
local lenguaje='1:lenguaje:_files -g "*.(nvk|bas)"' especificacion='1:especificación:_files -g "*.nvk"'
shift words
((CURRENT--))
comunes=(
    '--metodo[cómo se hace la tabla]:método:(clasico slr lalr lr1)'
    '--color[cuándo hay colores]:cuándo:(siempre nunca auto)'
    '(- *)--help[cómo se usa]'
)
case $orden in
    analiza) _arguments $comunes '--formato[de la salida]:formato:(arbol json lineas)' $lenguaje '2:texto:_files' ;;
    lexemas) _arguments $comunes '--formato[de la salida]:formato:(tabla json)' $lenguaje '2:texto:_files' ;;
    colorea) _arguments $comunes '--formato[de la salida]:formato:(ansi html)' $lenguaje '2:texto:_files' ;;
    informe)
        _arguments $comunes '--formato[del informe]:formato:(texto html)' '-o[dónde]:carpeta:_files -/' $especificacion ;;
    modulo)
        _arguments $comunes '--lenguaje[del módulo]:lenguaje:(vb cpp)' '-o[dónde]:carpeta:_files -/' \
            $especificacion '2:nombre:' ;;
    revisa)
        _arguments $comunes '--formato[de la salida]:formato:(texto json sarif)' \
            '--estricto[un aviso cuenta como un error]' '*:especificación:_files -g "*.nvk"' ;;
    prueba)
        _arguments $comunes '--actualiza[escribe lo que se espera]' '--junit[informe de JUnit]:fichero:_files' \
            $lenguaje '2:carpeta:_files -/' ;;
    frases)
        _arguments $comunes '--cuantas[cuántos textos]:número:' '--semilla[del azar]:número:' \
            '--mal[con un error cada uno]' $especificacion ;;
esac
