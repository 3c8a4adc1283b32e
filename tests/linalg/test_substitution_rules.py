"""Substitution, quotients of pencils and closed forms of short polynomials, in scalar arithmetic to the last bit."""

import itertools
import math

import numpy as np
import pytest

from exact import KINDS, TOO_LARGE, Guarded, equal_bits, equal_numbers, numbers, unwritten


def dot(qv, x, y):
    if len(x) == 0:
        return 0.0
    out = np.zeros(1)
    assert qv.ZemFunc191(np.ascontiguousarray(x), np.ascontiguousarray(y), len(x), out) == 0
    return float(out[0])


def upper(qv, r, b):
    """The solution as far as it comes, and the row with the zero."""
    n, x = len(b), b.copy()
    for i in range(n - 1, -1, -1):
        if r[i, i] == 0:
            return x, i
        with np.errstate(all="ignore"):
            x[i] = (b[i] - dot(qv, r[i, i + 1:], x[i + 1:])) / r[i, i]
    return x, None


@pytest.mark.parametrize("kind", KINDS)
def test_upper_triangles(qv, kind):
    rng = np.random.default_rng(1)
    for n, _ in itertools.product([1, 2, 3, 5, 9, 17, 40], range(8)):
        r, b = numbers(rng, n * n, kind).reshape(n, n), numbers(rng, n, kind)
        r[np.tril_indices(n, -1)] = np.nan  # not read
        if rng.random() < 0.5:
            r[range(n), range(n)] = rng.choice([1.0, -2.0, 5e-324, 3.0], n)
        expected, zero = upper(qv, r, b)
        status = 0 if zero is None else -20041
        solved = slice(0 if zero is None else zero + 1, n)
        x = unwritten(n)
        assert qv.ZemFunc11(r, b, n, x.array) == status
        x.kept()
        equal_numbers(x.array[solved], expected[solved])
        over = Guarded(b)
        assert qv.ZemFunc11(r, over.array, n, None) == status
        over.kept()
        equal_numbers(over.array[solved], expected[solved])
        if zero is not None:
            equal_bits(over.array[:zero + 1], b[:zero + 1])


def interchanged(b, pivots):
    b = b.copy()
    for i, p in enumerate(pivots):
        if p != i:
            b[i], b[p] = b[p], b[i]
    return b


def test_unit_lower_triangles(qv):
    rng = np.random.default_rng(2)
    for n, kind in itertools.product([1, 2, 3, 5, 9, 17], ["plain", "ties"] * 4):
        lower, b = numbers(rng, n * n, kind).reshape(n, n), numbers(rng, n, kind)
        lower[np.triu_indices(n)] = np.nan  # not read
        pivots = np.array([rng.integers(0, n) for i in range(n)])
        expected = interchanged(b, pivots)
        for i in range(n):
            expected[i] -= dot(qv, lower[i, :i], expected[:i])
        x, over = unwritten(n), Guarded(b)
        assert qv.ZemFunc82(lower, b, n, x.array, pivots) == 0
        assert qv.ZemFunc82(lower, over.array, n, None, pivots) == 0
        x.kept()
        over.kept()
        equal_numbers(x.array, expected)
        equal_numbers(over.array, expected)


def test_substitution_and_solving_refuse_sizes_and_write_nothing(qv):
    place, pivots = np.zeros(8), np.zeros(8, np.int64)
    for n, status in [(k, -20003) for k in (-2**31, -1, 0)] + [(k, -20046) for k in TOO_LARGE + [46341, 65536]]:
        for null in (False, True):
            b, x = Guarded(np.ones(8)), unwritten(8)
            out = None if null else x.array
            assert qv.ZemFunc114(place, b.array, n, out) == status
            assert qv.ZemFunc11(place, b.array, n, out) == status
            assert qv.ZemFunc82(place, b.array, n, out, pivots if n < 8 else None) == status
            b.untouched()
            x.untouched()
    for value in TOO_LARGE:
        for where in range(3):
            pivots = np.array([0, 1, 2])
            pivots[where] = value
            b, x = Guarded(np.ones(3)), unwritten(3)
            assert qv.ZemFunc82(np.eye(3), b.array, 3, x.array, pivots) == -20046
            b.untouched()
            x.untouched()


def smith(a, b):
    with np.errstate(all="ignore"):
        p, q, c, d = (np.float64(v) for v in (a.real, a.imag, b.real, b.imag))
        if abs(c) >= abs(d):
            r = d / c
            t = c + d * r
            return complex((p + q * r) / t, (q - p * r) / t)
        r = c / d
        t = c * r + d
        return complex((p * r + q) / t, (q * r - p) / t)


@pytest.mark.parametrize("dtype", [float, complex])
def test_generalised_eigenvalues_are_quotients(qv, dtype):
    rng = np.random.default_rng(3)
    qz, eigen = (qv.ZemFunc256, qv.ZemFunc252) if dtype is float else (qv.ZemFunc257, qv.ZemFunc253)
    infinite = 0
    for n, _ in itertools.product([1, 2, 3, 5, 8], range(12)):
        a, b = (rng.integers(-3, 4, (n, n)).astype(dtype) for _ in range(2))
        if dtype is complex:
            a, b = a + 1j * rng.integers(-3, 4, (n, n)), b + 1j * rng.integers(-3, 4, (n, n))
        if rng.random() < 0.5:
            b[:, 0] = 0
        s, t, alpha, beta = np.zeros_like(a), np.zeros_like(a), np.zeros(n, complex), np.zeros(n, dtype)
        values = unwritten(n, complex)
        assert qz(a, b, n, 0, s, t, None, None, alpha, beta, None, None) == 0
        assert eigen(a, b, n, values.array, None, None) == 0
        values.kept()
        with np.errstate(all="ignore"):
            if dtype is float:
                expected = np.stack([alpha.real / beta, alpha.imag / beta], 1).ravel()
            else:
                expected = np.array([smith(x, y) for x, y in zip(alpha, beta)]).view(float)
        equal_numbers(values.array.view(float) + 0.0, expected + 0.0)
        infinite += np.count_nonzero(beta == 0)
    assert infinite > 5


def test_vectors_of_pairs_are_conjugates_and_those_of_real_eigenvalues_are_real(qv):
    rng = np.random.default_rng(4)
    pairs = 0
    for n, _ in itertools.product([1, 2, 3, 5, 8], range(8)):
        a, b = rng.standard_normal((n, n)), rng.standard_normal((n, n))
        values, right, left = np.zeros(n, complex), np.zeros((n, n), complex), np.zeros((n, n), complex)

        def check(vectors):
            for j in range(n):
                if values[j].imag == 0:
                    assert not np.any(vectors[:, j].imag)
                elif values[j].imag > 0:
                    assert values[j + 1] == values[j].conj()
                    assert np.array_equal(vectors[:, j + 1], vectors[:, j].conj()) and np.any(vectors[:, j].imag)

        assert qv.ZemFunc201(a, n, 1, values, right) == 0
        check(right)
        pairs += np.count_nonzero(values.imag > 0)
        assert qv.ZemFunc252(a, b, n, values, right, left) == 0
        beta_scale = np.abs(values)
        for j in range(n):  # the two of a pair have their own betas: equal but for rounding
            if values[j].imag > 0:
                assert abs(values[j + 1] - values[j].conj()) <= 64 * np.finfo(float).eps * beta_scale[j]
                for vectors in (right, left):
                    assert np.array_equal(vectors[:, j + 1], vectors[:, j].conj())
            elif values[j].imag == 0:
                assert not np.any(right[:, j].imag) and not np.any(left[:, j].imag)
    assert pairs > 10


def root(z):
    square = z.real * z.real + z.imag * z.imag
    if square == 0:
        return 0j
    s, t = math.sqrt(math.sqrt(square)), 0.5 * math.atan2(z.imag, z.real)
    return complex(s * math.cos(t), s * math.sin(t))


def times(x, y):
    return complex(x.real * y.real - x.imag * y.imag, x.real * y.imag + x.imag * y.real)


def roots(qv, c, status=0):
    out = unwritten(max(len(c) - 1, 1), complex)
    assert qv.ZemFunc300(np.array(c, complex), len(c), out.array) == status, c
    out.kept()
    return out


def test_linear_and_quadratic_polynomials(qv):
    rng = np.random.default_rng(5)
    for _ in range(200):
        kind = rng.choice(["plain", "ties"])
        c0, c1, c2 = numbers(rng, 6, kind).view(complex).tolist()
        if c0 == 0 or c2 == 0 or c1 == 0:
            continue
        z = smith(c0, c1)
        equal_numbers(roots(qv, [c0, c1]).array.view(float) + 0.0, [0.0 - z.real, 0.0 - z.imag])
        four = times(c2, c0)
        square = times(c1, c1)
        d = root(complex(square.real - 4 * four.real, square.imag - 4 * four.imag))
        minus, plus = c1 - d, c1 + d
        q = minus if abs(minus) > abs(plus) else plus
        expected = [smith(complex(-0.5 * q.real, -0.5 * q.imag), c2), smith(complex(-2 * c0.real, -2 * c0.imag), q)]
        got = roots(qv, [c0, c1, c2]).array
        if abs(got[0] - expected[0]) > abs(got[0] - expected[1]):
            expected.reverse()
        equal_numbers(got.view(float) + 0.0, np.array(expected).view(float) + 0.0)


def test_zeros_at_either_end_of_a_polynomial(qv):
    for low, high in itertools.product([0, 1, 3], [0, 1, 2]):
        if low:
            out = roots(qv, [0] * low + [2 - 1j] + [0] * high)
            assert np.array_equal(out.array[:low], np.zeros(low))
            assert np.array_equal(out.words[2 * low:], out.first[2 * low:])
        out = roots(qv, [0] * low + [2 - 1j, 1j] + [0] * high)
        assert np.array_equal(out.array[:low + 1] + 0.0, [1 + 2j] + [0] * low)
        assert np.array_equal(out.words[2 * low + 2:], out.first[2 * low + 2:])
        if low == 0:
            roots(qv, [2 - 1j] + [0] * high, -20021).untouched()


def test_polynomials_are_refused_in_this_order(qv):
    bad = [np.nan, np.inf, -np.inf, 1.7976931348623157e308, -1.7976931348623157e308, -1.7976931348623e308]
    for n in (1, 2, 3, 5):
        roots(qv, [0.0] * n, -20111).untouched()
        for value, place in itertools.product(bad, range(n)):
            for made in (complex(value, 0), complex(0, value)):
                for rest in (0.0, 1.0):
                    c = [complex(rest)] * n
                    c[place] = made
                    roots(qv, c, -20063).untouched()
    out = unwritten(1, complex)
    assert qv.ZemFunc300(np.array([np.nan + 0j]), 0, out.array) == -20003
    out.untouched()
