// What lies between a stimulus and its response: transfer functions, network analysis, deconvolution.
#pragma once

#include "frame/types.h"

namespace quorvan {

// |Y/X| and its phase in radians over the bins 0 to n/2 - 1.
Status SpecTransferFunction(const double* stimulus, const double* response, Count n, double dt, double* magnitude,
                            double* phase, double* df) noexcept;

// The record whose circular convolution with the divisor is the signal.
Status SpecDeconvolve(const double* divisor, const double* signal, Count n, double* out) noexcept;

// What a network analysis gives; all arrays but the impulse response hold bins 0 to n/2 - 1, and bin 0 in any case.
struct NetworkResult {
    double* crossMagnitude;
    double* crossPhase;
    double* transferMagnitude;
    double* transferPhase;
    double* coherence;
    double* impulse;  // n samples
    double* df;
};

// Averages over `frames` frames of n samples.
Status SpecNetworkAnalysis(const double* stimulus, const double* response, Count n, Count frames, double dt,
                           const NetworkResult& result) noexcept;

}  // namespace quorvan
