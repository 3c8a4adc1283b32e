"""Interpolation beside exact arithmetic, SciPy's splines and the normal equations of the smoothing spline."""

from fractions import Fraction

import numpy as np
import pytest
from scipy.interpolate import CubicSpline

NATURAL = 1e30


def samples(n, seed):
    rng = np.random.default_rng(seed)
    return np.cumsum(rng.uniform(0.2, 1.5, n)), rng.standard_normal(n)


def polynomial_at(x, y, point):
    """Lagrange's form in exact fractions."""
    point, xs = Fraction(point), [Fraction(v) for v in x]
    total = Fraction(0)
    for i, xi in enumerate(xs):
        term = Fraction(y[i])
        for j, xj in enumerate(xs):
            if j != i:
                term *= (point - xj) / (xi - xj)
        total += term
    return float(total)


@pytest.mark.parametrize("n", [1, 2, 3, 5, 8, 12])
def test_the_polynomial_is_the_one_through_all_samples(qv, n):
    x, y = samples(n, n)
    order = np.random.default_rng(1).permutation(n)
    x, y = np.ascontiguousarray(x[order]), np.ascontiguousarray(y[order])
    result, error = np.zeros(1), np.zeros(1)
    for point in np.linspace(x.min() - 0.3, x.max() + 0.3, 17):
        assert qv.ZemFunc138(x, y, n, point, result, error) == 0
        # Rounding of the tableau: n columns, with entries up to the largest basis polynomial.
        basis = sum(abs(polynomial_at(x, np.eye(n)[i], point) * y[i]) for i in range(n))
        assert abs(result[0] - polynomial_at(x, y, point)) <= 8 * n * 2.3e-16 * max(basis, np.abs(y).max()) * n


@pytest.mark.parametrize("n", [2, 3, 4, 7, 50])
@pytest.mark.parametrize("ends", [(None, None), (0.3, None), (None, -2.0), (1.0, 4.0)])
def test_the_spline_is_scipys(qv, n, ends):
    x, y = samples(n, n)
    conditions = [(2, 0.0) if end is None else (1, end) for end in ends]
    truth = CubicSpline(x, y, bc_type=conditions)
    second = np.zeros(n)
    first, last = (NATURAL if end is None else end for end in ends)
    assert qv.ZemFunc164(x, y, n, first, last, second) == 0
    scale = np.abs(truth(x, 2)).max() + 1
    # The tridiagonal system is diagonally dominant; the slopes carry the spacing's condition.
    assert np.abs(second - truth(x, 2)).max() <= 100 * 2.3e-16 * scale * 10
    result = np.zeros(1)
    for point in np.linspace(x[0] - 0.5, x[-1] + 0.5, 101):
        assert qv.ZemFunc163(x, y, second, n, point, result) == 0
        assert abs(result[0] - truth(point)) <= 1e-12 * (np.abs(y).max() + scale)


def smoothing_by_normal_equations(x, y, w, p, smoothness):
    """Minimises p·sum w (y - s)² + (1 - p)·s'K s with K = Q R^-1 Q' the curvature of the natural spline."""
    n = len(x)
    h = np.diff(x)
    q = np.zeros((n, n - 2))
    r = np.zeros((n - 2, n - 2))
    hl = h / smoothness
    for j in range(n - 2):
        q[j, j], q[j + 1, j], q[j + 2, j] = 1 / h[j], -1 / h[j] - 1 / h[j + 1], 1 / h[j + 1]
        r[j, j] = (hl[j] + hl[j + 1]) / 3
        if j + 1 < n - 2:
            r[j, j + 1] = r[j + 1, j] = hl[j + 1] / 6
    curvature = q @ np.linalg.solve(r, q.T)
    return np.linalg.solve(p * np.diag(w) + (1 - p) * curvature, p * w * y)


@pytest.mark.parametrize("n", [3, 4, 5, 6, 7, 8, 25])
@pytest.mark.parametrize("p", [0.05, 0.5, 0.9, 0.999])
@pytest.mark.parametrize("weighted", [False, True])
def test_the_smoothing_spline_minimises_fit_and_curvature(qv, n, p, weighted):
    x, y = samples(n, 100 + n)
    rng = np.random.default_rng(n)
    w = rng.uniform(0.2, 4, n) if weighted else np.ones(n)
    smoothness = rng.uniform(0.3, 3, n - 1) if weighted else np.ones(n - 1)
    out = np.zeros(n)
    assert qv.ZemFunc285(x, y, w if weighted else None, n, p, smoothness if weighted else None, out) == 0
    truth = smoothing_by_normal_equations(x, y, w, p, smoothness)
    # The dense curvature matrix of the reference is conditioned like (span / spacing)^3.
    assert np.abs(out - truth).max() <= 1e-9 * np.abs(y).max()
