"""The shared object through ctypes, under its numbered names, with prototypes from the table.

    qv = library.load("build/release/libquorvan.so")
    status = qv.ZemFunc3(x, y, len(x), out)

Arrays are contiguous NumPy arrays of the table's type and go by address; None is a null pointer; a scalar by address is
an array of one element.
"""

import ctypes

import numpy as np

import boundary


class Complex(ctypes.Structure):
    _fields_ = [("re", ctypes.c_double), ("im", ctypes.c_double)]

    @classmethod
    def from_param(cls, value):
        return value if isinstance(value, cls) else cls(complex(value).real, complex(value).imag)


SCALARS = {"double": ctypes.c_double, "complex": Complex, "int32": ctypes.c_int32, "uint32": ctypes.c_uint32,
           "int64": ctypes.c_int64,
           "model": ctypes.CFUNCTYPE(ctypes.c_double, ctypes.c_double, ctypes.POINTER(ctypes.c_double), ctypes.c_int32)}
DTYPES = {"double": np.float64, "complex": np.complex128, "int32": np.int32, "uint32": np.uint32, "int64": np.int64,
          "window": np.float64, "band": np.float64}
RESULTS = {"status": ctypes.c_int32, "double": ctypes.c_double, "text": ctypes.c_char_p, "none": None}


class Address:
    """Takes a contiguous NumPy array of the table's type, or None."""

    def __init__(self, dtype):
        self.dtype = dtype

    def from_param(self, value):
        if value is None or self.dtype is None:
            return ctypes.c_void_p(value) if value is None or isinstance(value, int) else value
        assert value.dtype == self.dtype and value.flags["C_CONTIGUOUS"], (value.dtype, self.dtype)
        return ctypes.c_void_p(value.ctypes.data)


def text_buffer(text, room):
    """A text that the library reads and writes over, with room for so many more characters."""
    return ctypes.create_string_buffer(text.encode(), len(text) + room + 1)


def argument_type(argument):
    if argument.direction == "size":
        return ctypes.c_int64
    if argument.direction == "handle":
        return ctypes.c_void_p
    if argument.direction == "value":
        return SCALARS[argument.type]
    if argument.direction == "alloc":
        return ctypes.POINTER(ctypes.c_void_p)
    if argument.type == "text":
        return ctypes.c_char_p
    return Address(DTYPES.get(argument.type))


def load(path):
    library = ctypes.CDLL(path)
    for export in boundary.implemented(boundary.read_table()):
        function = getattr(library, export.symbol)
        function.restype = RESULTS.get(export.result, ctypes.c_void_p)
        function.argtypes = [argument_type(a) for a in export.arguments]
    return library
