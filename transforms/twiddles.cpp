#include "transforms/twiddles.h"

#include <cmath>

namespace quorvan {

Rotation::Rotation(double angle) noexcept {
    const double s = std::sin(angle / 2);
    versine = s * (2 * s);
    sine = std::sin(angle);
}

void UnitCircle(double angle, bool startTurned, Count count, double* cosines, double* sines) noexcept {
    const Rotation turn(angle);
    const double d = turn.versine, t = turn.sine;
    double c = startTurned ? 1 - d : 1, w = startTurned ? -t : 0;
    for (Count k = 0; k < count; ++k) {
        cosines[k] = c;
        sines[k] = w;
        const double next = c - (c * d + (-t) * w);
        w = w - (w * d - (-t) * c);
        c = next;
    }
}

void StageTwiddles(double theta, Count f, Count rows, double* cosines, double* sines) noexcept {
    constexpr Count kMaxColumns = 64;  // the recurrences of this many r run side by side
    double versine[kMaxColumns], sine[kMaxColumns];
    const Count width = f - 1;
    if (width > kMaxColumns) {  // a large prime factor: column by column
        for (Count r = 1; r <= width; ++r) {
            const Rotation turn(r * theta);
            const double d = turn.versine, t = turn.sine;
            double c = 1 - d, w = -t;
            for (Size j = 0; j < rows; ++j) {
                cosines[j * width + r - 1] = c;
                sines[j * width + r - 1] = w;
                const double next = c - (c * d + (-t) * w);
                w = w - (w * d - (-t) * c);
                c = next;
            }
        }
        return;
    }
    for (Count r = 1; r <= width; ++r) {
        const Rotation turn(r * theta);
        versine[r - 1] = turn.versine;
        sine[r - 1] = turn.sine;
        cosines[r - 1] = 1 - turn.versine;
        sines[r - 1] = -turn.sine;
    }
    kTwiddleLoops().advance(cosines, sines, width, rows, versine, sine);
}

}  // namespace quorvan
