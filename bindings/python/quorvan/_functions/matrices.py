r"""Solving, inversion and matrix operations.

Linear systems, inverses, determinants, norms and products of dense matrices.

    A x = b,   A X = B;   a matrix that is not square: |A x - b| is least, and of those x the shortest
    norms       two: s(0),  one: largest column sum,  Frobenius: sqrt(sum |a|^2),  infinity: largest row sum
    condition   s(0) / s(last), or |A| |A^-1| in the other norms
    pseudo-inverse A^+ = V diag(1 / s) U^H over the singular values s above the tolerance

Matrices are row-major without gaps: element (i, j) of m by n stands at i n + j. Complex functions take pairs
at the same places. The work is done by LAPACK and BLAS, with 32-bit integers.

The kind of a matrix is 0 general, 1 symmetric (Hermitian) positive definite, 2 lower triangular, 3 upper
triangular; of kinds 1 to 3 one triangle is read. Where a matrix is screened, an element that is NaN,
infinite, the largest double, or -1.7976931348623e308 or below gives -20068.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "solve_many",
    "solve_many_complex",
    "solve_kind",
    "solve_kind_complex",
    "solve",
    "solve_upper_triangular",
    "solve_unit_lower",
    "inverse",
    "inverse_kind",
    "inverse_kind_complex",
    "determinant",
    "determinant_kind",
    "determinant_kind_complex",
    "trace",
    "trace_complex",
    "matrix_norm",
    "matrix_norm_complex",
    "condition_number",
    "condition_number_complex",
    "matrix_rank",
    "matrix_rank_complex",
    "pseudo_inverse",
    "pseudo_inverse_complex",
    "is_positive_definite",
    "is_positive_definite_complex",
    "matrix_multiply",
    "matrix_multiply_complex",
    "matrix_vector_multiply",
    "matrix_vector_multiply_complex",
    "vector_dot",
    "vector_dot_complex",
    "vector_outer_product",
    "vector_outer_product_complex",
    "kronecker",
    "kronecker_complex",
    "transpose",
    "conjugate_transpose",
    "special_matrix",
    "special_matrix_complex",
    "vector_norm",
    "vector_norm_complex",
]
_max, _min = max, min

_ZemFunc241 = rt.bind("ZemFunc241", "status", "plluplp")


def solve_many(a, b, kind=MatrixKind.GENERAL, *, out=None):
    r"""Solves A X = B for a matrix of the kind that is named.

    Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
    Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle. In
    kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
    x may be a or b.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix A
    b : array_like of float64, shape (m, rhs_count)
        the right-hand sides, one a column
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n, rhs_count)
        the solutions, one a column

    Raises
    ------
    QuorvanError
        -20040: kinds 1 to 3: m and n differ
        -20003: a size is below 1
        -20061: the kind is above 3
        -20068: kind 0: a or b does not pass the screen; kind 1: a does not
        -20071: kind 1: the matrix is not positive definite
        -20041: kinds 2 and 3: a diagonal element is tiny or 0
        -20062: kind 0: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20001: kind 0: the rank is below min(m, n); the solution is valid

    Notes
    -----
    Complex arrays go to `solve_many_complex`. The function ZemFunc241 (MatSolveMany) of the C library.

    Example
    -------
    >>> x = qv.solve_many(a, b)
    """
    if rt.is_complex(a, b):
        return solve_many_complex(a=a, b=b, kind=kind, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 2, "b")
    m = a.shape[0]
    n = a.shape[1]
    rhs_count = b.shape[1]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(b, (m, rhs_count), "b")
    x_ = rt.result(out, (n, rhs_count), rt.F8, (a, b))
    status = _ZemFunc241(rt.pointer(a), m, n, kind, rt.pointer(b), rhs_count, rt.pointer(x_))
    rt.check(status, "solve_many")
    return rt.deliver(x_, out)


_ZemFunc242 = rt.bind("ZemFunc242", "status", "plluplp")


def solve_many_complex(a, b, kind=MatrixKind.GENERAL, *, out=None):
    r"""Solves A X = B for a matrix of the kind that is named.

    Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
    Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle. In
    kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
    x may be a or b.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix A
    b : array_like of complex128, shape (m, rhs_count)
        the right-hand sides, one a column
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n, rhs_count)
        the solutions, one a column

    Raises
    ------
    QuorvanError
        -20040: kinds 1 to 3: m and n differ
        -20003: a size is below 1
        -20061: the kind is above 3
        -20068: kind 0: a or b does not pass the screen; kind 1: a does not
        -20071: kind 1: the matrix is not positive definite
        -20041: kinds 2 and 3: a diagonal element is tiny or 0
        -20062: kind 0: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20001: kind 0: the rank is below min(m, n); the solution is valid

    Notes
    -----
    The function ZemFunc242 (MatSolveManyComplex) of the C library.

    Example
    -------
    >>> x = qv.solve_many_complex(a, b)
    """
    a = rt.array(a, rt.C16, 2, "a")
    b = rt.array(b, rt.C16, 2, "b")
    m = a.shape[0]
    n = a.shape[1]
    rhs_count = b.shape[1]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(b, (m, rhs_count), "b")
    x_ = rt.result(out, (n, rhs_count), rt.C16, (a, b))
    status = _ZemFunc242(rt.pointer(a), m, n, kind, rt.pointer(b), rhs_count, rt.pointer(x_))
    rt.check(status, "solve_many_complex")
    return rt.deliver(x_, out)


_ZemFunc197 = rt.bind("ZemFunc197", "status", "pllpup")


def solve_kind(a, b, kind=MatrixKind.GENERAL, *, out=None):
    r"""Solves A x = b: `solve_many` with one right-hand side.

    Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
    Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle. In
    kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
    x may be a or b.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix A
    b : array_like of float64, shape (m,)
        the right-hand side
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the solution

    Raises
    ------
    QuorvanError
        -20040: kinds 1 to 3: m and n differ
        -20003: a size is below 1
        -20061: the kind is above 3
        -20068: kind 0: a or b does not pass the screen; kind 1: a does not
        -20071: kind 1: the matrix is not positive definite
        -20041: kinds 2 and 3: a diagonal element is tiny or 0
        -20062: kind 0: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20001: kind 0: the rank is below min(m, n); the solution is valid

    Notes
    -----
    Complex arrays go to `solve_kind_complex`. A `b` of two dimensions goes to `solve_many`. The function
    ZemFunc197 (MatSolveKind) of the C library.

    Example
    -------
    >>> x = qv.solve_kind(a, b)
    """
    if rt.dimensions(b) == 2:
        return solve_many(a=a, b=b, kind=kind, out=out)
    if rt.is_complex(a, b):
        return solve_kind_complex(a=a, b=b, kind=kind, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 1, "b")
    m = a.shape[0]
    n = a.shape[1]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(b, (m,), "b")
    x_ = rt.result(out, (n,), rt.F8, (a, b))
    status = _ZemFunc197(rt.pointer(a), m, n, rt.pointer(b), kind, rt.pointer(x_))
    rt.check(status, "solve_kind")
    return rt.deliver(x_, out)


_ZemFunc218 = rt.bind("ZemFunc218", "status", "pllpup")


def solve_kind_complex(a, b, kind=MatrixKind.GENERAL, *, out=None):
    r"""Solves A x = b: `solve_many` with one right-hand side.

    Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
    Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle. In
    kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
    x may be a or b.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix A
    b : array_like of complex128, shape (m,)
        the right-hand side
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : complex128 array of shape (n,)
        the solution

    Raises
    ------
    QuorvanError
        -20040: kinds 1 to 3: m and n differ
        -20003: a size is below 1
        -20061: the kind is above 3
        -20068: kind 0: a or b does not pass the screen; kind 1: a does not
        -20071: kind 1: the matrix is not positive definite
        -20041: kinds 2 and 3: a diagonal element is tiny or 0
        -20062: kind 0: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Warns
    -----
    QuorvanWarning
        20001: kind 0: the rank is below min(m, n); the solution is valid

    Notes
    -----
    A `b` of two dimensions goes to `solve_many_complex`. The function ZemFunc218 (MatSolveKindComplex) of the C
    library.

    Example
    -------
    >>> x = qv.solve_kind_complex(a, b)
    """
    if rt.dimensions(b) == 2:
        return solve_many_complex(a=a, b=b, kind=kind, out=out)
    a = rt.array(a, rt.C16, 2, "a")
    b = rt.array(b, rt.C16, 1, "b")
    m = a.shape[0]
    n = a.shape[1]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(b, (m,), "b")
    x_ = rt.result(out, (n,), rt.C16, (a, b))
    status = _ZemFunc218(rt.pointer(a), m, n, rt.pointer(b), kind, rt.pointer(x_))
    rt.check(status, "solve_kind_complex")
    return rt.deliver(x_, out)


_ZemFunc114 = rt.bind("ZemFunc114", "status", "pplp")


def solve(a, b, *, out=None):
    r"""Solves the square system A x = b by LU factors with partial pivoting (dgesv).

    Nothing is screened; x and b are written on success only.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix A
    b : array_like of float64, shape (n,)
        the right-hand side
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the solution

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20041: the matrix is singular
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `solve_kind_complex`. A `b` of two dimensions goes to `solve_many`. The function
    ZemFunc114 (MatSolve) of the C library.

    Example
    -------
    >>> x = qv.solve(a, b)
    """
    if rt.dimensions(b) == 2:
        return solve_many(a=a, b=b, out=out)
    if rt.is_complex(a, b):
        return solve_kind_complex(a=a, b=b, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 1, "b")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    rt.fits(b, (n,), "b")
    x_ = rt.result(out, (n,), rt.F8, (a, b))
    status = _ZemFunc114(rt.pointer(a), rt.pointer(b), n, rt.pointer(x_))
    rt.check(status, "solve")
    return rt.deliver(x_, out)


_ZemFunc11 = rt.bind("ZemFunc11", "status", "pplp")


def solve_upper_triangular(r, b, *, out=None):
    r"""Solves R x = b by back substitution from the last row up. x may be b.

    Parameters
    ----------
    r : array_like of float64, shape (n, n)
        the upper triangle R; the rest is not read
    b : array_like of float64, shape (n,)
        the right-hand side
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the solution

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20041: a diagonal element is exactly 0; the elements of x below it are written
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched

    Notes
    -----
    The function ZemFunc11 (MatSolveUpperTriangular) of the C library.

    Example
    -------
    >>> x = qv.solve_upper_triangular(r, b)
    """
    r = rt.array(r, rt.F8, 2, "r")
    b = rt.array(b, rt.F8, 1, "b")
    n = r.shape[0]
    rt.fits(r, (n, n), "r")
    rt.fits(b, (n,), "b")
    x_ = rt.result(out, (n,), rt.F8, (r, b))
    status = _ZemFunc11(rt.pointer(r), rt.pointer(b), n, rt.pointer(x_))
    rt.check(status, "solve_upper_triangular")
    return rt.deliver(x_, out)


_ZemFunc82 = rt.bind("ZemFunc82", "status", "pplpp")


def solve_unit_lower(l, b, pivots=None, *, out=None):
    r"""Solves L x = P b with a unit lower triangle by forward substitution.

    The interchanges are those of an LU factorisation; x may be b.

    Parameters
    ----------
    l : array_like of float64, shape (n, n)
        the triangle below the diagonal; the rest is not read, the diagonal stands for ones
    b : array_like of float64, shape (n,)
        the right-hand side
    pivots : array_like of int64, shape (n,), default None
        element i of b changes places with element pivots[i], for i from 0 on
    out : array or None
        the array for `x`; it may be an input, to work in place

    Returns
    -------
    x : float64 array of shape (n,)
        the solution

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, an element count or a pivot exceeds 2^31 - 1; nothing is touched
        -20017: a pivot is outside 0 to n - 1; nothing is written
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc82 (MatSolveUnitLower) of the C library.

    Example
    -------
    >>> x = qv.solve_unit_lower(l, b)
    """
    l = rt.array(l, rt.F8, 2, "l")
    b = rt.array(b, rt.F8, 1, "b")
    pivots = None if pivots is None else rt.array(pivots, rt.I8, 1, "pivots")
    n = l.shape[0]
    rt.fits(l, (n, n), "l")
    rt.fits(b, (n,), "b")
    rt.fits(pivots, (n,), "pivots")
    x_ = rt.result(out, (n,), rt.F8, (l, b, pivots))
    status = _ZemFunc82(rt.pointer(l), rt.pointer(b), n, rt.pointer(x_), rt.pointer(pivots))
    rt.check(status, "solve_unit_lower")
    return rt.deliver(x_, out)


_ZemFunc105 = rt.bind("ZemFunc105", "status", "plp")


def inverse(a, *, out=None):
    r"""The inverse of a square matrix by LU factors (dgetrf, dgetri).

    Nothing is screened; the result is written on success only. out may be a.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n, n)
        the inverse

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20041: the matrix is singular
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `inverse_kind_complex`. The function ZemFunc105 (MatInverse) of the C library.

    Example
    -------
    >>> out = qv.inverse(a)
    """
    if rt.is_complex(a):
        return inverse_kind_complex(a=a, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    out_ = rt.result(out, (n, n), rt.F8, (a,))
    status = _ZemFunc105(rt.pointer(a), n, rt.pointer(out_))
    rt.check(status, "inverse")
    return rt.deliver(out_, out)


_ZemFunc198 = rt.bind("ZemFunc198", "status", "plip")


def inverse_kind(a, kind=MatrixKind.GENERAL, *, out=None):
    r"""The inverse of a square matrix of the kind that is named.

    Kind 0 goes by LU factors; kind 1 by Cholesky from the upper triangle, mirrored; kinds 2 and 3 invert their
    triangle and clear the other. The result is written on success only. out may be a.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n, n)
        the inverse

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the kind is below 0 or above 3
        -20068: kinds 0 and 1: the matrix does not pass the screen
        -20071: kind 1: the matrix is not positive definite
        -20041: the matrix is singular
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `inverse_kind_complex`. The function ZemFunc198 (MatInverseKind) of the C library.

    Example
    -------
    >>> out = qv.inverse_kind(a)
    """
    if rt.is_complex(a):
        return inverse_kind_complex(a=a, kind=kind, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(a, (n, n), "a")
    out_ = rt.result(out, (n, n), rt.F8, (a,))
    status = _ZemFunc198(rt.pointer(a), n, kind, rt.pointer(out_))
    rt.check(status, "inverse_kind")
    return rt.deliver(out_, out)


_ZemFunc212 = rt.bind("ZemFunc212", "status", "plip")


def inverse_kind_complex(a, kind=MatrixKind.GENERAL, *, out=None):
    r"""The inverse of a square matrix of the kind that is named.

    Kind 0 goes by LU factors; kind 1 by Cholesky from the upper triangle, mirrored; kinds 2 and 3 invert their
    triangle and clear the other. The result is written on success only. out may be a.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n, n)
        the inverse

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the kind is below 0 or above 3
        -20068: kinds 0 and 1: the matrix does not pass the screen
        -20071: kind 1: the matrix is not positive definite
        -20041: the matrix is singular
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc212 (MatInverseKindComplex) of the C library.

    Example
    -------
    >>> out = qv.inverse_kind_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(a, (n, n), "a")
    out_ = rt.result(out, (n, n), rt.C16, (a,))
    status = _ZemFunc212(rt.pointer(a), n, kind, rt.pointer(out_))
    rt.check(status, "inverse_kind_complex")
    return rt.deliver(out_, out)


_ZemFunc55 = rt.bind("ZemFunc55", "status", "plp")


def determinant(a):
    r"""The determinant of a square matrix: `determinant_kind` with kind 0.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix

    Returns
    -------
    out : float
        the determinant; NaN on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20068: the matrix does not pass the screen
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `determinant_kind_complex`. The function ZemFunc55 (MatDeterminant) of the C library.

    Example
    -------
    >>> out = qv.determinant(a)
    """
    if rt.is_complex(a):
        return determinant_kind_complex(a=a)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    out_ = ctypes.c_double()
    status = _ZemFunc55(rt.pointer(a), n, ctypes.byref(out_))
    rt.check(status, "determinant")
    return out_.value


_ZemFunc204 = rt.bind("ZemFunc204", "status", "plup")


def determinant_kind(a, kind=MatrixKind.GENERAL):
    r"""The determinant of a square matrix of the kind that is named.

    Order 2 is a00 a11 - a01 a10 for every kind. Otherwise: kind 0 the signed product of the pivots, exactly 0 for
    a singular matrix, which is no error; kind 1 the square of the product of the Cholesky diagonal, from the
    upper triangle; kinds 2 and 3 the product of the diagonal.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular

    Returns
    -------
    out : float
        the determinant; NaN on an error, 0 with -20071

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the kind is above 3
        -20068: the matrix does not pass the screen
        -20071: kind 1: the matrix is not positive definite
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `determinant_kind_complex`. The function ZemFunc204 (MatDeterminantKind) of the C
    library.

    Example
    -------
    >>> out = qv.determinant_kind(a)
    """
    if rt.is_complex(a):
        return determinant_kind_complex(a=a, kind=kind)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(a, (n, n), "a")
    out_ = ctypes.c_double()
    status = _ZemFunc204(rt.pointer(a), n, kind, ctypes.byref(out_))
    rt.check(status, "determinant_kind")
    return out_.value


_ZemFunc220 = rt.bind("ZemFunc220", "status", "plup")


def determinant_kind_complex(a, kind=MatrixKind.GENERAL):
    r"""The determinant of a square matrix of the kind that is named.

    Order 2 is a00 a11 - a01 a10 for every kind. Otherwise: kind 0 the signed product of the pivots, exactly 0 for
    a singular matrix, which is no error; kind 1 the square of the product of the Cholesky diagonal, from the
    upper triangle; kinds 2 and 3 the product of the diagonal.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix
    kind : MatrixKind, its name, or int, default MatrixKind.GENERAL
        0 general, 1 positive definite, 2 lower triangular, 3 upper triangular

    Returns
    -------
    out : complex
        the determinant; NaN on an error, 0 with -20071

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the kind is above 3
        -20068: the matrix does not pass the screen
        -20071: kind 1: the matrix is not positive definite
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc220 (MatDeterminantKindComplex) of the C library.

    Example
    -------
    >>> out = qv.determinant_kind_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    kind = rt.choice(kind, MatrixKind, "kind")
    rt.fits(a, (n, n), "a")
    out_ = rt.Complex()
    status = _ZemFunc220(rt.pointer(a), n, kind, ctypes.byref(out_))
    rt.check(status, "determinant_kind_complex")
    return complex(out_.re, out_.im)


_ZemFunc175 = rt.bind("ZemFunc175", "status", "plp")


def trace(a):
    r"""The trace of a square matrix, added in order.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix

    Returns
    -------
    out : float
        the sum of the diagonal

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched

    Notes
    -----
    Complex arrays go to `trace_complex`. The function ZemFunc175 (MatTrace) of the C library.

    Example
    -------
    >>> out = qv.trace(a)
    """
    if rt.is_complex(a):
        return trace_complex(a=a)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    out_ = ctypes.c_double()
    status = _ZemFunc175(rt.pointer(a), n, ctypes.byref(out_))
    rt.check(status, "trace")
    return out_.value


_ZemFunc225 = rt.bind("ZemFunc225", "status", "plp")


def trace_complex(a):
    r"""The trace of a square matrix, added in order.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix

    Returns
    -------
    out : complex
        the sum of the diagonal

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched

    Notes
    -----
    The function ZemFunc225 (MatTraceComplex) of the C library.

    Example
    -------
    >>> out = qv.trace_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    out_ = rt.Complex()
    status = _ZemFunc225(rt.pointer(a), n, ctypes.byref(out_))
    rt.check(status, "trace_complex")
    return complex(out_.re, out_.im)


_ZemFunc206 = rt.bind("ZemFunc206", "status", "pllup")


def matrix_norm(a, selector=MatrixNorm.TWO):
    r"""A norm of a matrix. 0: the largest singular value; 1: the largest column sum of magnitudes; 2: the root of the
    sum of all squared magnitudes; 3: the largest row sum.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix
    selector : MatrixNorm, its name, or int, default MatrixNorm.TWO
        0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm

    Returns
    -------
    out : float
        the norm; NaN on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the selector is above 3
        -20068: the matrix does not pass the screen
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `matrix_norm_complex`. The function ZemFunc206 (MatNorm) of the C library.

    Example
    -------
    >>> out = qv.matrix_norm(a)
    """
    if rt.is_complex(a):
        return matrix_norm_complex(a=a, selector=selector)
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    selector = rt.choice(selector, MatrixNorm, "selector")
    out_ = ctypes.c_double()
    status = _ZemFunc206(rt.pointer(a), m, n, selector, ctypes.byref(out_))
    rt.check(status, "matrix_norm")
    return out_.value


_ZemFunc223 = rt.bind("ZemFunc223", "status", "pllup")


def matrix_norm_complex(a, selector=MatrixNorm.TWO):
    r"""A norm of a matrix. 0: the largest singular value; 1: the largest column sum of magnitudes; 2: the root of the
    sum of all squared magnitudes; 3: the largest row sum.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix
    selector : MatrixNorm, its name, or int, default MatrixNorm.TWO
        0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm

    Returns
    -------
    out : float
        the norm; NaN on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the selector is above 3
        -20068: the matrix does not pass the screen
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc223 (MatNormComplex) of the C library.

    Example
    -------
    >>> out = qv.matrix_norm_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    selector = rt.choice(selector, MatrixNorm, "selector")
    out_ = ctypes.c_double()
    status = _ZemFunc223(rt.pointer(a), m, n, selector, ctypes.byref(out_))
    rt.check(status, "matrix_norm_complex")
    return out_.value


_ZemFunc205 = rt.bind("ZemFunc205", "status", "pllup")


def condition_number(a, selector=MatrixNorm.TWO):
    r"""The condition number of a matrix. 0: the largest over the smallest singular value, of any shape; 1 to 3: the
    norm of A times the norm of its inverse.

    A singular matrix has +Inf, which is no error.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix
    selector : MatrixNorm, its name, or int, default MatrixNorm.TWO
        0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm

    Returns
    -------
    out : float
        the condition number; NaN on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the selector is above 3
        -20068: the matrix does not pass the screen
        -20040: selectors 1 to 3: m and n differ
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `condition_number_complex`. The function ZemFunc205 (MatConditionNumber) of the C
    library.

    Example
    -------
    >>> out = qv.condition_number(a)
    """
    if rt.is_complex(a):
        return condition_number_complex(a=a, selector=selector)
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    selector = rt.choice(selector, MatrixNorm, "selector")
    out_ = ctypes.c_double()
    status = _ZemFunc205(rt.pointer(a), m, n, selector, ctypes.byref(out_))
    rt.check(status, "condition_number")
    return out_.value


_ZemFunc222 = rt.bind("ZemFunc222", "status", "pllup")


def condition_number_complex(a, selector=MatrixNorm.TWO):
    r"""The condition number of a matrix. 0: the largest over the smallest singular value, of any shape; 1 to 3: the
    norm of A times the norm of its inverse.

    A singular matrix has +Inf, which is no error.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix
    selector : MatrixNorm, its name, or int, default MatrixNorm.TWO
        0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm

    Returns
    -------
    out : float
        the condition number; NaN on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20061: the selector is above 3
        -20068: the matrix does not pass the screen
        -20040: selectors 1 to 3: m and n differ
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc222 (MatConditionNumberComplex) of the C library.

    Example
    -------
    >>> out = qv.condition_number_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    selector = rt.choice(selector, MatrixNorm, "selector")
    out_ = ctypes.c_double()
    status = _ZemFunc222(rt.pointer(a), m, n, selector, ctypes.byref(out_))
    rt.check(status, "condition_number_complex")
    return out_.value


_ZemFunc207 = rt.bind("ZemFunc207", "status", "plldp")


def matrix_rank(a, tolerance=-1.0):
    r"""The number of singular values strictly above a tolerance.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix
    tolerance : float, default -1.0
        absolute; negative: max(m, n) s(0) 2.220446049250313e-16

    Returns
    -------
    rank : int
        the rank; -1 on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20068: the matrix does not pass the screen
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `matrix_rank_complex`. The function ZemFunc207 (MatRank) of the C library.

    Example
    -------
    >>> rank = qv.matrix_rank(a)
    """
    if rt.is_complex(a):
        return matrix_rank_complex(a=a, tolerance=tolerance)
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    tolerance = rt.real(tolerance, "tolerance")
    rank_ = ctypes.c_int64()
    status = _ZemFunc207(rt.pointer(a), m, n, tolerance, ctypes.byref(rank_))
    rt.check(status, "matrix_rank")
    return rank_.value


_ZemFunc215 = rt.bind("ZemFunc215", "status", "plldp")


def matrix_rank_complex(a, tolerance=-1.0):
    r"""The number of singular values strictly above a tolerance.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix
    tolerance : float, default -1.0
        absolute; negative: max(m, n) s(0) 2.220446049250313e-16

    Returns
    -------
    rank : int
        the rank; -1 on an error

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20068: the matrix does not pass the screen
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc215 (MatRankComplex) of the C library.

    Example
    -------
    >>> rank = qv.matrix_rank_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    tolerance = rt.real(tolerance, "tolerance")
    rank_ = ctypes.c_int64()
    status = _ZemFunc215(rt.pointer(a), m, n, tolerance, ctypes.byref(rank_))
    rt.check(status, "matrix_rank_complex")
    return rank_.value


_ZemFunc200 = rt.bind("ZemFunc200", "status", "plldp")


def pseudo_inverse(a, tolerance=-1.0, *, out=None):
    r"""The Moore-Penrose pseudo-inverse, V S+ U^H of the economy singular value decomposition.

    Singular values at or below the tolerance count as 0. out may be a; it is written on success only.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix
    tolerance : float, default -1.0
        absolute; negative: max(m, n) s(0) 2.220446049250313e-16
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n, m)
        the pseudo-inverse

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20068: the matrix does not pass the screen
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `pseudo_inverse_complex`. The function ZemFunc200 (MatPseudoInverse) of the C library.

    Example
    -------
    >>> out = qv.pseudo_inverse(a)
    """
    if rt.is_complex(a):
        return pseudo_inverse_complex(a=a, tolerance=tolerance, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    tolerance = rt.real(tolerance, "tolerance")
    out_ = rt.result(out, (n, m), rt.F8, (a,))
    status = _ZemFunc200(rt.pointer(a), m, n, tolerance, rt.pointer(out_))
    rt.check(status, "pseudo_inverse")
    return rt.deliver(out_, out)


_ZemFunc229 = rt.bind("ZemFunc229", "status", "plldp")


def pseudo_inverse_complex(a, tolerance=-1.0, *, out=None):
    r"""The Moore-Penrose pseudo-inverse, V S+ U^H of the economy singular value decomposition.

    Singular values at or below the tolerance count as 0. out may be a; it is written on success only.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix
    tolerance : float, default -1.0
        absolute; negative: max(m, n) s(0) 2.220446049250313e-16
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n, m)
        the pseudo-inverse

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20068: the matrix does not pass the screen
        -20062: the singular values do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc229 (MatPseudoInverseComplex) of the C library.

    Example
    -------
    >>> out = qv.pseudo_inverse_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    tolerance = rt.real(tolerance, "tolerance")
    out_ = rt.result(out, (n, m), rt.C16, (a,))
    status = _ZemFunc229(rt.pointer(a), m, n, tolerance, rt.pointer(out_))
    rt.check(status, "pseudo_inverse_complex")
    return rt.deliver(out_, out)


_ZemFunc209 = rt.bind("ZemFunc209", "status", "plp")


def is_positive_definite(a):
    r"""Tests for positive definiteness.

    A matrix that differs from its (conjugate) transpose in one bit, or holds a NaN, is not, and no eigenvalue is
    computed. Otherwise each eigenvalue must exceed 2.220446049250313e-16 times the largest magnitude of them.

    Parameters
    ----------
    a : array_like of float64, shape (n, n)
        the matrix

    Returns
    -------
    flag : bool
        1 if the matrix is positive definite, else 0

    Raises
    ------
    QuorvanError
        -20003: n is below 1; flag is untouched
        -20068: the symmetric matrix does not pass the screen
        -20062: the eigenvalues do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `is_positive_definite_complex`. The function ZemFunc209 (MatIsPositiveDefinite) of the C
    library.

    Example
    -------
    >>> flag = qv.is_positive_definite(a)
    """
    if rt.is_complex(a):
        return is_positive_definite_complex(a=a)
    a = rt.array(a, rt.F8, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    flag_ = ctypes.c_uint32()
    status = _ZemFunc209(rt.pointer(a), n, ctypes.byref(flag_))
    rt.check(status, "is_positive_definite")
    return bool(flag_.value)


_ZemFunc226 = rt.bind("ZemFunc226", "status", "plp")


def is_positive_definite_complex(a):
    r"""Tests for positive definiteness.

    A matrix that differs from its (conjugate) transpose in one bit, or holds a NaN, is not, and no eigenvalue is
    computed. Otherwise each eigenvalue must exceed 2.220446049250313e-16 times the largest magnitude of them.

    Parameters
    ----------
    a : array_like of complex128, shape (n, n)
        the matrix

    Returns
    -------
    flag : bool
        1 if the matrix is positive definite, else 0

    Raises
    ------
    QuorvanError
        -20003: n is below 1; flag is untouched
        -20068: the symmetric matrix does not pass the screen
        -20062: the eigenvalues do not converge
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc226 (MatIsPositiveDefiniteComplex) of the C library.

    Example
    -------
    >>> flag = qv.is_positive_definite_complex(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    n = a.shape[0]
    rt.fits(a, (n, n), "a")
    flag_ = ctypes.c_uint32()
    status = _ZemFunc226(rt.pointer(a), n, ctypes.byref(flag_))
    rt.check(status, "is_positive_definite_complex")
    return bool(flag_.value)


_ZemFunc119 = rt.bind("ZemFunc119", "status", "pplllp")


def matrix_multiply(a, b, *, out=None):
    r"""The product A B. Without rows or columns nothing is done; without an inner size the product is 0. out may be a
    or b.

    Parameters
    ----------
    a : array_like of float64, shape (rows_a, cols_a)
        the matrix A
    b : array_like of float64, shape (cols_a, cols_b)
        the matrix B
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows_a, cols_b)
        the product

    Raises
    ------
    QuorvanError
        -20004: a size is below 0
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    Complex arrays go to `matrix_multiply_complex`. The function ZemFunc119 (MatMultiply) of the C library.

    Example
    -------
    >>> out = qv.matrix_multiply(a, b)
    """
    if rt.is_complex(a, b):
        return matrix_multiply_complex(a=a, b=b, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 2, "b")
    rows_a = a.shape[0]
    cols_a = a.shape[1]
    cols_b = b.shape[1]
    rt.fits(b, (cols_a, cols_b), "b")
    out_ = rt.result(out, (rows_a, cols_b), rt.F8, (a, b))
    status = _ZemFunc119(rt.pointer(a), rt.pointer(b), rows_a, cols_a, cols_b, rt.pointer(out_))
    rt.check(status, "matrix_multiply")
    return rt.deliver(out_, out)


_ZemFunc214 = rt.bind("ZemFunc214", "status", "pplllp")


def matrix_multiply_complex(a, b, *, out=None):
    r"""The product A B. Without rows or columns nothing is done; without an inner size the product is 0. out may be a
    or b.

    Parameters
    ----------
    a : array_like of complex128, shape (rows_a, cols_a)
        the matrix A
    b : array_like of complex128, shape (cols_a, cols_b)
        the matrix B
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (rows_a, cols_b)
        the product

    Raises
    ------
    QuorvanError
        -20004: a size is below 0
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    The function ZemFunc214 (MatMultiplyComplex) of the C library.

    Example
    -------
    >>> out = qv.matrix_multiply_complex(a, b)
    """
    a = rt.array(a, rt.C16, 2, "a")
    b = rt.array(b, rt.C16, 2, "b")
    rows_a = a.shape[0]
    cols_a = a.shape[1]
    cols_b = b.shape[1]
    rt.fits(b, (cols_a, cols_b), "b")
    out_ = rt.result(out, (rows_a, cols_b), rt.C16, (a, b))
    status = _ZemFunc214(rt.pointer(a), rt.pointer(b), rows_a, cols_a, cols_b, rt.pointer(out_))
    rt.check(status, "matrix_multiply_complex")
    return rt.deliver(out_, out)


_ZemFunc370 = rt.bind("ZemFunc370", "status", "ppllp")


def matrix_vector_multiply(a, x, *, out=None):
    r"""The product A x. y may be a or x.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix
    x : array_like of float64, shape (n,)
        the vector
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : float64 array of shape (m,)
        the product

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where y is an input

    Notes
    -----
    Complex arrays go to `matrix_vector_multiply_complex`. The function ZemFunc370 (MatVectorMultiply) of the C
    library.

    Example
    -------
    >>> y = qv.matrix_vector_multiply(a, x)
    """
    if rt.is_complex(a, x):
        return matrix_vector_multiply_complex(a=a, x=x, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    x = rt.array(x, rt.F8, 1, "x")
    m = a.shape[0]
    n = a.shape[1]
    rt.fits(x, (n,), "x")
    y_ = rt.result(out, (m,), rt.F8, (a, x))
    status = _ZemFunc370(rt.pointer(a), rt.pointer(x), m, n, rt.pointer(y_))
    rt.check(status, "matrix_vector_multiply")
    return rt.deliver(y_, out)


_ZemFunc371 = rt.bind("ZemFunc371", "status", "ppllp")


def matrix_vector_multiply_complex(a, x, *, out=None):
    r"""The product A x. y may be a or x.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix
    x : array_like of complex128, shape (n,)
        the vector
    out : array or None
        the array for `y`; it may be an input, to work in place

    Returns
    -------
    y : complex128 array of shape (m,)
        the product

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where y is an input

    Notes
    -----
    The function ZemFunc371 (MatVectorMultiplyComplex) of the C library.

    Example
    -------
    >>> y = qv.matrix_vector_multiply_complex(a, x)
    """
    a = rt.array(a, rt.C16, 2, "a")
    x = rt.array(x, rt.C16, 1, "x")
    m = a.shape[0]
    n = a.shape[1]
    rt.fits(x, (n,), "x")
    y_ = rt.result(out, (m,), rt.C16, (a, x))
    status = _ZemFunc371(rt.pointer(a), rt.pointer(x), m, n, rt.pointer(y_))
    rt.check(status, "matrix_vector_multiply_complex")
    return rt.deliver(y_, out)


_ZemFunc191 = rt.bind("ZemFunc191", "status", "pplp")


def vector_dot(x, y):
    r"""The sum of x[i] y[i]; nothing is conjugated.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        a vector
    y : array_like of float64, shape (n,)
        a vector

    Returns
    -------
    out : float
        the sum of x[i] y[i]

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    Complex arrays go to `vector_dot_complex`. The function ZemFunc191 (VecDot) of the C library.

    Example
    -------
    >>> out = qv.vector_dot(x, y)
    """
    if rt.is_complex(x, y):
        return vector_dot_complex(x=x, y=y)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = ctypes.c_double()
    status = _ZemFunc191(rt.pointer(x), rt.pointer(y), n, ctypes.byref(out_))
    rt.check(status, "vector_dot")
    return out_.value


_ZemFunc221 = rt.bind("ZemFunc221", "status", "pplp")


def vector_dot_complex(x, y):
    r"""The sum of x[i] y[i]; nothing is conjugated.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        a vector
    y : array_like of complex128, shape (n,)
        a vector

    Returns
    -------
    out : complex
        the sum of x[i] y[i]

    Raises
    ------
    QuorvanError
        -20003: n is below 1

    Notes
    -----
    The function ZemFunc221 (VecDotComplex) of the C library.

    Example
    -------
    >>> out = qv.vector_dot_complex(x, y)
    """
    x = rt.array(x, rt.C16, 1, "x")
    y = rt.array(y, rt.C16, 1, "y")
    n = x.shape[0]
    rt.fits(y, (n,), "y")
    out_ = rt.Complex()
    status = _ZemFunc221(rt.pointer(x), rt.pointer(y), n, ctypes.byref(out_))
    rt.check(status, "vector_dot_complex")
    return complex(out_.re, out_.im)


_ZemFunc203 = rt.bind("ZemFunc203", "status", "plplp")


def vector_outer_product(x, y, *, out=None):
    r"""The outer product, out[i ny + j] = x[i] y[j]; nothing is conjugated. out may be x or y.

    Parameters
    ----------
    x : array_like of float64, shape (nx,)
        a vector
    y : array_like of float64, shape (ny,)
        a vector
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (nx, ny)
        the products

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    Complex arrays go to `vector_outer_product_complex`. The function ZemFunc203 (VecOuterProduct) of the C
    library.

    Example
    -------
    >>> out = qv.vector_outer_product(x, y)
    """
    if rt.is_complex(x, y):
        return vector_outer_product_complex(x=x, y=y, out=out)
    x = rt.array(x, rt.F8, 1, "x")
    y = rt.array(y, rt.F8, 1, "y")
    nx = x.shape[0]
    ny = y.shape[0]
    out_ = rt.result(out, (nx, ny), rt.F8, (x, y))
    status = _ZemFunc203(rt.pointer(x), nx, rt.pointer(y), ny, rt.pointer(out_))
    rt.check(status, "vector_outer_product")
    return rt.deliver(out_, out)


_ZemFunc224 = rt.bind("ZemFunc224", "status", "plplp")


def vector_outer_product_complex(x, y, *, out=None):
    r"""The outer product, out[i ny + j] = x[i] y[j]; nothing is conjugated. out may be x or y.

    Parameters
    ----------
    x : array_like of complex128, shape (nx,)
        a vector
    y : array_like of complex128, shape (ny,)
        a vector
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (nx, ny)
        the products

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    The function ZemFunc224 (VecOuterProductComplex) of the C library.

    Example
    -------
    >>> out = qv.vector_outer_product_complex(x, y)
    """
    x = rt.array(x, rt.C16, 1, "x")
    y = rt.array(y, rt.C16, 1, "y")
    nx = x.shape[0]
    ny = y.shape[0]
    out_ = rt.result(out, (nx, ny), rt.C16, (x, y))
    status = _ZemFunc224(rt.pointer(x), nx, rt.pointer(y), ny, rt.pointer(out_))
    rt.check(status, "vector_outer_product_complex")
    return rt.deliver(out_, out)


_ZemFunc358 = rt.bind("ZemFunc358", "status", "ppllllp")


def kronecker(a, b, *, out=None):
    r"""The Kronecker product: the block matrix of the a(i, j) B. out may be a or b.

    Parameters
    ----------
    a : array_like of float64, shape (rows_a, cols_a)
        the matrix A
    b : array_like of float64, shape (rows_b, cols_b)
        the matrix B
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (rows_a * rows_b, cols_a * cols_b)
        rows_a rows_b by cols_a cols_b

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    Complex arrays go to `kronecker_complex`. The function ZemFunc358 (MatKronecker) of the C library.

    Example
    -------
    >>> out = qv.kronecker(a, b)
    """
    if rt.is_complex(a, b):
        return kronecker_complex(a=a, b=b, out=out)
    a = rt.array(a, rt.F8, 2, "a")
    b = rt.array(b, rt.F8, 2, "b")
    rows_a = a.shape[0]
    cols_a = a.shape[1]
    rows_b = b.shape[0]
    cols_b = b.shape[1]
    out_ = rt.result(out, (rows_a * rows_b, cols_a * cols_b), rt.F8, (a, b))
    status = _ZemFunc358(rt.pointer(a), rt.pointer(b), rows_a, cols_a, rows_b, cols_b, rt.pointer(out_))
    rt.check(status, "kronecker")
    return rt.deliver(out_, out)


_ZemFunc359 = rt.bind("ZemFunc359", "status", "ppllllp")


def kronecker_complex(a, b, *, out=None):
    r"""The Kronecker product: the block matrix of the a(i, j) B. out may be a or b.

    Parameters
    ----------
    a : array_like of complex128, shape (rows_a, cols_a)
        the matrix A
    b : array_like of complex128, shape (rows_b, cols_b)
        the matrix B
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (rows_a * rows_b, cols_a * cols_b)
        rows_a rows_b by cols_a cols_b

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    The function ZemFunc359 (MatKroneckerComplex) of the C library.

    Example
    -------
    >>> out = qv.kronecker_complex(a, b)
    """
    a = rt.array(a, rt.C16, 2, "a")
    b = rt.array(b, rt.C16, 2, "b")
    rows_a = a.shape[0]
    cols_a = a.shape[1]
    rows_b = b.shape[0]
    cols_b = b.shape[1]
    out_ = rt.result(out, (rows_a * rows_b, cols_a * cols_b), rt.C16, (a, b))
    status = _ZemFunc359(rt.pointer(a), rt.pointer(b), rows_a, cols_a, rows_b, cols_b, rt.pointer(out_))
    rt.check(status, "kronecker_complex")
    return rt.deliver(out_, out)


_ZemFunc177 = rt.bind("ZemFunc177", "status", "pllp")


def transpose(a, *, out=None):
    r"""The transpose. out may be a.

    Parameters
    ----------
    a : array_like of float64, shape (m, n)
        the matrix
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n, m)
        the transpose

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, in place

    Notes
    -----
    The function ZemFunc177 (MatTranspose) of the C library.

    Example
    -------
    >>> out = qv.transpose(a)
    """
    a = rt.array(a, rt.F8, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    out_ = rt.result(out, (n, m), rt.F8, (a,))
    status = _ZemFunc177(rt.pointer(a), m, n, rt.pointer(out_))
    rt.check(status, "transpose")
    return rt.deliver(out_, out)


_ZemFunc217 = rt.bind("ZemFunc217", "status", "pllp")


def conjugate_transpose(a, *, out=None):
    r"""The conjugate transpose. out may be a.

    Parameters
    ----------
    a : array_like of complex128, shape (m, n)
        the matrix
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (n, m)
        the conjugate transpose

    Raises
    ------
    QuorvanError
        -20003: a size is below 1
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, in place

    Notes
    -----
    The function ZemFunc217 (MatConjugateTranspose) of the C library.

    Example
    -------
    >>> out = qv.conjugate_transpose(a)
    """
    a = rt.array(a, rt.C16, 2, "a")
    m = a.shape[0]
    n = a.shape[1]
    out_ = rt.result(out, (n, m), rt.C16, (a,))
    status = _ZemFunc217(rt.pointer(a), m, n, rt.pointer(out_))
    rt.check(status, "conjugate_transpose")
    return rt.deliver(out_, out)


_ZemFunc208 = rt.bind("ZemFunc208", "status", "ulplplp")


def special_matrix(type, order=0, first=None, second=None, *, out=None):
    r"""Builds a matrix from vectors. 1: first on the diagonal. 2: first_length by second_length, first[i - j] on and
    below the diagonal, second[j - i] above; second[0] is not used. 3: row i holds first[i] to the powers
    first_length - 1 down to 0. 4: first_length - 1 square, -first[k + 1] / first[0] in the first row and ones
    below the diagonal.

    Only the sizes that a type uses are looked at. out may be one of the vectors.

    Parameters
    ----------
    type : SpecialMatrix, its name, or int
        0 identity, 1 diagonal, 2 Toeplitz, 3 Vandermonde, 4 companion
    order : int, default 0
        of the identity
    first : array_like of float64, shape (first_length,), default None
        diagonal, first column, nodes or coefficients; not read for the identity
    second : array_like of float64, shape (second_length,), default None
        first row of the Toeplitz matrix; not read for other types
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (order, order) if type == 0 else (first_length, second_length) if type == 2 else
    (first_length - 1, first_length - 1) if type == 4 else (first_length, first_length)
        the matrix

    Raises
    ------
    QuorvanError
        -20003: a size that the type uses is below 1
        -20006: type 4: first_length is below 2
        -20061: the type is above 4
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    Complex arrays go to `special_matrix_complex`. The function ZemFunc208 (MatBuildSpecial) of the C library.

    Example
    -------
    >>> out = qv.special_matrix(type)
    """
    if rt.is_complex(first, second):
        return special_matrix_complex(type=type, order=order, first=first, second=second, out=out)
    first = None if first is None else rt.array(first, rt.F8, 1, "first")
    second = None if second is None else rt.array(second, rt.F8, 1, "second")
    first_length = 0 if first is None else first.shape[0]
    second_length = 0 if second is None else second.shape[0]
    type = rt.choice(type, SpecialMatrix, "type")
    order = rt.i64(order, "order")
    out_ = rt.result(out, (order, order) if type == 0 else (first_length, second_length) if type == 2 else
            (first_length - 1, first_length - 1) if type == 4 else (first_length, first_length), rt.F8, (first,
            second))
    status = _ZemFunc208(type, order, rt.pointer(first), first_length, rt.pointer(second), second_length,
            rt.pointer(out_))
    rt.check(status, "special_matrix")
    return rt.deliver(out_, out)


_ZemFunc227 = rt.bind("ZemFunc227", "status", "ulplplp")


def special_matrix_complex(type, order=0, first=None, second=None, *, out=None):
    r"""Builds a matrix from vectors. 1: first on the diagonal. 2: first_length by second_length, first[i - j] on and
    below the diagonal, second[j - i] above; second[0] is not used. 3: row i holds first[i] to the powers
    first_length - 1 down to 0. 4: first_length - 1 square, -first[k + 1] / first[0] in the first row and ones
    below the diagonal.

    Only the sizes that a type uses are looked at. out may be one of the vectors.

    Parameters
    ----------
    type : SpecialMatrix, its name, or int
        0 identity, 1 diagonal, 2 Toeplitz, 3 Vandermonde, 4 companion
    order : int, default 0
        of the identity
    first : array_like of complex128, shape (first_length,), default None
        diagonal, first column, nodes or coefficients; not read for the identity
    second : array_like of complex128, shape (second_length,), default None
        first row of the Toeplitz matrix; not read for other types
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : complex128 array of shape (order, order) if type == 0 else (first_length, second_length) if type == 2
    else (first_length - 1, first_length - 1) if type == 4 else (first_length, first_length)
        the matrix

    Raises
    ------
    QuorvanError
        -20003: a size that the type uses is below 1
        -20006: type 4: first_length is below 2
        -20061: the type is above 4
        -20046: a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
        -20001: memory is exhausted, where out is an input

    Notes
    -----
    The function ZemFunc227 (MatBuildSpecialComplex) of the C library.

    Example
    -------
    >>> out = qv.special_matrix_complex(type)
    """
    first = None if first is None else rt.array(first, rt.C16, 1, "first")
    second = None if second is None else rt.array(second, rt.C16, 1, "second")
    first_length = 0 if first is None else first.shape[0]
    second_length = 0 if second is None else second.shape[0]
    type = rt.choice(type, SpecialMatrix, "type")
    order = rt.i64(order, "order")
    out_ = rt.result(out, (order, order) if type == 0 else (first_length, second_length) if type == 2 else
            (first_length - 1, first_length - 1) if type == 4 else (first_length, first_length), rt.C16, (first,
            second))
    status = _ZemFunc227(type, order, rt.pointer(first), first_length, rt.pointer(second), second_length,
            rt.pointer(out_))
    rt.check(status, "special_matrix_complex")
    return rt.deliver(out_, out)


_ZemFunc394 = rt.bind("ZemFunc394", "status", "pludp")


def vector_norm(x, selector=VectorNorm.TWO, p=2.0):
    r"""The p-norm of a vector: the p-th root of the sum of the p-th powers of the magnitudes. +Inf gives the largest
    magnitude, -Inf the smallest, both over the elements that are numbers.

    Parameters
    ----------
    x : array_like of float64, shape (n,)
        the vector
    selector : VectorNorm, its name, or int, default VectorNorm.TWO
        0: p = 1; 1: p = 2; 2: p = +Inf; 3: p = -Inf; 4: the argument p
    p : float, default 2.0
        any number but 0; used by selector 4

    Returns
    -------
    out : float
        the norm

    Raises
    ------
    QuorvanError
        -20061: the selector is above 4
        -20003: n is below 1
        -20068: p is NaN
        -20141: p is 0

    Notes
    -----
    Complex arrays go to `vector_norm_complex`. The function ZemFunc394 (VecNorm) of the C library.

    Example
    -------
    >>> out = qv.vector_norm(x)
    """
    if rt.is_complex(x):
        return vector_norm_complex(x=x, selector=selector, p=p)
    x = rt.array(x, rt.F8, 1, "x")
    n = x.shape[0]
    selector = rt.choice(selector, VectorNorm, "selector")
    p = rt.real(p, "p")
    out_ = ctypes.c_double()
    status = _ZemFunc394(rt.pointer(x), n, selector, p, ctypes.byref(out_))
    rt.check(status, "vector_norm")
    return out_.value


_ZemFunc395 = rt.bind("ZemFunc395", "status", "pludp")


def vector_norm_complex(x, selector=VectorNorm.TWO, p=2.0):
    r"""The p-norm of a vector: the p-th root of the sum of the p-th powers of the magnitudes. +Inf gives the largest
    magnitude, -Inf the smallest, both over the elements that are numbers.

    Parameters
    ----------
    x : array_like of complex128, shape (n,)
        the vector
    selector : VectorNorm, its name, or int, default VectorNorm.TWO
        0: p = 1; 1: p = 2; 2: p = +Inf; 3: p = -Inf; 4: the argument p
    p : float, default 2.0
        any number but 0; used by selector 4

    Returns
    -------
    out : float
        the norm

    Raises
    ------
    QuorvanError
        -20061: the selector is above 4
        -20003: n is below 1
        -20068: p is NaN
        -20141: p is 0

    Notes
    -----
    The function ZemFunc395 (VecNormComplex) of the C library.

    Example
    -------
    >>> out = qv.vector_norm_complex(x)
    """
    x = rt.array(x, rt.C16, 1, "x")
    n = x.shape[0]
    selector = rt.choice(selector, VectorNorm, "selector")
    p = rt.real(p, "p")
    out_ = ctypes.c_double()
    status = _ZemFunc395(rt.pointer(x), n, selector, p, ctypes.byref(out_))
    rt.check(status, "vector_norm_complex")
    return out_.value
