// Runs a test body once for each instruction set that this machine has.
#pragma once

#include <gtest/gtest.h>

#include "frame/targets.h"

namespace quorvan::testing {

template <class Body>
void ForEachTarget(const Body& body) {
    const Target widest = ActiveTarget();
    for (Target target : {Target::kBaseline, Target::kAvx2, Target::kAvx512}) {
        if (!TargetAvailable(target)) continue;
        SCOPED_TRACE(::testing::Message() << "instruction set " << static_cast<int>(target));
        ForceTarget(target);
        body();
    }
    ForceTarget(widest);
}

}  // namespace quorvan::testing
