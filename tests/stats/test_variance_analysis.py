"""Variance analysis beside NIST's certified values and SciPy.

tests/stats/nist holds data sets of the Statistical Reference Datasets of the National Institute of Standards and
Technology (https://www.itl.nist.gov/div898/strd/anova/anova.html), in the public domain, as they were published.
"""

import math
import pathlib

import numpy as np
import pytest
from scipy import stats

EPS = 2.0**-53
NIST = pathlib.Path(__file__).parent / "nist"


def read(name):
    """Levels, observations, and the certified sums of squares, mean squares and F."""
    lines = (NIST / f"{name}.dat").read_text().splitlines()
    between, within = (next(line.split()[-4:] for line in lines if line.startswith(word))
                       for word in ("Between", "Within"))
    start = next(i for i, line in enumerate(lines) if line.startswith("Data:") and i > 50) + 1
    rows = [line.split() for line in lines[start:] if line.strip()]
    certified = dict(ssA=float(between[1]), msA=float(between[2]), f=float(between[3]),
                     ssError=float(within[-2]), msError=float(within[-1]))
    return np.array([int(r[0]) for r in rows]), np.array([float(r[1]) for r in rows]), certified


def one_way(qv, y, level, k):
    names = ("ssA", "msA", "f", "significance", "ssError", "msError", "ssTotal")
    out = {name: np.full(1, np.nan) for name in names}
    assert qv.ZemFunc6(y, level.astype(np.int64), len(y), k, *out.values()) == 0
    return {name: array[0] for name, array in out.items()}


# How many digits the sums can hold. Squares are summed about zero: each of the sums of n terms errs by at most n
# roundings of sum(y^2), and what is wanted is a small difference of them. A mean of M deviations costs 2 log10(M) of the
# sixteen digits. By that bound 6 digits of SiRstv and 11 of SmLs01 are sure; of AtmWtAg (M = 5e6), SmLs04 (1e6) and
# SmLs07 (1e13) not one is, and nothing more than the bound itself is asked of them.
@pytest.mark.parametrize("name, digits", [("SiRstv", 6), ("SmLs01", 11), ("AtmWtAg", 0), ("SmLs04", 0), ("SmLs07", 0)])
def test_nist_one_way(qv, name, digits):
    level, y, certified = read(name)
    k = len(set(level))
    found = one_way(qv, y, level, k)
    bound = 2 * (len(y) + 3) * EPS * (y**2).sum()
    for term in ("ssA", "ssError"):
        assert abs(found[term] - certified[term]) <= bound, term
    sure = math.log10(min(certified["ssA"], certified["ssError"]) / bound)
    assert max(math.floor(sure), 0) == digits
    if digits:
        for term in certified:
            assert found[term] == pytest.approx(certified[term], rel=4 * 10.0**-sure, abs=0), term


@pytest.mark.parametrize("name", ["SiRstv", "SmLs01", "AtmWtAg", "SmLs04", "SmLs07"])
def test_one_way_sums_run_in_the_order_of_the_data_and_of_first_sight(qv, name):
    level, y, _ = read(name)
    order = np.random.default_rng(1).permutation(len(y))
    level, y = level[order], y[order]
    sums, counts, total, squares = {}, {}, 0.0, 0.0
    for key, value in zip(level.tolist(), y.tolist()):
        sums[key] = sums.get(key, 0.0) + value
        counts[key] = counts.get(key, 0) + 1
        total += value
        squares += value * value
    correction = total * total / len(y)
    between = 0.0
    for key in sums:
        between += sums[key] * sums[key] / counts[key]
    found = one_way(qv, y, level, len(sums))
    assert found["ssTotal"] == squares - correction
    assert found["ssA"] == between - correction
    assert found["ssError"] == found["ssTotal"] - found["ssA"]
    assert found["msA"] == found["ssA"] / (len(sums) - 1)
    assert found["msError"] == found["ssError"] / (len(y) - len(sums))
    with np.errstate(all="ignore"):
        assert found["f"] == found["msA"] / found["msError"]


def test_one_way_beside_scipy_with_groups_of_different_sizes(qv):
    rng = np.random.default_rng(3)
    groups = [rng.normal(mean, 1, size) for mean, size in ((0, 4), (0.5, 30), (1, 11), (0.2, 2))]
    level = np.repeat([5, -1, 2**31 - 1, 0], [len(g) for g in groups])
    order = rng.permutation(len(level))
    found = one_way(qv, np.concatenate(groups)[order], level[order], 4)
    expected = stats.f_oneway(*groups)
    # Means of about one deviation: hardly anything cancels.
    assert found["f"] == pytest.approx(expected.statistic, rel=1e-12)
    # 1e-12 of F move the probability by f pdf(f), below 1, times that.
    assert found["significance"] == pytest.approx(expected.pvalue, abs=2e-12)


def general_linear(y, *factors):
    """Sums of squares of a fixed model, by least squares with one factor's columns after the other."""
    def columns(*which):
        ids = np.unique(np.stack([factors[i] for i in which]), axis=1, return_inverse=True)[1].ravel()
        return np.eye(ids.max() + 1)[ids]

    terms = [(0,), (1,), (0, 1)] if len(factors) == 2 else [(0,), (1,), (2,), (0, 1), (0, 2), (1, 2), (0, 1, 2)]
    design = np.ones((len(y), 1))
    left, out = ((y - y.mean()) ** 2).sum(), []
    for term in terms:
        design = np.hstack([design, columns(*term)])
        fitted = design @ np.linalg.lstsq(design, y, rcond=None)[0]
        now = ((y - fitted) ** 2).sum()
        out.append(left - now)
        left = now
    return np.array(out + [left])


@pytest.mark.parametrize("counts", [(2, 3), (4, 2), (2, 3, 2), (3, 2, 4)])
def test_two_and_three_ways_beside_least_squares(qv, counts):
    m = 3
    rng = np.random.default_rng(counts)
    factors = [f.ravel().astype(np.int64) for f in np.indices(counts + (m,))[:-1]]
    order = rng.permutation(factors[0].size)
    factors = [np.ascontiguousarray(f[order]) for f in factors]
    y = rng.standard_normal(len(order)) + sum(0.3 * f for f in factors)
    rows = 4 if len(counts) == 2 else 8
    table, significance = np.full((rows, 4), np.nan), [np.full(1, np.nan) for _ in range(rows - 1)]
    call = qv.ZemFunc7 if len(counts) == 2 else qv.ZemFunc8
    assert call(y, *factors, len(y), m, *counts, table, *significance) == 0
    scale = (y**2).sum()
    assert np.abs(table[:, 0] - general_linear(y, *factors)).max() <= 64 * len(y) * EPS * scale
    # A significance is 1 minus the distribution function: it has that function's absolute error, some hundred EPS at these
    # degrees of freedom, and no relative accuracy of its own far out.
    for row in range(rows - 1):
        expected = stats.f.sf(table[row, 3], table[row, 1], table[-1, 1])
        assert significance[row][0] == pytest.approx(expected, abs=1e-13)


@pytest.mark.parametrize("shape", [(2, 2), (3, 5), (20, 7)])
def test_contingency_beside_scipy(qv, shape):
    counts = np.random.default_rng(shape).integers(1, 50, shape).astype(np.int32)
    chi, significance = np.full(1, np.nan), np.full(1, np.nan)
    assert qv.ZemFunc31(*shape, counts, chi, significance) == 0
    expected = stats.chi2_contingency(counts, correction=False)
    assert chi[0] == pytest.approx(expected.statistic, rel=4 * counts.size * EPS)
    # 1 minus the distribution function, with its absolute error; the rounded statistic moves it by less.
    assert significance[0] == pytest.approx(expected.pvalue, abs=1e-13)
