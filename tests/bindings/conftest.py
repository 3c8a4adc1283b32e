"""The package from the sources, over the shared object that was just built."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "bindings" / "python"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
