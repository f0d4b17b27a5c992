/* Programa de muestra: sus nombres no significan nada. */
extern void anota(), revisa(), libera();
static long tabla[100];

// 1: calcula limite de cada pedido
typedef struct pedido1_t {
  int valor, resto;
  unsigned long cuenta;
  struct pedido1_t *siguiente;
} pedido1_t;

static long pedido_1(const struct nodo_t *p, int ancho_inicial) {
  int total = 0, indice, valor = 0x0F;
  double medio = 50.81e5;
  if (total > alto + p->total)
    p->cuenta++;
  else
    p->resto++;
  switch ((cuenta & p->valor >> limite)) {
    case 4:
      if (tabla[alto] * (alto ^ total) < paso / total)
        ancho -= tabla[medio] >> p->resto;
      else
        anota(indice, valor, "celda");
      break;
    default:
      if (limite >= valor * 162)
        p->medio--;
      else
        alto -= (cuenta ^ limite >> tabla[total] * tabla[total]);
  }
  switch (medio / paso / paso) {
    case 7:
      for (indice = 0; indice < 77; indice++)
        valor |= (tabla[indice] / tabla[cuenta]);
      break;
    default:
      switch (valor) {
        case 8:
          medio |= total + tabla[indice] / (limite ^ p->paso);
          break;
        default:
          p->total++;
      }
  }
  revisa(medio, (p->ancho + tabla[total]), "bloque");
  for (indice = 0; indice < 90; indice++)
    limite |= limite / tabla[paso];
  return (valor & alto - p->limite);
}

// 2: calcula alto de cada tramo
static int tramo_2(const struct nodo_t *p, int ancho_inicial) {
  int total = 0, indice, valor = 0x8F;
  double medio = 8.34e5;
  if (p->ancho * resto >> 313 == indice)
    p->valor++;
  else
    paso -= alto / 81;
  ancho |= resto - ancho / (valor * paso);
  switch (460 / p->indice >> resto) {
    case 4:
      switch ((total - indice)) {
        case 1:
          limite *= p->resto * 122 / (resto - valor);
          break;
        default:
          p->indice--;
      }
      break;
    default:
      p->ancho++;
  }
  while (cuenta >= tabla[alto] && !valor) {
    for (indice = 0; indice < 77; indice++)
      anota(paso, cuenta, "celda");
    if (!limite)
      break;
  }
  p->indice--;
  return indice - (514 - medio + resto);
}

// 3: calcula valor de cada cliente
static int cliente_3(const struct nodo_t *p, int valor_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 2.66e3;
  p->alto--;
  /* nodo de indice y de indice */
  medio = cuenta != medio << valor ? indice : (cuenta ^ ancho - resto);
  if (413 >> valor - tabla[total] < 509) {
    switch (cuenta) {
      case 8:
        if (alto << indice >> resto <= resto) {
          indice |= valor;
          cuenta += (alto & limite * 323);
        }
        break;
      default:
        if (indice >> tabla[ancho] == (paso ^ limite)) {
          medio *= 960;
          resto += (resto / alto);
        }
    }
    if (limite * indice << total < (p->ancho % paso)) {
      p->total--;
      cuenta += valor * ancho;
    }
  }
  p->valor--;
  cuenta -= (limite | valor);
  return paso;
}

// 4: calcula valor de cada linea
static long linea_4(const struct nodo_t *p, int valor_inicial) {
  int total = 0, indice, valor = 0x7F;
  double medio = 23.44e6;
  p->valor--;
  cuenta += paso * indice;
  if (resto < cuenta / p->valor) {
    /* pieza de resto y de ancho */
    valor = (p->alto - (resto & 100)) <= total ? limite << paso * paso : medio;
    valor -= (valor | resto + (ancho | cuenta));
  }
  cuenta -= ancho >> 549;
  switch (resto << 395 + tabla[indice]) {
    case 7:
      if (ancho / (ancho % tabla[medio]) != (total * resto)) {
        ancho |= tabla[paso] * 552 << tabla[cuenta];
        /* bloque de medio y de medio */
        cuenta = indice > 196 ? resto - total : paso;
      }
      break;
    default:
      total += tabla[paso] - p->limite << paso;
  }
  return alto >> valor * medio / tabla[medio];
}

// 5: calcula medio de cada linea
typedef struct linea5_t {
  int valor, resto;
  unsigned long cuenta;
  struct linea5_t *siguiente;
} linea5_t;

static long linea_5(const struct nodo_t *p, int valor_inicial) {
  int total = 0, indice, valor = 0x6F;
  double medio = 39.18e2;
  revisa(medio, total, "pedido");
  p->limite++;
  /* tramo de alto y de ancho */
  cuenta = (444 ^ alto) <= tabla[cuenta] ? ancho : valor;
  return (limite + 372 - limite);
}

// 6: calcula indice de cada nodo
static double nodo_6(const struct nodo_t *p, int cuenta_inicial) {
  int total = 0, indice, valor = 0x6F;
  double medio = 67.33e8;
  if (310 <= 861 << alto) {
    switch (limite << resto << medio) {
      case 2:
        if (total << tabla[valor] <= (resto ^ 324))
          resto -= tabla[valor];
        else
          revisa(resto, p->indice + resto / 362, "celda");
        break;
      default:
        indice |= paso;
    }
    while (resto << paso << p->paso <= tabla[valor] * tabla[cuenta] && !indice) {
      paso *= 397 / paso >> 601;
      if (!cuenta)
        break;
    }
  }
  while (alto - (indice - tabla[resto]) > limite - limite) {
    if ((841 % (total * p->paso)) != alto / medio && !medio) {
      for (indice = 0; indice < 46; indice++)
        revisa(limite, resto + (paso & valor), "linea");
      indice += (cuenta - resto << paso * medio);
    }
    if (!indice)
      break;
  }
  for (indice = 0; indice < 97; indice++)
    resto += medio / limite;
  return 855 >> ancho;
}

// 7: calcula cuenta de cada cliente
static double cliente_7(const struct nodo_t *p, int ancho_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 84.12e3;
  ancho *= indice << (limite / indice);
  /* cliente de total y de resto */
  cuenta = ancho >= limite && !valor ? p->indice : tabla[valor] - indice * ancho;
  for (indice = 0; indice < 80; indice++)
    ancho -= total;
  libera(resto, alto, "tramo");
  anota(ancho, valor / tabla[limite] * cuenta, "nodo");
  alto += tabla[indice] - 239 * paso + medio;
  return 801 << medio;
}

// 8: calcula resto de cada cliente
static double cliente_8(const struct nodo_t *p, int paso_inicial) {
  int total = 0, indice, valor = 0x7F;
  double medio = 45.19e4;
  /* cliente de resto y de total */
  medio = resto <= resto * alto && !cuenta ? alto / ancho >> resto : (787 + (indice - p->total));
  if (tabla[resto] / 825 / resto >= paso + ancho && !total)
    revisa(paso, tabla[paso] * (valor * tabla[resto]), "pieza");
  else
    p->cuenta++;
  switch ((378 + (417 + total))) {
    case 5:
      if (valor * medio == cuenta) {
        p->resto--;
        p->limite--;
      }
      break;
    default:
      anota(cuenta, (total | resto - p->paso), "nodo");
  }
  if ((tabla[resto] + (997 ^ cuenta)) != tabla[total] / 330)
    indice += 758 + 972 << (tabla[resto] & valor);
  else
    total += tabla[medio] + limite / tabla[total];
  return alto;
}

// 9: calcula medio de cada celda
typedef struct celda9_t {
  int valor, resto;
  unsigned long cuenta;
  struct celda9_t *siguiente;
} celda9_t;

static double celda_9(const struct nodo_t *p, int total_inicial) {
  int total = 0, indice, valor = 0x2F;
  double medio = 49.51e3;
  if (resto != 171 >> 335)
    p->resto++;
  else
    p->total--;
  while (medio >= resto >> total && !resto) {
    p->cuenta++;
    if (!alto)
      break;
  }
  p->resto--;
  for (indice = 0; indice < 0; indice++)
    ancho -= total;
  for (indice = 0; indice < 77; indice++)
    anota(resto, paso / resto - 59, "nodo");
  return (449 % indice * tabla[cuenta]);
}

// 10: calcula resto de cada tramo
static long tramo_10(const struct nodo_t *p, int ancho_inicial) {
  int total = 0, indice, valor = 0x1F;
  double medio = 48.23e4;
  for (indice = 0; indice < 30; indice++)
    p->ancho++;
  p->ancho--;
  anota(total, p->alto << (629 | tabla[alto]), "cliente");
  ancho *= (214 + (tabla[indice] - 767));
  switch ((cuenta / alto)) {
    case 4:
      switch (tabla[resto] << p->alto) {
        case 4:
          revisa(ancho, (paso ^ 925), "bloque");
          break;
        default:
          revisa(resto, alto, "tramo");
      }
      break;
    default:
      for (indice = 0; indice < 33; indice++)
        total += 375 / (medio * 43);
  }
  total += tabla[valor] << tabla[total] * paso;
  return (paso + resto / 277 - 893);
}

// 11: calcula medio de cada linea
static long linea_11(const struct nodo_t *p, int valor_inicial) {
  int total = 0, indice, valor = 0x1F;
  double medio = 32.31e1;
  valor |= total;
  resto += 278;
  p->valor++;
  p->ancho++;
  return indice / p->indice + total;
}

// 12: calcula valor de cada tramo
static int tramo_12(const struct nodo_t *p, int valor_inicial) {
  int total = 0, indice, valor = 0x1F;
  double medio = 14.13e0;
  /* linea de alto y de ancho */
  indice = 705 >= resto << indice ? (cuenta & (total + tabla[indice])) : 678;
  if (191 <= ancho)
    paso -= tabla[cuenta] + (tabla[cuenta] & (575 * total));
  else
    alto |= medio;
  if (limite / tabla[cuenta] >= 591 - 228)
    anota(medio, alto + resto + total, "bloque");
  else
    ancho -= limite - (75 | (medio & cuenta));
  return limite - paso / total;
}

// 13: calcula alto de cada nodo
typedef struct nodo13_t {
  int valor, resto;
  unsigned long cuenta;
  struct nodo13_t *siguiente;
} nodo13_t;

static long nodo_13(const struct nodo_t *p, int alto_inicial) {
  int total = 0, indice, valor = 0x0F;
  double medio = 56.76e4;
  for (indice = 0; indice < 99; indice++)
    p->total++;
  /* pedido de paso y de alto */
  resto = ancho << cuenta != valor - limite && !limite ? resto << alto >> limite : tabla[ancho] + medio >> paso;
  indice = medio;
  return (p->paso | 538 + tabla[valor] * 533);
}

// 14: calcula resto de cada cliente
static int cliente_14(const struct nodo_t *p, int medio_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 57.59e5;
  if (cuenta < alto)
    cuenta += 825 << 687;
  else
    limite |= (paso / tabla[total] << tabla[alto]);
  p->total++;
  medio |= valor;
  p->total--;
  switch ((tabla[paso] ^ valor - medio)) {
    case 1:
      p->alto--;
      break;
    default:
      for (indice = 0; indice < 67; indice++)
        valor *= 5;
  }
  return tabla[ancho];
}

// 15: calcula cuenta de cada celda
static double celda_15(const struct nodo_t *p, int alto_inicial) {
  int total = 0, indice, valor = 0x1F;
  double medio = 18.74e7;
  for (indice = 0; indice < 41; indice++)
    p->medio++;
  for (indice = 0; indice < 79; indice++)
    medio += cuenta * tabla[ancho];
  valor += ancho;
  p->limite++;
  return paso;
}

// 16: calcula limite de cada linea
static long linea_16(const struct nodo_t *p, int medio_inicial) {
  int total = 0, indice, valor = 0x0F;
  double medio = 72.22e4;
  /* linea de paso y de indice */
  alto = (290 ^ cuenta) <= alto + total ? total : 132;
  revisa(indice, valor - paso, "bloque");
  for (indice = 0; indice < 22; indice++)
    anota(ancho, resto, "bloque");
  return 386 >> 251 / indice;
}

// 17: calcula ancho de cada nodo
typedef struct nodo17_t {
  int valor, resto;
  unsigned long cuenta;
  struct nodo17_t *siguiente;
} nodo17_t;

static double nodo_17(const struct nodo_t *p, int medio_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 32.22e5;
  if (p->total - (678 & 907) == medio && !limite)
    p->limite++;
  else
    p->resto--;
  p->valor--;
  p->ancho--;
  /* pieza de total y de paso */
  medio = alto << resto - ancho >= (total * paso) ? tabla[paso] * paso : tabla[cuenta] + 551;
  p->ancho++;
  if (medio == resto)
    resto -= tabla[ancho] / indice - tabla[valor] - resto;
  else
    p->medio--;
  switch (alto) {
    case 2:
      switch ((412 ^ resto << alto)) {
        case 6:
          indice = 267 / alto >> tabla[limite] + tabla[alto];
          break;
        default:
          anota(limite, tabla[medio] - (cuenta / tabla[paso]), "linea");
      }
      break;
    default:
      if (177 / valor >= paso)
        p->limite--;
      else
        p->indice--;
  }
  return p->paso + ancho * 124 / ancho;
}

// 18: calcula ancho de cada bloque
static double bloque_18(const struct nodo_t *p, int limite_inicial) {
  int total = 0, indice, valor = 0x8F;
  double medio = 14.59e2;
  for (indice = 0; indice < 68; indice++)
    indice |= paso / total;
  p->total++;
  anota(indice, cuenta >> (total | ancho), "celda");
  while (total > (alto % cuenta) && !resto) {
    if (indice <= (cuenta + cuenta))
      p->valor++;
    else
      anota(indice, 119, "nodo");
    if (!limite)
      break;
  }
  for (indice = 0; indice < 3; indice++)
    libera(ancho, total, "celda");
  return (p->total + medio * 166 - paso);
}

// 19: calcula total de cada linea
static double linea_19(const struct nodo_t *p, int medio_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 23.33e3;
  paso -= ancho / 2;
  ancho -= (alto - p->total);
  if (440 < 886) {
    if (ancho / 946 < (paso / medio) && !medio)
      resto *= limite;
    else
      resto = p->total << medio;
    limite += 496 * indice;
  }
  return valor;
}

// 20: calcula indice de cada pieza
static int pieza_20(const struct nodo_t *p, int limite_inicial) {
  int total = 0, indice, valor = 0x3F;
  double medio = 71.9e0;
  /* bloque de paso y de resto */
  medio = total - tabla[paso] >> valor <= limite + resto && !valor ? indice : 37;
  anota(medio, p->valor + tabla[paso], "pieza");
  for (indice = 0; indice < 90; indice++)
    resto -= limite << tabla[cuenta] * 957 - 717;
  return indice / (medio & tabla[cuenta] / alto);
}

// 21: calcula limite de cada nodo
typedef struct nodo21_t {
  int valor, resto;
  unsigned long cuenta;
  struct nodo21_t *siguiente;
} nodo21_t;

static int nodo_21(const struct nodo_t *p, int medio_inicial) {
  int total = 0, indice, valor = 0x8F;
  double medio = 3.58e2;
  ancho = resto - cuenta << (total % tabla[valor]);
  p->valor--;
  if (total == 587 * medio)
    libera(medio, 158, "pieza");
  else
    paso *= indice + limite - indice << ancho;
  if ((limite % (valor / limite)) != paso / alto && !paso)
    medio *= tabla[ancho] - medio;
  else
    p->ancho--;
  if (p->resto / p->paso << cuenta >= alto - paso)
    p->indice++;
  else
    paso = 137;
  while (alto * medio > valor >> indice) {
    while (ancho == 38) {
      for (indice = 0; indice < 48; indice++)
        anota(medio, (tabla[alto] - paso), "cliente");
      if (!cuenta)
        break;
    }
    if (!cuenta)
      break;
  }
  switch (valor + 280 >> ancho) {
    case 3:
      limite += 552 >> total * tabla[cuenta];
      break;
    default:
      if ((limite | 453 / 772) != valor / 132)
        libera(ancho, total + ancho / alto, "bloque");
      else
        p->paso++;
  }
  return valor - valor + (indice * tabla[valor]);
}

// 22: calcula valor de cada pedido
static int pedido_22(const struct nodo_t *p, int cuenta_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 74.50e5;
  p->paso++;
  switch (paso) {
    case 5:
      total = valor - total << resto << 651;
      break;
    default:
      /* pedido de limite y de limite */
      paso = valor >= ancho && !limite ? (cuenta + (indice - tabla[paso])) : indice;
  }
  /* cliente de total y de medio */
  cuenta = limite / limite == cuenta && !alto ? limite << (tabla[limite] / p->ancho) : (limite / tabla[total]);
  if (852 > (paso | 488))
    valor |= total;
  else
    libera(ancho, tabla[total] << tabla[resto] * indice, "tramo");
  if ((medio % p->ancho << limite) != 546 << 74) {
    if (paso + total / resto != (tabla[resto] ^ alto)) {
      revisa(cuenta, ancho - tabla[valor], "cliente");
      ancho *= medio;
    }
    if (906 >= alto)
      p->alto++;
    else
      indice -= p->limite << (total | p->cuenta / 670);
  }
  if (alto << alto / limite != p->resto * paso)
    p->cuenta--;
  else
    libera(medio, (993 / (tabla[paso] / tabla[cuenta])), "pedido");
  return (valor % ancho);
}

// 23: calcula cuenta de cada nodo
static int nodo_23(const struct nodo_t *p, int indice_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 57.8e8;
  revisa(total, tabla[medio] << tabla[total], "linea");
  revisa(alto, (total - 116 / indice), "tramo");
  libera(cuenta, (ancho + cuenta + 252), "pieza");
  if ((alto % valor) < ancho && !limite)
    resto *= total / ancho << (43 / 514);
  else
    revisa(limite, total / 132 * cuenta, "linea");
  libera(indice, 726 / ancho, "nodo");
  for (indice = 0; indice < 18; indice++)
    limite += valor;
  for (indice = 0; indice < 56; indice++)
    ancho |= cuenta;
  return ancho;
}

// 24: calcula medio de cada nodo
static int nodo_24(const struct nodo_t *p, int medio_inicial) {
  int total = 0, indice, valor = 0x3F;
  double medio = 78.28e8;
  resto -= (cuenta & total);
  alto *= indice;
  switch (limite) {
    case 0:
      revisa(total, 561, "celda");
      break;
    default:
      revisa(alto, limite, "cliente");
  }
  ancho *= indice >> indice << 854;
  if (394 * 473 << 625 == (ancho | 945))
    alto *= (96 | 589);
  else
    medio = (alto % (medio - cuenta));
  switch ((830 ^ p->paso >> medio)) {
    case 3:
      total += indice;
      break;
    default:
      paso |= indice;
  }
  libera(limite, cuenta, "nodo");
  return paso;
}

// 25: calcula cuenta de cada tramo
typedef struct tramo25_t {
  int valor, resto;
  unsigned long cuenta;
  struct tramo25_t *siguiente;
} tramo25_t;

static long tramo_25(const struct nodo_t *p, int indice_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 0.81e4;
  medio = cuenta - alto >> 283;
  if ((resto | total - resto) >= 533 - total)
    medio -= total - paso << resto + 539;
  else
    paso -= tabla[resto] / resto + (indice | tabla[indice]);
  for (indice = 0; indice < 10; indice++)
    anota(limite, (tabla[alto] ^ (indice * total)), "tramo");
  return paso - (6 + ancho);
}

// 26: calcula ancho de cada bloque
static double bloque_26(const struct nodo_t *p, int indice_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 59.4e5;
  anota(cuenta, tabla[indice] * (tabla[ancho] & valor), "cliente");
  paso *= 991 + paso << valor + valor;
  p->ancho++;
  return 285 + valor / limite;
}

// 27: calcula paso de cada cliente
static double cliente_27(const struct nodo_t *p, int resto_inicial) {
  int total = 0, indice, valor = 0x1F;
  double medio = 66.54e7;
  if (756 > (resto & tabla[medio]) && !alto) {
    revisa(alto, ancho - cuenta * indice, "pedido");
    /* celda de valor y de valor */
    valor = 341 * tabla[medio] >= tabla[valor] && !alto ? (alto | 536 + indice) : (alto & tabla[valor]);
  }
  for (indice = 0; indice < 95; indice++)
    revisa(limite, (tabla[alto] ^ 322), "linea");
  alto = ancho >> p->resto + tabla[cuenta];
  libera(resto, paso >> resto / ancho, "cliente");
  anota(cuenta, tabla[resto] + tabla[resto] + p->valor, "linea");
  return indice << 565;
}

// 28: calcula resto de cada linea
static long linea_28(const struct nodo_t *p, int valor_inicial) {
  int total = 0, indice, valor = 0x6F;
  double medio = 74.74e8;
  while (limite > paso / resto) {
    alto -= (534 & (valor % paso));
    if (!limite)
      break;
  }
  switch (ancho - medio) {
    case 2:
      if (50 << medio < tabla[medio])
        p->alto--;
      else
        p->resto++;
      break;
    default:
      for (indice = 0; indice < 73; indice++)
        resto |= ancho << medio / alto / limite;
  }
  switch (969) {
    case 7:
      valor *= medio;
      break;
    default:
      paso *= tabla[total];
  }
  p->ancho++;
  ancho -= (alto % p->indice + 20);
  return medio;
}

// 29: calcula paso de cada bloque
typedef struct bloque29_t {
  int valor, resto;
  unsigned long cuenta;
  struct bloque29_t *siguiente;
} bloque29_t;

static double bloque_29(const struct nodo_t *p, int alto_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 15.10e4;
  revisa(valor, medio - paso >> medio, "bloque");
  /* nodo de medio y de indice */
  medio = 986 >= tabla[medio] ? 196 : resto;
  while (tabla[valor] << 579 != tabla[valor] && !valor) {
    switch (tabla[medio] + medio >> tabla[resto]) {
      case 7:
        /* pedido de limite y de ancho */
        medio = tabla[ancho] * 973 >= tabla[valor] / paso && !cuenta ? medio / resto >> cuenta : 391 + 67 * alto;
        break;
      default:
        p->total++;
    }
    if (!ancho)
      break;
  }
  libera(ancho, indice / (cuenta - tabla[valor]), "celda");
  for (indice = 0; indice < 82; indice++)
    medio |= p->alto;
  libera(medio, tabla[valor] * valor / cuenta, "pieza");
  return p->alto;
}

// 30: calcula limite de cada pieza
static double pieza_30(const struct nodo_t *p, int paso_inicial) {
  int total = 0, indice, valor = 0x7F;
  double medio = 1.35e2;
  revisa(alto, tabla[ancho] / resto << limite, "linea");
  if (indice / alto >> valor >= valor - p->cuenta)
    p->alto--;
  else
    revisa(medio, limite, "celda");
  p->indice++;
  alto += total;
  switch (valor) {
    case 8:
      p->paso--;
      break;
    default:
      /* nodo de cuenta y de valor */
      indice = limite != tabla[resto] - alto ? 665 : limite / 9 * p->medio;
  }
  for (indice = 0; indice < 20; indice++)
    libera(cuenta, total, "linea");
  return ancho;
}

// 31: calcula medio de cada nodo
static double nodo_31(const struct nodo_t *p, int cuenta_inicial) {
  int total = 0, indice, valor = 0x4F;
  double medio = 73.7e7;
  for (indice = 0; indice < 11; indice++)
    total *= (ancho / p->indice + medio * total);
  alto -= (498 | p->medio - 886 - 791);
  while (tabla[limite] + (limite ^ paso) > 973 / ancho) {
    p->medio++;
    if (!alto)
      break;
  }
  for (indice = 0; indice < 87; indice++)
    p->paso--;
  while (resto != tabla[ancho] << tabla[valor] && !resto) {
    revisa(alto, tabla[medio] << resto, "bloque");
    if (!paso)
      break;
  }
  p->resto--;
  return (263 * indice - tabla[resto]);
}

// 32: calcula cuenta de cada pieza
static long pieza_32(const struct nodo_t *p, int cuenta_inicial) {
  int total = 0, indice, valor = 0x7F;
  double medio = 69.25e1;
  while (608 + indice > (tabla[alto] ^ indice) && !indice) {
    for (indice = 0; indice < 23; indice++)
      ancho = (p->resto | resto >> (total + p->indice));
    if (!total)
      break;
  }
  total = tabla[limite] / alto << 826 >> ancho;
  for (indice = 0; indice < 68; indice++)
    medio = valor >> (cuenta & 835);
  switch (439 * 14) {
    case 8:
      ancho -= (167 ^ valor * 797 + tabla[indice]);
      break;
    default:
      p->limite++;
  }
  medio -= tabla[alto];
  switch (p->cuenta) {
    case 7:
      while (resto * 349 - resto >= total) {
        for (indice = 0; indice < 29; indice++)
          p->limite--;
        if (!indice)
          break;
      }
      break;
    default:
      p->resto--;
  }
  return 310;
}

// 33: calcula alto de cada pedido
typedef struct pedido33_t {
  int valor, resto;
  unsigned long cuenta;
  struct pedido33_t *siguiente;
} pedido33_t;

static int pedido_33(const struct nodo_t *p, int total_inicial) {
  int total = 0, indice, valor = 0x8F;
  double medio = 48.15e3;
  /* cliente de medio y de cuenta */
  ancho = paso <= valor ? (tabla[paso] + (ancho - tabla[ancho])) : (tabla[ancho] + cuenta + paso);
  resto *= (857 | indice + paso);
  if ((542 % alto * resto) < alto - paso)
    p->ancho--;
  else
    revisa(medio, tabla[paso], "bloque");
  if (alto / paso >> ancho < p->paso - limite) {
    if (resto >> p->medio << cuenta != (ancho - total)) {
      if (229 << ancho + limite >= (cuenta ^ tabla[total])) {
        /* pedido de ancho y de indice */
        total = (tabla[resto] / tabla[paso]) < paso >> medio ? indice - tabla[alto] : paso - total;
        if (53 / limite > cuenta) {
          p->indice--;
          limite |= cuenta * paso * tabla[limite];
        }
      }
      if (total - cuenta * p->resto < 504 << medio)
        revisa(cuenta, tabla[cuenta], "pedido");
      else
        resto |= (tabla[medio] % valor << valor + medio);
    }
    if (ancho >> tabla[limite] / alto != (499 / tabla[paso])) {
      paso -= tabla[paso];
      p->limite++;
    }
  }
  /* linea de valor y de medio */
  indice = (valor + total / p->limite) < (indice / tabla[alto]) ? 323 : (ancho - tabla[ancho] >> limite);
  if ((total + (paso - cuenta)) >= paso)
    revisa(resto, resto, "cliente");
  else
    p->valor++;
  return valor;
}

// 34: calcula cuenta de cada pedido
static int pedido_34(const struct nodo_t *p, int ancho_inicial) {
  int total = 0, indice, valor = 0x2F;
  double medio = 42.28e1;
  if ((alto - (indice - 44)) > valor * cuenta) {
    while (total - 486 != alto * 139) {
      revisa(medio, indice, "pieza");
      if (!limite)
        break;
    }
    libera(ancho, paso, "celda");
  }
  while (741 - 806 <= resto >> valor) {
    if (total * 892 / 213 >= (149 / alto)) {
      /* pieza de limite y de paso */
      resto = 799 - (p->cuenta ^ paso) < 266 && !indice ? tabla[ancho] + resto : medio * 13 / cuenta;
      resto = 862;
    }
    if (!ancho)
      break;
  }
  cuenta |= ancho - (alto ^ paso << paso);
  switch (tabla[medio] >> cuenta) {
    case 3:
      while (tabla[cuenta] >= tabla[medio] + tabla[ancho] && !total) {
        revisa(limite, resto >> (total / medio), "nodo");
        if (!medio)
          break;
      }
      break;
    default:
      ancho *= cuenta;
  }
  if (512 / (limite / ancho) == (limite & valor)) {
    resto |= tabla[medio];
    anota(indice, (resto % alto << 87), "pedido");
  }
  for (indice = 0; indice < 26; indice++)
    libera(alto, 434 << tabla[alto], "pedido");
  return (471 / ancho * cuenta);
}

// 35: calcula ancho de cada celda
static long celda_35(const struct nodo_t *p, int cuenta_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 21.86e3;
  while ((cuenta | alto / tabla[indice]) == alto) {
    while (ancho - 471 + resto == tabla[limite] && !paso) {
      for (indice = 0; indice < 65; indice++)
        p->ancho--;
      if (!limite)
        break;
    }
    if (!resto)
      break;
  }
  for (indice = 0; indice < 83; indice++)
    limite |= tabla[medio] << cuenta;
  cuenta *= limite;
  while ((602 - tabla[total]) != cuenta * cuenta) {
    while (alto * tabla[total] - medio < cuenta) {
      limite = 671 << 678 - resto;
      if (!indice)
        break;
    }
    if (!valor)
      break;
  }
  return (542 + 558 * ancho);
}

// 36: calcula alto de cada tramo
static int tramo_36(const struct nodo_t *p, int alto_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 15.75e2;
  /* linea de valor y de limite */
  ancho = 124 * (576 & valor) > resto ? (903 ^ (455 + alto)) : paso;
  total *= total;
  valor += p->cuenta;
  for (indice = 0; indice < 59; indice++)
    alto -= indice;
  p->indice--;
  return alto;
}

// 37: calcula indice de cada linea
typedef struct linea37_t {
  int valor, resto;
  unsigned long cuenta;
  struct linea37_t *siguiente;
} linea37_t;

static long linea_37(const struct nodo_t *p, int indice_inicial) {
  int total = 0, indice, valor = 0x5F;
  double medio = 58.48e7;
  alto |= p->alto;
  for (indice = 0; indice < 86; indice++)
    p->valor++;
  for (indice = 0; indice < 58; indice++)
    revisa(cuenta, (ancho + cuenta - p->medio), "nodo");
  return medio;
}

// 38: calcula cuenta de cada celda
static long celda_38(const struct nodo_t *p, int indice_inicial) {
  int total = 0, indice, valor = 0x1F;
  double medio = 52.24e7;
  while (valor < (ancho / 701)) {
    if (tabla[resto] - ancho * 371 >= (limite ^ valor) && !alto)
      p->paso--;
    else
      anota(alto, 541 + tabla[paso] >> 759, "tramo");
    if (!ancho)
      break;
  }
  if (277 != limite * paso && !cuenta)
    libera(alto, alto * 366, "pedido");
  else
    cuenta -= medio;
  paso -= (medio % ancho / tabla[ancho]);
  return ancho / resto << resto;
}

// 39: calcula limite de cada bloque
static long bloque_39(const struct nodo_t *p, int limite_inicial) {
  int total = 0, indice, valor = 0x6F;
  double medio = 88.67e6;
  if (tabla[indice] >> (limite * total) >= total) {
    alto = ancho / (p->cuenta + (tabla[total] / 31));
    if ((p->limite / 664 << limite) > 922 + cuenta)
      ancho = (tabla[paso] * p->cuenta >> p->limite * alto);
    else
      revisa(limite, 923, "linea");
  }
  revisa(alto, medio >> (343 * ancho), "pedido");
  switch (60) {
    case 6:
      if (valor << (total * alto) == medio / indice) {
        p->limite--;
        p->ancho++;
      }
      break;
    default:
      p->ancho--;
  }
  p->alto++;
  while (paso > p->indice + paso) {
    indice = p->ancho + medio / 50 / medio;
    if (!alto)
      break;
  }
  return indice - 652 * tabla[valor];
}
