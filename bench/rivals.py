"""The Python side of the benchmarks: the same work through NumPy or SciPy, and through the shared object by ctypes.

A case times two statements in turn, on arrays made beforehand, and keeps the best repetition of each. Addresses are
made beforehand too, so that what ctypes adds is its bare call. Time is the processor time of the process.
"""

import ctypes
import itertools
import os
import time
import timeit
from dataclasses import dataclass, field

for threads in ("OMP_NUM_THREADS", "OPENBLAS_NUM_THREADS", "MKL_NUM_THREADS"):
    os.environ[threads] = "1"

import numpy as np  # noqa: E402
import scipy.fft  # noqa: E402
import scipy.interpolate  # noqa: E402
import scipy.optimize  # noqa: E402
import scipy.signal  # noqa: E402
import scipy.special  # noqa: E402

FFT_SIZES = (16, 60, 64, 100, 128, 256, 360, 512, 1000, 1009, 1024, 4096, 4099, 10007, 16384, 65536, 100000, 262144,
             1048576)
ARRAY_SIZES = (1000, 16384, 262144, 16777216)
SORT_SIZES = (100, 1000, 10000, 100000, 1000000)
SORT_POOL = 100000
CONVOLUTIONS = ((100, 100), (1000, 1000), (10000, 100), (10000, 10000), (100000, 1000), (100000, 100000))
WINDOW_SIZES = (256, 4096, 65536)
FILTER_ORDERS = (2, 4, 8, 12, 16, 20)
FILTER_BLOCKS = (64, 1024, 16384, 1048576)
PEAK_SIZES = (1000, 100000, 1000000)
FIR_SIZES = ((1000, 31), (10000, 101), (100000, 31), (100000, 301), (1000000, 101))
MEDIAN_SIZES = ((1000, 2), (100000, 2), (100000, 10), (100000, 50))
EXCHANGE_TAPS = (31, 101, 201, 401)


@dataclass
class Case:
    """One comparison: group and size name the C++ measurement that belongs to it."""
    group: str
    size: str
    quorvan: str
    rival: str
    names: dict
    same: str = "True"  # holds when both agree: Quorvan's output is in kept, the rival's in out
    contender: str = "quorvan"
    cleanup: list = field(default_factory=list)


class Library:
    """The shared object; `call(number, "ppip")` gives the function with these argument types: pointer, int64, double,
    int32 as p, i, d, c."""

    TYPES = {"p": ctypes.c_void_p, "i": ctypes.c_int64, "d": ctypes.c_double, "c": ctypes.c_int32}

    def __init__(self, path):
        self.object = ctypes.CDLL(str(path))

    def call(self, number, arguments, result=ctypes.c_int32):
        function = getattr(self.object, f"ZemFunc{number}")
        function.argtypes = [self.TYPES[letter] for letter in arguments]
        function.restype = result
        return function


def address(array):
    return ctypes.c_void_p(array.ctypes.data)


def aligned(count, dtype=np.float64):
    """Zeros, placed as bench/support/buffer.cpp places them; large arrays get huge pages from NumPy."""
    size = np.dtype(dtype).itemsize
    unit = 4096 if count * size >= 4096 else 64
    raw = np.empty(count * size + unit, np.uint8)
    raw[:] = 0
    start = -raw.ctypes.data % unit
    return raw[start:start + count * size].view(dtype)


def noise(count, seed, dtype=np.float64):
    generator = np.random.default_rng(seed)
    out = aligned(count, dtype)
    out[:] = generator.uniform(-1, 1, count)
    if dtype == np.complex128:
        out += 1j * generator.uniform(-1, 1, count)
    return out


def fft_cases(library):
    transform = library.call(263, "piipcp")
    create = library.call(260, "i", ctypes.c_void_p)
    release = library.call(261, "p")
    for n in FFT_SIZES:
        x, out = noise(n, n, np.complex128), aligned(n, np.complex128)
        plan = ctypes.c_void_p(create(n))
        names = dict(f=transform, x=x, out=out, px=address(x), pout=address(out), n=n, plan=plan, fft=scipy.fft.fft)
        yield Case("complex_fft", str(n), "f(px, n, n, plan, 0, pout)", "fft(x)", names,
                   "numpy.allclose(kept, fft(x), rtol=1e-10, atol=1e-10)", "held", [lambda: release(plan)])


def convolution_cases(library):
    convolve = library.call(32, "pipip")
    for n, m in CONVOLUTIONS:
        x, y, out = noise(n, 1), noise(m, 2), aligned(n + m - 1)
        names = dict(f=convolve, x=x, y=y, out=out, px=address(x), py=address(y), pout=address(out), n=n, m=m,
                     fftconvolve=scipy.signal.fftconvolve)
        yield Case("convolve", f"{n}x{m}", "f(px, n, py, m, pout)", "fftconvolve(x, y)", names,
                   "numpy.allclose(kept, fftconvolve(x, y), rtol=1e-9, atol=1e-9)")


# Name, number, argument types, Quorvan's arguments, NumPy's statement.
ARRAY_OPERATIONS = (
    ("add", 3, "ppip", "px, py, n, pout", "add(x, y, out)"),
    ("multiply", 126, "ppip", "px, py, n, pout", "multiply(x, y, out)"),
    ("scale", 153, "pippp", "px, n, pout, poffset, pscale",
     "hi = x.max(); lo = x.min(); s = (hi - lo) * 0.5; subtract(x, s + lo, out); multiply(out, 1 / s, out)"),
    ("linear_eval", 115, "piddp", "px, n, 1.5, 0.25, pout", "multiply(x, 1.5, out); add(out, 0.25, out)"),
    ("abs", 1, "pip", "px, n, pout", "absolute(x, out)"),
    ("sum", 170, "pip", "px, n, poffset", "offset2[0] = x.sum()"),
    ("maxmin", 120, "pipppp", "px, n, poffset, pimax, pscale, pimin",
     "i = x.argmax(); offset2[0] = x[i]; j = x.argmin(); scale2[0] = x[j]"),
)


def array_cases(library, sizes=ARRAY_SIZES):
    for n in sizes:
        x, y, out = noise(n, 1), noise(n, 2), aligned(n)
        offset, scale, offset2, scale2 = np.zeros(1), np.zeros(1), np.zeros(1), np.zeros(1)
        imax, imin = np.zeros(1, np.int64), np.zeros(1, np.int64)
        for name, number, types, arguments, numpy_statement in ARRAY_OPERATIONS:
            names = dict(f=library.call(number, types), x=x, y=y, out=out, n=n, px=address(x),
                         py=address(y), pout=address(out), poffset=address(offset), pscale=address(scale),
                         pimax=address(imax), pimin=address(imin), offset=offset, scale=scale, offset2=offset2,
                         scale2=scale2, add=np.add, multiply=np.multiply, subtract=np.subtract, absolute=np.absolute)
            same = {"sum": "abs(offset - offset2)[0] < 1e-13 * n * n",
                    "maxmin": "offset == offset2 and scale == scale2"}
            yield Case(f"array_{name}", str(n), f"f({arguments})", numpy_statement, names,
                       same.get(name, "numpy.allclose(kept, out, rtol=1e-12, atol=1e-12)"))


def sort_cases(library):
    sort = library.call(160, "picp")
    for n in SORT_SIZES:
        # Short arrays take turns, or the branch predictor learns the one order by heart.
        pool, out = noise(max(n, SORT_POOL), 1), aligned(n)
        arrays = [pool[start:start + n] for start in range(0, len(pool) - n + 1, n)]
        names = dict(f=sort, pout=address(out), n=n, out=out, copyto=np.copyto,
                     px=itertools.cycle(map(address, arrays)), x=itertools.cycle(arrays))
        yield Case("sort", str(n), "f(next(px), n, 0, pout)", "copyto(out, next(x)); out.sort()", names,
                   "numpy.array_equal(kept, out)")


# Name, number, Quorvan's parameter or none, SciPy's call, absolute tolerance of the comparison. Kaiser's series stops
# at a term of 1e-8; SciPy centres Parzen's window elsewhere; the cosines of the Chebyshev spectrum come from a
# recurrence whose error grows as n^2 roundings, and the polynomial of order n multiplies it by n.
WINDOWS = (
    ("hanning", 89, None, "w.hann(n, sym=False)", 1e-9),
    ("hamming", 88, None, "w.hamming(n, sym=False)", 1e-9),
    ("blackman", 14, None, "w.blackman(n, sym=False)", 1e-9),
    ("flat_top", 80, None, "w.flattop(n, sym=False)", 1e-6),
    ("triangle", 180, None, "w.bartlett(n, sym=False)", 1e-9),
    ("bohman", 344, None, "w.bohman(n, sym=False)", 1e-9),
    ("parzen", 345, None, "w.parzen(n, sym=False)", None),
    ("kaiser", 113, 8.0, "w.kaiser(n, 8.0, sym=False)", 1e-6),
    ("gaussian", 280, 0.2, "w.gaussian(n, 0.2 * (n + 1), sym=False)", 1e-9),
    ("chebyshev", 279, 80.0, "w.chebwin(n, 80.0, sym=False)", "n**3 * 2.2e-16"),
)


def window_cases(library):
    for name, number, parameter, scipy_call, tolerance in WINDOWS:
        apply = library.call(number, "pi" if parameter is None else "pid")
        extra = "" if parameter is None else f", {parameter}"
        for n in WINDOW_SIZES:
            x, out = noise(n, 1), aligned(n)
            names = dict(f=apply, x=x, out=out, pout=address(out), n=n, copyto=np.copyto,
                         multiply=np.multiply, w=scipy.signal.windows)
            same = "True" if tolerance is None else f"numpy.allclose(kept, out, rtol=0, atol={tolerance})"
            yield Case(f"window_{name}", str(n), f"copyto(out, x); f(pout, n{extra})",
                       f"multiply(x, {scipy_call}, out)", names, same)


MATRIX_ORDERS = (8, 64, 512, 1500)
# Name, number, argument types, Quorvan's arguments, NumPy's statement. NumPy's results are arrays of their own.
MATRIX_OPERATIONS = (
    ("solve", 114, "ppip", "pa, pb, n, pout", "x = linalg.solve(a, b)"),
    ("inverse", 105, "pip", "pa, n, pout", "x = linalg.inv(a)"),
    ("multiply", 119, "ppiiip", "pa, pa, n, n, n, pout", "matmul(a, a, out)"),
)


def matrix_cases(library):
    for n in MATRIX_ORDERS:
        a, b, out = noise(n * n, 1).reshape(n, n), noise(n, 2), aligned(n * n).reshape(n, n)
        a += np.sqrt(n) * np.eye(n)
        for name, number, types, arguments, numpy_statement in MATRIX_OPERATIONS:
            names = dict(f=library.call(number, types), a=a, b=b, out=out, pa=address(a), pb=address(b),
                         pout=address(out), n=n, linalg=np.linalg, matmul=np.matmul)
            same = {"solve": "numpy.allclose(kept[0], x)", "inverse": "numpy.allclose(kept, x)"}
            yield Case(f"linalg_{name}", str(n), f"f({arguments})", numpy_statement, names,
                       same.get(name, "numpy.allclose(kept, out)"))


def cascade_cases(library):
    create = library.call(233, "cc", ctypes.c_void_p)
    create_state = library.call(469, "cc", ctypes.c_void_p)
    design, release = library.call(18, "dddp"), library.call(234, "p", None)
    for order in FILTER_ORDERS:
        sections = scipy.signal.butter(order, 0.3, output="sos")
        for group, number, types, dtype in (("cascade_real", 91, "pipp", np.float64),
                                            ("cascade_complex", 466, "pippp", np.complex128)):
            for n in FILTER_BLOCKS:
                handle, state = ctypes.c_void_p(create(0, order)), ctypes.c_void_p(create_state(0, order))
                design(2.0, 0.3, 0.0, handle)
                x, out = noise(n, 1, dtype), aligned(n, dtype)
                names = dict(f=library.call(number, types), x=x, out=out, px=address(x), pout=address(out), n=n,
                             filter=handle, state=state, sosfilt=scipy.signal.sosfilt, sections=sections)
                objects = "filter" if dtype == np.float64 else "filter, state"
                yield Case(group, f"{order}x{n}", f"f(px, n, {objects}, pout)", "sosfilt(sections, x)", names,
                           "numpy.allclose(kept, sosfilt(sections, x), rtol=0, atol=1e-11)",
                           cleanup=[lambda h=handle, s=state: (release(h), release(s))])


FIT_SIZES = (10, 100, 1000, 10000)
# Name, number, argument types and Quorvan's arguments, the model for SciPy, the coefficients of the data, SciPy's start.
# The Gaussian has no closed start in SciPy: it gets one near the truth, as a user would give it.
FIT_MODELS = (
    ("line", 288, "pppicdpppp", "px, py, None, n, 0, -1.0, pf, *pc[:2], pr", lambda x, a, b: a * x + b, (2.0, 1.0), None),
    ("exponential", 286, "pppicdpppp", "px, py, None, n, 0, -1.0, pf, *pc[:2], pr",
     lambda x, a, b: a * np.exp(b * x), (1.5, 0.6), None),
    ("power", 290, "pppicdpppp", "px, py, None, n, 0, -1.0, pf, *pc[:2], pr", lambda x, a, b: a * x ** b, (2.0, 1.3), None),
    ("logarithm", 289, "pppidcdpppp", "px, py, None, n, 2.71828, 0, -1.0, pf, *pc[:2], pr",
     lambda x, a, b: a * np.log(b * x), (1.7, 2.2), None),
    ("gaussian", 287, "pppicdpppppp", "px, py, None, n, 0, -1.0, None, pf, *pc, pr",
     lambda x, a, m, s: a * np.exp(-0.5 * ((x - m) / s) ** 2), (3.0, 2.0, 0.7), (2.5, 2.2, 0.9)),
)


def fit_cases(library):
    """Least squares only: of robust fits SciPy has other methods. Checks are loose where the ends of iterations differ."""
    for n in FIT_SIZES:
        x, f, c, error = aligned(n), aligned(n), aligned(9), np.zeros(1)
        x[:] = np.linspace(0.5, 4, n)
        common = dict(n=n, x=x, px=address(x), pf=address(f), pcs=address(c), pr=address(error), out=c)
        line = 2 * x + 1 + 0.05 * noise(n, 1)
        y = aligned(n)
        y[:] = line
        for order in (1, 3, 8):
            names = dict(common, f=library.call(137, "ppicppp"), y=y, py=address(y), order=order, polyfit=np.polyfit)
            yield Case(f"fit_polynomial_{order}", str(n), "f(px, py, n, order, pf, pcs, pr)", "polyfit(x, y, order)", names,
                       "numpy.allclose(kept[:order + 1], polyfit(x, y, order)[::-1], rtol=1e-4, atol=1e-4)")
        for columns in (3, 8):
            design = noise(n * columns, 2).reshape(n, columns)
            names = dict(common, f=library.call(239, "piippc"), y=y, py=address(y), d=design, pd=address(design), k=columns,
                         lstsq=np.linalg.lstsq)
            yield Case(f"fit_general_{columns}", str(n), "f(pd, n, k, py, pcs, 0)", "lstsq(d, y, rcond=None)", names,
                       "numpy.allclose(kept[:k], lstsq(d, y, rcond=None)[0], rtol=1e-9, atol=1e-9)")
        second = aligned(n)
        names = dict(common, f=library.call(164, "ppiddp"), y=y, py=address(y), out=second, pout=address(second),
                     CubicSpline=scipy.interpolate.CubicSpline)
        yield Case("fit_spline", str(n), "f(px, py, n, 1e30, 1e30, pout)", "CubicSpline(x, y, bc_type='natural')", names,
                   "numpy.allclose(kept, CubicSpline(x, y, bc_type='natural')(x, 2), rtol=1e-6, atol=1e-3)")
        for name, number, types, arguments, model, truth, start in FIT_MODELS:
            z = aligned(n)
            z[:] = model(x, *truth) + 0.05 * noise(n, 1)
            pc = [ctypes.c_void_p(c.ctypes.data + 8 * j) for j in range(3)]
            names = dict(common, f=library.call(number, types), y=z, py=address(z), pc=pc, model=model, start=start,
                         curve_fit=scipy.optimize.curve_fit, k=len(truth))
            yield Case(f"fit_{name}", str(n), f"f({arguments})", "curve_fit(model, x, y, start)", names,
                       "numpy.allclose(kept[:k], curve_fit(model, x, y, start)[0], rtol=0.05)")


def peak_cases(library):
    """Windows of three samples find the local maxima above the threshold, and interpolate them besides; an apex between
    samples may pass a threshold that its sample does not, so there is none."""
    detect, release = library.call(194, "pidicccpppp"), library.call(234, "p", None)
    for n in PEAK_SIZES:
        x, out, arrays = noise(n, 1), np.zeros(1, np.int64), np.zeros(3, np.int64)
        pointers = [ctypes.c_void_p(arrays.ctypes.data + 8 * k) for k in range(3)]
        names = dict(f=detect, r=release, x=x, out=out, a=arrays, n=n, px=address(x), pout=address(out), p0=pointers[0],
                     p1=pointers[1], p2=pointers[2], find_peaks=scipy.signal.find_peaks, low=-1e300)
        yield Case("peaks_3", str(n), "r(int(a[0])); r(int(a[1])); r(int(a[2])); "
                   "f(px, n, low, 3, 0, 1, 1, pout, p0, p1, p2)", "find_peaks(x, height=low)", names,
                   "kept[0] == len(find_peaks(x)[0])")


# Name, number, argument types, Quorvan's arguments, NumPy's statement, what must agree; out holds Quorvan's values.
DECOMPOSITIONS = (
    ("svd", 193, "piippp", "pa, n, n, pu, pout, pv", "r = svd(a, full_matrices=False)", "r[1]"),
    ("singular_values", 195, "piip", "pa, n, n, pout", "r = svd(a, compute_uv=False)", "r"),
    ("symmetric_eigen", 202, "picpp", "pa, n, 1, pout, pu", "r = eigh(a)", "r[0]"),
    ("general_eigen", 201, "picpp", "pa, n, 1, pout, pu", "r = eig(a)", "r[0]"),
    ("qr", 192, "piicpp", "pa, n, n, 0, pu, pout", "r = qr(a)", "r[1]"),
)
DECOMPOSITION_SIZES = (8, 64, 512, 1500)


def decomposition_cases(library):
    """The same matrices as bench/linalg_eigen_bench.cpp measures: uniform, symmetric where it must be."""
    for name, number, types, arguments, statement, values in DECOMPOSITIONS:
        for n in DECOMPOSITION_SIZES:
            a, u, v = noise(n * n, 1).reshape(n, n), aligned(n * n, np.complex128), aligned(n * n)
            if name == "symmetric_eigen":
                a[:] = np.triu(a) + np.triu(a, 1).T
            out = {"general_eigen": aligned(n, np.complex128), "qr": aligned(n * n)}.get(name)
            out = aligned(n) if out is None else out
            names = dict(f=library.call(number, types), a=a, u=u, v=v, out=out, n=n, pa=address(a), pu=address(u),
                         pv=address(v), pout=address(out), svd=np.linalg.svd, eigh=np.linalg.eigh, eig=np.linalg.eig,
                         qr=np.linalg.qr)
            # Signs and the order of eigenvalues are free.
            same = f"numpy.allclose(numpy.sort(abs(kept)), numpy.sort(abs({values}).ravel()), rtol=1e-8, atol=1e-8)"
            yield Case(name, str(n), f"f({arguments})", statement, names, same)


# Name, number, argument types, Quorvan's call, NumPy's statement with the legacy generator and with the new one, mean and
# standard deviation of a value. The results are other numbers of the same distribution: their means are compared.
RANDOM = (
    ("uniform", 182, "icp", "f(n, 7, pout)", "out = r.random_sample(n)", "out = r.random(n)", 0.5, 12**-0.5),
    ("gaussian", 84, "idcp", "f(n, 1.0, 7, pout)", "out = r.standard_normal(n)", "out = r.standard_normal(n)", 0.0, 1.0),
    ("gamma", 388, "icccp", "f(n, 3, 7, 1, pout)", "out = r.standard_gamma(3, n)", "out = r.standard_gamma(3, n)",
     3.0, 3**0.5),
    ("gamma_large", 388, "icccp", "f(n, 30, 7, 1, pout)", "out = r.standard_gamma(30, n)",
     "out = r.standard_gamma(30, n)", 30.0, 30**0.5),
    ("poisson", 389, "idccp", "f(n, 4.0, 7, 1, pout)", "out = r.poisson(4, n)", "out = r.poisson(4, n)", 4.0, 2.0),
    ("poisson_large", 389, "idccp", "f(n, 40.0, 7, 1, pout)", "out = r.poisson(40, n)", "out = r.poisson(40, n)",
     40.0, 40**0.5),
    ("shuffle", 396, "picp", "f(pout, n, 7, None)", "r.shuffle(out)", "r.shuffle(out)", None, None),
)
RANDOM_SIZES = (1000, 100000)


def random_cases(library, generator):
    """Beside numpy.random.RandomState ("legacy") or numpy.random.Generator ("new")."""
    for name, number, types, call, legacy, new, mean, deviation in RANDOM:
        for n in RANDOM_SIZES:
            out = aligned(n)
            out[:] = np.arange(n)
            rival = np.random.RandomState(7) if generator == "legacy" else np.random.default_rng(7)
            names = dict(f=library.call(number, types), out=out, pout=address(out), n=n, r=rival)
            # Each mean has a standard error of deviation / sqrt(n).
            same = ("sorted(kept) == sorted(out)" if mean is None else
                    f"abs(kept.mean() - {mean}) < 5 * {deviation} / n**0.5 > abs(out.mean() - {mean})")
            yield Case(f"random_{name}", str(n), call, legacy if generator == "legacy" else new, names, same)


def fir_cases(library):
    """Filtering with given taps beside lfilter; design and filtering in one call beside fftconvolve, whose taps are made
    beforehand; medians; the exchange. Names are those of bench/fir_bench.cpp."""
    direct, window = library.call(352, "pippcp"), library.call(481, "picddcdp")
    for n, taps in FIR_SIZES:
        x, h, out = noise(n, 1), scipy.signal.firwin(taps, 0.1, window="hamming", scale=False, fs=1.0), aligned(n)
        state, longer = np.zeros(taps - 1), aligned(n + taps - 1)
        names = dict(f=direct, x=x, h=h, out=out, n=n, taps=taps, px=address(x), ph=address(h), pout=address(out),
                     ps=address(state), state=state, lfilter=scipy.signal.lfilter)
        yield Case("fir_direct", f"{n}x{taps}", "state.fill(0); f(px, n, ph, ps, taps, pout)", "lfilter(h, 1.0, x)", names,
                   "numpy.allclose(kept, lfilter(h, 1.0, x), rtol=0, atol=1e-12)")
        names = dict(f=window, x=x, h=h, out=longer, n=n, taps=taps, px=address(x), pout=address(longer),
                     fftconvolve=scipy.signal.fftconvolve)
        yield Case("fir_window", f"{n}x{taps}", "f(px, n, taps, 1.0, 0.1, 2, 0.0, pout)", "fftconvolve(x, h)", names,
                   "numpy.allclose(kept, fftconvolve(x, h), rtol=0, atol=1e-12)")
    median = library.call(407, "piccp")
    for n, rank in MEDIAN_SIZES:
        x, out = noise(n, 1), aligned(n)
        names = dict(f=median, x=x, out=out, n=n, rank=rank, px=address(x), pout=address(out),
                     medfilt=scipy.signal.medfilt)
        yield Case("median", f"{n}x{2 * rank + 1}", "f(px, n, rank, -1, pout)", "medfilt(x, 2 * rank + 1)", names,
                   "numpy.array_equal(kept, medfilt(x, 2 * rank + 1))")
    exchange = library.call(69, "dddcpp")
    for taps in EXCHANGE_TAPS:
        out, delta = aligned(taps), np.zeros(1)
        names = dict(f=exchange, out=out, taps=taps, width=4.0 / taps, pout=address(out), pdelta=address(delta),
                     remez=scipy.signal.remez)
        yield Case("exchange", str(taps), "f(1.0, 0.2, 0.2 + width, taps, pout, pdelta)",
                   "remez(taps, [0, 0.2, 0.2 + width, 0.5], [1, 0], fs=1.0, maxiter=99)", names,
                   "numpy.allclose(kept, remez(taps, [0, 0.2, 0.2 + width, 0.5], [1, 0], fs=1.0, maxiter=99), rtol=0, "
                   "atol=1e-12)")


# Name, interval, Quorvan's value at x, SciPy's statement.
SPECIAL = (
    ("gamma", 0.1, 30.0, "f309(x, None)", "s.gamma(x, out)"),
    ("ln_gamma", 0.1, 100.0, "f312(x)", "s.gammaln(x, out)"),
    ("digamma", 0.1, 50.0, "f313(x)", "s.psi(x, out)"),
    ("gamma_p", 0.1, 20.0, "f309(2.5, double(x))", "s.gammainc(2.5, x, out)"),
    ("beta_i", 0.01, 0.99, "f307(2.5, 1.5, double(x))", "s.betainc(2.5, 1.5, x, out)"),
    ("zeta_m1", 1.5, 20.0, "f329(x)", "s.zetac(x, out)"),
    ("elliptic_k", 0.0, 0.99, "f318(x, None)", "s.ellipk(x, out)"),
    ("elliptic_e", 0.0, 0.99, "f319(x, None)", "s.ellipe(x, out)"),
    ("elliptic_f", 0.1, 1.5, "f318(0.7, double(x))", "s.ellipkinc(x, 0.7, out)"),
    ("elliptic_ei", 0.1, 1.5, "f319(0.7, double(x))", "s.ellipeinc(x, 0.7, out)"),
    ("jacobi_sn", -5.0, 5.0, "first(f332, 4, x, 0.7)", "s.ellipj(x, 0.7, out, *more)"),
    ("dawson", -10.0, 10.0, "f320(x)", "s.dawsn(x, out)"),
    ("fresnel_s", -10.0, 10.0, "first(f331, 2, x)", "s.fresnel(x, out, more[0])"),
    ("expint_3", 0.1, 20.0, "f321(x, 3)", "s.expn(3, x, out)"),
    ("sine_int", 0.1, 20.0, "f322(x)", "s.sici(x, out, more[0])"),
    ("cosine_int", 0.1, 20.0, "f323(x)", "s.sici(x, more[0], out)"),
    ("sinh_int", 0.1, 20.0, "f325(x)", "s.shichi(x, out, more[0])"),
    ("cosh_int", 0.1, 20.0, "f324(x)", "s.shichi(x, more[0], out)"),
    ("hyperg_1f1", -10.0, 10.0, "f316(x, 1.3, 2.7)", "s.hyp1f1(1.3, 2.7, x, out)"),
    ("hyperg_u", 0.1, 20.0, "f317(x, 1.3, 2.7)", "s.hyperu(1.3, 2.7, x, out)"),
    ("hyperg_2f1", -0.9, 0.9, "f386(x, 1.3, 0.4, 2.7)", "s.hyp2f1(1.3, 0.4, 2.7, x, out)"),
    ("hyperg_2f1_t", -0.9, 0.9, "f315(x, 1.3, 0.4, 2.7)", "s.hyp2f1(1.3, 0.4, 2.7, x, out)"),
    ("parabolic", 0.0, 2.0, "f327(x, 0.5)", "s.pbdv(0.5, x, out, more[0])"),
    ("bessel_j0", 0.1, 50.0, "f302(0.0, x)", "s.j0(x, out)"),
    ("bessel_y0", 0.1, 50.0, "f301(0.0, x)", "s.y0(x, out)"),
    ("bessel_j1", 0.1, 50.0, "f302(1.0, x)", "s.j1(x, out)"),
    ("bessel_y1", 0.1, 50.0, "f301(1.0, x)", "s.y1(x, out)"),
    ("bessel_j5", 0.1, 50.0, "f302(5.0, x)", "s.jn(5, x, out)"),
    ("bessel_jv", 0.1, 50.0, "f302(2.3, x)", "s.jv(2.3, x, out)"),
    ("bessel_yv", 0.1, 50.0, "f301(2.3, x)", "s.yv(2.3, x, out)"),
    ("bessel_j40", 0.1, 100.0, "f302(40.5, x)", "s.jv(40.5, x, out)"),
    ("spherical_j", 0.1, 50.0, "f303(3, x)", "out[:] = s.spherical_jn(3, x)"),
    ("spherical_y", 0.1, 50.0, "f304(3, x)", "out[:] = s.spherical_yn(3, x)"),
    ("bessel_i0", 0.1, 50.0, "f305(0.0, x)", "s.i0(x, out)"),
    ("bessel_iv", 0.1, 50.0, "f305(2.3, x)", "s.iv(2.3, x, out)"),
    ("bessel_i5", 0.1, 50.0, "f305(5.0, x)", "s.iv(5, x, out)"),
    ("bessel_k0", 0.1, 50.0, "f306(0, x)", "s.k0(x, out)"),
    ("bessel_k5", 0.1, 50.0, "f306(5, x)", "s.kn(5, x, out)"),
    ("struve", 0.1, 50.0, "f328(0.5, x)", "s.struve(0.5, x, out)"),
    ("struve_0", 0.1, 50.0, "f328(0.0, x)", "s.struve(0.0, x, out)"),
    ("airy", -20.0, 20.0, "first(f330, 2, x)", "s.airy(x, out=(out, *more))"),
    ("kelvin_be", 0.1, 30.0, "real_part(f333, x, 0)", "s.ber(x, out)"),
    ("kelvin_ke", 0.1, 30.0, "real_part(f334, x, 0)", "s.ker(x, out)"),
)
SPECIAL_TYPES = {301: "dd", 302: "dd", 303: "cd", 304: "cd", 305: "dd", 306: "cd", 307: "ddp", 309: "dp", 312: "d",
                 313: "d", 315: "dddd", 316: "ddd", 317: "ddd", 318: "dp", 319: "dp", 320: "d", 321: "dc", 322: "d",
                 323: "d", 324: "d", 325: "d", 327: "dd", 328: "dd", 329: "d", 330: "dpp", 331: "dpp", 332: "ddpppp",
                 333: "dcp", 334: "dcp", 386: "dddd"}
SPECIAL_TOLERANCE = {"parabolic": 1e-7, "hyperg_u": 1e-6}  # Quorvan's short Gamma series; SciPy's errors
SPECIAL_POINTS = 1000


def special_times(library, effort):
    """(name, SciPy's seconds) for an array of values. ctypes has no call for an array: the rival is the C++ loop."""
    functions = {f"f{number}": library.call(number, types, ctypes.c_double) for number, types in SPECIAL_TYPES.items()}

    def first(function, outputs, *arguments):
        values = (ctypes.c_double * outputs)()
        function(*arguments, *(ctypes.byref(values, 8 * k) for k in range(outputs)))
        return values[0]

    def real_part(function, *arguments):
        value = (ctypes.c_double * 2)()
        function(*arguments, ctypes.byref(value))
        return value[0]

    functions.update(first=first, real_part=real_part)
    functions["double"] = lambda value: ctypes.byref(ctypes.c_double(value))
    for name, start, end, quorvan, statement in SPECIAL:
        x, out = np.linspace(start, end, SPECIAL_POINTS), np.empty(SPECIAL_POINTS)
        names = dict(s=scipy.special, x=x, out=out, more=[np.empty(SPECIAL_POINTS) for _ in range(3)])
        exec(statement, names)
        ours = np.array([eval(quorvan, dict(functions, x=value)) for value in x])
        tolerance = SPECIAL_TOLERANCE.get(name, 1e-9)
        if not np.allclose(ours, out, rtol=tolerance, atol=1e-3 * tolerance):
            raise SystemExit(f"{name}: Quorvan and SciPy disagree")
        yield name, best([timer(statement, names)], effort)[0]


@dataclass
class Effort:
    repetitions: int = 9
    seconds: float = 0.01


def best(timers, effort):
    """Seconds of one call: the least over the repetitions, which go round the timers in turn."""
    numbers = []
    for timer in timers:
        number = 1
        while (taken := timer.timeit(number)) < effort.seconds:
            number = max(2 * number, int(number * min(10.0, 1.2 * effort.seconds / max(taken, 1e-9))))
        numbers.append(number)
    times = [float("inf")] * len(timers)
    for _ in range(effort.repetitions):
        for i, (timer, number) in enumerate(zip(timers, numbers)):
            times[i] = min(times[i], timer.timeit(number) / number)
    return times


def timer(statement, names):
    return timeit.Timer(statement, timer=time.process_time, globals=dict(names, numpy=np))


def measure(case, effort):
    """Seconds through ctypes and of the rival. Both run once before, and must agree."""
    names = dict(case.names, numpy=np)
    *before, call = case.quorvan.split("; ")
    exec("\n".join(before), names)
    status = eval(call, names)
    if status != 0:
        raise SystemExit(f"{case.group} of {case.size}: status {status}")
    names["kept"] = names["out"].copy()
    exec(case.rival, names)
    if not eval(case.same, names):
        raise SystemExit(f"{case.group} of {case.size}: Quorvan and its rival disagree")
    times = best([timer(case.quorvan, case.names), timer(case.rival, case.names)], effort)
    for release in case.cleanup:
        release()
    return times
