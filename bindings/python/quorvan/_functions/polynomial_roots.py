r"""Polynomial roots with their multiplicities.

The roots of a real polynomial, found in a way that keeps multiple roots together: first the structure of
multiplicities, through a chain of approximate greatest common divisors of the polynomial and its derivative,
then the distinct roots as simple roots of a divisor. The method is for accuracy on low and moderate degrees.

    c[0] + c[1] z + ... + c[n - 1] z^(n - 1) = c[n - 1] product over the distinct roots of (z - z[k])^m[k]

Coefficients stand in ascending power. A root of multiplicity m is listed m times.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "poly_roots_real",
]
_max, _min = max, min

_ZemFunc299 = rt.bind("ZemFunc299", "status", "pup")


def poly_roots_real(c, *, out=None):
    r"""The roots of a real polynomial, with multiple roots kept together.

    Z. Zeng, Math. Comp. 74 (2005), at a tolerance of 1e-10; degrees 1 and 2 directly. Where no consistent
    structure is found, the eigenvalues of the companion matrix. High zero coefficients lower the degree; the rest
    of roots stays unwritten.

    Parameters
    ----------
    c : array_like of float64, shape (n,)
        the coefficients in ascending powers, the constant first
    out : array or None
        the array for `roots`; it may be an input, to work in place

    Returns
    -------
    roots : complex128 array of shape (n - 1,)
        the roots, each as often as its multiplicity says, the root 0 last

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20063: a coefficient is NaN, infinite or of the largest magnitude
        -20111: all coefficients are 0
        -20021: the polynomial is a constant
        -20062: an eigenvalue or a singular value did not converge; nothing is written
        -20068: a coefficient divided by the leading one leaves the range of doubles, from degree 3 on
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc299 (PolyRootsReal) of the C library.

    Example
    -------
    >>> roots = qv.poly_roots_real(c)
    """
    c = rt.array(c, rt.F8, 1, "c")
    n = c.shape[0]
    roots_ = rt.result(out, (n - 1,), rt.C16, (c,))
    status = _ZemFunc299(rt.pointer(c), rt.u32(n, "n"), rt.pointer(roots_))
    rt.check(status, "poly_roots_real")
    return rt.deliver(roots_, out)
