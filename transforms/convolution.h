// Linear convolution, correlation and deconvolution of sequences, directly or by Fourier transforms.
//
// Results have n + m - 1 elements. Statuses: -20003 for n or m below 1, -20046 for a longer result than an int32
// counts, -20001 for exhausted memory.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum ConvolutionMethod : std::uint32_t { kConvolveDirect = 0, kConvolveByFft = 1 };

// Any other method of the real forms does nothing and succeeds, deliberately; of the complex forms it gives -20061.
Status ConvolveReal(const double* x, Count n, const double* y, Count m, std::uint32_t method, double* out) noexcept;
Status ConvolveComplex(const ComplexRecord* x, Count n, const ComplexRecord* y, Count m, std::uint32_t method,
                       ComplexRecord* out) noexcept;

// The convolution of the reversed (and conjugated) x with y: lag 0 stands at index n - 1. Normalisation: 0 none,
// 1 unbiased, by the number of overlapping terms, 2 biased, by the longer length, any other -20061 with the raw result.
Status CorrelateReal(const double* x, Count n, const double* y, Count m, std::uint32_t method,
                     std::uint32_t normalisation, double* out) noexcept;
Status CorrelateComplex(const ComplexRecord* x, Count n, const ComplexRecord* y, Count m, std::uint32_t method,
                        std::uint32_t normalisation, ComplexRecord* out) noexcept;
// By transforms.
Status AutoCorrelateComplex(const ComplexRecord* x, Count n, std::uint32_t normalisation, ComplexRecord* out) noexcept;

// The n - m + 1 elements whose convolution with x is y. -20008 for m above n, -20060 for an x of zeros.
Status Deconvolve(const double* y, Count n, const double* x, Count m, double* out) noexcept;

// The length of a linear convolution, 64 bits wide so that it can be tested.
constexpr Size ConvolvedLength(Count n, Count m) noexcept { return Size{n} + m - 1; }

}  // namespace quorvan
