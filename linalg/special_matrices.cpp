#include "linalg/special_matrices.h"

#include <cstring>

#include "frame/status.h"
#include "linalg/apart.h"
#include "linalg/element.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

template <class T>
void Clear(Count m, Count n, T* out) noexcept {
    std::memset(out, 0, Elements(m, n) * sizeof(T));
}

template <class T>
Status Identity(Count size, T* out) noexcept {
    if (size < 1) return status::kSamplesNotPositive;
    Clear(size, size, out);
    for (Count i = 0; i < size; ++i, out += size) out[i] = element::One<T>();
    return status::kSuccess;
}

template <class T>
Status Diagonal(const T* diagonal, Count n, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const Apart<T> v(diagonal, static_cast<std::size_t>(n), out);
    if (!v) return status::kOutOfMemory;
    Clear(n, n, out);
    for (Count i = 0; i < n; ++i, out += n) out[i] = v[i];
    return status::kSuccess;
}

// The diagonal is that of the first column, deliberately, where the two vectors differ in it.
template <class T>
Status Toeplitz(const T* firstColumn, Count m, const T* firstRow, Count n, T* out) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    const Apart<T> column(firstColumn, static_cast<std::size_t>(m), out),
        row(firstRow, static_cast<std::size_t>(n), out);
    if (!column || !row) return status::kOutOfMemory;
    for (Count i = 0; i < m; ++i, out += n)
        for (Count j = 0; j < n; ++j) out[j] = j <= i ? column[i - j] : row[j - i];
    return status::kSuccess;
}

template <class T>
Status Vandermonde(const T* nodes, Count n, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const Apart<T> v(nodes, static_cast<std::size_t>(n), out);
    if (!v) return status::kOutOfMemory;
    for (Count i = 0; i < n; ++i, out += n) {
        out[n - 1] = element::One<T>();
        for (Count j = n - 2; j >= 0; --j) out[j] = element::Product(out[j + 1], v[i]);
    }
    return status::kSuccess;
}

// Of the polynomial with these coefficients, the highest power first: its roots are the eigenvalues.
template <class T>
Status Companion(const T* coefficients, Count length, T* out) noexcept {
    if (length < 2) return status::kSamplesBelowTwo;
    const Apart<T> c(coefficients, static_cast<std::size_t>(length), out);
    if (!c) return status::kOutOfMemory;
    const Count n = length - 1;
    Clear(n, n, out);
    for (Count k = 0; k < n; ++k) out[k] = element::Quotient(element::Negative(c[k + 1]), c[0]);
    for (Count i = 1; i < n; ++i)
        out[static_cast<std::size_t>(i) * static_cast<std::size_t>(n) + i - 1] = element::One<T>();
    return status::kSuccess;
}

}  // namespace

template <class T>
Status MatBuildSpecial(std::uint32_t type, Count size, const T* first, Count firstLength, const T* second,
                       Count secondLength, T* out) noexcept {
    switch (type) {
        case kIdentityMatrix: return Identity(size, out);
        case kDiagonalMatrix: return Diagonal(first, firstLength, out);
        case kToeplitzMatrix: return Toeplitz(first, firstLength, second, secondLength, out);
        case kVandermondeMatrix: return Vandermonde(first, firstLength, out);
        case kCompanionMatrix: return Companion(first, firstLength, out);
        default: return status::kInvalidSelection;
    }
}

template Status MatBuildSpecial(std::uint32_t, Count, const double*, Count, const double*, Count, double*) noexcept;
template Status MatBuildSpecial(std::uint32_t, Count, const ComplexRecord*, Count, const ComplexRecord*, Count,
                                ComplexRecord*) noexcept;

}  // namespace quorvan
