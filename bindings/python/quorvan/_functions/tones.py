r"""Harmonic and tone analysis.

Sinusoids in data, to much better accuracy than one bin of a spectrum: the harmonics in a given power
spectrum, a fundamental and its harmonics in a time record, and the extraction of one or several tones.

    real record      x[j] = amp sin(2 pi freq j dt + phase)
    complex record   x[j] = amp / 2 exp(i (2 pi freq j dt + phase))
    distortion             thd = 100 sqrt(amp[1]^2 + amp[2]^2 + ...) / amp[0]
    distortion and noise   100 sqrt(power without the fundamental / power), the mean left out of both

dt is the time between samples; frequencies are in the unit of 1/dt, phases in degrees at sample 0, not
normalised. Amplitudes are peak amplitudes, those of `harmonic_analyzer` root mean square ones. A complex
exponential of modulus A reads 2A, since the scale is that of a real record, half of which stands at the
negative frequency; the synthesis of the modes 2 and 3 takes that half again.

Extraction takes a spectrum under a Hanning window and solves for the frequency at which two and three bins
around a peak tell the same amplitude; tones of real records are modelled together with their image at the
negative frequency, and several tones are refined together. Without noise the frequency of a single tone is
right to 1e-9 of the rate, up to 1e7 samples; in noise its deviation is 1.7 to 3 times the Cramer-Rao bound.
Less than half a bin below half the rate, or above minus half of it, a tone of a complex record can read up to
half a bin off. Less than 0.8 bins below half the rate a tone of a real record of odd length can read a bin or
more off, by its phase; of an even length it reads right up to there. Where noise draws the fit of a real
record onto 0 or half the rate, amplitude and phase have no meaning, and can be NaN.

Tones of complex records have frequencies from -1/(2 dt) on. A mode of the extended forms tells what they give
besides: 0 nothing, 1 the input, 2 the synthesised tones, 3 the input without the tones; and the spectrum of
that in decibels. After a failure all scalar outputs are 0, and so are out and spectrum.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "harmonic_analyzer",
    "tone_harmonics",
    "tone_single_real",
    "tone_single_real_ex",
    "tone_multi_real",
    "tone_multi_real_ex",
    "tone_single_complex",
    "tone_single_complex_ex",
    "tone_multi_complex",
    "tone_multi_complex_ex",
    "HarmonicAnalyzerResult",
    "ToneHarmonicsResult",
    "ToneSingleRealResult",
    "ToneSingleRealExResult",
    "ToneMultiRealResult",
    "ToneMultiRealExResult",
    "ToneSingleComplexResult",
    "ToneSingleComplexExResult",
    "ToneMultiComplexResult",
    "ToneMultiComplexExResult",
]
_max, _min = max, min

_ZemFunc87 = rt.bind("ZemFunc87", "status", "plliuddpppp")


class HarmonicAnalyzerResult(NamedTuple):
    """What `harmonic_analyzer` gives."""

    amp: np.ndarray
    freq: np.ndarray
    thd: float
    thd_plus_noise: float


def harmonic_analyzer(power, harmonics, window, fs, fundamental, fft_size=0, *, out=None):
    r"""The harmonics in a power spectrum, with frequencies interpolated by the shape of the window.

    A fundamental outside the spectrum, or in the main lobe of bin 0, is replaced by the largest bin beyond that
    lobe. Harmonics that the spectrum does not reach are 0. A distortion that would divide by zero is 1e9. With c
    the half-width of the window's main lobe, rounded up, the fundamental has the bins less than c away from its
    own in thd_plus_noise, which deliberately leaves the outermost of its lobe to the noise. It is right for a
    tone on a bin, with the fundamental told to that bin; a tone between bins reads up to 14 percent under a
    Hanning window from its leakage alone, and more where fundamental is a bin off. `tone_harmonics` has no such
    floor. Method: bisection for the offset at which the window's response has the ratio of the two largest bins.

    Parameters
    ----------
    power : array_like of float64, shape (n,)
        a one-sided power spectrum
    harmonics : int
        how many, the fundamental included
    window : Window, its name, or int
        code of the window that it was taken through, 0 to 8
    fs : float
        sampling rate
    fundamental : float
        in the unit of fs
    fft_size : int, default 0
        points of the transform that it is of; below 1: 2n
    out : tuple or None
        arrays for `amp`, `freq`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    amp : float64 array of shape (harmonics,)
        root mean square amplitudes
    freq : float64 array of shape (harmonics,)
        in the unit of fs
    thd : float
        harmonics in percent of the fundamental
    thd_plus_noise : float
        all but the fundamental in percent of the whole, from amplitudes

    Raises
    ------
    QuorvanError
        -20003: n is below 1; or it is not above the half-width of the main lobe, rounded up, and the fundamental
        is not in it
        -20067: fs or fundamental is 0
        -20061: the window is above 8

    Notes
    -----
    The function ZemFunc87 (SpecHarmonicAnalyzer) of the C library.

    Example
    -------
    >>> result = qv.harmonic_analyzer(power, harmonics, window, fs, fundamental)
    """
    _out = rt.outs(out, 2, "harmonic_analyzer")
    power = rt.array(power, rt.F8, 1, "power")
    n = power.shape[0]
    fft_size = rt.i64(fft_size, "fft_size")
    harmonics = rt.i32(harmonics, "harmonics")
    window = rt.choice(window, Window, "window")
    fs = rt.real(fs, "fs")
    fundamental = rt.real(fundamental, "fundamental")
    thd_ = ctypes.c_double()
    thd_plus_noise_ = ctypes.c_double()
    amp_ = rt.result(_out[0], (harmonics,), rt.F8, (power,))
    freq_ = rt.result(_out[1], (harmonics,), rt.F8, (power,))
    status = _ZemFunc87(rt.pointer(power), n, fft_size, harmonics, window, fs, fundamental, rt.pointer(amp_),
            rt.pointer(freq_), ctypes.byref(thd_), ctypes.byref(thd_plus_noise_))
    rt.check(status, "harmonic_analyzer")
    return HarmonicAnalyzerResult(rt.deliver(amp_, _out[0]), rt.deliver(freq_, _out[1]), thd_.value,
            thd_plus_noise_.value)


_ZemFunc362 = rt.bind("ZemFunc362", "status", "pliddpppp")


class ToneHarmonicsResult(NamedTuple):
    """What `tone_harmonics` gives."""

    amp: np.ndarray
    freq: np.ndarray
    thd: float
    thd_plus_noise: float


def tone_harmonics(x, harmonics, fs, fundamental, *, out=None):
    r"""A fundamental, its harmonics and the distortion of a time record.

    The fundamental is the largest bin near the guess, interpolated under a Hanning window without the leakage of
    its image; it is synthesised and subtracted, and the harmonics are taken from the rest. Those beyond fs/2 stay
    0. After a failure, what has not been found is 0; a number of harmonics below 1 is turned into theirs once the
    fundamental is known, and before that both arrays stay as they are.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    harmonics : int
        how many, the fundamental included; below 1: all up to fs/2, n at most
    fs : float
        sampling rate
    fundamental : float
        a guess, in the unit of fs, right to 5 percent of fs
    out : tuple or None
        arrays for `amp`, `freq`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    amp : float64 array of shape (harmonics,) if max(harmonics, 1) == harmonics else (n,)
        peak amplitudes
    freq : float64 array of shape (harmonics,) if max(harmonics, 1) == harmonics else (n,)
        in the unit of fs
    thd : float
        harmonics in percent of the fundamental
    thd_plus_noise : float
        what is left without the fundamental in percent of the whole, by root mean squares about the mean

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20059: fs or fundamental is not above 0
        -20001: memory is exhausted
        -20017: the largest bin near the fundamental, or near a harmonic, is the last one
        -20060: a tone is not finite; or x is constant; or the fundamental has no amplitude
        -20020: a tone lies outside 0 to fs/2

    Notes
    -----
    The function ZemFunc362 (SpecToneHarmonics) of the C library.

    Example
    -------
    >>> result = qv.tone_harmonics(x, harmonics, fs, fundamental)
    """
    _out = rt.outs(out, 2, "tone_harmonics")
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    harmonics = rt.i32(harmonics, "harmonics")
    fs = rt.real(fs, "fs")
    fundamental = rt.real(fundamental, "fundamental")
    thd_ = ctypes.c_double()
    thd_plus_noise_ = ctypes.c_double()
    amp_ = rt.result(_out[0], (harmonics,) if _max(harmonics, 1) == harmonics else (n,), rt.F8, (x,))
    freq_ = rt.result(_out[1], (harmonics,) if _max(harmonics, 1) == harmonics else (n,), rt.F8, (x,))
    status = _ZemFunc362(rt.pointer(x), n, harmonics, fs, fundamental, rt.pointer(amp_), rt.pointer(freq_),
            ctypes.byref(thd_), ctypes.byref(thd_plus_noise_))
    rt.check(status, "tone_harmonics")
    return ToneHarmonicsResult(rt.deliver(amp_, _out[0]), rt.deliver(freq_, _out[1]), thd_.value,
            thd_plus_noise_.value)


_ZemFunc377 = rt.bind("ZemFunc377", "status", "pldpppp")


class ToneSingleRealResult(NamedTuple):
    """What `tone_single_real` gives."""

    freq: float
    amp: float
    phase: float


def tone_single_real(x, dt=1.0, search=None):
    r"""The strongest tone of a real record.

    A band in which no bin lies is taken as the bin nearest to its middle; one outside the spectrum, or of no
    width, as the whole spectrum. Silence has the amplitude 0.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    dt : float, default 1.0
        time between samples
    search : array_like of float64, shape (2,), default None
        a centre in the unit of 1/dt and a half-width in percent of the sampling rate

    Returns
    -------
    freq : float
    amp : float
    phase : float

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0; 0 is allowed, and frequencies are then infinite
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `tone_single_complex`. The function ZemFunc377 (ToneSingleReal) of the C library.

    Example
    -------
    >>> freq, amp, phase = qv.tone_single_real(x)
    """
    if rt.is_complex(x, search):
        return tone_single_complex(x=x, dt=dt, search=search)
    x = rt.array(x, rt.F8, 1, "x")
    search = None if search is None else rt.array(search, rt.F8, 1, "search")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    rt.fits(search, (2,), "search")
    freq_ = ctypes.c_double()
    amp_ = ctypes.c_double()
    phase_ = ctypes.c_double()
    status = _ZemFunc377(rt.pointer(x), n, dt, rt.pointer(search), ctypes.byref(freq_), ctypes.byref(amp_),
            ctypes.byref(phase_))
    rt.check(status, "tone_single_real")
    return ToneSingleRealResult(freq_.value, amp_.value, phase_.value)


_ZemFunc378 = rt.bind("ZemFunc378", "status", "pldpupppppppp")


class ToneSingleRealExResult(NamedTuple):
    """What `tone_single_real_ex` gives."""

    freq: float
    amp: float
    phase: float
    out: np.ndarray
    out_dt: float
    spectrum: np.ndarray
    f0: float
    df: float


def tone_single_real_ex(x, dt=1.0, search=None, mode=ToneSignal.RESIDUAL, *, out=None):
    r"""The strongest tone of a real record, with the signal or what remains of it.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    dt : float, default 1.0
        time between samples
    search : array_like of float64, shape (2,), default None
        as for `tone_single_real`
    mode : ToneSignal, its name, or int, default ToneSignal.RESIDUAL
        0 to 3
    out : tuple or None
        arrays for `out`, `spectrum`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    freq : float
    amp : float
    phase : float
    out : float64 array of shape (n,)
        the signal that the mode tells
    out_dt : float
        dt
    spectrum : float64 array of shape (n + 1 // 2,)
        of it, in decibels of squared rms amplitudes
    f0 : float
        the first frequency of the spectrum, 0
    df : float
        the step between its frequencies

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20061: the mode is above 3
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `tone_single_complex_ex`. The function ZemFunc378 (ToneSingleRealEx) of the C library.

    Example
    -------
    >>> result = qv.tone_single_real_ex(x)
    """
    if rt.is_complex(x, search):
        return tone_single_complex_ex(x=x, dt=dt, search=search, mode=mode, out=out)
    _out = rt.outs(out, 2, "tone_single_real_ex")
    x = rt.array(x, rt.F8, 1, "x")
    search = None if search is None else rt.array(search, rt.F8, 1, "search")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    mode = rt.choice(mode, ToneSignal, "mode")
    rt.fits(search, (2,), "search")
    freq_ = ctypes.c_double()
    amp_ = ctypes.c_double()
    phase_ = ctypes.c_double()
    out_dt_ = ctypes.c_double()
    f0_ = ctypes.c_double()
    df_ = ctypes.c_double()
    out_ = rt.result(_out[0], (n,), rt.F8, (x, search))
    spectrum_ = rt.result(_out[1], (rt.quotient(n + 1, 2),), rt.F8, (x, search))
    status = _ZemFunc378(rt.pointer(x), n, dt, rt.pointer(search), mode, ctypes.byref(freq_), ctypes.byref(amp_),
            ctypes.byref(phase_), rt.pointer(out_), ctypes.byref(out_dt_), rt.pointer(spectrum_), ctypes.byref(f0_),
            ctypes.byref(df_))
    rt.check(status, "tone_single_real_ex")
    return ToneSingleRealExResult(freq_.value, amp_.value, phase_.value, rt.deliver(out_, _out[0]), out_dt_.value,
            rt.deliver(spectrum_, _out[1]), f0_.value, df_.value)


_ZemFunc379 = rt.bind("ZemFunc379", "status", "pldudipppp")


class ToneMultiRealResult(NamedTuple):
    """What `tone_multi_real` gives."""

    freq: np.ndarray
    amp: np.ndarray
    phase: np.ndarray


def tone_multi_real(x, max_tones, dt=1.0, sort=ToneOrder.FREQUENCY, threshold=0.0, *, out=None):
    r"""The strongest tones of a real record.

    The first count elements of the arrays are written. Tones should be some bins apart: closer ones show one
    peak.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    max_tones : int
        the number of tones at most
    dt : float, default 1.0
        time between samples
    sort : ToneOrder, its name, or int, default ToneOrder.FREQUENCY
        1: by falling amplitude; any other: by rising frequency
    threshold : float, default 0.0
        the least amplitude
    out : tuple or None
        arrays for `freq`, `amp`, `phase`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    freq : float64 array of at most shape (max_tones,)
    amp : float64 array of at most shape (max_tones,)
    phase : float64 array of at most shape (max_tones,)

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20140: max_tones is below 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `tone_multi_complex`. The function ZemFunc379 (ToneMultiReal) of the C library.

    Example
    -------
    >>> freq, amp, phase = qv.tone_multi_real(x, max_tones)
    """
    if rt.is_complex(x):
        return tone_multi_complex(x=x, max_tones=max_tones, dt=dt, sort=sort, threshold=threshold, out=out)
    _out = rt.outs(out, 3, "tone_multi_real")
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    sort = rt.choice(sort, ToneOrder, "sort")
    threshold = rt.real(threshold, "threshold")
    max_tones = rt.i32(max_tones, "max_tones")
    count_ = ctypes.c_int32()
    freq_ = rt.result(_out[0], (max_tones,), rt.F8, (x,))
    amp_ = rt.result(_out[1], (max_tones,), rt.F8, (x,))
    phase_ = rt.result(_out[2], (max_tones,), rt.F8, (x,))
    status = _ZemFunc379(rt.pointer(x), n, dt, sort, threshold, max_tones, ctypes.byref(count_), rt.pointer(freq_),
            rt.pointer(amp_), rt.pointer(phase_))
    rt.check(status, "tone_multi_real")
    return ToneMultiRealResult(rt.first(rt.deliver(freq_, _out[0]), count_.value), rt.first(rt.deliver(amp_, _out[1]),
            count_.value), rt.first(rt.deliver(phase_, _out[2]), count_.value))


_ZemFunc380 = rt.bind("ZemFunc380", "status", "plduudippppppppp")


class ToneMultiRealExResult(NamedTuple):
    """What `tone_multi_real_ex` gives."""

    freq: np.ndarray
    amp: np.ndarray
    phase: np.ndarray
    out: np.ndarray
    out_dt: float
    spectrum: np.ndarray
    f0: float
    df: float


def tone_multi_real_ex(x, max_tones, dt=1.0, sort=ToneOrder.FREQUENCY, mode=ToneSignal.RESIDUAL, threshold=0.0, *, out=None):
    r"""The strongest tones of a real record, with the signal or what remains of it.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    max_tones : int
        the number of tones at most
    dt : float, default 1.0
        time between samples
    sort : ToneOrder, its name, or int, default ToneOrder.FREQUENCY
        1: by falling amplitude; any other: by rising frequency
    mode : ToneSignal, its name, or int, default ToneSignal.RESIDUAL
        0 to 3
    threshold : float, default 0.0
        the least amplitude
    out : tuple or None
        arrays for `freq`, `amp`, `phase`, `out`, `spectrum`, or None for one to be made; each may be an input, to
        work in place

    Returns
    -------
    freq : float64 array of at most shape (max_tones,)
    amp : float64 array of at most shape (max_tones,)
    phase : float64 array of at most shape (max_tones,)
    out : float64 array of shape (n,)
        the signal that the mode tells
    out_dt : float
        dt
    spectrum : float64 array of shape (n + 1 // 2,)
        of it, in decibels of squared rms amplitudes
    f0 : float
        the first frequency of the spectrum, 0
    df : float
        the step between its frequencies

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20061: the mode is above 3
        -20140: max_tones is below 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `tone_multi_complex_ex`. The function ZemFunc380 (ToneMultiRealEx) of the C library.

    Example
    -------
    >>> result = qv.tone_multi_real_ex(x, max_tones)
    """
    if rt.is_complex(x):
        return tone_multi_complex_ex(x=x, max_tones=max_tones, dt=dt, sort=sort, mode=mode, threshold=threshold,
                out=out)
    _out = rt.outs(out, 5, "tone_multi_real_ex")
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    sort = rt.choice(sort, ToneOrder, "sort")
    mode = rt.choice(mode, ToneSignal, "mode")
    threshold = rt.real(threshold, "threshold")
    max_tones = rt.i32(max_tones, "max_tones")
    count_ = ctypes.c_int32()
    out_dt_ = ctypes.c_double()
    f0_ = ctypes.c_double()
    df_ = ctypes.c_double()
    freq_ = rt.result(_out[0], (max_tones,), rt.F8, (x,))
    amp_ = rt.result(_out[1], (max_tones,), rt.F8, (x,))
    phase_ = rt.result(_out[2], (max_tones,), rt.F8, (x,))
    out_ = rt.result(_out[3], (n,), rt.F8, (x,))
    spectrum_ = rt.result(_out[4], (rt.quotient(n + 1, 2),), rt.F8, (x,))
    status = _ZemFunc380(rt.pointer(x), n, dt, sort, mode, threshold, max_tones, ctypes.byref(count_),
            rt.pointer(freq_), rt.pointer(amp_), rt.pointer(phase_), rt.pointer(out_), ctypes.byref(out_dt_),
            rt.pointer(spectrum_), ctypes.byref(f0_), ctypes.byref(df_))
    rt.check(status, "tone_multi_real_ex")
    return ToneMultiRealExResult(rt.first(rt.deliver(freq_, _out[0]), count_.value), rt.first(rt.deliver(amp_,
            _out[1]), count_.value), rt.first(rt.deliver(phase_, _out[2]), count_.value), rt.deliver(out_, _out[3]),
            out_dt_.value, rt.deliver(spectrum_, _out[4]), f0_.value, df_.value)


_ZemFunc381 = rt.bind("ZemFunc381", "status", "pldpppp")


class ToneSingleComplexResult(NamedTuple):
    """What `tone_single_complex` gives."""

    freq: float
    amp: float
    phase: float


def tone_single_complex(x, dt=1.0, search=None):
    r"""The strongest tone of a complex record.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    dt : float, default 1.0
        time between samples
    search : array_like of float64, shape (2,), default None
        a centre in the unit of 1/dt and a half-width in percent of the sampling rate

    Returns
    -------
    freq : float
    amp : float
        twice the modulus of the exponential
    phase : float

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc381 (ToneSingleComplex) of the C library.

    Example
    -------
    >>> freq, amp, phase = qv.tone_single_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    search = None if search is None else rt.array(search, rt.F8, 1, "search")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    rt.fits(search, (2,), "search")
    freq_ = ctypes.c_double()
    amp_ = ctypes.c_double()
    phase_ = ctypes.c_double()
    status = _ZemFunc381(rt.pointer(x), n, dt, rt.pointer(search), ctypes.byref(freq_), ctypes.byref(amp_),
            ctypes.byref(phase_))
    rt.check(status, "tone_single_complex")
    return ToneSingleComplexResult(freq_.value, amp_.value, phase_.value)


_ZemFunc382 = rt.bind("ZemFunc382", "status", "pldpupppppppp")


class ToneSingleComplexExResult(NamedTuple):
    """What `tone_single_complex_ex` gives."""

    freq: float
    amp: float
    phase: float
    out: np.ndarray
    out_dt: float
    spectrum: np.ndarray
    f0: float
    df: float


def tone_single_complex_ex(x, dt=1.0, search=None, mode=ToneSignal.RESIDUAL, *, out=None):
    r"""The strongest tone of a complex record, with the signal or what remains of it.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    dt : float, default 1.0
        time between samples
    search : array_like of float64, shape (2,), default None
        as for `tone_single_complex`
    mode : ToneSignal, its name, or int, default ToneSignal.RESIDUAL
        0 to 3
    out : tuple or None
        arrays for `out`, `spectrum`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    freq : float
    amp : float
        twice the modulus of the exponential
    phase : float
    out : complex128 array of shape (n,)
        the signal that the mode tells
    out_dt : float
        dt
    spectrum : float64 array of shape (n,)
        of it, in decibels, from the most negative frequency on
    f0 : float
        the first frequency of the spectrum, -(n/2) df
    df : float
        the step between its frequencies

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20061: the mode is above 3
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc382 (ToneSingleComplexEx) of the C library.

    Example
    -------
    >>> result = qv.tone_single_complex_ex(x)
    """
    _out = rt.outs(out, 2, "tone_single_complex_ex")
    x = rt.array(x, rt.C16, 1, "x")
    search = None if search is None else rt.array(search, rt.F8, 1, "search")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    mode = rt.choice(mode, ToneSignal, "mode")
    rt.fits(search, (2,), "search")
    freq_ = ctypes.c_double()
    amp_ = ctypes.c_double()
    phase_ = ctypes.c_double()
    out_dt_ = ctypes.c_double()
    f0_ = ctypes.c_double()
    df_ = ctypes.c_double()
    out_ = rt.result(_out[0], (n,), rt.C16, (x, search))
    spectrum_ = rt.result(_out[1], (n,), rt.F8, (x, search))
    status = _ZemFunc382(rt.pointer(x), n, dt, rt.pointer(search), mode, ctypes.byref(freq_), ctypes.byref(amp_),
            ctypes.byref(phase_), rt.pointer(out_), ctypes.byref(out_dt_), rt.pointer(spectrum_), ctypes.byref(f0_),
            ctypes.byref(df_))
    rt.check(status, "tone_single_complex_ex")
    return ToneSingleComplexExResult(freq_.value, amp_.value, phase_.value, rt.deliver(out_, _out[0]), out_dt_.value,
            rt.deliver(spectrum_, _out[1]), f0_.value, df_.value)


_ZemFunc383 = rt.bind("ZemFunc383", "status", "pldudipppp")


class ToneMultiComplexResult(NamedTuple):
    """What `tone_multi_complex` gives."""

    freq: np.ndarray
    amp: np.ndarray
    phase: np.ndarray


def tone_multi_complex(x, max_tones, dt=1.0, sort=ToneOrder.FREQUENCY, threshold=0.0, *, out=None):
    r"""The strongest tones of a complex record.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    max_tones : int
        the number of tones at most
    dt : float, default 1.0
        time between samples
    sort : ToneOrder, its name, or int, default ToneOrder.FREQUENCY
        1: by falling amplitude; any other: by rising frequency
    threshold : float, default 0.0
        the least amplitude
    out : tuple or None
        arrays for `freq`, `amp`, `phase`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    freq : float64 array of at most shape (max_tones,)
    amp : float64 array of at most shape (max_tones,)
        twice the moduli of the exponentials
    phase : float64 array of at most shape (max_tones,)

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20140: max_tones is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc383 (ToneMultiComplex) of the C library.

    Example
    -------
    >>> freq, amp, phase = qv.tone_multi_complex(x, max_tones)
    """
    _out = rt.outs(out, 3, "tone_multi_complex")
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    sort = rt.choice(sort, ToneOrder, "sort")
    threshold = rt.real(threshold, "threshold")
    max_tones = rt.i32(max_tones, "max_tones")
    count_ = ctypes.c_int32()
    freq_ = rt.result(_out[0], (max_tones,), rt.F8, (x,))
    amp_ = rt.result(_out[1], (max_tones,), rt.F8, (x,))
    phase_ = rt.result(_out[2], (max_tones,), rt.F8, (x,))
    status = _ZemFunc383(rt.pointer(x), n, dt, sort, threshold, max_tones, ctypes.byref(count_), rt.pointer(freq_),
            rt.pointer(amp_), rt.pointer(phase_))
    rt.check(status, "tone_multi_complex")
    return ToneMultiComplexResult(rt.first(rt.deliver(freq_, _out[0]), count_.value), rt.first(rt.deliver(amp_,
            _out[1]), count_.value), rt.first(rt.deliver(phase_, _out[2]), count_.value))


_ZemFunc384 = rt.bind("ZemFunc384", "status", "plduudippppppppp")


class ToneMultiComplexExResult(NamedTuple):
    """What `tone_multi_complex_ex` gives."""

    freq: np.ndarray
    amp: np.ndarray
    phase: np.ndarray
    out: np.ndarray
    out_dt: float
    spectrum: np.ndarray
    f0: float
    df: float


def tone_multi_complex_ex(x, max_tones, dt=1.0, sort=ToneOrder.FREQUENCY, mode=ToneSignal.RESIDUAL, threshold=0.0, *, out=None):
    r"""The strongest tones of a complex record, with the signal or what remains of it.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    max_tones : int
        the number of tones at most
    dt : float, default 1.0
        time between samples
    sort : ToneOrder, its name, or int, default ToneOrder.FREQUENCY
        1: by falling amplitude; any other: by rising frequency
    mode : ToneSignal, its name, or int, default ToneSignal.RESIDUAL
        0 to 3
    threshold : float, default 0.0
        the least amplitude
    out : tuple or None
        arrays for `freq`, `amp`, `phase`, `out`, `spectrum`, or None for one to be made; each may be an input, to
        work in place

    Returns
    -------
    freq : float64 array of at most shape (max_tones,)
    amp : float64 array of at most shape (max_tones,)
        twice the moduli of the exponentials
    phase : float64 array of at most shape (max_tones,)
    out : complex128 array of shape (n,)
        the signal that the mode tells
    out_dt : float
        dt
    spectrum : float64 array of shape (n,)
        of it, in decibels, from the most negative frequency on
    f0 : float
        the first frequency of the spectrum, -(n/2) df
    df : float
        the step between its frequencies

    Raises
    ------
    QuorvanError
        -20007: n is below 3
        -20016: dt is below 0
        -20061: the mode is above 3
        -20140: max_tones is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc384 (ToneMultiComplexEx) of the C library.

    Example
    -------
    >>> result = qv.tone_multi_complex_ex(x, max_tones)
    """
    _out = rt.outs(out, 5, "tone_multi_complex_ex")
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    sort = rt.choice(sort, ToneOrder, "sort")
    mode = rt.choice(mode, ToneSignal, "mode")
    threshold = rt.real(threshold, "threshold")
    max_tones = rt.i32(max_tones, "max_tones")
    count_ = ctypes.c_int32()
    out_dt_ = ctypes.c_double()
    f0_ = ctypes.c_double()
    df_ = ctypes.c_double()
    freq_ = rt.result(_out[0], (max_tones,), rt.F8, (x,))
    amp_ = rt.result(_out[1], (max_tones,), rt.F8, (x,))
    phase_ = rt.result(_out[2], (max_tones,), rt.F8, (x,))
    out_ = rt.result(_out[3], (n,), rt.C16, (x,))
    spectrum_ = rt.result(_out[4], (n,), rt.F8, (x,))
    status = _ZemFunc384(rt.pointer(x), n, dt, sort, mode, threshold, max_tones, ctypes.byref(count_),
            rt.pointer(freq_), rt.pointer(amp_), rt.pointer(phase_), rt.pointer(out_), ctypes.byref(out_dt_),
            rt.pointer(spectrum_), ctypes.byref(f0_), ctypes.byref(df_))
    rt.check(status, "tone_multi_complex_ex")
    return ToneMultiComplexExResult(rt.first(rt.deliver(freq_, _out[0]), count_.value), rt.first(rt.deliver(amp_,
            _out[1]), count_.value), rt.first(rt.deliver(phase_, _out[2]), count_.value), rt.deliver(out_, _out[3]),
            out_dt_.value, rt.deliver(spectrum_, _out[4]), f0_.value, df_.value)
