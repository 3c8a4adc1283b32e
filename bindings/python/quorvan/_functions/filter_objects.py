r"""Filter objects and the cascade engine.

Recursive filters for streams: an object keeps the coefficients and the delay lines of its stages, and a
signal that is cut into blocks comes out as it would in one piece, to the last bit.

    H(z) = product over the stages of (b[0] + b[1] z^-1 + ... + b[w] z^-w) / (1 + a[0] z^-1 + ... + a[w - 1] z^-w)
    t  = v - a[0] d[0] - a[1] d[1] - ... - a[w - 1] d[w - 1]
    v' = t b[0] + b[1] d[0] + b[2] d[1] + ... + b[w] d[w - 1]
    d[1 ...] = d[0 ...],  d[0] = t

Each sample v goes through a stage with the coefficients a and b and the delay line d in this way (direct form
II; sums from the left) and v' into the next stage. The width w is 2 for lowpass and highpass, 4 for bandpass
and bandstop, and there are (order + 1) / 2 stages. The leading 1 of the denominator is not stored; signs are
those of the denominator. The caller may read the record: stage s has its a at s w, its b at s (w + 1), its d
at s w with the newest value first.

A filter is created, designed (see iir_design), and then applied to any number of blocks; `memory_release`
gives the object back. What enters a delay line or leaves the last stage becomes 0 where its magnitude is
2.2250738585072014e-308 or less: a decaying response ends in zeros and does not slow down on denormals. An
object belongs to one thread at a time.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "iir_filter_create",
    "iir_state_complex_create",
    "iir_filter_reset",
    "iir_cascade_apply",
    "iir_cascade_apply_complex",
]
_max, _min = max, min

_ZemFunc233 = rt.bind("ZemFunc233", "handle", "ui")


def iir_filter_create(kind, order):
    r"""Creates a filter with its delay lines at 0.

    Its coefficients are not set before it is designed. Null for another kind, for an order below 1, and when
    memory runs out.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
    order : int
        order of the analog prototype, at least 1; band kinds have twice this order

    Returns
    -------
    IirFilter

    Notes
    -----
    The function ZemFunc233 (IirFilterCreate) of the C library.

    Example
    -------
    >>> iir_filter = qv.iir_filter_create(kind, order)
    """
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    return rt.adopt("IirFilter", _ZemFunc233(kind, order), "iir_filter_create")


_ZemFunc469 = rt.bind("ZemFunc469", "handle", "ui")


def iir_state_complex_create(kind, order):
    r"""Creates the delay lines with which a filter is applied to complex data, all 0.

    Null for a kind above 3, for an order below 1, and when memory runs out.

    Parameters
    ----------
    kind : FilterKind, its name, or int
        of the filter that it will be used with
    order : int
        of the filter that it will be used with

    Returns
    -------
    IirStateComplex

    Notes
    -----
    The function ZemFunc469 (IirStateComplexCreate) of the C library.

    Example
    -------
    >>> iir_state_complex = qv.iir_state_complex_create(kind, order)
    """
    kind = rt.choice(kind, FilterKind, "kind")
    order = rt.i32(order, "order")
    return rt.adopt("IirStateComplex", _ZemFunc469(kind, order), "iir_state_complex_create")


_ZemFunc235 = rt.bind("ZemFunc235", "none", "p")


def iir_filter_reset(filter):
    r"""Makes the next application, and only that one, start from delay lines of 0.

    The delay lines cleared are those of that application: the filter's own, or the ones for complex data.

    Parameters
    ----------
    filter : IirFilter
        the filter

    Returns
    -------
    None

    Notes
    -----
    The function ZemFunc235 (IirFilterReset) of the C library.

    Example
    -------
    >>> qv.iir_filter_reset(filter)
    """
    _ZemFunc235(rt.handle(filter, "IirFilter"))


_ZemFunc91 = rt.bind("ZemFunc91", "status", "plpp")


def iir_cascade_apply(x, filter, *, out=None):
    r"""Filters the next block of a signal. y may be x.

    A pending reset is done first, also when n is then refused. After an error no sample is written.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    filter : IirFilter
        the filter, designed
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20066: the counts of the record do not fit together; a pending reset stays pending
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc91 (IirCascadeApply) of the C library.

    Example
    -------
    >>> y = qv.iir_cascade_apply(x, filter)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc91(rt.pointer(x), n, rt.handle(filter, "IirFilter"), rt.pointer(y_))
    rt.check(status, "iir_cascade_apply")
    return rt.deliver(y_, out)


_ZemFunc466 = rt.bind("ZemFunc466", "status", "plppp")


def iir_cascade_apply_complex(x, filter, state, *, out=None):
    r"""Filters the next block of a complex signal: its real and its imaginary part, each by itself. y may be x.

    A pending reset of the filter is done first, also when n is then refused. After an error no sample is written.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the signal
    filter : IirFilter
        the filter, designed
    state : IirStateComplex
        the delay lines, of the same kind and order
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the filtered signal

    Raises
    ------
    QuorvanError
        -20066: the counts of the two records do not fit together; a pending reset stays pending
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc466 (IirCascadeApplyComplex) of the C library.

    Example
    -------
    >>> y = qv.iir_cascade_apply_complex(x, filter, state)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    y_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc466(rt.pointer(x), n, rt.handle(filter, "IirFilter"), rt.handle(state, "IirStateComplex"),
            rt.pointer(y_))
    rt.check(status, "iir_cascade_apply_complex")
    return rt.deliver(y_, out)
