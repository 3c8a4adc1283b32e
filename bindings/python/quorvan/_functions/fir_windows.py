r"""FIR design by window.

Finite impulse responses: the ideal response of a lowpass (kind 0), highpass (1), bandpass (2) or bandstop
(3), cut to the wanted number of taps and multiplied by a symmetric window (A. V. Oppenheim and R. W. Schafer,
Discrete-Time Signal Processing, chapter 7).

    t = i - (taps - 1)/2,   W = 2 pi f / fs
    lowpass    h[i] = w[i] sin(W t) / (pi t),                 W / pi at t = 0
    highpass   h[i] = w[i] (delta(t) - sin(W t) / (pi t))
    bandpass   h[i] = w[i] (sin(Wh t) - sin(Wl t)) / (pi t)
    bandstop   h[i] = w[i] (delta(t) - (sin(Wh t) - sin(Wl t)) / (pi t))
    y[l] = sum over i of h[i] x[l - i]

The passband is not scaled to a gain of exactly 1; at the cutoffs the gain is near 1/2. Frequencies are in the
unit of the sampling rate fs. Taps are symmetric about the middle, in ascending delay; the delay is (taps -
1)/2. After an error h is undefined. The filters write the whole convolution, with both transients, and y must
not overlap x. Statuses are tested in the order in which they are listed.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fir_ideal_response",
    "fir_design_window",
    "fir_design_lowpass",
    "fir_design_highpass",
    "fir_design_bandpass",
    "fir_design_bandstop",
    "fir_design_kaiser_lowpass",
    "fir_design_kaiser_highpass",
    "fir_design_kaiser_bandpass",
    "fir_design_kaiser_bandstop",
    "fir_filter_window",
    "fir_filter_window_lowpass",
    "fir_filter_window_highpass",
    "fir_filter_window_bandpass",
    "fir_filter_window_bandstop",
    "fir_filter_window_complex",
    "fir_filter_window_complex_lowpass",
    "fir_filter_window_complex_highpass",
    "fir_filter_window_complex_bandpass",
    "fir_filter_window_complex_bandstop",
]
_max, _min = max, min

_ZemFunc79 = rt.bind("ZemFunc79", "status", "udddip")


def fir_ideal_response(kind, fs, fl, taps, fh=0.0, *, out=None):
    r"""The ideal response, without a window.

    The angles of the sines are accumulated from tap to tap.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    fs : float
        the sampling rate
    fl : float
        the cutoff of a lowpass or highpass, the lower edge of a band
    taps : int
        the number of coefficients
    fh : float, default 0.0
        the upper edge of a band; else ignored
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20061: the kind is above 3
        -20021: taps is below 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh in a band kind
        -20033: taps is even in a highpass or bandstop: the response would be 0 at fs/2

    Notes
    -----
    The function ZemFunc79 (FirIdealResponse) of the C library.

    Example
    -------
    >>> h = qv.fir_ideal_response(kind, fs, fl, taps)
    """
    kind = rt.choice(kind, FilterKind, "kind")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    taps = rt.i32(taps, "taps")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc79(kind, fs, fl, fh, taps, rt.pointer(h_))
    rt.check(status, "fir_ideal_response")
    return rt.deliver(h_, out)


_ZemFunc335 = rt.bind("ZemFunc335", "status", "udddiidp")


def fir_design_window(kind, fs, fl, taps, window, fh=0.0, parameter=0.0, *, out=None):
    r"""The ideal response under a window of any code.

    One tap is left as it is, whatever the window.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    fs : float
        the sampling rate
    fl : float
        the cutoff of a lowpass or highpass, the lower edge of a band
    taps : int
        the number of coefficients
    window : Window, its name, or int
        a `Window`
    fh : float, default 0.0
        the upper edge of a band; else ignored
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20061: the kind is above 3
        -20021: taps is below 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh in a band kind
        -20033: taps is even in a highpass or bandstop: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc335 (FirDesignWindow) of the C library.

    Example
    -------
    >>> h = qv.fir_design_window(kind, fs, fl, taps, window)
    """
    kind = rt.choice(kind, FilterKind, "kind")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    taps = rt.i32(taps, "taps")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc335(kind, fs, fl, fh, taps, window, parameter, rt.pointer(h_))
    rt.check(status, "fir_design_window")
    return rt.deliver(h_, out)


_ZemFunc189 = rt.bind("ZemFunc189", "status", "ddipi")


def fir_design_lowpass(fs, fc, taps, window=FirWindow.HAMMING, *, out=None):
    r"""A lowpass under one of five windows, whose short codes are not those of QV_WINDOW_.

    Parameters
    ----------
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    taps : int
        the number of coefficients
    window : FirWindow, its name, or int, default FirWindow.HAMMING
        1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc189 (FirDesignLowpass) of the C library.

    Example
    -------
    >>> h = qv.fir_design_lowpass(fs, fc, taps)
    """
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    taps = rt.i32(taps, "taps")
    window = rt.choice(window, FirWindow, "window")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc189(fs, fc, taps, rt.pointer(h_), window)
    rt.check(status, "fir_design_lowpass")
    return rt.deliver(h_, out)


_ZemFunc188 = rt.bind("ZemFunc188", "status", "ddipi")


def fir_design_highpass(fs, fc, taps, window=FirWindow.HAMMING, *, out=None):
    r"""A highpass under one of five windows, whose short codes are not those of QV_WINDOW_.

    Parameters
    ----------
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    taps : int
        the number of coefficients
    window : FirWindow, its name, or int, default FirWindow.HAMMING
        1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20033: taps is even: the response would be 0 at fs/2
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc188 (FirDesignHighpass) of the C library.

    Example
    -------
    >>> h = qv.fir_design_highpass(fs, fc, taps)
    """
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    taps = rt.i32(taps, "taps")
    window = rt.choice(window, FirWindow, "window")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc188(fs, fc, taps, rt.pointer(h_), window)
    rt.check(status, "fir_design_highpass")
    return rt.deliver(h_, out)


_ZemFunc186 = rt.bind("ZemFunc186", "status", "dddipi")


def fir_design_bandpass(fs, fl, fh, taps, window=FirWindow.HAMMING, *, out=None):
    r"""A bandpass under one of five windows, whose short codes are not those of QV_WINDOW_.

    Parameters
    ----------
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    taps : int
        the number of coefficients
    window : FirWindow, its name, or int, default FirWindow.HAMMING
        1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc186 (FirDesignBandpass) of the C library.

    Example
    -------
    >>> h = qv.fir_design_bandpass(fs, fl, fh, taps)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    taps = rt.i32(taps, "taps")
    window = rt.choice(window, FirWindow, "window")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc186(fs, fl, fh, taps, rt.pointer(h_), window)
    rt.check(status, "fir_design_bandpass")
    return rt.deliver(h_, out)


_ZemFunc187 = rt.bind("ZemFunc187", "status", "dddipi")


def fir_design_bandstop(fs, fl, fh, taps, window=FirWindow.HAMMING, *, out=None):
    r"""A bandstop under one of five windows, whose short codes are not those of QV_WINDOW_.

    Parameters
    ----------
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    taps : int
        the number of coefficients
    window : FirWindow, its name, or int, default FirWindow.HAMMING
        1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20033: taps is even: the response would be 0 at fs/2
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc187 (FirDesignBandstop) of the C library.

    Example
    -------
    >>> h = qv.fir_design_bandstop(fs, fl, fh, taps)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    taps = rt.i32(taps, "taps")
    window = rt.choice(window, FirWindow, "window")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc187(fs, fl, fh, taps, rt.pointer(h_), window)
    rt.check(status, "fir_design_bandstop")
    return rt.deliver(h_, out)


_ZemFunc112 = rt.bind("ZemFunc112", "status", "ddipd")


def fir_design_kaiser_lowpass(fs, fc, taps, beta, *, out=None):
    r"""A lowpass under a Kaiser window.

    Parameters
    ----------
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    taps : int
        the number of coefficients
    beta : float
        of the window; negative: 4.5
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc112 (FirDesignKaiserLowpass) of the C library.

    Example
    -------
    >>> h = qv.fir_design_kaiser_lowpass(fs, fc, taps, beta)
    """
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    taps = rt.i32(taps, "taps")
    beta = rt.real(beta, "beta")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc112(fs, fc, taps, rt.pointer(h_), beta)
    rt.check(status, "fir_design_kaiser_lowpass")
    return rt.deliver(h_, out)


_ZemFunc111 = rt.bind("ZemFunc111", "status", "ddipd")


def fir_design_kaiser_highpass(fs, fc, taps, beta, *, out=None):
    r"""A highpass under a Kaiser window.

    Parameters
    ----------
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    taps : int
        the number of coefficients
    beta : float
        of the window; negative: 4.5
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20033: taps is even: the response would be 0 at fs/2
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc111 (FirDesignKaiserHighpass) of the C library.

    Example
    -------
    >>> h = qv.fir_design_kaiser_highpass(fs, fc, taps, beta)
    """
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    taps = rt.i32(taps, "taps")
    beta = rt.real(beta, "beta")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc111(fs, fc, taps, rt.pointer(h_), beta)
    rt.check(status, "fir_design_kaiser_highpass")
    return rt.deliver(h_, out)


_ZemFunc109 = rt.bind("ZemFunc109", "status", "dddipd")


def fir_design_kaiser_bandpass(fs, fl, fh, taps, beta, *, out=None):
    r"""A bandpass under a Kaiser window.

    Parameters
    ----------
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    taps : int
        the number of coefficients
    beta : float
        of the window; negative: 4.5
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc109 (FirDesignKaiserBandpass) of the C library.

    Example
    -------
    >>> h = qv.fir_design_kaiser_bandpass(fs, fl, fh, taps, beta)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    taps = rt.i32(taps, "taps")
    beta = rt.real(beta, "beta")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc109(fs, fl, fh, taps, rt.pointer(h_), beta)
    rt.check(status, "fir_design_kaiser_bandpass")
    return rt.deliver(h_, out)


_ZemFunc110 = rt.bind("ZemFunc110", "status", "dddipd")


def fir_design_kaiser_bandstop(fs, fl, fh, taps, beta, *, out=None):
    r"""A bandstop under a Kaiser window.

    Parameters
    ----------
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    taps : int
        the number of coefficients
    beta : float
        of the window; negative: 4.5
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: taps is below 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20033: taps is even: the response would be 0 at fs/2
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc110 (FirDesignKaiserBandstop) of the C library.

    Example
    -------
    >>> h = qv.fir_design_kaiser_bandstop(fs, fl, fh, taps, beta)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    taps = rt.i32(taps, "taps")
    beta = rt.real(beta, "beta")
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc110(fs, fl, fh, taps, rt.pointer(h_), beta)
    rt.check(status, "fir_design_kaiser_bandstop")
    return rt.deliver(h_, out)


_ZemFunc480 = rt.bind("ZemFunc480", "status", "pliudddidp")


def fir_filter_window(x, taps, kind, fs, fl, window, fh=0.0, parameter=0.0, *, out=None):
    r"""Designs any kind as `fir_design_window` does and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    fs : float
        the sampling rate
    fl : float
        the cutoff of a lowpass or highpass, the lower edge of a band
    window : Window, its name, or int
        a `Window`
    fh : float, default 0.0
        the upper edge of a band; else ignored
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20061: the kind is above 3
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh in a band kind
        -20033: taps is even in a highpass or bandstop: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `fir_filter_window_complex`. The function ZemFunc480 (FirFilterWindow) of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window(x, taps, kind, fs, fl, window)
    """
    if rt.is_complex(x):
        return fir_filter_window_complex(x=x, taps=taps, kind=kind, fs=fs, fl=fl, window=window, fh=fh,
                parameter=parameter, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    kind = rt.choice(kind, FilterKind, "kind")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc480(rt.pointer(x), n, taps, kind, fs, fl, fh, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window")
    return rt.deliver(y_, out)


_ZemFunc481 = rt.bind("ZemFunc481", "status", "pliddidp")


def fir_filter_window_lowpass(x, taps, fs, fc, window, parameter=0.0, *, out=None):
    r"""Designs a lowpass as `fir_design_window` does and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `fir_filter_window_complex_lowpass`. The function ZemFunc481 (FirFilterWindowLowpass) of
    the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_lowpass(x, taps, fs, fc, window)
    """
    if rt.is_complex(x):
        return fir_filter_window_complex_lowpass(x=x, taps=taps, fs=fs, fc=fc, window=window, parameter=parameter,
                out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc481(rt.pointer(x), n, taps, fs, fc, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_lowpass")
    return rt.deliver(y_, out)


_ZemFunc482 = rt.bind("ZemFunc482", "status", "pliddidp")


def fir_filter_window_highpass(x, taps, fs, fc, window, parameter=0.0, *, out=None):
    r"""Designs a highpass as `fir_design_window` does and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20033: taps is even: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `fir_filter_window_complex_highpass`. The function ZemFunc482 (FirFilterWindowHighpass)
    of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_highpass(x, taps, fs, fc, window)
    """
    if rt.is_complex(x):
        return fir_filter_window_complex_highpass(x=x, taps=taps, fs=fs, fc=fc, window=window, parameter=parameter,
                out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc482(rt.pointer(x), n, taps, fs, fc, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_highpass")
    return rt.deliver(y_, out)


_ZemFunc483 = rt.bind("ZemFunc483", "status", "plidddidp")


def fir_filter_window_bandpass(x, taps, fs, fl, fh, window, parameter=0.0, *, out=None):
    r"""Designs a bandpass as `fir_design_window` does and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `fir_filter_window_complex_bandpass`. The function ZemFunc483 (FirFilterWindowBandpass)
    of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_bandpass(x, taps, fs, fl, fh, window)
    """
    if rt.is_complex(x):
        return fir_filter_window_complex_bandpass(x=x, taps=taps, fs=fs, fl=fl, fh=fh, window=window,
                parameter=parameter, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc483(rt.pointer(x), n, taps, fs, fl, fh, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_bandpass")
    return rt.deliver(y_, out)


_ZemFunc484 = rt.bind("ZemFunc484", "status", "plidddidp")


def fir_filter_window_bandstop(x, taps, fs, fl, fh, window, parameter=0.0, *, out=None):
    r"""Designs a bandstop as `fir_design_window` does and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20033: taps is even: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `fir_filter_window_complex_bandstop`. The function ZemFunc484 (FirFilterWindowBandstop)
    of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_bandstop(x, taps, fs, fl, fh, window)
    """
    if rt.is_complex(x):
        return fir_filter_window_complex_bandstop(x=x, taps=taps, fs=fs, fl=fl, fh=fh, window=window,
                parameter=parameter, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc484(rt.pointer(x), n, taps, fs, fl, fh, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_bandstop")
    return rt.deliver(y_, out)


_ZemFunc485 = rt.bind("ZemFunc485", "status", "pliudddidp")


def fir_filter_window_complex(x, taps, kind, fs, fl, window, fh=0.0, parameter=0.0, *, out=None):
    r"""Designs any kind as `fir_design_window` does and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    fs : float
        the sampling rate
    fl : float
        the cutoff of a lowpass or highpass, the lower edge of a band
    window : Window, its name, or int
        a `Window`
    fh : float, default 0.0
        the upper edge of a band; else ignored
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20061: the kind is above 3
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh in a band kind
        -20033: taps is even in a highpass or bandstop: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc485 (FirFilterWindowComplex) of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_complex(x, taps, kind, fs, fl, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    kind = rt.choice(kind, FilterKind, "kind")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc485(rt.pointer(x), n, taps, kind, fs, fl, fh, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_complex")
    return rt.deliver(y_, out)


_ZemFunc486 = rt.bind("ZemFunc486", "status", "pliddidp")


def fir_filter_window_complex_lowpass(x, taps, fs, fc, window, parameter=0.0, *, out=None):
    r"""Designs a lowpass as `fir_design_window` does and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc486 (FirFilterWindowComplexLowpass) of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_complex_lowpass(x, taps, fs, fc, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc486(rt.pointer(x), n, taps, fs, fc, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_complex_lowpass")
    return rt.deliver(y_, out)


_ZemFunc487 = rt.bind("ZemFunc487", "status", "pliddidp")


def fir_filter_window_complex_highpass(x, taps, fs, fc, window, parameter=0.0, *, out=None):
    r"""Designs a highpass as `fir_design_window` does and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fc : float
        the cutoff frequency, 6 dB down
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: fc is above fs/2
        -20023: fs or fc is not above 0
        -20033: taps is even: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc487 (FirFilterWindowComplexHighpass) of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_complex_highpass(x, taps, fs, fc, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc487(rt.pointer(x), n, taps, fs, fc, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_complex_highpass")
    return rt.deliver(y_, out)


_ZemFunc488 = rt.bind("ZemFunc488", "status", "plidddidp")


def fir_filter_window_complex_bandpass(x, taps, fs, fl, fh, window, parameter=0.0, *, out=None):
    r"""Designs a bandpass as `fir_design_window` does and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc488 (FirFilterWindowComplexBandpass) of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_complex_bandpass(x, taps, fs, fl, fh, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc488(rt.pointer(x), n, taps, fs, fl, fh, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_complex_bandpass")
    return rt.deliver(y_, out)


_ZemFunc489 = rt.bind("ZemFunc489", "status", "plidddidp")


def fir_filter_window_complex_bandstop(x, taps, fs, fl, fh, window, parameter=0.0, *, out=None):
    r"""Designs a bandstop as `fir_design_window` does and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients
    fs : float
        the sampling rate
    fl : float
        the lower edge
    fh : float
        the upper edge
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        of a Kaiser, Chebyshev or Gaussian window, as `window_apply_symmetric` takes it
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: taps is below 1
        -20046: n + taps - 1 exceeds 2^31 - 1
        -20020: an edge is above fs/2
        -20023: fs or an edge is not above 0, or fl is not below fh
        -20033: taps is even: the response would be 0 at fs/2
        -20061: the window is none that can be symmetric, and taps is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc489 (FirFilterWindowComplexBandstop) of the C library.

    Example
    -------
    >>> y = qv.fir_filter_window_complex_bandstop(x, taps, fs, fl, fh, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc489(rt.pointer(x), n, taps, fs, fl, fh, window, parameter, rt.pointer(y_))
    rt.check(status, "fir_filter_window_complex_bandstop")
    return rt.deliver(y_, out)
