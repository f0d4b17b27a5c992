programa mal;
inicio
  escribir('hola')
fin.
