r"""Pulse and transition measurements.

Pulse and transition measurements: a waveform is taken as a signal between two states. Its state levels are
found first; then references between them, the crossings of the references, and from these the timing of
pulses and edges.

    reference   low + percent/100 (high - low)
    crossing    i + (level - x[i]) / (x[i + 1] - x[i])
    duty cycle  width / period
    slew rate   (high reference - low reference) / duration

Times are in samples from the start of the record, interpolated linearly between samples.

Level methods: 0 histogram, the fullest bins of the lower and of the upper two fifths, of equally full ones
the outermost; 1 peak, the extremes; 2 autoselect, the modes of the histogram where each holds more than 5
percent of the samples, the extremes otherwise. A mode is given as the centre of its bin.

References go in as high, mid, low, absolute or in percent of the amplitude above the low level. Percent are
converted in place, and the absolute levels come out once more as low, mid, high, after every error but
-20046, -20317 and -20001. The method is looked at only where levels are measured. Polarity: 0 falling, 1
rising.

The warning 20021 tells of a mode with less than 5 percent of the samples; it has no text in `status_message`.
Statuses are tested in the order in which they are listed. Behind -20001, outputs that an error leaves without
a value are 0; before it nothing is written.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "pulse_state_levels",
    "pulse_cycle_timing",
    "pulse_cycle_average",
    "pulse_transition",
    "PulseStateLevelsResult",
    "PulseCycleTimingResult",
    "PulseCycleAverageResult",
    "PulseTransitionResult",
]
_max, _min = max, min

_ZemFunc363 = rt.bind("ZemFunc363", "status", "plulppp")


class PulseStateLevelsResult(NamedTuple):
    """What `pulse_state_levels` gives."""

    high: float
    low: float
    amplitude: float


def pulse_state_levels(x, method=LevelMethod.AUTO, bins=256):
    r"""The two state levels of a waveform.

    The histogram has equal bins from the smallest to the largest sample; a sample is in bin floor((x - min) /
    width).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the waveform
    method : LevelMethod, its name, or int, default LevelMethod.AUTO
        0 histogram, 1 peak, 2 autoselect
    bins : int, default 256
        of the histogram, for every method at least 1

    Returns
    -------
    high : float
        the upper state level
    low : float
        the lower state level
    amplitude : float
        high - low

    Raises
    ------
    QuorvanError
        -20317: bins is below 1
        -20001: memory is exhausted
        -20312: n is below 1, or x is None
        -20316: the method is above 2
        -20309: all samples are equal; not with method 1

    Warns
    -----
    QuorvanWarning
        20021: method 0, and a mode holds less than 5 percent of the samples

    Notes
    -----
    The function ZemFunc363 (PulseStateLevels) of the C library.

    Example
    -------
    >>> high, low, amplitude = qv.pulse_state_levels(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    method = rt.choice(method, LevelMethod, "method")
    bins = rt.i64(bins, "bins")
    high_ = ctypes.c_double()
    low_ = ctypes.c_double()
    amplitude_ = ctypes.c_double()
    status = _ZemFunc363(rt.pointer(x), n, method, bins, ctypes.byref(high_), ctypes.byref(low_),
            ctypes.byref(amplitude_))
    rt.check(status, "pulse_state_levels")
    return PulseStateLevelsResult(high_.value, low_.value, amplitude_.value)


_ZemFunc364 = rt.bind("ZemFunc364", "status", "plilpppiulppppppp")


class PulseCycleTimingResult(NamedTuple):
    """What `pulse_cycle_timing` gives."""

    period: float
    duration: float
    duty: float
    centre: float
    low: float
    mid: float
    high: float


def pulse_cycle_timing(x, polarity=EdgePolarity.RISING, cycle=1, high=90.0, mid=50.0, low=10.0, percent=True, method=LevelMethod.AUTO, bins=256):
    r"""Period, width and duty cycle of one pulse of a train.

    A crossing of mid counts when the signal has been on the other side of mid - h or mid + h since the one
    before, with h the smaller of high - mid and mid - low; this keeps noise from counting twice. 2 cycle + 1
    crossings are needed.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the waveform
    polarity : EdgePolarity, its name, or int, default EdgePolarity.RISING
        of the start of the pulse: 0 falling, 1 rising, -1 the first of any
    cycle : int, default 1
        number of the pulse, from 1
    high : float, default 90.0
        upper reference
    mid : float, default 50.0
        middle reference, whose crossings bound the pulse
    low : float, default 10.0
        lower reference
    percent : bool, default True
        true: the references are in percent
    method : LevelMethod, its name, or int, default LevelMethod.AUTO
        of the state levels, for references in percent
    bins : int, default 256
        of the histogram, at least 1

    Returns
    -------
    period : float
        samples between the crossings 2 cycle - 1 and 2 cycle + 1, whatever the polarity
    duration : float
        samples from the start to the end of the pulse
    duty : float
        duration / period
    centre : float
        the middle of the pulse, in samples
    low : float
        low, absolute
    mid : float
        mid, absolute
    high : float
        high, absolute

    Raises
    ------
    QuorvanError
        -20046: 2 cycle + 1 does not fit 32 bits
        -20317: bins is below 1
        -20001: memory is exhausted
        -20323: cycle is below 1
        -20312: n is below 1, or x is None
        -20316: percent, and the method is above 2
        -20309: percent with method 0 or 2, and all samples are equal
        -20313: mid is above high or below low
        -20311: memory for the crossings is exhausted
        -20308: there are fewer crossings, or none that the polarity names

    Warns
    -----
    QuorvanWarning
        20021: percent with method 0, and a mode holds less than 5 percent of the samples

    Notes
    -----
    The function ZemFunc364 (PulseCycleTiming) of the C library.

    Example
    -------
    >>> result = qv.pulse_cycle_timing(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    polarity = rt.choice(polarity, EdgePolarity, "polarity")
    cycle = rt.i64(cycle, "cycle")
    high_ = ctypes.c_double(rt.real(high, "high"))
    mid_ = ctypes.c_double(rt.real(mid, "mid"))
    low_ = ctypes.c_double(rt.real(low, "low"))
    percent = int(bool(percent))
    method = rt.choice(method, LevelMethod, "method")
    bins = rt.i64(bins, "bins")
    period_ = ctypes.c_double()
    duration_ = ctypes.c_double()
    duty_ = ctypes.c_double()
    centre_ = ctypes.c_double()
    low_out_ = ctypes.c_double()
    mid_out_ = ctypes.c_double()
    high_out_ = ctypes.c_double()
    status = _ZemFunc364(rt.pointer(x), n, polarity, cycle, ctypes.byref(high_), ctypes.byref(mid_),
            ctypes.byref(low_), percent, method, bins, ctypes.byref(period_), ctypes.byref(duration_),
            ctypes.byref(duty_), ctypes.byref(centre_), ctypes.byref(low_out_), ctypes.byref(mid_out_),
            ctypes.byref(high_out_))
    rt.check(status, "pulse_cycle_timing")
    return PulseCycleTimingResult(period_.value, duration_.value, duty_.value, centre_.value, low_out_.value,
            mid_out_.value, high_out_.value)


_ZemFunc365 = rt.bind("ZemFunc365", "status", "pllpppiulppppppp")


class PulseCycleAverageResult(NamedTuple):
    """What `pulse_cycle_average` gives."""

    mean: float
    rms: float
    start: float
    end: float
    low: float
    mid: float
    high: float


def pulse_cycle_average(x, cycle=1, high=90.0, mid=50.0, low=10.0, percent=True, method=LevelMethod.AUTO, bins=256):
    r"""Mean and root mean square over one period, from the start of a pulse of any polarity.

    The period is found as by `pulse_cycle_timing`, start and length are rounded to samples, and a period that
    would end behind the record is moved back to its end.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the waveform
    cycle : int, default 1
        number of the pulse, from 1
    high : float, default 90.0
        upper reference
    mid : float, default 50.0
        middle reference, whose crossings bound the pulse
    low : float, default 10.0
        lower reference
    percent : bool, default True
        true: the references are in percent
    method : LevelMethod, its name, or int, default LevelMethod.AUTO
        of the state levels, for references in percent
    bins : int, default 256
        of the histogram, at least 1

    Returns
    -------
    mean : float
        of the samples of one period
    rms : float
        root mean square of the samples of one period
    start : float
        of the period, in samples
    end : float
        of the period, in samples
    low : float
        low, absolute
    mid : float
        mid, absolute
    high : float
        high, absolute

    Raises
    ------
    QuorvanError
        -20046: 2 cycle + 1 does not fit 32 bits
        -20317: bins is below 1
        -20001: memory is exhausted
        -20323: cycle is below 1
        -20312: n is below 1, or x is None
        -20316: percent, and the method is above 2
        -20309: percent with method 0 or 2, and all samples are equal
        -20313: mid is above high or below low
        -20311: memory for the crossings is exhausted
        -20308: there are fewer than 2 cycle + 1 crossings
        -20319: the period rounds to no sample; start and end are written

    Warns
    -----
    QuorvanWarning
        20021: percent with method 0, and a mode holds less than 5 percent of the samples

    Notes
    -----
    The function ZemFunc365 (PulseCycleAverage) of the C library.

    Example
    -------
    >>> result = qv.pulse_cycle_average(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    cycle = rt.i64(cycle, "cycle")
    high_ = ctypes.c_double(rt.real(high, "high"))
    mid_ = ctypes.c_double(rt.real(mid, "mid"))
    low_ = ctypes.c_double(rt.real(low, "low"))
    percent = int(bool(percent))
    method = rt.choice(method, LevelMethod, "method")
    bins = rt.i64(bins, "bins")
    mean_ = ctypes.c_double()
    rms_ = ctypes.c_double()
    start_ = ctypes.c_double()
    end_ = ctypes.c_double()
    low_out_ = ctypes.c_double()
    mid_out_ = ctypes.c_double()
    high_out_ = ctypes.c_double()
    status = _ZemFunc365(rt.pointer(x), n, cycle, ctypes.byref(high_), ctypes.byref(mid_), ctypes.byref(low_),
            percent, method, bins, ctypes.byref(mean_), ctypes.byref(rms_), ctypes.byref(start_), ctypes.byref(end_),
            ctypes.byref(low_out_), ctypes.byref(mid_out_), ctypes.byref(high_out_))
    rt.check(status, "pulse_cycle_average")
    return PulseCycleAverageResult(mean_.value, rms_.value, start_.value, end_.value, low_out_.value, mid_out_.value,
            high_out_.value)


_ZemFunc366 = rt.bind("ZemFunc366", "status", "plilpppiulppppppppppp")


class PulseTransitionResult(NamedTuple):
    """What `pulse_transition` gives."""

    slew: float
    duration: float
    first_time: float
    second_time: float
    low: float
    mid: float
    high: float
    pre_undershoot: float
    pre_overshoot: float
    post_undershoot: float
    post_overshoot: float


def pulse_transition(x, polarity=EdgePolarity.RISING, edge=1, high=90.0, mid=50.0, low=10.0, percent=True, method=LevelMethod.AUTO, bins=256):
    r"""Timing and slew rate of one edge, and the ringing before and behind it.

    Ringing is measured from the modes of the histogram, whatever the method, and is 0 within the bin of the mode.
    It is looked for half way to the neighbouring edges, at most three durations away, and not where the edge
    itself moves. What has been found before an error stays in its output.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the waveform
    polarity : EdgePolarity, its name, or int, default EdgePolarity.RISING
        of the edge: 0 falling, 1 rising
    edge : int, default 1
        number of the edge of that polarity, from 1
    high : float, default 90.0
        upper reference
    mid : float, default 50.0
        middle reference
    low : float, default 10.0
        lower reference
    percent : bool, default True
        true: the references are in percent
    method : LevelMethod, its name, or int, default LevelMethod.AUTO
        of the state levels
    bins : int, default 256
        of the histogram, at least 1

    Returns
    -------
    slew : float
        (high - low) / duration, in the unit of x per sample, positive for falling edges too
    duration : float
        samples between the crossings of both references
    first_time : float
        the earlier of these crossings, in samples
    second_time : float
        the later of these crossings, in samples
    low : float
        low, absolute
    mid : float
        mid, absolute
    high : float
        high, absolute
    pre_undershoot : float
        below the level before the edge, in percent of the distance of the modes
    pre_overshoot : float
        above the level before the edge
    post_undershoot : float
        below the level behind the edge
    post_overshoot : float
        above the level behind the edge

    Raises
    ------
    QuorvanError
        -20046: 2 edge + 1 does not fit 32 bits
        -20317: bins is below 1
        -20001: memory is exhausted
        -20323: edge is below 1
        -20312: n is below 1, or x is None
        -20316: the method is above 2
        -20309: all samples are equal; with method 1 after the first cause of -20313
        -20313: mid is above high or below low; or, after -20311, low is not below high
        -20311: memory for the edges is exhausted
        -20310: there are too few edges, or none of that polarity
        -20312: no sample is left to look for ringing
        -20326: the duration is not above 0

    Warns
    -----
    QuorvanWarning
        20021: a mode holds less than 5 percent of the samples

    Notes
    -----
    The function ZemFunc366 (PulseTransition) of the C library.

    Example
    -------
    >>> result = qv.pulse_transition(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    polarity = rt.choice(polarity, EdgePolarity, "polarity")
    edge = rt.i64(edge, "edge")
    high_ = ctypes.c_double(rt.real(high, "high"))
    mid_ = ctypes.c_double(rt.real(mid, "mid"))
    low_ = ctypes.c_double(rt.real(low, "low"))
    percent = int(bool(percent))
    method = rt.choice(method, LevelMethod, "method")
    bins = rt.i64(bins, "bins")
    slew_ = ctypes.c_double()
    duration_ = ctypes.c_double()
    first_time_ = ctypes.c_double()
    second_time_ = ctypes.c_double()
    low_out_ = ctypes.c_double()
    mid_out_ = ctypes.c_double()
    high_out_ = ctypes.c_double()
    pre_undershoot_ = ctypes.c_double()
    pre_overshoot_ = ctypes.c_double()
    post_undershoot_ = ctypes.c_double()
    post_overshoot_ = ctypes.c_double()
    status = _ZemFunc366(rt.pointer(x), n, polarity, edge, ctypes.byref(high_), ctypes.byref(mid_),
            ctypes.byref(low_), percent, method, bins, ctypes.byref(slew_), ctypes.byref(duration_),
            ctypes.byref(first_time_), ctypes.byref(second_time_), ctypes.byref(low_out_), ctypes.byref(mid_out_),
            ctypes.byref(high_out_), ctypes.byref(pre_undershoot_), ctypes.byref(pre_overshoot_),
            ctypes.byref(post_undershoot_), ctypes.byref(post_overshoot_))
    rt.check(status, "pulse_transition")
    return PulseTransitionResult(slew_.value, duration_.value, first_time_.value, second_time_.value, low_out_.value,
            mid_out_.value, high_out_.value, pre_undershoot_.value, pre_overshoot_.value, post_undershoot_.value,
            post_overshoot_.value)
