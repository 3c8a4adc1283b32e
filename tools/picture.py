#!/usr/bin/env python3
"""Draws docs/ecg_spectrum.png: a recording, its spectrum and its autocorrelation, as the library measures them.

    tools/picture.py [--library build/demo/libquorvan.so] [--output docs/ecg_spectrum.png]
"""

import argparse
import pathlib

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402
import numpy as np  # noqa: E402

import boundary  # noqa: E402
import library  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parent.parent
RATE = 360.0  # samples per second
HANNING, OF_POWERS, LINEAR, PEAK_AMPLITUDE, BIASED = 1, 0, 0, 1, 2
SLOWEST, FASTEST = 40 / 60, 200 / 60  # heart rates, Hz

INK, MUTED, GRID, LINE, ACCENT = "#1d2733", "#66727f", "#e3e8ee", "#2f6f9f", "#c8452f"


class Quorvan:
    """The library under its readable names; a negative status raises its text."""

    def __init__(self, path):
        self.library = library.load(path)
        exports = boundary.implemented(boundary.read_table())
        self.symbols = {e.name: e.symbol for e in exports}
        self.text = getattr(self.library, self.symbols["StatusMessage"])

    def __getattr__(self, name):
        function = getattr(self.library, self.symbols[name])

        def call(*arguments):
            status = function(*arguments)
            if status < 0:
                raise RuntimeError(f"{name}: {self.text(status).decode()}")

        return call


def measure(qv, samples):
    """Spectrum in mVpk with its frequencies, autocorrelation with its lags, and the two readings of the heart rate."""
    n = len(samples)
    mean, df = np.zeros(1), np.zeros(1)
    window = np.zeros(2)
    qv.StatMean(samples, n, mean)
    centred, windowed = np.empty(n), np.empty(n)
    qv.ArrLinearEval(samples, n, 1.0, -mean[0], centred)
    windowed[:] = centred
    qv.WinApplyScaledPlain(windowed, n, HANNING, window)
    power, amplitude = np.empty(n // 2), np.empty(n // 2)
    qv.SpecPowerSpectrum(windowed, n, 1.0 / RATE, power, df)
    unit = library.text_buffer("mV", 16)
    qv.SpecUnitConvert(power, len(power), OF_POWERS, LINEAR, PEAK_AMPLITUDE, df[0], window, amplitude, unit)

    correlation = np.empty(2 * n - 1)
    qv.AutoCorrelateReal(centred, n, BIASED, correlation)
    correlation = correlation[n - 1:] / correlation[n - 1]
    lags = np.arange(int(np.ceil(RATE / FASTEST)), int(RATE / SLOWEST) + 1)
    peaks = lags[(correlation[lags] > correlation[lags - 1]) & (correlation[lags] >= correlation[lags + 1])]
    lag = peaks[correlation[peaks].argmax()]

    beat = RATE / lag
    first, last = int(np.ceil(beat / 1.2 / df[0])), int(beat * 1.2 / df[0])
    search = (first + power[first:last + 1].argmax() + 0.5) * df[0]
    frequency, line = np.zeros(1), np.zeros(1)
    qv.SpecPeakPowerFrequency(power, len(power), search, window, df[0], 5, frequency, line)
    return np.arange(len(power)) * df[0], amplitude, unit.value.decode(), correlation, lag, frequency[0]


def style(axes, title, xlabel, ylabel):
    axes.set_title(title, loc="left", color=INK, fontsize=11, fontweight="bold", pad=9)
    axes.set_xlabel(xlabel, color=MUTED)
    axes.set_ylabel(ylabel, color=MUTED)
    axes.grid(True, color=GRID, linewidth=0.8)
    axes.set_axisbelow(True)
    axes.tick_params(colors=MUTED, length=0)
    for spine in axes.spines.values():
        spine.set_visible(False)
    axes.spines["bottom"].set(visible=True, color=GRID, linewidth=1.2)


def tag(axes, text, point, offset, align="left"):
    """A reading beside its place in the curve."""
    axes.annotate(text, point, xytext=offset, textcoords="offset points", color=ACCENT, fontsize=10.5,
                  fontweight="bold", ha=align, va="center",
                  arrowprops={"arrowstyle": "-", "color": ACCENT, "linewidth": 1.0, "shrinkA": 2, "shrinkB": 4})


def draw(samples, measured, output):
    frequencies, amplitude, unit, correlation, lag, frequency = measured
    plt.rcParams.update({"font.family": "DejaVu Sans", "font.size": 9.5})
    figure = plt.figure(figsize=(10, 6.4), dpi=160, facecolor="white")
    grid = figure.add_gridspec(2, 2, height_ratios=(1, 1.45), width_ratios=(1.55, 1), hspace=0.5, wspace=0.2,
                               left=0.07, right=0.975, top=0.935, bottom=0.085)

    axes = figure.add_subplot(grid[0, :])
    seconds = 12
    shown = samples[:int(seconds * RATE)]
    axes.plot(np.arange(len(shown)) / RATE, shown, color=INK, linewidth=0.9)
    axes.set_xlim(0, seconds)
    style(axes, "Electrocardiogram, the first 12 of 60 seconds", "time, s", "mV")

    axes = figure.add_subplot(grid[1, 0])
    inside = (frequencies >= 0.4) & (frequencies <= 8.0)
    x, y = frequencies[inside], amplitude[inside]
    axes.fill_between(x, y, color=LINE, alpha=0.18, linewidth=0)
    axes.plot(x, y, color=LINE, linewidth=1.0)
    top = y.max() * 1.28
    peak = np.abs(frequencies - frequency).argmin()
    height = amplitude[peak - 2:peak + 3].max()
    axes.axvspan(SLOWEST, FASTEST, color=ACCENT, alpha=0.05, linewidth=0)
    axes.text(FASTEST - 0.06, top * 0.965, "40 to 200 /min", color=ACCENT, alpha=0.75, fontsize=8.5, ha="right", va="top")
    axes.plot([frequency], [height], "o", color=ACCENT, markersize=5.5, zorder=5)
    tag(axes, f"{60 * frequency:.0f} beats a minute\n{frequency:.2f} Hz", (frequency, height), (24, 12))
    axes.set_xlim(0.4, 8.0)
    axes.set_ylim(0, top)
    style(axes, "Spectrum under a Hanning window", "frequency, Hz", unit)

    axes = figure.add_subplot(grid[1, 1])
    lags = np.arange(int(1.8 * RATE))
    axes.axhline(0, color=GRID, linewidth=1.2)
    axes.plot(lags / RATE, correlation[lags], color=LINE, linewidth=1.3)
    axes.plot([lag / RATE], [correlation[lag]], "o", color=ACCENT, markersize=5.5, zorder=5)
    tag(axes, f"{60 * RATE / lag:.0f} beats a minute\n{lag / RATE:.2f} s", (lag / RATE, correlation[lag]), (26, 22))
    axes.set_xlim(0, 1.8)
    axes.set_ylim(min(-0.4, correlation[lags].min() * 1.1), 1.08)
    style(axes, "Autocorrelation", "lag, s", "")

    output.parent.mkdir(parents=True, exist_ok=True)
    figure.savefig(output, metadata={"Software": None})


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--library", default=ROOT / "build" / "demo" / "libquorvan.so", type=pathlib.Path)
    parser.add_argument("--output", default=ROOT / "docs" / "ecg_spectrum.png", type=pathlib.Path)
    arguments = parser.parse_args()
    samples = np.loadtxt(ROOT / "examples" / "data" / "ecg.csv", skiprows=1)
    draw(samples, measure(Quorvan(str(arguments.library.resolve())), samples), arguments.output)


if __name__ == "__main__":
    main()
