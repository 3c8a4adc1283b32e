// The passes over records between the transforms of Rader's convolutions.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"
#include "transforms/rader_records.h"

namespace quorvan {

// What belongs to the sums x[j] + x[p - j], and to the differences x[j] - x[p - j].
struct HalvesOfRecords {
    double *sums, *turnedSums, *differences, *turnedDifferences;
};

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
    // For q = 0 to h - 1, with j = indices[q]: sums[q] = x[j] + x[p - j] and differences[q] = x[j] - x[p - j], and both
    // times turns[q].
    void (*fold)(const ComplexInput& x, const Count* indices, Count p, const double* turns, const HalvesOfRecords& out);
    // From four convolutions, conjugated, e = sums + turns * turned sums and f likewise of the differences, for
    // q = 0 to h - 1, with k = indices[q]: X[k] = first + conj e + i conj f and X[p - k] = first + conj e - i conj f.
    void (*unfold)(const HalvesOfRecords& in, const double* turns, Record first, const Count* indices, Count p,
                   const ComplexOutput& X);
};
QV_DECLARE_TARGETS(RaderLoops, kRaderLoops)

}  // namespace quorvan
