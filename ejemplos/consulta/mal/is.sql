SELECT *
FROM clientes
WHERE saldo IS 0;
