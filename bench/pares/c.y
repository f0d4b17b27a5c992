/* SPDX-License-Identifier: MIT */

%{
/* The C-like language: the same rules, in the same order, as ejemplos/c/c.nvk. */
#include "arbol.h"
#define YYSTYPE Nodo *
#define YYSTYPE_IS_DECLARED 1

extern Nodo *c_raiz;
int c_lex(void);
static void c_error(const char *mensaje) { (void)mensaje; }
%}

%token T_auto T_break T_case T_char T_const T_continue T_default T_do T_double T_else T_enum T_extern T_float
%token T_for T_goto T_if T_int T_long T_register T_return T_short T_signed T_sizeof T_static T_struct T_switch
%token T_typedef T_union T_unsigned T_void T_volatile T_while T_llave_ab T_llave_ce T_par_ab T_par_ce T_cor_ab
%token T_cor_ce T_pyc T_coma T_dos_puntos T_interroga T_punto T_flecha T_puntos T_nega_bits T_nega T_mas
%token T_menos T_por T_entre T_resto T_desp_izq T_desp_der T_menor T_mayor T_menor_igual T_mayor_igual T_igual
%token T_distinto T_y_bits T_x_bits T_o_bits T_y_log T_o_log T_asigna T_asigna_mas T_asigna_menos T_asigna_por
%token T_asigna_entre T_asigna_resto T_asigna_izq T_asigna_der T_asigna_y T_asigna_x T_asigna_o T_incrementa
%token T_decrementa T_real T_entero T_caracter T_cadena T_etiqueta T_tipo_def T_id T_error
%%
Programa: Externas { c_raiz = $$ = NODO(1, $1); }
    ;
Externas: Externas Externa { $$ = NODO(2, $1, $2); }
    | Externa { $$ = NODO(3, $1); }
    ;
Externa: Funcion { $$ = NODO(4, $1); }
    | Declaracion { $$ = NODO(5, $1); }
    ;
Funcion: Atributos Declarador Bloque { $$ = NODO(6, $1, $2, $3); }
    ;
Declaracion: Atributos T_pyc { $$ = NODO(7, $1, $2); }
    | Atributos Iniciados T_pyc { $$ = NODO(8, $1, $2, $3); }
    ;
Atributos: Atributos Atributo { $$ = NODO(9, $1, $2); }
    | Atributo { $$ = NODO(10, $1); }
    ;
Atributo: Almacen { $$ = NODO(11, $1); }
    | Tipo { $$ = NODO(12, $1); }
    | Calificador { $$ = NODO(13, $1); }
    ;
Almacen: T_auto { $$ = NODO(14, $1); }
    | T_extern { $$ = NODO(15, $1); }
    | T_register { $$ = NODO(16, $1); }
    | T_static { $$ = NODO(17, $1); }
    | T_typedef { $$ = NODO(18, $1); }
    ;
Calificador: T_const { $$ = NODO(19, $1); }
    | T_volatile { $$ = NODO(20, $1); }
    ;
Tipo: T_char { $$ = NODO(21, $1); }
    | T_double { $$ = NODO(22, $1); }
    | T_float { $$ = NODO(23, $1); }
    | T_int { $$ = NODO(24, $1); }
    | T_long { $$ = NODO(25, $1); }
    | T_short { $$ = NODO(26, $1); }
    | T_signed { $$ = NODO(27, $1); }
    | T_unsigned { $$ = NODO(28, $1); }
    | T_void { $$ = NODO(29, $1); }
    | T_tipo_def { $$ = NODO(30, $1); }
    | Registro { $$ = NODO(31, $1); }
    | Enumeracion { $$ = NODO(32, $1); }
    ;
Registro: Clase Marca T_llave_ab Campos T_llave_ce { $$ = NODO(33, $1, $2, $3, $4, $5); }
    | Clase T_llave_ab Campos T_llave_ce { $$ = NODO(34, $1, $2, $3, $4); }
    | Clase Marca { $$ = NODO(35, $1, $2); }
    ;
Clase: T_struct { $$ = NODO(36, $1); }
    | T_union { $$ = NODO(37, $1); }
    ;
Marca: T_id { $$ = NODO(38, $1); }
    | T_tipo_def { $$ = NODO(39, $1); }
    ;
Campos: Campos Campo { $$ = NODO(40, $1, $2); }
    | Campo { $$ = NODO(41, $1); }
    ;
Campo: Cualidades ListaCampos T_pyc { $$ = NODO(42, $1, $2, $3); }
    ;
Cualidades: Cualidades Cualidad { $$ = NODO(43, $1, $2); }
    | Cualidad { $$ = NODO(44, $1); }
    ;
Cualidad: Tipo { $$ = NODO(45, $1); }
    | Calificador { $$ = NODO(46, $1); }
    ;
ListaCampos: ListaCampos T_coma Miembro { $$ = NODO(47, $1, $2, $3); }
    | Miembro { $$ = NODO(48, $1); }
    ;
Miembro: Declarador { $$ = NODO(49, $1); }
    | Declarador T_dos_puntos Constante { $$ = NODO(50, $1, $2, $3); }
    ;
Enumeracion: T_enum Marca T_llave_ab Valores T_llave_ce { $$ = NODO(51, $1, $2, $3, $4, $5); }
    | T_enum T_llave_ab Valores T_llave_ce { $$ = NODO(52, $1, $2, $3, $4); }
    | T_enum Marca { $$ = NODO(53, $1, $2); }
    ;
Valores: Valores T_coma Valor { $$ = NODO(54, $1, $2, $3); }
    | Valor { $$ = NODO(55, $1); }
    ;
Valor: T_id { $$ = NODO(56, $1); }
    | T_id T_asigna Constante { $$ = NODO(57, $1, $2, $3); }
    ;
Iniciados: Iniciados T_coma Iniciado { $$ = NODO(58, $1, $2, $3); }
    | Iniciado { $$ = NODO(59, $1); }
    ;
Iniciado: Declarador { $$ = NODO(60, $1); }
    | Declarador T_asigna Inicial { $$ = NODO(61, $1, $2, $3); }
    ;
Inicial: Asignacion { $$ = NODO(62, $1); }
    | T_llave_ab Iniciales T_llave_ce { $$ = NODO(63, $1, $2, $3); }
    | T_llave_ab Iniciales T_coma T_llave_ce { $$ = NODO(64, $1, $2, $3, $4); }
    ;
Iniciales: Iniciales T_coma Inicial { $$ = NODO(65, $1, $2, $3); }
    | Inicial { $$ = NODO(66, $1); }
    ;
Declarador: Puntero Directo { $$ = NODO(67, $1, $2); }
    | Directo { $$ = NODO(68, $1); }
    ;
Puntero: T_por { $$ = NODO(69, $1); }
    | T_por Puntero { $$ = NODO(70, $1, $2); }
    | T_por Calificadores { $$ = NODO(71, $1, $2); }
    | T_por Calificadores Puntero { $$ = NODO(72, $1, $2, $3); }
    ;
Calificadores: Calificadores Calificador { $$ = NODO(73, $1, $2); }
    | Calificador { $$ = NODO(74, $1); }
    ;
Directo: T_id { $$ = NODO(75, $1); }
    | T_par_ab Declarador T_par_ce { $$ = NODO(76, $1, $2, $3); }
    | Directo Sufijo { $$ = NODO(77, $1, $2); }
    ;
Sufijo: T_cor_ab T_cor_ce { $$ = NODO(78, $1, $2); }
    | T_cor_ab Constante T_cor_ce { $$ = NODO(79, $1, $2, $3); }
    | T_par_ab T_par_ce { $$ = NODO(80, $1, $2); }
    | T_par_ab Parametros T_par_ce { $$ = NODO(81, $1, $2, $3); }
    ;
Parametros: Formales { $$ = NODO(82, $1); }
    | Formales T_coma T_puntos { $$ = NODO(83, $1, $2, $3); }
    ;
Formales: Formales T_coma Formal { $$ = NODO(84, $1, $2, $3); }
    | Formal { $$ = NODO(85, $1); }
    ;
Formal: Atributos Declarador { $$ = NODO(86, $1, $2); }
    | Atributos Abstracto { $$ = NODO(87, $1, $2); }
    | Atributos { $$ = NODO(88, $1); }
    ;
NombreTipo: Cualidades { $$ = NODO(89, $1); }
    | Cualidades Abstracto { $$ = NODO(90, $1, $2); }
    ;
Abstracto: Puntero { $$ = NODO(91, $1); }
    | Puntero Anonimo { $$ = NODO(92, $1, $2); }
    | Anonimo { $$ = NODO(93, $1); }
    ;
Anonimo: T_par_ab Abstracto T_par_ce { $$ = NODO(94, $1, $2, $3); }
    | Sufijo { $$ = NODO(95, $1); }
    | Anonimo Sufijo { $$ = NODO(96, $1, $2); }
    ;
Bloque: T_llave_ab T_llave_ce { $$ = NODO(97, $1, $2); }
    | T_llave_ab Lineas T_llave_ce { $$ = NODO(98, $1, $2, $3); }
    ;
Lineas: Lineas Linea { $$ = NODO(99, $1, $2); }
    | Linea { $$ = NODO(100, $1); }
    ;
Linea: Declaracion { $$ = NODO(101, $1); }
    | Sentencia { $$ = NODO(102, $1); }
    ;
Sentencia: Cerrada { $$ = NODO(103, $1); }
    | Abierta { $$ = NODO(104, $1); }
    ;
Cerrada: Simple { $$ = NODO(105, $1); }
    | Rotulo Cerrada { $$ = NODO(106, $1, $2); }
    | T_if T_par_ab Expresion T_par_ce Cerrada T_else Cerrada { $$ = NODO(107, $1, $2, $3, $4, $5, $6, $7); }
    | T_while T_par_ab Expresion T_par_ce Cerrada { $$ = NODO(108, $1, $2, $3, $4, $5); }
    | T_for T_par_ab Vuelta T_par_ce Cerrada { $$ = NODO(109, $1, $2, $3, $4, $5); }
    ;
Abierta: Rotulo Abierta { $$ = NODO(110, $1, $2); }
    | T_if T_par_ab Expresion T_par_ce Sentencia { $$ = NODO(111, $1, $2, $3, $4, $5); }
    | T_if T_par_ab Expresion T_par_ce Cerrada T_else Abierta { $$ = NODO(112, $1, $2, $3, $4, $5, $6, $7); }
    | T_while T_par_ab Expresion T_par_ce Abierta { $$ = NODO(113, $1, $2, $3, $4, $5); }
    | T_for T_par_ab Vuelta T_par_ce Abierta { $$ = NODO(114, $1, $2, $3, $4, $5); }
    ;
Simple: Bloque { $$ = NODO(115, $1); }
    | Suelta { $$ = NODO(116, $1); }
    | T_switch T_par_ab Expresion T_par_ce Bloque { $$ = NODO(117, $1, $2, $3, $4, $5); }
    | T_do Sentencia T_while T_par_ab Expresion T_par_ce T_pyc { $$ = NODO(118, $1, $2, $3, $4, $5, $6, $7); }
    | T_return T_pyc { $$ = NODO(119, $1, $2); }
    | T_return Expresion T_pyc { $$ = NODO(120, $1, $2, $3); }
    | T_break T_pyc { $$ = NODO(121, $1, $2); }
    | T_continue T_pyc { $$ = NODO(122, $1, $2); }
    | T_goto T_id T_pyc { $$ = NODO(123, $1, $2, $3); }
    ;
Suelta: T_pyc { $$ = NODO(124, $1); }
    | Expresion T_pyc { $$ = NODO(125, $1, $2); }
    ;
Rotulo: T_etiqueta { $$ = NODO(126, $1); }
    | T_case Constante T_dos_puntos { $$ = NODO(127, $1, $2, $3); }
    | T_default T_dos_puntos { $$ = NODO(128, $1, $2); }
    ;
Vuelta: Suelta Suelta { $$ = NODO(129, $1, $2); }
    | Suelta Suelta Expresion { $$ = NODO(130, $1, $2, $3); }
    | Declaracion Suelta { $$ = NODO(131, $1, $2); }
    | Declaracion Suelta Expresion { $$ = NODO(132, $1, $2, $3); }
    ;
Expresion: Asignacion { $$ = NODO(133, $1); }
    | Expresion T_coma Asignacion { $$ = NODO(134, $1, $2, $3); }
    ;
Asignacion: Condicional { $$ = NODO(135, $1); }
    | Condicional Asignador Asignacion { $$ = NODO(136, $1, $2, $3); }
    ;
Asignador: T_asigna { $$ = NODO(137, $1); }
    | T_asigna_mas { $$ = NODO(138, $1); }
    | T_asigna_menos { $$ = NODO(139, $1); }
    | T_asigna_por { $$ = NODO(140, $1); }
    | T_asigna_entre { $$ = NODO(141, $1); }
    | T_asigna_resto { $$ = NODO(142, $1); }
    | T_asigna_izq { $$ = NODO(143, $1); }
    | T_asigna_der { $$ = NODO(144, $1); }
    | T_asigna_y { $$ = NODO(145, $1); }
    | T_asigna_x { $$ = NODO(146, $1); }
    | T_asigna_o { $$ = NODO(147, $1); }
    ;
Constante: Condicional { $$ = NODO(148, $1); }
    ;
Condicional: Disyuncion { $$ = NODO(149, $1); }
    | Disyuncion T_interroga Expresion T_dos_puntos Condicional { $$ = NODO(150, $1, $2, $3, $4, $5); }
    ;
Disyuncion: Conjuncion { $$ = NODO(151, $1); }
    | Disyuncion T_o_log Conjuncion { $$ = NODO(152, $1, $2, $3); }
    ;
Conjuncion: BitsO { $$ = NODO(153, $1); }
    | Conjuncion T_y_log BitsO { $$ = NODO(154, $1, $2, $3); }
    ;
BitsO: BitsX { $$ = NODO(155, $1); }
    | BitsO T_o_bits BitsX { $$ = NODO(156, $1, $2, $3); }
    ;
BitsX: BitsY { $$ = NODO(157, $1); }
    | BitsX T_x_bits BitsY { $$ = NODO(158, $1, $2, $3); }
    ;
BitsY: Igualdad { $$ = NODO(159, $1); }
    | BitsY T_y_bits Igualdad { $$ = NODO(160, $1, $2, $3); }
    ;
Igualdad: Relacion { $$ = NODO(161, $1); }
    | Igualdad T_igual Relacion { $$ = NODO(162, $1, $2, $3); }
    | Igualdad T_distinto Relacion { $$ = NODO(163, $1, $2, $3); }
    ;
Relacion: Desplazada { $$ = NODO(164, $1); }
    | Relacion T_menor Desplazada { $$ = NODO(165, $1, $2, $3); }
    | Relacion T_mayor Desplazada { $$ = NODO(166, $1, $2, $3); }
    | Relacion T_menor_igual Desplazada { $$ = NODO(167, $1, $2, $3); }
    | Relacion T_mayor_igual Desplazada { $$ = NODO(168, $1, $2, $3); }
    ;
Desplazada: Suma { $$ = NODO(169, $1); }
    | Desplazada T_desp_izq Suma { $$ = NODO(170, $1, $2, $3); }
    | Desplazada T_desp_der Suma { $$ = NODO(171, $1, $2, $3); }
    ;
Suma: Producto { $$ = NODO(172, $1); }
    | Suma T_mas Producto { $$ = NODO(173, $1, $2, $3); }
    | Suma T_menos Producto { $$ = NODO(174, $1, $2, $3); }
    ;
Producto: Molde { $$ = NODO(175, $1); }
    | Producto T_por Molde { $$ = NODO(176, $1, $2, $3); }
    | Producto T_entre Molde { $$ = NODO(177, $1, $2, $3); }
    | Producto T_resto Molde { $$ = NODO(178, $1, $2, $3); }
    ;
Molde: Unaria { $$ = NODO(179, $1); }
    | T_par_ab NombreTipo T_par_ce Molde { $$ = NODO(180, $1, $2, $3, $4); }
    ;
Unaria: Posfija { $$ = NODO(181, $1); }
    | T_incrementa Unaria { $$ = NODO(182, $1, $2); }
    | T_decrementa Unaria { $$ = NODO(183, $1, $2); }
    | Signo Molde { $$ = NODO(184, $1, $2); }
    | T_sizeof Unaria { $$ = NODO(185, $1, $2); }
    | T_sizeof T_par_ab NombreTipo T_par_ce { $$ = NODO(186, $1, $2, $3, $4); }
    ;
Signo: T_y_bits { $$ = NODO(187, $1); }
    | T_por { $$ = NODO(188, $1); }
    | T_mas { $$ = NODO(189, $1); }
    | T_menos { $$ = NODO(190, $1); }
    | T_nega_bits { $$ = NODO(191, $1); }
    | T_nega { $$ = NODO(192, $1); }
    ;
Posfija: Primaria { $$ = NODO(193, $1); }
    | Posfija T_cor_ab Expresion T_cor_ce { $$ = NODO(194, $1, $2, $3, $4); }
    | Posfija T_par_ab T_par_ce { $$ = NODO(195, $1, $2, $3); }
    | Posfija T_par_ab Argumentos T_par_ce { $$ = NODO(196, $1, $2, $3, $4); }
    | Posfija T_punto T_id { $$ = NODO(197, $1, $2, $3); }
    | Posfija T_flecha T_id { $$ = NODO(198, $1, $2, $3); }
    | Posfija T_incrementa { $$ = NODO(199, $1, $2); }
    | Posfija T_decrementa { $$ = NODO(200, $1, $2); }
    ;
Argumentos: Asignacion { $$ = NODO(201, $1); }
    | Argumentos T_coma Asignacion { $$ = NODO(202, $1, $2, $3); }
    ;
Primaria: T_id { $$ = NODO(203, $1); }
    | T_entero { $$ = NODO(204, $1); }
    | T_real { $$ = NODO(205, $1); }
    | T_caracter { $$ = NODO(206, $1); }
    | Cadenas { $$ = NODO(207, $1); }
    | T_par_ab Expresion T_par_ce { $$ = NODO(208, $1, $2, $3); }
    ;
Cadenas: T_cadena { $$ = NODO(209, $1); }
    | Cadenas T_cadena { $$ = NODO(210, $1, $2); }
    ;
%%
