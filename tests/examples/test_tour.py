"""The tour as its user sees it: the readings it prints, and one clear line for a file that it cannot use."""

import csv
import functools
import math
import os
import pathlib
import re
import subprocess

import numpy as np
import pytest

DATA = pathlib.Path(__file__).resolve().parents[2] / "examples" / "data"
RECORDING = DATA / "ecg.csv"
RATE = 360.0


def tour(*arguments):
    return subprocess.run([os.environ["QUORVAN_TOUR"], *map(str, arguments)], capture_output=True, text=True, timeout=240)


def numbers(text):
    """The rows of a table: name to the numbers behind it, and the unit."""
    rows = {}
    for line in text.splitlines():
        match = re.fullmatch(r"\s+([A-Za-z].*?\S)\s{2,}([-+\d.e ]*\d)(?:\s+(\S+))?(?:,? .*)?", line)
        if match:
            rows[match[1].strip()] = ([float(v) for v in match[2].split()], (match[3] or "").rstrip(","))
    return rows


CHAPTERS = ("rhythm", "beats", "shape", "filters", "tones", "amplifier", "trend", "sunspots", "matrices")


@functools.cache
def text(name):
    run = tour("--chapter", name)
    assert run.returncode == 0 and run.stderr == ""
    assert run.stdout.startswith(f"── {name}: ")
    return run.stdout


def chapter(name):
    return numbers(text(name))


@pytest.fixture(scope="module")
def sections():
    return chapter("rhythm"), chapter("tones")


@pytest.fixture(scope="module")
def samples():
    with open(RECORDING) as file:
        return np.array([float(row[0]) for row in list(csv.reader(file))[1:]])


def test_summary_of_the_recording_is_that_of_numpy(sections, samples):
    heart, _ = sections
    # Five digits are printed: half a unit of the fifth is at most 5e-5 of the value.
    for name, truth in (("mean", samples.mean()), ("median", np.median(samples)),
                        ("rms", math.sqrt(np.mean(samples**2)))):
        assert heart[name][0][0] == pytest.approx(truth, rel=5e-5), name
        assert heart[name][1] == "mV"
    counts, edges = np.histogram(samples, bins=100)
    fullest = counts.argmax()
    assert heart["mode of the histogram"][0][0] == pytest.approx((edges[fullest] + edges[fullest + 1]) / 2, rel=5e-5)


def beats_a_minute(samples):
    """Median distance of the beats, told by the steep slopes that every beat has, at least 0.25 s apart."""
    steepness = np.convolve(np.abs(np.diff(samples)), np.ones(int(0.1 * RATE)), "same")
    apart = int(0.25 * RATE)
    beats = [i for i in range(apart, len(steepness) - apart)
             if steepness[i] == steepness[i - apart:i + apart].max() and steepness[i] > np.median(steepness) * 2]
    beats = [b for k, b in enumerate(beats) if k == 0 or b - beats[k - 1] > apart]
    return 60.0 * RATE / np.median(np.diff(beats))


def test_both_heart_rates_are_those_of_the_counted_beats(sections, samples):
    heart, _ = sections
    counted = beats_a_minute(samples)
    assert 100.0 < counted < 125.0
    # The rate wanders between 100 and 130 over the minute: a spectrum, an autocorrelation and a median weigh it unlike.
    for name in ("heart rate, autocorrelation", "heart rate, spectrum"):
        assert heart[name][0][0] == pytest.approx(counted, rel=0.05), name
        assert heart[name][1] == "/min"


def test_line_of_the_heart_has_the_power_of_its_bins(sections, samples):
    heart, _ = sections
    n = len(samples)
    hanning = 0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)
    power = 2 * np.abs(np.fft.rfft((samples - samples.mean()) * hanning / 0.5) / n) ** 2
    frequency = heart["frequency of its line"][0][0]
    centre = round(frequency * n / RATE)
    peak = centre - 2 + power[centre - 2:centre + 3].argmax()
    bins = np.arange(peak - 2, peak + 3)
    assert frequency == pytest.approx((bins * power[bins]).sum() / power[bins].sum() * RATE / n, rel=5e-5)
    assert heart["power of its line"] == ([pytest.approx(power[bins].sum() / 1.5, rel=5e-5)], "mVrms^2")
    amplitude = math.sqrt(2 * power[bins].sum() / 1.5)
    assert heart["amplitude of its line"] == ([pytest.approx(amplitude, rel=5e-5)], "mVpk")
    assert heart["heart rate, spectrum"][0][0] == pytest.approx(60 * frequency, rel=1e-4)


def test_tones_are_read_as_they_were_made(sections):
    _, tones = sections
    n, rate = 4096, 1000.0
    truths = {"first tone, frequency": 50.2, "first tone, amplitude": 1.5, "first tone, power": 1.125,
              "second tone, frequency": 150.6, "second tone, amplitude": 0.4, "rhythm, autocorrelation": 50.2,
              "mean": 0.25, "median": 0.25, "rms": math.sqrt(0.25**2 + 1.5**2 / 2 + 0.4**2 / 2)}
    # Five bins hold all but about 3e-4 of a Hanning line; an unfinished cycle weighs at most one in 205 cycles.
    bounds = {"frequency": 0.01 * rate / n, "amplitude": 1.5 * 3e-4, "power": 1.125 * 6e-4,
              "rhythm, autocorrelation": 0.01 * 50.2 / 20, "mean": 1.9 / 205, "median": 1.9 / 205, "rms": 1.9 / 205}
    for name, truth in truths.items():
        reading, printed_truth, error = tones[name][0]
        assert printed_truth == pytest.approx(truth, rel=1e-6), name
        assert error == pytest.approx(reading - truth, abs=0.06 * abs(reading - truth) + 1e-6 * truth), name
        bound = next(b for key, b in bounds.items() if name.endswith(key))
        assert abs(reading - truth) <= bound, name


def test_own_file_gets_the_readings_of_its_rate(tmp_path):
    file = tmp_path / "swing.csv"
    t = np.arange(600) / 20.0
    file.write_text("time,volt\n" + "".join(f"{a},{1 + 2 * math.sin(2 * math.pi * 0.8 * a)!r}\n" for a in t))
    run = tour(file, 20)
    assert run.returncode == 0 and run.stderr == ""
    rows = numbers(run.stdout)
    assert rows["mean"] == ([pytest.approx(1.0, abs=1e-9)], "V")  # 24 whole cycles
    assert rows["heart rate, spectrum"] == ([pytest.approx(48.0, rel=1e-3)], "/min")
    assert rows["heart rate, autocorrelation"][0][0] == pytest.approx(48.0, rel=0.01)
    assert rows["amplitude of its line"] == ([pytest.approx(2.0, rel=1e-3)], "Vpk")


def test_windows_line_ends_quotes_and_a_missing_heading_are_read(tmp_path):
    plain, windows = tmp_path / "plain.csv", tmp_path / "windows.csv"
    values = [str(math.sin(i)) for i in range(64)]
    plain.write_text("\n".join(values))
    windows.write_bytes(b'"volt"\r\n' + "\r\n".join(values).encode() + b"\r\n\r\n \r\n")
    first, second = numbers(tour(plain).stdout), numbers(tour(windows).stdout)
    assert first["rms"][0] == second["rms"][0] and second["rms"][1] == "V"


def test_constant_recording_has_no_rhythm(tmp_path):
    file = tmp_path / "constant.csv"
    file.write_text("5\n" * 50)
    run = tour(file)
    assert run.returncode == 0
    assert re.search(r"rhythm, autocorrelation\s+none", run.stdout)
    assert re.search(r"rhythm, spectrum\s+none", run.stdout)


@pytest.mark.parametrize("content, reason", [
    (None, "No such file or directory"),
    ("", "0 samples, at least 16 are needed"),
    ("volt\n", "0 samples, at least 16 are needed"),
    ("volt\n" + "1\n" * 15, "15 samples, at least 16 are needed"),
    ("volt\n" + "1\n" * 20 + "two\n" + "1\n" * 20, "line 22: 'two' is not a number"),
    ("volt\n" + "1\n" * 20 + "1.5e\n", "line 22: '1.5e' is not a number"),
    ("volt\n" + "1\n" * 20 + "nan\n", "line 22: 'nan' is not a number"),
    ("volt\n" + "1\n" * 20 + "\n" + "1\n" * 20, "line 22: no number"),
    ("day,volt\n" + "1,1\n" * 20 + "2,\n", "line 22: no number"),
])
def test_bad_file_gives_one_clear_line_and_exit_code_1(tmp_path, content, reason):
    file = tmp_path / "bad.csv"
    if content is not None:
        file.write_text(content)
    run = tour(file)
    assert run.returncode == 1 and run.stdout == ""
    assert run.stderr.startswith(f"tour: {file}") and run.stderr.endswith(reason + "\n")
    assert run.stderr.count("\n") == 1


def test_folder_in_place_of_a_file_is_refused(tmp_path):
    run = tour(tmp_path)
    assert run.returncode == 1 and run.stderr.count("\n") == 1 and str(tmp_path) in run.stderr


@pytest.mark.parametrize("rate", ["0", "-3", "fast", "1e", "inf", "nan", ""])
def test_bad_rate_is_refused(rate):
    run = tour(RECORDING, rate)
    assert run.returncode == 1 and run.stdout == ""
    assert run.stderr == f"tour: the sampling rate must be a number above 0, not '{rate}'\n"


def test_too_many_arguments_show_the_usage():
    for arguments in ((RECORDING, 360, 1), ("--chapter",), ("--chapter", "beats", 1)):
        run = tour(*arguments)
        assert run.returncode == 1 and run.stdout == ""
        assert run.stderr == "tour: usage: tour [FILE [SAMPLES_PER_SECOND] | --chapter NAME]\n"


def test_unknown_chapter_is_told_the_known_ones():
    run = tour("--chapter", "weather")
    assert run.returncode == 1 and run.stdout == ""
    assert run.stderr == f"tour: no chapter 'weather'; there are: {', '.join(CHAPTERS)}\n"


def test_whole_tour_is_all_chapters_each_on_one_screen():
    run = tour()
    assert run.returncode == 0 and run.stderr == ""
    assert run.stdout == "".join(text(name) for name in CHAPTERS)
    for name in CHAPTERS:
        lines = text(name).splitlines()
        assert len(lines) <= 30 and max(map(len, lines)) <= 100, name


def test_help_is_no_failure():
    done = tour("--help")
    assert done.returncode == 0 and done.stdout.startswith("usage: tour [FILE") and not done.stderr
