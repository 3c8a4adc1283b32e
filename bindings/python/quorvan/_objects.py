"""Filters, plans and streams as objects. They call the functions of the same families and add nothing but a place."""

import ctypes
import threading

import numpy as np

from . import _functions as functions
from . import _runtime as rt
from ._runtime import Handle
from ._selections import FilterKind

__all__ = ["FftPlan"]


def offered(*needed):
    """Lists a class as part of the package if the library has the functions that it stands on."""
    def decorate(cls):
        if all(hasattr(functions, name) for name in needed):
            __all__.append(cls.__name__)
        return cls
    return decorate


class FftPlan(Handle):
    """What all transforms of one length need, held for as long as this object is open.

    >>> with qv.FftPlan(1024) as plan:
    ...     spectra = [plan.fft(frame) for frame in frames]
    """

    def __init__(self, size):
        made = functions.fft_plan_create(size)
        self._pointer, made._pointer = made._pointer, None
        self.size = size

    @staticmethod
    def _give_back(pointer):
        functions.plans._ZemFunc261(pointer)

    def _told(self):
        return str(getattr(self, "size", ""))

    def fft(self, x, shift=False, *, out=None):
        """The spectrum of real or complex data, cut or padded with zeros to the length of the plan."""
        return functions.fft(x, fft_size=self.size, plan=self, shift=shift, out=out)

    def ifft(self, X, shift=False, *, out=None):
        """The complex data of a spectrum of the plan's length."""
        return functions.complex_ifft(X, plan=self, shift=shift, out=out)

    def irfft(self, X, shift=False, *, out=None):
        """The real data of a full spectrum of the plan's length."""
        return functions.real_ifft(X, plan=self, shift=shift, out=out)


class _IirRecord(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int32), ("order", ctypes.c_int32), ("reset", ctypes.c_int32),
                ("a_count", ctypes.c_int32), ("a", ctypes.POINTER(ctypes.c_double)),
                ("b_count", ctypes.c_int32), ("b", ctypes.POINTER(ctypes.c_double)),
                ("state_count", ctypes.c_int32), ("state", ctypes.POINTER(ctypes.c_double))]


class _NarrowbandRecord(ctypes.Structure):
    _fields_ = [("mode", ctypes.c_int32), ("factor", ctypes.c_int32),
                ("model_count", ctypes.c_int32), ("model", ctypes.POINTER(ctypes.c_double)),
                ("suppressor_count", ctypes.c_int32), ("suppressor", ctypes.POINTER(ctypes.c_double))]


def _copied(values, count):
    return np.ctypeslib.as_array(values, (count,)).copy() if count > 0 and values else np.empty(0)


@offered("iir_state_complex_create")
class IirStateComplex(Handle):
    """The delay lines that complex data needs beside a recursive filter."""

    _one_block = True

    def __init__(self, kind, order):
        made = functions.iir_state_complex_create(kind, order)
        self._pointer, made._pointer = made._pointer, None


@offered("iir_filter_create", "iir_state_complex_create", "iir_cascade_apply", "iir_cascade_apply_complex")
class IirFilter(Handle):
    """A recursive filter with its delay lines: create, design, apply to any number of blocks.

    Complex data has delay lines of its own. An object belongs to one thread at a time.

    >>> with qv.IirFilter("lowpass", 4).butterworth(fs=1000, fl=100) as lowpass:
    ...     filtered = [lowpass.apply(block) for block in blocks]
    """

    _one_block = True

    def __init__(self, kind, order):
        made = functions.iir_filter_create(kind, order)
        self._pointer, made._pointer = made._pointer, None
        self._complex_state = None

    def _made(self):
        record = self._record  # whose coefficients hold whatever was in memory: NaN tells that there is no design
        ctypes.memset(record.a, 0xFF, 8 * record.a_count)
        ctypes.memset(record.b, 0xFF, 8 * record.b_count)

    def _told(self):
        return f"{self.kind.name.lower()}, order {self.order}{'' if self.designed else ', not designed'}"

    @property
    def _record(self):
        return _IirRecord.from_address(rt.handle(self, "IirFilter"))

    @property
    def designed(self):
        """Whether the filter has coefficients."""
        return self._record.b[0] == self._record.b[0]

    @property
    def kind(self):
        return FilterKind(self._record.type)

    @property
    def order(self):
        """The order of the analog prototype; that of a band filter is twice as high."""
        return self._record.order

    @property
    def coefficient_count(self):
        """The coefficients of the direct form, one more than its order."""
        return self.order * (2 if self.kind >= FilterKind.BANDPASS else 1) + 1

    @property
    def a(self):
        """The feedback coefficients, stage after stage, without the leading 1; a copy."""
        return _copied(self._record.a, self._record.a_count)

    @property
    def b(self):
        """The feedforward coefficients, stage after stage; a copy."""
        return _copied(self._record.b, self._record.b_count)

    @property
    def state(self):
        """The delay lines for real data, stage after stage; a copy."""
        return _copied(self._record.state, self._record.state_count)

    def even_pole(self, fs, fl, fh=0.0):
        """Designs an even-pole filter, and returns it."""
        functions.iir_design_even_pole(fs, fl, self, fh=fh)
        return self

    def butterworth(self, fs, fl, fh=0.0):
        """Designs a Butterworth filter, and returns it."""
        functions.iir_design_butterworth(fs, fl, self, fh=fh)
        return self

    def bessel(self, fs, fl, fh=0.0):
        """Designs a Bessel filter, and returns it."""
        functions.iir_design_bessel(fs, fl, self, fh=fh)
        return self

    def chebyshev(self, fs, fl, fh=0.0, *, ripple):
        """Designs a Chebyshev filter with so many decibels of ripple, and returns it."""
        functions.iir_design_chebyshev(fs, fl, ripple, self, fh=fh)
        return self

    def inverse_chebyshev(self, fs, fl, fh=0.0, *, attenuation):
        """Designs an inverse Chebyshev filter with so many decibels of attenuation, and returns it."""
        functions.iir_design_inverse_chebyshev(fs, fl, attenuation, self, fh=fh)
        return self

    def elliptic(self, fs, fl, fh=0.0, *, ripple, attenuation):
        """Designs an elliptic filter with these decibels of ripple and attenuation, and returns it."""
        functions.iir_design_elliptic(fs, fl, ripple, attenuation, self, fh=fh)
        return self

    def apply(self, x, *, out=None):
        """Filters the next block of a real or complex signal."""
        if not self.designed:
            raise ValueError("this IirFilter has no design yet; call butterworth or another family first")
        if not rt.is_complex(x):
            return functions.iir_cascade_apply(x, self, out=out)
        if self._complex_state is None:
            self._complex_state = IirStateComplex(self.kind, self.order)
        return functions.iir_cascade_apply_complex(x, self, self._complex_state, out=out)

    def reset(self):
        """Makes the next application start from delay lines of 0."""
        functions.iir_filter_reset(self)

    def direct_form(self):
        """The stages multiplied up to one transfer function: a, with a[0] = 1, and b."""
        return functions.iir_to_direct_form(self)

    def close(self):
        state, self._complex_state = getattr(self, "_complex_state", None), None
        if state is not None:
            state.close()
        super().close()


@offered("fir_narrowband_create", "fir_narrowband_design", "fir_narrowband_filter", "fir_narrowband_filter_complex")
class FirNarrowband(Handle):
    """An interpolated FIR filter, a stretched model in cascade with an image suppressor: create, design, apply."""

    def __init__(self):
        made = functions.fir_narrowband_create()
        self._pointer, made._pointer = made._pointer, None

    @staticmethod
    def _give_back(pointer):
        functions.fir_narrowband._ZemFunc492(pointer)

    @property
    def _record(self):
        return _NarrowbandRecord.from_address(rt.handle(self, "FirNarrowband"))

    @property
    def factor(self):
        """The distance of the model's taps."""
        return self._record.factor

    @property
    def model(self):
        """The taps of the model; a copy."""
        return _copied(self._record.model, self._record.model_count)

    @property
    def suppressor(self):
        """The taps of the image suppressor, none where the factor is 1; a copy."""
        return _copied(self._record.suppressor, self._record.suppressor_count)

    def design(self, *arguments, **named):
        """Designs the filter by the arguments of `fir_narrowband_design`, and returns it."""
        fresh = functions.fir_narrowband_create()  # a design does not free the taps of one before
        functions.fir_narrowband_design(*arguments, filter=fresh, **named)
        self._pointer, fresh._pointer = fresh._pointer, self._pointer
        fresh.close()
        return self

    def output_count(self, n):
        """How many samples come out for n samples."""
        record = self._record
        if record.factor <= 1:
            return n + record.model_count - 1
        return (record.model_count - 1) * record.factor + n + record.suppressor_count - 1

    def apply(self, x, *, out=None):
        """Filters a real or complex signal."""
        wanted = functions.fir_narrowband_filter_complex if rt.is_complex(x) else functions.fir_narrowband_filter
        return wanted(x, self, out=out)


class Stream:
    """A signal that comes in blocks, or noise that goes on and on.

    The library keeps one stream of each kind for each thread. An object takes that place with its first block, and
    holds it until another object of the kind begins on the thread; feeding the one before raises then, rather than
    mixing two signals. It ends with its with block.
    """

    _places = threading.local()

    def _open(self):
        """Whether this block is the first of the stream."""
        if getattr(self, "_ended", False):
            raise ValueError("this stream has ended")
        holders = self._places.__dict__
        begun = getattr(self, "_thread", None)
        if begun is None:
            self._thread = threading.get_ident()
            holders[self._kind] = self
            return True
        if begun != threading.get_ident():
            raise RuntimeError("a stream stays on the thread that began it")
        if holders.get(self._kind) is not self:
            raise RuntimeError(f"another {type(self).__name__} has begun on this thread")
        return False

    @property
    def _kind(self):
        return type(self)

    def close(self):
        """Ends the stream."""
        self._ended = True
        if self._places.__dict__.get(self._kind) is self:
            del self._places.__dict__[self._kind]

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self.close()


@offered("peak_threshold_runs_stream")
class ThresholdRuns(Stream):
    """Runs of samples at or above a threshold, in consecutive blocks; see `peak_threshold_runs_stream`."""

    def __init__(self, threshold, width):
        self.threshold, self.width = threshold, width

    def feed(self, x, last=False):
        """The first samples of the runs that have reached the width within this block, counted from the start."""
        found = functions.peak_threshold_runs_stream(x, self.threshold, self.width, reset=self._open(), last=last)
        if last:
            self.close()
        return found


@offered("peak_detect")
class PeakDetector(Stream):
    """Peaks or valleys in consecutive blocks; see `peak_detect`."""

    def __init__(self, threshold, width, polarity="peaks"):
        self.threshold, self.width, self.polarity = threshold, width, polarity

    def feed(self, x, last=False):
        """The locations, amplitudes and second derivatives of the peaks that are certain with this block."""
        found = functions.peak_detect(x, self.threshold, self.width, self.polarity, first=self._open(), last=last)
        if last:
            self.close()
        return found


@offered("decimate_continuous", "decimate_continuous_complex")
class Decimator(Stream):
    """Decimation of a real or complex signal block by block; see `decimate_continuous`."""

    def __init__(self, factor, average=False, offset=0):
        self.factor, self.average, self.offset = factor, average, offset
        self._complex = False

    @property
    def _kind(self):
        return type(self), self._complex

    def feed(self, x):
        """The results of this block."""
        if getattr(self, "_thread", None) is None:
            self._complex = rt.is_complex(x)
        wanted = functions.decimate_continuous_complex if self._complex else functions.decimate_continuous
        return wanted(x, self.factor, average=self.average, offset=self.offset, reset=self._open())


@offered("detect_level_crossing")
class LevelCrossing(Stream):
    """The first crossing of a level in each block; see `detect_level_crossing`."""

    def __init__(self, level, hysteresis=0.0, slope="rising"):
        self.level, self.hysteresis, self.slope = level, hysteresis, slope

    def feed(self, x):
        """The index of the crossing in this block, and whether there is one."""
        return functions.detect_level_crossing(x, self.level, self.hysteresis, self.slope, reset=self._open())


class _Noise(Stream):
    def draw(self, n, *, out=None):
        """The next n values."""
        return self._generate(n, self._open(), out)


@offered("gamma_noise")
class GammaNoise(_Noise):
    """A stream of gamma variates; see `gamma_noise`."""

    def __init__(self, order, seed=0):
        self.order, self.seed = order, seed

    def _generate(self, n, reset, out):
        return functions.gamma_noise(n, self.order, seed=self.seed, reset=reset, out=out)


@offered("poisson_noise")
class PoissonNoise(_Noise):
    """A stream of Poisson variates; see `poisson_noise`."""

    def __init__(self, mean, seed=0):
        self.mean, self.seed = mean, seed

    def _generate(self, n, reset, out):
        return functions.poisson_noise(n, self.mean, seed=self.seed, reset=reset, out=out)


@offered("binomial_noise")
class BinomialNoise(_Noise):
    """A stream of binomial variates; see `binomial_noise`."""

    def __init__(self, trials, probability, seed=0):
        self.trials, self.probability, self.seed = trials, probability, seed

    def _generate(self, n, reset, out):
        return functions.binomial_noise(n, self.trials, self.probability, seed=self.seed, reset=reset, out=out)


@offered("bernoulli_noise")
class BernoulliNoise(_Noise):
    """A stream of Bernoulli variates; see `bernoulli_noise`."""

    def __init__(self, probability, seed=0):
        self.probability, self.seed = probability, seed

    def _generate(self, n, reset, out):
        return functions.bernoulli_noise(n, self.probability, seed=self.seed, reset=reset, out=out)


@offered("halton_sequence")
class HaltonSequence(_Noise):
    """A sequence that fills [0, 1) evenly; see `halton_sequence`."""

    def __init__(self, base=2):
        self.base = base

    def _generate(self, n, reset, out):
        return functions.halton_sequence(n, self.base, reset=reset, out=out)


@offered("weyl_sequence")
class WeylSequence(_Noise):
    """The multiples of a step modulo 1; see `weyl_sequence`."""

    def __init__(self, step):
        self.step = step

    def _generate(self, n, reset, out):
        return functions.weyl_sequence(n, self.step, reset=reset, out=out)
