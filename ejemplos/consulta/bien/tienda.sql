create table clientes (
  codigo integer not null primary key,
  nombre varchar(60) not null,
  alta date,
  saldo decimal(10, 2)
);

insert into clientes values (1, 'Ana O''Donnell', '2026-01-15', 0), (2, 'Íñigo Núñez', null, -12.5);
insert into clientes (codigo, nombre) values (3, 'Sin saldo');
insert into archivo select * from clientes where alta is not null;

update clientes set saldo = saldo * 1.05 + 10, alta = HOY() where saldo < 0;
delete from clientes where not exists (select 1 from pedidos p where p.cliente = codigo);
