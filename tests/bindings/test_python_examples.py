"""The small programs in Python give the readings that they promise."""

import os
import pathlib
import re
import subprocess
import sys

import numpy as np
import pytest
from scipy import signal

import quorvan as qv

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAMS = ROOT / "examples" / "python"


def run(name, *arguments, status=0, text=None):
    paths = [str(pathlib.Path(qv.__file__).parents[1]), os.environ.get("PYTHONPATH", "")]
    done = subprocess.run([sys.executable, PROGRAMS / f"{name}.py", *map(str, arguments)], input=text, text=True,
                          capture_output=True, timeout=60, env=dict(os.environ, PYTHONPATH=os.pathsep.join(paths)))
    assert done.returncode == status, done.stderr
    return done.stdout if status == 0 else done.stderr


def numbers(text):
    return [float(v) for v in re.findall(r"-?\d+\.\d+(?:e[-+]\d+)?", text)]


def test_spectrum_finds_the_strongest_line(tmp_path):
    t = np.arange(5000) / 500.0
    file = tmp_path / "tone.csv"
    file.write_text("volt\n" + "\n".join(map(repr, (3 + 1.5 * np.sin(2 * np.pi * 50.2 * t)).tolist())))
    frequency, power = numbers(run("spectrum", file, 500))
    # Interpolated under a Hanning window: far closer than the bin of 0.1 Hz.
    assert frequency == pytest.approx(50.2, abs=1e-3)
    assert power == pytest.approx(1.125, rel=1e-3)


def test_spectrum_reads_the_recording():
    assert run("spectrum", ROOT / "examples" / "data" / "ecg.csv", 360).startswith("21600 samples")


def test_spectrum_tells_a_missing_file():
    assert "nowhere.csv" in run("spectrum", "nowhere.csv", 360, status=1)


@pytest.mark.skipif(not hasattr(qv, "IirFilter"), reason="filter objects are planned")
def test_streaming_filter_does_not_show_its_blocks():
    x = np.random.default_rng(1).standard_normal(1000)
    out = np.array(run("streaming_filter", 1000, 20, text="\n".join(map(repr, x.tolist()))).split(), float)
    theirs = signal.sosfilt(signal.butter(4, 20, fs=1000, output="sos"), x)
    assert np.allclose(out, theirs, rtol=0, atol=1e-12)


@pytest.mark.skipif(not hasattr(qv, "IirFilter"), reason="filter objects are planned")
def test_streaming_filter_tells_a_bad_cutoff():
    assert "(-20023)" in run("streaming_filter", 1000, 600, status=1, text="1 2 3")


def test_distortion_beside_its_truth():
    rows = [numbers(line) for line in run("distortion").splitlines()]
    for row in rows[1:4]:
        assert row[1] == pytest.approx(row[2], abs=2e-6)  # leakage of the harmonics under the Hanning window
    assert rows[4][0] == pytest.approx(rows[4][1], rel=1e-3)
    assert rows[5][0] == pytest.approx(rows[4][0], rel=1e-3)  # without noise the same, in parts of the whole


def test_curve_fit_recovers_the_discharge():
    amplitude, tau, offset, residue = (numbers(line)[0] for line in run("curve_fit").splitlines())
    # Five standard errors: noise of 5 on 200 samples.
    assert amplitude == pytest.approx(3300, abs=15)
    assert tau == pytest.approx(0.47, abs=0.005)
    assert offset == pytest.approx(120, abs=8)
    assert residue == pytest.approx(5, abs=1.3)


@pytest.mark.skipif(not hasattr(qv, "eigen_symmetric"), reason="eigenproblems are planned")
def test_matrices_beside_their_truth():
    *modes, parabola = run("matrices").splitlines()
    assert len(modes) == 5
    for line in modes:
        found, truth = numbers(line)
        assert found == pytest.approx(truth, abs=1e-12)
    theirs = np.polyfit(np.arange(7) / 10, [1.998, 2.454, 2.803, 3.062, 3.213, 3.276, 3.234], 2)
    # the printed digits end at half a hundredth
    assert numbers(parabola) == pytest.approx([theirs[2], theirs[1], -2 * theirs[0]], abs=0.006)
