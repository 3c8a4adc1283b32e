// The passes over records between the transforms of Rader's convolutions.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct RaderLoops {
    // records[k] = conj(records[k] * (re[k], im[k])).
    void (*conjugateProduct)(double* records, const double* re, const double* im, Count n);
    // records[k] = conj(records[k] * factors[k]).
    void (*conjugateRecordProduct)(double* records, const double* factors, Count n);
    // out[k] = records[k] * turns[k]; out may be the records.
    void (*turn)(const double* records, const double* turns, Count n, double* out);
    // The spectrum Z of u + i v, u and v real, to the conjugate spectrum of what two real sequences with the spectra
    // `cosines` and `sines` make of u and of v:
    //     out[k] = conj(cosines[k] (Z[k] + conj Z[m]) / 2 + sines[k] (Z[k] - conj Z[m]) / 2),
    // where bin k has its mirror at m = n - k, or for odd bins, which stand half a bin further up, at m = n - 1 - k.
    void (*pairProduct)(const double* spectrum, const double* cosines, const double* sines, bool odd, Count n,
                        double* out);
    // From four convolutions, conjugated, e = sums + turns * turnedSums and f likewise of the differences, to
    // sums[k] = first + conj e + i conj f, and differences[k] = first + conj e - i conj f.
    void (*unfold)(double* sums, const double* turnedSums, double* differences, const double* turnedDifferences,
                   const double* turns, ComplexRecord first, Count n);
};
QV_DECLARE_TARGETS(RaderLoops, kRaderLoops)

}  // namespace quorvan
