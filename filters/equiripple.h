// Linear-phase FIR design with the least peak weighted error: T. W. Parks and J. H. McClellan, IEEE Trans. Circuit
// Theory 19 (1972); J. H. McClellan, T. W. Parks and L. R. Rabiner, IEEE Trans. Audio Electroacoust. 21 (1973).
//
// Frequencies are in the unit of fs. h has `taps` coefficients and is written on success alone; delta is the peak
// weighted error. Statuses stand with RemezCheck; besides, -20001 for exhausted memory, and -20031 when two extremal
// points coincide, the levelled error shrinks or the iterations are used up.
#pragma once

#include "filters/equiripple_grid.h"
#include "frame/types.h"

namespace quorvan {

inline constexpr std::int32_t kRemezIterations = 100;

// A limit below 1 stands for kRemezIterations; one of 1 allows no pass and fails.
Status FirRemezCore(const RemezRequest& request, double* h, double* delta, std::int32_t limit) noexcept;

// Bands as records; kinds count from 0 here. -20031 for taps below 3, no bands, or an infinite value in a record.
Status FirRemezBands(Count taps, double fs, const ::QvBand* bands, Count count, std::int32_t kind, double* h,
                     double* delta) noexcept;

// Bands from 0 to fs/2 with these edges between them, weights of 1 and gains of `first` and its complement in turn.
template <int kEdges>
struct RemezNamed {
    double first;
    double edges[kEdges];
};
template <int kEdges>
Status FirRemezNamed(double fs, const RemezNamed<kEdges>& bands, Count taps, double* h, double* delta) noexcept {
    constexpr int kBands = kEdges / 2 + 1;
    double gains[kBands], weights[kBands], edges[2 * kBands];
    for (int j = 0; j < kBands; ++j) {
        gains[j] = j % 2 ? 1 - bands.first : bands.first;
        weights[j] = 1;
    }
    edges[0] = 0;
    for (int j = 0; j < kEdges; ++j) edges[j + 1] = bands.edges[j];
    edges[2 * kBands - 1] = fs / 2;
    const RemezRequest request{kBands, gains, weights, fs, edges, kRemezMultiband, taps};
    return FirRemezCore(request, h, delta, kRemezIterations);
}

// Gains of 1 in the last band: even lengths are forced to zero there.
template <int kEdges>
constexpr bool PassesNyquist(const RemezNamed<kEdges>& bands) noexcept {
    return (kEdges / 2 % 2 ? 1 - bands.first : bands.first) != 0;
}

}  // namespace quorvan
