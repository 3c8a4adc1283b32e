r"""Multiple polynomial roots and lag products.

The roots of complex polynomials whose multiple roots are to come back as such, and the normal matrices of
linear prediction.

    c[0] + c[1] z + ... + c[n - 1] z^(n - 1) = c[n - 1] product over the distinct roots of (z - z[k])^m[k]
    R = X^H X,   row t of X: x[t], x[t - 1], ..., x[t - p]

Coefficients stand in ascending power. A root of multiplicity m is listed m times.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "poly_roots_multiple",
    "lag_product",
    "lag_product_complex",
]
_max, _min = max, min

_ZemFunc300 = rt.bind("ZemFunc300", "status", "pup")


def poly_roots_multiple(c, *, out=None):
    r"""The roots of a complex polynomial, with multiple roots kept together.

    The multiplicities come from approximate greatest common divisors with the derivative, found by singular
    values at a tolerance of 1e-10; with them held fixed the roots are refined by Gauss-Newton steps, on which a
    multiple root is as well conditioned as a simple one (Z. Zeng, Math. Comp. 74, 2005). Roots that lie closer
    than their coefficients can tell come back as one multiple root. High zero coefficients lower the degree; the
    rest of roots stays unwritten.

    Parameters
    ----------
    c : array_like of complex128, shape (n,)
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
        -20062: the refinement or an eigenvalue did not converge; nothing is written
        -20068: a coefficient divided by the leading one, or the refinement, leaves the range of doubles, from
        degree 3 on
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc300 (PolyRootsMultiple) of the C library.

    Example
    -------
    >>> roots = qv.poly_roots_multiple(c)
    """
    c = rt.array(c, rt.C16, 1, "c")
    n = c.shape[0]
    roots_ = rt.result(out, (n - 1,), rt.C16, (c,))
    status = _ZemFunc300(rt.pointer(c), rt.u32(n, "n"), rt.pointer(roots_))
    rt.check(status, "poly_roots_multiple")
    return rt.deliver(roots_, out)


_ZemFunc415 = rt.bind("ZemFunc415", "status", "pllup")


def lag_product(x, p, method=LagMethod.AUTOCORRELATION, *, out=None):
    r"""The normal matrix of linear prediction, unscaled: X^H X of the matrix X whose row t holds x[t], x[t - 1], ...,
    x[t - p].

    Rows t: method 0 from 0 to n + p - 1, method 1 from 0 to n - 1, method 2 from p to n + p - 1, with 0 outside
    x; methods 3 and 4 from p to n - 1. Method 4 adds each row once more, conjugated and backwards. out may be x.
    After S. M. Kay, Modern Spectral Estimation, 1988.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    p : int
        the largest lag
    method : LagMethod, its name, or int, default LagMethod.AUTOCORRELATION
        0 autocorrelation, 1 prewindowed, 2 postwindowed, 3 covariance, 4 modified covariance
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (p + 1, p + 1)
        the product X^H X

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20059: p is below 0
        -20037: methods 3 and 4: p is not below n
        -20061: the method is above 4
        -20046: a size or the element count of out exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `lag_product_complex`. The function ZemFunc415 (MatLagProduct) of the C library.

    Example
    -------
    >>> out = qv.lag_product(x, p)
    """
    if rt.is_complex(x):
        return lag_product_complex(x=x, p=p, method=method, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    p = rt.i64(p, "p")
    method = rt.choice(method, LagMethod, "method")
    out_ = rt.result(out, (p + 1, p + 1), rt.F8, (x,))
    status = _ZemFunc415(rt.pointer(x), n, p, method, rt.pointer(out_))
    rt.check(status, "lag_product")
    return rt.deliver(out_, out)


_ZemFunc416 = rt.bind("ZemFunc416", "status", "pllup")


def lag_product_complex(x, p, method=LagMethod.AUTOCORRELATION, *, out=None):
    r"""The normal matrix of linear prediction, unscaled: X^H X of the matrix X whose row t holds x[t], x[t - 1], ...,
    x[t - p].

    Rows t: method 0 from 0 to n + p - 1, method 1 from 0 to n - 1, method 2 from p to n + p - 1, with 0 outside
    x; methods 3 and 4 from p to n - 1. Method 4 adds each row once more, conjugated and backwards. out may be x.
    After S. M. Kay, Modern Spectral Estimation, 1988.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    p : int
        the largest lag
    method : LagMethod, its name, or int, default LagMethod.AUTOCORRELATION
        0 autocorrelation, 1 prewindowed, 2 postwindowed, 3 covariance, 4 modified covariance
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (p + 1, p + 1)
        the product X^H X

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20059: p is below 0
        -20037: methods 3 and 4: p is not below n
        -20061: the method is above 4
        -20046: a size or the element count of out exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc416 (MatLagProductComplex) of the C library.

    Example
    -------
    >>> out = qv.lag_product_complex(x, p)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    p = rt.i64(p, "p")
    method = rt.choice(method, LagMethod, "method")
    out_ = rt.result(out, (p + 1, p + 1), rt.C16, (x,))
    status = _ZemFunc416(rt.pointer(x), n, p, method, rt.pointer(out_))
    rt.check(status, "lag_product_complex")
    return rt.deliver(out_, out)
