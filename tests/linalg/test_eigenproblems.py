"""Eigenproblems by their residuals and orders, and beside NumPy and SciPy."""

import pathlib
import sys

import numpy as np
import pytest
import scipy.linalg

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from famous import EPS, SQUARE, bound, frank, grcar, near, norm, orthonormal, random  # noqa: E402

square_matrix = pytest.mark.parametrize("a", SQUARE.values(), ids=SQUARE)
every_order = pytest.mark.parametrize("order", [0, 1, 2, 3, 4])


def pick(a, real, cplx):
    return cplx if a.dtype == complex else real


def check_vectors(a, values, vectors):
    """Residuals beside the norm of the matrix: a backward error of the provider's, whatever the condition."""
    near(a @ vectors, vectors * values, bound(a))
    near(np.linalg.norm(vectors, axis=0), np.ones(len(a)), 10 * len(a) * EPS)


def pairs_are_adjacent(values):
    i = 0
    while i < len(values):
        if values[i].imag != 0:
            assert values[i].imag > 0 and values[i + 1] == values[i].conj()
            i += 1
        i += 1


@square_matrix
def test_general_eigenvectors_have_small_residuals(qv, a):
    n = len(a)
    if norm(a) > 1e299 or 0 < norm(a) < 1e-299:
        a = a / norm(a)  # the products of this test would overflow
    values, vectors = np.empty(n, complex), np.empty((n, n), complex)
    if a.dtype == complex:
        assert qv.ZemFunc211(a, n, 0, 1, values, vectors) == 0
    else:
        assert qv.ZemFunc201(a, n, 1, values, vectors) == 0
        pairs_are_adjacent(values)
        assert np.all(vectors[:, values.imag == 0].imag == 0)
    check_vectors(a, values, vectors)


@pytest.mark.parametrize("name", ["scalar", "grcar", "identity", "random", "huge", "tiny", "complex", "complex 50"])
def test_general_eigenvalues_alone_are_numpys(qv, name):
    a = SQUARE[name]
    n = len(a)
    values = np.empty(n, complex)
    if a.dtype == complex:
        assert qv.ZemFunc211(a, n, 0, 0, values, None) == 0
    else:
        assert qv.ZemFunc201(a, n, 0, values, None) == 0
        pairs_are_adjacent(values)
    expected, left, right = scipy.linalg.eig(a / norm(a), left=True)
    # An eigenvalue moves by a backward error times its condition.
    condition = 1 / np.abs(np.sum(left.conj() * right, axis=0))
    for value in values / norm(a):
        i = np.argmin(np.abs(expected - value))
        assert abs(expected[i] - value) <= 20 * n * EPS * condition[i]


def movements(a):
    """How far each eigenvalue of `a` moves with a backward error: by that times its condition; as NumPy orders them."""
    values, left, right = scipy.linalg.eig(a, left=True)
    return values, bound(a) / np.abs(np.sum(left.conj() * right, axis=0))


def test_franks_eigenvalues_come_in_reciprocal_pairs(qv):
    n = 8
    values = np.empty(n, complex)
    assert qv.ZemFunc201(frank(n), n, 0, values, None) == 0
    values = np.sort(values.real)
    expected, moves = movements(frank(n))
    moves = moves[np.argsort(expected.real)]
    # The product of two values moves by each one's movement times the other.
    assert np.all(np.abs(values * values[::-1] - 1) <= moves * values[::-1] + moves[::-1] * values)


def test_companion_eigenvalues_are_the_roots(qv):
    a, values = SQUARE["companion"], np.empty(8, complex)
    assert qv.ZemFunc201(a, 8, 0, values, None) == 0
    # The backward error is that of the balanced matrix.
    balanced = scipy.linalg.matrix_balance(a, permute=False)[0]
    expected, moves = movements(balanced)
    moves = moves[np.argsort(expected.real)]
    assert np.all(np.abs(np.sort_complex(values) - np.arange(1.0, 9)) <= moves)


def symmetric_of(a):
    return (a + a.conj().T) / 2


@square_matrix
def test_symmetric_eigenvectors_are_orthonormal_with_small_residuals(qv, a):
    a = symmetric_of(a)
    n = len(a)
    noisy = np.triu(a) + np.tril(random(n, n, complex if a.dtype == complex else float, 20), -1)
    vectors = np.empty((n, n), a.dtype)
    values, alone = np.empty(n, a.dtype), np.empty(n, a.dtype)
    if a.dtype == complex:
        assert qv.ZemFunc211(noisy, n, 1, 1, values, vectors) == 0
        assert qv.ZemFunc211(noisy, n, 1, 0, alone, None) == 0
        assert np.all(values.imag == 0)
    else:
        assert qv.ZemFunc202(noisy, n, 1, values, vectors) == 0
        assert qv.ZemFunc202(noisy, n, 0, alone, None) == 0
    assert np.all(np.diff(values.real) >= 0)
    orthonormal(vectors)
    scale = norm(a) or 1.0
    near(a / scale @ vectors, vectors * (values / scale), 10 * n * EPS)
    near(values / scale, np.linalg.eigvalsh(a / scale).astype(a.dtype), 10 * n * EPS)
    near(alone / scale, values / scale, 10 * n * EPS)


def keys(values, order):
    return values.real if order in (1, 2) else np.abs(values)


def check_order(values, order, tolerance):
    """One key per block: the members of a pair have the same."""
    if order:
        steps = np.diff(keys(values, order))
        assert np.all(steps >= -tolerance) if order in (1, 3) else np.all(steps <= tolerance)


def check_blocks(t, values, tolerance):
    """Real Schur form: blocks of two rows exactly where pairs are, and their eigenvalues."""
    n = len(t)
    assert np.all(np.tril(t, -2) == 0)
    i = 0
    while i < n:
        if values[i].imag != 0:
            assert t[i + 1, i] != 0
            block = np.linalg.eigvals(t[i:i + 2, i:i + 2])
            near(np.sort_complex(block), np.sort_complex(values[i:i + 2]), tolerance)
            i += 1
        else:
            near(t[i, i], values[i].real, tolerance)
        if i + 1 < n:
            assert t[i + 1, i] == 0
        i += 1


@square_matrix
@every_order
def test_schur_form_gives_the_matrix_back_in_order(qv, a, order):
    n = len(a)
    q, t, values = np.empty_like(a), np.empty_like(a), np.empty(n, complex)
    export = pick(a, qv.ZemFunc258, qv.ZemFunc259)
    assert export(a, n, order, q, t, values) == 0
    orthonormal(q)
    near(q @ t @ q.conj().T, a, bound(a))
    check_order(values, order, 0)
    if a.dtype == complex:
        assert np.all(np.tril(t, -1) == 0)
        near(np.diag(t), values, bound(a))
    else:
        pairs_are_adjacent(values)
        # A 2 by 2 block of nearly equal eigenvalues moves by the root of the rounding.
        check_blocks(t, values, bound(a) + 4 * np.sqrt(EPS) * norm(a) * (np.abs(values.imag).max() > 0))
    alone, again = np.empty_like(a), np.empty(n, complex)
    assert export(a, n, order, None, alone, again) == 0
    assert sorted(np.abs(again)) == pytest.approx(sorted(np.abs(values)), abs=np.sqrt(EPS) * norm(a), rel=0.1)


@every_order
def test_schur_order_holds_on_many_matrices(qv, order):
    rng = np.random.default_rng(order)
    for n in (2, 3, 4, 5, 6, 9, 20, 41):
        for kind in (float, complex):
            a = rng.standard_normal((n, n)).astype(kind)
            if kind is complex:
                a += 1j * rng.standard_normal((n, n))
            q, t, values = np.empty_like(a), np.empty_like(a), np.empty(n, complex)
            assert pick(a, qv.ZemFunc258, qv.ZemFunc259)(a, n, order, q, t, values) == 0
            orthonormal(q)
            near(q @ t @ q.conj().T, a, bound(a))
            check_order(values, order, 0)
            expected = scipy.linalg.eigvals(a)
            for value in values:
                assert np.min(np.abs(expected - value)) <= 1e-9 * norm(a)  # conditions below 1e4 at these sizes


def test_schur_form_unsorted_is_scipys(qv):
    for kind, name in ((float, "real"), (complex, "complex")):
        a = random(12, 12, kind, 21)
        q, t, values = np.empty_like(a), np.empty_like(a), np.empty(12, complex)
        assert pick(a, qv.ZemFunc258, qv.ZemFunc259)(a, 12, 0, q, t, values) == 0
        expected, vectors = scipy.linalg.schur(a, output=name)
        # The vectors of this matrix move by less than 1e4 times a backward error.
        near(np.abs(t), np.abs(expected), 1e4 * bound(a))
        near(np.abs(q), np.abs(vectors), 1e4 * EPS)


PENCILS = {
    "scalar": (np.array([[3.0]]), np.array([[-2.0]])),
    "random": (random(12, 12, float, 30), random(12, 12, float, 31)),
    "random 40": (random(40, 40, float, 32), random(40, 40, float, 33)),
    "identity": (grcar(15), np.eye(15)),
    "infinite": (random(7, 7, float, 34), np.diag([1.0, 0, 2, 0, 3, 4, 0])),
    "singular B": (random(6, 6, float, 35), random(6, 2, float, 36) @ random(2, 6, float, 37)),
    "definite": (symmetric_of(random(9, 9, float, 38)), 9 * np.eye(9) + symmetric_of(random(9, 9, float, 39))),
    "negative": (random(8, 8, float, 40), -np.eye(8)),
    "complex": (random(11, 11, complex, 41), random(11, 11, complex, 42)),
    "complex 30": (random(30, 30, complex, 43), random(30, 30, complex, 44)),
    "complex infinite": (random(6, 6, complex, 45), np.diag([1j, 0, 2, 1, 0, 3])),
}
every_pencil = pytest.mark.parametrize("a, b", PENCILS.values(), ids=PENCILS)


def solve_qz(qv, a, b, order, factors=True, vectors=True):
    n, kind = len(a), a.dtype
    s, t = np.empty((n, n), kind), np.empty((n, n), kind)
    q, z = (np.empty((n, n), kind), np.empty((n, n), kind)) if factors else (None, None)
    right, left = (np.empty((n, n), complex), np.empty((n, n), complex)) if vectors else (None, None)
    alpha, beta = np.empty(n, complex), np.empty(n, kind)
    export = pick(a, qv.ZemFunc256, qv.ZemFunc257)
    return export(a, b, n, order, s, t, q, z, alpha, beta, right, left), s, t, q, z, alpha, beta, right, left


def check_qz(a, b, order, result):
    status, s, t, q, z, alpha, beta, right, left = result
    n = len(a)
    assert status == 0
    orthonormal(q)
    orthonormal(z)
    near(q @ s @ z.conj().T, a, bound(a))
    near(q @ t @ z.conj().T, b, bound(b))
    assert np.all(np.tril(t, -1) == 0)
    assert np.all(np.tril(s, -2 if a.dtype == float else -1) == 0)
    assert np.all(beta.imag == 0) and np.all(beta.real >= 0)
    if order:
        with np.errstate(all="ignore"):
            quotients = np.where(beta == 0, np.inf, keys(alpha, order) / beta.real)
        finite = beta != 0
        positions = np.flatnonzero(finite)
        if finite.all() or order == 1 or order == 3:
            assert np.all(np.diff(positions) == 1) and (len(positions) == 0 or positions[0] == 0)
        else:
            assert positions[-1] == n - 1 and np.all(np.diff(positions) == 1)
        steps = np.diff(quotients[finite])
        slack = 4 * EPS * np.max(np.abs(quotients[finite]), initial=0)  # the products of the test round, and so does this
        assert np.all(steps >= -slack) if order in (1, 3) else np.all(steps <= slack)
    if right is not None:
        scale = 20 * n * EPS * (norm(a) * np.abs(beta) + norm(b) * np.abs(alpha))
        # The largest element of a vector has |re| + |im| = 1.
        largest = np.max(np.abs(right.real) + np.abs(right.imag), axis=0)
        near(largest, np.ones(n), 8 * EPS)
        assert np.all(np.abs(a @ right * beta - b @ right * alpha) <= np.sqrt(n) * scale)
        residual = left.conj().T @ a * beta[:, None] - left.conj().T @ b * alpha[:, None]
        assert np.all(np.abs(residual) <= np.sqrt(n) * scale[:, None])


@every_pencil
@every_order
def test_qz_gives_both_matrices_back_in_order(qv, a, b, order):
    a, b = (x.astype(complex) if complex in (a.dtype, b.dtype) else x for x in (a, b))
    result = solve_qz(qv, a, b, order)
    check_qz(a, b, order, result)
    # What is not asked for changes nothing but the rounding of what is.
    status, s, t, _, _, alpha, beta, _, _ = solve_qz(qv, a, b, order, factors=False, vectors=False)
    assert status == 0
    with np.errstate(all="ignore"):
        first, second = (np.where(x == 0, np.inf, np.abs(y / x)) for y, x in ((alpha, beta), (result[5], result[6])))
    near(np.sort(1 / (1 + first)), np.sort(1 / (1 + second)), 1e-8)  # conditions below 1e7, as below


@every_order
def test_qz_order_holds_on_many_pencils(qv, order):
    rng = np.random.default_rng(order)
    for n in (2, 3, 4, 5, 6, 9, 20, 33):
        for kind in (float, complex):
            a, b = rng.standard_normal((2, n, n)).astype(kind)
            if kind is complex:
                a, b = a + 1j * rng.standard_normal((n, n)), b + 1j * rng.standard_normal((n, n))
            check_qz(a, b, order, solve_qz(qv, a, b, order))


@every_pencil
def test_generalised_eigenvalues_are_scipys(qv, a, b):
    a, b = (x.astype(complex) if complex in (a.dtype, b.dtype) else x for x in (a, b))
    n = len(a)
    values, right, left = np.empty(n, complex), np.empty((n, n), complex), np.empty((n, n), complex)
    assert pick(a, qv.ZemFunc252, qv.ZemFunc253)(a, b, n, values, right, left) == 0
    expected = scipy.linalg.eigvals(a, b)
    infinite = ~np.isfinite(values)
    assert infinite.sum() == (~np.isfinite(expected)).sum() or np.abs(values[~infinite]).max() > 1e13
    for value in values[~infinite]:
        with np.errstate(invalid="ignore"):  # infinite eigenvalues are at no distance
            distance = np.abs(expected - value) / (1 + abs(value)) / (1 + np.abs(expected))
        # In the chordal metric, in which the conditions of these pencils stay far below 1e7.
        assert np.nanmin(distance) <= 1e-8 or abs(value) > 1e13
    x, y, finite = right[:, ~infinite], left[:, ~infinite], values[~infinite]
    size = 20 * n ** 1.5 * EPS * (norm(a) + norm(b) * np.abs(finite))
    assert np.all(np.abs(a @ x - b @ x * finite) <= size)
    assert np.all(np.abs((y.conj().T @ a) - (finite[:, None] * (y.conj().T @ b))) <= size[:, None])


@pytest.mark.parametrize("right, left", [(True, False), (False, True), (False, False)])
@pytest.mark.parametrize("kind", [float, complex])
def test_one_side_of_vectors_is_that_of_both(qv, right, left, kind):
    a, b = random(9, 9, kind, 50), random(9, 9, kind, 51)
    export = pick(a, qv.ZemFunc252, qv.ZemFunc253)
    values, both_right, both_left = np.empty(9, complex), np.empty((9, 9), complex), np.empty((9, 9), complex)
    assert export(a, b, 9, values, both_right, both_left) == 0
    again = np.empty(9, complex)
    r, l = (np.empty((9, 9), complex) if wanted else None for wanted in (right, left))
    assert export(a, b, 9, again, r, l) == 0
    near(again, values, 1e-10 * np.abs(values).max())
    if right:
        near(r, both_right, 1e-9)
    if left:
        near(l, both_left, 1e-9)
