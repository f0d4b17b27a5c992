DELETE FROM clientes WHERE nombre = 'Ana
