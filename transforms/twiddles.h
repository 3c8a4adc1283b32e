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

// The twiddles of a stage of f blocks of length m, theta = 2 pi / (f m): row j of m - 1 holds W(r, j + 1) for r = 1 to
// f - 1.
void StageTwiddles(double theta, Count f, Count m, double* cosines, double* sines) noexcept;

// The same for f up to kMaxBlockedFactor, column 0 included, in the order in which the stage kernels take their blocks
// of columns: for each block, for each r, the cosines of its lanes and then the sines. Lanes beyond column m - 1 go on
// turning.
inline constexpr Count kMaxBlockedFactor = 50;
void BlockedTwiddles(double theta, Count f, Count m, double* out) noexcept;

struct TwiddleLoops {
    // From the rotations of r = 1 to `count`, in arrays of kTwiddleRoom.
    void (*rows)(const double* versine, const double* sine, Count count, Count m, double* cosines, double* sines);
    void (*blocked)(const double* versine, const double* sine, Count count, Count m, double* out);
};
QV_DECLARE_TARGETS(TwiddleLoops, kTwiddleLoops)

// kMaxBlockedFactor - 1 rotations in whole registers of the widest instruction set.
inline constexpr Count kTwiddleRoom = 56;

}  // namespace quorvan
