char *s = "sin cerrar;
