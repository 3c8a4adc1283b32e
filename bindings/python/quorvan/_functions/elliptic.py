r"""Elliptic, hypergeometric and integral functions.

Arc lengths, pendulums and filter theory (elliptic), asymptotic and special solutions (hypergeometric),
diffraction, transients and antennas (integrals), of real arguments.

    F(phi, m) = integral of dt / sqrt(1 - m sin^2 t) from 0 to phi,      K(m) = F(pi/2, m)
    E(phi, m) = integral of sqrt(1 - m sin^2 t) dt from 0 to phi,        E(m) = E(pi/2, m)
    sn u = sin phi, cn u = cos phi, dn u = sqrt(1 - m sin^2 phi),        where F(phi, m) = u
    C(x) = integral of cos(pi t^2 / 2) from 0 to x,   S(x) = integral of sin(pi t^2 / 2)
    1F1(a; b; x) = sum of (a)_k / (b)_k x^k / k!,     2F1(a, b; c; x) = sum of (a)_k (b)_k / (c)_k x^k / k!

The elliptic functions take the parameter m = k^2, not the modulus k; angles in radians. The hypergeometric
functions take x before the parameters; (a)_k = a (a + 1) ... (a + k - 1). Where an argument goes by address,
a null pointer selects the complete integral; the address of 0.0 does not.

Values are returned as such or written to the caller's doubles: there is no status. A domain fault gives NaN
or the infinity that the function's text names; a NaN argument gives NaN, in every output.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "elliptic_k",
    "elliptic_e",
    "jacobi_elliptic",
    "dawson",
    "fresnel",
    "exp_integral_n",
    "sine_integral",
    "cosine_integral",
    "hyperbolic_sine_integral",
    "hyperbolic_cosine_integral",
    "hyperg_1f1",
    "hyperg_u",
    "hyperg_2f1",
    "hyperg_2f1_transformed",
    "parabolic_cylinder",
    "JacobiEllipticResult",
    "FresnelResult",
]
_max, _min = max, min

_ZemFunc318 = rt.bind("ZemFunc318", "double", "dp")


def _elliptic_k(m, phi):
    m = rt.real(m, "m")
    return _ZemFunc318(m, rt.optional(phi, "phi"))


def elliptic_k(m, phi=None):
    r"""The elliptic integral of the first kind, complete or incomplete.

    Without phi: K(m), the integral of 1/sqrt(1 - m sin^2 t) from 0 to pi/2. pi/2 at m = 0, +Inf at m = 1.
    Otherwise F(phi, m), the same integral from 0 to phi: odd in phi, F(phi + pi) = F(phi) + 2 K. At m = 1
    infinite from |phi| = pi/2 on. NaN for m outside [0, 1]. Rational forms in 1 - m with its logarithm; the
    descending Landen transformation (Moshier 1989, ellpk and ellik).

    Parameters
    ----------
    m : float
        the parameter, 0 to 1
    phi : float, default None
        the amplitude in radians

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc318 (SpecEllipticK) of the C
    library.

    Example
    -------
    >>> value = qv.elliptic_k(m)
    """
    if rt.many(m, phi):
        return rt.each(_elliptic_k, m, phi)
    return _elliptic_k(m, phi)


_ZemFunc319 = rt.bind("ZemFunc319", "double", "dp")


def _elliptic_e(m, phi):
    m = rt.real(m, "m")
    return _ZemFunc319(m, rt.optional(phi, "phi"))


def elliptic_e(m, phi=None):
    r"""The elliptic integral of the second kind, complete or incomplete.

    Without phi: E(m), the integral of sqrt(1 - m sin^2 t) from 0 to pi/2. pi/2 at m = 0, 1 at m = 1. Otherwise
    E(phi, m), the same integral from 0 to phi: odd in phi, E(phi + pi) = E(phi) + 2 E. NaN for m outside [0, 1].
    Method as for the first kind (Moshier 1989, ellpe and ellie).

    Parameters
    ----------
    m : float
        the parameter, 0 to 1
    phi : float, default None
        the amplitude in radians

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc319 (SpecEllipticE) of the C
    library.

    Example
    -------
    >>> value = qv.elliptic_e(m)
    """
    if rt.many(m, phi):
        return rt.each(_elliptic_e, m, phi)
    return _elliptic_e(m, phi)


_ZemFunc332 = rt.bind("ZemFunc332", "none", "ddpppp")


class JacobiEllipticResult(NamedTuple):
    """What `jacobi_elliptic` gives."""

    sn: float
    cn: float
    dn: float
    phi: float


def _jacobi_elliptic(u, m):
    u = rt.real(u, "u")
    m = rt.real(m, "m")
    sn_ = ctypes.c_double()
    cn_ = ctypes.c_double()
    dn_ = ctypes.c_double()
    phi_ = ctypes.c_double()
    _ZemFunc332(u, m, ctypes.byref(sn_), ctypes.byref(cn_), ctypes.byref(dn_), ctypes.byref(phi_))
    return JacobiEllipticResult(sn_.value, cn_.value, dn_.value, phi_.value)


def jacobi_elliptic(u, m):
    r"""The Jacobian elliptic functions.

    All outputs are NaN for m outside [0, 1] and for infinite u (but for m = 1). Arithmetic-geometric mean with at
    most nine steps; expansions in m below 1e-9 and in 1 - m from 0.999999999 on (Moshier 1989, ellpj).

    Parameters
    ----------
    u : float
        the argument
    m : float
        the parameter, 0 to 1

    Returns
    -------
    sn : float
    cn : float
    dn : float
    phi : float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc332 (SpecJacobiElliptic) of the C
    library.

    Example
    -------
    >>> result = qv.jacobi_elliptic(u, m)
    """
    if rt.many(u, m):
        return rt.each(_jacobi_elliptic, u, m, result=JacobiEllipticResult)
    return _jacobi_elliptic(u, m)


_ZemFunc320 = rt.bind("ZemFunc320", "double", "d")


def _dawson(x):
    x = rt.real(x, "x")
    return _ZemFunc320(x)


def dawson(x):
    r"""Dawson's integral, e^(-x^2) times the integral of e^(t^2) from 0 to x.

    Odd; 0.5413 at most, near 1/(2x) for large x. Rational forms with cuts at 3.25 and 6.25, 1/(2x) above 1e9
    (Moshier 1989, dawsn).

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc320 (SpecDawson) of the C library.

    Example
    -------
    >>> value = qv.dawson(x)
    """
    if rt.many(x):
        return rt.each(_dawson, x)
    return _dawson(x)


_ZemFunc331 = rt.bind("ZemFunc331", "none", "dpp")


class FresnelResult(NamedTuple):
    """What `fresnel` gives."""

    s: float
    c: float


def _fresnel(x):
    x = rt.real(x, "x")
    s_ = ctypes.c_double()
    c_ = ctypes.c_double()
    _ZemFunc331(x, ctypes.byref(s_), ctypes.byref(c_))
    return FresnelResult(s_.value, c_.value)


def fresnel(x):
    r"""The Fresnel integrals, both odd.

    Above |x| = 36974 both are 0.5 with the sign of x. Rational forms, by auxiliary functions from x^2 = 2.5625 on
    (Moshier 1989, fresnl).

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    s : float
    c : float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc331 (SpecFresnel) of the C
    library.

    Example
    -------
    >>> s, c = qv.fresnel(x)
    """
    if rt.many(x):
        return rt.each(_fresnel, x, result=FresnelResult)
    return _fresnel(x)


_ZemFunc321 = rt.bind("ZemFunc321", "double", "di")


def _exp_integral_n(x, n):
    x = rt.real(x, "x")
    n = rt.i32(n, "n")
    return _ZemFunc321(x, n)


def exp_integral_n(x, n):
    r"""E_n(x), the integral of e^(-x t) / t^n from 1 to infinity.

    NaN for x < 0 or n < 0. 0 above x = 709.7827128933; at x = 0 1/(n - 1), +Inf for n < 2. Power series up to x =
    1, continued fraction above, an asymptotic form for n above 5000 (Moshier 1989, expn).

    Parameters
    ----------
    x : float
        at least 0
    n : int
        the order, at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc321 (SpecExpIntegralN) of the C
    library.

    Example
    -------
    >>> value = qv.exp_integral_n(x, n)
    """
    if rt.many(x, n):
        return rt.each(_exp_integral_n, x, n)
    return _exp_integral_n(x, n)


_ZemFunc322 = rt.bind("ZemFunc322", "double", "d")


def _sine_integral(x):
    x = rt.real(x, "x")
    return _ZemFunc322(x)


def sine_integral(x):
    r"""Si(x), the integral of sin(t)/t from 0 to x.

    Odd; pi/2 at +Inf. Rational forms with cuts at 4 and 8, pi/2 - cos(x)/x above 1e9 (Moshier 1989, sici).

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc322 (SpecSineIntegral) of the C
    library.

    Example
    -------
    >>> value = qv.sine_integral(x)
    """
    if rt.many(x):
        return rt.each(_sine_integral, x)
    return _sine_integral(x)


_ZemFunc323 = rt.bind("ZemFunc323", "double", "d")


def _cosine_integral(x):
    x = rt.real(x, "x")
    return _ZemFunc323(x)


def cosine_integral(x):
    r"""Ci(x) = gamma + ln|x| + the integral of (cos(t) - 1)/t from 0 to x. -Inf at 0; at negative x the real part,
    the value at |x|.

    Rational forms with cuts at 4 and 8, sin(x)/x above 1e9 (Moshier 1989, sici).

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc323 (SpecCosineIntegral) of the C
    library.

    Example
    -------
    >>> value = qv.cosine_integral(x)
    """
    if rt.many(x):
        return rt.each(_cosine_integral, x)
    return _cosine_integral(x)


_ZemFunc325 = rt.bind("ZemFunc325", "double", "d")


def _hyperbolic_sine_integral(x):
    x = rt.real(x, "x")
    return _ZemFunc325(x)


def hyperbolic_sine_integral(x):
    r"""Shi(x), the integral of sinh(t)/t from 0 to x.

    Odd; infinite above |x| = 88, well before a double would overflow. Power series up to 8, Chebyshev sums above
    (Moshier 1989, shichi).

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc325 (SpecHyperbolicSineIntegral)
    of the C library.

    Example
    -------
    >>> value = qv.hyperbolic_sine_integral(x)
    """
    if rt.many(x):
        return rt.each(_hyperbolic_sine_integral, x)
    return _hyperbolic_sine_integral(x)


_ZemFunc324 = rt.bind("ZemFunc324", "double", "d")


def _hyperbolic_cosine_integral(x):
    x = rt.real(x, "x")
    return _ZemFunc324(x)


def hyperbolic_cosine_integral(x):
    r"""Chi(x) = gamma + ln|x| + the integral of (cosh(t) - 1)/t from 0 to x. -Inf at 0, +Inf above |x| = 88; at
    negative x the value at |x|.

    Power series up to 8, Chebyshev sums above (Moshier 1989, shichi).

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc324 (SpecHyperbolicCosineIntegral)
    of the C library.

    Example
    -------
    >>> value = qv.hyperbolic_cosine_integral(x)
    """
    if rt.many(x):
        return rt.each(_hyperbolic_cosine_integral, x)
    return _hyperbolic_cosine_integral(x)


_ZemFunc316 = rt.bind("ZemFunc316", "double", "ddd")


def _hyperg_1f1(x, a, b):
    x = rt.real(x, "x")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    return _ZemFunc316(x, a, b)


def hyperg_1f1(x, a, b):
    r"""Kummer's confluent hypergeometric function 1F1(a; b; x) = 1 + a/b x + a(a+1)/(b(b+1)) x^2/2! + ...

    +Inf for b = 0, -1, -2, ... unless a ends the series before. NaN for infinite parameters, and where no digit
    would be right. Power series, Kummer's transformation or asymptotic form, the best by its estimated error
    (Moshier 1989, hyperg).

    Parameters
    ----------
    x : float
        any
    a : float
        upper parameter
    b : float
        lower parameter

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc316 (SpecHyperg1F1) of the C
    library.

    Example
    -------
    >>> value = qv.hyperg_1f1(x, a, b)
    """
    if rt.many(x, a, b):
        return rt.each(_hyperg_1f1, x, a, b)
    return _hyperg_1f1(x, a, b)


_ZemFunc317 = rt.bind("ZemFunc317", "double", "ddd")


def _hyperg_u(x, a, b):
    x = rt.real(x, "x")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    return _ZemFunc317(x, a, b)


def hyperg_u(x, a, b):
    r"""Tricomi's confluent hypergeometric function U(a, b, x), which falls like x^-a.

    Complex at x < 0, and NaN there unless it is a polynomial (times a whole power of x); at x = 0 infinite for b
    >= 1. Two 1F1 or their limit for whole b (Abramowitz and Stegun 13.1.3, 13.1.6), the asymptotic series, or the
    integral 13.2.5.

    Parameters
    ----------
    x : float
        at least 0
    a : float
        first parameter
    b : float
        second parameter

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc317 (SpecHypergU) of the C
    library.

    Example
    -------
    >>> value = qv.hyperg_u(x, a, b)
    """
    if rt.many(x, a, b):
        return rt.each(_hyperg_u, x, a, b)
    return _hyperg_u(x, a, b)


_ZemFunc386 = rt.bind("ZemFunc386", "double", "dddd")


def _hyperg_2f1(x, a, b, c):
    x = rt.real(x, "x")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    c = rt.real(c, "c")
    return _ZemFunc386(x, a, b, c)


def hyperg_2f1(x, a, b, c):
    r"""Gauss's hypergeometric function 2F1(a, b; c; x) = 1 + a b/c x + a(a+1) b(b+1)/(c(c+1)) x^2/2! + ..., continued
    to x <= 1. +Inf for c = 0, -1, -2, ... unless a or b ends the series before.

    NaN for x > 1 unless it is a polynomial (times a whole power of 1 - x), and where no digit would be right. At
    x = 1 infinite for c - a - b <= 0. Power series up to 0.9, in powers of 1 - x above, by x/(x - 1) below -0.2
    (Moshier 1989, hyp2f1).

    Parameters
    ----------
    x : float
        at most 1; any where the function is a polynomial
    a : float
        first upper parameter
    b : float
        second upper parameter
    c : float
        lower parameter

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc386 (SpecHyperg2F1) of the C
    library.

    Example
    -------
    >>> value = qv.hyperg_2f1(x, a, b, c)
    """
    if rt.many(x, a, b, c):
        return rt.each(_hyperg_2f1, x, a, b, c)
    return _hyperg_2f1(x, a, b, c)


_ZemFunc315 = rt.bind("ZemFunc315", "double", "dddd")


def _hyperg_2f1_transformed(x, a, b, c):
    x = rt.real(x, "x")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    c = rt.real(c, "c")
    return _ZemFunc315(x, a, b, c)


def hyperg_2f1_transformed(x, a, b, c):
    r"""The same function 2F1(a, b; c; x) with the transformation to x/(x - 1) below -0.5.

    Parameters
    ----------
    x : float
        at most 1; any where the function is a polynomial
    a : float
        first upper parameter
    b : float
        second upper parameter
    c : float
        lower parameter

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc315 (SpecHyperg2F1Transformed) of
    the C library.

    Example
    -------
    >>> value = qv.hyperg_2f1_transformed(x, a, b, c)
    """
    if rt.many(x, a, b, c):
        return rt.each(_hyperg_2f1_transformed, x, a, b, c)
    return _hyperg_2f1_transformed(x, a, b, c)


_ZemFunc327 = rt.bind("ZemFunc327", "double", "dd")


def _parabolic_cylinder(x, v):
    x = rt.real(x, "x")
    v = rt.real(v, "v")
    return _ZemFunc327(x, v)


def parabolic_cylinder(x, v):
    r"""The parabolic cylinder function D_v(x), from two reciprocal Gammas and Kummer's series, to some 2e-9 for small
    arguments. x = +Inf gives 0. x = -Inf gives 0 for whole v >= 0, +Inf for v < 0, and else +Inf or -Inf as the
    whole part of v is odd or even.

    NaN for v = +Inf at finite x, and wherever a sum leaves the range of a double.

    Parameters
    ----------
    x : float
        the argument
    v : float
        the order

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc327 (SpecParabolicCylinder) of the
    C library.

    Example
    -------
    >>> value = qv.parabolic_cylinder(x, v)
    """
    if rt.many(x, v):
        return rt.each(_parabolic_cylinder, x, v)
    return _parabolic_cylinder(x, v)
