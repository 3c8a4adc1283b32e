"""The random core and its variates, one draw at a time in Python integers with explicit 32-bit wraps.

Sines, logarithms and exponentials are the C library's, as those of the library: a difference of one bit is a difference
of the evaluation. ln Gamma is given.
"""

import math


def wrapped(value):
    return (value + 2**31) % 2**32 - 2**31


def remainder(value, modulus):
    """Of truncating division."""
    return -(-value % modulus) if value < 0 else value % modulus


class Stream:
    def __init__(self, seed=0):
        self.first = True
        self.defaults()
        self.seed(seed)

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
        if self.first or reset != 0:
            self.defaults()
            if seed > 0:
                self.seed(seed)
        self.first = False


def normals(stream, n, deviation, spare=None):
    """The outputs, and the deviate that waits for the next one."""
    out = []
    for _ in range(n):
        if spare is None:
            s = 1.0
            while s >= 1 or s == 0:
                u1 = 2 * stream.uniform() - 1
                u2 = 2 * stream.uniform() - 1
                s = u2 * u2 + u1 * u1
            f = math.sqrt(-2 * math.log(s) / s)
            value, spare = f * u2, f * u1
        else:
            value, spare = spare, None
        out.append(value * deviation)
    return out, spare


def gamma(stream, a):
    if a < 6:
        product = 1.0
        for _ in range(a):
            product *= stream.uniform()
        return -math.log(product)
    am = a - 1.0
    s = math.sqrt(2 * am + 1)
    while True:
        v1 = v2 = 1.0
        while v1 * v1 + v2 * v2 > 1:
            v1 = 2 * stream.uniform() - 1
            v2 = 2 * stream.uniform() - 1
        y = v2 / v1
        em = s * y + am
        if em <= 0:
            continue
        w = stream.uniform()
        if w <= math.exp(math.log(em / am) * am - s * y) * (y * y + 1):
            return em


def poisson(stream, m, ln_gamma):
    if m < 12:
        limit, k, t = math.exp(-m), -1.0, 1.0
        while True:
            k += 1
            t *= stream.uniform()
            if not t > limit:
                return k
    sq, lm, g = math.sqrt(2 * m), math.log(m), ln_gamma(m + 1)
    while True:
        y = math.tan(math.pi * stream.uniform())
        while y * sq + m < 0:
            y = math.tan(math.pi * stream.uniform())
        em = float(math.floor(y * sq + m))
        t = math.exp(lm * em - ln_gamma(em + 1) - (lm * m - g))
        if stream.uniform() <= t * (y * y + 1) * 0.9:
            return em


def rarer(stream, N, pp, ln_gamma):
    """Binomial with a probability of at most 1/2."""
    mean = N * pp
    if N < 25:
        return sum(stream.uniform() < pp for _ in range(N))
    if mean < 1:
        g, t, j = math.exp(-mean), 1.0, 0
        while True:
            t *= stream.uniform()
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
            y = math.tan(math.pi * stream.uniform())
            em = y * sq + mean
        em = float(math.floor(em))
        t = math.exp(ln_gamma(N + 1.0) - ln_gamma(em + 1) - ln_gamma(N - em + 1) + em * lp
                     + (N - em) * lq) * ((y * y + 1) * (sq * 1.2))
        if stream.uniform() <= t:
            return em


def binomial(stream, N, p, ln_gamma):
    pp = p if p <= 0.5 else 1 - p
    value = rarer(stream, N, pp, ln_gamma)
    return int(N - value if pp != p else value)


def order(stream, n):
    """Of a shuffle: the input element at each place."""
    p = list(range(n))
    for i in range(n - 1, 0, -1):
        j = math.floor(stream.uniform() * (i + 1))
        p[i], p[j] = p[j], p[i]
    return p
