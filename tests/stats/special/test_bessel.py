"""The Bessel family beside mpmath at 50 digits and SciPy.

    test_bessel.py LIBRARY    prints the measured errors, region by region, as the table of docs/accuracy.md

Each region is a set of points with the exact value beside each; the tests take a part of the points that the table takes.
Errors are relative to the value; where a function oscillates through zeros, to the larger of value and envelope (`*`).
Bounds are in units of u = 2^-53, and the comment beside them says what rounds.
"""

import functools
import math
import pathlib
import sys
from dataclasses import dataclass
from typing import Callable

import mpmath
import numpy as np
import pytest
import scipy.special
from mpmath import mpf

U = 2.0**-53
TESTED, PRINTED = 10, 100  # points of a region
mpmath.mp.dps = 50
LARGE = dict(maxprec=400000, maxterms=10**7)


def uniform(low, high):
    return lambda generator, count: generator.uniform(low, high, count)


def between(low, high):
    """Random points, and the ends of (low, high] with their neighbours inside."""
    def points(generator, count):
        inner = generator.uniform(low, high, count)
        inner[:4] = np.nextafter(low, high), np.nextafter(np.nextafter(low, high), high), high, np.nextafter(high, low)
        return inner
    return points


def logarithmic(low, high):
    return lambda generator, count: np.exp(generator.uniform(math.log(low), math.log(high), count))


def whole(low, high):
    return lambda generator, count: generator.integers(low, high, count, endpoint=True)


def fixed(value):
    return lambda generator, count: np.full(count, value)


def halves(low, high):
    return lambda generator, count: generator.integers(low, high, count, endpoint=True) + 0.5


def beside_whole(low, high):
    """Orders at 1e-15 to 1e-1 from an integer."""
    def points(generator, count):
        apart = np.exp(generator.uniform(math.log(1e-15), math.log(1e-1), count))
        return generator.integers(low, high, count, endpoint=True) + apart * generator.choice([-1, 1], count)
    return points


def times(orders, low, high):
    """Pairs of an order and an argument within these multiples of the order."""
    def points(generator, count):
        v = np.asarray(orders(generator, count), float)
        return list(zip(v, v * generator.uniform(low, high, count)))
    return points


def near(orders, reach):
    """Pairs of an order v and an argument within `reach` v^(1/3) of it."""
    def points(generator, count):
        v = np.asarray(orders(generator, count), float)
        return list(zip(v, v + np.cbrt(v) * generator.uniform(-reach, reach, count)))
    return points


def pairs(first, second):
    return lambda generator, count: list(zip(first(generator, count), second(generator, count)))


# --- exact values ------------------------------------------------------------------------------------------------------


@functools.lru_cache(maxsize=None)
def exact_j(v, x):
    return mpmath.besselj(mpf(v), mpf(x), **LARGE)


@functools.lru_cache(maxsize=None)
def exact_y(v, x):
    return mpmath.bessely(mpf(v), mpf(x), **LARGE)


@functools.lru_cache(maxsize=None)
def by_recurrence(function, v, x):
    """J or Y of a large order v from the orders beside 0: upwards Y always and J below x are stable."""
    steps = math.floor(v)
    mu, x = mpf(v) - steps, mpf(x)
    at, above = function(mu, x), function(mu + 1, x)
    for k in range(1, steps + 1):
        at, above = above, 2 * (mu + k) / x * above - at
    return at


def exact_spherical(function):
    return lambda n, x: mpmath.sqrt(mpmath.pi / (2 * mpf(x))) * function(mpf(int(n)) + 0.5, mpf(x), **LARGE)


def ascending_i(v, z):
    """(z/2)^v / Gamma(v+1) (1 + (z^2/4)/(v+1) + ...), with digits to spare for what cancels off the positive axis."""
    with mpmath.workdps(60 + int(abs(z) / 2)):
        square, term = z * z / 4, mpf(1)
        total, k = term, 0
        while k < abs(v) + 1 or abs(term) > abs(total) * mpf(10)**-60:
            k += 1
            term *= square / (k * (v + k))
            total += term
        return (z / 2)**v * mpmath.rgamma(v + 1) * total


def exact_i(v, x):
    return ascending_i(mpf(v), mpf(x))


@functools.lru_cache(maxsize=None)
def low_k(n, z):
    return mpmath.besselk(n, z)


def upward_k(n, z):
    """Upwards K of whole order is stable."""
    at, above = low_k(0, z), low_k(1, z)
    for k in range(1, n + 1):
        at, above = above, 2 * k / z * above + at
    return at


def exact_k(n, x):
    return upward_k(int(n), mpf(x))


def exact_struve(v, x):
    """(x/2)^(v+1) / (Gamma(3/2) Gamma(v+3/2)) 1F2(1; 3/2, v+3/2; -x^2/4), likewise with digits to spare."""
    with mpmath.workdps(70 + int(x / 2)):
        v, x = mpf(v), mpf(x)
        if v < 0 and v + 0.5 == mpmath.floor(v + 0.5):
            return (-1)**int(-v - 0.5) * mpmath.besselj(-v, x)
        square, term, k = x * x / 4, mpf(1), 0
        total = term
        while k < abs(v) + 1 or abs(term) > abs(total) * mpf(10)**-60:
            term *= -square / ((k + 1.5) * (v + k + 1.5))
            total += term
            k += 1
        return (x / 2)**(v + 1) * mpmath.rgamma(1.5) * mpmath.rgamma(v + 1.5) * total


def turned(x):
    return mpf(x) * mpmath.expjpi(mpf(1) / 4)


def exact_be(x, n):
    with mpmath.workdps(60 + int(x / 2)):
        return mpmath.expjpi(mpf(int(n)) / 2) * ascending_i(int(n), turned(x))


def exact_ke(x, n):
    return mpmath.expjpi(-mpf(int(n)) / 2) * upward_k(int(n), turned(x))


# --- scales of the error -----------------------------------------------------------------------------------------------


def envelope(truth, v, x):
    """The amplitude of J, Y and H beyond the turning point is at least sqrt(2/(pi x))."""
    return max(abs(truth), mpmath.sqrt(2 / (mpmath.pi * x))) if x >= abs(v) else abs(truth)


def spherical_envelope(truth, n, x):
    return max(abs(truth), 1 / mpf(x)) if x >= n else abs(truth)


def airy_envelope(truth, x):
    return max(abs(truth), 1 / mpmath.sqrt(mpmath.pi * mpmath.sqrt(-x))) if x < -1 else abs(truth)


def size_of_i(truth, v, x):
    return max(abs(truth), exact_i(abs(v), x))


# --- the functions through their numbers -------------------------------------------------------------------------------


def airy(part):
    def call(qv, x):
        out = np.zeros(1), np.zeros(1)
        qv.ZemFunc330(x, *out)
        return float(out[part][0])
    return call


def kelvin(number):
    def call(qv, x, n):
        out = np.zeros(1, np.complex128)
        getattr(qv, f"ZemFunc{number}")(x, int(n), out)
        return complex(out[0])
    return call


FUNCTIONS = {
    "SpecBesselJ": (lambda qv, v, x: qv.ZemFunc302(v, x), exact_j, scipy.special.jv),
    "SpecBesselY": (lambda qv, v, x: qv.ZemFunc301(v, x), exact_y, scipy.special.yv),
    "SpecSphericalJ": (lambda qv, n, x: qv.ZemFunc303(int(n), x), exact_spherical(mpmath.besselj),
                       lambda n, x: scipy.special.jv(n + 0.5, x) * math.sqrt(math.pi / 2 / x)),
    "SpecSphericalY": (lambda qv, n, x: qv.ZemFunc304(int(n), x), exact_spherical(mpmath.bessely),
                       lambda n, x: scipy.special.yv(n + 0.5, x) * math.sqrt(math.pi / 2 / x)),
    "SpecBesselI": (lambda qv, v, x: qv.ZemFunc305(v, x), exact_i, scipy.special.iv),
    "SpecBesselK": (lambda qv, n, x: qv.ZemFunc306(int(n), x), exact_k, scipy.special.kv),
    "SpecStruve": (lambda qv, v, x: qv.ZemFunc328(v, x), exact_struve, scipy.special.struve),
    "SpecAiry Ai": (airy(0), lambda x: mpmath.airyai(mpf(x)), lambda x: scipy.special.airye(x)[0] *
                    (math.exp(-2 / 3 * x**1.5) if x > 0 else 1)),
    "SpecAiry Bi": (airy(1), lambda x: mpmath.airybi(mpf(x)), lambda x: scipy.special.airye(x)[2] *
                    (math.exp(2 / 3 * x**1.5) if x > 0 else 1)),
    "SpecKelvinBe": (kelvin(333), exact_be, lambda x, n: scipy.special.kelvin(x)[0]),
    "SpecKelvinKe": (kelvin(334), exact_ke, lambda x, n: scipy.special.kelvin(x)[1]),
}


@dataclass
class Region:
    function: str
    label: str
    points: Callable
    bound: float              # peak error, in units of u
    scale: Callable = None    # of the error; none: the value
    scipy: float = 0.0        # peak difference from SciPy in the same measure; 0: SciPy is no witness here
    slow: int = 1             # one in so many points
    exact: Callable = None    # where the usual one takes too long


REGIONS = []


def region(*args, **kwargs):
    REGIONS.append(Region(*args, **kwargs))


# Order 0 and 1: rational forms of some 10 roundings, around two terms of Y that cancel by up to 10 below 5.
for order in (0.0, 1.0):
    for name in ("SpecBesselJ", "SpecBesselY"):
        region(name, f"order {order:.0f}, x in (0, 5]", pairs(fixed(order), between(1e-3, 5)), 40, envelope, 1e-13)
        region(name, f"order {order:.0f}, x in (5, 100]", pairs(fixed(order), between(5, 100)), 10, envelope, 1e-13)
        region(name, f"order {order:.0f}, x in [100, 1e6]", pairs(fixed(order), logarithmic(100, 1e6)), 10, envelope, 1e-9)
        # On both sides of 10^7, where the reduction of the phase changes; SciPy's phase has lost its digits.
        region(name, f"order {order:.0f}, x in [1e6, 1e9]", pairs(fixed(order), logarithmic(1e6, 1e9)), 10, envelope, 0)
        region(name, f"order {order:.0f}, x in [1e-300, 1e-3]", pairs(fixed(order), logarithmic(1e-300, 1e-3)), 10, None, 1e-13)

# Other orders: each step of a recurrence rounds three times, which adds up like a random walk over at most 2000 steps, and
# more where the direction of the growth has been seeded by the roundings of the oscillating part.
SMALL, MIDDLE, HIGH = (uniform(0.1, 0.9), uniform(1, 20), uniform(20, 100))
SMALL_WHOLE, HIGH_WHOLE = whole(2, 20), whole(20, 100)
for name in ("SpecBesselJ", "SpecBesselY"):
    for label, orders, far in (("v in [0.1, 0.9]", SMALL, 1), ("v in [1, 20]", MIDDLE, 1), ("v in [20, 100]", HIGH, 3),
                               ("whole v, 2 to 20", SMALL_WHOLE, 1), ("whole v, 20 to 100", HIGH_WHOLE, 3),
                               ("half v, 0.5 to 40.5", halves(0, 40), 2),
                               ("v beside 1 to 10, to 1e-15" if name == "SpecBesselJ" else "", beside_whole(1, 10), 1)):
        if label:
            witness = 0 if "beside" in label else 1e-11  # SciPy loses up to eight digits there
            region(name, label + ", x in (0, 2]", pairs(orders, between(1e-2, 2)), 20 * far, envelope, witness)
            region(name, label + ", x in (2, 20]", pairs(orders, between(2, 20)), 30 * far, envelope, witness)
            region(name, label + ", x in (20, 1000]", pairs(orders, between(20, 1000)), 20 * far, envelope, witness)
    region(name, "v in [100, 500], x in [20, 600]", pairs(uniform(100, 500), between(20, 600)), 400, envelope)
    region(name, "v in [500, 2000], x/v in [0.8, 1.1]", times(uniform(500, 1999), 0.8, 1.1), 400, envelope, slow=6)
    region(name, "v in [1, 2000], x in [2e3, 1e5]", pairs(uniform(1, 1999), logarithmic(2e3, 1e5)), 60, envelope, slow=4,
           exact=functools.partial(by_recurrence, mpmath.besselj if name == "SpecBesselJ" else mpmath.bessely))
    region(name, "v in [-1, 0), x in (0, 100]", pairs(uniform(-1, -1e-3), between(1e-2, 100)), 20, envelope, 1e-11)
    region(name, "v in [-20, -1], x in (0, 100]", pairs(uniform(-20, -1), between(1e-2, 100)), 30, envelope)
    region(name, "v in [-200, -20], x in [5, 300]", pairs(uniform(-200, -20), between(5, 300)), 100, envelope)

# Large orders. Beside the order the first terms that the transition expansion leaves out, of v^(-10/3); below it the rounding
# of an exponent of up to 700, and above, up to 2 v, of a phase of 1.4 v.
for name in ("SpecBesselJ", "SpecBesselY"):
    region(name, "v in [2000, 4000], x/v in [0.7, 0.98]", times(uniform(2000, 4000), 0.7, 0.98), 6000, envelope, slow=12)
    region(name, "v in [2000, 4000], within 0.7 v^(1/3)", near(uniform(2000, 4000), 0.7), 800, envelope, slow=12)
    recurrence = functools.partial(by_recurrence, mpmath.besselj if name == "SpecBesselJ" else mpmath.bessely)
    region(name, "v in [2000, 4000], x/v in [1.02, 2]", times(uniform(2000, 4000), 1.02, 2), 8000, envelope, slow=12,
           exact=recurrence)
    region(name, "v in [2000, 4000], x/v in [2, 2000]", times(uniform(2000, 4000), 2, 2000), 60, envelope, slow=12,
           exact=recurrence)

for name in ("SpecSphericalJ", "SpecSphericalY"):
    region(name, "n = 0 to 50, x in (0, 20]", pairs(whole(0, 50), between(1e-2, 20)), 60, spherical_envelope, 1e-11)
    region(name, "n = 0 to 50, x in (20, 1000]", pairs(whole(0, 50), between(20, 1000)), 60, spherical_envelope, 1e-11)
    region(name, "n = 0, x in [1e-200, 1e-2]", pairs(fixed(0), logarithmic(1e-200, 1e-2)), 10, None, 1e-12)

# Chebyshev sums and positive series, whose prefactor has a power; the recurrences have only positive terms.
for label, orders in (("order 0", fixed(0.0)), ("order 1", fixed(1.0)), ("whole v, 2 to 64", whole(2, 64)),
                      ("v in [0, 1]", uniform(0, 1)), ("v in [1, 64]", uniform(1, 64)), ("half v, 0.5 to 30.5", halves(0, 30))):
    region("SpecBesselI", label + ", x in (0, 20]", pairs(orders, between(1e-2, 20)), 30, None, 1e-11)
    region("SpecBesselI", label + ", x in (20, 700]", pairs(orders, between(20, 700)), 30, None, 1e-11)
region("SpecBesselI", "v in [64, 500], x in [5, 700]", pairs(uniform(64, 500), between(5, 700)), 60)
region("SpecBesselI", "v in [500, 2000], x/v in [0.3, 0.8]", times(uniform(500, 2000), 0.3, 0.8), 8000)  # the exponent
region("SpecBesselI", "v in [-20, 0), x in (0, 100]", pairs(uniform(-20, -1e-3), between(1e-2, 100)), 60, size_of_i)
region("SpecBesselI", "v in [-200, -20], x in [1, 300]", pairs(uniform(-200, -20), between(1, 300)), 100, size_of_i)
for label, orders in (("n = 0", fixed(0)), ("n = 1", fixed(1)), ("n = 2 to 100", whole(2, 100)), ("n = 100 to 999", whole(100, 999))):
    if "999" not in label:
        region("SpecBesselK", label + ", x in (0, 2]", pairs(orders, between(1e-2, 2)), 60, None, 1e-11)
    region("SpecBesselK", label + ", x in (2, 700]", pairs(orders, between(2, 700)), 60, None, 1e-11)
region("SpecBesselK", "n = 1001 to 3000, x/n in [0.3, 0.9]", times(whole(1001, 3000), 0.3, 0.9), 8000)  # the exponent

# Sums in double-doubles; of the rest a few roundings, and Y.
for label, orders in (("v = 0", fixed(0.0)), ("v = 1", fixed(1.0)), ("v in [-1, 1]", uniform(-0.999, 1)), ("v in [1, 20]", uniform(1, 20)),
                      ("half v, 0.5 to 20.5", halves(0, 20)), ("half v, -20.5 to -0.5", halves(-21, -1)), ("v in [20, 150]", uniform(20, 150)),
                      ("v in [-20, -1]", uniform(-20, -1))):
    far = 60 if "150" in label else 30
    for low, high in ((1e-2, 18), (18, 45), (45, 300)):
        region("SpecStruve", f"{label}, x in [{low:g}, {high}]", pairs(orders, uniform(low, high)), far, envelope, slow=2)
region("SpecStruve", "v in [150, 1000], x/v in [0.1, 1]", times(uniform(150, 1000), 0.1, 1), 600, slow=8)
region("SpecStruve", "v in [150, 1000], x/v in [1, 1.5]", times(uniform(150, 1000), 1, 1.5), 600, envelope, slow=8)

# Rational forms of some 10 roundings, sums of twice as many.
for name in ("SpecAiry Ai", "SpecAiry Bi"):
    for low, high in ((-1e6, -100), (-100, -2.09), (-2.09, 0), (0, 2.09), (2.09, 8.3203353), (8.3203353, 103.892)):
        bound = 20
        witness = 0 if low == -1e6 else 1e-11
        region(name, f"[{low:g}, {high:g}]", lambda g, c, low=low, high=high: [(p,) for p in between(low, high)(g, c)], bound,
               airy_envelope, witness)

# The ascending series cancels by up to e^(0.3 x) = 20; upward recurrences as above.
for name, n, x in ((f, n, x) for f in ("SpecKelvinBe", "SpecKelvinKe") for n in (0, 1, 2, 5, 20, 60)
                   for x in ((1e-2, 2), (2, 10), (10, 20), (20, 900))):
    witness = 1e-6 if n == 0 and x[1] <= 20 else 0  # SciPy's own error is as large
    region(name, f"n = {n}, x in [{x[0]:g}, {x[1]}]", pairs(between(*x), fixed(n)), 30 if n < 20 else 100, None, witness, slow=2)
for name in ("SpecKelvinBe", "SpecKelvinKe"):
    region(name, "n = 61 to 159, x in [10, 300]", pairs(uniform(10, 300), whole(61, 159)), 200, slow=4)
    region(name, "n = 160 to 400, x in [40, 600]", pairs(uniform(40, 600), whole(160, 400)), 6000, slow=8)  # the exponent


@dataclass
class Measured:
    points: int
    peak: float
    rms: float
    worst: tuple
    scipy: float


def measure(qv, which, count):
    """Errors against mpmath, and the peak difference from SciPy. Values beyond 1e-290 and 1e300 count for nothing."""
    call, exact, witness = FUNCTIONS[which.function]
    exact = which.exact or exact
    seed = sum(map(ord, which.function + which.label))
    points = which.points(np.random.default_rng(seed), max(4, count // which.slow))
    errors, worst, apart = [], None, 0.0
    for point in points:
        args = tuple(float(v) for v in point)
        truth = exact(*args)
        if not 1e-290 < abs(truth) < 1e300:
            continue
        scale = which.scale(truth, *args) if which.scale else abs(truth)
        value = call(qv, *args)
        assert np.isfinite(value), (which.label, args, value)
        error = float(abs(value - truth) / scale)
        if not errors or error > max(errors):
            worst = args
        errors.append(error)
        if which.scipy:
            apart = max(apart, float(abs(value - mpmath.mpmathify(complex(witness(*args)))) / scale))
    assert len(errors) >= 3, which.label
    return Measured(len(errors), max(errors), math.sqrt(np.mean(np.square(errors))), worst, apart)


@pytest.mark.parametrize("which", REGIONS, ids=lambda r: f"{r.function} {r.label}")
def test_peak_error_stays_within_its_bound(qv, which):
    found = measure(qv, which, TESTED)
    assert found.peak <= which.bound * U, f"{found.peak:.3g} at {found.worst}"
    assert found.scipy <= which.scipy, f"{found.scipy:.3g} from SciPy"


def test_values_beside_the_first_zeros_keep_the_envelope(qv):
    for function, exact, zeros in ((qv.ZemFunc302, exact_j, mpmath.besseljzero), (qv.ZemFunc301, exact_y, mpmath.besselyzero)):
        for v in (0, 1, 2.5, 7, 30):
            for k in (1, 2, 5):
                zero = float(zeros(v, k))
                for x in (zero, np.nextafter(zero, 0), zero + 1e-9, zero - 1e-5):
                    truth = exact(float(v), float(x))
                    assert abs(function(v, x) - truth) <= 60 * U * envelope(truth, v, x), (v, k, x)


def print_table(library):
    sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2]))
    import conftest

    qv = conftest.load(library)
    print("| function | region | points | peak | rms |")
    print("|---|---|---|---|---|")
    for which in REGIONS:
        found = measure(qv, which, PRINTED)
        label = which.label + (" *" if which.scale else "")
        print(f"| `{which.function}` | {label} | {found.points} | {found.peak:.1e} | {found.rms:.1e} |", flush=True)


if __name__ == "__main__":
    print_table(sys.argv[1])
