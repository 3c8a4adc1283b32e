"""Linear and polynomial fits: NIST's certified sets, NumPy's least squares, and the closed-form covariance.

Longley's data are correlated (condition number 5e9): selectors that work on the design lose some ten digits, the normal
equations, whose condition number is the square, cannot be asked for any. The Wampler sets are fifth-degree polynomials
at x = 0 to 20 (condition number 6e6): exact in 1 and 2, with the deviations of 3, multiplied by 100 and 10,000, in 4 and 5.
"""

import csv
import pathlib
import re
from fractions import Fraction

import numpy as np
import pytest

NIST = pathlib.Path(__file__).parent / "nist"
EPS = 2.220446049250313e-16
SELECTORS = range(7)


def general(qv, design, y, selector, deviations=None):
    m, n = design.shape
    c, fitted, covariance, error = np.empty(n), np.empty(m), np.empty((n, n)), np.empty(1)
    status = qv.ZemFunc86(np.ascontiguousarray(design).ravel(), m, n, y, deviations, selector, fitted, c,
                          covariance.ravel(), error)
    return status, c, fitted, covariance, error[0]


def polynomial(qv, x, y, order, algorithm, weights=None, fixed=()):
    x = x.copy()
    c, fitted, error = np.full(order + 1, np.nan), np.empty(len(x)), np.empty(1)
    orders = np.array([k for k, _ in fixed], dtype=np.int32)
    values = np.array([v for _, v in fixed], dtype=float)
    status = qv.ZemFunc361(x, y, weights, len(x), order, orders, values, len(fixed), algorithm, fitted, c, error)
    return status, c, fitted, error[0]


def norris():
    text = (NIST / "Norris.dat").read_text()
    rows = [line.split() for line in text.splitlines()[60:96]]
    data = np.array(rows, dtype=float)
    certified = [tuple(float(v) for v in pair) for pair in re.findall(r"B\d\s+(\S+)\s+(\S+)\s*\n", text)]
    return np.ascontiguousarray(data[:, 1]), np.ascontiguousarray(data[:, 0]), np.array(certified)


@pytest.mark.parametrize("selector", SELECTORS)
def test_norris(qv, selector):
    x, y, certified = norris()
    assert certified.shape == (2, 2)
    design = np.vander(x, 2, increasing=True)
    status, c, fitted, covariance, error = general(qv, design, y, selector)
    assert status == 0
    condition = np.linalg.cond(design)  # 800; squared in the normal equations
    assert np.linalg.norm(c - certified[:, 0]) < 10 * EPS * (condition if selector not in (4, 5) else condition ** 2)
    residual = 0.884796396144373
    # Of y² of up to 1e6, rounding leaves the error some 1e6·epsilon.
    assert abs(error - residual ** 2 * 34 / 36) < 1e-9
    assert np.allclose(np.sqrt(np.diag(covariance)) * residual, certified[:, 1], rtol=1e-10)


LONGLEY = np.array([-3482258.63459582, 15.0618722713733, -0.358191792925910E-01, -2.02022980381683, -1.03322686917359,
                    -0.511041056535807E-01, 1829.15146461355])


def longley():
    with open(NIST / "Longley.csv") as file:
        rows = list(csv.DictReader(file))
    names = ["GNPDEFL", "GNP", "UNEMP", "ARMED", "POP", "YEAR"]
    design = np.array([[1.0] + [float(row[name]) for name in names] for row in rows])
    return design, np.array([float(row["TOTEMP"]) for row in rows])


@pytest.mark.parametrize("selector", [0, 1, 2, 3, 6])
def test_longley_from_the_design(qv, selector):
    design, y = longley()
    status, c, _, _, _ = general(qv, design, y, selector)
    assert status == 0
    assert np.max(np.abs(c / LONGLEY - 1)) < 5e9 * 10 * EPS


def powers(x):
    return sum(x ** k for k in range(6))


WAMPLER_DEVIATIONS = np.array([759, -2048, 2048, -2048, 2523, -2048, 2048, -2048, 1838, -2048, 2048, -2048, 1838, -2048,
                               2048, -2048, 2523, -2048, 2048, -2048, 759], dtype=float)


def wampler(number):
    x = np.arange(21.0)
    if number == 2:
        return x, sum((0.1 * x) ** k for k in range(6)), 10.0 ** -np.arange(6), 0.0
    scale = {1: 0, 3: 1, 4: 100, 5: 10000}[number]
    return x, powers(x) + scale * WAMPLER_DEVIATIONS, np.ones(6), scale * 2360.14502379268


def test_wamplers_deviations_leave_the_coefficients(qv):
    assert all(int(np.sum(WAMPLER_DEVIATIONS.astype(object) * np.arange(21).astype(object) ** k)) == 0 for k in range(6))


@pytest.mark.parametrize("algorithm", range(4))
@pytest.mark.parametrize("number", [1, 2, 3, 4, 5])
def test_wampler(qv, number, algorithm):
    x, y, certified, residual = wampler(number)
    status, c, fitted, error = polynomial(qv, x, y, 5, algorithm)
    assert status == 0
    # First-order perturbation: the condition number times epsilon on the scaled coefficients, its square on what the
    # residual adds, and once more its square for the normal equations.
    design = np.vander(x, 6, increasing=True)
    condition = np.linalg.cond(design)
    size = np.linalg.norm(certified)
    smallest = np.linalg.svd(design)[1][-1]
    bound = 20 * EPS * (condition * size + condition * np.linalg.norm(residual * np.sqrt(21)) / smallest)
    if algorithm >= 2:
        bound = 20 * EPS * condition * (condition * size + np.linalg.norm(residual * np.sqrt(21)) / smallest)
    assert np.max(np.abs(c - certified)) < bound
    assert abs(np.sqrt(error * 21 / 15) - residual) < 1e-5 * (residual + 1)


@pytest.mark.parametrize("selector", SELECTORS)
@pytest.mark.parametrize("shape", [(1, 1), (2, 1), (5, 5), (20, 3), (100, 12), (1000, 4), (3000, 30)])
def test_numpy_agrees(qv, shape, selector):
    rng = np.random.default_rng(shape[0])
    design, y = rng.normal(size=shape), rng.normal(size=shape[0])
    deviations = rng.uniform(0.5, 2, shape[0])
    for sigma in (None, deviations):
        root = 1 if sigma is None else 1 / sigma
        status, c, fitted, covariance, error = general(qv, design, y, selector, sigma)
        scaled = design * np.reshape(root, (-1, 1))
        theirs = np.linalg.lstsq(scaled, y * root, rcond=None)[0]
        condition = np.linalg.cond(scaled) ** 2
        assert status == 0
        assert np.linalg.norm(c - theirs) < 100 * EPS * condition * (1 + np.linalg.norm(theirs))
        assert np.allclose(fitted, design @ c, atol=1e-12, rtol=1e-12)
        inverse = np.linalg.inv(scaled.T @ scaled)
        assert np.linalg.norm(covariance - inverse) < 1000 * EPS * condition * np.linalg.norm(inverse)
        assert np.isclose(error, np.mean((root * (y - fitted)) ** 2), rtol=1e-11, atol=1e-13)


@pytest.mark.parametrize("selector", SELECTORS)
def test_the_covariance_is_that_of_repeated_experiments(qv, selector):
    """Over 400 draws of noise of deviation 0.3, the coefficients scatter as the covariance says, to 5 standard errors."""
    rng = np.random.default_rng(3)
    x = np.linspace(0, 1, 12)
    design = np.ascontiguousarray(np.vander(x, 3, increasing=True))
    sigma = np.full(12, 0.3)
    found = []
    for _ in range(400):
        status, c, _, covariance, _ = general(qv, design, 1 + x + 0.3 * rng.normal(size=12), selector, sigma)
        found.append(c)
    ratio = np.var(np.array(found), axis=0, ddof=1) / np.diag(covariance)
    assert np.all(np.abs(ratio - 1) < 5 * np.sqrt(2 / 399))


@pytest.mark.parametrize("algorithm", range(4))
@pytest.mark.parametrize("order", [0, 1, 2, 3, 5, 8])
def test_polyfit_agrees(qv, order, algorithm):
    rng = np.random.default_rng(order)
    x, y, w = rng.uniform(-1, 1, 60), rng.normal(size=60), rng.uniform(0.2, 3, 60)
    for weights in (None, w, -w):
        status, c, fitted, error = polynomial(qv, x, y, order, algorithm, weights)
        root = np.ones(60) if weights is None else np.sqrt(w)
        theirs = np.polyfit(x, y, order, w=root)[::-1]
        condition = np.linalg.cond(np.vander(x, order + 1) * root[:, None])
        assert status == 0
        assert np.linalg.norm(c - theirs) < 200 * EPS * condition ** 2 * (1 + np.linalg.norm(theirs))
        assert np.allclose(fitted, np.polynomial.polynomial.polyval(x, c), atol=1e-12)
        assert np.isclose(error, np.mean(root ** 2 * (y - fitted) ** 2), rtol=1e-12)


@pytest.mark.parametrize("algorithm", range(4))
def test_fixed_coefficients_are_an_equality_constraint(qv, algorithm):
    """Beside a least-squares fit of the remaining columns, for every set of fixed orders of a cubic."""
    rng = np.random.default_rng(9)
    x, y, w = rng.uniform(-1, 1, 40), rng.normal(size=40), rng.uniform(0.2, 3, 40)
    columns = np.vander(x, 4, increasing=True)
    for mask in range(1, 16):
        fixed = [(k, 0.5 * k - 1) for k in range(4) if mask >> k & 1]
        free = [k for k in range(4) if not mask >> k & 1]
        status, c, fitted, error = polynomial(qv, x, y, 3, algorithm, w, fixed)
        assert status == 0
        expected = np.zeros(4)
        for k, value in fixed:
            expected[k] = value
        rest = y - columns @ expected
        if free:
            expected[free] = np.linalg.lstsq(columns[:, free] * np.sqrt(w)[:, None], rest * np.sqrt(w), rcond=None)[0]
        assert np.allclose(c, expected, atol=1e-12)
        assert np.allclose(fitted, columns @ c, atol=1e-13)
        assert np.isclose(error, np.mean(w * (y - fitted) ** 2), rtol=1e-12)


def test_the_residual_is_orthogonal_to_the_powers(qv):
    rng = np.random.default_rng(4)
    x, y = np.linspace(-1, 1, 500), rng.normal(size=500)
    for order in (1, 7, 25):
        _, _, fitted, _ = polynomial(qv, x, y, order, 0)
        columns = np.vander(x, order + 1)
        assert np.max(np.abs(columns.T @ (y - fitted))) < 500 * 100 * EPS * np.linalg.cond(columns)


def test_trend_and_season_through_the_general_fit(qv):
    """A quadratic and two harmonics without noise come back."""
    t = np.arange(240) / 12.0
    design = np.column_stack([np.ones_like(t), t, t ** 2] + [f(2 * np.pi * k * t) for k in (1, 2) for f in (np.cos, np.sin)])
    truth = np.array([315.0, 0.8, 0.012, 1.7, -2.1, 0.7, 0.3])
    for selector in SELECTORS:
        status, c, _, _, error = general(qv, design, design @ truth, selector)
        assert status == 0
        assert np.allclose(c, truth, rtol=1e-9)
        assert error < 1e-9


def solve_exactly(a, b):
    """Gauss-Jordan elimination in rationals."""
    rows = [list(row) + [v] for row, v in zip(a, b)]
    for k in range(len(rows)):
        pivot = next(i for i in range(k, len(rows)) if rows[i][k] != 0)
        rows[k], rows[pivot] = rows[pivot], rows[k]
        for i in range(len(rows)):
            if i != k:
                factor = rows[i][k] / rows[k][k]
                rows[i] = [u - factor * v for u, v in zip(rows[i], rows[k])]
    return [row[-1] / row[k] for k, row in enumerate(rows)]


def constrained_in_rationals(x, y, w, order, last):
    """The fit with the coefficients `last` fixed, up to its top order: coefficients, curve and error."""
    free = [j for j in range(order + 1) if j not in last]
    top = order if order <= 25 or len(free) < 2 else max(25, free[1])
    kept = [j for j in free if j <= top]
    xs, ws = [Fraction(v) for v in x], [abs(Fraction(v)) for v in w]
    c = [Fraction(last.get(j, 0)) for j in range(order + 1)]

    def curve():
        return [sum(c[j] * v ** j for j in range(order + 1)) for v in xs]

    rest = [Fraction(v) - f for v, f in zip(y, curve())]
    normal = [[sum(u * v ** (j + k) for u, v in zip(ws, xs)) for k in kept] for j in kept]
    right = [sum(u * v ** j * r for u, v, r in zip(ws, xs, rest)) for j in kept]
    for j, value in zip(kept, solve_exactly(normal, right)):
        c[j] = value
    f = curve()
    error = sum(u * (a - Fraction(b)) ** 2 for u, a, b in zip(ws, f, y)) / len(xs)
    return [float(v) for v in c], [float(v) for v in f], float(error)


@pytest.mark.parametrize("algorithm", range(4))
@pytest.mark.parametrize("order, free", [
    (2, ()), (2, (1,)), (4, (0, 3)), (25, (0, 25)), (26, (2, 26)), (28, (3, 27, 28)), (33, (32, 33)), (33, (1, 4, 30)),
    (30, (29,)), (28, ())])
def test_constrained_polynomials_follow_exact_rationals(qv, order, free, algorithm):
    rng = np.random.default_rng(order + 100 * len(free))
    n = order + 5
    x, y, w = rng.uniform(-1, 1, n), rng.normal(size=n), rng.uniform(0.2, 2, n) * rng.choice([-1, 1], n)
    # Orders out of range do nothing, and the last of two values for an order holds.
    fixed = [j for j in range(order + 1) if j not in free]
    orders = np.array([fixed[0], -3, order + 1] + fixed, dtype=np.int32)
    values = rng.normal(size=len(orders))
    truth, curve, error = constrained_in_rationals(x, y, w, order, dict(zip(orders[3:].tolist(), values[3:])))
    for null_curve in (False, True):
        at, c, f, e = x.copy(), np.full(order + 1, np.nan), np.full(n, np.nan), np.full(1, np.nan)
        status = qv.ZemFunc361(at, y, w, n, order, orders, values, len(orders), algorithm, None if null_curve else f, c, e)
        assert status == (20031 if order > 25 else 0)
        # At most three columns, of powers whose smallest sizes make the condition of the normal matrix some 1e6.
        assert np.allclose(c, truth, rtol=1e-9, atol=1e-9)
        assert np.allclose(at if null_curve else f, curve, rtol=1e-11, atol=1e-11)
        assert np.isclose(e[0], error, rtol=1e-10, atol=1e-14)
        assert null_curve or np.array_equal(at, x)
