SELECT * FROM clientes ORDER nombre;
