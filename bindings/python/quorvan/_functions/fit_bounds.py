r"""Fit bounds, goodness of fit and sample removal.

What goes around a fit: bands about a fitted line, exponential, power, logarithm or Gaussian, whose
coefficients come in as arguments; three numbers for its goodness; and the removal of samples before it.

    G   = (sum of |w| J J')^+,     J the column of derivatives of the model by its p coefficients
    s^2 = sum of |w| (f - y)^2 / (n - p)
    confidence (type 0)   f +- t s sqrt(J' G J)
    prediction (type 1)   f +- t s sqrt(J' G J + 1/|w|)
    goodness              sse = sum of w (y - f)^2,  R^2 = 1 - sse / sum of w (y - mean)^2,  rmse = sqrt(sse / dof)

A confidence band is where the mean response lies with the given probability, a prediction band where a new
observation does. Both come from the linearised model; t is the quantile of Student's distribution with n - p
degrees of freedom for a probability of (1 + level)/2.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fit_bounds_line",
    "fit_bounds_exponential",
    "fit_bounds_power",
    "fit_bounds_logarithm",
    "fit_bounds_gaussian",
    "fit_goodness",
    "fit_remove_out_of_range",
    "fit_remove_by_index",
    "FitBoundsLineResult",
    "FitBoundsExponentialResult",
    "FitBoundsPowerResult",
    "FitBoundsLogarithmResult",
    "FitBoundsGaussianResult",
    "FitGoodnessResult",
    "FitRemoveOutOfRangeResult",
    "FitRemoveByIndexResult",
]
_max, _min = max, min

_ZemFunc293 = rt.bind("ZemFunc293", "status", "pppludddpppp")


class FitBoundsLineResult(NamedTuple):
    """What `fit_bounds_line` gives."""

    upper: np.ndarray
    lower: np.ndarray
    slope_half_width: float
    intercept_half_width: float


def fit_bounds_line(x, y, slope, intercept, weights=None, type=BoundsType.CONFIDENCE, level=0.95, *, out=None):
    r"""The band of a fitted line, y = slope x + intercept.

    The method is exact for normal errors. On an error the bands stay unwritten; with type 0 the half-widths
    become 0, except for -20061 and -20046.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    slope : float
        the slope
    intercept : float
        the intercept
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; their sign counts in the information matrix of a confidence band
    type : BoundsType, its name, or int, default BoundsType.CONFIDENCE
        0 the confidence band, 1 the prediction band
    level : float, default 0.95
        the probability, between 0 and 1
    out : tuple or None
        arrays for `upper`, `lower`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    upper : float64 array of shape (n,)
        the upper band
    lower : float64 array of shape (n,)
        the lower band
    slope_half_width : float
        of the confidence interval of slope; type 0 only
    intercept_half_width : float
        of the confidence interval of intercept; type 0 only

    Raises
    ------
    QuorvanError
        -20061: the type is above 1
        -20007: n is below 3
        -20068: a coefficient, or a derivative times a weight, is not finite
        -20053: the level is not between 0 and 1
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc293 (FitBoundsLine) of the C library.

    Example
    -------
    >>> result = qv.fit_bounds_line(x, y, slope, intercept)
    """
    _out = rt.outs(out, 2, "fit_bounds_line")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    type = rt.choice(type, BoundsType, "type")
    level = rt.real(level, "level")
    slope = rt.real(slope, "slope")
    intercept = rt.real(intercept, "intercept")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    slope_half_width_ = ctypes.c_double()
    intercept_half_width_ = ctypes.c_double()
    upper_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights))
    lower_ = rt.result(_out[1], (n,), rt.F8, (x, y, weights))
    status = _ZemFunc293(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, type, level, slope, intercept,
            rt.pointer(upper_), rt.pointer(lower_), ctypes.byref(slope_half_width_),
            ctypes.byref(intercept_half_width_))
    rt.check(status, "fit_bounds_line")
    return FitBoundsLineResult(rt.deliver(upper_, _out[0]), rt.deliver(lower_, _out[1]), slope_half_width_.value,
            intercept_half_width_.value)


_ZemFunc291 = rt.bind("ZemFunc291", "status", "pppludddpppp")


class FitBoundsExponentialResult(NamedTuple):
    """What `fit_bounds_exponential` gives."""

    upper: np.ndarray
    lower: np.ndarray
    a_half_width: float
    b_half_width: float


def fit_bounds_exponential(x, y, a, b, weights=None, type=BoundsType.CONFIDENCE, level=0.95, *, out=None):
    r"""The band of a fitted exponential, y = a exp(b x).

    The derivatives are exp(b x) and a x exp(b x). On an error the bands stay unwritten; with type 0 the
    half-widths become 0, except for -20061 and -20046.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    a : float
        the factor
    b : float
        the rate
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude
    type : BoundsType, its name, or int, default BoundsType.CONFIDENCE
        0 the confidence band, 1 the prediction band
    level : float, default 0.95
        the probability, between 0 and 1
    out : tuple or None
        arrays for `upper`, `lower`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    upper : float64 array of shape (n,)
        the upper band
    lower : float64 array of shape (n,)
        the lower band
    a_half_width : float
        of the confidence interval of a; type 0 only
    b_half_width : float
        of the confidence interval of b; type 0 only

    Raises
    ------
    QuorvanError
        -20061: the type is above 1
        -20007: n is below 3
        -20068: a coefficient, or a derivative times a weight, is not finite
        -20053: the level is not between 0 and 1
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc291 (FitBoundsExponential) of the C library.

    Example
    -------
    >>> result = qv.fit_bounds_exponential(x, y, a, b)
    """
    _out = rt.outs(out, 2, "fit_bounds_exponential")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    type = rt.choice(type, BoundsType, "type")
    level = rt.real(level, "level")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    a_half_width_ = ctypes.c_double()
    b_half_width_ = ctypes.c_double()
    upper_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights))
    lower_ = rt.result(_out[1], (n,), rt.F8, (x, y, weights))
    status = _ZemFunc291(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, type, level, a, b, rt.pointer(upper_),
            rt.pointer(lower_), ctypes.byref(a_half_width_), ctypes.byref(b_half_width_))
    rt.check(status, "fit_bounds_exponential")
    return FitBoundsExponentialResult(rt.deliver(upper_, _out[0]), rt.deliver(lower_, _out[1]), a_half_width_.value,
            b_half_width_.value)


_ZemFunc295 = rt.bind("ZemFunc295", "status", "pppludddpppp")


class FitBoundsPowerResult(NamedTuple):
    """What `fit_bounds_power` gives."""

    upper: np.ndarray
    lower: np.ndarray
    a_half_width: float
    b_half_width: float


def fit_bounds_power(x, y, a, b, weights=None, type=BoundsType.CONFIDENCE, level=0.95, *, out=None):
    r"""The band of a fitted power, y = a x^b.

    The derivatives are x^b and a x^b ln x. On an error the bands stay unwritten; with type 0 the half-widths
    become 0, except for -20061 and -20046.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, above 0
    y : array_like of float64, shape (n,)
        the ordinates
    a : float
        the factor
    b : float
        the exponent
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude
    type : BoundsType, its name, or int, default BoundsType.CONFIDENCE
        0 the confidence band, 1 the prediction band
    level : float, default 0.95
        the probability, between 0 and 1
    out : tuple or None
        arrays for `upper`, `lower`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    upper : float64 array of shape (n,)
        the upper band
    lower : float64 array of shape (n,)
        the lower band
    a_half_width : float
        of the confidence interval of a; type 0 only
    b_half_width : float
        of the confidence interval of b; type 0 only

    Raises
    ------
    QuorvanError
        -20061: the type is above 1
        -20007: n is below 3
        -20068: a coefficient, or a derivative times a weight, is not finite
        -20053: the level is not between 0 and 1
        -20140: an abscissa is at or below 0
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc295 (FitBoundsPower) of the C library.

    Example
    -------
    >>> result = qv.fit_bounds_power(x, y, a, b)
    """
    _out = rt.outs(out, 2, "fit_bounds_power")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    type = rt.choice(type, BoundsType, "type")
    level = rt.real(level, "level")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    a_half_width_ = ctypes.c_double()
    b_half_width_ = ctypes.c_double()
    upper_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights))
    lower_ = rt.result(_out[1], (n,), rt.F8, (x, y, weights))
    status = _ZemFunc295(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, type, level, a, b, rt.pointer(upper_),
            rt.pointer(lower_), ctypes.byref(a_half_width_), ctypes.byref(b_half_width_))
    rt.check(status, "fit_bounds_power")
    return FitBoundsPowerResult(rt.deliver(upper_, _out[0]), rt.deliver(lower_, _out[1]), a_half_width_.value,
            b_half_width_.value)


_ZemFunc294 = rt.bind("ZemFunc294", "status", "pppldudddpppp")


class FitBoundsLogarithmResult(NamedTuple):
    """What `fit_bounds_logarithm` gives."""

    upper: np.ndarray
    lower: np.ndarray
    a_half_width: float
    b_half_width: float


def fit_bounds_logarithm(x, y, a, b, weights=None, base=0.0, type=BoundsType.CONFIDENCE, level=0.95, *, out=None):
    r"""The band of a fitted logarithm, y = a log(b x).

    The derivatives are log(b x) and a / (b ln base). On an error the bands stay unwritten; with type 0 the
    half-widths become 0, except for -20061 and -20046.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, of the sign of b
    y : array_like of float64, shape (n,)
        the ordinates
    a : float
        the factor
    b : float
        the scale of x
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude
    base : float, default 0.0
        the base; 2.71828, or at or below 0: the natural logarithm; 10: the common one
    type : BoundsType, its name, or int, default BoundsType.CONFIDENCE
        0 the confidence band, 1 the prediction band
    level : float, default 0.95
        the probability, between 0 and 1
    out : tuple or None
        arrays for `upper`, `lower`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    upper : float64 array of shape (n,)
        the upper band
    lower : float64 array of shape (n,)
        the lower band
    a_half_width : float
        of the confidence interval of a; type 0 only
    b_half_width : float
        of the confidence interval of b; type 0 only

    Raises
    ------
    QuorvanError
        -20061: the type is above 1
        -20007: n is below 3
        -20068: a coefficient, or a derivative times a weight, is not finite
        -20053: the level is not between 0 and 1
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc294 (FitBoundsLogarithm) of the C library.

    Example
    -------
    >>> result = qv.fit_bounds_logarithm(x, y, a, b)
    """
    _out = rt.outs(out, 2, "fit_bounds_logarithm")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    base = rt.real(base, "base")
    type = rt.choice(type, BoundsType, "type")
    level = rt.real(level, "level")
    a = rt.real(a, "a")
    b = rt.real(b, "b")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    a_half_width_ = ctypes.c_double()
    b_half_width_ = ctypes.c_double()
    upper_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights))
    lower_ = rt.result(_out[1], (n,), rt.F8, (x, y, weights))
    status = _ZemFunc294(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, base, type, level, a, b,
            rt.pointer(upper_), rt.pointer(lower_), ctypes.byref(a_half_width_), ctypes.byref(b_half_width_))
    rt.check(status, "fit_bounds_logarithm")
    return FitBoundsLogarithmResult(rt.deliver(upper_, _out[0]), rt.deliver(lower_, _out[1]), a_half_width_.value,
            b_half_width_.value)


_ZemFunc292 = rt.bind("ZemFunc292", "status", "pppluddddppppp")


class FitBoundsGaussianResult(NamedTuple):
    """What `fit_bounds_gaussian` gives."""

    upper: np.ndarray
    lower: np.ndarray
    amplitude_half_width: float
    centre_half_width: float
    width_half_width: float


def fit_bounds_gaussian(x, y, amplitude, centre, width, weights=None, type=BoundsType.CONFIDENCE, level=0.95, *, out=None):
    r"""The band of a fitted Gaussian, y = a exp(-((x - m) / s)^2 / 2).

    The derivatives are e, a z e / s and a z^2 e / s with z = (x - m) / s, e = exp(-z^2 / 2). On an error the
    bands stay unwritten; with type 0 the half-widths become 0, except for -20061 and -20046.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    amplitude : float
        a
    centre : float
        m
    width : float
        s, not 0
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude
    type : BoundsType, its name, or int, default BoundsType.CONFIDENCE
        0 the confidence band, 1 the prediction band
    level : float, default 0.95
        the probability, between 0 and 1
    out : tuple or None
        arrays for `upper`, `lower`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    upper : float64 array of shape (n,)
        the upper band
    lower : float64 array of shape (n,)
        the lower band
    amplitude_half_width : float
        of the confidence interval of amplitude; type 0 only
    centre_half_width : float
        of the confidence interval of centre; type 0 only
    width_half_width : float
        of the confidence interval of width; type 0 only

    Raises
    ------
    QuorvanError
        -20061: the type is above 1
        -20069: n is below 4
        -20026: the width is 0
        -20068: a coefficient, or a derivative times a weight, is not finite
        -20053: the level is not between 0 and 1
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc292 (FitBoundsGaussian) of the C library.

    Example
    -------
    >>> result = qv.fit_bounds_gaussian(x, y, amplitude, centre, width)
    """
    _out = rt.outs(out, 2, "fit_bounds_gaussian")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    type = rt.choice(type, BoundsType, "type")
    level = rt.real(level, "level")
    amplitude = rt.real(amplitude, "amplitude")
    centre = rt.real(centre, "centre")
    width = rt.real(width, "width")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    amplitude_half_width_ = ctypes.c_double()
    centre_half_width_ = ctypes.c_double()
    width_half_width_ = ctypes.c_double()
    upper_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights))
    lower_ = rt.result(_out[1], (n,), rt.F8, (x, y, weights))
    status = _ZemFunc292(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, type, level, amplitude, centre, width,
            rt.pointer(upper_), rt.pointer(lower_), ctypes.byref(amplitude_half_width_),
            ctypes.byref(centre_half_width_), ctypes.byref(width_half_width_))
    rt.check(status, "fit_bounds_gaussian")
    return FitBoundsGaussianResult(rt.deliver(upper_, _out[0]), rt.deliver(lower_, _out[1]),
            amplitude_half_width_.value, centre_half_width_.value, width_half_width_.value)


_ZemFunc284 = rt.bind("ZemFunc284", "status", "pppllppp")


class FitGoodnessResult(NamedTuple):
    """What `fit_goodness` gives."""

    sse: float
    r_square: float
    rmse: float


def fit_goodness(y, fitted, dof, weights=None):
    r"""Sum of squared errors, coefficient of determination and root mean squared error of a fit.

    The mean is that of y without weights. On an error nothing is written.

    Parameters
    ----------
    y : array_like of float64, shape (n,)
        the ordinates
    fitted : array_like of float64, shape (n,)
        the fitted curve
    dof : int
        the degrees of freedom, below n; below 1: n - 2
    weights : array_like of float64, shape (n,), default None
        the weights, with their sign

    Returns
    -------
    sse : float
        sum of w (y - f)^2
    r_square : float
        1 - sse / sum of w (y - mean)^2; of a constant y 1 for sse = 0, infinity otherwise
    rmse : float
        sqrt(sse / dof)

    Raises
    ------
    QuorvanError
        -20006: n is below 2
        -20052: dof is n or above

    Notes
    -----
    The function ZemFunc284 (FitGoodness) of the C library.

    Example
    -------
    >>> sse, r_square, rmse = qv.fit_goodness(y, fitted, dof)
    """
    y = rt.array(y, rt.F8, 1, "y")
    fitted = rt.array(fitted, rt.F8, 1, "fitted")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = y.shape[0]
    dof = rt.i64(dof, "dof")
    rt.fits(fitted, (n,), "fitted")
    rt.fits(weights, (n,), "weights")
    sse_ = ctypes.c_double()
    r_square_ = ctypes.c_double()
    rmse_ = ctypes.c_double()
    status = _ZemFunc284(rt.pointer(y), rt.pointer(fitted), rt.pointer(weights), n, dof, ctypes.byref(sse_),
            ctypes.byref(r_square_), ctypes.byref(rmse_))
    rt.check(status, "fit_goodness")
    return FitGoodnessResult(sse_.value, r_square_.value, rmse_.value)


_ZemFunc297 = rt.bind("ZemFunc297", "status", "ppppupippp")


class FitRemoveOutOfRangeResult(NamedTuple):
    """What `fit_remove_out_of_range` gives."""

    x: np.ndarray
    y: np.ndarray
    weights: np.ndarray
    removed: np.ndarray


def fit_remove_out_of_range(x, y, limits, weights=None, mode=RangeOf.Y, *, out=None):
    r"""Removes the samples that do not lie strictly inside the range.

    The three counts are written whatever the status, except for -20046. With -20010, and -20003 for nothing to
    remove, they tell what would be kept and removed while the arrays stay; after other errors n is 0 and the
    others are the former n. A sample of NaN stays.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas; those kept stand in front
    y : array_like of float64, shape (n,)
        the ordinates
    limits : array_like of float64, shape (limit_count,)
        the range, in either order; in mode 2 that of x, then that of y
    weights : array_like of float64, shape (n,), default None
        the weights
    mode : RangeOf, its name, or int, default RangeOf.Y
        0 by y, 1 by x, 2 by x and y
    out : tuple or None
        arrays for `x`, `y`, `weights`, `removed`, or None for one to be made; each may be an input, to work in
        place

    Returns
    -------
    x : float64 array of at most shape (n,)
        the result
    y : float64 array of at most shape (n,)
        the result
    weights : float64 array of at most shape (n,)
        the result
    removed : int64 array of at most shape (capacity,)
        the indices of the samples removed, ascending

    Raises
    ------
    QuorvanError
        -20046: n or capacity does not fit 32 bits
        -20003: n or limit_count is below 1; or there is nothing to remove
        -20061: the mode is above 2
        -20006: modes 0 and 1: fewer than two limits
        -20069: mode 2: fewer than four limits
        -20068: a limit is NaN
        -20010: there are more samples to remove than capacity

    Notes
    -----
    The function ZemFunc297 (FitRemoveOutOfRange) of the C library.

    Example
    -------
    >>> result = qv.fit_remove_out_of_range(x, y, limits)
    """
    _out = rt.outs(out, 4, "fit_remove_out_of_range")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    limits = rt.array(limits, rt.F8, 1, "limits")
    n = x.shape[0]
    limit_count = limits.shape[0]
    mode = rt.choice(mode, RangeOf, "mode")
    capacity = n
    capacity_ = ctypes.c_int64(capacity)
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    x_ = rt.worked(x, _out[0], (y, weights, limits))
    y_ = rt.worked(y, _out[1], (x, weights, limits))
    weights_ = None if weights is None else rt.worked(weights, _out[2], (x, y, limits))
    removed_count_ = ctypes.c_int64()
    n_ = ctypes.c_int64(n)
    removed_ = rt.result(_out[3], (capacity,), rt.I8, (x, y, weights, limits))
    status = _ZemFunc297(rt.pointer(x_), rt.pointer(y_), rt.pointer(weights_), ctypes.byref(n_), mode,
            rt.pointer(limits), rt.i32(limit_count, "limit_count"), rt.pointer(removed_), ctypes.byref(capacity_),
            ctypes.byref(removed_count_))
    rt.check(status, "fit_remove_out_of_range")
    return FitRemoveOutOfRangeResult(rt.first(rt.deliver(x_, _out[0]), n_.value), rt.first(rt.deliver(y_, _out[1]),
            n_.value), None if weights is None else rt.first(rt.deliver(weights_, _out[2]), n_.value),
            rt.first(rt.deliver(removed_, _out[3]), removed_count_.value))


_ZemFunc296 = rt.bind("ZemFunc296", "status", "pppppl")


class FitRemoveByIndexResult(NamedTuple):
    """What `fit_remove_by_index` gives."""

    x: np.ndarray
    y: np.ndarray
    weights: np.ndarray


def fit_remove_by_index(x, y, indices, weights=None, *, out=None):
    r"""Removes samples by their indices.

    On an error nothing is written.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas; those kept stand in front
    y : array_like of float64, shape (n,)
        the ordinates
    indices : array_like of int64, shape (count,)
        the samples to remove, in any order; one may be named more than once
    weights : array_like of float64, shape (n,), default None
        the weights
    out : tuple or None
        arrays for `x`, `y`, `weights`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    x : float64 array of at most shape (n,)
        the result
    y : float64 array of at most shape (n,)
        the result
    weights : float64 array of at most shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20046: n, count or an index does not fit 32 bits
        -20003: n or count is below 1
        -20017: an index is not from 0 to n - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc296 (FitRemoveByIndex) of the C library.

    Example
    -------
    >>> x, y, weights = qv.fit_remove_by_index(x, y, indices)
    """
    _out = rt.outs(out, 3, "fit_remove_by_index")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    indices = rt.array(indices, rt.I8, 1, "indices")
    n = x.shape[0]
    count = indices.shape[0]
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    x_ = rt.worked(x, _out[0], (y, weights, indices))
    y_ = rt.worked(y, _out[1], (x, weights, indices))
    weights_ = None if weights is None else rt.worked(weights, _out[2], (x, y, indices))
    n_ = ctypes.c_int64(n)
    status = _ZemFunc296(rt.pointer(x_), rt.pointer(y_), rt.pointer(weights_), ctypes.byref(n_), rt.pointer(indices),
            count)
    rt.check(status, "fit_remove_by_index")
    return FitRemoveByIndexResult(rt.first(rt.deliver(x_, _out[0]), n_.value), rt.first(rt.deliver(y_, _out[1]),
            n_.value), None if weights is None else rt.first(rt.deliver(weights_, _out[2]), n_.value))
