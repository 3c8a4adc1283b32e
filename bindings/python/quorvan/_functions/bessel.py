r"""Bessel, Airy, Struve and Kelvin functions.

Solutions of Bessel's, Airy's, Struve's and Kelvin's equations for real arguments: fields in cylinders and
spheres, modulation, diffraction, the skin effect.

    J, Y    x^2 y" + x y' + (x^2 - v^2) y = 0
    I, K    x^2 y" + x y' - (x^2 + v^2) y = 0
    j, y    spherical: sqrt(pi / (2 x)) J(n + 1/2, x),  sqrt(pi / (2 x)) Y(n + 1/2, x)
    H       x^2 y" + x y' + (x^2 - v^2) y = 4 (x/2)^(v + 1) / (sqrt(pi) Gamma(v + 1/2))
    Ai, Bi  y" = x y
    ber(x) + i bei(x) = J(n, x e^(3 pi i / 4)),    ker(x) + i kei(x) = e^(-n pi i / 2) K(n, x e^(pi i / 4))

Values are returned as such or written to the caller's doubles: there is no status. A domain fault gives NaN
or the infinity that the function's text names; a NaN argument gives NaN in every result. Arguments in
radians. The accuracy, region by region, stands in docs/accuracy.md.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "bessel_j",
    "bessel_y",
    "spherical_bessel_j",
    "spherical_bessel_y",
    "bessel_i",
    "bessel_k",
    "struve",
    "airy",
    "kelvin_be",
    "kelvin_ke",
    "AiryResult",
]
_max, _min = max, min

_ZemFunc302 = rt.bind("ZemFunc302", "double", "dd")


def _bessel_j(order, x):
    order = rt.real(order, "order")
    x = rt.real(x, "x")
    return _ZemFunc302(order, x)


def bessel_j(order, x):
    r"""The Bessel function of the first kind J of real order.

    Series, recurrences and expansions for large argument or order. Whole orders take negative orders and
    arguments by parity; other orders give NaN for x < 0. At 0: 1 for order 0, 0 for higher and for whole orders,
    an infinity for others below 0. At infinity 0.

    Parameters
    ----------
    order : float
        any real number
    x : float
        any for a whole order, at least 0 for others

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc302 (SpecBesselJ) of the C
    library.

    Example
    -------
    >>> value = qv.bessel_j(order, x)
    """
    if rt.many(order, x):
        return rt.each(_bessel_j, order, x)
    return _bessel_j(order, x)


_ZemFunc301 = rt.bind("ZemFunc301", "double", "dd")


def _bessel_y(order, x):
    order = rt.real(order, "order")
    x = rt.real(x, "x")
    return _ZemFunc301(order, x)


def bessel_y(order, x):
    r"""The Bessel function of the second kind Y of real order, (cos(pi v) J(v) - J(-v)) / sin(pi v), in its limit for
    whole v.

    NaN for orders below -200 and for x < 0; -Inf at 0, 0 at infinity.

    Parameters
    ----------
    order : float
        at least -200; taken as whole within 1e-8 of a whole number
    x : float
        at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc301 (SpecBesselY) of the C
    library.

    Example
    -------
    >>> value = qv.bessel_y(order, x)
    """
    if rt.many(order, x):
        return rt.each(_bessel_y, order, x)
    return _bessel_y(order, x)


_ZemFunc303 = rt.bind("ZemFunc303", "double", "ud")


def _spherical_bessel_j(n, x):
    n = rt.u32(n, "n")
    x = rt.real(x, "x")
    return _ZemFunc303(n, x)


def spherical_bessel_j(n, x):
    r"""The spherical Bessel function j, sqrt(pi / (2 x)) J(n + 1/2, x); order 0 is sin(x) / x.

    Negative x by parity. At 0: 1 for order 0, else 0. At infinity 0.

    Parameters
    ----------
    n : int
        the order
    x : float
        any

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc303 (SpecSphericalJ) of the C
    library.

    Example
    -------
    >>> value = qv.spherical_bessel_j(n, x)
    """
    if rt.many(n, x):
        return rt.each(_spherical_bessel_j, n, x)
    return _spherical_bessel_j(n, x)


_ZemFunc304 = rt.bind("ZemFunc304", "double", "ud")


def _spherical_bessel_y(n, x):
    n = rt.u32(n, "n")
    x = rt.real(x, "x")
    return _ZemFunc304(n, x)


def spherical_bessel_y(n, x):
    r"""The spherical Bessel function y, sqrt(pi / (2 x)) Y(n + 1/2, x).

    NaN for x < 0, -Inf at 0, 0 at infinity.

    Parameters
    ----------
    n : int
        the order
    x : float
        at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc304 (SpecSphericalY) of the C
    library.

    Example
    -------
    >>> value = qv.spherical_bessel_y(n, x)
    """
    if rt.many(n, x):
        return rt.each(_spherical_bessel_y, n, x)
    return _spherical_bessel_y(n, x)


_ZemFunc305 = rt.bind("ZemFunc305", "double", "dd")


def _bessel_i(order, x):
    order = rt.real(order, "order")
    x = rt.real(x, "x")
    return _ZemFunc305(order, x)


def bessel_i(order, x):
    r"""The modified Bessel function of the first kind I of real order; I(-n) = I(n) for whole orders.

    NaN for orders below -200, and for x < 0 unless the order is whole. At 0: 1 for order 0, else 0, also for
    orders below 0.

    Parameters
    ----------
    order : float
        at least -200
    x : float
        any for a whole order, at least 0 for others

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc305 (SpecBesselI) of the C
    library.

    Example
    -------
    >>> value = qv.bessel_i(order, x)
    """
    if rt.many(order, x):
        return rt.each(_bessel_i, order, x)
    return _bessel_i(order, x)


_ZemFunc306 = rt.bind("ZemFunc306", "double", "ud")


def _bessel_k(n, x):
    n = rt.u32(n, "n")
    x = rt.real(x, "x")
    return _ZemFunc306(n, x)


def bessel_k(n, x):
    r"""The modified Bessel function of the second kind K of whole order, by recurrence from orders 0 and 1.

    NaN for x < 0, +Inf at 0, 0 at infinity.

    Parameters
    ----------
    n : int
        the order
    x : float
        at least 0

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc306 (SpecBesselK) of the C
    library.

    Example
    -------
    >>> value = qv.bessel_k(n, x)
    """
    if rt.many(n, x):
        return rt.each(_bessel_k, n, x)
    return _bessel_k(n, x)


_ZemFunc328 = rt.bind("ZemFunc328", "double", "dd")


def _struve(order, x):
    order = rt.real(order, "order")
    x = rt.real(x, "x")
    return _ZemFunc328(order, x)


def struve(order, x):
    r"""The Struve function H, by its power series, its expansion for large x, or the one with the smaller estimate of
    its error.

    Whole orders take negative x by parity; other orders give NaN for x < 0. At 0 and at infinity the limit.

    Parameters
    ----------
    order : float
        any real number
    x : float
        any for a whole order, at least 0 for others

    Returns
    -------
    float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc328 (SpecStruve) of the C library.

    Example
    -------
    >>> value = qv.struve(order, x)
    """
    if rt.many(order, x):
        return rt.each(_struve, order, x)
    return _struve(order, x)


_ZemFunc330 = rt.bind("ZemFunc330", "none", "dpp")


class AiryResult(NamedTuple):
    """What `airy` gives."""

    ai: float
    bi: float


def _airy(x):
    x = rt.real(x, "x")
    ai_ = ctypes.c_double()
    bi_ = ctypes.c_double()
    _ZemFunc330(x, ctypes.byref(ai_), ctypes.byref(bi_))
    return AiryResult(ai_.value, bi_.value)


def airy(x):
    r"""The two Airy functions.

    Above 103.892 Ai is 0 and Bi +Inf; at -Inf both are 0.

    Parameters
    ----------
    x : float
        any

    Returns
    -------
    ai : float
    bi : float

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc330 (SpecAiry) of the C library.

    Example
    -------
    >>> ai, bi = qv.airy(x)
    """
    if rt.many(x):
        return rt.each(_airy, x, result=AiryResult)
    return _airy(x)


_ZemFunc333 = rt.bind("ZemFunc333", "none", "dup")


def _kelvin_be(x, n):
    x = rt.real(x, "x")
    n = rt.u32(n, "n")
    out_ = rt.Complex()
    _ZemFunc333(x, n, ctypes.byref(out_))
    return complex(out_.re, out_.im)


def kelvin_be(x, n):
    r"""The Kelvin functions ber and bei of order n: ber + i bei = J(n, x e^(3 pi i / 4)).

    At 0: ber is 1 for n = 0, else 0, and bei 0. NaN at infinity, where they oscillate and grow.

    Parameters
    ----------
    x : float
        any; negative by parity
    n : int
        the order

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc333 (SpecKelvinBe) of the C
    library.

    Example
    -------
    >>> out = qv.kelvin_be(x, n)
    """
    if rt.many(x, n):
        return rt.each(_kelvin_be, x, n)
    return _kelvin_be(x, n)


_ZemFunc334 = rt.bind("ZemFunc334", "none", "dup")


def _kelvin_ke(x, n):
    x = rt.real(x, "x")
    n = rt.u32(n, "n")
    out_ = rt.Complex()
    _ZemFunc334(x, n, ctypes.byref(out_))
    return complex(out_.re, out_.im)


def kelvin_ke(x, n):
    r"""The Kelvin functions ker and kei of order n: ker + i kei = e^(-n pi i / 2) K(n, x e^(pi i / 4)).

    At 0: ker is +Inf, and kei has its limit, -pi/4 for n = 0. NaN for x < 0; both are 0 at infinity.

    Parameters
    ----------
    x : float
        at least 0
    n : int
        the order

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc334 (SpecKelvinKe) of the C
    library.

    Example
    -------
    >>> out = qv.kelvin_ke(x, n)
    """
    if rt.many(x, n):
        return rt.each(_kelvin_ke, x, n)
    return _kelvin_ke(x, n)
