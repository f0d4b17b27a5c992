struct punto {
  int x;
  int 3;
};
