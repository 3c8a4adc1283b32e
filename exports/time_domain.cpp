// Entries of the time-domain operations.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "transforms/decimate.h"
#include "transforms/differentiate.h"
#include "transforms/integrate.h"
#include "transforms/level_crossing.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc95(double* x, Size n, double dt, double initial, double final, double* out) {
    return narrowed(n, [&](Count n) { return IntegrateSimpson(x, n, dt, initial, final, out); });
}

QV_EXPORT Status ZemFunc56(double* x, Size n, double dt, double initial, double final, double* out) {
    return narrowed(n, [&](Count n) { return Differentiate(x, n, dt, initial, final, out); });
}

QV_EXPORT Status ZemFunc367(double* x, Size n, double dt, const double* initial, Size nInitial, const double* final,
                            Size nFinal, std::uint32_t method, double* out) {
    return narrowed(n, nInitial, nFinal, [&](Count n, Count nInitial, Count nFinal) {
        return DifferentiateMethod(x, n, dt, initial, nInitial, final, nFinal, method, out);
    });
}

QV_EXPORT Status ZemFunc53(const double* x, Size n, Size factor, std::uint32_t average, double* out) {
    return narrowed(n, factor, [&](Count n, Count factor) { return Decimate(x, n, factor, average, out); });
}

QV_EXPORT Status ZemFunc360(ComplexRecord* x, Size n, Size factor, std::uint32_t average, ComplexRecord* out) {
    return narrowed(n, factor, [&](Count n, Count factor) { return DecimateComplex(x, n, factor, average, out); });
}

QV_EXPORT Status ZemFunc417(double* x, Size n, Size factor, std::uint32_t average, std::int32_t offset,
                            std::int32_t reset, std::int64_t* count) {
    return narrowed(n, factor, [&](Count n, Count factor) {
        return DecimateContinuous(x, n, factor, average, offset, reset, count);
    });
}

QV_EXPORT Status ZemFunc418(ComplexRecord* x, Size n, Size factor, std::uint32_t average, std::int32_t offset,
                            std::int32_t reset, std::int64_t* count) {
    return narrowed(n, factor, [&](Count n, Count factor) {
        return DecimateContinuousComplex(x, n, factor, average, offset, reset, count);
    });
}

QV_EXPORT Status ZemFunc419(const double* x, Size n, double level, double hysteresis, std::int32_t slope,
                            std::int32_t reset, std::int64_t* index, std::int32_t* found) {
    return narrowed(n, [&](Count n) {
        Count at = -1;
        const Status done = DetectLevelCrossing(x, n, level, hysteresis, slope, reset, &at, found);
        *index = at;
        return done;
    });
}

QV_EXPORT Status ZemFunc420(const double* x, Size channels, Size n, const double* levels, const double* hysteresis,
                            const std::int32_t* slopes, std::int32_t reset, std::int64_t* indices,
                            std::int32_t* found) {
    return narrowed(channels, n, [&](Count channels, Count n) -> Status {
        if (channels < 1 || n < 1) return status::kSamplesNotPositive;
        Block<Count> at(static_cast<std::size_t>(channels));
        if (!at) return status::kOutOfMemory;
        const Status done = DetectLevelCrossings(x, channels, n, levels, hysteresis, slopes, reset, at, found);
        if (done < 0) return done;
        return IndexArrayWiden(indices, at, channels);
    });
}
