// The plan of one transform size, as the plan cache builds it and the cores and kernels read it.
#pragma once

#include "transforms/fft_plan.h"
#include "transforms/kernels/kernels.h"

namespace quorvan {

// What one factor of a size needs; null where its kind does not.
struct FftStage {
    // Generic primes: cos(2 pi k / f) and -sin(2 pi k / f).
    double* primeCos;
    double* primeSin;
    // All stages but the last: W(r, j) = exp(-2 pi i r j / n[i]) at (j - 1)(f - 1) + (r - 1), r = 1 to f - 1, j = 1 to
    // m - 1. Of kernel factors and generic primes only in plans that a caller holds.
    double* twiddleCos;
    double* twiddleSin;
    // Large primes: the plan of f - 1, the transformed sequence of the convolution, and the index tables.
    FftPlan* raderPlan;
    double* raderSpectrumRe;
    double* raderSpectrumIm;
    Count* raderGather;
    Count* raderScatter;
    // Large primes whose f - 1 has a large prime factor itself: the plan of a fast size M >= (f - 1)/2, the spectra of
    // the cosines and of the sines at the even and at the odd bins of twice that size, as records one after the other;
    // exp(-pi i q / M), q = 0 to M - 1; and the block that both stand in.
    FftPlan* paddedPlan;
    double* paddedSpectrum;
    double* paddedTurns;
    double* paddedBlock;
    // Large primes that go by their defining sums: the matrices of kernels/direct_primes.h, and the block that they
    // stand in.
    double* directTable;
    double* directBlock;
    // Kernel factors and generic primes: the same twiddles in the order in which the stage kernels take their blocks of
    // columns, column 0 included: for each block, for each r, the cosines of its lanes and then the sines.
    double* blockedTwiddles;
};

inline constexpr int kMaxFactors = 20;

// Adjacent sub-transforms that go through the levels together: a whole vector of the widest instruction set.
inline constexpr Count kFftGroup = 8;

enum FactorKind : Count { kKernelFactor = 0, kGenericPrime = 1, kLargePrime = 2 };

// The way of a decimation in time through the factors of a plan.
struct FftSchedule {
    Count size;
    // The number of sub-transforms at the level below the first, and the level whose stage comes last.
    Count firstFactor;
    Count lastStage;
    // The number of leaf transforms, and the kernel for one that is alone, if there is one.
    Count leaves;
    ComplexLeafKernel loneLeaf;
    // The levels that are taken breadth first, and the product of their factors.
    Count groupLevel;
    Count groupStride;
    // Where the leaf transform that starts at input t stands in the output.
    Count* leafPositions;
};

// All bins of reals in two passes, by factors of their own; where no two serve, by the levels of the plan.
struct FftSpectrumSplit {
    SpectrumRowsKernel rows;  // null where the levels of the plan serve
    RowsStageKernel stage;
    Count factor;
    Count columns;
    FftStage turns;  // blocked twiddles, and the tables of a generic prime m
};
// The columns 0 to m / 2 of each row in whole vectors of both parts, and its middle column.
inline constexpr Count kSpectrumRowsRoom =
    kMostRows * (2 * ((kLongestRow / 2 + kFftGroup) / kFftGroup * kFftGroup) + 1);

struct FftPlan {
    Count size;
    Count refCount;
    Count factors[kMaxFactors];  // ascending
    Count kinds[kMaxFactors];
    Count factorCount;  // 0 for size 1
    FftStage* stages[kMaxFactors];
    RealLeafKernel realLeafKernels[kMaxFactors];
    RealStageKernel realStageKernels[kMaxFactors];
    ComplexLeafKernel leafKernels[kMaxFactors];
    ComplexStageKernel stageKernels[kMaxFactors];
    FftPlan* prev;
    FftPlan* next;
    // The length of the blocks that a stage merges.
    Count columns[kMaxFactors];
    // The transform itself; and, where the first of several factors is even, what comes before the stage of that factor
    // when n reals are taken as n / 2 records: half as many sub-transforms, else the same. Otherwise of size 0.
    FftSchedule whole;
    FftSchedule half;
    // For an even first factor.
    SpectrumLeafKernel spectrumLeaf;
    SpectrumStageKernel spectrumStage;
    FftSpectrumSplit split;
    // Even sizes with an odd first factor and no two passes: the plan of half the size, which transforms the reals as
    // records, and the turns of the stage of 2 behind it. Only in plans that spectra of reals are made by.
    FftPlan* recordsPlan;
    FftStage recordsTurns;
    // The block that the twiddles of the transforms and the leaf positions stand in, and those of the plain
    // order and of the stage of 2.
    double* tables;
    double* statedTables;
    double* recordsTables;
};

}  // namespace quorvan
