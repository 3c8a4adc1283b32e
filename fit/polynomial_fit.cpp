#include "fit/polynomial_fit.h"

#include <algorithm>
#include <iterator>

#include "fit/fit_errors.h"
#include "fit/general_fit.h"
#include "fit/robust_fit.h"
#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

constexpr Count kHighestPower = 25;
constexpr Count kFree = -1;

struct Samples {
    double* x;
    const double* y;
    const double* weights;
    Count n;
};

Status Solve(const double* design, const Samples& samples, Count columns, const double* y, double* coefficients,
             double* fitted, double* error, const PolynomialMethod& method) {
    switch (method.robust) {
        case PolynomialMethod::kLeastSquares: break;
        case PolynomialMethod::kLeastAbsolute:
            return FitLeastAbsoluteCore(design, samples.n, columns, y, samples.weights, coefficients, fitted, error,
                                        nullptr, method.selector, *method.iterations, method.tolerance,
                                        method.smallestError);
        case PolynomialMethod::kBisquare:
            return FitBisquareCore(design, samples.n, columns, y, const_cast<double*>(samples.weights), coefficients,
                                   fitted, error, nullptr, method.selector, method.iterations, method.tolerance, false);
    }
    return FitGeneralCore(design, samples.n, columns, y, samples.weights, coefficients, fitted, error, nullptr,
                          method.selector);
}

Status FitAllOrders(const Samples& samples, Count order, double* fitted, double* coefficients, double* error,
                    const PolynomialMethod& method) {
    const Count columns = std::min(order, kHighestPower) + 1;
    if (!ElementsFit(samples.n, columns)) return status::kOverflow;
    Block<double> vandermonde(Elements(samples.n, columns));
    if (!vandermonde) return status::kOutOfMemory;
    double* row = vandermonde;
    for (Count i = 0; i < samples.n; ++i, row += columns) {
        row[0] = 1.0;
        for (Count j = 1; j < columns; ++j) row[j] = row[j - 1] * samples.x[i];
    }
    const Status status =
        Solve(vandermonde, samples, columns, samples.y, coefficients, InPlaceIfNull(fitted, samples.x), error, method);
    if (order <= kHighestPower || status < 0) return status;
    std::fill(coefficients + kHighestPower + 1, coefficients + static_cast<std::size_t>(order) + 1, 0.0);
    return Later(status, status::kWarnOrderExceeded);
}

// Which value fixes each order of 0 to `order`, and the highest order kept.
class OrderTable {
public:
    OrderTable(const FixedCoefficients& fixed, Count order) : entries_(static_cast<std::size_t>(order) + 1) {
        if (!entries_) return;
        std::fill_n(entries_.get(), static_cast<std::size_t>(order) + 1, kFree);
        for (Count k = 0; k < fixed.count; ++k)
            if (fixed.orders[k] >= 0 && fixed.orders[k] <= order) entries_[fixed.orders[k]] = k;
        top_ = TopOf(order);
        for (Count j = 0; j <= top_; ++j) columns_ += entries_[j] == kFree;
    }

    explicit operator bool() const { return static_cast<bool>(entries_); }
    Count columns() const { return columns_; }
    // The index of the value that fixes the order, or kFree.
    Count fixedBy(Count order) const { return entries_[order]; }
    bool fits(Count order) const { return entries_[order] == kFree && order <= top_; }

private:
    // Two free orders are kept, however high the second stands.
    Count TopOf(Count order) const {
        if (order <= kHighestPower) return order;
        Count free = 0;
        for (Count j = 0; j <= order; ++j)
            if (entries_[j] == kFree && ++free == 2) return std::max(kHighestPower, j);
        return order;
    }

    Block<Count> entries_;
    Count top_ = 0, columns_ = 0;
};

// Fits the free orders to y less the fixed terms.
Status FitFreeOrders(const Samples& samples, Count order, const FixedCoefficients& fixed, const OrderTable& table,
                     double* coefficients, const PolynomialMethod& method) {
    const Count columns = table.columns();
    if (!ElementsFit(samples.n, columns)) return status::kOverflow;
    const std::size_t elements = Elements(samples.n, columns), room = Elements(samples.n, 1);
    Block<double> block(elements + room + static_cast<std::size_t>(columns));
    if (!block) return status::kOutOfMemory;
    double *design = block, *rest = design + elements, *solved = rest + room;
    double* next = design;
    for (Count i = 0; i < samples.n; ++i) {
        rest[i] = samples.y[i];
        double power = 1.0;
        for (Count j = 0; j <= order; ++j, power *= samples.x[i]) {
            if (table.fits(j))
                *next++ = power;
            else if (table.fixedBy(j) != kFree)
                rest[i] -= power * fixed.values[table.fixedBy(j)];
        }
    }
    double error = 0;
    double* const wanted = method.robust == PolynomialMethod::kLeastSquares ? nullptr : &error;
    if (Status failed = Solve(design, samples, columns, rest, solved, nullptr, wanted, method)) return failed;
    for (Count j = 0; j <= order; ++j)
        if (table.fixedBy(j) == kFree) coefficients[j] = table.fits(j) ? *solved++ : 0;
    return status::kSuccess;
}

Status FitConstrained(const Samples& samples, Count order, const FixedCoefficients& fixed, double* fitted,
                      double* coefficients, double* error, const PolynomialMethod& method) {
    const OrderTable table(fixed, order);
    if (!table) return status::kOutOfMemory;
    if (table.columns() > 0)
        if (Status failed = FitFreeOrders(samples, order, fixed, table, coefficients, method)) return failed;
    for (Count j = 0; j <= order; ++j)
        if (table.fixedBy(j) != kFree) coefficients[j] = fixed.values[table.fixedBy(j)];

    const Status warning = order > kHighestPower ? status::kWarnOrderExceeded : status::kSuccess;
    if (!fitted && !error) return warning;
    double* curve = InPlaceIfNull(fitted, samples.x);
    for (Count i = 0; i < samples.n; ++i) {
        const double x = samples.x[i];
        double value = coefficients[order];
        for (Count j = order - 1; j >= 0; --j) value = value * x + coefficients[j];
        curve[i] = value;
    }
    double unwanted = 0;
    const Status status = FitMeanSquaredError(samples.y, curve, samples.weights, samples.n, error ? error : &unwanted);
    return status < 0 ? status : warning;
}

}  // namespace

Status FitPolynomialCore(double* x, const double* y, const double* weights, Count n, Count order,
                         const FixedCoefficients& fixed, double* fitted, double* coefficients, double* meanSquaredError,
                         const PolynomialMethod& method) noexcept {
    if (order < 0 || fixed.count < 0) return status::kOrderNegative;
    if (n <= order - fixed.count) return status::kPointsNotAboveOrder;
    const Samples samples{x, y, weights, n};
    if (fixed.count == 0) return FitAllOrders(samples, order, fitted, coefficients, meanSquaredError, method);
    return FitConstrained(samples, order, fixed, fitted, coefficients, meanSquaredError, method);
}

Status FitPolynomial(double* x, const double* y, Count n, Count order, double* fitted, double* coefficients,
                     double* meanSquaredError) noexcept {
    return FitPolynomialCore(x, y, nullptr, n, order, {nullptr, nullptr, 0}, fitted, coefficients, meanSquaredError,
                             {kFitSingularValues});
}

Status FitPolynomialWeighted(double* x, const double* y, const double* weights, Count n, Count order,
                             const FixedCoefficients& fixed, std::uint32_t algorithm, double* fitted,
                             double* coefficients, double* meanSquaredError) noexcept {
    constexpr std::uint32_t kSelectors[] = {kFitSingularValues, kFitQr, kFitNormalLu, kFitNormalCholesky};
    if (algorithm >= std::size(kSelectors)) return status::kInvalidSelection;
    return FitPolynomialCore(x, y, weights, n, order, fixed, fitted, coefficients, meanSquaredError,
                             {kSelectors[algorithm]});
}

}  // namespace quorvan
