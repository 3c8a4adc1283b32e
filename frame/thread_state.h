// What the library remembers for one thread between calls: the generators, the block-continuous operations and the
// detectors. Each operation has fields of its own, so that operations called in turn do not disturb each other.
#pragma once

#include <cstdint>

namespace quorvan {

struct PeakStreamState;  // of the peak detector

// One stream of the combined congruential generator.
struct RngStream {
    std::int32_t x = 1234;
    std::int32_t y = 2345;
    std::int32_t z = 3456;
    std::int32_t first = 1;  // until the first call of the stream's owner
};

// What the binomial generator keeps between draws.
struct RngBinomialCache {
    double p = -1.0;  // the probability for which q, lnP and lnQ hold
    double q = 0;
    double lnP = 0;
    double lnQ = 0;
    double trialsReal = 0;  // the number of trials, as a real number
    double lnGammaTrials = 0;
    std::int32_t trials = -1;  // for which trialsReal and lnGammaTrials hold
};

struct ThreadState {
    std::int32_t gaussX = 1234, gaussY = 2345, gaussZ = 3456;
    std::int32_t gaussHaveSpare = 0, gaussFirst = 1;
    double gaussSpare = 0;
    RngStream uniformStream, whiteStream, periodicStream, gammaStream, poissonStream, binomialStream;
    RngBinomialCache binomialCache;
    RngStream bernoulliStream;
    std::int32_t haltonBase = 0, haltonIndex = 0, haltonFirst = 1;
    double weylStep = 0, weylValue = 0;
    std::int32_t weylFirst = 1;
    RngStream shuffleRealStream, shuffleComplexStream, shuffleIntStream;

    std::int32_t decimPending = 0, decimFactor = 0;
    double decimSum = 0;
    std::int32_t decimOffset = 0, decimFirst = 1;
    std::int32_t cxDecimPending = 0, cxDecimFactor = 0;
    double cxDecimSum[2] = {0, 0};
    std::int32_t cxDecimOffset = 0, cxDecimFirst = 1;
    std::int32_t crossingState = 0, crossingFirst = 1;
    std::int32_t crossingChannels = 0;
    std::int32_t* crossingStates = nullptr;  // owned: [crossingChannels]
    std::int32_t crossingStatesFirst = 1;

    PeakStreamState* peakState = nullptr;  // owned by the peak detector's stream
    double* peakBuffer = nullptr;          // the same
    std::int32_t runBase = 0, runStart = -1, runReported = 0;
};

}  // namespace quorvan
