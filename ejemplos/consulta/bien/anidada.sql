SELECT DISTINCT t.provincia
FROM (SELECT provincia, saldo FROM clientes WHERE nombre LIKE 'A%') AS t, provincias
WHERE t.saldo >= (1 + 2) * 3 AND t.provincia NOT IN (SELECT nombre FROM bajas)
      AND t.provincia <> '' AND provincias.codigo IS NULL;
