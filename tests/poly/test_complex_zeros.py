"""The search for complex zeros, step by step in scalar arithmetic, to the last bit."""

import math

import numpy as np
import pytest

LIMIT = 100
TURN_BACK, TURN_LONG, TURN_SHORT = (-0.4, -0.3), (0.8, 0.6), (0.2, 0.15)


class Failure(Exception):
    def __init__(self, status):
        self.status = status


def add(z, w):
    return z[0] + w[0], z[1] + w[1]


def subtract(z, w):
    return z[0] - w[0], z[1] - w[1]


def times(z, w):
    return z[0] * w[0] - z[1] * w[1], z[1] * w[0] + z[0] * w[1]


def scaled(z, factor):
    return z[0] * factor, z[1] * factor


def negated(z):
    return -z[0], -z[1]


def quotient(z, w):
    """Smith's: the smaller part of w is divided by the larger first."""
    with np.errstate(all="ignore"):
        a, b, c, d = (np.float64(v) for v in (*z, *w))
        if abs(c) >= abs(d):
            r = d / c
            denominator = r * d + c
            out = (r * b + a) / denominator, (b - r * a) / denominator
        else:
            r = c / d
            denominator = r * c + d
            out = (r * a + b) / denominator, (r * b - a) / denominator
    return float(out[0]), float(out[1])


def modulus(z):
    return math.sqrt(z[0] * z[0] + z[1] * z[1])


def power(x, y):
    try:
        return math.pow(x, y)
    except OverflowError:
        return math.inf


class Search:
    """For one zero of a polynomial in ascending powers with more than three coefficients."""

    def __init__(self, a):
        self.a, self.d = a, len(a)

    def value(self, w):
        p = self.a[-1]
        for k in range(self.d - 2, -1, -1):
            p = add(self.a[k], times(p, w))
        return p

    def slope(self, w):
        p = scaled(self.a[-1], self.d - 1.0)
        for k in range(self.d - 2, 0, -1):
            p = add(scaled(self.a[k], float(k)), times(p, w))
        return p

    def f(self, w):
        return modulus(self.value(w))

    def vanishes(self, f, reference):
        return f == 0 or (f == reference and f <= self.E)

    def run(self):
        a, d = self.a, self.d
        self.zp, self.fp = (0.0, 0.0), modulus(a[0])
        self.dz = (1.0, 0.0) if a[1] == (0, 0) else negated(quotient(a[0], a[1]))
        r = 1.0
        for k in range(1, d):
            if a[k] != (0, 0):
                r = min(r, power(modulus(quotient(a[0], a[k])), 1.0 / k))
        self.E = 16.0 * (d - 2) * self.fp * 1e-10
        self.z = scaled(self.dz, r / 2 / modulus(self.dz))
        self.fz = self.f(self.z)
        if self.vanishes(self.fz, self.fp):
            return self.z
        retry = False
        for _ in range(100000):  # the library's own bound
            plain = self.stage_one(retry)
            if self.vanishes(self.fz, self.fp) or self.found:
                return self.z
            if modulus(subtract(self.z, self.zp)) < 1e-10 * modulus(self.z):
                return self.z
            retry = False
            if plain:
                retry = self.stage_two()
                if self.found:
                    return self.z
        raise Failure("circle")

    def move(self, z, f):
        self.zp, self.fp, self.z, self.fz = self.z, self.fz, z, f
        self.dz = subtract(self.z, self.zp)

    def stage_one(self, retry):
        """Whether the step was the plain multiple 1."""
        self.found = False
        dz, z, f = self.dz, self.z, self.fz
        if not retry:
            slope = self.slope(z)
            if any(map(math.isnan, slope)):
                raise Failure(-20116)
            if slope == (0, 0):
                dz = times(dz, TURN_BACK)
            else:
                dz = negated(quotient(self.value(z), slope))
                longest = 3 * modulus(subtract(z, self.zp))
                if modulus(dz) > longest:
                    dz = scaled(times(dz, TURN_LONG), longest / modulus(dz))
        c = 0
        while True:
            z1 = add(z, dz)
            f1 = self.f(z1)
            if self.vanishes(f1, f):
                self.found = True
                self.move(z1, f1)
                return False
            if f1 < f:
                multiple = 1
                while f1 != 0 and multiple < self.d - 1:
                    further = add(z, scaled(dz, multiple + 1.0))
                    if not self.f(further) < f1:
                        break
                    z1, f1, multiple = further, self.f(further), multiple + 1
                self.move(z1, f1)
                return multiple == 1
            z2 = add(z, scaled(dz, 0.5))
            f2 = self.f(z2)
            if self.vanishes(f2, f):
                self.found = True
                self.move(z2, f2)
                return False
            if f1 <= f2:
                c += 1
                if c > LIMIT:
                    raise Failure(-20062)
                dz = times(dz, TURN_BACK)
                continue
            z3 = add(z, scaled(dz, 0.25))
            f3 = self.f(z3)
            if self.vanishes(f3, f2):
                self.found = True
                self.move(z3, f3)
                return False
            if f3 < f2:
                z4 = add(z, times(dz, TURN_SHORT))
                f4 = self.f(z4)
                if self.vanishes(f4, f):
                    self.found = True
                    self.move(z4, f4)
                    return False
                z2, f2 = (z4, f4) if f4 < f3 else (z3, f3)
            self.move(z2, f2)
            return False

    def stage_two(self):
        """Whether stage one goes on with the stored step."""
        while True:
            slope, before = self.slope(self.z), self.slope(self.zp)
            if any(map(math.isnan, slope + before)):
                raise Failure(-20116)
            distance = modulus(subtract(self.z, self.zp))
            if distance * (slope[0] * slope[0] + slope[1] * slope[1]) < 2 * modulus(subtract(slope, before)) * self.fz:
                return False
            dz = negated(quotient(self.value(self.z), slope))
            z1 = add(self.z, dz)
            f1 = self.f(z1)
            if self.vanishes(f1, self.fz) or modulus(dz) < 1e-10 * modulus(z1):
                self.move(z1, f1)
                self.found = True
                return False
            if f1 >= self.fz:
                self.dz = times(self.dz, TURN_BACK)
                return True
            self.move(z1, f1)


def zeros(c):
    """Status and the zeros that stand in the output."""
    a = [(float(v), 0.0) for v in reversed(c)]
    while a and a[-1] == (0, 0):
        a.pop()
    if len(a) < 2:
        return -20063, []
    z = []
    while a[0] == (0, 0):
        z.append((0.0, 0.0))
        a.pop(0)
    while len(a) > 3:
        try:
            z.append(Search(a).run())
        except Failure as failure:
            return failure.status, z
        b = list(a)
        for k in range(len(a) - 2, 0, -1):
            b[k] = add(a[k], times(z[-1], b[k + 1]))
        a = b[1:]
    return 0, z


def check(qv, c):
    """All zeros of the search; the last two come from the quadratic."""
    c = np.array(c, float)
    status, expected = zeros(c)
    z = np.full(len(c) - 1, 7.5 - 2.5j)
    assert qv.ZemFunc231(c, len(c), z) == (-20062 if status == "circle" else status)
    found = np.array(expected).reshape(-1, 2)
    assert np.array_equal(z.real[:len(found)], found[:, 0]) and np.array_equal(z.imag[:len(found)], found[:, 1])
    if status:
        assert np.all(z[len(found):] == 7.5 - 2.5j)
    return status


@pytest.mark.parametrize("kind", ["normal", "whole", "cluster", "wilkinson", "mixed sizes"])
def test_the_search_takes_the_documented_steps_to_the_last_bit(qv, kind):
    rng, found = np.random.default_rng(len(kind)), 0
    for m in [4, 5, 6, 7, 8, 10, 13, 20, 31] * 4:
        c = {"normal": lambda: rng.standard_normal(m),
             "whole": lambda: rng.integers(-3, 4, m).astype(float),
             "cluster": lambda: np.poly(1 + 0.01 * rng.standard_normal(m - 1)),
             "wilkinson": lambda: np.poly(np.arange(1, m) * rng.uniform(0.5, 2)),
             "mixed sizes": lambda: np.exp(rng.normal(0, 20, m)) * rng.choice([-1, 1], m)}[kind]()
        found += check(qv, c) == 0
    assert found > 30


@pytest.mark.parametrize("c", [[1, 0, 0, 1e17], [1, 0, 0, -1e17, 0], [1, 0, 0, 1e17, -1], [2, -1, 1, 1e17, -3],
                               [1, 1, 0, 0, 1e18, -1]])
def test_a_search_that_nothing_lowers_ends_after_its_trials(qv, c):
    """Zeros beyond 10^5 are out of sight from a start within 1/2: there the constant swallows all that z could change,
    no value is lower than another, and none is small."""
    assert check(qv, c) == -20062


def test_zeros_of_large_modulus_that_the_sum_can_feel_are_found(qv):
    assert check(qv, [1, 0, 0, 1e3]) == 0
