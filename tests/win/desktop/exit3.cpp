// A program that ends at once with exit code 3.
int wmain() { return 3; }
