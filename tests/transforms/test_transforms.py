"""The transforms beside NumPy, SciPy and mpmath."""

import mpmath
import numpy as np
import pytest
import scipy.fft

EPS = np.finfo(float).eps
SIZES = [1, 2, 3, 4, 5, 8, 15, 16, 23, 27, 53, 60, 96, 101, 106, 127, 128, 210]


def rounding(n, norm):
    """A few eps log2 n of the input's norm, plus eps sqrt(n) for twiddles that come from a recurrence."""
    return 8 * EPS * (np.log2(2 * n) + np.sqrt(n)) * norm


def reals(n, seed=1):
    return np.random.default_rng(seed).uniform(-1, 1, n)


def records(n, seed=1):
    return reals(n, seed) + 1j * reals(n, seed + 1000)


def near(got, expected, tolerance):
    assert np.max(np.abs(got - expected)) <= tolerance


def fftshift(X):
    return np.fft.fftshift(X)


@pytest.mark.parametrize("n", SIZES)
@pytest.mark.parametrize("shift", [0, 1])
def test_one_dimension_is_numpy_fft(qv, n, shift):
    order = fftshift if shift else np.asarray
    for length in {n, n + 5, max(1, n // 2)}:
        for x, export in ((reals(n), qv.ZemFunc262), (records(n), qv.ZemFunc263)):
            out = np.empty(length, complex)
            assert export(x, n, length, None, shift, out) == 0
            near(out, order(np.fft.fft(x, length)), rounding(length, np.linalg.norm(x)))
    X = np.fft.fft(reals(n))
    back = np.empty(n)
    assert qv.ZemFunc264(np.ascontiguousarray(order(X)), n, None, shift, back) == 0
    near(back, reals(n), rounding(n, np.linalg.norm(back)))
    X = records(n, 3)
    back = np.empty(n, complex)
    assert qv.ZemFunc265(np.ascontiguousarray(order(X)), n, None, shift, back) == 0
    near(back, np.fft.ifft(X), rounding(n, np.linalg.norm(X)) / n)


def test_a_held_plan_serves_the_four_transforms(qv):
    n = 60
    plan = qv.ZemFunc260(n)
    assert plan
    spectrum, back, records_back = np.empty(n, complex), np.empty(n), np.empty(n, complex)
    assert qv.ZemFunc262(reals(n), n, 0, plan, 0, spectrum) == 0
    assert qv.ZemFunc264(spectrum, n, plan, 0, back) == 0
    near(back, reals(n), 2 * rounding(n, np.linalg.norm(back)))
    assert qv.ZemFunc263(records(n), n, 0, plan, 1, spectrum) == 0
    assert qv.ZemFunc265(spectrum, n, plan, 1, records_back) == 0
    near(records_back, records(n), 2 * rounding(n, np.linalg.norm(records_back)))
    qv.ZemFunc261(plan)


@pytest.mark.parametrize("shape", [(1, 1), (1, 9), (9, 1), (4, 6), (5, 7), (6, 5), (16, 10), (17, 20)])
@pytest.mark.parametrize("shift", [0, 1])
def test_two_dimensions_are_numpy_fft2(qv, shape, shift):
    rows, cols = shape
    order = fftshift if shift else np.asarray
    for R, C in {shape, (rows + 3, cols + 4), (max(1, rows - 2), cols + 1), (rows + 1, max(1, cols - 3))}:
        for x, export in ((reals(rows * cols), qv.ZemFunc266), (records(rows * cols), qv.ZemFunc267)):
            out = np.empty(R * C, complex)
            assert export(x, rows, cols, R, C, shift, out) == 0
            expected = order(np.fft.fft2(x.reshape(shape), (R, C)))
            near(out.reshape(R, C), expected, rounding(R * C, np.linalg.norm(x)))
    n = rows * cols
    x = reals(n)
    X = np.ascontiguousarray(order(np.fft.fft2(x.reshape(shape)))).ravel()
    back = np.empty(n)
    assert qv.ZemFunc268(X, rows, cols, shift, back) == 0
    near(back, x, rounding(n, np.linalg.norm(x)))
    z = records(n, 5)
    back = np.empty(n, complex)
    assert qv.ZemFunc269(np.ascontiguousarray(order(z.reshape(shape))).ravel(), rows, cols, shift, back) == 0
    near(back.reshape(shape), np.fft.ifft2(z.reshape(shape)), rounding(n, np.linalg.norm(z)) / n)


@pytest.mark.parametrize("n", SIZES)
def test_cosine_and_sine_are_scipys(qv, n):
    x, out = reals(n), np.empty(n)
    norm = np.linalg.norm(x)
    assert qv.ZemFunc270(x, n, 0, out) == 0
    near(out, scipy.fft.dct(x, 2, norm="ortho"), rounding(n, norm))
    assert qv.ZemFunc271(x, n, out) == 0
    near(out, scipy.fft.idct(x, 2, norm="ortho"), rounding(n, norm))
    # SciPy's type I has the factor 2 forward, and its inverse 1/(2 (n + 1)).
    assert qv.ZemFunc272(x, n, 0, out) == 0
    near(out, scipy.fft.dst(x, 1) / 2, rounding(2 * n + 2, norm))
    assert qv.ZemFunc273(x, n, out) == 0
    near(out, scipy.fft.dst(x, 1) / (n + 1), rounding(2 * n + 2, norm))


@pytest.mark.parametrize("shape", [(1, 1), (1, 8), (7, 1), (4, 6), (9, 11), (20, 17)])
def test_two_dimensional_cosine_and_sine_are_scipys(qv, shape):
    rows, cols = shape
    n = rows * cols
    x, out = reals(n), np.empty(n)
    norm = np.linalg.norm(x)
    plane = x.reshape(shape)
    sine = scipy.fft.dstn(plane, 1) / 4
    for export, expected, points in (
        (qv.ZemFunc274, scipy.fft.dctn(plane, 2, norm="ortho"), n),
        (qv.ZemFunc275, scipy.fft.idctn(plane, 2, norm="ortho"), n),
        (qv.ZemFunc276, sine, 4 * (rows + 1) * (cols + 1)),
        (qv.ZemFunc277, sine * 4 / ((rows + 1) * (cols + 1)), 4 * (rows + 1) * (cols + 1)),
    ):
        assert export(x, rows, cols, out) == 0
        near(out.reshape(shape), expected, 2 * rounding(points, norm))


@pytest.mark.parametrize("n", SIZES)
def test_hilbert_is_the_imaginary_part_of_the_analytic_signal(qv, n):
    x = reals(n)
    H = np.fft.fft(x)
    H[0] = 0
    if n % 2 == 0:
        H[n // 2] = 0
    k = np.fft.fftfreq(n)
    expected = np.fft.ifft(H * -1j * np.sign(k)).real
    got = x.copy()
    assert qv.ZemFunc75(got, n) == 0
    near(got, expected, 2 * rounding(n, np.linalg.norm(x)))


def mp_chirp_z(x, a, w, m):
    with mpmath.workdps(40):
        a, w = mpmath.mpc(a), mpmath.mpc(w)
        return np.array([complex(mpmath.fsum(mpmath.mpc(v) * a ** -k * w ** (j * k) for k, v in enumerate(x)))
                         for j in range(m)])


# Off the unit circle the chirp of Bluestein's algorithm spans |w|^((n + m)^2 / 2), and so do its errors.
@pytest.mark.parametrize("a, w", [(1, np.exp(-0.2j)), (np.exp(0.5j), np.exp(-0.11j)),
                                  (1.05 * np.exp(0.3j), 0.999 * np.exp(0.7j))])
@pytest.mark.parametrize("n, m", [(1, 1), (5, 9), (12, 4), (20, 20)])
def test_chirp_z_is_its_sum_at_forty_digits(qv, a, w, n, m):
    a, w = complex(a), complex(w)
    spread = max(abs(w), 1 / abs(w)) ** ((n + m) ** 2) * max(abs(a), 1 / abs(a)) ** n
    for x, export in ((reals(n), qv.ZemFunc341), (records(n), qv.ZemFunc342)):
        expected = mp_chirp_z(x, a, w, m)
        for method in (0, 1):
            out = np.empty(m, complex)
            assert export(x, n, a, w, method, m, out) == 0
            # Powers up to 2 n m or (n + m)^2 / 2 of rounded numbers, 4 pi eps for each.
            near(out, expected, 13 * EPS * (n + m) ** 2 * spread * np.linalg.norm(x) * np.sqrt(n)
                 + 4 * rounding(2 * n + m, np.linalg.norm(x) * np.sqrt(n + m)))


@pytest.mark.parametrize("n, m", [(1, 1), (4, 4), (9, 6), (12, 12), (20, 7)])
def test_inverse_chirp_z_solves_its_transform_at_forty_digits(qv, n, m):
    """The error is bounded by the condition of the Vandermonde system of the samples that are used."""
    x = records(m, 7)
    a, w = complex(1.02 * np.exp(0.3j)), complex(np.exp(-2j * np.pi / m))
    X = mp_chirp_z(x, a, w, n)
    out = np.empty(m, complex)
    assert qv.ZemFunc351(X, n, a, w, out, m) == 0
    V = (w ** np.outer(np.arange(m), np.arange(m))) * (1 / a) ** np.arange(m)
    near(out, x, 100 * m * EPS * np.linalg.cond(V) * np.linalg.norm(x) * np.sqrt(m) * n)


def test_a_chirp_z_of_many_points_agrees_with_a_padded_fft(qv):
    """m points around the circle, n samples: Bluestein beside the transform of length m."""
    n, m = 50, 128
    x = records(n, 9)
    out = np.empty(m, complex)
    assert qv.ZemFunc342(x, n, 1, np.exp(-2j * np.pi / m), 1, m, out) == 0
    norm = np.linalg.norm(x)
    near(out, np.fft.fft(x, m), 13 * EPS * (n + m) ** 2 * norm + 4 * rounding(300, norm * np.sqrt(n + m)))


@pytest.mark.parametrize("n", SIZES)
def test_power_spectra_are_products_of_numpy_spectra(qv, n):
    x, y = records(n, 1), records(n, 2)
    X, Y = np.fft.fft(x) / n, np.fft.fft(y) / n
    power, cross = np.empty(n), np.empty(n, complex)
    assert qv.ZemFunc467(x, n, power) == 0
    assert qv.ZemFunc468(x, y, n, cross) == 0
    d = rounding(n, np.linalg.norm(x) + np.linalg.norm(y)) / n
    largest = np.max(np.abs(X)) + np.max(np.abs(Y))
    near(power, np.abs(X) ** 2, 2 * largest * d + d * d)
    near(cross, np.conj(X) * Y, 2 * largest * d + d * d)
