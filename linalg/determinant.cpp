#include "linalg/determinant.h"

#include <limits>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/element.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/matrix_kind.h"

namespace quorvan {
namespace {

using element::Product;

template <class T>
T DiagonalProduct(const T* a, Count n) noexcept {
    T product = a[0];
    for (Count i = 1; i < n; ++i) product = Product(product, *(a += static_cast<std::size_t>(n) + 1));
    return product;
}

// The sign flips once for each row that an interchange moved.
template <class T>
Status General(T* factors, Count n, T* out) noexcept {
    Block<Count> pivots(static_cast<std::size_t>(n));
    if (!pivots) return status::kOutOfMemory;
    if (Getrf<T>(n, n, factors, n, pivots) > 0) {
        *out = T{};
        return status::kSuccess;
    }
    T determinant = DiagonalProduct<T>(factors, n);
    for (Count i = 0; i < n; ++i)
        if (pivots[i] != i + 1) determinant = element::Negative(determinant);
    *out = determinant;
    return status::kSuccess;
}

template <class T>
Status PositiveDefinite(T* factor, Count n, T* out) noexcept {
    *out = T{};
    if (Potrf<T>('L', n, factor, n) > 0) return status::kNotPositiveDefinite;
    const T product = DiagonalProduct<T>(factor, n);
    *out = Product(product, product);
    return status::kSuccess;
}

}  // namespace

template <class T>
Status MatDeterminantKind(const T* a, Count n, std::uint32_t kind, T* out) noexcept {
    *out = element::NotANumber<T>();
    if (n < 1) return status::kSamplesNotPositive;
    if (kind > kUpperTriangular) return status::kInvalidSelection;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    if (n == 2) {  // whatever the kind, deliberately
        *out = element::Difference(Product(a[0], a[3]), Product(a[1], a[2]));
        return status::kSuccess;
    }
    if (kind == kLowerTriangular || kind == kUpperTriangular) {
        *out = DiagonalProduct(a, n);
        return status::kSuccess;
    }
    ProviderBlock<T> factors = Copied(a, n, n);
    if (!factors) return status::kOutOfMemory;
    return kind == kGeneral ? General<T>(factors, n, out) : PositiveDefinite<T>(factors, n, out);
}

template <class T>
Status MatTrace(const T* a, Count n, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    T sum = a[0];
    for (Count i = 1; i < n; ++i) sum = element::Sum(sum, *(a += static_cast<std::size_t>(n) + 1));
    *out = sum;
    return status::kSuccess;
}

template Status MatDeterminantKind(const double*, Count, std::uint32_t, double*) noexcept;
template Status MatDeterminantKind(const ComplexRecord*, Count, std::uint32_t, ComplexRecord*) noexcept;
template Status MatTrace(const double*, Count, double*) noexcept;
template Status MatTrace(const ComplexRecord*, Count, ComplexRecord*) noexcept;

}  // namespace quorvan
