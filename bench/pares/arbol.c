#include "arbol.h"

#include <stdlib.h>
#include <string.h>

enum { TAMANO_BLOQUE = 256 * 1024 };

typedef struct Bloque Bloque;
struct Bloque {
  Bloque *siguiente;
  _Alignas(max_align_t) char datos[TAMANO_BLOQUE];
};

static Bloque *primero, *actual;
static size_t usado;

static void *reserva(size_t tamano) {
  tamano = (tamano + 7) & ~(size_t)7;
  if (!actual || usado + tamano > TAMANO_BLOQUE) {
    Bloque *bloque = actual ? actual->siguiente : primero;
    if (!bloque) {
      bloque = malloc(sizeof *bloque);
      if (!bloque) abort();
      bloque->siguiente = NULL;
      if (actual) actual->siguiente = bloque;
      else primero = bloque;
    }
    actual = bloque;
    usado = 0;
  }
  void *lugar = actual->datos + usado;
  usado += tamano;
  return lugar;
}

void arbol_vacia(void) {
  actual = NULL;
  usado = 0;
}

void arbol_libera(void) {
  while (primero) {
    Bloque *bloque = primero;
    primero = bloque->siguiente;
    free(bloque);
  }
  arbol_vacia();
}

Nodo *arbol_hoja(const char *texto, size_t largo, int linea, int columna) {
  Nodo *nodo = reserva(sizeof *nodo + largo + 1);
  char *lexema = (char *)nodo + sizeof *nodo;
  memcpy(lexema, texto, largo);
  lexema[largo] = '\0';
  *nodo = (Nodo){.linea = linea, .columna = columna, .lexema = lexema};
  return nodo;
}

Nodo *arbol_nodo(int regla, int numHijos, Nodo *const *hijos) {
  Nodo *nodo = reserva(sizeof *nodo + (size_t)numHijos * sizeof *hijos);
  *nodo = (Nodo){.regla = regla, .numHijos = numHijos};
  memcpy(nodo->hijos, hijos, (size_t)numHijos * sizeof *hijos);
  return nodo;
}
