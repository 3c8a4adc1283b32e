"""Array primitives beside NumPy."""

import numpy as np
import pytest

SIZES = [1, 2, 7, 64, 1000, 100_003]


def samples(n, seed=1):
    return np.random.default_rng(seed).standard_normal(n)


@pytest.mark.parametrize("number, ufunc", [(3, np.add), (167, np.subtract), (126, np.multiply), (57, np.divide)])
@pytest.mark.parametrize("n", SIZES)
def test_arithmetic_of_two_arrays_is_numpys_to_the_last_bit(qv, number, ufunc, n):
    x, y, out = samples(n, 1), samples(n, 2), np.empty(n)
    assert getattr(qv, f"ZemFunc{number}")(x, y, n, out) == 0
    assert np.array_equal(out, ufunc(x, y))


@pytest.mark.parametrize("number, ufunc", [(128, np.negative), (1, np.abs), (149, np.flip)])
@pytest.mark.parametrize("n", SIZES)
def test_operations_on_one_array_are_numpys_to_the_last_bit(qv, number, ufunc, n):
    x, out = samples(n), np.empty(n)
    expected = ufunc(x).copy()
    function = getattr(qv, f"ZemFunc{number}")
    assert function(x, n, out) == 0
    assert np.array_equal(out, expected)
    assert function(x, n, None) == 0
    assert np.array_equal(x, expected)


@pytest.mark.parametrize("n", SIZES)
def test_sort_is_numpys(qv, n):
    x, out = samples(n), np.empty(n)
    assert qv.ZemFunc160(x, n, 0, out) == 0
    assert np.array_equal(out, np.sort(x))
    assert qv.ZemFunc160(x, n, 1, out) == 0
    assert np.array_equal(out, np.sort(x)[::-1])


@pytest.mark.parametrize("n", SIZES)
def test_sum_adds_one_after_the_other(qv, n):
    x, total = samples(n), np.empty(1)
    assert qv.ZemFunc170(x, n, total) == 0
    assert total[0] == np.cumsum(x)[-1]
    assert qv.ZemFunc140(x, n, total) == 0
    assert total[0] == np.cumprod(x)[-1]


@pytest.mark.parametrize("n", SIZES)
def test_extremes_are_those_of_nanargmax_and_nanargmin(qv, n):
    x = np.round(samples(n), 1)
    x[1::5] = np.nan
    high, low = np.empty(1), np.empty(1)
    at_high, at_low = np.empty(1, np.int64), np.empty(1, np.int64)
    assert qv.ZemFunc120(x, n, high, at_high, low, at_low) == 0
    assert (high[0], at_high[0]) == (np.nanmax(x), np.nanargmax(x))
    assert (low[0], at_low[0]) == (np.nanmin(x), np.nanargmin(x))
    if n == 1000:
        row, col, row2, col2 = (np.empty(1, np.int64) for _ in range(4))
        assert qv.ZemFunc121(x, 25, 40, high, row, col, low, row2, col2) == 0
        assert (row[0], col[0]) == np.unravel_index(np.nanargmax(x), (25, 40))
        assert (row2[0], col2[0]) == np.unravel_index(np.nanargmin(x), (25, 40))


def test_normalised_samples_have_mean_zero_and_deviation_one(qv):
    n = 5000
    x, out, mean, deviation = 3 + 7 * samples(n), np.empty(n), np.empty(1), np.empty(1)
    assert qv.ZemFunc132(x, n, out, mean, deviation) == 0
    # Sums of n terms in sequence: n rounding units at most, of values of order 1 once scaled.
    bound = n * np.finfo(float).eps
    assert mean[0] == pytest.approx(np.mean(x), rel=bound)
    assert deviation[0] == pytest.approx(np.std(x), rel=bound)
    assert abs(np.mean(out)) < bound
    assert np.std(out) == pytest.approx(1, rel=bound)


def test_scaled_samples_reach_from_minus_one_to_one(qv):
    x, out, offset, scale = samples(1000), np.empty(1000), np.empty(1), np.empty(1)
    assert qv.ZemFunc153(x, 1000, out, offset, scale) == 0
    eps = np.finfo(float).eps
    assert out.min() == pytest.approx(-1, abs=4 * eps)
    assert out.max() == pytest.approx(1, abs=4 * eps)
    assert qv.ZemFunc143(x, 1000, out, scale) == 0
    assert scale[0] == np.max(np.abs(x))
    assert np.max(np.abs(out)) == pytest.approx(1, abs=eps)


def test_polynomial_agrees_with_numpys_horner_rule_within_rounding(qv):
    x, coef, out = samples(500), samples(6, 3), np.empty(500)
    assert qv.ZemFunc135(x, 500, coef, 6, out) == 0
    size = np.polynomial.polynomial.polyval(np.abs(x), np.abs(coef))  # both sums round in proportion to this
    error = np.abs(out - np.polynomial.polynomial.polyval(x, coef))
    assert np.all(error <= 4 * len(coef) * np.finfo(float).eps * size)


def test_clip_is_numpys(qv):
    x, out = samples(1000), np.empty(1000)
    x[::9] = np.nan
    assert qv.ZemFunc30(x, 1000, 0.5, -0.25, out) == 0
    assert np.array_equal(out, np.clip(x, -0.25, 0.5), equal_nan=True)
