"""Descriptive statistics in scalar arithmetic, in the documented order, to the last bit."""

import math

import numpy as np
import pytest

from exact import TOO_LARGE, equal_numbers

EPS = 2.220446049250313e-16
SIZES = [1, 2, 3, 4, 5, 8, 17, 100]


def scalar():
    return np.full(1, np.nan)


def total(values):
    s = 0.0
    for v in values:
        s += v
    return s


def mean(x):
    return total(x) / len(x)


def data(n, seed):
    """Ordinary samples, a near constant, repeated whole numbers, all magnitudes, special values."""
    rng = np.random.default_rng((n, seed))
    x = [lambda: rng.standard_normal(n), lambda: 0.1 + 1e-16 * rng.integers(0, 3, n),
         lambda: rng.integers(-3, 4, n).astype(float), lambda: rng.standard_normal(n) * 10.0**rng.integers(-200, 150, n),
         lambda: rng.choice([0.0, -0.0, 1.5, np.inf, -np.inf, np.nan], n)][seed % 5]()
    return x


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("seed", range(10))
def test_sums_and_powers(qv, n, seed):
    x = data(n, seed)
    v = x.tolist()
    first, second = scalar(), scalar()
    with np.errstate(all="ignore"):
        m = mean(v)
        assert qv.ZemFunc122(x, n, first) == 0
        equal_numbers(first, [m])
        assert qv.ZemFunc150(x, n, first) == 0
        equal_numbers(first, [math.sqrt(total(a * a for a in v) / n)])
        assert qv.ZemFunc184(x, n, first, second) == 0
        equal_numbers([first[0], second[0]], [m, total(a * a for a in v) / n - m * m])
        assert qv.ZemFunc166(x, n, first, second) == 0
        equal_numbers([first[0], second[0]], [m, math.sqrt(total((a - m) * (a - m) for a in v) / n)])
        z = (x + 0j)
        z.imag = data(n, seed + 5)
        assert qv.ZemFunc369(z, n, first) == 0
        equal_numbers(first, [math.sqrt(total(a * a + b * b for a, b in zip(v, z.imag.tolist())) / n)])
        for order in (1, 2, 3, 4, 7, 30):
            powers = []
            for a in v:
                d = p = a - m
                for _ in range(order - 1):
                    p *= d
                powers.append(p)
            assert qv.ZemFunc125(x, n, order, first) == 0
            equal_numbers(first, [total(powers) / n])


@pytest.mark.parametrize("n", SIZES + [999, 1000])
@pytest.mark.parametrize("seed", range(10))
def test_median(qv, n, seed):
    x = data(n, seed)
    found = scalar()
    if np.isnan(x).any():
        found[0] = 5
        assert qv.ZemFunc123(x, n, found) == -20104
        assert np.isnan(found[0])
        return
    assert qv.ZemFunc123(x, n, found) == 0
    s = sorted(x.tolist())
    # Zeros of either sign have one rank.
    assert found[0] == s[n // 2] if n % 2 else np.array_equal(found[0], (s[n // 2 - 1] + s[n // 2]) / 2, equal_nan=True)


def histogram(x, base, top, m):
    counts = [0] * m
    if base == top:
        counts[-1] = len(x)
        return counts, [base] * m
    w = (top - base) / m
    centres = [w * 0.5 + base]
    for _ in range(m - 1):
        centres.append(centres[-1] + w)
    f = m / (top - base) if top != base else math.nan
    for v in x:
        position = (v - base) * f
        if math.isfinite(position) and 0 <= math.floor(position) < m:
            counts[math.floor(position)] += 1
        elif v == top:
            counts[-1] += 1
    return counts, centres


def ranges(rng, x):
    low, high = sorted(rng.uniform(-2, 2, 2).tolist())
    finite = x[np.isfinite(x)]
    if len(finite):
        yield float(finite.min()), float(finite.max())
        yield float(rng.choice(finite)), float(finite.max()) + 0.1
    yield low, high
    yield -1.0, 1.0
    yield 0.3, 0.3
    yield -0.0, 0.0
    yield -1e308, 1e308
    yield 0.1, 0.7


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("seed", range(10))
def test_histogram_and_its_mode(qv, n, seed):
    rng, x = np.random.default_rng(seed), data(n, seed)
    for base, top in ranges(rng, x):
        if base > top:
            continue
        for m in (1, 2, 3, 7, 10, 49):
            # Samples on and beside the edges of the bins too.
            with np.errstate(all="ignore"):
                edges = base + (top - base) / m * rng.integers(-1, m + 2, n)
            samples = np.where(rng.random(n) < 0.3, np.nextafter(edges, rng.choice([-9, 9])), np.where(
                rng.random(n) < 0.5, edges, x))
            counts, centres, mode = np.full(m, -7, np.int64), np.full(m, np.nan), scalar()
            with np.errstate(all="ignore"):
                expected = histogram(samples.tolist(), base, top, m)
            assert qv.ZemFunc90(samples, n, base, top, counts, centres, m) == 0
            assert list(counts) == expected[0], (base, top, m)
            equal_numbers(centres, expected[1])
            assert qv.ZemFunc124(samples, n, base, top, m, mode) == 0
            equal_numbers(mode, [expected[1][expected[0].index(max(expected[0]))]])
            centres[:] = np.nan
            assert qv.ZemFunc90(samples, n, base, top, None, centres, m) == 0
            equal_numbers(centres, expected[1])


def ascending(x):
    """NaN in front."""
    return sorted(x, key=lambda v: (v == v, v if v == v else 0))


def modes(x, intervals):
    if len(x) == 1:
        return []
    if intervals < 1:
        s = ascending(x)
        if abs(s[0] - s[-1]) <= abs(s[0]) * EPS:
            return [s[0]]
        longest, found, i = 1, [], 0
        while i < len(s):
            j = i + 1
            while j < len(s) and abs(s[i] - s[j]) <= abs(s[i]) * EPS:
                j += 1
            if j - i > longest:
                longest, found = j - i, []
            if j - i == longest >= 2:
                found.append(s[i])
            i = j
        return found
    low, high = min(x), max(x)
    if abs(high - low) <= abs(high) * EPS:
        return [high]
    counts, centres = histogram(x, low, high, intervals)
    return [c for k, c in zip(counts, centres) if k == max(counts) >= 2]


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("seed", [0, 1, 2, 3, 5, 6, 7, 8, 10, 11, 12])
@pytest.mark.parametrize("intervals", [-2**31, -1, 0, 1, 2, 5, 30])
def test_modes_and_their_capacity(qv, n, seed, intervals):
    x = data(n, seed)
    if seed > 9:
        # Runs of values that differ by about an epsilon from their start, or by two from each other.
        x = np.repeat(x, 3)[:n] * (1 + EPS * np.random.default_rng(seed).integers(-1, 2, n))
    expected = modes(x.tolist(), intervals)
    for capacity in (n + 1, 1, 0, -5):
        found, count = np.full(n + 1, np.nan), np.array([capacity], np.int64)
        assert qv.ZemFunc340(x, n, intervals, found, count) == 0
        assert count[0] == len(expected)
        written = min(len(expected), max(capacity, 0))
        equal_numbers(found[:written], expected[:written])
        assert np.isnan(found[written:]).all()


def calls(qv, n, intervals=2, capacity=3):
    """Every export of the family with that size, and its outputs."""
    a, counts = [np.full(4, 7.0) for _ in range(2)], np.full(4, 7, np.int64)
    count, z = np.array([capacity], np.int64), np.zeros(2, complex)
    statuses = [qv.ZemFunc122(a[0], n, a[1]), qv.ZemFunc150(a[0], n, a[1]), qv.ZemFunc184(a[0], n, a[1], a[1][1:]),
                qv.ZemFunc166(a[0], n, a[1], a[1][1:]), qv.ZemFunc125(a[0], n, 0, a[1]), qv.ZemFunc123(a[0], n, a[1]),
                qv.ZemFunc90(a[0], n, 0.0, 1.0, counts, a[1], intervals),
                qv.ZemFunc124(a[0], n, 0.0, 1.0, intervals, a[1]), qv.ZemFunc340(a[0], n, intervals, a[1], count)]
    rms = np.full(1, 7.0)
    statuses.append(qv.ZemFunc369(z, n, rms))
    assert (a[0] == 7).all() and (a[1] == 7).all() and (counts == 7).all()
    return statuses, count[0], rms[0]


@pytest.mark.parametrize("n", [0, -1, -2**31])
def test_sizes_below_1(qv, n):
    statuses, count, rms = calls(qv, n)
    assert set(statuses) == {-20003}
    assert count == 0 and np.isnan(rms)


@pytest.mark.parametrize("n", TOO_LARGE)
def test_sizes_beyond_32_bits_touch_nothing_also_with_other_faults(qv, n):
    statuses, count, rms = calls(qv, n, intervals=0)
    assert set(statuses) == {-20046}
    assert count == 3 and rms == 7
    x, y, counts, count = np.zeros(2), np.full(2, 7.0), np.full(2, 7, np.int64), np.array([1], np.int64)
    assert qv.ZemFunc90(x, 0, 1.0, 0.0, counts, y, n) == -20046
    assert qv.ZemFunc124(x, 0, 1.0, 0.0, n, y) == -20046
    assert qv.ZemFunc340(x, 0, n, y, count) == -20046 and count[0] == 1
    count[0] = n
    assert qv.ZemFunc340(x, 0, 0, y, count) == -20046 and count[0] == n
    assert (y == 7).all() and (counts == 7).all()


def test_order_of_the_checks(qv):
    x, y, counts = np.zeros(2), np.full(2, 7.0), np.full(2, 7, np.int64)
    assert qv.ZemFunc125(x, 2, 0, y) == -20021
    assert qv.ZemFunc125(x, 2, 2**31, y) == -20021
    assert qv.ZemFunc125(x, 2, 2**32 - 1, y) == -20021
    assert qv.ZemFunc90(x, 0, 1.0, 0.0, counts, y, 0) == -20101
    assert qv.ZemFunc90(x, 0, 0.0, 1.0, counts, y, 1) == -20003
    assert qv.ZemFunc90(x, 2, 0.0, 1.0, counts, y, 0) == -20003
    assert qv.ZemFunc124(x, 2, 1.0, 0.0, 0, y) == -20003
    assert qv.ZemFunc124(x, 0, 1.0, 0.0, 1, y) == -20101
    assert qv.ZemFunc124(x, 0, 0.0, 1.0, 1, y) == -20003
    assert (y == 7).all() and (counts == 7).all()
