-- Ventas de cada cliente en el último trimestre
SELECT c.nombre, COUNT(*) AS pedidos, SUM(l.cantidad * l.precio) AS total
FROM clientes AS c
     JOIN pedidos p ON p.cliente = c.codigo
     LEFT JOIN lineas l ON l.pedido = p.numero
WHERE p.fecha BETWEEN '2026-10-01' AND '2026-12-31'
      AND (c.provincia IN ('Salamanca', 'Ávila') OR NOT c.moroso = 1)
GROUP BY c.nombre HAVING SUM(l.cantidad) > 10
ORDER BY total DESC, c.nombre
LIMIT 20;
