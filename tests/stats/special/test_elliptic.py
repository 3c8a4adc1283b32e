"""Elliptic and integral functions beside mpmath at 50 digits and SciPy.

    test_elliptic.py LIBRARY    prints the measured errors, region by region, as the table of docs/accuracy.md

Bounds come from counting roundings, in units of u = 2^-53; the comment beside a bound says which.
"""

import math
import sys

import mpmath
import numpy as np
import pytest
import scipy.special

import accuracy
from accuracy import U, Region, address, beside, grid, logarithmic, many, pairs, rng

# --- exact values ------------------------------------------------------------------------------------------------------


def exact_dawson(x):
    x = mpmath.mpf(x)
    if abs(x) < 30:
        return mpmath.sqrt(mpmath.pi) / 2 * mpmath.exp(-x * x) * mpmath.erfi(x)
    term = total = 1 / (2 * x)  # DLMF 7.12.1 through erfi: 1/(2x) (1 + 1/(2 x^2) + 3/(2 x^2)^2 + ...)
    for k in range(1, 400):
        term *= (2 * k - 1) / (2 * x * x)
        if abs(term) < abs(total) * mpmath.mpf(10)**-40:
            break
        total += term
    return total


def exact_expint(x, n):
    """The continued fraction e^-x/(x+n - 1 n/(x+n+2 - ...)) from its tail for large n, DLMF 8.9.2; mpmath below."""
    x, n = mpmath.mpf(x), int(n)
    if n < 200:
        return mpmath.expint(n, x)
    denominator = x + n + 240
    for k in range(120, 0, -1):
        denominator = x + n + 2 * (k - 1) - k * (n - 1 + k) / denominator
    return mpmath.exp(-x) / denominator


def jacobi(name):
    return lambda u, m: mpmath.re(mpmath.ellipfun(name, u=mpmath.mpf(u), m=mpmath.mpf(m)))


def exact_parabolic(x, v):
    """The stated sum itself in high precision, its short Gamma series included: not D_v."""
    x, v = mpmath.mpf(x), mpmath.mpf(v)

    def reciprocal(z):
        p = mpmath.mpf(1)
        while z <= 3:
            if z == 0:
                return z
            p *= z
            z += 1
        s = 2 / z**2
        u = (((s / 3 - 1) * (s / 7) + 1) * s) / 60 - 1
        return p * mpmath.sqrt(z / 2) * mpmath.exp(u / (12 * z) - (mpmath.log(z) - 1) * z)

    w, m = x * x / 2, (v + 1) / 2
    limit = abs((2 - v) * (x + 2) * mpmath.mpf(0.2)) + 6 * abs(x) + 3 + w
    e = mpmath.exp(mpmath.mpf(0.34657359027997264) * v - w / 2)
    t1 = reciprocal((1 - v) / 2) * e
    t2 = mpmath.mpf(-1.4142135623730951) * x * reciprocal(-v / 2) * e
    c1, c2, total, k = t1, t2, mpmath.exp(w) * (t1 + t2), 1
    while k <= limit:
        t1 *= (k - 0.5 - m) * w / ((k - 0.5) * k)
        c1 *= w / k
        c2 *= w / k
        t2 *= (k - m) * w / ((k + 0.5) * k)
        total += (t1 - c1) + t2 - c2
        k += 1
    return total


# --- the functions through their numbers -------------------------------------------------------------------------------


def call_jacobi(which):
    def call(qv, u, m):
        out = [np.zeros(1) for _ in range(4)]
        qv.ZemFunc332(u, m, *out)
        return out[which][0]
    return call


def call_fresnel(which):
    def call(qv, x):
        out = [np.zeros(1), np.zeros(1)]
        qv.ZemFunc331(x, *out)
        return out[which][0]
    return call


special = scipy.special
FUNCTIONS = {
    "SpecEllipticK": (lambda qv, m: qv.ZemFunc318(m, None), mpmath.ellipk, special.ellipk),
    "SpecEllipticE": (lambda qv, m: qv.ZemFunc319(m, None), mpmath.ellipe, special.ellipe),
    "SpecEllipticF": (lambda qv, phi, m: qv.ZemFunc318(m, address(phi)),
                      lambda phi, m: mpmath.ellipf(mpmath.mpf(phi), mpmath.mpf(m)), special.ellipkinc),
    "SpecEllipticEIncomplete": (lambda qv, phi, m: qv.ZemFunc319(m, address(phi)),
                                lambda phi, m: mpmath.ellipe(mpmath.mpf(phi), mpmath.mpf(m)), special.ellipeinc),
    "SpecJacobiElliptic sn": (call_jacobi(0), jacobi("sn"), lambda u, m: special.ellipj(u, m)[0]),
    "SpecJacobiElliptic cn": (call_jacobi(1), jacobi("cn"), lambda u, m: special.ellipj(u, m)[1]),
    "SpecJacobiElliptic dn": (call_jacobi(2), jacobi("dn"), lambda u, m: special.ellipj(u, m)[2]),
    # Within a quarter period.
    "SpecJacobiElliptic phi": (call_jacobi(3), lambda u, m: mpmath.asin(jacobi("sn")(u, m)),
                               lambda u, m: special.ellipj(u, m)[3]),
    "SpecDawson": (lambda qv, x: qv.ZemFunc320(x), exact_dawson, special.dawsn),
    "SpecFresnel S": (call_fresnel(0), lambda x: mpmath.fresnels(mpmath.mpf(x)), lambda x: special.fresnel(x)[0]),
    "SpecFresnel C": (call_fresnel(1), lambda x: mpmath.fresnelc(mpmath.mpf(x)), lambda x: special.fresnel(x)[1]),
    "SpecExpIntegralN": (lambda qv, x, n: qv.ZemFunc321(x, int(n)), exact_expint, lambda x, n: special.expn(int(n), x)),
    "SpecSineIntegral": (lambda qv, x: qv.ZemFunc322(x), mpmath.si, lambda x: special.sici(x)[0]),
    "SpecCosineIntegral": (lambda qv, x: qv.ZemFunc323(x), lambda x: mpmath.re(mpmath.ci(x)), lambda x: special.sici(x)[1]),
    "SpecHyperbolicSineIntegral": (lambda qv, x: qv.ZemFunc325(x), mpmath.shi, lambda x: special.shichi(x)[0]),
    "SpecHyperbolicCosineIntegral": (lambda qv, x: qv.ZemFunc324(x), lambda x: mpmath.re(mpmath.chi(mpmath.mpf(x))),
                                     lambda x: special.shichi(x)[1]),
    "SpecParabolicCylinder": (lambda qv, x, v: qv.ZemFunc327(x, v), exact_parabolic, None),
    "SpecParabolicCylinder, D_v": (lambda qv, x, v: qv.ZemFunc327(x, v), lambda x, v: mpmath.pcfd(v, x),
                                   lambda x, v: special.pbdv(v, x)[0]),
}

REGIONS = []


def region(*args, **kwargs):
    REGIONS.append(Region(*args, **kwargs))


def square(x_low, x_high, y_low, y_high, seed, count=60):
    generator = rng(seed)
    return pairs(generator.uniform(x_low, x_high, many(count)), generator.uniform(y_low, y_high, many(count)))


def one_less(low, high, seed=3, count=60):
    return 1 - logarithmic(low, high, many(count), seed)


HALF_PI = math.pi / 2

# Two polynomials, a logarithm, a product and a difference of equal signs.
for name in ("SpecEllipticK", "SpecEllipticE"):
    region(name, "[0, 0.99]", lambda: grid(0, 0.99, many(300)), 6, scipy=1e-14)
    region(name, "1e-16 <= 1 - m <= 0.01", lambda: one_less(1.2e-16, 0.01, count=150), 6, scipy=1e-14)

# Five steps of the transformation, eight at most, with some four roundings each; for E the sum beside, which cancels nothing.
# Beyond pi/2 the remainder of phi is exact to u pi/2.
for name in ("SpecEllipticF", "SpecEllipticEIncomplete"):
    region(name, "0.015 < phi < pi/2, m in (0, 1)", lambda: square(0.015, HALF_PI, 0, 1, 1, 120), 24, scipy=1e-13)
    region(name, "abs(phi) <= 0.015", lambda: pairs(logarithmic(1e-300, 0.015, many(60)), rng(2).uniform(0, 1, many(60))), 3,
           scipy=1e-13)
    region(name, "on both sides of the cuts",
           lambda: [(p, m) for p in (0.015, math.atan(10)) for m in (0.1, 0.5, 0.9, 0.999) for p in
                    (np.nextafter(p, 0), p, np.nextafter(p, 2), p * 1.01)], 24, scipy=1e-13)
    region(name, "phi from pi/2 - 1e-2 to pi/2 - 1e-15",
           lambda: pairs(HALF_PI - logarithmic(1e-15, 1e-2, many(50)), rng(3).uniform(0, 1, many(50))), 24, scipy=1e-13)
    region(name, "phi < pi/2, 1e-15 < 1 - m < 1e-2",
           lambda: pairs(rng(4).uniform(0.015, HALF_PI, many(50)), one_less(1e-15, 1e-2, 5, 50)), 24)
    region(name, "phi < pi/2, 1e-20 < m < 0.1",
           lambda: pairs(rng(6).uniform(0.015, HALF_PI, many(50)), logarithmic(1e-20, 0.1, many(50))), 24, scipy=1e-13)
    region(name, "abs(phi) in [pi/2, 100]", lambda: square(-100, 100, 0, 0.99, 7, 60), 24, scipy=1e-12)

# An absolute error of u |u| in the amplitude, doubled in each of the steps and halved on the way back; the arcsine loses
# 1/sqrt(1 - m) beside 1, which shows in cn and dn where m is near 1.
for name in ("sn", "cn", "dn"):
    name = "SpecJacobiElliptic " + name
    region(name, "abs(u) <= 10, m in [1e-9, 0.9]", lambda: square(-10, 10, 1e-9, 0.9, 8, 60), 40, mixed=True, scipy=1e-13)
    region(name, "abs(u) <= 10, 1e-9 < 1 - m < 0.1", lambda: pairs(rng(9).uniform(-10, 10, many(60)), one_less(1e-9, 0.1)), 1200,
           mixed=True)
    region(name, "abs(u) <= 10, m < 1e-9", lambda: pairs(rng(10).uniform(-10, 10, many(40)), logarithmic(1e-20, 1e-9, many(40))),
           8, mixed=True, scipy=1e-14)
    region(name, "abs(u) <= 4, 1 - m < 1e-9", lambda: pairs(rng(11).uniform(-4, 4, many(40)), one_less(1.2e-16, 1e-9, 12, 40)), 8,
           mixed=True, scipy=1e-13)
    region(name, "4 < u <= 30, 1 - m < 1e-9",
           lambda: pairs(rng(13).uniform(4, 30, many(40)), one_less(1.2e-16, 1e-9, 14, 40)), 12000, mixed=True)
region("SpecJacobiElliptic phi", "abs(u) <= pi/2, m in (0, 1)", lambda: square(-1.57, 1.57, 0, 1, 15, 80), 8, scipy=1e-13)

# Rational forms: two polynomials of positive sums or beside 1, two or three more operations.
region("SpecDawson", "abs(x) < 3.25", lambda: grid(-3.25, 3.25, many(300)), 8, scipy=1e-14)
region("SpecDawson", "[3.25, 6.25)", lambda: grid(3.25, 6.25, many(200)), 8, scipy=1e-14)
region("SpecDawson", "[6.25, 1e10]", lambda: logarithmic(6.25, 1e10, many(200)), 6, scipy=1e-14)
region("SpecDawson", "1e-300 <= x <= 1e-3", lambda: logarithmic(1e-300, 1e-3, many(100)), 6, scipy=1e-14)

# Above the cut relative to values near 1/2. SciPy takes the angle unreduced.
for name in ("SpecFresnel S", "SpecFresnel C"):
    region(name, "x^2 < 2.5625", lambda: grid(-1.6, 1.6, many(300)), 10, scipy=1e-14)
    region(name, "1e-90 <= x <= 0.01", lambda: logarithmic(1e-90, 0.01, many(100)), 6, scipy=1e-14)
    region(name, "[1.6007811, 10]", lambda: grid(1.6007811, 10, many(300)), 6, scipy=1e-14)
    region(name, "[10, 36974]", lambda: logarithmic(10, 36974, many(100)), 4, scipy=1e-11)

# The series: psi, n - 1 sums, and terms that cancel by a factor of 4.5 at n = x = 1. The fraction: 40 positive differences at most.
region("SpecExpIntegralN", "n = 1, x in (0, 1]", lambda: [(x, 1) for x in grid(1e-6, 1, many(200))], 16, scipy=1e-14)
region("SpecExpIntegralN", "n in [2, 100], x in (0, 1]",
       lambda: pairs(rng(16).uniform(0, 1, many(150)), rng(17).integers(2, 100, many(150)).astype(float)), 16, scipy=1e-14)
region("SpecExpIntegralN", "n in [1, 100], x in (1, 3]",
       lambda: pairs(rng(18).uniform(1, 3, many(150)), rng(19).integers(1, 100, many(150)).astype(float)), 24, scipy=1e-13)
region("SpecExpIntegralN", "n in [1, 5000], x in (3, 700]",
       lambda: pairs(logarithmic(3, 650, many(60)), rng(20).integers(1, 5000, many(60)).astype(float)), 16, scipy=1e-12)
region("SpecExpIntegralN", "n in [5001, 2^31), x in [1e-3, 700]",
       lambda: pairs(logarithmic(1e-3, 650, many(100)), np.floor(logarithmic(5001, 2.0**31, many(100), 21))), 8, scipy=1e-12)
region("SpecExpIntegralN", "n = 5000 and 5001, x in [1e-3, 700]",
       lambda: [(x, n) for x in logarithmic(1e-3, 650, many(40)) for n in (5000, 5001)], 16, scipy=1e-12)

# Si relative, Ci beside its zeros absolute; f and g to a few u.
region("SpecSineIntegral", "[-4, 4]", lambda: grid(-4, 4, many(300)), 8, scipy=1e-14)
region("SpecSineIntegral", "(4, 8)", lambda: grid(np.nextafter(4, 5), np.nextafter(8, 7), many(200)), 6, scipy=1e-14)
region("SpecSineIntegral", "[8, 1e9]", lambda: np.r_[grid(8, 50, many(200)), logarithmic(50, 1e9, many(60))], 6, scipy=1e-14)
region("SpecCosineIntegral", "(0, 4]", lambda: grid(1e-6, 4, many(300)), 12, mixed=True, scipy=1e-14)
region("SpecCosineIntegral", "1e-300 <= x <= 1e-3", lambda: logarithmic(1e-300, 1e-3, many(60)), 6, scipy=1e-14)
region("SpecCosineIntegral", "(4, 8)", lambda: grid(np.nextafter(4, 5), np.nextafter(8, 7), many(200)), 4, mixed=True,
       scipy=1e-14)
region("SpecCosineIntegral", "[8, 1e9]", lambda: np.r_[grid(8, 50, many(200)), logarithmic(50, 1e9, many(60))], 2, mixed=True,
       scipy=1e-14)

# The series: up to 17 positive terms with two roundings in each, of which the largest count; the Chebyshev sums: exp, a
# Clenshaw recurrence of some 23 steps whose early ones are tiny, two products.
for name in ("SpecHyperbolicSineIntegral", "SpecHyperbolicCosineIntegral"):
    mixed = name == "SpecHyperbolicCosineIntegral"  # a zero at 0.5238
    region(name, "(0, 8)", lambda: grid(1e-6, np.nextafter(8, 7), many(200)), 12, mixed=mixed, scipy=1e-14)
    region(name, "[8, 18)", lambda: grid(8, np.nextafter(18, 17), many(120)), 10, scipy=1e-14)
    region(name, "[18, 88]", lambda: grid(18, 88, many(120)), 10, scipy=1e-14)

# The stated sum: the exponentials of the Gammas and e^w cancel as D falls from e^(x^2/4) to e^(-x^2/4).
region("SpecParabolicCylinder", "abs(v), abs(x) <= 2, against its own sum", lambda: square(-2, 2, -2, 2, 22, 80), 600, mixed=True)
region("SpecParabolicCylinder", "abs(v) <= 8, x in [-6, 0], against its own sum", lambda: square(-6, 0, -8, 8, 23, 80), 1e6,
       mixed=True)
# The short Gamma series: 2e-9 times the terms, up to e^(x^2/4) of them.
region("SpecParabolicCylinder, D_v", "abs(v), abs(x) <= 1", lambda: square(-1, 1, -1, 1, 24, 60), 5e-9 / U, mixed=True, scipy=5e-9)
region("SpecParabolicCylinder, D_v", "abs(v), abs(x) <= 3", lambda: square(-3, 3, -3, 3, 25, 60), 1e-6 / U, mixed=True, scipy=1e-6)


@pytest.mark.parametrize("which", REGIONS, ids=lambda r: f"{r.function} {r.label}")
def test_peak_error_stays_within_its_bound(qv, which):
    accuracy.check(qv, FUNCTIONS, which)


def test_the_fraction_from_its_tail_is_the_exponential_integral_of_mpmath():
    """The exact values of large order above come from our own fraction; mpmath's function agrees with it."""
    for n, x in ((200, 0.5), (300, 40.0), (5000, 7.0)):
        assert abs(exact_expint(x, n) / mpmath.expint(n, x) - 1) < 1e-35


def test_dawson_asymptotic_series_meets_the_error_function():
    x = mpmath.mpf(30)
    assert abs(exact_dawson(x) / (mpmath.sqrt(mpmath.pi) / 2 * mpmath.exp(-x * x) * mpmath.erfi(x)) - 1) < 1e-30


def test_ci_and_chi_are_accurate_to_the_rounding_of_their_sum_beside_their_first_zeros(qv):
    """gamma + ln x + ... cancels there: an absolute error of a few u."""
    for number, zero, exact in ((323, 0.61650548562, mpmath.ci), (324, 0.52382257138, mpmath.chi)):
        for x in beside([zero], reach=1e-3, least=1e-12):
            truth = mpmath.re(exact(mpmath.mpf(float(x))))
            assert abs(getattr(qv, f"ZemFunc{number}")(float(x)) - truth) < 4 * U


if __name__ == "__main__":
    accuracy.print_table(sys.argv[1], FUNCTIONS, REGIONS, density=4)
