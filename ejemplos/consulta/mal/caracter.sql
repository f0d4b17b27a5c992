SELECT nombre
FROM clientes
WHERE saldo > 100€;
