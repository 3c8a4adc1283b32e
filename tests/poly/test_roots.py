"""Roots of polynomials beside mpmath's at 60 digits, of the very coefficients that the library is given.

The three searches are judged by the condition of each root: a relative change of eps in every coefficient c(k) moves a
simple root z by at most eps * sum |c(k) z^k| / |p'(z)|.
"""

import functools

import mpmath
import numpy as np
import pytest

EPS = 2.0**-52
SEARCHES = ["real", "multiple", "zeros"]


def found(qv, search, c):
    """All roots of the polynomial with the coefficients c, the constant first."""
    roots = np.full(len(c) - 1, np.nan, complex)
    if search == "real":
        status = qv.ZemFunc299(np.array(c, float), len(c), roots)
    elif search == "multiple":
        status = qv.ZemFunc300(np.array(c, complex), len(c), roots)
    else:
        status = qv.ZemFunc231(np.array(c[::-1], float), len(c), roots)
    assert status == 0
    return roots


@functools.cache
def truth(c):
    """The roots, and how far a relative change of eps in the coefficients moves each of them."""
    with mpmath.workdps(60):
        descending = [mpmath.mpmathify(complex(v)) for v in c[::-1]]
        roots = mpmath.polyroots(descending, maxsteps=500, extraprec=200)
        moves = []
        for z in roots:
            _, slope = mpmath.polyval(descending, z, derivative=True)
            size = mpmath.polyval([abs(v) for v in descending], abs(z))
            moves.append(float(size / abs(slope)) * EPS)
        return np.array([complex(z) for z in roots]), np.array(moves)


def expect(roots, c, factor):
    expected, moves = truth(tuple(c))
    left = list(range(len(expected)))
    for z in roots:
        nearest = min(left, key=lambda i: abs(expected[i] - z))
        left.remove(nearest)
        assert abs(expected[nearest] - z) <= factor * (moves[nearest] + EPS * abs(z))


# The companion matrix is solved to a backward error of the order of its norm, which the scaling to roots of unit size
# keeps near the degree; deflation adds one such error a zero.
@pytest.mark.parametrize("search", SEARCHES)
@pytest.mark.parametrize("degree", [1, 2, 3, 4, 5, 8, 13, 20, 30])
def test_roots_of_random_polynomials_move_by_rounding_alone(qv, search, degree):
    for seed in range(5):
        c = np.random.default_rng(100 * degree + seed).normal(size=degree + 1)
        expect(found(qv, search, c), c, 20 * degree)


@pytest.mark.parametrize("degree", [1, 2, 3, 4, 7, 12, 20])
def test_roots_of_random_complex_polynomials_move_by_rounding_alone(qv, degree):
    for seed in range(5):
        random = np.random.default_rng(100 * degree + seed)
        c = random.normal(size=degree + 1) + 1j * random.normal(size=degree + 1)
        expect(found(qv, "multiple", c), c, 20 * degree)


@pytest.mark.parametrize("search", SEARCHES)
def test_roots_of_wilkinsons_polynomial_of_degree_ten(qv, search):
    c = np.polynomial.polynomial.polyfromroots(np.arange(1.0, 11))  # integers below 2^53: exact
    expect(found(qv, search, c), c, 20 * 10)


@pytest.mark.parametrize("search", SEARCHES)
def test_roots_of_far_apart_sizes(qv, search):
    roots = np.array([1e-6, -3e-3, 1.0, 2e3, -1e7])
    c = np.polynomial.polynomial.polyfromroots(roots)
    expect(found(qv, search, c), c, 20 * 5)


def expanded(roots):
    """The rounded coefficients of the product of (x - z), the constant first."""
    with mpmath.workdps(60):
        c = [mpmath.mpf(1)]
        for z in roots:
            z = mpmath.mpmathify(z)
            lower, upper = [-z * v for v in c] + [0], [0] + c
            c = [a + b for a, b in zip(lower, upper)]
        return np.array([complex(v) for v in c])


def test_forty_simple_roots_keep_all_their_digits(qv):
    """However the search orders them: the product around the circle loses six digits to its intermediate coefficients."""
    upper = [(1 + k / 100) * np.exp(1j * np.pi * (2 * k + 1) / 40) for k in range(20)]
    truth = np.array(upper + [z.conjugate() for z in upper])
    roots = found(qv, "multiple", expanded(truth))
    assert np.max(np.min(np.abs(roots[:, None] - truth), axis=0)) <= 1e-14


STRUCTURES = {
    "zeng, four roots": {1: 4, 2: 3, 3: 2, 4: 1},
    "twenty": {1: 8, 2: 6, 3: 4, 4: 2},
    "forty": {1: 16, 2: 12, 3: 8, 4: 4},
    "fiftyfold": {1: 50},
    "two hundredths apart": {0.99: 3, 1.01: 3},
    "pairs": {1 + 2j: 3, 1 - 2j: 3, -3: 1},
    "sizes": {1e-5: 2, 1: 2, 1e5: 2},
}


@pytest.mark.parametrize("search, digits", [("real", 1e-9), ("multiple", 1e-12)])
@pytest.mark.parametrize("name", STRUCTURES)
def test_multiplicities_come_back_with_their_roots(qv, search, digits, name):
    """Gauss-Newton steps on the roots themselves, which ZemFunc300 adds, bring the last digits back."""
    structure = STRUCTURES[name]
    c = expanded([z for z, times in structure.items() for _ in range(times)])
    roots = found(qv, search, c.real if search == "real" else c)
    for z, times in structure.items():
        assert np.count_nonzero(np.abs(roots - z) <= digits * abs(z)) == times
    assert len(set(roots.tolist())) == len(structure)


def test_a_cluster_closer_than_its_coefficients_tell_is_one_root(qv):
    c = expanded([1 - 1e-7, 1, 1 + 1e-7, 3])
    for search in ["real", "multiple"]:
        roots = found(qv, search, c.real if search == "real" else c)
        assert sorted(np.unique(roots, return_counts=True)[1]) == [1, 3]
        assert np.count_nonzero(np.abs(roots - 1) < 1e-6) == 3


def test_a_cluster_that_the_coefficients_tell_apart_stays_apart(qv):
    c = expanded([1 - 1e-3, 1, 1 + 1e-3, 3])
    for search in SEARCHES:
        roots = found(qv, search, c if search == "multiple" else c.real)
        assert len(set(roots.tolist())) == 4
        expect(roots, c if search == "multiple" else c.real, 80)
