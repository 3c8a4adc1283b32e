r"""Array primitives.

Operations on arrays of doubles: filling, moving, arithmetic, sums, extremes, scaling and sorting.

    out[i] = x[i] op y[i]                        op: + - * /
    scaled      out[i] = (x[i] - (max + min) / 2) / ((max - min) / 2)       in [-1, 1]
    normalised  out[i] = (x[i] - mean) / deviation,   deviation = sqrt(sum (x[i] - mean)^2 / n)
    linear      out[i] = a x[i] + b
    polynomial  out[i] = sum over j of coef[j] x[i]^j

A 2-D array is row-major without gaps; its functions run over rows * cols elements, a count that is formed in
32 bits and wraps: 65536 rows of 65537 columns are 65536 elements, and a count that wraps below 1 is refused.

An output may be the same array as an input. Other overlaps work only where elements are just moved: in
`array_copy`, `array_subset` and `array_shift`.

NaN and infinity pass through arithmetic; searches ignore NaN. On an error nothing is written, except in
`array_divide`.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "array_clear",
    "array_fill",
    "array_copy",
    "array_subset",
    "array_reverse",
    "array_shift",
    "array_sort",
    "array_add",
    "array_add_2d",
    "array_subtract",
    "array_subtract_2d",
    "array_multiply",
    "array_multiply_2d",
    "array_divide",
    "array_divide_2d",
    "array_negate",
    "array_abs",
    "array_sum",
    "array_sum_2d",
    "array_product",
    "array_max_min",
    "array_max_min_2d",
    "array_scale",
    "array_scale_2d",
    "array_quick_scale",
    "array_quick_scale_2d",
    "array_normalize",
    "array_normalize_2d",
    "array_linear_eval",
    "array_linear_eval_2d",
    "array_poly_eval",
    "array_poly_eval_2d",
    "array_clip",
    "ArrayMaxMinResult",
    "ArrayMaxMin2dResult",
    "ArrayScaleResult",
    "ArrayScale2dResult",
    "ArrayQuickScaleResult",
    "ArrayQuickScale2dResult",
    "ArrayNormalizeResult",
    "ArrayNormalize2dResult",
]
_max, _min = max, min

_ZemFunc29 = rt.bind("ZemFunc29", "status", "pl")


def array_clear(n, *, out=None):
    r"""Sets all elements to +0.0.

    Parameters
    ----------
    n : int
        the number of elements
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the array

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc29 (ArrClear) of the C library.

    Example
    -------
    >>> x = qv.array_clear(n)
    """
    n = rt.i64(n, "n")
    x_ = rt.result(out, (n,), rt.F8, (), overlapping=True)
    status = _ZemFunc29(rt.pointer(x_), n)
    rt.check(status, "array_clear")
    return rt.deliver(x_, out)


_ZemFunc155 = rt.bind("ZemFunc155", "status", "pld")


def array_fill(n, value, *, out=None):
    r"""Sets all elements to one value, x[i] = value.

    Parameters
    ----------
    n : int
        the number of elements
    value : float
        what every element becomes
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the array

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc155 (ArrFill) of the C library.

    Example
    -------
    >>> x = qv.array_fill(n, value)
    """
    n = rt.i64(n, "n")
    value = rt.real(value, "value")
    x_ = rt.result(out, (n,), rt.F8, (), overlapping=True)
    status = _ZemFunc155(rt.pointer(x_), n, value)
    rt.check(status, "array_fill")
    return rt.deliver(x_, out)


_ZemFunc34 = rt.bind("ZemFunc34", "status", "plp")


def array_copy(x, *, out=None):
    r"""Copies an array byte by byte, so that NaN keep their bits.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the source
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the copy

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc34 (ArrCopy) of the C library.

    Example
    -------
    >>> out = qv.array_copy(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc34(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "array_copy")
    return rt.deliver(out_, out)


_ZemFunc169 = rt.bind("ZemFunc169", "status", "plllp")


def array_subset(x, index, length, *, out=None):
    r"""Copies a part of an array, out[i] = x[index + i].

    A part that ends with the array, index + length = n, is allowed. The conditions are tested in the order of the
    statuses below.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the source
    index : int
        the first element to take, from 0
    length : int
        how many elements to take
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (length,)
        the elements taken

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20017: index is below 0, or n or more
        -20003: length is below 1
        -20018: index + length is above n

    Notes
    -----
    The function ZemFunc169 (ArrSubset) of the C library.

    Example
    -------
    >>> out = qv.array_subset(x, index, length)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    index = rt.i64(index, "index")
    length = rt.i64(length, "length")
    out_ = rt.result(out, (length,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc169(rt.pointer(x), n, index, length, rt.pointer(out_))
    rt.check(status, "array_subset")
    return rt.deliver(out_, out)


_ZemFunc149 = rt.bind("ZemFunc149", "status", "plp")


def array_reverse(x, *, out=None):
    r"""Reverses the order of the elements, out[i] = x[n - 1 - i].

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc149 (ArrReverse) of the C library.

    Example
    -------
    >>> out = qv.array_reverse(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc149(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "array_reverse")
    return rt.deliver(out_, out)


_ZemFunc156 = rt.bind("ZemFunc156", "status", "pllp")


def array_shift(x, shift=False, *, out=None):
    r"""Shifts the elements, out[i] = x[i - shift]; vacated places become 0.

    A shift by n or -n is allowed and leaves zeros only.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    shift : bool, default False
        places to move, upwards when positive
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20102: shift is above n or below -n

    Notes
    -----
    The function ZemFunc156 (ArrShift) of the C library.

    Example
    -------
    >>> out = qv.array_shift(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    shift = int(bool(shift))
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc156(rt.pointer(x), n, shift, rt.pointer(out_))
    rt.check(status, "array_shift")
    return rt.deliver(out_, out)


_ZemFunc160 = rt.bind("ZemFunc160", "status", "plup")


def array_sort(x, direction=SortOrder.ASCENDING, *, out=None):
    r"""Sorts an array.

    NaN come first in both directions. A NaN that has to move becomes the quiet NaN 0x7FF8000000000000; those that
    stand in front already keep their bits. The order of +0.0 and -0.0 among themselves is not specified. Takes
    O(n log n) steps on any input and no memory.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    direction : SortOrder, its name, or int, default SortOrder.ASCENDING
        0: ascending; anything else: descending
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc160 (ArrSort) of the C library.

    Example
    -------
    >>> out = qv.array_sort(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    direction = rt.choice(direction, SortOrder, "direction")
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc160(rt.pointer(x), n, direction, rt.pointer(out_))
    rt.check(status, "array_sort")
    return rt.deliver(out_, out)


_ZemFunc3 = rt.bind("ZemFunc3", "status", "pplp")


def array_add(x, y, *, out=None):
    r"""Adds two arrays, out[i] = x[i] + y[i]. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first operand
    y : array_like of float64, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc3 (ArrAdd) of the C library.

    Example
    -------
    >>> out = qv.array_add(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = rt.result(out, (n,), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc3(rt.pointer(x), rt.pointer(y), n, rt.pointer(out_))
    rt.check(status, "array_add")
    return rt.deliver(out_, out)


_ZemFunc4 = rt.bind("ZemFunc4", "status", "ppllp")


def array_add_2d(x, y, *, out=None):
    r"""The 2-D form of `array_add`.

    The element count rows * cols is formed in 32 bits. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the first operand
    y : array_like of float64, shape (rows, cols)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc4 (ArrAdd2D) of the C library.

    Example
    -------
    >>> out = qv.array_add_2d(x, y)
    """
    x = rt.array(x, rt.F8, 2, "x")
    y = rt.array(y, rt.F8, 2, "y")
    rows = x.shape[0]
    cols = x.shape[1]
    rt.fits(y, (rows, cols), "y")
    out_ = rt.result(out, (rows, cols), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc4(rt.pointer(x), rt.pointer(y), rows, cols, rt.pointer(out_))
    rt.check(status, "array_add_2d")
    return rt.deliver(out_, out)


_ZemFunc167 = rt.bind("ZemFunc167", "status", "pplp")


def array_subtract(x, y, *, out=None):
    r"""Subtracts an array from another, out[i] = x[i] - y[i]. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first operand
    y : array_like of float64, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc167 (ArrSubtract) of the C library.

    Example
    -------
    >>> out = qv.array_subtract(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = rt.result(out, (n,), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc167(rt.pointer(x), rt.pointer(y), n, rt.pointer(out_))
    rt.check(status, "array_subtract")
    return rt.deliver(out_, out)


_ZemFunc168 = rt.bind("ZemFunc168", "status", "ppllp")


def array_subtract_2d(x, y, *, out=None):
    r"""The 2-D form of `array_subtract`.

    The element count rows * cols is formed in 32 bits. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the first operand
    y : array_like of float64, shape (rows, cols)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc168 (ArrSubtract2D) of the C library.

    Example
    -------
    >>> out = qv.array_subtract_2d(x, y)
    """
    x = rt.array(x, rt.F8, 2, "x")
    y = rt.array(y, rt.F8, 2, "y")
    rows = x.shape[0]
    cols = x.shape[1]
    rt.fits(y, (rows, cols), "y")
    out_ = rt.result(out, (rows, cols), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc168(rt.pointer(x), rt.pointer(y), rows, cols, rt.pointer(out_))
    rt.check(status, "array_subtract_2d")
    return rt.deliver(out_, out)


_ZemFunc126 = rt.bind("ZemFunc126", "status", "pplp")


def array_multiply(x, y, *, out=None):
    r"""Multiplies two arrays element by element, out[i] = x[i] * y[i]. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first operand
    y : array_like of float64, shape (n,)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc126 (ArrMultiply) of the C library.

    Example
    -------
    >>> out = qv.array_multiply(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = rt.result(out, (n,), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc126(rt.pointer(x), rt.pointer(y), n, rt.pointer(out_))
    rt.check(status, "array_multiply")
    return rt.deliver(out_, out)


_ZemFunc127 = rt.bind("ZemFunc127", "status", "ppllp")


def array_multiply_2d(x, y, *, out=None):
    r"""The 2-D form of `array_multiply`.

    The element count rows * cols is formed in 32 bits. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the first operand
    y : array_like of float64, shape (rows, cols)
        the second operand
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc127 (ArrMultiply2D) of the C library.

    Example
    -------
    >>> out = qv.array_multiply_2d(x, y)
    """
    x = rt.array(x, rt.F8, 2, "x")
    y = rt.array(y, rt.F8, 2, "y")
    rows = x.shape[0]
    cols = x.shape[1]
    rt.fits(y, (rows, cols), "y")
    out_ = rt.result(out, (rows, cols), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc127(rt.pointer(x), rt.pointer(y), rows, cols, rt.pointer(out_))
    rt.check(status, "array_multiply_2d")
    return rt.deliver(out_, out)


_ZemFunc57 = rt.bind("ZemFunc57", "status", "pplp")


def array_divide(x, y, *, out=None):
    r"""Divides two arrays, out[i] = x[i] / y[i].

    Stops at the first y[i] that is zero, of either sign: the earlier quotients are written, the later places
    untouched. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the dividends
    y : array_like of float64, shape (n,)
        the divisors
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the quotients

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20060: a divisor is zero

    Notes
    -----
    The function ZemFunc57 (ArrDivide) of the C library.

    Example
    -------
    >>> out = qv.array_divide(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = rt.result(out, (n,), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc57(rt.pointer(x), rt.pointer(y), n, rt.pointer(out_))
    rt.check(status, "array_divide")
    return rt.deliver(out_, out)


_ZemFunc58 = rt.bind("ZemFunc58", "status", "ppllp")


def array_divide_2d(x, y, *, out=None):
    r"""The 2-D form of `array_divide`.

    The element count rows * cols is formed in 32 bits. Unlike elsewhere, a size below 1 is found before one that
    does not fit 32 bits. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the dividends
    y : array_like of float64, shape (rows, cols)
        the divisors
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the quotients

    Raises
    ------
    QuorvanError
        -20003: rows, cols or the element count is below 1
        -20060: a divisor is zero

    Notes
    -----
    The function ZemFunc58 (ArrDivide2D) of the C library.

    Example
    -------
    >>> out = qv.array_divide_2d(x, y)
    """
    x = rt.array(x, rt.F8, 2, "x")
    y = rt.array(y, rt.F8, 2, "y")
    rows = x.shape[0]
    cols = x.shape[1]
    rt.fits(y, (rows, cols), "y")
    out_ = rt.result(out, (rows, cols), rt.F8, (x, y), overlapping=True)
    status = _ZemFunc58(rt.pointer(x), rt.pointer(y), rows, cols, rt.pointer(out_))
    rt.check(status, "array_divide_2d")
    return rt.deliver(out_, out)


_ZemFunc128 = rt.bind("ZemFunc128", "status", "plp")


def array_negate(x, *, out=None):
    r"""Flips the sign of every element, out[i] = -x[i].

    That of NaN and zeros too.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc128 (ArrNegate) of the C library.

    Example
    -------
    >>> out = qv.array_negate(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc128(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "array_negate")
    return rt.deliver(out_, out)


_ZemFunc1 = rt.bind("ZemFunc1", "status", "plp")


def array_abs(x, *, out=None):
    r"""Clears the sign of every element, out[i] = |x[i]|.

    That of NaN too.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc1 (ArrAbs) of the C library.

    Example
    -------
    >>> out = qv.array_abs(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc1(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "array_abs")
    return rt.deliver(out_, out)


_ZemFunc170 = rt.bind("ZemFunc170", "status", "plp")


def array_sum(x):
    r"""The sum of the elements, added from 0.0 in index order.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the terms

    Returns
    -------
    sum : float
        the sum

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc170 (ArrSum) of the C library.

    Example
    -------
    >>> sum = qv.array_sum(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    sum_ = ctypes.c_double()
    status = _ZemFunc170(rt.pointer(x), n, ctypes.byref(sum_))
    rt.check(status, "array_sum")
    return sum_.value


_ZemFunc171 = rt.bind("ZemFunc171", "status", "pllp")


def array_sum_2d(x):
    r"""The 2-D form of `array_sum`.

    The element count rows * cols is formed in 32 bits.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the terms

    Returns
    -------
    sum : float
        the sum

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc171 (ArrSum2D) of the C library.

    Example
    -------
    >>> sum = qv.array_sum_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    sum_ = ctypes.c_double()
    status = _ZemFunc171(rt.pointer(x), rows, cols, ctypes.byref(sum_))
    rt.check(status, "array_sum_2d")
    return sum_.value


_ZemFunc140 = rt.bind("ZemFunc140", "status", "plp")


def array_product(x):
    r"""The product of the elements, multiplied from 1.0 in index order.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the factors

    Returns
    -------
    product : float
        the product

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc140 (ArrProduct) of the C library.

    Example
    -------
    >>> product = qv.array_product(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    product_ = ctypes.c_double()
    status = _ZemFunc140(rt.pointer(x), n, ctypes.byref(product_))
    rt.check(status, "array_product")
    return product_.value


_ZemFunc120 = rt.bind("ZemFunc120", "status", "plpppp")


class ArrayMaxMinResult(NamedTuple):
    """What `array_max_min` gives."""

    max: float
    max_index: int
    min: float
    min_index: int


def array_max_min(x):
    r"""The largest and the smallest element with their places.

    NaN are ignored; infinities are ordinary values. Where all elements are NaN, both values are NaN and both
    places -1.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal

    Returns
    -------
    max : float
        the largest element
    max_index : int
        the first place where it stands
    min : float
        the smallest element
    min_index : int
        the first place where it stands

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc120 (ArrMaxMin) of the C library.

    Example
    -------
    >>> result = qv.array_max_min(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    max_ = ctypes.c_double()
    max_index_ = ctypes.c_int64()
    min_ = ctypes.c_double()
    min_index_ = ctypes.c_int64()
    status = _ZemFunc120(rt.pointer(x), n, ctypes.byref(max_), ctypes.byref(max_index_), ctypes.byref(min_),
            ctypes.byref(min_index_))
    rt.check(status, "array_max_min")
    return ArrayMaxMinResult(max_.value, max_index_.value, min_.value, min_index_.value)


_ZemFunc121 = rt.bind("ZemFunc121", "status", "pllpppppp")


class ArrayMaxMin2dResult(NamedTuple):
    """What `array_max_min_2d` gives."""

    max: float
    max_row: int
    max_col: int
    min: float
    min_row: int
    min_col: int


def array_max_min_2d(x):
    r"""The 2-D form of `array_max_min`; first is meant in row-major order.

    The element count rows * cols is formed in 32 bits. Where all elements are NaN, both values are NaN and all
    four places -1.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the signal

    Returns
    -------
    max : float
        the largest element
    max_row : int
        the row where it first stands
    max_col : int
        its column there
    min : float
        the smallest element
    min_row : int
        the row where it first stands
    min_col : int
        its column there

    Raises
    ------
    QuorvanError
        -20003: rows, cols or the element count is below 1

    Notes
    -----
    The function ZemFunc121 (ArrMaxMin2D) of the C library.

    Example
    -------
    >>> result = qv.array_max_min_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    max_ = ctypes.c_double()
    max_row_ = ctypes.c_int64()
    max_col_ = ctypes.c_int64()
    min_ = ctypes.c_double()
    min_row_ = ctypes.c_int64()
    min_col_ = ctypes.c_int64()
    status = _ZemFunc121(rt.pointer(x), rows, cols, ctypes.byref(max_), ctypes.byref(max_row_),
            ctypes.byref(max_col_), ctypes.byref(min_), ctypes.byref(min_row_), ctypes.byref(min_col_))
    rt.check(status, "array_max_min_2d")
    return ArrayMaxMin2dResult(max_.value, max_row_.value, max_col_.value, min_.value, min_row_.value, min_col_.value)


_ZemFunc153 = rt.bind("ZemFunc153", "status", "plppp")


class ArrayScaleResult(NamedTuple):
    """What `array_scale` gives."""

    out: np.ndarray
    offset: float
    scale: float


def array_scale(x, *, out=None):
    r"""Maps a signal to the range from -1 to 1: scale = (max - min) * 0.5, offset = scale + min, out[i] = (x[i] -
    offset) * (1 / scale).

    A scale whose reciprocal is not finite counts as flat: then scale = 1, offset = max and out[i] = x[i] -
    offset. In both cases x[i] = out[i] * scale + offset leads back, up to rounding. NaN stay NaN. Where all
    elements are NaN, so are offset and scale, and out stays unwritten.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result
    offset : float
        the middle between the extremes
    scale : float
        half the distance between them, or 1 for a flat signal

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc153 (ArrScale) of the C library.

    Example
    -------
    >>> out, offset, scale = qv.array_scale(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    offset_ = ctypes.c_double()
    scale_ = ctypes.c_double()
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc153(rt.pointer(x), n, rt.pointer(out_), ctypes.byref(offset_), ctypes.byref(scale_))
    rt.check(status, "array_scale")
    return ArrayScaleResult(rt.deliver(out_, out), offset_.value, scale_.value)


_ZemFunc154 = rt.bind("ZemFunc154", "status", "pllppp")


class ArrayScale2dResult(NamedTuple):
    """What `array_scale_2d` gives."""

    out: np.ndarray
    offset: float
    scale: float


def array_scale_2d(x, *, out=None):
    r"""The 2-D form of `array_scale`.

    The element count rows * cols is formed in 32 bits.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result
    offset : float
        the middle between the extremes
    scale : float
        half the distance between them, or 1 for a flat signal

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc154 (ArrScale2D) of the C library.

    Example
    -------
    >>> out, offset, scale = qv.array_scale_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    offset_ = ctypes.c_double()
    scale_ = ctypes.c_double()
    out_ = rt.result(out, (rows, cols), rt.F8, (x,), overlapping=True)
    status = _ZemFunc154(rt.pointer(x), rows, cols, rt.pointer(out_), ctypes.byref(offset_), ctypes.byref(scale_))
    rt.check(status, "array_scale_2d")
    return ArrayScale2dResult(rt.deliver(out_, out), offset_.value, scale_.value)


_ZemFunc143 = rt.bind("ZemFunc143", "status", "plpp")


class ArrayQuickScaleResult(NamedTuple):
    """What `array_quick_scale` gives."""

    out: np.ndarray
    peak: float


def array_quick_scale(x, *, out=None):
    r"""Scales a signal by its peak magnitude, out[i] = x[i] * (1 / peak).

    A peak of 0, where all elements are zero or NaN, copies x as it is. An infinite peak gives 0 for finite
    elements and NaN for infinite ones.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result
    peak : float
        the largest magnitude, NaN ignored

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc143 (ArrQuickScale) of the C library.

    Example
    -------
    >>> out, peak = qv.array_quick_scale(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    peak_ = ctypes.c_double()
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc143(rt.pointer(x), n, rt.pointer(out_), ctypes.byref(peak_))
    rt.check(status, "array_quick_scale")
    return ArrayQuickScaleResult(rt.deliver(out_, out), peak_.value)


_ZemFunc144 = rt.bind("ZemFunc144", "status", "pllpp")


class ArrayQuickScale2dResult(NamedTuple):
    """What `array_quick_scale_2d` gives."""

    out: np.ndarray
    peak: float


def array_quick_scale_2d(x, *, out=None):
    r"""The 2-D form of `array_quick_scale`.

    The element count rows * cols is formed in 32 bits.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result
    peak : float
        the largest magnitude, NaN ignored

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc144 (ArrQuickScale2D) of the C library.

    Example
    -------
    >>> out, peak = qv.array_quick_scale_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    peak_ = ctypes.c_double()
    out_ = rt.result(out, (rows, cols), rt.F8, (x,), overlapping=True)
    status = _ZemFunc144(rt.pointer(x), rows, cols, rt.pointer(out_), ctypes.byref(peak_))
    rt.check(status, "array_quick_scale_2d")
    return ArrayQuickScale2dResult(rt.deliver(out_, out), peak_.value)


_ZemFunc132 = rt.bind("ZemFunc132", "status", "plppp")


class ArrayNormalizeResult(NamedTuple):
    """What `array_normalize` gives."""

    out: np.ndarray
    mean: float
    std_dev: float


def array_normalize(x, *, out=None):
    r"""Brings a signal to mean 0 and population standard deviation 1, out[i] = (x[i] - mean) * (1 / std_dev).

    The mean comes first, the deviation from it in a second pass; both add in index order. A flat signal has
    std_dev 0 and becomes NaN, with status 0.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result
    mean : float
        sum of x / n
    std_dev : float
        sqrt(sum of (x - mean)^2 / n)

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc132 (ArrNormalize) of the C library.

    Example
    -------
    >>> out, mean, std_dev = qv.array_normalize(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    mean_ = ctypes.c_double()
    std_dev_ = ctypes.c_double()
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc132(rt.pointer(x), n, rt.pointer(out_), ctypes.byref(mean_), ctypes.byref(std_dev_))
    rt.check(status, "array_normalize")
    return ArrayNormalizeResult(rt.deliver(out_, out), mean_.value, std_dev_.value)


_ZemFunc133 = rt.bind("ZemFunc133", "status", "pllppp")


class ArrayNormalize2dResult(NamedTuple):
    """What `array_normalize_2d` gives."""

    out: np.ndarray
    mean: float
    std_dev: float


def array_normalize_2d(x, *, out=None):
    r"""The 2-D form of `array_normalize`.

    The element count rows * cols is formed in 32 bits.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the signal
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result
    mean : float
        sum of x / n
    std_dev : float
        sqrt(sum of (x - mean)^2 / n)

    Raises
    ------
    QuorvanError
        -20003: rows, cols or the element count is below 1

    Notes
    -----
    The function ZemFunc133 (ArrNormalize2D) of the C library.

    Example
    -------
    >>> out, mean, std_dev = qv.array_normalize_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    mean_ = ctypes.c_double()
    std_dev_ = ctypes.c_double()
    out_ = rt.result(out, (rows, cols), rt.F8, (x,), overlapping=True)
    status = _ZemFunc133(rt.pointer(x), rows, cols, rt.pointer(out_), ctypes.byref(mean_), ctypes.byref(std_dev_))
    rt.check(status, "array_normalize_2d")
    return ArrayNormalize2dResult(rt.deliver(out_, out), mean_.value, std_dev_.value)


_ZemFunc115 = rt.bind("ZemFunc115", "status", "plddp")


def array_linear_eval(x, a, b, *, out=None):
    r"""Evaluates a straight line at every element, out[i] = a * x[i] + b.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    a : float
        the factor
    b : float
        the offset
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc115 (ArrLinearEval) of the C library.

    Example
    -------
    >>> out = qv.array_linear_eval(x, a, b)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc115(rt.pointer(x), n, a, b, rt.pointer(out_))
    rt.check(status, "array_linear_eval")
    return rt.deliver(out_, out)


_ZemFunc116 = rt.bind("ZemFunc116", "status", "pllddp")


def array_linear_eval_2d(x, a, b, *, out=None):
    r"""The 2-D form of `array_linear_eval`.

    The element count rows * cols is formed in 32 bits.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the signal
    a : float
        the factor
    b : float
        the offset
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20003: the element count is below 1

    Notes
    -----
    The function ZemFunc116 (ArrLinearEval2D) of the C library.

    Example
    -------
    >>> out = qv.array_linear_eval_2d(x, a, b)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    out_ = rt.result(out, (rows, cols), rt.F8, (x,), overlapping=True)
    status = _ZemFunc116(rt.pointer(x), rows, cols, a, b, rt.pointer(out_))
    rt.check(status, "array_linear_eval_2d")
    return rt.deliver(out_, out)


_ZemFunc135 = rt.bind("ZemFunc135", "status", "plpip")


def array_poly_eval(x, coef, *, out=None):
    r"""Evaluates a polynomial at every element, out[i] = coef[0] + coef[1]*x[i] + ... + coef[count-1]*x[i]^(count-1).

    Each power is the one before times x[i], and the terms are added in ascending order; this is not Horner's rule
    and rounds differently.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    coef : array_like of float64, shape (count,)
        the coefficients, in ascending order
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n or count is below 1

    Notes
    -----
    The function ZemFunc135 (ArrPolyEval) of the C library.

    Example
    -------
    >>> out = qv.array_poly_eval(x, coef)
    """
    x = rt.array(x, rt.F8, 1, "x")
    coef = rt.array(coef, rt.F8, 1, "coef")
    n = x.shape[0]
    count = coef.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x, coef), overlapping=True)
    status = _ZemFunc135(rt.pointer(x), n, rt.pointer(coef), rt.i32(count, "count"), rt.pointer(out_))
    rt.check(status, "array_poly_eval")
    return rt.deliver(out_, out)


_ZemFunc136 = rt.bind("ZemFunc136", "status", "pllpip")


def array_poly_eval_2d(x, coef, *, out=None):
    r"""The 2-D form of `array_poly_eval`.

    The element count rows * cols is formed in 32 bits.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the signal
    coef : array_like of float64, shape (count,)
        the coefficients, in ascending order
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20003: the element count or count is below 1

    Notes
    -----
    The function ZemFunc136 (ArrPolyEval2D) of the C library.

    Example
    -------
    >>> out = qv.array_poly_eval_2d(x, coef)
    """
    x = rt.array(x, rt.F8, 2, "x")
    coef = rt.array(coef, rt.F8, 1, "coef")
    rows = x.shape[0]
    cols = x.shape[1]
    count = coef.shape[0]
    out_ = rt.result(out, (rows, cols), rt.F8, (x, coef), overlapping=True)
    status = _ZemFunc136(rt.pointer(x), rows, cols, rt.pointer(coef), rt.i32(count, "count"), rt.pointer(out_))
    rt.check(status, "array_poly_eval_2d")
    return rt.deliver(out_, out)


_ZemFunc30 = rt.bind("ZemFunc30", "status", "plddp")


def array_clip(x, upper, lower, *, out=None):
    r"""Limits every element: upper where x[i] > upper, else lower where lower > x[i], else x[i].

    NaN elements pass unchanged, and so does everything at a limit that is NaN.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    upper : float
        the upper limit
    lower : float
        the lower limit
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20019: lower is above upper

    Notes
    -----
    The function ZemFunc30 (ArrClip) of the C library.

    Example
    -------
    >>> out = qv.array_clip(x, upper, lower)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    upper = rt.real(upper, "upper")
    lower = rt.real(lower, "lower")
    out_ = rt.result(out, (n,), rt.F8, (x,), overlapping=True)
    status = _ZemFunc30(rt.pointer(x), n, upper, lower, rt.pointer(out_))
    rt.check(status, "array_clip")
    return rt.deliver(out_, out)
