#include "transforms/differentiate.h"

#include "frame/status.h"
#include "transforms/extended.h"

namespace quorvan {
namespace {

template <int back, int ahead, class Difference>
Status Differences(const double* x, Count n, double factor, const double* initial, const double* final, double* out,
                   Difference difference) noexcept {
    ForExtendedBlocks<back, ahead>(x, n, initial, final,
                                   [&](const double* e, std::ptrdiff_t start, std::ptrdiff_t count) {
                                       for (std::ptrdiff_t i = 0; i < count; ++i)
                                           out[start + i] = difference(e + i) * factor;
                                   });
    return status::kSuccess;
}

}  // namespace

Status DifferentiateMethod(double* x, Count n, double dt, const double* initial, Count nInitial, const double* final,
                           Count nFinal, std::uint32_t method, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    double* to = out ? out : x;
    switch (method) {
        case 0:
            if (nInitial < 1 || nFinal < 1) return status::kSamplesNotPositive;
            return Differences<1, 1>(x, n, 0.5 / dt, initial, final, to, [](const double* e) { return e[1] - e[-1]; });
        case 1:
            if (nInitial < 2 || nFinal < 2) return status::kSamplesBelowTwo;
            return Differences<2, 2>(x, n, 1.0 / (dt * 12.0), initial, final, to,
                                     [](const double* e) { return 8.0 * e[1] - e[2] - 8.0 * e[-1] + e[-2]; });
        case 2:
            if (nFinal < 1) return status::kSamplesNotPositive;
            return Differences<0, 1>(x, n, 1.0 / dt, initial, final, to, [](const double* e) { return e[1] - e[0]; });
        case 3:
            if (nInitial < 1) return status::kSamplesNotPositive;
            return Differences<1, 0>(x, n, 1.0 / dt, initial, final, to, [](const double* e) { return e[0] - e[-1]; });
        default: return status::kInvalidSelection;
    }
}

Status Differentiate(double* x, Count n, double dt, double initial, double final, double* out) noexcept {
    return DifferentiateMethod(x, n, dt, &initial, 1, &final, 1, 0, out);
}

}  // namespace quorvan
