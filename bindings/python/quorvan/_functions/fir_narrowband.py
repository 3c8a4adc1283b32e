r"""Narrowband FIR design.

Filters with a very narrow transition, as two stages with few multiplications: a model filter whose taps stand
`factor` samples apart, and an image suppressor that removes the copies of its response (Y. Neuvo, Dong C.-Y.
and S. K. Mitra, IEEE Trans. Acoust. Speech Signal Process. 32, 1984).

    H(z) = G(z^factor) S(z),     G the model, S the suppressor

The factor with the least sum of Kaiser's order estimates is taken; where none gains, a single filter is
designed. Both stages are equiripple and each spends at most half of the deviation, so that the cascade stays
within it. Bands beyond fs/4 are mirrored, or designed as the complement, whose output is added to the delayed
input. Frequencies are in the unit of the sampling rate fs. Taps are symmetric, in ascending delay.

The record belongs to the caller, between `fir_narrowband_create` and `fir_narrowband_release`, and takes one
design.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fir_narrowband_create",
    "fir_narrowband_release",
    "fir_narrowband_design",
    "fir_narrowband_filter",
    "fir_narrowband_filter_complex",
]
_max, _min = max, min

_ZemFunc491 = rt.bind("ZemFunc491", "handle", "")


def fir_narrowband_create():
    r"""A record with all fields zero; null when memory is exhausted.

    Returns
    -------
    FirNarrowband

    Notes
    -----
    The function ZemFunc491 (FirNarrowbandCreate) of the C library.

    Example
    -------
    >>> fir_narrowband = qv.fir_narrowband_create()
    """
    return rt.adopt("FirNarrowband", _ZemFunc491(), "fir_narrowband_create")


_ZemFunc492 = rt.bind("ZemFunc492", "none", "p")


def fir_narrowband_release(filter):
    r"""Frees both arrays of taps and the record.

    Parameters
    ----------
    filter : FirNarrowband
        the record

    Returns
    -------
    None

    Notes
    -----
    The function ZemFunc492 (FirNarrowbandRelease) of the C library.

    Example
    -------
    >>> qv.fir_narrowband_release(filter)
    """
    rt.release(filter, "FirNarrowband", _ZemFunc492)


_ZemFunc409 = rt.bind("ZemFunc409", "status", "ddddddup")


def fir_narrowband_design(fs, f1, f2, ripple, attenuation, kind, filter, center=0.0):
    r"""Designs a filter into the record; arrays that it held are not freed.

    Lowpass and bandpass want f1 < f2, highpass and bandstop f1 > f2. Each stage begins with the estimated order
    and grows by a twentieth until its error is small enough.

    Parameters
    ----------
    fs : float
        the sampling rate
    f1 : float
        edge of the passband of a lowpass or highpass; full width of the passband about the centre
    f2 : float
        edge of the stopband of a lowpass or highpass; full width of the stopband about the centre
    ripple : float
        linear deviation of the passband
    attenuation : float
        of the stopband, in dB
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    filter : FirNarrowband
        a fresh record; changed on success alone
    center : float, default 0.0
        centre of a bandpass or bandstop, inside 0 to fs/2; else ignored

    Returns
    -------
    None

    Raises
    ------
    QuorvanError
        -20031: a width, an edge, the centre or a deviation is out of its range, the kind is above 3, or an order
        is negative
        -20001: memory is exhausted, or a stage needs more than 2045 cosine functions
        -20023: a band reaches beyond 0 or fs/2
        -20031: the exchange fails

    Notes
    -----
    The function ZemFunc409 (FirNarrowbandDesign) of the C library.

    Example
    -------
    >>> qv.fir_narrowband_design(fs, f1, f2, ripple, attenuation, kind, filter)
    """
    fs = rt.real(fs, "fs")
    f1 = rt.real(f1, "f1")
    f2 = rt.real(f2, "f2")
    center = rt.real(center, "center")
    ripple = rt.real(ripple, "ripple")
    attenuation = rt.real(attenuation, "attenuation")
    kind = rt.choice(kind, FilterKind, "kind")
    status = _ZemFunc409(fs, f1, f2, center, ripple, attenuation, kind, rt.handle(filter, "FirNarrowband"))
    rt.check(status, "fir_narrowband_design")


_ZemFunc410 = rt.bind("ZemFunc410", "status", "plpp")


def fir_narrowband_filter(x, filter, *, out=None):
    r"""Filters samples: the whole convolution with both stages, in modes 3 to 5 added to the delayed input.

    The products are added themselves, without transforms. Modes outside 0 to 5 add no input.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    filter : FirNarrowband
        a designed record
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (filter.output_count(n),)
        the output: n + model_count - 1 samples for a factor of 1, otherwise (model_count - 1) factor + n +
        suppressor_count - 1; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n, or a number of taps, is below 1
        -20046: the output exceeds 2^31 - 1 samples
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `fir_narrowband_filter_complex`. The function ZemFunc410 (FirNarrowbandFilter) of the C
    library.

    Example
    -------
    >>> y = qv.fir_narrowband_filter(x, filter)
    """
    if rt.is_complex(x):
        return fir_narrowband_filter_complex(x=x, filter=filter, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    y_ = rt.result(out, (filter.output_count(n),), rt.F8, (x,))
    status = _ZemFunc410(rt.pointer(x), n, rt.handle(filter, "FirNarrowband"), rt.pointer(y_))
    rt.check(status, "fir_narrowband_filter")
    return rt.deliver(y_, out)


_ZemFunc411 = rt.bind("ZemFunc411", "status", "plpp")


def fir_narrowband_filter_complex(x, filter, *, out=None):
    r"""Filters the two parts of complex samples as two real signals.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    filter : FirNarrowband
        a designed record
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (filter.output_count(n),)
        the output, as long as that of `fir_narrowband_filter`; must not overlap x

    Raises
    ------
    QuorvanError
        -20003: n, or a number of taps, is below 1
        -20046: the output exceeds 2^31 - 1 samples
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc411 (FirNarrowbandFilterComplex) of the C library.

    Example
    -------
    >>> y = qv.fir_narrowband_filter_complex(x, filter)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    y_ = rt.result(out, (filter.output_count(n),), rt.C16, (x,))
    status = _ZemFunc411(rt.pointer(x), n, rt.handle(filter, "FirNarrowband"), rt.pointer(y_))
    rt.check(status, "fir_narrowband_filter_complex")
    return rt.deliver(y_, out)
