r"""Complex arithmetic.

Complex numbers as pairs of doubles, real part first: arguments by value, results by address. Complex arrays
are split: one array of real parts, one of imaginary parts.

    (a + bi)(c + di) = (a c - b d) + (b c + a d) i
    magnitude = sqrt(re^2 + im^2),  phase = atan2(im, re) in radians, in [-pi, pi]
    sqrt, log and powers are those of the principal branch, cut along the negative real axis

A scalar function writes both parts of its result, or neither on an error. Each operation has its own
convention for zero arguments. Squared magnitudes are formed as they stand, and overflow to infinity.

An output array may be any of the input arrays, also crosswise: every element is read whole before it is
written.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "complex_add",
    "complex_subtract",
    "complex_multiply",
    "complex_divide",
    "complex_reciprocal",
    "complex_sqrt",
    "complex_exp",
    "complex_log",
    "complex_log10",
    "complex_pow",
    "complex_to_polar",
    "complex_from_polar",
    "complex_array_add",
    "complex_array_subtract",
    "complex_array_multiply",
    "complex_array_divide",
    "complex_array_to_polar",
    "complex_array_from_polar",
    "complex_array_linear_eval",
    "ComplexToPolarResult",
    "ComplexArrayToPolarResult",
]
_max, _min = max, min

_ZemFunc38 = rt.bind("ZemFunc38", "status", "ddddpp")


def _complex_add(x, y):
    x = rt.complex_number(x, "x")
    y = rt.complex_number(y, "y")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc38(x.real, x.imag, y.real, y.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_add")
    return complex(out_re.value, out_im.value)


def complex_add(x, y):
    r"""Adds two complex numbers: (a + c, b + d).

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the first operand
    y : complex, with the parts (c, d)
        the second operand

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc38 (CxAdd) of the C library.

    Example
    -------
    >>> out = qv.complex_add(x, y)
    """
    if rt.many(x, y):
        return rt.each(_complex_add, x, y)
    return _complex_add(x, y)


_ZemFunc51 = rt.bind("ZemFunc51", "status", "ddddpp")


def _complex_subtract(x, y):
    x = rt.complex_number(x, "x")
    y = rt.complex_number(y, "y")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc51(x.real, x.imag, y.real, y.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_subtract")
    return complex(out_re.value, out_im.value)


def complex_subtract(x, y):
    r"""Subtracts two complex numbers: (a - c, b - d).

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the first operand
    y : complex, with the parts (c, d)
        the second operand

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc51 (CxSubtract) of the C library.

    Example
    -------
    >>> out = qv.complex_subtract(x, y)
    """
    if rt.many(x, y):
        return rt.each(_complex_subtract, x, y)
    return _complex_subtract(x, y)


_ZemFunc46 = rt.bind("ZemFunc46", "status", "ddddpp")


def _complex_multiply(x, y):
    x = rt.complex_number(x, "x")
    y = rt.complex_number(y, "y")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc46(x.real, x.imag, y.real, y.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_multiply")
    return complex(out_re.value, out_im.value)


def complex_multiply(x, y):
    r"""Multiplies two complex numbers: (a*c - b*d, b*c + a*d).

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the first operand
    y : complex, with the parts (c, d)
        the second operand

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc46 (CxMultiply) of the C library.

    Example
    -------
    >>> out = qv.complex_multiply(x, y)
    """
    if rt.many(x, y):
        return rt.each(_complex_multiply, x, y)
    return _complex_multiply(x, y)


_ZemFunc40 = rt.bind("ZemFunc40", "status", "ddddpp")


def _complex_divide(x, y):
    x = rt.complex_number(x, "x")
    y = rt.complex_number(y, "y")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc40(x.real, x.imag, y.real, y.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_divide")
    return complex(out_re.value, out_im.value)


def complex_divide(x, y):
    r"""Divides two complex numbers after R. L. Smith (Comm.

    ACM 5, 1962). If |c| >= |d|: r = d/c, den = r*d + c, re = (r*b + a)/den, im = (b - r*a)/den; otherwise r =
    c/d, den = r*c + d, re = (r*a + b)/den, im = (r*b - a)/den. A divisor of zero gives NaN in both parts and
    status 0, unlike `complex_reciprocal`.

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the first operand
    y : complex, with the parts (c, d)
        the second operand

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc40 (CxDivide) of the C library.

    Example
    -------
    >>> out = qv.complex_divide(x, y)
    """
    if rt.many(x, y):
        return rt.each(_complex_divide, x, y)
    return _complex_divide(x, y)


_ZemFunc49 = rt.bind("ZemFunc49", "status", "ddpp")


def _complex_reciprocal(x):
    x = rt.complex_number(x, "x")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc49(x.real, x.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_reciprocal")
    return complex(out_re.value, out_im.value)


def complex_reciprocal(x):
    r"""The reciprocal of a complex number by the plain formula: with m = a*a + b*b, (a/m, -(b/m)).

    The square can overflow or underflow where `complex_divide` would not.

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the complex number

    Returns
    -------
    out : complex

    Raises
    ------
    QuorvanError
        -20060: both parts are zero

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc49 (CxReciprocal) of the C
    library.

    Example
    -------
    >>> out = qv.complex_reciprocal(x)
    """
    if rt.many(x):
        return rt.each(_complex_reciprocal, x)
    return _complex_reciprocal(x)


_ZemFunc50 = rt.bind("ZemFunc50", "status", "ddpp")


def _complex_sqrt(x):
    x = rt.complex_number(x, "x")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc50(x.real, x.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_sqrt")
    return complex(out_re.value, out_im.value)


def complex_sqrt(x):
    r"""The principal square root of a complex number: magnitude sqrt(sqrt(a*a + b*b)), phase atan2(b, a) / 2.

    Where a*a + b*b is zero, both parts are 0.

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the complex number

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc50 (CxSqrt) of the C library.

    Example
    -------
    >>> out = qv.complex_sqrt(x)
    """
    if rt.many(x):
        return rt.each(_complex_sqrt, x)
    return _complex_sqrt(x)


_ZemFunc42 = rt.bind("ZemFunc42", "status", "ddpp")


def _complex_exp(x):
    x = rt.complex_number(x, "x")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc42(x.real, x.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_exp")
    return complex(out_re.value, out_im.value)


def complex_exp(x):
    r"""The exponential of a complex number: e = exp(a), (e * cos b, e * sin b).

    Where b is 0, the imaginary part is exactly 0.

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the complex number

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc42 (CxExp) of the C library.

    Example
    -------
    >>> out = qv.complex_exp(x)
    """
    if rt.many(x):
        return rt.each(_complex_exp, x)
    return _complex_exp(x)


_ZemFunc44 = rt.bind("ZemFunc44", "status", "ddpp")


def _complex_log(x):
    x = rt.complex_number(x, "x")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc44(x.real, x.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_log")
    return complex(out_re.value, out_im.value)


def complex_log(x):
    r"""The natural logarithm of a complex number: (ln(a*a + b*b) / 2, atan2(b, a)).

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the complex number

    Returns
    -------
    out : complex

    Raises
    ------
    QuorvanError
        -20060: a*a + b*b is zero

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc44 (CxLog) of the C library.

    Example
    -------
    >>> out = qv.complex_log(x)
    """
    if rt.many(x):
        return rt.each(_complex_log, x)
    return _complex_log(x)


_ZemFunc45 = rt.bind("ZemFunc45", "status", "ddpp")


def _complex_log10(x):
    x = rt.complex_number(x, "x")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc45(x.real, x.imag, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_log10")
    return complex(out_re.value, out_im.value)


def complex_log10(x):
    r"""The decimal logarithm of a complex number: (log10(a*a + b*b) / 2, atan2(b, a) * 0.434294481903252).

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the complex number

    Returns
    -------
    out : complex

    Raises
    ------
    QuorvanError
        -20060: a*a + b*b is zero

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc45 (CxLog10) of the C library.

    Example
    -------
    >>> out = qv.complex_log10(x)
    """
    if rt.many(x):
        return rt.each(_complex_log10, x)
    return _complex_log10(x)


_ZemFunc48 = rt.bind("ZemFunc48", "status", "dddpp")


def _complex_pow(x, p):
    x = rt.complex_number(x, "x")
    p = rt.real(p, "p")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc48(x.real, x.imag, p, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_pow")
    return complex(out_re.value, out_im.value)


def complex_pow(x, p):
    r"""Raises a complex number to a real power: with m = a*a + b*b, magnitude m^(p/2), phase p * atan2(b, a).

    Where m is zero, any p but 0 gives 0, also a negative one.

    Parameters
    ----------
    x : complex, with the parts (a, b)
        the complex number
    p : float
        the exponent

    Returns
    -------
    out : complex

    Raises
    ------
    QuorvanError
        -20060: a*a + b*b and p are zero

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc48 (CxPow) of the C library.

    Example
    -------
    >>> out = qv.complex_pow(x, p)
    """
    if rt.many(x, p):
        return rt.each(_complex_pow, x, p)
    return _complex_pow(x, p)


_ZemFunc172 = rt.bind("ZemFunc172", "status", "ddpp")


class ComplexToPolarResult(NamedTuple):
    """What `complex_to_polar` gives."""

    magnitude: float
    phase: float


def _complex_to_polar(z):
    z = rt.complex_number(z, "z")
    magnitude_ = ctypes.c_double()
    phase_ = ctypes.c_double()
    status = _ZemFunc172(z.real, z.imag, ctypes.byref(magnitude_), ctypes.byref(phase_))
    rt.check(status, "complex_to_polar")
    return ComplexToPolarResult(magnitude_.value, phase_.value)


def complex_to_polar(z):
    r"""Magnitude and phase of a complex number.

    Zero, of any sign, has magnitude 0 and phase 0.

    Parameters
    ----------
    z : complex, with the parts (re, im)
        the complex number

    Returns
    -------
    magnitude : float
        sqrt(re*re + im*im)
    phase : float
        atan2(im, re), in radians from -pi to pi

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc172 (CxToPolar) of the C library.

    Example
    -------
    >>> magnitude, phase = qv.complex_to_polar(z)
    """
    if rt.many(z):
        return rt.each(_complex_to_polar, z, result=ComplexToPolarResult)
    return _complex_to_polar(z)


_ZemFunc174 = rt.bind("ZemFunc174", "status", "ddpp")


def _complex_from_polar(magnitude, phase):
    magnitude = rt.real(magnitude, "magnitude")
    phase = rt.real(phase, "phase")
    out_re = ctypes.c_double()
    out_im = ctypes.c_double()
    status = _ZemFunc174(magnitude, phase, ctypes.byref(out_re), ctypes.byref(out_im))
    rt.check(status, "complex_from_polar")
    return complex(out_re.value, out_im.value)


def complex_from_polar(magnitude, phase):
    r"""The complex number of a magnitude and a phase: (magnitude * cos phase, magnitude * sin phase).

    Parameters
    ----------
    magnitude : float
        the magnitude
    phase : float
        the phase in radians

    Returns
    -------
    out : complex

    Notes
    -----
    Arrays are taken element by element, with broadcasting. The function ZemFunc174 (CxFromPolar) of the C
    library.

    Example
    -------
    >>> out = qv.complex_from_polar(magnitude, phase)
    """
    if rt.many(magnitude, phase):
        return rt.each(_complex_from_polar, magnitude, phase)
    return _complex_from_polar(magnitude, phase)


_ZemFunc39 = rt.bind("ZemFunc39", "status", "pppplpp")


def complex_array_add(a, b, *, out=None):
    r"""Adds two complex arrays, element by element as `complex_add`.

    Parameters
    ----------
    a : array_like of complex128, shape (n,)
        the first operand
    b : array_like of complex128, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc39 (CxArrAdd) of the C library.

    Example
    -------
    >>> out = qv.complex_array_add(a, b)
    """
    a = rt.array(a, rt.C16, 1, "a")
    b = rt.array(b, rt.C16, 1, "b")
    n = a.shape[0]
    rt.fits(a, (n,), "a")
    rt.fits(b, (n,), "b")
    a_re, a_im = rt.parts(a)
    b_re, b_im = rt.parts(b)
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc39(rt.pointer(a_re), rt.pointer(a_im), rt.pointer(b_re), rt.pointer(b_im), n, rt.pointer(out_re),
            rt.pointer(out_im))
    rt.check(status, "complex_array_add")
    return rt.joined(out_re, out_im, out)


_ZemFunc52 = rt.bind("ZemFunc52", "status", "pppplpp")


def complex_array_subtract(a, b, *, out=None):
    r"""Subtracts two complex arrays, element by element as `complex_subtract`.

    Parameters
    ----------
    a : array_like of complex128, shape (n,)
        the first operand
    b : array_like of complex128, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc52 (CxArrSubtract) of the C library.

    Example
    -------
    >>> out = qv.complex_array_subtract(a, b)
    """
    a = rt.array(a, rt.C16, 1, "a")
    b = rt.array(b, rt.C16, 1, "b")
    n = a.shape[0]
    rt.fits(a, (n,), "a")
    rt.fits(b, (n,), "b")
    a_re, a_im = rt.parts(a)
    b_re, b_im = rt.parts(b)
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc52(rt.pointer(a_re), rt.pointer(a_im), rt.pointer(b_re), rt.pointer(b_im), n, rt.pointer(out_re),
            rt.pointer(out_im))
    rt.check(status, "complex_array_subtract")
    return rt.joined(out_re, out_im, out)


_ZemFunc47 = rt.bind("ZemFunc47", "status", "pppplpp")


def complex_array_multiply(a, b, *, out=None):
    r"""Multiplies two complex arrays, element by element as `complex_multiply`.

    Parameters
    ----------
    a : array_like of complex128, shape (n,)
        the first operand
    b : array_like of complex128, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc47 (CxArrMultiply) of the C library.

    Example
    -------
    >>> out = qv.complex_array_multiply(a, b)
    """
    a = rt.array(a, rt.C16, 1, "a")
    b = rt.array(b, rt.C16, 1, "b")
    n = a.shape[0]
    rt.fits(a, (n,), "a")
    rt.fits(b, (n,), "b")
    a_re, a_im = rt.parts(a)
    b_re, b_im = rt.parts(b)
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc47(rt.pointer(a_re), rt.pointer(a_im), rt.pointer(b_re), rt.pointer(b_im), n, rt.pointer(out_re),
            rt.pointer(out_im))
    rt.check(status, "complex_array_multiply")
    return rt.joined(out_re, out_im, out)


_ZemFunc41 = rt.bind("ZemFunc41", "status", "pppplpp")


def complex_array_divide(a, b, *, out=None):
    r"""Divides two complex arrays, element by element as `complex_divide`.

    Does not stop at a zero divisor: its quotient is NaN.

    Parameters
    ----------
    a : array_like of complex128, shape (n,)
        the first operand
    b : array_like of complex128, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc41 (CxArrDivide) of the C library.

    Example
    -------
    >>> out = qv.complex_array_divide(a, b)
    """
    a = rt.array(a, rt.C16, 1, "a")
    b = rt.array(b, rt.C16, 1, "b")
    n = a.shape[0]
    rt.fits(a, (n,), "a")
    rt.fits(b, (n,), "b")
    a_re, a_im = rt.parts(a)
    b_re, b_im = rt.parts(b)
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc41(rt.pointer(a_re), rt.pointer(a_im), rt.pointer(b_re), rt.pointer(b_im), n, rt.pointer(out_re),
            rt.pointer(out_im))
    rt.check(status, "complex_array_divide")
    return rt.joined(out_re, out_im, out)


_ZemFunc173 = rt.bind("ZemFunc173", "status", "pplpp")


class ComplexArrayToPolarResult(NamedTuple):
    """What `complex_array_to_polar` gives."""

    magnitude: np.ndarray
    phase: np.ndarray


def complex_array_to_polar(z, *, out=None):
    r"""Magnitudes and phases of a complex array, element by element as `complex_to_polar`.

    Parameters
    ----------
    z : array_like of complex128, shape (n,)
        the complex numbers
    out : tuple or None
        arrays for `magnitude`, `phase`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    magnitude : float64 array of shape (n,)
        magnitudes
    phase : float64 array of shape (n,)
        phases in radians from -pi to pi

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc173 (CxArrToPolar) of the C library.

    Example
    -------
    >>> magnitude, phase = qv.complex_array_to_polar(z)
    """
    _out = rt.outs(out, 2, "complex_array_to_polar")
    z = rt.array(z, rt.C16, 1, "z")
    n = z.shape[0]
    rt.fits(z, (n,), "z")
    z_re, z_im = rt.parts(z)
    out_magnitude_ = rt.result(_out[0], (n,), rt.F8, (), overlapping=True)
    out_phase_ = rt.result(_out[1], (n,), rt.F8, (), overlapping=True)
    status = _ZemFunc173(rt.pointer(z_re), rt.pointer(z_im), n, rt.pointer(out_magnitude_), rt.pointer(out_phase_))
    rt.check(status, "complex_array_to_polar")
    return ComplexArrayToPolarResult(rt.deliver(out_magnitude_, _out[0]), rt.deliver(out_phase_, _out[1]))


_ZemFunc232 = rt.bind("ZemFunc232", "status", "pplpp")


def complex_array_from_polar(magnitude, phase, *, out=None):
    r"""The complex array of given magnitudes and phases, element by element as `complex_from_polar`.

    Parameters
    ----------
    magnitude : array_like of float64, shape (n,)
        magnitudes
    phase : array_like of float64, shape (n,)
        phases in radians
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the complex values

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc232 (CxArrFromPolar) of the C library.

    Example
    -------
    >>> out = qv.complex_array_from_polar(magnitude, phase)
    """
    magnitude = rt.array(magnitude, rt.F8, 1, "magnitude")
    phase = rt.array(phase, rt.F8, 1, "phase")
    n = magnitude.shape[0]
    rt.fits(phase, (n,), "phase")
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc232(rt.pointer(magnitude), rt.pointer(phase), n, rt.pointer(out_re), rt.pointer(out_im))
    rt.check(status, "complex_array_from_polar")
    return rt.joined(out_re, out_im, out)


_ZemFunc43 = rt.bind("ZemFunc43", "status", "pplddddpp")


def complex_array_linear_eval(z, a, b, *, out=None):
    r"""Evaluates a complex straight line at every element, out[i] = a * z[i] + b, by `complex_multiply` and then
    `complex_add`.

    Parameters
    ----------
    z : array_like of complex128, shape (n,)
        z
    a : complex, with the parts (a_re, a_im)
        the factor
    b : complex, with the parts (b_re, b_im)
        the offset
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc43 (CxArrLinearEval) of the C library.

    Example
    -------
    >>> out = qv.complex_array_linear_eval(z, a, b)
    """
    z = rt.array(z, rt.C16, 1, "z")
    n = z.shape[0]
    a = rt.complex_number(a, "a")
    b = rt.complex_number(b, "b")
    rt.fits(z, (n,), "z")
    z_re, z_im = rt.parts(z)
    out_re = rt.fresh((n,), rt.F8)
    out_im = rt.fresh((n,), rt.F8)
    status = _ZemFunc43(rt.pointer(z_re), rt.pointer(z_im), n, a.real, a.imag, b.real, b.imag, rt.pointer(out_re),
            rt.pointer(out_im))
    rt.check(status, "complex_array_linear_eval")
    return rt.joined(out_re, out_im, out)
