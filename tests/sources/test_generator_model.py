"""Waveform generators over numbers of every kind: the documented evaluation to the last bit, with NaN and infinities
where they come through, and every order of checks.

Sines and exponentials are those of the C library that the library itself calls. tests/sources/test_generators.py has
the ordinary cases and the closed forms.
"""

import itertools

import numpy as np
import pytest
from exact import SIZES, SPECIAL, Guarded, equal_numbers, exports_of, fits, libm, numbers, unwritten

sin, cos, exp, log, sqrt = (libm(name) for name in ("sin", "cos", "exp", "log", "sqrt"))
PI = 3.141592653589793

LENGTHS = [1, 2, 3, 4, 5, 8, 9, 17, 33]
DRAWS = 60


@pytest.fixture(autouse=True)
def quiet():
    with np.errstate(all="ignore"):
        yield


def f(v):
    """A double that divides by zero as the machine does."""
    return np.float64(v)


def floor(v):
    return np.floor(f(v))


def normalised(p):
    x = f(p) - floor(f(p) / 360) * 360
    if x < 0:
        x += 360
    return f(0.0) if x == 360 else x


def sine_wave(n, amp, freq, phase):
    w = f(6.283185307179586) * freq
    d = 2 * f(sin(w))
    theta = f(phase) * 0.017453292519943295
    out = [amp * f(sin(theta))]
    if n > 1:
        c0, c1, A = amp * f(cos(theta)), amp * f(cos(theta + w)), abs(amp)
        out.append(amp * f(sin(theta + w)))
        for i in range(2, n):
            v = out[i - 2] + c1 * d
            v = A if v > A else -A if v < -A else v
            out.append(v)
            c0, c1 = c1, c0 - d * out[i - 1]
    return out, normalised(f(freq) * 360 * n + phase)


def fresh(shape):
    def wave(n, amp, freq, phase, *more):
        out, p = [], f(phase)
        for i in range(n):
            out.append(shape(normalised(p), amp, *more))
            p = f(i + 1) * 360 * freq + phase
        return out, normalised(p)
    return wave


def triangle(x, amp):
    h = x * 0.005555555555555556
    return (2 * h if h < 0.5 else (1 - h) * 2 if h < 1.5 else (h - 2) * 2) * amp


def sawtooth(x, amp):
    h = x * 0.005555555555555556
    return (h if x < 180 else h - 2) * amp


def square(x, amp, duty):
    duty = 0.0 if duty < 0 else 100.0 if duty > 100 else duty
    return amp if duty * 3.6 > x else -amp


WAVES = {159: sine_wave, 179: fresh(triangle), 151: fresh(sawtooth), 165: fresh(square)}


def draw(rng, count):
    """Parameters: ordinary ones, any bits, special values, and among them values that make the waves meet borders."""
    kind = rng.choice(["plain", "bits", "special", "ties", "grid"], p=[0.3, 0.15, 0.2, 0.1, 0.25])
    if kind == "grid":
        return [f(v) for v in rng.choice([0.0, -0.0, 0.25, 0.5, 0.125, 1.0, 1 / 3, 90.0, 180.0, 270.0, 360.0, -90.0,
                                          720.0, 50.0, 100.0, 150.0, -1e-20, 1e17], count)]
    return [f(v) for v in numbers(rng, count, kind)]


@pytest.mark.parametrize("number", WAVES)
def test_periodic_waves_are_their_model_for_any_parameters(qv, number):
    rng = np.random.default_rng(number)
    for n in LENGTHS:
        for _ in range(DRAWS):
            amp, freq, phase, *duty = draw(rng, 4 if number == 165 else 3)
            out, angle = unwritten(n, before=n % 4), Guarded([phase])
            assert getattr(qv, f"ZemFunc{number}")(n, amp, freq, angle.array, *duty, out.array) == 0
            expected, behind = WAVES[number](n, amp, freq, phase, *duty)
            equal_numbers(out.array, expected)
            equal_numbers(angle.array, [behind])
            out.kept(), angle.kept()


def test_a_sine_pattern_is_the_wave_of_its_cycles_for_any_parameters(qv):
    rng = np.random.default_rng(158)
    for n in LENGTHS:
        for _ in range(DRAWS):
            amp, phase, cycles = draw(rng, 3)
            out = unwritten(n)
            assert qv.ZemFunc158(n, amp, phase, cycles, out.array) == 0
            equal_numbers(out.array, sine_wave(n, amp, cycles / n, phase)[0])
            out.kept()


def looked_up(v, table, T, interpolate):
    if T < 1:
        return f(0.0)
    v = v - floor(v / T) * T
    if v < 0:
        v += T
    if v == T:
        v = f(0.0)
    i = int(v)
    return (v - floor(v)) * (table[(i + 1) % T] - table[i]) + table[i] if interpolate else table[i]


def test_an_arbitrary_wave_is_its_model_while_its_positions_stay_exact(qv):
    rng = np.random.default_rng(9)
    for n in LENGTHS:
        for _ in range(4 * DRAWS):
            amp, = draw(rng, 1)
            freq, phase = (f(v) for v in rng.choice([0.1, 0.25, -0.25, 1 / 3, 1e-9, 7.7, -3.0, 0.0, 90.0, -1e-300,
                                                     359.99, -720.0, 1e9, 5e-324], 2))
            T = int(rng.choice([-5, 0, 1, 2, 3, 8, 100]))
            interpolation = int(rng.choice([1, 0, 2, -1]))
            table = Guarded(numbers(rng, max(T, 1), rng.choice(["plain", "special"])))
            out, angle = unwritten(n), Guarded([phase])
            assert qv.ZemFunc9(n, amp, freq, angle.array, table.array, T, interpolation, out.array) == 0
            position = phase * (f(T) / 360)
            expected = []
            for _ in range(n):
                expected.append(looked_up(position, table.array, T, interpolation == 1) * amp)
                position = position + T * freq
            equal_numbers(out.array, expected)
            equal_numbers(angle.array, [normalised(f(360) / T * position) if T >= 1 else 0.0])
            out.kept(), angle.kept(), table.untouched()


def test_an_arbitrary_wave_stays_in_its_table_wherever_its_position_goes(qv):
    rng = np.random.default_rng(10)
    finite = [v for v in SPECIAL if np.isfinite(v)] + list(numbers(rng, 40, "bits"))
    for freq, phase in itertools.product(finite, finite):
        if not (np.isfinite(freq) and np.isfinite(phase)):
            continue
        table, out, angle = Guarded([2.0, 3.0, 5.0]), unwritten(4), Guarded([phase])
        for interpolation in (0, 1):
            angle.words[:] = angle.first
            assert qv.ZemFunc9(4, 1.0, freq, angle.array, table.array, 3, interpolation, out.array) == 0
            if not interpolation:
                assert np.all(np.isin(out.array, [2.0, 3.0, 5.0])), (freq, phase)
        out.kept(), angle.kept()


def chirp(n, amp, f1, f2):
    k = (f2 - f1) * PI / n
    return [amp * f(sin((i * k + f1 * 6.283185307179586) * i)) for i in range(n)]


def ramp(n, first, last):
    if n == 1:
        return [last] if first == last else -20006
    s = (last - first) / (n - 1)
    return [first] + [i * s + first for i in range(1, n - 1)] + [last]


def triangle_pattern(n, amp):
    if n == 1:
        return -20006
    h = n >> 1
    s = amp / h
    out = [f(0.0)] * n
    for k in range(1, h + 1):
        out[k] = out[k - 1] + s
        out[n - k if n % 2 == 0 else n - 1 - k] = out[k]
    return out


def at_times(shape):
    def pulse(n, amp, delay, dt, *more):
        return [shape(i * dt - delay, amp, *more) for i in range(n)] if not dt <= 0 else -20016
    return pulse


def sinc(t, amp):
    x = t * PI
    return amp if x == 0 else amp * f(sin(x)) / x


def periodic_sinc(t, amp, order):
    x = t * 0.5
    s = f(sin(x))
    return amp if abs(s) <= 2.220446049250313e-16 else amp * f(sin(order * x)) / (order * s)


def modulated(t, amp, centre, bandwidth, attenuation):
    a = bandwidth * -5.0 * bandwidth / f(log(10.0)) / attenuation
    u = t * centre * PI
    return amp * f(exp(u * u * a)) * f(cos(2 * u))


def monopulse(t, amp, centre):
    g = f(sqrt(2.718281828459045)) * 2 * amp
    u = t * centre * PI
    return f(exp(-2 * (u * u))) * (u * g)


def skewed(t, amp, width, skew):
    if t < 0 or t > width:
        return f(0.0)
    if skew == 0:
        return (width - t) * (amp / width)
    if skew == 1:
        return (amp / width) * t
    p = width * skew
    return (amp / p) * t if t <= p else (width - t) * (amp / (width - p))


def skewed_pulse(n, amp, delay, dt, width, skew):
    if width <= 0:
        return -20140
    if dt <= 0:
        return -20016
    return -20053 if skew < 0 or skew > 1 else at_times(skewed)(n, amp, delay, dt, width, skew)


def refused(*positive):
    return any(v <= 0 for v in positive)


def modulated_sine(n, amp, delay, dt, *shape):
    return -20140 if refused(*shape) else at_times(modulated)(n, amp, delay, dt, *shape)


def gaussian_monopulse(n, amp, delay, dt, centre):
    return -20140 if refused(centre) else at_times(monopulse)(n, amp, delay, dt, centre)


SHAPES = {
    28: (3, chirp), 145: (2, ramp), 178: (1, triangle_pattern), 157: (3, at_times(sinc)),
    348: (6, modulated_sine), 347: (4, gaussian_monopulse), 350: (5, skewed_pulse),
}


def check_shape(qv, number, n, model, arguments):
    out = unwritten(n, before=n % 4)
    expected = model(n, *arguments)
    status = getattr(qv, f"ZemFunc{number}")(n, *arguments, out.array)
    if isinstance(expected, int):
        assert status == expected, arguments
        out.untouched()
    else:
        assert status == 0
        equal_numbers(out.array, expected)
        out.kept()


@pytest.mark.parametrize("number", SHAPES)
def test_patterns_and_pulses_are_their_model_for_any_parameters(qv, number):
    count, model = SHAPES[number]
    rng = np.random.default_rng(number)
    for n in LENGTHS:
        for turn in range(4 * DRAWS):
            arguments = draw(rng, count)
            if turn % 2 and count > 2:  # what must be positive is, so that the shape is reached
                arguments[2:] = [f(abs(v)) for v in arguments[2:]]
                if number == 350:
                    arguments[4] = f(rng.choice([0.0, 1.0, 0.5, 0.3, 5e-324, 1 - 1e-16]))
            if number == 350 and any(np.isnan(arguments[k]) for k in (1, 2)):
                continue  # the time itself is NaN: neither inside the pulse nor outside
            check_shape(qv, number, n, model, arguments)


def test_a_periodic_sinc_is_its_model_for_any_parameters(qv):
    rng = np.random.default_rng(349)
    for n in LENGTHS:
        for _ in range(8 * DRAWS):
            amp, delay, dt = draw(rng, 3)
            order = int(rng.choice([-(1 << 31), -1, 0, 1, 2, 3, 8, (1 << 31) - 1]))
            dt = f(rng.choice([abs(dt), dt, 2 * PI, PI]))
            out = unwritten(n)
            expected = -20140 if order < 1 else at_times(periodic_sinc)(n, amp, delay, dt, order)
            status = qv.ZemFunc349(n, amp, delay, dt, order, out.array)
            if isinstance(expected, int):
                assert status == expected
                out.untouched()
            else:
                assert status == 0
                equal_numbers(out.array, expected)


BORDERS = [-(1 << 31) - 1, -(1 << 31), -1, 0, 1, 2, 3, 5, 6, (1 << 31) - 1, 1 << 31, (1 << 32) + 5]


def test_pulse_and_impulse_patterns_find_their_faults_in_order(qv):
    amp = -0.0
    for n, delay, width in itertools.product(BORDERS, repeat=3):
        if fits(n) and n > 6:
            continue
        out = unwritten(6)
        expected = (-20046 if not fits(n, delay, width) else -20003 if n < 1 else
                    -20014 if delay < 0 or width < 0 or delay + width > n else 0)
        assert qv.ZemFunc141(n, amp, delay, width, out.array) == expected, (n, delay, width)
        if expected:
            out.untouched()
        else:
            equal_numbers(out.array[:n], [amp if delay <= i < delay + width else 0.0 for i in range(n)])
            assert np.array_equal(out.words[n:], out.first[n:])
        out.kept()
    for n, index in itertools.product(BORDERS, repeat=2):
        if fits(n) and n > 6:
            continue
        out = unwritten(6)
        expected = -20046 if not fits(n, index) else -20003 if n < 1 else -20017 if not 0 <= index < n else 0
        assert qv.ZemFunc93(n, amp, index, out.array) == expected
        if expected:
            out.untouched()
        else:
            equal_numbers(out.array[:n], [amp if i == index else 0.0 for i in range(n)])
        out.kept()


# Each check by its status, in the order of the operation, as (argument from behind n, values that fail it, others).
CHECKS = {
    159: [-20003], 158: [-20003], 165: [-20003], 179: [-20003], 151: [-20003], 28: [-20003],
    9: [-20003, (-20068, ("freq", "phase"), [np.nan, np.inf, -np.inf])],
    145: [-20006], 178: [-20006],
    157: [-20003, (-20016, ("dt",), [0.0, -0.0, -1.0, -np.inf])],
    349: [(-20140, ("order",), [0, -1, -(1 << 31)]), -20003, (-20016, ("dt",), [0.0, -1e-300])],
    348: [(-20140, ("centre", "bandwidth", "attenuation"), [0.0, -1.0, -np.inf]), -20003,
          (-20016, ("dt",), [0.0, -1.0])],
    347: [(-20140, ("centre",), [0.0, -1.0]), -20003, (-20016, ("dt",), [0.0, -1.0])],
    350: [-20003, (-20140, ("width",), [0.0, -1.0]), (-20016, ("dt",), [0.0, -1.0]),
          (-20053, ("skew",), [-5e-324, 1.0000000000000002, np.inf, -np.inf])],
}
NAMES = {159: "amp freq phase", 158: "amp angle cycles", 165: "amp freq phase duty", 179: "amp freq phase",
         151: "amp freq phase", 28: "amp f1 f2", 9: "amp freq phase table size selection", 145: "first last",
         178: "amp", 157: "amp delay dt", 349: "amp delay dt order", 348: "amp delay dt centre bandwidth attenuation",
         347: "amp delay dt centre", 350: "amp delay dt width skew"}


@pytest.mark.parametrize("number", CHECKS)
def test_faults_are_found_in_their_order_and_nothing_is_written(qv, number):
    names = NAMES[number].split()
    faults = [c for c in CHECKS[number] if not isinstance(c, int)]
    # No fault, each one alone, and all values of each at once with the others.
    choices = [[None] + [(name, value) for name in fault[1] for value in fault[2]] for fault in faults]
    for n in SIZES:
        for picked in itertools.product(*choices):
            wrong = dict(p for p in picked if p)
            small = 2 if number in (145, 178) else 1
            if fits(n) and n > 5 and not wrong:
                continue
            expected = 0 if fits(n) else -20046
            if fits(n):
                for check in CHECKS[number]:
                    status, failed = ((check, n < small) if isinstance(check, int) else
                                      (check[0], any(name in wrong for name in check[1])))
                    if failed:
                        expected = status
                        break
            phase, table, out = Guarded([wrong.get("phase", 30.0)]), Guarded([1.0, 2.0]), unwritten(5)
            values = {"phase": phase.array, "table": table.array, "size": 2, "selection": 1, "order": 3, "skew": 0.5,
                      "freq": 0.1}
            values.update({k: v for k, v in wrong.items() if k != "phase"})
            if expected == 0 and n > 5:
                continue
            arguments = [values.get(name, 1.0) for name in names]
            if number == 145:
                arguments = [1.0, 2.0]
            assert getattr(qv, f"ZemFunc{number}")(n, *arguments, out.array) == expected, (n, wrong)
            if expected:
                out.untouched(), phase.untouched()
            out.kept(), phase.kept(), table.untouched()


def test_the_size_of_a_table_is_narrowed_with_the_count(qv):
    phase, table, out = Guarded([np.nan]), Guarded([1.0]), unwritten(2)
    for n, size in itertools.product((-1, 0, 2), SIZES):
        expected = -20046 if not fits(size) else -20003 if n < 1 else -20068
        assert qv.ZemFunc9(n, 1.0, 0.1, phase.array, table.array, size, 1, out.array) == expected
        phase.untouched(), out.untouched()


def test_every_export_of_the_family_stands_here():
    assert exports_of("generators") == set(CHECKS) | {141, 93}
