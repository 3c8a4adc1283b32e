"""Interpolated filters beside the documented plan and design loops in scalar arithmetic, to the last bit."""

import ctypes
import math

import numpy as np
import pytest

import exchange


class Record(ctypes.Structure):
    _fields_ = [("mode", ctypes.c_int32), ("factor", ctypes.c_int32), ("model_count", ctypes.c_int32),
                ("model", ctypes.POINTER(ctypes.c_double)), ("suppressor_count", ctypes.c_int32),
                ("suppressor", ctypes.POINTER(ctypes.c_double))]


class Request:
    def __init__(self, fs, f1, f2, center, ripple, attenuation, kind):
        self.fs, self.center, self.kind = fs, center, kind
        stop, d1, d2 = math.pow(10.0, -attenuation / 20), None, None
        if kind > 3:
            raise exchange.Failure(-20031)
        if kind == 0:
            self.mode = 0 if f1 <= fs / 4 else 4
            e1, e2 = (f1, f2) if self.mode == 0 else (fs / 2 - f2, fs / 2 - f1)
        elif kind == 1:
            self.mode = 1 if fs / 2 - f1 <= fs / 4 else 5
            e1, e2 = (fs / 2 - f1, fs / 2 - f2) if self.mode == 1 else (f2, f1)
        else:
            self.mode = kind
            e1, e2 = (f1 / 2, f2 / 2) if kind == 2 else (f2 / 2, f1 / 2)
        d1, d2 = (ripple, stop) if self.mode in (0, 1, 2) else (stop, ripple)
        self.e1, self.e2, self.d1, self.d2 = e1, e2, d1, d2
        if e1 <= 0 or e2 <= e1 or e2 >= fs / 2 or d2 <= 0 or d1 <= 0:
            raise exchange.Failure(-20031)
        # The library's own limit.
        if kind >= 2 and not 0 < center < fs / 2:
            raise exchange.Failure(-20031)
        self.t = d1 / 2
        self.g = self.t / d2

    def N(self, p, width):
        return int((-20 * math.log10(math.sqrt(p * self.d2)) - 13) / (14.6 * width / self.fs))

    def factor(self):
        """L, the orders of the model and of the suppressor."""
        fs, e1, e2 = self.fs, self.e1, self.e2
        L = int(math.floor(fs / (math.sqrt((e2 - e1) * fs) + e1 + e2) + 0.5))
        while L * e2 >= fs / 2:
            L -= 1
        Ns = self.N(self.d1 / 2, fs / L - e2 - e1) if L != 1 else 0
        Nm, N0 = self.N(self.d1 / 2, L * e2 - L * e1), self.N(self.d1, e2 - e1)
        return (1, N0, 0) if N0 <= Nm + Ns else (L, Nm, Ns)

    def fold(self, L):
        v, k = L * self.center, 0
        while v - k * self.fs > self.fs:
            k += 1
        c, code = v - k * self.fs, 2 * k + 1
        if c > self.fs / 2:
            c, code = self.fs - c, code + 1
        if c + L * self.e2 >= self.fs / 2 or c - L * self.e2 <= 0:
            code = 0
        return c, code

    def factor_band(self):
        """L, the folded centre, the case, the width, the orders."""
        fs, e1, e2 = self.fs, self.e1, self.e2
        best = self.N(self.d1, e2 - e1)
        plan = 1, self.center, 1, e2 - e1, best, 0
        for L in range(2, int(fs / (4 * e2)) + 1):
            c, code = self.fold(L)
            if code == 0:
                continue
            Nm = self.N(self.d1 / 2, L * (e2 - e1))
            if code == 1 or (code == L and L % 2 == 0) or (code not in (1, L) and c > fs / 4):
                d = (fs - 2 * c) / L - e2 - e1
            else:
                d = 2 * c / L - e2 - e1
            if d <= 0:  # no room for a suppressor
                continue
            Ns = self.N(self.d1 / 2, d)
            if Nm + Ns < best:
                best = Nm + Ns
                plan = L, c, code, d, Nm, Ns
        return plan

    def stage(self, order, gains, edges):
        weights = [1.0 if gain else self.g for gain in gains]
        count = order
        while True:
            if self.mode != 0 and count % 2 == 0:
                count += 1
            h, delta = exchange.design(gains, weights, self.fs, [0.0, *edges, self.fs / 2], 1, count)
            if not delta > self.t:
                return h
            count = int(math.ceil(count * 1.05))

    def design(self):
        """The factor and the taps of both stages."""
        e1, e2, C, fs = self.e1, self.e2, self.center, self.fs
        if self.kind < 2:
            L, *orders = self.factor()
        else:
            L, c, code, d, *orders = self.factor_band()
        orders = [math.trunc(order * 1.1) if order > 100 else order for order in orders]
        if min(orders) < 0:
            raise exchange.Failure(-20031)
        suppressor = []
        if self.kind < 2:
            model = self.stage(orders[0], [1.0, 0.0], [L * e1, L * e2])
            if L > 1:
                suppressor = self.stage(orders[1], [1.0, 0.0], [e1, fs / L - e2])
        else:
            model = self.stage(orders[0], [0.0, 1.0, 0.0], [c - L * e2, c - L * e1, c + L * e1, c + L * e2])
            if L > 1 and code == 1:
                suppressor = self.stage(orders[1], [1.0, 0.0], [e1 + C, e1 + C + d])
            elif L > 1 and code == L:
                suppressor = self.stage(orders[1], [0.0, 1.0], [C - e1 - d, C - e1])
            elif L > 1:
                suppressor = self.stage(orders[1], [0.0, 1.0, 0.0], [C - e1 - d, C - e1, C + e1, C + e1 + d])
        if L == 1:
            model = self.signed(model, self.mode in (1, 4), self.mode in (3, 4, 5))
        else:
            suppressor = self.signed(suppressor, self.mode in (1, 4), self.mode in (3, 4, 5))
            model = self.signed(model, self.mode in (1, 4) and L % 2 == 1, False)
        return L, model, suppressor

    @staticmethod
    def signed(h, modulate, negate):
        if modulate:
            start = 1 if (len(h) - 1) // 2 % 2 == 0 else 0
            h = [-v if i % 2 == start else v for i, v in enumerate(h)]
        return [-v for v in h] if negate else h


def check(qv, *arguments):
    """The status, or the mode and the factor."""
    handle = qv.ZemFunc491()
    record = Record.from_address(handle)
    status = qv.ZemFunc409(*arguments, handle)
    try:
        request = Request(*arguments)
        L, model, suppressor = request.design()
    except exchange.Failure as failure:
        assert status == failure.status
        assert not record.model and not record.suppressor and record.factor == record.model_count == 0
        qv.ZemFunc492(handle)
        return status
    assert status == 0
    assert (record.mode, record.factor) == (request.mode, L)
    assert (record.model_count, record.suppressor_count) == (len(model), len(suppressor))
    assert np.array(record.model[:len(model)]).tobytes() == np.array(model).tobytes()
    if suppressor:
        assert np.array(record.suppressor[:len(suppressor)]).tobytes() == np.array(suppressor).tobytes()
    qv.ZemFunc492(handle)
    return request.mode, min(L, 2), L % 2


@pytest.mark.parametrize("kind", [0, 1])
def test_lowpass_and_highpass(qv, kind):
    rng, met = np.random.default_rng(kind), set()
    for _ in range(60):
        fs = float(rng.choice([1.0, 2.0, 1000.0]))
        a = float(rng.choice([rng.uniform(0.01, 0.12), rng.uniform(0.02, 0.48)]))
        b = min(a + float(rng.uniform(0.01, 0.04)), 0.495)
        edges = (a * fs, b * fs) if kind == 0 else (b * fs, a * fs)
        ripple, attenuation = float(rng.uniform(0.005, 0.1)), float(rng.uniform(20, 60))
        met.add(check(qv, fs, *edges, 0.0, ripple, attenuation, kind))
    modes = (0, 4) if kind == 0 else (1, 5)
    assert {(mode, stages) for mode, stages, _ in (m for m in met if isinstance(m, tuple))} == {
        (mode, stages) for mode in modes for stages in (1, 2)}
    assert {odd for _, stages, odd in (m for m in met if isinstance(m, tuple)) if stages == 2} == {0, 1}


@pytest.mark.parametrize("kind", [2, 3])
def test_bandpass_and_bandstop(qv, kind):
    rng, met = np.random.default_rng(kind), set()
    for _ in range(60):
        fs = float(rng.choice([1.0, 2.0, 1000.0]))
        a = float(rng.uniform(0.01, 0.04))
        b = a + float(rng.choice([rng.uniform(0.015, 0.04), rng.uniform(0.1, 0.3)]))
        center = float(rng.uniform(0.02, 0.48))
        widths = (a * fs, b * fs) if kind == 2 else (b * fs, a * fs)
        ripple, attenuation = float(rng.uniform(0.01, 0.1)), float(rng.uniform(20, 45))
        met.add(check(qv, fs, *widths, center * fs, ripple, attenuation, kind))
    assert {(kind, stages) for _, stages, _ in (m for m in met if isinstance(m, tuple))} == {(kind, 1), (kind, 2)}


def test_faults(qv):
    good = dict(fs=1.0, f1=0.05, f2=0.08, center=0.2, ripple=0.05, attenuation=30.0)
    for kind in (0, 1, 2, 3, 4, 2**32 - 1):
        for changes in ({}, {"f1": 0.0}, {"f1": 0.08}, {"f1": 0.1}, {"f2": 0.5}, {"f2": 0.6}, {"ripple": 0.0},
                        {"ripple": -0.1}, {"attenuation": 7000.0}, {"center": 0.0}, {"center": 0.5}, {"center": -0.2},
                        {"center": 0.03}, {"attenuation": -40.0}, {"f1": 0.3, "f2": 0.31}):
            check(qv, *{**good, **changes}.values(), kind)
