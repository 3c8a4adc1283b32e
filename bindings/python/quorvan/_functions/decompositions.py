r"""Matrix decompositions.

A matrix as a product of simpler ones: for solving, for rank and condition, as the first step towards
eigenvalues.

    singular values  A = U diag(s) V^H     s descending, at least 0; one vector a column of U and of V
    LU               P A = L U             L unit lower, U upper triangular, rows exchanged
    Cholesky         A = R^H R             R upper triangular with a positive diagonal
    QR               A = Q R, A P = Q R    Q^H Q = 1, R upper triangular, columns exchanged by P
    Hessenberg       A = Q H Q^H           H zero below its first subdiagonal
    balancing        B = D^-1 P^-1 A P D   P a permutation, D diagonal with powers of two

Real and complex matrices; ^H is the transpose of real ones, the conjugate transpose of complex ones. V itself
is returned, not its transpose. A matrix is a pointer and its sizes, row-major without gaps. Inputs are copied
before they are worked on: an output may be the input itself. On an error the outputs stay as they are.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "singular_values",
    "singular_values_complex",
    "svd",
    "svd_complex",
    "svd_mode",
    "svd_mode_complex",
    "lu",
    "lu_complex",
    "cholesky",
    "cholesky_complex",
    "qr_method",
    "qr_pivot",
    "qr_pivot_complex",
    "qr_complex",
    "hessenberg",
    "hessenberg_complex",
    "balance",
    "balance_complex",
    "balance_back",
    "balance_back_complex",
    "SvdResult",
    "SvdComplexResult",
    "SvdModeResult",
    "SvdModeComplexResult",
    "LuResult",
    "LuComplexResult",
    "QrMethodResult",
    "QrPivotResult",
    "QrPivotComplexResult",
    "QrComplexResult",
    "HessenbergResult",
    "HessenbergComplexResult",
    "BalanceResult",
    "BalanceComplexResult",
]
_max, _min = max, min

_ZemFunc195 = rt.bind("ZemFunc195", "status", "pllp")


def singular_values(a, *, out=None):
    r"""The singular values of a matrix.

    By divide and conquer (Gu and Eisenstat, 1995). An output may be the input itself.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix, row-major
    out : array or None
        the array for `s`; it may be an input, to work in place

    Returns
    -------
    s : float64 array of shape (min(m, n),)
        the singular values, descending

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: the matrix has an element that is NaN or infinite, the largest double, or at or below
        -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Notes
    -----
    Complex arrays go to `singular_values_complex`. The function ZemFunc195 (MatSingularValues) of the C library.

    Example
    -------
    >>> s = qv.singular_values(a)
    """
    if rt.is_complex(a):
        return singular_values_complex(a=a, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    s_ = rt.result(out, (_min(m, n),), rt.F8, (a,))
    status = _ZemFunc195(rt.pointer(a), m, n, rt.pointer(s_))
    rt.check(status, "singular_values")
    return rt.deliver(s_, out)


_ZemFunc216 = rt.bind("ZemFunc216", "status", "pllp")


def singular_values_complex(a, *, out=None):
    r"""The singular values of a matrix.

    By divide and conquer (Gu and Eisenstat, 1995). An output may be the input itself.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix, row-major
    out : array or None
        the array for `s`; it may be an input, to work in place

    Returns
    -------
    s : complex128 array of shape (min(m, n),)
        the singular values, descending, as pairs with zero imaginary parts

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: the matrix has an element that is NaN or infinite, the largest double, or at or below
        -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Notes
    -----
    The function ZemFunc216 (MatSingularValuesComplex) of the C library.

    Example
    -------
    >>> s = qv.singular_values_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    s_ = rt.result(out, (_min(m, n),), rt.C16, (a,))
    status = _ZemFunc216(rt.pointer(a), m, n, rt.pointer(s_))
    rt.check(status, "singular_values_complex")
    return rt.deliver(s_, out)


_ZemFunc193 = rt.bind("ZemFunc193", "status", "pllppp")


class SvdResult(NamedTuple):
    """What `svd` gives."""

    u: np.ndarray
    s: np.ndarray
    v: np.ndarray


def svd(a, *, out=None):
    r"""The singular value decomposition A = U diag(s) V^T in economy form.

    By divide and conquer (Gu and Eisenstat, 1995). An output may be the input itself.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix, row-major
    out : tuple or None
        arrays for `u`, `s`, `v`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    u : float64 array of shape (m, min(m, n))
        U, row-major, one left singular vector a column
    s : float64 array of shape (min(m, n),)
        the singular values, descending
    v : float64 array of shape (n, min(m, n))
        V, row-major, one right singular vector a column

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: the matrix has an element that is NaN or infinite, the largest double, or at or below
        -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Notes
    -----
    Complex arrays go to `svd_complex`. The function ZemFunc193 (MatSvd) of the C library.

    Example
    -------
    >>> u, s, v = qv.svd(a)
    """
    if rt.is_complex(a):
        return svd_complex(a=a, out=out)
    _out = rt.outs(out, 3, "svd")
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    u_ = rt.result(_out[0], (m, _min(m, n)), rt.F8, (a,))
    s_ = rt.result(_out[1], (_min(m, n),), rt.F8, (a,))
    v_ = rt.result(_out[2], (n, _min(m, n)), rt.F8, (a,))
    status = _ZemFunc193(rt.pointer(a), m, n, rt.pointer(u_), rt.pointer(s_), rt.pointer(v_))
    rt.check(status, "svd")
    return SvdResult(rt.deliver(u_, _out[0]), rt.deliver(s_, _out[1]), rt.deliver(v_, _out[2]))


_ZemFunc219 = rt.bind("ZemFunc219", "status", "pllppp")


class SvdComplexResult(NamedTuple):
    """What `svd_complex` gives."""

    u: np.ndarray
    s: np.ndarray
    v: np.ndarray


def svd_complex(a, *, out=None):
    r"""The singular value decomposition A = U diag(s) V^H in economy form.

    By divide and conquer (Gu and Eisenstat, 1995). An output may be the input itself.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix, row-major
    out : tuple or None
        arrays for `u`, `s`, `v`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    u : complex128 array of shape (m, min(m, n))
        U, row-major, one left singular vector a column
    s : complex128 array of shape (min(m, n),)
        the singular values, descending, as pairs with zero imaginary parts
    v : complex128 array of shape (n, min(m, n))
        V, row-major, one right singular vector a column

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: the matrix has an element that is NaN or infinite, the largest double, or at or below
        -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Notes
    -----
    The function ZemFunc219 (MatSvdComplex) of the C library.

    Example
    -------
    >>> u, s, v = qv.svd_complex(a)
    """
    _out = rt.outs(out, 3, "svd_complex")
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    u_ = rt.result(_out[0], (m, _min(m, n)), rt.C16, (a,))
    s_ = rt.result(_out[1], (_min(m, n),), rt.C16, (a,))
    v_ = rt.result(_out[2], (n, _min(m, n)), rt.C16, (a,))
    status = _ZemFunc219(rt.pointer(a), m, n, rt.pointer(u_), rt.pointer(s_), rt.pointer(v_))
    rt.check(status, "svd_complex")
    return SvdComplexResult(rt.deliver(u_, _out[0]), rt.deliver(s_, _out[1]), rt.deliver(v_, _out[2]))


_ZemFunc246 = rt.bind("ZemFunc246", "status", "pllippp")


class SvdModeResult(NamedTuple):
    """What `svd_mode` gives."""

    u: np.ndarray
    s: np.ndarray
    v: np.ndarray


def svd_mode(a, mode=SvdMode.FULL, *, out=None):
    r"""The singular value decomposition A = U diag(s) V^T.

    With U or V null only the singular values are computed, whatever the mode. By divide and conquer (Gu and
    Eisenstat, 1995). An output may be the input itself.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix, row-major
    mode : SvdMode, its name, or int, default SvdMode.FULL
        0: full, U m by m and V n by n; 1: economy
    out : tuple or None
        arrays for `u`, `s`, `v`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    u : float64 array of shape (m, m if mode == 0 else min(m, n))
        U, row-major, one left singular vector a column
    s : float64 array of shape (min(m, n),)
        the singular values, descending
    v : float64 array of shape (n, n if mode == 0 else min(m, n))
        V, row-major, one right singular vector a column

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20061: the mode is neither 0 nor 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: the matrix has an element that is NaN or infinite, the largest double, or at or below
        -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Notes
    -----
    Complex arrays go to `svd_mode_complex`. The function ZemFunc246 (MatSvdMode) of the C library.

    Example
    -------
    >>> u, s, v = qv.svd_mode(a)
    """
    if rt.is_complex(a):
        return svd_mode_complex(a=a, mode=mode, out=out)
    _out = rt.outs(out, 3, "svd_mode")
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    mode = rt.choice(mode, SvdMode, "mode")
    u_ = rt.result(_out[0], (m, m if mode == 0 else _min(m, n)), rt.F8, (a,))
    s_ = rt.result(_out[1], (_min(m, n),), rt.F8, (a,))
    v_ = rt.result(_out[2], (n, n if mode == 0 else _min(m, n)), rt.F8, (a,))
    status = _ZemFunc246(rt.pointer(a), m, n, mode, rt.pointer(u_), rt.pointer(s_), rt.pointer(v_))
    rt.check(status, "svd_mode")
    return SvdModeResult(rt.deliver(u_, _out[0]), rt.deliver(s_, _out[1]), rt.deliver(v_, _out[2]))


_ZemFunc247 = rt.bind("ZemFunc247", "status", "pllippp")


class SvdModeComplexResult(NamedTuple):
    """What `svd_mode_complex` gives."""

    u: np.ndarray
    s: np.ndarray
    v: np.ndarray


def svd_mode_complex(a, mode=SvdMode.FULL, *, out=None):
    r"""The singular value decomposition A = U diag(s) V^H.

    With U or V null only the singular values are computed, whatever the mode. By divide and conquer (Gu and
    Eisenstat, 1995). An output may be the input itself.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix, row-major
    mode : SvdMode, its name, or int, default SvdMode.FULL
        0: full, U m by m and V n by n; 1: economy
    out : tuple or None
        arrays for `u`, `s`, `v`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    u : complex128 array of shape (m, m if mode == 0 else min(m, n))
        U, row-major, one left singular vector a column
    s : complex128 array of shape (min(m, n),)
        the singular values, descending, as pairs with zero imaginary parts
    v : complex128 array of shape (n, n if mode == 0 else min(m, n))
        V, row-major, one right singular vector a column

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20061: the mode is neither 0 nor 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: the matrix has an element that is NaN or infinite, the largest double, or at or below
        -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Notes
    -----
    The function ZemFunc247 (MatSvdModeComplex) of the C library.

    Example
    -------
    >>> u, s, v = qv.svd_mode_complex(a)
    """
    _out = rt.outs(out, 3, "svd_mode_complex")
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    mode = rt.choice(mode, SvdMode, "mode")
    u_ = rt.result(_out[0], (m, m if mode == 0 else _min(m, n)), rt.C16, (a,))
    s_ = rt.result(_out[1], (_min(m, n),), rt.C16, (a,))
    v_ = rt.result(_out[2], (n, n if mode == 0 else _min(m, n)), rt.C16, (a,))
    status = _ZemFunc247(rt.pointer(a), m, n, mode, rt.pointer(u_), rt.pointer(s_), rt.pointer(v_))
    rt.check(status, "svd_mode_complex")
    return SvdModeComplexResult(rt.deliver(u_, _out[0]), rt.deliver(s_, _out[1]), rt.deliver(v_, _out[2]))


_ZemFunc118 = rt.bind("ZemFunc118", "status", "plpp")


class LuResult(NamedTuple):
    """What `lu` gives."""

    a: np.ndarray
    pivots: np.ndarray
    parity: int


def lu(a, *, out=None):
    r"""The factors P A = L U with partial pivoting.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major
    out : tuple or None
        arrays for `a`, `pivots`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : float64 array of shape (n, n)
        its factors: U on and above the diagonal, below it L without its unit diagonal
    pivots : int64 array of shape (n,)
        row i was interchanged with row pivots[i], for i = 0, 1, ...; from 0
    parity : int
        1 where the number of interchanges is odd, otherwise 0

    Raises
    ------
    QuorvanError
        -20003: n is below 1; parity stays as it is
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308; nothing is
        written
        -20001: memory is exhausted; a stays as it is

    Warns
    -----
    QuorvanWarning
        20003: the matrix is singular: U has a zero on its diagonal; the factors are valid

    Notes
    -----
    Complex arrays go to `lu_complex`. The function ZemFunc118 (MatLu) of the C library.

    Example
    -------
    >>> a, pivots, parity = qv.lu(a)
    """
    if rt.is_complex(a):
        return lu_complex(a=a, out=out)
    _out = rt.outs(out, 2, "lu")
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    a_ = rt.worked(a, _out[0])
    parity_ = ctypes.c_uint32()
    pivots_ = rt.result(_out[1], (n,), rt.I8, (a,))
    status = _ZemFunc118(rt.pointer(a_), n, rt.pointer(pivots_), ctypes.byref(parity_))
    rt.check(status, "lu")
    return LuResult(rt.deliver(a_, _out[0]), rt.deliver(pivots_, _out[1]), parity_.value)


_ZemFunc213 = rt.bind("ZemFunc213", "status", "plpp")


class LuComplexResult(NamedTuple):
    """What `lu_complex` gives."""

    a: np.ndarray
    pivots: np.ndarray
    parity: int


def lu_complex(a, *, out=None):
    r"""The factors P A = L U with partial pivoting.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix, row-major
    out : tuple or None
        arrays for `a`, `pivots`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    a : complex128 array of shape (n, n)
        its factors: U on and above the diagonal, below it L without its unit diagonal
    pivots : int64 array of shape (n,)
        row i was interchanged with row pivots[i], for i = 0, 1, ...; from 0
    parity : int
        1 where the number of interchanges is odd, otherwise 0

    Raises
    ------
    QuorvanError
        -20003: n is below 1; parity stays as it is
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308; nothing is
        written
        -20001: memory is exhausted; a stays as it is

    Warns
    -----
    QuorvanWarning
        20003: the matrix is singular: U has a zero on its diagonal; the factors are valid

    Notes
    -----
    The function ZemFunc213 (MatLuComplex) of the C library.

    Example
    -------
    >>> a, pivots, parity = qv.lu_complex(a)
    """
    _out = rt.outs(out, 2, "lu_complex")
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    a_ = rt.worked(a, _out[0])
    parity_ = ctypes.c_uint32()
    pivots_ = rt.result(_out[1], (n,), rt.I8, (a,))
    status = _ZemFunc213(rt.pointer(a_), n, rt.pointer(pivots_), ctypes.byref(parity_))
    rt.check(status, "lu_complex")
    return LuComplexResult(rt.deliver(a_, _out[0]), rt.deliver(pivots_, _out[1]), parity_.value)


_ZemFunc196 = rt.bind("ZemFunc196", "status", "plp")


def cholesky(a, *, out=None):
    r"""The Cholesky factor, A = R^T R with R upper triangular and a positive diagonal.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major; only its upper triangle is factored, but all of it must be finite
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n, n)
        R, row-major, zero below its diagonal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20071: the matrix is not positive definite; nothing is written

    Notes
    -----
    Complex arrays go to `cholesky_complex`. The function ZemFunc196 (MatCholesky) of the C library.

    Example
    -------
    >>> out = qv.cholesky(a)
    """
    if rt.is_complex(a):
        return cholesky_complex(a=a, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    out_ = rt.result(out, (n, n), rt.F8, (a,))
    status = _ZemFunc196(rt.pointer(a), n, rt.pointer(out_))
    rt.check(status, "cholesky")
    return rt.deliver(out_, out)


_ZemFunc210 = rt.bind("ZemFunc210", "status", "plp")


def cholesky_complex(a, *, out=None):
    r"""The Cholesky factor, A = R^H R with R upper triangular and a positive diagonal.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix, row-major; only its upper triangle is factored, but all of it must be finite
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n, n)
        R, row-major, zero below its diagonal

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20071: the matrix is not positive definite; nothing is written

    Notes
    -----
    The function ZemFunc210 (MatCholeskyComplex) of the C library.

    Example
    -------
    >>> out = qv.cholesky_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    out_ = rt.result(out, (n, n), rt.C16, (a,))
    status = _ZemFunc210(rt.pointer(a), n, rt.pointer(out_))
    rt.check(status, "cholesky_complex")
    return rt.deliver(out_, out)


_ZemFunc192 = rt.bind("ZemFunc192", "status", "pllupp")


class QrMethodResult(NamedTuple):
    """What `qr_method` gives."""

    q: np.ndarray
    r: np.ndarray


def qr_method(a, method=QrMethod.HOUSEHOLDER, *, out=None):
    r"""The full decomposition A = Q R with an orthogonal Q. Method 0 clears R below its diagonal; methods 1 and 2
    leave what rounding leaves there, of the order of the double epsilon.

    The methods may differ in the signs of rows of R and columns of Q; method 1 and 2 pass over a column of zeros
    and are then in echelon form. Fast Givens rotations after Gentleman (1973); Golub and Van Loan, Matrix
    Computations.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix, row-major
    method : QrMethod, its name, or int, default QrMethod.HOUSEHOLDER
        0: Householder reflections; 1: Givens rotations; 2: fast Givens rotations
    out : tuple or None
        arrays for `q`, `r`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    q : float64 array of shape (m, m)
        Q, row-major
    r : float64 array of shape (m, n)
        R, row-major

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20061: the method is above 2
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc192 (MatQrMethod) of the C library.

    Example
    -------
    >>> q, r = qv.qr_method(a)
    """
    _out = rt.outs(out, 2, "qr_method")
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    method = rt.choice(method, QrMethod, "method")
    q_ = rt.result(_out[0], (m, m), rt.F8, (a,))
    r_ = rt.result(_out[1], (m, n), rt.F8, (a,))
    status = _ZemFunc192(rt.pointer(a), m, n, method, rt.pointer(q_), rt.pointer(r_))
    rt.check(status, "qr_method")
    return QrMethodResult(rt.deliver(q_, _out[0]), rt.deliver(r_, _out[1]))


_ZemFunc243 = rt.bind("ZemFunc243", "status", "plluuppp")


class QrPivotResult(NamedTuple):
    """What `qr_pivot` gives."""

    p: np.ndarray
    q: np.ndarray
    r: np.ndarray


def qr_pivot(a, pivot_mode=PivotMode.VECTOR, economy=False, *, out=None):
    r"""The decomposition A P = Q R with column pivoting (Businger and Golub, 1965): the diagonal of R falls in
    magnitude.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix, row-major
    pivot_mode : PivotMode, its name, or int, default PivotMode.VECTOR
        0: the columns as they stand; 1: by the largest remaining column, p a vector; 2: the same, p a matrix
    economy : bool, default False
        false: Q is m by m; true: Q has min(m, n) columns
    out : tuple or None
        arrays for `p`, `q`, `r`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    p : int64 array of shape (n, n) if pivot_mode == 2 else (n,)
        the index, from 0, of the column of A that comes j-th; in mode 2 the matrix with p(index, j) = 1
    q : float64 array of shape (m, min(m, n) if economy else m)
        Q, row-major
    r : float64 array of shape (min(m, n) if economy else m, n)
        R, row-major, zero below its diagonal

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20061: the pivot mode is above 2
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `qr_pivot_complex`. The function ZemFunc243 (MatQrPivot) of the C library.

    Example
    -------
    >>> p, q, r = qv.qr_pivot(a)
    """
    if rt.is_complex(a):
        return qr_pivot_complex(a=a, pivot_mode=pivot_mode, economy=economy, out=out)
    _out = rt.outs(out, 3, "qr_pivot")
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    pivot_mode = rt.choice(pivot_mode, PivotMode, "pivot_mode")
    economy = int(bool(economy))
    p_ = rt.result(_out[0], (n, n) if pivot_mode == 2 else (n,), rt.I8, (a,))
    q_ = rt.result(_out[1], (m, _min(m, n) if economy else m), rt.F8, (a,))
    r_ = rt.result(_out[2], (_min(m, n) if economy else m, n), rt.F8, (a,))
    status = _ZemFunc243(rt.pointer(a), m, n, pivot_mode, economy, rt.pointer(p_), rt.pointer(q_), rt.pointer(r_))
    rt.check(status, "qr_pivot")
    return QrPivotResult(rt.deliver(p_, _out[0]), rt.deliver(q_, _out[1]), rt.deliver(r_, _out[2]))


_ZemFunc245 = rt.bind("ZemFunc245", "status", "plluuppp")


class QrPivotComplexResult(NamedTuple):
    """What `qr_pivot_complex` gives."""

    p: np.ndarray
    q: np.ndarray
    r: np.ndarray


def qr_pivot_complex(a, pivot_mode=PivotMode.VECTOR, economy=False, *, out=None):
    r"""The decomposition A P = Q R with column pivoting (Businger and Golub, 1965): the diagonal of R falls in
    magnitude.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix, row-major
    pivot_mode : PivotMode, its name, or int, default PivotMode.VECTOR
        0: the columns as they stand; 1: by the largest remaining column, p a vector; 2: the same, p a matrix
    economy : bool, default False
        false: Q is m by m; true: Q has min(m, n) columns
    out : tuple or None
        arrays for `p`, `q`, `r`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    p : int64 array of shape (n, n) if pivot_mode == 2 else (n,)
        the index, from 0, of the column of A that comes j-th; in mode 2 the matrix with p(index, j) = 1
    q : complex128 array of shape (m, min(m, n) if economy else m)
        Q, row-major
    r : complex128 array of shape (min(m, n) if economy else m, n)
        R, row-major, zero below its diagonal

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20061: the pivot mode is above 2
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc245 (MatQrPivotComplex) of the C library.

    Example
    -------
    >>> p, q, r = qv.qr_pivot_complex(a)
    """
    _out = rt.outs(out, 3, "qr_pivot_complex")
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    pivot_mode = rt.choice(pivot_mode, PivotMode, "pivot_mode")
    economy = int(bool(economy))
    p_ = rt.result(_out[0], (n, n) if pivot_mode == 2 else (n,), rt.I8, (a,))
    q_ = rt.result(_out[1], (m, _min(m, n) if economy else m), rt.C16, (a,))
    r_ = rt.result(_out[2], (_min(m, n) if economy else m, n), rt.C16, (a,))
    status = _ZemFunc245(rt.pointer(a), m, n, pivot_mode, economy, rt.pointer(p_), rt.pointer(q_), rt.pointer(r_))
    rt.check(status, "qr_pivot_complex")
    return QrPivotComplexResult(rt.deliver(p_, _out[0]), rt.deliver(q_, _out[1]), rt.deliver(r_, _out[2]))


_ZemFunc228 = rt.bind("ZemFunc228", "status", "pllpp")


class QrComplexResult(NamedTuple):
    """What `qr_complex` gives."""

    q: np.ndarray
    r: np.ndarray


def qr_complex(a, *, out=None):
    r"""The full decomposition A = Q R with a unitary Q.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix, row-major
    out : tuple or None
        arrays for `q`, `r`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    q : complex128 array of shape (m, m)
        Q, row-major
    r : complex128 array of shape (m, n)
        R, row-major, zero below its diagonal

    Raises
    ------
    QuorvanError
        -20003: m or n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc228 (MatQrComplex) of the C library.

    Example
    -------
    >>> q, r = qv.qr_complex(a)
    """
    _out = rt.outs(out, 2, "qr_complex")
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    q_ = rt.result(_out[0], (m, m), rt.C16, (a,))
    r_ = rt.result(_out[1], (m, n), rt.C16, (a,))
    status = _ZemFunc228(rt.pointer(a), m, n, rt.pointer(q_), rt.pointer(r_))
    rt.check(status, "qr_complex")
    return QrComplexResult(rt.deliver(q_, _out[0]), rt.deliver(r_, _out[1]))


_ZemFunc254 = rt.bind("ZemFunc254", "status", "plpp")


class HessenbergResult(NamedTuple):
    """What `hessenberg` gives."""

    h: np.ndarray
    q: np.ndarray


def hessenberg(a, *, out=None):
    r"""The Hessenberg form, A = Q H Q^T, by Householder reflections.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major
    out : tuple or None
        arrays for `h`, `q`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    h : float64 array of shape (n, n)
        H, row-major, zero below its first subdiagonal
    q : float64 array of shape (n, n)
        Q, row-major

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `hessenberg_complex`. The function ZemFunc254 (MatHessenberg) of the C library.

    Example
    -------
    >>> h, q = qv.hessenberg(a)
    """
    if rt.is_complex(a):
        return hessenberg_complex(a=a, out=out)
    _out = rt.outs(out, 2, "hessenberg")
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    h_ = rt.result(_out[0], (n, n), rt.F8, (a,))
    q_ = rt.result(_out[1], (n, n), rt.F8, (a,))
    status = _ZemFunc254(rt.pointer(a), n, rt.pointer(h_), rt.pointer(q_))
    rt.check(status, "hessenberg")
    return HessenbergResult(rt.deliver(h_, _out[0]), rt.deliver(q_, _out[1]))


_ZemFunc255 = rt.bind("ZemFunc255", "status", "plpp")


class HessenbergComplexResult(NamedTuple):
    """What `hessenberg_complex` gives."""

    h: np.ndarray
    q: np.ndarray


def hessenberg_complex(a, *, out=None):
    r"""The Hessenberg form, A = Q H Q^H, by Householder reflections.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix, row-major
    out : tuple or None
        arrays for `h`, `q`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    h : complex128 array of shape (n, n)
        H, row-major, zero below its first subdiagonal
    q : complex128 array of shape (n, n)
        Q, row-major

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc255 (MatHessenbergComplex) of the C library.

    Example
    -------
    >>> h, q = qv.hessenberg_complex(a)
    """
    _out = rt.outs(out, 2, "hessenberg_complex")
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    h_ = rt.result(_out[0], (n, n), rt.C16, (a,))
    q_ = rt.result(_out[1], (n, n), rt.C16, (a,))
    status = _ZemFunc255(rt.pointer(a), n, rt.pointer(h_), rt.pointer(q_))
    rt.check(status, "hessenberg_complex")
    return HessenbergComplexResult(rt.deliver(h_, _out[0]), rt.deliver(q_, _out[1]))


_ZemFunc248 = rt.bind("ZemFunc248", "status", "plupppp")


class BalanceResult(NamedTuple):
    """What `balance` gives."""

    low: int
    high: int
    scale: np.ndarray
    balanced: np.ndarray


def balance(a, job=BalanceJob.BOTH, *, out=None):
    r"""Permutes and scales a matrix by a similarity that brings rows and columns to like norms (Parlett and Reinsch,
    1969).

    The factors are powers of two, so that scaling rounds nothing.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major
    job : BalanceJob, its name, or int, default BalanceJob.BOTH
        0: none; 1: permutation; 2: scaling; 3: both
    out : tuple or None
        arrays for `scale`, `balanced`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    low : int
        the first row, from 0, of the part that is not triangular
    high : int
        its last row
    scale : float64 array of shape (n,)
        from low to high the factors of rows and columns; elsewhere the number, from 1, of the row that was
        interchanged
    balanced : float64 array of shape (n, n)
        the balanced matrix, row-major

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the job is above 3
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20999: the provider fails

    Notes
    -----
    Complex arrays go to `balance_complex`. The function ZemFunc248 (MatBalance) of the C library.

    Example
    -------
    >>> result = qv.balance(a)
    """
    if rt.is_complex(a):
        return balance_complex(a=a, job=job, out=out)
    _out = rt.outs(out, 2, "balance")
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    job = rt.choice(job, BalanceJob, "job")
    rt.fits(a, (n, n), "a")
    low_ = ctypes.c_int64()
    high_ = ctypes.c_int64()
    scale_ = rt.result(_out[0], (n,), rt.F8, (a,))
    balanced_ = rt.result(_out[1], (n, n), rt.F8, (a,))
    status = _ZemFunc248(rt.pointer(a), n, job, ctypes.byref(low_), ctypes.byref(high_), rt.pointer(scale_),
            rt.pointer(balanced_))
    rt.check(status, "balance")
    return BalanceResult(low_.value, high_.value, rt.deliver(scale_, _out[0]), rt.deliver(balanced_, _out[1]))


_ZemFunc249 = rt.bind("ZemFunc249", "status", "plupppp")


class BalanceComplexResult(NamedTuple):
    """What `balance_complex` gives."""

    low: int
    high: int
    scale: np.ndarray
    balanced: np.ndarray


def balance_complex(a, job=BalanceJob.BOTH, *, out=None):
    r"""Permutes and scales a matrix by a similarity that brings rows and columns to like norms (Parlett and Reinsch,
    1969).

    The factors are powers of two, so that scaling rounds nothing.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix, row-major
    job : BalanceJob, its name, or int, default BalanceJob.BOTH
        0: none; 1: permutation; 2: scaling; 3: both
    out : tuple or None
        arrays for `scale`, `balanced`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    low : int
        the first row, from 0, of the part that is not triangular
    high : int
        its last row
    scale : float64 array of shape (n,)
        from low to high the factors of rows and columns; elsewhere the number, from 1, of the row that was
        interchanged
    balanced : complex128 array of shape (n, n)
        the balanced matrix, row-major

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the job is above 3
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20999: the provider fails

    Notes
    -----
    The function ZemFunc249 (MatBalanceComplex) of the C library.

    Example
    -------
    >>> result = qv.balance_complex(a)
    """
    _out = rt.outs(out, 2, "balance_complex")
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    job = rt.choice(job, BalanceJob, "job")
    rt.fits(a, (n, n), "a")
    low_ = ctypes.c_int64()
    high_ = ctypes.c_int64()
    scale_ = rt.result(_out[0], (n,), rt.F8, (a,))
    balanced_ = rt.result(_out[1], (n, n), rt.C16, (a,))
    status = _ZemFunc249(rt.pointer(a), n, job, ctypes.byref(low_), ctypes.byref(high_), rt.pointer(scale_),
            rt.pointer(balanced_))
    rt.check(status, "balance_complex")
    return BalanceComplexResult(low_.value, high_.value, rt.deliver(scale_, _out[0]), rt.deliver(balanced_, _out[1]))


_ZemFunc250 = rt.bind("ZemFunc250", "status", "pluullpp")


def balance_back(v, low, high, scale, job=BalanceJob.BOTH, side=Side.RIGHT, *, out=None):
    r"""Transforms the eigenvectors of a balanced matrix to those of the matrix that was balanced.

    Parameters
    ----------
    v : array_like of float64, shape (n, n)
        the eigenvectors of the balanced matrix, row-major, one a column
    low : int
        as balancing gave it
    high : int
        as balancing gave it
    scale : array_like of float64, shape (n,)
        as balancing gave it
    job : BalanceJob, its name, or int, default BalanceJob.BOTH
        as it was balanced
    side : Side, its name, or int, default Side.RIGHT
        0: right eigenvectors; 1: left ones
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n, n)
        the eigenvectors of the matrix itself

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the job is above 3 or the side above 1
        -20046: the matrix has more than 2^31 - 1 elements
        -20017: not 0 <= low <= high < n, or scale names a row outside the matrix
        -20001: memory is exhausted
        -20999: the provider fails

    Notes
    -----
    Complex arrays go to `balance_back_complex`. The function ZemFunc250 (MatBalanceBack) of the C library.

    Example
    -------
    >>> out = qv.balance_back(v, low, high, scale)
    """
    if rt.is_complex(v, scale):
        return balance_back_complex(v=v, low=low, high=high, scale=scale, job=job, side=side, out=out)
    v = rt.array(v, rt.F8, 2, "v")
    scale = rt.array(scale, rt.F8, 1, "scale")
    n = v.shape[0]
    job = rt.choice(job, BalanceJob, "job")
    side = rt.choice(side, Side, "side")
    low = rt.i64(low, "low")
    high = rt.i64(high, "high")
    rt.fits(v, (n, n), "v")
    rt.fits(scale, (n,), "scale")
    out_ = rt.result(out, (n, n), rt.F8, (v, scale))
    status = _ZemFunc250(rt.pointer(v), n, job, side, low, high, rt.pointer(scale), rt.pointer(out_))
    rt.check(status, "balance_back")
    return rt.deliver(out_, out)


_ZemFunc251 = rt.bind("ZemFunc251", "status", "pluullpp")


def balance_back_complex(v, low, high, scale, job=BalanceJob.BOTH, side=Side.RIGHT, *, out=None):
    r"""Transforms the eigenvectors of a balanced matrix to those of the matrix that was balanced.

    Parameters
    ----------
    v : array_like of complex128, shape (n, n)
        the eigenvectors of the balanced matrix, row-major, one a column
    low : int
        as balancing gave it
    high : int
        as balancing gave it
    scale : array_like of float64, shape (n,)
        as balancing gave it
    job : BalanceJob, its name, or int, default BalanceJob.BOTH
        as it was balanced
    side : Side, its name, or int, default Side.RIGHT
        0: right eigenvectors; 1: left ones
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n, n)
        the eigenvectors of the matrix itself

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the job is above 3 or the side above 1
        -20046: the matrix has more than 2^31 - 1 elements
        -20017: not 0 <= low <= high < n, or scale names a row outside the matrix
        -20001: memory is exhausted
        -20999: the provider fails

    Notes
    -----
    The function ZemFunc251 (MatBalanceBackComplex) of the C library.

    Example
    -------
    >>> out = qv.balance_back_complex(v, low, high, scale)
    """
    v = rt.array(v, rt.C16, 2, "v")
    scale = rt.array(scale, rt.F8, 1, "scale")
    n = v.shape[0]
    job = rt.choice(job, BalanceJob, "job")
    side = rt.choice(side, Side, "side")
    low = rt.i64(low, "low")
    high = rt.i64(high, "high")
    rt.fits(v, (n, n), "v")
    rt.fits(scale, (n,), "scale")
    out_ = rt.result(out, (n, n), rt.C16, (v, scale))
    status = _ZemFunc251(rt.pointer(v), n, job, side, low, high, rt.pointer(scale), rt.pointer(out_))
    rt.check(status, "balance_back_complex")
    return rt.deliver(out_, out)
