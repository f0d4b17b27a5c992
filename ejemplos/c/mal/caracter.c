int main(void) {
  int a = 3 @ 4;
  return a;
}
