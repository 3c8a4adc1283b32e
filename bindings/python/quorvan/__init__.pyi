# The signatures of the package. Generated from exports/table by tools/python_binding.py; do not edit.
import enum
from collections.abc import Callable
from typing import Any, Generic, NamedTuple, TypeVar, overload

import numpy as np
from numpy.typing import ArrayLike, NDArray
from typing_extensions import TypeAlias

from ._objects import FftPlan as FftPlan
from ._objects import IirStateComplex as IirStateComplex
from ._objects import IirFilter as IirFilter
from ._objects import FirNarrowband as FirNarrowband
from ._objects import ThresholdRuns as ThresholdRuns
from ._objects import PeakDetector as PeakDetector
from ._objects import Decimator as Decimator
from ._objects import LevelCrossing as LevelCrossing
from ._objects import GammaNoise as GammaNoise
from ._objects import PoissonNoise as PoissonNoise
from ._objects import BinomialNoise as BinomialNoise
from ._objects import BernoulliNoise as BernoulliNoise
from ._objects import HaltonSequence as HaltonSequence
from ._objects import WeylSequence as WeylSequence
from ._runtime import Handle as Handle
from ._runtime import QuorvanError as QuorvanError
from ._runtime import QuorvanWarning as QuorvanWarning
from ._runtime import WindowProperties as WindowProperties

_Complex: TypeAlias = NDArray[np.complexfloating[Any, Any]]
_Element = TypeVar("_Element", float, NDArray[np.float64])

__version__: str

class Window(enum.IntEnum):
    RECTANGULAR = 0
    HANNING = 1
    HAMMING = 2
    BLACKMAN_HARRIS3 = 3
    EXACT_BLACKMAN = 4
    BLACKMAN = 5
    FLAT_TOP = 6
    BLACKMAN_HARRIS4 = 7
    BLACKMAN_HARRIS7 = 8
    LOW_SIDELOBE = 9
    BLACKMAN_NUTTALL = 11
    TRIANGLE = 30
    BARTLETT_HANNING = 31
    BOHMAN = 32
    PARZEN = 33
    WELCH = 34
    KAISER = 60
    CHEBYSHEV = 61
    GAUSSIAN = 62

class FirWindow(enum.IntEnum):
    RECTANGULAR = 1
    TRIANGLE = 2
    HANNING = 3
    HAMMING = 4
    BLACKMAN = 5

class FilterKind(enum.IntEnum):
    LOWPASS = 0
    HIGHPASS = 1
    BANDPASS = 2
    BANDSTOP = 3

class Method(enum.IntEnum):
    DIRECT = 0
    TRANSFORM = 1

class Normalisation(enum.IntEnum):
    NONE = 0
    UNBIASED = 1
    BIASED = 2

class Shape(enum.IntEnum):
    FULL = 0
    SAME = 1
    VALID = 2

class SortOrder(enum.IntEnum):
    ASCENDING = 0
    DESCENDING = 1

class SpectrumKind(enum.IntEnum):
    POWER = 0
    AMPLITUDE = 1
    MAGNITUDE = 2

class Display(enum.IntEnum):
    LINEAR = 0
    DECIBEL = 1
    DBM = 2

class UnitFlags(enum.IntFlag):
    NONE = 0
    PEAK = 1
    POWER = 2
    DENSITY = 4

class PhaseMode(enum.IntEnum):
    RADIANS = 0
    RADIANS_TO_DEGREES = 1
    DEGREES = 2
    DEGREES_TO_RADIANS = 3

class PeakPolarity(enum.IntEnum):
    PEAKS = 0
    VALLEYS = 1

class LevelMethod(enum.IntEnum):
    HISTOGRAM = 0
    PEAK = 1
    AUTO = 2

class EdgePolarity(enum.IntEnum):
    FALLING = 0
    RISING = 1
    ANY = -1

class ToneOrder(enum.IntEnum):
    FREQUENCY = 0
    AMPLITUDE = 1

class ToneSignal(enum.IntEnum):
    NONE = 0
    INPUT = 1
    TONES = 2
    RESIDUAL = 3

class Difference(enum.IntEnum):
    CENTRAL2 = 0
    CENTRAL4 = 1
    FORWARD = 2
    BACKWARD = 3

class QuadratureRule(enum.IntEnum):
    TRAPEZOID = 0
    SIMPSON = 1
    SIMPSON38 = 2
    BOOLE = 3

class MatrixKind(enum.IntEnum):
    GENERAL = 0
    POSITIVE_DEFINITE = 1
    LOWER_TRIANGULAR = 2
    UPPER_TRIANGULAR = 3

class EigenKind(enum.IntEnum):
    GENERAL = 0
    HERMITIAN = 1

class MatrixNorm(enum.IntEnum):
    TWO = 0
    ONE = 1
    FROBENIUS = 2
    INFINITY = 3

class VectorNorm(enum.IntEnum):
    ONE = 0
    TWO = 1
    INFINITY = 2
    MINUS_INFINITY = 3
    P = 4

class SpecialMatrix(enum.IntEnum):
    IDENTITY = 0
    DIAGONAL = 1
    TOEPLITZ = 2
    VANDERMONDE = 3
    COMPANION = 4

class LagMethod(enum.IntEnum):
    AUTOCORRELATION = 0
    PREWINDOWED = 1
    POSTWINDOWED = 2
    COVARIANCE = 3
    MODIFIED_COVARIANCE = 4

class SvdMode(enum.IntEnum):
    FULL = 0
    ECONOMY = 1

class QrMethod(enum.IntEnum):
    HOUSEHOLDER = 0
    GIVENS = 1
    FAST_GIVENS = 2

class PivotMode(enum.IntEnum):
    NONE = 0
    VECTOR = 1
    MATRIX = 2

class BalanceJob(enum.IntEnum):
    NONE = 0
    PERMUTE = 1
    SCALE = 2
    BOTH = 3

class Side(enum.IntEnum):
    RIGHT = 0
    LEFT = 1

class EigenOrder(enum.IntEnum):
    AS_PRODUCED = 0
    ASCENDING_REAL = 1
    DESCENDING_REAL = 2
    ASCENDING_MODULUS = 3
    DESCENDING_MODULUS = 4

class RobustMethod(enum.IntEnum):
    LEAST_SQUARES = 0
    LEAST_ABSOLUTE_RESIDUALS = 1
    BISQUARE = 2

class PolynomialAlgorithm(enum.IntEnum):
    SINGULAR_VALUES = 0
    QR = 1
    LU = 2
    CHOLESKY = 3

class LinearAlgorithm(enum.IntEnum):
    SINGULAR_VALUES = 0
    QR = 1
    QR_GIVENS = 2
    QR_FAST_GIVENS = 3
    LU = 4
    CHOLESKY = 5
    TRUNCATED_SINGULAR_VALUES = 6

class RemezKind(enum.IntEnum):
    MULTIBAND = 1
    DIFFERENTIATOR = 2
    HILBERT = 3

class RemezBandsKind(enum.IntEnum):
    MULTIBAND = 0
    DIFFERENTIATOR = 1
    HILBERT = 2

class BoundsType(enum.IntEnum):
    CONFIDENCE = 0
    PREDICTION = 1

class RangeOf(enum.IntEnum):
    Y = 0
    X = 1
    XY = 2

def array_clear(n: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_fill(n: int, value: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_copy(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_subset(x: ArrayLike, index: int, length: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_reverse(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_shift(x: ArrayLike, shift: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_sort(x: ArrayLike, direction: SortOrder | int | str = SortOrder.ASCENDING, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_add(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_add_2d(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_subtract(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_subtract_2d(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_multiply(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_multiply_2d(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_divide(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_divide_2d(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_negate(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_abs(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_sum(x: ArrayLike) -> float: ...
def array_sum_2d(x: ArrayLike) -> float: ...
def array_product(x: ArrayLike) -> float: ...
class ArrayMaxMinResult(NamedTuple):
    max: float
    max_index: int
    min: float
    min_index: int

def array_max_min(x: ArrayLike) -> ArrayMaxMinResult: ...
class ArrayMaxMin2dResult(NamedTuple):
    max: float
    max_row: int
    max_col: int
    min: float
    min_row: int
    min_col: int

def array_max_min_2d(x: ArrayLike) -> ArrayMaxMin2dResult: ...
class ArrayScaleResult(NamedTuple):
    out: NDArray[np.float64]
    offset: float
    scale: float

def array_scale(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> ArrayScaleResult: ...
class ArrayScale2dResult(NamedTuple):
    out: NDArray[np.float64]
    offset: float
    scale: float

def array_scale_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> ArrayScale2dResult: ...
class ArrayQuickScaleResult(NamedTuple):
    out: NDArray[np.float64]
    peak: float

def array_quick_scale(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> ArrayQuickScaleResult: ...
class ArrayQuickScale2dResult(NamedTuple):
    out: NDArray[np.float64]
    peak: float

def array_quick_scale_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> ArrayQuickScale2dResult: ...
class ArrayNormalizeResult(NamedTuple):
    out: NDArray[np.float64]
    mean: float
    std_dev: float

def array_normalize(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> ArrayNormalizeResult: ...
class ArrayNormalize2dResult(NamedTuple):
    out: NDArray[np.float64]
    mean: float
    std_dev: float

def array_normalize_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> ArrayNormalize2dResult: ...
def array_linear_eval(x: ArrayLike, a: float, b: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_linear_eval_2d(x: ArrayLike, a: float, b: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_poly_eval(x: ArrayLike, coef: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_poly_eval_2d(x: ArrayLike, coef: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def array_clip(x: ArrayLike, upper: float, lower: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def bessel_j(order: float, x: float) -> float: ...  # type: ignore[misc]
@overload
def bessel_j(order: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def bessel_y(order: float, x: float) -> float: ...  # type: ignore[misc]
@overload
def bessel_y(order: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def spherical_bessel_j(n: int, x: float) -> float: ...  # type: ignore[misc]
@overload
def spherical_bessel_j(n: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def spherical_bessel_y(n: int, x: float) -> float: ...  # type: ignore[misc]
@overload
def spherical_bessel_y(n: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def bessel_i(order: float, x: float) -> float: ...  # type: ignore[misc]
@overload
def bessel_i(order: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def bessel_k(n: int, x: float) -> float: ...  # type: ignore[misc]
@overload
def bessel_k(n: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def struve(order: float, x: float) -> float: ...  # type: ignore[misc]
@overload
def struve(order: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
class AiryResult(NamedTuple, Generic[_Element]):
    ai: _Element
    bi: _Element

@overload
def airy(x: float) -> AiryResult[float]: ...  # type: ignore[misc]
@overload
def airy(x: ArrayLike) -> AiryResult[NDArray[np.float64]]: ...
@overload
def kelvin_be(x: float, n: int) -> complex: ...  # type: ignore[misc]
@overload
def kelvin_be(x: ArrayLike, n: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def kelvin_ke(x: float, n: int) -> complex: ...  # type: ignore[misc]
@overload
def kelvin_ke(x: ArrayLike, n: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_add(x: complex, y: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_add(x: ArrayLike, y: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_subtract(x: complex, y: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_subtract(x: ArrayLike, y: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_multiply(x: complex, y: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_multiply(x: ArrayLike, y: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_divide(x: complex, y: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_divide(x: ArrayLike, y: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_reciprocal(x: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_reciprocal(x: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_sqrt(x: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_sqrt(x: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_exp(x: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_exp(x: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_log(x: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_log(x: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_log10(x: complex) -> complex: ...  # type: ignore[misc]
@overload
def complex_log10(x: ArrayLike) -> NDArray[np.complex128]: ...
@overload
def complex_pow(x: complex, p: float) -> complex: ...  # type: ignore[misc]
@overload
def complex_pow(x: ArrayLike, p: ArrayLike) -> NDArray[np.complex128]: ...
class ComplexToPolarResult(NamedTuple, Generic[_Element]):
    magnitude: _Element
    phase: _Element

@overload
def complex_to_polar(z: complex) -> ComplexToPolarResult[float]: ...  # type: ignore[misc]
@overload
def complex_to_polar(z: ArrayLike) -> ComplexToPolarResult[NDArray[np.float64]]: ...
@overload
def complex_from_polar(magnitude: float, phase: float) -> complex: ...  # type: ignore[misc]
@overload
def complex_from_polar(magnitude: ArrayLike, phase: ArrayLike) -> NDArray[np.complex128]: ...
def complex_array_add(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def complex_array_subtract(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def complex_array_multiply(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def complex_array_divide(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class ComplexArrayToPolarResult(NamedTuple):
    magnitude: NDArray[np.float64]
    phase: NDArray[np.float64]

def complex_array_to_polar(z: ArrayLike, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ComplexArrayToPolarResult: ...
def complex_array_from_polar(magnitude: ArrayLike, phase: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def complex_array_linear_eval(z: ArrayLike, a: complex, b: complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def convolve_real(x: _Complex, y: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def convolve_real(x: ArrayLike, y: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def convolve_real(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def convolve_real_by(x: _Complex, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def convolve_real_by(x: ArrayLike, y: _Complex, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def convolve_real_by(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def convolve_complex(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def correlate_real(x: _Complex, y: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_real(x: ArrayLike, y: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_real(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def correlate_real_by(x: _Complex, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_real_by(x: ArrayLike, y: _Complex, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_real_by(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def correlate_real_normalised(x: _Complex, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_real_normalised(x: ArrayLike, y: _Complex, method: Method | int | str = Method.TRANSFORM, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_real_normalised(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def auto_correlate_real(x: _Complex, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def auto_correlate_real(x: ArrayLike, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def correlate_complex(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def correlate_complex_normalised(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def auto_correlate_complex(x: ArrayLike, normalisation: Normalisation | int | str = Normalisation.NONE, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def deconvolve(y: ArrayLike, x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def convolve_2d_real(x: _Complex, y: ArrayLike, shape: Shape | int | str = Shape.FULL, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def convolve_2d_real(x: ArrayLike, y: _Complex, shape: Shape | int | str = Shape.FULL, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def convolve_2d_real(x: ArrayLike, y: ArrayLike, shape: Shape | int | str = Shape.FULL, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def convolve_2d_complex(x: ArrayLike, y: ArrayLike, shape: Shape | int | str = Shape.FULL, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def correlate_2d_real(x: _Complex, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_2d_real(x: ArrayLike, y: _Complex, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def correlate_2d_real(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def correlate_2d_complex(x: ArrayLike, y: ArrayLike, method: Method | int | str = Method.TRANSFORM, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def auto_correlate_2d_real(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def auto_correlate_2d_real(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def auto_correlate_2d_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def singular_values(a: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def singular_values(a: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def singular_values_complex(a: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class SvdResult(NamedTuple):
    u: NDArray[np.float64]
    s: NDArray[np.float64]
    v: NDArray[np.float64]

@overload
def svd(a: _Complex, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> SvdComplexResult: ...  # type: ignore[misc]
@overload
def svd(a: ArrayLike, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> SvdResult: ...
class SvdComplexResult(NamedTuple):
    u: NDArray[np.complex128]
    s: NDArray[np.complex128]
    v: NDArray[np.complex128]

def svd_complex(a: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> SvdComplexResult: ...
class SvdModeResult(NamedTuple):
    u: NDArray[np.float64]
    s: NDArray[np.float64]
    v: NDArray[np.float64]

@overload
def svd_mode(a: _Complex, mode: SvdMode | int | str = SvdMode.FULL, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> SvdModeComplexResult: ...  # type: ignore[misc]
@overload
def svd_mode(a: ArrayLike, mode: SvdMode | int | str = SvdMode.FULL, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> SvdModeResult: ...
class SvdModeComplexResult(NamedTuple):
    u: NDArray[np.complex128]
    s: NDArray[np.complex128]
    v: NDArray[np.complex128]

def svd_mode_complex(a: ArrayLike, mode: SvdMode | int | str = SvdMode.FULL, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> SvdModeComplexResult: ...
class LuResult(NamedTuple):
    a: NDArray[np.float64]
    pivots: NDArray[np.int64]
    parity: int

@overload
def lu(a: _Complex, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.int64] | None] | None = None) -> LuComplexResult: ...  # type: ignore[misc]
@overload
def lu(a: ArrayLike, *, out: tuple[NDArray[np.float64] | None, NDArray[np.int64] | None] | None = None) -> LuResult: ...
class LuComplexResult(NamedTuple):
    a: NDArray[np.complex128]
    pivots: NDArray[np.int64]
    parity: int

def lu_complex(a: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.int64] | None] | None = None) -> LuComplexResult: ...
@overload
def cholesky(a: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def cholesky(a: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def cholesky_complex(a: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class QrMethodResult(NamedTuple):
    q: NDArray[np.float64]
    r: NDArray[np.float64]

def qr_method(a: ArrayLike, method: QrMethod | int | str = QrMethod.HOUSEHOLDER, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> QrMethodResult: ...
class QrPivotResult(NamedTuple):
    p: NDArray[np.int64]
    q: NDArray[np.float64]
    r: NDArray[np.float64]

@overload
def qr_pivot(a: _Complex, pivot_mode: PivotMode | int | str = PivotMode.VECTOR, economy: bool = False, *, out: tuple[NDArray[np.int64] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QrPivotComplexResult: ...  # type: ignore[misc]
@overload
def qr_pivot(a: ArrayLike, pivot_mode: PivotMode | int | str = PivotMode.VECTOR, economy: bool = False, *, out: tuple[NDArray[np.int64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> QrPivotResult: ...
class QrPivotComplexResult(NamedTuple):
    p: NDArray[np.int64]
    q: NDArray[np.complex128]
    r: NDArray[np.complex128]

def qr_pivot_complex(a: ArrayLike, pivot_mode: PivotMode | int | str = PivotMode.VECTOR, economy: bool = False, *, out: tuple[NDArray[np.int64] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QrPivotComplexResult: ...
class QrComplexResult(NamedTuple):
    q: NDArray[np.complex128]
    r: NDArray[np.complex128]

def qr_complex(a: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QrComplexResult: ...
class HessenbergResult(NamedTuple):
    h: NDArray[np.float64]
    q: NDArray[np.float64]

@overload
def hessenberg(a: _Complex, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> HessenbergComplexResult: ...  # type: ignore[misc]
@overload
def hessenberg(a: ArrayLike, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> HessenbergResult: ...
class HessenbergComplexResult(NamedTuple):
    h: NDArray[np.complex128]
    q: NDArray[np.complex128]

def hessenberg_complex(a: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> HessenbergComplexResult: ...
class BalanceResult(NamedTuple):
    low: int
    high: int
    scale: NDArray[np.float64]
    balanced: NDArray[np.float64]

@overload
def balance(a: _Complex, job: BalanceJob | int | str = BalanceJob.BOTH, *, out: tuple[NDArray[np.float64] | None, NDArray[np.complex128] | None] | None = None) -> BalanceComplexResult: ...  # type: ignore[misc]
@overload
def balance(a: ArrayLike, job: BalanceJob | int | str = BalanceJob.BOTH, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> BalanceResult: ...
class BalanceComplexResult(NamedTuple):
    low: int
    high: int
    scale: NDArray[np.float64]
    balanced: NDArray[np.complex128]

def balance_complex(a: ArrayLike, job: BalanceJob | int | str = BalanceJob.BOTH, *, out: tuple[NDArray[np.float64] | None, NDArray[np.complex128] | None] | None = None) -> BalanceComplexResult: ...
@overload
def balance_back(v: _Complex, low: int, high: int, scale: ArrayLike, job: BalanceJob | int | str = BalanceJob.BOTH, side: Side | int | str = Side.RIGHT, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def balance_back(v: ArrayLike, low: int, high: int, scale: _Complex, job: BalanceJob | int | str = BalanceJob.BOTH, side: Side | int | str = Side.RIGHT, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def balance_back(v: ArrayLike, low: int, high: int, scale: ArrayLike, job: BalanceJob | int | str = BalanceJob.BOTH, side: Side | int | str = Side.RIGHT, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def balance_back_complex(v: ArrayLike, low: int, high: int, scale: ArrayLike, job: BalanceJob | int | str = BalanceJob.BOTH, side: Side | int | str = Side.RIGHT, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class FilterFirResult(NamedTuple):
    y: NDArray[np.float64]
    input_state: NDArray[np.float64]

@overload
def filter_fir(x: _Complex, b: ArrayLike, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterFirComplexResult: ...  # type: ignore[misc]
@overload
def filter_fir(x: ArrayLike, b: _Complex, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterFirComplexResult: ...  # type: ignore[misc]
@overload
def filter_fir(x: ArrayLike, b: ArrayLike, input_state: _Complex, *, out: NDArray[np.complex128] | None = None) -> FilterFirComplexResult: ...  # type: ignore[misc]
@overload
def filter_fir(x: ArrayLike, b: ArrayLike, input_state: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> FilterFirResult: ...
class FilterDirectResult(NamedTuple):
    y: NDArray[np.float64]
    output_state: NDArray[np.float64] | None
    input_state: NDArray[np.float64]

@overload
def filter_direct(x: _Complex, b: ArrayLike, a: ArrayLike | None = None, output_state: ArrayLike | None = None, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: _Complex, a: ArrayLike | None = None, output_state: ArrayLike | None = None, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: ArrayLike, a: _Complex, output_state: ArrayLike | None = None, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: ArrayLike, a: ArrayLike | None, output_state: _Complex, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: ArrayLike, a: ArrayLike | None = None, *, output_state: _Complex, input_state: ArrayLike | None = None, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: ArrayLike, a: ArrayLike | None, output_state: ArrayLike | None, input_state: _Complex, *, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: ArrayLike, a: ArrayLike | None = None, output_state: ArrayLike | None = None, *, input_state: _Complex, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...  # type: ignore[misc]
@overload
def filter_direct(x: ArrayLike, b: ArrayLike, a: ArrayLike | None = None, output_state: ArrayLike | None = None, input_state: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> FilterDirectResult: ...
class FilterFirComplexResult(NamedTuple):
    y: NDArray[np.complex128]
    input_state: NDArray[np.complex128]

def filter_fir_complex(x: ArrayLike, b: ArrayLike, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterFirComplexResult: ...
class FilterDirectComplexResult(NamedTuple):
    y: NDArray[np.complex128]
    output_state: NDArray[np.complex128] | None
    input_state: NDArray[np.complex128]

def filter_direct_complex(x: ArrayLike, b: ArrayLike, a: ArrayLike | None = None, output_state: ArrayLike | None = None, input_state: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> FilterDirectComplexResult: ...
def filter_zero_phase(x: ArrayLike, a: ArrayLike, b: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
class SavitzkyGolayDesignResult(NamedTuple):
    smoother: NDArray[np.float64]
    derivatives: NDArray[np.float64] | None

def savitzky_golay_design(order: int, side: int, weights: ArrayLike | None = None, want_derivatives: bool = True, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> SavitzkyGolayDesignResult: ...
@overload
def savitzky_golay_filter(x: _Complex, order: int, side: int, weights: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def savitzky_golay_filter(x: ArrayLike, order: int, side: int, weights: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def savitzky_golay_filter(x: ArrayLike, order: int, side: int, weights: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def savitzky_golay_filter_complex(x: ArrayLike, order: int, side: int, weights: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def filter_median(x: ArrayLike, left_rank: int, right_rank: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def erf(x: float) -> float: ...  # type: ignore[misc]
@overload
def erf(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def erfc(x: float) -> float: ...  # type: ignore[misc]
@overload
def erfc(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def normal_cdf(x: float) -> float: ...  # type: ignore[misc]
@overload
def normal_cdf(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def normal_inverse(p: float) -> float: ...  # type: ignore[misc]
@overload
def normal_inverse(p: ArrayLike) -> NDArray[np.float64]: ...
@overload
def t_cdf(t: float, dof: int) -> float: ...  # type: ignore[misc]
@overload
def t_cdf(t: ArrayLike, dof: ArrayLike) -> NDArray[np.float64]: ...
@overload
def t_inverse(p: float, dof: int) -> float: ...  # type: ignore[misc]
@overload
def t_inverse(p: ArrayLike, dof: ArrayLike) -> NDArray[np.float64]: ...
@overload
def chi_square_cdf(x: float, dof: int) -> float: ...  # type: ignore[misc]
@overload
def chi_square_cdf(x: ArrayLike, dof: ArrayLike) -> NDArray[np.float64]: ...
@overload
def chi_square_inverse(p: float, dof: int) -> float: ...  # type: ignore[misc]
@overload
def chi_square_inverse(p: ArrayLike, dof: ArrayLike) -> NDArray[np.float64]: ...
@overload
def f_cdf(x: float, dof1: int, dof2: int) -> float: ...  # type: ignore[misc]
@overload
def f_cdf(x: ArrayLike, dof1: ArrayLike, dof2: ArrayLike) -> NDArray[np.float64]: ...
@overload
def f_inverse(p: float, dof1: int, dof2: int) -> float: ...  # type: ignore[misc]
@overload
def f_inverse(p: ArrayLike, dof1: ArrayLike, dof2: ArrayLike) -> NDArray[np.float64]: ...
class EigenGeneralResult(NamedTuple):
    values: NDArray[np.complex128]
    vectors: NDArray[np.complex128] | None

@overload
def eigen_general(a: _Complex, want_vectors: bool = True, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenComplexResult: ...  # type: ignore[misc]
@overload
def eigen_general(a: ArrayLike, want_vectors: bool = True, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenGeneralResult: ...
class EigenSymmetricResult(NamedTuple):
    values: NDArray[np.float64]
    vectors: NDArray[np.float64] | None

def eigen_symmetric(a: ArrayLike, want_vectors: bool = True, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> EigenSymmetricResult: ...
class EigenComplexResult(NamedTuple):
    values: NDArray[np.complex128]
    vectors: NDArray[np.complex128] | None

def eigen_complex(a: ArrayLike, kind: EigenKind | int | str = EigenKind.GENERAL, want_vectors: bool = True, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenComplexResult: ...
class SchurResult(NamedTuple):
    vectors: NDArray[np.float64]
    t: NDArray[np.float64]
    values: NDArray[np.complex128]

@overload
def schur(a: _Complex, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> SchurComplexResult: ...  # type: ignore[misc]
@overload
def schur(a: ArrayLike, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.complex128] | None] | None = None) -> SchurResult: ...
class SchurComplexResult(NamedTuple):
    vectors: NDArray[np.complex128]
    t: NDArray[np.complex128]
    values: NDArray[np.complex128]

def schur_complex(a: ArrayLike, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> SchurComplexResult: ...
class EigenGeneralisedResult(NamedTuple):
    values: NDArray[np.complex128]
    right: NDArray[np.complex128]
    left: NDArray[np.complex128]

@overload
def eigen_generalised(a: _Complex, b: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenGeneralisedComplexResult: ...  # type: ignore[misc]
@overload
def eigen_generalised(a: ArrayLike, b: _Complex, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenGeneralisedComplexResult: ...  # type: ignore[misc]
@overload
def eigen_generalised(a: ArrayLike, b: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenGeneralisedResult: ...
class EigenGeneralisedComplexResult(NamedTuple):
    values: NDArray[np.complex128]
    right: NDArray[np.complex128]
    left: NDArray[np.complex128]

def eigen_generalised_complex(a: ArrayLike, b: ArrayLike, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> EigenGeneralisedComplexResult: ...
class QzResult(NamedTuple):
    s: NDArray[np.float64]
    t: NDArray[np.float64]
    q: NDArray[np.float64]
    z: NDArray[np.float64]
    alpha: NDArray[np.complex128]
    beta: NDArray[np.float64]
    right: NDArray[np.complex128]
    left: NDArray[np.complex128]

@overload
def qz(a: _Complex, b: ArrayLike, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QzComplexResult: ...  # type: ignore[misc]
@overload
def qz(a: ArrayLike, b: _Complex, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QzComplexResult: ...  # type: ignore[misc]
@overload
def qz(a: ArrayLike, b: ArrayLike, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.complex128] | None, NDArray[np.float64] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QzResult: ...
class QzComplexResult(NamedTuple):
    s: NDArray[np.complex128]
    t: NDArray[np.complex128]
    q: NDArray[np.complex128]
    z: NDArray[np.complex128]
    alpha: NDArray[np.complex128]
    beta: NDArray[np.complex128]
    right: NDArray[np.complex128]
    left: NDArray[np.complex128]

def qz_complex(a: ArrayLike, b: ArrayLike, sort: EigenOrder | int | str = EigenOrder.AS_PRODUCED, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None, NDArray[np.complex128] | None] | None = None) -> QzComplexResult: ...
@overload
def elliptic_k(m: float, phi: float | None = None) -> float: ...  # type: ignore[misc]
@overload
def elliptic_k(m: ArrayLike, phi: ArrayLike | None = None) -> NDArray[np.float64]: ...
@overload
def elliptic_e(m: float, phi: float | None = None) -> float: ...  # type: ignore[misc]
@overload
def elliptic_e(m: ArrayLike, phi: ArrayLike | None = None) -> NDArray[np.float64]: ...
class JacobiEllipticResult(NamedTuple, Generic[_Element]):
    sn: _Element
    cn: _Element
    dn: _Element
    phi: _Element

@overload
def jacobi_elliptic(u: float, m: float) -> JacobiEllipticResult[float]: ...  # type: ignore[misc]
@overload
def jacobi_elliptic(u: ArrayLike, m: ArrayLike) -> JacobiEllipticResult[NDArray[np.float64]]: ...
@overload
def dawson(x: float) -> float: ...  # type: ignore[misc]
@overload
def dawson(x: ArrayLike) -> NDArray[np.float64]: ...
class FresnelResult(NamedTuple, Generic[_Element]):
    s: _Element
    c: _Element

@overload
def fresnel(x: float) -> FresnelResult[float]: ...  # type: ignore[misc]
@overload
def fresnel(x: ArrayLike) -> FresnelResult[NDArray[np.float64]]: ...
@overload
def exp_integral_n(x: float, n: int) -> float: ...  # type: ignore[misc]
@overload
def exp_integral_n(x: ArrayLike, n: ArrayLike) -> NDArray[np.float64]: ...
@overload
def sine_integral(x: float) -> float: ...  # type: ignore[misc]
@overload
def sine_integral(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def cosine_integral(x: float) -> float: ...  # type: ignore[misc]
@overload
def cosine_integral(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def hyperbolic_sine_integral(x: float) -> float: ...  # type: ignore[misc]
@overload
def hyperbolic_sine_integral(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def hyperbolic_cosine_integral(x: float) -> float: ...  # type: ignore[misc]
@overload
def hyperbolic_cosine_integral(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def hyperg_1f1(x: float, a: float, b: float) -> float: ...  # type: ignore[misc]
@overload
def hyperg_1f1(x: ArrayLike, a: ArrayLike, b: ArrayLike) -> NDArray[np.float64]: ...
@overload
def hyperg_u(x: float, a: float, b: float) -> float: ...  # type: ignore[misc]
@overload
def hyperg_u(x: ArrayLike, a: ArrayLike, b: ArrayLike) -> NDArray[np.float64]: ...
@overload
def hyperg_2f1(x: float, a: float, b: float, c: float) -> float: ...  # type: ignore[misc]
@overload
def hyperg_2f1(x: ArrayLike, a: ArrayLike, b: ArrayLike, c: ArrayLike) -> NDArray[np.float64]: ...
@overload
def hyperg_2f1_transformed(x: float, a: float, b: float, c: float) -> float: ...  # type: ignore[misc]
@overload
def hyperg_2f1_transformed(x: ArrayLike, a: ArrayLike, b: ArrayLike, c: ArrayLike) -> NDArray[np.float64]: ...
@overload
def parabolic_cylinder(x: float, v: float) -> float: ...  # type: ignore[misc]
@overload
def parabolic_cylinder(x: ArrayLike, v: ArrayLike) -> NDArray[np.float64]: ...
def iir_filter_create(kind: FilterKind | int | str, order: int) -> IirFilter: ...
def iir_state_complex_create(kind: FilterKind | int | str, order: int) -> IirStateComplex: ...
def iir_filter_reset(filter: IirFilter) -> None: ...
def iir_cascade_apply(x: ArrayLike, filter: IirFilter, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def iir_cascade_apply_complex(x: ArrayLike, filter: IirFilter, state: IirStateComplex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class FirRemezDesignResult(NamedTuple):
    h: NDArray[np.float64]
    delta: float

def fir_remez_design(desired: ArrayLike, weights: ArrayLike, fs: float, edges: ArrayLike, taps: int, kind: RemezKind | int | str = RemezKind.MULTIBAND, *, out: NDArray[np.float64] | None = None) -> FirRemezDesignResult: ...
class FirRemezBandsResult(NamedTuple):
    h: NDArray[np.float64]
    delta: float

def fir_remez_bands(taps: int, fs: float, bands: ArrayLike, kind: RemezBandsKind | int | str = RemezBandsKind.MULTIBAND, *, out: NDArray[np.float64] | None = None) -> FirRemezBandsResult: ...
class FirRemezLowpassResult(NamedTuple):
    h: NDArray[np.float64]
    delta: float

def fir_remez_lowpass(fs: float, fpass: float, fstop: float, taps: int, *, out: NDArray[np.float64] | None = None) -> FirRemezLowpassResult: ...
class FirRemezHighpassResult(NamedTuple):
    h: NDArray[np.float64]
    delta: float

def fir_remez_highpass(fs: float, fstop: float, fpass: float, taps: int, *, out: NDArray[np.float64] | None = None) -> FirRemezHighpassResult: ...
class FirRemezBandpassResult(NamedTuple):
    h: NDArray[np.float64]
    delta: float

def fir_remez_bandpass(fs: float, f1: float, f2: float, f3: float, f4: float, taps: int, *, out: NDArray[np.float64] | None = None) -> FirRemezBandpassResult: ...
class FirRemezBandstopResult(NamedTuple):
    h: NDArray[np.float64]
    delta: float

def fir_remez_bandstop(fs: float, f1: float, f2: float, f3: float, f4: float, taps: int, *, out: NDArray[np.float64] | None = None) -> FirRemezBandstopResult: ...
@overload
def fir_remez_filter_lowpass(x: _Complex, taps: int, fs: float, fpass: float, fstop: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_remez_filter_lowpass(x: ArrayLike, taps: int, fs: float, fpass: float, fstop: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_remez_filter_highpass(x: _Complex, taps: int, fs: float, fstop: float, fpass: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_remez_filter_highpass(x: ArrayLike, taps: int, fs: float, fstop: float, fpass: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_remez_filter_bandpass(x: _Complex, taps: int, fs: float, f1: float, f2: float, f3: float, f4: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_remez_filter_bandpass(x: ArrayLike, taps: int, fs: float, f1: float, f2: float, f3: float, f4: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_remez_filter_bandstop(x: _Complex, taps: int, fs: float, f1: float, f2: float, f3: float, f4: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_remez_filter_bandstop(x: ArrayLike, taps: int, fs: float, f1: float, f2: float, f3: float, f4: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_remez_filter_complex_lowpass(x: ArrayLike, taps: int, fs: float, fpass: float, fstop: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_remez_filter_complex_highpass(x: ArrayLike, taps: int, fs: float, fstop: float, fpass: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_remez_filter_complex_bandpass(x: ArrayLike, taps: int, fs: float, f1: float, f2: float, f3: float, f4: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_remez_filter_complex_bandstop(x: ArrayLike, taps: int, fs: float, f1: float, f2: float, f3: float, f4: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_narrowband_create() -> FirNarrowband: ...
def fir_narrowband_release(filter: FirNarrowband) -> None: ...
def fir_narrowband_design(fs: float, f1: float, f2: float, ripple: float, attenuation: float, kind: FilterKind | int | str, filter: FirNarrowband, center: float = 0.0) -> None: ...
@overload
def fir_narrowband_filter(x: _Complex, filter: FirNarrowband, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_narrowband_filter(x: ArrayLike, filter: FirNarrowband, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_narrowband_filter_complex(x: ArrayLike, filter: FirNarrowband, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_ideal_response(kind: FilterKind | int | str, fs: float, fl: float, taps: int, fh: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_window(kind: FilterKind | int | str, fs: float, fl: float, taps: int, window: Window | int | str, fh: float = 0.0, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_lowpass(fs: float, fc: float, taps: int, window: FirWindow | int | str = FirWindow.HAMMING, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_highpass(fs: float, fc: float, taps: int, window: FirWindow | int | str = FirWindow.HAMMING, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_bandpass(fs: float, fl: float, fh: float, taps: int, window: FirWindow | int | str = FirWindow.HAMMING, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_bandstop(fs: float, fl: float, fh: float, taps: int, window: FirWindow | int | str = FirWindow.HAMMING, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_kaiser_lowpass(fs: float, fc: float, taps: int, beta: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_kaiser_highpass(fs: float, fc: float, taps: int, beta: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_kaiser_bandpass(fs: float, fl: float, fh: float, taps: int, beta: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_design_kaiser_bandstop(fs: float, fl: float, fh: float, taps: int, beta: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_filter_window(x: _Complex, taps: int, kind: FilterKind | int | str, fs: float, fl: float, window: Window | int | str, fh: float = 0.0, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_filter_window(x: ArrayLike, taps: int, kind: FilterKind | int | str, fs: float, fl: float, window: Window | int | str, fh: float = 0.0, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_filter_window_lowpass(x: _Complex, taps: int, fs: float, fc: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_filter_window_lowpass(x: ArrayLike, taps: int, fs: float, fc: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_filter_window_highpass(x: _Complex, taps: int, fs: float, fc: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_filter_window_highpass(x: ArrayLike, taps: int, fs: float, fc: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_filter_window_bandpass(x: _Complex, taps: int, fs: float, fl: float, fh: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_filter_window_bandpass(x: ArrayLike, taps: int, fs: float, fl: float, fh: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def fir_filter_window_bandstop(x: _Complex, taps: int, fs: float, fl: float, fh: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def fir_filter_window_bandstop(x: ArrayLike, taps: int, fs: float, fl: float, fh: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fir_filter_window_complex(x: ArrayLike, taps: int, kind: FilterKind | int | str, fs: float, fl: float, window: Window | int | str, fh: float = 0.0, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_filter_window_complex_lowpass(x: ArrayLike, taps: int, fs: float, fc: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_filter_window_complex_highpass(x: ArrayLike, taps: int, fs: float, fc: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_filter_window_complex_bandpass(x: ArrayLike, taps: int, fs: float, fl: float, fh: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def fir_filter_window_complex_bandstop(x: ArrayLike, taps: int, fs: float, fl: float, fh: float, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class FitBoundsLineResult(NamedTuple):
    upper: NDArray[np.float64]
    lower: NDArray[np.float64]
    slope_half_width: float
    intercept_half_width: float

def fit_bounds_line(x: ArrayLike, y: ArrayLike, slope: float, intercept: float, weights: ArrayLike | None = None, type: BoundsType | int | str = BoundsType.CONFIDENCE, level: float = 0.95, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitBoundsLineResult: ...
class FitBoundsExponentialResult(NamedTuple):
    upper: NDArray[np.float64]
    lower: NDArray[np.float64]
    a_half_width: float
    b_half_width: float

def fit_bounds_exponential(x: ArrayLike, y: ArrayLike, a: float, b: float, weights: ArrayLike | None = None, type: BoundsType | int | str = BoundsType.CONFIDENCE, level: float = 0.95, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitBoundsExponentialResult: ...
class FitBoundsPowerResult(NamedTuple):
    upper: NDArray[np.float64]
    lower: NDArray[np.float64]
    a_half_width: float
    b_half_width: float

def fit_bounds_power(x: ArrayLike, y: ArrayLike, a: float, b: float, weights: ArrayLike | None = None, type: BoundsType | int | str = BoundsType.CONFIDENCE, level: float = 0.95, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitBoundsPowerResult: ...
class FitBoundsLogarithmResult(NamedTuple):
    upper: NDArray[np.float64]
    lower: NDArray[np.float64]
    a_half_width: float
    b_half_width: float

def fit_bounds_logarithm(x: ArrayLike, y: ArrayLike, a: float, b: float, weights: ArrayLike | None = None, base: float = 0.0, type: BoundsType | int | str = BoundsType.CONFIDENCE, level: float = 0.95, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitBoundsLogarithmResult: ...
class FitBoundsGaussianResult(NamedTuple):
    upper: NDArray[np.float64]
    lower: NDArray[np.float64]
    amplitude_half_width: float
    centre_half_width: float
    width_half_width: float

def fit_bounds_gaussian(x: ArrayLike, y: ArrayLike, amplitude: float, centre: float, width: float, weights: ArrayLike | None = None, type: BoundsType | int | str = BoundsType.CONFIDENCE, level: float = 0.95, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitBoundsGaussianResult: ...
class FitGoodnessResult(NamedTuple):
    sse: float
    r_square: float
    rmse: float

def fit_goodness(y: ArrayLike, fitted: ArrayLike, dof: int, weights: ArrayLike | None = None) -> FitGoodnessResult: ...
class FitRemoveOutOfRangeResult(NamedTuple):
    x: NDArray[np.float64]
    y: NDArray[np.float64]
    weights: NDArray[np.float64] | None
    removed: NDArray[np.int64]

def fit_remove_out_of_range(x: ArrayLike, y: ArrayLike, limits: ArrayLike, weights: ArrayLike | None = None, mode: RangeOf | int | str = RangeOf.Y, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.int64] | None] | None = None) -> FitRemoveOutOfRangeResult: ...
class FitRemoveByIndexResult(NamedTuple):
    x: NDArray[np.float64]
    y: NDArray[np.float64]
    weights: NDArray[np.float64] | None

def fit_remove_by_index(x: ArrayLike, y: ArrayLike, indices: ArrayLike, weights: ArrayLike | None = None, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitRemoveByIndexResult: ...
@overload
def beta(a: float, b: float, x: float | None = None) -> float: ...  # type: ignore[misc]
@overload
def beta(a: ArrayLike, b: ArrayLike, x: ArrayLike | None = None) -> NDArray[np.float64]: ...
@overload
def factorial(n: int) -> float: ...  # type: ignore[misc]
@overload
def factorial(n: ArrayLike) -> NDArray[np.float64]: ...
@overload
def gamma(a: float, x: float | None = None) -> float: ...  # type: ignore[misc]
@overload
def gamma(a: ArrayLike, x: ArrayLike | None = None) -> NDArray[np.float64]: ...
@overload
def incomplete_gamma_complement(a: float, x: float) -> float: ...  # type: ignore[misc]
@overload
def incomplete_gamma_complement(a: ArrayLike, x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def ln_factorial(n: int) -> float: ...  # type: ignore[misc]
@overload
def ln_factorial(n: ArrayLike) -> NDArray[np.float64]: ...
@overload
def ln_gamma(x: float) -> float: ...  # type: ignore[misc]
@overload
def ln_gamma(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def digamma(x: float) -> float: ...  # type: ignore[misc]
@overload
def digamma(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def gamma_stirling(x: float) -> float: ...  # type: ignore[misc]
@overload
def gamma_stirling(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def dilogarithm(x: float) -> float: ...  # type: ignore[misc]
@overload
def dilogarithm(x: ArrayLike) -> NDArray[np.float64]: ...
@overload
def zeta(x: float) -> float: ...  # type: ignore[misc]
@overload
def zeta(x: ArrayLike) -> NDArray[np.float64]: ...
class SineWaveResult(NamedTuple):
    out: NDArray[np.float64]
    phase: float

def sine_wave(n: int, amp: float, freq: float, phase: float = 0.0, *, out: NDArray[np.float64] | None = None) -> SineWaveResult: ...
def sine_pattern(n: int, amp: float, phase: float, cycles: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
class SquareWaveResult(NamedTuple):
    out: NDArray[np.float64]
    phase: float

def square_wave(n: int, amp: float, freq: float, duty: float, phase: float = 0.0, *, out: NDArray[np.float64] | None = None) -> SquareWaveResult: ...
class TriangleWaveResult(NamedTuple):
    out: NDArray[np.float64]
    phase: float

def triangle_wave(n: int, amp: float, freq: float, phase: float = 0.0, *, out: NDArray[np.float64] | None = None) -> TriangleWaveResult: ...
class SawtoothWaveResult(NamedTuple):
    out: NDArray[np.float64]
    phase: float

def sawtooth_wave(n: int, amp: float, freq: float, phase: float = 0.0, *, out: NDArray[np.float64] | None = None) -> SawtoothWaveResult: ...
class ArbitraryWaveResult(NamedTuple):
    out: NDArray[np.float64]
    phase: float

def arbitrary_wave(n: int, amp: float, freq: float, table: ArrayLike, phase: float = 0.0, interpolation: bool = True, *, out: NDArray[np.float64] | None = None) -> ArbitraryWaveResult: ...
def chirp(n: int, amp: float, f1: float, f2: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def pulse_pattern(n: int, amp: float, delay: int, width: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def impulse_pattern(n: int, amp: float, index: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def ramp_pattern(n: int, first: float, last: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def triangle_pattern(n: int, amp: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def sinc_pattern(n: int, amp: float, delay: float, dt: float = 1.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def periodic_sinc_pattern(n: int, amp: float, delay: float, order: int, dt: float = 1.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def gaussian_modulated_sine(n: int, amp: float, delay: float, centre: float, bandwidth: float, attenuation: float, dt: float = 1.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def gaussian_monopulse(n: int, amp: float, delay: float, centre: float, dt: float = 1.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def skewed_triangle_pulse(n: int, amp: float, delay: float, width: float, skew: float, dt: float = 1.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def iir_design_even_pole(fs: float, fl: float, filter: IirFilter, fh: float = 0.0) -> None: ...
def iir_design_butterworth(fs: float, fl: float, filter: IirFilter, fh: float = 0.0) -> None: ...
def iir_design_bessel(fs: float, fl: float, filter: IirFilter, fh: float = 0.0) -> None: ...
def iir_design_chebyshev(fs: float, fl: float, ripple: float, filter: IirFilter, fh: float = 0.0) -> None: ...
def iir_design_inverse_chebyshev(fs: float, fl: float, attenuation: float, filter: IirFilter, fh: float = 0.0) -> None: ...
def iir_design_elliptic(fs: float, fl: float, ripple: float, attenuation: float, filter: IirFilter, fh: float = 0.0) -> None: ...
class IirCoefficientsEvenPoleResult(NamedTuple):
    a: NDArray[np.float64]
    b: NDArray[np.float64]

def iir_coefficients_even_pole(kind: FilterKind | int | str, order: int, fs: float, fl: float, fh: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> IirCoefficientsEvenPoleResult: ...
class IirCoefficientsButterworthResult(NamedTuple):
    a: NDArray[np.float64]
    b: NDArray[np.float64]

def iir_coefficients_butterworth(kind: FilterKind | int | str, order: int, fs: float, fl: float, fh: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> IirCoefficientsButterworthResult: ...
class IirCoefficientsChebyshevResult(NamedTuple):
    a: NDArray[np.float64]
    b: NDArray[np.float64]

def iir_coefficients_chebyshev(kind: FilterKind | int | str, order: int, fs: float, fl: float, ripple: float, fh: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> IirCoefficientsChebyshevResult: ...
class IirCoefficientsInverseChebyshevResult(NamedTuple):
    a: NDArray[np.float64]
    b: NDArray[np.float64]

def iir_coefficients_inverse_chebyshev(kind: FilterKind | int | str, order: int, fs: float, fl: float, attenuation: float, fh: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> IirCoefficientsInverseChebyshevResult: ...
class IirCoefficientsEllipticResult(NamedTuple):
    a: NDArray[np.float64]
    b: NDArray[np.float64]

def iir_coefficients_elliptic(kind: FilterKind | int | str, order: int, fs: float, fl: float, ripple: float, attenuation: float, fh: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> IirCoefficientsEllipticResult: ...
class IirToDirectFormResult(NamedTuple):
    a: NDArray[np.float64]
    b: NDArray[np.float64]

def iir_to_direct_form(filter: IirFilter, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> IirToDirectFormResult: ...
@overload
def iir_filter_butterworth_lowpass(x: _Complex, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_butterworth_lowpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_butterworth_highpass(x: _Complex, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_butterworth_highpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_butterworth_bandpass(x: _Complex, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_butterworth_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_butterworth_bandstop(x: _Complex, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_butterworth_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_chebyshev_lowpass(x: _Complex, fs: float, fc: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_chebyshev_lowpass(x: ArrayLike, fs: float, fc: float, ripple: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_chebyshev_highpass(x: _Complex, fs: float, fc: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_chebyshev_highpass(x: ArrayLike, fs: float, fc: float, ripple: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_chebyshev_bandpass(x: _Complex, fs: float, fl: float, fh: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_chebyshev_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_chebyshev_bandstop(x: _Complex, fs: float, fl: float, fh: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_chebyshev_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_inverse_chebyshev_lowpass(x: _Complex, fs: float, fc: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_inverse_chebyshev_lowpass(x: ArrayLike, fs: float, fc: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_inverse_chebyshev_highpass(x: _Complex, fs: float, fc: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_inverse_chebyshev_highpass(x: ArrayLike, fs: float, fc: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_inverse_chebyshev_bandpass(x: _Complex, fs: float, fl: float, fh: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_inverse_chebyshev_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_inverse_chebyshev_bandstop(x: _Complex, fs: float, fl: float, fh: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_inverse_chebyshev_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_elliptic_lowpass(x: _Complex, fs: float, fc: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_elliptic_lowpass(x: ArrayLike, fs: float, fc: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_elliptic_highpass(x: _Complex, fs: float, fc: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_elliptic_highpass(x: ArrayLike, fs: float, fc: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_elliptic_bandpass(x: _Complex, fs: float, fl: float, fh: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_elliptic_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_elliptic_bandstop(x: _Complex, fs: float, fl: float, fh: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_elliptic_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_bessel_lowpass(x: _Complex, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_bessel_lowpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_bessel_highpass(x: _Complex, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_bessel_highpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_bessel_bandpass(x: _Complex, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_bessel_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def iir_filter_bessel_bandstop(x: _Complex, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def iir_filter_bessel_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def iir_filter_complex_butterworth_lowpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_butterworth_highpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_butterworth_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_butterworth_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_chebyshev_lowpass(x: ArrayLike, fs: float, fc: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_chebyshev_highpass(x: ArrayLike, fs: float, fc: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_chebyshev_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_chebyshev_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_inverse_chebyshev_lowpass(x: ArrayLike, fs: float, fc: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_inverse_chebyshev_highpass(x: ArrayLike, fs: float, fc: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_inverse_chebyshev_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_inverse_chebyshev_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_elliptic_lowpass(x: ArrayLike, fs: float, fc: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_elliptic_highpass(x: ArrayLike, fs: float, fc: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_elliptic_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_elliptic_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, ripple: float, attenuation: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_bessel_lowpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_bessel_highpass(x: ArrayLike, fs: float, fc: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_bessel_bandpass(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def iir_filter_complex_bessel_bandstop(x: ArrayLike, fs: float, fl: float, fh: float, order: int, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def integrate_samples(x: ArrayLike, dt: float = 1.0, rule: QuadratureRule | int | str = QuadratureRule.TRAPEZOID) -> float: ...
class InterpPolynomialResult(NamedTuple):
    result: float
    error: float

def interp_polynomial(x: ArrayLike, y: ArrayLike, point: float) -> InterpPolynomialResult: ...
class InterpRationalResult(NamedTuple):
    result: float
    error: float

def interp_rational(x: ArrayLike, y: ArrayLike, point: float) -> InterpRationalResult: ...
def interp_spline_second_derivatives(x: ArrayLike, y: ArrayLike, first: float = 1e30, last: float = 1e30, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def interp_spline_evaluate(x: ArrayLike, y: ArrayLike, second: ArrayLike, point: float) -> float: ...
def interp_smoothing_spline(y: ArrayLike, balance: float, x: ArrayLike | None = None, weights: ArrayLike | None = None, smoothness: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def fit_general_linear(design: ArrayLike, y: ArrayLike, selector: LinearAlgorithm | int | str = LinearAlgorithm.SINGULAR_VALUES, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
class FitGeneralLinearExResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    covariance: NDArray[np.float64]
    mean_squared_error: float

def fit_general_linear_ex(design: ArrayLike, y: ArrayLike, deviations: ArrayLike | None = None, selector: LinearAlgorithm | int | str = LinearAlgorithm.SINGULAR_VALUES, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitGeneralLinearExResult: ...
class FitPolynomialResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_polynomial(x: ArrayLike, y: ArrayLike, order: int, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitPolynomialResult: ...
class FitPolynomialConstrainedResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_polynomial_constrained(x: ArrayLike, y: ArrayLike, order: int, fixed_orders: ArrayLike | None = None, fixed_values: ArrayLike | None = None, algorithm: PolynomialAlgorithm | int | str = PolynomialAlgorithm.SINGULAR_VALUES, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitPolynomialConstrainedResult: ...
class FitPolynomialWeightedResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_polynomial_weighted(x: ArrayLike, y: ArrayLike, order: int, weights: ArrayLike | None = None, fixed_orders: ArrayLike | None = None, fixed_values: ArrayLike | None = None, algorithm: PolynomialAlgorithm | int | str = PolynomialAlgorithm.SINGULAR_VALUES, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitPolynomialWeightedResult: ...
@overload
def solve_many(a: _Complex, b: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def solve_many(a: ArrayLike, b: _Complex, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def solve_many(a: ArrayLike, b: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def solve_many_complex(a: ArrayLike, b: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def solve_kind(a: _Complex, b: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def solve_kind(a: ArrayLike, b: _Complex, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def solve_kind(a: ArrayLike, b: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def solve_kind_complex(a: ArrayLike, b: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def solve(a: _Complex, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def solve(a: ArrayLike, b: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def solve(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def solve_upper_triangular(r: ArrayLike, b: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def solve_unit_lower(l: ArrayLike, b: ArrayLike, pivots: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def inverse(a: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def inverse(a: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def inverse_kind(a: _Complex, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def inverse_kind(a: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def inverse_kind_complex(a: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def determinant(a: _Complex) -> complex: ...  # type: ignore[misc]
@overload
def determinant(a: ArrayLike) -> float: ...
@overload
def determinant_kind(a: _Complex, kind: MatrixKind | int | str = MatrixKind.GENERAL) -> complex: ...  # type: ignore[misc]
@overload
def determinant_kind(a: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL) -> float: ...
def determinant_kind_complex(a: ArrayLike, kind: MatrixKind | int | str = MatrixKind.GENERAL) -> complex: ...
@overload
def trace(a: _Complex) -> complex: ...  # type: ignore[misc]
@overload
def trace(a: ArrayLike) -> float: ...
def trace_complex(a: ArrayLike) -> complex: ...
def matrix_norm(a: ArrayLike, selector: MatrixNorm | int | str = MatrixNorm.TWO) -> float: ...
def matrix_norm_complex(a: ArrayLike, selector: MatrixNorm | int | str = MatrixNorm.TWO) -> float: ...
def condition_number(a: ArrayLike, selector: MatrixNorm | int | str = MatrixNorm.TWO) -> float: ...
def condition_number_complex(a: ArrayLike, selector: MatrixNorm | int | str = MatrixNorm.TWO) -> float: ...
def matrix_rank(a: ArrayLike, tolerance: float = -1.0) -> int: ...
def matrix_rank_complex(a: ArrayLike, tolerance: float = -1.0) -> int: ...
@overload
def pseudo_inverse(a: _Complex, tolerance: float = -1.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def pseudo_inverse(a: ArrayLike, tolerance: float = -1.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def pseudo_inverse_complex(a: ArrayLike, tolerance: float = -1.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def is_positive_definite(a: ArrayLike) -> bool: ...
def is_positive_definite_complex(a: ArrayLike) -> bool: ...
@overload
def matrix_multiply(a: _Complex, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def matrix_multiply(a: ArrayLike, b: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def matrix_multiply(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def matrix_multiply_complex(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def matrix_vector_multiply(a: _Complex, x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def matrix_vector_multiply(a: ArrayLike, x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def matrix_vector_multiply(a: ArrayLike, x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def matrix_vector_multiply_complex(a: ArrayLike, x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def vector_dot(x: _Complex, y: ArrayLike) -> complex: ...  # type: ignore[misc]
@overload
def vector_dot(x: ArrayLike, y: _Complex) -> complex: ...  # type: ignore[misc]
@overload
def vector_dot(x: ArrayLike, y: ArrayLike) -> float: ...
def vector_dot_complex(x: ArrayLike, y: ArrayLike) -> complex: ...
@overload
def vector_outer_product(x: _Complex, y: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def vector_outer_product(x: ArrayLike, y: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def vector_outer_product(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def vector_outer_product_complex(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def kronecker(a: _Complex, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def kronecker(a: ArrayLike, b: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def kronecker(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def kronecker_complex(a: ArrayLike, b: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def transpose(a: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def conjugate_transpose(a: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def special_matrix(type: SpecialMatrix | int | str, order: int, first: _Complex, second: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def special_matrix(type: SpecialMatrix | int | str, order: int = 0, *, first: _Complex, second: ArrayLike | None = None, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def special_matrix(type: SpecialMatrix | int | str, order: int, first: ArrayLike | None, second: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def special_matrix(type: SpecialMatrix | int | str, order: int = 0, first: ArrayLike | None = None, *, second: _Complex, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def special_matrix(type: SpecialMatrix | int | str, order: int = 0, first: ArrayLike | None = None, second: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def special_matrix_complex(type: SpecialMatrix | int | str, order: int = 0, first: ArrayLike | None = None, second: ArrayLike | None = None, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def vector_norm(x: ArrayLike, selector: VectorNorm | int | str = VectorNorm.TWO, p: float = 2.0) -> float: ...
def vector_norm_complex(x: ArrayLike, selector: VectorNorm | int | str = VectorNorm.TWO, p: float = 2.0) -> float: ...
def memory_release(block: Handle) -> None: ...
def iir_filter_release(block: Handle) -> None: ...
def iir_state_complex_release(block: Handle) -> None: ...
class FitLineResult(NamedTuple):
    fitted: NDArray[np.float64]
    slope: float
    intercept: float
    mean_squared_error: float

def fit_line(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> FitLineResult: ...
class FitLineRobustResult(NamedTuple):
    fitted: NDArray[np.float64]
    slope: float
    intercept: float
    residue: float

def fit_line_robust(x: ArrayLike, y: ArrayLike, weights: ArrayLike | None = None, method: RobustMethod | int | str = RobustMethod.LEAST_SQUARES, tolerance: float = 0.0, *, out: NDArray[np.float64] | None = None) -> FitLineRobustResult: ...
class FitExponentialResult(NamedTuple):
    fitted: NDArray[np.float64]
    a: float
    b: float
    mean_squared_error: float

def fit_exponential(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.float64] | None = None) -> FitExponentialResult: ...
class FitExponentialRobustResult(NamedTuple):
    fitted: NDArray[np.float64]
    a: float
    b: float
    residue: float

def fit_exponential_robust(x: ArrayLike, y: ArrayLike, weights: ArrayLike | None = None, method: RobustMethod | int | str = RobustMethod.LEAST_SQUARES, tolerance: float = 0.0, *, out: NDArray[np.float64] | None = None) -> FitExponentialRobustResult: ...
class FitPowerResult(NamedTuple):
    fitted: NDArray[np.float64]
    a: float
    b: float
    residue: float

def fit_power(x: ArrayLike, y: ArrayLike, weights: ArrayLike | None = None, method: RobustMethod | int | str = RobustMethod.LEAST_SQUARES, tolerance: float = 0.0, *, out: NDArray[np.float64] | None = None) -> FitPowerResult: ...
class FitLogarithmResult(NamedTuple):
    fitted: NDArray[np.float64]
    a: float
    b: float
    residue: float

def fit_logarithm(x: ArrayLike, y: ArrayLike, weights: ArrayLike | None = None, base: float = 0.0, method: RobustMethod | int | str = RobustMethod.LEAST_SQUARES, tolerance: float = 0.0, *, out: NDArray[np.float64] | None = None) -> FitLogarithmResult: ...
class FitGaussianResult(NamedTuple):
    fitted: NDArray[np.float64]
    amplitude: float
    centre: float
    width: float
    residue: float

def fit_gaussian(x: ArrayLike, y: ArrayLike, weights: ArrayLike | None = None, method: RobustMethod | int | str = RobustMethod.LEAST_SQUARES, tolerance: float = 0.0, guess: ArrayLike | None = None, *, out: NDArray[np.float64] | None = None) -> FitGaussianResult: ...
def poly_roots_multiple(c: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def lag_product(x: _Complex, p: int, method: LagMethod | int | str = LagMethod.AUTOCORRELATION, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def lag_product(x: ArrayLike, p: int, method: LagMethod | int | str = LagMethod.AUTOCORRELATION, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def lag_product_complex(x: ArrayLike, p: int, method: LagMethod | int | str = LagMethod.AUTOCORRELATION, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class FitNonlinearResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_nonlinear(x: ArrayLike, y: ArrayLike, model: Callable[[float, NDArray[np.float64]], float], coefficients: ArrayLike, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitNonlinearResult: ...
class FitNonlinearAliasResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_nonlinear_alias(x: ArrayLike, y: ArrayLike, model: Callable[[float, NDArray[np.float64]], float], coefficients: ArrayLike, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitNonlinearAliasResult: ...
class FitNonlinearLimitedResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_nonlinear_limited(x: ArrayLike, y: ArrayLike, model: Callable[[float, NDArray[np.float64]], float], coefficients: ArrayLike, limit: int = -1, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitNonlinearLimitedResult: ...
class FitNonlinearLimitedAliasResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float

def fit_nonlinear_limited_alias(x: ArrayLike, y: ArrayLike, model: Callable[[float, NDArray[np.float64]], float], coefficients: ArrayLike, limit: int = -1, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitNonlinearLimitedAliasResult: ...
class FitNonlinearWeightedResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float
    iterations: int

def fit_nonlinear_weighted(x: ArrayLike, y: ArrayLike, model: Callable[[float, NDArray[np.float64]], float], coefficients: ArrayLike, weights: ArrayLike | None = None, limit: int = -1, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitNonlinearWeightedResult: ...
class FitNonlinearWeightedAliasResult(NamedTuple):
    fitted: NDArray[np.float64]
    coefficients: NDArray[np.float64]
    mean_squared_error: float
    iterations: int

def fit_nonlinear_weighted_alias(x: ArrayLike, y: ArrayLike, model: Callable[[float, NDArray[np.float64]], float], coefficients: ArrayLike, weights: ArrayLike | None = None, limit: int = -1, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> FitNonlinearWeightedAliasResult: ...
def peak_threshold_runs(x: ArrayLike, threshold: float, width: int, *, out: NDArray[np.int64] | None = None) -> NDArray[np.int64]: ...
def peak_threshold_runs_stream(x: ArrayLike, threshold: float, width: int, reset: bool = True, last: bool = True, *, out: NDArray[np.int64] | None = None) -> NDArray[np.int64]: ...
class PeakDetectResult(NamedTuple):
    locations: NDArray[np.float64]
    amplitudes: NDArray[np.float64]
    second_derivatives: NDArray[np.float64]

def peak_detect(x: ArrayLike, threshold: float, width: int, polarity: PeakPolarity | int | str = PeakPolarity.PEAKS, first: bool = True, last: bool = True) -> PeakDetectResult: ...
def fft_plan_create(size: int) -> FftPlan: ...
def fft_plan_release(plan: FftPlan) -> None: ...
def poly_roots_real(c: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def poly_zeros(c: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class PulseParametersResult(NamedTuple):
    amplitude: float
    level90: float
    level50: float
    level10: float
    top: float
    base: float
    overshoot: float
    undershoot: float
    delay: int
    width: int
    rise: int
    fall: int
    slew: float

def pulse_parameters(x: ArrayLike) -> PulseParametersResult: ...
class PulseStateLevelsResult(NamedTuple):
    high: float
    low: float
    amplitude: float

def pulse_state_levels(x: ArrayLike, method: LevelMethod | int | str = LevelMethod.AUTO, bins: int = 256) -> PulseStateLevelsResult: ...
class PulseCycleTimingResult(NamedTuple):
    period: float
    duration: float
    duty: float
    centre: float
    low: float
    mid: float
    high: float

def pulse_cycle_timing(x: ArrayLike, polarity: EdgePolarity | int | str = EdgePolarity.RISING, cycle: int = 1, high: float = 90.0, mid: float = 50.0, low: float = 10.0, percent: bool = True, method: LevelMethod | int | str = LevelMethod.AUTO, bins: int = 256) -> PulseCycleTimingResult: ...
class PulseCycleAverageResult(NamedTuple):
    mean: float
    rms: float
    start: float
    end: float
    low: float
    mid: float
    high: float

def pulse_cycle_average(x: ArrayLike, cycle: int = 1, high: float = 90.0, mid: float = 50.0, low: float = 10.0, percent: bool = True, method: LevelMethod | int | str = LevelMethod.AUTO, bins: int = 256) -> PulseCycleAverageResult: ...
class PulseTransitionResult(NamedTuple):
    slew: float
    duration: float
    first_time: float
    second_time: float
    low: float
    mid: float
    high: float
    pre_undershoot: float
    pre_overshoot: float
    post_undershoot: float
    post_overshoot: float

def pulse_transition(x: ArrayLike, polarity: EdgePolarity | int | str = EdgePolarity.RISING, edge: int = 1, high: float = 90.0, mid: float = 50.0, low: float = 10.0, percent: bool = True, method: LevelMethod | int | str = LevelMethod.AUTO, bins: int = 256) -> PulseTransitionResult: ...
def uniform_noise(n: int, seed: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def white_noise(n: int, amplitude: float, seed: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def gaussian_noise(n: int, deviation: float, seed: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def periodic_random_noise(n: int, amplitude: float, seed: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
class ShuffleRealResult(NamedTuple):
    data: NDArray[np.float64]
    perm: NDArray[np.int64]

@overload
def shuffle_real(data: _Complex, seed: int = 0, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.int64] | None] | None = None) -> ShuffleComplexResult: ...  # type: ignore[misc]
@overload
def shuffle_real(data: ArrayLike, seed: int = 0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.int64] | None] | None = None) -> ShuffleRealResult: ...
class ShuffleComplexResult(NamedTuple):
    data: NDArray[np.complex128]
    perm: NDArray[np.int64]

def shuffle_complex(data: ArrayLike, seed: int = 0, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.int64] | None] | None = None) -> ShuffleComplexResult: ...
class ShuffleIntResult(NamedTuple):
    data: NDArray[np.int32]
    perm: NDArray[np.int64]

def shuffle_int(data: ArrayLike, seed: int = 0, *, out: tuple[NDArray[np.int32] | None, NDArray[np.int64] | None] | None = None) -> ShuffleIntResult: ...
def gamma_noise(n: int, order: int, seed: int = 0, reset: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def poisson_noise(n: int, mean: float, seed: int = 0, reset: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def binomial_noise(n: int, trials: int, probability: float, seed: int = 0, reset: bool = False, *, out: NDArray[np.int32] | None = None) -> NDArray[np.int32]: ...
def bernoulli_noise(n: int, probability: float, seed: int = 0, reset: bool = False, *, out: NDArray[np.int32] | None = None) -> NDArray[np.int32]: ...
def halton_sequence(n: int, base: int, reset: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def weyl_sequence(n: int, step: float, reset: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def spectrum_real_fft(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def spectrum_real_ifft(z: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def spectrum_complex_ifft(z: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def auto_power(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def cross_power(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class AmplitudePhaseResult(NamedTuple):
    amp: NDArray[np.float64]
    phase: NDArray[np.float64]
    df: float

def amplitude_phase(x: ArrayLike, unwrap: bool = False, dt: float = 1.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> AmplitudePhaseResult: ...
class PowerSpectrumResult(NamedTuple):
    power: NDArray[np.float64]
    df: float

def power_spectrum(x: ArrayLike, dt: float = 1.0, *, out: NDArray[np.float64] | None = None) -> PowerSpectrumResult: ...
class CrossPowerPolarResult(NamedTuple):
    mag: NDArray[np.float64]
    phase: NDArray[np.float64]
    df: float

def cross_power_polar(x: ArrayLike, y: ArrayLike, dt: float = 1.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> CrossPowerPolarResult: ...
class TransferFunctionResult(NamedTuple):
    mag: NDArray[np.float64]
    phase: NDArray[np.float64]
    df: float

def transfer_function(stimulus: ArrayLike, response: ArrayLike, dt: float = 1.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> TransferFunctionResult: ...
def spectrum_deconvolve(divisor: ArrayLike, signal: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
class NetworkAnalysisResult(NamedTuple):
    cross_mag: NDArray[np.float64]
    cross_phase: NDArray[np.float64]
    transfer_mag: NDArray[np.float64]
    transfer_phase: NDArray[np.float64]
    coherence: NDArray[np.float64]
    impulse: NDArray[np.float64]
    df: float

def network_analysis(stimulus: ArrayLike, response: ArrayLike, dt: float = 1.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> NetworkAnalysisResult: ...
class SpectrumUnitConvertResult(NamedTuple):
    out: NDArray[np.float64]
    unit: str

def spectrum_unit_convert(spectrum: ArrayLike, unit: str, kind: SpectrumKind | int | str = SpectrumKind.POWER, display: Display | int | str = Display.LINEAR, flags: UnitFlags | int | str = UnitFlags.NONE, df: float = 1.0, window: WindowProperties | tuple[float, float] = (1.0, 1.0), *, out: NDArray[np.float64] | None = None) -> SpectrumUnitConvertResult: ...
def unwrap_phase(phase: ArrayLike, mode: PhaseMode | int | str = PhaseMode.RADIANS, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def unwrap_radians(phase: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
class PeakPowerFrequencyResult(NamedTuple):
    frequency: float
    peak_power: float

def peak_power_frequency(power: ArrayLike, search: float = -1.0, window: WindowProperties | tuple[float, float] = (1.0, 1.0), df: float = 1.0, span: int = 7) -> PeakPowerFrequencyResult: ...
class AcDcEstimateResult(NamedTuple):
    ac: float
    dc: float

def ac_dc_estimate(x: ArrayLike) -> AcDcEstimateResult: ...
def mean(x: ArrayLike) -> float: ...
def rms(x: ArrayLike) -> float: ...
def rms_complex(x: ArrayLike) -> float: ...
class MeanVarianceResult(NamedTuple):
    mean: float
    variance: float

def mean_variance(x: ArrayLike) -> MeanVarianceResult: ...
class MeanStdDevResult(NamedTuple):
    mean: float
    deviation: float

def mean_std_dev(x: ArrayLike) -> MeanStdDevResult: ...
def moment(x: ArrayLike, order: int) -> float: ...
def median(x: ArrayLike) -> float: ...
class HistogramResult(NamedTuple):
    counts: NDArray[np.int64]
    centres: NDArray[np.float64]

def histogram(x: ArrayLike, base: float, top: float, intervals: int, *, out: tuple[NDArray[np.int64] | None, NDArray[np.float64] | None] | None = None) -> HistogramResult: ...
def mode_of_histogram(x: ArrayLike, base: float, top: float, intervals: int) -> float: ...
def modes(x: ArrayLike, intervals: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def status_message(code: int) -> str: ...
def integrate_simpson(x: ArrayLike, dt: float = 1.0, initial: float = 0.0, final: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def differentiate(x: ArrayLike, dt: float = 1.0, initial: float = 0.0, final: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def differentiate_method(x: ArrayLike, initial: ArrayLike, final: ArrayLike, dt: float = 1.0, method: Difference | int | str = Difference.CENTRAL2, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def decimate(x: _Complex, factor: int, average: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def decimate(x: ArrayLike, factor: int, average: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def decimate_complex(x: ArrayLike, factor: int, average: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def decimate_continuous(x: _Complex, factor: int, average: bool = False, offset: int = 0, reset: bool = True, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def decimate_continuous(x: ArrayLike, factor: int, average: bool = False, offset: int = 0, reset: bool = True, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def decimate_continuous_complex(x: ArrayLike, factor: int, average: bool = False, offset: int = 0, reset: bool = True, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class DetectLevelCrossingResult(NamedTuple):
    index: int  # type: ignore[assignment]
    found: bool

def detect_level_crossing(x: ArrayLike, level: float, hysteresis: float = 0.0, slope: EdgePolarity | int | str = EdgePolarity.RISING, reset: bool = True) -> DetectLevelCrossingResult: ...
class DetectLevelCrossingsResult(NamedTuple):
    indices: NDArray[np.int64]
    found: NDArray[np.int32]

def detect_level_crossings(x: ArrayLike, levels: ArrayLike, hysteresis: ArrayLike, slopes: ArrayLike, reset: bool = True, *, out: tuple[NDArray[np.int64] | None, NDArray[np.int32] | None] | None = None) -> DetectLevelCrossingsResult: ...
class HarmonicAnalyzerResult(NamedTuple):
    amp: NDArray[np.float64]
    freq: NDArray[np.float64]
    thd: float
    thd_plus_noise: float

def harmonic_analyzer(power: ArrayLike, harmonics: int, window: Window | int | str, fs: float, fundamental: float, fft_size: int = 0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> HarmonicAnalyzerResult: ...
class ToneHarmonicsResult(NamedTuple):
    amp: NDArray[np.float64]
    freq: NDArray[np.float64]
    thd: float
    thd_plus_noise: float

def tone_harmonics(x: ArrayLike, harmonics: int, fs: float, fundamental: float, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ToneHarmonicsResult: ...
class ToneSingleRealResult(NamedTuple):
    freq: float
    amp: float
    phase: float

@overload
def tone_single_real(x: _Complex, dt: float = 1.0, search: ArrayLike | None = None) -> ToneSingleComplexResult: ...  # type: ignore[misc]
@overload
def tone_single_real(x: ArrayLike, dt: float, search: _Complex) -> ToneSingleComplexResult: ...  # type: ignore[misc]
@overload
def tone_single_real(x: ArrayLike, dt: float = 1.0, *, search: _Complex) -> ToneSingleComplexResult: ...  # type: ignore[misc]
@overload
def tone_single_real(x: ArrayLike, dt: float = 1.0, search: ArrayLike | None = None) -> ToneSingleRealResult: ...
class ToneSingleRealExResult(NamedTuple):
    freq: float
    amp: float
    phase: float
    out: NDArray[np.float64]
    out_dt: float
    spectrum: NDArray[np.float64]
    f0: float
    df: float

@overload
def tone_single_real_ex(x: _Complex, dt: float = 1.0, search: ArrayLike | None = None, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.float64] | None] | None = None) -> ToneSingleComplexExResult: ...  # type: ignore[misc]
@overload
def tone_single_real_ex(x: ArrayLike, dt: float, search: _Complex, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.float64] | None] | None = None) -> ToneSingleComplexExResult: ...  # type: ignore[misc]
@overload
def tone_single_real_ex(x: ArrayLike, dt: float = 1.0, *, search: _Complex, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, out: tuple[NDArray[np.complex128] | None, NDArray[np.float64] | None] | None = None) -> ToneSingleComplexExResult: ...  # type: ignore[misc]
@overload
def tone_single_real_ex(x: ArrayLike, dt: float = 1.0, search: ArrayLike | None = None, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ToneSingleRealExResult: ...
class ToneMultiRealResult(NamedTuple):
    freq: NDArray[np.float64]
    amp: NDArray[np.float64]
    phase: NDArray[np.float64]

@overload
def tone_multi_real(x: _Complex, max_tones: int, dt: float = 1.0, sort: ToneOrder | int | str = ToneOrder.FREQUENCY, threshold: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ToneMultiComplexResult: ...  # type: ignore[misc]
@overload
def tone_multi_real(x: ArrayLike, max_tones: int, dt: float = 1.0, sort: ToneOrder | int | str = ToneOrder.FREQUENCY, threshold: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ToneMultiRealResult: ...
class ToneMultiRealExResult(NamedTuple):
    freq: NDArray[np.float64]
    amp: NDArray[np.float64]
    phase: NDArray[np.float64]
    out: NDArray[np.float64]
    out_dt: float
    spectrum: NDArray[np.float64]
    f0: float
    df: float

@overload
def tone_multi_real_ex(x: _Complex, max_tones: int, dt: float = 1.0, sort: ToneOrder | int | str = ToneOrder.FREQUENCY, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, threshold: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.complex128] | None, NDArray[np.float64] | None] | None = None) -> ToneMultiComplexExResult: ...  # type: ignore[misc]
@overload
def tone_multi_real_ex(x: ArrayLike, max_tones: int, dt: float = 1.0, sort: ToneOrder | int | str = ToneOrder.FREQUENCY, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, threshold: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ToneMultiRealExResult: ...
class ToneSingleComplexResult(NamedTuple):
    freq: float
    amp: float
    phase: float

def tone_single_complex(x: ArrayLike, dt: float = 1.0, search: ArrayLike | None = None) -> ToneSingleComplexResult: ...
class ToneSingleComplexExResult(NamedTuple):
    freq: float
    amp: float
    phase: float
    out: NDArray[np.complex128]
    out_dt: float
    spectrum: NDArray[np.float64]
    f0: float
    df: float

def tone_single_complex_ex(x: ArrayLike, dt: float = 1.0, search: ArrayLike | None = None, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, *, out: tuple[NDArray[np.complex128] | None, NDArray[np.float64] | None] | None = None) -> ToneSingleComplexExResult: ...
class ToneMultiComplexResult(NamedTuple):
    freq: NDArray[np.float64]
    amp: NDArray[np.float64]
    phase: NDArray[np.float64]

def tone_multi_complex(x: ArrayLike, max_tones: int, dt: float = 1.0, sort: ToneOrder | int | str = ToneOrder.FREQUENCY, threshold: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None] | None = None) -> ToneMultiComplexResult: ...
class ToneMultiComplexExResult(NamedTuple):
    freq: NDArray[np.float64]
    amp: NDArray[np.float64]
    phase: NDArray[np.float64]
    out: NDArray[np.complex128]
    out_dt: float
    spectrum: NDArray[np.float64]
    f0: float
    df: float

def tone_multi_complex_ex(x: ArrayLike, max_tones: int, dt: float = 1.0, sort: ToneOrder | int | str = ToneOrder.FREQUENCY, mode: ToneSignal | int | str = ToneSignal.RESIDUAL, threshold: float = 0.0, *, out: tuple[NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.float64] | None, NDArray[np.complex128] | None, NDArray[np.float64] | None] | None = None) -> ToneMultiComplexExResult: ...
def real_fft(x: ArrayLike, fft_size: int = 0, plan: FftPlan | None = None, shift: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def complex_fft(x: ArrayLike, fft_size: int = 0, plan: FftPlan | None = None, shift: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def real_ifft(x: ArrayLike, plan: FftPlan | None = None, shift: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def complex_ifft(x: ArrayLike, plan: FftPlan | None = None, shift: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def real_fft_2d(x: ArrayLike, fft_rows: int = 0, fft_cols: int = 0, shift: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def complex_fft_2d(x: ArrayLike, fft_rows: int = 0, fft_cols: int = 0, shift: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def real_ifft_2d(x: ArrayLike, shift: bool = False, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def complex_ifft_2d(x: ArrayLike, shift: bool = False, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def split_fft(z: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def dct(x: ArrayLike, fft_size: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def idct(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def dst(x: ArrayLike, fft_size: int = 0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def idst(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def dct_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def idct_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def dst_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def idst_2d(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def hartley(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def inverse_hartley(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def hilbert(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def inverse_hilbert(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def chirp_z_real(x: ArrayLike, a: complex, w: complex, method: Method | int | str = Method.TRANSFORM, m: int = 0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def chirp_z_complex(x: ArrayLike, a: complex, w: complex, method: Method | int | str = Method.TRANSFORM, m: int = 0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def inverse_chirp_z(x: ArrayLike, a: complex, w: complex, m: int = 0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def auto_power_complex(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def cross_power_complex(x: ArrayLike, y: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class AnovaOneWayResult(NamedTuple):
    ss_a: float
    ms_a: float
    f: float
    significance: float
    ss_error: float
    ms_error: float
    ss_total: float

def anova_one_way(y: ArrayLike, level: ArrayLike, levels: int) -> AnovaOneWayResult: ...
class AnovaTwoWayResult(NamedTuple):
    table: NDArray[np.float64]
    sig_a: float
    sig_b: float
    sig_ab: float

def anova_two_way(y: ArrayLike, level_a: ArrayLike, level_b: ArrayLike, per_cell: int, levels_a: int, levels_b: int, *, out: NDArray[np.float64] | None = None) -> AnovaTwoWayResult: ...
class AnovaThreeWayResult(NamedTuple):
    table: NDArray[np.float64]
    sig_a: float
    sig_b: float
    sig_c: float
    sig_ab: float
    sig_ac: float
    sig_bc: float
    sig_abc: float

def anova_three_way(y: ArrayLike, level_a: ArrayLike, level_b: ArrayLike, level_c: ArrayLike, per_cell: int, levels_a: int, levels_b: int, levels_c: int, *, out: NDArray[np.float64] | None = None) -> AnovaThreeWayResult: ...
class ContingencyChiSquareResult(NamedTuple):
    chi_square: float
    significance: float

def contingency_chi_square(counts: ArrayLike) -> ContingencyChiSquareResult: ...
@overload
def window_hanning(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_hanning(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_hanning_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_hamming(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_hamming(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_hamming_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_blackman_harris3(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_blackman_harris3(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_blackman_harris3_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_exact_blackman(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_exact_blackman(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_exact_blackman_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_blackman(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_blackman(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_blackman_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_flat_top(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_flat_top(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_flat_top_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_blackman_nuttall(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_blackman_nuttall(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_blackman_nuttall_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_cosine_sum(x: _Complex, a: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_cosine_sum(x: ArrayLike, a: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_cosine_sum(x: ArrayLike, a: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_cosine_sum_complex(x: ArrayLike, a: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_cosine_taper(x: _Complex, ratio: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_cosine_taper(x: ArrayLike, ratio: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_cosine_taper_complex(x: ArrayLike, ratio: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
def window_cosine_taper20(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
@overload
def window_triangle(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_triangle(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_triangle_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_bartlett_hanning(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_bartlett_hanning(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_bartlett_hanning_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_bohman(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_bohman(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_bohman_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_parzen(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_parzen(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_parzen_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_welch(x: _Complex, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_welch(x: ArrayLike, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_welch_complex(x: ArrayLike, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_kaiser(x: _Complex, beta: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_kaiser(x: ArrayLike, beta: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_kaiser_complex(x: ArrayLike, beta: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_gaussian(x: _Complex, sigma: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_gaussian(x: ArrayLike, sigma: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_gaussian_complex(x: ArrayLike, sigma: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_chebyshev(x: _Complex, attenuation: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_chebyshev(x: ArrayLike, attenuation: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_chebyshev_complex(x: ArrayLike, attenuation: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_exponential(x: _Complex, final: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_exponential(x: ArrayLike, final: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_exponential_complex(x: ArrayLike, final: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_force(x: _Complex, duty: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_force(x: ArrayLike, duty: float, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_force_complex(x: ArrayLike, duty: float, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
@overload
def window_apply_symmetric(x: _Complex, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...  # type: ignore[misc]
@overload
def window_apply_symmetric(x: ArrayLike, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> NDArray[np.float64]: ...
def window_apply_symmetric_complex(x: ArrayLike, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> NDArray[np.complex128]: ...
class WindowApplyScaledResult(NamedTuple):
    x: NDArray[np.float64]
    properties: WindowProperties

@overload
def window_apply_scaled(x: _Complex, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> WindowApplyScaledComplexResult: ...  # type: ignore[misc]
@overload
def window_apply_scaled(x: ArrayLike, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.float64] | None = None) -> WindowApplyScaledResult: ...
class WindowApplyScaledComplexResult(NamedTuple):
    x: NDArray[np.complex128]
    properties: WindowProperties

def window_apply_scaled_complex(x: ArrayLike, window: Window | int | str, parameter: float = 0.0, *, out: NDArray[np.complex128] | None = None) -> WindowApplyScaledComplexResult: ...
class WindowApplyScaledPlainResult(NamedTuple):
    x: NDArray[np.float64]
    properties: WindowProperties

def window_apply_scaled_plain(x: ArrayLike, window: Window | int | str, *, out: NDArray[np.float64] | None = None) -> WindowApplyScaledPlainResult: ...
def window_properties(n: int, window: Window | int | str, parameter: float = 0.0) -> WindowProperties: ...
def window_properties_fixed(window: Window | int | str) -> WindowProperties: ...
def window_properties_measure(w: ArrayLike) -> WindowProperties: ...

auto_correlate = auto_correlate_real
auto_correlate_2d = auto_correlate_2d_real
chirp_z = chirp_z_real
convolve = convolve_real_by
convolve_2d = convolve_2d_real
correlate = correlate_real_by
correlate_2d = correlate_2d_real
correlate_normalised = correlate_real_normalised
det = determinant
eig = eigen_general
eigh = eigen_symmetric
fft = real_fft
fft_2d = real_fft_2d
ifft = complex_ifft
ifft_2d = complex_ifft_2d
inv = inverse
pinv = pseudo_inverse
qr = qr_method
shuffle = shuffle_real
tone_multi = tone_multi_real
tone_multi_ex = tone_multi_real_ex
tone_single = tone_single_real
tone_single_ex = tone_single_real_ex
