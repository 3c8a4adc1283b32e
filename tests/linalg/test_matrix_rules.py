"""Matrix operations in scalar arithmetic, in the documented order, to the last bit.

What the provider computes is taken from the library's own exports, which have tests beside NumPy: an operation that is
documented as a formula over factors, singular values or an inverse has that formula's bits.
"""

import itertools
import math

import numpy as np
import pytest

from exact import KINDS, equal_bits, equal_numbers, libm, numbers, unwritten

EPS = 2.220446049250313e-16
REAL = dict(singular=195, svd=193, lu=118, cholesky=196, inverse=198, determinant=204, trace=175, norm=206,
            condition=205, rank=207, pseudo=200, definite=209, multiply=119, vector=370, outer=203, kronecker=358,
            transpose=177, special=208, vector_norm=394, lag=415, many=241, kind=197, schur=258)
COMPLEX = dict(singular=216, svd=219, lu=213, cholesky=210, inverse=212, determinant=220, trace=225, norm=223,
               condition=222, rank=215, pseudo=229, definite=226, multiply=214, vector=371, outer=224, kronecker=359,
               transpose=217, special=227, vector_norm=395, lag=416, many=242, kind=218, schur=259)
POW = libm("pow", 2)


@pytest.fixture(params=[float, complex])
def mat(qv, request):
    return Twin(qv, request.param)


class Twin:
    def __init__(self, qv, dtype):
        self.qv, self.dtype, self.numbers = qv, np.dtype(dtype), COMPLEX if dtype is complex else REAL
        self.is_complex = dtype is complex

    def __getattr__(self, name):
        return getattr(self.qv, f"ZemFunc{self.numbers[name]}")

    def made(self, rng, count, kind="plain"):
        if self.is_complex:
            return numbers(rng, 2 * count, kind).view(complex)
        return numbers(rng, count, kind)

    def integers(self, rng, *shape):
        out = rng.integers(-5, 6, shape).astype(self.dtype)
        return out + 1j * rng.integers(-5, 6, shape) if self.is_complex else out

    def out(self, count):
        return unwritten(count, self.dtype)

    def number(self, name, *arguments, status=0, dtype=None):
        out = unwritten(1, dtype or float)
        assert getattr(self, name)(*arguments, out.array) == status, (name, arguments)
        out.kept()
        return out.array[0]

    def values(self, a):
        s = np.zeros(min(a.shape), self.dtype)
        assert self.singular(a, *a.shape, s) == 0
        return s.real.copy()


def modulus(z):
    """Of a real number its magnitude, of a complex one the root of the sum of squares."""
    if isinstance(z, (float, np.floating)):
        return abs(float(z))
    with np.errstate(all="ignore"):
        return float(np.sqrt(np.float64(z.real) * z.real + np.float64(z.imag) * z.imag))


def product(a, b):
    """Complex numbers without any care for infinities."""
    if isinstance(a, complex):
        return complex(a.real * b.real - a.imag * b.imag, a.real * b.imag + a.imag * b.real)
    return a * b


def added(values):
    total = 0.0
    for value in values:
        total += value
    return total


def extreme(sizes, choice):
    """Searches pass over NaN."""
    there = [v for v in sizes if not math.isnan(v)]
    return choice(there) if there else math.nan


def test_vector_norms(mat):
    rng = np.random.default_rng(1)
    for n, kind in itertools.product([1, 2, 3, 8, 33], KINDS):
        x = mat.made(rng, n, kind)
        sizes = [modulus(v) for v in x.tolist()]
        expected = {1.0: added(sizes), math.inf: extreme(sizes, max), -math.inf: extreme(sizes, min)}
        for p in (3.0, 0.5, -1.0, -2.5, 1e-3, 5e-324, 1e300, -1e300):
            with np.errstate(all="ignore"):
                root = float(np.float64(1.0) / np.float64(p))
            expected[p] = POW(added(POW(v, p) for v in sizes), root)
        for p, norm in expected.items():
            equal_numbers([mat.number("vector_norm", x, n, 4, p)], [norm])
        for selector, p in [(0, 1.0), (2, math.inf), (3, -math.inf)]:
            for ignored in (math.nan, 0.0, 7.0):
                equal_numbers([mat.number("vector_norm", x, n, selector, ignored)], [expected[p]])
        euclid = mat.number("vector_norm", x, n, 1, 0.0)
        equal_numbers([mat.number("vector_norm", x, n, 4, 2.0)], [euclid])
        if kind in ("plain", "ties"):
            assert euclid == pytest.approx(math.sqrt(math.fsum(v * v for v in sizes)), rel=(n + 4) * EPS)


def test_matrix_norms_are_largest_sums_in_order(mat):
    rng = np.random.default_rng(2)
    for m, n in itertools.product([1, 2, 3, 7, 20], repeat=2):
        for kind in ("plain", "ties"):
            a = mat.made(rng, m * n, kind).reshape(m, n)
            size = np.array([[modulus(v) for v in row] for row in a.tolist()])
            columns = [added(size[:, j].tolist()) for j in range(n)]
            rows = [added(size[i].tolist()) for i in range(m)]
            one, infinity = mat.number("norm", a, m, n, 1), mat.number("norm", a, m, n, 3)
            equal_bits(one, max(columns))
            equal_bits(infinity, max(rows))
            equal_bits(mat.number("norm", a, m, n, 0), mat.values(a)[0])
            assert mat.number("norm", a, m, n, 2) == pytest.approx(math.sqrt(math.fsum((size**2).ravel())),
                                                                   rel=m * n * EPS)


def test_condition_numbers_are_quotients_and_products(mat):
    rng = np.random.default_rng(3)
    for m, n in itertools.product([1, 2, 5], repeat=2):
        a = mat.made(rng, m * n).reshape(m, n)
        s = mat.values(a)
        equal_bits(mat.number("condition", a, m, n, 0), s[0] / s[-1])
        if m == n:
            inverse = np.zeros_like(a)
            assert mat.inverse(a, n, 0, inverse) == 0
            for selector in (1, 2, 3):
                both = mat.number("norm", a, n, n, selector) * mat.number("norm", inverse, n, n, selector)
                equal_bits(mat.number("condition", a, n, n, selector), both)
    for n in (1, 2, 3):
        a = np.zeros((n, n), mat.dtype)
        for selector in range(4):
            equal_bits(mat.number("condition", a, n, n, selector), math.inf)


def test_rank_counts_singular_values_strictly_above_the_tolerance(mat):
    rng = np.random.default_rng(4)
    for m, n in [(1, 1), (2, 3), (5, 3), (6, 6)]:
        a = mat.made(rng, m * n).reshape(m, n)
        s = mat.values(a)
        for i, v in enumerate(s):
            for tolerance, expected in [(v, i), (np.nextafter(v, 0), i + 1), (np.nextafter(v, np.inf), i)]:
                assert mat.number("rank", a, m, n, tolerance, dtype=np.int64) == expected
        for tolerance, expected in [(0.0, len(s)), (-0.0, len(s)), (np.inf, 0), (-5e-324, len(s)), (-np.inf, len(s))]:
            assert mat.number("rank", a, m, n, tolerance, dtype=np.int64) == expected, tolerance
    # The default is max(m, n) s(0) eps, of a diagonal matrix without a rounding.
    for m, n in [(2, 2), (4, 2), (2, 8), (3, 2)]:
        for big in (1.0, 3.0, 2.0**-40):
            limit = max(m, n) * big * EPS
            for small, expected in [(limit, 1), (np.nextafter(limit, 1), 2), (np.nextafter(limit, 0), 1)]:
                a = np.zeros((m, n), mat.dtype)
                a[0, 0], a[1, 1] = big, small
                equal_bits(mat.values(a), [big, small])
                for tolerance in (-1.0, -5e-324, -np.inf):
                    assert mat.number("rank", a, m, n, tolerance, dtype=np.int64) == expected, (m, n, big, small)
                assert mat.number("rank", a, m, n, 0.0, dtype=np.int64) == 2
                inverse = np.zeros((n, m), mat.dtype)
                assert mat.pseudo(a, m, n, -1.0, inverse) == 0
                assert (inverse[1, 1] != 0) == (expected == 2)
                assert mat.pseudo(a, m, n, 0.0, inverse) == 0
                assert inverse[1, 1].real == pytest.approx(1 / small, rel=4 * EPS)


def test_pseudo_inverse_drops_singular_values_at_the_tolerance(mat):
    rng = np.random.default_rng(5)
    for m, n in [(1, 1), (2, 3), (5, 3), (6, 6)]:
        a = mat.made(rng, m * n).reshape(m, n)
        k = min(m, n)
        u, s, v = np.zeros((m, k), mat.dtype), np.zeros(k, mat.dtype), np.zeros((n, k), mat.dtype)
        assert mat.svd(a, m, n, u, s, v) == 0
        s = s.real.copy()
        for i in range(k):
            for tolerance, kept in [(s[i], i), (np.nextafter(s[i], 0), i + 1)]:
                out = np.zeros((n, m), mat.dtype)
                assert mat.pseudo(a, m, n, tolerance, out) == 0
                expected = v[:, :kept] / s[:kept] @ u[:, :kept].conj().T
                assert np.all(np.abs(out - expected) <= 10 * k * EPS / s[kept - 1] if kept else out == 0)
                over = np.concatenate([a.ravel(), np.zeros(3, mat.dtype)])
                assert mat.pseudo(over, m, n, tolerance, None) == 0
                equal_bits(over[:m * n].view(float), out.ravel().view(float))


def test_determinants_are_products_of_diagonals(mat):
    rng = np.random.default_rng(6)
    for n in (1, 2, 3, 4, 6):
        for _ in range(6):
            a = mat.made(rng, n * n).reshape(n, n)
            gram = np.ascontiguousarray(a.conj().T @ a + np.eye(n))

            def check(matrix, kind, expected):
                got = mat.number("determinant", matrix, n, kind, dtype=mat.dtype)
                equal_numbers(np.array([got]).view(float), np.array([expected], mat.dtype).view(float))

            if n == 2:
                (p, q), (r, s) = a.tolist()
                for kind in range(4):
                    check(a, kind, product(p, s) - product(q, r))
                continue
            diagonal = [v.item() for v in a.diagonal()]
            expected = diagonal[0]
            for v in diagonal[1:]:
                expected = product(expected, v)
            check(a, 2, expected)
            check(a, 3, expected)
            # The provider factors the transpose, which is the memory as it stands.
            factors, pivots, parity = a.T.copy(), np.zeros(n, np.int64), np.zeros(1, np.uint32)
            assert mat.lu(factors, n, pivots, parity) == 0
            expected = factors[0, 0].item()
            for i in range(1, n):
                expected = product(expected, factors[i, i].item())
            check(a, 0, -expected if parity[0] else expected)
            root = np.zeros_like(gram)
            assert mat.cholesky(gram, n, root) == 0
            expected = root[0, 0].real.item()
            for i in range(1, n):
                expected *= root[i, i].real.item()
            check(gram, 1, expected * expected)


def test_determinants_of_singular_and_indefinite_matrices(mat):
    for n in (1, 2, 3, 5):
        for kind in range(4):
            zero = mat.number("determinant", np.zeros((n, n), mat.dtype), n, kind, dtype=mat.dtype,
                              status=-20071 if kind == 1 and n != 2 else 0)
            equal_bits(np.array([zero]).view(float), np.zeros(mat.dtype.itemsize // 8))
        a = np.ones((n, n), mat.dtype) * 3
        a[0, 0] = -3
        if n != 2:
            failed = mat.number("determinant", a, n, 1, dtype=mat.dtype, status=-20071)
            equal_bits(np.array([failed]).view(float), np.zeros(mat.dtype.itemsize // 8))
    a = np.array([[1.0, 2, 3], [2, 4, 6], [1, 1, 1]], mat.dtype)
    a[1] = a[0]
    equal_bits(np.array([mat.number("determinant", a, 3, 0, dtype=mat.dtype)]).view(float),
               np.zeros(mat.dtype.itemsize // 8))


def test_traces_outer_and_kronecker_products(mat):
    rng = np.random.default_rng(7)
    for kind in ("plain", "special", "bits"):
        for n in (1, 2, 5):
            a = mat.made(rng, n * n, kind).reshape(n, n)
            with np.errstate(all="ignore"):
                expected = a[0, 0]
                for i in range(1, n):
                    expected = expected + a[i, i]
            got = mat.number("trace", a, n, dtype=mat.dtype)
            equal_numbers(np.array([got]).view(float) + 0.0, np.array([expected]).view(float) + 0.0)
        for m, n in itertools.product([1, 2, 7], repeat=2):
            x, y, out = mat.made(rng, m, "plain"), mat.made(rng, n, "plain"), mat.out(m * n)
            assert mat.outer(x, m, y, n, out.array) == 0
            out.kept()
            expected = [product(u, v) for u in x.tolist() for v in y.tolist()]
            equal_numbers(out.array.view(float), np.array(expected, mat.dtype).view(float))
    for sizes in itertools.product([1, 2, 3], repeat=4):
        a, b = mat.made(rng, sizes[0] * sizes[1]), mat.made(rng, sizes[2] * sizes[3])
        out = mat.out(math.prod(sizes))
        assert mat.kronecker(a, b, *sizes, out.array) == 0
        out.kept()
        a, b = a.reshape(sizes[:2]).tolist(), b.reshape(sizes[2:]).tolist()
        expected = [product(v, w) for ra in a for rb in b for v in ra for w in rb]
        equal_numbers(out.array.view(float), np.array(expected, mat.dtype).view(float))


def test_transposes(mat):
    rng = np.random.default_rng(8)
    for m, n in itertools.product([1, 2, 3, 8, 17, 64], repeat=2):
        a = mat.made(rng, m * n, "bits").reshape(m, n)
        expected = a.T.copy()
        if mat.is_complex:
            expected.imag = np.negative(expected.imag)
        out = mat.out(m * n)
        assert mat.transpose(a, m, n, out.array) == 0
        out.kept()
        equal_numbers(out.array.view(float), expected.ravel().view(float))
        for output in (None, a):
            b = a.copy() if output is None else a
            assert mat.transpose(b, m, n, output) == 0
            equal_numbers(b.ravel().view(float), expected.ravel().view(float))


def test_products_of_integers(mat):
    rng = np.random.default_rng(9)
    for r, k, c in itertools.product([1, 2, 3, 9], [1, 2, 5, 40], [1, 2, 3, 8]):
        a, b = mat.integers(rng, r, k), mat.integers(rng, k, c)
        out = mat.out(r * c)
        assert mat.multiply(a, b, r, k, c, out.array) == 0
        out.kept()
        assert np.array_equal(out.array.reshape(r, c), a @ b)
        y, x = mat.out(r), mat.integers(rng, k)
        assert mat.vector(a, x, r, k, y.array) == 0
        y.kept()
        assert np.array_equal(y.array, a @ x)
        if r == k == c:
            for target in (0, 1):
                pair = [a.copy(), b.copy()]
                assert mat.multiply(*pair, r, k, c, pair[target]) == 0
                assert np.array_equal(pair[target], a @ b)
        if r == k:
            over = x.copy()
            assert mat.vector(a, over, r, k, over) == 0
            assert np.array_equal(over, a @ x)


def test_a_long_product_in_slabs_is_that_of_integers(mat):
    rng = np.random.default_rng(10)
    for rows in (1530, 1531, 3060, 3061):
        a, b = mat.integers(rng, rows, 257), mat.integers(rng, 257, 3)
        out = mat.out(rows * 3)
        assert mat.multiply(a, b, rows, 257, 3, out.array) == 0
        out.kept()
        assert np.array_equal(out.array.reshape(rows, 3), a @ b)


def smith(a, b):
    """Division of complex numbers as the library's own export has it."""
    c, d = b.real, b.imag
    if abs(c) >= abs(d):
        r = d / c
        t = c + r * d
        return complex((a.real + a.imag * r) / t, (a.imag - a.real * r) / t)
    r = c / d
    t = d + r * c
    return complex((a.real * r + a.imag) / t, (a.imag * r - a.real) / t)


def test_special_matrices(mat):
    rng = np.random.default_rng(11)
    for m, n in itertools.product([1, 2, 3, 6], repeat=2):
        v, w = mat.made(rng, m, "plain"), mat.made(rng, n, "plain")

        def check(kind, size, expected):
            out = mat.out(expected.size)
            assert mat.special(kind, size, v, m, w, n, out.array) == 0
            out.kept()
            equal_numbers(out.array.view(float), expected.astype(mat.dtype).ravel().view(float))

        check(0, m, np.eye(m))
        check(1, 0, np.diag(v))
        check(2, -4, np.array([[v[i - j] if j <= i else w[j - i] for j in range(n)] for i in range(m)]))
        if m > 1:
            companion = np.eye(m - 1, k=-1, dtype=mat.dtype)
            for k in range(m - 1):
                if mat.is_complex:
                    companion[0, k] = -smith(v[k + 1], v[0])
                else:
                    companion[0, k] = -v[k + 1] / v[0]
            assert mat.special(4, 0, v, m, None, 0, np.zeros((m - 1)**2, mat.dtype)) == 0
            check(4, 0, companion)
    for m in (1, 2, 3, 5):
        v = mat.integers(rng, m)  # powers of small integers are exact in any order
        out = mat.out(m * m)
        assert mat.special(3, 0, v, m, None, 0, out.array) == 0
        assert np.array_equal(out.array.reshape(m, m), np.array([[x**(m - 1 - j) for j in range(m)] for x in v]))
    for value in (0.0, np.inf, np.nan):
        out = mat.out(9)
        assert mat.special(3, 0, np.full(3, value, mat.dtype), 3, None, 0, out.array) == 0
        assert np.all(out.array.reshape(3, 3)[:, 2] == 1.0)


def lagged(x, p, method):
    n = len(x)
    def at(t):
        return x[t] if 0 <= t < n else 0
    first, last = {0: (0, n + p), 1: (0, n), 2: (p, n + p), 3: (p, n), 4: (p, n)}[method]
    rows = [[at(t - j) for j in range(p + 1)] for t in range(first, last)]
    if method == 4:
        rows += [[np.conj(v) for v in reversed(row)] for row in rows]
    return np.array(rows, x.dtype).reshape(len(rows), p + 1)


def test_lag_products_of_integers(mat):
    rng = np.random.default_rng(12)
    for n, p, method in itertools.product([1, 2, 3, 5, 8, 40], [0, 1, 2, 4, 7, 39, 45], range(5)):
        if method > 2 and p >= n:
            continue
        x = mat.integers(rng, n)
        rows = lagged(x, p, method)
        assert len(rows) == [n + p, n, n, n - p, 2 * (n - p)][method]
        out = mat.out((p + 1)**2)
        assert mat.lag(x, n, p, method, out.array) == 0
        out.kept()
        assert np.array_equal(out.array.reshape(p + 1, p + 1), rows.conj().T @ rows), (n, p, method)


def definite(mat, a):
    flag = np.full(2, 7, np.uint32)
    assert mat.definite(a, len(a), flag) == 0 and flag[1] == 7
    return flag[0]


def test_definiteness(mat):
    rng = np.random.default_rng(13)
    flags = []
    for _ in range(300):
        n = int(rng.integers(1, 6))
        a = mat.integers(rng, n, n)
        a = a + a.conj().T + int(rng.integers(-10, 40)) * np.eye(n)
        fault = rng.integers(0, 5)
        if fault == 0 and n > 1:
            a[0, n - 1] += 1e-15 * 16
        if fault == 1 and mat.is_complex:
            a[n - 1, n - 1] += 5e-324j
        flag = definite(mat, a)
        expected = bool(np.array_equal(a, a.conj().T))
        if expected:
            values = np.linalg.eigvalsh(a)
            limit = max(abs(values[0]), abs(values[-1])) * EPS
            if abs(values[0]) < 100 * limit:
                continue  # as rounding has it
            expected = values[0] > limit
        assert flag == expected, a
        flags.append(flag)
    assert 50 < sum(flags) < len(flags) - 50
    # The limit is strict and relative to the largest eigenvalue; diagonal matrices have exact ones.
    for small, expected in [(EPS, 0), (np.nextafter(EPS, 1), 1), (np.nextafter(EPS, 0), 0), (-EPS, 0), (0.0, 0)]:
        a = np.diag([1.0, small]).astype(mat.dtype)
        assert definite(mat, a) == expected
    for zero in (0.0, -0.0):
        a = np.array([[1, zero], [0, 1]], mat.dtype)
        assert definite(mat, a) == 1


def test_triangles_with_a_diagonal_at_the_limit_are_singular(mat):
    rng = np.random.default_rng(14)
    for kind, n in itertools.product([2, 3], [1, 2, 4]):
        for large in (1.0, 4.0, 1024.0):
            for place in range(n):
                for tiny, status in [(large * EPS, -20041), (np.nextafter(large * EPS, 1), 0),
                                     (large * EPS / 2, -20041), (0.0, -20041), (2 * large * EPS, 0)]:
                    a = np.diag(np.full(n, large)).astype(mat.dtype)
                    a[place, place] = -tiny if not mat.is_complex else 1j * tiny
                    if n == 1:  # alone it is the largest itself
                        status = 0 if tiny else -20041
                    if mat.is_complex and tiny == np.nextafter(large * EPS, 1):
                        continue  # its square differs by less than two roundings
                    # What stands in the other triangle counts for nothing.
                    other = np.triu_indices(n, 1) if kind == 2 else np.tril_indices(n, -1)
                    a[other] = rng.choice([1e300, np.nan, 1.0])
                    b, x = mat.integers(rng, n, 2), mat.out(2 * n)
                    assert mat.many(a, n, n, kind, b, 2, x.array) == status, (kind, n, large, place, tiny)
                    if status:
                        x.untouched()
                    x.kept()


def test_triangular_systems_of_integers(mat):
    rng = np.random.default_rng(15)
    for kind, n, count in itertools.product([2, 3], [1, 2, 3, 5, 9], [1, 2, 4]):
        a = mat.integers(rng, n, n)
        np.fill_diagonal(a, rng.choice([1.0, -1.0], n))
        triangle = np.tril(a) if kind == 2 else np.triu(a)
        expected = mat.integers(rng, n, count)
        x = mat.out(n * count)
        assert mat.many(a, n, n, kind, triangle @ expected, count, x.array) == 0
        x.kept()
        assert np.array_equal(x.array.reshape(n, count), expected)
        over = a.copy()
        assert mat.inverse(over, n, kind, None) == 0
        inverse = np.tril(over) if kind == 2 else np.triu(over)
        assert np.array_equal(inverse @ triangle, np.eye(n))


def rotation(a, b):
    if b == 0:
        return 1.0, 0.0
    if abs(b) > abs(a):
        u = a / b
        s = 1 / math.sqrt(u * u + 1)
        return u * s, s
    u = b / a
    c = 1 / math.sqrt(u * u + 1)
    return c, u * c


def plain_rotation(u, l, i):
    c, s = rotation(u[0], l[0])
    return lambda upper, lower: (c * upper + s * lower, c * lower - s * upper)


class FastRotation:
    """Rotations without roots: rows stand for themselves over the roots of their scales."""

    def __init__(self, m):
        self.d = np.ones(m)

    def __call__(self, u, l, i):
        a, b, d = u[0], l[0], self.d
        if b == 0:
            return lambda upper, lower: (upper, lower)
        alpha = -a / b
        beta = -alpha * d[i] / d[i - 1]
        g = -alpha * beta
        if g > 1:
            alpha, beta = 1 / alpha, 1 / beta
            d[i - 1] *= 1 + 1 / g
            d[i] *= 1 + 1 / g
            return lambda upper, lower: (upper + beta * lower, alpha * upper + lower)
        d[i - 1], d[i] = d[i] * (1 + g), d[i - 1] * (1 + g)
        return lambda upper, lower: (beta * upper + lower, upper + alpha * lower)


def givens(a, length, rotate):
    """The rows of R and of the transposed Q."""
    m, n = a.shape
    r, q = a.copy(), np.eye(m)
    row, left = 0, m
    for j in range(n):
        if row >= m:
            break
        g = length(np.ascontiguousarray(r[:, j]))
        if g == 0:
            continue
        t = g * EPS * j / math.sqrt(left)
        found = any(not -t < v < t for v in r[row:, j])
        for i in range(m - 1, row, -1):
            if -t < r[i, j] < t:
                continue
            turn = rotate(r[i - 1, j:], r[i, j:], i)
            for target, first in ((r, j), (q, 0)):
                target[i - 1, first:], target[i, first:] = turn(target[i - 1, first:].copy(), target[i, first:].copy())
        if found:
            left -= 1
            row += 1
        else:
            r[row:, j] = 0.0
    return q, r


@pytest.mark.parametrize("method", [1, 2])
def test_givens_rotations(qv, method):
    rng = np.random.default_rng(16)

    def length(x):
        out = np.zeros(1)
        assert qv.ZemFunc394(x, len(x), 1, 0.0, out) == 0
        return out[0]

    for m, n in itertools.product([1, 2, 3, 5, 8], repeat=2):
        for kind in ("plain", "ties", "rank"):
            a = numbers(rng, m * n, "ties" if kind == "rank" else kind).reshape(m, n)
            if kind == "rank":
                a[:, rng.integers(0, n)] = 0.0
                a[m - 1] = a[0]
            q, r = np.zeros((m, m)), np.zeros((m, n))
            assert qv.ZemFunc192(a, m, n, method, q, r) == 0
            rotate = plain_rotation if method == 1 else FastRotation(m)
            expected_q, expected_r = givens(a, length, rotate)
            if method == 2:
                scale = (1 / np.sqrt(rotate.d))[:, None]
                expected_q, expected_r = expected_q * scale, expected_r * scale
            equal_numbers(r + 0.0, expected_r + 0.0)
            equal_numbers(q + 0.0, expected_q.T + 0.0)
