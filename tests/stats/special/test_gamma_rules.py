"""Gamma, Stirling's formula and ln Gamma from 13 on in their documented arithmetic, to the last bit.

Coefficients: Cephes Math Library, S. L. Moshier: gamma (P, Q, STIR) and lgam (A). Functions are the C library's.
"""

import math

import numpy as np
import pytest

from exact import equal_numbers

P = [1.60119522476751861407e-4, 1.19135147006586384913e-3, 1.04213797561761569935e-2, 4.76367800457137231464e-2,
     2.07448227648435975150e-1, 4.94214826801497100753e-1, 9.99999999999999996796e-1]
Q = [-2.31581873324120129819e-5, 5.39605580493303397842e-4, -4.45641913851797240494e-3, 1.18139785222060435552e-2,
     3.58236398605498653373e-2, -2.34591795718243348568e-1, 7.14304917030273074085e-2, 1.00000000000000000320]
STIR = [7.87311395793093628397e-4, -2.29549961613378126380e-4, -2.68132617805781232825e-3, 3.47222221605458667310e-3,
        8.33333333333482257126e-2]
A = [8.11614167470508450300e-4, -5.95061904284301438324e-4, 7.93650340457716943945e-4, -2.77777777730099687205e-3,
     8.33333333333331927722e-2]
SHORT = [7.9365079365079365079365e-4, -2.7777777777777777777778e-3, 0.0833333333333333333333]


def horner(x, c):
    s = c[0]
    for v in c[1:]:
        s = s * x + v
    return s


def power(x, y):
    try:
        return np.float64(math.pow(x, y))
    except OverflowError:
        return np.float64(math.inf)


def stirling(x):
    if x > 709.7827128933:
        return math.inf
    w = 1 / x
    w = 1 + w * horner(w, STIR)
    y = np.float64(math.exp(x))
    with np.errstate(all="ignore"):
        if x > 143.01608:
            v = power(x, 0.5 * x - 0.25)
            y = v * (v / y)
        else:
            y = power(x, x - 0.5) / y
        return float(2.5066282746310007 * y * w)


def gamma(x):
    if x == math.inf:
        return x
    if x != x or x == -math.inf:
        return math.nan
    if abs(x) <= 33:
        z, p = x, 1.0
        while z >= 3:
            z -= 1
            p *= z
        while z < 2:
            if abs(z) < 1e-9:
                with np.errstate(all="ignore"):
                    return math.nan if z == 0 else float(np.float64(p) / ((z * 0.5772156649015329 + 1) * z))
            p /= z
            z += 1
        return p if z in (2, 3) else p * horner(z - 2, P) / horner(z - 2, Q)
    if x > 33:
        return stirling(x)
    w = abs(x)
    if w == math.floor(w):
        return math.nan
    f = w - math.floor(w)
    if f > 0.5:
        f -= 1
    value = math.pi / (stirling(w) * abs(math.sin(math.pi * f) * w))
    return value if math.floor(w) % 2 == 1 else -value


def arguments(rng):
    yield from np.arange(-60.0, 200.0, 0.5)
    yield from rng.uniform(-40, 40, 3000)
    yield from rng.uniform(33, 180, 1000)
    yield from rng.uniform(-190, -33, 1000)
    for cut in (-33.0, 33.0, 143.01608, 171.624376956302725, 709.7827128933, 1e-9, -1e-9, 1.0, 2.0, 3.0, 0.0):
        yield from (cut, math.nextafter(cut, math.inf), math.nextafter(cut, -math.inf))
    yield from (math.inf, -math.inf, math.nan, 1e300, -1e300, 5e-324, -5e-324, -0.0, 1 - 2.0**-52, 2 - 2.0**-52)


def test_gamma(qv):
    for x in arguments(np.random.default_rng(1)):
        equal_numbers([qv.ZemFunc309(x, None)], [gamma(float(x))])


def test_stirlings_formula(qv):
    for x in [*np.random.default_rng(2).uniform(1e-3, 720, 3000), 143.01608, math.nextafter(143.01608, 200),
              709.7827128933, math.nextafter(709.7827128933, 800), 1e300, math.inf]:
        equal_numbers([qv.ZemFunc314(x)], [stirling(float(x))])


def test_factorials(qv):
    for n in range(-3, 200):
        value = math.nan if n < 0 else float(math.factorial(n)) if n <= 33 else gamma(n + 1.0)
        equal_numbers([qv.ZemFunc308(n)], [value])
    for n in (-2**63, 2**31, 2**32, 2**32 + 3, 2**63 - 1):
        equal_numbers([qv.ZemFunc308(n)], [math.nan if n < 0 else math.inf])


@pytest.mark.parametrize("low,high", [(13, 40), (40, 999), (999, 1001), (1000, 1e8), (1e8, 1e300)])
def test_ln_gamma_of_large_arguments(qv, low, high):
    rng = np.random.default_rng(3)
    for x in [float(low), *np.exp(rng.uniform(math.log(low), math.log(high), 500)), 2.0**31, 2.0**32]:
        x = max(float(x), 13.0)
        p = 1 / (x * x)
        value = (x - 0.5) * math.log(x) - x + 0.9189385332046728
        if x <= 1e8:  # beyond, the series is less than half a unit of the last place
            value += horner(p, SHORT if x >= 1000 else A) / x
        equal_numbers([qv.ZemFunc312(x)], [value])
        if x == math.floor(x) <= 2.0**32:
            equal_numbers([qv.ZemFunc311(int(x) - 1)], [value])
