"""Peaks and level runs beside NumPy's least squares and SciPy's find_peaks."""

import ctypes

import numpy as np
import pytest
import scipy.signal

EPS = 2.0**-53


def detect(qv, x, width, threshold=-np.inf, polarity=0):
    count, arrays = np.full(1, -7, np.int64), [ctypes.c_void_p() for _ in range(3)]
    x = np.ascontiguousarray(x, float)
    assert qv.ZemFunc194(x, len(x), threshold, width, polarity, 1, 1, count, *map(ctypes.byref, arrays)) == 0
    if count[0] == 0:
        assert not any(arrays)
        return np.empty((3, 0))
    found = np.array([(ctypes.c_double * count[0]).from_address(array.value) for array in arrays])
    for array in arrays:
        qv.ZemFunc234(array)
    return found


def by_least_squares(x, width, threshold, polarity):
    """Candidates and their choice as the documentation tells them, over numpy.linalg.lstsq."""
    half = (width - 1) / 2
    t = np.arange(width) - half
    windows = np.lib.stride_tricks.sliding_window_view(x, width)
    fits = np.linalg.lstsq(np.vander(t, 3, increasing=True), windows.T, rcond=None)[0].T
    rising = np.where(np.abs(fits[:, 1]) > 1e-10, fits[:, 1] > 0, fits[:, 2] > 0)
    sign = 1 if polarity == 0 else -1
    kept = []
    for p, (c0, c1, c2) in enumerate(fits):
        turns = rising[p] != rising[max(p - 1, 0)] if width > 4 else sign * c2 < 0
        if not turns or abs(2 * c2) < 1e-10:
            continue
        v, at = -c1 / (2 * c2), p
        if p > 0 and v < -0.5:
            b0, b1, b2 = fits[p - 1]
            if b2 == 0:
                continue
            if abs(-b1 / (2 * b2)) < abs(v):
                v, at, (c0, c1, c2) = -b1 / (2 * b2), p - 1, (b0, b1, b2)
        y = c0 + c1 * v + c2 * v * v
        if abs(v) > half / 2 + 20 * EPS or sign * c2 >= 0 or sign * (y - threshold) <= 0:
            continue
        peak = (at + half + v, y, 2 * c2)
        if kept and abs(peak[0] - kept[-1][0]) < 1:
            if sign * (y - kept[-1][1]) > 0:
                kept[-1] = peak
        else:
            kept.append(peak)
    return np.array(kept).reshape(-1, 3).T


@pytest.mark.parametrize("width", [3, 4, 5, 6, 7, 10, 25])
@pytest.mark.parametrize("polarity", [0, 1])
@pytest.mark.parametrize("seed", range(5))
def test_peaks_are_those_of_least_squares_parabolas(qv, width, polarity, seed):
    x = np.random.default_rng((width, polarity, seed)).standard_normal(600)
    threshold = (-0.2, 0.2)[polarity]
    found, expected = detect(qv, x, width, threshold, polarity), by_least_squares(x, width, threshold, polarity)
    assert found.shape == expected.shape
    assert found.shape[1] > 5
    # A fit is good to some roundings of the window's sum; the vertex divides by the curvature, the amplitude by it too.
    error = 64 * width * EPS * np.abs(x).max()
    curvature = np.abs(expected[2])
    assert np.all(np.abs(found[2] - expected[2]) <= error)
    assert np.all(np.abs(found[0] - expected[0]) <= error * (1 + width) / curvature + 1e-12)
    assert np.all(np.abs(found[1] - expected[1]) <= error * (1 + width**2))


@pytest.mark.parametrize("seed", range(10))
def test_width_3_finds_the_local_extremes_of_scipy(qv, seed):
    x = np.random.default_rng(seed).standard_normal(5000)
    for polarity, sign in ((0, 1), (1, -1)):
        found = detect(qv, x, 3, -sign * np.inf, polarity)
        peaks = scipy.signal.find_peaks(sign * x)[0]
        assert np.array_equal(np.rint(found[0]).astype(int), peaks)
        assert np.all(sign * found[1] >= sign * x[peaks])
        # The second difference itself.
        assert np.allclose(found[2], x[peaks - 1] - 2 * x[peaks] + x[peaks + 1], rtol=0, atol=8 * EPS * 5)


@pytest.mark.parametrize("width", [3, 5, 9])
@pytest.mark.parametrize("period", [60.3, 101.7])
def test_crests_of_a_sine_wave(qv, width, period):
    w = 2 * np.pi / period
    x = np.cos(w * (np.arange(1000) - 20.4))
    found = detect(qv, x, width, 0.5)
    crests = 20.4 + period * np.arange(found.shape[1])
    assert crests[-1] + period > 1000 - width
    # The next term of the cosine, (w t)^4 / 24 with |t| up to w + 1 half samples, pulls at height, place and curvature.
    reach = w * (width + 1) / 2
    assert np.all(np.abs(found[1] - 1) <= reach**4 / 24)
    assert np.all(np.abs(found[0] - crests) <= reach**2)
    assert np.all(np.abs(found[2] + w**2) <= w**2 * reach**2)


@pytest.mark.parametrize("width", [1, 2, 7, 30])
def test_level_runs_beside_numpy(qv, width):
    x = np.cumsum(np.random.default_rng(width).standard_normal(5000))
    threshold = float(np.median(x))
    above = np.concatenate(([0], (x >= threshold).astype(int), [0]))
    starts, ends = np.flatnonzero(np.diff(above) == 1), np.flatnonzero(np.diff(above) == -1)
    expected = starts[ends - starts >= width]
    indices, count = np.full(len(x) // width + 1, -7, np.int64), np.full(1, -7, np.int64)
    assert qv.ZemFunc237(x, len(x), threshold, width, indices, count) == 0
    assert np.array_equal(indices[:count[0]], expected)
    joined = []
    for start in range(0, len(x), 333):
        block = x[start:start + 333].copy()
        assert qv.ZemFunc493(block, len(block), threshold, width, start == 0, start + 333 >= len(x), indices,
                             count) == 0
        joined.extend(indices[:count[0]])
    assert np.array_equal(joined, expected)
