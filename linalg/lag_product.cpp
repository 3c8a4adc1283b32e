// Data matrices after S. M. Kay, Modern Spectral Estimation (1988), chapter 7, and L. Marple, Digital Spectral Analysis
// (1987), chapter 8: autocorrelation, prewindowed, postwindowed, covariance and modified covariance form.
#include "linalg/lag_product.h"

#include <cstring>

#include "frame/status.h"
#include "linalg/apart.h"
#include "linalg/element.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

// Which rows a method takes, and whether each comes a second time backwards.
struct DataMatrix {
    bool startsEarly, endsLate, backwards;
};
constexpr DataMatrix kMethods[] = {
    {true, true, false}, {true, false, false}, {false, true, false}, {false, false, false}, {false, false, true}};
constexpr std::uint32_t kCovariance = 3;

// The matrix is never held whole: a slice of its rows is built, its product added, and the next slice takes its place.
constexpr std::int64_t kSliceElements = 1 << 15;

// x(t), x(t-1), ..., x(t-p), zero outside x.
template <class T>
void ForwardRow(const T* x, Count n, std::int64_t t, Count p, T* row) noexcept {
    for (Count k = 0; k <= p; ++k) row[k] = t - k >= 0 && t - k < n ? x[t - k] : T{};
}

template <class T>
void BackwardRow(const T* x, std::int64_t t, Count p, T* row) noexcept {
    for (Count k = 0; k <= p; ++k) row[k] = element::Conjugate(x[t - p + k]);
}

template <class T>
class Accumulator {
public:
    Accumulator(Count columns, Count rows, T* slice, T* out) noexcept
        : columns_(columns), rows_(rows), slice_(slice), out_(out) {}

    // Where the next row goes.
    T* next() noexcept {
        if (filled_ == rows_) add();
        return slice_ + static_cast<std::size_t>(filled_++) * static_cast<std::size_t>(columns_);
    }
    // out += slice^H·slice
    void add() noexcept {
        Gemm(provider::Transposition::kConjugated, provider::Transposition::kNone, columns_, columns_, filled_, slice_,
             columns_, slice_, columns_, out_, columns_, 1.0);
        filled_ = 0;
    }

private:
    Count columns_, rows_, filled_ = 0;
    T* slice_;
    T* out_;
};

}  // namespace

template <class T>
Status MatLagProduct(const T* x, Count n, Count p, std::uint32_t method, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (p < 0) return status::kNegativeNumber;
    if ((method == kCovariance || method == kCovariance + 1) && p >= n) return status::kPointsNotAboveOrder;
    if (method >= sizeof(kMethods) / sizeof(kMethods[0])) return status::kInvalidSelection;
    if (p == INT32_MAX || !ElementsFit(p + 1, p + 1)) return status::kOverflow;

    const DataMatrix& form = kMethods[method];
    const Count columns = p + 1;
    const std::int64_t slice = kSliceElements / columns > 16 ? kSliceElements / columns : 16;
    const Apart<T> samples(x, static_cast<std::size_t>(n), out);
    ProviderBlock<T> rows(Elements(static_cast<Count>(slice), columns));
    if (!samples || !rows) return status::kOutOfMemory;
    std::memset(out, 0, Elements(columns, columns) * sizeof(T));
    Accumulator<T> product(columns, static_cast<Count>(slice), rows, out);
    const std::int64_t first = form.startsEarly ? 0 : p;
    const std::int64_t end = static_cast<std::int64_t>(n) + (form.endsLate ? p : 0);
    for (std::int64_t t = first; t < end; ++t) ForwardRow<T>(samples, n, t, p, product.next());
    for (std::int64_t t = first; form.backwards && t < end; ++t) BackwardRow<T>(samples, t, p, product.next());
    product.add();
    return status::kSuccess;
}

template Status MatLagProduct(const double*, Count, Count, std::uint32_t, double*) noexcept;
template Status MatLagProduct(const ComplexRecord*, Count, Count, std::uint32_t, ComplexRecord*) noexcept;

}  // namespace quorvan
