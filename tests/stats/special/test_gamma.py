"""The gamma family beside mpmath at 50 digits and SciPy.

    test_gamma.py LIBRARY    prints the measured errors, region by region, as the table of docs/accuracy.md

Each region is a grid of points with the exact value beside each. The error is relative, or, where the function has zeros
inside the region, relative to max(1, |value|) ("mixed"). Bounds come from counting roundings, in units of u = 2^-53; the
comment beside a bound says which.
"""

import math
import pathlib
import sys
from dataclasses import dataclass
from typing import Callable

import mpmath
import numpy as np
import pytest
import scipy.special

U = 2.0**-53
mpmath.mp.dps = 50


def rng(seed):
    return np.random.default_rng(seed)


def grid(low, high, count=1500, seed=1):
    """Even and random points of an interval, its ends and their neighbours."""
    even = np.linspace(low, high, count // 2)
    random = rng(seed).uniform(low, high, count // 2)
    ends = [low, np.nextafter(low, high), high, np.nextafter(high, low)]
    return np.unique(np.concatenate([even, random, ends]))


def beside(points, reach=1e-1, least=1e-15):
    """Points on both sides of each of the given ones, at distances from `least` to `reach`; not the points."""
    offsets = np.geomspace(least, reach, 25)
    all_points = np.concatenate([[p - offsets, p + offsets] for p in points]).ravel()
    return np.setdiff1d(all_points, points)


def logarithmic(low, high, count=800, seed=2):
    return np.exp(rng(seed).uniform(math.log(low), math.log(high), count))


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


def address(x):
    return np.array([x], dtype=np.float64)


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


@dataclass
class Region:
    function: str
    label: str
    points: Callable          # an array of arguments, or of tuples of them
    bound: float              # peak error, in units of u
    mixed: bool = False
    scipy: float = 0.0        # peak difference from SciPy in the same measure; 0: SciPy is no witness here


def pairs(a, x):
    return list(zip(a, x))


def near_mean(low, high, spread, seed, count=150):
    """(a, x) with x within `spread` standard deviations sqrt(a) of a."""
    a = logarithmic(low, high, count, seed)
    x = a + rng(seed + 1).uniform(-spread, spread, count) * np.sqrt(a)
    return pairs(a, np.maximum(x, 1e-3))


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
