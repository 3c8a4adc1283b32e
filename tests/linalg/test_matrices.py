"""Matrix operations beside NumPy and SciPy, on random and on famous matrices, and against exact values.

A backward stable method answers for a matrix that differs from the given one by a few n eps in norm; two of them differ
by that times the condition of the problem. Each bound below is this product, with `few` for the constants of both.
"""

import fractions
import math

import mpmath
import numpy as np
import pytest
import scipy.linalg

EPS = np.finfo(float).eps
FEW = 10.0
KINDS = {0: "general", 1: "definite", 2: "lower", 3: "upper"}
REAL = dict(many=241, kind=197, inverse=198, determinant=204, trace=175, norm=206, condition=205, rank=207,
            pseudo=200, definite=209, multiply=119, vector=370, dot=191, outer=203, kronecker=358, transpose=177,
            special=208, vector_norm=394, lag=415)
COMPLEX = dict(many=242, kind=218, inverse=212, determinant=220, trace=225, norm=223, condition=222, rank=215,
               pseudo=229, definite=226, multiply=214, vector=371, dot=221, outer=224, kronecker=359, transpose=217,
               special=227, vector_norm=395, lag=416)


@pytest.fixture(params=["real", "complex"])
def linear(qv, request):
    return Twin(qv, request.param == "complex")


class Twin:
    """The exports of one element type, by name."""

    def __init__(self, qv, is_complex):
        self.qv, self.numbers = qv, COMPLEX if is_complex else REAL
        self.dtype = np.complex128 if is_complex else np.float64

    def __getattr__(self, name):
        return getattr(self.qv, f"ZemFunc{self.numbers[name]}")

    def empty(self, *shape):
        return np.full(shape, np.nan, self.dtype)

    def random(self, *shape, seed=1):
        generator = np.random.default_rng(seed)
        out = generator.standard_normal(shape)
        return out + 1j * generator.standard_normal(shape) if self.dtype == np.complex128 else out

    def of(self, matrix):
        """The matrix as this element type: a unit factor on each column makes it complex, and keeps singular values."""
        matrix = np.ascontiguousarray(matrix, self.dtype)
        if self.dtype == np.complex128:
            matrix = matrix * np.exp(1j * np.arange(matrix.shape[1]))
        return matrix

    def number(self, function, a, *arguments, dtype=np.float64):
        out = np.full(1, -77, dtype)
        assert function(a, *arguments, out) == 0
        return out[0]


def frank(n):
    i, j = np.indices((n, n))
    return np.where(j >= i - 1, n - np.maximum(i, j), 0).astype(float)


def kahan(n, theta=1.2):
    s, c = math.sin(theta), math.cos(theta)
    return np.diag(s ** np.arange(n)) @ (np.eye(n) - c * np.triu(np.ones((n, n)), 1))


def grcar(n, k=3):
    return sum((np.eye(n, k=j) for j in range(k + 1)), -np.eye(n, k=-1))


def wilkinson_companion(n):
    return scipy.linalg.companion(np.poly(np.arange(1, n + 1)))


def graded(n):
    return np.diag(10.0 ** -np.arange(n)) @ np.random.default_rng(3).standard_normal((n, n))


def defective(n):
    return 2 * np.eye(n) + np.eye(n, k=1)


FAMOUS = {
    "hilbert": scipy.linalg.hilbert(8), "frank": frank(10), "kahan": kahan(20), "grcar": grcar(30),
    "companion": wilkinson_companion(8), "graded": graded(8), "defective": defective(12), "one": np.array([[3.0]]),
    "random": np.random.default_rng(1).standard_normal((25, 25)),
}
SHAPES = [(1, 1), (1, 7), (7, 1), (5, 3), (3, 5), (20, 20), (40, 11), (11, 40)]


@pytest.fixture(params=FAMOUS)
def famous(request, linear):
    return linear.of(FAMOUS[request.param])


def norm(a):
    return np.linalg.norm(a)


# Systems and inverses


def test_solution_of_famous_systems(linear, famous):
    n = len(famous)
    b, x = linear.random(n, 3), linear.empty(n, 3)
    status = linear.many(famous, n, n, 0, b, 3, x)
    s = np.linalg.svd(famous, compute_uv=False)
    assert status == (20001 if s[-1] <= n * EPS * s[0] else 0)
    expected = np.linalg.lstsq(famous, b, rcond=n * EPS)[0]
    assert norm(x - expected) <= FEW * n * EPS * s[0] / s[-1] * norm(expected)
    assert norm(famous @ x - b) <= FEW * n * EPS * norm(famous) * norm(x)


@pytest.mark.parametrize("m, n", SHAPES)
def test_least_squares_as_numpy_has_them(linear, m, n):
    a, b, x = linear.random(m, n), linear.random(m, seed=2), linear.empty(n)
    assert linear.kind(a, m, n, b, 0, x) == 0
    expected = np.linalg.lstsq(a, b, rcond=None)[0]
    kappa = np.linalg.cond(a)
    # Least squares see the square of the condition, times the residual.
    residual = norm(a @ expected - b) / np.linalg.norm(a, 2)
    assert norm(x - expected) <= FEW * max(m, n) * EPS * kappa * (norm(expected) + kappa * residual)


@pytest.mark.parametrize("m, n, rank", [(6, 6, 2), (9, 4, 3), (4, 9, 1), (30, 20, 10)])
def test_least_squares_below_full_rank_have_the_minimum_norm(linear, m, n, rank):
    a = linear.random(m, rank) @ linear.random(rank, n, seed=2)
    b, x = linear.random(m, seed=3), linear.empty(n)
    assert linear.kind(a, m, n, b, 0, x) == 20001
    s = np.linalg.svd(a, compute_uv=False)
    kappa = s[0] / s[rank - 1]
    expected = np.linalg.pinv(a, rcond=max(m, n) * EPS) @ b
    residual = norm(a @ expected - b) / s[0]
    assert norm(x - expected) <= FEW * max(m, n) * EPS * kappa * (norm(expected) + kappa * residual)


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("n", [1, 2, 5, 32, 70])
def test_square_systems_of_every_kind_as_numpy_has_them(linear, kind, n):
    a = linear.random(n, n) + 2 * math.sqrt(n) * np.eye(n)
    a = [a, a @ a.conj().T, np.tril(a), np.triu(a)][kind]
    a = np.ascontiguousarray((a + a.conj().T) / 2 if kind == 1 else a)
    b, x = linear.random(n, 2, seed=2), linear.empty(n, 2)
    assert linear.many(a, n, n, kind, b, 2, x) == 0
    kappa, expected = np.linalg.cond(a), np.linalg.solve(a, b)
    assert norm(x - expected) <= FEW * n * EPS * kappa * norm(expected)
    inverse, expected = linear.empty(n, n), np.linalg.inv(a)
    assert linear.inverse(a.copy(), n, kind, inverse) == 0
    assert norm(inverse - expected) <= FEW * n * EPS * kappa * norm(expected)
    determinant = linear.number(linear.determinant, a, n, kind, dtype=linear.dtype)
    assert abs(determinant - np.linalg.det(a)) <= FEW * n * n * EPS * kappa * abs(determinant)


def test_inverse_of_famous_matrices(linear, famous):
    n, inverse = len(famous), linear.empty(*famous.shape)
    assert linear.inverse(famous.copy(), n, 0, inverse) == 0
    expected = np.linalg.inv(famous)
    assert norm(inverse - expected) <= FEW * n * EPS * np.linalg.cond(famous) * norm(expected)


@pytest.mark.parametrize("kind", [0, 1])
def test_inverse_of_the_hilbert_matrix_is_made_of_integers(qv, kind):
    n, inverse = 6, np.zeros((6, 6))
    assert qv.ZemFunc198(scipy.linalg.hilbert(n), n, kind, inverse) == 0
    exact = scipy.linalg.invhilbert(n, exact=True).astype(float)
    assert norm(inverse - exact) <= FEW * n * EPS * np.linalg.cond(scipy.linalg.hilbert(n)) * norm(exact)


@pytest.mark.parametrize("m, n", SHAPES)
def test_pseudo_inverse_as_numpy_has_it(linear, m, n):
    a, inverse = linear.random(m, n), linear.empty(n, m)
    assert linear.pseudo(a.copy(), m, n, -1.0, inverse) == 0
    expected = np.linalg.pinv(a, rcond=max(m, n) * EPS)
    assert norm(inverse - expected) <= FEW * max(m, n) * EPS * np.linalg.cond(a) ** 2 * norm(expected)


# Numbers of a matrix


def exact_determinant(a):
    """By fractions."""
    a = [[fractions.Fraction(v) for v in row] for row in a.tolist()]
    result = fractions.Fraction(1)
    for k in range(len(a)):
        pivot = next((i for i in range(k, len(a)) if a[i][k]), None)
        if pivot is None:
            return fractions.Fraction(0)
        if pivot != k:
            a[k], a[pivot] = a[pivot], a[k]
            result = -result
        result *= a[k][k]
        for i in range(k + 1, len(a)):
            factor = a[i][k] / a[k][k]
            a[i] = [x - factor * y for x, y in zip(a[i], a[k])]
    return result


@pytest.mark.parametrize("name", FAMOUS)
def test_determinant_of_famous_matrices_is_exact_to_their_condition(qv, name):
    a = np.ascontiguousarray(FAMOUS[name])
    n, out = len(a), np.zeros(1)
    assert qv.ZemFunc55(a, n, out) == 0
    exact = float(exact_determinant(a))
    # d det = det tr(A^-1 dA), with |dA| <= few n eps |A|.
    assert abs(out[0] - exact) <= FEW * n * n * EPS * np.linalg.cond(a) * abs(exact)


def test_determinant_of_frank_matrices_is_one(qv):
    for n in range(1, 9):
        out = np.zeros(1)
        assert qv.ZemFunc55(frank(n), n, out) == 0
        assert abs(out[0] - 1) <= FEW * n * n * EPS * np.linalg.cond(frank(n))


def test_norms_as_numpy_has_them(linear, famous):
    for matrix in (famous, np.ascontiguousarray(famous[:, : len(famous) // 2 + 1])):
        m, n = matrix.shape
        for selector, order in enumerate((2, 1, "fro", np.inf)):
            expected = np.linalg.norm(matrix, order)
            assert abs(linear.number(linear.norm, matrix, m, n, selector) - expected) <= FEW * m * n * EPS * expected


def test_condition_numbers_as_numpy_has_them(linear, famous):
    n = len(famous)
    for selector, order in enumerate((2, 1, "fro", np.inf)):
        expected = np.linalg.cond(famous, order)
        # The condition of the condition is the condition.
        assert abs(linear.number(linear.condition, famous, n, n, selector) - expected) <= \
            FEW * n * EPS * expected * max(expected, np.linalg.cond(famous))


def test_condition_of_the_hilbert_matrix_in_the_one_norm(qv):
    n, out = 6, np.zeros(1)
    h = scipy.linalg.hilbert(n)
    assert qv.ZemFunc205(h, n, n, 1, out) == 0
    assert abs(out[0] - 29070279) <= FEW * n * EPS * 29070279**2  # max column sums 2.45 and 11865420


@pytest.mark.parametrize("m, n, rank", [(6, 6, 2), (9, 4, 3), (4, 9, 1), (30, 20, 10), (5, 5, 5)])
def test_rank_of_products(linear, m, n, rank):
    a = linear.random(m, rank) @ linear.random(rank, n, seed=2)
    assert linear.number(linear.rank, a, m, n, -1.0, dtype=np.int64) == rank
    assert linear.number(linear.rank, a, m, n, np.linalg.norm(a, 2) * 2, dtype=np.int64) == 0


def test_rank_of_famous_matrices_as_numpy_has_it(linear, famous):
    n = len(famous)
    assert linear.number(linear.rank, famous, n, n, -1.0, dtype=np.int64) == np.linalg.matrix_rank(famous)


def test_trace(linear, famous):
    n = len(famous)
    trace = linear.number(linear.trace, famous, n, dtype=linear.dtype)
    assert abs(trace - famous.trace()) <= n * EPS * np.abs(famous.diagonal()).sum()


def test_definiteness_of_gram_matrices_and_their_shifts(linear):
    a = linear.random(12, 12)
    gram = a @ a.conj().T
    gram = np.ascontiguousarray((gram + gram.conj().T) / 2)
    smallest = np.linalg.eigvalsh(gram)[0]
    for shift, flag in ((0.5, 1), (0.999, 1), (1.001, 0), (2.0, 0)):
        shifted = np.ascontiguousarray(gram - shift * smallest * np.eye(12))
        assert linear.number(linear.definite, shifted, 12, dtype=np.uint32) == flag


# Products


@pytest.mark.parametrize("m, k, n", [(1, 1, 1), (4, 7, 2), (64, 64, 64), (1531, 257, 3), (1600, 260, 5)])
def test_products_as_numpy_has_them(linear, m, k, n):
    a, b, out = linear.random(m, k), linear.random(k, n, seed=2), linear.empty(m, n)
    assert linear.multiply(a, b, m, k, n, out) == 0
    bound = 2 * (k + 2) * EPS * (np.abs(a) @ np.abs(b))
    assert (np.abs(out - a @ b) <= 2 * bound).all()
    y = linear.empty(m)
    x = np.ascontiguousarray(b[:, 0])
    assert linear.vector(a, x, m, k, y) == 0
    assert (np.abs(y - a @ x) <= 2 * bound[:, 0]).all()


def test_outer_and_kronecker_products_as_numpy_has_them(linear):
    x, y, out = linear.random(5), linear.random(4, seed=2), linear.empty(5, 4)
    assert linear.outer(x, 5, y, 4, out) == 0
    assert np.allclose(out, np.outer(x, y), rtol=4 * EPS, atol=0)
    a, b, out = linear.random(2, 3), linear.random(4, 5, seed=2), linear.empty(8, 15)
    assert linear.kronecker(a, b, 2, 3, 4, 5, out) == 0
    assert np.abs(out - np.kron(a, b)).max() <= 4 * EPS * np.abs(out).max()
    if linear.dtype == np.float64:
        assert np.array_equal(out, np.kron(a, b))


def test_dot_product(linear):
    x, y = linear.random(1000), linear.random(1000, seed=2)
    exact = mpmath.fdot(x.tolist(), y.tolist())
    dot = linear.number(linear.dot, x, y, 1000, dtype=linear.dtype)
    assert abs(complex(dot) - complex(exact)) <= 2 * 1002 * EPS * (np.abs(x) @ np.abs(y))


@pytest.mark.parametrize("m, n", [*SHAPES, (100, 33), (129, 257)])
def test_transpose_is_the_adjoint_of_complex_matrices(linear, m, n):
    a, out = linear.random(m, n), linear.empty(n, m)
    assert linear.transpose(a, m, n, out) == 0
    assert np.array_equal(out, a.conj().T)


# Special matrices, norms of vectors, lag products


def test_special_matrices_as_scipy_has_them(linear):
    first, second = linear.random(6), linear.random(4, seed=2)
    expected = {
        (1, 6, 6): np.diag(first), (2, 6, 4): scipy.linalg.toeplitz(first, np.r_[first[0], second[1:]]),
        (3, 6, 6): np.vander(first), (4, 5, 5): scipy.linalg.companion(first),
    }
    for (kind, m, n), matrix in expected.items():
        out = linear.empty(m, n)
        assert linear.special(kind, 0, first, 6, second, 4, out) == 0
        assert np.allclose(out, matrix, rtol=12 * EPS, atol=12 * EPS * np.abs(matrix).max()), kind


def test_companion_matrix_has_the_roots_as_eigenvalues(qv):
    c, out = np.array([2.0, -12.0, 22.0, -12.0]), np.zeros((3, 3))
    assert qv.ZemFunc208(4, 0, c, 4, None, 0, out) == 0
    assert np.allclose(np.sort(np.linalg.eigvals(out).real), [1, 2, 3], rtol=1e-12)


@pytest.mark.parametrize("p", [0.3, 1.0, 1.5, 2.0, 3.0, 17.0, -0.5, -2.0, math.inf, -math.inf])
def test_vector_norms_to_high_precision(linear, p):
    x = linear.random(50)
    with mpmath.workdps(40):
        magnitudes = [abs(mpmath.mpc(complex(v))) for v in x]
        if math.isinf(p):
            exact = max(magnitudes) if p > 0 else min(magnitudes)
        else:
            exact = mpmath.fsum(v**p for v in magnitudes) ** (1 / mpmath.mpf(p))
        got = linear.number(linear.vector_norm, x, 50, 4, p)
        # The sum of 50 terms rounds by at most 50 eps, each power by |p| roundings of its magnitude and one of its
        # own; the root divides all by |p|.
        assert abs(got - exact) <= exact * EPS * (2 * (50 + abs(p) if math.isfinite(p) else 1) / min(1, abs(p)) + 4)


@pytest.mark.parametrize("method", range(5))
@pytest.mark.parametrize("n, p", [(8, 0), (8, 3), (100, 20), (3, 2)])
def test_lag_products_of_the_data_matrices_of_linear_prediction(linear, method, n, p):
    x, out = linear.random(n), linear.empty(p + 1, p + 1)
    assert linear.lag(x, n, p, method, out) == 0
    full = scipy.linalg.convolution_matrix(x, p + 1, "full")  # row t holds x[t], x[t - 1], ...
    data = [full, full[:n], full[p:], full[p:n], np.vstack([full[p:n], full[p:n, ::-1].conj()])][method]
    expected = data.conj().T @ data
    assert norm(out - expected) <= 4 * (n + p) * EPS * norm(data) ** 2


def test_lag_product_of_method_0_is_the_toeplitz_matrix_of_the_autocorrelation(linear):
    n, p = 50, 6
    x, out = linear.random(n), linear.empty(p + 1, p + 1)
    assert linear.lag(x, n, p, 0, out) == 0
    r = np.array([np.vdot(x[: n - k], x[k:]) for k in range(p + 1)])  # sum of conj(x[t]) x[t + k]
    assert np.abs(out - scipy.linalg.toeplitz(r, r.conj())).max() <= 4 * n * EPS * abs(r[0])
