int f(int a) {
  if a > 0
    return 1;
}
