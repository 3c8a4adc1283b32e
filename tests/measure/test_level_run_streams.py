"""Runs at or above a level over streams of random blocks: what a thread keeps, step by step."""

import numpy as np
import pytest

from exact import TOO_LARGE, every_size, fits


class Runs:
    def __init__(self):
        self.begin()

    def begin(self):
        self.base, self.start, self.reported = 0, -1, False

    def block(self, x, threshold, width, reset, last):
        """Status and the positions told."""
        n, told = len(x), []
        if width < 1 or width > 0x40000000:
            return -20013, None
        if reset:
            self.begin()
        i = 0
        if self.start >= 0:
            while i < n and x[i] >= threshold:
                i += 1
            if not self.reported and i - self.start + self.base >= width:
                told.append(self.start)
                self.reported = True
            if i < n:
                self.start, self.reported = -1, False
        while i < n:
            if not x[i] >= threshold:
                i += 1
                continue
            begin = i
            while i < n and x[i] >= threshold:
                i += 1
            if i - begin >= width:
                told.append(begin + self.base)
            if i == n:
                self.start, self.reported = begin + self.base, i - begin >= width
        if last:
            self.begin()
        else:
            self.base += n
        return 0, told


@pytest.mark.parametrize("seed", range(12))
def test_runs_by_blocks(qv, seed):
    rng, model, reset = np.random.default_rng(seed), Runs(), 1
    for call in range(500):
        n = int(rng.choice([0, 1, 1, 2, 3, 10, 40]))
        x = rng.choice([0.0, 1.0, 1.0, 2.0, 2.0, 2.0, np.nan], n)
        threshold = float(rng.choice([1.0, 1.0, 2.0, -np.inf, np.nan], p=[0.5, 0.2, 0.2, 0.05, 0.05]))
        # A refused block would not reset what an earlier test has left.
        width = int(rng.choice([1, 2, 3, 5, 30, 2**30, 0, -1, 2**30 + 1, -2**31])) if call else 3
        last = int(rng.choice([0] * 15 + [1, -3]))
        if call:
            reset = int(rng.choice([1, -1])) if rng.random() < 0.05 else 0
        room = n // max(width, 1) + 1
        indices, count = np.full(room, -7, np.int64), np.array([-7], np.int64)
        given = indices if rng.random() < 0.8 else None
        # Nothing changes after a failure, also with a reset.
        for bad in (-1, -2**31):
            assert qv.ZemFunc493(x, bad, threshold, width, 1, 1, given, count) == -20003
        bad = int(rng.choice(TOO_LARGE))
        assert qv.ZemFunc493(x, bad, threshold, width, 1, 1, given, count) == -20046
        assert qv.ZemFunc493(x, n, threshold, bad, 1, 1, given, count) == -20046
        status, told = model.block(x.tolist(), threshold, width, reset, last)
        assert qv.ZemFunc493(x, n, threshold, width, reset, last, given, count) == status
        if told is None:
            told = []
            assert count[0] == -7
        else:
            assert count[0] == len(told)
        assert list(indices[:len(told)]) == told if given is not None else True
        assert np.all(indices[len(told) if given is not None else 0:] == -7)


@pytest.mark.parametrize("seed", range(6))
def test_runs_of_one_array(qv, seed):
    rng = np.random.default_rng(seed)
    for _ in range(300):
        n, width = int(rng.choice([2, 3, 4, 10, 60])), int(rng.choice([1, 2, 3, 5]))
        x = rng.choice([0.0, 1.0, 2.0, 2.0, np.nan], n)
        indices, count = np.full(n // width + 1, -7, np.int64), np.array([-7], np.int64)
        status = qv.ZemFunc237(x, n, 1.0, width, indices, count)
        if width >= n:
            assert status == -20013
            continue
        # One block that is the first and the last of its stream, with no run left open by an earlier one.
        expected = Runs().block(x.tolist(), 1.0, width, 1, 1)[1]
        assert status == 0 and count[0] == len(expected) and list(indices[:len(expected)]) == expected
        assert np.all(indices[len(expected):] == -7)


def test_runs_of_every_size_and_width(qv):
    x = np.array([0.0, 1, 1, 0, 1])
    for n, width in every_size(2):
        if width == 0 or n > len(x) and 0 < width < n < 2**31:
            continue  # a division by zero, or samples that are not there
        room = abs(n) // abs(width) * (1 if (n < 0) == (width < 0) else -1) + 1
        indices, count = np.full(5, -7, np.int64), np.full(1, -7, np.int64)
        told = []
        if not fits(n, width):
            expected = -20046, -7
        elif room < 1:
            expected = -20003, -7
        elif n < 1:
            expected = -20003, 0
        elif not 0 < width < n:
            expected = -20013, 0
        else:
            told = Runs().block(x[:n].tolist(), 0.5, width, 1, 1)[1]
            expected = 0, len(told)
        # Room for the indices is asked before the samples are looked at.
        for given in (indices, None) if room < 2**20 else (None,):
            assert (qv.ZemFunc237(x, n, 0.5, width, given, count), count[0]) == expected, (n, width)
            count[0] = -7
        assert list(indices) == (told + [-7] * 5)[:5]
