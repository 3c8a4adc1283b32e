r"""Gamma, beta and related functions.

Factorials and their continuations, the incomplete functions behind the distributions, and two sums of number
theory.

    Gamma(x) = integral of t^(x - 1) e^-t from 0 to infinity,     n! = Gamma(n + 1)
    P(a, x) = integral of t^(a - 1) e^-t from 0 to x / Gamma(a),  Q = 1 - P
    B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b)
    I_x(a, b) = integral of t^(a - 1) (1 - t)^(b - 1) from 0 to x / B(a, b)
    psi(x) = Gamma'(x) / Gamma(x),   zeta(x) - 1 = sum of k^-x from k = 2 on
    dilogarithm = integral of -ln t / (t - 1) from 1 to x = Li2(1 - x)

Scalar functions of real arguments, returned as the value itself: there is no status. A domain fault gives NaN
or the infinity that the function's text names; a NaN argument gives NaN. Where an argument goes by address, a
null pointer selects the complete function; the address of 0.0 does not.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "beta",
    "factorial",
    "gamma",
    "incomplete_gamma_complement",
    "ln_factorial",
    "ln_gamma",
    "digamma",
    "gamma_stirling",
    "dilogarithm",
    "zeta",
]
_max, _min = max, min

_ZemFunc307 = rt.bind("ZemFunc307", "double", "ddp")


def _beta(a, b, x):
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    return _ZemFunc307(a, b, rt.optional(x, "x"))


def beta(a, b, x=None):
    r"""The beta function, or the regularised incomplete one.

    Without x: B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b). At poles NaN or +Inf, as the Gammas give. Otherwise the
    regularised incomplete beta function I_x(a, b), the integral of t^(a-1) (1-t)^(b-1) from 0 to x over B(a, b).
    I_x(a, b) is NaN for a <= 0, b <= 0 or x outside [0, 1]; it is 0 at x = 0 and 1 at x = 1.

    Parameters
    ----------
    a : float
        first parameter; above 0 for the incomplete function
    b : float
        second parameter; above 0 for the incomplete function
    x : float, default None
        upper limit of the integral, 0 to 1

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc307 (SpecBeta) of the C library.

    Example
    -------
    >>> value = qv.beta(a, b)
    """
    if rt.many(a, b, x):
        return rt.each(_beta, a, b, x)
    return _beta(a, b, x)


_ZemFunc308 = rt.bind("ZemFunc308", "double", "l")


def _factorial(n):
    n = rt.i64(n, "n")
    return _ZemFunc308(n)


def factorial(n):
    r"""n! = 1 * 2 * ... * n; NaN below 0, +Inf above 170. n is a number, not a size: it is not narrowed.

    Parameters
    ----------
    n : int
        any integer

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc308 (SpecFactorial) of the C
    library.

    Example
    -------
    >>> value = qv.factorial(n)
    """
    if rt.many(n):
        return rt.each(_factorial, n)
    return _factorial(n)


_ZemFunc309 = rt.bind("ZemFunc309", "double", "dp")


def _gamma(a, x):
    a = rt.real(a, "a")
    return _ZemFunc309(a, rt.optional(x, "x"))


def gamma(a, x=None):
    r"""The gamma function, or the regularised incomplete one.

    Without x: Gamma(a). 0, negative integers and -Inf give NaN; +Inf above 171.624376956302725. Otherwise the
    regularised incomplete gamma function P(a, x), the integral of t^(a-1) e^-t from 0 to x over Gamma(a). P(a, x)
    is NaN for a <= 0 or x < 0; it is 0 at x = 0 and 1 at x = +Inf. Gamma at 1 - 2^-52 and at 2 - 2^-52 is given
    as 0.5; callers rely on the loops that lead there.

    Parameters
    ----------
    a : float
        the argument; above 0 for the incomplete function
    x : float, default None
        upper limit of the integral, at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc309 (SpecGamma) of the C library.

    Example
    -------
    >>> value = qv.gamma(a)
    """
    if rt.many(a, x):
        return rt.each(_gamma, a, x)
    return _gamma(a, x)


_ZemFunc310 = rt.bind("ZemFunc310", "double", "dd")


def _incomplete_gamma_complement(a, x):
    a = rt.real(a, "a")
    x = rt.real(x, "x")
    return _ZemFunc310(a, x)


def incomplete_gamma_complement(a, x):
    r"""Q(a, x) = 1 - P(a, x), the integral of t^(a-1) e^-t from x to infinity over Gamma(a).

    NaN for a <= 0 or x < 0; 1 at x = 0 and 0 at x = +Inf.

    Parameters
    ----------
    a : float
        above 0
    x : float
        lower limit of the integral, at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc310
    (SpecIncompleteGammaComplement) of the C library.

    Example
    -------
    >>> value = qv.incomplete_gamma_complement(a, x)
    """
    if rt.many(a, x):
        return rt.each(_incomplete_gamma_complement, a, x)
    return _incomplete_gamma_complement(a, x)


_ZemFunc311 = rt.bind("ZemFunc311", "double", "u")


def _ln_factorial(n):
    n = rt.u32(n, "n")
    return _ZemFunc311(n)


def ln_factorial(n):
    r"""ln n!.

    Parameters
    ----------
    n : int
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc311 (SpecLnFactorial) of the C
    library.

    Example
    -------
    >>> value = qv.ln_factorial(n)
    """
    if rt.many(n):
        return rt.each(_ln_factorial, n)
    return _ln_factorial(n)


_ZemFunc312 = rt.bind("ZemFunc312", "double", "d")


def _ln_gamma(x):
    x = rt.real(x, "x")
    return _ZemFunc312(x)


def ln_gamma(x):
    r"""ln |Gamma(x)|. 0, negative integers, and x above 2.556348e305 give +Inf.

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc312 (SpecLnGamma) of the C
    library.

    Example
    -------
    >>> value = qv.ln_gamma(x)
    """
    if rt.many(x):
        return rt.each(_ln_gamma, x)
    return _ln_gamma(x)


_ZemFunc313 = rt.bind("ZemFunc313", "double", "d")


def _digamma(x):
    x = rt.real(x, "x")
    return _ZemFunc313(x)


def digamma(x):
    r"""psi(x), the derivative of ln Gamma(x). 0, negative integers and -Inf give NaN.

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc313 (SpecDigamma) of the C
    library.

    Example
    -------
    >>> value = qv.digamma(x)
    """
    if rt.many(x):
        return rt.each(_digamma, x)
    return _digamma(x)


_ZemFunc314 = rt.bind("ZemFunc314", "double", "d")


def _gamma_stirling(x):
    x = rt.real(x, "x")
    return _ZemFunc314(x)


def gamma_stirling(x):
    r"""sqrt(2 pi) x^(x - 1/2) e^-x (1 + 1/(12 x) + ...), Stirling's formula for Gamma(x) with five terms. +Inf above
    709.7827128933.

    Nothing is refused: below 33 the five terms are simply too few.

    Parameters
    ----------
    x : float
        above 0; the formula is meant for x > 33

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc314 (SpecGammaStirling) of the C
    library.

    Example
    -------
    >>> value = qv.gamma_stirling(x)
    """
    if rt.many(x):
        return rt.each(_gamma_stirling, x)
    return _gamma_stirling(x)


_ZemFunc326 = rt.bind("ZemFunc326", "double", "d")


def _dilogarithm(x):
    x = rt.real(x, "x")
    return _ZemFunc326(x)


def dilogarithm(x):
    r"""Spence's integral, the integral of -ln t / (t - 1) from 1 to x, which is Li2(1 - x).

    NaN below 0; pi^2/6 at 0, 0 at 1.

    Parameters
    ----------
    x : float
        at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc326 (SpecDilogarithm) of the C
    library.

    Example
    -------
    >>> value = qv.dilogarithm(x)
    """
    if rt.many(x):
        return rt.each(_dilogarithm, x)
    return _dilogarithm(x)


_ZemFunc329 = rt.bind("ZemFunc329", "double", "d")


def _zeta(x):
    x = rt.real(x, "x")
    return _ZemFunc329(x)


def zeta(x):
    r"""The Riemann zeta function minus 1: the 1 is left out because it would hide the rest for large x. +Inf at 1, 0
    from 127 on, NaN below -30.8148.

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc329 (SpecZeta) of the C library.

    Example
    -------
    >>> value = qv.zeta(x)
    """
    if rt.many(x):
        return rt.each(_zeta, x)
    return _zeta(x)
