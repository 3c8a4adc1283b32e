#include "transforms/integrate.h"

#include "frame/status.h"
#include "transforms/extended.h"

namespace quorvan {
namespace {

template <int back, int ahead, class Sum>
Status RunningSum(const double* x, Count n, double factor, const double* initial, const double* final, double* out,
                  Sum sum) noexcept {
    double total = 0.0;
    ForExtendedBlocks<back, ahead>(x, n, initial, final,
                                   [&](const double* e, std::ptrdiff_t start, std::ptrdiff_t count) {
                                       for (std::ptrdiff_t i = 0; i < count; ++i) {
                                           total += sum(e + i) * factor;
                                           out[start + i] = total;
                                       }
                                   });
    return status::kSuccess;
}

}  // namespace

// The Newton-Cotes weights over 1, 2, 3 and 4 steps, each sum divided by the steps that it spans and scaled to one.
Status Integrate(const double* x, Count n, double dt, const double* initial, const double* final, IntegrationRule rule,
                 double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    switch (rule) {
        case IntegrationRule::kTrapezoid:
            return RunningSum<1, 0>(x, n, dt / 2.0, initial, final, out, [](const double* e) { return e[0] + e[-1]; });
        case IntegrationRule::kSimpson:
            return RunningSum<1, 1>(x, n, dt / 6.0, initial, final, out,
                                    [](const double* e) { return e[-1] + 4.0 * e[0] + e[1]; });
        case IntegrationRule::kSimpsonSecond:
            return RunningSum<2, 1>(x, n, dt / 8.0, initial, final, out,
                                    [](const double* e) { return e[-2] + 3.0 * e[-1] + 3.0 * e[0] + e[1]; });
        case IntegrationRule::kBoole:
            return RunningSum<2, 2>(x, n, dt / 90.0, initial, final, out, [](const double* e) {
                return 7.0 * e[-2] + 32.0 * e[-1] + 12.0 * e[0] + 32.0 * e[1] + 7.0 * e[2];
            });
    }
    return status::kInvalidSelection;
}

Status IntegrateSimpson(double* x, Count n, double dt, double initial, double final, double* out) noexcept {
    return Integrate(x, n, dt, &initial, &final, IntegrationRule::kSimpson, out ? out : x);
}

}  // namespace quorvan
