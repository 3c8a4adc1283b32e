// Entries of the decompositions.
#include "linalg/decompositions.h"

#include <algorithm>

#include "frame/entry.h"
#include "linalg/matrix.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

// Singular values come as reals; the complex entries give pairs with zero imaginary parts.
template <class Call>
Status WithComplexValues(Count m, Count n, ComplexRecord* s, const Call& call) {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    const Count count = std::min(m, n);
    const Block<double> values(static_cast<std::size_t>(count));
    if (!values) return status::kOutOfMemory;
    const Status status = call(values.get());
    for (Count i = 0; status >= 0 && i < count; ++i) s[i] = {values[i], 0.0};
    return status;
}

template <class T>
Status Lu(T* a, Size n, Size* pivots, std::uint32_t* parity) {
    return narrowed(n, [&](Count n) {
        if (n < 1) return status::kSamplesNotPositive;
        const Block<Count> indices(static_cast<std::size_t>(n));
        if (!indices) return status::kOutOfMemory;
        const Status status = MatLu(a, n, n, indices, parity);
        return status < 0 ? status : Later(status, IndexArrayWiden(pivots, indices, n));
    });
}

constexpr std::uint32_t kOrderAsMatrix = 2;

// The order of the columns as an n by n matrix of zeros and ones, (order[j], j) = 1.
void StorePermutation(const Count* order, Size n, Size* matrix) {
    if (!matrix) return;
    std::fill(matrix, matrix + n * n, Size{0});
    for (Size j = 0; j < n; ++j) matrix[order[j] * n + j] = 1;
}

template <class T>
Status QrPivot(T* a, Size m, Size n, std::uint32_t mode, std::uint32_t economy, Size* p, T* q, T* r) {
    return narrowed(m, n, [&](Count m, Count n) {
        if (m < 1 || n < 1) return status::kSamplesNotPositive;
        if (p && mode == kOrderAsMatrix && !ElementsFit(n, n)) return status::kOverflow;
        const Block<Count> order(static_cast<std::size_t>(n));
        if (!order) return status::kOutOfMemory;
        const Status status = MatQrPivot(a, m, n, mode, economy != 0, order, q, r);
        if (status != status::kSuccess) return status;
        if (mode != kOrderAsMatrix) return IndexArrayWiden(p, order, n);
        StorePermutation(order, n, p);
        return status;
    });
}

template <class T>
Status Hessenberg(T* a, Size n, T* h, T* q) {
    return narrowed(n, [&](Count n) { return MatHessenberg(a, n, 0, n < 1 ? 0 : n - 1, h, q); });
}

template <class T>
Status Balance(T* a, Size n, std::uint32_t job, Size* low, Size* high, double* scale, T* balanced) {
    return narrowed(n, [&](Count n) {
        Count first = 0, last = 0;
        const Status status = MatBalance(a, n, job, &first, &last, scale, balanced);
        if (status != status::kSuccess) return status;
        *low = first;
        *high = last;
        return status;
    });
}

}  // namespace

// Singular values

QV_EXPORT Status ZemFunc195(const double* a, Size m, Size n, double* s) {
    return narrowed(m, n, [&](Count m, Count n) { return MatSingularValues(a, m, n, s); });
}

QV_EXPORT Status ZemFunc216(const ComplexRecord* a, Size m, Size n, ComplexRecord* s) {
    return narrowed(m, n, [&](Count m, Count n) {
        return WithComplexValues(m, n, s, [&](double* values) { return MatSingularValues(a, m, n, values); });
    });
}

QV_EXPORT Status ZemFunc193(const double* a, Size m, Size n, double* u, double* s, double* v) {
    return narrowed(m, n, [&](Count m, Count n) { return MatSvd(a, m, n, u, s, v); });
}

QV_EXPORT Status ZemFunc219(const ComplexRecord* a, Size m, Size n, ComplexRecord* u, ComplexRecord* s,
                            ComplexRecord* v) {
    return narrowed(m, n, [&](Count m, Count n) {
        return WithComplexValues(m, n, s, [&](double* values) { return MatSvd(a, m, n, u, values, v); });
    });
}

QV_EXPORT Status ZemFunc246(const double* a, Size m, Size n, std::int32_t mode, double* u, double* s, double* v) {
    return narrowed(m, n, [&](Count m, Count n) { return MatSvdMode(a, m, n, mode, u, s, v); });
}

QV_EXPORT Status ZemFunc247(const ComplexRecord* a, Size m, Size n, std::int32_t mode, ComplexRecord* u,
                            ComplexRecord* s, ComplexRecord* v) {
    return narrowed(m, n, [&](Count m, Count n) {
        return WithComplexValues(m, n, s, [&](double* values) { return MatSvdMode(a, m, n, mode, u, values, v); });
    });
}

// Triangular factors

QV_EXPORT Status ZemFunc118(double* a, Size n, Size* pivots, std::uint32_t* parity) { return Lu(a, n, pivots, parity); }

QV_EXPORT Status ZemFunc213(ComplexRecord* a, Size n, Size* pivots, std::uint32_t* parity) {
    return Lu(a, n, pivots, parity);
}

QV_EXPORT Status ZemFunc196(double* a, Size n, double* out) {
    return narrowed(n, [&](Count n) { return MatCholesky(a, n, true, out); });
}

QV_EXPORT Status ZemFunc210(ComplexRecord* a, Size n, ComplexRecord* out) {
    return narrowed(n, [&](Count n) { return MatCholesky(a, n, true, out); });
}

// QR

QV_EXPORT Status ZemFunc192(double* a, Size m, Size n, std::uint32_t method, double* q, double* r) {
    return narrowed(m, n, [&](Count m, Count n) { return MatQrMethod(a, m, n, method, q, r); });
}

QV_EXPORT Status ZemFunc228(ComplexRecord* a, Size m, Size n, ComplexRecord* q, ComplexRecord* r) {
    return narrowed(m, n, [&](Count m, Count n) { return MatQrComplex(a, m, n, false, q, r); });
}

QV_EXPORT Status ZemFunc243(double* a, Size m, Size n, std::uint32_t pivotMode, std::uint32_t economy, Size* p,
                            double* q, double* r) {
    return QrPivot(a, m, n, pivotMode, economy, p, q, r);
}

QV_EXPORT Status ZemFunc245(ComplexRecord* a, Size m, Size n, std::uint32_t pivotMode, std::uint32_t economy, Size* p,
                            ComplexRecord* q, ComplexRecord* r) {
    return QrPivot(a, m, n, pivotMode, economy, p, q, r);
}

// Hessenberg form and balancing

QV_EXPORT Status ZemFunc254(double* a, Size n, double* h, double* q) { return Hessenberg(a, n, h, q); }

QV_EXPORT Status ZemFunc255(ComplexRecord* a, Size n, ComplexRecord* h, ComplexRecord* q) {
    return Hessenberg(a, n, h, q);
}

QV_EXPORT Status ZemFunc248(double* a, Size n, std::uint32_t job, Size* low, Size* high, double* scale,
                            double* balanced) {
    return Balance(a, n, job, low, high, scale, balanced);
}

QV_EXPORT Status ZemFunc249(ComplexRecord* a, Size n, std::uint32_t job, Size* low, Size* high, double* scale,
                            ComplexRecord* balanced) {
    return Balance(a, n, job, low, high, scale, balanced);
}

QV_EXPORT Status ZemFunc250(double* v, Size n, std::uint32_t job, std::uint32_t side, Size low, Size high,
                            const double* scale, double* out) {
    return narrowed(n, low, high, [&](Count n, Count low, Count high) {
        return MatBalanceBack(v, n, job, side, low, high, scale, out);
    });
}

QV_EXPORT Status ZemFunc251(ComplexRecord* v, Size n, std::uint32_t job, std::uint32_t side, Size low, Size high,
                            const double* scale, ComplexRecord* out) {
    return narrowed(n, low, high, [&](Count n, Count low, Count high) {
        return MatBalanceBack(v, n, job, side, low, high, scale, out);
    });
}
