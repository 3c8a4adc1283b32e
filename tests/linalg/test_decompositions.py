"""Decompositions by their residuals and their orthogonality, and beside NumPy and SciPy."""

import pathlib
import sys

import numpy as np
import pytest
import scipy.linalg

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from famous import ANY, EPS, SQUARE, bound, kahan, low_rank, near, norm, orthonormal, random  # noqa: E402

any_matrix = pytest.mark.parametrize("a", ANY.values(), ids=ANY)
square_matrix = pytest.mark.parametrize("a", SQUARE.values(), ids=SQUARE)


def pick(a, real, cplx):
    return cplx if a.dtype == complex else real


@any_matrix
def test_singular_values_are_numpys(qv, a):
    m, n = a.shape
    s = np.empty(min(m, n), a.dtype)
    assert pick(a, qv.ZemFunc195, qv.ZemFunc216)(a, m, n, s) == 0
    assert np.all(s.imag == 0) and np.all(np.diff(s.real) <= 0)
    near(s.real, np.linalg.svd(a, compute_uv=False), bound(a))


def check_svd(a, u, s, v):
    k = min(a.shape)
    assert np.all(s.imag == 0) and np.all(np.diff(s.real) <= 0) and np.all(s.real >= 0)
    orthonormal(u)
    orthonormal(v)
    near((u[:, :k] * s.real) @ v[:, :k].conj().T, a, bound(a))
    near(s.real, np.linalg.svd(a, compute_uv=False), bound(a))


@any_matrix
def test_economy_singular_vectors_give_the_matrix_back(qv, a):
    m, n = a.shape
    k = min(m, n)
    u, s, v = np.empty((m, k), a.dtype), np.empty(k, a.dtype), np.empty((n, k), a.dtype)
    assert pick(a, qv.ZemFunc193, qv.ZemFunc219)(a, m, n, u, s, v) == 0
    check_svd(a, u, s, v)
    again = [np.empty_like(x) for x in (u, s, v)]
    assert pick(a, qv.ZemFunc246, qv.ZemFunc247)(a, m, n, 1, *again) == 0
    assert all(np.array_equal(x, y) for x, y in zip(again, (u, s, v)))


@any_matrix
def test_full_singular_vectors_give_the_matrix_back(qv, a):
    m, n = a.shape
    u, s, v = np.empty((m, m), a.dtype), np.empty(min(m, n), a.dtype), np.empty((n, n), a.dtype)
    assert pick(a, qv.ZemFunc246, qv.ZemFunc247)(a, m, n, 0, u, s, v) == 0
    check_svd(a, u, s, v)


@pytest.mark.parametrize("m, n", [(170, 100), (100, 170), (180, 100), (160, 100), (400, 100), (100, 400)])
@pytest.mark.parametrize("mode", [0, 1])
def test_every_route_of_the_complex_provider_has_its_work_area(qv, m, n, mode):
    """It goes another way from 5/3 and from 17/9 of the shorter side on, and needs more in between."""
    a = random(m, n, complex, 3)
    k = min(m, n)
    u, v = np.empty((m, k if mode else m), complex), np.empty((n, k if mode else n), complex)
    s = np.empty(k, complex)
    assert qv.ZemFunc247(a, m, n, mode, u, s, v) == 0
    check_svd(a, u, s, v)


@square_matrix
def test_lu_gives_the_permuted_matrix_back(qv, a):
    n = len(a)
    factors, pivots, parity = a.copy(), np.empty(n, np.int64), np.empty(1, np.uint32)
    status = pick(a, qv.ZemFunc118, qv.ZemFunc213)(factors, n, pivots, parity)
    lower, upper = np.tril(factors, -1) + np.eye(n), np.triu(factors)
    assert status == (20003 if np.any(np.diag(upper) == 0) else 0)
    assert np.all(np.abs(np.tril(lower)) <= 1 + 4 * EPS) or a.dtype == complex  # complex pivots compare |re| + |im|
    permuted = a.copy()
    for i, p in enumerate(pivots):
        assert i <= p < n
        permuted[[i, p]] = permuted[[p, i]]
    assert parity[0] == np.sum(pivots != np.arange(n)) % 2
    near(lower @ upper, permuted, n * EPS * norm(lower) * norm(upper) + 10 * EPS * norm(a))


@pytest.mark.parametrize("n", [1, 2, 15, 16, 17, 31, 32, 33, 64, 100])
@pytest.mark.parametrize("kind", [float, complex])
def test_lu_is_scipys_at_every_padding_of_the_columns(qv, n, kind):
    a = random(n, n, kind, 4)
    factors, pivots, parity = a.copy(), np.empty(n, np.int64), np.empty(1, np.uint32)
    assert pick(a, qv.ZemFunc118, qv.ZemFunc213)(factors, n, pivots, parity) == 0
    expected, order = scipy.linalg.lu_factor(a)
    assert np.array_equal(pivots, order)
    near(factors, expected, n * n * EPS * norm(a) * np.linalg.cond(a))


@pytest.mark.parametrize("n", [1, 2, 7, 33, 64])
@pytest.mark.parametrize("kind", [float, complex])
def test_cholesky_is_numpys_and_reads_the_upper_triangle(qv, n, kind):
    g = random(n, n, kind, 5)
    a = g.conj().T @ g + n * np.eye(n)
    out = np.full((n, n), 7, kind)
    upper = np.triu(a) + np.tril(random(n, n, kind, 6), -1)
    assert pick(a, qv.ZemFunc196, qv.ZemFunc210)(upper, n, out) == 0
    assert np.all(np.tril(out, -1) == 0) and np.all(np.diag(out).real > 0) and np.all(np.diag(out).imag == 0)
    near(out.conj().T @ out, a, bound(a))
    near(out, np.linalg.cholesky(a).conj().T, bound(a) * np.linalg.cond(a))
    assert pick(a, qv.ZemFunc196, qv.ZemFunc210)(upper, n, None) == 0
    assert np.array_equal(upper, out)


@pytest.mark.parametrize("method", [0, 1, 2])
@pytest.mark.parametrize("a", [a for a in ANY.values() if a.dtype == float],
                         ids=[name for name, a in ANY.items() if a.dtype == float])
def test_every_qr_method_gives_the_matrix_back(qv, a, method):
    m, n = a.shape
    q, r = np.empty((m, m)), np.empty((m, n))
    before = a.copy()
    assert qv.ZemFunc192(a, m, n, method, q, r) == 0
    assert np.array_equal(a, before)
    orthonormal(q)
    near(q @ r, a, bound(a))
    below = np.tril(r, -1)
    if method == 0:
        assert np.all(below == 0)
    else:
        # Rotations leave their rounding; a column that counts as zero below the pivots keeps less than its limit.
        assert np.max(np.abs(below)) <= bound(a)
    over, again = a.copy(), np.empty((m, m))
    assert qv.ZemFunc192(over, m, n, method, again, None) == 0
    assert np.array_equal(over, r) and np.array_equal(again, q)
    alone = np.empty((m, n))
    assert qv.ZemFunc192(a, m, n, method, None, alone) == 0
    # A full Q needs another leading dimension, so the provider may round R otherwise.
    near(alone, r, bound(a) if method == 0 else 0)


@pytest.mark.parametrize("m, n", [(6, 6), (9, 4), (40, 40), (64, 20)])
def test_qr_methods_differ_in_signs_alone(qv, m, n):
    a = random(m, n, float, 7)
    forms = []
    for method in (0, 1, 2):
        q, r = np.empty((m, m)), np.empty((m, n))
        assert qv.ZemFunc192(a, m, n, method, q, r) == 0
        forms.append(np.abs(np.triu(r)))
    # R is unique up to signs; it moves with the condition of A times a backward error.
    for form in forms[1:]:
        near(form, forms[0], bound(a) * np.linalg.cond(a))


def test_fast_rotations_survive_more_columns_than_their_scales_have_exponents(qv):
    m, n = 700, 650
    a = random(m, n, float, 8)
    q, r = np.empty((m, m)), np.empty((m, n))
    assert qv.ZemFunc192(a, m, n, 2, q, r) == 0
    orthonormal(q)
    near(q @ r, a, bound(a))


@any_matrix
@pytest.mark.parametrize("economy", [0, 1])
@pytest.mark.parametrize("mode", [0, 1, 2])
def test_pivoted_qr_gives_the_permuted_matrix_back(qv, a, economy, mode):
    m, n = a.shape
    rows = min(m, n) if economy else m
    p = np.empty((n, n) if mode == 2 else n, np.int64)
    q, r = np.empty((m, rows), a.dtype), np.empty((rows, n), a.dtype)
    export = pick(a, qv.ZemFunc243, qv.ZemFunc245)
    assert export(a, m, n, mode, economy, p, q, r) == 0
    if mode == 2:
        assert np.all(p.sum(0) == 1) and np.all(p.sum(1) == 1) and np.all((p == 0) | (p == 1))
    permuted = a @ p if mode == 2 else a[:, p]
    assert mode != 0 or np.array_equal(p, np.arange(n))
    orthonormal(q)
    assert np.all(np.tril(r, -1) == 0)
    near(q @ r, permuted, bound(a))
    if mode != 0:
        diagonal = np.abs(np.diag(r))
        assert np.all(np.diff(diagonal) <= bound(a))
        order = p if mode == 1 else np.argmax(p, axis=0)
        mirror = np.empty_like(r)
        assert export(a, m, n, 3 - mode, economy, None, None, mirror) == 0
        near(np.abs(mirror), np.abs(r), 0)
        assert sorted(order) == list(range(n))


def test_pivoted_qr_shows_the_rank(qv):
    a = low_rank(9, 7, 3)
    r = np.empty((7, 7))
    assert qv.ZemFunc243(a, 9, 7, 1, 1, None, None, r) == 0
    assert abs(r[2, 2]) > 1e-3 and abs(r[3, 3]) < bound(a)


@pytest.mark.parametrize("kind", [float, complex])
def test_pivoted_qr_is_scipys(qv, kind):
    a = random(20, 12, kind, 9)
    p, q, r = np.empty(12, np.int64), np.empty((20, 12), kind), np.empty((12, 12), kind)
    assert pick(a, qv.ZemFunc243, qv.ZemFunc245)(a, 20, 12, 1, 1, p, q, r) == 0
    q2, r2, p2 = scipy.linalg.qr(a, mode="economic", pivoting=True)
    assert np.array_equal(p, p2)
    near(r, r2, bound(a) * np.linalg.cond(a))
    near(q, q2, bound(a) * np.linalg.cond(a))


@any_matrix
def test_complex_qr_gives_the_matrix_back(qv, a):
    a = a.astype(complex)
    m, n = a.shape
    q, r = np.empty((m, m), complex), np.empty((m, n), complex)
    assert qv.ZemFunc228(a, m, n, q, r) == 0
    orthonormal(q)
    assert np.all(np.tril(r, -1) == 0)
    near(q @ r, a, bound(a))


@square_matrix
def test_hessenberg_form_gives_the_matrix_back(qv, a):
    n = len(a)
    h, q = np.empty_like(a), np.empty_like(a)
    export = pick(a, qv.ZemFunc254, qv.ZemFunc255)
    assert export(a, n, h, q) == 0
    assert np.all(np.tril(h, -2) == 0)
    orthonormal(q)
    near(q @ h @ q.conj().T, a, bound(a))
    over, again = a.copy(), np.empty_like(a)
    assert export(over, n, None, again) == 0
    assert np.array_equal(over, h) and np.array_equal(again, q)


def unbalanced(n, kind):
    a = random(n, n, kind, 10) * 10.0 ** np.arange(-n // 2, n - n // 2)[:, None] * 10.0 ** np.arange(n // 2, n // 2 - n, -1)
    a[3, :3] = a[3, 4:] = 0  # an eigenvalue by itself
    a[:5, 5] = a[6:, 5] = 0  # and another
    return a


@pytest.mark.parametrize("kind", [float, complex])
@pytest.mark.parametrize("job", [0, 1, 2, 3])
def test_balancing_is_a_similarity_and_its_way_back(qv, kind, job):
    n = 8
    a = unbalanced(n, kind)
    low, high, scale, b = np.empty(1, np.int64), np.empty(1, np.int64), np.empty(n), np.empty((n, n), kind)
    assert pick(a, qv.ZemFunc248, qv.ZemFunc249)(a, n, job, low, high, scale, b) == 0
    back = pick(a, qv.ZemFunc250, qv.ZemFunc251)
    right, left = np.empty((n, n), kind), np.empty((n, n), kind)
    identity = np.eye(n, dtype=kind)
    assert back(identity, n, job, 0, low[0], high[0], scale, right) == 0
    assert back(identity, n, job, 1, low[0], high[0], scale, left) == 0
    # Powers of two and interchanges: everything is exact. right = P D, left = P / D.
    assert np.array_equal(a @ right, right @ b) or job >= 2
    near(left.conj().T @ right, np.eye(n), 0)
    assert np.array_equal((left.conj().T[:, :, None] * a[None, :, :]).sum(1) @ right, b) or job >= 2
    scaled = np.zeros_like(b)
    rows, columns = np.argmax(np.abs(right), axis=0), np.arange(n)
    for j in columns:
        for i in columns:
            scaled[i, j] = a[rows[i], rows[j]] * right[rows[j], j] / right[rows[i], i]
    assert np.array_equal(scaled, b)
    if job in (1, 3):
        assert high[0] - low[0] < n - 1
        assert np.all(np.tril(b, -1)[:, :low[0]] == 0) and np.all(np.tril(b, -1)[high[0] + 1:, :] == 0)
    if job >= 2:
        assert norm(b) < norm(a) * 1e-3
    over = a.copy()
    assert pick(a, qv.ZemFunc248, qv.ZemFunc249)(over, n, job, low, high, scale, None) == 0
    assert np.array_equal(over, b)


def test_balancing_is_scipys(qv):
    a = unbalanced(8, float)
    low, high, scale, b = np.empty(1, np.int64), np.empty(1, np.int64), np.empty(8), np.empty((8, 8))
    assert qv.ZemFunc248(a, 8, 2, low, high, scale, b) == 0
    expected, (factors, _) = scipy.linalg.matrix_balance(a, permute=False, separate=True)
    assert np.array_equal(b, expected) and np.array_equal(scale, factors)
    assert (low[0], high[0]) == (0, 7)


def test_the_smallest_singular_value_of_kahans_matrix_hides_from_pivoting(qv):
    n = 20
    a = kahan(n)
    r, s = np.empty((n, n)), np.empty(n)
    assert qv.ZemFunc243(a, n, n, 1, 0, None, None, r) == 0
    assert qv.ZemFunc195(a, n, n, s) == 0
    assert abs(r[-1, -1]) > 1e4 * s[-1] > 0
