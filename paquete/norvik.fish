# SPDX-License-Identifier: MIT
# fish completion for norvik

set -l ordenes analiza lexemas colorea informe modulo revisa prueba frases

# How many files of the order stand before the word.
function __norvik_cuenta
    set -l n 0
    set -l salta no
    for palabra in (commandline -opc)[3..-1]
        if test $salta = si
            set salta no
            continue
        end
        switch $palabra
            case --formato --lenguaje --metodo --color --junit --cuantas --semilla -o
                set salta si
            case '-?*'
            case '*'
                set n (math $n + 1)
        end
    end
    echo $n
end

function __norvik_faltan # how many files the order has before this one, and the orders
    __fish_seen_subcommand_from $argv[2..-1]; and test (__norvik_cuenta) = $argv[1]
end

complete -c norvik -f
complete -c norvik -n __fish_use_subcommand -l help -d 'cómo se usa'
complete -c norvik -n __fish_use_subcommand -l version -d 'la versión'
complete -c norvik -n __fish_use_subcommand -a analiza -d 'el árbol sintáctico de un texto'
complete -c norvik -n __fish_use_subcommand -a lexemas -d 'los tokens de un texto'
complete -c norvik -n __fish_use_subcommand -a colorea -d 'un texto con los colores de sus tokens'
complete -c norvik -n __fish_use_subcommand -a informe -d 'el informe de la gramática'
complete -c norvik -n __fish_use_subcommand -a modulo -d 'el módulo que carga el lenguaje'
complete -c norvik -n __fish_use_subcommand -a revisa -d 'lo que está mal en especificaciones'
complete -c norvik -n __fish_use_subcommand -a prueba -d 'textos que se deben aceptar o rechazar'
complete -c norvik -n __fish_use_subcommand -a frases -d 'textos del lenguaje'

complete -c norvik -n "__norvik_faltan 0 informe modulo frases" -k -a '(__fish_complete_suffix .nvk)'
complete -c norvik -n "__fish_seen_subcommand_from revisa" -k -a '(__fish_complete_suffix .nvk)'
complete -c norvik -n "__norvik_faltan 0 analiza lexemas colorea prueba" -k -a '(__fish_complete_suffix .nvk .bas)'
complete -c norvik -n "__norvik_faltan 1 analiza lexemas colorea" -F
complete -c norvik -n "__norvik_faltan 1 prueba" -a '(__fish_complete_directories)'

complete -c norvik -n "__fish_seen_subcommand_from $ordenes" -l help -d 'cómo se usa'
complete -c norvik -n "__fish_seen_subcommand_from $ordenes" -x -l metodo -a 'clasico slr lalr lr1'
complete -c norvik -n "__fish_seen_subcommand_from $ordenes" -x -l color -a 'siempre nunca auto'
complete -c norvik -n "__fish_seen_subcommand_from analiza" -x -l formato -a 'arbol json lineas'
complete -c norvik -n "__fish_seen_subcommand_from lexemas" -x -l formato -a 'tabla json'
complete -c norvik -n "__fish_seen_subcommand_from colorea" -x -l formato -a 'ansi html'
complete -c norvik -n "__fish_seen_subcommand_from informe" -x -l formato -a 'texto html'
complete -c norvik -n "__fish_seen_subcommand_from revisa" -x -l formato -a 'texto json sarif'
complete -c norvik -n "__fish_seen_subcommand_from revisa" -l estricto -d 'un aviso cuenta como un error'
complete -c norvik -n "__fish_seen_subcommand_from modulo" -x -l lenguaje -a 'vb cpp'
complete -c norvik -n "__fish_seen_subcommand_from informe modulo" -x -s o -a '(__fish_complete_directories)'
complete -c norvik -n "__fish_seen_subcommand_from prueba" -l actualiza -d 'escribe lo que se espera'
complete -c norvik -n "__fish_seen_subcommand_from prueba" -r -F -l junit
complete -c norvik -n "__fish_seen_subcommand_from frases" -x -l cuantas
complete -c norvik -n "__fish_seen_subcommand_from frases" -x -l semilla
complete -c norvik -n "__fish_seen_subcommand_from frases" -l mal -d 'con un error cada uno'
