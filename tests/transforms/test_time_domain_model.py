"""Integration, differentiation and decimation in scalar arithmetic, to the last bit; faults in their order."""

import itertools
import math

import numpy as np
import pytest

from exact import KINDS, SIZES, TOO_LARGE, Guarded, divided, equal_numbers, fits, numbers, unwritten

COUNTS = [1, 2, 3, 4, 5, 17, 1023, 1024, 1025, 1026, 2050]
STEPS = [0.3, 1.0, 5e-324, 1e-310, 1e308, math.inf, math.nan]
FAULTY_STEPS = [0.0, -0.0, -5e-324, -1.0, -math.inf]


def in_and_out_of_place(call, x):
    """The status and result of a call with an output, with one equal to the input, and with none: all agree."""
    source, out = Guarded(x), unwritten(len(x), x.dtype)
    status = call(source.array, out.array)
    source.untouched()
    for same in (True, False):
        place = Guarded(x, x.dtype)
        assert call(place.array, place.array if same else None) == status
        place.kept()
        if status == 0:
            equal_numbers(place.array, out.array)
        else:
            place.untouched()
    (out.kept if status == 0 else out.untouched)()
    return status, out.array


def integral(x, dt, initial, final):
    e, s, out = [initial] + x + [final], 0.0, []
    for i in range(1, len(x) + 1):
        s += (e[i - 1] + 4 * e[i] + e[i + 1]) * (dt / 6)
        out.append(s)
    return out


@pytest.mark.parametrize("n", COUNTS)
@pytest.mark.parametrize("kind", KINDS)
def test_simpson(qv, n, kind):
    rng = np.random.default_rng((n, KINDS.index(kind)))
    for dt in STEPS + FAULTY_STEPS:
        x = numbers(rng, n, kind)
        initial, final = (float(v) for v in (numbers(rng, 2, kind)))
        status, out = in_and_out_of_place(lambda a, b: qv.ZemFunc95(a, n, dt, initial, final, b), x)
        if dt <= 0:
            assert status == -20016
        else:
            assert status == 0
            equal_numbers(out, integral(x.tolist(), dt, initial, final))


def derivative(x, dt, before, after, method):
    """Status and the samples; before and after are the arrays that the caller gave."""
    n = len(x)
    if not (dt > 0 or math.isnan(dt)):
        return -20016, None
    if method > 3:
        return -20061, None
    needs = [(1, 1), (2, 2), (0, 1), (1, 0)][method]
    if len(before) < needs[0] or len(after) < needs[1]:
        return -20006 if method == 1 else -20003, None
    e = list(before[:needs[0]]) + x + list(after[:needs[1]])
    at, out = needs[0], []
    factor = divided(0.5, dt) if method == 0 else divided(1, dt * 12.0) if method == 1 else divided(1, dt)
    for i in range(at, at + n):
        if method == 0:
            d = e[i + 1] - e[i - 1]
        elif method == 1:
            d = 8 * e[i + 1] - e[i + 2] - 8 * e[i - 1] + e[i - 2]
        else:
            d = e[i + 1] - e[i] if method == 2 else e[i] - e[i - 1]
        out.append(d * factor)
    return 0, out


@pytest.mark.parametrize("n", COUNTS)
@pytest.mark.parametrize("kind", KINDS)
def test_differences(qv, n, kind):
    rng = np.random.default_rng((n, KINDS.index(kind)))
    for method in (0, 1, 2, 3, 4, 2**32 - 1):
        for dt in STEPS + FAULTY_STEPS:
            x = numbers(rng, n, kind)
            before, after = (numbers(rng, int(rng.choice([0, 1, 2, 2, 3])), kind) for _ in range(2))
            status, expected = derivative(x.tolist(), dt, before.tolist(), after.tolist(), method)
            got, out = in_and_out_of_place(
                lambda a, b: qv.ZemFunc367(a, n, dt, before, len(before), after, len(after), method, b), x)
            assert got == status, (method, dt, len(before), len(after))
            if status == 0:
                equal_numbers(out, expected)
            if method == 0:
                initial, final = (float(v) for v in numbers(rng, 2, kind))
                status, expected = derivative(x.tolist(), dt, [initial], [final], 0)
                got, out = in_and_out_of_place(lambda a, b: qv.ZemFunc56(a, n, dt, initial, final, b), x)
                assert got == status
                if status == 0:
                    equal_numbers(out, expected)


def test_faults_of_integrals_and_differences_in_their_order(qv):
    x, one = Guarded(np.array([1.0, 2.0])), np.ones(1)
    for n in SIZES + TOO_LARGE:
        if fits(n) and n >= 1:
            continue
        status = -20003 if fits(n) else -20046
        for dt in STEPS + FAULTY_STEPS:
            for method, sides in itertools.product((0, 1, 4), itertools.product((-2**31, -1, 0, 1), repeat=2)):
                out = unwritten(2)
                assert qv.ZemFunc367(x.array, n, dt, one, sides[0], one, sides[1], method, out.array) == status
                out.untouched()
            out = unwritten(2)
            assert qv.ZemFunc95(x.array, n, dt, 0.0, 0.0, out.array) == status
            assert qv.ZemFunc56(x.array, n, dt, 0.0, 0.0, out.array) == status
            out.untouched()
    for bad in TOO_LARGE:
        out = unwritten(2)
        assert qv.ZemFunc367(x.array, 0, 0.0, one, bad, one, 0, 9, out.array) == -20046
        assert qv.ZemFunc367(x.array, 0, 0.0, one, 0, one, bad, 9, out.array) == -20046
        out.untouched()
    x.untouched()


def decimated(x, factor, average):
    out = []
    for i in range(len(x) // factor):
        block = x[i * factor:(i + 1) * factor]
        if average:
            s = 0.0
            for v in block:
                s += v
            out.append(divided(s, factor))
        else:
            out.append(block[0])
    return out


@pytest.mark.parametrize("n", [1, 2, 5, 17, 100, 1030])
@pytest.mark.parametrize("kind", KINDS)
def test_decimation(qv, n, kind):
    rng = np.random.default_rng((n, KINDS.index(kind)))
    for factor, average in itertools.product([-2**31, -1, 0, 1, 2, 3, 7, 64, n - 1, n, n + 1, 2**31 - 1],
                                             (0, 1, 2, 2**32 - 1)):
        x = Guarded(numbers(rng, n, kind))
        pairs = Guarded(numbers(rng, 2 * n, kind).view(complex), complex)
        valid = 1 <= factor <= n
        m = n // factor if valid else 3
        out, both = unwritten(m), unwritten(m, complex)
        status = 0 if valid else -20022
        assert qv.ZemFunc53(x.array, n, factor, average, out.array) == status
        x.untouched()
        assert qv.ZemFunc360(pairs.array, n, factor, average, both.array) == status
        pairs.untouched()
        assert qv.ZemFunc360(pairs.array, n, factor, average, None) == status
        if not valid:
            [a.untouched() for a in (out, both, pairs)]
            continue
        out.kept()
        both.kept()
        pairs.kept()
        equal_numbers(out.array, decimated(x.array.tolist(), factor, average))
        parts = pairs.first.view(float)
        equal_numbers(both.array.real, decimated(parts[::2].tolist(), factor, average))
        equal_numbers(both.array.imag, decimated(parts[1::2].tolist(), factor, average))
        # In place, what lies behind the results stays.
        equal_numbers(pairs.array.view(float)[:2 * m], both.array.view(float))
        assert np.array_equal(pairs.words[2 * m:], pairs.first[2 * m:])


def test_faults_of_decimation_in_their_order(qv):
    x = Guarded(np.zeros(2, complex), complex)
    for n, factor in itertools.product(SIZES, repeat=2):
        if fits(n, factor) and n >= 1 and (n > 2 or 1 <= factor <= n):
            continue
        status = -20046 if not fits(n, factor) else -20003 if n < 1 else -20022
        out = unwritten(2, complex)
        assert qv.ZemFunc53(x.array.view(float), n, factor, 1, out.array.view(float)) == status
        assert qv.ZemFunc360(x.array, n, factor, 1, out.array) == status
        out.untouched()
        assert qv.ZemFunc360(x.array, n, factor, 0, None) == status
    x.untouched()
