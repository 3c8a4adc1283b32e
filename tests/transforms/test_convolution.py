"""Convolution, correlation and deconvolution beside SciPy."""

import numpy as np
import pytest
import scipy.signal

EPS = np.finfo(float).eps
# The last four go by blocks.
PAIRS = [(1, 1), (1, 6), (7, 1), (5, 5), (12, 31), (40, 9), (64, 65), (100, 3)]
PAIRS += [(1200, 31), (31, 1200), (5000, 3), (1, 3000)]
PLANES = [((1, 1), (1, 1)), ((4, 5), (2, 3)), ((2, 3), (4, 5)), ((1, 9), (5, 1)), ((7, 6), (7, 6)), ((12, 10), (3, 8))]


def near(got, expected, tolerance):
    assert got.shape == expected.shape
    assert np.max(np.abs(got - expected)) <= tolerance


def bound(x, y):
    """Three transforms, each a few eps log2 S of the norms plus eps sqrt(S) for twiddles by recurrence.

    Direct sums stay far below that.
    """
    S = 2 * (x.size + y.size)
    return 24 * EPS * (np.log2(S) + np.sqrt(S)) * np.linalg.norm(x) * np.linalg.norm(y)


def samples(count, kind, seed):
    rng = np.random.default_rng(seed)
    x = rng.uniform(-1, 1, count)
    return x if kind is float else x + 1j * rng.uniform(-1, 1, count)


@pytest.mark.parametrize("n, m", PAIRS)
@pytest.mark.parametrize("method", [0, 1])
def test_convolution_is_scipys(qv, n, m, method):
    for kind, export in ((float, qv.ZemFunc372), (complex, qv.ZemFunc391)):
        x, y, out = samples(n, kind, 1), samples(m, kind, 2), np.empty(n + m - 1, kind)
        assert export(x, n, y, m, method, out) == 0
        near(out, scipy.signal.convolve(x, y, method="direct"), bound(x, y))


@pytest.mark.parametrize("n, m", PAIRS)
@pytest.mark.parametrize("method", [0, 1])
def test_correlation_is_scipys_with_the_arguments_exchanged(qv, n, m, method):
    for kind, export in ((float, qv.ZemFunc373), (complex, qv.ZemFunc421)):
        x, y, out = samples(n, kind, 3), samples(m, kind, 4), np.empty(n + m - 1, kind)
        assert export(x, n, y, m, method, out) == 0
        near(out, scipy.signal.correlate(y, x, method="direct"), bound(x, y))


@pytest.mark.parametrize("n, m", PAIRS)
@pytest.mark.parametrize("normalisation", [0, 1, 2])
def test_normalisation_divides_by_overlap_or_length(qv, n, m, normalisation):
    overlap = scipy.signal.correlate(np.ones(m), np.ones(n), method="direct")
    divisor = {0: 1, 1: overlap, 2: max(n, m)}[normalisation]
    for kind, export in ((float, qv.ZemFunc376), (complex, qv.ZemFunc490)):
        x, y, out = samples(n, kind, 5), samples(m, kind, 6), np.empty(n + m - 1, kind)
        assert export(x, n, y, m, 1, normalisation, out) == 0
        near(out, scipy.signal.correlate(y, x, method="direct") / divisor, bound(x, y))
    for kind, export in ((float, qv.ZemFunc424), (complex, qv.ZemFunc425)):
        x, out = samples(n, kind, 7), np.empty(2 * n - 1, kind)
        divisor = {0: 1, 1: np.concatenate([np.arange(1, n), np.arange(n, 0, -1)]), 2: n}[normalisation]
        assert export(x, n, normalisation, out) == 0
        near(out, scipy.signal.correlate(x, x, method="direct") / divisor, bound(x, x))


@pytest.mark.parametrize("n, m", PAIRS)
def test_deconvolution_is_scipys(qv, n, m):
    q, x = samples(n, float, 8), samples(m, float, 9)
    x[0] += 3 * m  # a divisor without zeros near the circle
    y, out = np.convolve(q, x), np.empty(n)
    assert qv.ZemFunc54(y, n + m - 1, x, m, out) == 0
    near(out, scipy.signal.deconvolve(y, x)[0], bound(y, x) / np.min(np.abs(np.fft.fft(x, 4096))))


@pytest.mark.parametrize("first, second", PLANES)
@pytest.mark.parametrize("method", [0, 1])
def test_two_dimensions_are_scipys(qv, first, second, method):
    for kind, convolve, correlate in ((float, qv.ZemFunc392, qv.ZemFunc422), (complex, qv.ZemFunc393, qv.ZemFunc423)):
        x = samples(np.prod(first), kind, 10).reshape(first)
        y = samples(np.prod(second), kind, 11).reshape(second)
        full = scipy.signal.convolve2d(x, y)
        out = np.empty(full.shape, kind)
        assert convolve(x, *first, y, *second, 0, method, out) == 0
        near(out, full, bound(x, y))
        assert correlate(x, *first, y, *second, method, out) == 0
        near(out, scipy.signal.correlate2d(y, x), bound(x, y))
        top, left = second[0] // 2, second[1] // 2
        out = np.empty(first, kind)
        assert convolve(x, *first, y, *second, 1, method, out) == 0
        near(out, full[top:top + first[0], left:left + first[1]], bound(x, y))
        if first[0] >= second[0] and first[1] >= second[1]:
            inside = scipy.signal.convolve2d(x, y, mode="valid")
            out = np.empty(inside.shape, kind)
            assert convolve(x, *first, y, *second, 2, method, out) == 0
            near(out, inside, bound(x, y))


@pytest.mark.parametrize("shape", [(1, 1), (1, 5), (6, 4), (9, 9)])
def test_two_dimensional_autocorrelation_is_scipys(qv, shape):
    for kind, export in ((float, qv.ZemFunc426), (complex, qv.ZemFunc427)):
        x = samples(np.prod(shape), kind, 12).reshape(shape)
        expected = scipy.signal.correlate2d(x, x)
        out = np.empty(expected.shape, kind)
        assert export(x, *shape, out) == 0
        near(out, expected, bound(x, x))
