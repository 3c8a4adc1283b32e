#include "fit/fit_bounds.h"

#include <cmath>
#include <type_traits>

#include "fit/model_rows.h"
#include "fit/models.h"
#include "frame/arrays.h"
#include "frame/memory.h"
#include "linalg/solve.h"
#include "stats/distributions.h"

namespace quorvan {
namespace {

template <class Model>
Status CheckBand(const Model&, const BandInput& input, const double* c) {
    constexpr bool kHasWidth = std::is_same_v<Model, GaussianModel>;
    if (input.n <= Model::kCount) return kHasWidth ? status::kSamplesBelowFour : status::kSamplesBelowThree;
    if (kHasWidth && c[Model::kCount - 1] == 0) return status::kWidthNotPositive;
    if (ArrHasNonFinite(c, Model::kCount)) return status::kNonFiniteInput;
    if (!(input.level > 0 && input.level < 1)) return status::kProbabilityOutOfRange;
    if constexpr (std::is_same_v<Model, PowerModel>)
        for (Count i = 0; i < input.n; ++i)
            if (input.x[i] <= 0) return status::kNotPositive;
    return status::kSuccess;
}

// With J the derivatives at x and G = (sum of |w| J'J)⁺, the fit has the variance v s², v = J G J', and a new
// observation of weight w the variance (v + 1/|w|) s²; s² is the weighted sum of squares over n - p (G. A. F. Seber and
// C. J. Wild, Nonlinear Regression, 1989, 5.1).
template <class Model>
Status ComputeBand(const Model& model, const BandInput& input, const double* c, const BandTargets& out) {
    constexpr Count p = Model::kCount;
    if (Status failed = CheckBand(model, input, c)) return failed;
    const double *x = input.x, *y = input.y, *weights = input.weights;
    const Count n = input.n;
    const std::uint32_t type = input.type;
    Block<double> rows(static_cast<std::size_t>(p) * static_cast<std::size_t>(n));
    if (!rows) return status::kOutOfMemory;

    // The confidence band of the line takes the sign of the weights along: deliberate.
    constexpr bool kSigned = std::is_same_v<Model, LineModel>;
    const auto weight = [&](Count i) { return weights ? std::fabs(weights[i]) : 1.0; };
    double inverse[p * p] = {}, squares = 0;
    double* row = rows;
    for (Count i = 0; i < n; ++i, row += p) {
        model.Row(x[i], c, row);
        if (type == kPredictionBand) {
            const double root = std::sqrt(weight(i));
            double scaled[p];
            for (Count j = 0; j < p; ++j) scaled[j] = row[j] * root;
            AddInformation<p>(scaled, 1, inverse);
        } else {
            AddInformation<p>(row, kSigned && weights ? weights[i] : weight(i), inverse);
        }
        const double residual = model.FromRow(row, c) - y[i];
        squares += weight(i) * (residual * residual);
    }
    if (Status failed = MatPseudoInverse<double>(inverse, p, p, -1, nullptr)) return failed;
    const double variance = squares / (n - p);
    double t = 0;
    if (Status failed = DistTInverse(1 - (1 - input.level) / 2, n - p, &t)) return failed;

    row = rows;
    for (Count i = 0; i < n; ++i, row += p) {
        double v = RowVariance<p>(row, inverse);
        if (type == kPredictionBand) v += weights ? 1 / std::fabs(weights[i]) : 1;
        const double value = model.FromRow(row, c), half = t * std::sqrt(v * variance);
        out.upper[i] = value + half;
        out.lower[i] = value - half;
    }
    if (type == kPredictionBand) return status::kSuccess;
    for (Count j = 0; j < p; ++j) {
        const Count diagonal = kSigned ? p - 1 - j : j;  // the line's intercept comes first there
        *out.halfWidths[j] = t * std::sqrt(inverse[diagonal * (p + 1)]) * std::sqrt(variance);
    }
    return status::kSuccess;
}

template <class Model>
Status Band(const Model& model, const BandInput& input, const double* c, const BandTargets& out) {
    if (input.type > kPredictionBand) return status::kInvalidSelection;
    const Status status = ComputeBand(model, input, c, out);
    if (status < 0 && input.type == kConfidenceBand)
        for (Count j = 0; j < Model::kCount; ++j) *out.halfWidths[j] = 0;
    return status;
}

}  // namespace

Status FitBoundsLine(const BandInput& input, double slope, double intercept, const BandTargets& out) noexcept {
    const double c[] = {slope, intercept};
    return Band(LineModel{}, input, c, out);
}

Status FitBoundsExponential(const BandInput& input, double a, double b, const BandTargets& out) noexcept {
    const double c[] = {a, b};
    return Band(ExponentialModel{}, input, c, out);
}

Status FitBoundsPower(const BandInput& input, double a, double b, const BandTargets& out) noexcept {
    const double c[] = {a, b};
    return Band(PowerModel{}, input, c, out);
}

Status FitBoundsLogarithm(const BandInput& input, double base, double a, double b, const BandTargets& out) noexcept {
    const double c[] = {a, b};
    return Band(LogarithmModel(base), input, c, out);
}

Status FitBoundsGaussian(const BandInput& input, double amplitude, double centre, double width,
                         const BandTargets& out) noexcept {
    const double c[] = {amplitude, centre, width};
    return Band(GaussianModel{}, input, c, out);
}

}  // namespace quorvan
