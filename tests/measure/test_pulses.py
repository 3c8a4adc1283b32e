"""Pulse measurements beside NumPy and closed forms."""

import numpy as np
import pytest

EPS = 2.0**-53


def scalars(count):
    return [np.full(1, np.nan) for _ in range(count)]


def levels(qv, x, method, bins):
    out = scalars(3)
    status = qv.ZemFunc363(x, len(x), method, bins, *out)
    return status, *(v[0] for v in out)


def timing(qv, x, polarity, cycle, references, percent=0, method=1, bins=64):
    references, out = [np.array([float(v)]) for v in references], scalars(7)
    status = qv.ZemFunc364(x, len(x), polarity, cycle, *references, percent, method, bins, *out)
    return status, dict(zip(("period", "duration", "duty", "centre", "low", "mid", "high"), (v[0] for v in out)))


def average(qv, x, cycle, references, percent=0, method=1, bins=64):
    references, out = [np.array([float(v)]) for v in references], scalars(7)
    status = qv.ZemFunc365(x, len(x), cycle, *references, percent, method, bins, *out)
    return status, dict(zip(("mean", "rms", "start", "end"), (v[0] for v in out)))


def transition(qv, x, polarity, edge, references, percent=0, method=1, bins=64):
    references, out = [np.array([float(v)]) for v in references], scalars(11)
    status = qv.ZemFunc366(x, len(x), polarity, edge, *references, percent, method, bins, *out)
    names = ("slew", "duration", "first", "second", "low", "mid", "high", "pre_under", "pre_over", "post_under",
             "post_over")
    return status, dict(zip(names, (v[0] for v in out)))


def square_train(period, duty, cycles, noise, seed):
    generator = np.random.default_rng(seed)
    phase = np.arange(int(period * cycles)) / period % 1
    return np.where(phase < duty, 1.0, -1.0) + noise * generator.standard_normal(len(phase))


@pytest.mark.parametrize("seed", range(20))
@pytest.mark.parametrize("bins", [1, 2, 3, 10, 64, 257])
def test_modes_are_the_fullest_bins_of_numpys_histogram(qv, seed, bins):
    x = square_train(40, 0.4, 10, 0.1, seed)
    width = (x.max() - x.min()) / bins
    number = np.clip(((x - x.min()) / width).astype(int), 0, bins - 1)
    counts = np.bincount(number, minlength=bins)
    low = min(range(int(bins * 0.4) + 1), key=lambda k: (-counts[k], k))
    high = min(range(int(bins * 0.6), bins), key=lambda k: (-counts[k], -k))
    thin = min(counts[low], counts[high]) < 0.05 * len(x)
    # A bin, half a bin and the minimum, with a rounding each.
    tolerance = 8 * EPS * np.abs(x).max()
    status, found_high, found_low, amplitude = levels(qv, x, 0, bins)
    assert status == (20021 if thin else 0)
    assert abs(found_low - (x.min() + (low + 0.5) * width)) <= tolerance
    assert abs(found_high - (x.min() + (high + 0.5) * width)) <= tolerance
    assert amplitude == found_high - found_low
    assert levels(qv, x, 1, bins) == (0, x.max(), x.min(), x.max() - x.min())


@pytest.mark.parametrize("period", [25.0, 40.3, 99.7])
@pytest.mark.parametrize("cycle", [1, 2, 5])
def test_timing_of_a_sine_wave(qv, period, cycle):
    i = np.arange(800)
    x = -np.cos(2 * np.pi * i / period)
    status, found = timing(qv, x, -1, cycle, (0.5, 0, -0.5))
    # The chord of x - x^3 / 6 over a step of h = 2 pi / period is off by up to h^3 / (36 sqrt(3)) at 0; its slope is
    # 1 - h^2 or more.
    h = 2 * np.pi / period
    miss = h**2 / (36 * np.sqrt(3)) / (1 - h**2) + 1e-12
    assert status == 0
    assert abs(found["period"] - period) <= 2 * miss
    assert abs(found["duration"] - period / 2) <= 2 * miss
    # The wave starts at its bottom and rises first.
    assert abs(found["centre"] - (period / 2 + (cycle - 1) * period)) <= 2 * miss
    assert found["duty"] == found["duration"] / found["period"]


@pytest.mark.parametrize("seed", range(10))
def test_hysteresis_counts_each_edge_of_a_noisy_train_once(qv, seed):
    x = square_train(40, 0.3, 30, 0.2, seed)
    # Six deviations of the noise lie between each state and the nearer reference.
    for cycle in (1, 10, 28):
        status, found = timing(qv, x, 1, cycle, (0.6, 0, -0.6))
        assert status == 0
        assert abs(found["period"] - 40) <= 2
        assert abs(found["duration"] - 12) <= 2
        # The record begins within a pulse: the rising edge number k is at 40 k.
        assert abs(found["centre"] - (40 * cycle + 6)) <= 2


def test_average_over_a_period_is_that_of_its_samples(qv):
    i = np.arange(500)
    x = 0.3 + np.sin(2 * np.pi * (i - 7.25) / 50)
    for cycle in (1, 4, 8):
        status, found = average(qv, x, cycle, (0.8, 0.3, -0.2))
        assert status == 0
        # A whole number of samples is a period: mean and power are those of the wave.
        assert abs(found["mean"] - 0.3) <= 50 * 2 * EPS
        assert abs(found["rms"] - np.sqrt(0.09 + 0.5)) <= 50 * 2 * EPS
        assert abs(found["end"] - found["start"] - 50) <= 1e-9
        assert abs(found["start"] - (7.25 + 50 * (cycle - 1))) <= 0.01


@pytest.mark.parametrize("polarity", [0, 1])
def test_edge_of_a_first_order_step(qv, polarity):
    # 1 - exp(-t / tau) takes tau ln 9 from 10 to 90 percent; its chords bend by at most 1 / (8 tau^2).
    tau, start, n = 30.0, 100.4, 600
    t = np.maximum(np.arange(n) - start, 0)
    x = 1 - np.exp(-t / tau)
    if not polarity:
        x = 1 - x
    status, found = transition(qv, x, polarity, 1, (0.9, 0.5, 0.1))
    # At 90 percent the slope is 0.1 / tau.
    bend = 1 / (8 * tau**2) / (0.1 / tau)
    assert status == 0
    assert abs(found["duration"] - tau * np.log(9)) <= 2 * bend
    assert abs(found["first"] - (start + tau * np.log(1 / 0.9))) <= bend
    assert abs(found["second"] - (start + tau * np.log(1 / 0.1))) <= bend
    assert found["slew"] == (0.9 - 0.1) / found["duration"]
    assert [found[k] for k in ("pre_under", "pre_over", "post_under", "post_over")] == [0, 0, 0, 0]


@pytest.mark.parametrize("damping", [0.3, 0.5, 0.7])
def test_overshoot_of_a_second_order_step(qv, damping):
    # Overshoot exp(-pi z / sqrt(1 - z^2)), at pi / (w sqrt(1 - z^2)) behind the start.
    w, n, start = 0.05, 3000, 1000
    t = np.maximum(np.arange(n) - start, 0)
    root = np.sqrt(1 - damping**2)
    x = 1 - np.exp(-damping * w * t) * (np.cos(w * root * t) + damping / root * np.sin(w * root * t))
    bins = 4096
    status, found = transition(qv, x, 1, 1, (90, 50, 10), percent=1, method=0, bins=bins)
    expected = 100 * np.exp(-np.pi * damping / root)
    assert status == 0
    # Each mode is a bin at most half a width away from its state, and the peak falls between samples.
    range_of_x = x.max() - x.min()
    assert abs(found["post_over"] - expected) <= 100 * 4 * range_of_x / bins + 100 * w**2 / 8
    assert found["pre_under"] == 0 and found["pre_over"] == 0


@pytest.mark.parametrize("seed", range(20))
def test_pulse_parameters_of_a_trapezoid(qv, seed):
    generator = np.random.default_rng(seed)
    base, top = np.sort(generator.uniform(-5, 5, 2))
    up, down, on, off = 100.3, 300.7, generator.uniform(20, 60), generator.uniform(20, 60)
    i = np.arange(500)
    x = base + (top - base) * np.clip(np.minimum((i - up) / on, (down - i) / off + 1), 0, 1)
    for sign in (1, -1):
        y = sign * x
        reals, times, slew = scalars(8), [np.full(1, -7, np.int64) for _ in range(4)], np.full(1, np.nan)
        assert qv.ZemFunc142(y, len(y), *reals, *times, slew) == 0
        amplitude, level90, level50, level10, found_top, found_base, overshoot, undershoot = (v[0] for v in reals)
        # Base and top are the centres of the outermost of 101 bins, that is 100/101 of the range.
        whole = top - base
        tolerance = 1e-12 * 10
        assert abs(amplitude - sign * whole * 100 / 101) <= tolerance
        assert abs(found_top - sign * (top - whole * 0.5 / 101)) <= tolerance
        assert abs(found_base - sign * (base + whole * 0.5 / 101)) <= tolerance
        assert abs(level50 - sign * (base + top) / 2) <= tolerance
        assert abs(level90 - level10 - 0.8 * whole * 100 / 101) <= tolerance
        assert abs(overshoot - whole * 0.5 / 101) <= tolerance
        assert abs(undershoot - whole * 0.5 / 101) <= tolerance
        rise, fall = 0.8 * on * 100 / 101, 0.8 * off * 100 / 101
        truth = up + on / 2, down + off / 2 - up - on / 2, rise, fall
        for found, true in zip(times, truth):
            assert abs(true - round(true)) > 1e-9, "a case at the brink of two integers"
            assert found[0] == int(true)
        assert abs(slew[0] - 0.8 * amplitude / rise) <= 1e-9 * abs(slew[0])
