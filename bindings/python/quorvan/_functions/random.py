r"""Noise, low-discrepancy sequences and shuffles.

Noise of several distributions, sequences that fill the unit interval evenly, and shuffles.

    core       u = frac(s1 / 30269 + s2 / 30307 + s3 / 30323),  s1 <- 171 s1 mod 30269,  s2 <- 172 s2,  s3 <- 170 s3
    uniform    u in [0, 1)
    white      (u - 1/2) 2 amplitude
    Gaussian   deviation v sqrt(-2 ln q / q),   q = v^2 + w^2 < 1 from two uniforms in [-1, 1)
    Halton     digits of 0, 1, 2, ... in the base, mirrored at the point
    Weyl       frac(i step)

Each generator keeps a stream of its own for each thread: kinds called in turn do not disturb each other, and
two threads never share one. The core adds three congruential generators modulo 1 (Wichmann and Hill 1982).

A seed alone: a positive one restarts the stream at every call, 0 goes on (at first from the fixed default), a
negative one takes the clock on the thread's first call of that generator and goes on later. The seed is
applied before n is tested.

A seed with a reset: the first call of the thread and every call with a reset start the stream anew, from the
seed if it is positive, else from the fixed default, also for negative seeds; any other call goes on whatever
its seed.

Seeding from the clock goes through srand and rand of the C library, whose state the process shares where the
system has it so. Four seeds (multiples of 16384) make every draw 0; what could then never end refuses them
with -20061.

Generated from exports/table by tools/python_binding.py; do not edit.
"""

import ctypes
from typing import NamedTuple

import numpy as np

from .. import _runtime as rt
from .._selections import *

__all__ = [
    "uniform_noise",
    "white_noise",
    "gaussian_noise",
    "periodic_random_noise",
    "shuffle_real",
    "shuffle_complex",
    "shuffle_int",
    "gamma_noise",
    "poisson_noise",
    "binomial_noise",
    "bernoulli_noise",
    "halton_sequence",
    "weyl_sequence",
    "ShuffleRealResult",
    "ShuffleComplexResult",
    "ShuffleIntResult",
]
_max, _min = max, min

_ZemFunc182 = rt.bind("ZemFunc182", "status", "lip")


def uniform_noise(n, seed=0, *, out=None):
    r"""Uniform noise in [0, 1): draws of the core generator.

    Parameters
    ----------
    n : int
        samples
    seed : int, default 0
        positive restarts, 0 goes on, negative takes the clock once
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc182 (GenUniformNoise) of the C library.

    Example
    -------
    >>> out = qv.uniform_noise(n)
    """
    n = rt.i64(n, "n")
    seed = rt.i32(seed, "seed")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc182(n, seed, rt.pointer(out_))
    rt.check(status, "uniform_noise")
    return rt.deliver(out_, out)


_ZemFunc185 = rt.bind("ZemFunc185", "status", "ldip")


def white_noise(n, amplitude, seed=0, *, out=None):
    r"""Uniform white noise in [-amplitude, amplitude): (u - 0.5) (2 amplitude) for draws u.

    Parameters
    ----------
    n : int
        samples
    amplitude : float
        half the width; its sign is kept
    seed : int, default 0
        positive restarts, 0 goes on, negative takes the clock once
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc185 (GenWhiteNoise) of the C library.

    Example
    -------
    >>> out = qv.white_noise(n, amplitude)
    """
    n = rt.i64(n, "n")
    amplitude = rt.real(amplitude, "amplitude")
    seed = rt.i32(seed, "seed")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc185(n, amplitude, seed, rt.pointer(out_))
    rt.check(status, "white_noise")
    return rt.deliver(out_, out)


_ZemFunc84 = rt.bind("ZemFunc84", "status", "ldip")


def gaussian_noise(n, deviation, seed=0, *, out=None):
    r"""Normal noise of mean 0 by the polar method (Marsaglia and Bray 1964).

    Deviates come in pairs; the second one waits for the next output, also of a later call.

    Parameters
    ----------
    n : int
        samples
    deviation : float
        standard deviation; any number, it is a plain factor
    seed : int, default 0
        positive restarts and drops the waiting deviate, 0 goes on, negative takes the clock once
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the stream stands at 0
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc84 (GenGaussianNoise) of the C library.

    Example
    -------
    >>> out = qv.gaussian_noise(n, deviation)
    """
    n = rt.i64(n, "n")
    deviation = rt.real(deviation, "deviation")
    seed = rt.i32(seed, "seed")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc84(n, deviation, seed, rt.pointer(out_))
    rt.check(status, "gaussian_noise")
    return rt.deliver(out_, out)


_ZemFunc387 = rt.bind("ZemFunc387", "status", "ldip")


def periodic_random_noise(n, amplitude, seed=0, *, out=None):
    r"""Noise of period n: the sum of cosines of one amplitude and random phases at all lines between zero frequency
    and half the sampling rate, without both.

    Parameters
    ----------
    n : int
        samples, one period
    amplitude : float
        of each spectral line
    seed : int, default 0
        positive restarts, 0 goes on, negative takes the clock once
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc387 (GenPeriodicRandomNoise) of the C library.

    Example
    -------
    >>> out = qv.periodic_random_noise(n, amplitude)
    """
    n = rt.i64(n, "n")
    amplitude = rt.real(amplitude, "amplitude")
    seed = rt.i32(seed, "seed")
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc387(n, amplitude, seed, rt.pointer(out_))
    rt.check(status, "periodic_random_noise")
    return rt.deliver(out_, out)


_ZemFunc396 = rt.bind("ZemFunc396", "status", "plip")


class ShuffleRealResult(NamedTuple):
    """What `shuffle_real` gives."""

    data: np.ndarray
    perm: np.ndarray


def shuffle_real(data, seed=0, *, out=None):
    r"""Puts an array in random order (Fisher and Yates, from the last place down).

    The draws do not depend on perm.

    Parameters
    ----------
    data : array_like of float64, shape (n,)
    seed : int, default 0
        positive restarts, 0 goes on, negative takes the clock once
    out : tuple or None
        arrays for `data`, `perm`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    data : float64 array of shape (n,)
        the result
    perm : int64 array of shape (n,)
        perm[i] is the input element that now stands at place i

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    Complex arrays go to `shuffle_complex`. The function ZemFunc396 (RngShuffleReal) of the C library.

    Example
    -------
    >>> data, perm = qv.shuffle_real(data)
    """
    if rt.is_complex(data):
        return shuffle_complex(data=data, seed=seed, out=out)
    _out = rt.outs(out, 2, "shuffle_real")
    data = rt.array(data, rt.F8, 1, "data")
    n = data.shape[0]
    seed = rt.i32(seed, "seed")
    data_ = rt.worked(data, _out[0])
    perm_ = rt.result(_out[1], (n,), rt.I8, (data,))
    status = _ZemFunc396(rt.pointer(data_), n, seed, rt.pointer(perm_))
    rt.check(status, "shuffle_real")
    return ShuffleRealResult(rt.deliver(data_, _out[0]), rt.deliver(perm_, _out[1]))


_ZemFunc397 = rt.bind("ZemFunc397", "status", "plip")


class ShuffleComplexResult(NamedTuple):
    """What `shuffle_complex` gives."""

    data: np.ndarray
    perm: np.ndarray


def shuffle_complex(data, seed=0, *, out=None):
    r"""`shuffle_real` for complex numbers, with a stream of its own.

    Parameters
    ----------
    data : array_like of complex128, shape (n,)
    seed : int, default 0
        positive restarts, 0 goes on, negative takes the clock once
    out : tuple or None
        arrays for `data`, `perm`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    data : complex128 array of shape (n,)
        the result
    perm : int64 array of shape (n,)
        perm[i] is the input element that now stands at place i

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc397 (RngShuffleComplex) of the C library.

    Example
    -------
    >>> data, perm = qv.shuffle_complex(data)
    """
    _out = rt.outs(out, 2, "shuffle_complex")
    data = rt.array(data, rt.C16, 1, "data")
    n = data.shape[0]
    seed = rt.i32(seed, "seed")
    data_ = rt.worked(data, _out[0])
    perm_ = rt.result(_out[1], (n,), rt.I8, (data,))
    status = _ZemFunc397(rt.pointer(data_), n, seed, rt.pointer(perm_))
    rt.check(status, "shuffle_complex")
    return ShuffleComplexResult(rt.deliver(data_, _out[0]), rt.deliver(perm_, _out[1]))


_ZemFunc398 = rt.bind("ZemFunc398", "status", "plip")


class ShuffleIntResult(NamedTuple):
    """What `shuffle_int` gives."""

    data: np.ndarray
    perm: np.ndarray


def shuffle_int(data, seed=0, *, out=None):
    r"""`shuffle_real` for integers, with a stream of its own.

    Parameters
    ----------
    data : array_like of int32, shape (n,)
    seed : int, default 0
        positive restarts, 0 goes on, negative takes the clock once
    out : tuple or None
        arrays for `data`, `perm`, or None for one to be made; each may be an input, to work in place

    Returns
    -------
    data : int32 array of shape (n,)
        the result
    perm : int64 array of shape (n,)
        perm[i] is the input element that now stands at place i

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20001: memory is exhausted

    Notes
    -----
    The function ZemFunc398 (RngShuffleInt) of the C library.

    Example
    -------
    >>> data, perm = qv.shuffle_int(data)
    """
    _out = rt.outs(out, 2, "shuffle_int")
    data = rt.array(data, rt.I4, 1, "data")
    n = data.shape[0]
    seed = rt.i32(seed, "seed")
    data_ = rt.worked(data, _out[0])
    perm_ = rt.result(_out[1], (n,), rt.I8, (data,))
    status = _ZemFunc398(rt.pointer(data_), n, seed, rt.pointer(perm_))
    rt.check(status, "shuffle_int")
    return ShuffleIntResult(rt.deliver(data_, _out[0]), rt.deliver(perm_, _out[1]))


_ZemFunc388 = rt.bind("ZemFunc388", "status", "liiip")


def gamma_noise(n, order, seed=0, reset=False, *, out=None):
    r"""Gamma variates of integer order: -ln of a product of uniform draws below order 6, else rejection under a
    Lorentzian (Ahrens and Dieter 1974).

    Parameters
    ----------
    n : int
        samples
    order : int
        the waiting time for so many events of rate 1
    seed : int, default 0
        of a first or resetting call
    reset : bool, default False
        true starts the stream anew
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20140: order is below 1
        -20061: the stream stands at 0, from order 6 on
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc388 (GenGammaNoise) of the C library.

    Example
    -------
    >>> out = qv.gamma_noise(n, order)
    """
    n = rt.i64(n, "n")
    order = rt.i32(order, "order")
    seed = rt.i32(seed, "seed")
    reset = int(bool(reset))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc388(n, order, seed, reset, rt.pointer(out_))
    rt.check(status, "gamma_noise")
    return rt.deliver(out_, out)


_ZemFunc389 = rt.bind("ZemFunc389", "status", "ldiip")


def poisson_noise(n, mean, seed=0, reset=False, *, out=None):
    r"""Poisson variates, whole numbers: a product of uniform draws against exp(-mean) below a mean of 12, else
    rejection under a Lorentzian.

    Parameters
    ----------
    n : int
        samples
    mean : float
        events expected
    seed : int, default 0
        of a first or resetting call
    reset : bool, default False
        true starts the stream anew
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: mean is negative, infinite or NaN, or so large that ln Gamma(mean + 1) overflows
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc389 (GenPoissonNoise) of the C library.

    Example
    -------
    >>> out = qv.poisson_noise(n, mean)
    """
    n = rt.i64(n, "n")
    mean = rt.real(mean, "mean")
    seed = rt.i32(seed, "seed")
    reset = int(bool(reset))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc389(n, mean, seed, reset, rt.pointer(out_))
    rt.check(status, "poisson_noise")
    return rt.deliver(out_, out)


_ZemFunc390 = rt.bind("ZemFunc390", "status", "lidiip")


def binomial_noise(n, trials, probability, seed=0, reset=False, *, out=None):
    r"""Binomial variates, numbers of successes: by single trials below 25 of them, by the Poisson product for a mean
    below 1 of the rarer outcome, else by rejection under a Lorentzian.

    Parameters
    ----------
    n : int
        samples
    trials : int
        in one sample
    probability : float
        of a success
    seed : int, default 0
        of a first or resetting call
    reset : bool, default False
        true starts the stream anew
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : int32 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20059: trials is negative
        -20053: probability is outside [0, 1]
        -20061: probability is NaN
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc390 (GenBinomialNoise) of the C library.

    Example
    -------
    >>> out = qv.binomial_noise(n, trials, probability)
    """
    n = rt.i64(n, "n")
    trials = rt.i32(trials, "trials")
    probability = rt.real(probability, "probability")
    seed = rt.i32(seed, "seed")
    reset = int(bool(reset))
    out_ = rt.result(out, (n,), rt.I4, ())
    status = _ZemFunc390(n, trials, probability, seed, reset, rt.pointer(out_))
    rt.check(status, "binomial_noise")
    return rt.deliver(out_, out)


_ZemFunc414 = rt.bind("ZemFunc414", "status", "ldiip")


def bernoulli_noise(n, probability, seed=0, reset=False, *, out=None):
    r"""Ones with the given probability, else zeros: 1 where probability - 0.5 exceeds white noise of amplitude 0.5.

    Parameters
    ----------
    n : int
        samples
    probability : float
        of a 1
    seed : int, default 0
        of a first or resetting call
    reset : bool, default False
        true starts the stream anew
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : int32 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20053: probability is outside [0, 1]
        -20061: probability is NaN
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc414 (GenBernoulliNoise) of the C library.

    Example
    -------
    >>> out = qv.bernoulli_noise(n, probability)
    """
    n = rt.i64(n, "n")
    probability = rt.real(probability, "probability")
    seed = rt.i32(seed, "seed")
    reset = int(bool(reset))
    out_ = rt.result(out, (n,), rt.I4, ())
    status = _ZemFunc414(n, probability, seed, reset, rt.pointer(out_))
    rt.check(status, "bernoulli_noise")
    return rt.deliver(out_, out)


_ZemFunc412 = rt.bind("ZemFunc412", "status", "liip")


def halton_sequence(n, base, reset=False, *, out=None):
    r"""The radical inverse of consecutive integers (van der Corput 1935, Halton 1960): their digits in the base,
    mirrored at the point.

    It starts with 0 and fills [0, 1) evenly. The integers have 32 bits and turn negative behind 2^31 - 1; then a
    reset is needed.

    Parameters
    ----------
    n : int
        samples
    base : int
        its absolute value counts; taken on the first or a resetting call
    reset : bool, default False
        true starts at 0 with this base
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20061: the base in force is 0, 1 or -1; nothing changes
        -20059: the sequence has used up the integers
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc412 (GenHaltonSequence) of the C library.

    Example
    -------
    >>> out = qv.halton_sequence(n, base)
    """
    n = rt.i64(n, "n")
    base = rt.i32(base, "base")
    reset = int(bool(reset))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc412(n, base, reset, rt.pointer(out_))
    rt.check(status, "halton_sequence")
    return rt.deliver(out_, out)


_ZemFunc413 = rt.bind("ZemFunc413", "status", "ldip")


def weyl_sequence(n, step, reset=False, *, out=None):
    r"""The multiples of a step modulo 1 (Weyl 1916), accumulated.

    It starts with 0 and fills [0, 1) evenly if the step is irrational.

    Parameters
    ----------
    n : int
        samples
    step : float
        its absolute value counts; taken on the first or a resetting call
    reset : bool, default False
        true starts at 0 with this step
    out : array or None
        the array for `out`; it may be an input, to work in place

    Returns
    -------
    out : float64 array of shape (n,)

    Raises
    ------
    QuorvanError
        -20003: n is below 1
        -20059: the stored value is negative
        -20001: memory is exhausted

    Notes
    -----
    There is an object for such a stream, too. The function ZemFunc413 (GenWeylSequence) of the C library.

    Example
    -------
    >>> out = qv.weyl_sequence(n, step)
    """
    n = rt.i64(n, "n")
    step = rt.real(step, "step")
    reset = int(bool(reset))
    out_ = rt.result(out, (n,), rt.F8, ())
    status = _ZemFunc413(n, step, reset, rt.pointer(out_))
    rt.check(status, "weyl_sequence")
    return rt.deliver(out_, out)
