#include "filters/equiripple_exchange.h"

#include <algorithm>
#include <cmath>

#include "frame/status.h"

namespace quorvan {

bool RemezInterpolant::allocate(Count count) noexcept {
    const std::size_t room = (static_cast<std::size_t>(count) + kProductRoom - 1) / kProductRoom * kProductRoom;
    room_ = Block<double>(4 * room);
    if (!room_) return false;
    std::fill_n(room_.get(), 4 * room, 0.0);
    count_ = count;
    x_ = room_;
    y_ = x_ + room;
    weights_ = y_ + room;
    weighted_ = weights_ + room;
    loops_ = &kEquirippleLoops();
    return true;
}

bool RemezInterpolant::weigh() noexcept {
    loops_->products(x_, count_, weights_);
    for (Count i = 0; i < count_; ++i) {
        if (weights_[i] == 0) return false;
        weights_[i] = 1 / weights_[i];
    }
    return true;
}

void RemezInterpolant::settle() noexcept {
    for (Count i = 0; i < count_; ++i) weighted_[i] = weights_[i] * y_[i];
}

void RemezInterpolant::responses(const double* t, double* A) const noexcept {
    loops_->responses({x_, weights_, weighted_, count_}, t, A);
    for (Count p = 0; p < kResponses; ++p) {
        if (!std::isnan(A[p])) continue;
        const double* const same = std::find(x_, x_ + count_, t[p]);
        if (same != x_ + count_) A[p] = y_[same - x_];
    }
}

namespace {

enum Found { kNone, kSome, kNoneAndChanged };

class Exchange {
public:
    Exchange(const RemezGrid& grid, Count functions, RemezInterpolant& form) noexcept
        : grid_(grid), r_(functions), G_(grid.points), form_(form) {}

    bool allocate() noexcept {
        const std::size_t blocks = (static_cast<std::size_t>(G_) + kResponses - 1) / kResponses;
        extremes_ = Block<Count>(static_cast<std::size_t>(r_) + 2);
        known_ = Block<Count>(blocks);
        responses_ = Block<double>(blocks * kResponses);
        if (!extremes_ || !known_ || !responses_) return false;
        std::fill_n(known_.get(), blocks, 0);
        return form_.allocate(r_ + 1);
    }

    Status run(std::int32_t limit, double* delta) noexcept {
        for (Count j = 0; j < r_; ++j) extremes_[j] = static_cast<Count>(Size{j} * (G_ - 1) / r_);
        extremes_[r_] = G_ - 1;
        for (std::int32_t passes = limit - 1; passes > 0; --passes) {
            if (changes_ == 0) return status::kSuccess;
            extremes_[r_ + 1] = G_;
            if (const Status failure = level(delta)) return failure;
            const Count first = extremes_[0], last = extremes_[r_];
            moveInner();
            moveEnds(std::min(first, extremes_[0]), std::max(last, extremes_[r_]));
        }
        return status::kFilterNotDesignable;
    }

private:
    // The response that has errors of equal weighted size at the extremal points, and that size.
    Status level(double* delta) noexcept {
        double *const x = form_.x(), *const y = form_.y(), *const ad = form_.weights();
        for (Count j = 0; j <= r_; ++j) x[j] = grid_.cosine[extremes_[j]];
        if (!form_.weigh()) return status::kFilterNotDesignable;
        double above = 0, even = 0, odd = 0;
        for (Count i = 0; i <= r_; ++i) {
            const Count at = extremes_[i];
            above += ad[i] * grid_.desired[at];
            (i % 2 ? odd : even) += ad[i] / grid_.weight[at];
        }
        const double dev = above / (even - odd);
        if (!std::isfinite(dev)) return status::kFilterNotDesignable;
        for (Count i = 0; i <= r_; ++i) {
            const Count at = extremes_[i];
            const double error = dev / grid_.weight[at];
            y[i] = i % 2 ? grid_.desired[at] + error : grid_.desired[at] - error;
        }
        form_.settle();
        sign_ = dev > 0 ? 1 : -1;
        dev_ = *delta = std::fabs(dev);
        if (previous_ > dev_) return status::kFilterNotDesignable;
        previous_ = dev_;
        changes_ = 0;
        ++pass_;
        return status::kSuccess;
    }

    // The signed weighted error. Responses are formed in blocks, once in a pass.
    double error(Count l) noexcept {
        const Count block = l / kResponses;
        if (known_[block] != pass_) {
            const Count first = block * kResponses;
            form_.responses(grid_.cosine + first, responses_ + first);
            known_[block] = pass_;
        }
        return (responses_[l] - grid_.desired[l]) * turn_ * grid_.weight[l];
    }

    // An equal error counts as better: ties climb.
    void climbUp(Count& l, Count kup) noexcept {
        for (; l < kup; ++l) {
            const double e = error(l);
            if (comp_ > e) return;
            comp_ = e;
        }
    }

    bool searchFirst(Count& l, Count kup) noexcept {
        if (l >= kup) return false;
        const double e = error(l);
        if (comp_ > e) return false;
        comp_ = e;
        climbUp(++l, kup);
        return true;
    }

    Found searchUp(Count& l, Count kup) noexcept {
        for (++l; l < kup; ++l) {
            const double e = error(l);
            if (!(e > comp_)) continue;
            comp_ = e;
            climbUp(++l, kup);
            return kSome;
        }
        return kNoneAndChanged;
    }

    Found searchDown(Count& l, Count klow, bool changed) noexcept {
        for (--l; l > klow; --l) {
            double e = error(l);
            if (!(e > comp_)) continue;
            comp_ = e;
            for (--l; l > klow; --l) {
                e = error(l);
                if (comp_ > e) break;
                comp_ = e;
            }
            return kSome;
        }
        return changed ? kNoneAndChanged : kNone;
    }

    // Each extremal point climbs its own side of the error, upwards first, between its neighbours.
    void moveInner() noexcept {
        Count klow = -1;
        turn_ = sign_;
        for (Count j = 0; j <= r_; ++j) {
            const Count kup = extremes_[j + 1], old = extremes_[j];
            turn_ = -turn_;
            if (j == 1) first_ = comp_;
            comp_ = dev_;
            Count l = old + 1;
            if (searchFirst(l, kup)) {
                extremes_[j] = klow = l - 1;
                ++changes_;
                continue;
            }
            l = old;
            const Found below = searchDown(l, klow, changes_ != 0);
            klow = old;
            if (below == kSome) {
                extremes_[j] = l + 1;
                ++changes_;
            } else if (below == kNone) {
                l = old + 1;
                if (searchUp(l, kup) == kSome) {
                    extremes_[j] = klow = l - 1;
                    changes_ = 1;
                }
            }
        }
    }

    // A larger error outside the outermost points pushes all of them inwards by one.
    void moveEnds(Count k1, Count knz) noexcept {
        constexpr double kClearly = 1.00001;
        const double turn = turn_;
        Count low = -1, high = G_;
        comp_ = comp_ * kClearly;
        turn_ = sign_;
        const Found below = searchUp(low, k1);
        comp_ = std::max(comp_, first_) * kClearly;
        turn_ = -turn;
        const Found above = searchDown(high, knz, true);
        Count* const ext = extremes_;
        if (below == kSome) {
            std::copy_backward(ext, ext + r_, ext + r_ + 1);
            ext[0] = low - 1;
            ++changes_;
        } else if (above == kSome) {
            std::copy(ext + 1, ext + r_ + 1, ext);
            ext[r_] = high + 1;
            ++changes_;
        }
    }

    const RemezGrid& grid_;
    const Count r_, G_;
    RemezInterpolant& form_;
    Block<Count> extremes_, known_;  // grid indices; the pass in which a block of responses was formed
    Block<double> responses_;
    Count changes_ = 1, pass_ = 0;
    double dev_ = 0, previous_ = -1;
    double comp_ = 0, first_ = 0;
    double sign_ = 1, turn_ = 1;
};

}  // namespace

Status RemezExchange(const RemezGrid& grid, Count functions, std::int32_t limit, RemezInterpolant& form,
                     double* delta) noexcept {
    if (grid.points <= functions) return status::kFilterNotDesignable;  // two extremal points would coincide
    Exchange exchange(grid, functions, form);
    if (!exchange.allocate()) return status::kOutOfMemory;
    return exchange.run(limit, delta);
}

}  // namespace quorvan
