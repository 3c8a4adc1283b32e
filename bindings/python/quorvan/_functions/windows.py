r"""Window functions.

Windows taper a record towards its ends, so that tones between the bins of its spectrum leak less. They
multiply data in place, real arrays or complex ones, where one factor serves both parts of a sample.

    cosine sums     w[i] = sum over k of (-1)^k a[k] cos(2 pi k i / n)
    Hanning         0.5, 0.5                     Blackman-Harris, 3 terms   0.42323, 0.49755, 0.07922
    Hamming         0.54, 0.46                   Blackman-Harris, 4 terms   0.35875, 0.48829, 0.14128, 0.01168
    Blackman        0.42, 0.5, 0.08              Blackman-Nuttall  0.3635819, 0.4891775, 0.1365995, 0.0106411
    exact Blackman  7938, 9240, 1430 / 18608
    flat top        0.215578948, 0.41663158, 0.277263158, 0.083578947, 0.006947368
    coherent gain = sum w / n,       equivalent noise bandwidth = n sum w^2 / (sum w)^2  in bins

Most are periodic: w[k] = w[n - k], and w[0] would be the first sample of the next period. The symmetric form,
for filter design, is `window_apply_symmetric`. Codes are those of `Window`. The coherent gain is what a
window makes of the amplitude of a tone on a bin; the scaled forms divide by it.

The cosine sums take one sine for each coefficient and a rotation for each pair of samples. After an error the
data are unchanged.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "window_hanning",
    "window_hanning_complex",
    "window_hamming",
    "window_hamming_complex",
    "window_blackman_harris3",
    "window_blackman_harris3_complex",
    "window_exact_blackman",
    "window_exact_blackman_complex",
    "window_blackman",
    "window_blackman_complex",
    "window_flat_top",
    "window_flat_top_complex",
    "window_blackman_nuttall",
    "window_blackman_nuttall_complex",
    "window_cosine_sum",
    "window_cosine_sum_complex",
    "window_cosine_taper",
    "window_cosine_taper_complex",
    "window_cosine_taper20",
    "window_triangle",
    "window_triangle_complex",
    "window_bartlett_hanning",
    "window_bartlett_hanning_complex",
    "window_bohman",
    "window_bohman_complex",
    "window_parzen",
    "window_parzen_complex",
    "window_welch",
    "window_welch_complex",
    "window_kaiser",
    "window_kaiser_complex",
    "window_gaussian",
    "window_gaussian_complex",
    "window_chebyshev",
    "window_chebyshev_complex",
    "window_exponential",
    "window_exponential_complex",
    "window_force",
    "window_force_complex",
    "window_apply_symmetric",
    "window_apply_symmetric_complex",
    "window_apply_scaled",
    "window_apply_scaled_complex",
    "window_apply_scaled_plain",
    "window_properties",
    "window_properties_fixed",
    "window_properties_measure",
    "WindowApplyScaledResult",
    "WindowApplyScaledComplexResult",
    "WindowApplyScaledPlainResult",
]
_max, _min = max, min

_ZemFunc89 = rt.bind("ZemFunc89", "status", "pl")


def window_hanning(x, *, out=None):
    r"""Multiplies data by the Hanning window, w[i] = 0.5 - 0.5 cos(2 pi i / n). n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_hanning_complex`. The function ZemFunc89 (WinHanning) of the C library.

    Example
    -------
    >>> x = qv.window_hanning(x)
    """
    if rt.is_complex(x):
        return window_hanning_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc89(rt.pointer(x_), n)
    rt.check(status, "window_hanning")
    return rt.deliver(x_, out)


_ZemFunc430 = rt.bind("ZemFunc430", "status", "pl")


def window_hanning_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_hanning`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc430 (WinHanningComplex) of the C library.

    Example
    -------
    >>> x = qv.window_hanning_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc430(rt.pointer(x_), n)
    rt.check(status, "window_hanning_complex")
    return rt.deliver(x_, out)


_ZemFunc88 = rt.bind("ZemFunc88", "status", "pl")


def window_hamming(x, *, out=None):
    r"""Multiplies data by the Hamming window, w[i] = 0.54 - 0.46 cos(2 pi i / n). n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_hamming_complex`. The function ZemFunc88 (WinHamming) of the C library.

    Example
    -------
    >>> x = qv.window_hamming(x)
    """
    if rt.is_complex(x):
        return window_hamming_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc88(rt.pointer(x_), n)
    rt.check(status, "window_hamming")
    return rt.deliver(x_, out)


_ZemFunc431 = rt.bind("ZemFunc431", "status", "pl")


def window_hamming_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_hamming`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc431 (WinHammingComplex) of the C library.

    Example
    -------
    >>> x = qv.window_hamming_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc431(rt.pointer(x_), n)
    rt.check(status, "window_hamming_complex")
    return rt.deliver(x_, out)


_ZemFunc15 = rt.bind("ZemFunc15", "status", "pl")


def window_blackman_harris3(x, *, out=None):
    r"""Multiplies data by the three-term Blackman-Harris window, the cosine sum of 0.42323, 0.49755, 0.07922. n = 1
    leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_blackman_harris3_complex`. The function ZemFunc15 (WinBlackmanHarris3) of the C
    library.

    Example
    -------
    >>> x = qv.window_blackman_harris3(x)
    """
    if rt.is_complex(x):
        return window_blackman_harris3_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc15(rt.pointer(x_), n)
    rt.check(status, "window_blackman_harris3")
    return rt.deliver(x_, out)


_ZemFunc433 = rt.bind("ZemFunc433", "status", "pl")


def window_blackman_harris3_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_blackman_harris3`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc433 (WinBlackmanHarris3Complex) of the C library.

    Example
    -------
    >>> x = qv.window_blackman_harris3_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc433(rt.pointer(x_), n)
    rt.check(status, "window_blackman_harris3_complex")
    return rt.deliver(x_, out)


_ZemFunc72 = rt.bind("ZemFunc72", "status", "pl")


def window_exact_blackman(x, *, out=None):
    r"""Multiplies data by the exact Blackman window, the cosine sum of 7938/18608, 9240/18608, 1430/18608. n = 1
    leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_exact_blackman_complex`. The function ZemFunc72 (WinExactBlackman) of the C
    library.

    Example
    -------
    >>> x = qv.window_exact_blackman(x)
    """
    if rt.is_complex(x):
        return window_exact_blackman_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc72(rt.pointer(x_), n)
    rt.check(status, "window_exact_blackman")
    return rt.deliver(x_, out)


_ZemFunc435 = rt.bind("ZemFunc435", "status", "pl")


def window_exact_blackman_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_exact_blackman`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc435 (WinExactBlackmanComplex) of the C library.

    Example
    -------
    >>> x = qv.window_exact_blackman_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc435(rt.pointer(x_), n)
    rt.check(status, "window_exact_blackman_complex")
    return rt.deliver(x_, out)


_ZemFunc14 = rt.bind("ZemFunc14", "status", "pl")


def window_blackman(x, *, out=None):
    r"""Multiplies data by the Blackman window, the cosine sum of 0.42, 0.5, 0.08. n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_blackman_complex`. The function ZemFunc14 (WinBlackman) of the C library.

    Example
    -------
    >>> x = qv.window_blackman(x)
    """
    if rt.is_complex(x):
        return window_blackman_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc14(rt.pointer(x_), n)
    rt.check(status, "window_blackman")
    return rt.deliver(x_, out)


_ZemFunc432 = rt.bind("ZemFunc432", "status", "pl")


def window_blackman_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_blackman`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc432 (WinBlackmanComplex) of the C library.

    Example
    -------
    >>> x = qv.window_blackman_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc432(rt.pointer(x_), n)
    rt.check(status, "window_blackman_complex")
    return rt.deliver(x_, out)


_ZemFunc80 = rt.bind("ZemFunc80", "status", "pl")


def window_flat_top(x, *, out=None):
    r"""Multiplies data by the flat top window, the cosine sum of 0.215578948, 0.41663158, 0.277263158, 0.083578947,
    0.006947368. n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_flat_top_complex`. The function ZemFunc80 (WinFlatTop) of the C library.

    Example
    -------
    >>> x = qv.window_flat_top(x)
    """
    if rt.is_complex(x):
        return window_flat_top_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc80(rt.pointer(x_), n)
    rt.check(status, "window_flat_top")
    return rt.deliver(x_, out)


_ZemFunc436 = rt.bind("ZemFunc436", "status", "pl")


def window_flat_top_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_flat_top`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc436 (WinFlatTopComplex) of the C library.

    Example
    -------
    >>> x = qv.window_flat_top_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc436(rt.pointer(x_), n)
    rt.check(status, "window_flat_top_complex")
    return rt.deliver(x_, out)


_ZemFunc336 = rt.bind("ZemFunc336", "status", "pl")


def window_blackman_nuttall(x, *, out=None):
    r"""Multiplies data by the Blackman-Nuttall window, the cosine sum of 0.3635819, 0.4891775, 0.1365995, 0.0106411.
    n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_blackman_nuttall_complex`. The function ZemFunc336 (WinBlackmanNuttall) of the C
    library.

    Example
    -------
    >>> x = qv.window_blackman_nuttall(x)
    """
    if rt.is_complex(x):
        return window_blackman_nuttall_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc336(rt.pointer(x_), n)
    rt.check(status, "window_blackman_nuttall")
    return rt.deliver(x_, out)


_ZemFunc434 = rt.bind("ZemFunc434", "status", "pl")


def window_blackman_nuttall_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_blackman_nuttall`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc434 (WinBlackmanNuttallComplex) of the C library.

    Example
    -------
    >>> x = qv.window_blackman_nuttall_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc434(rt.pointer(x_), n)
    rt.check(status, "window_blackman_nuttall_complex")
    return rt.deliver(x_, out)


_ZemFunc85 = rt.bind("ZemFunc85", "status", "plpu")


def window_cosine_sum(x, a, *, out=None):
    r"""Multiplies data by w[i] = sum over k of (-1)^k a[k] cos(2 pi k i / n). n = 1, and a single coefficient of
    exactly 1, leave the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    a : array_like of float64, shape (count,)
        coefficients, all positive for the usual windows
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1, or count is 0 and n above 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_cosine_sum_complex`. The function ZemFunc85 (WinCosineSum) of the C library.

    Example
    -------
    >>> x = qv.window_cosine_sum(x, a)
    """
    if rt.is_complex(x, a):
        return window_cosine_sum_complex(x=x, a=a, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    a = rt.array(a, rt.F8, 1, "a")
    n = x.shape[0]
    count = a.shape[0]
    x_ = rt.worked(x, out, (a,))
    status = _ZemFunc85(rt.pointer(x_), n, rt.pointer(a), rt.u32(count, "count"))
    rt.check(status, "window_cosine_sum")
    return rt.deliver(x_, out)


_ZemFunc437 = rt.bind("ZemFunc437", "status", "plpu")


def window_cosine_sum_complex(x, a, *, out=None):
    r"""Multiplies complex data by the window of `window_cosine_sum`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    a : array_like of float64, shape (count,)
        coefficients, all positive for the usual windows
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1, or count is 0 and n above 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc437 (WinCosineSumComplex) of the C library.

    Example
    -------
    >>> x = qv.window_cosine_sum_complex(x, a)
    """
    x = rt.array(x, rt.C16, 1, "x")
    a = rt.array(a, rt.F8, 1, "a")
    n = x.shape[0]
    count = a.shape[0]
    x_ = rt.worked(x, out, (a,))
    status = _ZemFunc437(rt.pointer(x_), n, rt.pointer(a), rt.u32(count, "count"))
    rt.check(status, "window_cosine_sum_complex")
    return rt.deliver(x_, out)


_ZemFunc278 = rt.bind("ZemFunc278", "status", "pld")


def window_cosine_taper(x, ratio, *, out=None):
    r"""Fades the share ratio of the samples, half at each end, by sin^2(pi i / (2 m)), m = ratio n / 2 cut to an
    integer.

    Symmetric: sample i and sample n - 1 - i have one factor; the two outermost become 0. n = 1 leaves the data
    unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    ratio : float
        share of the samples; from 1 on the Hanning window, up to 0 nothing
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory, with a ratio of 1 or more

    Notes
    -----
    Complex arrays go to `window_cosine_taper_complex`. The function ZemFunc278 (WinCosineTaper) of the C library.

    Example
    -------
    >>> x = qv.window_cosine_taper(x, ratio)
    """
    if rt.is_complex(x):
        return window_cosine_taper_complex(x=x, ratio=ratio, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    ratio = rt.real(ratio, "ratio")
    x_ = rt.worked(x, out)
    status = _ZemFunc278(rt.pointer(x_), n, ratio)
    rt.check(status, "window_cosine_taper")
    return rt.deliver(x_, out)


_ZemFunc438 = rt.bind("ZemFunc438", "status", "pld")


def window_cosine_taper_complex(x, ratio, *, out=None):
    r"""Multiplies complex data by the window of `window_cosine_taper`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    ratio : float
        share of the samples; from 1 on the Hanning window, up to 0 nothing
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory, with a ratio of 1 or more

    Notes
    -----
    The function ZemFunc438 (WinCosineTaperComplex) of the C library.

    Example
    -------
    >>> x = qv.window_cosine_taper_complex(x, ratio)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    ratio = rt.real(ratio, "ratio")
    x_ = rt.worked(x, out)
    status = _ZemFunc438(rt.pointer(x_), n, ratio)
    rt.check(status, "window_cosine_taper_complex")
    return rt.deliver(x_, out)


_ZemFunc35 = rt.bind("ZemFunc35", "status", "pl")


def window_cosine_taper20(x, *, out=None):
    r"""Fades a tenth of the samples at each end: `window_cosine_taper` with the ratio 0.2.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc35 (WinCosineTaper20) of the C library.

    Example
    -------
    >>> x = qv.window_cosine_taper20(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc35(rt.pointer(x_), n)
    rt.check(status, "window_cosine_taper20")
    return rt.deliver(x_, out)


_ZemFunc180 = rt.bind("ZemFunc180", "status", "pl")


def window_triangle(x, *, out=None):
    r"""Multiplies data by the triangle window, w[k] = w[n - k] = 2 k / n. n = 1 makes the sample 0.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `window_triangle_complex`. The function ZemFunc180 (WinTriangle) of the C library.

    Example
    -------
    >>> x = qv.window_triangle(x)
    """
    if rt.is_complex(x):
        return window_triangle_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc180(rt.pointer(x_), n)
    rt.check(status, "window_triangle")
    return rt.deliver(x_, out)


_ZemFunc439 = rt.bind("ZemFunc439", "status", "pl")


def window_triangle_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_triangle`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc439 (WinTriangleComplex) of the C library.

    Example
    -------
    >>> x = qv.window_triangle_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc439(rt.pointer(x_), n)
    rt.check(status, "window_triangle_complex")
    return rt.deliver(x_, out)


_ZemFunc343 = rt.bind("ZemFunc343", "status", "pl")


def window_bartlett_hanning(x, *, out=None):
    r"""Multiplies data by the Bartlett-Hanning window, w[k] = 0.62 - 0.48 |k/n - 0.5| - 0.38 cos(2 pi k / n), w[0] =
    0. n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_bartlett_hanning_complex`. The function ZemFunc343 (WinBartlettHanning) of the C
    library.

    Example
    -------
    >>> x = qv.window_bartlett_hanning(x)
    """
    if rt.is_complex(x):
        return window_bartlett_hanning_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc343(rt.pointer(x_), n)
    rt.check(status, "window_bartlett_hanning")
    return rt.deliver(x_, out)


_ZemFunc446 = rt.bind("ZemFunc446", "status", "pl")


def window_bartlett_hanning_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_bartlett_hanning`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc446 (WinBartlettHanningComplex) of the C library.

    Example
    -------
    >>> x = qv.window_bartlett_hanning_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc446(rt.pointer(x_), n)
    rt.check(status, "window_bartlett_hanning_complex")
    return rt.deliver(x_, out)


_ZemFunc344 = rt.bind("ZemFunc344", "status", "pl")


def window_bohman(x, *, out=None):
    r"""Multiplies data by the Bohman window, w[k] = w[n - k] = sin(2 pi k / n) / pi - (2 k / n) cos(2 pi k / n). n =
    1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_bohman_complex`. The function ZemFunc344 (WinBohman) of the C library.

    Example
    -------
    >>> x = qv.window_bohman(x)
    """
    if rt.is_complex(x):
        return window_bohman_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc344(rt.pointer(x_), n)
    rt.check(status, "window_bohman")
    return rt.deliver(x_, out)


_ZemFunc447 = rt.bind("ZemFunc447", "status", "pl")


def window_bohman_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_bohman`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc447 (WinBohmanComplex) of the C library.

    Example
    -------
    >>> x = qv.window_bohman_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc447(rt.pointer(x_), n)
    rt.check(status, "window_bohman_complex")
    return rt.deliver(x_, out)


_ZemFunc345 = rt.bind("ZemFunc345", "status", "pl")


def window_parzen(x, *, out=None):
    r"""Multiplies data by the Parzen window; with d = |2 k / n - 1|, w[k] = 2 (1 - d)^3 where d > 0.5, else 1 - 6 d^2
    + 6 d^3. n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_parzen_complex`. The function ZemFunc345 (WinParzen) of the C library.

    Example
    -------
    >>> x = qv.window_parzen(x)
    """
    if rt.is_complex(x):
        return window_parzen_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc345(rt.pointer(x_), n)
    rt.check(status, "window_parzen")
    return rt.deliver(x_, out)


_ZemFunc448 = rt.bind("ZemFunc448", "status", "pl")


def window_parzen_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_parzen`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc448 (WinParzenComplex) of the C library.

    Example
    -------
    >>> x = qv.window_parzen_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc448(rt.pointer(x_), n)
    rt.check(status, "window_parzen_complex")
    return rt.deliver(x_, out)


_ZemFunc346 = rt.bind("ZemFunc346", "status", "pl")


def window_welch(x, *, out=None):
    r"""Multiplies data by the Welch window, w[k] = 1 - (2 k / n - 1)^2. n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_welch_complex`. The function ZemFunc346 (WinWelch) of the C library.

    Example
    -------
    >>> x = qv.window_welch(x)
    """
    if rt.is_complex(x):
        return window_welch_complex(x=x, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc346(rt.pointer(x_), n)
    rt.check(status, "window_welch")
    return rt.deliver(x_, out)


_ZemFunc449 = rt.bind("ZemFunc449", "status", "pl")


def window_welch_complex(x, *, out=None):
    r"""Multiplies complex data by the window of `window_welch`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc449 (WinWelchComplex) of the C library.

    Example
    -------
    >>> x = qv.window_welch_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc449(rt.pointer(x_), n)
    rt.check(status, "window_welch_complex")
    return rt.deliver(x_, out)


_ZemFunc113 = rt.bind("ZemFunc113", "status", "pld")


def window_kaiser(x, beta, *, out=None):
    r"""Multiplies data by the Kaiser window, w[k] = I0(beta sqrt(1 - (1 - 2 k / n)^2)) / I0(beta).

    I0 is its power series up to the first term of at most 1e-8, at most 25 terms. n = 1 multiplies by 1 /
    I0(beta).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    beta : float
        shape, not checked; about pi times half the main lobe in bins
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `window_kaiser_complex`. The function ZemFunc113 (WinKaiser) of the C library.

    Example
    -------
    >>> x = qv.window_kaiser(x, beta)
    """
    if rt.is_complex(x):
        return window_kaiser_complex(x=x, beta=beta, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    beta = rt.real(beta, "beta")
    x_ = rt.worked(x, out)
    status = _ZemFunc113(rt.pointer(x_), n, beta)
    rt.check(status, "window_kaiser")
    return rt.deliver(x_, out)


_ZemFunc440 = rt.bind("ZemFunc440", "status", "pld")


def window_kaiser_complex(x, beta, *, out=None):
    r"""Multiplies complex data by the window of `window_kaiser`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    beta : float
        shape, not checked; about pi times half the main lobe in bins
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc440 (WinKaiserComplex) of the C library.

    Example
    -------
    >>> x = qv.window_kaiser_complex(x, beta)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    beta = rt.real(beta, "beta")
    x_ = rt.worked(x, out)
    status = _ZemFunc440(rt.pointer(x_), n, beta)
    rt.check(status, "window_kaiser_complex")
    return rt.deliver(x_, out)


_ZemFunc280 = rt.bind("ZemFunc280", "status", "pld")


def window_gaussian(x, sigma, *, out=None):
    r"""Multiplies data by the Gaussian window, w[k] = exp(-(k - n/2)^2 / (2 (sigma (n + 1))^2)). n = 1 leaves the
    data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    sigma : float
        standard deviation as a share of the length; not positive means 0.2
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `window_gaussian_complex`. The function ZemFunc280 (WinGaussian) of the C library.

    Example
    -------
    >>> x = qv.window_gaussian(x, sigma)
    """
    if rt.is_complex(x):
        return window_gaussian_complex(x=x, sigma=sigma, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    sigma = rt.real(sigma, "sigma")
    x_ = rt.worked(x, out)
    status = _ZemFunc280(rt.pointer(x_), n, sigma)
    rt.check(status, "window_gaussian")
    return rt.deliver(x_, out)


_ZemFunc441 = rt.bind("ZemFunc441", "status", "pld")


def window_gaussian_complex(x, sigma, *, out=None):
    r"""Multiplies complex data by the window of `window_gaussian`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    sigma : float
        standard deviation as a share of the length; not positive means 0.2
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc441 (WinGaussianComplex) of the C library.

    Example
    -------
    >>> x = qv.window_gaussian_complex(x, sigma)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    sigma = rt.real(sigma, "sigma")
    x_ = rt.worked(x, out)
    status = _ZemFunc441(rt.pointer(x_), n, sigma)
    rt.check(status, "window_gaussian_complex")
    return rt.deliver(x_, out)


_ZemFunc279 = rt.bind("ZemFunc279", "status", "pld")


def window_chebyshev(x, attenuation, *, out=None):
    r"""Multiplies data by the Dolph-Chebyshev window: the narrowest main lobe over sidelobes of one height.

    Built by a transform of n + 1 samples, of which the last is left off. n = 1 leaves the data unchanged.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    attenuation : float
        dB, of the sidelobes below the main lobe; negative means 0
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: n is 2^31 - 1, where the n + 1 samples of the window exceed 32 bits
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_chebyshev_complex`. The function ZemFunc279 (WinChebyshev) of the C library.

    Example
    -------
    >>> x = qv.window_chebyshev(x, attenuation)
    """
    if rt.is_complex(x):
        return window_chebyshev_complex(x=x, attenuation=attenuation, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    attenuation = rt.real(attenuation, "attenuation")
    x_ = rt.worked(x, out)
    status = _ZemFunc279(rt.pointer(x_), n, attenuation)
    rt.check(status, "window_chebyshev")
    return rt.deliver(x_, out)


_ZemFunc442 = rt.bind("ZemFunc442", "status", "pld")


def window_chebyshev_complex(x, attenuation, *, out=None):
    r"""Multiplies complex data by the window of `window_chebyshev`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    attenuation : float
        dB, of the sidelobes below the main lobe; negative means 0
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: n is 2^31 - 1, where the n + 1 samples of the window exceed 32 bits
        -20001: out of memory

    Notes
    -----
    The function ZemFunc442 (WinChebyshevComplex) of the C library.

    Example
    -------
    >>> x = qv.window_chebyshev_complex(x, attenuation)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    attenuation = rt.real(attenuation, "attenuation")
    x_ = rt.worked(x, out)
    status = _ZemFunc442(rt.pointer(x_), n, attenuation)
    rt.check(status, "window_chebyshev_complex")
    return rt.deliver(x_, out)


_ZemFunc74 = rt.bind("ZemFunc74", "status", "pld")


def window_exponential(x, final, *, out=None):
    r"""Multiplies data by a factor that falls from 1 to final by equal ratios, exp(i ln(final) / (n - 1)).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    final : float
        factor of the last sample
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20006: n is below 2
        -20027: final is not positive

    Notes
    -----
    Complex arrays go to `window_exponential_complex`. The function ZemFunc74 (WinExponential) of the C library.

    Example
    -------
    >>> x = qv.window_exponential(x, final)
    """
    if rt.is_complex(x):
        return window_exponential_complex(x=x, final=final, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    final = rt.real(final, "final")
    x_ = rt.worked(x, out)
    status = _ZemFunc74(rt.pointer(x_), n, final)
    rt.check(status, "window_exponential")
    return rt.deliver(x_, out)


_ZemFunc444 = rt.bind("ZemFunc444", "status", "pld")


def window_exponential_complex(x, final, *, out=None):
    r"""Multiplies complex data by the window of `window_exponential`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    final : float
        factor of the last sample
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20006: n is below 2
        -20027: final is not positive

    Notes
    -----
    The function ZemFunc444 (WinExponentialComplex) of the C library.

    Example
    -------
    >>> x = qv.window_exponential_complex(x, final)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    final = rt.real(final, "final")
    x_ = rt.worked(x, out)
    status = _ZemFunc444(rt.pointer(x_), n, final)
    rt.check(status, "window_exponential_complex")
    return rt.deliver(x_, out)


_ZemFunc81 = rt.bind("ZemFunc81", "status", "pld")


def window_force(x, duty, *, out=None):
    r"""Keeps the first duty percent of the samples, duty n / 100 cut to an integer, and clears the others.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    duty : float
        percent; below 0 clears all, above 100 nothing
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20006: n is below 2

    Notes
    -----
    Complex arrays go to `window_force_complex`. The function ZemFunc81 (WinForce) of the C library.

    Example
    -------
    >>> x = qv.window_force(x, duty)
    """
    if rt.is_complex(x):
        return window_force_complex(x=x, duty=duty, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    duty = rt.real(duty, "duty")
    x_ = rt.worked(x, out)
    status = _ZemFunc81(rt.pointer(x_), n, duty)
    rt.check(status, "window_force")
    return rt.deliver(x_, out)


_ZemFunc443 = rt.bind("ZemFunc443", "status", "pld")


def window_force_complex(x, duty, *, out=None):
    r"""Multiplies complex data by the window of `window_force`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    duty : float
        percent; below 0 clears all, above 100 nothing
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20006: n is below 2

    Notes
    -----
    The function ZemFunc443 (WinForceComplex) of the C library.

    Example
    -------
    >>> x = qv.window_force_complex(x, duty)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    duty = rt.real(duty, "duty")
    x_ = rt.worked(x, out)
    status = _ZemFunc443(rt.pointer(x_), n, duty)
    rt.check(status, "window_force_complex")
    return rt.deliver(x_, out)


_ZemFunc281 = rt.bind("ZemFunc281", "status", "plid")


def window_apply_symmetric(x, window, parameter=0.0, *, out=None):
    r"""Multiplies data by the symmetric form of a window, whose last sample equals its first.

    A negative parameter means 60 dB for Chebyshev and 0.2 for Gaussian. n = 1 leaves the data unchanged, whatever
    the code.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the window code is unknown and n above 1
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_apply_symmetric_complex`. The function ZemFunc281 (WinApplySymmetric) of the C
    library.

    Example
    -------
    >>> x = qv.window_apply_symmetric(x, window)
    """
    if rt.is_complex(x):
        return window_apply_symmetric_complex(x=x, window=window, parameter=parameter, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    x_ = rt.worked(x, out)
    status = _ZemFunc281(rt.pointer(x_), n, window, parameter)
    rt.check(status, "window_apply_symmetric")
    return rt.deliver(x_, out)


_ZemFunc429 = rt.bind("ZemFunc429", "status", "plid")


def window_apply_symmetric_complex(x, window, parameter=0.0, *, out=None):
    r"""Multiplies complex data by the window of `window_apply_symmetric`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the window code is unknown and n above 1
        -20001: out of memory

    Notes
    -----
    The function ZemFunc429 (WinApplySymmetricComplex) of the C library.

    Example
    -------
    >>> x = qv.window_apply_symmetric_complex(x, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    x_ = rt.worked(x, out)
    status = _ZemFunc429(rt.pointer(x_), n, window, parameter)
    rt.check(status, "window_apply_symmetric_complex")
    return rt.deliver(x_, out)


_ZemFunc337 = rt.bind("ZemFunc337", "status", "plidp")


class WindowApplyScaledResult(NamedTuple):
    """What `window_apply_scaled` gives."""

    x: np.ndarray
    properties: rt.WindowProperties


def window_apply_scaled(x, window, parameter=0.0, *, out=None):
    r"""Multiplies data by a window divided by its coherent gain, so that a sine keeps its amplitude in the spectrum.

    The properties of the rectangle and the cosine sums are printed ones, the others are measured on the window. A
    negative parameter means 60 dB for Chebyshev and 0.2 for Gaussian. A window that is 0 everywhere, as the
    triangle of one sample is, has NaN properties and makes the data NaN; that is no error. After -20046 the
    properties are untouched.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result
    properties : WindowProperties
        of the window, not of the data; both NaN after an error

    Raises
    ------
    QuorvanError
        -20004: n is negative
        -20061: the window code is unknown
        -20003: n is 0 and the window is neither the rectangle nor a cosine sum
        -20001: out of memory

    Notes
    -----
    Complex arrays go to `window_apply_scaled_complex`. The function ZemFunc337 (WinApplyScaled) of the C library.

    Example
    -------
    >>> x, properties = qv.window_apply_scaled(x, window)
    """
    if rt.is_complex(x):
        return window_apply_scaled_complex(x=x, window=window, parameter=parameter, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    x_ = rt.worked(x, out)
    properties_ = rt.Properties()
    status = _ZemFunc337(rt.pointer(x_), n, window, parameter, ctypes.byref(properties_))
    rt.check(status, "window_apply_scaled")
    return WindowApplyScaledResult(rt.deliver(x_, out), rt.WindowProperties(properties_.enbw,
            properties_.coherent_gain))


_ZemFunc428 = rt.bind("ZemFunc428", "status", "plidp")


class WindowApplyScaledComplexResult(NamedTuple):
    """What `window_apply_scaled_complex` gives."""

    x: np.ndarray
    properties: rt.WindowProperties


def window_apply_scaled_complex(x, window, parameter=0.0, *, out=None):
    r"""Multiplies complex data by the window of `window_apply_scaled`: one factor for both parts.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        data
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the result
    properties : WindowProperties
        of the window, not of the data; both NaN after an error

    Raises
    ------
    QuorvanError
        -20004: n is negative
        -20061: the window code is unknown
        -20003: n is 0 and the window is neither the rectangle nor a cosine sum
        -20001: out of memory

    Notes
    -----
    The function ZemFunc428 (WinApplyScaledComplex) of the C library.

    Example
    -------
    >>> x, properties = qv.window_apply_scaled_complex(x, window)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    x_ = rt.worked(x, out)
    properties_ = rt.Properties()
    status = _ZemFunc428(rt.pointer(x_), n, window, parameter, ctypes.byref(properties_))
    rt.check(status, "window_apply_scaled_complex")
    return WindowApplyScaledComplexResult(rt.deliver(x_, out), rt.WindowProperties(properties_.enbw,
            properties_.coherent_gain))


_ZemFunc152 = rt.bind("ZemFunc152", "status", "plip")


class WindowApplyScaledPlainResult(NamedTuple):
    """What `window_apply_scaled_plain` gives."""

    x: np.ndarray
    properties: rt.WindowProperties


def window_apply_scaled_plain(x, window, *, out=None):
    r"""Multiplies data by a window divided by its coherent gain: `window_apply_scaled` with the parameter 0.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        data
    window : Window, its name, or int
        a `Window`
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the result
    properties : WindowProperties
        of the window, not of the data; both NaN after an error

    Raises
    ------
    QuorvanError
        -20004: n is negative
        -20061: the window code is unknown
        -20003: n is 0 and the window is neither the rectangle nor a cosine sum
        -20001: out of memory

    Notes
    -----
    The function ZemFunc152 (WinApplyScaledPlain) of the C library.

    Example
    -------
    >>> x, properties = qv.window_apply_scaled_plain(x, window)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    window = rt.choice(window, Window, "window")
    x_ = rt.worked(x, out)
    properties_ = rt.Properties()
    status = _ZemFunc152(rt.pointer(x_), n, window, ctypes.byref(properties_))
    rt.check(status, "window_apply_scaled_plain")
    return WindowApplyScaledPlainResult(rt.deliver(x_, out), rt.WindowProperties(properties_.enbw,
            properties_.coherent_gain))


_ZemFunc445 = rt.bind("ZemFunc445", "status", "lidp")


def window_properties(n, window, parameter=0.0):
    r"""The properties of a window of n samples in its periodic form, as `window_apply_scaled` tells them.

    Those of the rectangle and the cosine sums are printed ones and do not depend on n, the others are measured. A
    negative parameter means 60 dB for Chebyshev and 0.2 for Gaussian.

    Parameters
    ----------
    n : int
        samples
    window : Window, its name, or int
        a `Window`
    parameter : float, default 0.0
        beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used

    Returns
    -------
    properties : WindowProperties
        both NaN after an error

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the window code is unknown
        -20001: out of memory

    Notes
    -----
    The function ZemFunc445 (WinPropertiesOf) of the C library.

    Example
    -------
    >>> properties = qv.window_properties(n, window)
    """
    n = rt.i64(n, "n")
    window = rt.choice(window, Window, "window")
    parameter = rt.real(parameter, "parameter")
    properties_ = rt.Properties()
    status = _ZemFunc445(n, window, parameter, ctypes.byref(properties_))
    rt.check(status, "window_properties")
    return rt.WindowProperties(properties_.enbw, properties_.coherent_gain)


_ZemFunc282 = rt.bind("ZemFunc282", "status", "up")


def window_properties_fixed(window):
    r"""The printed properties of a window: the rectangle, the cosine sums, Bartlett-Hanning, Bohman, Parzen, Welch.

    Parameters
    ----------
    window : Window, its name, or int
        a `Window`

    Returns
    -------
    properties : WindowProperties
        untouched after an error

    Raises
    ------
    QuorvanError
        -20061: the window has no printed properties

    Notes
    -----
    The function ZemFunc282 (WinPropertiesFixed) of the C library.

    Example
    -------
    >>> properties = qv.window_properties_fixed(window)
    """
    window = rt.choice(window, Window, "window")
    properties_ = rt.Properties()
    status = _ZemFunc282(window, ctypes.byref(properties_))
    rt.check(status, "window_properties_fixed")
    return rt.WindowProperties(properties_.enbw, properties_.coherent_gain)


_ZemFunc283 = rt.bind("ZemFunc283", "status", "pup")


def window_properties_measure(w):
    r"""Measures a window: coherent_gain is its mean, enbw is n times the sum of squares over the squared sum, in
    bins.

    Parameters
    ----------
    w : array_like of float64, shape (n,)
        a window

    Returns
    -------
    properties : WindowProperties
        both NaN after an error

    Raises
    ------
    QuorvanError
        -20003: n is 0

    Notes
    -----
    The function ZemFunc283 (WinPropertiesMeasure) of the C library.

    Example
    -------
    >>> properties = qv.window_properties_measure(w)
    """
    w = rt.array(w, rt.F8, 1, "w")
    n = w.shape[0]
    properties_ = rt.Properties()
    status = _ZemFunc283(rt.pointer(w), rt.u32(n, "n"), ctypes.byref(properties_))
    rt.check(status, "window_properties_measure")
    return rt.WindowProperties(properties_.enbw, properties_.coherent_gain)
