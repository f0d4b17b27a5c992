/* The process that does nothing: what starting one costs. */
int main(void) {
    return 0;
}
