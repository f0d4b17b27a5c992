programa criba;
{ Criba de Eratóstenes: escribe los primos
  menores o iguales que el máximo. }
const
  máximo = 100;
var
  esPrimo: matriz [2 .. máximo] de lógico;
  i, j: entero;
inicio
  para i := 2 hasta máximo hacer
    esPrimo[i] := verdadero;
  i := 2;
  mientras i * i <= máximo hacer
  inicio
    si esPrimo[i] entonces
    inicio
      j := i * i;
      repetir
        esPrimo[j] := falso;
        j := j + i;
      hasta j > máximo;
    fin;
    i := i + 1;
  fin;
  // Lo que queda sin tachar es primo
  para i := 2 hasta máximo hacer
    si esPrimo[i] entonces escribir(i, ' ');
  escribirLinea();
fin.
