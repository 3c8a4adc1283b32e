r"""Linear and polynomial fits.

Least squares for models that are linear in their coefficients: any design matrix, and polynomials of which
some coefficients may be fixed.

    f[i] = sum over j of X[i, j] c[j],        minimises sum of ((y[i] - f[i]) / deviation[i])^2
    polynomial: f[i] = c[0] + c[1] x[i] + ... + c[order] x[i]^order,    minimises sum of |w[i]| (y[i] - f[i])^2
    error = sum of weight (y - f)^2 / n,      covariance = (X' W X)^-1

A design has m rows and n columns, row-major; row i holds the basis functions at observation i. Coefficients
of polynomials stand in ascending power. Weights count by magnitude, a deviation of 0 as a weight of 1.

The fitted curve and the error are produced together: of the general fit and of the polynomials without fixed
coefficients one alone is not written.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "fit_general_linear",
    "fit_general_linear_ex",
    "fit_polynomial",
    "fit_polynomial_constrained",
    "fit_polynomial_weighted",
    "FitGeneralLinearExResult",
    "FitPolynomialResult",
    "FitPolynomialConstrainedResult",
    "FitPolynomialWeightedResult",
]
_max, _min = max, min

_ZemFunc239 = rt.bind("ZemFunc239", "status", "pllppu")


def fit_general_linear(design, y, selector=LinearAlgorithm.SINGULAR_VALUES, *, out=None):
    r"""The coefficients c that minimise |y - X c|. 0 and 6 give the solution of smallest norm: 0 drops singular
    values of 0, 6 those at or below m s(0) 2.2e-16.

    The normal equations (4, 5) are faster for many observations and square the condition number. NaN in y shows
    in the coefficients; NaN in the design too with selector 4.

    Parameters
    ----------
    design : array_like of float64, shape (m, n)
        the basis functions at the observations
    y : array_like of float64, shape (m,)
        the observations
    selector : LinearAlgorithm, its name, or int, default LinearAlgorithm.SINGULAR_VALUES
        0 singular values; 1, 2, 3 QR; 4 LU, 5 Cholesky of the normal equations; 6 singular values truncated
    out : array or None
        the array for `coefficients`; it may be an input, to work in place

    Returns
    -------
    coefficients : float64 array of shape (n,)
        the coefficients

    Raises
    ------
    QuorvanError
        -20021: n is below 1
        -20037: m is below n
        -20061: the selector is above 6
        -20046: the design has more than 2^31 - 1 elements
        -20041: selectors 1 to 4: the system is singular, exactly
        -20071: selector 5: the normal matrix is not positive definite
        -20068: an element of the design (selectors 0 to 3, 6) or of the normal matrix (5) is not finite
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc239 (FitGeneralLinear) of the C library.

    Example
    -------
    >>> coefficients = qv.fit_general_linear(design, y)
    """
    design = rt.array(design, rt.F8, 2, "design")
    y = rt.array(y, rt.F8, 1, "y")
    m = design.shape[0]
    n = design.shape[1]
    selector = rt.choice(selector, LinearAlgorithm, "selector")
    rt.fits(y, (m,), "y")
    coefficients_ = rt.result(out, (n,), rt.F8, (design, y))
    status = _ZemFunc239(rt.pointer(design), m, n, rt.pointer(y), rt.pointer(coefficients_), selector)
    rt.check(status, "fit_general_linear")
    return rt.deliver(coefficients_, out)


_ZemFunc86 = rt.bind("ZemFunc86", "status", "pllppupppp")


class FitGeneralLinearExResult(NamedTuple):
    """What `fit_general_linear_ex` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    covariance: np.ndarray
    mean_squared_error: float


def fit_general_linear_ex(design, y, deviations=None, selector=LinearAlgorithm.SINGULAR_VALUES, *, out=None):
    r"""The coefficients that minimise the sum of ((y - X c) / deviation)^2.

    With the selectors 4 and 5 the covariance is written before the coefficients are solved for.

    Parameters
    ----------
    design : array_like of float64, shape (m, n)
        the basis functions at the observations
    y : array_like of float64, shape (m,)
        the observations
    deviations : array_like of float64, shape (m,), default None
        the standard deviations of the observations; 0 weighs 1
    selector : LinearAlgorithm, its name, or int, default LinearAlgorithm.SINGULAR_VALUES
        as for `fit_general_linear`
    out : tuple or None
        arrays for `fitted`, `coefficients`, `covariance`, or None for one to be made; each may be an input, to
        work in place

    Returns
    -------
    fitted : float64 array of shape (m,)
        the fitted curve, X c
    coefficients : float64 array of shape (n,)
        the coefficients
    covariance : float64 array of shape (n, n)
        the covariance of the coefficients, (X' W X)^-1 with W the weights
    mean_squared_error : float
        sum of w (y - f)^2 / m

    Raises
    ------
    QuorvanError
        -20021: n is below 1
        -20037: m is below n
        -20061: the selector is above 6
        -20046: the design has more than 2^31 - 1 elements
        -20041: selectors 1 to 4: the system is singular, exactly
        -20071: selector 5: the normal matrix is not positive definite
        -20068: a scaled element of the design (selectors 0 to 3, 6) or of the normal matrix (5; 4 with a
        covariance) is not finite
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc86 (FitGeneralLinearEx) of the C library.

    Example
    -------
    >>> result = qv.fit_general_linear_ex(design, y)
    """
    _out = rt.outs(out, 3, "fit_general_linear_ex")
    design = rt.array(design, rt.F8, 2, "design")
    y = rt.array(y, rt.F8, 1, "y")
    deviations = None if deviations is None else rt.array(deviations, rt.F8, 1, "deviations")
    m = design.shape[0]
    n = design.shape[1]
    selector = rt.choice(selector, LinearAlgorithm, "selector")
    rt.fits(y, (m,), "y")
    rt.fits(deviations, (m,), "deviations")
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (m,), rt.F8, (design, y, deviations))
    coefficients_ = rt.result(_out[1], (n,), rt.F8, (design, y, deviations))
    covariance_ = rt.result(_out[2], (n, n), rt.F8, (design, y, deviations))
    status = _ZemFunc86(rt.pointer(design), m, n, rt.pointer(y), rt.pointer(deviations), selector,
            rt.pointer(fitted_), rt.pointer(coefficients_), rt.pointer(covariance_),
            ctypes.byref(mean_squared_error_))
    rt.check(status, "fit_general_linear_ex")
    return FitGeneralLinearExResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            rt.deliver(covariance_, _out[2]), mean_squared_error_.value)


_ZemFunc137 = rt.bind("ZemFunc137", "status", "pplippp")


class FitPolynomialResult(NamedTuple):
    """What `fit_polynomial` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_polynomial(x, y, order, *, out=None):
    r"""The polynomial of least squares, by singular values.

    Powers above 25 are not fitted: their coefficients are 0.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    order : int
        the degree of the polynomial
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    coefficients : float64 array of shape (order + 1,)
        the coefficients in ascending power
    mean_squared_error : float
        sum of (y - f)^2 / n

    Raises
    ------
    QuorvanError
        -20103: the order is negative
        -20037: n is not above the order
        -20046: n times the number of powers is above 2^31 - 1
        -20068: a power of an abscissa is not finite
        -20062: the singular values did not converge
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20031: the order is above 25

    Notes
    -----
    The function ZemFunc137 (FitPolynomial) of the C library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_polynomial(x, y, order)
    """
    _out = rt.outs(out, 2, "fit_polynomial")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    order = rt.i32(order, "order")
    rt.fits(y, (n,), "y")
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y))
    coefficients_ = rt.result(_out[1], (order + 1,), rt.F8, (x, y))
    status = _ZemFunc137(rt.pointer(x), rt.pointer(y), n, order, rt.pointer(fitted_), rt.pointer(coefficients_),
            ctypes.byref(mean_squared_error_))
    rt.check(status, "fit_polynomial")
    return FitPolynomialResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)


_ZemFunc298 = rt.bind("ZemFunc298", "status", "pplippiuppp")


class FitPolynomialConstrainedResult(NamedTuple):
    """What `fit_polynomial_constrained` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_polynomial_constrained(x, y, order, fixed_orders=None, fixed_values=None, algorithm=PolynomialAlgorithm.SINGULAR_VALUES, *, out=None):
    r"""The polynomial of least squares among those with the given coefficients.

    Powers above 25 are not fitted, unless fewer than two below are free: then up to the second free one. Without
    given coefficients a curve without an error is not written.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    order : int
        the degree of the polynomial
    fixed_orders : array_like of int32, shape (fixed_count,), default None
        the powers whose coefficients are given; others than 0 to order do nothing
    fixed_values : array_like of float64, shape (fixed_count,), default None
        their coefficients; of several for one power the last holds
    algorithm : PolynomialAlgorithm, its name, or int, default PolynomialAlgorithm.SINGULAR_VALUES
        0 singular values, 1 QR, 2 LU and 3 Cholesky of the normal equations
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    coefficients : float64 array of shape (order + 1,)
        the coefficients in ascending power
    mean_squared_error : float
        sum of (y - f)^2 / n

    Raises
    ------
    QuorvanError
        -20061: the algorithm is above 3
        -20103: the order or fixed_count is negative
        -20037: n is not above the order less fixed_count, or below the number of free coefficients
        -20046: n times the number of free powers is above 2^31 - 1
        -20041: algorithms 1 and 2: the system is singular, exactly
        -20071: algorithm 3: the normal matrix is not positive definite
        -20068: a power of an abscissa is not finite (algorithm 2 does not test it)
        -20062: the singular values did not converge
        -20003: all coefficients are given, the curve or the error is wanted, and n is below 1
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20031: the order is above 25

    Notes
    -----
    The function ZemFunc298 (FitPolynomialConstrained) of the C library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_polynomial_constrained(x, y, order)
    """
    _out = rt.outs(out, 2, "fit_polynomial_constrained")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    fixed_orders = None if fixed_orders is None else rt.array(fixed_orders, rt.I4, 1, "fixed_orders")
    fixed_values = None if fixed_values is None else rt.array(fixed_values, rt.F8, 1, "fixed_values")
    n = x.shape[0]
    fixed_count = 0 if fixed_orders is None else fixed_orders.shape[0]
    order = rt.i32(order, "order")
    algorithm = rt.choice(algorithm, PolynomialAlgorithm, "algorithm")
    rt.fits(y, (n,), "y")
    rt.fits(fixed_values, (fixed_count,), "fixed_values")
    rt.together(fixed_orders=fixed_orders, fixed_values=fixed_values)
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, fixed_orders, fixed_values))
    coefficients_ = rt.result(_out[1], (order + 1,), rt.F8, (x, y, fixed_orders, fixed_values))
    status = _ZemFunc298(rt.pointer(x), rt.pointer(y), n, order, rt.pointer(fixed_orders), rt.pointer(fixed_values),
            rt.i32(fixed_count, "fixed_count"), algorithm, rt.pointer(fitted_), rt.pointer(coefficients_),
            ctypes.byref(mean_squared_error_))
    rt.check(status, "fit_polynomial_constrained")
    return FitPolynomialConstrainedResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)


_ZemFunc361 = rt.bind("ZemFunc361", "status", "ppplippiuppp")


class FitPolynomialWeightedResult(NamedTuple):
    """What `fit_polynomial_weighted` gives."""

    fitted: np.ndarray
    coefficients: np.ndarray
    mean_squared_error: float


def fit_polynomial_weighted(x, y, order, weights=None, fixed_orders=None, fixed_values=None, algorithm=PolynomialAlgorithm.SINGULAR_VALUES, *, out=None):
    r"""`fit_polynomial_constrained` with weights.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the abscissas
    y : array_like of float64, shape (n,)
        the ordinates
    order : int
        the degree of the polynomial
    weights : array_like of float64, shape (n,), default None
        the weights
    fixed_orders : array_like of int32, shape (fixed_count,), default None
        the powers whose coefficients are given; others than 0 to order do nothing
    fixed_values : array_like of float64, shape (fixed_count,), default None
        their coefficients; of several for one power the last holds
    algorithm : PolynomialAlgorithm, its name, or int, default PolynomialAlgorithm.SINGULAR_VALUES
        0 singular values, 1 QR, 2 LU and 3 Cholesky of the normal equations
    out : tuple or None
        arrays for `fitted`, `coefficients`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    fitted : float64 array of shape (n,)
        the fitted curve
    coefficients : float64 array of shape (order + 1,)
        the coefficients in ascending power
    mean_squared_error : float
        sum of |w| (y - f)^2 / n

    Raises
    ------
    QuorvanError
        -20061: the algorithm is above 3
        -20103: the order or fixed_count is negative
        -20037: n is not above the order less fixed_count, or below the number of free coefficients
        -20046: n times the number of free powers is above 2^31 - 1
        -20041: algorithms 1 and 2: the system is singular, exactly
        -20071: algorithm 3: the normal matrix is not positive definite
        -20068: a power of an abscissa times its weight is not finite (algorithm 2 does not test it)
        -20062: the singular values did not converge
        -20003: all coefficients are given, the curve or the error is wanted, and n is below 1
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20031: the order is above 25

    Notes
    -----
    The function ZemFunc361 (FitPolynomialWeighted) of the C library.

    Example
    -------
    >>> fitted, coefficients, mean_squared_error = qv.fit_polynomial_weighted(x, y, order)
    """
    _out = rt.outs(out, 2, "fit_polynomial_weighted")
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    weights = None if weights is None else rt.array(weights, rt.F8, 1, "weights")
    fixed_orders = None if fixed_orders is None else rt.array(fixed_orders, rt.I4, 1, "fixed_orders")
    fixed_values = None if fixed_values is None else rt.array(fixed_values, rt.F8, 1, "fixed_values")
    n = x.shape[0]
    fixed_count = 0 if fixed_orders is None else fixed_orders.shape[0]
    order = rt.i32(order, "order")
    algorithm = rt.choice(algorithm, PolynomialAlgorithm, "algorithm")
    rt.fits(y, (n,), "y")
    rt.fits(weights, (n,), "weights")
    rt.fits(fixed_values, (fixed_count,), "fixed_values")
    rt.together(fixed_orders=fixed_orders, fixed_values=fixed_values)
    mean_squared_error_ = ctypes.c_double()
    fitted_ = rt.result(_out[0], (n,), rt.F8, (x, y, weights, fixed_orders, fixed_values))
    coefficients_ = rt.result(_out[1], (order + 1,), rt.F8, (x, y, weights, fixed_orders, fixed_values))
    status = _ZemFunc361(rt.pointer(x), rt.pointer(y), rt.pointer(weights), n, order, rt.pointer(fixed_orders),
            rt.pointer(fixed_values), rt.i32(fixed_count, "fixed_count"), algorithm, rt.pointer(fitted_),
            rt.pointer(coefficients_), ctypes.byref(mean_squared_error_))
    rt.check(status, "fit_polynomial_weighted")
    return FitPolynomialWeightedResult(rt.deliver(fitted_, _out[0]), rt.deliver(coefficients_, _out[1]),
            mean_squared_error_.value)
