// Entries of the probability distributions. There is no size to narrow.
#include "stats/distributions.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "stats/error_function.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc70(double x, double* out) { return DistErf(x, out); }

QV_EXPORT Status ZemFunc71(double x, double* out) { return DistErfc(x, out); }

QV_EXPORT Status ZemFunc134(double x, double* out) { return DistNormalCdf(x, out); }

QV_EXPORT Status ZemFunc106(double p, double* out) { return DistNormalInverse(p, out); }

QV_EXPORT Status ZemFunc181(double t, std::int32_t dof, double* out) { return DistTCdf(t, dof, out); }

QV_EXPORT Status ZemFunc107(double p, std::int32_t dof, double* out) { return DistTInverse(p, dof, out); }

QV_EXPORT Status ZemFunc190(double x, std::int32_t dof, double* out) { return DistChiSquareCdf(x, dof, out); }

QV_EXPORT Status ZemFunc108(double p, std::int32_t dof, double* out) { return DistChiSquareInverse(p, dof, out); }

QV_EXPORT Status ZemFunc83(double x, std::int32_t dof1, std::int32_t dof2, double* out) {
    return DistFCdf(x, dof1, dof2, out);
}

QV_EXPORT Status ZemFunc104(double p, std::int32_t dof1, std::int32_t dof2, double* out) {
    return DistFInverse(p, dof1, dof2, out);
}
