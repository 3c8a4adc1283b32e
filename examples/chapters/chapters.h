// The chapters of the tour: each prints one screen of readings.
#pragma once

#include "recording.h"

namespace tour {

// The heart rate from the spectrum and from the autocorrelation; or the strongest rhythm of any other recording.
void Rhythm(const Recording& recording);

void Beats();      // each beat of the electrocardiogram: places, intervals, heart rate variability
void Shape();      // one beat as a pulse: rise and fall, and the bell curve that fits it
void Filters();    // mains hum and baseline wander removed; what each filter does, in numbers
void Tones();      // two tones whose frequencies and amplitudes are known
void Amplifier();  // the distortion of an amplifier that is known to the last coefficient
void Trend();      // carbon dioxide: growth and seasons by linear least squares
void Sunspots();   // the length of the sunspot cycle, four ways
void Matrices();   // a recurrence by least squares and its eigenvalues; the shapes that make up a heartbeat

}  // namespace tour
