"""Equiripple designs beside SciPy's remez, and their alternation at 50 digits."""

import mpmath
import numpy as np
import pytest
from scipy import signal

# Kind, SciPy's type, edges, gains, weights, lengths.
DESIGNS = [
    (1, "bandpass", [0, 0.1, 0.15, 0.5], [1, 0], [1, 1], (4, 5, 16, 31, 64)),
    (1, "bandpass", [0, 0.1, 0.12, 0.5], [1, 0], [1, 20], (30, 101, 200)),
    (1, "bandpass", [0, 0.1, 0.15, 0.25, 0.3, 0.5], [0, 1, 0], [5, 1, 2], (11, 30, 61)),
    (1, "bandpass", [0, 0.1, 0.15, 0.3, 0.36, 0.5], [1, 0, 1], [1, 3, 1], (11, 41)),
    (2, "differentiator", [0, 0.45], [1], [1], (5, 11, 31)),
    (2, "differentiator", [0, 0.5], [1], [1], (4, 10, 64)),
    (3, "hilbert", [0.05, 0.45], [1], [1], (11, 31)),
    (3, "hilbert", [0.05, 0.5], [1], [1], (10, 30)),
]


def design(qv, kind, edges, gains, weights, taps, fs=1.0):
    h, delta = np.zeros(taps), np.zeros(1)
    status = qv.ZemFunc65(len(gains), np.array(gains, float), np.array(weights, float), fs, np.array(edges, float), kind,
                          taps, h, delta)
    assert status == 0
    return h, delta[0]


@pytest.mark.parametrize("kind,name,edges,gains,weights,lengths", DESIGNS)
def test_designs_are_remez(qv, kind, name, edges, gains, weights, lengths):
    for taps in lengths:
        ours, _ = design(qv, kind, edges, gains, weights, taps)
        theirs = signal.remez(taps, edges, gains, weight=weights, type=name, fs=1.0, maxiter=100)
        # Both end on the same points of the same grid; SciPy's antisymmetric filters may have the other sign. What is
        # left is the rounding of the interpolation, whose weights differ by a few hundred eps.
        distance = min(np.abs(ours - theirs).max(), np.abs(ours + theirs).max())
        assert distance < 1e-13, taps


def test_designs_scale_with_the_sampling_rate(qv):
    one = design(qv, 1, [0, 0.125, 0.25, 0.5], [1, 0], [1, 2], 25)
    other = design(qv, 1, [0, 128, 256, 512], [1, 0], [1, 2], 25, 1024.0)
    assert np.array_equal(one[0], other[0]) and one[1] == other[1]


@pytest.mark.parametrize("taps", [8, 21])
def test_the_error_at_50_digits_reaches_delta_at_r_plus_one_grid_points(qv, taps):
    """The grid is built as told: 16 points to a function, accumulated, the last point of each band its edge."""
    mpmath.mp.dps = 50
    edges, gains, weights = [0, 0.15, 0.25, 0.5], [1, 0], [1, 4]
    h, delta = design(qv, 1, edges, gains, weights, taps)
    r = taps // 2 + taps % 2
    step, errors = 0.5 / (16 * r), []
    for band in range(2):
        f, points = edges[2 * band], []
        while f <= edges[2 * band + 1]:
            points.append(f)
            f += step
        points[-1] = edges[2 * band + 1]
        for f in points:
            if taps % 2 == 0 and f > 0.5 - step:
                continue
            angle = 2 * mpmath.pi * mpmath.mpf(f)
            amplitude = sum(mpmath.mpf(c) * mpmath.cos(angle * (mpmath.mpf(taps - 1) / 2 - i)) for i, c in enumerate(h))
            errors.append((amplitude - gains[band]) * weights[band])
    assert max(abs(e) for e in errors) < delta * (1 + 1e-11)
    extremes = [e for e in errors if abs(e) > delta * (1 - 1e-11)]
    assert len(extremes) >= r + 1
    assert all(a * b < 0 for a, b in zip(extremes, extremes[1:]))


@pytest.mark.parametrize("numbers,kind", [((472, 476), "lowpass"), ((473, 477), "highpass"), ((474, 478), "bandpass"),
                                          ((475, 479), "bandstop")])
def test_filters_are_convolution_with_remez(qv, numbers, kind):
    edges = [1.0, 1.5] if kind.endswith(("lowpass", "highpass")) else [1.0, 1.5, 2.5, 3.0]
    gains = {"lowpass": [1, 0], "highpass": [0, 1], "bandpass": [0, 1, 0], "bandstop": [1, 0, 1]}[kind]
    rng, taps = np.random.default_rng(1), 24
    length = taps | 1 if gains[-1] else taps
    h = signal.remez(length, [0, *edges, 4.0], gains, fs=8.0)
    x = rng.standard_normal(200) + 1j * rng.standard_normal(200)
    for number, samples in zip(numbers, (np.ascontiguousarray(x.real), x)):
        y = np.zeros(200 + length - 1, samples.dtype)
        assert getattr(qv, f"ZemFunc{number}")(samples, 200, taps, 8.0, *edges, y) == 0
        assert np.allclose(y, np.convolve(samples, h), rtol=0, atol=1e-12)
