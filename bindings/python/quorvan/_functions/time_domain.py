r"""Time-domain operations.

Integration, differentiation, decimation and level crossings of sampled signals.

    integral     out[i] = out[i - 1] + (x[i - 1] + 4 x[i] + x[i + 1]) dt / 6
    derivative   out[i] = (x[i + 1] - x[i - 1]) / (2 dt)
    decimation   out[i] = x[i factor],  or the mean of x[i factor] ... x[(i + 1) factor - 1]
    crossing     rising: armed below level - |hysteresis|, found at or above level

dt is the time between samples; the samples in front of the first and behind the last are arguments.

The continuous forms take an endless signal block by block; where the blocks are cut makes no difference. They
keep their state for each thread and operation, so that a thread runs one stream an operation; a first call on
a thread starts as a reset does.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "integrate_simpson",
    "differentiate",
    "differentiate_method",
    "decimate",
    "decimate_complex",
    "decimate_continuous",
    "decimate_continuous_complex",
    "detect_level_crossing",
    "detect_level_crossings",
    "DetectLevelCrossingResult",
    "DetectLevelCrossingsResult",
]
_max, _min = max, min

_ZemFunc95 = rt.bind("ZemFunc95", "status", "pldddp")


def integrate_simpson(x, dt=1.0, initial=0.0, final=0.0, *, out=None):
    r"""The running integral by the rule of Simpson: out[i] = out[i - 1] + (x[i - 1] + 4 x[i] + x[i + 1]) dt / 6.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        samples
    dt : float, default 1.0
        sampling interval
    initial : float, default 0.0
        the sample in front of the first
    final : float, default 0.0
        the sample behind the last
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the integral

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20016: dt is 0 or negative

    Notes
    -----
    The function ZemFunc95 (IntegrateSimpson) of the C library.

    Example
    -------
    >>> out = qv.integrate_simpson(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    initial = rt.real(initial, "initial")
    final = rt.real(final, "final")
    out_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc95(rt.pointer(x), n, dt, initial, final, rt.pointer(out_))
    rt.check(status, "integrate_simpson")
    return rt.deliver(out_, out)


_ZemFunc56 = rt.bind("ZemFunc56", "status", "pldddp")


def differentiate(x, dt=1.0, initial=0.0, final=0.0, *, out=None):
    r"""The derivative by central differences: out[i] = (x[i + 1] - x[i - 1]) (0.5 / dt).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        samples
    dt : float, default 1.0
        sampling interval
    initial : float, default 0.0
        the sample in front of the first
    final : float, default 0.0
        the sample behind the last
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the derivative

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20016: dt is 0 or negative

    Notes
    -----
    The function ZemFunc56 (Differentiate) of the C library.

    Example
    -------
    >>> out = qv.differentiate(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    initial = rt.real(initial, "initial")
    final = rt.real(final, "final")
    out_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc56(rt.pointer(x), n, dt, initial, final, rt.pointer(out_))
    rt.check(status, "differentiate")
    return rt.deliver(out_, out)


_ZemFunc367 = rt.bind("ZemFunc367", "status", "pldplplup")


def differentiate_method(x, initial, final, dt=1.0, method=Difference.CENTRAL2, *, out=None):
    r"""The derivative by differences: (x[i + 1] - x[i - 1]) / 2, (8 x[i + 1] - x[i + 2] - 8 x[i - 1] + x[i - 2]) /
    12, x[i + 1] - x[i] or x[i] - x[i - 1], over dt.

    The factor is formed once as a reciprocal.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        samples
    initial : array_like of float64, shape (n_initial,)
        the samples in front of the first, in order; the first ones given count
    final : array_like of float64, shape (n_final,)
        the samples behind the last, in order
    dt : float, default 1.0
        sampling interval
    method : Difference, its name, or int, default Difference.CENTRAL2
        0 central of second order, 1 central of fourth order, 2 forward, 3 backward
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the derivative

    Raises
    ------
    QuorvanError
        -20003: n is below 1, or a boundary array of method 0, 2 or 3 is too short
        -20016: dt is 0 or negative
        -20006: a boundary array of method 1 has fewer than two values
        -20061: method is above 3

    Notes
    -----
    The function ZemFunc367 (DifferentiateMethod) of the C library.

    Example
    -------
    >>> out = qv.differentiate_method(x, initial, final)
    """
    x = rt.array(x, rt.F8, 1, "x")
    initial = rt.array(initial, rt.F8, 1, "initial")
    final = rt.array(final, rt.F8, 1, "final")
    n = x.shape[0]
    n_initial = initial.shape[0]
    n_final = final.shape[0]
    dt = rt.real(dt, "dt")
    method = rt.choice(method, Difference, "method")
    out_ = rt.result(out, (n,), rt.F8, (x, initial, final))
    status = _ZemFunc367(rt.pointer(x), n, dt, rt.pointer(initial), n_initial, rt.pointer(final), n_final, method,
            rt.pointer(out_))
    rt.check(status, "differentiate_method")
    return rt.deliver(out_, out)


_ZemFunc53 = rt.bind("ZemFunc53", "status", "pllup")


def decimate(x, factor, average=False, *, out=None):
    r"""Reduces the sampling rate: one result for each whole block of factor samples; the tail is dropped.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        samples
    factor : int
        samples that make one result
    average : bool, default False
        false takes the first sample of each block; true its mean
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n // factor,)
        the results

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20022: factor is below 1 or above n

    Notes
    -----
    Complex arrays go to `decimate_complex`. The function ZemFunc53 (Decimate) of the C library.

    Example
    -------
    >>> out = qv.decimate(x, factor)
    """
    if rt.is_complex(x):
        return decimate_complex(x=x, factor=factor, average=average, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    factor = rt.i64(factor, "factor")
    average = int(bool(average))
    out_ = rt.result(out, (rt.quotient(n, factor),), rt.F8, (x,))
    status = _ZemFunc53(rt.pointer(x), n, factor, average, rt.pointer(out_))
    rt.check(status, "decimate")
    return rt.deliver(out_, out)


_ZemFunc360 = rt.bind("ZemFunc360", "status", "pllup")


def decimate_complex(x, factor, average=False, *, out=None):
    r"""`decimate` for complex samples.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        samples
    factor : int
        samples that make one result
    average : bool, default False
        false takes the first sample of each block; true its mean
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n // factor,)
        the results

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20022: factor is below 1 or above n

    Notes
    -----
    The function ZemFunc360 (DecimateComplex) of the C library.

    Example
    -------
    >>> out = qv.decimate_complex(x, factor)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    factor = rt.i64(factor, "factor")
    average = int(bool(average))
    out_ = rt.result(out, (rt.quotient(n, factor),), rt.C16, (x,))
    status = _ZemFunc360(rt.pointer(x), n, factor, average, rt.pointer(out_))
    rt.check(status, "decimate_complex")
    return rt.deliver(out_, out)


_ZemFunc417 = rt.bind("ZemFunc417", "status", "plluiip")


def decimate_continuous(x, factor, average=False, offset=0, reset=True, *, out=None):
    r"""Decimates an endless signal block by block, in place: all results together are those of `decimate` on the
    joined signal.

    With averaging and a block that ends before the offset the count may be negative: there are no results.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        a block of the signal; its results stand at the begin
    factor : int
        samples that make one result; taken on the first or a resetting call
    average : bool, default False
        false takes the first sample of each group; true its mean
    offset : int, default 0
        samples to skip at the begin of the signal; taken on the first or a resetting call
    reset : bool, default True
        true starts a new signal
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of at most shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1; nothing changes
        -20140: the factor in force is below 1; count is 0
        -20059: the offset in force is negative
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `decimate_continuous_complex`. There is an object for such a stream, too. The function
    ZemFunc417 (DecimateContinuous) of the C library.

    Example
    -------
    >>> x = qv.decimate_continuous(x, factor)
    """
    if rt.is_complex(x):
        return decimate_continuous_complex(x=x, factor=factor, average=average, offset=offset, reset=reset, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    factor = rt.i64(factor, "factor")
    average = int(bool(average))
    offset = rt.i32(offset, "offset")
    reset = int(bool(reset))
    x_ = rt.worked(x, out)
    count_ = ctypes.c_int64()
    status = _ZemFunc417(rt.pointer(x_), n, factor, average, offset, reset, ctypes.byref(count_))
    rt.check(status, "decimate_continuous")
    return rt.first(rt.deliver(x_, out), count_.value)


_ZemFunc418 = rt.bind("ZemFunc418", "status", "plluiip")


def decimate_continuous_complex(x, factor, average=False, offset=0, reset=True, *, out=None):
    r"""`decimate_continuous` for complex samples, with a state of its own.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        a block of the signal; its results stand at the begin
    factor : int
        samples that make one result; taken on the first or a resetting call
    average : bool, default False
        false takes the first sample of each group; true its mean
    offset : int, default 0
        samples to skip at the begin of the signal; taken on the first or a resetting call
    reset : bool, default True
        true starts a new signal
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of at most shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1; nothing changes
        -20140: the factor in force is below 1; count is 0
        -20059: the offset in force is negative
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc418 (DecimateContinuousComplex) of the C
    library.

    Example
    -------
    >>> x = qv.decimate_continuous_complex(x, factor)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    factor = rt.i64(factor, "factor")
    average = int(bool(average))
    offset = rt.i32(offset, "offset")
    reset = int(bool(reset))
    x_ = rt.worked(x, out)
    count_ = ctypes.c_int64()
    status = _ZemFunc418(rt.pointer(x_), n, factor, average, offset, reset, ctypes.byref(count_))
    rt.check(status, "decimate_continuous_complex")
    return rt.first(rt.deliver(x_, out), count_.value)


_ZemFunc419 = rt.bind("ZemFunc419", "status", "plddiipp")


class DetectLevelCrossingResult(NamedTuple):
    """What `detect_level_crossing` gives."""

    index: int
    found: bool


def detect_level_crossing(x, level, hysteresis=0.0, slope=EdgePolarity.RISING, reset=True):
    r"""The first crossing of a level in a block.

    Rising: a sample below level - |hysteresis| arms, a later one at or above the level is the crossing. Falling:
    above level + |hysteresis|, then at or below the level. The rest of the block is not looked at, and the next
    crossing needs arming again.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        a block of the signal
    level : float
        the level to cross
    hysteresis : float, default 0.0
        its absolute value counts
    slope : EdgePolarity, its name, or int, default EdgePolarity.RISING
        1 rising, 0 falling; any other finds nothing
    reset : bool, default True
        true starts a new signal

    Returns
    -------
    index : int
        of the crossing in this block, -1 if there is none
    found : bool
        1 if there is one, else 0

    Raises
    ------
    QuorvanError
        -20004: n is negative; a reset has been done
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc419 (DetectLevelCrossing) of the C library.

    Example
    -------
    >>> index, found = qv.detect_level_crossing(x, level)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    level = rt.real(level, "level")
    hysteresis = rt.real(hysteresis, "hysteresis")
    slope = rt.choice(slope, EdgePolarity, "slope")
    reset = int(bool(reset))
    index_ = ctypes.c_int64()
    found_ = ctypes.c_int32()
    status = _ZemFunc419(rt.pointer(x), n, level, hysteresis, slope, reset, ctypes.byref(index_),
            ctypes.byref(found_))
    rt.check(status, "detect_level_crossing")
    return DetectLevelCrossingResult(index_.value, bool(found_.value))


_ZemFunc420 = rt.bind("ZemFunc420", "status", "pllpppipp")


class DetectLevelCrossingsResult(NamedTuple):
    """What `detect_level_crossings` gives."""

    indices: np.ndarray
    found: np.ndarray


def detect_level_crossings(x, levels, hysteresis, slopes, reset=True, *, out=None):
    r"""`detect_level_crossing` for several signals at once, with states of their own.

    Parameters
    ----------
    x : array_like of float64, shape (channels, n)
        one row of n samples a channel
    levels : array_like of float64, shape (channels,)
        the levels to cross
    hysteresis : array_like of float64, shape (channels,)
        their absolute values count
    slopes : array_like of int32, shape (channels,)
        1 rising, 0 falling; any other finds nothing
    reset : bool, default True
        true starts new signals
    out : tuple or None
        arrays for `indices`, `found`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    indices : int64 array of shape (channels,)
        of the crossings in this block, -1 where there is none
    found : int32 array of shape (channels,)
        1 where there is one, else 0

    Raises
    ------
    QuorvanError
        -20003: channels or n is below 1
        -20058: channels differs from what the stream was started with
        -20001: memory is exhausted; a start that found none needs a reset

    Notes
    -----
    The function ZemFunc420 (DetectLevelCrossings) of the C library.

    Example
    -------
    >>> indices, found = qv.detect_level_crossings(x, levels, hysteresis, slopes)
    """
    _out = rt.outs(out, 2, "detect_level_crossings")
    x = rt.array(x, rt.F8, 2, "x")
    levels = rt.array(levels, rt.F8, 1, "levels")
    hysteresis = rt.array(hysteresis, rt.F8, 1, "hysteresis")
    slopes = rt.array(slopes, rt.I4, 1, "slopes")
    channels = x.shape[0]
    n = x.shape[1]
    reset = int(bool(reset))
    rt.fits(levels, (channels,), "levels")
    rt.fits(hysteresis, (channels,), "hysteresis")
    rt.fits(slopes, (channels,), "slopes")
    indices_ = rt.result(_out[0], (channels,), rt.I8, (x, levels, hysteresis, slopes))
    found_ = rt.result(_out[1], (channels,), rt.I4, (x, levels, hysteresis, slopes))
    status = _ZemFunc420(rt.pointer(x), channels, n, rt.pointer(levels), rt.pointer(hysteresis), rt.pointer(slopes),
            reset, rt.pointer(indices_), rt.pointer(found_))
    rt.check(status, "detect_level_crossings")
    return DetectLevelCrossingsResult(rt.deliver(indices_, _out[0]), rt.deliver(found_, _out[1]))
