// Entries of solving, inversion and the other operations on matrices.
#include <algorithm>

#include "frame/entry.h"
#include "linalg/definiteness.h"
#include "linalg/determinant.h"
#include "linalg/matrix.h"
#include "linalg/norms.h"
#include "linalg/products.h"
#include "linalg/solve.h"
#include "linalg/special_matrices.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

// A matrix whose element count does not fit is refused as a size is that does not fit: nothing is touched.
template <class Body>
Status WithMatrix(Size m, Size n, const Body& body) {
    return narrowed(m, n, [&](Count m, Count n) { return ElementsFit(m, n) ? body(m, n) : status::kOverflow; });
}

template <class Body>
Status WithSquare(Size n, const Body& body) {
    return WithMatrix(n, n, [&](Count n, Count) { return body(n); });
}

// Among several sizes one below the least that is allowed comes before an element count that does not fit.
template <class... Counts>
constexpr Count LeastOf(Counts... counts) {
    return std::min({counts...});
}

template <class T>
Status SolveMany(const T* a, Size m, Size n, std::uint32_t kind, const T* b, Size rhsCount, T* x) {
    return narrowed(m, n, rhsCount, [&](Count m, Count n, Count rhsCount) {
        const bool fits = ElementsFit(m, n) && ElementsFit(m, rhsCount) && ElementsFit(n, rhsCount);
        if (!fits && LeastOf(m, n, rhsCount) >= 1) return status::kOverflow;
        return MatSolveMany(a, m, n, kind, b, rhsCount, x);
    });
}

template <class T>
Status Rank(const T* a, Size m, Size n, double tolerance, Size* rank) {
    return WithMatrix(m, n, [&](Count m, Count n) {
        Count found = -1;
        const Status result = MatRank(a, m, n, tolerance, &found);
        *rank = found;
        return result;
    });
}

template <class T>
Status Multiply(const T* a, const T* b, Size rowsA, Size colsA, Size colsB, T* out) {
    return narrowed(rowsA, colsA, colsB, [&](Count rowsA, Count colsA, Count colsB) {
        const bool fits = ElementsFit(rowsA, colsA) && ElementsFit(colsA, colsB) && ElementsFit(rowsA, colsB);
        if (!fits && LeastOf(rowsA, colsA, colsB) >= 0) return status::kOverflow;
        const auto multiply = out == a || out == b ? MatMultiplyCopied<T> : MatMultiply<T>;
        return multiply(a, b, rowsA, colsA, colsB, out);
    });
}

template <class T>
Status Kronecker(const T* a, const T* b, Size rowsA, Size colsA, Size rowsB, Size colsB, T* out) {
    return narrowed(rowsA, colsA, rowsB, colsB, [&](Count rowsA, Count colsA, Count rowsB, Count colsB) {
        const bool fits = ElementsFit(rowsA, colsA) && ElementsFit(rowsB, colsB) &&
                          Elements(rowsA, colsA) * Elements(rowsB, colsB) <= INT32_MAX;
        if (!fits && LeastOf(rowsA, colsA, rowsB, colsB) >= 1) return status::kOverflow;
        return MatKronecker(a, b, rowsA, colsA, rowsB, colsB, out);
    });
}

// The lengths that give the type its size.
template <class T>
Status BuildSpecial(std::uint32_t type, Size order, const T* first, Size firstLength, const T* second,
                    Size secondLength, T* out) {
    return narrowed(order, firstLength, secondLength, [&](Count order, Count firstLength, Count secondLength) {
        const bool fits = type == kIdentityMatrix    ? ElementsFit(order, order)
                          : type == kToeplitzMatrix  ? ElementsFit(firstLength, secondLength)
                          : type == kCompanionMatrix ? firstLength < 2 || ElementsFit(firstLength - 1, firstLength - 1)
                          : type <= kCompanionMatrix ? ElementsFit(firstLength, firstLength)
                                                     : true;
        if (!fits) return status::kOverflow;
        return MatBuildSpecial(type, order, first, firstLength, second, secondLength, out);
    });
}

}  // namespace

// Systems

QV_EXPORT Status ZemFunc241(const double* a, Size m, Size n, std::uint32_t kind, const double* b, Size rhsCount,
                            double* x) {
    return SolveMany(a, m, n, kind, b, rhsCount, x);
}

QV_EXPORT Status ZemFunc242(const ComplexRecord* a, Size m, Size n, std::uint32_t kind, const ComplexRecord* b,
                            Size rhsCount, ComplexRecord* x) {
    return SolveMany(a, m, n, kind, b, rhsCount, x);
}

QV_EXPORT Status ZemFunc197(const double* a, Size m, Size n, const double* b, std::uint32_t kind, double* x) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatSolveKind(a, m, n, b, kind, x); });
}

QV_EXPORT Status ZemFunc218(const ComplexRecord* a, Size m, Size n, const ComplexRecord* b, std::uint32_t kind,
                            ComplexRecord* x) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatSolveKind(a, m, n, b, kind, x); });
}

QV_EXPORT Status ZemFunc114(const double* a, double* b, Size n, double* x) {
    return WithSquare(n, [&](Count n) { return MatSolve(a, b, n, x); });
}

QV_EXPORT Status ZemFunc11(const double* r, double* b, Size n, double* x) {
    return WithSquare(n, [&](Count n) { return MatSolveUpperTriangular(r, b, n, x); });
}

QV_EXPORT Status ZemFunc82(const double* l, double* b, Size n, double* x, const std::int64_t* pivots) {
    return WithSquare(n, [&](Count n) {
        if (n < 1) return status::kSamplesNotPositive;
        Block<Count> narrow(static_cast<std::size_t>(n));
        if (!narrow) return status::kOutOfMemory;
        if (Status failed = SizeArrayNarrow(narrow, pivots, n)) return failed;
        return MatSolveUnitLower(l, b, n, x, pivots ? narrow.get() : nullptr);
    });
}

// Inverses

QV_EXPORT Status ZemFunc105(double* a, Size n, double* out) {
    return WithSquare(n, [&](Count n) { return MatInverse(a, n, out); });
}

QV_EXPORT Status ZemFunc198(double* a, Size n, std::int32_t kind, double* out) {
    return WithSquare(n, [&](Count n) { return MatInverseKind(a, n, kind, out); });
}

QV_EXPORT Status ZemFunc212(ComplexRecord* a, Size n, std::int32_t kind, ComplexRecord* out) {
    return WithSquare(n, [&](Count n) { return MatInverseKind(a, n, kind, out); });
}

QV_EXPORT Status ZemFunc200(double* a, Size m, Size n, double tolerance, double* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatPseudoInverse(a, m, n, tolerance, out); });
}

QV_EXPORT Status ZemFunc229(ComplexRecord* a, Size m, Size n, double tolerance, ComplexRecord* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatPseudoInverse(a, m, n, tolerance, out); });
}

// Numbers that tell of a matrix

QV_EXPORT Status ZemFunc55(const double* a, Size n, double* out) {
    return WithSquare(n, [&](Count n) { return MatDeterminant(a, n, out); });
}

QV_EXPORT Status ZemFunc204(const double* a, Size n, std::uint32_t kind, double* out) {
    return WithSquare(n, [&](Count n) { return MatDeterminantKind(a, n, kind, out); });
}

QV_EXPORT Status ZemFunc220(const ComplexRecord* a, Size n, std::uint32_t kind, ComplexRecord* out) {
    return WithSquare(n, [&](Count n) { return MatDeterminantKind(a, n, kind, out); });
}

QV_EXPORT Status ZemFunc175(const double* a, Size n, double* out) {
    return WithSquare(n, [&](Count n) { return MatTrace(a, n, out); });
}

QV_EXPORT Status ZemFunc225(const ComplexRecord* a, Size n, ComplexRecord* out) {
    return WithSquare(n, [&](Count n) { return MatTrace(a, n, out); });
}

QV_EXPORT Status ZemFunc206(const double* a, Size m, Size n, std::uint32_t selector, double* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatNorm(a, m, n, selector, out); });
}

QV_EXPORT Status ZemFunc223(const ComplexRecord* a, Size m, Size n, std::uint32_t selector, double* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatNorm(a, m, n, selector, out); });
}

QV_EXPORT Status ZemFunc205(const double* a, Size m, Size n, std::uint32_t selector, double* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatConditionNumber(a, m, n, selector, out); });
}

QV_EXPORT Status ZemFunc222(const ComplexRecord* a, Size m, Size n, std::uint32_t selector, double* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatConditionNumber(a, m, n, selector, out); });
}

QV_EXPORT Status ZemFunc207(const double* a, Size m, Size n, double tolerance, std::int64_t* rank) {
    return Rank(a, m, n, tolerance, rank);
}

QV_EXPORT Status ZemFunc215(const ComplexRecord* a, Size m, Size n, double tolerance, std::int64_t* rank) {
    return Rank(a, m, n, tolerance, rank);
}

QV_EXPORT Status ZemFunc209(const double* a, Size n, std::uint32_t* flag) {
    return WithSquare(n, [&](Count n) { return MatIsPositiveDefinite(a, n, flag); });
}

QV_EXPORT Status ZemFunc226(const ComplexRecord* a, Size n, std::uint32_t* flag) {
    return WithSquare(n, [&](Count n) { return MatIsPositiveDefinite(a, n, flag); });
}

// Products

QV_EXPORT Status ZemFunc119(const double* a, const double* b, Size rowsA, Size colsA, Size colsB, double* out) {
    return Multiply(a, b, rowsA, colsA, colsB, out);
}

QV_EXPORT Status ZemFunc214(const ComplexRecord* a, const ComplexRecord* b, Size rowsA, Size colsA, Size colsB,
                            ComplexRecord* out) {
    return Multiply(a, b, rowsA, colsA, colsB, out);
}

QV_EXPORT Status ZemFunc370(const double* a, const double* x, Size m, Size n, double* y) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatVectorMultiply(a, x, m, n, y); });
}

QV_EXPORT Status ZemFunc371(const ComplexRecord* a, const ComplexRecord* x, Size m, Size n, ComplexRecord* y) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatVectorMultiply(a, x, m, n, y); });
}

QV_EXPORT Status ZemFunc191(const double* x, const double* y, Size n, double* out) {
    return narrowed(n, [&](Count n) { return VecDot(x, y, n, out); });
}

QV_EXPORT Status ZemFunc221(const ComplexRecord* x, const ComplexRecord* y, Size n, ComplexRecord* out) {
    return narrowed(n, [&](Count n) { return VecDotComplex(x, y, n, out); });
}

QV_EXPORT Status ZemFunc203(const double* x, Size nx, const double* y, Size ny, double* out) {
    return WithMatrix(nx, ny, [&](Count nx, Count ny) { return VecOuterProduct(x, nx, y, ny, out); });
}

QV_EXPORT Status ZemFunc224(const ComplexRecord* x, Size nx, const ComplexRecord* y, Size ny, ComplexRecord* out) {
    return WithMatrix(nx, ny, [&](Count nx, Count ny) { return VecOuterProduct(x, nx, y, ny, out); });
}

QV_EXPORT Status ZemFunc358(const double* a, const double* b, Size rowsA, Size colsA, Size rowsB, Size colsB,
                            double* out) {
    return Kronecker(a, b, rowsA, colsA, rowsB, colsB, out);
}

QV_EXPORT Status ZemFunc359(const ComplexRecord* a, const ComplexRecord* b, Size rowsA, Size colsA, Size rowsB,
                            Size colsB, ComplexRecord* out) {
    return Kronecker(a, b, rowsA, colsA, rowsB, colsB, out);
}

// Shapes

QV_EXPORT Status ZemFunc177(double* a, Size m, Size n, double* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatTranspose(a, m, n, out); });
}

QV_EXPORT Status ZemFunc217(ComplexRecord* a, Size m, Size n, ComplexRecord* out) {
    return WithMatrix(m, n, [&](Count m, Count n) { return MatConjugateTranspose(a, m, n, out); });
}

QV_EXPORT Status ZemFunc208(std::uint32_t type, Size order, const double* first, Size firstLength, const double* second,
                            Size secondLength, double* out) {
    return BuildSpecial(type, order, first, firstLength, second, secondLength, out);
}

QV_EXPORT Status ZemFunc227(std::uint32_t type, Size order, const ComplexRecord* first, Size firstLength,
                            const ComplexRecord* second, Size secondLength, ComplexRecord* out) {
    return BuildSpecial(type, order, first, firstLength, second, secondLength, out);
}

// Vectors

QV_EXPORT Status ZemFunc394(const double* x, Size n, std::uint32_t selector, double p, double* out) {
    return narrowed(n, [&](Count n) { return VecNorm(x, n, selector, p, out); });
}

QV_EXPORT Status ZemFunc395(const ComplexRecord* x, Size n, std::uint32_t selector, double p, double* out) {
    return narrowed(n, [&](Count n) { return VecNorm(x, n, selector, p, out); });
}
