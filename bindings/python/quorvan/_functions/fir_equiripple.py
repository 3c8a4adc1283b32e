r"""Equiripple FIR design.

Linear-phase filters whose peak weighted error is the least possible: the Parks-McClellan algorithm with the
Remez exchange on a grid of 16 points to each cosine function (J. H. McClellan, T. W. Parks and L. R. Rabiner,
IEEE Trans. Audio Electroacoust. 21, 1973).

    H(f) = sum over i of h[i] exp(-2 pi i f i / fs)
    multiband                    h[i] =  h[taps - 1 - i],   minimises max W(f) | |H(f)| - D(f) |
    differentiator, Hilbert      h[i] = -h[taps - 1 - i]

Frequencies are in the unit of the sampling rate fs; D and W are the desired value and the weight of each
band. The delay is (taps - 1)/2 samples. The weighted error reaches plus and minus delta in turn; in a band
its size is delta / weight, a ripple of 20 lg(1 + delta / weight) dB. After an error h is not written.

A design has at most 2045 functions (taps/2, and one more for an odd multiband filter). It takes at most 99
passes. Statuses are tested in the order in which they are listed.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fir_remez_design",
    "fir_remez_bands",
    "fir_remez_lowpass",
    "fir_remez_highpass",
    "fir_remez_bandpass",
    "fir_remez_bandstop",
    "fir_remez_filter_lowpass",
    "fir_remez_filter_highpass",
    "fir_remez_filter_bandpass",
    "fir_remez_filter_bandstop",
    "fir_remez_filter_complex_lowpass",
    "fir_remez_filter_complex_highpass",
    "fir_remez_filter_complex_bandpass",
    "fir_remez_filter_complex_bandstop",
    "FirRemezDesignResult",
    "FirRemezBandsResult",
    "FirRemezLowpassResult",
    "FirRemezHighpassResult",
    "FirRemezBandpassResult",
    "FirRemezBandstopResult",
]
_max, _min = max, min

_ZemFunc65 = rt.bind("ZemFunc65", "status", "ippdpiipp")


class FirRemezDesignResult(NamedTuple):
    """What `fir_remez_design` gives."""

    h: np.ndarray
    delta: float


def fir_remez_design(desired, weights, fs, edges, taps, kind=RemezKind.MULTIBAND, *, out=None):
    r"""Designs a filter for any number of bands.

    Multiband filters and differentiators begin at 0; filters end at fs/2, Hilbert transformers leave out 0.
    Antisymmetric filters of odd length are zero at fs/2 and must end before: by 0.01 or 0.001 in the unit of fs.
    A slope below 0.0001 has its absolute error weighted.

    Parameters
    ----------
    desired : array_like of float64, shape (bands,)
        the gain of each band; for a differentiator the slope over f/fs
    weights : array_like of float64, shape (bands,)
        the weight of each band's error; for a differentiator of the relative error
    fs : float
        the sampling rate
    edges : array_like of float64, shape (2 * bands,)
        lower and upper edge of each band, ascending
    taps : int
        the number of coefficients, at least 3
    kind : RemezKind, its name, or int, default RemezKind.MULTIBAND
        1 multiband filter, 2 differentiator, 3 Hilbert transformer; others antisymmetric, without checks
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients
    delta : float
        the peak weighted error

    Raises
    ------
    QuorvanError
        -20031: taps is below 3
        -20003: bands is below 1
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative
        -20031: a weight or gain is not finite
        -20023: a weight is not above 0 or a gain is negative
        -20020: the last edge is above fs/2
        -20023: the edges do not ascend
        -20031: the first or last edge is not what the kind wants
        -20033: a multiband filter of even length has a gain in its last band
        -20031: an antisymmetric filter has 3 taps, or a Hilbert transformer less than 6
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc65 (FirRemezDesign) of the C library.

    Example
    -------
    >>> h, delta = qv.fir_remez_design(desired, weights, fs, edges, taps)
    """
    desired = rt.array(desired, rt.F8, 1, "desired")
    weights = rt.array(weights, rt.F8, 1, "weights")
    edges = rt.array(edges, rt.F8, 1, "edges")
    bands = desired.shape[0]
    fs = rt.real(fs, "fs")
    kind = rt.choice(kind, RemezKind, "kind")
    taps = rt.i32(taps, "taps")
    rt.fits(weights, (bands,), "weights")
    rt.fits(edges, (2 * bands,), "edges")
    delta_ = ctypes.c_double()
    h_ = rt.result(out, (taps,), rt.F8, (desired, weights, edges))
    status = _ZemFunc65(rt.i32(bands, "bands"), rt.pointer(desired), rt.pointer(weights), fs, rt.pointer(edges), kind,
            taps, rt.pointer(h_), ctypes.byref(delta_))
    rt.check(status, "fir_remez_design")
    return FirRemezDesignResult(rt.deliver(h_, out), delta_.value)


_ZemFunc408 = rt.bind("ZemFunc408", "status", "idplipp")


class FirRemezBandsResult(NamedTuple):
    """What `fir_remez_bands` gives."""

    h: np.ndarray
    delta: float


def fir_remez_bands(taps, fs, bands, kind=RemezBandsKind.MULTIBAND, *, out=None):
    r"""`fir_remez_design` with a record for each band, and kinds that count from 0.

    Parameters
    ----------
    taps : int
        the number of coefficients, at least 3
    fs : float
        the sampling rate
    bands : array_like of float64, shape (count, 4)
        gain, lower edge, upper edge and weight of each band
    kind : RemezBandsKind, its name, or int, default RemezBandsKind.MULTIBAND
        0 multiband filter, 1 differentiator, 2 Hilbert transformer
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients
    delta : float
        the peak weighted error

    Raises
    ------
    QuorvanError
        -20031: taps is below 3, count is below 1, or a value of a record is infinite
        -20001: memory is exhausted
        -20023: as `fir_remez_design`, which also refuses NaN (-20031)
        -20020: the last edge is above fs/2
        -20033: a multiband filter of even length has a gain in its last band
        -20031: the design is refused or fails, as in `fir_remez_design`

    Notes
    -----
    The function ZemFunc408 (FirRemezBands) of the C library.

    Example
    -------
    >>> h, delta = qv.fir_remez_bands(taps, fs, bands)
    """
    bands = rt.array(bands, rt.F8, 2, "bands")
    count = bands.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    kind = rt.choice(kind, RemezBandsKind, "kind")
    rt.fits(bands, (count, 4), "bands")
    delta_ = ctypes.c_double()
    h_ = rt.result(out, (taps,), rt.F8, (bands,))
    status = _ZemFunc408(taps, fs, rt.pointer(bands), count, kind, rt.pointer(h_), ctypes.byref(delta_))
    rt.check(status, "fir_remez_bands")
    return FirRemezBandsResult(rt.deliver(h_, out), delta_.value)


_ZemFunc69 = rt.bind("ZemFunc69", "status", "dddipp")


class FirRemezLowpassResult(NamedTuple):
    """What `fir_remez_lowpass` gives."""

    h: np.ndarray
    delta: float


def fir_remez_lowpass(fs, fpass, fstop, taps, *, out=None):
    r"""A lowpass with equal weights.

    Parameters
    ----------
    fs : float
        the sampling rate
    fpass : float
        edge of the passband
    fstop : float
        edge of the stopband
    taps : int
        the number of coefficients, at least 3
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients
    delta : float
        the peak weighted error

    Raises
    ------
    QuorvanError
        -20031: taps is below 3
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc69 (FirRemezLowpass) of the C library.

    Example
    -------
    >>> h, delta = qv.fir_remez_lowpass(fs, fpass, fstop, taps)
    """
    fs = rt.real(fs, "fs")
    fpass = rt.real(fpass, "fpass")
    fstop = rt.real(fstop, "fstop")
    taps = rt.i32(taps, "taps")
    delta_ = ctypes.c_double()
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc69(fs, fpass, fstop, taps, rt.pointer(h_), ctypes.byref(delta_))
    rt.check(status, "fir_remez_lowpass")
    return FirRemezLowpassResult(rt.deliver(h_, out), delta_.value)


_ZemFunc68 = rt.bind("ZemFunc68", "status", "dddipp")


class FirRemezHighpassResult(NamedTuple):
    """What `fir_remez_highpass` gives."""

    h: np.ndarray
    delta: float


def fir_remez_highpass(fs, fstop, fpass, taps, *, out=None):
    r"""A highpass with equal weights.

    Parameters
    ----------
    fs : float
        the sampling rate
    fstop : float
        edge of the stopband
    fpass : float
        edge of the passband
    taps : int
        the number of coefficients, at least 3
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients
    delta : float
        the peak weighted error

    Raises
    ------
    QuorvanError
        -20031: taps is below 3
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20033: taps is even: the response would be 0 at fs/2
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc68 (FirRemezHighpass) of the C library.

    Example
    -------
    >>> h, delta = qv.fir_remez_highpass(fs, fstop, fpass, taps)
    """
    fs = rt.real(fs, "fs")
    fstop = rt.real(fstop, "fstop")
    fpass = rt.real(fpass, "fpass")
    taps = rt.i32(taps, "taps")
    delta_ = ctypes.c_double()
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc68(fs, fstop, fpass, taps, rt.pointer(h_), ctypes.byref(delta_))
    rt.check(status, "fir_remez_highpass")
    return FirRemezHighpassResult(rt.deliver(h_, out), delta_.value)


_ZemFunc66 = rt.bind("ZemFunc66", "status", "dddddipp")


class FirRemezBandpassResult(NamedTuple):
    """What `fir_remez_bandpass` gives."""

    h: np.ndarray
    delta: float


def fir_remez_bandpass(fs, f1, f2, f3, f4, taps, *, out=None):
    r"""A bandpass with equal weights.

    Parameters
    ----------
    fs : float
        the sampling rate
    f1 : float
        end of the lower stopband
    f2 : float
        begin of the passband
    f3 : float
        end of the passband
    f4 : float
        begin of the upper stopband
    taps : int
        the number of coefficients, at least 3
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients
    delta : float
        the peak weighted error

    Raises
    ------
    QuorvanError
        -20031: taps is below 3
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc66 (FirRemezBandpass) of the C library.

    Example
    -------
    >>> h, delta = qv.fir_remez_bandpass(fs, f1, f2, f3, f4, taps)
    """
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    f3 = rt.real(f3, "f3")
    f4 = rt.real(f4, "f4")
    taps = rt.i32(taps, "taps")
    delta_ = ctypes.c_double()
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc66(fs, f1, f2, f3, f4, taps, rt.pointer(h_), ctypes.byref(delta_))
    rt.check(status, "fir_remez_bandpass")
    return FirRemezBandpassResult(rt.deliver(h_, out), delta_.value)


_ZemFunc67 = rt.bind("ZemFunc67", "status", "dddddipp")


class FirRemezBandstopResult(NamedTuple):
    """What `fir_remez_bandstop` gives."""

    h: np.ndarray
    delta: float


def fir_remez_bandstop(fs, f1, f2, f3, f4, taps, *, out=None):
    r"""A bandstop with equal weights.

    Parameters
    ----------
    fs : float
        the sampling rate
    f1 : float
        end of the lower passband
    f2 : float
        begin of the stopband
    f3 : float
        end of the stopband
    f4 : float
        begin of the upper passband
    taps : int
        the number of coefficients, at least 3
    out : array or None
        the array for `h`; it may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (taps,)
        the coefficients
    delta : float
        the peak weighted error

    Raises
    ------
    QuorvanError
        -20031: taps is below 3
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20033: taps is even: the response would be 0 at fs/2
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc67 (FirRemezBandstop) of the C library.

    Example
    -------
    >>> h, delta = qv.fir_remez_bandstop(fs, f1, f2, f3, f4, taps)
    """
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    f3 = rt.real(f3, "f3")
    f4 = rt.real(f4, "f4")
    taps = rt.i32(taps, "taps")
    delta_ = ctypes.c_double()
    h_ = rt.result(out, (taps,), rt.F8, ())
    status = _ZemFunc67(fs, f1, f2, f3, f4, taps, rt.pointer(h_), ctypes.byref(delta_))
    rt.check(status, "fir_remez_bandstop")
    return FirRemezBandstopResult(rt.deliver(h_, out), delta_.value)


_ZemFunc472 = rt.bind("ZemFunc472", "status", "plidddp")


def fir_remez_filter_lowpass(x, taps, fs, fpass, fstop, *, out=None):
    r"""Designs a lowpass with equal weights and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3
    fs : float
        the sampling rate
    fpass : float
        edge of the passband
    fstop : float
        edge of the stopband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    Complex arrays go to `fir_remez_filter_complex_lowpass`. The function ZemFunc472 (FirRemezFilterLowpass) of
    the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_lowpass(x, taps, fs, fpass, fstop)
    """
    if rt.is_complex(x):
        return fir_remez_filter_complex_lowpass(x=x, taps=taps, fs=fs, fpass=fpass, fstop=fstop, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fpass = rt.real(fpass, "fpass")
    fstop = rt.real(fstop, "fstop")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc472(rt.pointer(x), n, taps, fs, fpass, fstop, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_lowpass")
    return rt.deliver(y_, out)


_ZemFunc473 = rt.bind("ZemFunc473", "status", "plidddp")


def fir_remez_filter_highpass(x, taps, fs, fstop, fpass, *, out=None):
    r"""Designs a highpass with equal weights and filters samples with it, by Fourier transforms.

    Unlike the design, it makes an even number of taps odd: y then has n + taps samples.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3; an even number is raised by one
    fs : float
        the sampling rate
    fstop : float
        edge of the stopband
    fpass : float
        edge of the passband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - taps % 2,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    Complex arrays go to `fir_remez_filter_complex_highpass`. The function ZemFunc473 (FirRemezFilterHighpass) of
    the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_highpass(x, taps, fs, fstop, fpass)
    """
    if rt.is_complex(x):
        return fir_remez_filter_complex_highpass(x=x, taps=taps, fs=fs, fstop=fstop, fpass=fpass, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fstop = rt.real(fstop, "fstop")
    fpass = rt.real(fpass, "fpass")
    y_ = rt.result(out, (n + taps - rt.remainder(taps, 2),), rt.F8, (x,))
    status = _ZemFunc473(rt.pointer(x), n, taps, fs, fstop, fpass, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_highpass")
    return rt.deliver(y_, out)


_ZemFunc474 = rt.bind("ZemFunc474", "status", "plidddddp")


def fir_remez_filter_bandpass(x, taps, fs, f1, f2, f3, f4, *, out=None):
    r"""Designs a bandpass with equal weights and filters samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3
    fs : float
        the sampling rate
    f1 : float
        end of the lower stopband
    f2 : float
        begin of the passband
    f3 : float
        end of the passband
    f4 : float
        begin of the upper stopband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - 1,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    Complex arrays go to `fir_remez_filter_complex_bandpass`. The function ZemFunc474 (FirRemezFilterBandpass) of
    the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_bandpass(x, taps, fs, f1, f2, f3, f4)
    """
    if rt.is_complex(x):
        return fir_remez_filter_complex_bandpass(x=x, taps=taps, fs=fs, f1=f1, f2=f2, f3=f3, f4=f4, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    f3 = rt.real(f3, "f3")
    f4 = rt.real(f4, "f4")
    y_ = rt.result(out, (n + taps - 1,), rt.F8, (x,))
    status = _ZemFunc474(rt.pointer(x), n, taps, fs, f1, f2, f3, f4, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_bandpass")
    return rt.deliver(y_, out)


_ZemFunc475 = rt.bind("ZemFunc475", "status", "plidddddp")


def fir_remez_filter_bandstop(x, taps, fs, f1, f2, f3, f4, *, out=None):
    r"""Designs a bandstop with equal weights and filters samples with it, by Fourier transforms.

    Unlike the design, it makes an even number of taps odd: y then has n + taps samples.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3; an even number is raised by one
    fs : float
        the sampling rate
    f1 : float
        end of the lower passband
    f2 : float
        begin of the stopband
    f3 : float
        end of the stopband
    f4 : float
        begin of the upper passband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n + taps - taps % 2,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    Complex arrays go to `fir_remez_filter_complex_bandstop`. The function ZemFunc475 (FirRemezFilterBandstop) of
    the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_bandstop(x, taps, fs, f1, f2, f3, f4)
    """
    if rt.is_complex(x):
        return fir_remez_filter_complex_bandstop(x=x, taps=taps, fs=fs, f1=f1, f2=f2, f3=f3, f4=f4, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    f3 = rt.real(f3, "f3")
    f4 = rt.real(f4, "f4")
    y_ = rt.result(out, (n + taps - rt.remainder(taps, 2),), rt.F8, (x,))
    status = _ZemFunc475(rt.pointer(x), n, taps, fs, f1, f2, f3, f4, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_bandstop")
    return rt.deliver(y_, out)


_ZemFunc476 = rt.bind("ZemFunc476", "status", "plidddp")


def fir_remez_filter_complex_lowpass(x, taps, fs, fpass, fstop, *, out=None):
    r"""Designs a lowpass with equal weights and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3
    fs : float
        the sampling rate
    fpass : float
        edge of the passband
    fstop : float
        edge of the stopband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc476 (FirRemezFilterComplexLowpass) of the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_complex_lowpass(x, taps, fs, fpass, fstop)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fpass = rt.real(fpass, "fpass")
    fstop = rt.real(fstop, "fstop")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc476(rt.pointer(x), n, taps, fs, fpass, fstop, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_complex_lowpass")
    return rt.deliver(y_, out)


_ZemFunc477 = rt.bind("ZemFunc477", "status", "plidddp")


def fir_remez_filter_complex_highpass(x, taps, fs, fstop, fpass, *, out=None):
    r"""Designs a highpass with equal weights and filters complex samples with it, by Fourier transforms.

    Unlike the design, it makes an even number of taps odd: y then has n + taps samples.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3; an even number is raised by one
    fs : float
        the sampling rate
    fstop : float
        edge of the stopband
    fpass : float
        edge of the passband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - taps % 2,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc477 (FirRemezFilterComplexHighpass) of the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_complex_highpass(x, taps, fs, fstop, fpass)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    fstop = rt.real(fstop, "fstop")
    fpass = rt.real(fpass, "fpass")
    y_ = rt.result(out, (n + taps - rt.remainder(taps, 2),), rt.C16, (x,))
    status = _ZemFunc477(rt.pointer(x), n, taps, fs, fstop, fpass, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_complex_highpass")
    return rt.deliver(y_, out)


_ZemFunc478 = rt.bind("ZemFunc478", "status", "plidddddp")


def fir_remez_filter_complex_bandpass(x, taps, fs, f1, f2, f3, f4, *, out=None):
    r"""Designs a bandpass with equal weights and filters complex samples with it, by Fourier transforms.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3
    fs : float
        the sampling rate
    f1 : float
        end of the lower stopband
    f2 : float
        begin of the passband
    f3 : float
        end of the passband
    f4 : float
        begin of the upper stopband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - 1,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc478 (FirRemezFilterComplexBandpass) of the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_complex_bandpass(x, taps, fs, f1, f2, f3, f4)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    f3 = rt.real(f3, "f3")
    f4 = rt.real(f4, "f4")
    y_ = rt.result(out, (n + taps - 1,), rt.C16, (x,))
    status = _ZemFunc478(rt.pointer(x), n, taps, fs, f1, f2, f3, f4, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_complex_bandpass")
    return rt.deliver(y_, out)


_ZemFunc479 = rt.bind("ZemFunc479", "status", "plidddddp")


def fir_remez_filter_complex_bandstop(x, taps, fs, f1, f2, f3, f4, *, out=None):
    r"""Designs a bandstop with equal weights and filters complex samples with it, by Fourier transforms.

    Unlike the design, it makes an even number of taps odd: y then has n + taps samples.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    taps : int
        the number of coefficients, at least 3; an even number is raised by one
    fs : float
        the sampling rate
    f1 : float
        end of the lower passband
    f2 : float
        begin of the stopband
    f3 : float
        end of the stopband
    f4 : float
        begin of the upper passband
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n + taps - taps % 2,)
        the output: the whole convolution; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20031: taps is below 3
        -20046: the result exceeds 2^31 - 1 samples
        -20031: fs is not finite
        -20023: fs is not above 0
        -20031: an edge is not finite
        -20023: an edge is negative, or the edges do not ascend from 0 to fs/2
        -20020: fs is so small (below 4.5e-308) that its half rounds up
        -20001: the design would have more than 2045 functions, or memory is exhausted
        -20031: the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice;
        delta then tells the error so far

    Notes
    -----
    The function ZemFunc479 (FirRemezFilterComplexBandstop) of the C library.

    Example
    -------
    >>> y = qv.fir_remez_filter_complex_bandstop(x, taps, fs, f1, f2, f3, f4)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    taps = rt.i32(taps, "taps")
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    f3 = rt.real(f3, "f3")
    f4 = rt.real(f4, "f4")
    y_ = rt.result(out, (n + taps - rt.remainder(taps, 2),), rt.C16, (x,))
    status = _ZemFunc479(rt.pointer(x), n, taps, fs, f1, f2, f3, f4, rt.pointer(y_))
    rt.check(status, "fir_remez_filter_complex_bandstop")
    return rt.deliver(y_, out)
