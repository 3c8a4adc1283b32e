#!/usr/bin/env python3
"""Draws the gallery: one picture for each window, generator, filter, transform, measurement and fit, with the few lines
that made it, through the Python package.

    tools/gallery.py --library build/demo/libquorvan.so       writes docs/gallery/*.png and docs/gallery.md

Each entry is a title and a program of a few lines; the page shows the program and its picture. `left` and `right` are
the axes of a picture with two; `decibels(h)` is 20 lg |h|; `response(taps)` gives frequencies in cycles per sample and
decibels, and labels the axes.
"""

import argparse
import os
import pathlib
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent

WINDOWS = (("rectangular", "", "x"), *((name.replace("_", " "), name, call) for name, call in (
    ("hanning", "qv.window_hanning(x)"), ("hamming", "qv.window_hamming(x)"), ("blackman", "qv.window_blackman(x)"),
    ("exact_blackman", "qv.window_exact_blackman(x)"), ("blackman_harris3", "qv.window_blackman_harris3(x)"),
    ("blackman_nuttall", "qv.window_blackman_nuttall(x)"), ("flat_top", "qv.window_flat_top(x)"),
    ("cosine_sum", "qv.window_cosine_sum(x, [0.4, 0.5, 0.1])"), ("cosine_taper", "qv.window_cosine_taper(x, 0.3)"),
    ("triangle", "qv.window_triangle(x)"), ("bartlett_hanning", "qv.window_bartlett_hanning(x)"),
    ("bohman", "qv.window_bohman(x)"), ("parzen", "qv.window_parzen(x)"), ("welch", "qv.window_welch(x)"),
    ("kaiser", "qv.window_kaiser(x, 8.0)"), ("gaussian", "qv.window_gaussian(x, 0.15)"),
    ("chebyshev", "qv.window_chebyshev(x, 60.0)"), ("exponential", "qv.window_exponential(x, 0.05)"),
    ("force", "qv.window_force(x, 30.0)"),
    ("blackman_harris4", 'qv.window_apply_symmetric(x, "blackman_harris4")'),
    ("blackman_harris7", 'qv.window_apply_symmetric(x, "blackman_harris7")'),
    ("low_sidelobe", 'qv.window_apply_symmetric(x, "low_sidelobe")'))))

GENERATORS = (
    ("sine wave", "qv.sine_wave(200, 1.0, 0.013).out"), ("square wave", "qv.square_wave(200, 1.0, 0.02, 30.0).out"),
    ("triangle wave", "qv.triangle_wave(200, 1.0, 0.02).out"),
    ("sawtooth wave", "qv.sawtooth_wave(200, 1.0, 0.02).out"),
    ("arbitrary wave", "qv.arbitrary_wave(200, 1.0, 0.02, np.array([0, 1, 0.2, 0.8, -1, 0.1])).out"),
    ("sine pattern", "qv.sine_pattern(200, 1.0, 0.0, 3.0)"), ("chirp", "qv.chirp(400, 1.0, 0.002, 0.08)"),
    ("pulse pattern", "qv.pulse_pattern(200, 1.0, 60, 50)"), ("impulse pattern", "qv.impulse_pattern(200, 1.0, 80)"),
    ("ramp pattern", "qv.ramp_pattern(200, -1.0, 2.0)"), ("triangle pattern", "qv.triangle_pattern(200, 1.0)"),
    ("sinc pattern", "qv.sinc_pattern(200, 1.0, 10.0, 0.1)"),
    ("periodic sinc pattern", "qv.periodic_sinc_pattern(200, 1.0, 10.0, 9, 0.1)"),
    ("gaussian modulated sine", "qv.gaussian_modulated_sine(200, 1.0, 100.0, 0.08, 0.5, 6.0)"),
    ("gaussian monopulse", "qv.gaussian_monopulse(200, 1.0, 100.0, 0.02)"),
    ("skewed triangle pulse", "qv.skewed_triangle_pulse(200, 1.0, 100.0, 80.0, 0.5)"),
)

NOISE = (
    ("uniform noise", "qv.uniform_noise(100_000, seed=1)"), ("white noise", "qv.white_noise(100_000, 1.0, seed=1)"),
    ("gaussian noise", "qv.gaussian_noise(100_000, 1.0, seed=1)"),
    ("periodic random noise", "qv.periodic_random_noise(4096, 1.0, seed=1)"),
    ("gamma noise", "qv.gamma_noise(100_000, 3, seed=1)"), ("poisson noise", "qv.poisson_noise(100_000, 6.0, seed=1)"),
    ("binomial noise", "qv.binomial_noise(100_000, 20, 0.3, seed=1)"),
    ("bernoulli noise", "qv.bernoulli_noise(100_000, 0.3, seed=1)"),
)

FAMILIES = (
    ("even pole", "even_pole", ""), ("Butterworth", "butterworth", ""), ("Bessel", "bessel", ""),
    ("Chebyshev", "chebyshev", ", ripple=1.0"), ("inverse Chebyshev", "inverse_chebyshev", ", attenuation=50.0"),
    ("elliptic", "elliptic", ", ripple=1.0, attenuation=50.0"),
)
KINDS = (("lowpass", "LOWPASS", "0.1"), ("highpass", "HIGHPASS", "0.1"), ("bandpass", "BANDPASS", "0.1, 0.2"),
         ("bandstop", "BANDSTOP", "0.1, 0.2"))

REST = (
    ("FIR designs", "fir_remez_differentiator", "Equiripple differentiator of 32 taps", """
        taps = qv.fir_remez_design([2 * np.pi], [1.0], 1.0, [0.0, 0.5], 32, "differentiator").h
        f, gain = np.fft.rfftfreq(1024), np.abs(np.fft.rfft(taps, 1024))
        left.plot(f, gain); left.set_ylabel("gain"); left.set_xlabel("cycles per sample")
        right.plot(f[1:], gain[1:] / (2 * np.pi * f[1:]) - 1); right.set_ylabel("relative error")
        right.set_xlabel("cycles per sample")"""),
    ("FIR designs", "fir_remez_hilbert", "Equiripple Hilbert transformer of 31 taps", """
        taps = qv.fir_remez_design([1.0], [1.0], 1.0, [0.03, 0.47], 31, "hilbert").h
        left.stem(taps); left.set_xlabel("tap")
        right.plot(np.fft.rfftfreq(1024), np.abs(np.fft.rfft(taps, 1024)))
        right.set_xlabel("cycles per sample"); right.set_ylabel("gain")"""),
    ("FIR designs", "fir_narrowband", "Narrowband lowpass: a stretched model and its image suppressor", """
        filter = qv.FirNarrowband().design(fs=1.0, f1=0.01, f2=0.013, ripple=0.01, attenuation=60.0, kind="lowpass")
        stretched = np.zeros((filter.model.size - 1) * filter.factor + 1)
        stretched[::filter.factor] = filter.model
        plt.plot(*response(stretched), color="0.75", label=f"model of {filter.model.size}, {filter.factor} apart")
        plt.plot(*response(filter.suppressor), "--", label=f"suppressor of {filter.suppressor.size}")
        plt.plot(*response(np.convolve(stretched, filter.suppressor)), label="both")
        plt.xlim(0, 0.15); plt.ylim(-120, 60); plt.legend(loc="upper right")"""),
    ("Smoothing", "savitzky_golay", "Savitzky-Golay, median and zero-phase filters on a noisy step", """
        x = np.repeat([0.0, 1.0, 0.3], 60) + qv.gaussian_noise(180, 0.08, seed=3)
        plt.plot(x, color="0.8")
        plt.plot(qv.savitzky_golay_filter(x, 3, 8), label="Savitzky-Golay, cubic over 17")
        plt.plot(qv.filter_median(x, 7, -1), label="median of 15")
        plt.plot(qv.filter_zero_phase(x, [1.0, -0.8], [0.2]), label="zero phase")
        plt.xlabel("sample"); plt.ylim(-0.4, 1.9); plt.legend(loc="upper right", ncol=2)"""),
    ("Transforms", "power_spectrum", "Power spectrum of two tones in noise", """
        x = qv.sine_wave(4096, 1.0, 0.05).out + qv.sine_wave(4096, 0.01, 0.17).out + qv.gaussian_noise(4096, 0.003, seed=2)
        power, df = qv.power_spectrum(qv.window_hanning(x), 1.0)
        plt.plot(df * np.arange(power.size), 10 * np.log10(power))
        plt.xlabel("cycles per sample"); plt.ylabel("dB")"""),
    ("Transforms", "hilbert", "Envelope by the Hilbert transform", """
        x = qv.gaussian_modulated_sine(400, 1.0, 200.0, 0.05, 0.4, 6.0)
        plt.plot(x, label="signal")
        plt.plot(np.hypot(x, qv.hilbert(x)), label="envelope")
        plt.xlabel("sample"); plt.legend()"""),
    ("Transforms", "fft", "The spectrum of a decaying oscillation, by an FFT of 1000 points", """
        x = np.exp(-np.arange(1000) / 60) * qv.sine_wave(1000, 1.0, 0.11).out
        X = qv.fft(x, shift=True)
        plt.plot((np.arange(1000) - 500) / 1000, np.abs(X))
        plt.xlabel("cycles per sample"); plt.ylabel("magnitude")"""),
    ("Transforms", "hartley", "The Hartley transform: one real spectrum, and its own inverse", """
        x = qv.pulse_pattern(64, 1.0, 10, 12)
        left.plot(qv.hartley(x)); left.set_title("transform")
        right.plot(qv.hartley(qv.hartley(x)) / 64); right.set_title("twice, over n")"""),
    ("Transforms", "convolution", "A pulse through a resonance, and back by deconvolution", """
        x, h = qv.pulse_pattern(120, 1.0, 20, 30), np.exp(-np.arange(80) / 12) * np.cos(np.arange(80) / 2)
        y = qv.convolve(x, h)
        plt.plot(y, label="convolved"); plt.plot(qv.deconvolve(y, h), label="deconvolved")
        plt.xlabel("sample"); plt.legend()"""),
    ("Transforms", "calculus", "Derivative and integral of samples", """
        t = 0.02 * np.arange(300)
        x = np.exp(-t) * np.sin(4 * t)
        plt.plot(t, x, label="samples")
        plt.plot(t, qv.differentiate(x, 0.02, initial=x[0] - 0.08, final=x[-1]) / 4, label="derivative / 4")
        plt.plot(t, 4 * qv.integrate_simpson(x, 0.02, final=x[-1]), label="4 integral"); plt.legend()"""),
    ("Transforms", "chirp_z", "A zoom between two bins by the chirp-Z transform", """
        x = qv.sine_wave(256, 1.0, 0.1003).out + qv.sine_wave(256, 0.7, 0.1103).out
        step, m = np.exp(-2j * np.pi * 0.0001), 400
        z = qv.chirp_z_real(qv.window_hanning(x), np.exp(2j * np.pi * 0.085), step, m=m)
        plt.plot(0.085 + 0.0001 * np.arange(m), np.abs(z))
        plt.xlabel("cycles per sample")"""),
    ("Transforms", "dct", "A ramp in cosines and sines", """
        x = np.linspace(0, 1, 64)
        left.stem(qv.dct(x)[:16]); left.set_title("DCT")
        right.stem(qv.dst(x)[:16]); right.set_title("DST")"""),
    ("Transforms", "correlation", "A delay found by correlation", """
        x = qv.white_noise(500, 1.0, seed=4)
        y = np.roll(x, 60) + qv.gaussian_noise(500, 0.5, seed=5)
        plt.plot(np.arange(-499, 500), qv.correlate_real(x, y))
        plt.xlabel("lag in samples")"""),
    ("Measurements", "peaks", "Peaks between samples, by parabolas", """
        t = np.arange(300)
        x = np.sin(t / 9.0) * np.exp(-t / 150) + qv.gaussian_noise(300, 0.02, seed=6)
        peaks = qv.peak_detect(x, 0.1, 9)
        plt.plot(x); plt.plot(peaks.locations, peaks.amplitudes, "o", label="peaks above 0.1")
        plt.xlabel("sample"); plt.legend()"""),
    ("Measurements", "threshold_runs", "Where a signal stays above a threshold for 12 samples", """
        x = qv.savitzky_golay_filter(qv.gaussian_noise(400, 1.0, seed=13), 2, 12)
        starts = qv.peak_threshold_runs(x, 0.1, 12)
        plt.plot(x); plt.axhline(0.1, ls="--"); plt.plot(starts, x[starts], "o", label="begin of a run")
        plt.xlabel("sample"); plt.legend()"""),
    ("Measurements", "level_crossings", "Rising crossings of a level, with hysteresis against noise", """
        x = qv.sine_wave(300, 1.0, 0.012).out + qv.gaussian_noise(300, 0.08, seed=14)
        with qv.LevelCrossing(level=0.2, hysteresis=0.3) as detector:
            found = [i for i, v in enumerate(x) if detector.feed([v]).found]
        plt.plot(x); plt.axhline(0.2, ls="--"); plt.axhline(-0.1, ls=":"); plt.plot(found, x[found], "o")
        plt.xlabel("sample")"""),
    ("Measurements", "pulse_train", "Period, width and duty cycle of a pulse train", """
        x = (qv.square_wave(400, 0.5, 0.01, 30.0).out + 0.5) * 3 + qv.gaussian_noise(400, 0.03, seed=15)
        timing, average = qv.pulse_cycle_timing(x, cycle=2), qv.pulse_cycle_average(x, cycle=2)
        plt.plot(x); plt.axhline(timing.mid, ls="--"); plt.axvspan(average.start, average.end, alpha=0.15)
        plt.title(f"period {timing.period:.1f}, width {timing.duration:.1f}, duty {timing.duty:.2f}, "
                  f"mean {average.mean:.2f}"); plt.xlabel("sample")"""),
    ("Measurements", "tones", "Three tones, two of them two bins apart", """
        x = sum(qv.sine_wave(1000, a, f, phase).out for a, f, phase in [(1, 0.1, 0), (1, 0.1023, 90), (0.3, 0.21, 30)])
        tones = qv.tone_multi(x, 3, threshold=0.01)
        power, df = qv.power_spectrum(qv.window_apply_scaled_plain(x, "hanning").x)
        plt.plot(df * np.arange(power.size), np.sqrt(2 * power), label="spectrum")
        plt.plot(tones.freq, tones.amp, "o", label="tones"); plt.xlim(0.08, 0.23); plt.legend()
        plt.xlabel("cycles per sample"); plt.ylabel("amplitude")"""),
    ("Measurements", "network", "A filter's response measured with noise, averaged over 50 frames", """
        x = qv.white_noise(50 * 512, 1.0, seed=16)
        y = qv.iir_filter_butterworth_lowpass(x, 1.0, 0.1, 4) + qv.gaussian_noise(x.size, 0.02, seed=17)
        found = qv.network_analysis(x.reshape(50, 512), y.reshape(50, 512))
        f = found.df * np.arange(256)
        left.plot(f, decibels(found.transfer_mag)); left.set_ylabel("dB"); left.set_xlabel("cycles per sample")
        right.plot(f, found.coherence); right.set_ylabel("coherence"); right.set_xlabel("cycles per sample")"""),
    ("Measurements", "pulse", "State levels and transition of an edge", """
        x = 1 / (1 + np.exp(-(np.arange(200) - 90) / 5)) + qv.gaussian_noise(200, 0.01, seed=7)
        levels = qv.pulse_state_levels(x)
        edge = qv.pulse_transition(x)
        plt.plot(x); plt.axhline(levels.high, ls="--"); plt.axhline(levels.low, ls="--")
        plt.axvspan(edge.first_time, edge.second_time, alpha=0.15)
        plt.title(f"10 to 90 percent in {edge.duration:.1f} samples"); plt.xlabel("sample")"""),
    ("Measurements", "harmonics", "Harmonics of a bent sine", """
        x = qv.sine_wave(8192, 1.0, 0.0123).out
        found = qv.tone_harmonics(x + 0.05 * x**2 + 0.02 * x**3, 5, 1.0, 0.0123)
        plt.bar(found.freq, np.maximum(20 * np.log10(found.amp), -120) + 120, bottom=-120, width=0.002)
        plt.xlabel("cycles per sample"); plt.ylabel("dB")"""),
    ("Fits", "fit_line", "A line with its confidence and prediction bands", """
        x = np.arange(30.0)
        y = 0.8 * x + 4 + qv.gaussian_noise(30, 2.0, seed=18)
        fit = qv.fit_line(x, y)
        plt.plot(x, y, "."); plt.plot(x, fit.fitted)
        for kind, alpha in (("prediction", 0.12), ("confidence", 0.3)):
            band = qv.fit_bounds_line(x, y, fit.slope, fit.intercept, type=kind)
            plt.fill_between(x, band.lower, band.upper, alpha=alpha, color="C1", label=kind)
        plt.legend()"""),
    ("Fits", "fit_models", "An exponential, a power and a logarithm", """
        x = np.linspace(0.2, 5, 60)
        noise = qv.gaussian_noise(60, 0.08, seed=19)
        for y, fit in ((3 * np.exp(-0.7 * x), qv.fit_exponential), (0.4 * x**1.3, qv.fit_power),
                       (1 + 0.5 * np.log(x), qv.fit_logarithm)):
            found = fit(x, y + noise)
            plt.plot(x, y + noise, ".", color="0.6")
            plt.plot(x, found.fitted, label=f"{fit.__name__[4:]}: a = {found.a:.2f}, b = {found.b:.2f}")
        plt.legend()"""),
    ("Fits", "fit_linear", "Any functions in a linear fit: a trend with two harmonics", """
        t = np.linspace(0, 4, 120)
        y = 0.3 * t + np.sin(2 * np.pi * t) + 0.4 * np.cos(4 * np.pi * t) + qv.gaussian_noise(120, 0.25, seed=20)
        angle = 2 * np.pi * np.outer(t, [1, 2])
        design = np.column_stack([np.ones(120), t, np.sin(angle), np.cos(angle)])
        plt.plot(t, y, "."); plt.plot(t, design @ qv.fit_general_linear(design, y))"""),
    ("Fits", "fit_polynomial", "A cubic through noisy samples", """
        x = np.linspace(-2, 2, 60)
        y = x**3 - 2 * x + qv.gaussian_noise(60, 0.5, seed=8)
        plt.plot(x, y, "."); plt.plot(x, qv.fit_polynomial(x, y, 3).fitted)"""),
    ("Fits", "fit_robust", "A line among outliers: least squares and bisquare", """
        x = np.arange(40.0)
        y = 0.5 * x + 3 + qv.gaussian_noise(40, 0.7, seed=9)
        y[::7] += 15
        plt.plot(x, y, "."); plt.plot(x, qv.fit_polynomial(x, y, 1).fitted, label="least squares")
        plt.plot(x, qv.fit_line_robust(x, y, method=qv.RobustMethod.BISQUARE).fitted, label="bisquare"); plt.legend()"""),
    ("Fits", "fit_gaussian", "A Gaussian", """
        x = np.linspace(-5, 5, 80)
        y = 3 * np.exp(-((x - 0.7) / 1.2) ** 2 / 2) + qv.gaussian_noise(80, 0.1, seed=10)
        plt.plot(x, y, "."); plt.plot(x, qv.fit_gaussian(x, y).fitted)"""),
    ("Fits", "fit_nonlinear", "A model of one's own", """
        t = np.linspace(0, 8, 150)
        y = 200 * np.exp(-t / 2.5) * np.cos(4 * t) + qv.gaussian_noise(150, 8.0, seed=11)
        fit = qv.fit_nonlinear(t, y, lambda t, a: a[0] * np.exp(-t / a[1]) * np.cos(a[2] * t), [150.0, 2.0, 3.9])
        plt.plot(t, y, "."); plt.plot(t, fit.fitted)"""),
    ("Fits", "spline", "Interpolating and smoothing splines", """
        x = np.linspace(0, 10, 25)
        y = np.sin(x) + qv.gaussian_noise(25, 0.2, seed=12)
        second = qv.interp_spline_second_derivatives(x, y, 1e30, 1e30)
        fine = np.linspace(0, 10, 400)
        plt.plot(x, y, "o")
        plt.plot(fine, [qv.interp_spline_evaluate(x, y, second, v) for v in fine], label="interpolating")
        plt.plot(x, qv.interp_smoothing_spline(y, 0.7, x), label="smoothing"); plt.legend(loc="upper center")"""),
    ("Fits", "interpolation", "Runge's function between 11 samples: polynomial and rational", """
        x = np.linspace(-1, 1, 11)
        y = 1 / (1 + 25 * x**2)
        fine = np.linspace(-1, 1, 300)
        plt.plot(x, y, "o"); plt.ylim(-0.5, 2)
        plt.plot(fine, [qv.interp_polynomial(x, y, v).result for v in fine], label="polynomial")
        plt.plot(fine, [qv.interp_rational(x, y, v).result for v in fine], label="rational"); plt.legend()"""),
    ("Polynomials", "roots", "Errors of the roots of (z - 1)^4 (z + 2i)^3, with and without multiplicities", """
        truth = np.array([1] * 4 + [-2j] * 3)
        c = np.polynomial.polynomial.polyfromroots(truth).astype(complex)
        error = lambda z: np.sort([np.abs(truth - v).min() + 1e-17 for v in z])
        plt.semilogy(error(np.roots(c[::-1])), "x", label="numpy.roots")
        plt.semilogy(error(qv.poly_roots_multiple(c)), "o", label="poly_roots_multiple"); plt.legend()
        plt.xlabel("root"); plt.ylabel("error")"""),
    ("Special functions", "bessel", "Bessel functions", """
        x = np.linspace(0, 20, 400)
        for order in range(4):
            plt.plot(x, qv.bessel_j(order, x), label=f"J{order}")
        plt.legend()"""),
    ("Special functions", "airy", "Airy functions", """
        x = np.linspace(-12, 3, 400)
        ai, bi = qv.airy(x)
        plt.plot(x, ai, label="Ai"); plt.plot(x, bi, label="Bi"); plt.ylim(-0.6, 1.2); plt.legend()"""),
    ("Special functions", "gamma", "The gamma function and its reciprocal", """
        x = np.linspace(-4, 4, 801) + 1e-4
        g = qv.gamma(x)
        plt.plot(x, np.where(np.abs(g) < 12, g, np.nan), label="gamma"); plt.plot(x, 1 / g, label="1 / gamma")
        plt.ylim(-10, 10); plt.legend()"""),
    ("Special functions", "fresnel", "Cornu's spiral, from the Fresnel integrals", """
        s, c = qv.fresnel(np.linspace(-6, 6, 3000))
        plt.plot(c, s); plt.gca().set_aspect("equal"); plt.xlabel("C"); plt.ylabel("S")"""),
    ("Special functions", "jacobi_elliptic", "Jacobian elliptic functions of m = 0.9", """
        u = np.linspace(0, 12, 400)
        found = qv.jacobi_elliptic(u, 0.9)
        plt.plot(u, found.sn, label="sn"); plt.plot(u, found.cn, label="cn"); plt.plot(u, found.dn, label="dn")
        plt.legend()"""),
)


TITLES = {"exact_blackman": "Exact Blackman", "blackman_harris3": "Blackman-Harris, 3 terms",
          "blackman_harris4": "Blackman-Harris, 4 terms", "blackman_harris7": "Blackman-Harris, 7 terms",
          "blackman_nuttall": "Blackman-Nuttall", "bartlett_hanning": "Bartlett-Hanning",
          "chebyshev": "Dolph-Chebyshev, 60 dB", "low_sidelobe": "Low sidelobes", "cosine_sum": "Cosine sum of one's own"}
FLOORS = {"blackman_harris7": -200, "low_sidelobe": -160, "exponential": -60, "force": -60}


def entries():
    """(chapter, file, title, program, two axes)"""
    for title, name, call in WINDOWS:
        size = f"512, floor={FLOORS[name]}" if name in FLOORS else "512"
        program = (f"x = np.ones(64)\nw = {call}\nleft.plot(w, '.-'); left.set_ylim(-0.1, 1.1); left.set_xlabel('sample')\n"
                   f"right.plot(*response(w, {size}))")
        yield "Windows", f"window_{name or title}", TITLES.get(name, title.capitalize()), program, True
    for title, call in GENERATORS:
        style = "-" if "(400" in call else ".-"
        program = f"x = {call}\nplt.plot(x, '{style}', ms=3)\nplt.xlabel('sample')"
        yield "Generators", f"generator_{title.replace(' ', '_')}", title.capitalize(), program, False
    for title, call in NOISE:
        program = f"x = {call}\nleft.plot(x[:200]); left.set_xlabel('sample')\nright.hist(x, 60); right.set_ylabel('count')"
        yield "Random numbers", title.replace(" ", "_"), title.capitalize(), program, True
    yield ("Random numbers", "sequences", "An evenly filled square beside random points",
           "x, y = qv.halton_sequence(500, 2, reset=True), qv.halton_sequence(500, 3, reset=True)\n"
           "left.plot(x, y, '.', ms=3); left.set_title('Halton, bases 2 and 3')\n"
           "u = qv.uniform_noise(1000, seed=1)\n"
           "right.plot(u[::2], u[1::2], '.', ms=3); right.set_title('uniform noise')", True)
    for title, method, extra in FAMILIES:
        for kind, constant, edges in KINDS:
            program = (f"with qv.IirFilter(qv.FilterKind.{constant}, 4) as filter:\n"
                       f"    filter.{method}(1.0, {edges}{extra})\n"
                       "    h = filter.apply(qv.impulse_pattern(4096, 1.0, 0))\n"
                       "plt.plot(*response(h))")
            yield ("Recursive filters", f"iir_{method}_{kind}", f"{title[0].upper() + title[1:]} {kind} of order 4", program,
                   False)
    for kind, _, edges in KINDS:
        two = "," in edges
        wide = {"lowpass": "0.1, 0.13", "highpass": "0.1, 0.13", "bandpass": "0.1, 0.13, 0.2, 0.23",
                "bandstop": "0.1, 0.13, 0.2, 0.23"}[kind]
        for name, title, call in (
                ("window", "by a Hamming window", f"qv.fir_design_{kind}(1.0, {edges}, 55)"),
                ("kaiser", "by a Kaiser window", f"qv.fir_design_kaiser_{kind}(1.0, {edges}, 55, 6.0)"),
                ("remez", "of equal ripple", f"qv.fir_remez_{kind}(1.0, {wide}, {61 if two else 55}).h")):
            yield ("FIR designs", f"fir_{name}_{kind}", f"{kind.capitalize()} of {61 if two and name == 'remez' else 55} taps "
                   f"{title}", f"taps = {call}\nplt.plot(*response(taps))", False)
    for chapter, name, title, program in REST:
        yield chapter, name, title, textwrap.dedent(program).strip(), "left." in program


def page():
    """The text of docs/gallery.md."""
    everything = list(entries())
    chapters = list(dict.fromkeys(chapter for chapter, *_ in everything))
    lines = ["# Gallery", "",
             "Made by `make gallery`, with `import numpy as np, matplotlib.pyplot as plt, quorvan as qv`.",
             "`left` and `right` are the axes of a picture with two; `decibels(h)` is 20 lg |h|; `response(taps)` gives the",
             "frequencies in cycles per sample and the response in dB, and labels the axes.", "",
             " · ".join(f"[{c}](#{c.lower().replace(' ', '-')})" for c in chapters), ""]
    for chapter in chapters:
        lines += [f"## {chapter}", ""]
        for where, name, title, program, _ in everything:
            if where == chapter:
                lines += [f"### {title}", "", "```python", program, "```", "", f"![{title}](gallery/{name}.png)", ""]
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", type=pathlib.Path, required=True)
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "docs")
    options = parser.parse_args()
    os.environ["QUORVAN_LIBRARY"] = str(options.library.resolve())
    sys.path.insert(0, str(ROOT / "bindings" / "python"))

    import matplotlib
    matplotlib.use("Agg")
    import matplotlib.pyplot as plt
    import numpy as np
    import quorvan as qv

    def decibels(h):
        return 20 * np.log10(np.maximum(np.abs(h), 1e-7))

    def response(taps, size=4096, floor=-120):
        h = np.abs(np.fft.rfft(taps, size))
        plt.gcf().axes[-1].set(xlabel="cycles per sample", ylabel="dB", ylim=(floor, 5))
        scale = h.max() if h.max() > 3 else 1  # a window's largest value is that of its sum
        return np.arange(h.size) / size, 20 * np.log10(np.maximum(h / scale, 10 ** (floor / 20)))

    plt.rcParams.update({"figure.dpi": 80, "axes.spines.top": False, "axes.spines.right": False, "font.size": 9,
                         "lines.linewidth": 1.4, "axes.grid": True, "grid.alpha": 0.3})
    pictures = options.output / "gallery"
    pictures.mkdir(parents=True, exist_ok=True)
    everything = list(entries())
    for number, (_, name, title, program, two) in enumerate(everything, 1):
        figure, axes = plt.subplots(1, 2 if two else 1, figsize=(7, 2.6) if two else (5.2, 2.6), squeeze=False)
        left, right = axes[0][0], axes[0][-1]
        exec(program, {"qv": qv, "np": np, "plt": plt, "left": left, "right": right, "response": response,
                       "decibels": decibels})
        figure.tight_layout()
        figure.savefig(pictures / f"{name}.png", metadata={"Software": None})
        plt.close(figure)
        if sys.stderr.isatty():
            print(f"\r{number} of {len(everything)}  {title[:70]:70}", end="", flush=True, file=sys.stderr)
        elif number % 20 == 0 or number == len(everything):
            print(f"{number} of {len(everything)} pictures", flush=True, file=sys.stderr)
    if sys.stderr.isatty():
        print(file=sys.stderr)
    (options.output / "gallery.md").write_text(page())


if __name__ == "__main__":
    main()
