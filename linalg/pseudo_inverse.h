// The pseudo-inverse through the economy singular value decomposition; T is double or ComplexRecord.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The limit that a singular value must exceed to count.
struct Cutoff {
    enum Scale { kAbsolute, kRelative };  // relative to max(m, n)·s(0)
    double tolerance;
    Scale scale;

    double limit(Count m, Count n, double largest) const noexcept {
        return scale == kAbsolute ? tolerance : (m < n ? n : m) * largest * tolerance;
    }
};

// The tolerance of a caller: absolute, a negative one the default max(m, n)·s(0)·epsilon.
inline Cutoff CutoffOf(double tolerance) noexcept {
    return tolerance < 0 ? Cutoff{kEpsilon, Cutoff::kRelative} : Cutoff{tolerance, Cutoff::kAbsolute};
}

// out = V·S⁺·U^H, n by m, and the number of singular values above the limit. `out` may be A.
template <class T>
Status PseudoInverse(const T* a, Count m, Count n, Cutoff cutoff, T* out, Count* rank) noexcept;

}  // namespace quorvan
