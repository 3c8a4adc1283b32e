r"""Release of memory.

A few operations hand out blocks that belong to the caller from then on: filter objects, delay lines of
complex data, and arrays whose length only the operation knows. Each is one block of memory, and one entry,
known under three numbers, gives any of them back. All other arrays are the caller's own from the start.

Plans and narrowband filters are more than one block and have releases of their own, `fft_plan_release` and
`fir_narrowband_release`. Each block goes back once; free of the C library is not the way.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "memory_release",
    "iir_filter_release",
    "iir_state_complex_release",
]
_max, _min = max, min

_ZemFunc234 = rt.bind("ZemFunc234", "none", "p")


def memory_release(block):
    r"""Frees one block that the library handed out, whatever it holds.

    Parameters
    ----------
    block : Handle
        a block that the library handed out and that has not been released yet

    Returns
    -------
    None

    Notes
    -----
    The function ZemFunc234 (MemoryRelease) of the C library.

    Example
    -------
    >>> qv.memory_release(block)
    """
    rt.release(block, "block", _ZemFunc234)


_ZemFunc238 = rt.bind("ZemFunc238", "none", "p")


def iir_filter_release(block):
    r"""Frees a filter object: the same entry as ZemFunc234.

    Parameters
    ----------
    block : Handle
        a block that the library handed out and that has not been released yet

    Returns
    -------
    None

    Notes
    -----
    The function ZemFunc238 (IirFilterRelease) of the C library.

    Example
    -------
    >>> qv.iir_filter_release(block)
    """
    rt.release(block, "block", _ZemFunc238)


_ZemFunc470 = rt.bind("ZemFunc470", "none", "p")


def iir_state_complex_release(block):
    r"""Frees the delay lines for complex data: the same entry as ZemFunc234.

    Parameters
    ----------
    block : Handle
        a block that the library handed out and that has not been released yet

    Returns
    -------
    None

    Notes
    -----
    The function ZemFunc470 (IirStateComplexRelease) of the C library.

    Example
    -------
    >>> qv.iir_state_complex_release(block)
    """
    rt.release(block, "block", _ZemFunc470)
