programa mal;
inicio
  escribir('sin cerrar);
fin.
