// Entry of the shape of a single pulse.
#include "measure/pulse_parameters.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc142(const double* x, Size n, double* amplitude, double* level90, double* level50,
                            double* level10, double* top, double* base, double* overshoot, double* undershoot,
                            Size* delay, Size* width, Size* rise, Size* fall, double* slew) {
    return narrowed(n, [&](Count n) {
        PulseShape shape;
        const Status refused = PulseParameters(x, n, &shape);
        if (refused < 0) return refused;
        *amplitude = shape.amplitude;
        *level90 = shape.level90;
        *level50 = shape.level50;
        *level10 = shape.level10;
        *top = shape.top;
        *base = shape.base;
        *overshoot = shape.overshoot;
        *undershoot = shape.undershoot;
        *slew = shape.slew;

        // Truncated, the delay is a place in the record and the others are at most its length; NaN is neither.
        const auto within = [](double time, double end) { return time > -1 && time < end; };
        const double length = n, beyond = length + 1;
        const bool feasible = within(shape.delay, length) && within(shape.width, beyond) &&
                              within(shape.rise, beyond) && within(shape.fall, beyond);
        *delay = feasible ? static_cast<Size>(shape.delay) : 0;
        *width = feasible ? static_cast<Size>(shape.width) : 0;
        *rise = feasible ? static_cast<Size>(shape.rise) : 0;
        *fall = feasible ? static_cast<Size>(shape.fall) : 0;
        return feasible ? status::kSuccess : status::kNoFeasibleSolution;
    });
}
