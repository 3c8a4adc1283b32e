#include "filters/equiripple_grid.h"

#include <algorithm>
#include <cmath>

#include "filters/equiripple_loops.h"
#include "frame/status.h"

namespace quorvan {
namespace {

constexpr Count kDensity = 16;
constexpr Count kMostFunctions = 2045;
constexpr double kSlopeWeighted = 0.0001;  // bands of a differentiator from this slope on have a relative error

// Not finite comes before out of range.
Status CheckValue(double value, bool in_range) {
    if (!std::isfinite(value)) return status::kFilterNotDesignable;
    return in_range ? status::kSuccess : status::kBandOutOfRange;
}

Status CheckKind(const RemezRequest& q) {
    const double first = q.edges[0], last = q.edges[2 * Size{q.bands} - 1];
    const double short_of_nyquist = std::fabs(last - q.fs / 2);  // in the unit of fs, deliberately
    const bool odd = q.odd_length();
    switch (q.kind) {
        case kRemezMultiband:
            if (first != 0) return status::kFilterNotDesignable;
            if (short_of_nyquist > 0.001) return status::kFilterNotDesignable;
            if (!odd && q.desired[q.bands - 1] != 0) return status::kCoefficientsNotOdd;
            break;
        case kRemezDifferentiator:
            if (first != 0) return status::kFilterNotDesignable;
            if (odd && short_of_nyquist < 0.01) return status::kFilterNotDesignable;
            if (!odd && short_of_nyquist > 0.001) return status::kFilterNotDesignable;
            break;
        case kRemezHilbert:
            if (first == 0) return status::kFilterNotDesignable;
            if (odd && short_of_nyquist < 0.001) return status::kFilterNotDesignable;
            if (!odd && short_of_nyquist > 0.001) return status::kFilterNotDesignable;
            break;
        default: break;
    }
    // The coefficients of the sines reach back two functions, the stretching of the Hilbert band three.
    const Count least = q.kind == kRemezHilbert ? 3 : q.even() ? 1 : 2;
    return q.functions() < least ? status::kFilterNotDesignable : status::kSuccess;
}

// The factor that brings the response to a sum of cosines.
double SymmetryFactor(const RemezRequest& q, double f) {
    if (q.even()) return std::cos(kPi * f);
    return std::sin(q.odd_length() ? kTwoPi * f : kPi * f);
}

}  // namespace

Status RemezCheck(const RemezRequest& q) noexcept {
    if (q.taps < 3) return status::kFilterNotDesignable;
    if (q.bands < 1) return status::kSamplesNotPositive;
    if (const Status failure = CheckValue(q.fs, q.fs > 0)) return failure;
    const Size edges = 2 * Size{q.bands};
    for (Size i = 0; i < edges; ++i)
        if (const Status failure = CheckValue(q.edges[i], q.edges[i] >= 0)) return failure;
    for (Count j = 0; j < q.bands; ++j) {
        if (const Status failure = CheckValue(q.weights[j], q.weights[j] > 0)) return failure;
        if (const Status failure = CheckValue(q.desired[j], q.desired[j] >= 0)) return failure;
    }
    if (q.edges[edges - 1] / q.fs > 0.5) return status::kCutoffOutOfRange;
    for (Size i = 1; i < edges; ++i)
        if (!(q.edges[i] > q.edges[i - 1])) return status::kBandOutOfRange;
    if (const Status failure = CheckKind(q)) return failure;
    return q.functions() > kMostFunctions ? status::kOutOfMemory : status::kSuccess;
}

Status RemezMakeGrid(const RemezRequest& q, RemezGrid& grid) noexcept {
    const Count r = q.functions();
    const Count most = std::max(kDensity * (r + 2), q.bands);
    const std::size_t room = static_cast<std::size_t>(most) + 1;
    grid.room = Block<double>(4 * room + kResponses);
    if (!grid.room) return status::kOutOfMemory;
    grid.frequency = grid.room;
    grid.desired = grid.frequency + room;
    grid.weight = grid.desired + room;
    grid.cosine = grid.weight + room;

    const double spacing = 0.5 / (kDensity * r);
    Count G = 0;
    const auto put = [&](Count at, double f, Count j) {
        const bool slope = q.kind == kRemezDifferentiator;
        grid.frequency[at] = f;
        grid.desired[at] = slope ? q.desired[j] * f : q.desired[j];
        grid.weight[at] = slope && q.desired[j] >= kSlopeWeighted ? q.weights[j] / f : q.weights[j];
    };
    for (Count j = 0; j < q.bands; ++j) {
        double f = q.edges[2 * Size{j}] / q.fs;
        const double end = q.edges[2 * Size{j} + 1] / q.fs;
        if (j == 0 && !q.even() && f < spacing) f = spacing;
        // A band that begins behind its end has its end alone.
        const Count first = G;
        for (; G < most && (f <= end || G == first); f += spacing) put(G++, f, j);
        put(G - 1, end, j);  // the end replaces the last point, deliberately
    }
    const bool zero_at_nyquist = q.even() ? !q.odd_length() : q.odd_length();
    if (zero_at_nyquist && grid.frequency[G - 1] > 0.5 - spacing) --G;
    grid.points = G;

    if (!(q.even() && q.odd_length()))
        for (Count i = 0; i < G; ++i) {
            const double c = SymmetryFactor(q, grid.frequency[i]);
            grid.desired[i] /= c;
            grid.weight[i] *= c;
        }
    for (Count i = 0; i < G; ++i) grid.cosine[i] = std::cos(kTwoPi * grid.frequency[i]);
    std::fill_n(grid.cosine + G, kResponses, 2.0);  // no abscissa
    return status::kSuccess;
}

}  // namespace quorvan
