r"""Shape of a single pulse.

The levels and the timing of the first pulse in a record, all by one call.

    level p = lower + p/100 (upper - lower),      p = 10, 50, 90
    delay: the first crossing of level 50,  width: from there to the next one
    rise and fall: from level 10 to level 90 and back,  slew = 0.8 (top - base) / rise

Times are in samples from the start of the record, cut to whole ones; slew is per sample. A pulse that goes
down has its base above its top.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "pulse_parameters",
    "PulseParametersResult",
]
_max, _min = max, min

_ZemFunc142 = rt.bind("ZemFunc142", "status", "plppppppppppppp")


class PulseParametersResult(NamedTuple):
    """What `pulse_parameters` gives."""

    amplitude: float
    level90: float
    level50: float
    level10: float
    top: float
    base: float
    overshoot: float
    undershoot: float
    delay: int
    width: int
    rise: int
    fall: int
    slew: float


def pulse_parameters(x):
    r"""Levels and timing of the first pulse in a record.

    The levels are the centres of the fullest of 101 equal bins between the extremes, one looked for from each
    end, of equally full bins the outermost. A pulse goes down when its first sample is above level50. Times are
    interpolated between samples, and the slew rate is made of them; then they are truncated to whole samples.
    Where an edge does not end, its time lasts to the end of the record; the last sample never counts as a
    crossing. NaN is passed over, but not as first sample.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the waveform, with one pulse

    Returns
    -------
    amplitude : float
        top - base; negative for a pulse that goes down
    level90 : float
        90 percent of the way from the lower to the upper level
    level50 : float
        50 percent
    level10 : float
        10 percent
    top : float
        the level of the pulse; the lower one for a pulse that goes down
    base : float
        the level around the pulse; the upper one for a pulse that goes down
    overshoot : float
        the largest sample above the upper level
    undershoot : float
        the smallest sample below the lower level
    delay : int
        samples from the start of the record to the first crossing of level50
    width : int
        samples from there to the next crossing of level50
    rise : int
        samples of the first edge between level10 and level90
    fall : int
        samples of the second edge between them
    slew : float
        0.8 amplitude / rise; 1e30 for a rise of 0

    Raises
    ------
    QuorvanError
        -20003: n is below 1; nothing is written
        -20116: a time has no value within the record, which includes every constant signal; the four times are 0

    Notes
    -----
    The function ZemFunc142 (PulseParameters) of the C library.

    Example
    -------
    >>> result = qv.pulse_parameters(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    amplitude_ = ctypes.c_double()
    level90_ = ctypes.c_double()
    level50_ = ctypes.c_double()
    level10_ = ctypes.c_double()
    top_ = ctypes.c_double()
    base_ = ctypes.c_double()
    overshoot_ = ctypes.c_double()
    undershoot_ = ctypes.c_double()
    delay_ = ctypes.c_int64()
    width_ = ctypes.c_int64()
    rise_ = ctypes.c_int64()
    fall_ = ctypes.c_int64()
    slew_ = ctypes.c_double()
    status = _ZemFunc142(rt.pointer(x), n, ctypes.byref(amplitude_), ctypes.byref(level90_), ctypes.byref(level50_),
            ctypes.byref(level10_), ctypes.byref(top_), ctypes.byref(base_), ctypes.byref(overshoot_),
            ctypes.byref(undershoot_), ctypes.byref(delay_), ctypes.byref(width_), ctypes.byref(rise_),
            ctypes.byref(fall_), ctypes.byref(slew_))
    rt.check(status, "pulse_parameters")
    return PulseParametersResult(amplitude_.value, level90_.value, level50_.value, level10_.value, top_.value,
            base_.value, overshoot_.value, undershoot_.value, delay_.value, width_.value, rise_.value, fall_.value,
            slew_.value)
