"""Time-domain operations beside NumPy, and against the functions that they integrate and differentiate."""

import math

import numpy as np
import pytest

EPS = np.finfo(float).eps


def out_of(function, x, *arguments):
    out = np.full(len(x), np.nan)
    assert function(x, len(x), *arguments, out) == 0
    return out


@pytest.mark.parametrize("n", [1, 2, 3, 50, 1024, 1025, 5000])
def test_simpsons_running_integral_is_numpys_cumulative_sum(qv, n):
    x = np.random.default_rng(n).normal(size=n)
    e = np.concatenate([[0.3], x, [-0.7]])
    expected = np.cumsum((e[:-2] + 4 * e[1:-1] + e[2:]) * (0.25 / 6))
    assert np.array_equal(out_of(qv.ZemFunc95, x, 0.25, 0.3, -0.7), expected)


def test_simpsons_integral_of_a_sine_approaches_its_cosine(qv):
    for n in (50, 100, 200, 400):
        dt = 2 * math.pi / n
        t = np.arange(n) * dt
        out = out_of(qv.ZemFunc95, np.sin(t), dt, math.sin(-dt), math.sin(n * dt))
        # A term is half the integral over the two steps around its sample; the halves telescope into the mean of the
        # integrals from -dt and 0 to t and t + dt. Each errs by at most dt^5 / 180, the fourth derivative being below 1.
        expected = (-np.cos(t + dt) - np.cos(t) + math.cos(0.0) + math.cos(-dt)) / 2
        assert np.max(np.abs(out - expected)) < n * dt**5 / 180 + 4 * n * EPS


@pytest.mark.parametrize("method, expected", [
    (0, lambda e, dt: (e[3:-1] - e[1:-3]) / (2 * dt)),
    (1, lambda e, dt: (8 * e[3:-1] - e[4:] - 8 * e[1:-3] + e[:-4]) / (12 * dt)),
    (2, lambda e, dt: (e[3:-1] - e[2:-2]) / dt),
    (3, lambda e, dt: (e[2:-2] - e[1:-3]) / dt),
])
@pytest.mark.parametrize("n", [1, 2, 3, 100, 1023, 1024, 1025, 4000])
def test_differences_are_numpys(qv, method, expected, n):
    e = np.random.default_rng(n).normal(size=n + 4)
    before = e[:2] if method == 1 else e[1:2]
    after = e[-2:]
    x, dt = e[2:-2].copy(), 0.3
    out = np.full(n, np.nan)
    before, after = before.copy(), after.copy()
    assert qv.ZemFunc367(x, n, dt, before, len(before), after, 2, method, out) == 0
    # The reciprocal factor and the product round once each, the quotient here once, the sums alike.
    assert np.max(np.abs(out - expected(e, dt))) <= 4 * EPS * np.max(np.abs(expected(e, dt))) + 4 * EPS / dt


@pytest.mark.parametrize("method, order, constant", [(0, 2, 1 / 6), (1, 4, 1 / 30), (2, 1, 1 / 2), (3, 1, 1 / 2)])
def test_derivatives_converge_with_their_order(qv, method, order, constant):
    for n in (64, 128, 256):
        dt = 2 * math.pi / n
        e = np.sin(np.arange(-2, n + 2) * dt)
        before = (e[:2] if method == 1 else e[1:2]).copy()
        x, after, out = e[2:-2].copy(), e[-2:].copy(), np.full(n, np.nan)
        assert qv.ZemFunc367(x, n, dt, before, len(before), after, 2, method, out) == 0
        error = np.max(np.abs(out - np.cos(np.arange(n) * dt)))
        # All derivatives of a sine are at most 1, and at some sample close to it.
        assert error <= constant * dt**order + 20 * EPS / dt
        assert error > 0.9 * constant * dt**order


@pytest.mark.parametrize("n, factor", [(7, 2), (100, 1), (100, 3), (100, 100), (12345, 17), (12345, 4000)])
def test_decimation_is_slicing_and_the_mean_of_rows(qv, n, factor):
    generator = np.random.default_rng(n)
    x = generator.normal(size=n)
    z = x + 1j * generator.normal(size=n)
    m = n // factor
    for average, expected, tolerance in ((0, x[:m * factor:factor], 0),
                                         (1, x[:m * factor].reshape(m, factor).mean(axis=1), factor * EPS * 5)):
        out = np.full(m, np.nan)
        assert qv.ZemFunc53(x, n, factor, average, out) == 0
        assert np.max(np.abs(out - expected)) <= tolerance
    records = np.full(m, np.nan + 0j)
    assert qv.ZemFunc360(z.copy(), n, factor, 1, records) == 0
    assert np.max(np.abs(records - z[:m * factor].reshape(m, factor).mean(axis=1))) <= factor * EPS * 8


def test_a_long_signal_in_random_blocks_is_the_signal_decimated(qv):
    generator = np.random.default_rng(3)
    x = generator.normal(size=200000)
    for factor, offset in ((1, 0), (2, 1), (7, 30), (64, 5), (5000, 12345)):
        expected = np.empty((len(x) - offset) // factor)
        assert qv.ZemFunc53(x[offset:].copy(), len(x) - offset, factor, 1, expected) == 0
        parts, begin, count = [], 0, np.zeros(1, np.int64)
        while begin < len(x):
            block = x[begin:begin + generator.integers(1, 3000)].copy()
            assert qv.ZemFunc417(block, len(block), factor, 1, offset, int(begin == 0), count) == 0
            parts.append(block[:max(count[0], 0)])
            begin += len(block)
        assert np.array_equal(np.concatenate(parts), expected)


def test_crossings_of_a_noisy_sine_are_one_a_period(qv):
    n, period = 20000, 100
    noise = np.random.default_rng(4).uniform(-0.1, 0.1, n)
    x = -np.cos(2 * np.pi * np.arange(n) / period) + noise
    found, index, at = np.zeros(1, np.int32), np.zeros(1, np.int64), []
    for begin in range(0, n, 10):
        assert qv.ZemFunc419(x[begin:begin + 10], 10, 0.0, 0.25, 1, int(begin == 0), index, found) == 0
        if found[0]:
            at.append(begin + index[0])
    assert len(at) == n // period
    # The noise of 0.1 moves a crossing by at most asin(0.1) of a period / 2 pi, to the next sample.
    expected = np.arange(period / 4, n, period)
    assert np.max(np.abs(np.array(at) - expected)) <= math.asin(0.1) * period / (2 * math.pi) + 1


def test_without_hysteresis_the_noisy_sine_crosses_more_often(qv):
    n, period = 20000, 400
    x = -np.cos(2 * np.pi * np.arange(n) / period) + np.random.default_rng(4).uniform(-0.2, 0.2, n)
    counts = []
    for hysteresis in (0.0, 0.5):
        found, index, total = np.zeros(1, np.int32), np.zeros(1, np.int64), 0
        for i in range(n):
            assert qv.ZemFunc419(x[i:i + 1], 1, 0.0, hysteresis, 1, int(i == 0), index, found) == 0
            total += found[0]
        counts.append(total)
    assert counts[1] == n // period < counts[0]
