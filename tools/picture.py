#!/usr/bin/env python3
"""Draws docs/ecg_spectrum.png: a recording and its spectrum with the heart rate, as the library measures them.

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
    """Frequencies, spectrum in a display unit, that unit, and the frequency of the heart by the tour's reading."""
    n = len(samples)
    mean, df = np.zeros(1), np.zeros(1)
    window = np.zeros(2)
    qv.StatMean(samples, n, mean)
    centred = np.empty(n)
    qv.ArrLinearEval(samples, n, 1.0, -mean[0], centred)
    windowed = centred.copy()
    qv.WinApplyScaledPlain(windowed, n, HANNING, window)
    power, amplitude = np.empty(n // 2), np.empty(n // 2)
    qv.SpecPowerSpectrum(windowed, n, 1.0 / RATE, power, df)
    unit = library.text_buffer("mV", 16)
    qv.SpecUnitConvert(power, len(power), OF_POWERS, LINEAR, PEAK_AMPLITUDE, df[0], window, amplitude, unit)

    correlation = np.empty(2 * n - 1)
    qv.AutoCorrelateReal(centred, n, BIASED, correlation)
    correlation = correlation[n - 1:]
    lags = np.arange(int(np.ceil(RATE / FASTEST)), int(RATE / SLOWEST) + 1)
    peaks = lags[(correlation[lags] > correlation[lags - 1]) & (correlation[lags] >= correlation[lags + 1])]
    beat = RATE / peaks[correlation[peaks].argmax()]

    first, last = int(np.ceil(beat / 1.2 / df[0])), int(beat * 1.2 / df[0])
    search = (first + power[first:last + 1].argmax() + 0.5) * df[0]
    frequency, line = np.zeros(1), np.zeros(1)
    qv.SpecPeakPowerFrequency(power, len(power), search, window, df[0], 5, frequency, line)
    return np.arange(len(power)) * df[0], amplitude, unit.value.decode(), frequency[0]


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


def draw(samples, measured, output):
    frequencies, amplitude, unit, heart = measured
    plt.rcParams.update({"font.family": "DejaVu Sans", "font.size": 9.5})
    figure = plt.figure(figsize=(10, 5.6), dpi=160, facecolor="white")
    grid = figure.add_gridspec(2, 1, height_ratios=(1, 1.7), hspace=0.52, left=0.068, right=0.98, top=0.935,
                               bottom=0.09)

    axes = figure.add_subplot(grid[0])
    seconds = 12
    shown = samples[:int(seconds * RATE)]
    axes.plot(np.arange(len(shown)) / RATE, shown, color=INK, linewidth=0.9)
    axes.set_xlim(0, seconds)
    style(axes, f"An electrocardiogram: {seconds} of its {len(samples) / RATE:.0f} seconds", "time, s", "mV")

    axes = figure.add_subplot(grid[1])
    lowest, highest = 0.5, 8.0
    inside = (frequencies >= lowest) & (frequencies <= highest)
    x, y = frequencies[inside], amplitude[inside]
    top = y.max() * 1.3
    peak = np.abs(frequencies - heart).argmin()
    height = amplitude[peak - 2:peak + 3].max()
    axes.axvspan(SLOWEST, FASTEST, color=ACCENT, alpha=0.055, linewidth=0)
    axes.text(FASTEST - 0.05, top * 0.97, "where hearts beat: 40 to 200 /min", color=ACCENT, alpha=0.8, fontsize=8.5,
              ha="right", va="top")
    axes.fill_between(x, y, color=LINE, alpha=0.18, linewidth=0)
    axes.plot(x, y, color=LINE, linewidth=1.0)
    axes.plot([heart], [height], "o", color=ACCENT, markersize=6, zorder=5)
    axes.annotate(f"{60 * heart:.0f} beats a minute\n{heart:.2f} Hz", (heart, height), xytext=(26, 8),
                  textcoords="offset points", color=ACCENT, fontsize=11, fontweight="bold", va="center",
                  arrowprops={"arrowstyle": "-", "color": ACCENT, "linewidth": 1.0, "shrinkA": 2, "shrinkB": 5})
    axes.set_xlim(lowest, highest)
    axes.set_ylim(0, top)
    style(axes, "Its spectrum under a Hanning window", "frequency, Hz", unit)

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
