#!/usr/bin/env python3
"""Draws docs/co2_trend.png: the carbon dioxide over Mauna Loa, and the trend and the seasons that the library fits.

    tools/picture_trend.py [--library build/demo/libquorvan.so] [--output docs/co2_trend.png]
"""

import argparse
import datetime
import math
import pathlib

import numpy as np

from picture import ACCENT, GRID, INK, LINE, MUTED, ROOT, Quorvan, plt, style

MIDDLE, POWERS, WAVES, SINGULAR_VALUES = 1980.0, 4, 2, 0
MONTHS = "JFMAMJJASOND"


def read(path):
    """Years and levels of the weeks that have one."""
    years, levels = [], []
    for line in path.read_text().splitlines()[1:]:
        date, level = line.split(",")
        if not level:
            continue
        day = datetime.date(int(date[:4]), int(date[4:6]), int(date[6:]))
        begin, end = datetime.date(day.year, 1, 1), datetime.date(day.year + 1, 1, 1)
        years.append(day.year + ((day - begin).days + 0.5) / (end - begin).days)
        levels.append(float(level))
    return np.array(years), np.array(levels)


def terms(years):
    """The terms of the tour: a cubic, and two waves a year."""
    t, angle = (years - MIDDLE) / 10, 2 * np.pi * years
    columns = [t**k for k in range(POWERS)]
    for k in range(1, WAVES + 1):
        columns += [np.cos(k * angle), np.sin(k * angle)]
    return np.ascontiguousarray(np.column_stack(columns))


def fit(qv, years, levels):
    """Coefficients, and half the width of the 95 percent band for one week."""
    design = terms(years)
    m, n = design.shape
    fitted, coefficients = np.empty(m), np.empty(n)
    covariance, error, quantile = np.empty((n, n)), np.zeros(1), np.zeros(1)
    qv.FitGeneralLinearEx(design, m, n, levels, None, SINGULAR_VALUES, fitted, coefficients, covariance, error)
    qv.DistTInverse(0.975, m - n, quantile)
    leverage = np.einsum("ij,jk,ik->i", design, covariance, design).mean()
    return coefficients, quantile[0] * math.sqrt(error[0] * m / (m - n) * (1 + leverage))


def draw(years, levels, coefficients, half, output):
    plt.rcParams.update({"font.family": "DejaVu Sans", "font.size": 9.5})
    figure = plt.figure(figsize=(10, 3.9), dpi=160, facecolor="white")
    grid = figure.add_gridspec(1, 2, width_ratios=(1.75, 1), wspace=0.2, left=0.06, right=0.985, top=0.9, bottom=0.135)

    axes = figure.add_subplot(grid[0])
    even = np.linspace(years[0], years[-1], 800)
    trend = terms(even)[:, :POWERS] @ coefficients[:POWERS]
    axes.plot(years, levels, ".", color=LINE, markersize=1.7, alpha=0.55)
    axes.plot(even, trend, color=ACCENT, linewidth=1.8)
    growth = (trend[-1] - trend[-20]) / (even[-1] - even[-20])
    axes.text(1960.5, 358, f"{growth:.1f} ppm a year at the end", color=ACCENT, fontsize=11, fontweight="bold")
    axes.text(1960.5, 354, "cubic and two waves a year, by least squares", color=MUTED, fontsize=8.5)
    axes.set_xlim(1957.5, 2002.5)
    style(axes, "Carbon dioxide over Mauna Loa, week by week", "", "ppm")

    axes = figure.add_subplot(grid[1])
    rest = levels - terms(years)[:, :POWERS] @ coefficients[:POWERS]
    phase = np.linspace(0, 1, 400)
    season = terms(1990 + phase)[:, POWERS:] @ coefficients[POWERS:]
    axes.fill_between(12 * phase, season - half, season + half, color=ACCENT, alpha=0.10, linewidth=0)
    axes.plot(12 * (years % 1), rest, ".", color=LINE, markersize=2.8, alpha=0.32, markeredgewidth=0)
    axes.plot(12 * phase, season, color=ACCENT, linewidth=1.8)
    inside = np.abs(rest - terms(years)[:, POWERS:] @ coefficients[POWERS:]) <= half
    axes.text(11.85, 4.75, f"{100 * inside.mean():.1f} % of the weeks in the 95 % band", color=ACCENT, alpha=0.9,
              fontsize=8.5, ha="right")
    axes.set_xticks(np.arange(12) + 0.5, list(MONTHS))
    axes.set_xlim(0, 12)
    axes.set_ylim(-5.4, 5.4)
    axes.axhline(0, color=GRID, linewidth=1.2, zorder=0)
    style(axes, "The seasons on it", "", "ppm")
    for tick in axes.get_xticklabels():
        tick.set_color(INK)

    output.parent.mkdir(parents=True, exist_ok=True)
    figure.savefig(output, metadata={"Software": None})


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--library", default=ROOT / "build" / "demo" / "libquorvan.so", type=pathlib.Path)
    parser.add_argument("--output", default=ROOT / "docs" / "co2_trend.png", type=pathlib.Path)
    arguments = parser.parse_args()
    years, levels = read(ROOT / "examples" / "data" / "co2.csv")
    draw(years, levels, *fit(Quorvan(str(arguments.library.resolve())), years, levels), arguments.output)


if __name__ == "__main__":
    main()
