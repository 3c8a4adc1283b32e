// Entries of the eigenproblems.
#include "frame/entry.h"
#include "linalg/eigenvalues.h"
#include "linalg/qz.h"
#include "linalg/schur.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc201(const double* a, Size n, std::uint32_t wantVectors, ComplexRecord* values,
                            ComplexRecord* vectors) {
    return narrowed(n, [&](Count n) { return MatEigenGeneral(a, n, wantVectors, values, vectors); });
}

QV_EXPORT Status ZemFunc202(const double* a, Size n, std::uint32_t wantVectors, double* values, double* vectors) {
    return narrowed(n, [&](Count n) { return MatEigenSymmetric(a, n, wantVectors, values, vectors); });
}

QV_EXPORT Status ZemFunc211(const ComplexRecord* a, Size n, std::int32_t kind, std::uint32_t wantVectors,
                            ComplexRecord* values, ComplexRecord* vectors) {
    return narrowed(n, [&](Count n) { return MatEigenComplex(a, n, kind, wantVectors, values, vectors); });
}

QV_EXPORT Status ZemFunc258(const double* a, Size n, std::uint32_t sort, double* vectors, double* t,
                            ComplexRecord* values) {
    return narrowed(n, [&](Count n) { return MatSchur(a, n, sort, vectors, t, values); });
}

QV_EXPORT Status ZemFunc259(const ComplexRecord* a, Size n, std::uint32_t sort, ComplexRecord* vectors,
                            ComplexRecord* t, ComplexRecord* values) {
    return narrowed(n, [&](Count n) { return MatSchur(a, n, sort, vectors, t, values); });
}

QV_EXPORT Status ZemFunc252(const double* a, const double* b, Size n, ComplexRecord* values, ComplexRecord* right,
                            ComplexRecord* left) {
    return narrowed(n, [&](Count n) { return MatEigenGeneralised(a, b, n, values, right, left); });
}

QV_EXPORT Status ZemFunc253(const ComplexRecord* a, const ComplexRecord* b, Size n, ComplexRecord* values,
                            ComplexRecord* right, ComplexRecord* left) {
    return narrowed(n, [&](Count n) { return MatEigenGeneralised(a, b, n, values, right, left); });
}

QV_EXPORT Status ZemFunc256(const double* a, const double* b, Size n, std::uint32_t sort, double* s, double* t,
                            double* q, double* z, ComplexRecord* alpha, double* beta, ComplexRecord* right,
                            ComplexRecord* left) {
    return narrowed(n, [&](Count n) { return MatQz<double>(a, b, n, sort, {s, t, q, z, alpha, beta, right, left}); });
}

QV_EXPORT Status ZemFunc257(const ComplexRecord* a, const ComplexRecord* b, Size n, std::uint32_t sort,
                            ComplexRecord* s, ComplexRecord* t, ComplexRecord* q, ComplexRecord* z,
                            ComplexRecord* alpha, ComplexRecord* beta, ComplexRecord* right, ComplexRecord* left) {
    return narrowed(n, [&](Count n) {
        return MatQz<ComplexRecord>(a, b, n, sort, {s, t, q, z, alpha, beta, right, left});
    });
}
