"""Hypergeometric functions beside mpmath at 50 digits and SciPy.

    test_hypergeometric.py LIBRARY    prints the measured errors, region by region, as the table of docs/accuracy.md

Three and four arguments leave no grid: points are random, with their seeds. The functions choose among several forms by
estimates of the error and take the first below 48 epsilon, so 200 u is the general bound; where the exponential, the power or
the Gammas go through logarithms, 2 u for each unit of the largest of them comes on top. Other bounds have their own comment.
"""

import math
import sys

import mpmath
import numpy as np
import pytest
import scipy.special

import accuracy
from accuracy import U, Region, logarithmic, many, rng

# --- exact values ------------------------------------------------------------------------------------------------------


def exact_1f1(x, a, b):
    return mpmath.hyp1f1(a, b, mpmath.mpf(x), maxterms=10**6)


def exact_u(x, a, b):
    return mpmath.re(mpmath.hyperu(a, b, mpmath.mpf(x), maxterms=10**6))


def exact_2f1(x, a, b, c):
    return mpmath.re(mpmath.hyp2f1(a, b, c, mpmath.mpf(x), maxterms=10**6))


FUNCTIONS = {
    "SpecHyperg1F1": (lambda qv, x, a, b: qv.ZemFunc316(x, a, b), exact_1f1, lambda x, a, b: scipy.special.hyp1f1(a, b, x)),
    "SpecHypergU": (lambda qv, x, a, b: qv.ZemFunc317(x, a, b), exact_u, lambda x, a, b: scipy.special.hyperu(a, b, x)),
    "SpecHyperg2F1": (lambda qv, x, a, b, c: qv.ZemFunc386(x, a, b, c), exact_2f1,
                      lambda x, a, b, c: scipy.special.hyp2f1(a, b, c, x)),
    "SpecHyperg2F1Transformed": (lambda qv, x, a, b, c: qv.ZemFunc315(x, a, b, c), exact_2f1,
                                 lambda x, a, b, c: scipy.special.hyp2f1(a, b, c, x)),
}

REGIONS = []


def region(*args, **kwargs):
    REGIONS.append(Region(*args, **kwargs))


def uniform(low, high):
    return lambda generator, count: generator.uniform(low, high, count)


def whole(low, high):
    return lambda generator, count: generator.integers(low, high, count, endpoint=True).astype(float)


def eighths(low, high):
    return lambda generator, count: generator.integers(8 * low, 8 * high, count, endpoint=True) / 8


def logs(low, high):
    return lambda generator, count: np.exp(generator.uniform(np.log(low), np.log(high), count))


def cloud(seed, count, *axes, keep=lambda *args: True):
    """Random points, each axis by its own rule."""
    def points():
        generator = rng(seed)
        columns = [axis(generator, many(count)) for axis in axes]
        return [p for p in zip(*(c.tolist() for c in columns)) if keep(*p)]
    return points


def derived(points, change):
    return lambda: [change(*p) for p in points()]


# 1F1(a; b; x). A sum of n positive terms drifts by some sqrt(n) of five roundings each.
F = "SpecHyperg1F1"
region(F, "x in [0, 40], a, b in (0, 20]", cloud(1, 240, uniform(0, 40), uniform(0, 20), uniform(0, 20)), 200, scipy=1e-13)
region(F, "x in [-40, 0], a, b in (0, 20]", cloud(2, 240, uniform(-40, 0), uniform(0, 20), uniform(0, 20)), 200, scipy=1e-13)
region(F, "x in [40, 700], a, b in (0, 20]", cloud(3, 200, uniform(40, 700), uniform(0, 20), uniform(0, 20)), 1600, scipy=1e-12)
region(F, "x in [-700, -40], a, b in (0, 20]", cloud(4, 200, uniform(-700, -40), uniform(0, 20), uniform(0, 20)), 1600,
       scipy=1e-12)
region(F, "x in [-30, 30], a in [-20, 0], b in (0, 20]", cloud(5, 200, uniform(-30, 30), uniform(-20, 0), uniform(0, 20)), 200,
       scipy=1e-12)
region(F, "x in [-30, 30], a = 0 to -20, b in (0, 20]", cloud(6, 200, uniform(-30, 30), whole(-20, 0), uniform(0, 20)), 200,
       scipy=1e-12)
region(F, "a = v + 1/2, b = 2 v + 1, v in [0, 100], x in [0, 690]",
       derived(cloud(7, 160, uniform(0, 690), uniform(0, 100)), lambda x, v: (x, v + 0.5, 2 * v + 1)), 1600, scipy=1e-12)
region(F, "abs(b - a) < a/1000, x in [-500, 500]",
       derived(cloud(8, 160, uniform(-500, 500), uniform(0.1, 10), uniform(-1e-3, 1e-3)), lambda x, b, d: (x, b * (1 + d), b)),
       1600)
region(F, "x in [-1e15, -100], a, b in [-5, 5]",
       derived(cloud(9, 160, logs(100, 1e15), uniform(-5, 5), uniform(-5, 5)), lambda x, a, b: (-x, a, b)), 200)
# b - a beside the poles of its Gamma: what its rounding takes is a multiple of the distance, and has to be put back.
region(F, "x in [-300, -20], a = 1 to 10, b within 1e-12 to 0.01 of -5 to 0",
       derived(cloud(40, 100, uniform(-300, -20), whole(1, 10), whole(-5, 0), logs(1e-12, 1e-2), uniform(-1, 1)),
               lambda x, a, b, d, s: (x, a, b + math.copysign(d, s))), 400)
region(F, "abs(x), a, b in [1e-10, 100]",
       derived(cloud(10, 200, logs(1e-10, 1), logs(1e-10, 100), logs(1e-10, 100), uniform(-1, 1)),
               lambda x, a, b, s: (x if s > 0 else -x, a, b)), 200, scipy=1e-13)
# Known to be weak: where the large parameters cancel more than pairs of doubles bear, only the estimate's 1e-3 is promised.
region(F, "abs(x), abs(a), abs(b) <= 50", cloud(11, 240, uniform(-50, 50), uniform(-50, 50), uniform(-50, 50)), 1e-6 / U)

# U(a, b, x). The recurrence keeps relative errors only where U has no zero, so a < 0 is as good as the terms of its last step.
F = "SpecHypergU"
# Sums of powers in pairs of doubles, and the limit with a - b + 1 beside a pole.
region(F, "x in (0, 50], a = -1 to -25, b in [-25, 0)", cloud(41, 80, uniform(0, 50), whole(-25, -1), uniform(-25, 0)), 200)
region(F, "x in (0, 2], a within 1e-13 to 0.01 of -12 to -1, b = 2 to 20",
       derived(cloud(42, 60, uniform(0, 2), whole(-12, -1), whole(2, 20), logs(1e-13, 1e-2), uniform(-1, 1)),
               lambda x, a, b, d, s: (x, a + math.copysign(d, s), b)), 4000)
region(F, "x in (0, 1], a, b in (0, 10]", cloud(12, 80, uniform(0, 1), uniform(0, 10), uniform(0, 10)), 200)
region(F, "x in (0, 1], a in (0, 10], b = -5 to 10", cloud(13, 80, uniform(0, 1), uniform(0, 10), whole(-5, 10)), 400)
region(F, "x in [1, 10], a, b in (0, 10]", cloud(14, 80, uniform(1, 10), uniform(0, 10), uniform(0, 10)), 200)
region(F, "x in [1, 10], a in (0, 10], b = -5 to 10", cloud(15, 80, uniform(1, 10), uniform(0, 10), whole(-5, 10)), 400)
region(F, "x in [10, 100], a, b in (0, 10]", cloud(16, 80, uniform(10, 100), uniform(0, 10), uniform(0, 10)), 200)
region(F, "x in [100, 1e15], a, b in [-5, 5]", cloud(17, 80, logs(100, 1e15), uniform(-5, 5), uniform(-5, 5)), 100)
region(F, "x in [1e-15, 0.1], a, b in [-5, 5]", cloud(18, 80, logs(1e-15, 0.1), uniform(-5, 5), uniform(-5, 5)), 200)
region(F, "x in [1e-3, 100], a in [-4, 6], b within 1e-14 to 0.01 of -5 to 5",
       derived(cloud(34, 80, logs(1e-3, 100), uniform(-4, 6), whole(-5, 5), logs(1e-14, 1e-2)),
               lambda x, a, b, d: (x, a, b + d)), 4000)
region(F, "x in [0.1, 100], a in (0, 5], b in [5, 80]", cloud(35, 60, logs(0.1, 100), uniform(0, 5), uniform(5, 80)), 4000)
region(F, "x in (0, 20], a in [-10, 0], b in [-10, 10]", cloud(19, 80, uniform(0, 20), uniform(-10, 0), uniform(-10, 10)), 4000)
region(F, "x in (0, 20], a = -1 to -10, b in [-10, 10]", cloud(20, 80, uniform(0, 20), whole(-10, -1), uniform(-10, 10)), 8000)
region(F, "x in [1, 50], a in (0, 60], b in [-60, 60]", cloud(21, 60, uniform(1, 50), uniform(0, 60), uniform(-60, 60)), 4000)

# 2F1(a, b; c; x).
for F, cut in (("SpecHyperg2F1", -0.2), ("SpecHyperg2F1Transformed", -0.5)):
    positive = uniform(0, 5), uniform(0, 5), uniform(0.05, 5)
    region(F, f"x in [{cut}, 0.9], a, b, c in (0, 5]", cloud(22, 120, uniform(cut, 0.9), *positive), 100, scipy=1e-12)
    region(F, "x in (0.9, 1), a, b, c in (0, 5]", cloud(23, 100, uniform(0.9, 1), *positive), 200)
    region(F, f"x in [-1, {cut}), a, b, c in (0, 5]", cloud(24, 100, uniform(-1, cut), *positive), 200, scipy=1e-12)
    region(F, "x in [-1000, -1), a, b, c in (0, 5]",
           derived(cloud(25, 100, logs(1, 1000), *positive), lambda x, a, b, c: (-x, a, b, c)), 4e4)
    region(F, "x in [-1e100, -100], a, b in [-3, 3], c in (0, 5]",
           derived(cloud(36, 60, logs(100, 1e100), uniform(-3, 3), uniform(-3, 3), uniform(0.1, 5)),
                   lambda x, a, b, c: (-x, a, b, c)), 4000)
    region(F, "x in [-1, 1], a, b, c in [-10, 10]",
           cloud(26, 120, uniform(-1, 1), uniform(-10, 10), uniform(-10, 10), uniform(-10, 10)), 1000)
    region(F, "x in [0.5, 1), c - a - b = -5 to 5",
           derived(cloud(27, 100, uniform(0.5, 1), eighths(-3, 3), eighths(-3, 3), whole(-5, 5)),
                   lambda x, a, b, d: (x, a + 1 / 32, b + 1 / 64, a + b + 3 / 64 + d)), 400)
    region(F, "x in [-50, -1], b - a = -3 to 3",
           derived(cloud(28, 100, uniform(-50, -1), eighths(-3, 3), whole(-3, 3), uniform(0, 5)),
                   lambda x, a, d, c: (x, a + 1 / 32, a + 1 / 32 + d, c)), 1000)
    region(F, "x in [-5, 5], a = 0 to -15, b, c in [-5, 5]",
           cloud(29, 100, uniform(-5, 5), whole(-15, 0), uniform(-5, 5), uniform(-5, 5)), 200)
# Known to be weak: c - a - b near but not at a whole number at x near 1, where the two terms cancel by the distance and the
# limit is wrong by it; they meet at 4e-9.
region("SpecHyperg2F1", "1e-6 < 1 - x < 0.002, c - a - b within 1e-15 to 0.1 of -5 to 5",
       derived(cloud(30, 120, logs(1e-6, 2e-3), uniform(-3, 3), uniform(-3, 3), whole(-5, 5), logs(1e-15, 0.1)),
               lambda y, a, b, m, d: (1 - y, a, b, a + b + m + d)), 1e-7 / U)
region("SpecHyperg2F1", "x in [-1, 1], a, b, c in [-40, 40]",
       cloud(31, 120, uniform(-1, 1), uniform(-40, 40), uniform(-40, 40), uniform(-40, 40)), 1e-9 / U)


@pytest.mark.parametrize("which", REGIONS, ids=lambda r: f"{r.function} {r.label}")
def test_peak_error_stays_within_its_bound(qv, which):
    accuracy.check(qv, FUNCTIONS, which)


def test_both_gauss_exports_agree(qv):
    """They differ in the cut of one transformation only."""
    generator = rng(32)
    for _ in range(2000):
        x, a, b, c = generator.uniform(-3, 1), *generator.uniform(0.1, 4, 3)
        first, second = qv.ZemFunc386(x, a, b, c), qv.ZemFunc315(x, a, b, c)
        assert abs(first - second) <= 400 * U * abs(first), (x, a, b, c)


def test_large_parameters_of_1f1_either_hold_three_digits_or_are_nan(qv):
    held = 0
    for x, a, b in cloud(33, 120, uniform(-200, 200), uniform(-200, 200), uniform(-200, 200))():
        value, truth = qv.ZemFunc316(x, a, b), exact_1f1(x, a, b)
        if np.isnan(value) or abs(truth) > 1e305 or abs(truth) < 1e-290:
            continue
        assert abs(value / truth - 1) < 1e-3, (x, a, b)
        held += 1
    assert held > 30


if __name__ == "__main__":
    accuracy.print_table(sys.argv[1], FUNCTIONS, REGIONS, density=3)
