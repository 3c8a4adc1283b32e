"""Descriptive statistics beside exact rational arithmetic, NumPy and the standard library."""

import statistics
from fractions import Fraction

import numpy as np
import pytest

EPS = 2.0**-53


def scalar():
    return np.full(1, np.nan)


@pytest.fixture(params=[1, 2, 3, 10, 1000])
def x(request):
    return np.random.default_rng(request.param).standard_normal(request.param) + 0.5


def exact(x):
    """Mean, mean square and central moments as rational numbers."""
    values = [Fraction(float(v)) for v in x]
    mean = sum(values) / len(values)
    return mean, sum(v * v for v in values) / len(values), lambda k: sum((v - mean) ** k for v in values) / len(values)


# A sum of n terms in order errs by at most n roundings of the sum of the magnitudes.


def test_mean(qv, x):
    mean = scalar()
    assert qv.ZemFunc122(x, len(x), mean) == 0
    assert abs(Fraction(mean[0]) - exact(x)[0]) <= (len(x) + 1) * EPS * np.abs(x).mean()


def test_rms_and_its_complex_twin(qv, x):
    rms = scalar()
    assert qv.ZemFunc150(x, len(x), rms) == 0
    expected = float(exact(x)[1]) ** 0.5
    assert rms[0] == pytest.approx(expected, rel=(len(x) + 3) * EPS, abs=0)
    z = (x * np.exp(1j * np.arange(len(x)))).astype(complex)
    assert qv.ZemFunc369(z, len(z), rms) == 0
    # The rotation itself rounds a few times.
    assert rms[0] == pytest.approx(expected, rel=(len(x) + 10) * EPS, abs=0)


def test_variance_and_deviation(qv, x):
    mean, variance, deviation = scalar(), scalar(), scalar()
    _, square, moment = exact(x)
    assert qv.ZemFunc184(x, len(x), mean, variance) == 0
    assert abs(Fraction(variance[0]) - moment(2)) <= 4 * (len(x) + 2) * EPS * float(square)
    assert qv.ZemFunc166(x, len(x), mean, deviation) == 0
    # The rounded mean adds the square of its own error.
    assert abs(Fraction(deviation[0]) ** 2 - moment(2)) <= (2 * len(x) + 8) * EPS * max(float(moment(2)), EPS)


@pytest.mark.parametrize("order", [1, 2, 3, 4, 7])
def test_moment(qv, x, order):
    moment, magnitude = scalar(), (np.abs(x).max() * 2 + 1) ** order
    assert qv.ZemFunc125(x, len(x), order, moment) == 0
    assert abs(Fraction(moment[0]) - exact(x)[2](order)) <= (2 * len(x) + 2 * order + 4) * EPS * magnitude


def test_median(qv, x):
    median = scalar()
    assert qv.ZemFunc123(x, len(x), median) == 0
    assert median[0] == np.median(x)


@pytest.mark.parametrize("bins", [1, 2, 8, 64])
def test_histogram_is_numpy_histogram_where_no_sample_lies_on_an_edge(qv, bins):
    x = np.random.default_rng(bins).uniform(-1.25, 1.25, 5000)
    counts, centres = np.empty(bins, np.int64), np.empty(bins)
    assert qv.ZemFunc90(x, len(x), -1.0, 1.0, counts, centres, bins) == 0
    expected, edges = np.histogram(x, bins, (-1, 1))
    assert np.array_equal(counts, expected)
    assert np.allclose(centres, (edges[1:] + edges[:-1]) / 2, rtol=0, atol=bins * 2 * EPS)


def test_mode_of_histogram_is_the_centre_of_the_first_maximum(qv):
    x = np.random.default_rng(5).normal(0.2, 0.3, 5000)
    mode = scalar()
    assert qv.ZemFunc124(x, len(x), -1.0, 1.0, 16, mode) == 0
    counts, edges = np.histogram(x, 16, (-1, 1))
    k = counts.argmax()
    assert mode[0] == (edges[k] + edges[k + 1]) / 2  # sixteenths: exact


@pytest.mark.parametrize("seed", range(20))
def test_modes_are_those_of_the_standard_library(qv, seed):
    x = np.random.default_rng(seed).integers(-9, 9, 60).astype(float)
    modes, count = np.full(60, np.nan), np.array([60], np.int64)
    assert qv.ZemFunc340(x, len(x), 0, modes, count) == 0
    assert list(modes[: count[0]]) == sorted(statistics.multimode(x.tolist()))
