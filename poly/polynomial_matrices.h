// What the searches for multiple roots share: monic polynomials in descending powers, products as matrices, the
// companion matrix, and least squares by QR. T is double or ComplexRecord.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/eigenvalues.h"
#include "linalg/element.h"
#include "linalg/matrix.h"
#include "linalg/special_matrices.h"

namespace quorvan {

// Divides by the first coefficient, which becomes exactly 1.
template <class T>
void MakeMonic(T* p, Count count) noexcept {
    const T leading = p[0];
    p[0] = element::One<T>();
    for (Count k = 1; k < count; ++k) p[k] = element::Quotient(p[k], leading);
}

// Descending and monic.
template <class T>
void Descend(const T* c, Count m, T* p) noexcept {
    std::reverse_copy(c, c + m, p);
    MakeMonic(p, m);
}

// Descending, monic, and scaled to roots of unit mean size: the result times the roots of p are those of c. Without
// scale where that leaves the range of doubles.
template <class T>
double DescendScaled(const T* c, Count m, T* p) noexcept {
    Descend(c, m, p);
    const double scale = std::pow(element::Magnitude(p[m - 1]), 1.0 / (m - 1));
    if (scale == 1) return scale;
    for (Count k = 1; k < m; ++k) p[k] = element::Quotient(p[k], std::pow(scale, k));
    if (!MatScreen(p, static_cast<std::size_t>(m))) return scale;
    Descend(c, m, p);
    return 1;
}

// out[degreeP + degreeQ + 1] = p·q
template <class T>
void MultiplyPolynomials(const T* p, Count degreeP, const T* q, Count degreeQ, T* out) noexcept {
    std::fill_n(out, degreeP + degreeQ + 1, T{});
    for (Count i = 0; i <= degreeP; ++i)
        for (Count j = 0; j <= degreeQ; ++j) out[i + j] = element::Sum(out[i + j], element::Product(p[i], q[j]));
}

// Writes the columns p, x·p, x²·p ... into a row-major matrix: element (row + i + j, column + j) = p[i], for `columns`
// values of j.
template <class T>
void PlaceProducts(const T* p, Count degree, Count columns, T* matrix, Count stride, Count row, Count column) noexcept {
    for (Count j = 0; j < columns; ++j)
        for (Count i = 0; i <= degree; ++i) matrix[static_cast<Size>(row + i + j) * stride + column + j] = p[i];
}

// x = argmin |a·x - b| for a of m by n with full column rank, with one step of correction. -20041 for an exact zero on
// the diagonal of R.
template <class T>
Status PolyLeastSquaresQr(T* a, Count m, Count n, const T* b, T* x) noexcept {
    using namespace element;
    const std::size_t rows = static_cast<std::size_t>(m), cols = static_cast<std::size_t>(n);
    Block<T> q(rows * cols), r(cols * cols), rest(rows), step(cols);
    if (!q || !r || !rest || !step) return status::kOutOfMemory;
    if (Status failed = MatQr<T>(a, m, n, true, q, r)) return failed;
    for (Count i = 0; i < n; ++i)
        if (Equal(r[i * (cols + 1)], T{})) return status::kSingularMatrix;
    std::fill_n(x, n, T{});
    std::copy_n(b, m, rest.get());
    for (int pass = 0; pass < 2; ++pass) {
        for (Count j = n - 1; j >= 0; --j) {  // R·step = Q^H·rest
            T sum{};
            for (Count i = 0; i < m; ++i) sum = Sum(sum, Product(Conjugate(q[i * cols + j]), rest[i]));
            for (Count k = j + 1; k < n; ++k) sum = Difference(sum, Product(r[j * cols + k], step[k]));
            step[j] = Quotient(sum, r[j * (cols + 1)]);
        }
        for (Count j = 0; j < n; ++j) x[j] = Sum(x[j], step[j]);
        for (Count i = 0; i < m; ++i) {
            T sum = b[i];
            for (Count j = 0; j < n; ++j) sum = Difference(sum, Product(a[i * cols + j], x[j]));
            rest[i] = sum;
        }
    }
    return status::kSuccess;
}

inline Status CompanionEigenvalues(const double* a, Count n, ComplexRecord* values) noexcept {
    return MatEigenGeneral(a, n, 0, values, nullptr);
}
inline Status CompanionEigenvalues(const ComplexRecord* a, Count n, ComplexRecord* values) noexcept {
    return MatEigenComplex(a, n, 0, 0, values, nullptr);
}

// The roots of a monic polynomial as the eigenvalues of its companion matrix.
template <class T>
Status PolyCompanionRoots(const T* p, Count degree, ComplexRecord* roots) noexcept {
    Block<T> companion(Elements(degree, degree));
    if (!companion) return status::kOutOfMemory;
    if (Status failed = MatBuildSpecial<T>(kCompanionMatrix, 0, p, degree + 1, nullptr, 0, companion)) return failed;
    return CompanionEigenvalues(companion, degree, roots);
}

}  // namespace quorvan
