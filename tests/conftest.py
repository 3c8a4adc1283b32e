"""The Python half of the tests calls the shared object under its numbered names; see tools/library.py for how.

    def test_sum(qv):
        status = qv.ZemFunc3(x, y, len(x), out)
"""

import os
import pathlib
import sys

import pytest

TESTS = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(TESTS.parent / "tools"), str(TESTS / "support")]
import library  # noqa: E402
from library import DTYPES, SCALARS, Address, Complex, load  # noqa: E402, F401


@pytest.fixture(scope="session")
def qv():
    return library.load(os.environ["QUORVAN_LIBRARY"])
