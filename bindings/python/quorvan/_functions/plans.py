r"""FFT plans.

A plan holds everything that transforms of one length need. All users of a length share one plan, and a plan
lives as long as somebody holds it: a program that transforms one length again and again holds a plan and
spares the building of its tables. Any length from 1 up has a plan; those whose prime factors are all small
run fastest.

    FftPlan* plan = `fft_plan_create`(1024);
    for (...) `real_fft`(frame, 1024, 0, plan, 0, spectrum);
    `fft_plan_release`(plan);

A plan is never changed, so any number of threads may use it at once. Where a function takes a plan, null
makes one for the call; the results are the same.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fft_plan_create",
    "fft_plan_release",
]
_max, _min = max, min

_ZemFunc260 = rt.bind("ZemFunc260", "handle", "l")


def fft_plan_create(size):
    r"""A plan for transforms of this length, to be given back with `fft_plan_release`.

    Two calls with one length return the same plan; each needs its own release. Null if the size does not fit 32
    bits, is below 1, or memory ran out.

    Parameters
    ----------
    size : int
        the length of the transforms in points

    Returns
    -------
    FftPlan

    Notes
    -----
    The function ZemFunc260 (FftPlanCreate) of the C library.

    Example
    -------
    >>> fft_plan = qv.fft_plan_create(size)
    """
    size = rt.i64(size, "size")
    return rt.adopt("FftPlan", _ZemFunc260(size), "fft_plan_create")


_ZemFunc261 = rt.bind("ZemFunc261", "none", "p")


def fft_plan_release(plan):
    r"""Gives a plan back; the last release frees it.

    Parameters
    ----------
    plan : FftPlan
        the plan

    Returns
    -------
    None

    Notes
    -----
    The function ZemFunc261 (FftPlanRelease) of the C library.

    Example
    -------
    >>> qv.fft_plan_release(plan)
    """
    rt.release(plan, "FftPlan", _ZemFunc261)
