// Fourier transforms in one dimension: padding, order of the bins, and plans around the cores.
//
// In shifted order of N bins X[0] stands at index N / 2; index N / 2 + k holds X[k], counted modulo N.
//
// Statuses: -20003 for n below 1, -20070 for a given plan of another length, -20001 for exhausted memory.
#pragma once

#include "frame/types.h"
#include "transforms/fft_plan.h"

namespace quorvan {

// How many points a transform has: as asked for, or those of the input.
constexpr Count TransformLength(Count n, Count fftSize) noexcept { return fftSize < 1 ? n : fftSize; }

// A null plan: the operation makes one for the call.
Status TransformRealFft(const double* x, Count n, Count fftSize, const FftPlan* plan, bool shift,
                        ComplexRecord* out) noexcept;
Status TransformComplexFft(const ComplexRecord* x, Count n, Count fftSize, const FftPlan* plan, bool shift,
                           ComplexRecord* out) noexcept;
// Both inverses let n = 0 pass the first check.
Status TransformRealIfft(const ComplexRecord* X, Count n, const FftPlan* plan, bool shift, double* out) noexcept;
Status TransformComplexIfft(const ComplexRecord* X, Count n, const FftPlan* plan, bool shift,
                            ComplexRecord* out) noexcept;

Status TransformSplitFft(double* re, double* im, Count n) noexcept;

Status PowerSpectrumComplex(const ComplexRecord* x, Count n, double* out) noexcept;
Status CrossPowerComplex(const ComplexRecord* x, const ComplexRecord* y, Count n, ComplexRecord* out) noexcept;

}  // namespace quorvan
