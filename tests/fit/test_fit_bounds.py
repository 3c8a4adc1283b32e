"""Bands beside their matrix formulas with SciPy's quantiles, and their coverage by simulation."""

import numpy as np
import pytest
import scipy.stats

TOKEN = 2.71828
NUMBERS = {"line": 293, "exponential": 291, "power": 295, "logarithm": 294, "gaussian": 292}
TRUTH = {"line": (2.5, -1.0), "exponential": (1.5, 0.6), "power": (2.0, 1.3), "logarithm": (1.7, 2.2),
         "gaussian": (3.0, 2.0, 0.7)}


def value(model, x, c, base=TOKEN):
    if model == "line":
        return c[0] * x + c[1]
    if model == "exponential":
        return c[0] * np.exp(c[1] * x)
    if model == "power":
        return c[0] * x ** c[1]
    if model == "logarithm":
        return c[0] * np.log(c[1] * x) / (1 if base == TOKEN else np.log(base))
    return c[0] * np.exp(-0.5 * ((x - c[1]) / c[2]) ** 2)


def rows(model, x, c, base=TOKEN):
    """Central differences: no formula of the library's."""
    columns = []
    for j in range(len(c)):
        h = 1e-5 * max(1, abs(c[j]))
        up, down = np.array(c, dtype=float), np.array(c, dtype=float)
        up[j] += h
        down[j] -= h
        columns.append((value(model, x, up, base) - value(model, x, down, base)) / (2 * h))
    return np.column_stack(columns)


def bounds(qv, model, x, y, w, kind, level, c, base=TOKEN):
    upper, lower = np.empty(len(x)), np.empty(len(x))
    half = [np.full(1, -1.0) for _ in c]
    head = (x, y, w, len(x)) + ((base,) if model == "logarithm" else ())
    status = getattr(qv, f"ZemFunc{NUMBERS[model]}")(*head, kind, level, *c, upper, lower, *half)
    return status, upper, lower, np.array([h[0] for h in half])


@pytest.mark.parametrize("model", NUMBERS)
def test_bands_are_their_matrix_formulas(qv, model):
    rng = np.random.default_rng(1)
    for level in (0.5, 0.9, 0.95, 0.999):
        for weighted in (False, True):
            for base in (TOKEN, 10.0) if model == "logarithm" else (TOKEN,):
                x = np.sort(rng.uniform(0.3, 4, 30))
                c = np.array(TRUTH[model])
                y = value(model, x, c, base) + 0.1 * rng.normal(size=30)
                w = rng.uniform(0.3, 3, 30) if weighted else None
                u = np.ones(30) if w is None else w
                jacobian = rows(model, x, c, base)
                inverse = np.linalg.inv(jacobian.T @ (jacobian * u[:, None]))
                dof = 30 - len(c)
                variance = np.sum(u * (y - value(model, x, c, base)) ** 2) / dof
                t = scipy.stats.t.ppf(1 - (1 - level) / 2, dof)
                v = np.einsum("ij,jk,ik->i", jacobian, inverse, jacobian)
                # The quantile is a bisection to 1e-4 of its argument.
                close = dict(rtol=3e-4, atol=1e-6)
                for kind, extra in ((0, 0), (1, 1 / u)):
                    status, upper, lower, half = bounds(qv, model, x, y, w, kind, level, c, base)
                    assert status == 0
                    assert np.allclose((upper + lower) / 2, value(model, x, c, base), rtol=1e-12, atol=1e-12)
                    assert np.allclose((upper - lower) / 2, t * np.sqrt((v + extra) * variance), **close)
                    if kind == 0:
                        assert np.allclose(half, t * np.sqrt(np.diag(inverse) * variance), **close)
                    else:
                        assert np.all(half == -1)


def test_bands_cover_as_often_as_they_say(qv):
    """A line with normal errors of unequal, known weights: 8000 experiments, whose rate has a deviation of 0.25 percent."""
    rng = np.random.default_rng(5)
    x = np.linspace(0, 1, 12)
    w = rng.uniform(0.5, 2, 12)
    curve, slope, intercept, residue = np.empty(12), np.empty(1), np.empty(1), np.empty(1)
    upper, lower, ds, di = np.empty(12), np.empty(12), np.empty(1), np.empty(1)
    hits = np.zeros(4)
    experiments = 8000
    for k in range(experiments):
        y = 2 * x - 1 + rng.normal(size=12) / np.sqrt(w)
        qv.ZemFunc288(x, y, w, 12, 0, -1.0, curve, slope, intercept, residue)
        assert qv.ZemFunc293(x, y, w, 12, 0, 0.95, slope[0], intercept[0], upper, lower, ds, di) == 0
        at = k % 12
        hits[0] += lower[at] <= 2 * x[at] - 1 <= upper[at]
        hits[1] += abs(slope[0] - 2) <= ds[0]
        hits[2] += abs(intercept[0] + 1) <= di[0]
        assert qv.ZemFunc293(x, y, w, 12, 1, 0.95, slope[0], intercept[0], upper, lower, ds, di) == 0
        hits[3] += lower[at] <= 2 * x[at] - 1 + rng.normal() / np.sqrt(w[at]) <= upper[at]
    assert np.all(np.abs(hits / experiments - 0.95) < 0.01), hits / experiments


@pytest.mark.parametrize("model", ["exponential", "power", "logarithm"])
def test_bands_of_curved_models_cover_for_small_noise(qv, model):
    """The linearisation holds for noise of a hundredth of the curve; fitted by the library's own least squares."""
    rng = np.random.default_rng(6)
    x = np.linspace(0.5, 3, 15)
    truth = value(model, x, TRUTH[model])
    fit = {"exponential": qv.ZemFunc286, "power": qv.ZemFunc290,
           "logarithm": lambda x, y, w, n, *rest: qv.ZemFunc289(x, y, w, n, TOKEN, *rest)}[model]
    curve, a, b, residue = np.empty(15), np.empty(1), np.empty(1), np.empty(1)
    experiments, hits = 4000, np.zeros(2)
    for k in range(experiments):
        y = truth + 0.02 * rng.normal(size=15)
        assert fit(x, y, None, 15, 0, 1e-12, curve, a, b, residue) == 0
        _, upper, lower, half = bounds(qv, model, x, y, None, 0, 0.95, (a[0], b[0]))
        hits[0] += lower[k % 15] <= truth[k % 15] <= upper[k % 15]
        hits[1] += abs(b[0] - TRUTH[model][1]) <= half[1]
    # 0.95 has a deviation of 0.35 percent here.
    assert np.all(np.abs(hits / experiments - 0.95) < 0.012), hits / experiments


def test_goodness_of_a_fit_beside_its_definitions(qv):
    rng = np.random.default_rng(2)
    y = rng.normal(size=200)
    f, w = y + 0.3 * rng.normal(size=200), rng.uniform(0, 2, 200)
    sse, r, rmse = np.empty(1), np.empty(1), np.empty(1)
    assert qv.ZemFunc284(y, f, None, 200, 190, sse, r, rmse) == 0
    assert np.isclose(sse[0], np.sum((y - f) ** 2), rtol=1e-12)
    assert np.isclose(r[0], 1 - np.sum((y - f) ** 2) / np.sum((y - y.mean()) ** 2), rtol=1e-12)
    assert np.isclose(rmse[0], np.sqrt(np.sum((y - f) ** 2) / 190), rtol=1e-12)
    assert qv.ZemFunc284(y, f, w, 200, 0, sse, r, rmse) == 0
    assert np.isclose(sse[0], np.sum(w * (y - f) ** 2), rtol=1e-12)
    assert np.isclose(r[0], 1 - np.sum(w * (y - f) ** 2) / np.sum(w * (y - y.mean()) ** 2), rtol=1e-12)


def test_removal_beside_numpy_masks(qv):
    rng = np.random.default_rng(8)
    for mode in (0, 1, 2):
        x, y, w = rng.normal(size=(3, 500))
        limits = np.array([0.5, -1.0, -0.7, 1.5])
        inside_x, inside_y = (x > -1.0) & (x < 0.5), (y > -1.0) & (y < 0.5)
        keep = inside_y if mode == 0 else inside_x if mode == 1 else inside_x & (y > -0.7) & (y < 1.5)
        n, capacity, count = np.array([500]), np.array([500]), np.array([0])
        removed = np.empty(500, dtype=np.int64)
        xs, ys, ws = x.copy(), y.copy(), w.copy()
        assert qv.ZemFunc297(xs, ys, ws, n, mode, limits, 4, removed, capacity, count) == 0
        k = n[0]
        assert k == keep.sum() and capacity[0] == count[0] == 500 - k
        assert np.array_equal(xs[:k], x[keep]) and np.array_equal(ys[:k], y[keep]) and np.array_equal(ws[:k], w[keep])
        assert np.array_equal(removed[:500 - k], np.flatnonzero(~keep))
        # Removing the same by index is the same.
        xs, ys, m = x.copy(), y.copy(), np.array([500])
        assert qv.ZemFunc296(xs, ys, None, m, removed[:500 - k].copy(), 500 - k) == 0
        assert m[0] == k and np.array_equal(xs[:k], x[keep])
