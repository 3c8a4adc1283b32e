/* The strongest line of a recording: one sample a line, so many samples a second.
 *
 *     spectrum recording.csv 360
 */
#include <quorvan/quorvan.h>
#include <stdio.h>
#include <stdlib.h>

/* The numbers of a text file, one a line; lines that are no numbers are left out. */
static double* Read(const char* name, int64_t* n) {
    FILE* file = fopen(name, "r");
    double *x = NULL, value;
    char line[256], *end;
    int64_t room = 0;
    *n = 0;
    if (!file) return NULL;
    while (fgets(line, sizeof line, file)) {
        value = strtod(line, &end);
        if (end == line) continue;
        if (*n == room) {
            double* more = realloc(x, (size_t)(room = 2 * room + 1024) * sizeof *x);
            if (!more) break;
            x = more;
        }
        x[(*n)++] = value;
    }
    fclose(file);
    return x;
}

int main(int argc, char** argv) {
    if (argc != 3) return fprintf(stderr, "usage: spectrum FILE RATE\n"), 2;
    int64_t n;
    double* x = Read(argv[1], &n);
    if (!x) return fprintf(stderr, "%s: cannot read\n", argv[1]), 1;
    const double dt = 1 / atof(argv[2]);
    double mean, df, frequency, power;
    double* spectrum = malloc((size_t)n * sizeof *spectrum);
    QvWindowProperties window;

    QvStatus status = spectrum ? QvStatMean(x, n, &mean) : -20001;
    if (status >= 0) status = QvArrLinearEval(x, n, 1, -mean, x);
    if (status >= 0) status = QvWinApplyScaledPlain(x, n, QV_WINDOW_HANNING, &window);
    if (status >= 0) status = QvSpecPowerSpectrum(x, n, dt, spectrum, &df);
    /* -1: the largest bin; 5: the bins that Hanning's main lobe covers. */
    if (status >= 0) status = QvSpecPeakPowerFrequency(spectrum, n / 2, -1, &window, df, 5, &frequency, &power);
    if (status >= 0) printf("%lld samples, strongest line at %.4f Hz, power %.6g\n", (long long)n, frequency, power);
    if (status < 0) fprintf(stderr, "%s\n", QvStatusMessage(status));
    free(spectrum);
    free(x);
    return status < 0;
}
