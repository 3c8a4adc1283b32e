"""Complex arithmetic beside mpmath."""

import mpmath
import numpy as np
import pytest

EPS = np.finfo(float).eps


def parts(function, *arguments):
    re, im = np.empty(1), np.empty(1)
    assert function(*arguments, re, im) == 0
    return mpmath.mpc(re[0], im[0])


@pytest.fixture
def operands():
    rng = np.random.default_rng(2)
    return rng.standard_normal((300, 4)) * 10.0 ** rng.integers(-3, 4, (300, 1))


def assert_close(got, expected, factor, units):
    """Within `units` rounding units of `factor`, a bound of what the formula adds up."""
    assert abs(got - expected) <= units * EPS * factor


def test_division_and_multiplication_are_accurate_to_a_few_units(qv, operands):
    for a, b, c, d in operands:
        z, w = mpmath.mpc(a, b), mpmath.mpc(c, d)
        assert_close(parts(qv.ZemFunc46, a, b, c, d), z * w, abs(z * w), 4)
        assert_close(parts(qv.ZemFunc40, a, b, c, d), z / w, abs(z / w), 8)
        assert_close(parts(qv.ZemFunc49, a, b), 1 / z, abs(1 / z), 4)


def test_roots_exponentials_and_logarithms_are_those_of_mpmath(qv, operands):
    with mpmath.workdps(50):
        for a, b, *_ in operands:
            z = mpmath.mpc(a, b)
            assert_close(parts(qv.ZemFunc50, a, b), mpmath.sqrt(z), abs(mpmath.sqrt(z)), 8)
            # Half the logarithm of m: the relative error of m is an absolute one of the result.
            assert_close(parts(qv.ZemFunc44, a, b), mpmath.log(z), 1 + abs(mpmath.log(z)), 4)
            # The constant of the imaginary part has fifteen digits, so half a unit of the last of them times pi.
            expected = mpmath.log(z) / mpmath.log(10)
            assert_close(parts(qv.ZemFunc45, a, b), expected, 1 + abs(expected), 4 + 0.5e-15 * np.pi / EPS)
            if abs(a) < 50:
                assert_close(parts(qv.ZemFunc42, a, b), mpmath.exp(z), abs(mpmath.exp(z)), 4)


@pytest.mark.parametrize("p", [-2.0, -0.5, 1 / 3, 1.0, 2.5])
def test_powers_are_those_of_mpmath(qv, operands, p):
    with mpmath.workdps(50):
        for a, b, *_ in operands:
            expected = mpmath.power(mpmath.mpc(a, b), mpmath.mpf(p))
            # The angle p·atan2 and the power of m, both with the relative error of their arguments.
            assert_close(parts(qv.ZemFunc48, a, b, p), expected, abs(expected), 8 + 8 * abs(p))


def test_polar_form_is_numpys_and_leads_back(qv):
    rng = np.random.default_rng(3)
    n = 1001
    re, im = rng.standard_normal((2, n))
    magnitude, phase, re2, im2 = (np.empty(n) for _ in range(4))
    assert qv.ZemFunc173(re, im, n, magnitude, phase) == 0
    np.testing.assert_allclose(magnitude, np.abs(re + 1j * im), rtol=2 * EPS)
    np.testing.assert_allclose(phase, np.angle(re + 1j * im), rtol=2 * EPS)
    assert qv.ZemFunc232(magnitude, phase, n, re2, im2) == 0
    # The phase, up to pi, is rounded, and so are the magnitude, the cosine and the product.
    assert np.all(np.abs(re2 + 1j * im2 - (re + 1j * im)) <= 8 * EPS * magnitude)


def test_split_arrays_do_numpys_complex_arithmetic(qv):
    rng = np.random.default_rng(4)
    n = 777
    a, b, c, d = rng.standard_normal((4, n))
    re, im = np.empty(n), np.empty(n)
    z, w = a + 1j * b, c + 1j * d
    assert qv.ZemFunc39(a, b, c, d, n, re, im) == 0
    assert np.array_equal(re + 1j * im, z + w)
    assert qv.ZemFunc52(a, b, c, d, n, re, im) == 0
    assert np.array_equal(re + 1j * im, z - w)
    assert qv.ZemFunc47(a, b, c, d, n, re, im) == 0
    assert np.all(np.abs(re + 1j * im - z * w) <= 4 * EPS * np.abs(z * w))
    assert qv.ZemFunc41(a, b, c, d, n, re, im) == 0
    assert np.all(np.abs(re + 1j * im - z / w) <= 16 * EPS * np.abs(z / w))
    assert qv.ZemFunc43(a, b, n, 2.0, -1.0, 0.5, 3.0, re, im) == 0
    expected = (2 - 1j) * z + (0.5 + 3j)
    assert np.all(np.abs(re + 1j * im - expected) <= 4 * EPS * (3 * np.abs(z) + 4))
