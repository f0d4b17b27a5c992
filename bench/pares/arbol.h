// SPDX-License-Identifier: MIT

/* Syntax tree shared by the flex + bison parsers: nodes live in a bump arena that is emptied as a whole. */
#ifndef PARES_ARBOL_H
#define PARES_ARBOL_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Interior node: regla > 0 and its children. Leaf: regla 0, its lexeme (copied, NUL-terminated) and 1-based place. */
typedef struct Nodo Nodo;
struct Nodo {
  int regla;
  int numHijos;
  int linea;
  int columna;
  const char *lexema;
  Nodo *hijos[];
};

void arbol_vacia(void);  /* forgets every node; keeps the memory */
void arbol_libera(void); /* gives the memory back */
Nodo *arbol_hoja(const char *texto, size_t largo, int linea, int columna);
Nodo *arbol_nodo(int regla, int numHijos, Nodo *const *hijos);

/* Parse a text: the root, or NULL after an error. */
Nodo *json_analiza(const char *texto, size_t largo);
Nodo *c_analiza(const char *texto, size_t largo);

#ifdef __cplusplus
}
#endif

#define HIJOS(...) ((Nodo *const[]){__VA_ARGS__})
#define NODO(regla, ...) arbol_nodo((regla), (int)(sizeof(HIJOS(__VA_ARGS__)) / sizeof(Nodo *)), HIJOS(__VA_ARGS__))

#endif
