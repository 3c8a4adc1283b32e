"""Peaks over streams of random blocks in scalar arithmetic, window by window, to the last bit.

The samples take few values, so that windows tie, parabolas fall flat and apexes lie on the borders all the time; NaN,
infinities and huge numbers stand between them. Refused calls are mixed in, which end a stream or leave it alone.
"""

import collections
import ctypes

import numpy as np
import pytest

from exact import TOO_LARGE, divided, equal_numbers, numbers


def fit_matrix(qv, w):
    if w == 3:
        return [[0.0, 1.0, 0.0], [-0.5, 0.0, 0.5], [0.5, -1.0, 0.5]]
    t = np.arange(w) - (w - 1) / 2
    nodes, rows = np.stack([np.ones(w), t, t * t], 1).copy(), np.empty((3, w))
    assert qv.ZemFunc200(nodes, w, 3, -1.0, rows) == 0
    return rows.tolist()


class Peaks:
    """One stream, and what a call tells: status and the peaks as rows of location, height and curvature."""

    def __init__(self, qv):
        self.qv, self.matrices, self.open = qv, {}, False

    def block(self, x, threshold, w, polarity, first, last):
        if not 3 <= w <= 0x40000000:
            self.open = False
            return -20061, []
        if len(x) < w:
            self.open = False
            return -20013, []
        if not first and not self.open:
            return -20064, []
        if not first and w != self.width:
            self.open = False
            return -20058, []
        if first:
            if w not in self.matrices:
                self.matrices[w] = fit_matrix(self.qv, w)
            self.rows, self.width, self.processed = self.matrices[w], w, 0
            self.history, data = x[:w], x[w:]
        else:
            data = x
        found = self.scan(self.history + data, len(data) + bool(last), threshold, polarity)
        self.history = (self.history + data)[-w:]
        self.open = not last
        return 0, found

    def fit(self, window):
        fits = []
        for row in self.rows:
            total = 0.0
            for c, v in zip(row, window):
                total += c * v
            fits.append(total)
        return fits

    def scan(self, x, count, threshold, polarity):
        w, found = self.width, []
        if self.processed == 0:
            self.sign = self.rising(self.fit(x[:w]))
        for i in range(count):
            fit = self.fit(x[i:i + w])
            sign = self.rising(fit)
            if w > 4:
                candidate = sign != self.sign
            else:
                candidate = fit[2] < 0 if polarity == 0 else fit[2] > 0
            peak = self.vertex(fit, threshold, polarity) if candidate else None
            if peak is not None:
                self.store(found, peak, polarity)
            self.sign, self.last_fit = sign, fit
            self.processed += 1
        return found

    def rising(self, fit):
        return fit[1] > 0 if abs(fit[1]) > 1e-10 else fit[2] > 0

    def vertex(self, fit, threshold, polarity):
        c0, c1, c2 = fit
        d, h, p = 2 * c2, (self.width - 1) / 2, self.processed
        if abs(d) < 1e-10:
            return None
        v = divided(-c1, d)
        y = (c2 * v + c1) * v + c0
        if p > 0 and v < -0.5:
            b0, b1, b2 = self.last_fit
            e = 2 * b2
            if e == 0:
                return None
            u = divided(-b1, e)
            if abs(v) > abs(u):
                v, y, d, p = u, (b2 * u + b1) * u + b0, e, p - 1
        if abs(v) > h * 0.5 + 2.220446049250313e-15:
            return None
        if (d < 0 and polarity == 0 and y > threshold) or (d > 0 and polarity == 1 and y < threshold):
            return p + h + v, y, d
        return None

    def store(self, found, peak, polarity):
        if found and abs(peak[0] - found[-1][0]) < 1.0:
            if peak[1] > found[-1][1] if polarity == 0 else peak[1] < found[-1][1]:
                found[-1] = peak
        else:
            found.append(peak)


UNWRITTEN = 0x5A5A5A50


def detect(qv, x, n, threshold, w, polarity, first, last):
    count, arrays = np.full(1, -7, np.int64), [ctypes.c_void_p(UNWRITTEN) for _ in range(3)]
    status = qv.ZemFunc194(x, n, threshold, w, polarity, first, last, count, *map(ctypes.byref, arrays))
    if status == -20046:
        assert count[0] == -7 and all(a.value == UNWRITTEN for a in arrays)
        return status, np.empty((0, 3))
    if count[0] == 0:
        assert not any(arrays)
        return status, np.empty((0, 3))
    assert status == 0 and count[0] > 0
    rows = np.array([(ctypes.c_double * count[0]).from_address(a.value) for a in arrays])
    for a in arrays:
        qv.ZemFunc234(a)
    return status, rows.T


def samples(rng, n):
    kind = rng.choice(["few", "walk", "plain", "holes", "flat", "huge"], p=[0.35, 0.2, 0.2, 0.1, 0.1, 0.05])
    if kind == "few":
        return rng.integers(-2, 3, n) / 2
    if kind == "walk":
        return np.cumsum(rng.integers(-1, 2, n)) / 4
    if kind == "plain":
        return rng.standard_normal(n) * rng.choice([1.0, 1e-10, 1e-5, 1e150])
    if kind == "holes":
        return np.where(rng.random(n) < 0.1, rng.choice([np.nan, np.inf, -np.inf, 1e308], n), rng.integers(-2, 3, n))
    if kind == "flat":
        # Parabolas and ramps without noise: slopes and curvatures around the limit of 1e-10.
        i = np.arange(n) - n // 2
        return i * rng.choice([0, 1e-10, 1e-11, 1.0]) + i * i * rng.choice([0, 5e-11, -5e-11, 4e-11, -6e-11, 1.0])
    return numbers(rng, n, rng.choice(["bits", "special"]))


@pytest.mark.parametrize("seed", range(8))
def test_peaks_by_blocks(qv, seed):
    rng, model, statuses = np.random.default_rng(seed), Peaks(qv), collections.Counter()
    # A refused width ends what an earlier test has left open.
    assert detect(qv, np.zeros(3), 3, 0.0, 2, 0, 1, 0)[0] == -20061
    w, found = 3, 0
    for _ in range(700):
        if rng.random() < 0.2:
            w = int(rng.choice([3, 3, 4, 5, 6, 7, 8, 11, 20]))
        n = w + int(rng.choice([-1, 0, 1, 2, 5, 30, 90], p=[0.03, 0.12, 0.1, 0.1, 0.15, 0.3, 0.2]))
        width = w if rng.random() < 0.97 else int(rng.choice([-2**31, -1, 0, 2, 3, 4, 2**30, 2**30 + 1, 2**31 - 1]))
        x = np.ascontiguousarray(samples(rng, n))
        threshold = float(rng.choice([-np.inf, np.inf, 0.0, 0.5, np.nan], p=[0.5, 0.05, 0.2, 0.2, 0.05]))
        polarity = int(rng.choice([0, 1, 2, 2**32 - 1], p=[0.5, 0.4, 0.05, 0.05]))
        if polarity == 1:
            threshold = -threshold
        first = int(rng.choice([0, 1, 2**32 - 1], p=[0.7, 0.2, 0.1])) if model.open else int(rng.random() < 0.9)
        last = int(rng.choice([0, 1, -1], p=[0.8, 0.15, 0.05]))
        if width == 2**30:
            first = 0  # else memory for it would be asked
        case = x.tolist(), threshold, width, polarity, first, last
        # A size that does not fit leaves the stream alone.
        bad = int(rng.choice(TOO_LARGE))
        assert detect(qv, x, bad, threshold, 2, polarity, 1, 1)[0] == -20046
        assert detect(qv, x, n, threshold, bad, polarity, 1, 1)[0] == -20046
        small = int(rng.choice([n, 0, -1, -2**31])) if rng.random() < 0.03 else n
        with np.errstate(all="ignore"):
            status, peaks = model.block(x[:max(small, 0)].tolist(), threshold, width, polarity, first, last)
        told, rows = detect(qv, x, small, threshold, width, polarity, first, last)
        assert told == status, case
        equal_numbers(rows, np.array(peaks, float).reshape(-1, 3))
        statuses[status] += 1
        found += len(peaks)
    assert all(statuses[s] > 0 for s in (0, -20061, -20013, -20064, -20058)) and found > 500, (statuses, found)
