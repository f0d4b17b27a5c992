programa mal;
var
  x: entero;
inicio
  si x > 0 entonces
    x := 1;
  sino
    x := 2;
fin.
