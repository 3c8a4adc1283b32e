"""Spectrum measurements beside NumPy's transforms."""

import ctypes

import numpy as np
import pytest

EPS = 2.0**-53
SIZES = [1, 2, 3, 4, 5, 8, 12, 15, 16, 23, 30, 47, 53, 64, 97, 100, 106, 128]
DT = 1e-3


def record(n, seed=1):
    return np.random.default_rng((n, seed)).standard_normal(n)


def bins(n):
    return max(n // 2, 1)


def tolerance(*records):
    """Every bin is a sum of n terms; each rounds a few times on its way, here and in the reference."""
    return 16 * len(records[0]) * EPS * np.prod([np.abs(r).sum() for r in records])


def out(n):
    return np.full(n, np.nan)


@pytest.mark.parametrize("n", SIZES)
def test_forward_and_inverse_transforms(qv, n):
    x, y = record(n), record(n, 2)
    re, im = x.copy(), out(n)
    assert qv.ZemFunc147(re, im, n) == 0
    assert np.abs(re + 1j * im - np.fft.fft(x)).max() <= tolerance(x)
    assert qv.ZemFunc148(re, im, n) == 0
    assert np.abs(re - x).max() <= tolerance(x)
    re, im = x.copy(), y.copy()
    assert qv.ZemFunc102(re, im, n) == 0
    assert np.abs(re + 1j * im - np.fft.ifft(x + 1j * y)).max() <= tolerance(x) + tolerance(y)


@pytest.mark.parametrize("n", SIZES)
def test_power_spectra(qv, n):
    x, y = record(n), record(n, 2)
    X, Y = np.fft.fft(x), np.fft.fft(y)
    power = x.copy()
    assert qv.ZemFunc161(power, n) == 0
    assert np.abs(power - np.abs(X) ** 2 / n**2).max() <= tolerance(x, x) / n**2
    re, im = out(n), out(n)
    assert qv.ZemFunc36(x, y, n, re, im) == 0
    assert np.abs(re + 1j * im - X.conj() * Y / n**2).max() <= tolerance(x, y) / n**2


@pytest.mark.parametrize("n", SIZES)
def test_one_sided_spectra(qv, n):
    x, y = record(n), record(n, 2)
    X, Y = np.fft.fft(x)[: bins(n)], np.fft.fft(y)[: bins(n)]
    both_sides = np.where(np.arange(bins(n)) > 0, 2.0, 1.0)

    amp, phase, df = out(bins(n)), out(bins(n)), out(1)
    assert qv.ZemFunc5(x, n, 0, DT, amp, phase, df) == 0
    expected = np.sqrt(both_sides) * X / n
    assert np.abs(amp * np.exp(1j * phase) - expected).max() <= 2 * tolerance(x) / n
    assert df[0] == 1 / (n * DT)

    power = out(bins(n))
    assert qv.ZemFunc10(x, n, DT, power, df) == 0
    assert np.abs(power - both_sides * np.abs(X / n) ** 2).max() <= 2 * tolerance(x, x) / n**2
    assert df[0] == 1 / (n * DT)

    mag = out(bins(n))
    assert qv.ZemFunc37(x, y, n, DT, mag, phase, df) == 0
    expected = both_sides * X.conj() * Y / n**2
    assert np.abs(mag * np.exp(1j * phase) - expected).max() <= 2 * tolerance(x, y) / n**2
    assert df[0] == 1 / (n * DT)


@pytest.mark.parametrize("n", SIZES)
def test_unwrapped_phases_are_numpy_unwrap(qv, n):
    x = record(n)
    amp, phase, df = out(bins(n)), out(bins(n)), out(1)
    assert qv.ZemFunc5(x, n, 0, DT, amp, phase, df) == 0
    expected = np.unwrap(phase)
    assert qv.ZemFunc5(x, n, 1, DT, amp, phase, df) == 0
    # Every step takes off a multiple of a rounded 2 pi from a value that has grown to some turns.
    assert np.abs(phase - expected).max() <= 8 * n * EPS * (2 * np.pi + np.abs(expected).max())


def condition(X):
    return (np.abs(X).max() / np.abs(X).min()) ** 2


@pytest.mark.parametrize("n", SIZES)
def test_transfer_function_and_deconvolution(qv, n):
    x, y = record(n), record(n, 2)
    X, Y = np.fft.fft(x), np.fft.fft(y)
    H = Y / X
    scale = 64 * n * EPS * condition(X) * np.abs(H).max()
    mag, phase, df = out(bins(n)), out(bins(n)), out(1)
    assert qv.ZemFunc176(x, y, n, DT, mag, phase, df) == 0
    assert np.abs(mag * np.exp(1j * phase) - H[: bins(n)]).max() <= scale
    impulse = out(n)
    assert qv.ZemFunc94(x, y, n, impulse) == 0
    assert np.abs(impulse - np.fft.ifft(H).real).max() <= scale


@pytest.mark.parametrize("frames", [1, 2, 5])
@pytest.mark.parametrize("n", SIZES)
def test_network_analysis(qv, n, frames):
    x, y = record(n * frames), record(n * frames, 2)
    X, Y = (np.fft.fft(v.reshape(frames, n)) / n for v in (x, y))
    Sxy, Sxx, Syy = (X.conj() * Y).sum(0), (np.abs(X) ** 2).sum(0), (np.abs(Y) ** 2).sum(0)
    H, half = Sxy / Sxx, slice(bins(n))
    both_sides = np.where(np.arange(bins(n)) > 0, 2.0, 1.0)

    arrays = [out(bins(n)) for _ in range(5)] + [out(n), out(1)]
    assert qv.ZemFunc129(x, y, n, frames, DT, *arrays) == 0
    cross_mag, cross_phase, transfer_mag, transfer_phase, coherence, impulse, df = arrays
    eps = 64 * n * EPS * condition(np.sqrt(Sxx))
    error = np.abs(cross_mag * np.exp(1j * cross_phase) - both_sides * Sxy[half] / frames)
    assert error.max() <= eps * np.abs(Sxy).max()
    assert np.abs(transfer_mag * np.exp(1j * transfer_phase) - H[half]).max() <= eps * np.abs(H).max()
    expected = np.abs(Sxy) ** 2 / (Sxx * Syy)
    assert np.abs(coherence - expected[half]).max() <= eps * condition(np.sqrt(Syy))
    assert np.abs(impulse - np.fft.ifft(H).real).max() <= eps * np.abs(H).max()
    assert df[0] == 1 / (n * DT)


def test_unit_text_through_a_c_buffer(qv):
    unit = ctypes.create_string_buffer(b"V", 16)
    x, y = np.array([4.0, 8.0]), out(2)
    assert qv.ZemFunc162(x, 2, 0, 0, 1, 1.0, np.array([1.5, 0.5]), y, unit) == 0
    assert unit.value == b"Vpk"
    assert list(y) == [2, 4]


@pytest.mark.parametrize("frequency", [100.0, 123.4, 217.9])
def test_peak_of_a_windowed_sine(qv, frequency):
    n, dt, amplitude = 1024, 1e-3, 2.5
    t = np.arange(n) * dt
    window = 0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)
    x = amplitude * np.sin(2 * np.pi * frequency * t) * window / window.mean()
    enbw = n * (window**2).sum() / window.sum() ** 2
    power, df = out(n // 2), out(1)
    assert qv.ZemFunc10(x, n, dt, power, df) == 0
    found, peak = out(1), out(1)
    for search in (frequency, -1.0):
        assert qv.ZemFunc139(power, n // 2, search, np.array([enbw, 0.5]), df[0], 9, found, peak) == 0
        j = np.arange(n // 2)
        centre = int(frequency / df[0]) if search > 0 else power.argmax()
        near = np.abs(j - centre) <= 4
        total = power[near].sum()
        assert peak[0] == pytest.approx(total / enbw, rel=16 * EPS)
        assert found[0] == pytest.approx((j * power)[near].sum() * df[0] / total, rel=32 * EPS)
        # The Hanning window's sidelobes beyond four bins hold less than a thousandth of the power.
        assert peak[0] == pytest.approx(amplitude**2 / 2, rel=2e-3)
        assert found[0] == pytest.approx(frequency, abs=0.1 * df[0])


@pytest.mark.parametrize("n", [1, 2, 3, 17, 100])
def test_ac_dc_estimate(qv, n):
    x = record(n) + 3
    ac, dc = out(1), out(1)
    assert qv.ZemFunc2(x, n, ac, dc) == 0
    window = 0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n) if n > 1 else np.ones(1)
    y = (x - x.mean()) * window
    expected = np.sqrt((y.var() - y.mean() ** 2 / 2) / 0.375)
    assert dc[0] == pytest.approx(2 * y.mean() + x.mean(), rel=8 * n * EPS)
    assert ac[0] == pytest.approx(expected, rel=32 * n * EPS)
