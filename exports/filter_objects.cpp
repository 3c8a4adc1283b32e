// Entries of the filter objects and of the cascade engine.
#include "filters/iir_cascade.h"
#include "filters/iir_filter.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT QvIirFilter* ZemFunc233(std::uint32_t kind, Count order) { return IirFilterCreate(kind, order); }

QV_EXPORT QvIirStateComplex* ZemFunc469(std::uint32_t kind, Count order) { return IirStateComplexCreate(kind, order); }

QV_EXPORT void ZemFunc235(QvIirFilter* filter) { IirFilterReset(filter); }

QV_EXPORT Status ZemFunc91(const double* x, Size n, QvIirFilter* filter, double* y) {
    return narrowed(n, [&](Count n) { return IirCascadeApply(x, n, filter, y); });
}

QV_EXPORT Status ZemFunc466(const ComplexRecord* x, Size n, QvIirFilter* filter, QvIirStateComplex* state,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) { return IirCascadeApplyComplex(x, n, filter, state, y); });
}
