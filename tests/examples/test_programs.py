"""The small example programs, in C and in C++, give the readings that they promise."""

import os
import pathlib
import re
import subprocess

import numpy as np
import pytest
from scipy import signal

PROGRAMS = pathlib.Path(os.environ["QUORVAN_PROGRAMS"])
DATA = pathlib.Path(__file__).resolve().parents[2] / "examples" / "data"


@pytest.fixture(params=["c", "cpp"])
def run(request):
    def run(*command, status=0, text=None):
        done = subprocess.run([PROGRAMS / request.param / command[0], *map(str, command[1:])], input=text,
                              capture_output=True, text=True, timeout=60)
        assert done.returncode == status, done.stderr
        return done.stdout if status == 0 else done.stderr
    return run


def numbers(text):
    return [float(v) for v in re.findall(r"-?\d+\.\d+(?:e[-+]\d+)?", text)]


def test_spectrum_finds_the_strongest_line(run, tmp_path):
    t = np.arange(5000) / 500.0
    file = tmp_path / "tone.csv"
    file.write_text("volt\n" + "\n".join(map(repr, (3 + 1.5 * np.sin(2 * np.pi * 50.2 * t)).tolist())))
    frequency, power = numbers(run("spectrum", file, 500))
    # Interpolated under a Hanning window: far closer than the bin of 0.1 Hz.
    assert frequency == pytest.approx(50.2, abs=1e-3)
    assert power == pytest.approx(1.125, rel=1e-3)


def test_spectrum_reads_the_recording(run):
    assert run("spectrum", DATA / "ecg.csv", 360).startswith("21600 samples")


def test_spectrum_tells_a_missing_file(run):
    assert run("spectrum", "nowhere.csv", 360, status=1) == "nowhere.csv: cannot read\n"


def test_streaming_filter_does_not_show_its_blocks(run):
    x = np.random.default_rng(1).standard_normal(1000)
    out = np.array([float(v) for v in run("streaming_filter", 1000, 20, text="\n".join(map(repr, x.tolist()))).split()])
    theirs = signal.sosfilt(signal.butter(4, 20, fs=1000, output="sos"), x)
    assert np.allclose(out, theirs, rtol=0, atol=1e-12)


@pytest.mark.parametrize("program", ["spectrum", "streaming_filter"])
def test_program_without_its_arguments_tells_its_use(run, program):
    assert run(program, status=2).startswith(f"usage: {program}")


def test_streaming_filter_tells_a_bad_cutoff(run):
    assert run("streaming_filter", 1000, 600, status=1, text="1 2 3").strip().endswith(".")


def test_distortion_beside_its_truth(run):
    rows = [numbers(line) for line in run("distortion").splitlines()]
    for row in rows[1:4]:
        assert row[1] == pytest.approx(row[2], abs=2e-6)  # leakage of the harmonics under the Hanning window
    assert rows[4][0] == pytest.approx(rows[4][1], rel=1e-3)
    # Without noise that is the distortion again, but in parts of the whole.
    assert rows[5][0] == pytest.approx(rows[4][0], rel=1e-3)


def test_curve_fit_recovers_the_discharge(run):
    amplitude, tau, offset, residue = (numbers(line)[0] for line in run("curve_fit").splitlines())
    # Five standard errors: noise of 5 on 200 samples.
    assert amplitude == pytest.approx(3300, abs=15)
    assert tau == pytest.approx(0.47, abs=0.005)
    assert offset == pytest.approx(120, abs=8)
    assert residue == pytest.approx(5, abs=1.3)


def test_matrices_beside_their_truth(run):
    *modes, parabola = run("matrices").splitlines()
    assert len(modes) == 5
    for line in modes:
        found, truth = numbers(line)
        assert found == pytest.approx(truth, abs=1e-12)
    t = np.arange(7) / 10
    height = [1.998, 2.454, 2.803, 3.062, 3.213, 3.276, 3.234]
    theirs = np.polyfit(t, height, 2)
    assert numbers(parabola)[:2] == pytest.approx([theirs[2], theirs[1]], abs=0.006)
    assert numbers(parabola)[2] == pytest.approx(-2 * theirs[0], abs=0.006)
