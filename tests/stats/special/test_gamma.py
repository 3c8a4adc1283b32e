"""The gamma family beside mpmath at 50 digits and SciPy.

    test_gamma.py LIBRARY    prints the measured errors, region by region, as the table of docs/accuracy.md

Bounds come from counting roundings, in units of u = 2^-53; the comment beside a bound says which.
"""

import math
import sys

import mpmath
import numpy as np
import pytest
import scipy.special

import accuracy
from accuracy import U, Region, address, beside, grid, logarithmic, pairs, rng

# --- exact values ------------------------------------------------------------------------------------------------------


def exact_ln_gamma(x):
    return mpmath.re(mpmath.loggamma(mpmath.mpf(x)))


def exact_stirling(x):
    """The five-term formula itself, with the printed coefficients: not Gamma."""
    terms = ["7.87311395793093628397e-4", "-2.29549961613378126380e-4", "-2.68132617805781232825e-3",
             "3.47222221605458667310e-3", "8.33333333333482257126e-2", "1"]
    x = mpmath.mpf(x)
    return mpmath.sqrt(2 * mpmath.pi) * x**(x - 0.5) * mpmath.exp(-x) * mpmath.polyval([mpmath.mpf(t) for t in terms], 1 / x)


def exact_lower_gamma(a, x):
    """x^a e^-x / Gamma(a+1) (1 + x/(a+1) + ...): only positive terms (DLMF 8.7.1)."""
    a, x = mpmath.mpf(a), mpmath.mpf(x)
    term = total = mpmath.mpf(1)
    n = a
    while term > total * mpmath.eps:
        n += 1
        term = term * x / n
        total += term
    return mpmath.exp(a * mpmath.log(x) - x - mpmath.loggamma(a + 1)) * total


def exact_lower_beta(a, b, x):
    """x^a (1-x)^b / (a B(a, b)) (1 + (a+b)/(a+1) x + ...): only positive terms (DLMF 8.17.8)."""
    a, b, x = mpmath.mpf(a), mpmath.mpf(b), mpmath.mpf(x)
    term = total = mpmath.mpf(1)
    n = mpmath.mpf(0)
    while True:
        ratio = (a + b + n) / (a + 1 + n) * x
        term *= ratio
        total += term
        n += 1
        if ratio < 1 and term < total * mpmath.eps * (1 - ratio):
            break
    ln_beta = mpmath.loggamma(a) + mpmath.loggamma(b) - mpmath.loggamma(a + b)
    return mpmath.exp(a * mpmath.log(x) + b * mpmath.log1p(-x) - ln_beta) / a * total


def complement(function, *args):
    """1 - f at a precision that keeps 50 digits of a small difference."""
    with mpmath.workdps(60):
        rough = 1 - function(*args)
        lost = 0 if rough > 1e-5 else 40 if rough > 1e-40 else 340
    if not lost:
        return rough
    with mpmath.workdps(60 + lost):
        return 1 - function(*args)


def exact_p(a, x):
    return exact_lower_gamma(a, x)


def exact_q(a, x):
    return complement(exact_lower_gamma, a, x)


def exact_i(a, b, x):
    if x <= 0.5:  # the side where the sum is short
        return exact_lower_beta(a, b, x)
    return complement(lambda: exact_lower_beta(b, a, 1 - mpmath.mpf(x)))


def exact_beta(a, b):
    a, b = mpmath.mpf(a), mpmath.mpf(b)
    return mpmath.gammaprod([a, b], [a + b])


def exact_zeta(x):
    with mpmath.workdps(100):
        return mpmath.zeta(mpmath.mpf(x)) - 1


def exact_dilogarithm(x):
    return mpmath.re(mpmath.polylog(2, 1 - mpmath.mpf(x)))


# --- the functions through their numbers -------------------------------------------------------------------------------


FUNCTIONS = {
    "SpecGamma": (lambda qv, x: qv.ZemFunc309(x, None), mpmath.gamma, scipy.special.gamma),
    "SpecGammaStirling": (lambda qv, x: qv.ZemFunc314(x), exact_stirling, None),
    "SpecLnGamma": (lambda qv, x: qv.ZemFunc312(x), exact_ln_gamma, scipy.special.gammaln),
    "SpecDigamma": (lambda qv, x: qv.ZemFunc313(x), lambda x: mpmath.digamma(mpmath.mpf(x)), scipy.special.digamma),
    "SpecFactorial": (lambda qv, n: qv.ZemFunc308(int(n)), lambda n: mpmath.mpf(math.factorial(int(n))),
                      scipy.special.factorial),
    "SpecLnFactorial": (lambda qv, n: qv.ZemFunc311(int(n)), lambda n: mpmath.loggamma(mpmath.mpf(int(n)) + 1),
                        lambda n: scipy.special.gammaln(n + 1)),
    "SpecBeta": (lambda qv, a, b: qv.ZemFunc307(a, b, None), exact_beta, scipy.special.beta),
    "SpecIncompleteGamma": (lambda qv, a, x: qv.ZemFunc309(a, address(x)), exact_p, scipy.special.gammainc),
    "SpecIncompleteGammaComplement": (lambda qv, a, x: qv.ZemFunc310(a, x), exact_q, scipy.special.gammaincc),
    "SpecIncompleteBeta": (lambda qv, a, b, x: qv.ZemFunc307(a, b, address(x)), exact_i, scipy.special.betainc),
    "SpecZeta": (lambda qv, x: qv.ZemFunc329(x), exact_zeta, scipy.special.zetac),
    "SpecDilogarithm": (lambda qv, x: qv.ZemFunc326(x), exact_dilogarithm, scipy.special.spence),
}


def near_mean(low, high, spread, seed, count=150):
    """(a, x) with x within `spread` standard deviations sqrt(a) of a."""
    a = logarithmic(low, high, count, seed)
    x = a + rng(seed + 1).uniform(-spread, spread, count) * np.sqrt(a)
    return [(p, t) for p, t in zip(a, x) if t > 0.1 * p]


def gamma_square(a_low, a_high, x_low, x_high, seed, count=400):
    return pairs(logarithmic(a_low, a_high, count, seed), logarithmic(x_low, x_high, count, seed + 1))


def beta_cube(a_low, a_high, b_low, b_high, seed, count=300):
    a, b = logarithmic(a_low, a_high, count, seed), logarithmic(b_low, b_high, count, seed + 1)
    return list(zip(a, b, rng(seed + 2).uniform(0, 1, count)))


def beta_near_mean(low, high, spread, seed, count=60):
    a, b = logarithmic(low, high, count, seed), logarithmic(low, high, count, seed + 1)
    mean = a / (a + b)
    x = mean + rng(seed + 2).uniform(-spread, spread, count) * np.sqrt(mean * (1 - mean) / (a + b))
    return [(p, q, t) for p, q, t in zip(a, b, x) if 0 < t < 1]


REGIONS = []


def without_integers(x):
    return x[x != np.floor(x)]


NEAR_ONE_AND_TWO = np.array([1 - 2.0**-52, 2 - 2.0**-52])  # pinned at 0.5 elsewhere
POLES = -np.arange(1.0, 34)
FAR_POLES = -np.arange(34.0, 170)


def region(*args, **kwargs):
    REGIONS.append(Region(*args, **kwargs))


# Gamma: each shift by 1 rounds twice (at most 33 shifts, which add up like a random walk, 2 sqrt(33) u), the rational form about 4
# times. Stirling: pow and exp to 1 u each, the power's exponent is exact, 3 products.
region("SpecGamma", "[2, 3]", lambda: grid(2, 3), 8, scipy=1e-14)
region("SpecGamma", "(0, 2)", lambda: np.setdiff1d(grid(1e-12, 2), NEAR_ONE_AND_TWO), 8, scipy=1e-14)
region("SpecGamma", "[3, 33]", lambda: grid(3, 33), 16, scipy=1e-14)
region("SpecGamma", "1e-300 <= abs(x) <= 1e-5",
       lambda: np.r_[logarithmic(1e-300, 1e-5), -logarithmic(1e-300, 1e-5)], 8, scipy=1e-14)
region("SpecGamma", "[-33, 0), off the integers", lambda: without_integers(grid(-33, -1e-3)), 16, scipy=1e-14)
region("SpecGamma", "beside the poles -1 to -33", lambda: beside(POLES), 16, scipy=1e-14)
region("SpecGamma", "(33, 143.01608]", lambda: grid(np.nextafter(33, 34), 143.01608), 12, scipy=1e-14)
region("SpecGamma", "(143.01608, 171.62]", lambda: grid(np.nextafter(143.01608, 144), 171.624376956), 12, scipy=1e-14)
region("SpecGamma", "[-170, -33), off the integers", lambda: without_integers(grid(-170, -33)), 16, scipy=1e-14)
region("SpecGamma", "beside the poles -34 to -169", lambda: beside(FAR_POLES, least=1e-12), 16, scipy=1e-14)
region("SpecGammaStirling", "[1, 33], against the formula", lambda: grid(1, 33), 12)
region("SpecGammaStirling", "(33, 171], against the formula", lambda: grid(33, 171), 12)
region("SpecFactorial", "0 to 33", lambda: np.arange(34.0), 1, scipy=1e-14)
region("SpecFactorial", "34 to 170", lambda: np.arange(34.0, 171), 12, scipy=1e-14)

# ln Gamma: logarithm and rational form to a few u each; relative to the zeros 1 and 2 what the cut at 1.9 leaves of the
# rational form, 3e-15, and of two cancelling terms beside it. Stirling's terms cancel by a factor of 2 to 4 near 13.
region("SpecLnGamma", "(0, 0.5]", lambda: logarithmic(5e-324, 0.5), 8, scipy=0)
region("SpecLnGamma", "(0.5, 3), relative to its zeros 1 and 2", lambda: np.setdiff1d(grid(0.5, 3), [1, 2]), 64)
region("SpecLnGamma", "beside 1 and 2, down to 1e-15", lambda: beside([1.0, 2.0]), 64)
region("SpecLnGamma", "(0.5, 3)", lambda: grid(0.5, 3), 8, mixed=True, scipy=1e-14)
region("SpecLnGamma", "[3, 13)", lambda: grid(3, 13), 8, scipy=1e-14)
region("SpecLnGamma", "[13, 1000)", lambda: grid(13, 1000), 8, scipy=1e-14)
region("SpecLnGamma", "[1000, 2.5e305]", lambda: logarithmic(1000, 2.5e305), 8, scipy=1e-14)
region("SpecLnGamma", "[-33, 0), off the integers", lambda: without_integers(grid(-33, -1e-3)), 16, mixed=True, scipy=1e-14)
region("SpecLnGamma", "[-1000, -33), off the integers", lambda: without_integers(grid(-1000, -33)), 16, mixed=True, scipy=1e-14)
region("SpecLnGamma", "beside the poles -1 to -59", lambda: beside(-np.arange(1.0, 60), least=1e-14), 16, mixed=True, scipy=1e-13)
region("SpecLnFactorial", "2 to 1000", lambda: np.arange(2.0, 1001), 8, scipy=1e-14)
region("SpecLnFactorial", "1000 to 2^32 - 1", lambda: np.floor(logarithmic(1000, 2.0**32)), 8, scipy=1e-14)

# psi: up to 10 reciprocals and sums. SciPy, up to 1e-2 off beside the poles, is no witness at negative arguments.
region("SpecDigamma", "(0.01, 10]", lambda: grid(0.01, 10), 20, mixed=True, scipy=1e-14)
region("SpecDigamma", "[10, 1e300]", lambda: logarithmic(10, 1e300), 4, scipy=1e-14)
region("SpecDigamma", "1e-300 <= abs(x) <= 0.1", lambda: np.r_[logarithmic(1e-300, 0.1), -logarithmic(1e-300, 0.1)], 12, scipy=1e-14)
region("SpecDigamma", "[-50, 0), off the integers", lambda: without_integers(grid(-50, -1e-3)), 20, mixed=True)
region("SpecDigamma", "beside the poles -1 to -59", lambda: beside(-np.arange(1.0, 60), least=1e-14), 20, mixed=True)

# B: by Gammas three of them, with the rounding of a + b put back; by logarithms taken together 2 u for each unit of the exponent,
# at most ln 1e300 = 690; with a negative argument 2 u times each of the separate logarithms, up to 6000.
region("SpecBeta", "a, b in [1e-5, 85]", lambda: pairs(logarithmic(1e-5, 85), logarithmic(1e-5, 85, seed=5)), 16, scipy=1e-12)
region("SpecBeta", "a in [1e-5, 30], b in [170, 1e8]", lambda: pairs(logarithmic(1e-5, 30), logarithmic(170, 1e8, seed=5)), 1400)
region("SpecBeta", "a, b in [85, 400]", lambda: pairs(logarithmic(85, 400), logarithmic(85, 400, seed=5)), 1400)
region("SpecBeta", "a, b in [-80, 80]", lambda: pairs(rng(1).uniform(-80, 80, 800), rng(2).uniform(-80, 80, 800)), 24)
region("SpecBeta", "a in [-1000, -200], b in [200, 800]",
       lambda: pairs(rng(1).uniform(-1000, -200, 400), rng(2).uniform(200, 800, 400)), 60000)

# P and Q: pow and exp in the factor below order 13; the exponent of the factor beside its peak above, at most 700 u in the tails
# but a few u within 6 deviations; sum or fraction some 10 u, but 80 rounds and 1 u each beside x = 1. P by 1 - Q and Q by 1 - P:
# half of that, as what is taken from 1 is at most one half.
region("SpecIncompleteGamma", "a in [1e-6, 13], x in [1e-6, a or 1]",
       lambda: [(a, x) for a, x in gamma_square(1e-6, 13, 1e-6, 13, 1) if x <= max(a, 1)], 40, scipy=1e-12)
region("SpecIncompleteGamma", "a in [1e-6, 13], x in [a, 300]",
       lambda: [(a, x) for a, x in gamma_square(1e-6, 13, 1, 300, 1) if x > a], 60, scipy=1e-12)
region("SpecIncompleteGamma", "a in [13, 1e5], within 6 deviations", lambda: near_mean(13, 1e5, 6, 1), 128, scipy=1e-11)
region("SpecIncompleteGamma", "a in [1e5, 1e7], within 6 deviations", lambda: near_mean(1e5, 1e7, 6, 1, 25), 64)
region("SpecIncompleteGamma", "a in [13, 1e4], x in [0.2 a, a]",
       lambda: [(a, a * f) for a, f in zip(logarithmic(13, 1e4, 60), rng(4).uniform(0.2, 1, 60))], 1400)
region("SpecIncompleteGamma", "a in [13, 100], x in [1e-3, a]",
       lambda: [(a, x) for a, x in gamma_square(13, 100, 1e-3, 100, 6) if x < a], 1400)
region("SpecIncompleteGammaComplement", "a in [1e-6, 13], x in [a or 1, 300]",
       lambda: [(a, x) for a, x in gamma_square(1e-6, 13, 1, 300, 1) if x >= a], 120, scipy=1e-12)
region("SpecIncompleteGammaComplement", "a in [1e-6, 13], x in [1e-6, 1], to 1",
       lambda: gamma_square(1e-6, 13, 1e-6, 1, 1), 16, mixed=True, scipy=1e-13)
region("SpecIncompleteGammaComplement", "a in [13, 1e5], within 6 deviations", lambda: near_mean(13, 1e5, 6, 1), 128, scipy=1e-11)
region("SpecIncompleteGammaComplement", "a in [1e5, 1e7], within 6 deviations", lambda: near_mean(1e5, 1e7, 6, 1, 25), 64)
region("SpecIncompleteGammaComplement", "a in [13, 1e4], x in [a, 2 a]",
       lambda: [(a, a * f) for a, f in zip(logarithmic(13, 1e4, 60), rng(4).uniform(1, 2, 60))], 1400)

# I: the density like the factor above, the fractions some 20 u, and above the mean the complement, relative to what it leaves.
region("SpecIncompleteBeta", "a, b in [0.001, 13]", lambda: beta_cube(1e-3, 13, 1e-3, 13, 1), 64, scipy=1e-12)
region("SpecIncompleteBeta", "a, b in [0.1, 64], within 6 deviations", lambda: beta_near_mean(0.1, 64, 6, 1, 200), 300, scipy=1e-11)
region("SpecIncompleteBeta", "a in [0.1, 13], b in [13, 1e6]", lambda: skewed(False), 64)
region("SpecIncompleteBeta", "a in [13, 1e6], b in [0.1, 13], to 1", lambda: skewed(True), 64, mixed=True)
region("SpecIncompleteBeta", "a, b in [64, 1e5], within 6 deviations", lambda: beta_near_mean(64, 1e5, 6, 1), 128, scipy=1e-8)
region("SpecIncompleteBeta", "a, b in [1e5, 1e7], within 6 deviations", lambda: beta_near_mean(1e5, 1e7, 6, 1, 8), 128)
region("SpecIncompleteBeta", "a, b in [1, 64], any x", lambda: beta_cube(1, 64, 1, 64, 2), 1400, scipy=1e-11)
region("SpecIncompleteBeta", "a, b in [0.1, 64], x in [1e-12, 0.1]",
       lambda: list(zip(logarithmic(0.1, 64, 200, 3), logarithmic(0.1, 64, 200, 4), logarithmic(1e-12, 0.1, 200, 5))), 1400)
region("SpecIncompleteBeta", "a, b in [13, 1000], x in [1e-6, 0.9]",
       lambda: list(zip(logarithmic(13, 1000, 200, 3), logarithmic(13, 1000, 200, 4), logarithmic(1e-6, 0.9, 200, 5))), 1400)

# zeta - 1: rational forms and exp to a few u; left of 0 five factors around a difference from 1.
region("SpecZeta", "[0, 1)", lambda: grid(0, 1 - 1e-9), 8, scipy=1e-14)
region("SpecZeta", "(1, 10]", lambda: grid(1 + 1e-9, 10), 16, scipy=1e-14)
region("SpecZeta", "(10, 50]", lambda: grid(np.nextafter(10, 11), 50), 8, scipy=1e-14)
region("SpecZeta", "(50, 127)", lambda: grid(np.nextafter(50, 51), np.nextafter(127, 0)), 8, scipy=1e-14)
region("SpecZeta", "[-30.8148, 0)", lambda: grid(-30.8148, -1e-3), 40, mixed=True, scipy=1e-12)
region("SpecZeta", "[-0.1, -1e-20]", lambda: -logarithmic(1e-20, 0.1), 12, scipy=1e-13)

# Spence: the denominator of the rational form cancels towards w = -1/2.
region("SpecDilogarithm", "(0, 0.1]", lambda: logarithmic(1e-300, 0.1), 8, scipy=1e-14)
region("SpecDilogarithm", "[0.1, 2]", lambda: np.setdiff1d(grid(0.1, 2), [1]), 48, scipy=1e-13)
region("SpecDilogarithm", "beside 1", lambda: beside([1.0]), 8, scipy=1e-14)
region("SpecDilogarithm", "[2, 1e300]", lambda: logarithmic(2, 1e300), 8, scipy=1e-14)


def skewed(exchanged):
    """One parameter small and one large, with x between a tenth of and twice the mean of the small one's side."""
    small, large = logarithmic(0.1, 13, 150, 7), logarithmic(13, 1e6, 150, 8)
    x = small / (small + large) * rng(9).uniform(0.1, 2, 150)
    if exchanged:
        return [(b, a, 1 - t) for a, b, t in zip(small, large, x) if t < 1]
    return [(a, b, t) for a, b, t in zip(small, large, x) if t < 1]


@pytest.mark.parametrize("which", REGIONS, ids=lambda r: f"{r.function} {r.label}")
def test_peak_error_stays_within_its_bound(qv, which):
    accuracy.check(qv, FUNCTIONS, which)


def test_the_sums_of_positive_terms_are_the_functions_of_mpmath():
    """The exact values of P, Q and I above come from our own sums; mpmath's functions agree with them."""
    for a, x in [(0.3, 0.2), (2.5, 7.0), (40.0, 33.0), (150.0, 190.0)]:
        p = mpmath.gammainc(a, 0, x, regularized=True)
        q = mpmath.gammainc(a, x, mpmath.inf, regularized=True)
        assert abs(exact_p(a, x) / p - 1) < 1e-40 and abs(exact_q(a, x) / q - 1) < 1e-30
    for a, b, x in [(0.3, 0.2, 0.9), (2.5, 7.0, 0.1), (40.0, 33.0, 0.6), (0.5, 80.0, 0.02)]:
        i = mpmath.betainc(a, b, 0, x, regularized=True)
        assert abs(exact_i(a, b, x) / i - 1) < 1e-30


def test_uniform_expansions_meet_the_normal_limit_of_huge_parameters(qv):
    """Beyond any sum: the normal distribution with the first Edgeworth term, skewness 2/sqrt(a); the next is of order 1/a."""
    for a in (1e14, 1e20):
        for wanted in (-3.0, -1.0, 0.0, 0.5, 2.0):
            x = a + wanted * math.sqrt(a)
            z = (mpmath.mpf(x) - a) / mpmath.sqrt(a)
            edgeworth = mpmath.ncdf(z) - mpmath.npdf(z) * (z * z - 1) / (3 * mpmath.sqrt(a))
            assert abs(qv.ZemFunc309(a, address(x)) - edgeworth) < 5 / a + 8 * U
            assert abs(qv.ZemFunc310(a, x) - (1 - edgeworth)) < 5 / a + 8 * U
    for a, b in ((1e12, 1e12), (1e12, 3e14), (4e16, 1e15)):
        mean = mpmath.mpf(a) / (mpmath.mpf(a) + b)
        deviation = mpmath.sqrt(mean * (1 - mean) / (mpmath.mpf(a) + b))
        skewness = 2 * (1 - 2 * mean) / mpmath.sqrt(mean * (1 - mean) * (mpmath.mpf(a) + b))
        for wanted in (-3.0, -1.0, 0.0, 0.5, 2.0):
            x = float(mean + wanted * deviation)
            z = (x - mean) / deviation
            edgeworth = mpmath.ncdf(z) - mpmath.npdf(z) * (z * z - 1) * skewness / 6
            assert abs(qv.ZemFunc307(a, b, address(x)) - edgeworth) < 5 / min(a, b) + 16 * U


if __name__ == "__main__":
    accuracy.print_table(sys.argv[1], FUNCTIONS, REGIONS)
