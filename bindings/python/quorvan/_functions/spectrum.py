r"""Spectrum measurements.

From time records to spectra, and from spectra to numbers. Records have any length n, not only powers of two.

    X[k] = sum over j of x[j] exp(-2 pi i j k / n),          x[j] = (1/n) sum over k of X[k] exp(2 pi i j k / n)
    two-sided power   S[k] = |X[k]|^2 / n^2                  cross power  Sxy[k] = conj(X[k]) Y[k] / n^2
    one-sided power   G[0] = S[0],  G[k] = 2 S[k]            a sine of amplitude A on a bin reads A^2 / 2
    amplitude         sqrt(G[k])                             root mean square: A / sqrt(2)
    transfer          H[k] = Y[k] / X[k],  over frames: sum Sxy / sum Sxx
    coherence         |sum Sxy|^2 / (sum Sxx sum Syy)
    frequency of bin k: k df,   df = 1 / (n dt)

Two-sided spectra are split real arrays of n bins with zero frequency at 0. One-sided spectra hold the bins 0
to n/2 - 1, never the Nyquist bin, and bin 0 also for n = 1. dt is the time between samples; powers are in the
unit of x squared, phases in radians and those of a cosine. A window is divided out by its coherent gain where
tones are read (`window_apply_scaled_plain` does it), by its noise bandwidth where powers of several bins are
added.

Outputs may be the inputs. After an error the outputs are unspecified.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

from .transforms import auto_power_complex
from .transforms import cross_power_complex
__all__ = [
    "spectrum_real_fft",
    "spectrum_real_ifft",
    "spectrum_complex_ifft",
    "auto_power",
    "cross_power",
    "amplitude_phase",
    "power_spectrum",
    "cross_power_polar",
    "transfer_function",
    "spectrum_deconvolve",
    "network_analysis",
    "spectrum_unit_convert",
    "unwrap_phase",
    "unwrap_radians",
    "peak_power_frequency",
    "ac_dc_estimate",
    "AmplitudePhaseResult",
    "PowerSpectrumResult",
    "CrossPowerPolarResult",
    "TransferFunctionResult",
    "NetworkAnalysisResult",
    "SpectrumUnitConvertResult",
    "PeakPowerFrequencyResult",
    "AcDcEstimateResult",
]
_max, _min = max, min

_ZemFunc147 = rt.bind("ZemFunc147", "status", "ppl")


def spectrum_real_fft(x, *, out=None):
    r"""The two-sided spectrum of a real record, unscaled.

    Parameters
    ----------
    x : array_like of float64
        the record
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the spectrum

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc147 (SpecRealFft) of the C library.

    Example
    -------
    >>> out = qv.spectrum_real_fft(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_re = x.copy()
    im_ = rt.fresh((n,), rt.F8)
    status = _ZemFunc147(rt.pointer(x_re), rt.pointer(im_), n)
    rt.check(status, "spectrum_real_fft")
    return rt.joined(x_re, im_, out)


_ZemFunc148 = rt.bind("ZemFunc148", "status", "ppl")


def spectrum_real_ifft(z, *, out=None):
    r"""The real record of a two-sided spectrum, with the factor 1/n.

    The spectrum is taken as that of a real record: the real part is read up to n/2, the imaginary part behind it.
    A single sample is its own spectrum, and nothing is touched.

    Parameters
    ----------
    z : array_like of complex128, shape (n,)
        the spectrum
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the record

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc148 (SpecRealInverseFft) of the C library.

    Example
    -------
    >>> out = qv.spectrum_real_ifft(z)
    """
    z = rt.array(z, rt.C16, 1, "z")
    n = z.shape[0]
    rt.fits(z, (n,), "z")
    z_re, z_im = z.real.copy(), z.imag.copy()
    status = _ZemFunc148(rt.pointer(z_re), rt.pointer(z_im), n)
    rt.check(status, "spectrum_real_ifft")
    return rt.deliver(z_re, out)


_ZemFunc102 = rt.bind("ZemFunc102", "status", "ppl")


def spectrum_complex_ifft(z, *, out=None):
    r"""The complex record of a two-sided spectrum, with the factor 1/n.

    Parameters
    ----------
    z : array_like of complex128, shape (n,)
        the spectrum
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc102 (SpecComplexInverseFft) of the C library.

    Example
    -------
    >>> out = qv.spectrum_complex_ifft(z)
    """
    z = rt.array(z, rt.C16, 1, "z")
    n = z.shape[0]
    rt.fits(z, (n,), "z")
    z_re, z_im = z.real.copy(), z.imag.copy()
    status = _ZemFunc102(rt.pointer(z_re), rt.pointer(z_im), n)
    rt.check(status, "spectrum_complex_ifft")
    return rt.joined(z_re, z_im, out)


_ZemFunc161 = rt.bind("ZemFunc161", "status", "pl")


def auto_power(x, *, out=None):
    r"""The two-sided auto power spectrum of a real record, |X[k]|^2 / n^2.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the record, then its power spectrum in the unit of x squared
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        its power spectrum in the unit of x squared

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `auto_power_complex`. The function ZemFunc161 (SpecAutoPower) of the C library.

    Example
    -------
    >>> x = qv.auto_power(x)
    """
    if rt.is_complex(x):
        return auto_power_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc161(rt.pointer(x_), n)
    rt.check(status, "auto_power")
    return rt.deliver(x_, out)


_ZemFunc36 = rt.bind("ZemFunc36", "status", "pplpp")


def cross_power(x, y, *, out=None):
    r"""The two-sided cross power spectrum of two real records, conj(X[k]) Y[k] / n^2.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    y : array_like of float64, shape (n,)
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        in the unit of x times that of y

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `cross_power_complex`. The function ZemFunc36 (SpecCrossPower) of the C library.

    Example
    -------
    >>> out = qv.cross_power(x, y)
    """
    if rt.is_complex(x, y):
        return cross_power_complex(x=x, y=y, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc36(rt.pointer(x), rt.pointer(y), n, rt.pointer(out_re), rt.pointer(out_im))
    rt.check(status, "cross_power")
    return rt.joined(out_re, out_im, out)


_ZemFunc5 = rt.bind("ZemFunc5", "status", "plidppp")


class AmplitudePhaseResult(NamedTuple):
    """What `amplitude_phase` gives."""

    amp: np.ndarray
    phase: np.ndarray
    df: float


def amplitude_phase(x, unwrap=False, dt=1.0, *, out=None):
    r"""The one-sided amplitude and phase spectrum of a real record.

    Inner bins give the rms amplitude of a sine component, |X[k]| sqrt(2) / n; bin 0 gives the magnitude of the
    mean with the phase 0 or pi. The phase is that of a cosine.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    unwrap : bool, default False
        true: the phases are unwrapped as by `unwrap_radians`
    dt : float, default 1.0
        time between samples
    out : tuple or None
        arrays for `amp`, `phase`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    amp : float64 array of shape (max(n // 2, 1),)
        root mean square amplitude, in the unit of x
    phase : float64 array of shape (max(n // 2, 1),)
        radians
    df : float
        in the unit of 1/dt

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc5 (SpecAmplitudePhase) of the C library.

    Example
    -------
    >>> amp, phase, df = qv.amplitude_phase(x)
    """
    _out = rt.outs(out, 2, "amplitude_phase")
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    unwrap = int(bool(unwrap))
    dt = rt.real(dt, "dt")
    df_ = ctypes.c_double()
    amp_ = rt.result(_out[0], (_max(rt.quotient(n, 2), 1),), rt.F8, (x,), overlapping=True)
    phase_ = rt.result(_out[1], (_max(rt.quotient(n, 2), 1),), rt.F8, (x,), overlapping=True)
    status = _ZemFunc5(rt.pointer(x), n, unwrap, dt, rt.pointer(amp_), rt.pointer(phase_), ctypes.byref(df_))
    rt.check(status, "amplitude_phase")
    return AmplitudePhaseResult(rt.deliver(amp_, _out[0]), rt.deliver(phase_, _out[1]), df_.value)


_ZemFunc10 = rt.bind("ZemFunc10", "status", "pldpp")


class PowerSpectrumResult(NamedTuple):
    """What `power_spectrum` gives."""

    power: np.ndarray
    df: float


def power_spectrum(x, dt=1.0, *, out=None):
    r"""The one-sided power spectrum of a real record: S[0], then 2 S[k], with S as of `auto_power`.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    dt : float, default 1.0
        time between samples
    out : array or None
        the array for `power`; it may be an input, to work in place

    Returns
    -------
    power : float64 array of shape (max(n // 2, 1),)
        in the unit of x squared
    df : float
        in the unit of 1/dt

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc10 (SpecPowerSpectrum) of the C library.

    Example
    -------
    >>> power, df = qv.power_spectrum(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    df_ = ctypes.c_double()
    power_ = rt.result(out, (_max(rt.quotient(n, 2), 1),), rt.F8, (x,), overlapping=True)
    status = _ZemFunc10(rt.pointer(x), n, dt, rt.pointer(power_), ctypes.byref(df_))
    rt.check(status, "power_spectrum")
    return PowerSpectrumResult(rt.deliver(power_, out), df_.value)


_ZemFunc37 = rt.bind("ZemFunc37", "status", "ppldppp")


class CrossPowerPolarResult(NamedTuple):
    """What `cross_power_polar` gives."""

    mag: np.ndarray
    phase: np.ndarray
    df: float


def cross_power_polar(x, y, dt=1.0, *, out=None):
    r"""The one-sided cross power spectrum of two real records: |S[0]|, then 2 |S[k]|, with S as of `cross_power`.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    y : array_like of float64, shape (n,)
    dt : float, default 1.0
        time between samples
    out : tuple or None
        arrays for `mag`, `phase`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    mag : float64 array of shape (max(n // 2, 1),)
        in the unit of x times that of y
    phase : float64 array of shape (max(n // 2, 1),)
        radians, of y against x
    df : float
        in the unit of 1/dt

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc37 (SpecCrossPowerPolar) of the C library.

    Example
    -------
    >>> mag, phase, df = qv.cross_power_polar(x, y)
    """
    _out = rt.outs(out, 2, "cross_power_polar")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    rt.fits(y, (n,), "y")
    df_ = ctypes.c_double()
    mag_ = rt.result(_out[0], (_max(rt.quotient(n, 2), 1),), rt.F8, (x, y), overlapping=True)
    phase_ = rt.result(_out[1], (_max(rt.quotient(n, 2), 1),), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc37(rt.pointer(x), rt.pointer(y), n, dt, rt.pointer(mag_), rt.pointer(phase_), ctypes.byref(df_))
    rt.check(status, "cross_power_polar")
    return CrossPowerPolarResult(rt.deliver(mag_, _out[0]), rt.deliver(phase_, _out[1]), df_.value)


_ZemFunc176 = rt.bind("ZemFunc176", "status", "ppldppp")


class TransferFunctionResult(NamedTuple):
    """What `transfer_function` gives."""

    mag: np.ndarray
    phase: np.ndarray
    df: float


def transfer_function(stimulus, response, dt=1.0, *, out=None):
    r"""The one-sided transfer function H[k] = Y[k] / X[k] from stimulus X to response Y. A bin where the stimulus has
    nothing gives infinities or NaN, without a status.

    Parameters
    ----------
    stimulus : array_like of float64, shape (n,)
    response : array_like of float64, shape (n,)
    dt : float, default 1.0
        time between samples
    out : tuple or None
        arrays for `mag`, `phase`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    mag : float64 array of shape (max(n // 2, 1),)
        in the unit of the response over that of the stimulus
    phase : float64 array of shape (max(n // 2, 1),)
        radians
    df : float
        in the unit of 1/dt

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc176 (SpecTransferFunction) of the C library.

    Example
    -------
    >>> mag, phase, df = qv.transfer_function(stimulus, response)
    """
    _out = rt.outs(out, 2, "transfer_function")
    stimulus = rt.array(stimulus, rt.F8, 1, "stimulus")
    response = rt.array(response, rt.F8, 1, "response")
    n = stimulus.shape[0]
    dt = rt.real(dt, "dt")
    rt.fits(response, (n,), "response")
    df_ = ctypes.c_double()
    mag_ = rt.result(_out[0], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    phase_ = rt.result(_out[1], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    status = _ZemFunc176(rt.pointer(stimulus), rt.pointer(response), n, dt, rt.pointer(mag_), rt.pointer(phase_),
            ctypes.byref(df_))
    rt.check(status, "transfer_function")
    return TransferFunctionResult(rt.deliver(mag_, _out[0]), rt.deliver(phase_, _out[1]), df_.value)


_ZemFunc94 = rt.bind("ZemFunc94", "status", "pplp")


def spectrum_deconvolve(divisor, signal, *, out=None):
    r"""Undoes a circular convolution: the record whose spectrum is that of the signal over that of the divisor.

    A zero in the divisor's spectrum gives infinities or NaN, without a status.

    Parameters
    ----------
    divisor : array_like of float64, shape (n,)
    signal : array_like of float64, shape (n,)
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc94 (SpecDeconvolve) of the C library.

    Example
    -------
    >>> out = qv.spectrum_deconvolve(divisor, signal)
    """
    divisor = rt.array(divisor, rt.F8, 1, "divisor")
    signal = rt.array(signal, rt.F8, 1, "signal")
    n = divisor.shape[0]
    rt.fits(signal, (n,), "signal")
    out_ = rt.result(out, (n,), rt.F8, (divisor, signal), overlapping=True)
    status = _ZemFunc94(rt.pointer(divisor), rt.pointer(signal), n, rt.pointer(out_))
    rt.check(status, "spectrum_deconvolve")
    return rt.deliver(out_, out)


_ZemFunc129 = rt.bind("ZemFunc129", "status", "pplldppppppp")


class NetworkAnalysisResult(NamedTuple):
    """What `network_analysis` gives."""

    cross_mag: np.ndarray
    cross_phase: np.ndarray
    transfer_mag: np.ndarray
    transfer_phase: np.ndarray
    coherence: np.ndarray
    impulse: np.ndarray
    df: float


def network_analysis(stimulus, response, dt=1.0, *, out=None):
    r"""Cross power, transfer function, coherence and impulse response of a network, averaged over frames.

    With Sxx, Syy and Sxy the sums of the auto and cross power spectra over all frames: the transfer function is
    Sxy / Sxx, the impulse response its inverse transform, the coherence |Sxy|^2 / (Sxx Syy), the cross power
    |Sxy| / frames with its inner bins doubled. With one frame every coherence is 1. A bin where the stimulus has
    nothing gives NaN, and with it a whole impulse response of NaN.

    Parameters
    ----------
    stimulus : array_like of float64, shape (frames, n)
        frame after frame
    response : array_like of float64, shape (frames, n)
        frame after frame
    dt : float, default 1.0
        time between samples
    out : tuple or None
        arrays for `cross_mag`, `cross_phase`, `transfer_mag`, `transfer_phase`, `coherence`, `impulse`, or None
        for one to be made; each may be an input, to work in place

    Returns
    -------
    cross_mag : float64 array of shape (max(n // 2, 1),)
        cross power, in the unit of the stimulus times that of the response
    cross_phase : float64 array of shape (max(n // 2, 1),)
        radians
    transfer_mag : float64 array of shape (max(n // 2, 1),)
        in the unit of the response over that of the stimulus
    transfer_phase : float64 array of shape (max(n // 2, 1),)
        radians
    coherence : float64 array of shape (max(n // 2, 1),)
        from 0 to 1
    impulse : float64 array of shape (n,)
        impulse response
    df : float
        in the unit of 1/dt

    Raises
    ------
    QuorvanError
        -20003: n is below 1, or frames is
        -20046: frames * n does not fit 32 bits
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc129 (SpecNetworkAnalysis) of the C library.

    Example
    -------
    >>> result = qv.network_analysis(stimulus, response)
    """
    _out = rt.outs(out, 6, "network_analysis")
    stimulus = rt.array(stimulus, rt.F8, 2, "stimulus")
    response = rt.array(response, rt.F8, 2, "response")
    n = stimulus.shape[1]
    frames = stimulus.shape[0]
    dt = rt.real(dt, "dt")
    rt.fits(response, (frames, n), "response")
    df_ = ctypes.c_double()
    cross_mag_ = rt.result(_out[0], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    cross_phase_ = rt.result(_out[1], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    transfer_mag_ = rt.result(_out[2], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    transfer_phase_ = rt.result(_out[3], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    coherence_ = rt.result(_out[4], (_max(rt.quotient(n, 2), 1),), rt.F8, (stimulus, response), overlapping=True)
    impulse_ = rt.result(_out[5], (n,), rt.F8, (stimulus, response), overlapping=True)
    status = _ZemFunc129(rt.pointer(stimulus), rt.pointer(response), n, frames, dt, rt.pointer(cross_mag_),
            rt.pointer(cross_phase_), rt.pointer(transfer_mag_), rt.pointer(transfer_phase_), rt.pointer(coherence_),
            rt.pointer(impulse_), ctypes.byref(df_))
    rt.check(status, "network_analysis")
    return NetworkAnalysisResult(rt.deliver(cross_mag_, _out[0]), rt.deliver(cross_phase_, _out[1]),
            rt.deliver(transfer_mag_, _out[2]), rt.deliver(transfer_phase_, _out[3]), rt.deliver(coherence_, _out[4]),
            rt.deliver(impulse_, _out[5]), df_.value)


_ZemFunc162 = rt.bind("ZemFunc162", "status", "pluuidppp")


class SpectrumUnitConvertResult(NamedTuple):
    """What `spectrum_unit_convert` gives."""

    out: np.ndarray
    unit: str


def spectrum_unit_convert(spectrum, unit, kind=SpectrumKind.POWER, display=Display.LINEAR, flags=UnitFlags.NONE, df=1.0, window=(1.0, 1.0), *, out=None):
    r"""Converts a spectrum into the unit in which it is to be shown, and completes the text of the unit.

    An amplitude spectrum is squared first; density divides by df times the noise bandwidth; peak doubles all but
    bin 0; then the linear display takes the square root where amplitudes are wanted, decibels are 10 log10. For
    "V" the unit becomes "Vrms", "Vpk", "Vrms^2", "Vpk^2", "Vrms/rtHz", "Vpk/rtHz", "Vrms^2/Hz" or "Vpk^2/Hz" by
    the flags 0 to 7, with "dB" in front for decibels, where the flags 2 and 3 keep "dBVrms" and "dBVpk". Display
    2 ignores the peak flag and replaces the unit by "dBm". A plain magnitude passes with an empty unit, or
    becomes 20 log10 in "dB".

    Parameters
    ----------
    spectrum : array_like of float64, shape (n,)
    unit : str
        the base unit
    kind : SpectrumKind, its name, or int, default SpectrumKind.POWER
        0 power spectrum, 1 amplitude spectrum, 2 plain magnitude
    display : Display, its name, or int, default Display.LINEAR
        0 linear, 1 decibel, 2 decibel to 0.6084 ("dBm")
    flags : UnitFlags, its name, or int, default UnitFlags.NONE
        0 to 7: bit 0 peak instead of rms, bit 1 power instead of amplitude, bit 2 density per hertz
    df : float, default 1.0
        step between bins
    window : (enbw, coherent_gain), default (1.0, 1.0)
        only the equivalent noise bandwidth is read
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
    unit : str
        the full unit

    Raises
    ------
    QuorvanError
        -20003: n is below 1; nothing is written
        -20061: kind is above 2, display is above 2, or flags lies outside 0 to 7; nothing is written
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc162 (SpecUnitConvert) of the C library.

    Example
    -------
    >>> out, unit = qv.spectrum_unit_convert(spectrum, unit)
    """
    spectrum = rt.array(spectrum, rt.F8, 1, "spectrum")
    n = spectrum.shape[0]
    kind = rt.choice(kind, SpectrumKind, "kind")
    display = rt.choice(display, Display, "display")
    flags = rt.choice(flags, UnitFlags, "flags")
    df = rt.real(df, "df")
    unit_ = rt.text_buffer(unit, "unit")
    out_ = rt.result(out, (n,), rt.F8, (spectrum,), overlapping=True)
    status = _ZemFunc162(rt.pointer(spectrum), n, kind, display, flags, df, ctypes.byref(rt.properties(window,
            "window")), rt.pointer(out_), unit_)
    rt.check(status, "spectrum_unit_convert")
    return SpectrumUnitConvertResult(rt.deliver(out_, out), unit_.value.decode())


_ZemFunc368 = rt.bind("ZemFunc368", "status", "plu")


def unwrap_phase(phase, mode=PhaseMode.RADIANS, *, out=None):
    r"""Removes the jumps by whole periods from a phase, in place, and converts it where the mode says so.

    Every value is moved by a multiple of the period to within half a period of the new value before it; an exact
    half period goes down.

    Parameters
    ----------
    phase : array_like of float64, shape (n,)
        in radians or degrees, by mode
    mode : PhaseMode, its name, or int, default PhaseMode.RADIANS
        0 radians; 1 radians to degrees; 2 degrees; 3 degrees to radians; any other is 0
    out : array or None
        the array for `phase`; it may be an input, to work in place

    Returns
    -------
    phase : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20008: n is below 1

    Notes
    -----
    The function ZemFunc368 (SpecUnwrapPhase) of the C library.

    Example
    -------
    >>> phase = qv.unwrap_phase(phase)
    """
    phase = rt.array(phase, rt.F8, 1, "phase")
    n = phase.shape[0]
    mode = rt.choice(mode, PhaseMode, "mode")
    phase_ = rt.worked(phase, out)
    status = _ZemFunc368(rt.pointer(phase_), n, mode)
    rt.check(status, "unwrap_phase")
    return rt.deliver(phase_, out)


_ZemFunc183 = rt.bind("ZemFunc183", "status", "pl")


def unwrap_radians(phase, *, out=None):
    r"""Removes the jumps by 2 pi from a phase, in place.

    Parameters
    ----------
    phase : array_like of float64, shape (n,)
        radians
    out : array or None
        the array for `phase`; it may be an input, to work in place

    Returns
    -------
    phase : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc183 (SpecUnwrapRadians) of the C library.

    Example
    -------
    >>> phase = qv.unwrap_radians(phase)
    """
    phase = rt.array(phase, rt.F8, 1, "phase")
    n = phase.shape[0]
    phase_ = rt.worked(phase, out)
    status = _ZemFunc183(rt.pointer(phase_), n)
    rt.check(status, "unwrap_radians")
    return rt.deliver(phase_, out)


_ZemFunc139 = rt.bind("ZemFunc139", "status", "pldpdlpp")


class PeakPowerFrequencyResult(NamedTuple):
    """What `peak_power_frequency` gives."""

    frequency: float
    peak_power: float


def peak_power_frequency(power, search=-1.0, window=(1.0, 1.0), df=1.0, span=7):
    r"""Power and frequency of a spectral peak, from the bins around it.

    The power is their sum over the noise bandwidth of the window, the frequency their centre of mass. Bins
    outside the spectrum are left out; a search outside it takes the largest bin. Without a positive sum the
    frequency is that of the centre bin.

    Parameters
    ----------
    power : array_like of float64, shape (n,)
        one-sided power spectrum
    search : float, default -1.0
        the frequency to look at, in the unit of df; negative: the largest bin
    window : (enbw, coherent_gain), default (1.0, 1.0)
        only the equivalent noise bandwidth is read
    df : float, default 1.0
        step between bins
    span : int, default 7
        bins to sum: at least 3, an even number is taken as the next odd one

    Returns
    -------
    frequency : float
        in the unit of df
    peak_power : float
        in the unit of power

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc139 (SpecPeakPowerFrequency) of the C library.

    Example
    -------
    >>> frequency, peak_power = qv.peak_power_frequency(power)
    """
    power = rt.array(power, rt.F8, 1, "power")
    n = power.shape[0]
    search = rt.real(search, "search")
    df = rt.real(df, "df")
    span = rt.i64(span, "span")
    frequency_ = ctypes.c_double()
    peak_power_ = ctypes.c_double()
    status = _ZemFunc139(rt.pointer(power), n, search, ctypes.byref(rt.properties(window, "window")), df, span,
            ctypes.byref(frequency_), ctypes.byref(peak_power_))
    rt.check(status, "peak_power_frequency")
    return PeakPowerFrequencyResult(frequency_.value, peak_power_.value)


_ZemFunc2 = rt.bind("ZemFunc2", "status", "plpp")


class AcDcEstimateResult(NamedTuple):
    """What `ac_dc_estimate` gives."""

    ac: float
    dc: float


def ac_dc_estimate(x):
    r"""Estimates the alternating and the direct part of a signal that need not hold whole periods.

    The mean is taken off, the rest multiplied by a Hanning window; of its mean m and variance v, ac = sqrt((v -
    m^2 / 2) / 0.375) and dc = 2 m + mean.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples

    Returns
    -------
    ac : float
        root mean square of the alternating part, in the unit of x
    dc : float
        mean, in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc2 (SpecAcDcEstimate) of the C library.

    Example
    -------
    >>> ac, dc = qv.ac_dc_estimate(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    ac_ = ctypes.c_double()
    dc_ = ctypes.c_double()
    status = _ZemFunc2(rt.pointer(x), n, ctypes.byref(ac_), ctypes.byref(dc_))
    rt.check(status, "ac_dc_estimate")
    return AcDcEstimateResult(ac_.value, dc_.value)
