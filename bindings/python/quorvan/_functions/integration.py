r"""Integration of sampled data.

The definite integral of equally spaced samples by a closed Newton-Cotes rule. Each rule takes as many whole
panels as fit; the samples left over at the end go through the next lower rule that fits them, so that every
sample counts.

    0 trapezoid       dt / 2    (x0 + x1)                                 a panel of 1 interval
    1 Simpson         dt / 3    (x0 + 4 x1 + x2)                          of 2
    2 Simpson 3/8     3 dt / 8  (x0 + 3 x1 + 3 x2 + x3)                   of 3
    3 Boole           2 dt / 45 (7 x0 + 32 x1 + 12 x2 + 32 x3 + 7 x4)     of 4

dt is the distance of the samples; the result is in the unit of x times that of dt.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "integrate_samples",
]
_max, _min = max, min

_ZemFunc230 = rt.bind("ZemFunc230", "status", "pldup")


def integrate_samples(x, dt=1.0, rule=QuadratureRule.TRAPEZOID):
    r"""The definite integral from the first sample to the last.

    The rules are exact for polynomials of degree 1, 3, 3 and 5 where whole panels fit (Abramowitz and Stegun
    25.4). On an error the result stays unwritten.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    dt : float, default 1.0
        the sampling interval; its sign does not matter
    rule : QuadratureRule, its name, or int, default QuadratureRule.TRAPEZOID
        0: trapezoid; 1: Simpson; 2: Simpson's 3/8; 3: Boole

    Returns
    -------
    result : float
        the integral, in units of x times units of dt

    Raises
    ------
    QuorvanError
        -20008: n is below 2, 3, 4, 5 for rule 0, 1, 2, 3
        -20061: the rule is above 3

    Notes
    -----
    The function ZemFunc230 (IntegrateSamples) of the C library.

    Example
    -------
    >>> result = qv.integrate_samples(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    dt = rt.real(dt, "dt")
    rule = rt.choice(rule, QuadratureRule, "rule")
    result_ = ctypes.c_double()
    status = _ZemFunc230(rt.pointer(x), n, dt, rule, ctypes.byref(result_))
    rt.check(status, "integrate_samples")
    return result_.value
