r"""Line, exponential, power, logarithm and Gaussian fits.

Five fixed models, each by three methods: for samples with ordinary noise, and for samples with outliers.

    line         f = a x + b
    exponential  f = a exp(b x)
    power        f = a x^b
    logarithm    f = a log(b x)
    Gaussian     f = a exp(-((x - m) / s)^2 / 2)
    0 least squares             sum of |w| (y - f)^2
    1 least absolute residuals  sum of |w| |y - f|
    2 bisquare                  least squares with the weights |w| max(1 - u^2, 0)^2,  u = r / (4.685 deviation)

Least squares: closed forms, Gauss-Newton steps, or steps up the gradient. Least absolute residuals:
reweighted least squares, for a line weighted medians; the best of the last fit, the one before and the first
is kept. Bisquare (Beaton and Tukey, 1974): samples beyond 4.685 robust deviations lose their weight; it ends
when one of the coefficients changes by no more than the tolerance, relatively, and after 50 refits.

On an error nothing is written. The fits are not made for NaN in x or y, which shows in the results.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fit_line",
    "fit_line_robust",
    "fit_exponential",
    "fit_exponential_robust",
    "fit_power",
    "fit_logarithm",
    "fit_gaussian",
    "FitLineResult",
    "FitLineRobustResult",
    "FitExponentialResult",
    "FitExponentialRobustResult",
    "FitPowerResult",
    "FitLogarithmResult",
    "FitGaussianResult",
]
_max, _min = max, min

_ZemFunc117 = rt.bind("ZemFunc117", "status", "pplpppp")


class FitLineResult(NamedTuple):
    """What `fit_line` gives."""

    fitted: np.ndarray
    slope: float
    intercept: float
    mean_squared_error: float


def fit_line(x, y, *, out=None):
    r"""The line of least squares, y = a x + b.

    Equal abscissas give what the division by 0 gives, and no error.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    slope : float
        a of y = a x + b
    intercept : float
        b
    mean_squared_error : float
        sum of (y - f)^2 / n

    Raises
    ------
    QuorvanError
        -20006: n is below 2
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc117 (FitLine) of the C library.

    Example
    -------
    >>> result = qv.fit_line(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    slope_ = ctypes.c_double()
    intercept_ = ctypes.c_double()
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y))
    status = _ZemFunc117(rt.pointer(x), rt.pointer(y), n, rt.pointer(fitted_), ctypes.byref(slope_),
            ctypes.byref(intercept_), ctypes.byref(mean_squared_error_))
    rt.check(status, "fit_line")
    return FitLineResult(rt.deliver(fitted_, out), slope_.value, intercept_.value, mean_squared_error_.value)


_ZemFunc288 = rt.bind("ZemFunc288", "status", "pppludpppp")


class FitLineRobustResult(NamedTuple):
    """What `fit_line_robust` gives."""

    fitted: np.ndarray
    slope: float
    intercept: float
    residue: float


def fit_line_robust(x, y, weights=None, method=RobustMethod.LEAST_SQUARES, tolerance=0.0, *, out=None):
    r"""The line y = a x + b by one of three methods.

    The methods 1 and 2 draw two samples' line exactly, whatever the weights, with the residue 0. Method 1
    alternates weighted medians of slope and intercept.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; all 0 or None: all 1
    method : RobustMethod, its name, or int, default RobustMethod.LEAST_SQUARES
        0 least squares, 1 least absolute residuals, 2 bisquare
    tolerance : float, default 0.0
        the relative change at which the iteration ends (1: of the error, 2: of a coefficient); at or below 0:
        0.0001
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    slope : float
        a of y = a x + b
    intercept : float
        b
    residue : float
        sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n

    Raises
    ------
    QuorvanError
        -20061: the method is above 2
        -20006: n is below 2
        -20068: a weight is NaN, or the leverages overflow (method 2)
        -20141: all weights but one are 0
        -20055: method 1: two and more abscissas are 0
        -20104: methods 1 and 2: a residual is NaN
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc288 (FitLineRobust) of the C library.

    Example
    -------
    >>> result = qv.fit_line_robust(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    method = rt.choice(method, RobustMethod, "method")
    tolerance = rt.real(tolerance, "tolerance")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    slope_ = ctypes.c_double()
    intercept_ = ctypes.c_double()
    residue_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y, weights))
    status = _ZemFunc288(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, method, tolerance, rt.pointer(fitted_),
            ctypes.byref(slope_), ctypes.byref(intercept_), ctypes.byref(residue_))
    rt.check(status, "fit_line_robust")
    return FitLineRobustResult(rt.deliver(fitted_, out), slope_.value, intercept_.value, residue_.value)


_ZemFunc73 = rt.bind("ZemFunc73", "status", "pplpppp")


class FitExponentialResult(NamedTuple):
    """What `fit_exponential` gives."""

    fitted: np.ndarray
    a: float
    b: float
    mean_squared_error: float


def fit_exponential(x, y, *, out=None):
    r"""The exponential y = a exp(b x) by the line through (x, ln |y|) with the weights y^2, without iteration.

    Samples of the sign of the minority, and zeros, take no part; a tie takes the positive ones.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    a : float
        a of y = a exp(b x)
    b : float
        b, per unit of x
    mean_squared_error : float
        sum of (y - f)^2 / n

    Raises
    ------
    QuorvanError
        -20006: n is below 2
        -20037: fewer than two samples have the sign of the majority
        -20068: an abscissa or an ordinate of that sign is not finite
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc73 (FitExponential) of the C library.

    Example
    -------
    >>> result = qv.fit_exponential(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    a_ = ctypes.c_double()
    b_ = ctypes.c_double()
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y))
    status = _ZemFunc73(rt.pointer(x), rt.pointer(y), n, rt.pointer(fitted_), ctypes.byref(a_), ctypes.byref(b_),
            ctypes.byref(mean_squared_error_))
    rt.check(status, "fit_exponential")
    return FitExponentialResult(rt.deliver(fitted_, out), a_.value, b_.value, mean_squared_error_.value)


_ZemFunc286 = rt.bind("ZemFunc286", "status", "pppludpppp")


class FitExponentialRobustResult(NamedTuple):
    """What `fit_exponential_robust` gives."""

    fitted: np.ndarray
    a: float
    b: float
    residue: float


def fit_exponential_robust(x, y, weights=None, method=RobustMethod.LEAST_SQUARES, tolerance=0.0, *, out=None):
    r"""The model y = a exp(b x) by one of three methods.

    Least squares starts from the line through (x, ln |y|) of the samples with the sign of the majority and makes
    at most 101 Gauss-Newton steps. Method 1 makes at most 50 refits of at most 51 steps.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; all 0 or None: all 1
    method : RobustMethod, its name, or int, default RobustMethod.LEAST_SQUARES
        0 least squares, 1 least absolute residuals, 2 bisquare
    tolerance : float, default 0.0
        the relative change at which the iteration ends (0, 1: of the error, 2: of a coefficient); at or below 0:
        0.0001
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    a : float
        a of y = a exp(b x)
    b : float
        b, per unit of x
    residue : float
        sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n

    Raises
    ------
    QuorvanError
        -20061: the method is above 2
        -20006: n is below 2
        -20068: a weight is NaN, or an abscissa or a derivative is not finite
        -20141: all weights but one are 0
        -20037: fewer than two samples have the sign of the majority
        -20104: methods 1 and 2: a residual is NaN
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc286 (FitExponentialRobust) of the C library.

    Example
    -------
    >>> result = qv.fit_exponential_robust(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    method = rt.choice(method, RobustMethod, "method")
    tolerance = rt.real(tolerance, "tolerance")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    a_ = ctypes.c_double()
    b_ = ctypes.c_double()
    residue_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y, weights))
    status = _ZemFunc286(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, method, tolerance, rt.pointer(fitted_),
            ctypes.byref(a_), ctypes.byref(b_), ctypes.byref(residue_))
    rt.check(status, "fit_exponential_robust")
    return FitExponentialRobustResult(rt.deliver(fitted_, out), a_.value, b_.value, residue_.value)


_ZemFunc290 = rt.bind("ZemFunc290", "status", "pppludpppp")


class FitPowerResult(NamedTuple):
    """What `fit_power` gives."""

    fitted: np.ndarray
    a: float
    b: float
    residue: float


def fit_power(x, y, weights=None, method=RobustMethod.LEAST_SQUARES, tolerance=0.0, *, out=None):
    r"""The model y = a x^b by one of three methods.

    Least squares starts from the line through (ln x, ln |y|) of the samples with the sign of the majority and
    makes at most 101 Gauss-Newton steps. Method 1 makes at most 50 refits of at most 51 steps.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, above 0
    y : array_like of float64, shape (n,)
        the ordinates
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; all 0 or None: all 1
    method : RobustMethod, its name, or int, default RobustMethod.LEAST_SQUARES
        0 least squares, 1 least absolute residuals, 2 bisquare
    tolerance : float, default 0.0
        the relative change at which the iteration ends (0, 1: of the error, 2: of a coefficient); at or below 0:
        0.0001
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    a : float
        a of y = a x^b
    b : float
        b, the exponent
    residue : float
        sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n

    Raises
    ------
    QuorvanError
        -20061: the method is above 2
        -20006: n is below 2
        -20068: a weight is NaN, or an abscissa or a derivative is not finite
        -20141: all weights but one are 0
        -20140: an abscissa is at or below 0
        -20037: fewer than two samples have the sign of the majority
        -20104: methods 1 and 2: a residual is NaN
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc290 (FitPower) of the C library.

    Example
    -------
    >>> result = qv.fit_power(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    method = rt.choice(method, RobustMethod, "method")
    tolerance = rt.real(tolerance, "tolerance")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    a_ = ctypes.c_double()
    b_ = ctypes.c_double()
    residue_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y, weights))
    status = _ZemFunc290(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, method, tolerance, rt.pointer(fitted_),
            ctypes.byref(a_), ctypes.byref(b_), ctypes.byref(residue_))
    rt.check(status, "fit_power")
    return FitPowerResult(rt.deliver(fitted_, out), a_.value, b_.value, residue_.value)


_ZemFunc289 = rt.bind("ZemFunc289", "status", "pppldudpppp")


class FitLogarithmResult(NamedTuple):
    """What `fit_logarithm` gives."""

    fitted: np.ndarray
    a: float
    b: float
    residue: float


def fit_logarithm(x, y, weights=None, base=0.0, method=RobustMethod.LEAST_SQUARES, tolerance=0.0, *, out=None):
    r"""The model y = a log(b x) by one of three methods, each over the line through (log |x|, y).

    With a = 0, b is the sign of x.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas, all above or all below 0
    y : array_like of float64, shape (n,)
        the ordinates
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; all 0 or None: all 1
    base : float, default 0.0
        the base; 2.71828, or at or below 0: the natural logarithm; 10: the common one
    method : RobustMethod, its name, or int, default RobustMethod.LEAST_SQUARES
        0 least squares, 1 least absolute residuals, 2 bisquare
    tolerance : float, default 0.0
        the relative change at which the iteration ends (1: of the error, 2: of a coefficient); at or below 0:
        0.0001
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    a : float
        a of y = a log(b x)
    b : float
        b, of the sign of x
    residue : float
        sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n

    Raises
    ------
    QuorvanError
        -20061: the method is above 2
        -20006: n is below 2
        -20068: a weight is NaN, or the leverages overflow (method 2)
        -20141: all weights but one are 0
        -20036: an abscissa is 0, or they differ in sign (the text speaks of y)
        -20104: methods 1 and 2: a residual is NaN
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc289 (FitLogarithm) of the C library.

    Example
    -------
    >>> result = qv.fit_logarithm(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    n = x.shape[0]
    base = rt.real(base, "base")
    method = rt.choice(method, RobustMethod, "method")
    tolerance = rt.real(tolerance, "tolerance")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    a_ = ctypes.c_double()
    b_ = ctypes.c_double()
    residue_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y, weights))
    status = _ZemFunc289(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, base, method, tolerance,
            rt.pointer(fitted_), ctypes.byref(a_), ctypes.byref(b_), ctypes.byref(residue_))
    rt.check(status, "fit_logarithm")
    return FitLogarithmResult(rt.deliver(fitted_, out), a_.value, b_.value, residue_.value)


_ZemFunc287 = rt.bind("ZemFunc287", "status", "pppludpppppp")


class FitGaussianResult(NamedTuple):
    """What `fit_gaussian` gives."""

    fitted: np.ndarray
    amplitude: float
    centre: float
    width: float
    residue: float


def fit_gaussian(x, y, weights=None, method=RobustMethod.LEAST_SQUARES, tolerance=0.0, guess=None, *, out=None):
    r"""The Gaussian y = a exp(-((x - m) / s)^2 / 2) by one of three methods.

    Without a guess the peak and the samples above a tenth of it give the start; a peak that stands alone gives
    the result, with its neighbours. At most 501 steps up the gradient, halved while the error grows. The residue
    of least squares is that of the last trial, which may have been rejected, unless the start was best.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; all 0 or None: all 1
    method : RobustMethod, its name, or int, default RobustMethod.LEAST_SQUARES
        0 least squares, 1 least absolute residuals, 2 bisquare
    tolerance : float, default 0.0
        the relative change at which the iteration ends (0, 1: of the error, 2: of a coefficient); at or below 0:
        0.0001
    guess : array_like of float64, shape (3,), default None
        amplitude, centre and width to start from; one that is not finite: none
    out : array or None
        the array for `fitted`; it may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    amplitude : float
        a of y = a exp(-((x - m) / s)^2 / 2)
    centre : float
        m
    width : float
        s, at least 0
    residue : float
        sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n

    Raises
    ------
    QuorvanError
        -20061: the method is above 2
        -20007: n is below 3
        -20068: a weight is NaN, or an abscissa is not finite
        -20141: all weights but one or two are 0
        -20026: the width is 0, or a lone peak lacks a neighbour of its sign on one side
        -20104: methods 1 and 2: a residual is NaN
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc287 (FitGaussian) of the C library.

    Example
    -------
    >>> result = qv.fit_gaussian(x, y)
    """
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    guess = None if guess is None else rt.array(guess, rt.F8, 1, "guess")
    n = x.shape[0]
    method = rt.choice(method, RobustMethod, "method")
    tolerance = rt.real(tolerance, "tolerance")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    rt.fits(guess, (3,), "guess")
    amplitude_ = ctypes.c_double()
    centre_ = ctypes.c_double()
    width_ = ctypes.c_double()
    residue_ = ctypes.c_double()
    fitted_ = rt.result(out, (n,), rt.F8, (x, y, weights, guess))
    status = _ZemFunc287(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, method, tolerance, rt.pointer(guess),
            rt.pointer(fitted_), ctypes.byref(amplitude_), ctypes.byref(centre_), ctypes.byref(width_),
            ctypes.byref(residue_))
    rt.check(status, "fit_gaussian")
    return FitGaussianResult(rt.deliver(fitted_, out), amplitude_.value, centre_.value, width_.value, residue_.value)
