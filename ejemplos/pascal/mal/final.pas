programa mal;
inicio
fin
