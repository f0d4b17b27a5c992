extern int printf(const char *formato, ...);

int main(void) {
  printf("Hola, %s\n", "mundo");
  return 0;
}
