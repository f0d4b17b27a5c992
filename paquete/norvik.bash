# SPDX-License-Identifier: MIT
# bash completion for norvik and norvik-taller                                       -*- shell-script -*-

# Files with some endings, and folders.
_norvik_ficheros() {
    local extension
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$1"; for extension in "${@:2}"; do compgen -f -X "!*.$extension" -- "$1"; done)
}

_norvik_palabras() {
    mapfile -t COMPREPLY < <(compgen -W "$2" -- "$1")
}

# What comes before the word among the order's files: their number.
_norvik_cuenta() {
    local i n=0
    for ((i = 2; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --formato | --lenguaje | --metodo | --color | --junit | --cuantas | --semilla | -o) ((i++)) ;;
            -?*) ;;
            *) ((n++)) ;;
        esac
    done
    echo "$n"
}

_norvik() {
    local palabra=${COMP_WORDS[COMP_CWORD]} anterior=${COMP_WORDS[COMP_CWORD - 1]} orden=${COMP_WORDS[1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        _norvik_palabras "$palabra" "analiza lexemas colorea informe modulo revisa prueba frases --help --version"
        return
    fi
    case $orden:$anterior in
        analiza:--formato) _norvik_palabras "$palabra" "arbol json lineas"; return ;;
        lexemas:--formato) _norvik_palabras "$palabra" "tabla json"; return ;;
        colorea:--formato) _norvik_palabras "$palabra" "ansi html"; return ;;
        revisa:--formato) _norvik_palabras "$palabra" "texto json sarif"; return ;;
        informe:--formato) _norvik_palabras "$palabra" "texto html"; return ;;
        *:--cuantas | *:--semilla) return ;;
        *:--junit) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- "$palabra"); return ;;
        *:--metodo) _norvik_palabras "$palabra" "clasico slr lalr lr1"; return ;;
        *:--color) _norvik_palabras "$palabra" "siempre nunca auto"; return ;;
        modulo:--lenguaje) _norvik_palabras "$palabra" "vb cpp"; return ;;
        *:-o) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -d -- "$palabra"); return ;;
    esac
    case $orden:$palabra in
        modulo:-*) _norvik_palabras "$palabra" "-o --lenguaje --metodo --color --help" ;;
        revisa:-*) _norvik_palabras "$palabra" "--formato --estricto --metodo --color --help" ;;
        informe:-*) _norvik_palabras "$palabra" "-o --formato --metodo --color --help" ;;
        prueba:-*) _norvik_palabras "$palabra" "--actualiza --junit --metodo --color --help" ;;
        frases:-*) _norvik_palabras "$palabra" "--cuantas --semilla --mal --metodo --color --help" ;;
        *:-*) _norvik_palabras "$palabra" "--formato --metodo --color --help" ;;
        *)
            case $orden:$(_norvik_cuenta) in
                informe:0 | modulo:0 | frases:0 | revisa:*) _norvik_ficheros "$palabra" nvk ;;
                *:0) _norvik_ficheros "$palabra" nvk bas ;;
                prueba:1)
                    compopt -o filenames 2>/dev/null
                    mapfile -t COMPREPLY < <(compgen -d -- "$palabra") ;;
                analiza:1 | lexemas:1 | colorea:1)
                    compopt -o filenames 2>/dev/null
                    mapfile -t COMPREPLY < <(compgen -f -- "$palabra") ;;
            esac ;;
    esac
}

_norvik_taller() {
    local palabra=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ ${COMP_WORDS[COMP_CWORD - 1]} == --lenguaje ]]; then
        _norvik_ficheros "$palabra" nvk bas
    elif [[ $palabra == -* ]]; then
        _norvik_palabras "$palabra" "--lenguaje --help --version"
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$palabra")
    fi
}

complete -F _norvik norvik
complete -F _norvik_taller norvik-taller
