r"""Direct-form and smoothing filters.

Filters that take plain coefficient arrays: difference equations, smoothing by local polynomials, running
medians.

    a[0] y[t] = b[0] x[t] + b[1] x[t - 1] + ... - a[1] y[t - 1] - a[2] y[t - 2] - ...
    H(z) = (b[0] + b[1] z^-1 + ...) / (a[0] + a[1] z^-1 + ...)

Coefficients stand in ascending delay, those of the feedback with the sign of the denominator; a[0] is a true
divisor and need not be 1. The caller holds the state: the last nb - 1 inputs and the last na - 1 outputs, the
oldest first. Zeros start from rest; handing the same arrays back continues a stream, and a stream may be cut
anywhere.

    Savitzky-Golay  y[t] = p(0), p the polynomial of least squares through x[t - side] ... x[t + side]
    median          y[t] = median of x[t - leftRank] ... x[t + rightRank]

Savitzky-Golay filters and symmetric medians do not delay the signal.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "filter_fir",
    "filter_direct",
    "filter_fir_complex",
    "filter_direct_complex",
    "filter_zero_phase",
    "savitzky_golay_design",
    "savitzky_golay_filter",
    "savitzky_golay_filter_complex",
    "filter_median",
    "FilterFirResult",
    "FilterDirectResult",
    "FilterFirComplexResult",
    "FilterDirectComplexResult",
    "SavitzkyGolayDesignResult",
]
_max, _min = max, min

_ZemFunc352 = rt.bind("ZemFunc352", "status", "plppip")


class FilterFirResult(NamedTuple):
    """What `filter_fir` gives."""

    y: np.ndarray
    input_state: np.ndarray


def filter_fir(x, b, input_state=None, *, out=None):
    r"""Filters without feedback, y[t] = b[0] x[t] + b[1] x[t - 1] + ...

    Each sum is added in this order, so that blocks give the bits of the whole.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the input
    b : array_like of float64, shape (nb,)
        the numerator
    input_state : array_like of float64, shape (nb - 1,), default None
        the last inputs, the oldest first
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the output
    input_state : float64 array of shape (nb - 1,)
        the same behind the last sample

    Raises
    ------
    QuorvanError
        -20003: n or nb is below 1

    Notes
    -----
    Complex arrays go to `filter_fir_complex`. The function ZemFunc352 (FilterFir) of the C library.

    Example
    -------
    >>> y, input_state = qv.filter_fir(x, b)
    """
    if rt.is_complex(x, b, input_state):
        return filter_fir_complex(x=x, b=b, input_state=input_state, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    b = rt.array(b, rt.F8, 1, "b")
    n = x.shape[0]
    nb = b.shape[0]
    input_state_ = rt.state(input_state, (nb - 1,), rt.F8, "input_state")
    y_ = rt.result(out, (n,), rt.F8, (x, b))
    status = _ZemFunc352(rt.pointer(x), n, rt.pointer(b), rt.pointer(input_state_), rt.i32(nb, "nb"), rt.pointer(y_))
    rt.check(status, "filter_fir")
    return FilterFirResult(rt.deliver(y_, out), input_state_)


_ZemFunc92 = rt.bind("ZemFunc92", "status", "plppippip")


class FilterDirectResult(NamedTuple):
    """What `filter_direct` gives."""

    y: np.ndarray
    output_state: np.ndarray
    input_state: np.ndarray


def filter_direct(x, b, a=None, output_state=None, input_state=None, *, out=None):
    r"""Filters with feedback, a[0] y[t] = b[0] x[t] + b[1] x[t - 1] + ... - a[1] y[t - 1] - ...

    Outputs of magnitude 2.2250738585072014e-308 and below become 0; without feedback they stay.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the input
    b : array_like of float64, shape (nb,)
        the numerator
    a : array_like of float64, shape (na,), default None
        the denominator
    output_state : array_like of float64, shape (na - 1,), default None
        the last outputs, the oldest first
    input_state : array_like of float64, shape (nb - 1,), default None
        the last inputs, the oldest first
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the output
    output_state : float64 array of shape (na - 1,)
        the same behind the last sample
    input_state : float64 array of shape (nb - 1,)
        the same behind the last sample

    Raises
    ------
    QuorvanError
        -20003: n or nb is below 1

    Notes
    -----
    Complex arrays go to `filter_direct_complex`. The function ZemFunc92 (FilterDirect) of the C library.

    Example
    -------
    >>> y, output_state, input_state = qv.filter_direct(x, b)
    """
    if rt.is_complex(x, b, a, output_state, input_state):
        return filter_direct_complex(x=x, b=b, a=a, output_state=output_state, input_state=input_state, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    a = None if a is None else rt.array(a, rt.F8, 1, "a")
    b = rt.array(b, rt.F8, 1, "b")
    n = x.shape[0]
    na = 0 if a is None else a.shape[0]
    nb = b.shape[0]
    output_state_ = None if a is None else rt.state(output_state, (na - 1,), rt.F8, "output_state")
    input_state_ = rt.state(input_state, (nb - 1,), rt.F8, "input_state")
    y_ = rt.result(out, (n,), rt.F8, (x, a, b))
    status = _ZemFunc92(rt.pointer(x), n, rt.pointer(a), rt.pointer(output_state_), rt.i32(na, "na"), rt.pointer(b),
            rt.pointer(input_state_), rt.i32(nb, "nb"), rt.pointer(y_))
    rt.check(status, "filter_direct")
    return FilterDirectResult(rt.deliver(y_, out), output_state_, input_state_)


_ZemFunc353 = rt.bind("ZemFunc353", "status", "plppip")


class FilterFirComplexResult(NamedTuple):
    """What `filter_fir_complex` gives."""

    y: np.ndarray
    input_state: np.ndarray


def filter_fir_complex(x, b, input_state=None, *, out=None):
    r"""Filters complex samples with real coefficients and without feedback.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the input
    b : array_like of float64, shape (nb,)
        the numerator
    input_state : array_like of complex128, shape (nb - 1,), default None
        the last inputs, the oldest first
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the output
    input_state : complex128 array of shape (nb - 1,)
        the same behind the last sample

    Raises
    ------
    QuorvanError
        -20003: n or nb is below 1

    Notes
    -----
    The function ZemFunc353 (FilterFirComplex) of the C library.

    Example
    -------
    >>> y, input_state = qv.filter_fir_complex(x, b)
    """
    x = rt.array(x, rt.C16, 1, "x")
    b = rt.array(b, rt.F8, 1, "b")
    n = x.shape[0]
    nb = b.shape[0]
    input_state_ = rt.state(input_state, (nb - 1,), rt.C16, "input_state")
    y_ = rt.result(out, (n,), rt.C16, (x, b))
    status = _ZemFunc353(rt.pointer(x), n, rt.pointer(b), rt.pointer(input_state_), rt.i32(nb, "nb"), rt.pointer(y_))
    rt.check(status, "filter_fir_complex")
    return FilterFirComplexResult(rt.deliver(y_, out), input_state_)


_ZemFunc354 = rt.bind("ZemFunc354", "status", "plppippip")


class FilterDirectComplexResult(NamedTuple):
    """What `filter_direct_complex` gives."""

    y: np.ndarray
    output_state: np.ndarray
    input_state: np.ndarray


def filter_direct_complex(x, b, a=None, output_state=None, input_state=None, *, out=None):
    r"""Filters complex samples with real coefficients and feedback; the parts are separate streams.

    A part of magnitude 2.2250738585072014e-308 and below becomes 0; without feedback it stays.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the input
    b : array_like of float64, shape (nb,)
        the numerator
    a : array_like of float64, shape (na,), default None
        the denominator
    output_state : array_like of complex128, shape (na - 1,), default None
        the last outputs, the oldest first
    input_state : array_like of complex128, shape (nb - 1,), default None
        the last inputs, the oldest first
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the output
    output_state : complex128 array of shape (na - 1,)
        the same behind the last sample
    input_state : complex128 array of shape (nb - 1,)
        the same behind the last sample

    Raises
    ------
    QuorvanError
        -20003: n or nb is below 1

    Notes
    -----
    The function ZemFunc354 (FilterDirectComplex) of the C library.

    Example
    -------
    >>> y, output_state, input_state = qv.filter_direct_complex(x, b)
    """
    x = rt.array(x, rt.C16, 1, "x")
    a = None if a is None else rt.array(a, rt.F8, 1, "a")
    b = rt.array(b, rt.F8, 1, "b")
    n = x.shape[0]
    na = 0 if a is None else a.shape[0]
    nb = b.shape[0]
    output_state_ = None if a is None else rt.state(output_state, (na - 1,), rt.C16, "output_state")
    input_state_ = rt.state(input_state, (nb - 1,), rt.C16, "input_state")
    y_ = rt.result(out, (n,), rt.C16, (x, a, b))
    status = _ZemFunc354(rt.pointer(x), n, rt.pointer(a), rt.pointer(output_state_), rt.i32(na, "na"), rt.pointer(b),
            rt.pointer(input_state_), rt.i32(nb, "nb"), rt.pointer(y_))
    rt.check(status, "filter_direct_complex")
    return FilterDirectComplexResult(rt.deliver(y_, out), output_state_, input_state_)


_ZemFunc385 = rt.bind("ZemFunc385", "status", "plpipip")


def filter_zero_phase(x, a, b, *, out=None):
    r"""Filters forwards and backwards: no phase, and the square of the amplitude response.

    The signal stands between max(na, nb) zeros on both sides, and both passes start from rest.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the input
    a : array_like of float64, shape (na,)
        the denominator
    b : array_like of float64, shape (nb,)
        the numerator
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n, na or nb is below 1
        -20046: the padded signal exceeds 2^31 - 1 samples
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc385 (FilterZeroPhase) of the C library.

    Example
    -------
    >>> y = qv.filter_zero_phase(x, a, b)
    """
    x = rt.array(x, rt.F8, 1, "x")
    a = rt.array(a, rt.F8, 1, "a")
    b = rt.array(b, rt.F8, 1, "b")
    n = x.shape[0]
    na = a.shape[0]
    nb = b.shape[0]
    y_ = rt.result(out, (n,), rt.F8, (x, a, b))
    status = _ZemFunc385(rt.pointer(x), n, rt.pointer(a), rt.i32(na, "na"), rt.pointer(b), rt.i32(nb, "nb"),
            rt.pointer(y_))
    rt.check(status, "filter_zero_phase")
    return rt.deliver(y_, out)


_ZemFunc355 = rt.bind("ZemFunc355", "status", "iipipp")


class SavitzkyGolayDesignResult(NamedTuple):
    """What `savitzky_golay_design` gives."""

    smoother: np.ndarray
    derivatives: np.ndarray


def savitzky_golay_design(order, side, weights=None, want_derivatives=True, *, out=None):
    r"""The least-squares polynomial filters of a frame.

    The polynomial's argument counts samples from the middle: k! times row k of derivatives is the k-th derivative
    there for a sampling interval of 1. A. Savitzky and M. J. E. Golay, Anal. Chem. 36 (1964). On an error nothing
    is written.

    Parameters
    ----------
    order : int
        the order of the polynomials
    side : int
        the samples on each side of the middle: frames have N = 2 side + 1
    weights : array_like of float64, shape (2 * side + 1,), default None
        the weights of the samples of a frame, by magnitude
    want_derivatives : bool, default True
        true: derivatives are written
    out : tuple or None
        arrays for `smoother`, `derivatives`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    smoother : float64 array of shape (2 * side + 1, 2 * side + 1)
        row i is the filter for the sample at position i of a frame
    derivatives : float64 array of shape (order + 1, 2 * side + 1)
        row k gives the coefficient of the k-th power

    Raises
    ------
    QuorvanError
        -20063: the order is below 1
        -20037: 2 side + 1 is not above the order
        -20046: 2 side + 1 exceeds 2^31 - 1
        -20068: a weight is not finite, or a power of a position overflows
        -20041: the normal equations are singular, as with too few samples of any weight
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc355 (SavitzkyGolayDesign) of the C library.

    Example
    -------
    >>> smoother, derivatives = qv.savitzky_golay_design(order, side)
    """
    _out = rt.outs(out, 2, "savitzky_golay_design")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    order = rt.i32(order, "order")
    side = rt.i32(side, "side")
    want_derivatives = int(bool(want_derivatives))
    rt.fits(weights, (2 * side + 1,), "weights")
    smoother_ = rt.result(_out[0], (2 * side + 1, 2 * side + 1), rt.F8, (weights,))
    derivatives_ = rt.result(_out[1], (order + 1, 2 * side + 1), rt.F8, (weights,)) if want_derivatives else None
    status = _ZemFunc355(order, side, rt.pointer(weights), want_derivatives, rt.pointer(smoother_),
            rt.pointer(derivatives_))
    rt.check(status, "savitzky_golay_design")
    return SavitzkyGolayDesignResult(rt.deliver(smoother_, _out[0]), rt.deliver(derivatives_, _out[1]) if
            want_derivatives else None)


_ZemFunc356 = rt.bind("ZemFunc356", "status", "pliipp")


def savitzky_golay_filter(x, order, side, weights=None, *, out=None):
    r"""Smooths by the least-squares polynomial of each frame.

    There is no padding: the first and the last `side` samples come from the polynomials of the first and the last
    frame.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the input
    order : int
        the order of the polynomials
    side : int
        the samples on each side of the middle: frames have N = 2 side + 1
    weights : array_like of float64, shape (2 * side + 1,), default None
        the weights of the samples of a frame, by magnitude
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the output

    Raises
    ------
    QuorvanError
        -20063: the order is below 1
        -20037: 2 side + 1 is not above the order
        -20008: n is below 2 side + 1
        -20068: a weight is not finite, or a power of a position overflows
        -20041: the normal equations are singular, as with too few samples of any weight
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `savitzky_golay_filter_complex`. The function ZemFunc356 (SavitzkyGolayFilter) of the C
    library.

    Example
    -------
    >>> y = qv.savitzky_golay_filter(x, order, side)
    """
    if rt.is_complex(x, weights):
        return savitzky_golay_filter_complex(x=x, order=order, side=side, weights=weights, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    order = rt.i32(order, "order")
    side = rt.i32(side, "side")
    rt.fits(weights, (2 * side + 1,), "weights")
    y_ = rt.result(out, (n,), rt.F8, (x, weights))
    status = _ZemFunc356(rt.pointer(x), n, order, side, rt.pointer(weights), rt.pointer(y_))
    rt.check(status, "savitzky_golay_filter")
    return rt.deliver(y_, out)


_ZemFunc357 = rt.bind("ZemFunc357", "status", "pliipp")


def savitzky_golay_filter_complex(x, order, side, weights=None, *, out=None):
    r"""Smooths the two parts of complex samples, each as a real signal.

    There is no padding: the first and the last `side` samples come from the polynomials of the first and the last
    frame.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the input
    order : int
        the order of the polynomials
    side : int
        the samples on each side of the middle: frames have N = 2 side + 1
    weights : array_like of float64, shape (2 * side + 1,), default None
        the weights of the samples of a frame, by magnitude
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (n,)
        the output

    Raises
    ------
    QuorvanError
        -20063: the order is below 1
        -20037: 2 side + 1 is not above the order
        -20008: n is below 2 side + 1
        -20068: a weight is not finite, or a power of a position overflows
        -20041: the normal equations are singular, as with too few samples of any weight
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc357 (SavitzkyGolayFilterComplex) of the C library.

    Example
    -------
    >>> y = qv.savitzky_golay_filter_complex(x, order, side)
    """
    x = rt.array(x, rt.C16, 1, "x")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    order = rt.i32(order, "order")
    side = rt.i32(side, "side")
    rt.fits(weights, (2 * side + 1,), "weights")
    y_ = rt.result(out, (n,), rt.C16, (x, weights))
    status = _ZemFunc357(rt.pointer(x), n, order, side, rt.pointer(weights), rt.pointer(y_))
    rt.check(status, "savitzky_golay_filter_complex")
    return rt.deliver(y_, out)


_ZemFunc407 = rt.bind("ZemFunc407", "status", "pliip")


def filter_median(x, left_rank, right_rank, *, out=None):
    r"""The running median, y[t] = median of x[t - left_rank .. t + right_rank].

    Beyond both ends stand zeros. An even window gives the mean of its two middle values. NaN sorts below all
    numbers.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the input
    left_rank : int
        the samples before each one in its window
    right_rank : int
        the samples behind it; negative: as many as before
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (n,)
        the output

    Raises
    ------
    QuorvanError
        -20003: n is below 0
        -20032: the left rank is negative
        -20008: n is above 0 and not above the right rank
        -20046: the window exceeds 2^31 - 1 samples
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc407 (FilterMedian) of the C library.

    Example
    -------
    >>> y = qv.filter_median(x, left_rank, right_rank)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    left_rank = rt.i32(left_rank, "left_rank")
    right_rank = rt.i32(right_rank, "right_rank")
    y_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc407(rt.pointer(x), n, left_rank, right_rank, rt.pointer(y_))
    rt.check(status, "filter_median")
    return rt.deliver(y_, out)
