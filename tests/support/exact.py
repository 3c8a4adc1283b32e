"""What the models of single operations share: numbers of every kind, arrays between guards, comparison bit by bit."""

import ctypes
import ctypes.util
import itertools

import boundary
import numpy as np

# Sizes around every border: of the 64-bit argument, of 32 bits, of the first element. 2^32 + 5 has the low half 5.
SIZES = [-(1 << 63), -(1 << 32) + 5, -(1 << 31) - 1, -(1 << 31), -3, -1, 0, 1, 2, 3, 5, 65536, 65537, (1 << 31) - 1,
         1 << 31, (1 << 32) + 5, (1 << 63) - 1]
TOO_LARGE = [2**31, -2**31 - 1, 2**32, 2**32 + 5, 2**63 - 1, -2**63]

SPECIAL = np.array([0.0, -0.0, 1.0, -1.0, 0.5, 3.0, 1e-5, -1e5, 5e-324, -5e-324, 2.2250738585072014e-308, 1e-160,
                    -1e-170, 1e160, 1e308, -1.7976931348623157e308, 1.7976931348623157e308, -1.7976931348623e308,
                    np.inf, -np.inf, np.nan])
NANS = np.array([0x7FF8000000000000, 0xFFF8000000000000, 0x7FF8000000000123, 0xFFF8000000ABCDEF], np.uint64).view(float)

GUARD = np.uint64(0x7FFBADC0DEC0FFEE)  # a NaN that no operation makes


MATHEMATICS = ctypes.CDLL(ctypes.util.find_library("m"))


def libm(name, count=1):
    """A function of the C library, which the library under test calls too."""
    function = getattr(MATHEMATICS, name)
    function.restype, function.argtypes = ctypes.c_double, [ctypes.c_double] * count
    return function


def divided(a, b):
    """IEEE 754 division."""
    with np.errstate(all="ignore"):
        return float(np.float64(a) / np.float64(b))


def fits(*sizes):
    return all(-(1 << 31) <= size < 1 << 31 for size in sizes)


def wrapped(value):
    return (value + (1 << 31)) % (1 << 32) - (1 << 31)


def numbers(rng, n, kind):
    """n doubles: ordinary ones, any bits at all, special values, small integers that repeat, or a mixture with NaN."""
    if kind == "plain":
        return rng.standard_normal(n)
    if kind == "bits":
        return rng.integers(0, 1 << 64, n, np.uint64, endpoint=False).view(float)
    if kind == "special":
        return rng.choice(np.concatenate([SPECIAL, NANS]), n)
    if kind == "ties":
        return rng.integers(-3, 4, n).astype(float) * rng.choice([1.0, -1.0], n)
    assert kind == "holes"
    spread = rng.standard_normal(n) * 10.0 ** rng.integers(-300, 300, n)
    return np.where(rng.random(n) < 0.3, rng.choice(NANS, n), spread)


KINDS = ["plain", "bits", "special", "ties", "holes"]


class Guarded:
    """An array between guard words, at any place relative to the registers."""

    def __init__(self, values, dtype=float, before=3):
        values = np.asarray(values, dtype)
        words = values.view(np.uint64)
        self.all = np.full(before + len(words) + 9, GUARD, np.uint64)
        self.words = self.all[before:before + len(words)]
        self.words[:] = words
        self.array = self.words.view(dtype)
        self.before = self.all[:before]
        self.behind = self.all[before + len(words):]
        self.first = words.copy()

    def kept(self):
        assert np.all(self.before == GUARD) and np.all(self.behind == GUARD), "written outside"

    def untouched(self):
        self.kept()
        assert np.array_equal(self.words, self.first), "written"


def unwritten(n, dtype=float, before=3):
    """An output: its elements are guard words too."""
    words = n * np.dtype(dtype).itemsize // 8
    return Guarded(np.full(words, GUARD, np.uint64).view(dtype), dtype, before)


def bits(values):
    return np.ascontiguousarray(values, float).view(np.uint64)


def equal_bits(got, expected):
    assert np.array_equal(bits(got), bits(expected)), difference(got, expected)


def equal_numbers(got, expected):
    """To the last bit, signs of zeros included; NaN is NaN, whatever its bits: arithmetic may take either operand's."""
    got, expected = np.asarray(got, float), np.asarray(expected, float)
    same = (bits(got) == bits(expected)) | (np.isnan(got) & np.isnan(expected))
    assert got.shape == expected.shape and np.all(same.reshape(got.shape)), difference(got, expected)


def difference(got, expected):
    got, expected = np.atleast_1d(got), np.atleast_1d(expected)
    if got.shape != expected.shape:
        return got.shape, expected.shape
    at = np.flatnonzero(bits(got) != bits(expected))[:3]
    return [(int(i), float(got.flat[i]).hex(), float(expected.flat[i]).hex()) for i in at]


def every_size(count):
    return itertools.product(SIZES, repeat=count)


def exports_of(family):
    """The numbers of a family, so that a model can tell that it leaves none out."""
    return {e.number for e in boundary.implemented(boundary.read_table()) if e.family == family}
