// The order of the eigenvalues along the diagonal of a Schur form or of a generalised one: a stable bubble sort that
// exchanges neighbouring diagonal blocks through the provider, one exchange at a time.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/types.h"
#include "linalg/provider.h"

namespace quorvan {

enum class EigenOrder : std::uint32_t {
    kAsProduced,
    kAscendingReal,
    kDescendingReal,
    kAscendingModulus,
    kDescendingModulus
};
inline constexpr std::uint32_t kLastEigenOrder = 4;

constexpr bool OrdersByModulus(EigenOrder order) noexcept { return order >= EigenOrder::kAscendingModulus; }
constexpr bool OrdersDescending(EigenOrder order) noexcept {
    return order == EigenOrder::kDescendingReal || order == EigenOrder::kDescendingModulus;
}

// The eigenvalues (re + i·im) / beta in the order of the diagonal, and what they are compared by. In the real forms a
// pair stands in two neighbours with opposite im, and has a block of two rows; all other blocks have one.
struct Eigenvalues {
    explicit Eigenvalues(Count n) noexcept
        : size(n), storage(4 * static_cast<std::size_t>(n)), re(storage), im(at(1)), beta(at(2)), key(at(3)) {
        if (storage) std::fill(beta, beta + n, 1.0);
    }
    explicit operator bool() const noexcept { return static_cast<bool>(storage); }

    void setKey(Count i, EigenOrder order) noexcept {
        key[i] = OrdersByModulus(order) ? provider::QV_LAPACK(dlapy2)(&re[i], &im[i]) : re[i];
    }

    Count size;
    Block<double> storage;
    double *re, *im, *beta, *key;

private:
    double* at(std::size_t row) const noexcept {
        return storage ? storage + row * static_cast<std::size_t>(size) : nullptr;
    }
};

// Whether eigenvalue i must not stand before eigenvalue j, without a division: keys over betas, infinite where beta
// is 0.
inline bool OutOfOrder(const Eigenvalues& values, EigenOrder order, Count i, Count j) noexcept {
    if (OrdersDescending(order)) std::swap(i, j);
    double b1 = values.beta[i], b2 = values.beta[j];
    if (OrdersByModulus(order)) {
        b1 = std::fabs(b1);
        b2 = std::fabs(b2);
    }
    const double first = values.key[i] * b2, second = values.key[j] * b1;
    return (first > second && b1 * b2 > 0) || (second > first && b1 * b2 < 0) || (b1 == 0 && first != 0);
}

inline void Scale(double* x, std::size_t count, double factor) noexcept {
    for (std::size_t i = 0; factor != 1 && i < count; ++i) x[i] *= factor;
}
inline void Scale(ComplexRecord* x, std::size_t count, double factor) noexcept { Scale(&x->re, 2 * count, factor); }

// The provider's exchanges take what is near the smallest doubles for zero. A matrix of such elements is multiplied by
// a power of two, which is returned; any other stays, and 1 is returned.
inline double Lift(double* x, std::size_t count) noexcept {
    constexpr double kTiny = 0x1p-600, kLift = 0x1p+500;
    for (std::size_t i = 0; i < count; ++i)
        if (std::fabs(x[i]) > kTiny) return 1;
    Scale(x, count, kLift);
    return kLift;
}
// Of an n by n matrix.
inline double Lifted(double* matrix, Count n) noexcept {
    return Lift(matrix, static_cast<std::size_t>(n) * static_cast<std::size_t>(n));
}
inline double Lifted(ComplexRecord* matrix, Count n) noexcept {
    return Lift(&matrix->re, 2 * static_cast<std::size_t>(n) * static_cast<std::size_t>(n));
}

// Makes two real eigenvalues of each pair whose imaginary part is rounding alone, both beside its real part and beside
// all eigenvalues together. `t` is column-major, quasi-triangular.
inline void FlattenPairs(Eigenvalues& values, double* t) noexcept {
    const Count n = values.size;
    double sum = 0;
    for (Count i = 0; i < n; ++i) sum += std::fabs(values.re[i]) + std::fabs(values.im[i]);
    for (Count i = 0; i + 1 < n; ++i) {
        const double im = values.im[i];
        if (im == 0) continue;
        if (std::fabs(im / values.re[i]) <= n * kEpsilon && std::fabs(im) <= sum * kEpsilon) {
            // Both elements beside the diagonal are cleared, deliberately, however large the upper one is.
            const auto order = static_cast<std::size_t>(n), row = static_cast<std::size_t>(i);
            values.im[i] = values.im[i + 1] = 0;
            t[row + 1 + row * order] = t[row + (row + 1) * order] = 0;
        }
        ++i;
    }
}

// Form: `Count exchange(Count first, Count second)` exchanges the neighbouring blocks that start at these rows and
// returns the provider's info; kPairs says whether blocks of two rows exist, and then `bool joined(Count row)` whether
// this row and the next are one block, and `void reread(Count row)` takes a single eigenvalue from the diagonal.
//
// Returns 0, or the info of an exchange that was refused; what was exchanged before stays exchanged.
template <class Form>
Count SortEigenvalues(Eigenvalues& values, EigenOrder order, Form& form) noexcept {
    const Count n = values.size;
    const auto size_at = [&](Count row) { return Form::kPairs && values.im[row] != 0 ? 2 : 1; };
    // Rounding can split a pair of nearly equal eigenvalues while it moves.
    const auto split = [&](Count row) {
        if (!Form::kPairs || size_at(row) == 1 || form.joined(row)) return false;
        for (Count i = row; i < row + 2; ++i) {
            form.reread(i);
            values.setKey(i, order);
        }
        return true;
    };

    for (Count i = 0; i < n; ++i) values.setKey(i, order);
    Count end = n;  // blocks from here on are in place
    while (end > 0) {
        Count row = 0;
        bool restart = false;
        while (row + size_at(row) < end) {
            const Count first = size_at(row), second = size_at(row + first);
            if (!OutOfOrder(values, order, row, row + first)) {
                row += first;
                continue;
            }
            if (const Count info = form.exchange(row, row + first); info != 0) return info;
            for (double* array : {values.re, values.im, values.beta, values.key})
                std::rotate(array + row, array + row + first, array + row + first + second);
            const bool upper = split(row), lower = split(row + second);
            restart = restart || upper || lower;
            row += second;
        }
        end = restart ? n : row;
    }
    return 0;
}

}  // namespace quorvan
