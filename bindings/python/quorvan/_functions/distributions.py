r"""Probability distributions.

Probabilities and critical values of tests: the error function, and the normal, Student's t, chi-square and F
distributions with their inverses.

    erf(x)        2 / sqrt(pi) integral of exp(-t^2) from 0 to x,     erfc(x) = 1 - erf(x)
    normal        P(x) = integral of exp(-t^2 / 2) / sqrt(2 pi) from -infinity to x
    Student's t   1 - I_w(k/2, 1/2) / 2 for t >= 0,                   w = k / (k + t^2)
    chi-square    P(k/2, x/2), the regularised incomplete gamma function
    F             I_w(k1/2, k2/2),                                    w = k1 x / (k2 + k1 x)

All are lower tails, the probability of a value at or below the argument; I is the regularised incomplete beta
function and k counts degrees of freedom. An inverse takes a probability and gives the quantile.

The normal pair are short closed formulas, right to 1.2e-5 and 4.5e-4. The inverses of the other distributions
bisect with a fixed tolerance of 1e-4 and give the lower end of the last bracket: they are made for critical
values, not for digits. After a status the output is as it was, except where NaN is told. A NaN probability
gives -20053.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "erf",
    "erfc",
    "normal_cdf",
    "normal_inverse",
    "t_cdf",
    "t_inverse",
    "chi_square_cdf",
    "chi_square_inverse",
    "f_cdf",
    "f_inverse",
]
_max, _min = max, min

_ZemFunc70 = rt.bind("ZemFunc70", "status", "dp")


def _erf(x):
    x = rt.real(x, "x")
    out_ = ctypes.c_double()
    status = _ZemFunc70(x, ctypes.byref(out_))
    rt.check(status, "erf")
    return out_.value


def erf(x):
    r"""The error function, 2 / sqrt(pi) times the integral of exp(-t^2) from 0 to x.

    Always succeeds. Method: rational approximations, Cephes Math Library, S. L. Moshier.

    Parameters
    ----------
    x : float
        the samples

    Returns
    -------
    out : float
        from -1 to 1; NaN for NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc70 (DistErf) of the C library.

    Example
    -------
    >>> out = qv.erf(x)
    """
    if rt.many(x):
        return rt.each(_erf, x)
    return _erf(x)


_ZemFunc71 = rt.bind("ZemFunc71", "status", "dp")


def _erfc(x):
    x = rt.real(x, "x")
    out_ = ctypes.c_double()
    status = _ZemFunc71(x, ctypes.byref(out_))
    rt.check(status, "erfc")
    return out_.value


def erfc(x):
    r"""The complementary error function, 1 - erf(x), without cancellation for large x.

    Always succeeds. Below exp(-709.78), from x of 26.64 on, it is 0. Method: rational approximations, Cephes Math
    Library, S. L. Moshier.

    Parameters
    ----------
    x : float
        the samples

    Returns
    -------
    out : float
        from 2 to 0; NaN for NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc71 (DistErfc) of the C library.

    Example
    -------
    >>> out = qv.erfc(x)
    """
    if rt.many(x):
        return rt.each(_erfc, x)
    return _erfc(x)


_ZemFunc134 = rt.bind("ZemFunc134", "status", "dp")


def _normal_cdf(x):
    x = rt.real(x, "x")
    out_ = ctypes.c_double()
    status = _ZemFunc134(x, ctypes.byref(out_))
    rt.check(status, "normal_cdf")
    return out_.value


def normal_cdf(x):
    r"""The distribution function of the standard normal distribution, right to 1.2e-5.

    Always succeeds. Method: Abramowitz and Stegun (1964), 26.2.16.

    Parameters
    ----------
    x : float
        in standard deviations from the mean

    Returns
    -------
    out : float
        the probability of a value at or below x

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc134 (DistNormalCdf) of the C
    library.

    Example
    -------
    >>> out = qv.normal_cdf(x)
    """
    if rt.many(x):
        return rt.each(_normal_cdf, x)
    return _normal_cdf(x)


_ZemFunc106 = rt.bind("ZemFunc106", "status", "dp")


def _normal_inverse(p):
    p = rt.real(p, "p")
    out_ = ctypes.c_double()
    status = _ZemFunc106(p, ctypes.byref(out_))
    rt.check(status, "normal_inverse")
    return out_.value


def normal_inverse(p):
    r"""The quantile of the standard normal distribution, right to 4.5e-4.

    That of 0.5 is near 0, not exactly 0. Method: Abramowitz and Stegun (1964), 26.2.23.

    Parameters
    ----------
    p : float
        a probability, 0 to 1

    Returns
    -------
    out : float
        the quantile; -Inf for 0, +Inf for 1

    Raises
    ------
    QuorvanError
        -20053: p is outside [0, 1] or NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc106 (DistNormalInverse) of the C
    library.

    Example
    -------
    >>> out = qv.normal_inverse(p)
    """
    if rt.many(p):
        return rt.each(_normal_inverse, p)
    return _normal_inverse(p)


_ZemFunc181 = rt.bind("ZemFunc181", "status", "dip")


def _t_cdf(t, dof):
    t = rt.real(t, "t")
    dof = rt.i32(dof, "dof")
    out_ = ctypes.c_double()
    status = _ZemFunc181(t, dof, ctypes.byref(out_))
    rt.check(status, "t_cdf")
    return out_.value


def t_cdf(t, dof):
    r"""The distribution function of Student's t distribution, from the incomplete beta function.

    Parameters
    ----------
    t : float
    dof : int
        degrees of freedom

    Returns
    -------
    out : float
        the probability of a value at or below t

    Raises
    ------
    QuorvanError
        -20052: dof is below 1
        -20104: t is NaN; out is NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc181 (DistTCdf) of the C library.

    Example
    -------
    >>> out = qv.t_cdf(t, dof)
    """
    if rt.many(t, dof):
        return rt.each(_t_cdf, t, dof)
    return _t_cdf(t, dof)


_ZemFunc107 = rt.bind("ZemFunc107", "status", "dip")


def _t_inverse(p, dof):
    p = rt.real(p, "p")
    dof = rt.i32(dof, "dof")
    out_ = ctypes.c_double()
    status = _ZemFunc107(p, dof, ctypes.byref(out_))
    rt.check(status, "t_inverse")
    return out_.value


def t_inverse(p, dof):
    r"""The quantile of Student's t distribution, by bisection between -10000 and 10000; no other quantile lies
    outside.

    Parameters
    ----------
    p : float
        a probability, 0 to 1
    dof : int
        degrees of freedom

    Returns
    -------
    out : float
        the quantile, within 1e-4 below it; -Inf for 0, +Inf for 1

    Raises
    ------
    QuorvanError
        -20052: dof is below 1
        -20053: p is outside [0, 1] or NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc107 (DistTInverse) of the C
    library.

    Example
    -------
    >>> out = qv.t_inverse(p, dof)
    """
    if rt.many(p, dof):
        return rt.each(_t_inverse, p, dof)
    return _t_inverse(p, dof)


_ZemFunc190 = rt.bind("ZemFunc190", "status", "dip")


def _chi_square_cdf(x, dof):
    x = rt.real(x, "x")
    dof = rt.i32(dof, "dof")
    out_ = ctypes.c_double()
    status = _ZemFunc190(x, dof, ctypes.byref(out_))
    rt.check(status, "chi_square_cdf")
    return out_.value


def chi_square_cdf(x, dof):
    r"""The distribution function of the chi-square distribution, from the incomplete gamma function.

    It is 0 up to 0.

    Parameters
    ----------
    x : float
        the samples
    dof : int
        degrees of freedom; 0 is allowed and gives NaN above 0

    Returns
    -------
    out : float
        the probability of a value at or below x

    Raises
    ------
    QuorvanError
        -20052: dof is below 0

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc190 (DistChiSquareCdf) of the C
    library.

    Example
    -------
    >>> out = qv.chi_square_cdf(x, dof)
    """
    if rt.many(x, dof):
        return rt.each(_chi_square_cdf, x, dof)
    return _chi_square_cdf(x, dof)


_ZemFunc108 = rt.bind("ZemFunc108", "status", "dip")


def _chi_square_inverse(p, dof):
    p = rt.real(p, "p")
    dof = rt.i32(dof, "dof")
    out_ = ctypes.c_double()
    status = _ZemFunc108(p, dof, ctypes.byref(out_))
    rt.check(status, "chi_square_inverse")
    return out_.value


def chi_square_inverse(p, dof):
    r"""The quantile of the chi-square distribution, by bisection.

    The upper end of the bracket grows in steps of 5000.

    Parameters
    ----------
    p : float
        a probability, 0 to 1
    dof : int
        degrees of freedom

    Returns
    -------
    out : float
        the quantile, within 1e-4 below it; 0 for 0, +Inf for 1

    Raises
    ------
    QuorvanError
        -20053: p is outside [0, 1] or NaN
        -20052: dof is below 1

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc108 (DistChiSquareInverse) of the
    C library.

    Example
    -------
    >>> out = qv.chi_square_inverse(p, dof)
    """
    if rt.many(p, dof):
        return rt.each(_chi_square_inverse, p, dof)
    return _chi_square_inverse(p, dof)


_ZemFunc83 = rt.bind("ZemFunc83", "status", "diip")


def _f_cdf(x, dof1, dof2):
    x = rt.real(x, "x")
    dof1 = rt.i32(dof1, "dof1")
    dof2 = rt.i32(dof2, "dof2")
    out_ = ctypes.c_double()
    status = _ZemFunc83(x, dof1, dof2, ctypes.byref(out_))
    rt.check(status, "f_cdf")
    return out_.value


def f_cdf(x, dof1, dof2):
    r"""The distribution function of the F distribution, from the incomplete beta function.

    It is 0 up to 0.

    Parameters
    ----------
    x : float
        the samples
    dof1 : int
        degrees of freedom of the numerator
    dof2 : int
        degrees of freedom of the denominator

    Returns
    -------
    out : float
        the probability of a value at or below x

    Raises
    ------
    QuorvanError
        -20052: dof1 or dof2 is below 1
        -20104: x is NaN; out is NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc83 (DistFCdf) of the C library.

    Example
    -------
    >>> out = qv.f_cdf(x, dof1, dof2)
    """
    if rt.many(x, dof1, dof2):
        return rt.each(_f_cdf, x, dof1, dof2)
    return _f_cdf(x, dof1, dof2)


_ZemFunc104 = rt.bind("ZemFunc104", "status", "diip")


def _f_inverse(p, dof1, dof2):
    p = rt.real(p, "p")
    dof1 = rt.i32(dof1, "dof1")
    dof2 = rt.i32(dof2, "dof2")
    out_ = ctypes.c_double()
    status = _ZemFunc104(p, dof1, dof2, ctypes.byref(out_))
    rt.check(status, "f_inverse")
    return out_.value


def f_inverse(p, dof1, dof2):
    r"""The quantile of the F distribution, by bisection between 1e-6 and 10000; no other quantile lies outside.

    Parameters
    ----------
    p : float
        a probability, 0 to 1
    dof1 : int
        degrees of freedom of the numerator
    dof2 : int
        degrees of freedom of the denominator

    Returns
    -------
    out : float
        the quantile, within 1e-4 below it; 0 for 0, +Inf for 1

    Raises
    ------
    QuorvanError
        -20052: dof1 or dof2 is below 1
        -20053: p is outside [0, 1] or NaN

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc104 (DistFInverse) of the C
    library.

    Example
    -------
    >>> out = qv.f_inverse(p, dof1, dof2)
    """
    if rt.many(p, dof1, dof2):
        return rt.each(_f_inverse, p, dof1, dof2)
    return _f_inverse(p, dof1, dof2)
