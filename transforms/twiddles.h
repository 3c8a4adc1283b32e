// Tables of trigonometric values by recurrence: two multiply-adds an entry, two sines a column.
//
// With d = 1 - cos a and t = sin a, the point (c, w) of the unit circle turns by -a as
//     c' = c - (c d + (-t) w),   w' = w - (w d - (-t) c).
// Nothing here fuses products and sums: the tables are the same to the last bit on every machine.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// The increments of the angle a: the versed sine without cancellation, and the sine.
struct Rotation {
    double versine, sine;
    explicit Rotation(double angle) noexcept;
};

// `count` points, each turned by one more `angle`: the first one is (1, 0), or (1, 0) turned once.
void UnitCircle(double angle, bool startTurned, Count count, double* cosines, double* sines) noexcept;

// The twiddles of a stage: row j of `rows` holds W(r, j + 1) for r = 1 to f - 1, theta = 2 pi / (f m).
void StageTwiddles(double theta, Count f, Count rows, double* cosines, double* sines) noexcept;

struct TwiddleLoops {
    // Fills rows 1 to rows - 1 from the row before each, `count` entries a row.
    void (*advance)(double* cosines, double* sines, Count count, Count rows, const double* versine, const double* sine);
};
QV_DECLARE_TARGETS(TwiddleLoops, kTwiddleLoops)

}  // namespace quorvan
