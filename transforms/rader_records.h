// Complex elements of any layout as registers of one record, for the passes that Rader's index tables scatter.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// A record in one register, where real and imaginary parts are neighbours.
typedef double Record __attribute__((vector_size(2 * sizeof(double))));

QV_INLINE Record LoadRecord(const double* p) noexcept {
    Record value;
    __builtin_memcpy(&value, p, sizeof value);
    return value;
}
QV_INLINE void StoreRecord(double* p, Record value) noexcept { __builtin_memcpy(p, &value, sizeof value); }

// Elements that are records already: one move and no product each.
struct RecordInput {
    const double* records;

    QV_INLINE Record operator[](Size k) const noexcept { return LoadRecord(records + 2 * k); }
};
struct RecordOutput {
    double* records;

    QV_INLINE void Set(Size k, Record value) const noexcept { StoreRecord(records + 2 * k, value); }
};

// Element k stands at (re[k * stride], im[k * stride]).
struct ComplexInput {
    using Records = RecordInput;
    const double *re, *im;
    Size stride;

    QV_INLINE Record operator[](Size k) const noexcept { return Record{re[k * stride], im[k * stride]}; }
};
struct ComplexOutput {
    using Records = RecordOutput;
    double *re, *im;
    Size stride;

    QV_INLINE void Set(Size k, Record value) const noexcept {
        re[k * stride] = value[0];
        im[k * stride] = value[1];
    }
};

// body(array), with the type that fits the layout.
template <class Array, class Body>
QV_INLINE void WithLayout(const Array& array, const Body& body) {
    if (array.im == array.re + 1 && array.stride == 2)
        body(typename Array::Records{array.re});
    else
        body(array);
}

}  // namespace quorvan
