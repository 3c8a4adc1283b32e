"""The random streams of a thread over long mixed runs of calls, each step modelled, to the last bit.

A run calls all generators, sequences and shuffles in random turn, with seeds and resets of every kind and with calls that
are refused; the model keeps what the documentation says that a thread keeps. Several runs go on at once, each in a thread
of its own. ln Gamma and the inverse transform are the library's own exports.
"""

import math
import threading

import numpy as np
import pytest

import random_model
from exact import TOO_LARGE
from random_model import Stream

INT_MAX, INT_MIN = 2**31 - 1, -2**31


class Thread:
    """What a thread keeps, and what each export gives: a status and the output, None where it is untouched."""

    def __init__(self, qv):
        self.qv = qv
        self.ln_gamma = qv.ZemFunc312
        names = "gaussian uniform white periodic gamma poisson binomial bernoulli shuffle396 shuffle397 shuffle398"
        self.streams = {name: Stream() for name in names.split()}
        self.spare = None
        self.halton, self.weyl = None, None

    def uniform(self, n, seed):
        s = self.streams["uniform"]
        s.begin(seed)
        return (-20003, None) if n < 1 else (0, [s.uniform() for _ in range(n)])

    def white(self, n, amplitude, seed):
        s = self.streams["white"]
        s.begin(seed)
        return (-20003, None) if n < 1 else (0, [(s.uniform() - 0.5) * (amplitude * 2.0) for _ in range(n)])

    def gaussian(self, n, deviation, seed):
        s = self.streams["gaussian"]
        s.begin(seed)
        if seed > 0:
            self.spare = None
        if n < 1:
            return -20003, None
        out, self.spare = random_model.normals(s, n, deviation, self.spare)
        return 0, out

    def periodic(self, n, amplitude, seed):
        s = self.streams["periodic"]
        s.begin(seed)
        if n < 1:
            return -20003, None
        re, im = np.zeros(n), np.zeros(n)
        A = n * amplitude * 0.5
        for k in range(1, (n - 1) // 2 + 1):
            phase = float(s.phase15())
            re[k] = re[n - k] = A * math.cos(phase)
            im[k] = A * math.sin(phase)
            im[n - k] = -im[k]
        assert self.qv.ZemFunc148(re, im, n) == 0
        return 0, re

    def gamma(self, n, order, seed, reset):
        if n < 1:
            return -20003, None
        if order < 1:
            return -20140, None
        s = self.streams["gamma"]
        s.begin_with_reset(seed, reset)
        return 0, [random_model.gamma(s, order) for _ in range(n)]

    def poisson(self, n, m, seed, reset):
        if n < 1:
            return -20003, None
        if not 0 <= m < math.inf:
            return -20061, None
        s = self.streams["poisson"]
        s.begin_with_reset(seed, reset)
        return 0, [random_model.poisson(s, m, self.ln_gamma) for _ in range(n)]

    def binomial(self, n, N, p, seed, reset):
        if n < 1:
            return -20003, None
        if N < 0:
            return -20059, None
        if not 0 <= p <= 1:
            return (-20061 if p != p else -20053), None
        s = self.streams["binomial"]
        s.begin_with_reset(seed, reset)
        return 0, [random_model.binomial(s, N, p, self.ln_gamma) for _ in range(n)]

    def bernoulli(self, n, p, seed, reset):
        if n < 1:
            return -20003, None
        if not 0 <= p <= 1:
            return (-20061 if p != p else -20053), None
        s = self.streams["bernoulli"]
        s.begin_with_reset(seed, reset)
        return 0, [int(p - 0.5 > (s.uniform() - 0.5) * (0.5 * 2.0)) for _ in range(n)]

    def halton_sequence(self, n, base, reset):
        if n < 1:
            return -20003, None
        start = self.halton is None or reset != 0
        b = abs(base if start else self.halton[0])
        if b < 2:  # the library's own guard: no division by zero, and no loop without end
            return -20061, None
        if start:
            self.halton = [base, 0]
        r, out = 1.0 / b, []
        for i in range(n):
            m, total, w = self.halton[1] + i, 0.0, r
            while True:
                total += (m % b) * w
                w *= r
                m //= b
                if m == 0:
                    break
            out.append(total)
        self.halton[1] += n
        return 0, out

    def weyl_sequence(self, n, step, reset):
        if n < 1:
            return -20003, None
        if self.weyl is None or reset != 0:
            self.weyl = [step, 0.0]
        v, out = self.weyl[1], []
        for _ in range(n):
            v -= math.floor(v)
            out.append(v)
            v += abs(self.weyl[0])
        self.weyl[1] = v - math.floor(v)
        return 0, out

    def shuffle(self, number, n, seed):
        """The permutation."""
        if n < 1:
            return -20003, None
        s = self.streams[f"shuffle{number}"]
        s.begin(seed)
        return 0, random_model.order(s, n)


SEEDS = [0, 0, 0, -1, -7, INT_MIN, 1, 5, 7, 16384, 30269, 12558213, 1 << 30, INT_MAX]
SIZES = [1, 1, 2, 3, 7, 20, 63, 64, 65, 130, 300, 0, -1, INT_MIN]


def step(rng, qv, model):
    """One call with what the model says of it."""
    n, seed, reset = (int(rng.choice(choice)) for choice in (SIZES, SEEDS, [0, 0, 0, 1, -1, INT_MIN]))
    kind = rng.choice(["uniform", "white", "gaussian", "periodic", "gamma", "poisson", "binomial", "bernoulli", "halton",
                       "weyl", "shuffle"])
    room, dtype = max(n, 1), np.int32 if kind in ("binomial", "bernoulli") else float
    number = int(rng.choice([396, 397, 398]))
    stream = model.streams.get(f"shuffle{number}" if kind == "shuffle" else kind)
    if seed < 0 and stream and stream.first and kind in ("uniform", "white", "gaussian", "periodic", "shuffle"):
        seed = 0  # a first call with a negative seed would ask the clock
    if seed == 16384 and kind in ("gamma", "gaussian"):
        seed = 3  # two components of 0: a fair loop, but a long one
    out = np.full(room, -9, dtype)
    if kind == "shuffle":
        data = np.arange(room).astype({396: np.float64, 397: np.complex128, 398: np.int32}[number])
        perm = np.full(room, -9, np.int64) if rng.random() < 0.7 else None
        given = rng.choice(TOO_LARGE) if rng.random() < 0.05 else None
        if given is not None:
            assert getattr(qv, f"ZemFunc{number}")(data, int(given), seed, perm) == -20046
        status, order = model.shuffle(number, n, seed)
        assert getattr(qv, f"ZemFunc{number}")(data, n, seed, perm) == status
        order = list(range(room)) if order is None else order
        assert [int(v.real) for v in data] == order
        if perm is not None:
            assert list(perm) == (order if status == 0 else [-9] * room)
        return
    a = {"white": lambda: (float(rng.choice([1.7, -2.5, 0.0, 1e308])),),
         "gaussian": lambda: (float(rng.choice([1.0, -3.0, 0.0])),),
         "periodic": lambda: (float(rng.choice([1.0, -3.0, 0.0])),),
         "gamma": lambda: (int(rng.choice([1, 2, 5, 6, 7, 40, 0, INT_MIN])),),
         "poisson": lambda: (float(rng.choice([0.0, 0.3, 11.9, 12.0, 80.5, -1e-300, np.nan, np.inf])),),
         "binomial": lambda: (int(rng.choice([0, 1, 24, 25, 30, 200, 5000, -1])),
                              float(rng.choice([0.0, 0.01, 0.3, 0.5, 0.7, 0.999, 1.0, 1.0000001, -1e-9, np.nan]))),
         "bernoulli": lambda: (float(rng.choice([0.0, 0.3, 0.5, 0.9, 1.0, 1.5, -0.1, np.nan])),),
         "halton": lambda: (int(rng.choice([2, -2, 3, 10, 29, 65537, INT_MAX, INT_MIN, 0, 1, -1])),),
         "weyl": lambda: (float(rng.choice([0.3, -0.3, 0.6180339887498949, 7.25, 1e6 + 0.1, 0.0])),),
         "uniform": lambda: ()}[kind]()
    export, expect, seeds = {
        "uniform": (qv.ZemFunc182, model.uniform, (seed,)), "white": (qv.ZemFunc185, model.white, (seed,)),
        "gaussian": (qv.ZemFunc84, model.gaussian, (seed,)), "periodic": (qv.ZemFunc387, model.periodic, (seed,)),
        "gamma": (qv.ZemFunc388, model.gamma, (seed, reset)), "poisson": (qv.ZemFunc389, model.poisson, (seed, reset)),
        "binomial": (qv.ZemFunc390, model.binomial, (seed, reset)),
        "bernoulli": (qv.ZemFunc414, model.bernoulli, (seed, reset)),
        "halton": (qv.ZemFunc412, model.halton_sequence, (reset,)),
        "weyl": (qv.ZemFunc413, model.weyl_sequence, (reset,))}[kind]
    if rng.random() < 0.1:  # a size that does not fit changes nothing, whatever stands beside it
        assert export(int(rng.choice(TOO_LARGE)), *a, *seeds, out) == -20046
        assert (out == -9).all()
    status, expected = expect(n, *a, *seeds)
    assert export(n, *a, *seeds, out) == status, (kind, n, a, seeds)
    expected = np.full(room, -9, dtype) if expected is None else np.array(expected, dtype)
    assert out.tobytes() == expected.tobytes(), (kind, n, a, seeds)


@pytest.mark.parametrize("seed", range(4))
def test_threads_keep_their_streams_over_any_run_of_calls(qv, seed):
    failures, calls = [], 400

    def run(number):
        rng, model = np.random.default_rng((seed, number)), Thread(qv)
        try:
            for _ in range(calls):
                step(rng, qv, model)
        except BaseException as failure:
            failures.append(failure)
            raise
    threads = [threading.Thread(target=run, args=(number,)) for number in range(3)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not failures


def in_fresh_thread(check):
    failures = []

    def run():
        try:
            check()
        except BaseException as failure:
            failures.append(failure)
    thread = threading.Thread(target=run)
    thread.start()
    thread.join()
    if failures:
        raise failures[0]


def test_a_negative_first_seed_takes_the_clock_and_goes_on(qv):
    """All that the clock can give are seeds of 14 bits; one of them explains the first values and the ones that follow."""
    def check():
        first, more = np.empty(20), np.empty(20)
        assert qv.ZemFunc182(20, -1, first) == 0
        assert qv.ZemFunc182(20, INT_MIN, more) == 0
        for seed in range(1 << 14):
            s = Stream()
            s.seed(seed)
            if s.uniform() == first[0] and [s.uniform() for _ in range(39)] == list(first[1:]) + list(more):
                return
        raise AssertionError("no seed explains the values")
    in_fresh_thread(check)


@pytest.mark.parametrize("n", [0, -1, INT_MIN])
def test_a_refused_first_call_has_taken_the_clock_for_a_seed_alone_and_nothing_for_shuffles(qv, n):
    starts = set()

    def check(seed):
        out = np.full(3, -9.0)
        assert qv.ZemFunc185(n, 1.0, seed, out) == -20003
        assert (out == -9).all()
        assert qv.ZemFunc185(3, 0.5, seed, out) == 0
        starts.add(tuple(out))
        # The shuffle has kept its first call: seed 0 starts from the defaults.
        data = np.arange(9.0)
        assert qv.ZemFunc396(data, n, -1, None) == -20003
        assert qv.ZemFunc396(data, 9, 0, None) == 0
        assert data.tolist() == Thread(qv).shuffle(396, 9, 0)[1]
    for seed in range(-1, -6, -1):
        in_fresh_thread(lambda: check(seed))
    # Without the clock all would start alike.
    assert len(starts) > 1
