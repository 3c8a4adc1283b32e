r"""Convolution and correlation.

What a linear system does to a signal, how alike two signals are at every shift, and the way back from a
response to its cause.

    convolution    (x * y)[l] = sum over i of x[i] y[l - i],                       l = 0 to n + m - 2
    correlation    r[n - 1 + l] = sum over i of conj(x[i]) y[i + l],               l = -(n - 1) to m - 1
    deconvolution  x * h = y solved for h

The full result has n + m - 1 elements; lag 0 of a correlation stands at index n - 1. A positive lag means
that y comes later than x. Method 0 adds the products themselves, method 1 works through Fourier transforms of
a fast length, or of blocks of the longer sequence where that is faster; functions without a method use
transforms. Outputs must not overlap inputs.

Normalisation of correlations: 0 none, 1 unbiased (each lag divided by its number of overlapping terms), 2
biased (all divided by the longer length).

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "convolve_real",
    "convolve_real_by",
    "convolve_complex",
    "correlate_real",
    "correlate_real_by",
    "correlate_real_normalised",
    "auto_correlate_real",
    "correlate_complex",
    "correlate_complex_normalised",
    "auto_correlate_complex",
    "deconvolve",
    "convolve_2d_real",
    "convolve_2d_complex",
    "correlate_2d_real",
    "correlate_2d_complex",
    "auto_correlate_2d_real",
    "auto_correlate_2d_complex",
]
_max, _min = max, min

_ZemFunc32 = rt.bind("ZemFunc32", "status", "plplp")


def convolve_real(x, y, *, out=None):
    r"""The linear convolution, out[l] = sum over i of x[i] y[l - i].

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first sequence
    y : array_like of float64, shape (m,)
        the second sequence
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n + m - 1,)
        the convolution

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `convolve_complex`. The function ZemFunc32 (ConvolveReal) of the C library.

    Example
    -------
    >>> out = qv.convolve_real(x, y)
    """
    if rt.is_complex(x, y):
        return convolve_complex(x=x, y=y, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    out_ = rt.result(out, (n + m - 1,), rt.F8, (x, y))
    status = _ZemFunc32(rt.pointer(x), n, rt.pointer(y), m, rt.pointer(out_))
    rt.check(status, "convolve_real")
    return rt.deliver(out_, out)


_ZemFunc372 = rt.bind("ZemFunc372", "status", "plplip")


def convolve_real_by(x, y, method=Method.TRANSFORM, *, out=None):
    r"""The linear convolution, out[l] = sum over i of x[i] y[l - i].

    A method other than 0 and 1 does nothing and succeeds.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first sequence
    y : array_like of float64, shape (m,)
        the second sequence
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n + m - 1,)
        the convolution

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `convolve_complex`. The function ZemFunc372 (ConvolveRealBy) of the C library.

    Example
    -------
    >>> out = qv.convolve_real_by(x, y)
    """
    if rt.is_complex(x, y):
        return convolve_complex(x=x, y=y, method=method, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (n + m - 1,), rt.F8, (x, y))
    status = _ZemFunc372(rt.pointer(x), n, rt.pointer(y), m, method, rt.pointer(out_))
    rt.check(status, "convolve_real_by")
    return rt.deliver(out_, out)


_ZemFunc391 = rt.bind("ZemFunc391", "status", "plplup")


def convolve_complex(x, y, method=Method.TRANSFORM, *, out=None):
    r"""The linear convolution, out[l] = sum over i of x[i] y[l - i].

    Nothing is conjugated.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the first sequence
    y : array_like of complex128, shape (m,)
        the second sequence
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n + m - 1,)
        the convolution

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20061: the method is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc391 (ConvolveComplex) of the C library.

    Example
    -------
    >>> out = qv.convolve_complex(x, y)
    """
    x = rt.array(x, rt.C16, 1, "x")
    y = rt.array(y, rt.C16, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (n + m - 1,), rt.C16, (x, y))
    status = _ZemFunc391(rt.pointer(x), n, rt.pointer(y), m, method, rt.pointer(out_))
    rt.check(status, "convolve_complex")
    return rt.deliver(out_, out)


_ZemFunc33 = rt.bind("ZemFunc33", "status", "plplp")


def correlate_real(x, y, *, out=None):
    r"""The cross-correlation, out[n - 1 + l] = sum over i of x[i] y[i + l].

    If x and y are one pointer, it is the autocorrelation of the n elements, 2 n - 1 of them, whatever m.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first sequence
    y : array_like of float64, shape (m,)
        the second sequence
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n + m - 1,)
        the correlation

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `correlate_complex`. The function ZemFunc33 (CorrelateReal) of the C library.

    Example
    -------
    >>> out = qv.correlate_real(x, y)
    """
    if rt.is_complex(x, y):
        return correlate_complex(x=x, y=y, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    y = rt.apart(y, x)
    out_ = rt.result(out, (n + m - 1,), rt.F8, (x, y))
    status = _ZemFunc33(rt.pointer(x), n, rt.pointer(y), m, rt.pointer(out_))
    rt.check(status, "correlate_real")
    return rt.deliver(out_, out)


_ZemFunc373 = rt.bind("ZemFunc373", "status", "plplip")


def correlate_real_by(x, y, method=Method.TRANSFORM, *, out=None):
    r"""The cross-correlation, out[n - 1 + l] = sum over i of x[i] y[i + l].

    A method other than 0 and 1 does nothing and succeeds. With method 1, if x and y are one pointer, it is the
    autocorrelation of the n elements, 2 n - 1 of them, whatever m.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first sequence
    y : array_like of float64, shape (m,)
        the second sequence
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n + m - 1,)
        the correlation

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `correlate_complex`. The function ZemFunc373 (CorrelateRealBy) of the C library.

    Example
    -------
    >>> out = qv.correlate_real_by(x, y)
    """
    if rt.is_complex(x, y):
        return correlate_complex(x=x, y=y, method=method, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    method = rt.choice(method, Method, "method")
    y = rt.apart(y, x)
    out_ = rt.result(out, (n + m - 1,), rt.F8, (x, y))
    status = _ZemFunc373(rt.pointer(x), n, rt.pointer(y), m, method, rt.pointer(out_))
    rt.check(status, "correlate_real_by")
    return rt.deliver(out_, out)


_ZemFunc376 = rt.bind("ZemFunc376", "status", "plpliup")


def correlate_real_normalised(x, y, method=Method.TRANSFORM, normalisation=Normalisation.NONE, *, out=None):
    r"""The cross-correlation, out[n - 1 + l] = sum over i of x[i] y[i + l].

    A method other than 0 and 1 correlates nothing, and what stands in out is normalised; this also follows a
    failure. With method 1, if x and y are one pointer, it is the autocorrelation of the n elements, 2 n - 1 of
    them, whatever m.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the first sequence
    y : array_like of float64, shape (m,)
        the second sequence
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    normalisation : Normalisation, its name, or int, default Normalisation.NONE
        0 none, 1 unbiased, 2 biased
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n + m - 1,)
        the correlation

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted
        -20061: the normalisation is above 2; the raw result is written

    Notes
    -----
    Complex arrays go to `correlate_complex_normalised`. The function ZemFunc376 (CorrelateRealNormalised) of the
    C library.

    Example
    -------
    >>> out = qv.correlate_real_normalised(x, y)
    """
    if rt.is_complex(x, y):
        return correlate_complex_normalised(x=x, y=y, method=method, normalisation=normalisation, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    method = rt.choice(method, Method, "method")
    normalisation = rt.choice(normalisation, Normalisation, "normalisation")
    y = rt.apart(y, x)
    out_ = rt.result(out, (n + m - 1,), rt.F8, (x, y))
    status = _ZemFunc376(rt.pointer(x), n, rt.pointer(y), m, method, normalisation, rt.pointer(out_))
    rt.check(status, "correlate_real_normalised")
    return rt.deliver(out_, out)


_ZemFunc424 = rt.bind("ZemFunc424", "status", "plip")


def auto_correlate_real(x, normalisation=Normalisation.NONE, *, out=None):
    r"""The autocorrelation, out[n - 1 + l] = sum over i of x[i] x[i + l].

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the sequence
    normalisation : Normalisation, its name, or int, default Normalisation.NONE
        0 none, 1 unbiased, 2 biased
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (2 * n - 1,)
        the autocorrelation

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: 2n - 1 exceeds 2^31 - 1
        -20001: memory is exhausted
        -20061: the normalisation is unknown; the raw result is written

    Notes
    -----
    Complex arrays go to `auto_correlate_complex`. The function ZemFunc424 (AutoCorrelateReal) of the C library.

    Example
    -------
    >>> out = qv.auto_correlate_real(x)
    """
    if rt.is_complex(x):
        return auto_correlate_complex(x=x, normalisation=normalisation, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    normalisation = rt.choice(normalisation, Normalisation, "normalisation")
    out_ = rt.result(out, (2 * n - 1,), rt.F8, (x,))
    status = _ZemFunc424(rt.pointer(x), n, normalisation, rt.pointer(out_))
    rt.check(status, "auto_correlate_real")
    return rt.deliver(out_, out)


_ZemFunc421 = rt.bind("ZemFunc421", "status", "plplup")


def correlate_complex(x, y, method=Method.TRANSFORM, *, out=None):
    r"""The cross-correlation, out[n - 1 + l] = sum over i of conj(x[i]) y[i + l].

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the first sequence
    y : array_like of complex128, shape (m,)
        the second sequence
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n + m - 1,)
        the correlation

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20061: the method is above 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc421 (CorrelateComplex) of the C library.

    Example
    -------
    >>> out = qv.correlate_complex(x, y)
    """
    x = rt.array(x, rt.C16, 1, "x")
    y = rt.array(y, rt.C16, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (n + m - 1,), rt.C16, (x, y))
    status = _ZemFunc421(rt.pointer(x), n, rt.pointer(y), m, method, rt.pointer(out_))
    rt.check(status, "correlate_complex")
    return rt.deliver(out_, out)


_ZemFunc490 = rt.bind("ZemFunc490", "status", "plpluup")


def correlate_complex_normalised(x, y, method=Method.TRANSFORM, normalisation=Normalisation.NONE, *, out=None):
    r"""The cross-correlation, out[n - 1 + l] = sum over i of conj(x[i]) y[i + l].

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the first sequence
    y : array_like of complex128, shape (m,)
        the second sequence
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    normalisation : Normalisation, its name, or int, default Normalisation.NONE
        0 none, 1 unbiased, 2 biased
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n + m - 1,)
        the correlation

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20046: n + m - 1 exceeds 2^31 - 1
        -20061: the method is above 1; or the normalisation is above 2, and the raw result is written
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc490 (CorrelateComplexNormalised) of the C library.

    Example
    -------
    >>> out = qv.correlate_complex_normalised(x, y)
    """
    x = rt.array(x, rt.C16, 1, "x")
    y = rt.array(y, rt.C16, 1, "y")
    n = x.shape[0]
    m = y.shape[0]
    method = rt.choice(method, Method, "method")
    normalisation = rt.choice(normalisation, Normalisation, "normalisation")
    out_ = rt.result(out, (n + m - 1,), rt.C16, (x, y))
    status = _ZemFunc490(rt.pointer(x), n, rt.pointer(y), m, method, normalisation, rt.pointer(out_))
    rt.check(status, "correlate_complex_normalised")
    return rt.deliver(out_, out)


_ZemFunc425 = rt.bind("ZemFunc425", "status", "plip")


def auto_correlate_complex(x, normalisation=Normalisation.NONE, *, out=None):
    r"""The autocorrelation, out[n - 1 + l] = sum over i of conj(x[i]) x[i + l].

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the sequence
    normalisation : Normalisation, its name, or int, default Normalisation.NONE
        0 none, 1 unbiased, 2 biased
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (2 * n - 1,)
        the autocorrelation

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: 2n - 1 exceeds 2^31 - 1
        -20001: memory is exhausted
        -20061: the normalisation is unknown; the raw result is written

    Notes
    -----
    The function ZemFunc425 (AutoCorrelateComplex) of the C library.

    Example
    -------
    >>> out = qv.auto_correlate_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    normalisation = rt.choice(normalisation, Normalisation, "normalisation")
    out_ = rt.result(out, (2 * n - 1,), rt.C16, (x,))
    status = _ZemFunc425(rt.pointer(x), n, normalisation, rt.pointer(out_))
    rt.check(status, "auto_correlate_complex")
    return rt.deliver(out_, out)


_ZemFunc54 = rt.bind("ZemFunc54", "status", "plplp")


def deconvolve(y, x, *, out=None):
    r"""Finds the sequence whose convolution with x is y, by dividing spectra; by long division where the spectrum of
    x comes too near to zero.

    Parameters
    ----------
    y : array_like of float64, shape (n,)
        the product of the convolution
    x : array_like of float64, shape (m,)
        the known factor
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n - m + 1,)
        the other factor

    Raises
    ------
    QuorvanError
        -20003: n or m is below 1
        -20008: m is above n
        -20046: n exceeds 2^30
        -20060: all elements of x are 0; nothing is written
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc54 (Deconvolve) of the C library.

    Example
    -------
    >>> out = qv.deconvolve(y, x)
    """
    y = rt.array(y, rt.F8, 1, "y")
    x = rt.array(x, rt.F8, 1, "x")
    n = y.shape[0]
    m = x.shape[0]
    out_ = rt.result(out, (n - m + 1,), rt.F8, (y, x))
    status = _ZemFunc54(rt.pointer(y), n, rt.pointer(x), m, rt.pointer(out_))
    rt.check(status, "deconvolve")
    return rt.deliver(out_, out)


_ZemFunc392 = rt.bind("ZemFunc392", "status", "pllplluup")


def convolve_2d_real(x, y, shape=Shape.FULL, method=Method.TRANSFORM, *, out=None):
    r"""The linear convolution of two arrays, out(r, c) = sum over i, j of x(i, j) y(r - i, c - j).

    Shape 2 has (rows1 - rows2 + 1) x (cols1 - cols2 + 1) elements. Checked in the order of the statuses.

    Parameters
    ----------
    x : array_like of float64, shape (rows1, cols1)
        the first array, row-major
    y : array_like of float64, shape (rows2, cols2)
        the second array, row-major
    shape : Shape, its name, or int, default Shape.FULL
        0: all; 1: rows1 x cols1, from row rows2 / 2 and column cols2 / 2; 2: what no padding has touched
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows1, cols1) if shape == 1 else (rows1 - rows2 + 1, cols1 - cols2 + 1) if shape
    == 2 else (rows1 + rows2 - 1, cols1 + cols2 - 1)
        the convolution, row-major, as much of it as the shape has

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the shape is above 2, or the method above 1
        -20008: shape 2, and y has more rows or columns than x
        -20046: the full result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `convolve_2d_complex`. The function ZemFunc392 (Convolve2DReal) of the C library.

    Example
    -------
    >>> out = qv.convolve_2d_real(x, y)
    """
    if rt.is_complex(x, y):
        return convolve_2d_complex(x=x, y=y, shape=shape, method=method, out=out)
    x = rt.array(x, rt.F8, 2, "x")
    y = rt.array(y, rt.F8, 2, "y")
    rows1 = x.shape[0]
    cols1 = x.shape[1]
    rows2 = y.shape[0]
    cols2 = y.shape[1]
    shape = rt.choice(shape, Shape, "shape")
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (rows1, cols1) if shape == 1 else (rows1 - rows2 + 1, cols1 - cols2 + 1) if shape == 2 else
            (rows1 + rows2 - 1, cols1 + cols2 - 1), rt.F8, (x, y))
    status = _ZemFunc392(rt.pointer(x), rows1, cols1, rt.pointer(y), rows2, cols2, shape, method, rt.pointer(out_))
    rt.check(status, "convolve_2d_real")
    return rt.deliver(out_, out)


_ZemFunc393 = rt.bind("ZemFunc393", "status", "pllplluup")


def convolve_2d_complex(x, y, shape=Shape.FULL, method=Method.TRANSFORM, *, out=None):
    r"""The linear convolution of two arrays, out(r, c) = sum over i, j of x(i, j) y(r - i, c - j).

    Shape 2 has (rows1 - rows2 + 1) x (cols1 - cols2 + 1) elements. Checked in the order of the statuses.

    Parameters
    ----------
    x : array_like of complex128, shape (rows1, cols1)
        the first array, row-major
    y : array_like of complex128, shape (rows2, cols2)
        the second array, row-major
    shape : Shape, its name, or int, default Shape.FULL
        0: all; 1: rows1 x cols1, from row rows2 / 2 and column cols2 / 2; 2: what no padding has touched
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (rows1, cols1) if shape == 1 else (rows1 - rows2 + 1, cols1 - cols2 + 1) if
    shape == 2 else (rows1 + rows2 - 1, cols1 + cols2 - 1)
        the convolution, row-major, as much of it as the shape has

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the shape is above 2, or the method above 1
        -20008: shape 2, and y has more rows or columns than x
        -20046: the full result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc393 (Convolve2DComplex) of the C library.

    Example
    -------
    >>> out = qv.convolve_2d_complex(x, y)
    """
    x = rt.array(x, rt.C16, 2, "x")
    y = rt.array(y, rt.C16, 2, "y")
    rows1 = x.shape[0]
    cols1 = x.shape[1]
    rows2 = y.shape[0]
    cols2 = y.shape[1]
    shape = rt.choice(shape, Shape, "shape")
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (rows1, cols1) if shape == 1 else (rows1 - rows2 + 1, cols1 - cols2 + 1) if shape == 2 else
            (rows1 + rows2 - 1, cols1 + cols2 - 1), rt.C16, (x, y))
    status = _ZemFunc393(rt.pointer(x), rows1, cols1, rt.pointer(y), rows2, cols2, shape, method, rt.pointer(out_))
    rt.check(status, "convolve_2d_complex")
    return rt.deliver(out_, out)


_ZemFunc422 = rt.bind("ZemFunc422", "status", "pllpllup")


def correlate_2d_real(x, y, method=Method.TRANSFORM, *, out=None):
    r"""The cross-correlation of two arrays, sum over i, j of x(i, j) y(i + r, j + c), with lag (0, 0) at row rows1 -
    1 and column cols1 - 1.

    Parameters
    ----------
    x : array_like of float64, shape (rows1, cols1)
        the first array, row-major
    y : array_like of float64, shape (rows2, cols2)
        the second array, row-major
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows1 + rows2 - 1, cols1 + cols2 - 1)
        the correlation, row-major

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the method is above 1
        -20046: the full result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `correlate_2d_complex`. The function ZemFunc422 (Correlate2DReal) of the C library.

    Example
    -------
    >>> out = qv.correlate_2d_real(x, y)
    """
    if rt.is_complex(x, y):
        return correlate_2d_complex(x=x, y=y, method=method, out=out)
    x = rt.array(x, rt.F8, 2, "x")
    y = rt.array(y, rt.F8, 2, "y")
    rows1 = x.shape[0]
    cols1 = x.shape[1]
    rows2 = y.shape[0]
    cols2 = y.shape[1]
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (rows1 + rows2 - 1, cols1 + cols2 - 1), rt.F8, (x, y))
    status = _ZemFunc422(rt.pointer(x), rows1, cols1, rt.pointer(y), rows2, cols2, method, rt.pointer(out_))
    rt.check(status, "correlate_2d_real")
    return rt.deliver(out_, out)


_ZemFunc423 = rt.bind("ZemFunc423", "status", "pllpllup")


def correlate_2d_complex(x, y, method=Method.TRANSFORM, *, out=None):
    r"""The cross-correlation of two arrays, sum over i, j of conj(x(i, j)) y(i + r, j + c), with lag (0, 0) at row
    rows1 - 1 and column cols1 - 1.

    Parameters
    ----------
    x : array_like of complex128, shape (rows1, cols1)
        the first array, row-major
    y : array_like of complex128, shape (rows2, cols2)
        the second array, row-major
    method : Method, its name, or int, default Method.TRANSFORM
        0: direct; 1: by transforms
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (rows1 + rows2 - 1, cols1 + cols2 - 1)
        the correlation, row-major

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the method is above 1
        -20046: the full result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc423 (Correlate2DComplex) of the C library.

    Example
    -------
    >>> out = qv.correlate_2d_complex(x, y)
    """
    x = rt.array(x, rt.C16, 2, "x")
    y = rt.array(y, rt.C16, 2, "y")
    rows1 = x.shape[0]
    cols1 = x.shape[1]
    rows2 = y.shape[0]
    cols2 = y.shape[1]
    method = rt.choice(method, Method, "method")
    out_ = rt.result(out, (rows1 + rows2 - 1, cols1 + cols2 - 1), rt.C16, (x, y))
    status = _ZemFunc423(rt.pointer(x), rows1, cols1, rt.pointer(y), rows2, cols2, method, rt.pointer(out_))
    rt.check(status, "correlate_2d_complex")
    return rt.deliver(out_, out)


_ZemFunc426 = rt.bind("ZemFunc426", "status", "pllp")


def auto_correlate_2d_real(x, *, out=None):
    r"""The autocorrelation of an array, sum over i, j of x(i, j) x(i + r, j + c), with lag (0, 0) in the middle.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the array, row-major
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (2 * rows - 1, 2 * cols - 1)
        the autocorrelation, row-major

    Raises
    ------
    QuorvanError
        -20003: rows or cols is below 1
        -20046: the full result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `auto_correlate_2d_complex`. The function ZemFunc426 (AutoCorrelate2DReal) of the C
    library.

    Example
    -------
    >>> out = qv.auto_correlate_2d_real(x)
    """
    if rt.is_complex(x):
        return auto_correlate_2d_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    out_ = rt.result(out, (2 * rows - 1, 2 * cols - 1), rt.F8, (x,))
    status = _ZemFunc426(rt.pointer(x), rows, cols, rt.pointer(out_))
    rt.check(status, "auto_correlate_2d_real")
    return rt.deliver(out_, out)


_ZemFunc427 = rt.bind("ZemFunc427", "status", "pllp")


def auto_correlate_2d_complex(x, *, out=None):
    r"""The autocorrelation of an array, sum over i, j of conj(x(i, j)) x(i + r, j + c), with lag (0, 0) in the
    middle.

    Parameters
    ----------
    x : array_like of complex128, shape (rows, cols)
        the array, row-major
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (2 * rows - 1, 2 * cols - 1)
        the autocorrelation, row-major

    Raises
    ------
    QuorvanError
        -20003: rows or cols is below 1
        -20046: the full result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc427 (AutoCorrelate2DComplex) of the C library.

    Example
    -------
    >>> out = qv.auto_correlate_2d_complex(x)
    """
    x = rt.array(x, rt.C16, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    out_ = rt.result(out, (2 * rows - 1, 2 * cols - 1), rt.C16, (x,))
    status = _ZemFunc427(rt.pointer(x), rows, cols, rt.pointer(out_))
    rt.check(status, "auto_correlate_2d_complex")
    return rt.deliver(out_, out)
