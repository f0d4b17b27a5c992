programa mal;
var
  x: entero;
inicio
  x := 3 # 4;
fin.
