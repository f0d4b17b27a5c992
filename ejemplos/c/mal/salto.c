int f(void) {
  goto 10;
}
