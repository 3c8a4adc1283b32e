#include "poly/integration.h"

#include <cmath>

#include "frame/status.h"

namespace quorvan {
namespace {

// The rules over one panel that starts at x; each is to be multiplied by the step.

double Simpson(const double* x) { return x[0] + 4 * x[1] + x[2]; }
double ThreeEighths(const double* x) { return 3 * x[0] + 9 * x[1] + 9 * x[2] + 3 * x[3]; }
double Boole(const double* x) { return 14 * x[0] + 64 * x[1] + 24 * x[2] + 64 * x[3] + 14 * x[4]; }

// The sum of a rule over consecutive panels of `width` intervals.
template <class Rule>
double Sum(const double* x, Count panels, Count width, const Rule& rule) {
    double sum = 0;
    for (Count p = 0; p < panels; ++p, x += width) sum += rule(x);
    return sum;
}

}  // namespace

Status IntegrateSamples(const double* x, Count n, double dt, std::uint32_t rule, double* result) noexcept {
    if (rule > 3) return status::kInvalidSelection;
    if (n < static_cast<Count>(rule) + 2) return status::kWrongDataCount;
    const double h = std::fabs(dt);
    const Count intervals = n - 1;
    // The last one, two and three intervals, where they fill no panel.
    const auto trapezoid = [&] { return (x[n - 2] + x[n - 1]) * h / 2; };
    const auto simpson = [&] { return (x[n - 3] + 4 * x[n - 2] + x[n - 1]) * h / 3; };
    const auto three_eighths = [&] { return (3 * (x[n - 4] + x[n - 1]) + 9 * (x[n - 3] + x[n - 2])) * h / 8; };

    switch (rule) {
        case 0: {
            double inner = 0;
            for (Count i = 1; i < n - 1; ++i) inner += x[i];
            *result = h * ((x[0] + x[n - 1]) / 2 + inner);
            break;
        }
        case 1:
            *result = h / 3 * Sum(x, intervals / 2, 2, Simpson);
            if (intervals % 2 == 1) *result += trapezoid();
            break;
        case 2:
            *result = h / 8 * Sum(x, intervals / 3, 3, ThreeEighths);
            if (intervals % 3 == 1) *result += trapezoid();
            if (intervals % 3 == 2) *result += simpson();
            break;
        case 3:
            *result = h / 45 * Sum(x, intervals / 4, 4, Boole);
            if (intervals % 4 == 1) *result += trapezoid();
            if (intervals % 4 == 2) *result += simpson();
            if (intervals % 4 == 3) *result += three_eighths();
            break;
    }
    return status::kSuccess;
}

}  // namespace quorvan
