"""Array primitives beside NumPy."""

import numpy as np


def test_add_is_numpy_add(qv):
    x, y = np.random.default_rng(1).standard_normal((2, 1000))
    out = np.empty(1000)
    assert qv.ZemFunc3(x, y, 1000, out) == 0
    assert np.array_equal(out, x + y)
