#!/usr/bin/env python3
"""Draws the gallery: one picture for each window, generator, filter, transform, measurement and fit, with the few lines
that made it, through the Python package.

    tools/gallery.py --library build/demo/libquorvan.so       writes docs/gallery/*.png and docs/gallery.md

Each entry is a title and a program of a few lines; the page shows the program and its picture. `left` and `right` are
the axes of a picture with two; `decibels(h)` is 20 lg |h|; `response(taps)` gives frequencies in cycles per sample and
decibels.
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
    ("force", "qv.window_force(x, 30.0)"))))

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
    ("FIR designs", "fir_window_lowpass", "Lowpass of 55 taps by a window", """
        taps = qv.fir_design_lowpass(1.0, 0.1, 55)
        plt.plot(*response(taps))"""),
    ("FIR designs", "fir_kaiser_bandpass", "Bandpass of 55 taps by a Kaiser window", """
        taps = qv.fir_design_kaiser_bandpass(1.0, 0.1, 0.2, 55, 6.0)
        plt.plot(*response(taps))"""),
    ("FIR designs", "fir_remez_lowpass", "Equiripple lowpass of 55 taps", """
        taps = qv.fir_remez_lowpass(1.0, 0.1, 0.13, 55).h
        plt.plot(*response(taps))"""),
    ("FIR designs", "fir_remez_bandpass", "Equiripple bandpass of 61 taps", """
        taps = qv.fir_remez_bandpass(1.0, 0.1, 0.13, 0.2, 0.23, 61).h
        plt.plot(*response(taps))"""),
    ("Smoothing", "savitzky_golay", "Savitzky-Golay, median and zero-phase filters on a noisy step", """
        x = np.repeat([0.0, 1.0, 0.3], 60) + qv.gaussian_noise(180, 0.08, seed=3)
        plt.plot(x, color="0.8")
        plt.plot(qv.savitzky_golay_filter(x, 3, 8), label="Savitzky-Golay, cubic over 17")
        plt.plot(qv.filter_median(x, 7, -1), label="median of 15")
        plt.plot(qv.filter_zero_phase(x, np.array([1.0, -0.8]), np.array([0.2])), label="zero phase")
        plt.legend()"""),
    ("Transforms", "power_spectrum", "Power spectrum of two tones in noise", """
        x = qv.sine_wave(4096, 1.0, 0.05).out + qv.sine_wave(4096, 0.01, 0.17).out + qv.gaussian_noise(4096, 0.003, seed=2)
        power, df = qv.power_spectrum(qv.window_hanning(x), 1.0)
        plt.plot(df * np.arange(power.size), 10 * np.log10(power))
        plt.xlabel("cycles per sample"); plt.ylabel("dB")"""),
    ("Transforms", "hilbert", "Envelope by the Hilbert transform", """
        x = qv.gaussian_modulated_sine(400, 1.0, 200.0, 0.05, 0.4, 6.0)
        plt.plot(x)
        plt.plot(np.hypot(x, qv.hilbert(x)))"""),
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
        plt.plot(x); plt.plot(peaks.locations, peaks.amplitudes, "o")"""),
    ("Measurements", "pulse", "State levels and transition of an edge", """
        x = 1 / (1 + np.exp(-(np.arange(200) - 90) / 5)) + qv.gaussian_noise(200, 0.01, seed=7)
        levels = qv.pulse_state_levels(x)
        plt.plot(x); plt.axhline(levels.high, ls="--"); plt.axhline(levels.low, ls="--")"""),
    ("Measurements", "harmonics", "Harmonics of a bent sine", """
        x = qv.sine_wave(8192, 1.0, 0.0123).out
        found = qv.tone_harmonics(x + 0.05 * x**2 + 0.02 * x**3, 5, 1.0, 0.0123)
        plt.bar(found.freq, np.maximum(20 * np.log10(found.amp), -120) + 120, bottom=-120, width=0.002)
        plt.xlabel("cycles per sample"); plt.ylabel("dB")"""),
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
        plt.plot(x, y, "o"); plt.plot(fine, [qv.interp_spline_evaluate(x, y, second, v) for v in fine])
        plt.plot(x, qv.interp_smoothing_spline(y.copy(), 0.7, x))"""),
    ("Polynomials", "roots", "Errors of the roots of (z - 1)^4 (z + 2i)^3, with and without multiplicities", """
        truth = np.array([1] * 4 + [-2j] * 3)
        c = np.polynomial.polynomial.polyfromroots(truth).astype(complex)
        error = lambda z: np.sort([np.abs(truth - v).min() + 1e-17 for v in z])
        plt.semilogy(error(np.roots(c[::-1])), "x", label="numpy.roots")
        plt.semilogy(error(qv.poly_roots_multiple(c)), "o", label="poly_roots_multiple"); plt.legend()"""),
    ("Special functions", "bessel", "Bessel functions", """
        x = np.linspace(0, 20, 400)
        for order in range(4):
            plt.plot(x, [qv.bessel_j(float(order), v) for v in x], label=f"J{order}")
        plt.legend()"""),
)


def entries():
    """(chapter, file, title, program, two axes)"""
    for title, name, call in WINDOWS:
        program = f"x = np.ones(64)\nw = {call}\nleft.plot(w, '.-')\nright.plot(*response(w, 512))"
        yield "Windows", f"window_{name or title}", title.capitalize(), program, True
    for title, call in GENERATORS:
        yield "Generators", f"generator_{title.replace(' ', '_')}", title.capitalize(), f"x = {call}\nplt.plot(x)", False
    for title, call in NOISE:
        program = f"x = {call}\nleft.plot(x[:200])\nright.hist(x, 60)"
        yield "Random numbers", title.replace(" ", "_"), title.capitalize(), program, True
    for title, method, extra in FAMILIES:
        for kind, constant, edges in KINDS:
            program = (f"with qv.IirFilter(qv.FilterKind.{constant}, 4) as filter:\n"
                       f"    filter.{method}(1.0, {edges}{extra})\n"
                       "    h = filter.apply(qv.impulse_pattern(4096, 1.0, 0))\n"
                       "plt.plot(*response(h))")
            yield ("Recursive filters", f"iir_{method}_{kind}", f"{title[0].upper() + title[1:]} {kind} of order 4", program,
                   False)
    for chapter, name, title, program in REST:
        yield chapter, name, title, textwrap.dedent(program).strip(), "left." in program


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

    def response(taps, size=4096):
        h = np.fft.rfft(taps, size)
        for axes in plt.gcf().axes[-1:]:
            axes.set_ylim(-120, 5) if np.abs(h).max() < 3 else None
        scale = np.abs(h).max() if np.abs(h).max() > 3 else 1
        return np.arange(h.size) / size, np.maximum(decibels(h / scale), -120)

    plt.rcParams.update({"figure.dpi": 80, "axes.spines.top": False, "axes.spines.right": False, "font.size": 9,
                         "lines.linewidth": 1.4, "axes.grid": True, "grid.alpha": 0.3})
    pictures = options.output / "gallery"
    pictures.mkdir(parents=True, exist_ok=True)
    page = ["# Gallery", "", "Made by `make gallery`, with `import numpy as np, matplotlib.pyplot as plt, quorvan as qv`.",
            "`left` and `right` are the axes of a picture with two; `response` gives the frequencies in cycles per sample "
            "and the spectrum in dB.", ""]
    chapter = None
    everything = list(entries())
    for number, (where, name, title, program, two) in enumerate(everything, 1):
        figure, axes = plt.subplots(1, 2 if two else 1, figsize=(7, 2.6) if two else (5.2, 2.6), squeeze=False)
        left, right = axes[0][0], axes[0][-1]
        exec(program, {"qv": qv, "np": np, "plt": plt, "left": left, "right": right, "response": response,
                       "decibels": decibels})
        figure.tight_layout()
        figure.savefig(pictures / f"{name}.png", metadata={"Software": None})
        plt.close(figure)
        if where != chapter:
            page += [f"## {where}", ""]
            chapter = where
        page += [f"### {title}", "", "```python", program, "```", "", f"![{title}](gallery/{name}.png)", ""]
        print(f"\r{number} of {len(everything)}  {title:60}", end="", flush=True, file=sys.stderr)
    print(file=sys.stderr)
    (options.output / "gallery.md").write_text("\n".join(page))


if __name__ == "__main__":
    main()
