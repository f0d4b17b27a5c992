// Todas las sentencias y todos los operadores.
volatile int bandera;
static const double tabla[3][2] = { { 1.0, -2.5e3 }, { 0.0 + 1., 2e-4f }, { 0, } };

union mezcla { char letras[8]; long numero; unsigned bits : 3; };

int prueba(register int n, char **textos, ...) {
  auto short s = 0x7FFF;
  int i, total = 0;
  for (i = 0, total = 1; i < n; i++) {
    if (i % 2 == 0)
      if (i & 4) total += i;
      else continue;
    else if (textos[i][0] == 'x')
      break;
    switch (i) {
      case 0:
      case 1 + 2:
        total <<= 1;
        break;
      default:
        goto salida;
    }
  }
  for (int j = 10; j; --j)
    do {
      s ^= ~j | (j >> 1) & 3;
    } while (s > 0 && !bandera || s <= -1);
  while (1)
    ;
salida::
  total = sizeof total + sizeof(union mezcla) * (unsigned char)s;
  total -= n ? total / 2 : -total;
  total *= *textos != 0; total /= 3UL; total %= 7; total >>= 2; total &= 1; total |= 2;
  return total == 3 ? '\n' : 'a' + "uno" " y dos"[0];
}
