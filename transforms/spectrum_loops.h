// The loops over whole spectra, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct SpectrumLoops {
    // The HalfComplex result in the first `length` doubles of the array becomes `length` records over all of it, in
    // natural order or with X[0] at length / 2. No workspace but the array.
    void (*expand)(ComplexRecord* spectrum, Count length);
    void (*expandShifted)(ComplexRecord* spectrum, Count length);

    // Bin by bin, `out` apart from the inputs: a b, and |a|^2 (imaginary parts zero), of HalfComplex arrays.
    void (*multiplyHalf)(const double* a, const double* b, Count n, double* out);
    void (*powerHalf)(const double* a, Count n, double* out);

    // out[k] = a[k] b[k]; out may be a or b.
    void (*multiply)(const ComplexRecord* a, const ComplexRecord* b, Size n, ComplexRecord* out);
    // out[k] = |re + i im|^2 scale, and conj(x) y scale, of split spectra.
    void (*power)(const double* re, const double* im, double scale, Count n, double* out);
    void (*crossPower)(const double* xRe, const double* xIm, const double* yRe, const double* yIm, double scale,
                       Count n, ComplexRecord* out);
};
QV_DECLARE_TARGETS(SpectrumLoops, kSpectrumLoops)

}  // namespace quorvan
