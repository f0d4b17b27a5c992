SELECT nombre, FROM clientes;
