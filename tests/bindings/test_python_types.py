"""The stubs say to mypy what the package takes and gives. Skipped where mypy is missing."""

import importlib.util
import os
import re
import subprocess
import sys

import pytest

import boundary

pytestmark = pytest.mark.skipif(importlib.util.find_spec("mypy") is None, reason="mypy is missing")

PACKAGE = boundary.ROOT / "bindings" / "python"

GOOD = """
from __future__ import annotations

import numpy as np
from numpy.typing import NDArray
from typing_extensions import assert_type

import quorvan as qv

Reals = NDArray[np.float64]
Complexes = NDArray[np.complex128]


def measured(x: Reals, z: Complexes, counts: NDArray[np.int64]) -> float:
    # one array, several results, the results of a fit
    assert_type(qv.array_add(x, [1.0, 2.0]), Reals)
    power, df = qv.power_spectrum(x, dt=1e-3)
    assert_type(power, Reals)
    assert_type(df, float)
    assert_type(qv.fit_line(x, counts).slope, float)
    assert_type(qv.array_max_min(x).max_index, int)
    assert_type(qv.status_message(-20003), str)

    # complex arrays go to the complex twin, wherever they stand
    assert_type(qv.window_hanning(x), Reals)
    assert_type(qv.window_hanning(z, out=z), Complexes)
    assert_type(qv.convolve(x, x), Reals)
    assert_type(qv.convolve(x, z), Complexes)
    assert_type(qv.convolve(z, counts), Complexes)
    assert_type(qv.fft(x), Complexes)
    assert_type(qv.det(x), float)
    assert_type(qv.det(z), complex)
    assert_type(qv.svd(x), qv.SvdResult)
    assert_type(qv.svd(z), qv.SvdComplexResult)
    assert_type(qv.special_matrix("toeplitz", first=x, second=x), Reals)
    assert_type(qv.special_matrix("toeplitz", first=z, second=x), Complexes)
    assert_type(qv.special_matrix(qv.SpecialMatrix.TOEPLITZ, 0, x, z), Complexes)

    # functions of numbers take arrays element by element
    assert_type(qv.bessel_j(0, 1.5), float)
    assert_type(qv.bessel_j(0, x), Reals)
    assert_type(qv.complex_sqrt(-1), complex)
    assert_type(qv.complex_sqrt(z), Complexes)
    assert_type(qv.airy(1.0).ai, float)
    assert_type(qv.airy(x).ai, Reals)

    # objects
    with qv.IirFilter("lowpass", 4).butterworth(fs=1000, fl=100) as lowpass:
        assert_type(lowpass, qv.IirFilter)
        assert_type(lowpass.apply(x), Reals)
        assert_type(lowpass.apply(z), Complexes)
        assert_type(lowpass.direct_form().a, Reals)
        assert_type(lowpass.kind, qv.FilterKind)
    with qv.PeakDetector(0.5, 3, polarity=qv.PeakPolarity.VALLEYS) as peaks:
        assert_type(peaks.feed(x, last=True).locations, Reals)
    assert_type(qv.BinomialNoise(10, 0.5).draw(5), NDArray[np.int32])
    assert_type(qv.FirNarrowband().design(1.0, 0.01, 0.02, 0.1, 60, "lowpass").factor, int)

    def line(x: float, c: Reals) -> float:
        return float(c[0] + c[1] * x)

    assert_type(qv.fit_nonlinear(x, x, line, [0.0, 1.0]).coefficients, Reals)
    try:
        qv.rms([])
    except qv.QuorvanError as error:
        assert_type(error.code, int | None)
    return qv.rms(x)
"""

# Each line with a part of what mypy says of it.
BAD = """
import numpy as np
import quorvan as qv
x, whole = np.zeros(8), np.zeros(8, np.int32)
qv.power_spectrum()  # Missing positional argument "x"
qv.power_spectrum(x, "a millisecond")  # Argument 2 to "power_spectrum" has incompatible type "str"; expected "float"
qv.power_spectrum(x, time=1e-3)  # Unexpected keyword argument "time"
qv.power_spectrum(x, 1e-3).powers  # "PowerSpectrumResult" has no attribute "powers"
qv.fit_line(x, object())  # Argument 2 to "fit_line" has incompatible type "object"
qv.array_sort(x, 1.5)  # Argument 2 to "array_sort" has incompatible type "float"
qv.array_add(x, x, out=whole)  # Argument "out" to "array_add" has incompatible type
qv.window_hanning(x, out=whole)  # "window_hanning"
qv.bessel_j(0, object())  # No overload variant of "bessel_j" matches
qv.airy(1.0).aj  # has no attribute "aj"
qv.window_haning(x)  # Module has no attribute "window_haning"
qv.Window.HANING  # has no attribute "HANING"
count: int = qv.array_sum(x)  # expression has type "float", variable has type "int"
qv.fft_plan_release(3)  # Argument 1 to "fft_plan_release" has incompatible type "int"; expected "FftPlan"
qv.IirFilter("lowpass")  # Missing positional argument "order" in call to "IirFilter"
qv.IirFilter("lowpass", 4).butterwort(1000, 100)  # "IirFilter" has no attribute "butterwort"
qv.IirFilter("lowpass", 4).chebyshev(1000, 100, 0.5)  # Missing named argument "ripple"
qv.PeakDetector("high", 3)  # Argument 1 to "PeakDetector" has incompatible type "str"; expected "float"
qv.fit_nonlinear(x, x, lambda x: x, [0.0])  # Cannot infer type of lambda
"""


@pytest.fixture(scope="module")
def mypy(tmp_path_factory):
    """mypy over programs, with the sources of the package in sight: what is wrong in the stubs is told, too."""
    folder = tmp_path_factory.mktemp("types")
    clean = {k: v for k, v in os.environ.items() if not k.startswith("MYPY")}

    def run(*arguments, tool="mypy"):
        return subprocess.run([sys.executable, "-m", tool, *map(str, arguments)], capture_output=True, text=True,
                              cwd=folder, env=dict(clean, MYPYPATH=str(PACKAGE), PYTHONPATH=str(PACKAGE)))
    return run


def test_good_program_is_accepted_with_precise_types(mypy, tmp_path):
    program = tmp_path / "good.py"
    program.write_text(GOOD)
    done = mypy("--strict", program)
    assert done.returncode == 0, done.stdout + done.stderr


def test_bad_calls_are_told_where_they_stand(mypy, tmp_path):
    program = tmp_path / "bad.py"
    program.write_text(BAD)
    done = mypy("--no-error-summary", program)
    told = {}
    for place, line, text in re.findall(r"^(.+?):(\d+): error: (.*)$", done.stdout, re.M):
        assert place.endswith("bad.py"), done.stdout
        told.setdefault(int(line), []).append(text)
    wanted = {i: line.partition("  # ")[2] for i, line in enumerate(BAD.splitlines(), 1) if "  # " in line}
    assert told.keys() == wanted.keys(), done.stdout + done.stderr
    for line, text in wanted.items():
        assert any(text in one for one in told[line]), (text, told[line])


def test_examples_are_accepted(mypy):
    examples = sorted((boundary.ROOT / "examples" / "python").glob("*.py"))
    assert examples
    done = mypy("--check-untyped-defs", *examples)
    assert done.returncode == 0, done.stdout + done.stderr


def test_stubs_agree_with_the_package(mypy, tmp_path):
    """The modules behind the package have no stubs of their own; what they define is told in the package's."""
    config = tmp_path / "mypy.ini"
    config.write_text("[mypy]\n[mypy-quorvan._functions.*,quorvan._selections]\nignore_errors = True\n")
    private = tmp_path / "private"
    private.write_text(r"quorvan\._functions\..*" + "\n" + r"quorvan\._selections\..*" + "\n")
    done = mypy("quorvan", "--ignore-missing-stub", "--mypy-config-file", config, "--allowlist", private,
                "--ignore-unused-allowlist", tool="mypy.stubtest")
    assert done.returncode == 0, done.stdout + done.stderr
