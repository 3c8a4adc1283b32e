"""Quorvan: numerical analysis for measurement, test and signal processing, on NumPy arrays.

    import quorvan as qv
    power, df = qv.power_spectrum(x, dt)

Arrays go in and come out; sizes are those of the arrays. Negative statuses of the library raise QuorvanError, positive
ones are told as QuorvanWarning. Results of several parts are named tuples. The names follow one rule, which the README of
the package tells; help(qv.power_spectrum) shows shapes, units and statuses.
"""

from . import _functions, _objects, _selections
from ._functions import *
from ._objects import *
from ._runtime import Handle, QuorvanError, QuorvanWarning, WindowProperties
from ._selections import *

__version__ = "0.1.0"
__all__ = (["Handle", "QuorvanError", "QuorvanWarning", "WindowProperties"] + _functions.__all__ + _objects.__all__
           + _selections.__all__)


def _own():
    """What is listed stands in this module, for help and for pickles of results."""
    for name in _functions.__all__ + _objects.__all__ + _selections.__all__:
        globals()[name].__module__ = "quorvan"


_own()
del _own
