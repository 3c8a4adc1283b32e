// Entries of narrowband FIR filters.
#include "filters/narrowband.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT QvFirNarrowband* ZemFunc491(void) { return FirNarrowbandCreate(); }

QV_EXPORT void ZemFunc492(QvFirNarrowband* filter) { FirNarrowbandRelease(filter); }

QV_EXPORT Status ZemFunc409(double fs, double f1, double f2, double center, double ripple, double attenuation,
                            std::uint32_t kind, QvFirNarrowband* filter) {
    return FirNarrowbandDesign(fs, f1, f2, center, ripple, attenuation, kind, filter);
}

QV_EXPORT Status ZemFunc410(const double* x, Size n, QvFirNarrowband* filter, double* y) {
    return narrowed(n, [&](Count n) { return FirNarrowbandFilter(x, n, filter, y); });
}

QV_EXPORT Status ZemFunc411(const ComplexRecord* x, Size n, QvFirNarrowband* filter, ComplexRecord* y) {
    return narrowed(n, [&](Count n) { return FirNarrowbandFilterComplex(x, n, filter, y); });
}
