// What the chapters on the electrocardiogram share: the beats, and the trace without its wandering baseline.
#pragma once

#include <vector>

#include "recording.h"

namespace tour {

struct BeatTrain {
    std::vector<double> positions;  // in samples
    std::vector<double> envelope;   // of the steep part of the beats, in the unit of the recording
    double threshold;               // beats rise above it
};

// The band in which beats are steep and little else is, 5 to 15 Hz, squared and smoothed, shows one hump a beat
// (J. Pan and W. J. Tompkins, IEEE Trans. Biomed. Eng. 32, 1985); the humps are found as peaks.
BeatTrain FindBeats(const Recording& recording);

// The distances of the beats in seconds.
std::vector<double> Intervals(const BeatTrain& beats, double rate);

// The baseline is what is left when a running median has passed over the beats and another one over the waves between
// them (P. de Chazal et al., IEEE Trans. Biomed. Eng. 51, 2004).
Recording WithoutWander(const Recording& recording);

}  // namespace tour
