r"""Nonlinear fit.

Levenberg-Marquardt fits of a model y = f(x; a) that the caller supplies as a function; the gradient is taken
by central differences.

    minimises chi^2 = sum of w (y - f(x; a))^2
    step:  (J' W J + lambda diag(J' W J)) delta = J' W (y - f),     a + delta is taken where chi^2 falls

The guess in the coefficients decides which minimum is found: begin within a factor of a few, and with the
right signs. The model runs on the caller's thread, in the order of the samples, coefficient by coefficient.
While a derivative is taken one coefficient is moved in place; it is put back exactly. A model must return:
one that leaves by longjmp or by an exception leaks the library's work memory, and that is its own fault.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fit_nonlinear",
    "fit_nonlinear_alias",
    "fit_nonlinear_limited",
    "fit_nonlinear_limited_alias",
    "fit_nonlinear_weighted",
    "fit_nonlinear_weighted_alias",
    "FitNonlinearResult",
    "FitNonlinearAliasResult",
    "FitNonlinearLimitedResult",
    "FitNonlinearLimitedAliasResult",
    "FitNonlinearWeightedResult",
    "FitNonlinearWeightedAliasResult",
]
_max, _min = max, min

_ZemFunc130 = rt.bind("ZemFunc130", "status", "ppplmpip")


class FitNonlinearResult(NamedTuple):
    """What `fit_nonlinear` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_nonlinear(x, y, model, coefficients, *, out=None):
    r"""Fits the coefficients of a model to samples, without a limit to the iterations.

    The fit ends at the second small change of chi-square since a rejected step, below 0.001 or 1e-5 of it; scale
    data whose chi-square is that small. A model that becomes NaN or infinite ends the fit quietly with what was
    accepted. K. Levenberg, Quart. Appl. Math. 2 (1944); D. W. Marquardt, SIAM J. 11 (1963).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    model : callable (x, coefficients) -> float
        the model
    coefficients : array_like of float64, shape (m,)
        the initial guess
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the model at x
    coefficients : float64 array of shape (m,)
        the result
    mean_squared_error : float
        the mean of (f - y)^2

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20037: n is below m
        -20062: a solver did not converge
        -20001: memory is exhausted

    Notes
    -----
    An exception of the model ends the fit and comes out of it. The function ZemFunc130 (FitNonlinear) of the C
    library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_nonlinear(x, y, model, coefficients)
    """
    _out = rt.outs(out, 2, "fit_nonlinear")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    coefficients = rt.array(coefficients, rt.F8, 1, "coefficients")
    n = x.shape[0]
    m = coefficients.shape[0]
    model_ = rt.Model(model, "model")
    rt.fits(y, (n,), "y")
    coefficients_ = rt.worked(coefficients, _out[1], (x, y))
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, coefficients))
    status = _ZemFunc130(rt.pointer(x), rt.pointer(y), rt.pointer(fitted_), n, model_.pointer,
            rt.pointer(coefficients_), rt.i32(m, "m"), ctypes.byref(mean_squared_error_))
    model_.reraise()
    rt.check(status, "fit_nonlinear")
    return FitNonlinearResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)


_ZemFunc339 = rt.bind("ZemFunc339", "status", "ppplmpip")


class FitNonlinearAliasResult(NamedTuple):
    """What `fit_nonlinear_alias` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_nonlinear_alias(x, y, model, coefficients, *, out=None):
    r"""The same entry as ZemFunc130.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    model : callable (x, coefficients) -> float
        the model
    coefficients : array_like of float64, shape (m,)
        the initial guess
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the model at x
    coefficients : float64 array of shape (m,)
        the result
    mean_squared_error : float
        the mean of (f - y)^2

    Notes
    -----
    An exception of the model ends the fit and comes out of it. The function ZemFunc339 (FitNonlinearAlias) of the
    C library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_nonlinear_alias(x, y, model, coefficients)
    """
    _out = rt.outs(out, 2, "fit_nonlinear_alias")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    coefficients = rt.array(coefficients, rt.F8, 1, "coefficients")
    n = x.shape[0]
    m = coefficients.shape[0]
    model_ = rt.Model(model, "model")
    rt.fits(y, (n,), "y")
    coefficients_ = rt.worked(coefficients, _out[1], (x, y))
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, coefficients))
    status = _ZemFunc339(rt.pointer(x), rt.pointer(y), rt.pointer(fitted_), n, model_.pointer,
            rt.pointer(coefficients_), rt.i32(m, "m"), ctypes.byref(mean_squared_error_))
    model_.reraise()
    rt.check(status, "fit_nonlinear_alias")
    return FitNonlinearAliasResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)


_ZemFunc131 = rt.bind("ZemFunc131", "status", "ppplimpip")


class FitNonlinearLimitedResult(NamedTuple):
    """What `fit_nonlinear_limited` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_nonlinear_limited(x, y, model, coefficients, limit=-1, *, out=None):
    r"""The fit with a limit to its iterations.

    A limit of 0 takes no step: the outputs describe the guess.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    model : callable (x, coefficients) -> float
        the model
    coefficients : array_like of float64, shape (m,)
        the initial guess
    limit : int, default -1
        the number of iterations at most; negative: no limit
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the model at x
    coefficients : float64 array of shape (m,)
        the result
    mean_squared_error : float
        the mean of (f - y)^2

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20037: n is below m
        -20062: at the limit the last two values of chi-square differ by 1e-6 of the smaller or more; the results
        are written
        -20001: memory is exhausted

    Notes
    -----
    An exception of the model ends the fit and comes out of it. The function ZemFunc131 (FitNonlinearLimited) of
    the C library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_nonlinear_limited(x, y, model, coefficients)
    """
    _out = rt.outs(out, 2, "fit_nonlinear_limited")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    coefficients = rt.array(coefficients, rt.F8, 1, "coefficients")
    n = x.shape[0]
    m = coefficients.shape[0]
    limit = rt.i32(limit, "limit")
    model_ = rt.Model(model, "model")
    rt.fits(y, (n,), "y")
    coefficients_ = rt.worked(coefficients, _out[1], (x, y))
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, coefficients))
    status = _ZemFunc131(rt.pointer(x), rt.pointer(y), rt.pointer(fitted_), n, limit, model_.pointer,
            rt.pointer(coefficients_), rt.i32(m, "m"), ctypes.byref(mean_squared_error_))
    model_.reraise()
    rt.check(status, "fit_nonlinear_limited")
    return FitNonlinearLimitedResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)


_ZemFunc338 = rt.bind("ZemFunc338", "status", "ppplimpip")


class FitNonlinearLimitedAliasResult(NamedTuple):
    """What `fit_nonlinear_limited_alias` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_nonlinear_limited_alias(x, y, model, coefficients, limit=-1, *, out=None):
    r"""The same entry as ZemFunc131.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    model : callable (x, coefficients) -> float
        the model
    coefficients : array_like of float64, shape (m,)
        the initial guess
    limit : int, default -1
        the number of iterations at most; negative: no limit
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the model at x
    coefficients : float64 array of shape (m,)
        the result
    mean_squared_error : float
        the mean of (f - y)^2

    Notes
    -----
    An exception of the model ends the fit and comes out of it. The function ZemFunc338 (FitNonlinearLimitedAlias)
    of the C library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_nonlinear_limited_alias(x, y, model, coefficients)
    """
    _out = rt.outs(out, 2, "fit_nonlinear_limited_alias")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    coefficients = rt.array(coefficients, rt.F8, 1, "coefficients")
    n = x.shape[0]
    m = coefficients.shape[0]
    limit = rt.i32(limit, "limit")
    model_ = rt.Model(model, "model")
    rt.fits(y, (n,), "y")
    coefficients_ = rt.worked(coefficients, _out[1], (x, y))
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, coefficients))
    status = _ZemFunc338(rt.pointer(x), rt.pointer(y), rt.pointer(fitted_), n, limit, model_.pointer,
            rt.pointer(coefficients_), rt.i32(m, "m"), ctypes.byref(mean_squared_error_))
    model_.reraise()
    rt.check(status, "fit_nonlinear_limited_alias")
    return FitNonlinearLimitedAliasResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)


_ZemFunc374 = rt.bind("ZemFunc374", "status", "pppplimpipp")


class FitNonlinearWeightedResult(NamedTuple):
    """What `fit_nonlinear_weighted` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float
    iterations: int


def fit_nonlinear_weighted(x, y, model, coefficients, weights=None, limit=-1, *, out=None):
    r"""The fit with weights.

    Weights that are all 0 fit like no weights. Without fitted there is no mean squared error. On an error neither
    is written; iterations is 0 then, or tells how far the fit came.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    model : callable (x, coefficients) -> float
        the model
    coefficients : array_like of float64, shape (m,)
        the initial guess
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; a sample of weight 0 is left out of the fit
    limit : int, default -1
        the number of iterations at most; negative: no limit
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the model at all x
    coefficients : float64 array of shape (m,)
        the result
    mean_squared_error : float
        the mean over all n of |w| (f - y)^2; needs fitted
    iterations : int
        the number of iterations

    Raises
    ------
    QuorvanError
        -20068: a weight is NaN or infinite
        -20003: n or m is below 1
        -20037: fewer than m samples have a weight
        -20062: at the limit the last two values of chi-square differ by 1e-6 of the smaller or more
        -20001: memory is exhausted

    Notes
    -----
    An exception of the model ends the fit and comes out of it. The function ZemFunc374 (FitNonlinearWeighted) of
    the C library.

    Example
    -------
    >>> result = qv.fit_nonlinear_weighted(x, y, model, coefficients)
    """
    _out = rt.outs(out, 2, "fit_nonlinear_weighted")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    coefficients = rt.array(coefficients, rt.F8, 1, "coefficients")
    n = x.shape[0]
    m = coefficients.shape[0]
    limit = rt.i32(limit, "limit")
    model_ = rt.Model(model, "model")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    coefficients_ = rt.worked(coefficients, _out[1], (x, y, weights))
    mean_squared_error_ = ctypes.c_double()
    iterations_ = ctypes.c_int32()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights, coefficients))
    status = _ZemFunc374(rt.pointer(x), rt.pointer(y), rt.pointer(weights), rt.pointer(fitted_), n, limit,
            model_.pointer, rt.pointer(coefficients_), rt.i32(m, "m"), ctypes.byref(mean_squared_error_),
            ctypes.byref(iterations_))
    model_.reraise()
    rt.check(status, "fit_nonlinear_weighted")
    return FitNonlinearWeightedResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value, iterations_.value)


_ZemFunc375 = rt.bind("ZemFunc375", "status", "pppplimpipp")


class FitNonlinearWeightedAliasResult(NamedTuple):
    """What `fit_nonlinear_weighted_alias` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float
    iterations: int


def fit_nonlinear_weighted_alias(x, y, model, coefficients, weights=None, limit=-1, *, out=None):
    r"""The same entry as ZemFunc374.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    model : callable (x, coefficients) -> float
        the model
    coefficients : array_like of float64, shape (m,)
        the initial guess
    weights : array_like of float64, shape (n,), default None
        the weights, by magnitude; a sample of weight 0 is left out of the fit
    limit : int, default -1
        the number of iterations at most; negative: no limit
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the model at all x
    coefficients : float64 array of shape (m,)
        the result
    mean_squared_error : float
        the mean over all n of |w| (f - y)^2; needs fitted
    iterations : int
        the number of iterations

    Notes
    -----
    An exception of the model ends the fit and comes out of it. The function ZemFunc375
    (FitNonlinearWeightedAlias) of the C library.

    Example
    -------
    >>> result = qv.fit_nonlinear_weighted_alias(x, y, model, coefficients)
    """
    _out = rt.outs(out, 2, "fit_nonlinear_weighted_alias")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    coefficients = rt.array(coefficients, rt.F8, 1, "coefficients")
    n = x.shape[0]
    m = coefficients.shape[0]
    limit = rt.i32(limit, "limit")
    model_ = rt.Model(model, "model")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    coefficients_ = rt.worked(coefficients, _out[1], (x, y, weights))
    mean_squared_error_ = ctypes.c_double()
    iterations_ = ctypes.c_int32()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights, coefficients))
    status = _ZemFunc375(rt.pointer(x), rt.pointer(y), rt.pointer(weights), rt.pointer(fitted_), n, limit,
            model_.pointer, rt.pointer(coefficients_), rt.i32(m, "m"), ctypes.byref(mean_squared_error_),
            ctypes.byref(iterations_))
    model_.reraise()
    rt.check(status, "fit_nonlinear_weighted_alias")
    return FitNonlinearWeightedAliasResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value, iterations_.value)
