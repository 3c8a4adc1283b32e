/* Results whose order of operations is stated, as bits: one line for each array. The same program runs on both systems.
 *
 * Nothing here calls a sine or another function of the system's mathematics, whose last bit is each system's own, but
 * for the square root, which rounds correctly everywhere. */
#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#include "quorvan/quorvan.h"

enum { N = 257 };

static void Print(const char* name, QvStatus status, const double* values, int count) {
    /* All bits go into one number, and the first values are shown as they are. */
    uint64_t mixed = 14695981039346656037u;
    printf("%s %ld", name, (long)status);
    for (int k = 0; k < count; ++k) {
        uint64_t bits;
        memcpy(&bits, values + k, sizeof bits);
        mixed = (mixed ^ bits) * 1099511628211u;
        if (k < 3) printf(" %016" PRIx64, bits);
    }
    printf(" all %016" PRIx64 "\n", mixed);
}

static void Fill(double* values, int count, uint64_t seed) {
    for (int k = 0; k < count; ++k) {
        seed = seed * 6364136223846793005u + 1442695040888963407u;
        values[k] = (double)(int64_t)(seed >> 11) / 4503599627370496.0 - 1.0;
    }
}

#define SHOW(call, out, count)            \
    do {                                  \
        memset(out, 0, sizeof out);       \
        const QvStatus status = call;     \
        Print(#call, status, out, count); \
    } while (0)

int main(void) {
    double x[N], y[N], u[N], v[N], out[2 * N], out2[2 * N], value[4];
    Fill(x, N, 1);
    Fill(y, N, 2);
    Fill(u, N, 3);
    Fill(v, N, 4);
    SHOW(QvArrAdd(x, y, N, out), out, N);
    SHOW(QvArrMultiply(x, y, N, out), out, N);
    SHOW(QvArrDivide(x, y, N, out), out, N);
    SHOW(QvArrSum(x, N, value), value, 1);
    SHOW(QvArrProduct(x, N, value), value, 1);
    SHOW(QvArrLinearEval(x, N, 0.3, 0.7, out), out, N);
    SHOW(QvArrPolyEval(x, N, y, 9, out), out, N);
    SHOW(QvArrScale(x, N, out, value, value + 1), out, N);
    SHOW(QvArrNormalize(x, N, out, value, value + 1), out, N);
    SHOW(QvArrSort(x, N, 0, out), out, N);
    SHOW(QvCxArrMultiply(x, y, u, v, N, out, out2), out, N);
    SHOW(QvCxArrDivide(x, y, u, v, N, out, out2), out, N);
    SHOW(QvCxDivide(x[0], x[1], x[2], x[3], value, value + 1), value, 2);
    SHOW(QvStatMean(x, N, value), value, 1);
    SHOW(QvStatMeanVariance(x, N, value, value + 1), value, 2);
    SHOW(QvStatMeanStdDev(x, N, value, value + 1), value, 2);
    SHOW(QvStatMoment(x, N, 3, value), value, 1);
    SHOW(QvStatRms(x, N, value), value, 1);
    SHOW(QvStatMedian(x, N, value), value, 1);
    SHOW(QvConvolveRealBy(x, N, y, 31, 0, out), out, N + 30);
    SHOW(QvCorrelateRealBy(x, N, y, N, 0, out), out, 2 * N - 1);
    SHOW(QvDecimate(x, N, 4, 1, out), out, N / 4);
    SHOW(QvIntegrateSimpson(x, N, 0.1, 0.2, 0.3, out), out, N);
    SHOW(QvDifferentiate(x, N, 0.1, 0.2, 0.3, out), out, N);
    SHOW(QvIntegrateSamples(x, N, 0.1, 3, value), value, 1);
    SHOW(QvGenUniformNoise(N, 7, out), out, N);
    SHOW(QvGenWhiteNoise(N, 2.5, 7, out), out, N);
    SHOW(QvGenUniformNoise(N, 0, out), out, N);
    SHOW(QvGenRampPattern(N, -1.3, 2.7, out), out, N);
    SHOW(QvGenTrianglePattern(N, 2.5, out), out, N);
    double phase = 17.5;
    SHOW(QvGenSawtoothWave(N, 1.5, 0.013, &phase, out), out, N);
    SHOW(QvGenHaltonSequence(N, 3, 1, out), out, N);
    SHOW(QvInterpPolynomial(x, y, 7, 0.1, value, value + 1), value, 2);
    SHOW(QvInterpSplineSecondDerivatives(u, v, N, 1e31, 1e31, out), out, N);
    double state[19];
    Fill(state, 19, 5);
    SHOW(QvFilterFir(x, N, y, state, 20, out), out, N);
    SHOW(QvFilterMedian(x, N, 3, 2, out), out, N);
    SHOW(QvStatModeOfHistogram(x, N, -1, 1, 20, value), value, 1);
    return 0;
}
