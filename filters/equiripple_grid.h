// What an equiripple design is asked for, and the dense grid of frequencies on which it is approximated.
#pragma once

#include "frame/memory.h"
#include "frame/types.h"

namespace quorvan {

enum RemezKind : std::int32_t { kRemezMultiband = 1, kRemezDifferentiator = 2, kRemezHilbert = 3 };

struct RemezRequest {
    Count bands;
    const double* desired;  // gain of each band; of a differentiator its slope over f/fs
    const double* weights;
    double fs;
    const double* edges;  // two of each band
    std::int32_t kind;    // others than the three are odd without anything special
    Count taps;

    bool even() const noexcept { return kind == kRemezMultiband; }  // the symmetry of h
    bool odd_length() const noexcept { return taps % 2 != 0; }
    // The number of cosine functions.
    Count functions() const noexcept { return taps / 2 + (odd_length() && even()); }
};

// In this order: -20031 for taps below 3, -20003 for no bands; fs, the edges, then weight and gain band by band, each
// -20031 when not finite and -20023 when out of its range; -20020 for a last edge above fs/2, -20023 for edges that do
// not ascend; what the kind allows of first and last edge (-20031), -20033 for an even multiband filter with a gain at
// fs/2; -20001 for more than 2045 functions.
Status RemezCheck(const RemezRequest& request) noexcept;

// Frequencies as fractions of fs, 16 points to a function; desired value and weight of the sum of cosines.
struct RemezGrid {
    Count points = 0;
    double *frequency = nullptr, *desired = nullptr, *weight = nullptr;
    double* cosine = nullptr;  // cos(2 pi f); whole blocks of kResponses may be read
    Block<double> room;
};

Status RemezMakeGrid(const RemezRequest& request, RemezGrid& grid) noexcept;

}  // namespace quorvan
