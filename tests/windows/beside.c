/* What the provider of leaning.c depends on. */
double Product(double x, double y);
__declspec(dllexport) double Product(double x, double y) { return x * y; }
