/* SPDX-License-Identifier: MIT */

%{
/* JSON: the same rules, in the same order, as ejemplos/json/json.nvk. */
#include "arbol.h"
#define YYSTYPE Nodo *
#define YYSTYPE_IS_DECLARED 1

extern Nodo *json_raiz;
int json_lex(void);
static void json_error(const char *mensaje) { (void)mensaje; }
%}

%token T_llave_ab T_llave_ce T_cor_ab T_cor_ce T_coma T_dos_puntos T_verdadero T_falso T_nulo T_numero
%token T_cadena T_error
%%
Documento: Valor { json_raiz = $$ = NODO(1, $1); }
    ;
Valor: Objeto { $$ = NODO(2, $1); }
    | Lista { $$ = NODO(3, $1); }
    | T_cadena { $$ = NODO(4, $1); }
    | T_numero { $$ = NODO(5, $1); }
    | T_verdadero { $$ = NODO(6, $1); }
    | T_falso { $$ = NODO(7, $1); }
    | T_nulo { $$ = NODO(8, $1); }
    ;
Objeto: T_llave_ab T_llave_ce { $$ = NODO(9, $1, $2); }
    | T_llave_ab Miembros T_llave_ce { $$ = NODO(10, $1, $2, $3); }
    ;
Miembros: Miembro { $$ = NODO(11, $1); }
    | Miembros T_coma Miembro { $$ = NODO(12, $1, $2, $3); }
    ;
Miembro: T_cadena T_dos_puntos Valor { $$ = NODO(13, $1, $2, $3); }
    ;
Lista: T_cor_ab T_cor_ce { $$ = NODO(14, $1, $2); }
    | T_cor_ab Elementos T_cor_ce { $$ = NODO(15, $1, $2, $3); }
    ;
Elementos: Valor { $$ = NODO(16, $1); }
    | Elementos T_coma Valor { $$ = NODO(17, $1, $2, $3); }
    ;
%%
