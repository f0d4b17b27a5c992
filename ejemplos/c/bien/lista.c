/* Lista enlazada de enteros, ordenada al insertar. */
typedef struct nodo_t {
  int valor;
  struct nodo_t *siguiente;
} nodo_t;

enum orden_t { ASCENDENTE, DESCENDENTE = -1 };

static nodo_t *primero = 0;
static unsigned long int cuantos;

static int va_antes(int a, int b, enum orden_t orden) {
  return orden == DESCENDENTE ? a > b : a < b;
}

int inserta(int valor, enum orden_t orden) {
  nodo_t **lugar = &primero, *nuevo;
  while (*lugar && va_antes((*lugar)->valor, valor, orden))
    lugar = &(*lugar)->siguiente;
  nuevo = (nodo_t *)malloc(sizeof(nodo_t));
  if (!nuevo)
    return 0;
  nuevo->valor = valor;
  nuevo->siguiente = *lugar;
  *lugar = nuevo;
  return ++cuantos, 1;
}

void recorre(void (*visita)(int, void *), void *dato) {
  const nodo_t *p;
  for (p = primero; p != 0; p = p->siguiente)
    visita(p->valor, dato);
}
