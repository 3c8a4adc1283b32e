"""The functions that SciPy and NumPy have too, against them.

Where nothing else is said, both sides sum some hundred terms of the size of 1 in different orders, or work through
transforms of such a length: 1e-12 is several hundred units in the last place of the largest results, and far below any
difference of convention.
"""

import numpy as np
import pytest
import scipy
from scipy import fft, interpolate, linalg, signal, special, stats

import quorvan as qv

rng = np.random.default_rng(5)
X = rng.standard_normal(255)
Y = rng.standard_normal(100)
Z = rng.standard_normal(255) + 1j * rng.standard_normal(255)
A = rng.standard_normal((6, 6)) + 4 * np.eye(6)
C = A + 1j * rng.standard_normal((6, 6))


def close(a, b, scale=1.0):
    np.testing.assert_allclose(a, b, rtol=1e-12, atol=1e-12 * scale)


def present(name):
    """A family may not be part of the library yet."""
    if not hasattr(qv, name):
        pytest.skip(f"{name} is planned")


# --- Transforms ------------------------------------------------------------------------------------------------------


@pytest.mark.parametrize("x", [X, Z], ids=["real", "complex"])
def test_fft(x):
    close(qv.fft(x), fft.fft(x), 10)
    close(qv.fft(x, 300), fft.fft(x, 300), 10)
    close(qv.fft(x, shift=True), fft.fftshift(fft.fft(x)), 10)
    close(qv.ifft(qv.fft(x)), x)


def test_real_ifft():
    close(qv.real_ifft(fft.fft(X)), X)


@pytest.mark.parametrize("x", [X.reshape(15, 17), Z.reshape(15, 17)], ids=["real", "complex"])
def test_fft_2d(x):
    close(qv.fft_2d(x, 0, 0), fft.fft2(x), 10)
    close(qv.ifft_2d(qv.fft_2d(x, 0, 0)), x)


def test_cosine_and_sine_transforms():
    close(qv.dct(X), fft.dct(X, norm="ortho"), 10)
    close(qv.idct(X), fft.idct(X, norm="ortho"), 10)
    close(qv.dct_2d(X.reshape(15, 17)), fft.dctn(X.reshape(15, 17), norm="ortho"), 10)
    close(qv.dst(X), fft.dst(X, type=1) / 2, 10)
    close(qv.idst(qv.dst(X)), X)


def test_hilbert():
    close(qv.hilbert(X), signal.hilbert(X).imag)


def test_chirp_z():
    w = np.exp(-2j * np.pi / 400)
    # Bluestein's algorithm: the roundings of three transforms of twice the length
    np.testing.assert_allclose(qv.chirp_z(X, 1.0, w, m=50), signal.czt(X, 50, w, 1.0), atol=1e-10)


def test_two_sided_spectra():
    close(qv.spectrum_real_fft(X), fft.fft(X), 10)
    close(qv.spectrum_real_ifft(fft.fft(X)), X)
    close(qv.spectrum_complex_ifft(fft.fft(Z)), Z)
    close(qv.split_fft(Z), fft.fft(Z), 10)
    close(qv.auto_power(X), np.abs(fft.fft(X) / 255) ** 2)
    close(qv.auto_power(Z), np.abs(fft.fft(Z) / 255) ** 2)
    close(qv.cross_power(X[:100], Y), np.conj(fft.fft(X[:100])) * fft.fft(Y) / 1e4)


# --- Spectra ---------------------------------------------------------------------------------------------------------


def test_power_spectrum():
    dt = 1e-3
    f, wanted = signal.periodogram(X, 1 / dt, window="boxcar", detrend=False, scaling="spectrum")
    power, df = qv.power_spectrum(X, dt)
    close(power, wanted[:127])
    close(df, f[1])


def test_transfer_function_is_that_of_the_filter():
    x = np.tile(X, 3)
    b = [0.5, 0.3, 0.2]
    response = signal.lfilter(b, 1, x)[255:510]  # one settled period
    mag, phase, df = qv.transfer_function(X, response, 1e-3)
    _, h = signal.freqz(b, worN=2 * np.pi * np.arange(127) / 255)
    np.testing.assert_allclose(mag * np.exp(1j * phase), h, atol=1e-10)  # divided by spectra down to a hundredth


def test_unwrapped_phase():
    phase = np.cumsum(rng.uniform(-2, 2, 200))
    close(qv.unwrap_radians(np.angle(np.exp(1j * phase))), np.unwrap(np.angle(np.exp(1j * phase))), 100)


def test_coherence():
    frames = rng.standard_normal((8, 64))
    others = frames + 0.5 * rng.standard_normal((8, 64))
    result = qv.network_analysis(frames, others)
    _, wanted = signal.coherence(frames.ravel(), others.ravel(), nperseg=64, noverlap=0, window="boxcar", detrend=False)
    close(result.coherence, wanted[:32])


# --- Convolution and filters -----------------------------------------------------------------------------------------


@pytest.mark.parametrize("method", ["direct", "transform"])
@pytest.mark.parametrize("x, y", [(X, Y), (Z, Y), (Z, Z[:50])])
def test_convolve_and_correlate(x, y, method):
    close(qv.convolve(x, y, method), signal.convolve(x, y), 10)
    # SciPy's conjugated argument is the second one, and its lag 0 stands at the end of it
    close(qv.correlate(x, y, method), signal.correlate(y, x), 10)


@pytest.mark.parametrize("shape", ["full", "same", "valid"])
def test_convolve_2d(shape):
    x, y = X.reshape(15, 17), Y[:15].reshape(3, 5)
    close(qv.convolve_2d(x, y, shape), signal.convolve2d(x, y, mode=shape), 10)
    close(qv.convolve_2d(x + 1j, y, shape), signal.convolve2d(x + 1j, y, mode=shape), 10)


def test_convolve_takes_arrays_that_begin_at_one_place():
    for method in ("direct", "transform"):
        close(qv.correlate(X, X[:40], method), signal.correlate(X[:40], X), 10)
    close(qv.correlate_real(X, X[:40]), signal.correlate(X[:40], X), 10)


def test_filter_in_blocks():
    b, a = signal.butter(3, 0.2)
    whole, zf = signal.lfilter(b, a, X, zi=np.zeros(3))
    y1, out_state, in_state = qv.filter_direct(X[:100], b, a)
    y2, out_state, in_state = qv.filter_direct(X[100:], b, a, out_state, in_state)
    close(np.concatenate([y1, y2]), whole)


def test_fir_filter_of_complex_data():
    y, state = qv.filter_fir(Z, [0.5, 0.25, 0.125])
    close(y, signal.lfilter([0.5, 0.25, 0.125], 1, Z))
    close(state, Z[-2:])


def test_savitzky_golay():
    close(qv.savitzky_golay_filter(X, 3, 4), signal.savgol_filter(X, 9, 3, mode="interp"))


def test_recursive_filter_object():
    present("IirFilter")
    sos = signal.butter(4, [60, 120], "bandpass", fs=1000, output="sos")
    with qv.IirFilter("bandpass", 4).butterworth(1000, 60, 120) as bandpass:
        y = np.concatenate([bandpass.apply(part) for part in np.array_split(X, 4)])
        # eighth-order bandpass: pole and zero positions carry the roundings of the design
        np.testing.assert_allclose(y, signal.sosfilt(sos, X), atol=1e-10)
        a, b = bandpass.direct_form()
        theirs = signal.butter(4, [60, 120], "bandpass", fs=1000)
        np.testing.assert_allclose(b, theirs[0], atol=1e-10)
        np.testing.assert_allclose(a, theirs[1], rtol=1e-10)
        bandpass.reset()
        z = bandpass.apply(Z)
        np.testing.assert_allclose(z, signal.sosfilt(sos, Z), atol=1e-10)


def test_one_call_filter():
    present("iir_filter_chebyshev_lowpass")
    sos = signal.cheby1(5, 1, 100, fs=1000, output="sos")
    np.testing.assert_allclose(qv.iir_filter_chebyshev_lowpass(X, 1000, 100, 1, 5), signal.sosfilt(sos, X), atol=1e-10)
    np.testing.assert_allclose(qv.iir_filter_chebyshev_lowpass(Z, 1000, 100, 1, 5), signal.sosfilt(sos, Z), atol=1e-10)


def test_fir_design():
    present("fir_design_window")
    h = qv.fir_design_window("lowpass", 1000, 100, 31, "hamming")
    close(h, signal.firwin(31, 100, fs=1000, window="hamming", scale=False))


def test_equiripple_design():
    present("fir_remez_lowpass")
    h, delta = qv.fir_remez_lowpass(1000.0, 100.0, 150.0, 41)
    theirs = signal.remez(41, [0, 100, 150, 500], [1, 0], fs=1000)
    # both end their exchange within a relative change of the error, not at its limit
    np.testing.assert_allclose(h, theirs, atol=1e-4)


# --- Windows ---------------------------------------------------------------------------------------------------------


@pytest.mark.parametrize("ours, theirs", [
    ("hanning", "hann"), ("hamming", "hamming"), ("blackman", "blackman"), ("bartlett_hanning", "barthann"),
    ("bohman", "bohman"), ("welch", None), ("blackman_nuttall", "nuttall")])
def test_windows(ours, theirs):
    window = qv.window_apply_symmetric(np.ones(64), ours)
    wanted = signal.get_window(theirs, 64, fftbins=False) if theirs else 1 - (2 * np.arange(64) / 63 - 1) ** 2
    close(window, wanted)


def test_hanning_window_is_the_periodic_one():
    close(qv.window_hanning(np.ones(64)), signal.get_window("hann", 64))
    close(qv.window_hanning(Z), Z * signal.get_window("hann", 255))
    # the series of I0 ends with a term of at most 1e-8; I0(5) is 27, and the terms fall by a third and more by then
    np.testing.assert_allclose(qv.window_kaiser(np.ones(64), 5.0), signal.get_window(("kaiser", 5.0), 64), atol=1e-9)


# --- Statistics and special functions --------------------------------------------------------------------------------


def test_descriptive_statistics():
    close(qv.mean(X), X.mean())
    close(qv.median(X), np.median(X))
    close(qv.rms(Z), np.sqrt(np.mean(np.abs(Z) ** 2)))
    close(qv.moment(X, 3), stats.moment(X, 3))
    counts, centres = qv.histogram(X, -3, 3, 12)
    wanted, edges = np.histogram(X, 12, (-3, 3))
    np.testing.assert_array_equal(counts, wanted)
    close(centres, (edges[1:] + edges[:-1]) / 2)
    np.testing.assert_array_equal(qv.modes([1, 1, 2, 3, 3.0]), [1, 3])


def test_distributions_element_by_element():
    x = np.linspace(-3, 3, 13)
    close(qv.erf(x), special.erf(x))
    np.testing.assert_allclose(qv.normal_cdf(x), stats.norm.cdf(x), atol=1.2e-5)  # the documented error
    # continued fractions of the incomplete beta function
    np.testing.assert_allclose(qv.t_cdf(x[:, None], np.array([2, 5])), stats.t.cdf(x[:, None], [2, 5]), atol=1e-6)
    np.testing.assert_allclose(qv.f_cdf(1.5, 3, 7), stats.f.cdf(1.5, 3, 7), atol=1e-6)


def test_gamma_functions_element_by_element():
    x = np.linspace(0.5, 8, 16)
    np.testing.assert_allclose(qv.gamma(x), special.gamma(x), rtol=1e-12)
    np.testing.assert_allclose(qv.ln_gamma(x), special.gammaln(x), rtol=1e-11, atol=1e-12)
    np.testing.assert_allclose(qv.digamma(x), special.digamma(x), rtol=1e-11, atol=1e-12)
    np.testing.assert_allclose(qv.beta(x, 2.5), special.beta(x, 2.5), rtol=1e-11)
    assert isinstance(qv.gamma(2.5), float)


def test_bessel_functions():
    present("bessel_j")
    x = np.linspace(0.1, 20, 25)
    for order in (0, 1, 2.5):
        np.testing.assert_allclose(qv.bessel_j(order, x), special.jv(order, x), rtol=1e-9, atol=1e-11)
    ai, bi = qv.airy(x[:5])
    np.testing.assert_allclose(ai, special.airy(x[:5])[0], rtol=1e-9)
    np.testing.assert_allclose(bi, special.airy(x[:5])[2], rtol=1e-9)


def test_elliptic_integral():
    present("elliptic_k")
    m = np.linspace(0, 0.9, 10)
    np.testing.assert_allclose(qv.elliptic_k(m), special.ellipk(m), rtol=1e-9)
    np.testing.assert_allclose(qv.elliptic_k(0.5, 0.7), special.ellipkinc(0.7, 0.5), rtol=1e-9)


def test_analysis_of_variance():
    groups = [X[:20], X[20:40] + 0.3, X[40:60]]
    result = qv.anova_one_way(np.concatenate(groups), np.repeat([0, 1, 2], 20), 3)
    wanted = stats.f_oneway(*groups)
    np.testing.assert_allclose(result.f, wanted.statistic, rtol=1e-10)
    np.testing.assert_allclose(result.significance, wanted.pvalue, atol=1e-6)


def test_contingency_table():
    counts = [[10, 20, 30], [20, 15, 10]]
    chi_square, significance = qv.contingency_chi_square(counts)
    wanted = stats.chi2_contingency(counts, correction=False)
    close(chi_square, wanted[0])
    np.testing.assert_allclose(significance, wanted[1], atol=1e-6)


# --- Complex numbers -------------------------------------------------------------------------------------------------


def test_complex_arithmetic():
    a, b = Z[:50], Z[50:100]
    close(qv.complex_array_multiply(a, b), a * b)
    close(qv.complex_array_divide(a, b), a / b, 10)
    close(qv.complex_multiply(a, b), a * b)
    close(qv.complex_exp(a), np.exp(a), 10)
    close(qv.complex_sqrt(2j), np.sqrt(2j))
    assert qv.complex_divide(1 + 2j, 2) == 0.5 + 1j
    magnitude, phase = qv.complex_array_to_polar(a)
    close(magnitude, np.abs(a))
    close(phase, np.angle(a))
    close(qv.complex_array_from_polar(magnitude, phase), a)
    close(qv.complex_array_linear_eval(a, 2j, 1 - 1j), 2j * a + 1 - 1j)


# --- Matrices --------------------------------------------------------------------------------------------------------


@pytest.mark.parametrize("a", [A, C], ids=["real", "complex"])
def test_matrices(a):
    close(qv.matrix_multiply(a, a), a @ a, 100)
    close(qv.matrix_vector_multiply(a, a[0]), a @ a[0], 100)
    close(qv.inverse_kind(a), linalg.inv(a))
    close(qv.determinant_kind(a), linalg.det(a), 1e4)
    close(qv.trace(a), np.trace(a), 10)
    close(qv.matrix_norm(a, "frobenius"), linalg.norm(a), 10)
    close(qv.condition_number(a), np.linalg.cond(a), 100)
    close(qv.pseudo_inverse(a[:, :4]), linalg.pinv(a[:, :4]))
    close(qv.kronecker(a[:2, :3], a[3:, :2]), np.kron(a[:2, :3], a[3:, :2]), 10)
    close(qv.solve_kind(a, a[0]), linalg.solve(a, a[0]))
    close(qv.solve_many(a, a[:, :2]), linalg.solve(a, a[:, :2]))
    assert qv.matrix_rank(a) == 6


@pytest.mark.parametrize("a", [A, C], ids=["real", "complex"])
def test_short_names_take_complex_matrices(a):
    close(qv.inv(a), linalg.inv(a))
    close(qv.det(a), linalg.det(a), 1e4)
    close(qv.solve(a, a[0]), linalg.solve(a, a[0]))
    close(qv.pinv(a), linalg.pinv(a))
    values, vectors = qv.eig(a)
    np.testing.assert_allclose(a @ vectors, vectors * values, atol=1e-10)


def test_least_squares():
    design, y = X[:60].reshape(20, 3), Y[:20]
    close(qv.solve_kind(design, y), linalg.lstsq(design, y)[0])


def test_solve_and_special_matrices():
    close(qv.solve(A, Y[:6]), linalg.solve(A, Y[:6]))
    close(qv.special_matrix("toeplitz", first=[1, 2, 3], second=[1, 4]), linalg.toeplitz([1, 2, 3], [1, 4]))
    close(qv.special_matrix("identity", order=3), np.eye(3))
    close(qv.special_matrix("companion", first=[1, -6, 11, -6]), linalg.companion([1, -6, 11, -6]))
    assert qv.is_positive_definite(A @ A.T) and not qv.is_positive_definite(-np.eye(3))


def test_decompositions():
    present("svd")
    u, s, v = qv.svd(A[:, :4])
    close(s, linalg.svdvals(A[:, :4]), 10)
    close(u * s @ v.T, A[:, :4], 10)
    full = qv.svd_mode(A[:, :4], "full")
    assert full.u.shape == (6, 6) and full.v.shape == (4, 4)
    close(qv.cholesky(A @ A.T), linalg.cholesky(A @ A.T), 10)
    q, r = qv.qr_method(A)
    close(q @ r, A, 10)
    p, q, r = qv.qr_pivot(A, "vector")
    close(q @ r, A[:, p], 10)


def test_eigenproblems():
    present("eigen_general")
    values, vectors = qv.eigen_symmetric(A + A.T)
    close(np.sort(values), linalg.eigvalsh(A + A.T), 10)
    close((A + A.T) @ vectors, vectors * values, 10)
    values, vectors = qv.eigen_general(A, want_vectors=False)
    assert vectors is None
    # eigenvalues of a matrix that is far from normal: their condition enters
    np.testing.assert_allclose(np.sort_complex(values), np.sort_complex(linalg.eigvals(A)), atol=1e-10)


# --- Polynomials, interpolation, fits --------------------------------------------------------------------------------


def test_roots():
    close(np.sort_complex(qv.poly_zeros([1.0, -6, 11, -6])), [1, 2, 3])
    # the constant first, and a triple root to nearly full accuracy, which np.roots cannot
    np.testing.assert_allclose(qv.poly_roots_real([-1.0, 3, -3, 1]), [1, 1, 1], atol=1e-9)


def test_spline():
    x = np.arange(10.0)
    y = np.sin(x)
    second = qv.interp_spline_second_derivatives(x, y)
    spline = interpolate.CubicSpline(x, y, bc_type="natural")
    close(second, spline(x, 2))
    clamped = qv.interp_spline_second_derivatives(x, y, first=0.0, last=0.0)
    close(clamped, interpolate.CubicSpline(x, y, bc_type="clamped")(x, 2))
    close(qv.interp_spline_evaluate(x, y, second, 3.7), spline(3.7))


def test_integration():
    x = np.sin(np.linspace(0, 1, 101))
    close(qv.integrate_samples(x, 0.01), np.trapz(x, dx=0.01))
    close(qv.integrate_samples(x, 0.01, "simpson"), scipy.integrate.simpson(x, dx=0.01))


def test_nonlinear_fit():
    t = np.linspace(0, 5, 60)
    y = 3 * np.exp(-0.7 * t) + 0.01 * rng.standard_normal(60)
    fit = qv.fit_nonlinear(t, y, lambda t, c: c[0] * np.exp(-c[1] * t), [1.0, 1.0])
    wanted, _ = scipy.optimize.curve_fit(lambda t, a, b: a * np.exp(-b * t), t, y, [1, 1])
    # both end where chi-square changes by a millionth: the coefficients are known to about its root
    np.testing.assert_allclose(fit.coefficients, wanted, rtol=1e-4)
    close(fit.mean_squared_error, np.mean((fit.fitted - y) ** 2))


def test_polynomial_and_line_fits():
    present("fit_polynomial")
    t = np.linspace(0, 2, 40)
    y = 1 + 2 * t - t**2 + 0.1 * rng.standard_normal(40)
    fit = qv.fit_polynomial(t, y, 2)
    np.testing.assert_allclose(fit.coefficients, np.polynomial.polynomial.polyfit(t, y, 2), rtol=1e-9)
    line = qv.fit_line(t, y)
    wanted = stats.linregress(t, y)
    np.testing.assert_allclose([line.slope, line.intercept], [wanted.slope, wanted.intercept], rtol=1e-9)


def test_samples_are_removed():
    x, y = np.arange(8.0), np.array([1.0, -5, 2, 3, 9, 4, 5, 6])
    x1, y1, weights = qv.fit_remove_by_index(x, y, [4, 1])
    np.testing.assert_array_equal(x1, np.delete(x, [1, 4]))
    np.testing.assert_array_equal(y1, np.delete(y, [1, 4]))
    assert weights is None
    x2, y2, weights, removed = qv.fit_remove_out_of_range(x, y, [0.0, 8.0], np.ones(8), mode="y")
    np.testing.assert_array_equal(removed, [1, 4])
    np.testing.assert_array_equal(y2, y1)
    assert len(weights) == 6


def test_goodness_of_fit():
    y = Y[:20]
    fitted = y + 0.1 * X[:20]
    sse, r_square, rmse = qv.fit_goodness(y, fitted, 18)
    close(sse, np.sum((y - fitted) ** 2))
    close(r_square, 1 - sse / np.sum((y - y.mean()) ** 2))
    close(rmse, np.sqrt(sse / 18))


# --- Time domain and measurements ------------------------------------------------------------------------------------


def test_differences_and_decimation():
    close(qv.differentiate(X, 0.1)[1:-1], np.gradient(X, 0.1)[1:-1], 10)
    close(qv.decimate(X, 5), X[::5])
    close(qv.decimate(X, 5, average=True), X.reshape(51, 5).mean(1))
    close(qv.decimate_complex(Z, 5, average=True), Z.reshape(51, 5).mean(1))


def test_runs_above_a_level():
    x = np.zeros(50)
    x[[5, 6, 7, 20, 30, 31, 32, 33]] = 1
    np.testing.assert_array_equal(qv.peak_threshold_runs(x, 0.5, 3), [5, 30])


def test_peaks():
    t = np.arange(400)
    x = np.sin(2 * np.pi * t / 80)
    locations, amplitudes, curvatures = qv.peak_detect(x, 0.5, 5)
    # parabolas through five samples of a sine: an error of the fourth order in the width over the period
    np.testing.assert_allclose(locations, [20, 100, 180, 260, 340], atol=1e-2)
    np.testing.assert_allclose(amplitudes, 1, atol=1e-2)
    assert (curvatures < 0).all()


def test_tone():
    t = np.arange(1000) * 1e-3
    freq, amp, phase = qv.tone_single(1.5 * np.sin(2 * np.pi * 61.2 * t), 1e-3)
    np.testing.assert_allclose([freq, amp], [61.2, 1.5], rtol=1e-5)  # leakage of the image under a Hanning window
    freq, amp, phase = qv.tone_single(1.5 * np.exp(2j * np.pi * 61.2 * t), 1e-3)
    np.testing.assert_allclose(freq, 61.2, rtol=1e-6)


def test_square_wave_and_noise():
    out, phase = qv.square_wave(100, 2.0, 0.05, 50.0)
    close(out, 2 * signal.square(2 * np.pi * 0.05 * (np.arange(100) + 1e-9)))
    noise = qv.gaussian_noise(10000, 2.0, seed=3)
    assert stats.kstest(noise / 2, "norm").pvalue > 0.001
    np.testing.assert_array_equal(noise, qv.gaussian_noise(10000, 2.0, seed=3))
