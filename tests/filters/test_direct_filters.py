"""Direct-form, Savitzky-Golay and median filters beside SciPy."""

import numpy as np
import pytest
from scipy import signal


@pytest.mark.parametrize("na,nb", [(1, 5), (3, 3), (5, 2), (2, 9)])
def test_the_direct_form_is_lfilter(qv, na, nb):
    rng = np.random.default_rng(na + nb)
    x, b = rng.standard_normal(300), rng.standard_normal(nb)
    a = np.concatenate([[1.7], rng.uniform(-0.3, 0.3, na - 1)])
    y, inputs, outputs = np.zeros(300), np.zeros(max(nb - 1, 1)), np.zeros(max(na - 1, 1))
    assert qv.ZemFunc92(x, 300, a, outputs, na, b, inputs, nb, y) == 0
    assert np.allclose(y, signal.lfilter(b, a, x), rtol=0, atol=1e-13)
    z, w = x[:150] + 1j * x[150:], np.zeros(150, complex)
    assert qv.ZemFunc354(z, 150, a, np.zeros(max(na - 1, 1), complex), na, b, np.zeros(max(nb - 1, 1), complex), nb, w) == 0
    assert np.allclose(w, signal.lfilter(b, a, z), rtol=0, atol=1e-13)


@pytest.mark.parametrize("order,side", [(1, 1), (2, 2), (3, 5), (4, 4), (5, 12)])
def test_smoothing_is_savgol_with_interpolated_ends(qv, order, side):
    x, y = np.random.default_rng(side).standard_normal(200), np.zeros(200)
    assert qv.ZemFunc356(x, 200, order, side, None, y) == 0
    # The condition of the powers of the positions, up to side^order.
    assert np.allclose(y, signal.savgol_filter(x, 2 * side + 1, order, mode="interp"), rtol=0,
                       atol=1e-15 * float(side) ** order + 1e-13)


@pytest.mark.parametrize("order,side", [(2, 3), (4, 6)])
def test_derivative_filters_are_savgols(qv, order, side):
    frame = 2 * side + 1
    smoother, rows = np.zeros((frame, frame)), np.zeros((order + 1, frame))
    assert qv.ZemFunc355(order, side, None, 1, smoother, rows) == 0
    factorial = 1.0
    for k in range(order + 1):
        factorial *= max(k, 1)
        theirs = signal.savgol_coeffs(frame, order, deriv=k, use="dot")
        assert np.allclose(factorial * rows[k], theirs, rtol=0, atol=1e-12)


def test_weighted_smoothing_is_weighted_least_squares(qv):
    rng = np.random.default_rng(5)
    order, side, frame = 3, 4, 9
    w = rng.uniform(0.1, 3, frame)
    smoother, rows = np.zeros((frame, frame)), np.zeros((order + 1, frame))
    assert qv.ZemFunc355(order, side, w, 1, smoother, rows) == 0
    v = np.vander(np.arange(-side, side + 1), order + 1, increasing=True)
    root = np.sqrt(w)[:, None]
    theirs = np.linalg.lstsq(root * v, np.diag(np.sqrt(w)), rcond=None)[0]
    assert np.allclose(rows, theirs, rtol=0, atol=1e-12)
    assert np.allclose(smoother, v @ theirs, rtol=0, atol=1e-12)


@pytest.mark.parametrize("rank", [1, 2, 7, 40])
def test_the_median_is_medfilt(qv, rank):
    x, y = np.random.default_rng(rank).standard_normal(500), np.zeros(500)
    assert qv.ZemFunc407(x, 500, rank, -1, y) == 0
    assert np.array_equal(y, signal.medfilt(x, 2 * rank + 1))
