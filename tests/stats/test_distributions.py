"""Distributions beside mpmath and SciPy, to the accuracy that their formulas have.

    test_distributions.py LIBRARY    prints the measured errors of the error function as the table of docs/accuracy.md
"""

import pathlib
import sys

import mpmath
import numpy as np
import pytest
from scipy import special, stats

EPS = 2.0**-53
TOLERANCE = 1e-4  # of the bisections


def value(call, *arguments):
    out = np.full(1, np.nan)
    assert call(*arguments, out) == 0
    return out[0]


def values(call, xs, *arguments):
    return np.array([value(call, float(x), *arguments) for x in xs])


def grid(lo, hi, count=2000):
    edges = [lo, np.nextafter(lo, hi), np.nextafter(hi, lo), hi]
    return np.concatenate([np.random.default_rng(1).uniform(lo, hi, count), edges])


def relative_errors(got, exact, xs):
    with mpmath.workdps(50):
        return np.array([float(abs(mpmath.mpf(float(g)) / exact(mpmath.mpf(float(x))) - 1))
                         for g, x in zip(got, xs) if x])


# Export, its name, the true function, the region, and what its method can promise there: the peaks stated in the
# documentation of the functions, with half as much again for points not met there.
REGIONS = [
    (70, "DistErf", mpmath.erf, -1, 1, 6e-16),
    (70, "DistErf", mpmath.erf, 1, 8, 2.2e-16),
    (70, "DistErf", mpmath.erf, -8, -1, 2.2e-16),
    (71, "DistErfc", mpmath.erfc, -1, 1, 2.5e-15),
    (71, "DistErfc", mpmath.erfc, 1, 8, 1.4e-14),
    (71, "DistErfc", mpmath.erfc, -26, -1, 2.2e-16),
    # x^2 is rounded before the exponential: 709 * 2^-53 at the end, and as much again for the rest.
    (71, "DistErfc", mpmath.erfc, 8, 26.64, 2 * 709 * EPS),
]


@pytest.mark.parametrize("number, name, exact, lo, hi, bound", REGIONS)
def test_error_function(qv, number, name, exact, lo, hi, bound):
    xs = grid(lo, hi)
    assert relative_errors(values(getattr(qv, f"ZemFunc{number}"), xs), exact, xs).max() <= bound


def test_error_function_of_tiny_arguments(qv):
    xs = np.concatenate([10.0**-np.arange(1, 300, 7), -(10.0**-np.arange(2, 300, 7))])
    assert relative_errors(values(qv.ZemFunc70, xs), mpmath.erf, xs).max() <= 4e-16


def test_normal_distribution_has_the_error_of_its_formula_and_no_more(qv):
    xs = np.linspace(-8, 8, 8001)
    error = np.abs(values(qv.ZemFunc134, xs) - stats.norm.cdf(xs)).max()
    # 1e-5 is the bound of the source, for exact coefficients; theirs have five to seven digits.
    assert 1e-5 < error <= 1.2e-5


def test_normal_quantile_has_the_error_of_its_formula_and_no_more(qv):
    ps = np.concatenate([np.linspace(1e-5, 1 - 1e-5, 8001), 10.0**-np.arange(6, 300, 3)])
    error = np.abs(values(qv.ZemFunc106, ps) - stats.norm.ppf(ps)).max()
    assert 4e-4 < error <= 4.5e-4


@pytest.mark.parametrize("dof", [1, 2, 3, 10, 100, 10**6])
def test_t_distribution(qv, dof):
    xs = np.linspace(-12, 12, 1001)
    # dof / (t^2 + dof) rounds three times; near t = 0 that stands beside 1 and moves t^2 by dof EPS each time.
    t = np.maximum(np.abs(xs), 1e-8 * dof**0.5)
    bound = 64 * EPS + stats.t.pdf(xs, dof) * 3 * (dof + t * t) * EPS / (2 * t) + 1e-12 * (dof > 1000)
    assert (np.abs(values(qv.ZemFunc181, xs, dof) - stats.t.cdf(xs, dof)) <= bound).all()


@pytest.mark.parametrize("dof", [1, 2, 3, 10, 100, 10**5])
def test_chi_square_distribution(qv, dof):
    xs = dof + np.linspace(-6, 8, 1001) * (2 * dof) ** 0.5
    expected = np.where(xs > 0, special.gammainc(dof / 2, np.maximum(xs, 0) / 2), 0)
    # Both sides are good to 1e-14 of their size near the mean.
    assert np.abs(values(qv.ZemFunc190, xs, dof) - expected).max() <= 2e-14


@pytest.mark.parametrize("dof", [(1, 1), (2, 5), (5, 2), (30, 40), (1, 1000), (1000, 1)])
def test_f_distribution(qv, dof):
    xs = 10.0 ** np.linspace(-3, 4, 71)
    # SciPy itself is 2e-12 off at (1000, 1).
    with mpmath.workdps(40):
        def exact(x):
            x = dof[0] * mpmath.mpf(float(x))
            return float(mpmath.betainc(dof[0] / mpmath.mpf(2), dof[1] / mpmath.mpf(2), 0, x / (x + dof[1]),
                                        regularized=True))
        expected = np.array([exact(x) for x in xs])
    # The argument of the incomplete beta function, dof2 / (dof1 x + dof2), carries three roundings; where it is near 1,
    # they stand beside its complement and move x by (dof1 x + dof2) EPS / dof1 each.
    slope = stats.f.pdf(xs, *dof) * (xs + dof[1] / dof[0]) * EPS
    assert (np.abs(values(qv.ZemFunc83, xs, *dof) - expected) <= 3 * slope + 128 * EPS).all()


PROBABILITIES = [1e-6, 0.001, 0.05, 0.3, 0.5, 0.8, 0.95, 0.999]


@pytest.mark.parametrize("p", PROBABILITIES)
@pytest.mark.parametrize("number, quantile, dofs", [
    (107, stats.t.ppf, [(2,), (5,), (40,), (1000,)]),
    (108, stats.chi2.ppf, [(1,), (4,), (60,), (5000,)]),
    (104, stats.f.ppf, [(1, 5), (4, 4), (30, 20), (3, 1000)]),
])
def test_quantiles_lie_less_than_the_tolerance_below_the_true_ones(qv, p, number, quantile, dofs):
    for dof in dofs:
        x, expected = value(getattr(qv, f"ZemFunc{number}"), p, *dof), quantile(p, *dof)
        if number == 104 and expected < 1e-6:
            assert x == 1e-6
        else:
            assert expected - TOLERANCE * (1 + 1e-6) <= x <= expected + 1e-8 * max(1, abs(expected))


def print_table(path):
    sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
    import library

    qv = library.load(path)
    print("| function | region | points | peak | rms |\n|---|---|---|---|---|")
    for number, name, exact, lo, hi, _ in REGIONS:
        xs = grid(lo, hi)
        errors = relative_errors(values(getattr(qv, f"ZemFunc{number}"), xs), exact, xs)
        print(f"| `{name}` | [{lo}, {hi}] | {len(errors)} | {errors.max():.1e} | {(errors**2).mean()**0.5:.1e} |")


if __name__ == "__main__":
    print_table(sys.argv[1])
