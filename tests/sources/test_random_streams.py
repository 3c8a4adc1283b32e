"""The random streams of a thread over long mixed runs of calls, each step modelled, to the last bit.

A run calls all generators, sequences and shuffles in random turn, with seeds and resets of every kind and with calls that
are refused; the model keeps what the documentation says that a thread keeps. Several runs go on at once, each in a thread
of its own. Functions are the C library's, ln Gamma and the inverse transform are the library's own exports.
"""

import math
import threading

import numpy as np
import pytest

INT_MAX, INT_MIN = 2**31 - 1, -2**31
TOO_LARGE = [2**31, -2**31 - 1, 2**32, 2**32 + 5, 2**63 - 1]


def wrapped(value):
    return (value + 2**31) % 2**32 - 2**31


def remainder(value, modulus):
    """Of truncating division."""
    return -(-value % modulus) if value < 0 else value % modulus


class Stream:
    def __init__(self):
        self.first = True
        self.defaults()

    def defaults(self):
        self.x, self.y, self.z = 1234, 2345, 3456

    def seed(self, seed):
        if seed != 0:
            self.x, self.y = seed, (seed * 8191) & 0x3FFF
            self.z = (self.y * 8191) & 0x3FFF

    def combined(self):
        self.x = remainder(wrapped(171 * self.x), 30269)
        self.y = remainder(wrapped(172 * self.y), 30307)
        self.z = remainder(wrapped(170 * self.z), 30323)
        v = self.y * 3.2995677566238825e-5 + self.x * 3.3037100664045725e-5
        return v + self.z * 3.297826732183491e-5

    def uniform(self):
        v = self.combined()
        return v - float(math.floor(v))

    def phase15(self):
        v = self.combined()
        return int((v - float(math.trunc(v))) * 32768.0)

    def begin(self, seed):
        """With a seed alone; a negative one at the first call, the clock's, is not modelled."""
        assert not (self.first and seed < 0)
        self.first = False
        if seed >= 0:
            self.seed(seed)

    def begin_with_reset(self, seed, reset):
        """Whether the stream starts anew."""
        start = self.first or reset != 0
        if start:
            self.defaults()
            if seed > 0:
                self.seed(seed)
        self.first = False
        return start


class Thread:
    """What a thread keeps, and what each export gives: a status and the output, None where it is untouched."""

    def __init__(self, qv):
        self.qv = qv
        self.ln_gamma = qv.ZemFunc312
        names = "gaussian uniform white periodic gamma poisson binomial bernoulli shuffle396 shuffle397 shuffle398"
        self.streams = {name: Stream() for name in names.split()}
        self.spare = None
        self.cache = (None, None)  # probability and number of trials that the logarithms hold for
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
        out = []
        for _ in range(n):
            if self.spare is None:
                r = 1.0
                while r >= 1 or r == 0:
                    u1 = 2 * s.uniform() - 1
                    u2 = 2 * s.uniform() - 1
                    r = u2 * u2 + u1 * u1
                f = math.sqrt(-2 * math.log(r) / r)
                value, self.spare = f * u2, f * u1
            else:
                value, self.spare = self.spare, None
            out.append(value * deviation)
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
        return 0, [self.one_gamma(s, order) for _ in range(n)]

    def one_gamma(self, s, a):
        if a < 6:
            product = 1.0
            for _ in range(a):
                product *= s.uniform()
            return -math.log(product)
        am = a - 1.0
        root = math.sqrt(2 * am + 1)
        while True:
            v1 = v2 = 1.0
            while v1 * v1 + v2 * v2 > 1:
                v1 = 2 * s.uniform() - 1
                v2 = 2 * s.uniform() - 1
            y = v2 / v1
            em = root * y + am
            if em <= 0:
                continue
            w = s.uniform()
            if w <= math.exp(math.log(em / am) * am - root * y) * (y * y + 1):
                return em

    def poisson(self, n, m, seed, reset):
        if n < 1:
            return -20003, None
        if not 0 <= m < math.inf:
            return -20061, None
        s = self.streams["poisson"]
        s.begin_with_reset(seed, reset)
        return 0, [self.one_poisson(s, m) for _ in range(n)]

    def one_poisson(self, s, m):
        if m < 12:
            limit, k, t = math.exp(-m), -1.0, 1.0
            while True:
                k += 1
                t *= s.uniform()
                if not t > limit:
                    return k
        sq, lm, g = math.sqrt(2 * m), math.log(m), self.ln_gamma(m + 1)
        while True:
            y = math.tan(math.pi * s.uniform())
            while y * sq + m < 0:
                y = math.tan(math.pi * s.uniform())
            em = float(math.floor(y * sq + m))
            t = math.exp(lm * em - self.ln_gamma(em + 1) - (lm * m - g))
            if s.uniform() <= t * (y * y + 1) * 0.9:
                return em

    def binomial(self, n, N, p, seed, reset):
        if n < 1:
            return -20003, None
        if N < 0:
            return -20059, None
        if not 0 <= p <= 1:
            return (-20061 if p != p else -20053), None
        s = self.streams["binomial"]
        s.begin_with_reset(seed, reset)
        pp = p if p <= 0.5 else 1 - p
        out = [self.one_binomial(s, N, pp) for _ in range(n)]
        return 0, [int(N - v if pp != p else v) for v in out]

    def one_binomial(self, s, N, pp):
        mean = N * pp
        if N < 25:
            return sum(s.uniform() < pp for _ in range(N))
        if mean < 1:
            g, t, j = math.exp(-mean), 1.0, 0
            while True:
                t *= s.uniform()
                if t < g:
                    break
                j += 1
                if not j <= N:
                    break
            return min(N, j)
        q, lp, lq = 1 - pp, math.log(pp), math.log(1 - pp)
        sq = math.sqrt(2 * mean * q)
        while True:
            em = -1.0
            while em < 0 or em >= N + 1.0:
                y = math.tan(math.pi * s.uniform())
                em = y * sq + mean
            em = float(math.floor(em))
            t = math.exp(self.ln_gamma(N + 1.0) - self.ln_gamma(em + 1) - self.ln_gamma(N - em + 1) + em * lp
                         + (N - em) * lq) * ((y * y + 1) * (sq * 1.2))
            if s.uniform() <= t:
                return em

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
        p = list(range(n))
        for i in range(n - 1, 0, -1):
            j = math.floor(s.uniform() * (i + 1))
            p[i], p[j] = p[j], p[i]
        return 0, p


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
