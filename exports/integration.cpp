// Entry of the integration of samples.
#include "poly/integration.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc230(const double* x, Size n, double dt, std::uint32_t rule, double* result) {
    return narrowed(n, [&](Count n) { return IntegrateSamples(x, n, dt, rule, result); });
}
