"""The chapters of the tour on real recordings, beside NumPy and SciPy on the same data.

Tables print five digits: a printed value is off by at most half a unit of the fifth, 5e-5 of it.
"""

import datetime
import glob
import math
import os
import subprocess

import numpy as np
import pytest
from scipy import optimize, signal, stats

from test_tour import DATA, RATE, RECORDING, chapter, numbers, text

PRINTED = 5e-5


def near(value, rel=PRINTED, abs=0.0):
    return pytest.approx(value, rel=rel, abs=abs)


@pytest.fixture(scope="module")
def ecg():
    return np.loadtxt(RECORDING, skiprows=1)


@pytest.fixture(scope="module")
def sunspots():
    return np.loadtxt(DATA / "sunspots.csv", delimiter=",", skiprows=1).T


# --- beats -----------------------------------------------------------------------------------------------------------


def zero_phase(b, a, x):
    """Forwards and backwards from rest, with max(len(a), len(b)) zeros on both sides."""
    pad = max(len(a), len(b))
    y = signal.lfilter(b, a, np.pad(x, pad))
    return signal.lfilter(b, a, y[::-1])[::-1][pad:-pad]


def envelope(x):
    steep = zero_phase(*signal.butter(2, [5, 15], "bandpass", fs=RATE), x)
    smooth = zero_phase(*signal.butter(2, 4, fs=RATE), steep**2)
    return np.sqrt(np.maximum(smooth, 0))


def apexes(x, width, threshold):
    """Where the slope turns from rise to fall between neighbouring windows, by the parabola of the later one; of the
    earlier one if the apex is nearer to its middle, and not within half a sample of the later one's."""
    t = np.arange(width) - (width - 1) / 2
    fit = np.linalg.pinv(np.vander(t, 3, increasing=True))
    c0, c1, c2 = (np.correlate(x, row, "valid") for row in fit)
    vertex = -c1 / np.where(c2 == 0, np.nan, 2 * c2)
    places = []
    for k in 1 + np.flatnonzero((c1[:-1] > 0) & (c1[1:] <= 0)):
        if vertex[k] < -0.5 and abs(vertex[k - 1]) < abs(vertex[k]):
            k -= 1
        if c2[k] < 0 and c0[k] + c1[k] * vertex[k] / 2 > threshold:
            places.append(k + (width - 1) / 2 + vertex[k])
    return np.array(places)


@pytest.fixture(scope="module")
def beats(ecg):
    e = envelope(ecg)
    return apexes(e, 55, 0.5 * np.sqrt(np.mean(e**2)))


def variability(places):
    intervals = np.diff(places) / RATE * 1e3
    return np.median(intervals), intervals.std(), math.sqrt(np.mean(np.diff(intervals) ** 2))


def test_beats_and_their_variability_are_those_of_least_squares_parabolas(beats):
    rows = chapter("beats")
    assert rows["beats"][0][0] == len(beats)
    printed = [float(v) for v in text("beats").split("the first beats, in s")[1].splitlines()[0].split()]
    assert np.allclose(printed, beats[:8] / RATE, atol=5.1e-4, rtol=0)  # three decimals
    median, deviation, successive = variability(beats)
    assert rows["median interval"][0][0] == near(median)
    assert rows["deviation of the intervals"][0][0] == near(deviation)
    assert rows["difference of neighbours, rms"][0][0] == near(successive)
    assert rows["heart rate, median interval"][0][0] == near(6e4 / rows["median interval"][0][0], rel=2 * PRINTED)


def test_second_reading_of_the_beats_is_the_middles_of_the_runs(ecg):
    rows = chapter("beats")
    e = envelope(ecg)
    edges = np.flatnonzero(np.diff(np.concatenate(([0], e >= 0.5 * np.sqrt(np.mean(e**2)), [0]))))
    first, last = edges[::2], edges[1::2] - 1
    long = last - first + 1 >= int(0.05 * RATE)
    median, deviation, successive = variability((first + last)[long] / 2)
    assert rows["beats"][0][1] == np.count_nonzero(long)
    assert rows["median interval"][0][1] == near(median)
    assert rows["deviation of the intervals"][0][1] == near(deviation)
    assert rows["difference of neighbours, rms"][0][1] == near(successive)


# --- shape -----------------------------------------------------------------------------------------------------------


def median_filter(x, side):
    return np.median(np.lib.stride_tricks.sliding_window_view(np.pad(x, side), 2 * side + 1), axis=1)


@pytest.fixture(scope="module")
def pulses(ecg, beats):
    still = ecg - median_filter(median_filter(ecg, 36), 108)
    cut = [still[m - 72:m + 73] for m in np.rint(beats).astype(int) if m >= 72 and m + 72 < len(ecg)]
    return [p for p in cut if p.max() > -p.min()]


def crossing(x, level, start, step):
    """The first place from start on where x falls through the level, walking by step."""
    i = start
    while x[i] >= level:
        i += step
        if not 0 <= i < len(x):
            return None
    return i - step * (level - x[i]) / (x[i - step] - x[i])


def test_rise_and_fall_are_the_crossings_of_ten_and_ninety_percent(pulses):
    rows = chapter("shape")
    rises, falls = [], []
    for p in pulses:
        apex = p.argmax()
        for times, step in ((rises, -1), (falls, 1)):
            outer, inner = (crossing(p, share * p[apex], apex, step) for share in (0.1, 0.9))
            if outer is not None:
                times.append(abs(outer - inner) / RATE * 1e3)
    assert rows["beats with a rise"][0][0] == len(rises)
    # A beat with a notch between the two levels has more than one pair of crossings, and the library tells the pair
    # around the middle reference. The median moves by such beats at most to the neighbours it has in rank.
    notched = 2
    for name, times in (("rise, 10 to 90 %, median", rises), ("fall, 90 to 10 %, median", falls)):
        times = np.sort(times)
        middle = len(times) // 2
        low, high = times[middle - notched - 1], times[middle + notched + 1]
        assert low * (1 - PRINTED) <= rows[name][0][0] <= high * (1 + PRINTED), name
        # The second reading has whole samples, cut off, and levels of its own.
        assert abs(rows[name][0][1] - rows[name][0][0]) <= 1e3 / RATE, name


def test_bell_curve_is_that_of_curve_fit(pulses):
    rows = chapter("shape")
    p = max(pulses, key=lambda x: x.max())
    apex = p.argmax()
    side = int(0.02 * RATE)
    x = np.arange(-side, side + 1) * 1e3 / RATE
    y = p[apex - side:apex + side + 1]
    bell = lambda x, a, m, s: a * np.exp(-0.5 * ((x - m) / s) ** 2)  # noqa: E731
    c, covariance = optimize.curve_fit(bell, x, y, [p[apex], 0, 10])
    # Both engines stop when the error changes by less than 1e-5 of itself; near the minimum that is a distance of
    # sqrt(1e-5 (n - 3)) standard deviations.
    stop = math.sqrt(1e-5 * (len(x) - 3)) * np.sqrt(np.diag(covariance))
    factor = 2 * math.sqrt(2 * math.log(2))
    for name, value, tolerance in (("bell curve on a beat, height", c[0], stop[0]),
                                   ("centre from the apex", c[1], stop[1]),
                                   ("width at half height", factor * abs(c[2]), factor * stop[2])):
        for reading in rows[name][0]:
            assert reading == near(value, abs=tolerance), name
    rest = math.sqrt(np.mean((bell(x, *c) - y) ** 2))
    assert rows["what is left of it, rms"][0] == [near(rest, rel=PRINTED + 1e-5)] * 2


# --- filters ---------------------------------------------------------------------------------------------------------


@pytest.fixture(scope="module")
def designs():
    return {"wander": signal.butter(2, 0.5, "highpass", fs=RATE), "hum": signal.butter(2, [59, 61], "bandstop", fs=RATE),
            "muscles": (signal.firwin(121, 40, window=("kaiser", 6.0), fs=RATE, scale=False), [1.0]),
            "smoother": (signal.savgol_coeffs(51, 3), [1.0])}


def gain(design, f):
    return np.abs(signal.freqz(*design, worN=np.atleast_1d(f), fs=RATE)[1])


@pytest.mark.parametrize("row, design, level, interval", [
    ("wander: Butterworth highpass", "wander", math.sqrt(0.5), (0.1, 5)),
    ("hum: Butterworth stop, lower", "hum", math.sqrt(0.5), (50, 59.9)),
    ("the same, upper", "hum", math.sqrt(0.5), (60.1, 70)),
    ("muscles: 121 taps under Kaiser", "muscles", 0.5, (20, 60)),
    ("Savitzky-Golay, 51 samples", "smoother", math.sqrt(0.5), (1, 15))])
def test_responses_are_those_of_the_designs_of_scipy(designs, row, design, level, interval):
    *decibels, edge, designed = chapter("filters")[row][0]
    truth = 20 * np.log10(gain(designs[design], [0.05, 10, 50, 60]))
    # Two decimals. One transfer function of fourth order loses digits where stages do not: 1e-6 of a gain of 1 at
    # the deepest, which is 20 log10(1 + 1e-6/2.5e-5) = 0.35 dB there and nothing elsewhere.
    assert decibels == [near(t, abs=0.006 if t > -80 else 0.35) for t in truth]
    at = optimize.brentq(lambda f: gain(designs[design], f)[0] - level, *interval)
    assert edge == near(at, rel=0, abs=1.0e-4)
    # Four decimals. Butterworth edges are exact; a windowed lowpass is 6 dB down at its cutoff but for its ripple,
    # 1e-4 for these 63 dB of Kaiser, over a slope of 1/(2 Hz): less than 1e-3 Hz.
    assert edge == near(designed, rel=0, abs=1e-3 if design == "muscles" else 1e-4)


def test_before_and_after_are_the_powers_of_the_filtered_samples(ecg, designs):
    rows = chapter("filters")
    after = ecg
    for kind, edges in (("highpass", 0.5), ("bandstop", [59, 61])):
        after = signal.sosfilt(signal.butter(2, edges, kind, fs=RATE, output="sos"), after)
    after = signal.lfilter(*designs["muscles"], after)
    n = len(ecg)
    f = np.fft.rfftfreq(n, 1 / RATE)
    hanning = 0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)
    old, new = (2 * np.abs(np.fft.rfft((x - x.mean()) * hanning / 0.5) / n) ** 2 / 1.5 for x in (ecg, after))
    through = old * (gain(designs["wander"], f) * gain(designs["hum"], f) * gain(designs["muscles"], f)) ** 2
    for name, low, high in (("wander, rms below 0.3 Hz", 0.0, 0.3), ("muscles, rms from 45 to 55 Hz", 45, 55),
                            ("hum, rms from 59.8 to 60.2 Hz", 59.8, 60.2)):
        inside = (f >= low) & (f < high) & (f > 0)
        readings = rows[name][0]
        # What is left of the hum, 5e-9 of the trace, stands on the rounding of 120 sums of products of 1e-16 each.
        loss = 1e-3 if name.startswith("hum") else 0.0
        for reading, power in zip(readings, (old, new, through)):
            assert reading == near(1e3 * math.sqrt(power[inside].sum()), rel=PRINTED + loss), name
    assert "the largest difference is 0." in text("filters")


# --- amplifier -------------------------------------------------------------------------------------------------------


def test_distortion_of_the_amplifier_is_the_one_it_was_given():
    rows = chapter("amplifier")
    a, linear, square, cubic, noise, n = 1.2, 2.0, -0.02, -0.01, 1e-4, 16384
    first, second, third = linear * a + 0.75 * cubic * a**3, abs(square) * a**2 / 2, abs(cubic) * a**3 / 4
    squares = second**2 + third**2
    truth = {"fundamental, amplitude": first, "second harmonic, amplitude": second, "third harmonic, amplitude": third,
             "distortion": 100 * math.sqrt(squares) / first,
             "distortion and noise": 100 * math.sqrt((squares + 2 * noise**2) / (first**2 + squares + 2 * noise**2))}
    # Amplitudes within four deviations of 3 Cramer-Rao bounds, noise sqrt(2/n); the noise itself within four of its own.
    amplitude = 4 * 3 * noise * math.sqrt(2 / n)
    bound = {"distortion": 100 * 2 * amplitude / first,
             "distortion and noise": 100 * (2 * amplitude + 4 * noise / math.sqrt(n)) / first}
    for name, value in truth.items():
        *readings, printed = rows[name][0]
        assert printed == near(value, rel=5e-6), name
        assert len(readings) == (1 if name == "distortion and noise" else 2)
        for reading in readings:
            assert reading == near(value, rel=5e-6, abs=bound.get(name, amplitude)), name
    assert rows["fundamental, frequency"][0] == [near(997.0, rel=5e-6)] * 3
    assert "The spectrum has no reading of it" in text("amplifier")


# --- trend -----------------------------------------------------------------------------------------------------------


@pytest.fixture(scope="module")
def carbon():
    lines = [line.split(",") for line in (DATA / "co2.csv").read_text().splitlines()[1:]]
    years, levels = [], []
    for date, level in lines:
        if level:
            day = datetime.date(int(date[:4]), int(date[4:6]), int(date[6:]))
            begin, end = datetime.date(day.year, 1, 1), datetime.date(day.year + 1, 1, 1)
            years.append(day.year + ((day - begin).days + 0.5) / (end - begin).days)
            levels.append(float(level))
    return np.array(years), np.array(levels), len(lines)


def test_trend_and_seasons_are_those_of_lstsq(carbon):
    rows = chapter("trend")
    years, y, weeks = carbon
    t = (years - 1980) / 10
    angle = 2 * np.pi * years
    design = np.column_stack([np.ones_like(t), t, t**2, t**3, np.cos(angle), np.sin(angle), np.cos(2 * angle),
                              np.sin(2 * angle)])
    c = np.linalg.lstsq(design, y, rcond=None)[0]
    rest = y - design @ c
    m, n = design.shape
    deviation = math.sqrt(rest @ rest / (m - n))
    assert rows["what is left, deviation"][0][0] == near(deviation)
    growth = lambda at: (c[1] + 2 * c[2] * at + 3 * c[3] * at**2) / 10  # noqa: E731
    assert rows["growth around 1962"][0][0] == near(growth(-1.75))
    assert rows["growth around 1998"][0][0] == near(growth(1.85))
    season = [c[4] * math.cos(a) + c[5] * math.sin(a) + c[6] * math.cos(2 * a) + c[7] * math.sin(2 * a)
              for a in 2 * np.pi * (np.arange(12) + 0.5) / 12]
    months = np.floor(12 * (years % 1)).astype(int)
    averages = [(y - design[:, :4] @ c[:4])[months == k].mean() for k in range(12)]
    assert rows["swing of the seasons"][0] == [near(max(s) - min(s)) for s in (season, averages)]
    assert rows["month of the maximum"][0] == [np.argmax(s) + 1 for s in (season, averages)]
    assert rows["month of the minimum"][0] == [np.argmin(s) + 1 for s in (season, averages)]
    quantile = stats.t.ppf(0.975, m - n)
    leverage = np.einsum("ij,jk,ik->i", design, np.linalg.inv(design.T @ design), design)
    inside = np.abs(rest) <= quantile * deviation * np.sqrt(1 + leverage)
    # The library's quantile is within 1e-4: no more weeks than stand that near to the edge of the band may differ.
    edge = np.count_nonzero(np.abs(np.abs(rest) / (deviation * np.sqrt(1 + leverage)) - quantile) < 1e-4)
    assert rows["weeks in the 95 % band"][0] == [near(100 * inside.mean(), abs=100 * edge / m), 95]
    half = quantile * deviation * math.sqrt(n / m)
    assert rows["band of the curve, rms half-width"][0] == [near(half, rel=2 * PRINTED)] * 2
    assert f"{weeks} weeks, {weeks - len(y)} without a value" in text("trend")


def test_growth_from_monthly_averages_is_that_of_the_months_both_years_have(carbon):
    years, y, _ = carbon
    index = np.floor(12 * years).astype(int)
    average = {k: y[index == k].mean() for k in set(index)}
    for year in (1962, 1998):
        pairs = [(12 * (year - 2) + k, 12 * (year + 2) + k) for k in range(12)]
        steps = [(average[b] - average[a]) / 4 for a, b in pairs if a in average and b in average]
        assert len(steps) >= 8
        assert chapter("trend")[f"growth around {year}"][0][1] == near(np.mean(steps))


# --- sunspots --------------------------------------------------------------------------------------------------------


def test_cycle_of_the_nonlinear_fit_is_the_best_of_curve_fit(sunspots):
    year, spots = sunspots
    wave = lambda t, c, f: [c[0] + c[1] * np.cos(2 * np.pi * f * (t - 1854))  # noqa: E731
                            + c[2] * np.sin(2 * np.pi * f * (t - 1854))][0]
    fits = [optimize.curve_fit(lambda t, a, b, c, f: wave(t, (a, b, c), f), year, spots, [50, 20, 0, 1 / period],
                               maxfev=10000)
            for period in np.arange(9, 13, 0.25)]
    c, covariance = min(fits, key=lambda fit: np.sum((wave(year, fit[0], fit[0][3]) - spots) ** 2))
    # The fit stops at a change of its error by 1e-5: sqrt(1e-5 (n - 4)) standard deviations from the minimum.
    stop = math.sqrt(1e-5 * (len(year) - 4)) * math.sqrt(covariance[3, 3]) / c[3] ** 2
    rows = chapter("sunspots")
    assert rows["cycle, nonlinear fit"][0][0] == near(1 / c[3], abs=stop)
    amplitude = math.hypot(c[1], c[2])
    stop = math.sqrt(1e-5 * (len(year) - 4)) * math.sqrt(covariance[1, 1] + covariance[2, 2])
    assert rows["amplitude of the fit"][0][0] == near(amplitude, abs=stop)


def test_cycle_of_the_spectrum_is_the_centre_of_its_line(sunspots):
    spots = sunspots[1]
    n = len(spots)
    hanning = 0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)
    power = np.abs(np.fft.rfft((spots - spots.mean()) * hanning)) ** 2
    inside = np.arange(math.ceil(n / 20), n // 5 + 1)
    peak = inside[power[inside].argmax()]
    bins = np.arange(peak - 2, peak + 3)
    rows = chapter("sunspots")
    assert rows["cycle, line of the spectrum"][0][0] == near(n / ((bins * power[bins]).sum() / power[bins].sum()))
    # A tone lies within half a bin of the largest one.
    assert abs(n / rows["cycle, tone of the record"][0][0] - peak) <= 0.5


def test_cycle_of_the_marks_is_that_of_the_smoothed_maxima(sunspots):
    smooth = signal.savgol_filter(sunspots[1], 9, 3, mode="interp")
    places = apexes(smooth, 5, 10.0)
    rows = chapter("sunspots")
    assert rows["marks"][0][0] == len(places)
    counted = (places[-1] - places[0]) / (len(places) - 1)
    for name in ("line of the spectrum", "tone of the record", "nonlinear fit"):
        assert rows[f"cycle, {name}"][0][1] == near(counted), name
    apart = np.diff(places)
    assert f"{apart.min():.1f} to {apart.max():.1f} years apart" in text("sunspots")


# --- matrices --------------------------------------------------------------------------------------------------------


def test_recurrence_and_its_eigenvalues_are_those_of_numpy(sunspots):
    year, spots = sunspots
    v = spots[(year >= 1749) & (year <= 1924)]
    design = np.column_stack([v[1:-1], v[:-2], np.ones(len(v) - 2)])
    a, b, c = np.linalg.lstsq(design, v[2:], rcond=None)[0]
    root = np.linalg.eigvals([[a, b], [1, 0]])[0]
    rows = chapter("matrices")
    assert rows["sunspots from last year's"][0] == [near(a), 1.3425]
    assert rows["and from the year's before"][0] == [near(b), -0.65504]
    assert rows["constant of the recurrence"][0] == [near(c)] * 2
    yule = 2 * math.pi / math.acos(1.34254 / (2 * math.sqrt(0.65504)))
    assert rows["eigenvalues: a cycle of"][0] == [near(2 * np.pi / abs(np.angle(root))), near(yule)]
    assert rows["that falls, by the year, to"][0] == [near(abs(root))] * 2


def test_shapes_of_the_beats_are_those_of_the_singular_values(ecg, beats):
    still = ecg - median_filter(median_filter(ecg, 36), 108)
    rows = np.array([still[m - 72:m + 73] for m in np.rint(beats).astype(int) if m >= 72 and m + 72 < len(ecg)])
    powers = np.linalg.svd(rows - rows.mean(axis=0), compute_uv=False) ** 2
    shares = 100 * powers / powers.sum()
    readings = chapter("matrices")
    for name, share in zip(("beats differ in one shape by", "in a second one by", "in a third one by"), shares):
        assert readings[name][0] == [near(share)] * 2, name


def test_reference_provider_gives_the_same_readings():
    folders = [folder for name in ("blas", "lapack") for folder in glob.glob(f"/usr/lib/*/{name}") if
               glob.glob(f"{folder}/lib{name}.so.3")]
    if len(folders) < 2:
        pytest.skip("the reference BLAS and LAPACK are not there")
    paths = ":".join(folders + [p for p in [os.environ.get("LD_LIBRARY_PATH")] if p])
    run = subprocess.run([os.environ["QUORVAN_TOUR"], "--chapter", "matrices"], capture_output=True, text=True,
                         timeout=240, env={**os.environ, "LD_LIBRARY_PATH": paths})
    assert run.returncode == 0 and run.stderr == ""
    ours, theirs = chapter("matrices"), numbers(run.stdout)
    assert ours.keys() == theirs.keys()
    for name, (values, unit) in ours.items():
        assert theirs[name] == ([near(v) for v in values], unit), name
