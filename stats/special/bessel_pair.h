// J and Y together: expansions that give both at once, for the functions of real order.
#pragma once

namespace quorvan {

struct BesselPair {
    double j, y;
};

// The same of two adjacent orders v and v + 1.
struct BesselPairs {
    BesselPair at, above;
};

// The order from which the expansions for large orders serve; below, recurrences are nearer, and not yet long.
inline constexpr double kLargeBesselOrder = 2000;

// True where Hankel's expansion holds to the last place: x >= 20 and v^2 <= 2 x.
bool HankelHolds(double v, double x) noexcept;

// sqrt(2/(pi x)) (P cos u - Q sin u) and (P sin u + Q cos u), u = x - (v/2 + 1/4) pi, P and Q the sums of
// (4v^2 - 1)(4v^2 - 9).../(k! (8x)^k) up to the least term. H. Hankel (1869); A&S 9.2.5 to 9.2.10.
BesselPair HankelPair(double v, double x) noexcept;

// For v >= 2000: Hankel above 0.3 v^2, the transition expansion within 0.7 v^(1/3) of the order (A&S 9.3.23, 9.3.24),
// the uniform one elsewhere (F. W. J. Olver, 1954; A&S 9.3.35, 9.3.36).
BesselPair LargeOrderPair(double v, double x) noexcept;

// For |mu| <= 1/2 and x > 0: N. M. Temme's series (1976) below 2; from there to 20 J by downward recurrence from
// nothing (J. C. P. Miller), Y by J. Steed's continued fraction; Hankel above.
BesselPairs LowOrderPairs(double mu, double x) noexcept;

}  // namespace quorvan
