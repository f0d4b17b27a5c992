programa hola;
inicio
  escribir('Hola, mundo');
fin.
