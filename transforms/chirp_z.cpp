#include "transforms/chirp_z.h"

#include <algorithm>

#include "frame/complex.h"
#include "frame/complex_arrays.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/convolution.h"

namespace quorvan {
namespace {

Status CheckParameter(ComplexRecord z) {
    if (CxHasNonFinite(&z, 1)) return status::kNonFiniteInput;
    return CxSquaredMagnitude(z) == 0 ? status::kZeroNumber : status::kSuccess;
}

ComplexRecord Times(double x, ComplexRecord t) { return CxScale(t, x); }
ComplexRecord Times(ComplexRecord x, ComplexRecord t) { return CxMultiply(t, x); }

// The sum as it stands, with n m powers of w.
template <class T>
Status Direct(const T* x, Count n, ComplexRecord a, ComplexRecord w, Count m, ComplexRecord* out) {
    const Block<ComplexRecord> aPowers(static_cast<std::size_t>(n));  // a^-k
    if (!aPowers) return status::kOutOfMemory;
    if (const Status failure = CxPow(a, -(n - 1.0), &aPowers[n - 1])) return failure;
    for (Count k = n - 2; k >= 0; --k) aPowers[k] = CxMultiply(a, aPowers[k + 1]);
    std::fill(out, out + m, ComplexRecord{});
    for (Count j = 0; j < m; ++j)
        for (Count k = 0; k < n; ++k) {
            ComplexRecord power;
            if (const Status failure = CxPow(w, static_cast<double>(j) * k, &power)) return failure;
            out[j] = CxAdd(out[j], Times(x[k], CxMultiply(power, aPowers[k])));
        }
    return status::kSuccess;
}

// j k = (j^2 + k^2 - (j - k)^2) / 2 turns the sum into a convolution with a chirp (L. I. Bluestein, "A linear filtering
// approach to the computation of discrete Fourier transform", IEEE Trans. AU 18, 1970).
template <class T>
Status Bluestein(const T* x, Count n, ComplexRecord a, ComplexRecord w, Count m, ComplexRecord* out) {
    const Size length = Size{n} + m;
    if (length + n - 1 > INT32_MAX) return status::kOverflow;
    const Block<ComplexRecord> work(static_cast<std::size_t>(2 * (m + 2 * Size{n}) - 1));
    if (!work) return status::kOutOfMemory;
    ComplexRecord *const chirp = work, *const twisted = chirp + length, *const z = twisted + n;
    for (Size i = 0; i < length; ++i) {
        const Size square = (i - n) * (i - n);
        if (const Status failure = CxPow(w, static_cast<double>(-square) * 0.5, &chirp[i])) return failure;
    }
    for (Count k = 0; k < n; ++k) {
        ComplexRecord power;
        if (const Status failure = CxPow(a, -static_cast<double>(k), &power)) return failure;
        twisted[k] = CxDivide(Times(x[k], power), chirp[n - k]);
    }
    if (const Status failure = ConvolveComplex(twisted, n, chirp, static_cast<Count>(length), kConvolveByFft, z))
        return failure;
    for (Count j = 0; j < m; ++j) out[j] = CxDivide(z[n + Size{j}], chirp[n + Size{j}]);
    return status::kSuccess;
}

template <class T>
Status ChirpZ(const T* x, Count n, ComplexRecord a, ComplexRecord w, std::uint32_t method, Count m,
              ComplexRecord* out) {
    if (n < 1) return status::kSamplesNotPositive;
    if (method > kChirpZBluestein) return status::kInvalidSelection;
    if (const Status failure = CheckParameter(a)) return failure;
    if (const Status failure = CheckParameter(w)) return failure;
    if (m < 1) m = n;
    return method == kChirpZDirect ? Direct(x, n, a, w, m, out) : Bluestein(x, n, a, w, m, out);
}

}  // namespace

Status TransformChirpZReal(const double* x, Count n, ComplexRecord a, ComplexRecord w, std::uint32_t method, Count m,
                           ComplexRecord* out) noexcept {
    return ChirpZ(x, n, a, w, method, m, out);
}

Status TransformChirpZComplex(const ComplexRecord* x, Count n, ComplexRecord a, ComplexRecord w, std::uint32_t method,
                              Count m, ComplexRecord* out) noexcept {
    return ChirpZ(x, n, a, w, method, m, out);
}

}  // namespace quorvan
