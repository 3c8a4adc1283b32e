/* A provider that depends on a module which lies next to it and nowhere else. */
__declspec(dllimport) double Product(double x, double y);
double cblas_ddot(int n, const double* x, int incx, const double* y, int incy);
__declspec(dllexport) double cblas_ddot(int n, const double* x, int incx, const double* y, int incy) {
    double sum = 0;
    for (int k = 0; k < n; ++k) sum += Product(x[k * incx], y[k * incy]);
    return sum;
}
