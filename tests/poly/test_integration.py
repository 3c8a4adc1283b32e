"""Integration of sampled data beside SciPy's rules on whole panels."""

import numpy as np
import pytest
import scipy.integrate


def integral(qv, x, dt, rule):
    out = np.zeros(1)
    assert qv.ZemFunc230(x, len(x), dt, rule, out) == 0
    return out[0]


def samples(n):
    return np.random.default_rng(n).normal(size=n)


# A sum of n terms in another order: n roundings of the sum of the magnitudes, the largest weight being 64/45.
def bound(x, dt):
    return len(x) * 2.0**-53 * 1.5 * np.sum(np.abs(x)) * dt


@pytest.mark.parametrize("n", [2, 3, 4, 10, 101, 1000])
def test_rule_0_is_the_trapezoid_of_scipy(qv, n):
    x = samples(n)
    assert abs(integral(qv, x, 0.1, 0) - scipy.integrate.trapezoid(x, dx=0.1)) <= bound(x, 0.1)


@pytest.mark.parametrize("n", [3, 5, 11, 101, 1001])
def test_rule_1_is_simpson_of_scipy_on_whole_panels(qv, n):
    x = samples(n)
    assert abs(integral(qv, x, 0.1, 1) - scipy.integrate.simpson(x, dx=0.1)) <= bound(x, 0.1)


@pytest.mark.parametrize("rule, width", [(1, 2), (2, 3), (3, 4)])
@pytest.mark.parametrize("panels", [1, 2, 25])
def test_panels_have_the_newton_cotes_weights_of_scipy(qv, rule, width, panels):
    x = samples(width * panels + 1)
    weights, _ = scipy.integrate.newton_cotes(width)
    expected = 0.1 * sum(weights @ x[width * p:width * p + width + 1] for p in range(panels))
    assert abs(integral(qv, x, 0.1, rule) - expected) <= bound(x, 0.1)
