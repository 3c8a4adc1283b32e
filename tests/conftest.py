"""The shared object under its numbered names, with prototypes from the table, for the Python half of the tests.

    def test_sum(qv):
        out = qv.ZemFunc3(x, y, len(x), out)

Arrays are NumPy arrays of float64 or complex128 and go by address; None is a null pointer; scalars by address are
arrays of one element.
"""

import ctypes
import os
import pathlib
import sys

import numpy as np
import pytest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tools"))
import boundary  # noqa: E402


class Complex(ctypes.Structure):
    _fields_ = [("re", ctypes.c_double), ("im", ctypes.c_double)]

    @classmethod
    def from_param(cls, value):
        return value if isinstance(value, cls) else cls(complex(value).real, complex(value).imag)


SCALARS = {"double": ctypes.c_double, "complex": Complex, "int32": ctypes.c_int32, "uint32": ctypes.c_uint32,
           "int64": ctypes.c_int64,
           "model": ctypes.CFUNCTYPE(ctypes.c_double, ctypes.c_double, ctypes.POINTER(ctypes.c_double), ctypes.c_int32)}
DTYPES = {"double": np.float64, "complex": np.complex128, "int32": np.int32, "uint32": np.uint32, "int64": np.int64,
          "window": np.float64}


class Address:
    """Takes a contiguous NumPy array of the table's type, or None."""

    def __init__(self, dtype):
        self.dtype = dtype

    def from_param(self, value):
        if value is None or self.dtype is None:
            return ctypes.c_void_p(value) if value is None or isinstance(value, int) else value
        assert value.dtype == self.dtype and value.flags["C_CONTIGUOUS"], (value.dtype, self.dtype)
        return ctypes.c_void_p(value.ctypes.data)


def load(path):
    library = ctypes.CDLL(path)
    results = {"status": ctypes.c_int32, "double": ctypes.c_double, "text": ctypes.c_char_p, "none": None}
    for export in boundary.implemented(boundary.read_table()):
        function = getattr(library, export.symbol)
        function.restype = results.get(export.result, ctypes.c_void_p)
        function.argtypes = [
            ctypes.c_int64 if a.direction == "size"
            else ctypes.c_void_p if a.direction == "handle"
            else SCALARS[a.type] if a.direction == "value"
            else ctypes.POINTER(ctypes.c_void_p) if a.direction == "alloc"
            else ctypes.c_char_p if a.type == "text"
            else Address(DTYPES.get(a.type))
            for a in export.arguments
        ]
    return library


@pytest.fixture(scope="session")
def qv():
    return load(os.environ["QUORVAN_LIBRARY"])
