programa agenda;
const
  capacidad = 50;
  centinela = -1;
tipo
  contacto = registro
    nombre, apellidos: texto;
    edad: entero;
    saldo: real;
  fin;
  lista = matriz [1 .. capacidad] de contacto;
var
  contactos: lista;
  cuántos, opción: entero;

procedimiento añadir(var destino: lista; nombre: texto; edad: entero);
inicio
  si cuántos < capacidad entonces
  inicio
    cuántos := cuántos + 1;
    destino[cuántos].nombre := nombre;
    destino[cuántos].edad := edad;
    destino[cuántos].saldo := 1.5E3;
  fin
  sino
    escribir('La agenda está llena');
fin;

función media(de_quién: lista): real;
var
  i: entero;
  suma: real;
inicio
  suma := 0.0;
  para i := cuántos bajando hasta 1 hacer
    suma := suma + de_quién[i].edad;
  si cuántos = 0 entonces media := 0.0
  sino media := suma / cuántos;
fin;

inicio
  cuántos := 0;
  repetir
    escribir('1 añadir, 2 media, 0 acabar: ');
    leer(opción);
    según opción de
      1: añadir(contactos, 'sin nombre', 18);
      2: escribir(media(contactos));
      3, 4: si opción = 3 entonces si cuántos <> 0 entonces listar() sino escribir('nada');
      0: escribir('adiós');
    fin;
  hasta (opción = 0) o no (opción mod 5 >= 0);
fin.
