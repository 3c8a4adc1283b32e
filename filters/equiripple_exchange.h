// The exchange: extremal points of the error move until the error alternates between them with equal weighted size.
#pragma once

#include "filters/equiripple_grid.h"
#include "filters/equiripple_loops.h"
#include "frame/memory.h"

namespace quorvan {

// The response through r + 1 extremal points, as values at the abscissae x = cos(2 pi f), which descend.
class RemezInterpolant {
public:
    RemezInterpolant() = default;
    bool allocate(Count count) noexcept;

    Count count() const noexcept { return count_; }
    double* x() const noexcept { return x_; }
    double* y() const noexcept { return y_; }
    double* weights() const noexcept { return weights_; }

    // The weights 1 / product; false when a product is zero.
    bool weigh() noexcept;
    // To be called when y is complete.
    void settle() noexcept;
    // The barycentric form at kResponses cosines t; the value itself at an abscissa.
    void responses(const double* t, double* A) const noexcept;

private:
    Block<double> room_;
    Count count_ = 0;
    double *x_ = nullptr, *y_ = nullptr, *weights_ = nullptr, *weighted_ = nullptr;
    const EquirippleLoops* loops_ = nullptr;
};

// Runs limit - 1 passes at most. delta is the levelled error of the last pass; it stays unset when no pass came so far.
Status RemezExchange(const RemezGrid& grid, Count functions, std::int32_t limit, RemezInterpolant& form,
                     double* delta) noexcept;

}  // namespace quorvan
