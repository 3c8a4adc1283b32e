// The Bessel prototype: poles at the zeros of the reverse Bessel polynomial (W. E. Thomson, Delay networks having
// maximally flat frequency characteristics, Proc. IEE 96, 1949), scaled so that the cutoff is at -3 dB.
//
// The zeros come as eigenvalues, which stay accurate where the coefficients of the polynomial are already useless.
#include <algorithm>
#include <cmath>

#include "filters/iir_prototypes.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/eigenvalues.h"
#include "poly/complex_zeros.h"
#include "transforms/convolution.h"

namespace quorvan {
namespace {

constexpr double kReal = 1e-8;  // the imaginary part of what counts as real is below this
constexpr Count kIterations = 100;

// The reverse Bessel polynomial of degree n in ascending powers, scaled to a mean pole radius of 1 (geometric). Gives
// the scale.
double ScaledBesselPolynomial(Count n, double* c) {
    c[0] = 1;
    for (Count j = 0; j < n; ++j) c[0] *= n - j / 2.0;
    for (Count k = 1; k < n; ++k) c[k] = c[k - 1] * 2 * (n - k + 1) / (2.0 * n - k + 1) / k;
    c[n] = 1;
    const double scale = std::pow(c[0], 1.0 / n);
    for (Count k = 1; k < n; ++k) c[k] /= std::pow(scale, n - k);
    c[0] = 1;
    return scale;
}

// The tridiagonal matrix whose eigenvalues are the reciprocals of the zeros: L. Pasquini, Accurate computation of the
// zeros of the generalized Bessel polynomials, Numerische Mathematik 86 (2000).
void BesselMatrix(Count n, double* matrix) {
    const std::size_t row = static_cast<std::size_t>(n);
    std::fill_n(matrix, row * row, 0.0);
    matrix[0] = -1;
    if (n > 1) matrix[1] = 1;
    for (std::size_t i = 1; i < row; ++i) {
        const double element = 1 / (2.0 * static_cast<double>(i) + 1);
        matrix[i * row + i - 1] = -element;
        if (i + 1 < row) matrix[i * row + i + 1] = element;
    }
}

// The reciprocal of the frequency x at which the polynomial c of degree n has |c(jx)|² = 2.
Status IirBesselCutoff(const double* c, Count n, double* cutoff) {
    const std::size_t count = static_cast<std::size_t>(n) + 1, squared = 2 * count - 1;
    const Block<double> work(2 * count + 2 * squared);
    const Block<ComplexRecord> zeros(squared);
    if (!work || !zeros) return status::kOutOfMemory;
    double *const even = work, *const odd = even + count, *const evenSquare = odd + count,
                  *const oddSquare = evenSquare + squared;
    for (Count k = 0; k <= n; ++k) {
        const double signed_ = k / 2 % 2 ? -c[k] : c[k];
        even[k] = k % 2 ? 0 : signed_;
        odd[k] = k % 2 ? signed_ : 0;
    }
    if (const Status failure = ConvolveReal(even, n + 1, even, n + 1, kConvolveDirect, evenSquare)) return failure;
    if (const Status failure = ConvolveReal(odd, n + 1, odd, n + 1, kConvolveDirect, oddSquare)) return failure;
    for (std::size_t k = 0; k < squared; ++k) zeros[squared - 1 - k] = {evenSquare[k] + oddSquare[k], 0};
    zeros[squared - 1].re -= 2;
    const Count coefficients = static_cast<Count>(squared);
    if (const Status failure = PolyZerosComplex(zeros, coefficients, kIterations, zeros)) return failure;
    const auto value = [](ComplexRecord z) { return std::fabs(z.im) >= kReal ? 0.0 : z.re; };
    *cutoff = value(zeros[0]);
    for (std::size_t k = 1; k + 1 < squared; ++k) *cutoff = std::max(*cutoff, value(zeros[k]));
    return status::kSuccess;
}

PrototypeSection RealPole(double rho, double factor) {
    return {PrototypeSection::kRealPole, rho, 0, 0, 0, 0, factor / rho};
}

// The stages share the gain: only their product has a gain of 1.
void HandOut(const ComplexRecord* poles, Count n, double factor, SectionSink sink) {
    const auto real = [](ComplexRecord pole) { return std::fabs(pole.im) < kReal; };
    const bool odd = std::count_if(poles, poles + n, real) % 2 != 0;
    bool first = odd;
    double held = 0;  // the first of two real poles
    for (Count i = 0; i < n; ++i) {
        if (!real(poles[i])) continue;
        const double rho = -poles[i].re;
        if (first) {
            sink(RealPole(rho, factor));
            first = false;
        } else if (held == 0) {
            held = rho;
        } else {
            sink({PrototypeSection::kTwoRealPoles, held, rho, 0, 0, 0, factor / held * (factor / rho)});
            held = 0;
        }
    }
    // The partner of a complex pole stands behind it.
    bool partner = false;
    for (Count i = 0; i < n; ++i) {
        if (real(poles[i])) continue;
        const double sigma = -poles[i].re, q = sigma * sigma + poles[i].im * poles[i].im;
        if (!partner) sink({PrototypeSection::kPair, 0, 0, sigma, q, 0, factor * factor / q});
        partner = !partner;
    }
}

}  // namespace

Status IirBesselSections(const IirPrototype& prototype, SectionSink sink) noexcept {
    const Count n = prototype.order;
    const std::size_t size = static_cast<std::size_t>(n);
    const Block<double> matrix(size * size), polynomial(size + 1);
    const Block<ComplexRecord> poles(size);
    if (!matrix || !polynomial || !poles) return status::kOutOfMemory;
    const double scale = ScaledBesselPolynomial(n, polynomial);
    BesselMatrix(n, matrix);
    if (const Status failure = MatEigenGeneral(matrix, n, 0, poles, nullptr)) return failure;
    double factor = 0;
    if (const Status failure = IirBesselCutoff(polynomial, n, &factor)) return failure;
    for (Count i = 0; i < n; ++i) {
        // factor / (scale lambda)
        const double re = scale * poles[i].re, im = scale * poles[i].im, square = re * re + im * im;
        poles[i] = {re / square * factor, -im / square * factor};
    }
    HandOut(poles, n, factor, sink);
    return status::kSuccess;
}

}  // namespace quorvan
