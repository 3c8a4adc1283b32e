#include "linalg/qz.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/complex.h"
#include "linalg/decompositions.h"
#include "linalg/eigen_order.h"
#include "linalg/eigenvectors.h"
#include "linalg/element.h"
#include "linalg/info.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

// The generalised Schur form while it is worked on, column-major.
template <class T>
struct Pencil {
    static constexpr bool kPairs = !kIsComplex<T>;

    explicit Pencil(Count n) noexcept : n(n), values(n) {}

    Count n;
    ProviderBlock<T> s, t, q, z;  // q and z may be null
    ProviderBlock<T> work;        // of the exchanges
    Count lwork = 0;
    Eigenvalues values;

    Count exchange(Count first, Count second) noexcept;
    bool joined(Count row) const noexcept { return RealPart(s[at(row) + 1]) != 0; }
    // With a beta that is not negative, as everywhere.
    void reread(Count row) noexcept {
        const double beta = RealPart(t[at(row)]), sign = beta < 0 ? -1 : 1;
        values.re[row] = sign * RealPart(s[at(row)]);
        values.im[row] = 0;
        values.beta[row] = sign * beta;
    }

private:
    std::size_t at(Count row) const noexcept {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(n) + static_cast<std::size_t>(row);
    }
};

template <>
Count Pencil<double>::exchange(Count first, Count second) noexcept {
    return Tgexc(n, s.get(), t.get(), q.get(), z.get(), second + 1, first + 1, work.get(), lwork);
}

template <>
Count Pencil<ComplexRecord>::exchange(Count first, Count second) noexcept {
    return Tgexc(n, s.get(), t.get(), q.get(), z.get(), second + 1, first + 1);
}

// In one call.
Status Factor(const double* a, const double* b, Pencil<double>& pencil, bool wantQ, bool wantZ) noexcept {
    const Count n = pencil.n;
    pencil.s = Transposed(a, n, n);
    pencil.t = Transposed(b, n, n);
    if (wantQ) pencil.q = ProviderBlock<double>(Elements(n, n));
    if (wantZ) pencil.z = ProviderBlock<double>(Elements(n, n));
    if (!pencil.s || !pencil.t || (wantQ && !pencil.q) || (wantZ && !pencil.z) || !pencil.values)
        return status::kOutOfMemory;
    Count info = 0;
    const Status memory = Queried<double>(&info, [&](double* work, Count lwork) {
        return Gges(n, pencil.s.get(), pencil.t.get(), pencil.values.re, pencil.values.im, pencil.values.beta,
                    pencil.q.get(), pencil.z.get(), work, lwork);
    });
    return memory != status::kSuccess ? memory : StatusOf(info, info::kEigenvalues);
}

Status Iterate(Pencil<double>& pencil) noexcept {
    Count info = 0;
    const Status memory = Queried<double>(&info, [&](double* work, Count lwork) {
        return Hgeqz(pencil.n, pencil.s.get(), pencil.t.get(), pencil.values.re, pencil.values.im, pencil.values.beta,
                     pencil.q.get(), pencil.z.get(), work, lwork);
    });
    return memory != status::kSuccess ? memory : StatusOf(info, info::kEigenvalues);
}

Status Iterate(Pencil<ComplexRecord>& pencil) noexcept {
    const auto order = static_cast<std::size_t>(pencil.n);
    const ProviderBlock<ComplexRecord> alpha(order), beta(order);
    const Block<double> rwork(order);
    if (!alpha || !beta || !rwork) return status::kOutOfMemory;
    Count info = 0;
    const Status memory = Queried<ComplexRecord>(&info, [&](ComplexRecord* work, Count lwork) {
        return Hgeqz(pencil.n, pencil.s.get(), pencil.t.get(), alpha.get(), beta.get(), pencil.q.get(), pencil.z.get(),
                     work, lwork, rwork.get());
    });
    if (memory != status::kSuccess) return memory;
    for (std::size_t i = 0; i < order; ++i) {
        pencil.values.re[i] = alpha[i].re;
        pencil.values.im[i] = alpha[i].im;
        pencil.values.beta[i] = beta[i].re;  // the provider makes it real and not negative
    }
    return StatusOf(info, info::kEigenvalues);
}

// In steps: B = Q1·R, A := Q1^H·A, then (A, R) to Hessenberg-triangular and to Schur form.
template <class T>
Status FactorInSteps(const T* a, const T* b, Pencil<T>& pencil) noexcept {
    const Count n = pencil.n;
    ProviderBlock<T> rows(Room<T>(n, n));
    pencil.q = ProviderBlock<T>(Room<T>(n, n));
    pencil.z = ProviderBlock<T>(Room<T>(n, n));
    pencil.t = Copied(b, n, n);
    pencil.s = ProviderBlock<T>(Room<T>(n, n));
    if (!rows || !pencil.s || !pencil.t || !pencil.q || !pencil.z || !pencil.values) return status::kOutOfMemory;

    T* q1 = rows.get();
    if (const Status status = MatQr<T>(pencil.t, n, n, false, q1, nullptr); status != status::kSuccess) return status;
    TransposeTo(pencil.t.get(), n, n, pencil.s.get());  // R
    std::swap(pencil.s, pencil.t);
    Gemm(kConjugation<T>, provider::Transposition::kNone, n, n, n, q1, n, a, n, pencil.z.get(), n);
    TransposeTo(pencil.z.get(), n, n, pencil.s.get());
    TransposeTo(q1, n, n, pencil.q.get());
    Gghrd(n, pencil.s.get(), pencil.t.get(), pencil.q.get(), pencil.z.get());  // fails on illegal arguments only
    return Iterate(pencil);
}

// The modulus of a diagonal element, and what turns the element into it.
double Modulus(double d) noexcept { return std::fabs(d); }
double Modulus(ComplexRecord d) noexcept { return provider::QV_LAPACK(dlapy2)(&d.re, &d.im); }
double Turn(double d, double) noexcept { return d < 0 ? -1.0 : 1.0; }
ComplexRecord Turn(ComplexRecord d, double modulus) noexcept { return {d.re / modulus, -(d.im / modulus)}; }

// Exchanges leave diagonal elements of T that are negative or complex. As from the factorisation, they become real and
// not negative: the rows of S and T turn, the columns of Q turn back.
template <class T>
void MakeDiagonalPositive(Pencil<T>& pencil) noexcept {
    const auto n = static_cast<std::size_t>(pencil.n);
    for (std::size_t k = 0; k < n; ++k) {
        T& diagonal = pencil.t[k + k * n];
        const double modulus = Modulus(diagonal);
        const T positive = element::Scaled(element::One<T>(), modulus);
        if (element::Equal(diagonal, positive)) continue;
        const T turn = Turn(diagonal, modulus), back = element::Conjugate(turn);
        // From the column before the diagonal on: the row may be the second of a pair.
        for (std::size_t j = k == 0 ? 0 : k - 1; j < n; ++j) {
            pencil.s[k + j * n] = element::Product(pencil.s[k + j * n], turn);
            pencil.t[k + j * n] = element::Product(pencil.t[k + j * n], turn);
        }
        diagonal = positive;
        for (std::size_t i = 0; pencil.q && i < n; ++i)
            pencil.q[i + k * n] = element::Product(pencil.q[i + k * n], back);
    }
}

template <class T>
Status Sort(Pencil<T>& pencil, EigenOrder order) noexcept {
    if (order == EigenOrder::kAsProduced) return status::kSuccess;
    const double liftS = Lifted(pencil.s.get(), pencil.n), liftT = Lifted(pencil.t.get(), pencil.n);
    Scale(pencil.values.re, 2 * static_cast<std::size_t>(pencil.n), liftS);  // and im, behind it
    Scale(pencil.values.beta, static_cast<std::size_t>(pencil.n), liftT);
    if constexpr (!kIsComplex<T>) {
        FlattenPairs(pencil.values, pencil.s);
        pencil.lwork = WorkspaceSize<T>([&](T* work, Count query) {
            Tgexc(pencil.n, pencil.s.get(), pencil.t.get(), pencil.q.get(), pencil.z.get(), 1, 1, work, query);
        });
        pencil.work = ProviderBlock<T>(static_cast<std::size_t>(pencil.lwork));
        if (!pencil.work) return status::kOutOfMemory;
    }
    const Count info = SortEigenvalues(pencil.values, order, pencil);
    MakeDiagonalPositive(pencil);
    Scale(pencil.s.get(), Elements(pencil.n, pencil.n), 1 / liftS);
    Scale(pencil.t.get(), Elements(pencil.n, pencil.n), 1 / liftT);
    Scale(pencil.values.re, 2 * static_cast<std::size_t>(pencil.n), 1 / liftS);
    Scale(pencil.values.beta, static_cast<std::size_t>(pencil.n), 1 / liftT);
    return StatusOf(info, {status::kAlgorithmFailure, status::kEigenvaluesTooClose});
}

void StoreVectors(const double* columns, const double* im, Count n, ComplexRecord* out) noexcept {
    ExpandVectors(columns, im, n, out);
}
void StoreVectors(const ComplexRecord* columns, const double*, Count n, ComplexRecord* out) noexcept {
    TransposeTo(columns, n, n, out);
}

void StoreBeta(const double* beta, Count n, double* out) noexcept { std::copy(beta, beta + n, out); }
void StoreBeta(const double* beta, Count n, ComplexRecord* out) noexcept {
    for (Count i = 0; i < n; ++i) out[i] = {beta[i], 0.0};
}

// The factor in `block` becomes vectors there; where it is wanted as well, a copy does.
template <class T>
ProviderBlock<T> StartOfVectors(ProviderBlock<T>& block, Count n, bool wanted) noexcept {
    return wanted ? Copied(block.get(), n, n) : std::move(block);
}

// The vectors, and then all results at once.
template <class T>
Status Finish(Pencil<T>& pencil, const QzResults<T>& results) noexcept {
    const Count n = pencil.n;
    ProviderBlock<T> left, right;
    if (results.left) left = StartOfVectors(pencil.q, n, results.q);
    if (results.right) right = StartOfVectors(pencil.z, n, results.z);
    if ((results.left && !left) || (results.right && !right)) return status::kOutOfMemory;
    if (left || right) {
        const ProviderBlock<T> work((kIsComplex<T> ? 2 : 6) * static_cast<std::size_t>(n));
        const Block<double> rwork = RealWork<T>(2 * static_cast<std::size_t>(n));
        if (!work || !rwork) return status::kOutOfMemory;
        const Count info = Tgevc(n, pencil.s.get(), pencil.t.get(), left.get(), right.get(), work.get(), rwork.get());
        if (info != 0) return StatusOf(info, info::kEigenvalues);
    }
    if (results.s) TransposeTo(pencil.s.get(), n, n, results.s);
    if (results.t) TransposeTo(pencil.t.get(), n, n, results.t);
    if (results.q) TransposeTo(pencil.q.get(), n, n, results.q);
    if (results.z) TransposeTo(pencil.z.get(), n, n, results.z);
    JoinValues(pencil.values.re, pencil.values.im, n, results.alpha);
    StoreBeta(pencil.values.beta, n, results.beta);
    if (results.left) StoreVectors(left.get(), pencil.values.im, n, results.left);
    if (results.right) StoreVectors(right.get(), pencil.values.im, n, results.right);
    return status::kSuccess;
}

template <class T>
Status SolveInSteps(Pencil<T>& pencil, const T* a, const T* b, EigenOrder order) noexcept {
    const Status status = FactorInSteps(a, b, pencil);
    return status != status::kSuccess ? status : Sort(pencil, order);
}

Status Solve(const ComplexRecord* a, const ComplexRecord* b, Count n, EigenOrder order,
             const QzResults<ComplexRecord>& results) noexcept {
    Pencil<ComplexRecord> pencil(n);
    const Status status = SolveInSteps(pencil, a, b, order);
    return status != status::kSuccess ? status : Finish(pencil, results);
}

// A sort that is refused may succeed on the form that the steps give.
Status Solve(const double* a, const double* b, Count n, EigenOrder order, const QzResults<double>& results) noexcept {
    Pencil<double> pencil(n);
    const bool wantQ = results.q || results.left, wantZ = results.z || results.right;
    if (const Status status = Factor(a, b, pencil, wantQ, wantZ); status != status::kSuccess) return status;
    const Status sorted = Sort(pencil, order);
    if (sorted == status::kSuccess) return Finish(pencil, results);
    if (sorted != status::kEigenvaluesTooClose) return sorted;

    Pencil<double> retry(n);
    const Status retried = SolveInSteps(retry, a, b, order);
    if (retried == status::kSuccess) return Finish(retry, results);
    if (retried != status::kTooManyIterations) return retried;
    return Later(Finish(pencil, results), status::kWarnNotReordered);  // the first form stands, as far as it was sorted
}

ComplexRecord Quotient(ComplexRecord alpha, double beta) noexcept { return {alpha.re / beta, alpha.im / beta}; }
ComplexRecord Quotient(ComplexRecord alpha, ComplexRecord beta) noexcept { return CxDivide(alpha, beta); }

}  // namespace

template <class T>
Status MatQz(const T* a, const T* b, Count n, std::uint32_t order, const QzResults<T>& results) noexcept {
    if (order > kLastEigenOrder) return status::kInvalidSelection;
    if (n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n)) || MatScreen(b, Elements(n, n))) return status::kNonFiniteInput;
    return Solve(a, b, n, EigenOrder{order}, results);
}

template <class T>
Status MatEigenGeneralised(const T* a, const T* b, Count n, ComplexRecord* values, ComplexRecord* right,
                           ComplexRecord* left) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(n, n)) return status::kOverflow;
    const Block<T> beta(static_cast<std::size_t>(n));
    if (!beta) return status::kOutOfMemory;
    const QzResults<T> results{nullptr, nullptr, nullptr, nullptr, values, beta, right, left};
    const Status status = MatQz(a, b, n, 0, results);
    if (status < 0) return status;
    for (Count i = 0; i < n; ++i) values[i] = Quotient(values[i], beta[i]);
    return status;
}

template Status MatQz(const double*, const double*, Count, std::uint32_t, const QzResults<double>&) noexcept;
template Status MatQz(const ComplexRecord*, const ComplexRecord*, Count, std::uint32_t,
                      const QzResults<ComplexRecord>&) noexcept;
template Status MatEigenGeneralised(const double*, const double*, Count, ComplexRecord*, ComplexRecord*,
                                    ComplexRecord*) noexcept;
template Status MatEigenGeneralised(const ComplexRecord*, const ComplexRecord*, Count, ComplexRecord*, ComplexRecord*,
                                    ComplexRecord*) noexcept;

}  // namespace quorvan
