r"""IIR design and one-shot IIR filters.

Recursive filters of six families and four kinds, into a filter object, as coefficients, or applied at once.
An analog lowpass prototype with its cutoff at 1 rad/s goes, pole pair by pole pair, through the bilinear
transform with prewarped edges into stages of second order (lowpass, highpass) or of fourth order (bandpass,
bandstop, which have twice the order of the prototype). No polynomial of high degree is formed, so that high
orders stay accurate.

    s = (1 - z^-1) / (1 + z^-1),   w = tan(pi f / fs),   B = wh - wl,   P = wl wh
    lowpass s / w,   highpass w / s,   bandpass (s^2 + P) / (B s),   bandstop B s / (s^2 + P)   for its s
    Butterworth         |H|^2 = 1 / (1 + W^(2 N))                       3 dB down at the edges
    Bessel              H = B_N(0) / B_N(s), reverse Bessel polynomial  scaled to 3 dB down at the edges
    Chebyshev           |H|^2 = 1 / (1 + e^2 T_N(W)^2)                  e^2 = 10^(ripple/10) - 1
    inverse Chebyshev   |H|^2 = 1 / (1 + 1 / (e^2 T_N(1/W)^2))          e^2 = 1 / (10^(attenuation/10) - 1)
    elliptic            |H|^2 = 1 / (1 + e^2 R_N(W)^2)                  e^2 = 10^(ripple/10) - 1
    even pole           poles -sqrt(1 - x^2) +- i x,  x = 1 - (2k + 1)/N,  k = 0, 1, ...;  -1 for odd N

H is the prototype of order N, W its frequency and R_N the elliptic rational function; "for its s" reads: in
place of the s of the prototype. Frequencies are in the unit of fs, the sampling rate. Kinds: 0 lowpass, 1
highpass, 2 bandpass, 3 bandstop; the first two have their cutoff in fl (or fc) and ignore fh. Ripple and
attenuation are in dB, above 0. The passband peaks at 0 dB. The edges of Chebyshev and elliptic filters are
the end of the passband, where the ripple is reached for the last time; that of inverse Chebyshev filters is
the begin of the stopband, where the attenuation is first reached. The even-pole family has poles on the unit
circle with equally spaced imaginary parts; it is not 3 dB down at its edges.

Designs check in the order of their statuses. The one-shot filters of real arrays check their sizes and levels
elsewhere, and accept a cutoff of fs/2, which the designs refuse with -20023.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "iir_design_even_pole",
    "iir_design_butterworth",
    "iir_design_bessel",
    "iir_design_chebyshev",
    "iir_design_inverse_chebyshev",
    "iir_design_elliptic",
    "iir_coefficients_even_pole",
    "iir_coefficients_butterworth",
    "iir_coefficients_chebyshev",
    "iir_coefficients_inverse_chebyshev",
    "iir_coefficients_elliptic",
    "iir_to_direct_form",
    "iir_filter_butterworth_lowpass",
    "iir_filter_butterworth_highpass",
    "iir_filter_butterworth_bandpass",
    "iir_filter_butterworth_bandstop",
    "iir_filter_chebyshev_lowpass",
    "iir_filter_chebyshev_highpass",
    "iir_filter_chebyshev_bandpass",
    "iir_filter_chebyshev_bandstop",
    "iir_filter_inverse_chebyshev_lowpass",
    "iir_filter_inverse_chebyshev_highpass",
    "iir_filter_inverse_chebyshev_bandpass",
    "iir_filter_inverse_chebyshev_bandstop",
    "iir_filter_elliptic_lowpass",
    "iir_filter_elliptic_highpass",
    "iir_filter_elliptic_bandpass",
    "iir_filter_elliptic_bandstop",
    "iir_filter_bessel_lowpass",
    "iir_filter_bessel_highpass",
    "iir_filter_bessel_bandpass",
    "iir_filter_bessel_bandstop",
    "iir_filter_complex_butterworth_lowpass",
    "iir_filter_complex_butterworth_highpass",
    "iir_filter_complex_butterworth_bandpass",
    "iir_filter_complex_butterworth_bandstop",
    "iir_filter_complex_chebyshev_lowpass",
    "iir_filter_complex_chebyshev_highpass",
    "iir_filter_complex_chebyshev_bandpass",
    "iir_filter_complex_chebyshev_bandstop",
    "iir_filter_complex_inverse_chebyshev_lowpass",
    "iir_filter_complex_inverse_chebyshev_highpass",
    "iir_filter_complex_inverse_chebyshev_bandpass",
    "iir_filter_complex_inverse_chebyshev_bandstop",
    "iir_filter_complex_elliptic_lowpass",
    "iir_filter_complex_elliptic_highpass",
    "iir_filter_complex_elliptic_bandpass",
    "iir_filter_complex_elliptic_bandstop",
    "iir_filter_complex_bessel_lowpass",
    "iir_filter_complex_bessel_highpass",
    "iir_filter_complex_bessel_bandpass",
    "iir_filter_complex_bessel_bandstop",
    "IirCoefficientsEvenPoleResult",
    "IirCoefficientsButterworthResult",
    "IirCoefficientsChebyshevResult",
    "IirCoefficientsInverseChebyshevResult",
    "IirCoefficientsEllipticResult",
    "IirToDirectFormResult",
]
_max, _min = max, min

_ZemFunc12 = rt.bind("ZemFunc12", "status", "dddp")


def iir_design_even_pole(fs, fl, filter, fh=0.0):
    r"""Designs an even-pole filter: poles on the unit circle with equally spaced imaginary parts.

    Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error
    they are unchanged.

    Parameters
    ----------
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    filter : IirFilter
        the filter; its kind and order are those wanted
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20021: the order of the record is below 1
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20061: the kind of the record is above 3
        -20066: the record has too few coefficients for its order

    Notes
    -----
    The function ZemFunc12 (IirDesignEvenPole) of the C library.

    Example
    -------
    >>> qv.iir_design_even_pole(fs, fl, filter)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    status = _ZemFunc12(fs, fl, fh, rt.handle(filter, "IirFilter"))
    rt.check(status, "iir_design_even_pole")


_ZemFunc18 = rt.bind("ZemFunc18", "status", "dddp")


def iir_design_butterworth(fs, fl, filter, fh=0.0):
    r"""Designs a Butterworth filter, maximally flat in the passband and 3 dB down at the edges.

    Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error
    they are unchanged.

    Parameters
    ----------
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    filter : IirFilter
        the filter; its kind and order are those wanted
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20021: the order of the record is below 1
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20061: the kind of the record is above 3
        -20066: the record has too few coefficients for its order

    Notes
    -----
    The function ZemFunc18 (IirDesignButterworth) of the C library.

    Example
    -------
    >>> qv.iir_design_butterworth(fs, fl, filter)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    status = _ZemFunc18(fs, fl, fh, rt.handle(filter, "IirFilter"))
    rt.check(status, "iir_design_butterworth")


_ZemFunc471 = rt.bind("ZemFunc471", "status", "dddp")


def iir_design_bessel(fs, fl, filter, fh=0.0):
    r"""Designs a Bessel filter, of maximally flat delay before the transform to digital form, and 3 dB down at the
    edges.

    Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error
    they are unchanged.

    Parameters
    ----------
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    filter : IirFilter
        the filter; its kind and order are those wanted
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20021: the order of the record is below 1
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20061: the kind of the record is above 3
        -20066: the record has too few coefficients for its order
        -20001: memory is exhausted
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found

    Notes
    -----
    The function ZemFunc471 (IirDesignBessel) of the C library.

    Example
    -------
    >>> qv.iir_design_bessel(fs, fl, filter)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    status = _ZemFunc471(fs, fl, fh, rt.handle(filter, "IirFilter"))
    rt.check(status, "iir_design_bessel")


_ZemFunc24 = rt.bind("ZemFunc24", "status", "ddddp")


def iir_design_chebyshev(fs, fl, ripple, filter, fh=0.0):
    r"""Designs a Chebyshev filter, of equal ripple in the passband, whose peaks are at 0 dB.

    Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error
    they are unchanged.

    Parameters
    ----------
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    ripple : float
        ripple of the passband in dB
    filter : IirFilter
        the filter; its kind and order are those wanted
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20021: the order of the record is below 1
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20024: the ripple is 0 or below
        -20061: the kind of the record is above 3
        -20066: the record has too few coefficients for its order

    Notes
    -----
    The function ZemFunc24 (IirDesignChebyshev) of the C library.

    Example
    -------
    >>> qv.iir_design_chebyshev(fs, fl, ripple, filter)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    status = _ZemFunc24(fs, fl, fh, ripple, rt.handle(filter, "IirFilter"))
    rt.check(status, "iir_design_chebyshev")


_ZemFunc98 = rt.bind("ZemFunc98", "status", "ddddp")


def iir_design_inverse_chebyshev(fs, fl, attenuation, filter, fh=0.0):
    r"""Designs an inverse Chebyshev filter, of equal ripple in the stopband.

    Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error
    they are unchanged.

    Parameters
    ----------
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    attenuation : float
        attenuation of the stopband in dB
    filter : IirFilter
        the filter; its kind and order are those wanted
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20021: the order of the record is below 1
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20025: the attenuation is 0 or below
        -20020: a frequency is above fs/2
        -20061: the kind of the record is above 3
        -20066: the record has too few coefficients for its order

    Notes
    -----
    The function ZemFunc98 (IirDesignInverseChebyshev) of the C library.

    Example
    -------
    >>> qv.iir_design_inverse_chebyshev(fs, fl, attenuation, filter)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    attenuation = rt.real(attenuation, "attenuation")
    status = _ZemFunc98(fs, fl, fh, attenuation, rt.handle(filter, "IirFilter"))
    rt.check(status, "iir_design_inverse_chebyshev")


_ZemFunc61 = rt.bind("ZemFunc61", "status", "dddddp")


def iir_design_elliptic(fs, fl, ripple, attenuation, filter, fh=0.0):
    r"""Designs an elliptic filter, of equal ripple in passband and stopband.

    Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error
    they are unchanged.

    Parameters
    ----------
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    filter : IirFilter
        the filter; its kind and order are those wanted
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20021: the order of the record is below 1
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20061: the kind of the record is above 3
        -20066: the record has too few coefficients for its order

    Notes
    -----
    The function ZemFunc61 (IirDesignElliptic) of the C library.

    Example
    -------
    >>> qv.iir_design_elliptic(fs, fl, ripple, attenuation, filter)
    """
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    status = _ZemFunc61(fs, fl, fh, ripple, attenuation, rt.handle(filter, "IirFilter"))
    rt.check(status, "iir_design_elliptic")


_ZemFunc13 = rt.bind("ZemFunc13", "status", "iidddpipi")


class IirCoefficientsEvenPoleResult(NamedTuple):
    """What `iir_coefficients_even_pole` gives."""

    a: np.ndarray
    b: np.ndarray


def iir_coefficients_even_pole(kind, order, fs, fl, fh=0.0, *, out=None):
    r"""Designs an even-pole filter: poles on the unit circle with equally spaced imaginary parts, as one transfer
    function.

    Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    order : int
        order of the analog prototype
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1
    out : tuple or None
        arrays for `a`, `b`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (a_size,)
        denominator, a[0] = 1, in ascending powers of z^-1
    b : float64 array of shape (b_size,)
        numerator

    Raises
    ------
    QuorvanError
        -20001: memory is exhausted, or there is no such kind or order
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20066: an array is too short

    Notes
    -----
    The function ZemFunc13 (IirCoefficientsEvenPole) of the C library.

    Example
    -------
    >>> a, b = qv.iir_coefficients_even_pole(kind, order, fs, fl)
    """
    _out = rt.outs(out, 2, "iir_coefficients_even_pole")
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    a_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    b_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    a_ = rt.result(_out[0], (a_size,), rt.F8, ())
    b_ = rt.result(_out[1], (b_size,), rt.F8, ())
    status = _ZemFunc13(kind, order, fs, fl, fh, rt.pointer(a_), rt.i32(a_size, "a_size"), rt.pointer(b_),
            rt.i32(b_size, "b_size"))
    rt.check(status, "iir_coefficients_even_pole")
    return IirCoefficientsEvenPoleResult(rt.deliver(a_, _out[0]), rt.deliver(b_, _out[1]))


_ZemFunc19 = rt.bind("ZemFunc19", "status", "iidddpipi")


class IirCoefficientsButterworthResult(NamedTuple):
    """What `iir_coefficients_butterworth` gives."""

    a: np.ndarray
    b: np.ndarray


def iir_coefficients_butterworth(kind, order, fs, fl, fh=0.0, *, out=None):
    r"""Designs a Butterworth filter, maximally flat in the passband and 3 dB down at the edges, as one transfer
    function.

    Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    order : int
        order of the analog prototype
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1
    out : tuple or None
        arrays for `a`, `b`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (a_size,)
        denominator, a[0] = 1, in ascending powers of z^-1
    b : float64 array of shape (b_size,)
        numerator

    Raises
    ------
    QuorvanError
        -20001: memory is exhausted, or there is no such kind or order
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20066: an array is too short

    Notes
    -----
    The function ZemFunc19 (IirCoefficientsButterworth) of the C library.

    Example
    -------
    >>> a, b = qv.iir_coefficients_butterworth(kind, order, fs, fl)
    """
    _out = rt.outs(out, 2, "iir_coefficients_butterworth")
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    a_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    b_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    a_ = rt.result(_out[0], (a_size,), rt.F8, ())
    b_ = rt.result(_out[1], (b_size,), rt.F8, ())
    status = _ZemFunc19(kind, order, fs, fl, fh, rt.pointer(a_), rt.i32(a_size, "a_size"), rt.pointer(b_),
            rt.i32(b_size, "b_size"))
    rt.check(status, "iir_coefficients_butterworth")
    return IirCoefficientsButterworthResult(rt.deliver(a_, _out[0]), rt.deliver(b_, _out[1]))


_ZemFunc25 = rt.bind("ZemFunc25", "status", "iiddddpipi")


class IirCoefficientsChebyshevResult(NamedTuple):
    """What `iir_coefficients_chebyshev` gives."""

    a: np.ndarray
    b: np.ndarray


def iir_coefficients_chebyshev(kind, order, fs, fl, ripple, fh=0.0, *, out=None):
    r"""Designs a Chebyshev filter, of equal ripple in the passband, whose peaks are at 0 dB, as one transfer
    function.

    Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    order : int
        order of the analog prototype
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    ripple : float
        ripple of the passband in dB
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1
    out : tuple or None
        arrays for `a`, `b`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (a_size,)
        denominator, a[0] = 1, in ascending powers of z^-1
    b : float64 array of shape (b_size,)
        numerator

    Raises
    ------
    QuorvanError
        -20001: memory is exhausted, or there is no such kind or order
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20024: the ripple is 0 or below
        -20066: an array is too short

    Notes
    -----
    The function ZemFunc25 (IirCoefficientsChebyshev) of the C library.

    Example
    -------
    >>> a, b = qv.iir_coefficients_chebyshev(kind, order, fs, fl, ripple)
    """
    _out = rt.outs(out, 2, "iir_coefficients_chebyshev")
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    a_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    b_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    a_ = rt.result(_out[0], (a_size,), rt.F8, ())
    b_ = rt.result(_out[1], (b_size,), rt.F8, ())
    status = _ZemFunc25(kind, order, fs, fl, fh, ripple, rt.pointer(a_), rt.i32(a_size, "a_size"), rt.pointer(b_),
            rt.i32(b_size, "b_size"))
    rt.check(status, "iir_coefficients_chebyshev")
    return IirCoefficientsChebyshevResult(rt.deliver(a_, _out[0]), rt.deliver(b_, _out[1]))


_ZemFunc99 = rt.bind("ZemFunc99", "status", "iiddddpipi")


class IirCoefficientsInverseChebyshevResult(NamedTuple):
    """What `iir_coefficients_inverse_chebyshev` gives."""

    a: np.ndarray
    b: np.ndarray


def iir_coefficients_inverse_chebyshev(kind, order, fs, fl, attenuation, fh=0.0, *, out=None):
    r"""Designs an inverse Chebyshev filter, of equal ripple in the stopband, as one transfer function.

    Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    order : int
        order of the analog prototype
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    attenuation : float
        attenuation of the stopband in dB
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1
    out : tuple or None
        arrays for `a`, `b`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (a_size,)
        denominator, a[0] = 1, in ascending powers of z^-1
    b : float64 array of shape (b_size,)
        numerator

    Raises
    ------
    QuorvanError
        -20001: memory is exhausted, or there is no such kind or order
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20025: the attenuation is 0 or below
        -20020: a frequency is above fs/2
        -20066: an array is too short

    Notes
    -----
    The function ZemFunc99 (IirCoefficientsInverseChebyshev) of the C library.

    Example
    -------
    >>> a, b = qv.iir_coefficients_inverse_chebyshev(kind, order, fs, fl, attenuation)
    """
    _out = rt.outs(out, 2, "iir_coefficients_inverse_chebyshev")
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    attenuation = rt.real(attenuation, "attenuation")
    a_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    b_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    a_ = rt.result(_out[0], (a_size,), rt.F8, ())
    b_ = rt.result(_out[1], (b_size,), rt.F8, ())
    status = _ZemFunc99(kind, order, fs, fl, fh, attenuation, rt.pointer(a_), rt.i32(a_size, "a_size"),
            rt.pointer(b_), rt.i32(b_size, "b_size"))
    rt.check(status, "iir_coefficients_inverse_chebyshev")
    return IirCoefficientsInverseChebyshevResult(rt.deliver(a_, _out[0]), rt.deliver(b_, _out[1]))


_ZemFunc62 = rt.bind("ZemFunc62", "status", "iidddddpipi")


class IirCoefficientsEllipticResult(NamedTuple):
    """What `iir_coefficients_elliptic` gives."""

    a: np.ndarray
    b: np.ndarray


def iir_coefficients_elliptic(kind, order, fs, fl, ripple, attenuation, fh=0.0, *, out=None):
    r"""Designs an elliptic filter, of equal ripple in passband and stopband, as one transfer function.

    Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    order : int
        order of the analog prototype
    fs : float
        sampling rate
    fl : float
        lower edge, or the cutoff
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    fh : float, default 0.0
        upper edge of a band; ignored for kinds 0 and 1
    out : tuple or None
        arrays for `a`, `b`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (a_size,)
        denominator, a[0] = 1, in ascending powers of z^-1
    b : float64 array of shape (b_size,)
        numerator

    Raises
    ------
    QuorvanError
        -20001: memory is exhausted, or there is no such kind or order
        -20023: fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
        -20020: a frequency is above fs/2
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20066: an array is too short

    Notes
    -----
    The function ZemFunc62 (IirCoefficientsElliptic) of the C library.

    Example
    -------
    >>> a, b = qv.iir_coefficients_elliptic(kind, order, fs, fl, ripple, attenuation)
    """
    _out = rt.outs(out, 2, "iir_coefficients_elliptic")
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    a_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    b_size = _max(order, 0) * (2 if kind > 1 else 1) + 1
    a_ = rt.result(_out[0], (a_size,), rt.F8, ())
    b_ = rt.result(_out[1], (b_size,), rt.F8, ())
    status = _ZemFunc62(kind, order, fs, fl, fh, ripple, attenuation, rt.pointer(a_), rt.i32(a_size, "a_size"),
            rt.pointer(b_), rt.i32(b_size, "b_size"))
    rt.check(status, "iir_coefficients_elliptic")
    return IirCoefficientsEllipticResult(rt.deliver(a_, _out[0]), rt.deliver(b_, _out[1]))


_ZemFunc236 = rt.bind("ZemFunc236", "status", "ppipi")


class IirToDirectFormResult(NamedTuple):
    """What `iir_to_direct_form` gives."""

    a: np.ndarray
    b: np.ndarray


def iir_to_direct_form(filter, *, out=None):
    r"""Multiplies the stages of a filter up to one transfer function.

    Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.

    Parameters
    ----------
    filter : IirFilter
        the filter, designed
    out : tuple or None
        arrays for `a`, `b`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (a_size,)
        denominator, a[0] = 1, in ascending powers of z^-1
    b : float64 array of shape (b_size,)
        numerator

    Raises
    ------
    QuorvanError
        -20066: the filter is None
        -20021: the order of the record is below 1
        -20061: the kind of the record is none of the four
        -20066: the counts of the record do not fit together, or an array is too short
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc236 (IirToDirectForm) of the C library.

    Example
    -------
    >>> a, b = qv.iir_to_direct_form(filter)
    """
    _out = rt.outs(out, 2, "iir_to_direct_form")
    a_size = filter.coefficient_count
    b_size = filter.coefficient_count
    a_ = rt.result(_out[0], (a_size,), rt.F8, ())
    b_ = rt.result(_out[1], (b_size,), rt.F8, ())
    status = _ZemFunc236(rt.handle(filter, "IirFilter"), rt.pointer(a_), rt.i32(a_size, "a_size"), rt.pointer(b_),
            rt.i32(b_size, "b_size"))
    rt.check(status, "iir_to_direct_form")
    return IirToDirectFormResult(rt.deliver(a_, _out[0]), rt.deliver(b_, _out[1]))


_ZemFunc21 = rt.bind("ZemFunc21", "status", "plddip")


def iir_filter_butterworth_lowpass(x, fs, fc, order, *, out=None):
    r"""Filters a signal from rest with a Butterworth lowpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_butterworth_lowpass`. The function ZemFunc21
    (IirFilterButterworthLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_butterworth_lowpass(x, fs, fc, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_butterworth_lowpass(x=x, fs=fs, fc=fc, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc21(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_butterworth_lowpass")
    return rt.deliver(y_, out)


_ZemFunc20 = rt.bind("ZemFunc20", "status", "plddip")


def iir_filter_butterworth_highpass(x, fs, fc, order, *, out=None):
    r"""Filters a signal from rest with a Butterworth highpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_butterworth_highpass`. The function ZemFunc20
    (IirFilterButterworthHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_butterworth_highpass(x, fs, fc, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_butterworth_highpass(x=x, fs=fs, fc=fc, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc20(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_butterworth_highpass")
    return rt.deliver(y_, out)


_ZemFunc16 = rt.bind("ZemFunc16", "status", "pldddip")


def iir_filter_butterworth_bandpass(x, fs, fl, fh, order, *, out=None):
    r"""Filters a signal from rest with a Butterworth bandpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_butterworth_bandpass`. The function ZemFunc16
    (IirFilterButterworthBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_butterworth_bandpass(x, fs, fl, fh, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_butterworth_bandpass(x=x, fs=fs, fl=fl, fh=fh, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc16(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_butterworth_bandpass")
    return rt.deliver(y_, out)


_ZemFunc17 = rt.bind("ZemFunc17", "status", "pldddip")


def iir_filter_butterworth_bandstop(x, fs, fl, fh, order, *, out=None):
    r"""Filters a signal from rest with a Butterworth bandstop, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_butterworth_bandstop`. The function ZemFunc17
    (IirFilterButterworthBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_butterworth_bandstop(x, fs, fl, fh, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_butterworth_bandstop(x=x, fs=fs, fl=fl, fh=fh, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc17(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_butterworth_bandstop")
    return rt.deliver(y_, out)


_ZemFunc27 = rt.bind("ZemFunc27", "status", "pldddip")


def iir_filter_chebyshev_lowpass(x, fs, fc, ripple, order, *, out=None):
    r"""Filters a signal from rest with a Chebyshev lowpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20024: the ripple is 0 or below
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_chebyshev_lowpass`. The function ZemFunc27
    (IirFilterChebyshevLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_chebyshev_lowpass(x, fs, fc, ripple, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_chebyshev_lowpass(x=x, fs=fs, fc=fc, ripple=ripple, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc27(rt.pointer(x), n, fs, fc, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_chebyshev_lowpass")
    return rt.deliver(y_, out)


_ZemFunc26 = rt.bind("ZemFunc26", "status", "pldddip")


def iir_filter_chebyshev_highpass(x, fs, fc, ripple, order, *, out=None):
    r"""Filters a signal from rest with a Chebyshev highpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20024: the ripple is 0 or below
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_chebyshev_highpass`. The function ZemFunc26
    (IirFilterChebyshevHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_chebyshev_highpass(x, fs, fc, ripple, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_chebyshev_highpass(x=x, fs=fs, fc=fc, ripple=ripple, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc26(rt.pointer(x), n, fs, fc, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_chebyshev_highpass")
    return rt.deliver(y_, out)


_ZemFunc22 = rt.bind("ZemFunc22", "status", "plddddip")


def iir_filter_chebyshev_bandpass(x, fs, fl, fh, ripple, order, *, out=None):
    r"""Filters a signal from rest with a Chebyshev bandpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20024: the ripple is 0 or below
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_chebyshev_bandpass`. The function ZemFunc22
    (IirFilterChebyshevBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_chebyshev_bandpass(x, fs, fl, fh, ripple, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_chebyshev_bandpass(x=x, fs=fs, fl=fl, fh=fh, ripple=ripple, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc22(rt.pointer(x), n, fs, fl, fh, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_chebyshev_bandpass")
    return rt.deliver(y_, out)


_ZemFunc23 = rt.bind("ZemFunc23", "status", "plddddip")


def iir_filter_chebyshev_bandstop(x, fs, fl, fh, ripple, order, *, out=None):
    r"""Filters a signal from rest with a Chebyshev bandstop, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20024: the ripple is 0 or below
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_chebyshev_bandstop`. The function ZemFunc23
    (IirFilterChebyshevBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_chebyshev_bandstop(x, fs, fl, fh, ripple, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_chebyshev_bandstop(x=x, fs=fs, fl=fl, fh=fh, ripple=ripple, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc23(rt.pointer(x), n, fs, fl, fh, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_chebyshev_bandstop")
    return rt.deliver(y_, out)


_ZemFunc101 = rt.bind("ZemFunc101", "status", "pldddip")


def iir_filter_inverse_chebyshev_lowpass(x, fs, fc, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an inverse Chebyshev lowpass, section by section in direct form I. Takes no
    memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the stopband
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20025: the attenuation is 0 or below
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_inverse_chebyshev_lowpass`. The function ZemFunc101
    (IirFilterInverseChebyshevLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_inverse_chebyshev_lowpass(x, fs, fc, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_inverse_chebyshev_lowpass(x=x, fs=fs, fc=fc, attenuation=attenuation, order=order,
                out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc101(rt.pointer(x), n, fs, fc, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_inverse_chebyshev_lowpass")
    return rt.deliver(y_, out)


_ZemFunc100 = rt.bind("ZemFunc100", "status", "pldddip")


def iir_filter_inverse_chebyshev_highpass(x, fs, fc, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an inverse Chebyshev highpass, section by section in direct form I. Takes no
    memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the stopband
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20025: the attenuation is 0 or below
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_inverse_chebyshev_highpass`. The function ZemFunc100
    (IirFilterInverseChebyshevHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_inverse_chebyshev_highpass(x, fs, fc, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_inverse_chebyshev_highpass(x=x, fs=fs, fc=fc, attenuation=attenuation, order=order,
                out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc100(rt.pointer(x), n, fs, fc, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_inverse_chebyshev_highpass")
    return rt.deliver(y_, out)


_ZemFunc96 = rt.bind("ZemFunc96", "status", "plddddip")


def iir_filter_inverse_chebyshev_bandpass(x, fs, fl, fh, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an inverse Chebyshev bandpass, section by section in direct form I. Takes no
    memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20025: the attenuation is 0 or below
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_inverse_chebyshev_bandpass`. The function ZemFunc96
    (IirFilterInverseChebyshevBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_inverse_chebyshev_bandpass(x, fs, fl, fh, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_inverse_chebyshev_bandpass(x=x, fs=fs, fl=fl, fh=fh, attenuation=attenuation,
                order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc96(rt.pointer(x), n, fs, fl, fh, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_inverse_chebyshev_bandpass")
    return rt.deliver(y_, out)


_ZemFunc97 = rt.bind("ZemFunc97", "status", "plddddip")


def iir_filter_inverse_chebyshev_bandstop(x, fs, fl, fh, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an inverse Chebyshev bandstop, section by section in direct form I. Takes no
    memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20025: the attenuation is 0 or below
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_inverse_chebyshev_bandstop`. The function ZemFunc97
    (IirFilterInverseChebyshevBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_inverse_chebyshev_bandstop(x, fs, fl, fh, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_inverse_chebyshev_bandstop(x=x, fs=fs, fl=fl, fh=fh, attenuation=attenuation,
                order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc97(rt.pointer(x), n, fs, fl, fh, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_inverse_chebyshev_bandstop")
    return rt.deliver(y_, out)


_ZemFunc64 = rt.bind("ZemFunc64", "status", "plddddip")


def iir_filter_elliptic_lowpass(x, fs, fc, ripple, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an elliptic lowpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_elliptic_lowpass`. The function ZemFunc64 (IirFilterEllipticLowpass)
    of the C library.

    Example
    -------
    >>> y = qv.iir_filter_elliptic_lowpass(x, fs, fc, ripple, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_elliptic_lowpass(x=x, fs=fs, fc=fc, ripple=ripple, attenuation=attenuation,
                order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc64(rt.pointer(x), n, fs, fc, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_elliptic_lowpass")
    return rt.deliver(y_, out)


_ZemFunc63 = rt.bind("ZemFunc63", "status", "plddddip")


def iir_filter_elliptic_highpass(x, fs, fc, ripple, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an elliptic highpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or fc is 0 or below
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20020: fc is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_elliptic_highpass`. The function ZemFunc63
    (IirFilterEllipticHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_elliptic_highpass(x, fs, fc, ripple, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_elliptic_highpass(x=x, fs=fs, fc=fc, ripple=ripple, attenuation=attenuation,
                order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc63(rt.pointer(x), n, fs, fc, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_elliptic_highpass")
    return rt.deliver(y_, out)


_ZemFunc59 = rt.bind("ZemFunc59", "status", "pldddddip")


def iir_filter_elliptic_bandpass(x, fs, fl, fh, ripple, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an elliptic bandpass, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_elliptic_bandpass`. The function ZemFunc59
    (IirFilterEllipticBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_elliptic_bandpass(x, fs, fl, fh, ripple, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_elliptic_bandpass(x=x, fs=fs, fl=fl, fh=fh, ripple=ripple, attenuation=attenuation,
                order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc59(rt.pointer(x), n, fs, fl, fh, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_elliptic_bandpass")
    return rt.deliver(y_, out)


_ZemFunc60 = rt.bind("ZemFunc60", "status", "pldddddip")


def iir_filter_elliptic_bandstop(x, fs, fl, fh, ripple, attenuation, order, *, out=None):
    r"""Filters a signal from rest with an elliptic bandstop, section by section in direct form I. Takes no memory.

    Denormals are not flushed. Otherwise like a filter object, to within rounding.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: the order is below 1
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20020: fh is above fs/2

    Notes
    -----
    Complex arrays go to `iir_filter_complex_elliptic_bandstop`. The function ZemFunc60
    (IirFilterEllipticBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_elliptic_bandstop(x, fs, fl, fh, ripple, attenuation, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_elliptic_bandstop(x=x, fs=fs, fl=fl, fh=fh, ripple=ripple, attenuation=attenuation,
                order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc60(rt.pointer(x), n, fs, fl, fh, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_elliptic_bandstop")
    return rt.deliver(y_, out)


_ZemFunc399 = rt.bind("ZemFunc399", "status", "plddip")


def iir_filter_bessel_lowpass(x, fs, fc, order, *, out=None):
    r"""Designs a Bessel lowpass and applies it, from rest, to a signal, as a filter object would be.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `iir_filter_complex_bessel_lowpass`. The function ZemFunc399 (IirFilterBesselLowpass) of
    the C library.

    Example
    -------
    >>> y = qv.iir_filter_bessel_lowpass(x, fs, fc, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_bessel_lowpass(x=x, fs=fs, fc=fc, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc399(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_bessel_lowpass")
    return rt.deliver(y_, out)


_ZemFunc400 = rt.bind("ZemFunc400", "status", "plddip")


def iir_filter_bessel_highpass(x, fs, fc, order, *, out=None):
    r"""Designs a Bessel highpass and applies it, from rest, to a signal, as a filter object would be.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `iir_filter_complex_bessel_highpass`. The function ZemFunc400 (IirFilterBesselHighpass)
    of the C library.

    Example
    -------
    >>> y = qv.iir_filter_bessel_highpass(x, fs, fc, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_bessel_highpass(x=x, fs=fs, fc=fc, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc400(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_bessel_highpass")
    return rt.deliver(y_, out)


_ZemFunc401 = rt.bind("ZemFunc401", "status", "pldddip")


def iir_filter_bessel_bandpass(x, fs, fl, fh, order, *, out=None):
    r"""Designs a Bessel bandpass and applies it, from rest, to a signal, as a filter object would be.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `iir_filter_complex_bessel_bandpass`. The function ZemFunc401 (IirFilterBesselBandpass)
    of the C library.

    Example
    -------
    >>> y = qv.iir_filter_bessel_bandpass(x, fs, fl, fh, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_bessel_bandpass(x=x, fs=fs, fl=fl, fh=fh, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc401(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_bessel_bandpass")
    return rt.deliver(y_, out)


_ZemFunc402 = rt.bind("ZemFunc402", "status", "pldddip")


def iir_filter_bessel_bandstop(x, fs, fl, fh, order, *, out=None):
    r"""Designs a Bessel bandstop and applies it, from rest, to a signal, as a filter object would be.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `iir_filter_complex_bessel_bandstop`. The function ZemFunc402 (IirFilterBesselBandstop)
    of the C library.

    Example
    -------
    >>> y = qv.iir_filter_bessel_bandstop(x, fs, fl, fh, order)
    """
    if rt.is_complex(x):
        return iir_filter_complex_bessel_bandstop(x=x, fs=fs, fl=fl, fh=fh, order=order, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc402(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_bessel_bandstop")
    return rt.deliver(y_, out)


_ZemFunc450 = rt.bind("ZemFunc450", "status", "plddip")


def iir_filter_complex_butterworth_lowpass(x, fs, fc, order, *, out=None):
    r"""Designs a Butterworth lowpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc450 (IirFilterComplexButterworthLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_butterworth_lowpass(x, fs, fc, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc450(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_butterworth_lowpass")
    return rt.deliver(y_, out)


_ZemFunc451 = rt.bind("ZemFunc451", "status", "plddip")


def iir_filter_complex_butterworth_highpass(x, fs, fc, order, *, out=None):
    r"""Designs a Butterworth highpass and applies it, from rest, to both parts of a complex signal, as a filter
    object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc451 (IirFilterComplexButterworthHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_butterworth_highpass(x, fs, fc, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc451(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_butterworth_highpass")
    return rt.deliver(y_, out)


_ZemFunc452 = rt.bind("ZemFunc452", "status", "pldddip")


def iir_filter_complex_butterworth_bandpass(x, fs, fl, fh, order, *, out=None):
    r"""Designs a Butterworth bandpass and applies it, from rest, to both parts of a complex signal, as a filter
    object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc452 (IirFilterComplexButterworthBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_butterworth_bandpass(x, fs, fl, fh, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc452(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_butterworth_bandpass")
    return rt.deliver(y_, out)


_ZemFunc453 = rt.bind("ZemFunc453", "status", "pldddip")


def iir_filter_complex_butterworth_bandstop(x, fs, fl, fh, order, *, out=None):
    r"""Designs a Butterworth bandstop and applies it, from rest, to both parts of a complex signal, as a filter
    object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc453 (IirFilterComplexButterworthBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_butterworth_bandstop(x, fs, fl, fh, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc453(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_butterworth_bandstop")
    return rt.deliver(y_, out)


_ZemFunc454 = rt.bind("ZemFunc454", "status", "pldddip")


def iir_filter_complex_chebyshev_lowpass(x, fs, fc, ripple, order, *, out=None):
    r"""Designs a Chebyshev lowpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20024: the ripple is 0 or below
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc454 (IirFilterComplexChebyshevLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_chebyshev_lowpass(x, fs, fc, ripple, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc454(rt.pointer(x), n, fs, fc, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_chebyshev_lowpass")
    return rt.deliver(y_, out)


_ZemFunc455 = rt.bind("ZemFunc455", "status", "pldddip")


def iir_filter_complex_chebyshev_highpass(x, fs, fc, ripple, order, *, out=None):
    r"""Designs a Chebyshev highpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20024: the ripple is 0 or below
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc455 (IirFilterComplexChebyshevHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_chebyshev_highpass(x, fs, fc, ripple, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc455(rt.pointer(x), n, fs, fc, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_chebyshev_highpass")
    return rt.deliver(y_, out)


_ZemFunc456 = rt.bind("ZemFunc456", "status", "plddddip")


def iir_filter_complex_chebyshev_bandpass(x, fs, fl, fh, ripple, order, *, out=None):
    r"""Designs a Chebyshev bandpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20024: the ripple is 0 or below
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc456 (IirFilterComplexChebyshevBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_chebyshev_bandpass(x, fs, fl, fh, ripple, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc456(rt.pointer(x), n, fs, fl, fh, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_chebyshev_bandpass")
    return rt.deliver(y_, out)


_ZemFunc457 = rt.bind("ZemFunc457", "status", "plddddip")


def iir_filter_complex_chebyshev_bandstop(x, fs, fl, fh, ripple, order, *, out=None):
    r"""Designs a Chebyshev bandstop and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20024: the ripple is 0 or below
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc457 (IirFilterComplexChebyshevBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_chebyshev_bandstop(x, fs, fl, fh, ripple, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc457(rt.pointer(x), n, fs, fl, fh, ripple, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_chebyshev_bandstop")
    return rt.deliver(y_, out)


_ZemFunc458 = rt.bind("ZemFunc458", "status", "pldddip")


def iir_filter_complex_inverse_chebyshev_lowpass(x, fs, fc, attenuation, order, *, out=None):
    r"""Designs an inverse Chebyshev lowpass and applies it, from rest, to both parts of a complex signal, as a filter
    object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the stopband
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20025: the attenuation is 0 or below
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc458 (IirFilterComplexInverseChebyshevLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_inverse_chebyshev_lowpass(x, fs, fc, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc458(rt.pointer(x), n, fs, fc, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_inverse_chebyshev_lowpass")
    return rt.deliver(y_, out)


_ZemFunc459 = rt.bind("ZemFunc459", "status", "pldddip")


def iir_filter_complex_inverse_chebyshev_highpass(x, fs, fc, attenuation, order, *, out=None):
    r"""Designs an inverse Chebyshev highpass and applies it, from rest, to both parts of a complex signal, as a
    filter object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the stopband
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20025: the attenuation is 0 or below
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc459 (IirFilterComplexInverseChebyshevHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_inverse_chebyshev_highpass(x, fs, fc, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc459(rt.pointer(x), n, fs, fc, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_inverse_chebyshev_highpass")
    return rt.deliver(y_, out)


_ZemFunc460 = rt.bind("ZemFunc460", "status", "plddddip")


def iir_filter_complex_inverse_chebyshev_bandpass(x, fs, fl, fh, attenuation, order, *, out=None):
    r"""Designs an inverse Chebyshev bandpass and applies it, from rest, to both parts of a complex signal, as a
    filter object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20025: the attenuation is 0 or below
        -20020: fh is above fs/2
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc460 (IirFilterComplexInverseChebyshevBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_inverse_chebyshev_bandpass(x, fs, fl, fh, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc460(rt.pointer(x), n, fs, fl, fh, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_inverse_chebyshev_bandpass")
    return rt.deliver(y_, out)


_ZemFunc461 = rt.bind("ZemFunc461", "status", "plddddip")


def iir_filter_complex_inverse_chebyshev_bandstop(x, fs, fl, fh, attenuation, order, *, out=None):
    r"""Designs an inverse Chebyshev bandstop and applies it, from rest, to both parts of a complex signal, as a
    filter object would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20025: the attenuation is 0 or below
        -20020: fh is above fs/2
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc461 (IirFilterComplexInverseChebyshevBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_inverse_chebyshev_bandstop(x, fs, fl, fh, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc461(rt.pointer(x), n, fs, fl, fh, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_inverse_chebyshev_bandstop")
    return rt.deliver(y_, out)


_ZemFunc462 = rt.bind("ZemFunc462", "status", "plddddip")


def iir_filter_complex_elliptic_lowpass(x, fs, fc, ripple, attenuation, order, *, out=None):
    r"""Designs an elliptic lowpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc462 (IirFilterComplexEllipticLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_elliptic_lowpass(x, fs, fc, ripple, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc462(rt.pointer(x), n, fs, fc, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_elliptic_lowpass")
    return rt.deliver(y_, out)


_ZemFunc463 = rt.bind("ZemFunc463", "status", "plddddip")


def iir_filter_complex_elliptic_highpass(x, fs, fc, ripple, attenuation, order, *, out=None):
    r"""Designs an elliptic highpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        edge of the passband
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc463 (IirFilterComplexEllipticHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_elliptic_highpass(x, fs, fc, ripple, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc463(rt.pointer(x), n, fs, fc, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_elliptic_highpass")
    return rt.deliver(y_, out)


_ZemFunc464 = rt.bind("ZemFunc464", "status", "pldddddip")


def iir_filter_complex_elliptic_bandpass(x, fs, fl, fh, ripple, attenuation, order, *, out=None):
    r"""Designs an elliptic bandpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc464 (IirFilterComplexEllipticBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_elliptic_bandpass(x, fs, fl, fh, ripple, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc464(rt.pointer(x), n, fs, fl, fh, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_elliptic_bandpass")
    return rt.deliver(y_, out)


_ZemFunc465 = rt.bind("ZemFunc465", "status", "pldddddip")


def iir_filter_complex_elliptic_bandstop(x, fs, fl, fh, ripple, attenuation, order, *, out=None):
    r"""Designs an elliptic bandstop and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    ripple : float
        ripple of the passband in dB
    attenuation : float
        attenuation of the stopband in dB
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20024: the ripple is 0 or below
        -20025: the attenuation is 0 or below
        -20028: the ripple is not below the attenuation
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc465 (IirFilterComplexEllipticBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_elliptic_bandstop(x, fs, fl, fh, ripple, attenuation, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc465(rt.pointer(x), n, fs, fl, fh, ripple, attenuation, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_elliptic_bandstop")
    return rt.deliver(y_, out)


_ZemFunc403 = rt.bind("ZemFunc403", "status", "plddip")


def iir_filter_complex_bessel_lowpass(x, fs, fc, order, *, out=None):
    r"""Designs a Bessel lowpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc403 (IirFilterComplexBesselLowpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_bessel_lowpass(x, fs, fc, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc403(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_bessel_lowpass")
    return rt.deliver(y_, out)


_ZemFunc404 = rt.bind("ZemFunc404", "status", "plddip")


def iir_filter_complex_bessel_highpass(x, fs, fc, order, *, out=None):
    r"""Designs a Bessel highpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fc : float
        cutoff
    order : int
        order of the analog prototype
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or fc is 0 or below, or fc is fs/2 or above
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc404 (IirFilterComplexBesselHighpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_bessel_highpass(x, fs, fc, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fc = rt.real(fc, "fc")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc404(rt.pointer(x), n, fs, fc, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_bessel_highpass")
    return rt.deliver(y_, out)


_ZemFunc405 = rt.bind("ZemFunc405", "status", "pldddip")


def iir_filter_complex_bessel_bandpass(x, fs, fl, fh, order, *, out=None):
    r"""Designs a Bessel bandpass and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc405 (IirFilterComplexBesselBandpass) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_bessel_bandpass(x, fs, fl, fh, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc405(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_bessel_bandpass")
    return rt.deliver(y_, out)


_ZemFunc406 = rt.bind("ZemFunc406", "status", "pldddip")


def iir_filter_complex_bessel_bandstop(x, fs, fl, fh, order, *, out=None):
    r"""Designs a Bessel bandstop and applies it, from rest, to both parts of a complex signal, as a filter object
    would be.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    fs : float
        sampling rate
    fl : float
        lower edge
    fh : float
        upper edge
    order : int
        order of the analog prototype, half that of the filter
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20021: the order is below 1
        -20001: memory is exhausted
        -20023: fs or a frequency is 0 or below, or fl is not below fh
        -20020: fh is above fs/2
        -20062: the poles or the cutoff were not found: the order is too high
        -20063: the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
        -20116: the cutoff was not found
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc406 (IirFilterComplexBesselBandstop) of the C library.

    Example
    -------
    >>> y = qv.iir_filter_complex_bessel_bandstop(x, fs, fl, fh, order)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fs = rt.real(fs, "fs")
    fl = rt.real(fl, "fl")
    fh = rt.real(fh, "fh")
    order = rt.i32(order, "order")
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc406(rt.pointer(x), n, fs, fl, fh, order, rt.pointer(y_))
    rt.check(status, "iir_filter_complex_bessel_bandstop")
    return rt.deliver(y_, out)
