r"""Status codes.

What a call says of itself: 0 is success, a positive code a warning with results that are written and usable,
a negative code an error. After an error the outputs hold whatever had been written so far.

    Status status = `power_spectrum`(x, n, dt, power, &df);
    if (status < 0) fprintf(stderr, "%s\n", `status_message`(status));

A message may name a limit a little different from the one that is tested; the documentation of each function
tells the test.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "status_message",
]
_max, _min = max, min

_ZemFunc240 = rt.bind("ZemFunc240", "text", "i")


def status_message(code):
    r"""The text of a status code.

    Never fails and never returns null; a code without a text gives "Unknown error number". The text belongs to
    the library and stays valid while it is loaded.

    Parameters
    ----------
    code : int
        a status that a function returned

    Returns
    -------
    str

    Notes
    -----
    The function ZemFunc240 (StatusMessage) of the C library.

    Example
    -------
    >>> qv.status_message(code)
    """
    code = rt.i32(code, "code")
    return _ZemFunc240(code).decode()
