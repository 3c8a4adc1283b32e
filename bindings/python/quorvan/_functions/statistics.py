r"""Descriptive statistics.

Summaries of a data array: location, spread, shape, histogram and modes.

    mean = sum x / n                      variance = sum (x - mean)^2 / n
    rms = sqrt(sum x^2 / n)               moment k = sum (x - mean)^k / n
    bin i of a histogram: base + i w <= x < base + (i + 1) w,   w = (top - base) / intervals

The data are the whole population: variances, deviations and moments divide by n, never by n - 1. Sums are
added in index order. NaN and infinities propagate where nothing else is said.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "mean",
    "rms",
    "rms_complex",
    "mean_variance",
    "mean_std_dev",
    "moment",
    "median",
    "histogram",
    "mode_of_histogram",
    "modes",
    "MeanVarianceResult",
    "MeanStdDevResult",
    "HistogramResult",
]
_max, _min = max, min

_ZemFunc122 = rt.bind("ZemFunc122", "status", "plp")


def mean(x):
    r"""The arithmetic mean, sum(x) / n.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples

    Returns
    -------
    mean : float
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc122 (StatMean) of the C library.

    Example
    -------
    >>> mean = qv.mean(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    mean_ = ctypes.c_double()
    status = _ZemFunc122(rt.pointer(x), n, ctypes.byref(mean_))
    rt.check(status, "mean")
    return mean_.value


_ZemFunc150 = rt.bind("ZemFunc150", "status", "plp")


def rms(x):
    r"""The root mean square, sqrt(sum(x^2) / n).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples

    Returns
    -------
    rms : float
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `rms_complex`. The function ZemFunc150 (StatRms) of the C library.

    Example
    -------
    >>> rms = qv.rms(x)
    """
    if rt.is_complex(x):
        return rms_complex(x=x)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    rms_ = ctypes.c_double()
    status = _ZemFunc150(rt.pointer(x), n, ctypes.byref(rms_))
    rt.check(status, "rms")
    return rms_.value


_ZemFunc369 = rt.bind("ZemFunc369", "status", "plp")


def rms_complex(x):
    r"""The root mean square of complex data, sqrt(sum(re^2 + im^2) / n).

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples

    Returns
    -------
    rms : float
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1; rms is NaN

    Notes
    -----
    The function ZemFunc369 (StatRmsComplex) of the C library.

    Example
    -------
    >>> rms = qv.rms_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    rms_ = ctypes.c_double()
    status = _ZemFunc369(rt.pointer(x), n, ctypes.byref(rms_))
    rt.check(status, "rms_complex")
    return rms_.value


_ZemFunc184 = rt.bind("ZemFunc184", "status", "plpp")


class MeanVarianceResult(NamedTuple):
    """What `mean_variance` gives."""

    mean: float
    variance: float


def mean_variance(x):
    r"""Mean and variance in one pass, mean = sum(x) / n and variance = sum(x^2) / n - mean^2.

    The difference cancels where the mean is large beside the deviation, and rounding can take the variance of a
    constant signal a little below 0; `mean_std_dev` takes a second pass instead.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples

    Returns
    -------
    mean : float
        in the unit of x
    variance : float
        in the unit of x squared

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc184 (StatMeanVariance) of the C library.

    Example
    -------
    >>> mean, variance = qv.mean_variance(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    mean_ = ctypes.c_double()
    variance_ = ctypes.c_double()
    status = _ZemFunc184(rt.pointer(x), n, ctypes.byref(mean_), ctypes.byref(variance_))
    rt.check(status, "mean_variance")
    return MeanVarianceResult(mean_.value, variance_.value)


_ZemFunc166 = rt.bind("ZemFunc166", "status", "plpp")


class MeanStdDevResult(NamedTuple):
    """What `mean_std_dev` gives."""

    mean: float
    deviation: float


def mean_std_dev(x):
    r"""Mean and standard deviation in two passes, mean = sum(x) / n, then deviation = sqrt(sum((x - mean)^2) / n).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples

    Returns
    -------
    mean : float
        in the unit of x
    deviation : float
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc166 (StatMeanStdDev) of the C library.

    Example
    -------
    >>> mean, deviation = qv.mean_std_dev(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    mean_ = ctypes.c_double()
    deviation_ = ctypes.c_double()
    status = _ZemFunc166(rt.pointer(x), n, ctypes.byref(mean_), ctypes.byref(deviation_))
    rt.check(status, "mean_std_dev")
    return MeanStdDevResult(mean_.value, deviation_.value)


_ZemFunc125 = rt.bind("ZemFunc125", "status", "plup")


def moment(x, order):
    r"""The central moment, sum((x - mean)^order) / n, with each power by repeated multiplication.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    order : int
        taken as a signed number

    Returns
    -------
    moment : float
        in the unit of x to the power of order

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20021: order is below 1

    Notes
    -----
    The function ZemFunc125 (StatMoment) of the C library.

    Example
    -------
    >>> moment = qv.moment(x, order)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    order = rt.u32(order, "order")
    moment_ = ctypes.c_double()
    status = _ZemFunc125(rt.pointer(x), n, order, ctypes.byref(moment_))
    rt.check(status, "moment")
    return moment_.value


_ZemFunc123 = rt.bind("ZemFunc123", "status", "plp")


def median(x):
    r"""The middle of the sorted data; for even n the mean of the two middle elements.

    Method: quickselect (Hoare, 1961) on a copy, in linear time on average.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples

    Returns
    -------
    median : float
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20104: an element is NaN; median is NaN
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc123 (StatMedian) of the C library.

    Example
    -------
    >>> median = qv.median(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    median_ = ctypes.c_double()
    status = _ZemFunc123(rt.pointer(x), n, ctypes.byref(median_))
    rt.check(status, "median")
    return median_.value


_ZemFunc90 = rt.bind("ZemFunc90", "status", "plddppl")


class HistogramResult(NamedTuple):
    """What `histogram` gives."""

    counts: np.ndarray
    centres: np.ndarray


def histogram(x, base, top, intervals, *, out=None):
    r"""Counts samples over equal bins between base and top.

    A bin is closed at its lower end and open at its upper end, the last one also closed at top. Samples outside,
    and those that rounding puts behind the last bin, are dropped; so are NaN. With base equal to top the last bin
    holds all n samples, whatever their values, and every centre is base. counts may be null when only the centres
    are wanted.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    base : float
        lower end of the first bin, in the unit of x
    top : float
        upper end of the last bin, in the unit of x
    intervals : int
    out : tuple or None
        arrays for `counts`, `centres`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    counts : int64 array of shape (intervals,)
        samples in each bin
    centres : float64 array of shape (intervals,)
        the middle of each bin, in the unit of x

    Raises
    ------
    QuorvanError
        -20101: base is above top
        -20003: n is below 1, or intervals is
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc90 (StatHistogram) of the C library.

    Example
    -------
    >>> counts, centres = qv.histogram(x, base, top, intervals)
    """
    _out = rt.outs(out, 2, "histogram")
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    base = rt.real(base, "base")
    top = rt.real(top, "top")
    intervals = rt.i64(intervals, "intervals")
    counts_ = rt.result(_out[0], (intervals,), rt.I8, (x,))
    centres_ = rt.result(_out[1], (intervals,), rt.F8, (x,))
    status = _ZemFunc90(rt.pointer(x), n, base, top, rt.pointer(counts_), rt.pointer(centres_), intervals)
    rt.check(status, "histogram")
    return HistogramResult(rt.deliver(counts_, _out[0]), rt.deliver(centres_, _out[1]))


_ZemFunc124 = rt.bind("ZemFunc124", "status", "plddlp")


def mode_of_histogram(x, base, top, intervals):
    r"""The centre of the fullest bin of the histogram of `histogram`, the first of equally full ones.

    When all samples lie outside, the centre of the first bin.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    base : float
        lower end of the first bin, in the unit of x
    top : float
        upper end of the last bin, in the unit of x
    intervals : int

    Returns
    -------
    mode : float
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: intervals is below 1, which is tested first, or n is
        -20101: base is above top
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc124 (StatModeOfHistogram) of the C library.

    Example
    -------
    >>> mode = qv.mode_of_histogram(x, base, top, intervals)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    base = rt.real(base, "base")
    top = rt.real(top, "top")
    intervals = rt.i64(intervals, "intervals")
    mode_ = ctypes.c_double()
    status = _ZemFunc124(rt.pointer(x), n, base, top, intervals, ctypes.byref(mode_))
    rt.check(status, "mode_of_histogram")
    return mode_.value


_ZemFunc340 = rt.bind("ZemFunc340", "status", "pllpp")


def modes(x, intervals=0, *, out=None):
    r"""All values that occur most often, in ascending order; the first ones that fit are written.

    With intervals below 1 values count as equal within a relative 2.2e-16 of the smallest of them, which is the
    mode; with intervals at 1 or above the modes are the centres of the fullest bins between the smallest and the
    largest value. Nothing that occurs only once is a mode, but data that are all equal have their one value as
    the mode. A single sample has no mode. A negative room counts as none.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    intervals : int, default 0
    out : array or None
        the array for `modes`; it may be an input, to work in place

    Returns
    -------
    modes : float64 array of at most shape (count,)
        in the unit of x

    Raises
    ------
    QuorvanError
        -20003: n is below 1; count is 0
        -20001: memory is exhausted; count is 0

    Notes
    -----
    The function ZemFunc340 (StatModes) of the C library.

    Example
    -------
    >>> modes = qv.modes(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    intervals = rt.i64(intervals, "intervals")
    count = _max(n // 2, 1)
    count_ = ctypes.c_int64(count)
    modes_ = rt.result(out, (count,), rt.F8, (x,))
    status = _ZemFunc340(rt.pointer(x), n, intervals, rt.pointer(modes_), ctypes.byref(count_))
    rt.check(status, "modes")
    return rt.first(rt.deliver(modes_, out), count_.value)
