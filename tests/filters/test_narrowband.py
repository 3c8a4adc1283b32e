"""Interpolated FIR filters: the plan beside an independent one, and the output beside SciPy's convolution."""

import ctypes
import math

import numpy as np
import pytest
from scipy import signal


class Record(ctypes.Structure):
    _fields_ = [("mode", ctypes.c_int32), ("factor", ctypes.c_int32), ("model_count", ctypes.c_int32),
                ("model", ctypes.POINTER(ctypes.c_double)), ("suppressor_count", ctypes.c_int32),
                ("suppressor", ctypes.POINTER(ctypes.c_double))]


class Filter:
    def __init__(self, qv, *arguments):
        self.qv, self.handle = qv, qv.ZemFunc491()
        assert qv.ZemFunc409(*arguments, self.handle) == 0
        record = Record.from_address(self.handle)
        self.mode, self.factor = record.mode, record.factor
        self.model = np.array(record.model[:record.model_count])
        self.suppressor = np.array(record.suppressor[:record.suppressor_count]) if record.suppressor_count else np.ones(1)

    def taps(self):
        stretched = np.zeros((len(self.model) - 1) * self.factor + 1)
        stretched[::self.factor] = self.model
        h = np.convolve(stretched, self.suppressor)
        if 3 <= self.mode <= 5:
            h[(len(h) - 1) // 2] += 1
        return h

    def run(self, x):
        y = np.zeros(len(x) + len(self.taps()) - 1, x.dtype)
        number = "ZemFunc411" if x.dtype == np.complex128 else "ZemFunc410"
        assert getattr(self.qv, number)(x, len(x), self.handle, y) == 0
        return y

    def close(self):
        self.qv.ZemFunc492(self.handle)


REQUESTS = [(1.0, 0.02, 0.03, 0.0, 0.01, 50.0, 0), (1.0, 0.3, 0.31, 0.0, 0.01, 50.0, 0),
            (1.0, 0.4, 0.39, 0.0, 0.02, 50.0, 1), (1.0, 0.1, 0.09, 0.0, 0.05, 40.0, 1),
            (1.0, 0.02, 0.03, 0.1, 0.02, 40.0, 2), (1.0, 0.03, 0.02, 0.2, 0.02, 40.0, 3)]


@pytest.mark.parametrize("request_", REQUESTS)
def test_filtering_is_convolution_with_the_stretched_cascade(qv, request_):
    made = Filter(qv, *request_)
    rng = np.random.default_rng(2)
    z = rng.standard_normal(300) + 1j * rng.standard_normal(300)
    for x in (np.ascontiguousarray(z.real), z):
        assert np.allclose(made.run(x), signal.fftconvolve(x, made.taps()), rtol=0, atol=1e-12)
    made.close()


def order(p, q, width):
    return int((-20 * math.log10(math.sqrt(p * q)) - 13) / (14.6 * width))


def band_plan(center, e1, e2, d1, d2):
    """The factor, the image and the width of the suppressor of a bandpass, for fs = 1, by plain subtraction."""
    best, plan = order(d1, d2, e2 - e1), (1, 1)
    for L in range(2, int(1 / (4 * e2)) + 1):
        c, k = L * center, 0
        while c > 1:
            c, k = c - 1, k + 1
        image = 2 * k + 1
        if c > 0.5:
            c, image = 1 - c, image + 1
        if c + L * e2 >= 0.5 or c - L * e2 <= 0:
            continue
        below, above = 2 * c / L - e2 - e1, (1 - 2 * c) / L - e2 - e1
        width = above if image == 1 or (image == L and L % 2 == 0) or (image != L and c > 0.25) else below
        if width <= 0:
            continue
        total = order(d1 / 2, d2, L * (e2 - e1)) + order(d1 / 2, d2, width)
        if total < best:
            best, plan = total, (L, image)
    return plan


def test_factors_of_bandpasses_are_the_best_of_all_and_their_cascades_hold(qv):
    images, ripple, attenuation = set(), 0.05, 30.0
    stop = 10 ** (-attenuation / 20)
    for center in np.arange(0.03, 0.48, 0.0173):
        e1, e2 = 0.01, 0.02
        L, image = band_plan(center, e1, e2, ripple, stop)
        made = Filter(qv, 1.0, 2 * e1, 2 * e2, center, ripple, attenuation, 2)
        assert made.factor == L, center
        images.add("single" if L == 1 else "lowest" if image == 1 else "highest" if image == L else "between")
        h = made.taps()
        f, response = signal.freqz(h, worN=4096, fs=1.0)
        size = np.abs(response)
        # An extremum between two points of the grid of the exchange rises by up to 1/cos(pi/16).
        assert np.abs(size - 1)[np.abs(f - center) <= e1].max() < 1.02 * ripple * (1 + ripple)
        assert size[np.abs(f - center) >= e2].max() < 1.02 * stop * (1 + ripple)
        made.close()
    assert {"lowest", "highest", "between"} <= images
