"""What the tests share that hold a result to the last bit."""

import numpy as np

# Sizes that 32 bits do not hold.
TOO_LARGE = [2**31, -2**31 - 1, 2**32, 2**32 + 5, 2**63 - 1, -2**63]


def same_bits(actual, expected):
    """NaN of any sign and content is NaN."""
    actual, expected = np.array(actual, float), np.array(expected, float)
    nan = np.isnan(expected)
    assert np.array_equal(np.isnan(actual), nan), (actual, expected)
    assert np.array_equal(actual[~nan].view(np.int64), expected[~nan].view(np.int64)), (actual, expected)


def divided(a, b):
    """IEEE 754 division."""
    with np.errstate(all="ignore"):
        return float(np.float64(a) / np.float64(b))
