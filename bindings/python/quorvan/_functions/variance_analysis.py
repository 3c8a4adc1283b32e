r"""Analysis of variance and contingency.

Whether groups of observations differ by more than chance: analysis of variance with one, two and three
factors, and the chi-square test of a contingency table.

    one factor   ssA = sum over levels of n_i (mean_i - mean)^2,   ssError = sum of (y - mean_i)^2
    F = (ssA / (levels - 1)) / (ssError / (n - levels))
    contingency  chi^2 = sum of (count - expected)^2 / expected,   expected = row sum * column sum / total

The level of an observation is any integer that fits 32 bits, not an index: levels are numbered as they are
first seen. In the forms with two and three factors every cell holds the same number of observations, and the
number of levels of a factor carries a sign: positive for a fixed factor, negative for a random one.

A table holds rows of four numbers: sum of squares, degrees of freedom, mean square, F. The last row is that
of the error; its F is never written. A significance is the probability of an F at least as large by chance.
All sums are taken in one pass, so about as many digits are lost as the squared ratio of mean to deviation
has.

Statuses stand in the order in which they are tested.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "anova_one_way",
    "anova_two_way",
    "anova_three_way",
    "contingency_chi_square",
    "AnovaOneWayResult",
    "AnovaTwoWayResult",
    "AnovaThreeWayResult",
    "ContingencyChiSquareResult",
]
_max, _min = max, min

_ZemFunc6 = rt.bind("ZemFunc6", "status", "ppllppppppp")


class AnovaOneWayResult(NamedTuple):
    """What `anova_one_way` gives."""

    ss_a: float
    ms_a: float
    f: float
    significance: float
    ss_error: float
    ms_error: float
    ss_total: float


def anova_one_way(y, level, levels):
    r"""One-way analysis of variance.

    The levels need not have equally many observations. An f of NaN, from data without any variance, gives a
    significance of NaN.

    Parameters
    ----------
    y : array_like of float64, shape (n,)
        the observations
    level : array_like of int64, shape (n,)
        the level of each
    levels : int
        how many distinct levels there are

    Returns
    -------
    ss_a : float
        sum of squares between the levels
    ms_a : float
        its mean square, with levels - 1 degrees of freedom
    f : float
        ms_a / ms_error
    significance : float
        of f
    ss_error : float
        sum of squares within the levels
    ms_error : float
        its mean square, with n - levels degrees of freedom
    ss_total : float
        sum of squares about the mean

    Raises
    ------
    QuorvanError
        -20046: a level does not fit 32 bits; so does a size
        -20003: n is below 1
        -20042: levels is below 2, or not below n
        -20001: memory is exhausted
        -20043: there are more distinct levels than told; nothing is written
        -20044: there are fewer; ss_total is written

    Notes
    -----
    The function ZemFunc6 (AnovaOneWay) of the C library.

    Example
    -------
    >>> result = qv.anova_one_way(y, level, levels)
    """
    y = rt.array(y, rt.F8, 1, "y")
    level = rt.array(level, rt.I8, 1, "level")
    n = y.shape[0]
    levels = rt.i64(levels, "levels")
    rt.fits(level, (n,), "level")
    ss_a_ = ctypes.c_double()
    ms_a_ = ctypes.c_double()
    f_ = ctypes.c_double()
    significance_ = ctypes.c_double()
    ss_error_ = ctypes.c_double()
    ms_error_ = ctypes.c_double()
    ss_total_ = ctypes.c_double()
    status = _ZemFunc6(rt.pointer(y), rt.pointer(level), n, levels, ctypes.byref(ss_a_), ctypes.byref(ms_a_),
            ctypes.byref(f_), ctypes.byref(significance_), ctypes.byref(ss_error_), ctypes.byref(ms_error_),
            ctypes.byref(ss_total_))
    rt.check(status, "anova_one_way")
    return AnovaOneWayResult(ss_a_.value, ms_a_.value, f_.value, significance_.value, ss_error_.value,
            ms_error_.value, ss_total_.value)


_ZemFunc7 = rt.bind("ZemFunc7", "status", "pppllllpppp")


class AnovaTwoWayResult(NamedTuple):
    """What `anova_two_way` gives."""

    table: np.ndarray
    sig_a: float
    sig_b: float
    sig_ab: float


def anova_two_way(y, level_a, level_b, per_cell, levels_a, levels_b, *, out=None):
    r"""Two-way analysis of variance of balanced data.

    F of A has the mean square of AB as its denominator if B is random, else that of the error; F of B likewise.
    All three significances take the degrees of freedom of the error for the denominator, in mixed models too.
    With one observation a cell the interaction serves as the error, and the row AB and sig_ab are 0.

    Parameters
    ----------
    y : array_like of float64, shape (n,)
        the observations
    level_a : array_like of int64, shape (n,)
        the level of factor A of each
    level_b : array_like of int64, shape (n,)
        the level of factor B of each
    per_cell : int
        observations in each cell
    levels_a : int
        levels of A, negative for a random factor
    levels_b : int
        levels of B, negative for a random factor
    out : array or None
        the array for `table`; it may be an input, to work in place

    Returns
    -------
    table : float64 array of shape (16,)
        rows A, B, AB, error
    sig_a : float
        significance of A
    sig_b : float
        significance of B
    sig_ab : float
        significance of the interaction

    Raises
    ------
    QuorvanError
        -20046: a level does not fit 32 bits; so does a size
        -20003: n is below 1
        -20045: n is not per_cell |levels_a| |levels_b|
        -20042: a factor has fewer than 2 levels
        -20048: per_cell is 1 and a factor is random
        -20001: memory is exhausted
        -20043: a factor has more distinct levels than told
        -20047: a cell holds another number of observations

    Notes
    -----
    The function ZemFunc7 (AnovaTwoWay) of the C library.

    Example
    -------
    >>> result = qv.anova_two_way(y, level_a, level_b, per_cell, levels_a, levels_b)
    """
    y = rt.array(y, rt.F8, 1, "y")
    level_a = rt.array(level_a, rt.I8, 1, "level_a")
    level_b = rt.array(level_b, rt.I8, 1, "level_b")
    n = y.shape[0]
    per_cell = rt.i64(per_cell, "per_cell")
    levels_a = rt.i64(levels_a, "levels_a")
    levels_b = rt.i64(levels_b, "levels_b")
    rt.fits(level_a, (n,), "level_a")
    rt.fits(level_b, (n,), "level_b")
    sig_a_ = ctypes.c_double()
    sig_b_ = ctypes.c_double()
    sig_ab_ = ctypes.c_double()
    table_ = rt.result(out, (16,), rt.F8, (y, level_a, level_b))
    status = _ZemFunc7(rt.pointer(y), rt.pointer(level_a), rt.pointer(level_b), n, per_cell, levels_a, levels_b,
            rt.pointer(table_), ctypes.byref(sig_a_), ctypes.byref(sig_b_), ctypes.byref(sig_ab_))
    rt.check(status, "anova_two_way")
    return AnovaTwoWayResult(rt.deliver(table_, out), sig_a_.value, sig_b_.value, sig_ab_.value)


_ZemFunc8 = rt.bind("ZemFunc8", "status", "pppplllllpppppppp")


class AnovaThreeWayResult(NamedTuple):
    """What `anova_three_way` gives."""

    table: np.ndarray
    sig_a: float
    sig_b: float
    sig_c: float
    sig_ab: float
    sig_ac: float
    sig_bc: float
    sig_abc: float


def anova_three_way(y, level_a, level_b, level_c, per_cell, levels_a, levels_b, levels_c, *, out=None):
    r"""Three-way analysis of variance of balanced data.

    The denominator of each F follows from which factors are random: the row whose expected mean square has the
    same terms but for the tested one. Where there is none, F and the significance are -1.

    Parameters
    ----------
    y : array_like of float64, shape (n,)
        the observations
    level_a : array_like of int64, shape (n,)
        the level of factor A of each
    level_b : array_like of int64, shape (n,)
        the level of factor B of each
    level_c : array_like of int64, shape (n,)
        the level of factor C of each
    per_cell : int
        observations in each cell, at least 2
    levels_a : int
        levels of A, negative for a random factor
    levels_b : int
        levels of B, negative for a random factor
    levels_c : int
        levels of C, negative for a random factor
    out : array or None
        the array for `table`; it may be an input, to work in place

    Returns
    -------
    table : float64 array of shape (32,)
        rows A, B, C, AB, AC, BC, ABC, error
    sig_a : float
        significance of A
    sig_b : float
        significance of B
    sig_c : float
        significance of C
    sig_ab : float
        significance of AB
    sig_ac : float
        significance of AC
    sig_bc : float
        significance of BC
    sig_abc : float
        significance of ABC

    Raises
    ------
    QuorvanError
        -20046: a level does not fit 32 bits; so does a size
        -20003: n is below 1
        -20045: n is not per_cell |levels_a| |levels_b| |levels_c|
        -20044: per_cell is below 2
        -20042: a factor has fewer than 2 levels
        -20001: memory is exhausted
        -20043: a factor has more distinct levels than told
        -20047: a cell holds another number of observations

    Notes
    -----
    The function ZemFunc8 (AnovaThreeWay) of the C library.

    Example
    -------
    >>> result = qv.anova_three_way(y, level_a, level_b, level_c, per_cell, levels_a, levels_b, levels_c)
    """
    y = rt.array(y, rt.F8, 1, "y")
    level_a = rt.array(level_a, rt.I8, 1, "level_a")
    level_b = rt.array(level_b, rt.I8, 1, "level_b")
    level_c = rt.array(level_c, rt.I8, 1, "level_c")
    n = y.shape[0]
    per_cell = rt.i64(per_cell, "per_cell")
    levels_a = rt.i64(levels_a, "levels_a")
    levels_b = rt.i64(levels_b, "levels_b")
    levels_c = rt.i64(levels_c, "levels_c")
    rt.fits(level_a, (n,), "level_a")
    rt.fits(level_b, (n,), "level_b")
    rt.fits(level_c, (n,), "level_c")
    sig_a_ = ctypes.c_double()
    sig_b_ = ctypes.c_double()
    sig_c_ = ctypes.c_double()
    sig_ab_ = ctypes.c_double()
    sig_ac_ = ctypes.c_double()
    sig_bc_ = ctypes.c_double()
    sig_abc_ = ctypes.c_double()
    table_ = rt.result(out, (32,), rt.F8, (y, level_a, level_b, level_c))
    status = _ZemFunc8(rt.pointer(y), rt.pointer(level_a), rt.pointer(level_b), rt.pointer(level_c), n, per_cell,
            levels_a, levels_b, levels_c, rt.pointer(table_), ctypes.byref(sig_a_), ctypes.byref(sig_b_),
            ctypes.byref(sig_c_), ctypes.byref(sig_ab_), ctypes.byref(sig_ac_), ctypes.byref(sig_bc_),
            ctypes.byref(sig_abc_))
    rt.check(status, "anova_three_way")
    return AnovaThreeWayResult(rt.deliver(table_, out), sig_a_.value, sig_b_.value, sig_c_.value, sig_ab_.value,
            sig_ac_.value, sig_bc_.value, sig_abc_.value)


_ZemFunc31 = rt.bind("ZemFunc31", "status", "uuppp")


class ContingencyChiSquareResult(NamedTuple):
    """What `contingency_chi_square` gives."""

    chi_square: float
    significance: float


def contingency_chi_square(counts):
    r"""Tests whether the rows and the columns of a table of counts are independent.

    A row or a column of zeros divides by zero: the results are not finite.

    Parameters
    ----------
    counts : array_like of int32, shape (rows, cols)
        the table, row-major

    Returns
    -------
    chi_square : float
        the sum of (observed - expected)^2 / expected
    significance : float
        the probability of at least that much by chance

    Raises
    ------
    QuorvanError
        -20056: rows or cols is negative
        -20055: rows or cols is below 2
        -20046: rows * cols exceeds 2^31 - 1
        -20056: a count is negative
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc31 (ContingencyChiSquare) of the C library.

    Example
    -------
    >>> chi_square, significance = qv.contingency_chi_square(counts)
    """
    counts = rt.array(counts, rt.I4, 2, "counts")
    rows = counts.shape[0]
    cols = counts.shape[1]
    chi_square_ = ctypes.c_double()
    significance_ = ctypes.c_double()
    status = _ZemFunc31(rt.u32(rows, "rows"), rt.u32(cols, "cols"), rt.pointer(counts), ctypes.byref(chi_square_),
            ctypes.byref(significance_))
    rt.check(status, "contingency_chi_square")
    return ContingencyChiSquareResult(chi_square_.value, significance_.value)
