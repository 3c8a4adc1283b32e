"""Decimation and level crossing block by block: what a thread keeps, step by step, over streams of random calls.

The offset, the factor and the mode may change, resets come at any time, and blocks may be shorter than what is skipped.
"""

import numpy as np
import pytest

from exact import TOO_LARGE


def truncated(a, b):
    return abs(a) // abs(b) * (1 if (a < 0) == (b < 0) else -1)


class Decimation:
    """Samples are tuples of parts: one for real data, two for complex."""

    def __init__(self, parts):
        self.zero = (0.0,) * parts
        self.first = True

    def total(self, start, samples):
        for v in samples:
            start = tuple(a + b for a, b in zip(start, v))
        return start

    def mean(self, total):
        return tuple(v / self.factor for v in total)

    def block(self, x, factor, average, offset, reset):
        """Status, count and the block as it is left; a count of None is none."""
        n = len(x)
        if self.first or reset:
            self.pending, self.factor, self.sum, self.offset = 0, factor, self.zero, offset
        self.first = False
        if self.factor < 1:
            return -20140, 0, x
        if average:
            c = truncated(self.pending + n if self.pending else n - self.offset, self.factor)
        else:
            c = 0 if n <= self.offset else (n - self.offset - 1) // self.factor + 1
        if self.offset < 0:
            return -20059, c, x
        out = list(x)
        if not average:
            out[:c] = [x[self.offset + i * self.factor] for i in range(c)]
            self.offset += c * self.factor - n if c >= 1 else -n
        elif c >= 1:
            blocks, at = [], self.offset
            if self.pending:
                blocks.append(self.mean(self.total(self.sum, x[:self.offset])))
            for _ in range(c - len(blocks)):
                blocks.append(self.mean(self.total(self.zero, x[at:at + self.factor])))
                at += self.factor
            rest = n - at
            out[:c] = blocks
            self.pending = max(rest, 0)
            self.sum = self.total(self.zero, x[at:])
            self.offset = (self.factor - self.pending) % self.factor
        elif self.pending:
            self.pending += n
            self.sum = self.total(self.sum, x)
            self.offset -= n
        elif n <= self.offset:
            self.offset -= n
        else:
            self.pending = n - self.offset
            self.sum = self.total(self.zero, x[self.offset:])
            self.offset = self.factor - self.pending
        return 0, c, out


def parts_of(x):
    return [(v.real, v.imag) if np.iscomplexobj(x) else (v,) for v in x.tolist()]


@pytest.mark.parametrize("number,dtype", [(417, float), (418, complex)])
@pytest.mark.parametrize("seed", range(12))
def test_decimation_by_blocks(qv, number, dtype, seed):
    rng, export = np.random.default_rng(seed), getattr(qv, f"ZemFunc{number}")
    model, average, reset = Decimation(1 if dtype is float else 2), 0, 1
    for call in range(400):
        n = int(rng.choice([1, 1, 2, 3, 5, 8, 20, 60]))
        factor, offset = int(rng.choice([1, 2, 3, 4, 7, 30, 0, -5])), int(rng.choice([0, 0, 1, 2, 6, 31, 100, -1]))
        x = rng.standard_normal(n).astype(dtype)
        if dtype is complex:
            x += 1j * rng.standard_normal(n)
        if call:
            reset = int(rng.choice([1, -3])) if rng.random() < 0.06 else 0
        if reset:
            average = int(rng.choice([0, 1, 2**32 - 1]))
        before, count = x.copy(), np.array([-7], np.int64)
        for bad in (0, -1, -2**31):
            assert export(x, bad, factor, average, offset, 1, count) == -20003
        bad = int(rng.choice(TOO_LARGE))
        assert export(x, bad, factor, average, offset, 1, count) == -20046
        assert export(x, n, bad, average, offset, 1, count) == -20046
        assert count[0] == -7 and np.array_equal(x, before)
        status, c, out = model.block(parts_of(x), factor, average, offset, reset)
        assert export(x, n, factor, average, offset, reset, count) == status
        assert count[0] == c
        written = max(c, 0) if status == 0 else 0
        assert parts_of(x)[:written] == out[:written]
        assert np.array_equal(x[written:], before[written:])


def crossing(x, level, hysteresis, slope, state):
    h = abs(hysteresis)
    for i, v in enumerate(x):
        if state == 0:
            if (slope == 1 and v < level - h) or (slope == 0 and v > level + h):
                state = 1
        elif (slope == 1 and v >= level) or (slope == 0 and v <= level):
            return i, 1, 0
    return -1, 0, state


def samples(rng, n):
    x = rng.integers(-3, 4, n).astype(float)
    x[rng.random(n) < 0.05] = rng.choice([np.nan, np.inf, -np.inf])
    return x


@pytest.mark.parametrize("seed", range(12))
def test_crossings_of_one_channel(qv, seed):
    rng, state, reset = np.random.default_rng(seed), 0, 1
    for call in range(500):
        n = int(rng.choice([0, 1, 1, 2, 3, 9]))
        level, hysteresis = float(rng.choice([0.0, 1.0, -2.0, 0.5, np.nan])), float(rng.choice([0.0, 1.0, -1.0, 2.5, np.nan]))
        slope = int(rng.choice([0, 1, 1, 0, 2, -1]))
        x, index, found = samples(rng, n + 1), np.array([-7], np.int64), np.array([-7], np.int32)
        if call:
            reset = int(rng.choice([1, -1])) if rng.random() < 0.1 else 0
        assert qv.ZemFunc419(x, int(rng.choice(TOO_LARGE)), level, hysteresis, slope, 1, index, found) == -20046
        if rng.random() < 0.1:
            if reset:
                state = 0
            assert qv.ZemFunc419(x, int(rng.choice([-1, -2**31])), level, hysteresis, slope, reset, index, found) == -20004
            reset = 0
        if reset:
            state = 0
        expected_index, expected_found, state = crossing(x[:n], level, hysteresis, slope, state)
        assert qv.ZemFunc419(x, n, level, hysteresis, slope, reset, index, found) == 0
        assert (index[0], found[0]) == (expected_index, expected_found)


@pytest.mark.parametrize("seed", range(6))
def test_crossings_of_several_channels(qv, seed):
    rng, states, reset = np.random.default_rng(seed), None, 1
    for call in range(300):
        channels = int(rng.choice([1, 2, 3, 5])) if reset else len(states)
        n = int(rng.choice([1, 2, 3, 9]))
        x = samples(rng, channels * n)
        levels, hysteresis = rng.choice([0.0, 1.0, -2.0], channels), rng.choice([0.0, 1.0, -1.5, np.nan], channels)
        slopes = rng.choice([0, 1, 0, 1, 7], channels).astype(np.int32)
        indices, found = np.full(channels, -7, np.int64), np.full(channels, -7, np.int32)
        rest = (levels, hysteresis, slopes)
        for bad in (0, -1, -2**31):
            assert qv.ZemFunc420(x, bad, n, *rest, 1, indices, found) == -20003
            assert qv.ZemFunc420(x, channels, bad, *rest, 1, indices, found) == -20003
        bad = int(rng.choice(TOO_LARGE))
        assert qv.ZemFunc420(x, bad, 0, *rest, 1, indices, found) == -20046
        assert qv.ZemFunc420(x, 0, bad, *rest, 1, indices, found) == -20046
        if not reset:
            assert qv.ZemFunc420(x, channels + 1, n, *rest, 0, indices, found) == -20058
        if reset:
            states = [0] * channels
        expected = []
        for c in range(channels):
            i, f, states[c] = crossing(x[c * n:(c + 1) * n], levels[c], hysteresis[c], slopes[c], states[c])
            expected.append((i, f))
        assert qv.ZemFunc420(x, channels, n, *rest, reset, indices, found) == 0
        assert list(zip(indices, found)) == expected
        reset = int(rng.random() < 0.1)


def stays_inside(model, n, average):
    """Whether the samples that the next step names lie in the block, and no more are pending than make a block: after a
    change of mode neither need hold."""
    if model.pending > model.factor:
        return False
    if not average or not model.pending:
        return True
    c = (model.pending + n) // model.factor
    return c < 1 or model.offset + (c - 1) * model.factor <= n


@pytest.mark.parametrize("number,dtype", [(417, float), (418, complex)])
@pytest.mark.parametrize("seed", range(8))
def test_decimation_by_blocks_while_the_mode_changes(qv, number, dtype, seed):
    rng, export = np.random.default_rng((9, seed)), getattr(qv, f"ZemFunc{number}")
    model, switched, average = Decimation(1 if dtype is float else 2), 0, 0
    for call in range(600):
        n = int(rng.choice([1, 2, 3, 5, 8, 20, 60]))
        before, average = average, int(rng.integers(2))
        reset = int(call == 0 or rng.random() < 0.03 or model.offset < 0 or not stays_inside(model, n, average))
        # The greatest factors and offsets that fit: what stays in the state must not wrap.
        factor = int(rng.choice([1, 2, 3, 4, 7, 30, 2**31 - 1, 2**31 - 61]))
        offset = int(rng.choice([0, 0, 1, 2, 6, 31, 2**31 - 1, -2**31]))
        switched += not reset and average != before
        x = rng.standard_normal(n).astype(dtype)
        if dtype is complex:
            x += 1j * rng.standard_normal(n)
        x[rng.random(n) < 0.02] = rng.choice([-0.0, 1e308, -1e308, 5e-324])
        kept, count = x.copy(), np.array([-7], np.int64)
        status, c, out = model.block(parts_of(x), factor, average, offset, reset)
        assert export(x, n, factor, average, offset, reset, count) == status
        assert count[0] == c
        written = max(c, 0) if status == 0 else 0
        assert parts_of(x)[:written] == out[:written]
        assert np.array_equal(x[written:], kept[written:])
    assert switched > 100
