"""What the generated functions stand on: the shared object, arrays in and out, statuses, handles."""

import ctypes
import difflib
import enum
import itertools
import operator
import os
import pathlib
import warnings
from typing import NamedTuple

import numpy as np

F8, C16, I4, I8 = np.dtype(np.float64), np.dtype(np.complex128), np.dtype(np.int32), np.dtype(np.int64)


class QuorvanError(ArithmeticError):
    """A call failed: `code` is its negative status, `text` what that means, `function` the name of the function.

    `code` is None where an object could not be made, which has no status.
    """

    def __init__(self, code, text, function):
        super().__init__(code, text, function)
        self.code, self.text, self.function = code, text, function

    def __str__(self):
        return f"{self.function}: {self.text}" + ("" if self.code is None else f" ({self.code})")


class QuorvanWarning(UserWarning):
    """A call succeeded with a reservation: `code` is its positive status; the results are valid."""

    def __init__(self, code, text, function):
        super().__init__(code, text, function)
        self.code, self.text, self.function = code, text, function

    def __str__(self):
        return f"{self.function}: {self.text} ({self.code})"


class WindowProperties(NamedTuple):
    """What a window does to a spectrum."""

    enbw: float
    coherent_gain: float


# --- The shared object -----------------------------------------------------------------------------------------------


def find_library():
    """QUORVAN_LIBRARY where it is set, else the one in the package, else the system's."""
    told = os.environ.get("QUORVAN_LIBRARY")
    if told:
        return told
    for name in ("libquorvan.so", "quorvan.dll"):
        bundled = pathlib.Path(__file__).with_name(name)
        if bundled.exists():
            return str(bundled)
    return "libquorvan.so.0"


def load_library():
    """The shared object, whose calls release the interpreter lock."""
    place = find_library()
    try:
        return ctypes.CDLL(place)
    except OSError as error:
        raise ImportError(
            f"quorvan needs its shared object, and {place} cannot be loaded ({error}). Build and install the library, "
            "name a libquorvan.so in QUORVAN_LIBRARY, or install the wheel, which carries one.") from None


library = load_library()


class Complex(ctypes.Structure):
    _fields_ = [("re", ctypes.c_double), ("im", ctypes.c_double)]


class Properties(ctypes.Structure):
    _fields_ = [("enbw", ctypes.c_double), ("coherent_gain", ctypes.c_double)]


MODEL = ctypes.CFUNCTYPE(ctypes.c_double, ctypes.c_double, ctypes.POINTER(ctypes.c_double), ctypes.c_int32)
ARGUMENTS = {"p": ctypes.c_void_p, "l": ctypes.c_int64, "i": ctypes.c_int32, "u": ctypes.c_uint32,
             "d": ctypes.c_double, "z": Complex, "m": MODEL}
RESULTS = {"status": ctypes.c_int32, "double": ctypes.c_double, "text": ctypes.c_char_p, "none": None,
           "handle": ctypes.c_void_p}


def bind(symbol, result, arguments):
    function = getattr(library, symbol)
    function.restype = RESULTS[result]
    function.argtypes = [ARGUMENTS[letter] for letter in arguments]
    return function


_message = bind("ZemFunc240", "text", "i")
_release_block = bind("ZemFunc234", "none", "p")


def check(status, function):
    """Raises for an error, warns for a warning. The function that the user called is two frames up."""
    if status == 0:
        return
    text = _message(status).decode()
    if status < 0:
        raise QuorvanError(status, text, function)
    warnings.warn(QuorvanWarning(status, text, function), stacklevel=3)


# --- Scalars ---------------------------------------------------------------------------------------------------------


def real(value, name):
    """A double; texts and arrays are none, complex numbers neither."""
    if type(value) is float:
        return value
    try:
        if not isinstance(value, (str, bytes)) and np.ndim(value) == 0:
            return float(value)
    except (TypeError, ValueError):
        pass
    shape = f" of shape {value.shape}" if isinstance(value, np.ndarray) else ""
    raise TypeError(f"{name} must be a real number, not {type(value).__name__}{shape}")


def integer(value, name, low, high):
    try:
        value = operator.index(value)
    except TypeError:
        raise TypeError(f"{name} must be an integer, not {type(value).__name__}") from None
    if not low <= value <= high:
        raise OverflowError(f"{name} must lie from {low} to {high}")
    return value


def i32(value, name):
    return integer(value, name, -(2**31), 2**31 - 1)


def u32(value, name):
    return integer(value, name, 0, 2**32 - 1)


def i64(value, name):
    return integer(value, name, -(2**63), 2**63 - 1)


def choice(value, selection, name):
    """The code of a selection: a member, its name in any case, or a plain integer, which the library judges."""
    if isinstance(value, str):
        try:
            return selection[value.upper().replace("-", "_").replace(" ", "_")].value
        except KeyError:
            known = [member.lower() for member in selection.__members__]
            meant = difflib.get_close_matches(value.lower(), known, 1)
            hint = f" (did you mean {meant[0]!r}?)" if meant else ""
            raise ValueError(f"{name} must be one of {', '.join(known)}; not {value!r}{hint}") from None
    if isinstance(value, enum.Enum) and not isinstance(value, selection):
        raise TypeError(f"{name} must be a {selection.__name__}, not a {type(value).__name__}")
    try:
        return operator.index(value)
    except TypeError:
        raise TypeError(f"{name} must be a {selection.__name__}, its name or its code, not "
                        f"{type(value).__name__}") from None


def complex_number(value, name):
    try:
        if not isinstance(value, (str, bytes)) and np.ndim(value) == 0:
            return complex(value)
    except (TypeError, ValueError):
        pass
    raise TypeError(f"{name} must be a number, not {type(value).__name__}")


def complex_value(value, name):
    value = complex_number(value, name)
    return Complex(value.real, value.imag)


def properties(value, name):
    try:
        enbw, coherent_gain = value
    except (TypeError, ValueError):
        raise TypeError(f"{name} must be WindowProperties or a pair (enbw, coherent_gain)") from None
    return Properties(real(enbw, name + ".enbw"), real(coherent_gain, name + ".coherent_gain"))


def optional(value, name):
    """A scalar by address, or null."""
    return None if value is None else ctypes.byref(ctypes.c_double(real(value, name)))


def quotient(a, b):
    """The quotient as C forms it, towards zero."""
    return abs(a) // abs(b) * (1 if (a < 0) == (b < 0) else -1)


def remainder(a, b):
    return a - b * quotient(a, b)


# --- Arrays in -------------------------------------------------------------------------------------------------------


def is_complex(*arrays):
    try:
        return any(np.iscomplexobj(a) for a in arrays)
    except ValueError:  # rows that differ in length: told where the array is taken
        return False


def dimensions(value):
    try:
        return np.ndim(value)
    except ValueError:  # as above
        return 0


def array(value, dtype, ndim, name):
    """A contiguous array of the type; never a copy where it is one already."""
    try:
        given = np.asarray(value)
    except ValueError:
        raise ValueError(f"{name} must be an array; its rows differ in length") from None
    if given.dtype != dtype:
        if given.size and not np.can_cast(given.dtype, dtype, "same_kind"):
            what = f"an array of {given.dtype}" if given.ndim else f"{type(value).__name__}"
            raise TypeError(f"{name} must be an array of {dtype}, not {what}")
        if given.dtype.kind in "iu" and dtype == I4 and given.size and not (
                -(2**31) <= given.min() and given.max() < 2**31):
            raise OverflowError(f"{name} has elements that do not fit {dtype}")
        given = given.astype(dtype)
    if given.ndim != ndim:
        raise ValueError(f"{name} must have {ndim} dimension{'s' * (ndim > 1)}, not {given.ndim}")
    return np.require(given, requirements="CA") if ndim else given


def fits(value, shape, name):
    """Refuses an array whose shape does not go with the others."""
    if value is not None and value.shape != tuple(max(extent, 0) for extent in shape):
        raise ValueError(f"{name} has the shape {value.shape}; the other arguments ask for {tuple(shape)}")


def together(**values):
    """Refuses arrays of which some are None, where each element of one belongs to an element of the others."""
    if len({value is None for value in values.values()}) > 1:
        raise ValueError(f"{' and '.join(values)} go together: give all of them or none")


def apart(value, other):
    """The array, copied where it begins with the other one without being all of it."""
    same_place = value.ctypes.data == other.ctypes.data
    return value.copy() if same_place and value.size != other.size else value


def parts(value):
    return np.ascontiguousarray(value.real), np.ascontiguousarray(value.imag)


def pointer(value):
    return None if value is None else value.ctypes.data


# --- Arrays out ------------------------------------------------------------------------------------------------------


def fresh(shape, dtype):
    """A new array; what the library leaves unwritten is NaN, or 0 for integers."""
    shape = tuple(max(extent, 0) for extent in shape)
    if max(shape, default=0) > 2**31 - 1:  # the library would refuse it, but only once the memory is taken
        raise OverflowError(f"a result of shape {shape}: sizes must fit 32 bits")
    return np.full(shape, np.nan, dtype) if dtype.kind in "fc" else np.zeros(shape, dtype)


def outs(out, count, function):
    if out is None:
        return (None,) * count
    if not isinstance(out, (tuple, list)) or len(out) != count:
        raise TypeError(f"{function}: out is a tuple of {count}, with None for an array to be made")
    given = [o for o in out if isinstance(o, np.ndarray)]
    if any(np.may_share_memory(a, b) for i, a in enumerate(given) for b in given[:i]):
        raise ValueError(f"{function}: two arrays of out share their memory")
    return out


def _checked(out, shape, dtype):
    if not isinstance(out, np.ndarray):
        raise TypeError("out must be an array")
    if out.dtype != dtype:
        raise TypeError(f"out must be of {dtype}, not {out.dtype}")
    if out.shape != tuple(max(extent, 0) for extent in shape):
        raise ValueError(f"out must have the shape {tuple(shape)}, not {out.shape}")
    if not out.flags.writeable:
        raise ValueError("out is read-only")


def _same_place(a, b):
    return a.ctypes.data == b.ctypes.data and a.nbytes == b.nbytes


def result(out, shape, dtype, inputs, overlapping=False):
    """The array that the library writes: `out` itself where it may, else a new one that `deliver` copies."""
    if out is None:
        return fresh(shape, dtype)
    _checked(out, shape, dtype)
    direct = out.flags.c_contiguous and out.flags.aligned and not any(
        value is not None and np.may_share_memory(out, value) and not (overlapping and _same_place(out, value))
        for value in inputs)
    return out if direct else fresh(shape, dtype)


def worked(value, out, others=()):
    """The array on which the library works in place: `out` with the values in it, or a copy."""
    if out is None:
        return value.copy()
    _checked(out, value.shape, value.dtype)
    if not (out.flags.c_contiguous and out.flags.aligned) or any(
            other is not None and np.may_share_memory(out, other) for other in others):
        return value.copy()
    if out is not value:
        out[...] = value
    return out


def deliver(value, out):
    if out is None or out is value:
        return value
    out[...] = value
    return out


def joined(re, im, out):
    if out is None:
        out = np.empty(re.shape, C16)
    else:
        _checked(out, re.shape, C16)
    out.real, out.imag = re, im
    return out


def state(value, shape, dtype, name):
    """A copy of a filter's memory, zeros where none is given."""
    shape = tuple(max(extent, 0) for extent in shape)
    if value is None:
        return np.zeros(shape, dtype)
    value = array(value, dtype, len(shape), name)
    fits(value, shape, name)
    return value.copy()


def first(value, count):
    return value[:max(min(count, len(value)), 0)]


def taken(address, count):
    """The array of doubles that the library allocated; its block goes back."""
    if not address.value:
        return np.empty(0)
    values = np.ctypeslib.as_array(ctypes.cast(address, ctypes.POINTER(ctypes.c_double)), (count,)).copy()
    _release_block(address)
    return values


# --- Elements, models, texts ------------------------------------------------------------------------------------------


def many(*values):
    return any(np.ndim(value) > 0 for value in values if value is not None and type(value) is not float)


def each(function, *values, result=None):
    """A function of scalars over arrays, by the rules of broadcasting; None stays None."""
    given = iter(np.broadcast_arrays(*(value for value in values if value is not None)))
    columns, shape = [], ()
    for value in values:
        if value is None:
            columns.append(itertools.repeat(None))
        else:
            elements = next(given)
            shape = elements.shape
            columns.append(elements.ravel().tolist())
    rows = list(map(function, *columns))
    if result:
        columns = zip(*rows) if rows else [()] * len(result._fields)
        return result(*(np.array(column).reshape(shape) for column in columns))
    return np.array(rows).reshape(shape)


class Model:
    """A model function of the user's as the library calls it. What it raises comes out behind the call."""

    def __init__(self, function, name):
        if not callable(function):
            raise TypeError(f"{name} must be a function of x and the coefficients, not {type(function).__name__}")
        self.error = None

        def call(x, coefficients, count):
            if self.error is None:
                try:
                    return float(function(x, np.array(coefficients[:count])))
                except BaseException as error:  # no exception may pass through the library: it is kept and raised again
                    self.error = error
            return float("nan")

        self.pointer = MODEL(call)

    def reraise(self):
        if self.error is not None:
            raise self.error


def text_buffer(text, name):
    """A text that the library completes in place."""
    if not isinstance(text, str):
        raise TypeError(f"{name} must be a text, not {type(text).__name__}")
    encoded = text.encode()
    return ctypes.create_string_buffer(encoded, len(encoded) + 16)


# --- Handles ---------------------------------------------------------------------------------------------------------


class Handle:
    """An object of the library. It is given back by close, at the end of a with block, or with its last reference."""

    _classes = {}
    _pointer = None
    _one_block = False  # whether it is one block of memory, as memory_release takes it

    def __init_subclass__(cls):
        Handle._classes[cls.__name__] = cls

    def close(self):
        """Gives the object back; a second call does nothing."""
        pointer, self._pointer = self._pointer, None
        if pointer is not None:
            self._give_back(pointer)

    @staticmethod
    def _give_back(pointer):
        _release_block(pointer)

    @property
    def closed(self):
        return self._pointer is None

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self.close()

    def __del__(self):
        self.close()

    def __repr__(self):
        return f"{type(self).__name__}({'closed' if self.closed else self._told()})"

    def _told(self):
        """What tells this object from others of its kind."""
        return ""

    def _made(self):
        """Follows on the library's making of the object."""


def adopt(kind, address, function):
    """The object for a pointer that the library handed out."""
    if not address:
        raise QuorvanError(None, "the arguments were refused, or memory ran out", function)
    made = Handle._classes[kind].__new__(Handle._classes[kind])
    made._pointer = address
    made._made()
    return made


def handle(value, kind):
    """The pointer in an object; None stays null."""
    if value is None:
        return None
    if not isinstance(value, Handle._classes[kind]):
        raise TypeError(f"a {kind} is wanted, not {type(value).__name__}")
    if value._pointer is None:
        raise ValueError(f"this {kind} is closed")
    return value._pointer


def release(value, kind, function):
    """Gives an object back through the function, once."""
    if value is None:
        function(None)
        return
    fits_kind = getattr(value, "_one_block", False) if kind == "block" else isinstance(value, Handle._classes[kind])
    if not fits_kind:
        raise TypeError(f"a {kind} is wanted, not {type(value).__name__}")
    address, value._pointer = value._pointer, None
    function(address)
