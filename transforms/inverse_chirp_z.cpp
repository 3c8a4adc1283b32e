// The inverse chirp-Z transform: a transposed Vandermonde system on the geometric nodes b w^j, b = 1/a, solved in
// closed form. With the master polynomial P(t) = product of (t - b w^j) and the Lagrange weights e[j] of the nodes, the
// solution is the product of two power series, sum of X[j] e[j] / (1 - b w^j t) and the reversed P (V. Sukhoy and
// A. Stoytchev, "Generalizing the inverse FFT off the unit circle", Scientific Reports 9, 2019, give the same product
// with Toeplitz matrices).
#include <algorithm>

#include "frame/complex.h"
#include "frame/complex_arrays.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/chirp_z.h"
#include "transforms/convolution.h"

namespace quorvan {
namespace {

constexpr ComplexRecord kOne = {1, 0};

// The first of the m samples whose nodes lie nearest to the unit circle: where ||b| |w|^k - 1| stops falling, m / 2
// before it.
Count WindowStart(ComplexRecord b, ComplexRecord w, Count n, Count m) {
    const double ratio = CxMagnitude(w);
    double radius = CxMagnitude(b), nearest = std::fabs(radius - 1);
    Count k = 1;
    for (; k < n; ++k) {
        radius *= ratio;
        const double distance = std::fabs(radius - 1);
        if (!(distance < nearest)) break;
        nearest = distance;
    }
    return std::min(std::max(0, k - 1 - m / 2), n - m);
}

// w^0 to w^m. False where two of the first m coincide: w^k = 1 within what rounding of w and of the power can do to it,
// each of which turns the point by up to k pi eps / 2 and moves it along the radius by no more.
bool Powers(ComplexRecord w, Count m, ComplexRecord* powers) {
    bool distinct = true;
    for (Count k = 0; k <= m; ++k) {
        CxPow(w, k, &powers[k]);
        const double rounding = 4 * kEpsilon * k;
        if (k > 0 && k < m && CxSquaredMagnitude(CxSubtract(kOne, powers[k])) <= rounding * rounding) distinct = false;
    }
    return distinct;
}

// The weights of Lagrange's formula for the nodes, by the ratio of neighbours.
void LagrangeWeights(const ComplexRecord* powers, Count m, ComplexRecord* weights) {
    weights[0] = kOne;
    for (Count k = 1; k < m; ++k)
        weights[0] = CxMultiply(weights[0], CxDivide(kOne, CxSubtract(kOne, CxDivide(kOne, powers[k]))));
    for (Count k = 1; k < m; ++k) {
        const ComplexRecord product = CxMultiply(weights[k - 1], CxSubtract(kOne, CxDivide(powers[k], powers[m])));
        weights[k] = CxDivide(product, CxSubtract(kOne, powers[k]));
    }
}

// The coefficients of t^0 to t^(m-1) of the monic polynomial with these roots, which are taken in Leja order: first the
// greatest, then always the one with the greatest product of squared distances to those taken (F. Leja, 1957; L.
// Reichel, "Newton interpolation at Leja points", BIT 30, 1990).
void ExpandRoots(const ComplexRecord* roots, Count m, double* weights, ComplexRecord* coefficients) {
    constexpr double kTaken = -1;
    Count next = 0;
    for (Count k = 0; k < m; ++k) {
        weights[k] = 1;
        if (CxSquaredMagnitude(roots[k]) > CxSquaredMagnitude(roots[next])) next = k;
    }
    for (Count taken = 0; taken < m; ++taken) {
        const ComplexRecord root = roots[next];
        weights[next] = kTaken;
        // (t - root) times a monic polynomial of degree `taken`.
        if (taken > 0) coefficients[taken] = CxSubtract(coefficients[taken - 1], root);
        for (Count i = taken - 1; i > 0; --i)
            coefficients[i] = CxSubtract(coefficients[i - 1], CxMultiply(root, coefficients[i]));
        coefficients[0] = CxNegate(taken > 0 ? CxMultiply(root, coefficients[0]) : root);

        Count best = -1;
        for (Count k = 0; k < m; ++k) {
            if (weights[k] == kTaken) continue;
            weights[k] *= CxSquaredMagnitude(CxSubtract(roots[k], root));
            if (best < 0 || weights[k] > weights[best]) best = k;
        }
        next = best;
    }
}

}  // namespace

Status TransformInverseChirpZ(ComplexRecord* X, Count n, ComplexRecord a, ComplexRecord w, ComplexRecord* out,
                              Count m) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (CxHasNonFinite(&a, 1) || CxHasNonFinite(&w, 1)) return status::kNonFiniteInput;
    if (CxSquaredMagnitude(a) == 0 || CxSquaredMagnitude(w) == 0) return status::kZeroNumber;
    if (m < 1) m = n;
    if (m > n) return status::kWrongDataCount;
    if (ConvolvedLength(m, m) > INT32_MAX) return status::kOverflow;

    ComplexRecord b = CxDivide(kOne, a);
    Count start = 0;
    if (n > m) {
        start = WindowStart(b, w, n, m);
        for (Count skipped = 0; skipped < start; ++skipped) b = CxMultiply(b, w);
    }

    const std::size_t room = static_cast<std::size_t>(m) + 1;
    const Block<ComplexRecord> work(4 * room);
    const Block<ComplexRecord> product(static_cast<std::size_t>(ConvolvedLength(m, m)));
    const Block<double> distances(room);
    if (!work || !product || !distances) return status::kOutOfMemory;
    ComplexRecord *const powers = work, *const weights = powers + room, *const series = weights + room,
                         *const coefficients = series + room;
    if (!Powers(w, m, powers)) return status::kNoFeasibleSolution;

    // The series of the weighted samples, in powers of b.
    LagrangeWeights(powers, m, weights);
    for (Count k = 0; k < m; ++k) weights[k] = CxMultiply(X[start + k], weights[k]);
    if (const Status failure = TransformChirpZComplex(weights, m, kOne, CxDivide(kOne, w), kChirpZDirect, m, series))
        return failure;
    const ComplexRecord c = CxDivide(kOne, b);
    ComplexRecord scale = kOne;
    for (Count k = 0; k < m; ++k) {
        series[k] = CxMultiply(series[k], scale);
        scale = CxMultiply(scale, c);
    }

    // The master polynomial, scaled to the constant term 1: scale is c^m now.
    if (m % 2 != 0) scale = CxNegate(scale);
    ComplexRecord nodeProduct = kOne;
    for (Count k = 0; k < m; ++k) {
        nodeProduct = CxMultiply(nodeProduct, powers[k]);
        powers[k] = CxMultiply(powers[k], b);
    }
    ExpandRoots(powers, m, distances, coefficients);
    scale = CxDivide(scale, nodeProduct);
    for (Count k = 0; k < m; ++k) coefficients[k] = CxMultiply(coefficients[k], scale);
    coefficients[0] = kOne;

    if (const Status failure = ConvolveComplex(series, m, coefficients, m, kConvolveDirect, product)) return failure;
    std::copy(product + 0, product + m, out ? out : X);
    return status::kSuccess;
}

}  // namespace quorvan
