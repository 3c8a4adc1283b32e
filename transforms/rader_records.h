// Complex elements of any layout as registers of one record, for the passes that Rader's index tables scatter.
#pragma once

#include "frame/types.h"

namespace quorvan {

// A record in one register, where real and imaginary parts are neighbours.
typedef double Record __attribute__((vector_size(2 * sizeof(double))));

inline Record LoadRecord(const double* p) noexcept { return Record{p[0], p[1]}; }
inline void StoreRecord(double* p, Record value) noexcept {
    p[0] = value[0];
    p[1] = value[1];
}

// Element k stands at (re[k * stride], im[k * stride]).
struct ComplexInput {
    const double *re, *im;
    Size stride;

    Record operator[](Size k) const noexcept { return Record{re[k * stride], im[k * stride]}; }
};
struct ComplexOutput {
    double *re, *im;
    Size stride;

    bool AreRecords() const noexcept { return im == re + 1 && stride == 2; }
    void Set(Size k, Record value) const noexcept {
        re[k * stride] = value[0];
        im[k * stride] = value[1];
    }
};

// The same where the parts of an element are neighbours: one move each.
struct AdjacentInput {
    const double* re;
    Size stride;

    Record operator[](Size k) const noexcept { return LoadRecord(re + k * stride); }
};
struct AdjacentOutput {
    double* re;
    Size stride;

    void Set(Size k, Record value) const noexcept { StoreRecord(re + k * stride, value); }
};

// body(in) with the narrowest type that fits the layout.
template <class Body>
void WithLayout(const ComplexInput& in, const Body& body) {
    if (in.im == in.re + 1)
        body(AdjacentInput{in.re, in.stride});
    else
        body(in);
}
template <class Body>
void WithLayout(const ComplexOutput& out, const Body& body) {
    if (out.im == out.re + 1)
        body(AdjacentOutput{out.re, out.stride});
    else
        body(out);
}

}  // namespace quorvan
