"""FFT plans as records: factors of thousands of sizes, and every table by its recurrence, read through the pointer.

The fields stand in the documented order, so that the record can be read from outside.
"""

import ctypes

import numpy as np
import pytest
from exact import SIZES, equal_bits, exports_of, fits, libm

EPS = np.finfo(float).eps
sin = libm("sin")
TWO_PI = 6.283185307179586
KERNELS = [10, 43, 41, 37, 32, 31, 29, 19, 18, 17, 16, 14, 13, 11, 9, 8, 7, 5, 4, 3, 2]

doubles, counts = ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_int32)


class Stage(ctypes.Structure):
    pass


class Plan(ctypes.Structure):
    pass


Stage._fields_ = [("primeCos", doubles), ("primeSin", doubles), ("twiddleCos", doubles), ("twiddleSin", doubles),
                  ("raderPlan", ctypes.POINTER(Plan)), ("raderSpectrumRe", doubles), ("raderSpectrumIm", doubles),
                  ("raderGather", counts), ("raderScatter", counts)]
Plan._fields_ = [("size", ctypes.c_int32), ("refCount", ctypes.c_int32), ("factors", ctypes.c_int32 * 20),
                 ("kinds", ctypes.c_int32 * 20), ("factorCount", ctypes.c_int32),
                 ("stages", ctypes.POINTER(Stage) * 20), ("realLeafKernels", ctypes.c_void_p * 20),
                 ("realStageKernels", ctypes.c_void_p * 20), ("leafKernels", ctypes.c_void_p * 20),
                 ("stageKernels", ctypes.c_void_p * 20), ("prev", ctypes.POINTER(Plan)), ("next", ctypes.POINTER(Plan))]


class Held:
    def __init__(self, qv, size):
        self.qv, self.address = qv, qv.ZemFunc260(size)
        assert self.address
        self.plan = ctypes.cast(self.address, ctypes.POINTER(Plan)).contents

    def __enter__(self):
        return self.plan

    def __exit__(self, *_):
        self.qv.ZemFunc261(self.address)


def array(pointer, n):
    return np.array(np.ctypeslib.as_array(pointer, (n,))) if n else np.empty(0)


def factorised(n):
    """(factors, kinds) in ascending order."""
    found, rest = [], n
    for kernel in KERNELS:
        while rest > 1 and rest % kernel == 0:
            found.append((kernel, 0))
            rest //= kernel
    divisor = 3
    while rest >= 9 and divisor * divisor <= rest:
        while rest % divisor == 0:
            found.append((divisor, 1 if divisor < 50 else 2))
            rest //= divisor
        divisor += 2
    if rest > 1:
        found.append((rest, 1 if rest < 50 else 2))
    found.sort()
    return found


def test_thousands_of_sizes_have_the_documented_factors_and_kernels(qv):
    rng = np.random.default_rng(1)
    # Smooth sizes up to millions, where the greedy choice and the count of factors matter.
    smooth = [int(np.prod(rng.choice([2, 3, 5, 7, 23, 47, 2, 2, 3], int(k)))) for k in rng.integers(8, 20, 60)]
    for n in [*range(1, 1500), *(s for s in smooth if s < 3_000_000), 1 << 20, 3 ** 12, 5 ** 8, 23 ** 3, 47 ** 2 * 23]:
        with Held(qv, n) as plan:
            expected = factorised(n)
            assert (plan.size, plan.refCount, plan.factorCount) == (n, 1, len(expected))
            assert list(zip(plan.factors, plan.kinds))[:plan.factorCount] == expected
            assert np.prod([f for f, _ in expected], dtype=int) == n
            for i, (factor, kind) in enumerate(expected):
                slots = [getattr(plan, name)[i] for name in ("realLeafKernels", "realStageKernels", "leafKernels",
                                                             "stageKernels")]
                if kind == 0:
                    assert all(slots)
                stage = plan.stages[i].contents
                assert bool(stage.primeCos) == bool(stage.primeSin) == (kind == 1)
                rader = ("raderPlan", "raderSpectrumRe", "raderSpectrumIm", "raderGather", "raderScatter")
                assert all(bool(getattr(stage, name)) == (kind == 2) for name in rader)


def turned(angle, c, w, count):
    """The recurrence from one point on: lists of cosines and sines."""
    s = sin(angle / 2)
    d, t = s * (2 * s), sin(angle)
    if c is None:
        c, w = 1 - d, -t
    cosines, sines = [], []
    for _ in range(count):
        cosines.append(c)
        sines.append(w)
        c, w = c - (c * d + (-t) * w), w - (w * d - (-t) * c)
    return cosines, sines


@pytest.mark.parametrize("n", [2, 4, 6, 60, 96, 46, 94, 106, 212, 529, 600, 1000, 1024, 1081, 2048, 2809, 4093,
                               2 * 53 * 59, 67 * 67, 67 * 101])
def test_tables_follow_their_recurrences_to_the_last_bit(qv, n):
    with Held(qv, n) as plan:
        length = n
        for i in range(plan.factorCount):
            f, stage = plan.factors[i], plan.stages[i].contents
            m = length // f
            if i + 1 < plan.factorCount:
                cosines, sines = np.empty((m - 1, f - 1)), np.empty((m - 1, f - 1))
                for r in range(1, f):
                    cosines[:, r - 1], sines[:, r - 1] = turned(r * (TWO_PI / length), None, None, m - 1)
                equal_bits(array(stage.twiddleCos, (f - 1) * (m - 1)), cosines.ravel())
                equal_bits(array(stage.twiddleSin, (f - 1) * (m - 1)), sines.ravel())
            else:
                assert m == 1 and not stage.twiddleCos and not stage.twiddleSin
            if plan.kinds[i] == 1:
                cosines, sines = turned(TWO_PI / f, 1.0, 0.0, f)
                equal_bits(array(stage.primeCos, f), cosines)
                equal_bits(array(stage.primeSin, f), sines)
            if plan.kinds[i] == 2:
                check_large_prime(stage, f)
            length = m


def primitive_root(p):
    for g in range(2, p):
        x, exponent = g, 1
        while x != 1:
            x, exponent = x * g % p, exponent + 1
        if exponent == p - 1:
            return g
    return 1


def check_large_prime(stage, p):
    n, g = p - 1, primitive_root(p)
    gather, scatter = [0] * p, [0] * p
    gather[1] = scatter[1] = power = 1
    for k in range(1, n):
        power = power * g % p
        scatter[k + 1] = gather[p - k] = power
    assert array(stage.raderGather, p).tolist() == gather
    assert array(stage.raderScatter, p).tolist() == scatter
    assert stage.raderPlan.contents.size == n and stage.raderPlan.contents.refCount >= 1
    cosines, sines = turned(TWO_PI / p, None, None, n)
    b = np.array([(cosines[q - 1] + 1j * sines[q - 1]) / n for q in scatter[1:]])
    # n terms of magnitude 1/n; the transform's rounding grows with log2 n and with its own twiddles' sqrt n.
    tolerance = 8 * EPS * (np.log2(2 * n) + np.sqrt(n)) / np.sqrt(n)
    got = array(stage.raderSpectrumRe, n) + 1j * array(stage.raderSpectrumIm, n)
    assert np.max(np.abs(got - np.fft.fft(b))) <= tolerance


@pytest.mark.parametrize("p", [53, 59, 101, 107, 257, 509, 1009, 2039, 2 * 1019 + 1, 4099])
def test_tables_of_large_primes_are_those_of_the_smallest_primitive_root(qv, p):
    with Held(qv, p) as plan:
        assert list(zip(plan.factors, plan.kinds))[:plan.factorCount] == [(p, 2)]
        check_large_prime(plan.stages[0].contents, p)


def test_a_plan_lives_as_long_as_somebody_holds_it_and_new_ones_stand_in_front(qv):
    with Held(qv, 53) as prime:
        below = prime.stages[0].contents.raderPlan.contents
        assert (below.size, below.refCount) == (52, 1)
        with Held(qv, 52) as held, Held(qv, 53) as again:
            assert ctypes.addressof(held) == ctypes.addressof(below) and below.refCount == 2
            assert ctypes.addressof(again) == ctypes.addressof(prime) and prime.refCount == 2
        assert (prime.refCount, below.refCount) == (1, 1)
        with Held(qv, 12) as newest:
            assert not newest.prev
            assert ctypes.addressof(newest.next.contents) == ctypes.addressof(prime)
            assert ctypes.addressof(prime.prev.contents) == ctypes.addressof(newest)
            # The predecessor was put into the list while the prime's tables were made, before the prime itself.
            assert ctypes.addressof(prime.next.contents) == ctypes.addressof(below) and not below.next


def test_only_sizes_that_fit_and_are_positive_have_plans(qv):
    for size in SIZES:
        if fits(size) and size > 65537:
            continue
        address = qv.ZemFunc260(size)
        assert bool(address) == (fits(size) and size > 0), size
        qv.ZemFunc261(address)
    qv.ZemFunc261(None)


def test_every_export_of_the_family_stands_here():
    assert exports_of("plans") == {260, 261}
