// The kernel tables of a plan: for each kernel size four entries, chosen for the instruction set when a plan is made.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct FftStage;

// `count` transforms of the factor's length. Element k of transform t is read at t * inStride + k * elementStride;
// the transform is written from positions[t] * outStride on with stride outStride.
using ComplexLeafKernel = void (*)(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride,
                                   Size outStride, Count count, Size elementStride, const Count* positions,
                                   const FftStage& stage);

// Merges f adjacent transforms of length m into one, in place: column j of m takes its twiddles and an f-point DFT.
using ComplexStageKernel = void (*)(double* re, double* im, Size stride, Count m, const FftStage& stage);

// The same on real data and HalfComplex blocks.
using RealLeafKernel = void (*)(const double* in, double* out, Size inStride, Size outStride, Count count,
                                Size elementStride, const Count* positions, const FftStage& stage);
using RealStageKernel = void (*)(double* data, Size stride, Count m, const FftStage& stage);

// Reals into all n bins, as records: the first n / 2 of them from `low` on, the others from `high`. A transform of one
// factor at once; one of more as the last stage, from the transforms of length m of the n / 2 records of adjacent
// reals, which may stand where one of the halves goes to. Null for odd factors.
using SpectrumLeafKernel = void (*)(const double* x, double* low, double* high, const FftStage& stage);
using SpectrumStageKernel = void (*)(const double* z, double* low, double* high, Count m, const FftStage& stage);

// The same in two passes over f sequences of length m: the spectra of the sequences x[k f + t] as rows, in room of
// kSpectrumRowsRoom, and the stage of f over them. Null for odd f, and for lengths m that gain nothing.
using SpectrumRowsKernel = void (*)(const double* x, Count f, double* rows, const FftStage& stage);
using RowsStageKernel = void (*)(const double* rows, double* low, double* high, Count m, const FftStage& stage);
inline constexpr Count kLeastRow = 3, kLongestRow = 50, kMostRows = 32;

struct FftKernel {
    ComplexLeafKernel leaf;
    ComplexStageKernel stage;
    RealLeafKernel realLeaf;
    RealStageKernel realStage;
    // A leaf for the plans that have one leaf transform only, at position 0; null where there is no better one.
    ComplexLeafKernel loneLeaf;
    SpectrumLeafKernel spectrumLeaf;
    SpectrumStageKernel spectrumStage;
    SpectrumRowsKernel rows;
    RowsStageKernel rowsStage;
};

// The kernels of one instruction set.
struct FftKernelTable {
    // Null for a factor without a kernel.
    const FftKernel* (*kernel)(Count factor);
    // Null for a length without a kernel of its own, and outside kLeastRow to kLongestRow.
    SpectrumRowsKernel (*rows)(Count m);
    // How many adjacent columns the stage kernels take at once when `left` are left of a row.
    Count (*blockWidth)(Count left);
    // The column that stands in this lane of a block.
    Count (*laneColumn)(Count width, Count lane);
};
QV_DECLARE_TARGETS(FftKernelTable, kFftKernels)

}  // namespace quorvan
