r"""Complex polynomial zeros.

All zeros of a polynomial with real coefficients, one after the other.

    c[0] z^(m - 1) + c[1] z^(m - 2) + ... + c[m - 1] = 0
    z <- z - p(z) / p'(z),  shortened and turned while |p| does not fall

A walk downhill on |p(z)| with limited and turned Newton steps, pure Newton steps near the zero, and deflation
(K. Madsen, BIT 13, 1973). Plain and fast, without a notion of multiplicity: a zero of multiplicity m comes
back as m neighbours, some eps^(1/m) apart. Coefficients stand in descending power, the highest first.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "poly_zeros",
]
_max, _min = max, min

_ZemFunc231 = rt.bind("ZemFunc231", "status", "pip")


def poly_zeros(c, *, out=None):
    r"""The zeros of a polynomial with real coefficients.

    Zero coefficients at the high end lower the degree: there are as many zeros as the degree says, and the rest
    of z stays unwritten. After an error z holds the zeros found so far. Conjugate zeros need not stand side by
    side.

    Parameters
    ----------
    c : array_like of float64, shape (m,)
        the coefficients, the highest power first
    out : array or None
        the array for `z`; it may be an input, to work in place

    Returns
    -------
    z : complex128 array of shape (m - 1,)
        the zeros in the order found, those at 0 first

    Raises
    ------
    QuorvanError
        -20003: m is below 1
        -20063: a coefficient is NaN, or the polynomial is a constant
        -20062: a search found no way down at one point
        -20116: a derivative became NaN: the coefficients are too large or too far apart
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc231 (PolyZeros) of the C library.

    Example
    -------
    >>> z = qv.poly_zeros(c)
    """
    c = rt.array(c, rt.F8, 1, "c")
    m = c.shape[0]
    z_ = rt.result(out, (m - 1,), rt.C16, (c,))
    status = _ZemFunc231(rt.pointer(c), rt.i32(m, "m"), rt.pointer(z_))
    rt.check(status, "poly_zeros")
    return rt.deliver(z_, out)
