r"""Transforms.

Fourier, cosine, sine, Hartley, Hilbert and chirp-Z transforms of any length, without a power-of-two rule.

    Fourier    X[k] = sum over j of x[j] exp(-2 pi i j k / N)
    inverse    x[j] = (1/N) sum over k of X[k] exp(2 pi i j k / N)
    cosine     X[k] = c(k) sqrt(2/N) sum over j of x[j] cos(pi k (2j + 1) / (2N)),    c(0) = 1 / sqrt(2), else 1
    sine       X[k - 1] = sum over j of x[j] sin(pi k (j + 1) / (N + 1)),  k = 1 to N,    inverse with 2 / (N + 1)
    Hartley    X[k] = sum over j of x[j] (cos + sin)(2 pi j k / N),   inverse with 1/N
    Hilbert    positive frequencies times -i, negative times i: cos becomes sin
    chirp-Z    X[k] = sum over j of x[j] a^-j w^(j k)

Forward Fourier transforms are unscaled; inverses carry 1/N. The frequency of bin k is k / (N dt), above N / 2
read as (k - N) / (N dt). In shifted order of N bins X[0] stands at index N / 2 (integer division), X[k] at N
/ 2 + k, X[-k] at N / 2 - k; of an even N, index 0 holds X[N / 2]. 2-D arrays are row-major.

Outputs must not overlap inputs, except where a function says so.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "real_fft",
    "complex_fft",
    "real_ifft",
    "complex_ifft",
    "real_fft_2d",
    "complex_fft_2d",
    "real_ifft_2d",
    "complex_ifft_2d",
    "split_fft",
    "dct",
    "idct",
    "dst",
    "idst",
    "dct_2d",
    "idct_2d",
    "dst_2d",
    "idst_2d",
    "hartley",
    "inverse_hartley",
    "hilbert",
    "inverse_hilbert",
    "chirp_z_real",
    "chirp_z_complex",
    "inverse_chirp_z",
    "auto_power_complex",
    "cross_power_complex",
]
_max, _min = max, min

_ZemFunc262 = rt.bind("ZemFunc262", "status", "pllpip")


def real_fft(x, fft_size=0, plan=None, shift=False, *, out=None):
    r"""The full spectrum of real data, X[k] = sum over j of x[j] exp(-2 pi i j k / L).

    The output is the only workspace.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    fft_size : int, default 0
        the length of the transform; below 1: n. The input is padded with zeros, or cut
    plan : FftPlan, default None
        a plan of the transform's length, or None to have one made for the call
    shift : bool, default False
        false: natural order, X[0] first; true: X[0] in the middle, at the length / 2
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (fft_size if fft_size > 0 else n,)
        the spectrum, one record for each bin

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20070: the plan is of another length
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `complex_fft`. The function ZemFunc262 (TransformRealFft) of the C library.

    Example
    -------
    >>> out = qv.real_fft(x)
    """
    if rt.is_complex(x):
        return complex_fft(x=x, fft_size=fft_size, plan=plan, shift=shift, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fft_size = rt.i64(fft_size, "fft_size")
    shift = int(bool(shift))
    out_ = rt.result(out, (fft_size if fft_size > 0 else n,), rt.C16, (x,))
    status = _ZemFunc262(rt.pointer(x), n, fft_size, rt.handle(plan, "FftPlan"), shift, rt.pointer(out_))
    rt.check(status, "real_fft")
    return rt.deliver(out_, out)


_ZemFunc263 = rt.bind("ZemFunc263", "status", "pllpip")


def complex_fft(x, fft_size=0, plan=None, shift=False, *, out=None):
    r"""The spectrum of complex data, X[k] = sum over j of x[j] exp(-2 pi i j k / L).

    If memory for reordering runs out, the spectrum is left in natural order.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    fft_size : int, default 0
        the length of the transform; below 1: n. The input is padded with zeros, or cut
    plan : FftPlan, default None
        a plan of the transform's length, or None to have one made for the call
    shift : bool, default False
        false: natural order, X[0] first; true: X[0] in the middle, at the length / 2
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (fft_size if fft_size > 0 else n,)
        the spectrum, one record for each bin

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20070: the plan is of another length
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc263 (TransformComplexFft) of the C library.

    Example
    -------
    >>> out = qv.complex_fft(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    fft_size = rt.i64(fft_size, "fft_size")
    shift = int(bool(shift))
    out_ = rt.result(out, (fft_size if fft_size > 0 else n,), rt.C16, (x,))
    status = _ZemFunc263(rt.pointer(x), n, fft_size, rt.handle(plan, "FftPlan"), shift, rt.pointer(out_))
    rt.check(status, "complex_fft")
    return rt.deliver(out_, out)


_ZemFunc264 = rt.bind("ZemFunc264", "status", "plpip")


def real_ifft(x, plan=None, shift=False, *, out=None):
    r"""The real data of a spectrum, the inverse of `real_fft`.

    Only the bins from frequency 0 to n / 2 are read; of bin 0, and of bin n / 2 of an even n, only the real part.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the spectrum of real data
    plan : FftPlan, default None
        a plan of the transform's length, or None to have one made for the call
    shift : bool, default False
        false: natural order, x[0] first; true: x[0] in the middle, at the length / 2
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the samples

    Raises
    ------
    QuorvanError
        -20003: n is below 0
        -20070: the plan is of another length
        -20001: memory is exhausted, or n is 0 and no plan is given

    Notes
    -----
    The function ZemFunc264 (TransformRealIfft) of the C library.

    Example
    -------
    >>> out = qv.real_ifft(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    shift = int(bool(shift))
    out_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc264(rt.pointer(x), n, rt.handle(plan, "FftPlan"), shift, rt.pointer(out_))
    rt.check(status, "real_ifft")
    return rt.deliver(out_, out)


_ZemFunc265 = rt.bind("ZemFunc265", "status", "plpip")


def complex_ifft(x, plan=None, shift=False, *, out=None):
    r"""The inverse of `complex_fft`, x[j] = (1/n) sum over k of x[k] exp(2 pi i j k / n).

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the spectrum
    plan : FftPlan, default None
        a plan of the transform's length, or None to have one made for the call
    shift : bool, default False
        false: natural order, x[0] first; true: x[0] in the middle, at the length / 2
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the samples

    Raises
    ------
    QuorvanError
        -20003: n is below 0
        -20070: the plan is of another length
        -20001: memory is exhausted, or n is 0 and no plan is given

    Notes
    -----
    The function ZemFunc265 (TransformComplexIfft) of the C library.

    Example
    -------
    >>> out = qv.complex_ifft(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    shift = int(bool(shift))
    out_ = rt.result(out, (n,), rt.C16, (x,))
    status = _ZemFunc265(rt.pointer(x), n, rt.handle(plan, "FftPlan"), shift, rt.pointer(out_))
    rt.check(status, "complex_ifft")
    return rt.deliver(out_, out)


_ZemFunc266 = rt.bind("ZemFunc266", "status", "pllllip")


def real_fft_2d(x, fft_rows=0, fft_cols=0, shift=False, *, out=None):
    r"""The two-dimensional spectrum of real data; each dimension is padded with zeros or cut to its length.

    The output is the only large workspace.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the samples, row-major
    fft_rows : int, default 0
        rows of the transform; below 1: rows
    fft_cols : int, default 0
        columns of the transform; below 1: cols
    shift : bool, default False
        false: natural order, X[0] first; true: X[0] in the middle of both dimensions
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (fft_rows if fft_rows > 0 else rows, fft_cols if fft_cols > 0 else cols)
        the spectrum, row-major

    Raises
    ------
    QuorvanError
        -20003: rows or cols is below 1
        -20046: the result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `complex_fft_2d`. The function ZemFunc266 (TransformRealFft2D) of the C library.

    Example
    -------
    >>> out = qv.real_fft_2d(x)
    """
    if rt.is_complex(x):
        return complex_fft_2d(x=x, fft_rows=fft_rows, fft_cols=fft_cols, shift=shift, out=out)
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    fft_rows = rt.i64(fft_rows, "fft_rows")
    fft_cols = rt.i64(fft_cols, "fft_cols")
    shift = int(bool(shift))
    out_ = rt.result(out, (fft_rows if fft_rows > 0 else rows, fft_cols if fft_cols > 0 else cols), rt.C16, (x,))
    status = _ZemFunc266(rt.pointer(x), rows, cols, fft_rows, fft_cols, shift, rt.pointer(out_))
    rt.check(status, "real_fft_2d")
    return rt.deliver(out_, out)


_ZemFunc267 = rt.bind("ZemFunc267", "status", "pllllip")


def complex_fft_2d(x, fft_rows=0, fft_cols=0, shift=False, *, out=None):
    r"""The two-dimensional spectrum of complex data; each dimension is padded with zeros or cut to its length.

    The output is the only large workspace.

    Parameters
    ----------
    x : array_like of complex128, shape (rows, cols)
        the samples, row-major
    fft_rows : int, default 0
        rows of the transform; below 1: rows
    fft_cols : int, default 0
        columns of the transform; below 1: cols
    shift : bool, default False
        false: natural order, X[0] first; true: X[0] in the middle of both dimensions
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (fft_rows if fft_rows > 0 else rows, fft_cols if fft_cols > 0 else cols)
        the spectrum, row-major

    Raises
    ------
    QuorvanError
        -20003: rows or cols is below 1
        -20046: the result has more than 2^31 - 1 elements
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc267 (TransformComplexFft2D) of the C library.

    Example
    -------
    >>> out = qv.complex_fft_2d(x)
    """
    x = rt.array(x, rt.C16, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    fft_rows = rt.i64(fft_rows, "fft_rows")
    fft_cols = rt.i64(fft_cols, "fft_cols")
    shift = int(bool(shift))
    out_ = rt.result(out, (fft_rows if fft_rows > 0 else rows, fft_cols if fft_cols > 0 else cols), rt.C16, (x,))
    status = _ZemFunc267(rt.pointer(x), rows, cols, fft_rows, fft_cols, shift, rt.pointer(out_))
    rt.check(status, "complex_fft_2d")
    return rt.deliver(out_, out)


_ZemFunc268 = rt.bind("ZemFunc268", "status", "pllip")


def real_ifft_2d(x, shift=False, *, out=None):
    r"""The real data of a two-dimensional spectrum; only the rows from frequency 0 to rows / 2 are read.

    Parameters
    ----------
    x : array_like of complex128, shape (rows, cols)
        the spectrum, row-major
    shift : bool, default False
        false: natural order, x[0] first; true: x[0] in the middle of both dimensions
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the samples, row-major

    Raises
    ------
    QuorvanError
        -20003: rows or cols is below 1
        -20046: rows * cols exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc268 (TransformRealIfft2D) of the C library.

    Example
    -------
    >>> out = qv.real_ifft_2d(x)
    """
    x = rt.array(x, rt.C16, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    shift = int(bool(shift))
    out_ = rt.result(out, (rows, cols), rt.F8, (x,))
    status = _ZemFunc268(rt.pointer(x), rows, cols, shift, rt.pointer(out_))
    rt.check(status, "real_ifft_2d")
    return rt.deliver(out_, out)


_ZemFunc269 = rt.bind("ZemFunc269", "status", "pllip")


def complex_ifft_2d(x, shift=False, *, out=None):
    r"""The inverse of `complex_fft_2d`.

    Parameters
    ----------
    x : array_like of complex128, shape (rows, cols)
        the spectrum, row-major
    shift : bool, default False
        false: natural order, x[0] first; true: x[0] in the middle of both dimensions
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (rows, cols)
        the samples, row-major

    Raises
    ------
    QuorvanError
        -20003: rows or cols is below 1
        -20046: rows * cols exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc269 (TransformComplexIfft2D) of the C library.

    Example
    -------
    >>> out = qv.complex_ifft_2d(x)
    """
    x = rt.array(x, rt.C16, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    shift = int(bool(shift))
    out_ = rt.result(out, (rows, cols), rt.C16, (x,))
    status = _ZemFunc269(rt.pointer(x), rows, cols, shift, rt.pointer(out_))
    rt.check(status, "complex_ifft_2d")
    return rt.deliver(out_, out)


_ZemFunc77 = rt.bind("ZemFunc77", "status", "ppl")


def split_fft(z, *, out=None):
    r"""The forward transform of split complex data, in place and unscaled.

    Parameters
    ----------
    z : array_like of complex128, shape (n,)
        the complex numbers
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the result

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc77 (TransformSplitFft) of the C library.

    Example
    -------
    >>> out = qv.split_fft(z)
    """
    z = rt.array(z, rt.C16, 1, "z")
    n = z.shape[0]
    rt.fits(z, (n,), "z")
    z_re, z_im = z.real.copy(), z.imag.copy()
    status = _ZemFunc77(rt.pointer(z_re), rt.pointer(z_im), n)
    rt.check(status, "split_fft")
    return rt.joined(z_re, z_im, out)


_ZemFunc270 = rt.bind("ZemFunc270", "status", "pllp")


def dct(x, fft_size=0, *, out=None):
    r"""The orthonormal cosine transform of type II, out[k] = c(k) sqrt(2/L) sum over j of x[j] cos(pi k (2j + 1) /
    (2L)), c(0) = 1/sqrt(2), else 1.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    fft_size : int, default 0
        the length of the transform; below 1: n. The input is padded with zeros, or cut
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (fft_size if fft_size > 0 else n,)
        the transform

    Raises
    ------
    QuorvanError
        -20046: 2 L does not fit 32 bits, with L the length of the transform
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc270 (TransformDct) of the C library.

    Example
    -------
    >>> out = qv.dct(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fft_size = rt.i64(fft_size, "fft_size")
    out_ = rt.result(out, (fft_size if fft_size > 0 else n,), rt.F8, (x,))
    status = _ZemFunc270(rt.pointer(x), n, fft_size, rt.pointer(out_))
    rt.check(status, "dct")
    return rt.deliver(out_, out)


_ZemFunc271 = rt.bind("ZemFunc271", "status", "plp")


def idct(x, *, out=None):
    r"""The exact inverse of `dct` (the orthonormal cosine transform of type III).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the transform
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the samples

    Raises
    ------
    QuorvanError
        -20046: 2 n does not fit 32 bits
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc271 (TransformIdct) of the C library.

    Example
    -------
    >>> out = qv.idct(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc271(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "idct")
    return rt.deliver(out_, out)


_ZemFunc272 = rt.bind("ZemFunc272", "status", "pllp")


def dst(x, fft_size=0, *, out=None):
    r"""The sine transform of type I, unnormalised, out[k-1] = sum over j of x[j] sin(pi k (j + 1) / (L + 1)), k = 1
    to L.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    fft_size : int, default 0
        the length of the transform; below 1: n. The input is padded with zeros, or cut
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (fft_size if fft_size > 0 else n,)
        the transform

    Raises
    ------
    QuorvanError
        -20046: 2 L + 2 does not fit 32 bits, with L the length of the transform
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc272 (TransformDst) of the C library.

    Example
    -------
    >>> out = qv.dst(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    fft_size = rt.i64(fft_size, "fft_size")
    out_ = rt.result(out, (fft_size if fft_size > 0 else n,), rt.F8, (x,))
    status = _ZemFunc272(rt.pointer(x), n, fft_size, rt.pointer(out_))
    rt.check(status, "dst")
    return rt.deliver(out_, out)


_ZemFunc273 = rt.bind("ZemFunc273", "status", "plp")


def idst(x, *, out=None):
    r"""The exact inverse of `dst`, which carries the whole factor 2/(n + 1).

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the transform
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the samples

    Raises
    ------
    QuorvanError
        -20046: 2 n + 2 does not fit 32 bits
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc273 (TransformIdst) of the C library.

    Example
    -------
    >>> out = qv.idst(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc273(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "idst")
    return rt.deliver(out_, out)


_ZemFunc274 = rt.bind("ZemFunc274", "status", "pllp")


def dct_2d(x, *, out=None):
    r"""`dct` of all rows, then columns.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the input, row-major
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20046: 2 rows or 2 cols does not fit 32 bits
        -20003: rows or cols is below 1
        -20046: rows * cols exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc274 (TransformDct2D) of the C library.

    Example
    -------
    >>> out = qv.dct_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    out_ = rt.result(out, (rows, cols), rt.F8, (x,))
    status = _ZemFunc274(rt.pointer(x), rows, cols, rt.pointer(out_))
    rt.check(status, "dct_2d")
    return rt.deliver(out_, out)


_ZemFunc275 = rt.bind("ZemFunc275", "status", "pllp")


def idct_2d(x, *, out=None):
    r"""`idct` of all columns, then rows.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the input, row-major
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20046: 2 rows or 2 cols does not fit 32 bits
        -20003: rows or cols is below 1
        -20046: rows * cols exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc275 (TransformIdct2D) of the C library.

    Example
    -------
    >>> out = qv.idct_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    out_ = rt.result(out, (rows, cols), rt.F8, (x,))
    status = _ZemFunc275(rt.pointer(x), rows, cols, rt.pointer(out_))
    rt.check(status, "idct_2d")
    return rt.deliver(out_, out)


_ZemFunc276 = rt.bind("ZemFunc276", "status", "pllp")


def dst_2d(x, *, out=None):
    r"""`dst` of all rows, then columns.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the input, row-major
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20046: 2 rows + 2 or 2 cols + 2 does not fit 32 bits
        -20003: rows or cols is below 1
        -20046: rows * cols exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc276 (TransformDst2D) of the C library.

    Example
    -------
    >>> out = qv.dst_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    out_ = rt.result(out, (rows, cols), rt.F8, (x,))
    status = _ZemFunc276(rt.pointer(x), rows, cols, rt.pointer(out_))
    rt.check(status, "dst_2d")
    return rt.deliver(out_, out)


_ZemFunc277 = rt.bind("ZemFunc277", "status", "pllp")


def idst_2d(x, *, out=None):
    r"""`idst` of all rows, then columns.

    Parameters
    ----------
    x : array_like of float64, shape (rows, cols)
        the input, row-major
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows, cols)
        the result

    Raises
    ------
    QuorvanError
        -20046: 2 rows + 2 or 2 cols + 2 does not fit 32 bits
        -20003: rows or cols is below 1
        -20046: rows * cols exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc277 (TransformIdst2D) of the C library.

    Example
    -------
    >>> out = qv.idst_2d(x)
    """
    x = rt.array(x, rt.F8, 2, "x")
    rows = x.shape[0]
    cols = x.shape[1]
    out_ = rt.result(out, (rows, cols), rt.F8, (x,))
    status = _ZemFunc277(rt.pointer(x), rows, cols, rt.pointer(out_))
    rt.check(status, "idst_2d")
    return rt.deliver(out_, out)


_ZemFunc78 = rt.bind("ZemFunc78", "status", "pl")


def hartley(x, *, out=None):
    r"""The Hartley transform in place, X[k] = sum over j of x[j] (cos + sin)(2 pi j k / n), unnormalised.

    Applied twice it gives n times the input.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the data
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
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc78 (TransformHartley) of the C library.

    Example
    -------
    >>> x = qv.hartley(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc78(rt.pointer(x_), n)
    rt.check(status, "hartley")
    return rt.deliver(x_, out)


_ZemFunc103 = rt.bind("ZemFunc103", "status", "pl")


def inverse_hartley(x, *, out=None):
    r"""`hartley` times 1/n: its inverse.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the data
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
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc103 (TransformInverseHartley) of the C library.

    Example
    -------
    >>> x = qv.inverse_hartley(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc103(rt.pointer(x_), n)
    rt.check(status, "inverse_hartley")
    return rt.deliver(x_, out)


_ZemFunc75 = rt.bind("ZemFunc75", "status", "pl")


def hilbert(x, *, out=None):
    r"""The Hilbert transform in place: positive frequencies are multiplied by -i, so that a cosine becomes a sine.

    The mean, and of an even n the component at n / 2, vanish; n = 1 gives 0.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the data
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
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc75 (TransformHilbert) of the C library.

    Example
    -------
    >>> x = qv.hilbert(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc75(rt.pointer(x_), n)
    rt.check(status, "hilbert")
    return rt.deliver(x_, out)


_ZemFunc76 = rt.bind("ZemFunc76", "status", "pl")


def inverse_hilbert(x, *, out=None):
    r"""`hilbert` with its sign changed: the inverse for data without the components that vanish.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the data
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
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc76 (TransformInverseHilbert) of the C library.

    Example
    -------
    >>> x = qv.inverse_hilbert(x)
    """
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    x_ = rt.worked(x, out)
    status = _ZemFunc76(rt.pointer(x_), n)
    rt.check(status, "inverse_hilbert")
    return rt.deliver(x_, out)


_ZemFunc341 = rt.bind("ZemFunc341", "status", "plzzulp")


def chirp_z_real(x, a, w, method=Method.TRANSFORM, m=0, *, out=None):
    r"""The z-transform of real data along a spiral, X[j] = sum over k of x[k] a^-k w^(j k).

    The sum itself costs n * m powers; Bluestein's algorithm (1970) is fast, and loses accuracy where |w| is far
    from 1. Checked in the order of the statuses, a before w.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the samples
    a : complex
        where the spiral starts
    w : complex
        the ratio of neighbouring points
    method : Method, its name, or int, default Method.TRANSFORM
        0: the sum itself; 1: Bluestein's algorithm
    m : int, default 0
        how many points of the spiral; below 1: n
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (m if m > 0 else n,)
        the transform

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the method is above 1
        -20068: a or w is not finite
        -20141: |a|^2 or |w|^2 is 0
        -20046: method 1 and 2n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `chirp_z_complex`. The function ZemFunc341 (TransformChirpZReal) of the C library.

    Example
    -------
    >>> out = qv.chirp_z_real(x, a, w)
    """
    if rt.is_complex(x):
        return chirp_z_complex(x=x, a=a, w=w, method=method, m=m, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    method = rt.choice(method, Method, "method")
    m = rt.i64(m, "m")
    out_ = rt.result(out, (m if m > 0 else n,), rt.C16, (x,))
    status = _ZemFunc341(rt.pointer(x), n, rt.complex_value(a, "a"), rt.complex_value(w, "w"), method, m,
            rt.pointer(out_))
    rt.check(status, "chirp_z_real")
    return rt.deliver(out_, out)


_ZemFunc342 = rt.bind("ZemFunc342", "status", "plzzulp")


def chirp_z_complex(x, a, w, method=Method.TRANSFORM, m=0, *, out=None):
    r"""The z-transform of complex data along a spiral, X[j] = sum over k of x[k] a^-k w^(j k).

    The sum itself costs n * m powers; Bluestein's algorithm (1970) is fast, and loses accuracy where |w| is far
    from 1. Checked in the order of the statuses, a before w.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    a : complex
        where the spiral starts
    w : complex
        the ratio of neighbouring points
    method : Method, its name, or int, default Method.TRANSFORM
        0: the sum itself; 1: Bluestein's algorithm
    m : int, default 0
        how many points of the spiral; below 1: n
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (m if m > 0 else n,)
        the transform

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the method is above 1
        -20068: a or w is not finite
        -20141: |a|^2 or |w|^2 is 0
        -20046: method 1 and 2n + m - 1 exceeds 2^31 - 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc342 (TransformChirpZComplex) of the C library.

    Example
    -------
    >>> out = qv.chirp_z_complex(x, a, w)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    method = rt.choice(method, Method, "method")
    m = rt.i64(m, "m")
    out_ = rt.result(out, (m if m > 0 else n,), rt.C16, (x,))
    status = _ZemFunc342(rt.pointer(x), n, rt.complex_value(a, "a"), rt.complex_value(w, "w"), method, m,
            rt.pointer(out_))
    rt.check(status, "chirp_z_complex")
    return rt.deliver(out_, out)


_ZemFunc351 = rt.bind("ZemFunc351", "status", "plzzpl")


def inverse_chirp_z(x, a, w, m=0, *, out=None):
    r"""Recovers x from x[j] = sum over k of x[k] a^-k w^(j k), in closed form.

    With more points than samples, those whose nodes lie nearest to the unit circle are used.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        points of a chirp-Z transform
    a : complex
        where the spiral starts
    w : complex
        the ratio of neighbouring points
    m : int, default 0
        how many samples; below 1: n
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (m if m > 0 else n,)
        the samples

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20068: a or w is not finite
        -20141: |a|^2 or |w|^2 is 0
        -20008: m is above n
        -20046: 2m - 1 exceeds 2^31 - 1
        -20116: two of the nodes w^0 to w^(m-1) coincide; nothing is written
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc351 (TransformInverseChirpZ) of the C library.

    Example
    -------
    >>> out = qv.inverse_chirp_z(x, a, w)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    m = rt.i64(m, "m")
    out_ = rt.result(out, (m if m > 0 else n,), rt.C16, (x,))
    status = _ZemFunc351(rt.pointer(x), n, rt.complex_value(a, "a"), rt.complex_value(w, "w"), rt.pointer(out_), m)
    rt.check(status, "inverse_chirp_z")
    return rt.deliver(out_, out)


_ZemFunc467 = rt.bind("ZemFunc467", "status", "plp")


def auto_power_complex(x, *, out=None):
    r"""The two-sided power spectrum of complex data, out[k] = |X[k]|^2 / n^2.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)
        the power of each bin, natural order

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc467 (PowerSpectrumComplex) of the C library.

    Example
    -------
    >>> out = qv.auto_power_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    out_ = rt.result(out, (n,), rt.F8, (x,))
    status = _ZemFunc467(rt.pointer(x), n, rt.pointer(out_))
    rt.check(status, "auto_power_complex")
    return rt.deliver(out_, out)


_ZemFunc468 = rt.bind("ZemFunc468", "status", "pplp")


def cross_power_complex(x, y, *, out=None):
    r"""The two-sided cross power spectrum of complex data, out[k] = conj(X[k]) Y[k] / n^2.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the first samples
    y : array_like of complex128, shape (n,)
        the second samples
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n,)
        the cross power of each bin, natural order

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc468 (CrossPowerComplex) of the C library.

    Example
    -------
    >>> out = qv.cross_power_complex(x, y)
    """
    x = rt.array(x, rt.C16, 1, "x")
    y = rt.array(y, rt.C16, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = rt.result(out, (n,), rt.C16, (x, y))
    status = _ZemFunc468(rt.pointer(x), rt.pointer(y), n, rt.pointer(out_))
    rt.check(status, "cross_power_complex")
    return rt.deliver(out_, out)
