// One facility for run-time choice of the instruction set.
//
// A unit named *.target.cpp is compiled once for each set, with QV_TARGET naming the namespace that its tables go
// to. Its header declares the table once:
//
//     struct ArrayLoops { void (*add)(const double*, const double*, Count, double*); };
//     QV_DECLARE_TARGETS(ArrayLoops, kArrayLoops)
//
// and callers write kArrayLoops().add(...). A unit of this kind keeps everything else in an anonymous namespace and
// instantiates nothing of the standard library: an inline function compiled for a wide set must never be the copy
// that the linker keeps for all.
#pragma once

// For a small function in a header that such units include too: it belongs to the instruction set of its caller, and no
// copy of its own ever reaches the linker.
#define QV_INLINE inline __attribute__((always_inline))

namespace quorvan {

enum class Target { kBaseline, kAvx2, kAvx512 };

// The widest set that this machine has, or what a test has forced.
Target ActiveTarget() noexcept;

// Whether this build has the set and this machine can run it.
bool TargetAvailable(Target target) noexcept;

// For tests: every later choice takes this set. Plans that exist keep theirs.
void ForceTarget(Target target) noexcept;

template <class Table>
const Table& ForTarget(const Table& baseline, const Table& avx2, const Table& avx512) noexcept {
    switch (ActiveTarget()) {
        case Target::kAvx512: return avx512;
        case Target::kAvx2: return avx2;
        default: return baseline;
    }
}

#if defined(QUORVAN_WIDE_TARGETS)
#define QV_DECLARE_TARGETS(Table, name) \
    namespace baseline {                \
    extern const Table name;            \
    }                                   \
    namespace avx2 {                    \
    extern const Table name;            \
    }                                   \
    namespace avx512 {                  \
    extern const Table name;            \
    }                                   \
    inline const Table& name() noexcept { return ForTarget(baseline::name, avx2::name, avx512::name); }
#else
#define QV_DECLARE_TARGETS(Table, name) \
    namespace baseline {                \
    extern const Table name;            \
    }                                   \
    inline const Table& name() noexcept { return baseline::name; }
#endif

}  // namespace quorvan
