r"""Eigenproblems.

Modes, stability and resonances: eigenvalues and eigenvectors of one matrix and of a pair of matrices, and the
Schur forms behind them with the eigenvalues in a chosen order along the diagonal.

    eigenvalues              A v = lambda v
    generalised              A v = lambda B v,     lambda = alpha / beta
    Schur form               A = Q T Q^H,          T upper triangular; real: with 2 x 2 blocks for conjugate pairs
    generalised Schur form   A = Q S Z^H,  B = Q T Z^H

Matrices are row-major without gaps; eigenvectors stand one a column, normalised as LAPACK does it: to a
Euclidean length of 1, those of a pair of matrices to a largest |re| + |im| of 1. Inputs are copied before
they are worked on. On an error the outputs stay as they are.

Orders: 0 as produced, 1 ascending and 2 descending real part, 3 ascending and 4 descending modulus. Equal
ones keep their places.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "eigen_general",
    "eigen_symmetric",
    "eigen_complex",
    "schur",
    "schur_complex",
    "eigen_generalised",
    "eigen_generalised_complex",
    "qz",
    "qz_complex",
    "EigenGeneralResult",
    "EigenSymmetricResult",
    "EigenComplexResult",
    "SchurResult",
    "SchurComplexResult",
    "EigenGeneralisedResult",
    "EigenGeneralisedComplexResult",
    "QzResult",
    "QzComplexResult",
]
_max, _min = max, min

_ZemFunc201 = rt.bind("ZemFunc201", "status", "plupp")


class EigenGeneralResult(NamedTuple):
    """What `eigen_general` gives."""

    values: np.ndarray
    vectors: np.ndarray


def eigen_general(a, want_vectors=True, *, out=None):
    r"""The eigenvalues of a real matrix, A x = lambda x, by the QR algorithm.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major
    want_vectors : bool, default True
        0: eigenvalues alone; 1: vectors too
    out : tuple or None
        arrays for `values`, `vectors`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    values : complex128 array of shape (n,)
        the eigenvalues; pairs stand together, the one with the positive imaginary part first
    vectors : complex128 array of shape (n, n)
        the right eigenvectors, of Euclidean length 1; not used without vectors

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: want_vectors is above 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written
        -20999: the provider fails

    Notes
    -----
    Complex arrays go to `eigen_complex`. The function ZemFunc201 (MatEigenGeneral) of the C library.

    Example
    -------
    >>> values, vectors = qv.eigen_general(a)
    """
    if rt.is_complex(a):
        return eigen_complex(a=a, want_vectors=want_vectors, out=out)
    _out = rt.outs(out, 2, "eigen_general")
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    want_vectors = int(bool(want_vectors))
    rt.fits(a, (n, n), "a")
    values_ = rt.result(_out[0], (n,), rt.C16, (a,))
    vectors_ = rt.result(_out[1], (n, n), rt.C16, (a,)) if want_vectors else None
    status = _ZemFunc201(rt.pointer(a), n, want_vectors, rt.pointer(values_), rt.pointer(vectors_))
    rt.check(status, "eigen_general")
    return EigenGeneralResult(rt.deliver(values_, _out[0]), rt.deliver(vectors_, _out[1]) if want_vectors else None)


_ZemFunc202 = rt.bind("ZemFunc202", "status", "plupp")


class EigenSymmetricResult(NamedTuple):
    """What `eigen_symmetric` gives."""

    values: np.ndarray
    vectors: np.ndarray


def eigen_symmetric(a, want_vectors=True, *, out=None):
    r"""The eigenvalues of a symmetric matrix, by divide and conquer (Cuppen, 1981).

    Symmetry is not tested: the lower triangle is not used.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major; its upper triangle counts, but all of it must be finite
    want_vectors : bool, default True
        0: eigenvalues alone; 1: vectors too
    out : tuple or None
        arrays for `values`, `vectors`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    values : float64 array of shape (n,)
        the eigenvalues, ascending
    vectors : float64 array of shape (n, n)
        the eigenvectors, orthonormal; not used without vectors

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: want_vectors is above 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written
        -20999: the provider fails

    Notes
    -----
    The function ZemFunc202 (MatEigenSymmetric) of the C library.

    Example
    -------
    >>> values, vectors = qv.eigen_symmetric(a)
    """
    _out = rt.outs(out, 2, "eigen_symmetric")
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    want_vectors = int(bool(want_vectors))
    rt.fits(a, (n, n), "a")
    values_ = rt.result(_out[0], (n,), rt.F8, (a,))
    vectors_ = rt.result(_out[1], (n, n), rt.F8, (a,)) if want_vectors else None
    status = _ZemFunc202(rt.pointer(a), n, want_vectors, rt.pointer(values_), rt.pointer(vectors_))
    rt.check(status, "eigen_symmetric")
    return EigenSymmetricResult(rt.deliver(values_, _out[0]), rt.deliver(vectors_, _out[1]) if want_vectors else None)


_ZemFunc211 = rt.bind("ZemFunc211", "status", "pliupp")


class EigenComplexResult(NamedTuple):
    """What `eigen_complex` gives."""

    values: np.ndarray
    vectors: np.ndarray


def eigen_complex(a, kind=EigenKind.GENERAL, want_vectors=True, *, out=None):
    r"""The eigenvalues of a complex matrix, A x = lambda x.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix, row-major; of a Hermitian one the upper triangle counts
    kind : EigenKind, its name, or int, default EigenKind.GENERAL
        0: general; 1: Hermitian
    want_vectors : bool, default True
        0: eigenvalues alone; 1: vectors too
    out : tuple or None
        arrays for `values`, `vectors`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    values : complex128 array of shape (n,)
        the eigenvalues; of a Hermitian matrix ascending, with zero imaginary parts
    vectors : complex128 array of shape (n, n)
        the right eigenvectors, of Euclidean length 1; not used without vectors

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the kind is neither 0 nor 1, or want_vectors is above 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written
        -20999: the provider fails

    Notes
    -----
    The function ZemFunc211 (MatEigenComplex) of the C library.

    Example
    -------
    >>> values, vectors = qv.eigen_complex(a)
    """
    _out = rt.outs(out, 2, "eigen_complex")
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    kind = rt.choice(kind, EigenKind, "kind")
    want_vectors = int(bool(want_vectors))
    rt.fits(a, (n, n), "a")
    values_ = rt.result(_out[0], (n,), rt.C16, (a,))
    vectors_ = rt.result(_out[1], (n, n), rt.C16, (a,)) if want_vectors else None
    status = _ZemFunc211(rt.pointer(a), n, kind, want_vectors, rt.pointer(values_), rt.pointer(vectors_))
    rt.check(status, "eigen_complex")
    return EigenComplexResult(rt.deliver(values_, _out[0]), rt.deliver(vectors_, _out[1]) if want_vectors else None)


_ZemFunc258 = rt.bind("ZemFunc258", "status", "pluppp")


class SchurResult(NamedTuple):
    """What `schur` gives."""

    vectors: np.ndarray
    t: np.ndarray
    values: np.ndarray


def schur(a, sort=EigenOrder.AS_PRODUCED, *, out=None):
    r"""The Schur form, A = Q T Q^T, ordered by exchanges of neighbours (Bai and Demmel, 1993).

    With an order, a pair whose imaginary part is rounding alone (at most n epsilon beside its real part, and
    epsilon beside the sum of all eigenvalues) becomes two real eigenvalues: its block is cleared beside the
    diagonal.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix, row-major
    sort : EigenOrder, its name, or int, default EigenOrder.AS_PRODUCED
        the order of the eigenvalues, 0 to 4
    out : tuple or None
        arrays for `vectors`, `t`, `values`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    vectors : float64 array of shape (n, n)
        Q, row-major
    t : float64 array of shape (n, n)
        T, row-major, triangular but for a block of two rows for each pair
    values : complex128 array of shape (n,)
        the eigenvalues in the order of the diagonal of T

    Raises
    ------
    QuorvanError
        -20061: the order is above 4; tested first
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Warns
    -----
    QuorvanWarning
        20005: two eigenvalues are too close for an exchange; the form is valid, its order not complete

    Notes
    -----
    Complex arrays go to `schur_complex`. The function ZemFunc258 (MatSchur) of the C library.

    Example
    -------
    >>> vectors, t, values = qv.schur(a)
    """
    if rt.is_complex(a):
        return schur_complex(a=a, sort=sort, out=out)
    _out = rt.outs(out, 3, "schur")
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    sort = rt.choice(sort, EigenOrder, "sort")
    rt.fits(a, (n, n), "a")
    vectors_ = rt.result(_out[0], (n, n), rt.F8, (a,))
    t_ = rt.result(_out[1], (n, n), rt.F8, (a,))
    values_ = rt.result(_out[2], (n,), rt.C16, (a,))
    status = _ZemFunc258(rt.pointer(a), n, sort, rt.pointer(vectors_), rt.pointer(t_), rt.pointer(values_))
    rt.check(status, "schur")
    return SchurResult(rt.deliver(vectors_, _out[0]), rt.deliver(t_, _out[1]), rt.deliver(values_, _out[2]))


_ZemFunc259 = rt.bind("ZemFunc259", "status", "pluppp")


class SchurComplexResult(NamedTuple):
    """What `schur_complex` gives."""

    vectors: np.ndarray
    t: np.ndarray
    values: np.ndarray


def schur_complex(a, sort=EigenOrder.AS_PRODUCED, *, out=None):
    r"""The Schur form, A = Q T Q^H, ordered by exchanges of neighbours (Bai and Demmel, 1993).

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix, row-major
    sort : EigenOrder, its name, or int, default EigenOrder.AS_PRODUCED
        the order of the eigenvalues, 0 to 4
    out : tuple or None
        arrays for `vectors`, `t`, `values`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    vectors : complex128 array of shape (n, n)
        Q, row-major
    t : complex128 array of shape (n, n)
        T, row-major, triangular
    values : complex128 array of shape (n,)
        the eigenvalues in the order of the diagonal of T

    Raises
    ------
    QuorvanError
        -20061: the order is above 4; tested first
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written

    Warns
    -----
    QuorvanWarning
        20005: two eigenvalues are too close for an exchange; the form is valid, its order not complete

    Notes
    -----
    The function ZemFunc259 (MatSchurComplex) of the C library.

    Example
    -------
    >>> vectors, t, values = qv.schur_complex(a)
    """
    _out = rt.outs(out, 3, "schur_complex")
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    sort = rt.choice(sort, EigenOrder, "sort")
    rt.fits(a, (n, n), "a")
    vectors_ = rt.result(_out[0], (n, n), rt.C16, (a,))
    t_ = rt.result(_out[1], (n, n), rt.C16, (a,))
    values_ = rt.result(_out[2], (n,), rt.C16, (a,))
    status = _ZemFunc259(rt.pointer(a), n, sort, rt.pointer(vectors_), rt.pointer(t_), rt.pointer(values_))
    rt.check(status, "schur_complex")
    return SchurComplexResult(rt.deliver(vectors_, _out[0]), rt.deliver(t_, _out[1]), rt.deliver(values_, _out[2]))


_ZemFunc252 = rt.bind("ZemFunc252", "status", "pplppp")


class EigenGeneralisedResult(NamedTuple):
    """What `eigen_generalised` gives."""

    values: np.ndarray
    right: np.ndarray
    left: np.ndarray


def eigen_generalised(a, b, *, out=None):
    r"""The generalised eigenvalues, A x = lambda B x, by the QZ method (Moler and Stewart, 1973).

    Where beta is 0 the quotient is what the division gives: an infinite real part, and NaN for 0 / 0.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix A, row-major
    b : array_like of float64, shape (n, n)
        the matrix B, row-major
    out : tuple or None
        arrays for `values`, `right`, `left`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    values : complex128 array of shape (n,)
        the eigenvalues alpha / beta
    right : complex128 array of shape (n, n)
        the right eigenvectors
    left : complex128 array of shape (n, n)
        the left eigenvectors, y^H A = lambda y^H B

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written
        -20999: the provider fails

    Notes
    -----
    Complex arrays go to `eigen_generalised_complex`. The function ZemFunc252 (MatEigenGeneralised) of the C
    library.

    Example
    -------
    >>> values, right, left = qv.eigen_generalised(a, b)
    """
    if rt.is_complex(a, b):
        return eigen_generalised_complex(a=a, b=b, out=out)
    _out = rt.outs(out, 3, "eigen_generalised")
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 2, "b")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    rt.fits(b, (n, n), "b")
    values_ = rt.result(_out[0], (n,), rt.C16, (a, b))
    right_ = rt.result(_out[1], (n, n), rt.C16, (a, b))
    left_ = rt.result(_out[2], (n, n), rt.C16, (a, b))
    status = _ZemFunc252(rt.pointer(a), rt.pointer(b), n, rt.pointer(values_), rt.pointer(right_), rt.pointer(left_))
    rt.check(status, "eigen_generalised")
    return EigenGeneralisedResult(rt.deliver(values_, _out[0]), rt.deliver(right_, _out[1]), rt.deliver(left_,
            _out[2]))


_ZemFunc253 = rt.bind("ZemFunc253", "status", "pplppp")


class EigenGeneralisedComplexResult(NamedTuple):
    """What `eigen_generalised_complex` gives."""

    values: np.ndarray
    right: np.ndarray
    left: np.ndarray


def eigen_generalised_complex(a, b, *, out=None):
    r"""The generalised eigenvalues, A x = lambda B x, by the QZ method (Moler and Stewart, 1973).

    Where beta is 0 the quotient is what the division gives: both parts NaN.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix A, row-major
    b : array_like of complex128, shape (n, n)
        the matrix B, row-major
    out : tuple or None
        arrays for `values`, `right`, `left`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    values : complex128 array of shape (n,)
        the eigenvalues alpha / beta
    right : complex128 array of shape (n, n)
        the right eigenvectors
    left : complex128 array of shape (n, n)
        the left eigenvectors, y^H A = lambda y^H B

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written
        -20999: the provider fails

    Notes
    -----
    The function ZemFunc253 (MatEigenGeneralisedComplex) of the C library.

    Example
    -------
    >>> values, right, left = qv.eigen_generalised_complex(a, b)
    """
    _out = rt.outs(out, 3, "eigen_generalised_complex")
    a = rt.array(a, rt.C16, 2, "a")
    b = rt.array(b, rt.C16, 2, "b")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    rt.fits(b, (n, n), "b")
    values_ = rt.result(_out[0], (n,), rt.C16, (a, b))
    right_ = rt.result(_out[1], (n, n), rt.C16, (a, b))
    left_ = rt.result(_out[2], (n, n), rt.C16, (a, b))
    status = _ZemFunc253(rt.pointer(a), rt.pointer(b), n, rt.pointer(values_), rt.pointer(right_), rt.pointer(left_))
    rt.check(status, "eigen_generalised_complex")
    return EigenGeneralisedComplexResult(rt.deliver(values_, _out[0]), rt.deliver(right_, _out[1]), rt.deliver(left_,
            _out[2]))


_ZemFunc256 = rt.bind("ZemFunc256", "status", "pplupppppppp")


class QzResult(NamedTuple):
    """What `qz` gives."""

    s: np.ndarray
    t: np.ndarray
    q: np.ndarray
    z: np.ndarray
    alpha: np.ndarray
    beta: np.ndarray
    right: np.ndarray
    left: np.ndarray


def qz(a, b, sort=EigenOrder.AS_PRODUCED, *, out=None):
    r"""The generalised Schur form A = Q S Z^T, B = Q T Z^T by the QZ method (Moler and Stewart, 1973), ordered by
    exchanges of neighbours (Kagstrom, 1993).

    Infinite eigenvalues come last in ascending and first in descending order. Exchanges keep the quotients; alpha
    and beta are those that were found before the exchanges.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix A, row-major
    b : array_like of float64, shape (n, n)
        the matrix B, row-major
    sort : EigenOrder, its name, or int, default EigenOrder.AS_PRODUCED
        the order of the eigenvalues, 0 to 4
    out : tuple or None
        arrays for `s`, `t`, `q`, `z`, `alpha`, `beta`, `right`, `left`, or None for one to be made; each may be
        an input, to work in place

    Returns
    -------
    s : float64 array of shape (n, n)
        S, row-major, upper triangular, but for a block of two rows for each pair
    t : float64 array of shape (n, n)
        T, row-major, upper triangular
    q : float64 array of shape (n, n)
        Q, row-major
    z : float64 array of shape (n, n)
        Z, row-major
    alpha : complex128 array of shape (n,)
        the numerators of the eigenvalues, in the order of the diagonal
    beta : float64 array of shape (n,)
        their denominators; 0 for an infinite eigenvalue
    right : complex128 array of shape (n, n)
        the right eigenvectors, beta A x = alpha B x
    left : complex128 array of shape (n, n)
        the left eigenvectors, beta y^H A = alpha y^H B

    Raises
    ------
    QuorvanError
        -20061: the order is above 4; tested first
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge, or with vectors a pair is so nearly real that it has none; nothing
        is written
        -20999: the provider fails
        -20073: eigenvalues are too close to be exchanged, in a second form that is tried as well; nothing is
        written

    Warns
    -----
    QuorvanWarning
        20005: a first form cannot be ordered and a second does not converge; the first is given, its order not
        complete

    Notes
    -----
    Complex arrays go to `qz_complex`. The function ZemFunc256 (MatQz) of the C library.

    Example
    -------
    >>> result = qv.qz(a, b)
    """
    if rt.is_complex(a, b):
        return qz_complex(a=a, b=b, sort=sort, out=out)
    _out = rt.outs(out, 8, "qz")
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 2, "b")
    n = a.shape[0]
    sort = rt.choice(sort, EigenOrder, "sort")
    rt.fits(a, (n, n), "a")
    rt.fits(b, (n, n), "b")
    s_ = rt.result(_out[0], (n, n), rt.F8, (a, b))
    t_ = rt.result(_out[1], (n, n), rt.F8, (a, b))
    q_ = rt.result(_out[2], (n, n), rt.F8, (a, b))
    z_ = rt.result(_out[3], (n, n), rt.F8, (a, b))
    alpha_ = rt.result(_out[4], (n,), rt.C16, (a, b))
    beta_ = rt.result(_out[5], (n,), rt.F8, (a, b))
    right_ = rt.result(_out[6], (n, n), rt.C16, (a, b))
    left_ = rt.result(_out[7], (n, n), rt.C16, (a, b))
    status = _ZemFunc256(rt.pointer(a), rt.pointer(b), n, sort, rt.pointer(s_), rt.pointer(t_), rt.pointer(q_),
            rt.pointer(z_), rt.pointer(alpha_), rt.pointer(beta_), rt.pointer(right_), rt.pointer(left_))
    rt.check(status, "qz")
    return QzResult(rt.deliver(s_, _out[0]), rt.deliver(t_, _out[1]), rt.deliver(q_, _out[2]), rt.deliver(z_,
            _out[3]), rt.deliver(alpha_, _out[4]), rt.deliver(beta_, _out[5]), rt.deliver(right_, _out[6]),
            rt.deliver(left_, _out[7]))


_ZemFunc257 = rt.bind("ZemFunc257", "status", "pplupppppppp")


class QzComplexResult(NamedTuple):
    """What `qz_complex` gives."""

    s: np.ndarray
    t: np.ndarray
    q: np.ndarray
    z: np.ndarray
    alpha: np.ndarray
    beta: np.ndarray
    right: np.ndarray
    left: np.ndarray


def qz_complex(a, b, sort=EigenOrder.AS_PRODUCED, *, out=None):
    r"""The generalised Schur form A = Q S Z^H, B = Q T Z^H by the QZ method (Moler and Stewart, 1973), ordered by
    exchanges of neighbours (Kagstrom, 1993).

    Infinite eigenvalues come last in ascending and first in descending order. Exchanges keep the quotients; alpha
    and beta are those that were found before the exchanges.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix A, row-major
    b : array_like of complex128, shape (n, n)
        the matrix B, row-major
    sort : EigenOrder, its name, or int, default EigenOrder.AS_PRODUCED
        the order of the eigenvalues, 0 to 4
    out : tuple or None
        arrays for `s`, `t`, `q`, `z`, `alpha`, `beta`, `right`, `left`, or None for one to be made; each may be
        an input, to work in place

    Returns
    -------
    s : complex128 array of shape (n, n)
        S, row-major, upper triangular
    t : complex128 array of shape (n, n)
        T, row-major, upper triangular
    q : complex128 array of shape (n, n)
        Q, row-major
    z : complex128 array of shape (n, n)
        Z, row-major
    alpha : complex128 array of shape (n,)
        the numerators of the eigenvalues, in the order of the diagonal
    beta : complex128 array of shape (n,)
        their denominators, with zero imaginary parts; 0 for an infinite eigenvalue
    right : complex128 array of shape (n, n)
        the right eigenvectors, beta A x = alpha B x
    left : complex128 array of shape (n, n)
        the left eigenvectors, beta y^H A = alpha y^H B

    Raises
    ------
    QuorvanError
        -20061: the order is above 4; tested first
        -20003: n is below 1
        -20046: a matrix has more than 2^31 - 1 elements
        -20068: an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
        -20001: memory is exhausted
        -20062: the iteration did not converge; nothing is written
        -20999: the provider fails
        -20073: eigenvalues are too close to be exchanged; nothing is written

    Notes
    -----
    The function ZemFunc257 (MatQzComplex) of the C library.

    Example
    -------
    >>> result = qv.qz_complex(a, b)
    """
    _out = rt.outs(out, 8, "qz_complex")
    a = rt.array(a, rt.C16, 2, "a")
    b = rt.array(b, rt.C16, 2, "b")
    n = a.shape[0]
    sort = rt.choice(sort, EigenOrder, "sort")
    rt.fits(a, (n, n), "a")
    rt.fits(b, (n, n), "b")
    s_ = rt.result(_out[0], (n, n), rt.C16, (a, b))
    t_ = rt.result(_out[1], (n, n), rt.C16, (a, b))
    q_ = rt.result(_out[2], (n, n), rt.C16, (a, b))
    z_ = rt.result(_out[3], (n, n), rt.C16, (a, b))
    alpha_ = rt.result(_out[4], (n,), rt.C16, (a, b))
    beta_ = rt.result(_out[5], (n,), rt.C16, (a, b))
    right_ = rt.result(_out[6], (n, n), rt.C16, (a, b))
    left_ = rt.result(_out[7], (n, n), rt.C16, (a, b))
    status = _ZemFunc257(rt.pointer(a), rt.pointer(b), n, sort, rt.pointer(s_), rt.pointer(t_), rt.pointer(q_),
            rt.pointer(z_), rt.pointer(alpha_), rt.pointer(beta_), rt.pointer(right_), rt.pointer(left_))
    rt.check(status, "qz_complex")
    return QzComplexResult(rt.deliver(s_, _out[0]), rt.deliver(t_, _out[1]), rt.deliver(q_, _out[2]), rt.deliver(z_,
            _out[3]), rt.deliver(alpha_, _out[4]), rt.deliver(beta_, _out[5]), rt.deliver(right_, _out[6]),
            rt.deliver(left_, _out[7]))
