"""Spectrum measurements in scalar arithmetic, in the documented order, to the last bit.

What lies around the transforms is modelled; the spectra that it starts from, and the inverse transforms at its end, are
those of the library's own exports, which have tests beside NumPy. Functions are the C library's, as those of the library:
a difference of one bit is a difference of the evaluation.
"""

import ctypes
import itertools
import math

import numpy as np
import pytest

from exact import TOO_LARGE, divided, equal_numbers

SIZES = [1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 15, 16, 17, 30, 53, 64, 100]
DT = 0.3
PI, TWO_PI = 3.141592653589793, 6.283185307179586


def record(n, seed=1):
    return np.random.default_rng((n, seed)).standard_normal(n)


def out(n):
    return np.full(max(n, 1), np.nan)


def bins(n):
    """Bin 0 is written for one sample too."""
    return range(max(n // 2, 1))


def spectrum(qv, x):
    """Both sides, as pairs of floats."""
    n = len(x)
    re, im = x.copy(), out(n)
    assert qv.ZemFunc147(re, im, n) == 0
    return list(zip(re.tolist(), im.tolist()))


def squares(z):
    return z[0] * z[0] + z[1] * z[1]


def modulus(z):
    return math.sqrt(squares(z))


def phase(z):
    return math.atan2(z[1], z[0])


def auto_power(X, n):
    return [squares(z) / (float(n) * n) for z in X]


def cross_power(X, Y, n):
    s = 1.0 / (float(n) * n)
    S = []
    for k, (x, y) in enumerate(zip(X, Y)):
        if k == 0 or 2 * k == n:
            S.append((x[0] * y[0] * s, 0.0))
        elif 2 * k < n:
            S.append(((x[0] * y[0] + x[1] * y[1]) * s, (x[0] * y[1] - x[1] * y[0]) * s))
        else:
            S.append((S[n - k][0], -S[n - k][1]))
    return S


def quotient(y, x):
    w = divided(1.0, squares(x))
    return (y[1] * x[1] + y[0] * x[0]) * w, (y[1] * x[0] - y[0] * x[1]) * w


@pytest.mark.parametrize("n", SIZES)
def test_two_sided_spectra(qv, n):
    x, y = record(n), record(n, 2)
    X, Y = spectrum(qv, x), spectrum(qv, y)
    for k in range(n):  # Hermitian to the last bit
        mirrored = X[-k % n]
        assert X[k][0] == mirrored[0] and X[k][1] == (-mirrored[1] if 0 < 2 * k != n else 0)
    power = x.copy()
    assert qv.ZemFunc161(power, n) == 0
    equal_numbers(power, auto_power(X, n))
    re, im = out(n), out(n)
    assert qv.ZemFunc36(x, y, n, re, im) == 0
    equal_numbers(re, [z[0] for z in cross_power(X, Y, n)])
    equal_numbers(im, [z[1] for z in cross_power(X, Y, n)])


def test_power_is_scaled_by_the_squared_length_in_floating_point(qv):
    n = 46342  # the first even length whose square no 32-bit integer holds
    x, y = record(n), record(n, 2)
    X, Y = spectrum(qv, x), spectrum(qv, y)
    power, re, im = x.copy(), out(n), out(n)
    assert qv.ZemFunc161(power, n) == 0 and qv.ZemFunc36(x, y, n, re, im) == 0
    equal_numbers(power, auto_power(X, n))
    equal_numbers(re, [z[0] for z in cross_power(X, Y, n)])
    equal_numbers(im, [z[1] for z in cross_power(X, Y, n)])


def unwrapped(p, mode):
    period = 360.0 if mode in (2, 3) else TWO_PI
    p = list(p)
    for i in range(1, len(p)):
        turns = (p[i] - p[i - 1]) / period + 0.5
        p[i] -= float(np.floor(turns)) * period
    if mode == 3:
        p = [v * TWO_PI / 360.0 for v in p]
    if mode == 1:
        p = [v * 360.0 / TWO_PI for v in p]
    return p


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("unwrap", [0, 1, -5])
def test_amplitude_and_phase(qv, n, unwrap):
    for sign in (1, -1):
        x = record(n) + sign * 3
        X = spectrum(qv, x)
        amp, angle, df = out(n // 2), out(n // 2), out(1)
        assert qv.ZemFunc5(x, n, unwrap, DT, amp, angle, df) == 0
        expected = [0.0 if X[0][0] >= 0 else PI] + [phase(X[k]) for k in bins(n)[1:]]
        equal_numbers(amp, [abs(X[0][0]) / n] + [modulus(X[k]) * (math.sqrt(2.0) / n) for k in bins(n)[1:]])
        equal_numbers(angle, unwrapped(expected, 0) if unwrap else expected)
        equal_numbers(df, [1.0 / (n * DT)])


@pytest.mark.parametrize("n", SIZES)
def test_one_sided_powers(qv, n):
    x, y = record(n), record(n, 2)
    X, Y = spectrum(qv, x), spectrum(qv, y)
    power, df = out(n // 2), out(1)
    assert qv.ZemFunc10(x, n, DT, power, df) == 0
    S = auto_power(X, n)
    equal_numbers(power, [S[0]] + [2 * S[k] for k in bins(n)[1:]])
    equal_numbers(df, [1.0 / (n * DT)])
    mag, angle, df = out(n // 2), out(n // 2), out(1)
    assert qv.ZemFunc37(x, y, n, DT, mag, angle, df) == 0
    S = cross_power(X, Y, n)
    equal_numbers(mag, [abs(S[0][0])] + [2 * modulus(S[k]) for k in bins(n)[1:]])
    equal_numbers(angle, [phase(S[k]) for k in bins(n)])
    equal_numbers(df, [1.0 / (n * DT)])


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("empty", [False, True])
def test_transfer_and_deconvolution(qv, n, empty):
    """Also of a stimulus of zeros, whose infinities and NaN have no status."""
    x, y = np.zeros(n) if empty else record(n), record(n, 2)
    X, Y = spectrum(qv, x), spectrum(qv, y)
    H = [(divided(Y[0][0], X[0][0]), 0.0)] + [quotient(Y[k], X[k]) for k in range(1, n // 2 + 1)]
    mag, angle, df = out(n // 2), out(n // 2), out(1)
    assert qv.ZemFunc176(x, y, n, DT, mag, angle, df) == 0
    equal_numbers(mag, [abs(H[0][0])] + [modulus(H[k]) for k in bins(n)[1:]])
    equal_numbers(angle, [math.atan2(0.0, H[0][0])] + [phase(H[k]) for k in bins(n)[1:]])
    equal_numbers(df, [1.0 / (n * DT)])
    re, im, impulse = np.zeros(n), np.zeros(n), out(n)
    for k in range(n):
        z = H[min(k, n - k)] if k else H[0]
        re[k], im[k] = z[0], z[1] if 2 * k < n else -z[1]
    assert qv.ZemFunc148(re, im, n) == 0
    assert qv.ZemFunc94(x, y, n, impulse) == 0
    equal_numbers(impulse, re)


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("frames", [1, 2, 7])
def test_network_analysis(qv, n, frames):
    x, y = record(n * frames), record(n * frames, 2)
    Sxy, Sxx, Syy = [(0.0, 0.0)] * n, [0.0] * n, [0.0] * n
    for f in range(frames):
        X, Y = (spectrum(qv, v[f * n:(f + 1) * n]) for v in (x, y))
        Sxy = [(a[0] + b[0], a[1] + b[1]) for a, b in zip(Sxy, cross_power(X, Y, n))]
        Sxx = [a + b for a, b in zip(Sxx, auto_power(X, n))]
        Syy = [a + b for a, b in zip(Syy, auto_power(Y, n))]
    H = [(divided(s[0], p), divided(s[1], p)) for s, p in zip(Sxy, Sxx)]
    re, im = np.array([z[0] for z in H]), np.array([z[1] for z in H])
    assert qv.ZemFunc102(re, im, n) == 0
    cross, cross_angle, transfer, transfer_angle, coherence = (out(n // 2) for _ in range(5))
    impulse, df = out(n), out(1)
    assert qv.ZemFunc129(x, y, n, frames, DT, cross, cross_angle, transfer, transfer_angle, coherence, impulse, df) == 0
    equal_numbers(cross, [modulus(Sxy[0]) / frames] + [modulus(Sxy[k]) * 2 / frames for k in bins(n)[1:]])
    equal_numbers(cross_angle, [phase(Sxy[k]) for k in bins(n)])
    equal_numbers(transfer, [modulus(H[k]) for k in bins(n)])
    equal_numbers(transfer_angle, [phase(H[k]) for k in bins(n)])
    equal_numbers(coherence, [squares(Sxy[k]) / (Sxx[k] * Syy[k]) for k in bins(n)])
    equal_numbers(impulse, re)
    equal_numbers(df, [1.0 / (n * DT)])


def log10(v):
    return -math.inf if v == 0 else v if math.isinf(v) or math.isnan(v) else math.log10(v)


SUFFIXES = [("rms", "rms"), ("pk", "pk"), ("rms^2", "rms"), ("pk^2", "pk"), ("rms/rtHz", "rms/rtHz"),
            ("pk/rtHz", "pk/rtHz"), ("rms^2/Hz", "rms^2/Hz"), ("pk^2/Hz", "pk^2/Hz")]


def converted(values, kind, display, flags, df, enbw, base):
    scale = divided(1.0, df * enbw)
    values = [float(v) for v in values]
    if kind == 2:
        return (values, "") if display == 0 else ([20 * log10(abs(v)) for v in values], "dB")
    if kind == 1:
        values = [v * v for v in values]
    if flags & 4:
        values = [v * scale for v in values]
    if flags & 1 and display != 2:
        values = values[:1] + [v * 2.0 for v in values[1:]]
    if display == 2:
        return [10 * log10(abs(v) / 0.6084) for v in values], "dBm"
    if display == 1:
        values = [10 * log10(abs(v)) for v in values]
    elif not flags & 2:
        values = [math.sqrt(abs(v)) for v in values]
    return values, ("dB" if display == 1 else "") + base + SUFFIXES[flags][display]


@pytest.mark.parametrize("kind,display", itertools.product(range(3), range(3)))
def test_units_in_every_combination(qv, kind, display):
    rng = np.random.default_rng((kind, display))
    for flags in range(8):
        for n in (1, 2, 9):
            df, enbw = rng.uniform(0.1, 3, 2)
            x = rng.standard_normal(n) * 10.0 ** rng.integers(-3, 4)
            if n == 9:
                x[3:8] = [0.0, -0.0, np.inf, -np.inf, np.nan]
            for in_place, base in ((False, "V"), (True, ""), (False, "m/s^2 and more")):
                unit = ctypes.create_string_buffer(base.encode(), len(base) + 16)
                source, y = x.copy(), out(n)
                target = source if in_place else y
                status = qv.ZemFunc162(source, n, kind, display, flags, df, np.array([enbw, np.nan]), target, unit)
                assert status == 0
                values, text = converted(x, kind, display, flags, df, enbw, base)
                equal_numbers(target, values)
                assert unit.value.decode() == text
                if not in_place:
                    equal_numbers(source, x)


@pytest.mark.parametrize("mode", [0, 1, 2, 3, 4, 2**32 - 1])
def test_unwrapping(qv, mode):
    rng = np.random.default_rng(mode % 100)
    half = 180.0 if mode in (2, 3) else PI
    for n in [1, 2, 3, 10, 200]:
        for _ in range(20):
            p = rng.uniform(-1, 1, n) * half * rng.choice([1, 5, 1e3, 1e17])
            exact = rng.random(n) < 0.3
            p[exact] = half * rng.integers(-6, 7, exact.sum())
            if n == 200:
                p[rng.integers(n)] = rng.choice([np.nan, np.inf])
            with np.errstate(all="ignore"):
                expected = unwrapped(p, mode)
            q = p.copy()
            assert qv.ZemFunc368(q, n, mode) == 0
            equal_numbers(q, expected)
            if mode == 0:
                assert qv.ZemFunc183(p, n) == 0
                equal_numbers(p, expected)


def largest(power):
    """The first largest element that is not NaN; -1 without one."""
    best = -1
    for i, v in enumerate(power):
        if v == v and (best < 0 or v > power[best]):
            best = i
    return best


def peak(power, search, enbw, df, span):
    n, i = len(power), None
    if search >= 0:
        quotient_ = divided(search, df)
        if math.isfinite(quotient_) and 0 <= int(quotient_) < n:
            i = int(quotient_)
    if i is None:
        i = largest(power)
    m = (max(span, 3) & ~1) + 1
    P = M = 0.0
    for j in range(max(i - (m >> 1), 0), min(i - (m >> 1) + m, n)):
        P += power[j]
        M += j * power[j]
    return (divided(M * df, P) if P > 0 else i * df), divided(P, enbw)


@pytest.mark.parametrize("seed", range(8))
def test_peaks(qv, seed):
    rng = np.random.default_rng(seed)
    for _ in range(300):
        n = int(rng.choice([1, 2, 3, 5, 40]))
        power = rng.standard_normal(n) ** 2 if rng.random() < 0.6 else rng.integers(-2, 3, n).astype(float)
        if rng.random() < 0.2:
            power[rng.integers(n)] = np.nan
        if rng.random() < 0.05:
            power[:] = np.nan
        df = float(rng.choice([0.1, 1.0, 3.7, -0.5, 0.0]))
        search = float(rng.choice([-1.0, -0.0, 0.0, 1e300, np.inf, np.nan, rng.uniform(0, 1.2 * n * max(df, 0.1))]))
        span = int(rng.choice([-2**31, -1, 0, 1, 2, 3, 4, 5, 6, 17, n, 2**31 - 2, 2**31 - 1]))
        frequency, total = out(1), out(1)
        assert qv.ZemFunc139(power, n, search, np.array([1.5, np.nan]), df, span, frequency, total) == 0
        expected = peak(power.tolist(), search, 1.5, df, span)
        equal_numbers(frequency, expected[:1])
        equal_numbers(total, expected[1:])


@pytest.mark.parametrize("n", SIZES)
def test_ac_and_dc(qv, n):
    x = record(n) + 2
    total = 0.0
    for v in x.tolist():
        total += v
    offset = total / n
    y = x - offset
    assert qv.ZemFunc89(y, n) == 0
    total = squared = 0.0
    for v in y.tolist():
        total += v
        squared += v * v
    mean = total / n
    variance = squared / n - mean * mean
    ac, dc = out(1), out(1)
    assert qv.ZemFunc2(x, n, ac, dc) == 0
    equal_numbers(ac, [math.sqrt((variance - mean * mean * 0.5) / 0.375)])
    equal_numbers(dc, [2 * mean + offset])


def calls(qv, n, frames=1, span=3):
    """Every export of the family with that size, beside its status for a size below 1, and its outputs."""
    a = [out(4) for _ in range(8)]
    window, unit = np.array([1.5, 0.5]), ctypes.create_string_buffer(b"V", 16)
    return a + [unit], [
        (qv.ZemFunc147(a[0], a[1], n), -20003), (qv.ZemFunc148(a[0], a[1], n), -20003),
        (qv.ZemFunc102(a[0], a[1], n), -20003), (qv.ZemFunc161(a[0], n), -20003),
        (qv.ZemFunc36(a[0], a[1], n, a[2], a[3]), -20003), (qv.ZemFunc5(a[0], n, 1, DT, a[1], a[2], a[3]), -20003),
        (qv.ZemFunc10(a[0], n, DT, a[1], a[2]), -20003), (qv.ZemFunc37(a[0], a[1], n, DT, a[2], a[3], a[4]), -20003),
        (qv.ZemFunc176(a[0], a[1], n, DT, a[2], a[3], a[4]), -20003), (qv.ZemFunc94(a[0], a[1], n, a[2]), -20003),
        (qv.ZemFunc129(a[0], a[0], n, frames, DT, *a[1:8]), -20003),
        (qv.ZemFunc162(a[0], n, 9, 9, 9, 1.0, window, a[1], unit), -20003), (qv.ZemFunc368(a[0], n, 0), -20008),
        (qv.ZemFunc183(a[0], n), -20003), (qv.ZemFunc139(a[0], n, 1.0, window, 1.0, span, a[1], a[2]), -20003),
        (qv.ZemFunc2(a[0], n, a[1], a[2]), -20003)]


@pytest.mark.parametrize("n", [0, -1, -2**31])
def test_sizes_below_1_are_refused_and_touch_nothing(qv, n):
    arrays, statuses = calls(qv, n)
    assert all(status == expected for status, expected in statuses)
    assert all(np.isnan(a).all() for a in arrays[:-1]) and arrays[-1].value == b"V"


@pytest.mark.parametrize("n", TOO_LARGE)
def test_sizes_beyond_32_bits_are_refused_first_and_touch_nothing(qv, n):
    arrays, statuses = calls(qv, n, frames=0)
    assert all(status == -20046 for status, _ in statuses)
    a = [out(4) for _ in range(8)]
    assert qv.ZemFunc129(a[0], a[0], 0, n, DT, *a[1:8]) == -20046
    assert qv.ZemFunc139(a[0], 0, 1.0, np.array([1.5, 0.5]), 1.0, n, a[1], a[2]) == -20046
    assert all(np.isnan(v).all() for v in arrays[:-1] + a) and arrays[-1].value == b"V"


@pytest.mark.parametrize("n", SIZES)
def test_outputs_may_be_the_inputs(qv, n):
    def both(number, inputs, before, between, outputs, places):
        """The same values, with the outputs `places` in the arrays of the inputs."""
        apart = [v.copy() for v in inputs]
        expected = [out(size) for size in outputs]
        assert getattr(qv, f"ZemFunc{number}")(*apart, *before, *between, *expected) == 0
        given = [v.copy() for v in inputs]
        joined = [out(size) for size in outputs]
        for output, place in places:
            joined[output] = given[place]
        assert getattr(qv, f"ZemFunc{number}")(*given, *before, *between, *joined) == 0
        for size, a, b in zip(outputs, joined, expected):
            equal_numbers(a[:max(size, 1)], b)
    x, y, h = record(n), record(n, 2), n // 2
    both(36, [x, y], [n], [], [n, n], [(0, 0), (1, 1)])
    both(36, [x, y], [n], [], [n, n], [(0, 1), (1, 0)])
    both(5, [x], [n], [1, DT], [h, h, 1], [(0, 0)])
    both(5, [x], [n], [1, DT], [h, h, 1], [(1, 0)])
    both(10, [x], [n], [DT], [h, 1], [(0, 0)])
    for number in (37, 176):
        both(number, [x, y], [n], [DT], [h, h, 1], [(0, 0), (1, 1)])
        both(number, [x, y], [n], [DT], [h, h, 1], [(0, 1), (1, 0)])
    for place in (0, 1):
        both(94, [x, y], [n], [], [n], [(0, place)])
    x, y = record(3 * n), record(3 * n, 2)
    for output in range(6):
        both(129, [x, y], [n, 3], [DT], [h] * 5 + [n, 1], [(output, output % 2)])
