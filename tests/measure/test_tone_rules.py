"""Harmonic analysis beside its documented rules, written down plainly, on data of all kinds and sizes."""

import collections
import math

import numpy as np
import pytest

from test_tones import COEFFICIENTS

HALF_WIDTHS = (1.21, 2.0, 1.81, 1.81, 2.13, 2.35, 4.0, 2.72, 4.0)


def response(d, a, N):
    def D(x):
        s = math.sin(math.pi * x)
        return N if abs(s) <= 2.220446049250313e-16 else math.sin(N * math.pi * x) / s
    total = a[0] * D(d)
    for k in range(1, len(a)):
        total += (D(d + k / N) + D(d - k / N)) * (a[k] / 2)
    return total / a[0]


def total(values):
    """In the order of the elements; the built-in sum compensates."""
    result = 0.0
    for v in values:
        result += v
    return result


def interpolate(p, a, N):
    i = int(np.argmax(p))
    above, below = p[i + 1] if i + 1 < len(p) else 0.0, p[i - 1] if i > 0 else 0.0
    if i == 0 or above >= below:
        neighbour, near, far = i + 1, above, below
    else:
        neighbour, near, far = i - 1, below, above
    if abs(np.divide(near - far, neighbour)) <= 1e-7:
        return np.sqrt(p[i]), i
    r, offset, h, R = np.sqrt(p[i]) / np.sqrt(near), 1 / (2 * N), 1 / (4 * N), response(1 / (2 * N), a, N)
    for _ in range(100):
        if h <= 1e-8 / N:
            break
        R = response(offset, a, N)
        e = abs(R / response(1 / N - offset, a, N)) - r
        offset += float(np.sign(e)) * h
        h *= 0.5
        if e == 0:
            break
    return N * np.sqrt(p[i]) / R, i + N * offset if neighbour > i else i - N * offset


def analysis(power, size, harmonics, code, fs, fundamental):
    n, N, c = len(power), 2 * len(power) if size < 1 else size, int(np.ceil(HALF_WIDTHS[code]))
    amp, freq = np.zeros(harmonics), np.zeros(harmonics)
    b = int(fundamental / fs * N + 0.5)
    if b <= c or b > N / 2 - 1:
        if n <= c:
            return -20003, None
        b = int(np.argmax(power[c:])) + c
    T = total(power[c:])
    D = T - total(power[max(b - c + 1, 0):min(b + c - 1, n - 1) + 1])
    r = c if 2 * c + 1 <= b else max((b - 1) >> 1, 0)
    for j in range(min(harmonics, int(np.floor(fs / (2 * fundamental))))):
        s = b - r + j * b
        if s < 0 or s + 2 * r + 1 > n:
            break
        amp[j], place = interpolate(power[s:s + 2 * r + 1], COEFFICIENTS[code], N)
        freq[j] = (s + place) * fs / N
    first = amp[0] if harmonics > 0 else 0
    thd = np.sqrt(total(amp[1:] ** 2)) * 100 / first if first != 0 else 1e9
    return 0, (amp, freq, thd, np.sqrt(D) * 100 / np.sqrt(T) if T != 0 else 1e9)


@pytest.mark.parametrize("code", range(9))
def test_power_spectra_of_any_kind_are_read_by_the_rules(qv, code):
    rng, statuses = np.random.default_rng(code), collections.Counter()
    for _ in range(300):
        n, harmonics = int(rng.integers(1, 120)), int(rng.integers(-2, 9))
        size = int(rng.choice((0, -5, -2**31, 1, 2, n, 2 * n, 2 * n - 1, 2 * n + 1, rng.integers(1, 4 * n), 2**31 - 1)))
        power, kind = rng.exponential(1, n) ** 3, rng.integers(0, 4)
        if kind == 0:
            power[rng.random(n) < 0.5] = 0
        elif kind == 1:
            power = rng.integers(0, 3, n) * 1.0
        elif kind == 2:
            power *= 10.0 ** rng.integers(-300, 300, n)
        fs = float(rng.choice((1, 1, 1, -1, 1e300, 1e-300)) * rng.uniform(0.5, 2))
        fundamental = fs * float(rng.choice((1, -1, 1e-3), p=(0.9, 0.05, 0.05)) * rng.uniform(0, 0.3))
        count = max(harmonics, 0)
        amp, freq, thd, thdn = np.full(count, -7.0), np.full(count, -7.0), np.zeros(1), np.zeros(1)
        with np.errstate(all="ignore"):
            wanted, results = analysis(power, size, count, code, fs, fundamental)
        case = power.tolist(), size, harmonics, fs, fundamental
        status = qv.ZemFunc87(power, n, size, harmonics, code, fs, fundamental, amp, freq, thd, thdn)
        assert status == wanted, case
        statuses[status] += 1
        if status == 0:
            for found, expected in zip((amp, freq, thd, thdn), results):
                assert np.array_equal(found, np.reshape(expected, found.shape), equal_nan=True), (case, found, expected)
    assert statuses[0] > 100, statuses


def extract(S, n, fs, f, percent):
    """status, amplitude, frequency, phase, position."""
    H, df = len(S), fs / n
    m = np.abs(S)
    m[:2] = 0
    w = max(int(n * percent * 0.01), 1)
    lo = max(int(f / df) - w, 1)
    hi = min(lo + 2 * w, H - 1)
    i = lo + int(np.argmax(m[lo:hi + 1])) if lo <= hi else lo
    if i >= H - 1:
        return -20017, 0, 0, 0, 0
    side = 0 if m[i - 1] > m[i + 1] else 2 if m[i + 1] > m[i - 1] else 1

    def line(a0, a1, a2):
        if side == 1:
            return i, a0
        r = a0 / (a1 if side == 0 else a2)
        d = (r - 2) / (r + 1) if side == 0 else (2 - r) / (r + 1)
        return i + d, (1 - d * d) * a0 * np.pi * d / np.sin(np.pi * d)

    position, amplitude = line(m[i], m[i - 1], m[i + 1])
    if not np.isfinite(position):
        return -20060, 0, 0, 0, 0
    C, floor = S.copy(), int(np.floor(position))
    phi, start = np.angle(S[floor]), floor - (side != 0)
    near = range(max(start, 0), min(start + 2, H - 1) + 1)
    for shift, turn in ((0, phi + np.pi), (-n, phi)):
        for j in near:
            g = j + shift + position
            C[j] -= abs(np.sin(g * np.pi) / (g * np.pi) / (g * g - 1)) * amplitude * np.exp(-1j * turn)
    # The bins 0 and 1 are left out of the search only.
    position, amplitude = line(*np.abs(C[[i, i - 1, i + 1]]))
    if not np.isfinite(position) or not np.isfinite(amplitude):
        return -20060, 0, 0, 0, 0
    floor = int(np.floor(position))
    amplitude *= 2**0.5
    phase = np.degrees(np.angle(C[floor])) - (position - floor) * 180 + 90
    status = -20020 if position <= 0 or position * df > fs / 2 else 0
    return status, amplitude, position * df, phase, position


def distortion(x, harmonics, fs, guess):
    n, i = len(x), np.arange(len(x))
    H = (n + 1) // 2

    def spectrum(v):
        bins = np.fft.fft(v * (0.5 - 0.5 * np.cos(2 * np.pi * i / n) if n > 1 else 1) * (2 * 2**0.5 / n))[:H]
        bins[0] *= 2**0.5 / 2
        return bins

    amp, freq = np.zeros(harmonics), np.zeros(harmonics)
    S = spectrum(x)
    status, a, f, phase, position = extract(S, n, fs, guess, 5.0)
    if status:
        return status, (amp, freq, 0, 0)
    s = a * np.sin(2 * np.pi * position * i / n + np.radians(phase))
    A, B = ((x - x.mean()) ** 2).sum(), ((x - s - (x - s).mean()) ** 2).sum()
    thdn, S = np.sqrt(B / A) * 100, S - spectrum(s)
    amp[0], freq[0] = a, f
    squares = 0
    for j in range(2, min(harmonics, int(np.floor(fs / (2 * f)))) + 1):
        u = j * f / fs % 1
        status, a, f_j, _, _ = extract(S, n, fs, (1 - u if u > 0.5 else u) * fs, 0.0)
        if status:
            return status, (amp, freq, 0, thdn)
        amp[j - 1], freq[j - 1] = a, f_j
        squares += a * a
    return 0, (amp, freq, np.sqrt(squares) / amp[0] * 100, thdn)


@pytest.mark.parametrize("seed", range(3))
def test_records_of_any_kind_are_read_by_the_rules(qv, seed):
    rng, statuses = np.random.default_rng(seed), collections.Counter()
    for k in range(500):
        n, harmonics, fs = int(rng.integers(1, 200)), int(rng.integers(1, 8)), rng.uniform(0.5, 3)
        f = rng.uniform(0.01, 0.45)
        x = rng.standard_normal(n) * rng.choice((1e-3, 0.1, 1))
        for j in range(1, 5):
            x = x + rng.uniform(0, 1) / j * np.sin(2 * np.pi * j * f * np.arange(n) + rng.uniform(0, 6))
        guess = fs * f * rng.uniform(0.8, 1.2)
        amp, freq, thd, thdn = np.full(harmonics, -7.0), np.full(harmonics, -7.0), np.zeros(1), np.zeros(1)
        with np.errstate(all="ignore"):
            wanted, results = distortion(x, harmonics, fs, guess)
        status = qv.ZemFunc362(x, n, harmonics, fs, guess, amp, freq, thd, thdn)
        case = n, harmonics, fs, guess
        assert status == wanted, case
        statuses[status] += 1
        # What a harmonic is taken from is a residual: its rounding is that of the bins before the subtraction. The ratio
        # of two small bins carries it on, which random residuals rarely are.
        for found, expected in zip((amp, freq, thd, thdn), results):
            assert np.allclose(found, expected, rtol=1e-8, atol=1e-10, equal_nan=True), (case, found, expected)
    assert statuses[0] > 200 and statuses[-20017] > 20, statuses
