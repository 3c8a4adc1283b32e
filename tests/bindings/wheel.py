"""Builds the wheel without a network, installs it into a clean virtual environment, uses it there, and takes it away.

    wheel.py LIBRARY PACKAGE DIRECTORY

Ends with 77 where pip, setuptools, wheel or venv is missing.
"""

import importlib.util
import os
import pathlib
import shutil
import subprocess
import sys
import zipfile

PROGRAM = """
import pathlib, sys, warnings
import numpy as np
import quorvan as qv
from quorvan import _runtime
place = pathlib.Path(qv.__file__).resolve().parent
assert pathlib.Path(sys.prefix).resolve() in place.parents, place
assert pathlib.Path(_runtime.find_library()).resolve() == place / "libquorvan.so"
assert (place / "py.typed").exists() and all((place / name).exists() for name in ("__init__.pyi", "_objects.pyi", "_runtime.pyi"))
t = np.arange(1000) * 1e-3
power, df = qv.power_spectrum(np.sqrt(2) * np.sin(2 * np.pi * 50 * t), 1e-3)
assert power.argmax() * df == 50 and abs(power.max() - 1) < 1e-12
assert np.allclose(qv.solve([[2, 1], [1, 3]], [3, 5]), [0.8, 1.4])  # LAPACK is found
print(qv.__version__)
"""


def run(*command, **more):
    done = subprocess.run([str(c) for c in command], capture_output=True, text=True, **more)
    if done.returncode:
        raise SystemExit(f"{' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
    return done.stdout


def main():
    missing = [name for name in ("pip", "setuptools", "wheel", "venv", "ensurepip", "numpy")
               if importlib.util.find_spec(name) is None]
    if missing:
        print("missing:", *missing)
        sys.exit(77)
    library, package, directory = map(pathlib.Path, sys.argv[1:])
    shutil.rmtree(directory, ignore_errors=True)
    source = directory / "source"  # pip builds where the sources lie
    shutil.copytree(package, source, ignore=shutil.ignore_patterns("__pycache__", "build", "*.egg-info"))
    clean = {k: v for k, v in os.environ.items() if not k.startswith(("PYTHON", "PIP", "QUORVAN"))}
    offline = dict(clean, PIP_NO_INDEX="1", PIP_DISABLE_PIP_VERSION_CHECK="1", PIP_NO_CACHE_DIR="1")

    run(sys.executable, "-m", "pip", "wheel", "--no-build-isolation", "--no-deps", "--wheel-dir", directory, source,
        env=dict(offline, QUORVAN_LIBRARY=str(library)))
    (wheel,) = directory.glob("quorvan-*.whl")
    assert "-py3-none-" in wheel.name and not wheel.name.endswith("-any.whl"), wheel.name
    names = zipfile.ZipFile(wheel).namelist()
    assert "quorvan/libquorvan.so" in names and "quorvan/__init__.pyi" in names, names
    with zipfile.ZipFile(wheel) as archive:
        assert archive.read("quorvan/libquorvan.so") == library.read_bytes()

    environment = directory / "environment"
    run(sys.executable, "-m", "venv", "--system-site-packages", environment, env=clean)
    python = environment / "bin" / "python"
    run(python, "-m", "pip", "install", "--no-deps", wheel, env=offline)
    version = run(python, "-W", "error", "-c", PROGRAM, env=clean, cwd=directory).strip()
    assert f"quorvan-{version}-" in wheel.name, (version, wheel.name)
    run(python, "-m", "pip", "uninstall", "--yes", "quorvan", env=offline)
    left = list(environment.rglob("*quorvan*"))
    assert not left, left


if __name__ == "__main__":
    main()
