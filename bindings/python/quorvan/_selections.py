"""What integer arguments choose. Generated from exports/table by tools/python_binding.py; do not edit."""

import enum

__all__ = ["Window", "FirWindow", "FilterKind", "Method", "Normalisation", "Shape", "SortOrder",
           "SpectrumKind", "Display", "UnitFlags", "PhaseMode", "PeakPolarity", "LevelMethod", "EdgePolarity",
           "ToneOrder", "ToneSignal", "Difference", "QuadratureRule", "MatrixKind", "EigenKind", "MatrixNorm",
           "VectorNorm", "SpecialMatrix", "LagMethod", "SvdMode", "QrMethod", "PivotMode", "BalanceJob",
           "Side", "EigenOrder", "RobustMethod", "PolynomialAlgorithm", "LinearAlgorithm", "RemezKind",
           "RemezBandsKind", "BoundsType", "RangeOf"]


class Window(enum.IntEnum):
    """A window function."""

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
    """The window of a FIR design by its short list."""

    RECTANGULAR = 1
    TRIANGLE = 2
    HANNING = 3
    HAMMING = 4
    BLACKMAN = 5


class FilterKind(enum.IntEnum):
    """The band that a filter lets pass or stops."""

    LOWPASS = 0
    HIGHPASS = 1
    BANDPASS = 2
    BANDSTOP = 3


class Method(enum.IntEnum):
    """How sums of products are formed."""

    DIRECT = 0
    TRANSFORM = 1


class Normalisation(enum.IntEnum):
    """What a correlation is divided by: nothing, the number of overlapping terms, the longer length."""

    NONE = 0
    UNBIASED = 1
    BIASED = 2


class Shape(enum.IntEnum):
    """How much of a two-dimensional convolution is wanted."""

    FULL = 0
    SAME = 1
    VALID = 2


class SortOrder(enum.IntEnum):
    """The direction of a sort."""

    ASCENDING = 0
    DESCENDING = 1


class SpectrumKind(enum.IntEnum):
    """What the values of a spectrum are."""

    POWER = 0
    AMPLITUDE = 1
    MAGNITUDE = 2


class Display(enum.IntEnum):
    """The scale on which a spectrum is shown; DBM is decibels relative to 0.6084."""

    LINEAR = 0
    DECIBEL = 1
    DBM = 2


class UnitFlags(enum.IntFlag):
    """The parts of a unit: peak instead of rms, power instead of amplitude, density per hertz. Join them by |."""

    NONE = 0
    PEAK = 1
    POWER = 2
    DENSITY = 4


class PhaseMode(enum.IntEnum):
    """The unit of a phase, and the one it is converted to."""

    RADIANS = 0
    RADIANS_TO_DEGREES = 1
    DEGREES = 2
    DEGREES_TO_RADIANS = 3


class PeakPolarity(enum.IntEnum):
    """What a peak detector looks for."""

    PEAKS = 0
    VALLEYS = 1


class LevelMethod(enum.IntEnum):
    """How the two state levels of a waveform are found."""

    HISTOGRAM = 0
    PEAK = 1
    AUTO = 2


class EdgePolarity(enum.IntEnum):
    """The direction of an edge; ANY only for the start of a pulse."""

    FALLING = 0
    RISING = 1
    ANY = -1


class ToneOrder(enum.IntEnum):
    """The order in which tones are listed."""

    FREQUENCY = 0
    AMPLITUDE = 1


class ToneSignal(enum.IntEnum):
    """The signal that the extended tone measurements give besides."""

    NONE = 0
    INPUT = 1
    TONES = 2
    RESIDUAL = 3


class Difference(enum.IntEnum):
    """The formula of a derivative."""

    CENTRAL2 = 0
    CENTRAL4 = 1
    FORWARD = 2
    BACKWARD = 3


class QuadratureRule(enum.IntEnum):
    """The rule of an integral over samples."""

    TRAPEZOID = 0
    SIMPSON = 1
    SIMPSON38 = 2
    BOOLE = 3


class MatrixKind(enum.IntEnum):
    """What is known of a matrix."""

    GENERAL = 0
    POSITIVE_DEFINITE = 1
    LOWER_TRIANGULAR = 2
    UPPER_TRIANGULAR = 3


class EigenKind(enum.IntEnum):
    """What is known of a complex matrix."""

    GENERAL = 0
    HERMITIAN = 1


class MatrixNorm(enum.IntEnum):
    """The norm of a matrix."""

    TWO = 0
    ONE = 1
    FROBENIUS = 2
    INFINITY = 3


class VectorNorm(enum.IntEnum):
    """The norm of a vector; P takes the parameter p."""

    ONE = 0
    TWO = 1
    INFINITY = 2
    MINUS_INFINITY = 3
    P = 4


class SpecialMatrix(enum.IntEnum):
    """A matrix that is built from vectors."""

    IDENTITY = 0
    DIAGONAL = 1
    TOEPLITZ = 2
    VANDERMONDE = 3
    COMPANION = 4


class LagMethod(enum.IntEnum):
    """What a lag product takes for the samples outside the data."""

    AUTOCORRELATION = 0
    PREWINDOWED = 1
    POSTWINDOWED = 2
    COVARIANCE = 3
    MODIFIED_COVARIANCE = 4


class SvdMode(enum.IntEnum):
    """Whether singular vectors beyond the rank are wanted."""

    FULL = 0
    ECONOMY = 1


class QrMethod(enum.IntEnum):
    """The reflections or rotations of a QR decomposition."""

    HOUSEHOLDER = 0
    GIVENS = 1
    FAST_GIVENS = 2


class PivotMode(enum.IntEnum):
    """How the columns of a QR decomposition are exchanged, and the form in which that is told."""

    NONE = 0
    VECTOR = 1
    MATRIX = 2


class BalanceJob(enum.IntEnum):
    """What balancing a matrix does."""

    NONE = 0
    PERMUTE = 1
    SCALE = 2
    BOTH = 3


class Side(enum.IntEnum):
    """The side on which eigenvectors stand."""

    RIGHT = 0
    LEFT = 1


class EigenOrder(enum.IntEnum):
    """The order of eigenvalues along a diagonal."""

    AS_PRODUCED = 0
    ASCENDING_REAL = 1
    DESCENDING_REAL = 2
    ASCENDING_MODULUS = 3
    DESCENDING_MODULUS = 4


class RobustMethod(enum.IntEnum):
    """What a fit minimises."""

    LEAST_SQUARES = 0
    LEAST_ABSOLUTE_RESIDUALS = 1
    BISQUARE = 2


class PolynomialAlgorithm(enum.IntEnum):
    """The algorithm of a polynomial fit."""

    SINGULAR_VALUES = 0
    QR = 1
    LU = 2
    CHOLESKY = 3


class LinearAlgorithm(enum.IntEnum):
    """The algorithm of a general linear fit."""

    SINGULAR_VALUES = 0
    QR = 1
    QR_GIVENS = 2
    QR_FAST_GIVENS = 3
    LU = 4
    CHOLESKY = 5
    TRUNCATED_SINGULAR_VALUES = 6


class RemezKind(enum.IntEnum):
    """What an equiripple design makes."""

    MULTIBAND = 1
    DIFFERENTIATOR = 2
    HILBERT = 3


class RemezBandsKind(enum.IntEnum):
    """What an equiripple design makes, where bands are records."""

    MULTIBAND = 0
    DIFFERENTIATOR = 1
    HILBERT = 2


class BoundsType(enum.IntEnum):
    """The bounds of a fit: of the curve, or of the next observations."""

    CONFIDENCE = 0
    PREDICTION = 1


class RangeOf(enum.IntEnum):
    """The coordinates whose range decides which samples stay."""

    Y = 0
    X = 1
    XY = 2
