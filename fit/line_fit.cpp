// The models that have a closed form: the line, and the logarithm, which is a line in log x.
#include <algorithm>
#include <cmath>

#include "fit/fit_errors.h"
#include "fit/model_engines.h"
#include "frame/memory.h"

namespace quorvan {

Status CheckModelWeights(const double** weights, Count n, Count least) noexcept {
    if (!*weights) return status::kSuccess;
    Count kept = 0;
    for (Count i = 0; i < n; ++i) {
        const double w = (*weights)[i];
        if (w != w) return status::kNonFiniteInput;
        kept += w != 0;
    }
    if (kept == 0)
        *weights = nullptr;
    else if (kept < least)
        return status::kZeroNumber;
    return status::kSuccess;
}

double ChooseModelFit(Count count, const ModelCandidate& last, const ModelCandidate& before,
                      const ModelCandidate& first, double* c) noexcept {
    ModelCandidate chosen = last;
    if (last.error >= before.error && first.error >= before.error) chosen = before;
    if (before.error >= first.error && last.error >= first.error) chosen = first;
    if (chosen.coefficients != c) std::copy_n(chosen.coefficients, count, c);
    return chosen.error;
}

double FitCommonSign(const double* x, Count n) noexcept {
    Count positive = 0, negative = 0;
    for (Count i = 0; i < n; ++i) {
        positive += x[i] > 0;
        negative += x[i] < 0;
    }
    return positive == n ? 1 : negative == n ? -1 : 0;
}

Status FitLineCore(const ModelSamples& samples, const ModelOutputs& out) noexcept {
    const auto [x, y, given, n] = samples;
    if (n < LineModel::kLeastSamples) return LineModel::kTooFew;
    const double* weights = given;
    if (Status failed = CheckModelWeights(&weights, n, LineModel::kLeastSamples)) return failed;

    double sw = 0, sx = 0, sy = 0, sxy = 0, sxx = 0;
    double &slope = out.coefficients[0], &intercept = out.coefficients[1];
    if (weights) {
        double largest = 0;
        for (Count i = 0; i < n; ++i)
            if (std::fabs(weights[i]) > largest) largest = std::fabs(weights[i]);
        for (Count i = 0; i < n; ++i) {
            const double u = std::fabs(weights[i]) / largest;
            sw += u;
            sx += u * x[i];
            sy += u * y[i];
            sxy += u * x[i] * y[i];
            sxx += u * x[i] * x[i];
        }
        slope = (sy * sx - sxy * sw) / (sx * sx - sxx * sw);
        intercept = (sy - slope * sx) / sw;
    } else {
        for (Count i = 0; i < n; ++i) {
            sx += x[i];
            sy += y[i];
            sxy += x[i] * y[i];
            sxx += x[i] * x[i];
        }
        const double denominator = sx * sx - n * sxx;
        slope = (sy * sx - n * sxy) / denominator;
        intercept = (sxy * sx - sy * sxx) / denominator;
    }
    for (Count i = 0; i < n; ++i) out.fitted[i] = slope * x[i] + intercept;
    return FitMeanSquaredError(y, out.fitted, weights, n, out.residue);
}

// a log(b x) = a log(s x) + c with b = s·base^(c / a), s the sign of x.
Status FitLogarithmCore(const LogBase& base, const ModelSamples& samples, const ModelOutputs& out) noexcept {
    const auto [x, y, given, n] = samples;
    if (n < LogarithmModel::kLeastSamples) return LogarithmModel::kTooFew;
    const double* weights = given;
    if (Status failed = CheckModelWeights(&weights, n, LogarithmModel::kLeastSamples)) return failed;
    const double sign = FitCommonSign(x, n);
    if (sign == 0) return status::kValuesOfMixedSign;  // the text speaks of y: deliberate

    Block<double> logs(static_cast<std::size_t>(n));
    if (!logs) return status::kOutOfMemory;
    for (Count i = 0; i < n; ++i) logs[i] = base.Log(sign * x[i]);
    if (Status failed = FitLineCore({logs, y, weights, n}, out)) return failed;
    double* c = out.coefficients;
    c[1] = c[0] != 0 ? sign * base.Power(c[1] / c[0]) : sign;
    for (Count i = 0; i < n; ++i) out.fitted[i] = c[0] * base.Log(c[1] * x[i]);
    return FitMeanSquaredError(y, out.fitted, weights, n, out.residue);
}

}  // namespace quorvan
