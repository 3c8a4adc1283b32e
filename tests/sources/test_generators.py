"""Waveform generators: the documented evaluation sample by sample, to the last bit, and closed forms beside it.

The scalar loops use the math module, whose sine is the C library's: a difference of one bit is a difference of the
evaluation. The closed forms use NumPy, SciPy and mpmath with tolerances from the conditioning of each formula.
"""

import math

import mpmath
import numpy as np
import pytest
import scipy.signal

EPS = np.finfo(float).eps
LENGTHS = [1, 2, 3, 4, 5, 7, 8, 16, 33, 100, 257]
PHASES = [0.0, -0.0, 90.0, 359.9999999, 360.0, -1e-300, -45.0, 1234.5, -98765.4321]
FREQUENCIES = [0.0, 0.01, 0.1234567, 0.25, 0.5, -0.037, 1.3]


def call(function, n, *arguments):
    """Runs a generator whose last argument is the output; one-element lists stand for a phase by address."""
    out = np.full(n, np.nan)
    values = [np.array(a) if isinstance(a, list) else a for a in arguments]
    assert function(n, *values, out) == 0
    phases = [float(v[0]) for v, a in zip(values, arguments) if isinstance(a, list)]
    return (out, phases[0]) if phases else out


def same_bits(actual, expected):
    actual, expected = np.asarray(actual, float), np.asarray(expected, float)
    assert np.array_equal(actual.view(np.int64), expected.view(np.int64)), (actual, expected)


def normalized(p):
    x = p - float(np.floor(p / 360.0)) * 360.0  # math.floor would lose the sign of zero
    if x < 0:
        x += 360.0
    return 0.0 if x == 360.0 else x


def sine_wave(n, amp, freq, phase, clamp=True):
    w = 6.283185307179586 * freq
    d = 2 * math.sin(w)
    theta = phase * 0.017453292519943295
    out = [amp * math.sin(theta)]
    if n > 1:
        c0, c1 = amp * math.cos(theta), amp * math.cos(theta + w)
        out.append(amp * math.sin(theta + w))
        for i in range(2, n):
            v = out[i - 2] + c1 * d
            out.append(min(max(v, -abs(amp)), abs(amp)) if clamp else v)
            c0, c1 = c1, c0 - d * out[i - 1]
    return out, normalized(freq * 360.0 * n + phase)


def fresh_phase_wave(shape, n, amp, freq, phase):
    out, p = [], phase
    for i in range(n):
        out.append(shape(normalized(p), amp))
        p = (i + 1) * 360.0 * freq + phase
    return out, normalized(p)


def triangle_shape(x, amp):
    h = x * 0.005555555555555556
    if h < 0.5:
        return 2 * h * amp
    return (1 - h) * 2 * amp if h < 1.5 else (h - 2) * 2 * amp


def sawtooth_shape(x, amp):
    h = x * 0.005555555555555556
    return h * amp if x < 180 else (h - 2) * amp


def square_shape(duty):
    return lambda x, amp: amp if min(max(duty, 0.0), 100.0) * 3.6 > x else -amp


def lookup(v, table, interpolate):
    size = len(table)
    v = v - float(np.floor(v / size)) * size
    if v < 0:
        v += size
    if v == size:
        v = 0.0
    i = int(v)
    return (v - math.floor(v)) * (table[(i + 1) % size] - table[i]) + table[i] if interpolate else table[i]


def arbitrary_wave(n, amp, freq, phase, table, interpolate):
    size, out = len(table), []
    p = phase * (size / 360.0)
    for _ in range(n):
        out.append(lookup(p, table, interpolate) * amp)
        p += size * freq
    return out, normalized(360.0 / size * p)


@pytest.mark.parametrize("freq", FREQUENCIES)
@pytest.mark.parametrize("phase", PHASES)
def test_sine_wave_follows_the_recurrence_to_the_last_bit(qv, freq, phase):
    for n in LENGTHS:
        for amp in (1.0, -2.5, 1e-300):
            out, behind = call(qv.ZemFunc159, n, amp, freq, [phase])
            expected, phase_behind = sine_wave(n, amp, freq, phase)
            same_bits(out, expected)
            same_bits([behind], [phase_behind])


def test_sine_wave_is_held_within_its_amplitude_where_rounding_would_carry_it_beyond(qv):
    # At five samples a cycle, one of them on the crest, the plain recurrence exceeds 1 hundreds of times.
    n, freq, phase = 2000, 0.2, 90.0
    assert sum(abs(v) > 1 for v in sine_wave(n, 1.0, freq, phase, clamp=False)[0]) > 100
    for amp in (1.0, -1.0):
        out, _ = call(qv.ZemFunc159, n, amp, freq, [phase])
        same_bits(out, sine_wave(n, amp, freq, phase)[0])
        assert np.abs(out).max() == 1.0


@pytest.mark.parametrize("freq", [0.001, 0.01, 0.12345, 0.31])
def test_sine_wave_is_a_sine(qv, freq):
    n = 2000
    out, _ = call(qv.ZemFunc159, n, 3.0, freq, [30.0])
    # The recurrence has the roots e^(iw) and -e^(-iw), so that an error of one sample stays in all later ones with at
    # most 1 / |cos w| of its size. Product and sum of a step round by 1.5 eps of the amplitude, in sine and cosine
    # alike; the four values at the start by 2 eps. Relative errors of eps in d and w turn the angle by eps (tan w + w)
    # a step.
    w = 2 * np.pi * freq
    steps = 1.5 * np.sqrt(2) / abs(np.cos(w)) + abs(np.tan(w)) + w
    tolerance = 3.0 * EPS * (n * steps + 8 / abs(np.cos(w)))
    exact = [3 * mpmath.sin(mpmath.mpf(freq) * 2 * mpmath.pi * i + mpmath.pi / 6) for i in range(n)]
    assert max(abs(o - float(e)) for o, e in zip(out, exact)) <= tolerance


@pytest.mark.parametrize("cycles", [0.0, 1.0, 3.7, -2.0])
def test_sine_pattern_is_the_wave_of_cycles_over_n(qv, cycles):
    for n in LENGTHS:
        same_bits(call(qv.ZemFunc158, n, 1.5, 77.0, cycles), sine_wave(n, 1.5, cycles / n, 77.0)[0])


@pytest.mark.parametrize("freq", FREQUENCIES)
@pytest.mark.parametrize("phase", PHASES)
def test_waves_with_straight_edges_take_a_fresh_product_for_each_sample(qv, freq, phase):
    for n in LENGTHS + [1001]:
        for amp in (1.0, -2.5):
            for function, shape in ((qv.ZemFunc179, triangle_shape), (qv.ZemFunc151, sawtooth_shape)):
                out, behind = call(function, n, amp, freq, [phase])
                expected, phase_behind = fresh_phase_wave(shape, n, amp, freq, phase)
                same_bits(out, expected)
                same_bits([behind], [phase_behind])
            for duty in (-5.0, 0.0, 12.5, 50.0, 99.9, 100.0, 150.0):
                out, behind = call(qv.ZemFunc165, n, amp, freq, [phase], duty)
                expected, phase_behind = fresh_phase_wave(square_shape(duty), n, amp, freq, phase)
                same_bits(out, expected)
                same_bits([behind], [phase_behind])


def test_triangle_and_sawtooth_are_scipys(qv):
    n, freq, phase = 5000, 0.0123, 40.0
    t = 2 * np.pi * freq * np.arange(n) + np.deg2rad(phase)
    # The phase reaches 61 turns, 2.2e4 degrees, with relative errors of a few eps; a degree is 1/90 of the height.
    tolerance = 8 * EPS * 360 * freq * n / 90
    triangle, _ = call(qv.ZemFunc179, n, 1.0, freq, [phase])
    assert np.abs(triangle - scipy.signal.sawtooth(t + np.pi / 2, 0.5)).max() <= tolerance
    sawtooth, _ = call(qv.ZemFunc151, n, 1.0, freq, [phase])
    assert np.abs(sawtooth - scipy.signal.sawtooth(t + np.pi)).max() <= tolerance
    square, _ = call(qv.ZemFunc165, n, 1.0, freq, [phase], 30.0)
    assert np.array_equal(square, scipy.signal.square(t, 0.3))


@pytest.mark.parametrize("size", [1, 2, 5, 64, 100])
@pytest.mark.parametrize("interpolation", [0, 1, 2, -1])
def test_arbitrary_wave_accumulates_its_phase(qv, size, interpolation):
    table = np.random.default_rng(size).standard_normal(size)
    for freq in FREQUENCIES:
        for phase in PHASES:
            arguments = [np.nan] * 77
            out = np.array(arguments)
            angle = np.array([phase])
            assert qv.ZemFunc9(77, -1.5, freq, angle, table, size, interpolation, out) == 0
            expected, behind = arbitrary_wave(77, -1.5, freq, phase, table.tolist(), interpolation == 1)
            same_bits(out, expected)
            same_bits(angle, [behind])


@pytest.mark.parametrize("f1,f2", [(0.0, 0.5), (0.1, 0.01), (0.2, 0.2), (-0.1, 0.3)])
def test_chirp_follows_its_formula_to_the_last_bit(qv, f1, f2):
    for n in LENGTHS:
        k = (f2 - f1) * math.pi / n
        same_bits(call(qv.ZemFunc28, n, 2.0, f1, f2),
                  [2.0 * math.sin((i * k + f1 * 6.283185307179586) * i) for i in range(n)])


def test_chirp_is_scipys_linear_chirp(qv):
    n = 1000
    # The angle reaches 2 pi n (f1 + f2) / 2 with a relative error of a few eps.
    tolerance = 8 * EPS * np.pi * n * 0.5
    expected = scipy.signal.chirp(np.arange(n), 0.05, n, 0.45, phi=-90)
    assert np.abs(call(qv.ZemFunc28, n, 1.0, 0.05, 0.45) - expected).max() <= tolerance


def test_ramp_and_triangle_pattern_follow_their_steps_to_the_last_bit(qv):
    for n in LENGTHS[1:]:
        for first, last in ((0.0, 1.0), (-3.3, 7.7), (5.0, 5.0), (1e300, -1e-5)):
            step = (last - first) / (n - 1)
            same_bits(call(qv.ZemFunc145, n, first, last),
                      [first] + [i * step + first for i in range(1, n - 1)] + [last])
        out, half = [0.0] * n, n // 2
        for k in range(1, half + 1):
            out[k] = out[n - k if n % 2 == 0 else n - 1 - k] = out[k - 1] + 0.7 / half
        same_bits(call(qv.ZemFunc178, n, 0.7), out)


def test_pulses_follow_their_formulas_to_the_last_bit(qv):
    eps, pi = 2.220446049250313e-16, math.pi
    cases = ((40, 2.0, 0.25, 1.5), (33, -1.0, 0.1, -2.0), (64, 6.283185307179586, 0.39269908169872414, 1.0))
    for n, delay, dt, amp in cases:
        t = [i * dt - delay for i in range(n)]

        expected = [amp if v * pi == 0 else amp * math.sin(v * pi) / (v * pi) for v in t]
        same_bits(call(qv.ZemFunc157, n, amp, delay, dt), expected)

        for order in (1, 2, 7):
            expected = []
            for v in t:
                s = math.sin(v * 0.5)
                expected.append(amp if abs(s) <= eps else amp * math.sin(order * (v * 0.5)) / (order * s))
            same_bits(call(qv.ZemFunc349, n, amp, delay, dt, order), expected)

        for centre, bandwidth, attenuation in ((0.5, 0.4, 6.0), (1.7, 0.9, 60.0)):
            a = bandwidth * -5.0 * bandwidth / math.log(10.0) / attenuation
            u = [v * centre * pi for v in t]
            same_bits(call(qv.ZemFunc348, n, amp, delay, dt, centre, bandwidth, attenuation),
                      [amp * math.exp(v * v * a) * math.cos(2 * v) for v in u])
            g = math.sqrt(2.718281828459045) * 2 * amp
            same_bits(call(qv.ZemFunc347, n, amp, delay, dt, centre), [math.exp(-2 * (v * v)) * (v * g) for v in u])

        for width, skew in ((3.0, 0.5), (3.0, 0.25), (2.5, 0.0), (2.5, 1.0), (100.0, 0.9)):
            apex, expected = width * skew, []
            for v in t:
                if not 0 <= v <= width:
                    expected.append(0.0)
                elif skew == 0 or (skew != 1 and v > apex):
                    expected.append((width - v) * (amp / (width - apex)))
                else:
                    expected.append(amp / apex * v)
            same_bits(call(qv.ZemFunc350, n, amp, delay, dt, width, skew), expected)


def test_pulses_are_scipys_and_numpys(qv):
    n, dt, delay = 400, 0.01, 2.0
    t = np.arange(n) * dt - delay
    # |t| <= 2 with an error of eps; angles 2 pi fc t with fc = 5 reach 63 and pass it on 63-fold.
    tolerance = 2 * np.pi * 5 * 2 * 4 * EPS
    assert np.abs(call(qv.ZemFunc157, n, 1.0, delay, dt) - np.sinc(t)).max() <= tolerance
    gauss = scipy.signal.gausspulse(t, fc=5, bw=0.5, bwr=-6)
    assert np.abs(call(qv.ZemFunc348, n, 1.0, delay, dt, 5.0, 0.5, 6.0) - gauss).max() <= tolerance
    dirichlet = scipy.special.diric(t, 7)
    assert np.abs(call(qv.ZemFunc349, n, 1.0, delay, dt, 7) - dirichlet).max() <= tolerance


def test_monopulse_reaches_exactly_its_amplitude_at_half_a_radian(qv):
    # u = pi centre t = 1/2 at t = 1 / (2 pi centre): the stationary point, where the value is the amplitude.
    centre = 0.25
    peak = 1 / (2 * np.pi * centre)
    out = call(qv.ZemFunc347, 3, 3.0, peak, peak, centre)
    assert abs(out[0] + 3) <= 3 * 8 * EPS and out[1] == 0 and abs(out[2] - 3) <= 3 * 8 * EPS
    dense = call(qv.ZemFunc347, 4001, 3.0, 2.0, 0.001, centre)
    assert 3 - 1e-5 < np.abs(dense).max() <= 3 * (1 + 8 * EPS)
