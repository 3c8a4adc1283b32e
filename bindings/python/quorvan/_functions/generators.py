r"""Waveform generators.

Test signals: each fills an array of n samples with a deterministic waveform and keeps no state of its own.

    sine       amp sin(2 pi freq i + phase)
    chirp      amp sin((i (f2 - f1) pi / n + 2 pi f1) i)        from f1 to f2
    ramp       first + i (last - first) / (n - 1)
    sinc       amp sin(pi t) / (pi t)                            t = i dt - delay
    Gaussian modulated sine   amp exp(a u^2) cos(2 u)    u = pi centre t,  a = -5 bandwidth^2 / (attenuation ln 10)
    Gaussian monopulse        2 sqrt(e) amp u exp(-2 u^2)   u = pi centre t

The periodic waves take their phase in degrees by address and leave there the phase of the sample behind the
last, in [0, 360), so that the next call goes on without a break. Frequencies are in cycles per sample: a tone
of f hertz at a rate of fs has f / fs. The patterns draw one shape over the whole array. The pulses are
functions of t = i dt - delay, with delay in the unit of dt and frequencies in the unit of 1/dt.

The first check that fails, in the order of the status lists, decides; then neither output nor phase is
written.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "sine_wave",
    "sine_pattern",
    "square_wave",
    "triangle_wave",
    "sawtooth_wave",
    "arbitrary_wave",
    "chirp",
    "pulse_pattern",
    "impulse_pattern",
    "ramp_pattern",
    "triangle_pattern",
    "sinc_pattern",
    "periodic_sinc_pattern",
    "gaussian_modulated_sine",
    "gaussian_monopulse",
    "skewed_triangle_pulse",
    "SineWaveResult",
    "SquareWaveResult",
    "TriangleWaveResult",
    "SawtoothWaveResult",
    "ArbitraryWaveResult",
]
_max, _min = max, min

_ZemFunc159 = rt.bind("ZemFunc159", "status", "lddpp")


class SineWaveResult(NamedTuple):
    """What `sine_wave` gives."""

    out: np.ndarray
    phase: float


def sine_wave(n, amp, freq, phase=0.0, *, out=None):
    r"""Sine wave, out[i] = amp sin(2 pi freq i + phase).

    The samples come from a coupled recurrence of sine and cosine; sines are held within [-|amp|, |amp|].

    Parameters
    ----------
    n : int
        samples
    amp : float
        amplitude
    freq : float
        cycles per sample
    phase : float, default 0.0
        degrees, of the first sample
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
    phase : float
        of the sample behind the last

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc159 (GenSineWave) of the C library.

    Example
    -------
    >>> out, phase = qv.sine_wave(n, amp, freq)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    freq = rt.real(freq, "freq")
    phase_ = ctypes.c_double(rt.real(phase, "phase"))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc159(n, amp, freq, ctypes.byref(phase_), rt.pointer(out_))
    rt.check(status, "sine_wave")
    return SineWaveResult(rt.deliver(out_, out), phase_.value)


_ZemFunc158 = rt.bind("ZemFunc158", "status", "ldddp")


def sine_pattern(n, amp, phase, cycles, *, out=None):
    r"""Sine of a number of cycles over the array: `sine_wave` with the frequency cycles / n.

    Parameters
    ----------
    n : int
        samples
    amp : float
        amplitude
    phase : float
        degrees, of the first sample
    cycles : float
        cycles in the array, any number
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc158 (GenSinePattern) of the C library.

    Example
    -------
    >>> out = qv.sine_pattern(n, amp, phase, cycles)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    phase = rt.real(phase, "phase")
    cycles = rt.real(cycles, "cycles")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc158(n, amp, phase, cycles, rt.pointer(out_))
    rt.check(status, "sine_pattern")
    return rt.deliver(out_, out)


_ZemFunc165 = rt.bind("ZemFunc165", "status", "lddpdp")


class SquareWaveResult(NamedTuple):
    """What `square_wave` gives."""

    out: np.ndarray
    phase: float


def square_wave(n, amp, freq, duty, phase=0.0, *, out=None):
    r"""Square wave: amp while the phase is below 3.6 duty degrees, then -amp.

    The phase of sample i is i 360 freq + phase, computed afresh for each sample.

    Parameters
    ----------
    n : int
        samples
    amp : float
        the high level; the low one is -amp
    freq : float
        cycles per sample
    duty : float
        percent of the period at amp, clamped into [0, 100]
    phase : float, default 0.0
        degrees, of the first sample
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
    phase : float
        of the sample behind the last

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc165 (GenSquareWave) of the C library.

    Example
    -------
    >>> out, phase = qv.square_wave(n, amp, freq, duty)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    freq = rt.real(freq, "freq")
    phase_ = ctypes.c_double(rt.real(phase, "phase"))
    duty = rt.real(duty, "duty")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc165(n, amp, freq, ctypes.byref(phase_), duty, rt.pointer(out_))
    rt.check(status, "square_wave")
    return SquareWaveResult(rt.deliver(out_, out), phase_.value)


_ZemFunc179 = rt.bind("ZemFunc179", "status", "lddpp")


class TriangleWaveResult(NamedTuple):
    """What `triangle_wave` gives."""

    out: np.ndarray
    phase: float


def triangle_wave(n, amp, freq, phase=0.0, *, out=None):
    r"""Triangle wave: 0 at phase 0, amp at 90 degrees, -amp at 270 degrees, straight between.

    The phase of sample i is i 360 freq + phase, computed afresh for each sample.

    Parameters
    ----------
    n : int
        samples
    amp : float
        amplitude
    freq : float
        cycles per sample
    phase : float, default 0.0
        degrees, of the first sample
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
    phase : float
        of the sample behind the last

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc179 (GenTriangleWave) of the C library.

    Example
    -------
    >>> out, phase = qv.triangle_wave(n, amp, freq)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    freq = rt.real(freq, "freq")
    phase_ = ctypes.c_double(rt.real(phase, "phase"))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc179(n, amp, freq, ctypes.byref(phase_), rt.pointer(out_))
    rt.check(status, "triangle_wave")
    return TriangleWaveResult(rt.deliver(out_, out), phase_.value)


_ZemFunc151 = rt.bind("ZemFunc151", "status", "lddpp")


class SawtoothWaveResult(NamedTuple):
    """What `sawtooth_wave` gives."""

    out: np.ndarray
    phase: float


def sawtooth_wave(n, amp, freq, phase=0.0, *, out=None):
    r"""Sawtooth wave: rises from 0 at phase 0 towards amp at 180 degrees, jumps to -amp and rises back to 0.

    The phase of sample i is i 360 freq + phase, computed afresh for each sample.

    Parameters
    ----------
    n : int
        samples
    amp : float
        amplitude
    freq : float
        cycles per sample
    phase : float, default 0.0
        degrees, of the first sample
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
    phase : float
        of the sample behind the last

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc151 (GenSawtoothWave) of the C library.

    Example
    -------
    >>> out, phase = qv.sawtooth_wave(n, amp, freq)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    freq = rt.real(freq, "freq")
    phase_ = ctypes.c_double(rt.real(phase, "phase"))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc151(n, amp, freq, ctypes.byref(phase_), rt.pointer(out_))
    rt.check(status, "sawtooth_wave")
    return SawtoothWaveResult(rt.deliver(out_, out), phase_.value)


_ZemFunc9 = rt.bind("ZemFunc9", "status", "lddpplip")


class ArbitraryWaveResult(NamedTuple):
    """What `arbitrary_wave` gives."""

    out: np.ndarray
    phase: float


def arbitrary_wave(n, amp, freq, table, phase=0.0, interpolation=True, *, out=None):
    r"""Plays the period stored in a table.

    The phase is accumulated from sample to sample in units of table cells. A size below 1 gives zeros and a phase
    of 0. Positions beyond 2^53 periods stay within the table.

    Parameters
    ----------
    n : int
        samples
    amp : float
        factor of the table's values
    freq : float
        cycles per sample
    table : array_like of float64, shape (size,)
        one period
    phase : float, default 0.0
        degrees, of the first sample
    interpolation : bool, default True
        1 interpolates linearly, from the last cell towards the first; else the cell as it is
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
    phase : float
        of the sample behind the last

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20068: phase or freq is infinite or NaN

    Notes
    -----
    The function ZemFunc9 (GenArbitraryWave) of the C library.

    Example
    -------
    >>> out, phase = qv.arbitrary_wave(n, amp, freq, table)
    """
    table = rt.array(table, rt.F8, 1, "table")
    size = table.shape[0]
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    freq = rt.real(freq, "freq")
    phase_ = ctypes.c_double(rt.real(phase, "phase"))
    interpolation = int(bool(interpolation))
    out_ = rt.result(out, (n,), rt.F8, (table,))
    status = _ZemFunc9(n, amp, freq, ctypes.byref(phase_), rt.pointer(table), size, interpolation, rt.pointer(out_))
    rt.check(status, "arbitrary_wave")
    return ArbitraryWaveResult(rt.deliver(out_, out), phase_.value)


_ZemFunc28 = rt.bind("ZemFunc28", "status", "ldddp")


def chirp(n, amp, f1, f2, *, out=None):
    r"""Sine with a linearly changing frequency, out[i] = amp sin((i (f2 - f1) pi / n + 2 pi f1) i).

    Parameters
    ----------
    n : int
        samples
    amp : float
        amplitude
    f1 : float
        cycles per sample at the first sample
    f2 : float
        cycles per sample at sample n, the one behind the last
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc28 (GenChirp) of the C library.

    Example
    -------
    >>> out = qv.chirp(n, amp, f1, f2)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc28(n, amp, f1, f2, rt.pointer(out_))
    rt.check(status, "chirp")
    return rt.deliver(out_, out)


_ZemFunc141 = rt.bind("ZemFunc141", "status", "ldllp")


def pulse_pattern(n, amp, delay, width, *, out=None):
    r"""Rectangular pulse: amp at the width samples from delay on, 0 elsewhere. delay + width may be n; a width of 0
    leaves zeros. -20046 follows if delay or width does not fit 32 bits.

    Parameters
    ----------
    n : int
        samples
    amp : float
        height
    delay : int
        first sample of the pulse
    width : int
        samples in the pulse
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20014: delay or width is negative, or delay + width exceeds n

    Notes
    -----
    The function ZemFunc141 (GenPulsePattern) of the C library.

    Example
    -------
    >>> out = qv.pulse_pattern(n, amp, delay, width)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    delay = rt.i64(delay, "delay")
    width = rt.i64(width, "width")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc141(n, amp, delay, width, rt.pointer(out_))
    rt.check(status, "pulse_pattern")
    return rt.deliver(out_, out)


_ZemFunc93 = rt.bind("ZemFunc93", "status", "ldlp")


def impulse_pattern(n, amp, index, *, out=None):
    r"""Impulse: amp at the sample index, 0 elsewhere. -20046 follows if index does not fit 32 bits.

    Parameters
    ----------
    n : int
        samples
    amp : float
        height
    index : int
        sample of the impulse
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20017: index is outside 0 to n - 1

    Notes
    -----
    The function ZemFunc93 (GenImpulsePattern) of the C library.

    Example
    -------
    >>> out = qv.impulse_pattern(n, amp, index)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    index = rt.i64(index, "index")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc93(n, amp, index, rt.pointer(out_))
    rt.check(status, "impulse_pattern")
    return rt.deliver(out_, out)


_ZemFunc145 = rt.bind("ZemFunc145", "status", "lddp")


def ramp_pattern(n, first, last, *, out=None):
    r"""Linear ramp, out[i] = first + i (last - first) / (n - 1).

    One sample is allowed if first equals last.

    Parameters
    ----------
    n : int
        samples
    first : float
        value of the first sample
    last : float
        value of the last sample, exactly
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20006: n is below 2

    Notes
    -----
    The function ZemFunc145 (GenRampPattern) of the C library.

    Example
    -------
    >>> out = qv.ramp_pattern(n, first, last)
    """
    n = rt.i64(n, "n")
    first = rt.real(first, "first")
    last = rt.real(last, "last")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc145(n, first, last, rt.pointer(out_))
    rt.check(status, "ramp_pattern")
    return rt.deliver(out_, out)


_ZemFunc178 = rt.bind("ZemFunc178", "status", "ldp")


def triangle_pattern(n, amp, *, out=None):
    r"""One isosceles triangle from 0 at the first sample; an odd n ends on 0, an even one just before.

    Parameters
    ----------
    n : int
        samples
    amp : float
        peak, at sample n / 2
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20006: n is below 2

    Notes
    -----
    The function ZemFunc178 (GenTrianglePattern) of the C library.

    Example
    -------
    >>> out = qv.triangle_pattern(n, amp)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc178(n, amp, rt.pointer(out_))
    rt.check(status, "triangle_pattern")
    return rt.deliver(out_, out)


_ZemFunc157 = rt.bind("ZemFunc157", "status", "ldddp")


def sinc_pattern(n, amp, delay, dt=1.0, *, out=None):
    r"""Sinc pulse, out[i] = amp sin(pi t) / (pi t) with t = i dt - delay.

    Parameters
    ----------
    n : int
        samples
    amp : float
        peak
    delay : float
        time of the peak, in the unit of dt
    dt : float, default 1.0
        time between samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20016: dt is not positive

    Notes
    -----
    The function ZemFunc157 (GenSincPattern) of the C library.

    Example
    -------
    >>> out = qv.sinc_pattern(n, amp, delay)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    delay = rt.real(delay, "delay")
    dt = rt.real(dt, "dt")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc157(n, amp, delay, dt, rt.pointer(out_))
    rt.check(status, "sinc_pattern")
    return rt.deliver(out_, out)


_ZemFunc349 = rt.bind("ZemFunc349", "status", "ldddip")


def periodic_sinc_pattern(n, amp, delay, order, dt=1.0, *, out=None):
    r"""Periodic sinc (Dirichlet kernel), out[i] = amp sin(order x) / (order sin x) with x = (i dt - delay) / 2.

    Where |sin x| is at most 2.220446049250313e-16 the value is amp, also for an even order where the limit is
    -amp.

    Parameters
    ----------
    n : int
        samples
    amp : float
        peak
    delay : float
        time of a peak, in the unit of dt
    order : int
        of the Dirichlet kernel
    dt : float, default 1.0
        time between samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20140: order is below 1
        -20003: n is below 1
        -20016: dt is not positive

    Notes
    -----
    The function ZemFunc349 (GenPeriodicSincPattern) of the C library.

    Example
    -------
    >>> out = qv.periodic_sinc_pattern(n, amp, delay, order)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    delay = rt.real(delay, "delay")
    dt = rt.real(dt, "dt")
    order = rt.i32(order, "order")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc349(n, amp, delay, dt, order, rt.pointer(out_))
    rt.check(status, "periodic_sinc_pattern")
    return rt.deliver(out_, out)


_ZemFunc348 = rt.bind("ZemFunc348", "status", "lddddddp")


def gaussian_modulated_sine(n, amp, delay, centre, bandwidth, attenuation, dt=1.0, *, out=None):
    r"""Sine under a Gaussian, out[i] = amp exp(a u^2) cos(2 u) with u = pi centre t.

    The width follows from a = -5 bandwidth^2 / (attenuation ln 10).

    Parameters
    ----------
    n : int
        samples
    amp : float
        peak
    delay : float
        time of the peak, in the unit of dt
    centre : float
        frequency of the sine, in 1 / unit of dt
    bandwidth : float
        width of the band as a share of centre
    attenuation : float
        dB, of the spectrum at the edges of the band
    dt : float, default 1.0
        time between samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20140: centre, bandwidth or attenuation is not positive
        -20003: n is below 1
        -20016: dt is not positive

    Notes
    -----
    The function ZemFunc348 (GenGaussianModulatedSine) of the C library.

    Example
    -------
    >>> out = qv.gaussian_modulated_sine(n, amp, delay, centre, bandwidth, attenuation)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    delay = rt.real(delay, "delay")
    dt = rt.real(dt, "dt")
    centre = rt.real(centre, "centre")
    bandwidth = rt.real(bandwidth, "bandwidth")
    attenuation = rt.real(attenuation, "attenuation")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc348(n, amp, delay, dt, centre, bandwidth, attenuation, rt.pointer(out_))
    rt.check(status, "gaussian_modulated_sine")
    return rt.deliver(out_, out)


_ZemFunc347 = rt.bind("ZemFunc347", "status", "lddddp")


def gaussian_monopulse(n, amp, delay, centre, dt=1.0, *, out=None):
    r"""Gaussian monopulse, out[i] = 2 sqrt(e) amp u exp(-2 u^2) with u = pi centre t.

    Parameters
    ----------
    n : int
        samples
    amp : float
        extreme values amp and -amp
    delay : float
        time of the zero between them, in the unit of dt
    centre : float
        frequency, in 1 / unit of dt
    dt : float, default 1.0
        time between samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20140: centre is not positive
        -20003: n is below 1
        -20016: dt is not positive

    Notes
    -----
    The function ZemFunc347 (GenGaussianMonopulse) of the C library.

    Example
    -------
    >>> out = qv.gaussian_monopulse(n, amp, delay, centre)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    delay = rt.real(delay, "delay")
    dt = rt.real(dt, "dt")
    centre = rt.real(centre, "centre")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc347(n, amp, delay, dt, centre, rt.pointer(out_))
    rt.check(status, "gaussian_monopulse")
    return rt.deliver(out_, out)


_ZemFunc350 = rt.bind("ZemFunc350", "status", "ldddddp")


def skewed_triangle_pulse(n, amp, delay, width, skew, dt=1.0, *, out=None):
    r"""Triangular pulse: rises from 0 at t = 0 to amp at t = skew width and falls to 0 at t = width; 0 elsewhere.

    A skew of 0 starts at amp, a skew of 1 ends at amp.

    Parameters
    ----------
    n : int
        samples
    amp : float
        height of the apex
    delay : float
        start of the pulse, in the unit of dt
    width : float
        of the pulse, in the unit of dt
    skew : float
        place of the apex as a share of width, 0 to 1
    dt : float, default 1.0
        time between samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20140: width is not positive
        -20016: dt is not positive
        -20053: skew is outside 0 to 1

    Notes
    -----
    The function ZemFunc350 (GenSkewedTrianglePulse) of the C library.

    Example
    -------
    >>> out = qv.skewed_triangle_pulse(n, amp, delay, width, skew)
    """
    n = rt.i64(n, "n")
    amp = rt.real(amp, "amp")
    delay = rt.real(delay, "delay")
    dt = rt.real(dt, "dt")
    width = rt.real(width, "width")
    skew = rt.real(skew, "skew")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc350(n, amp, delay, dt, width, skew, rt.pointer(out_))
    rt.check(status, "skewed_triangle_pulse")
    return rt.deliver(out_, out)
