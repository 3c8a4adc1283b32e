#include "linalg/schur.h"

#include "linalg/eigen_order.h"
#include "linalg/eigenvectors.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

// The Schur form while it is worked on, column-major.
template <class T>
struct SchurForm {
    static constexpr bool kPairs = !kIsComplex<T>;

    Count n;
    ProviderBlock<T> t, q, work;  // q is null without vectors
    Eigenvalues values;

    Count factor(EigenSelection<T> select, Status* memory) noexcept;
    Count exchange(Count first, Count second) noexcept;
    bool joined(Count row) const noexcept { return RealPart(t[below(row)]) != 0; }
    void reread(Count row) noexcept {
        values.re[row] = RealPart(t[below(row) - 1]);
        values.im[row] = 0;
    }

private:
    std::size_t below(Count row) const noexcept {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(n) + static_cast<std::size_t>(row) + 1;
    }
};

template <>
Count SchurForm<double>::factor(provider::SelectReal select, Status* memory) noexcept {
    const Block<Count> bwork(select ? static_cast<std::size_t>(n) : 0);
    Count info = 0;
    *memory = !bwork ? status::kOutOfMemory : Queried<double>(&info, [&](double* area, Count lwork) {
        return Gees(q ? 'V' : 'N', select, n, t.get(), values.re, values.im, q.get(), area, lwork, bwork.get());
    });
    return info;
}

template <>
Count SchurForm<ComplexRecord>::factor(provider::SelectComplex select, Status* memory) noexcept {
    const auto order = static_cast<std::size_t>(n);
    const Block<Count> bwork(select ? order : 0);
    const Block<double> rwork(order);
    const ProviderBlock<ComplexRecord> found(order);
    Count info = 0;
    *memory = !bwork || !rwork || !found ? status::kOutOfMemory
                                         : Queried<ComplexRecord>(&info, [&](ComplexRecord* area, Count lwork) {
                                               return Gees(q ? 'V' : 'N', select, n, t.get(), found.get(), q.get(),
                                                           area, lwork, rwork.get(), bwork.get());
                                           });
    if (*memory != status::kSuccess || info != 0) return info;
    for (Count i = 0; i < n; ++i) {
        values.re[i] = found[i].re;
        values.im[i] = found[i].im;
    }
    return info;
}

template <>
Count SchurForm<double>::exchange(Count first, Count second) noexcept {
    return Trexc(n, t.get(), q.get(), second + 1, first + 1, work.get());
}

template <>
Count SchurForm<ComplexRecord>::exchange(Count first, Count second) noexcept {
    return Trexc(n, t.get(), q.get(), second + 1, first + 1);
}

Status StatusOfSchur(Count info, Count n, bool selected) noexcept {
    if (info == 0) return status::kSuccess;
    if (selected && info == n + 1) return status::kEigenvaluesTooClose;
    if (selected && info == n + 2) return status::kReorderingChangedComplex;
    return status::kTooManyIterations;
}

}  // namespace

template <class T>
Status MatSchur(const T* a, Count n, std::uint32_t order, T* vectors, T* t, ComplexRecord* values,
                EigenSelection<T> select) noexcept {
    if (order > kLastEigenOrder) return status::kInvalidSelection;
    if (n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    SchurForm<T> form{n, Transposed(a, n, n), {}, ProviderBlock<T>(static_cast<std::size_t>(n)), Eigenvalues(n)};
    if (vectors) form.q = ProviderBlock<T>(Room<T>(n, n));
    if (!form.t || !form.work || !form.values || (vectors && !form.q)) return status::kOutOfMemory;

    Status memory = status::kSuccess;
    const Count info = form.factor(select, &memory);
    if (memory != status::kSuccess) return memory;
    if (const Status failure = StatusOfSchur(info, n, select != nullptr); failure != status::kSuccess) return failure;

    Status status = status::kSuccess;
    if (order != 0) {
        const double lift = Lifted(form.t.get(), n);
        Scale(form.values.re, 2 * static_cast<std::size_t>(n), lift);  // and im, behind it
        if constexpr (SchurForm<T>::kPairs) FlattenPairs(form.values, form.t);
        if (SortEigenvalues(form.values, EigenOrder{order}, form) != 0) status = status::kWarnNotReordered;
        Scale(form.t.get(), Elements(n, n), 1 / lift);
        Scale(form.values.re, 2 * static_cast<std::size_t>(n), 1 / lift);
    }
    TransposeTo(form.t.get(), n, n, t);
    if (vectors) TransposeTo(form.q.get(), n, n, vectors);
    JoinValues(form.values.re, form.values.im, n, values);
    return status;
}

template Status MatSchur(const double*, Count, std::uint32_t, double*, double*, ComplexRecord*,
                         provider::SelectReal) noexcept;
template Status MatSchur(const ComplexRecord*, Count, std::uint32_t, ComplexRecord*, ComplexRecord*, ComplexRecord*,
                         provider::SelectComplex) noexcept;

}  // namespace quorvan
