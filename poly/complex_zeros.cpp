#include "poly/complex_zeros.h"

#include <algorithm>
#include <cmath>

#include "frame/complex.h"
#include "frame/memory.h"

namespace quorvan {
namespace {

constexpr Count kTrialLimit = 100;
constexpr double kPrecision = 1e-10;
constexpr ComplexRecord kTurnBack{-0.4, -0.3};  // half the length, turned by about -143 degrees
constexpr ComplexRecord kTurnLong{0.8, 0.6};    // the same length, turned by about 37 degrees
constexpr ComplexRecord kTurnShort{0.2, 0.15};

// A walk may climb: the best of its points is taken even where it lies higher than the last one. This many steps on one
// polynomial never occur in a search that gets anywhere; the bound ends a circle.
constexpr Count kStepLimit = 100'000;

bool IsZero(ComplexRecord z) { return z.re == 0 && z.im == 0; }
bool IsNaN(ComplexRecord z) { return std::isnan(z.re) || std::isnan(z.im); }

// A point of the walk with the value of the polynomial there.
struct Point {
    ComplexRecord at;
    ComplexRecord value;
    double modulus;
};

// Looks for one zero of the polynomial with `count` coefficients, count above 3.
class Search {
public:
    Search(const ComplexRecord* a, Count count, Count limit) : a_(a), count_(count), limit_(limit) {}

    Status Run(ComplexRecord* zero) {
        Start();
        if (Vanishes(now_, before_)) return Found(now_, zero);
        bool retry = false;  // whether stage one goes on with the stored step
        for (Count step = 0; step < kStepLimit; ++step) {
            bool whole_step = false;
            bool found = false;
            const Status status = StageOne(retry, &whole_step, &found);
            if (status != status::kSuccess || found) return found ? Found(now_, zero) : status;
            retry = false;
            if (!whole_step) continue;
            const Status newton = StageTwo(&retry, &found);
            if (newton != status::kSuccess || found) return found ? Found(now_, zero) : newton;
        }
        return status::kTooManyIterations;
    }

private:
    // p(w) by Horner's rule from the high end.
    Point At(ComplexRecord w) const {
        ComplexRecord p = a_[count_ - 1];
        for (Count k = count_ - 2; k >= 0; --k) p = CxAdd(a_[k], CxMultiply(p, w));
        return {w, p, CxMagnitude(p)};
    }

    // p'(w) by Horner's rule on k·a[k].
    ComplexRecord Derivative(ComplexRecord w) const {
        ComplexRecord p = CxScale(a_[count_ - 1], count_ - 1);
        for (Count k = count_ - 2; k >= 1; --k) p = CxAdd(CxScale(a_[k], k), CxMultiply(p, w));
        return p;
    }

    // A value of zero, or one that no longer changes and is as small as rounding makes it.
    bool Vanishes(const Point& p, const Point& reference) const {
        return p.modulus == 0 || (p.modulus == reference.modulus && p.modulus <= residual_);
    }

    bool Stands() const {
        return Vanishes(now_, before_) ||
               CxMagnitude(CxSubtract(now_.at, before_.at)) < kPrecision * CxMagnitude(now_.at);
    }

    static Status Found(const Point& p, ComplexRecord* zero) {
        *zero = p.at;
        return status::kSuccess;
    }

    // Half way to where the nearest zero can be at most, in the direction of the Newton step from 0.
    void Start() {
        before_ = {{0, 0}, a_[0], CxMagnitude(a_[0])};
        step_ = IsZero(a_[1]) ? ComplexRecord{1, 0} : CxNegate(CxDivide(a_[0], a_[1]));
        double radius = 1;
        for (Count k = 1; k < count_; ++k) {
            if (IsZero(a_[k])) continue;
            radius = std::min(radius, std::pow(CxMagnitude(CxDivide(a_[0], a_[k])), 1.0 / k));
        }
        residual_ = 16.0 * (count_ - 2) * before_.modulus * kPrecision;
        now_ = At(CxScale(step_, radius / 2 / CxMagnitude(step_)));
    }

    void MoveTo(const Point& next) {
        before_ = now_;
        now_ = next;
        step_ = CxSubtract(now_.at, before_.at);
    }

    // One point further down along a limited and turned Newton step. `retry`: along the stored step.
    Status StageOne(bool retry, bool* whole_step, bool* found) {
        ComplexRecord dz = step_;
        if (!retry) {
            const ComplexRecord derivative = Derivative(now_.at);
            if (IsNaN(derivative)) return status::kNoFeasibleSolution;
            if (IsZero(derivative)) {
                dz = CxMultiply(step_, kTurnBack);
            } else {
                dz = CxNegate(CxDivide(now_.value, derivative));
                const double longest = 3 * CxMagnitude(CxSubtract(now_.at, before_.at));
                const double length = CxMagnitude(dz);
                if (length > longest) dz = CxScale(CxMultiply(dz, kTurnLong), longest / length);
            }
        }
        for (Count failed = 0; failed <= limit_; ++failed, dz = CxMultiply(dz, kTurnBack)) {
            Point best = At(CxAdd(now_.at, dz));
            if (Vanishes(best, now_)) return Take(best, found);
            if (best.modulus < now_.modulus) {
                *whole_step = Extend(dz, &best);
            } else {
                const Point half = At(CxAdd(now_.at, CxScale(dz, 0.5)));
                if (Vanishes(half, now_)) return Take(half, found);
                if (best.modulus <= half.modulus) continue;
                best = half;
                if (Shorten(dz, &best)) return Take(best, found);
            }
            MoveTo(best);
            *found = Stands();
            return status::kSuccess;
        }
        return status::kTooManyIterations;
    }

    Status Take(const Point& zero, bool* found) {
        MoveTo(zero);
        *found = true;
        return status::kSuccess;
    }

    // Multiples of the step, as long as the value goes on falling. Whether the plain step stayed the best.
    bool Extend(ComplexRecord dz, Point* best) const {
        Count multiple = 1;
        while (best->modulus != 0 && multiple < count_ - 1) {
            const Point further = At(CxAdd(now_.at, CxScale(dz, multiple + 1)));
            if (!(further.modulus < best->modulus)) break;
            *best = further;
            ++multiple;
        }
        return multiple == 1;
    }

    // A quarter of the step, and a turned quarter where that is better than the half in `best`. Whether a zero was met.
    bool Shorten(ComplexRecord dz, Point* best) const {
        const Point quarter = At(CxAdd(now_.at, CxScale(dz, 0.25)));
        const bool zero = Vanishes(quarter, *best);
        if (!zero && !(quarter.modulus < best->modulus)) return false;
        *best = quarter;
        if (zero) return true;
        const Point turned = At(CxAdd(now_.at, CxMultiply(dz, kTurnShort)));
        const bool turned_zero = Vanishes(turned, now_);
        if (turned_zero || turned.modulus < best->modulus) *best = turned;
        return turned_zero;
    }

    // Pure Newton steps, while Newton's condition of convergence holds and each goes down. `retry`: a step went up, and
    // stage one shall go on from the last good point with the last good step, turned.
    Status StageTwo(bool* retry, bool* found) {
        for (;;) {
            const ComplexRecord derivative = Derivative(now_.at);
            const ComplexRecord derivative_before = Derivative(before_.at);
            if (IsNaN(derivative) || IsNaN(derivative_before)) return status::kNoFeasibleSolution;
            const double distance = CxMagnitude(CxSubtract(now_.at, before_.at));
            if (distance * CxSquaredMagnitude(derivative) <
                2 * CxMagnitude(CxSubtract(derivative, derivative_before)) * now_.modulus)
                return status::kSuccess;
            const ComplexRecord dz = CxNegate(CxDivide(now_.value, derivative));
            const Point next = At(CxAdd(now_.at, dz));
            if (Vanishes(next, now_) || CxMagnitude(dz) < kPrecision * CxMagnitude(next.at)) return Take(next, found);
            if (next.modulus >= now_.modulus) {
                step_ = CxMultiply(step_, kTurnBack);
                *retry = true;
                return status::kSuccess;
            }
            MoveTo(next);
        }
    }

    const ComplexRecord* a_;
    Count count_;
    Count limit_;
    double residual_ = 0;
    Point before_{};
    Point now_{};
    ComplexRecord step_{};
};

// A·x² + B·x + C = 0, the constant term first: -b / 2A and -2C / b with the larger b of B ± sqrt(B² - 4AC).
void QuadraticZeros(const ComplexRecord* a, ComplexRecord* z) {
    if (IsZero(a[0])) {
        z[0] = {0, 0};
        z[1] = CxNegate(CxDivide(a[1], a[2]));
        return;
    }
    const ComplexRecord root = CxSqrt(CxSubtract(CxMultiply(a[1], a[1]), CxScale(CxMultiply(a[2], a[0]), 4)));
    const ComplexRecord plus = CxAdd(a[1], root);
    const ComplexRecord minus = CxSubtract(a[1], root);
    const ComplexRecord b = CxMagnitude(minus) > CxMagnitude(plus) ? minus : plus;
    z[0] = CxNegate(CxDivide(b, CxScale(a[2], 2)));
    z[1] = CxDivide(CxScale(a[0], -2), b);
}

}  // namespace

Status PolyZerosComplex(const ComplexRecord* a, Count m, Count limit, ComplexRecord* z) noexcept {
    if (m < 1) return status::kSamplesNotPositive;
    Block<ComplexRecord> work(static_cast<std::size_t>(m));
    if (!work) return status::kOutOfMemory;
    std::copy_n(a, m, work.get());
    for (Count k = 0; k < m; ++k)
        if (IsNaN(work[k])) return status::kInvalidPolynomial;
    Count count = m;
    while (count > 0 && IsZero(work[count - 1])) --count;
    if (count < 2) return status::kInvalidPolynomial;

    ComplexRecord* p = work;
    for (; IsZero(p[0]); ++p, --count) *z++ = {0, 0};
    for (; count > 3; --count) {
        ComplexRecord zero;
        const Status status = Search(p, count, limit).Run(&zero);
        if (status != status::kSuccess) return status;
        *z++ = zero;
        // Synthetic division from the high end; the quotient takes the place of the coefficients above the lowest one.
        for (Count k = count - 2; k >= 1; --k) p[k] = CxAdd(p[k], CxMultiply(zero, p[k + 1]));
        ++p;
    }
    if (count == 3) QuadraticZeros(p, z);
    if (count == 2) *z = CxNegate(CxDivide(p[0], p[1]));
    return status::kSuccess;
}

Status PolyZeros(const double* c, Count m, ComplexRecord* z) noexcept {
    if (m < 1) return status::kSamplesNotPositive;
    Block<ComplexRecord> ascending(static_cast<std::size_t>(m));
    if (!ascending) return status::kOutOfMemory;
    for (Count k = 0; k < m; ++k) ascending[k] = {c[m - 1 - k], 0};
    return PolyZerosComplex(ascending, m, kTrialLimit, z);
}

}  // namespace quorvan
