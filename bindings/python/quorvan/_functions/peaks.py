r"""Peak and level detection.

Two detectors that walk a signal: runs of samples at or above a level, and peaks or valleys of parabolas
fitted to a sliding window.

    window of width samples:  p(t) = c0 + c1 t + c2 t^2,  least squares
    peak: slope c1 changes from + to -;  location t = -c1 / (2 c2),  amplitude p(t),  second derivative 2 c2

Both also take a signal in consecutive blocks: each thread has one stream of either, which needs no handle.
Positions are in samples and count from the start of the stream; those of peaks lie between samples.

Statuses are tested in the order in which they are listed.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "peak_threshold_runs",
    "peak_threshold_runs_stream",
    "peak_detect",
    "PeakDetectResult",
]
_max, _min = max, min

_ZemFunc237 = rt.bind("ZemFunc237", "status", "pldlpp")


def peak_threshold_runs(x, threshold, width, *, out=None):
    r"""Finds where a signal stays at or above a threshold for at least `width` samples.

    NaN is below every threshold. A width of 0 divides by zero, which ends the process on most machines.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the signal
    threshold : float
        samples at or above it form runs
    width : int
        least length of a run, below n; it must not be 0, which is not tested
    out : array or None
        the array for `indices`; it may be an input, to work in place

    Returns
    -------
    indices : int64 array of at most shape (n // width + 1,)
        the first samples of the runs, as many as count tells

    Raises
    ------
    QuorvanError
        -20003: n / width + 1 is below 1; nothing is written
        -20001: memory is exhausted; nothing is written
        -20003: n is below 1; count is 0
        -20013: the width is below 1, or not below n; count is 0

    Notes
    -----
    Here a width of 0 raises ZeroDivisionError, before the call. The function ZemFunc237 (PeakThresholdRuns) of
    the C library.

    Example
    -------
    >>> indices = qv.peak_threshold_runs(x, threshold, width)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    threshold = rt.real(threshold, "threshold")
    width = rt.i64(width, "width")
    count_ = ctypes.c_int64()
    indices_ = rt.result(out, (rt.quotient(n, width) + 1,), rt.I8, (x,))
    status = _ZemFunc237(rt.pointer(x), n, threshold, width, rt.pointer(indices_), ctypes.byref(count_))
    rt.check(status, "peak_threshold_runs")
    return rt.first(rt.deliver(indices_, out), count_.value)


_ZemFunc493 = rt.bind("ZemFunc493", "status", "pldliipp")


def peak_threshold_runs_stream(x, threshold, width, reset=True, last=True, *, out=None):
    r"""The same in consecutive blocks: a run may go on from block to block, and is told once, when it has reached the
    width.

    After a failure the stream stays as it was, also with reset, and nothing is written. The width may change from
    block to block. Positions have 32 bits, and wrap.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the next block of the signal
    threshold : float
        samples at or above it form runs
    width : int
        least length of a run, 1 to 2^30
    reset : bool, default True
        true: the block is the first of a new stream
    last : bool, default True
        true: the stream ends with this block
    out : array or None
        the array for `indices`; it may be an input, to work in place

    Returns
    -------
    indices : int64 array of at most shape (n // width + 1,)
        the first samples of the runs, as many as count tells

    Raises
    ------
    QuorvanError
        -20001: memory is exhausted
        -20003: n is below 0
        -20013: the width is below 1 or above 2^30

    Notes
    -----
    Here a width of 0 raises ZeroDivisionError, before the call. The function ZemFunc493 (PeakThresholdRunsStream)
    of the C library.

    Example
    -------
    >>> indices = qv.peak_threshold_runs_stream(x, threshold, width)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    threshold = rt.real(threshold, "threshold")
    width = rt.i64(width, "width")
    reset = int(bool(reset))
    last = int(bool(last))
    count_ = ctypes.c_int64()
    indices_ = rt.result(out, (rt.quotient(n, width) + 1,), rt.I8, (x,))
    status = _ZemFunc493(rt.pointer(x), n, threshold, width, reset, last, rt.pointer(indices_), ctypes.byref(count_))
    rt.check(status, "peak_threshold_runs_stream")
    return rt.first(rt.deliver(indices_, out), count_.value)


_ZemFunc194 = rt.bind("ZemFunc194", "status", "pldluuipppp")


class PeakDetectResult(NamedTuple):
    """What `peak_detect` gives."""

    locations: np.ndarray
    amplitudes: np.ndarray
    second_derivatives: np.ndarray


def peak_detect(x, threshold, width, polarity=PeakPolarity.PEAKS, first=True, last=True):
    r"""Finds peaks or valleys from the parabolas c0 + c1 t + c2 t^2 that fit each window best (least squares), where
    their slope changes its sign from one window to the next.

    The apex must lie within the middle half of the window. Windows of 3 and 4 samples are judged by their
    curvature alone. Of peaks less than one sample apart the higher stands, of valleys the lower. This is not done
    across blocks. The last window of a block waits for the next one; call with last to have all, also to end a
    stream.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the next block of the signal
    threshold : float
        peaks must be above it, valleys below
    width : int
        of the window, 3 to 2^30, the same for all blocks of a stream
    polarity : PeakPolarity, its name, or int, default PeakPolarity.PEAKS
        0 peaks, 1 valleys; others find nothing
    first : bool, default True
        true: the block begins a new stream
    last : bool, default True
        true: the stream ends with this block

    Returns
    -------
    locations : float64 array of shape (count,)
        their positions in samples, between samples too
    amplitudes : float64 array of shape (count,)
        their heights
    second_derivatives : float64 array of shape (count,)
        of the parabola, per sample squared

    Raises
    ------
    QuorvanError
        -20061: the width is below 3 or above 2^30
        -20001: memory is exhausted
        -20013: the block is shorter than the width
        -20064: first is 0, and there is no stream
        -20058: the width is not that of the stream

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc194 (PeakDetect) of the C library.

    Example
    -------
    >>> locations, amplitudes, second_derivatives = qv.peak_detect(x, threshold, width)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    threshold = rt.real(threshold, "threshold")
    width = rt.i64(width, "width")
    polarity = rt.choice(polarity, PeakPolarity, "polarity")
    first = int(bool(first))
    last = int(bool(last))
    count_ = ctypes.c_int64()
    locations_ = ctypes.c_void_p()
    amplitudes_ = ctypes.c_void_p()
    second_derivatives_ = ctypes.c_void_p()
    status = _ZemFunc194(rt.pointer(x), n, threshold, width, polarity, first, last, ctypes.byref(count_),
            ctypes.byref(locations_), ctypes.byref(amplitudes_), ctypes.byref(second_derivatives_))
    rt.check(status, "peak_detect")
    locations_ = rt.taken(locations_, count_.value)
    amplitudes_ = rt.taken(amplitudes_, count_.value)
    second_derivatives_ = rt.taken(second_derivatives_, count_.value)
    return PeakDetectResult(locations_, amplitudes_, second_derivatives_)
