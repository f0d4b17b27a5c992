programa mal;
var
  t: matriz [1 .. 10] entero;
inicio
fin.
