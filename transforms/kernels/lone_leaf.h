// A transform of 32 records that stands alone would fill one record of a vector. Taken as 4 x 8 it fills all four: the
// leaves of 8 points over the 4 adjacent inputs, and one stage of 4 with its twiddles in the code.
#pragma once

#include "transforms/fft_plan_record.h"
#include "transforms/kernels/lanes.h"

namespace quorvan::QV_TARGET {

extern const FftKernel kDft4, kDft8, kDft32;

namespace {

struct LoneTwiddles {
    alignas(64) double values[2 * 8 * 3];
};

// W(r, j) = exp(-2 pi i r j / 32), r = 1 to 3, j = 0 to 7, in the order in which a stage kernel reads it.
constexpr LoneTwiddles MakeLoneTwiddles() {
    // cos(pi k / 16)
    constexpr double kQuarter[] = {1.0,
                                   0.9807852804032304,
                                   0.9238795325112867,
                                   0.8314696123025452,
                                   0.7071067811865476,
                                   0.5555702330196022,
                                   0.3826834323650898,
                                   0.19509032201612828,
                                   0.0};
    const auto cosine = [&](Count k) {
        k = k % 32 > 16 ? 32 - k % 32 : k % 32;
        return k > 8 ? -kQuarter[16 - k] : kQuarter[k];
    };
    LoneTwiddles table{};
    for (Count r = 1; r < 4; ++r)
        for (Count lane = 0; lane < 8; ++lane) {
            const Count turns = r * LaneColumn(8, lane);
            table.values[16 * (r - 1) + lane] = cosine(turns);
            table.values[16 * (r - 1) + 8 + lane] = cosine(turns + 8);  // cos(x + pi/2) = -sin x
        }
    return table;
}
constexpr LoneTwiddles kLoneTwiddles = MakeLoneTwiddles();

// Split arrays and other strides keep to the ordinary leaf.
inline void LoneLeafOf32(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride,
                         Size outStride, Count count, Size elementStride, const Count* positions,
                         const FftStage& stage) {
    if (!AreRecords(inRe, inIm, elementStride) || !AreRecords(outRe, outIm, outStride))
        return kDft32.leaf(inRe, inIm, outRe, outIm, inStride, outStride, count, elementStride, positions, stage);
    static constexpr Count kPositions[] = {0, 8, 16, 24};
    FftStage join = {};
    join.blockedTwiddles = const_cast<double*>(kLoneTwiddles.values);  // stages only read them
    kDft8.leaf(inRe, inIm, outRe, outIm, 2, 2, 4, 8, kPositions, join);
    kDft4.stage(outRe, outIm, 2, 8, join);
}

}  // namespace
}  // namespace quorvan::QV_TARGET
