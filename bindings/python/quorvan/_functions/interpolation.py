r"""Interpolation.

The value between samples: by the one polynomial or the one diagonal rational function through all of them, by
a cubic spline in two stages (second derivatives once, then as many points as wanted), or by a smoothing
spline, which weighs the fit of the samples against the curvature.

    h = x[i + 1] - x[i],   A = (x[i + 1] - u) / h,   B = 1 - A
    spline(u) = A y[i] + B y[i + 1] + ((A^3 - A) y"[i] + (B^3 - B) y"[i + 1]) h^2 / 6
    smoothing: balance sum of w (y - s)^2 + (1 - balance) integral of lambda s"^2 is least

Abscissas ascend in the splines. A balance of 1 goes through the samples, one of 0 gives the line of least
squares.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "interp_polynomial",
    "interp_rational",
    "interp_spline_second_derivatives",
    "interp_spline_evaluate",
    "interp_smoothing_spline",
    "InterpPolynomialResult",
    "InterpRationalResult",
]
_max, _min = max, min

_ZemFunc138 = rt.bind("ZemFunc138", "status", "ppldpp")


class InterpPolynomialResult(NamedTuple):
    """What `interp_polynomial` gives."""

    result: float
    error: float


def interp_polynomial(x, y, point):
    r"""The value of the polynomial of degree n - 1 through all samples.

    Neville's scheme, along the path of corrections nearest the point. On an error nothing is written.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, distinct, in any order
    y : array_like of float64, shape (n,)
        the ordinates
    point : float
        where the value is wanted

    Returns
    -------
    result : float
        the value
    error : float
        an estimate of its error: the last correction; 0 for one sample

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20049: two abscissas are equal
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc138 (InterpPolynomial) of the C library.

    Example
    -------
    >>> result, error = qv.interp_polynomial(x, y, point)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    point = rt.real(point, "point")
    rt.fits(y, (n,), "y")
    result_ = ctypes.c_double()
    error_ = ctypes.c_double()
    status = _ZemFunc138(rt.pointer(x), rt.pointer(y), n, point, ctypes.byref(result_), ctypes.byref(error_))
    rt.check(status, "interp_polynomial")
    return InterpPolynomialResult(result_.value, error_.value)


_ZemFunc146 = rt.bind("ZemFunc146", "status", "ppldpp")


class InterpRationalResult(NamedTuple):
    """What `interp_rational` gives."""

    result: float
    error: float


def interp_rational(x, y, point):
    r"""The value of the diagonal rational function through all samples.

    The scheme of R. Bulirsch and J. Stoer (Numer. Math. 6, 1964). At a sample the value is that sample. On an
    error nothing is written.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, distinct, in any order
    y : array_like of float64, shape (n,)
        the ordinates
    point : float
        where the value is wanted

    Returns
    -------
    result : float
        the value
    error : float
        an estimate of its error: the last correction; 0 for one sample and at a sample

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20050: the function has a pole at the point
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc146 (InterpRational) of the C library.

    Example
    -------
    >>> result, error = qv.interp_rational(x, y, point)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    point = rt.real(point, "point")
    rt.fits(y, (n,), "y")
    result_ = ctypes.c_double()
    error_ = ctypes.c_double()
    status = _ZemFunc146(rt.pointer(x), rt.pointer(y), n, point, ctypes.byref(result_), ctypes.byref(error_))
    rt.check(status, "interp_rational")
    return InterpRationalResult(result_.value, error_.value)


_ZemFunc164 = rt.bind("ZemFunc164", "status", "pplddp")


def interp_spline_second_derivatives(x, y, first=1e30, last=1e30, *, out=None):
    r"""The second derivatives of the interpolating cubic spline, for `interp_spline_evaluate`.

    At a natural end the second derivative is 0. One sample gives 0. On -20049 the array holds partial values.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, ascending or descending
    y : array_like of float64, shape (n,)
        the ordinates
    first : float, default 1e30
        the first derivative at the first sample; above 9.9e29: a natural end
    last : float, default 1e30
        the first derivative at the last sample; above 9.9e29: a natural end
    out : array or None
        the array for `second`; it may be an input, to work in place

    Returns
    -------
    second : float64 array of shape (n,)
        the second derivatives of the spline at the samples

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20049: two of three consecutive abscissas are equal
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc164 (InterpSplineSecondDerivatives) of the C library.

    Example
    -------
    >>> second = qv.interp_spline_second_derivatives(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    first = rt.real(first, "first")
    last = rt.real(last, "last")
    rt.fits(y, (n,), "y")
    second_ = rt.result(out, (n,), rt.F8, (x, y))
    status = _ZemFunc164(rt.pointer(x), rt.pointer(y), n, first, last, rt.pointer(second_))
    rt.check(status, "interp_spline_second_derivatives")
    return rt.deliver(second_, out)


_ZemFunc163 = rt.bind("ZemFunc163", "status", "pppldp")


def interp_spline_evaluate(x, y, second, point):
    r"""The value of a cubic spline.

    Beyond the samples the end interval goes on.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, ascending or descending
    y : array_like of float64, shape (n,)
        the ordinates
    second : array_like of float64, shape (n,)
        the second derivatives at the samples
    point : float
        where the value is wanted

    Returns
    -------
    result : float
        the value

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20049: the interval at the point has the width 0, as one sample has

    Notes
    -----
    The function ZemFunc163 (InterpSplineEvaluate) of the C library.

    Example
    -------
    >>> result = qv.interp_spline_evaluate(x, y, second, point)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    second = rt.array(second, rt.F8, 1, "second")
    n = x.shape[0]
    point = rt.real(point, "point")
    rt.fits(y, (n,), "y")
    rt.fits(second, (n,), "second")
    result_ = ctypes.c_double()
    status = _ZemFunc163(rt.pointer(x), rt.pointer(y), rt.pointer(second), n, point, ctypes.byref(result_))
    rt.check(status, "interp_spline_evaluate")
    return result_.value


_ZemFunc285 = rt.bind("ZemFunc285", "status", "pppldpp")


def interp_smoothing_spline(y, balance, x=None, weights=None, smoothness=None, *, out=None):
    r"""The values at the samples of the cubic smoothing spline, which minimises balance sum of w (y - s)^2 + (1 -
    balance) integral of lambda s''^2.

    C. H. Reinsch, Numer. Math. 10 (1967). A balance outside 0 to 1 becomes 8 / (8 + g^3) with g = (x[n - 1] -
    x[0]) / n. A balance of exactly 1 copies y. Two samples leave the output untouched. On an error nothing is
    written, except that a balance of 1 copies before it finds equal abscissas.

    Parameters
    ----------
    y : array_like of float64, shape (n,)
        the ordinates
    balance : float
        from 0, the least-squares line, to 1, interpolation; outside, it is chosen from the mean interval
    x : array_like of float64, shape (n,), default None
        the abscissas, strictly ascending
    weights : array_like of float64, shape (n,), default None
        the weights of the samples, by magnitude
    smoothness : array_like of float64, shape (n - 1,), default None
        the weights of the intervals' curvature, by magnitude
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the smoothed values

    Raises
    ------
    QuorvanError
        -20006: n is below 2
        -20002: x is None
        -20049: the abscissas do not ascend strictly; with a balance of 1: two of three consecutive ones are equal
        -20141: a weight of a sample or of an interval is 0
        -20041: the system is singular (seven samples and more)
        -20062: the solver did not converge (fewer than seven samples)
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc285 (InterpSmoothingSpline) of the C library.

    Example
    -------
    >>> out = qv.interp_smoothing_spline(y, balance)
    """
    x = None if x is None else rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    smoothness = None if smoothness is None else rt.array(smoothness, rt.F8, 1, "smoothness")
    n = y.shape[0]
    balance = rt.real(balance, "balance")
    rt.fits(x, (n,), "x")
    rt.fits(weights, (n,), "weights")
    rt.fits(smoothness, (n - 1,), "smoothness")
    out_ = rt.result(out, (n,), rt.F8, (x, y, weights, smoothness))
    status = _ZemFunc285(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, balance, rt.pointer(smoothness),
            rt.pointer(out_))
    rt.check(status, "interp_smoothing_spline")
    return rt.deliver(out_, out)
