"""What exports/table leaves open for the Python package, decided by hand; read by tools/python_binding.py.

Exports and arguments are named as in the table. A pattern is a regular expression that a whole name must match.
"""

# --- Names ---------------------------------------------------------------------------------------------------------
# A Python name is the table's in snake_case, with its family prefix replaced by the first of these that it begins with.
# What stands for measurement, statistics, transforms, special functions and matrices needs no prefix; what would read
# like NumPy's own operations, or like a word of every family, keeps one.
PREFIXES = {
    "CxArr": "complex_array_",
    "Cx": "complex_",
    "Arr": "array_",
    "Win": "window_",
    "Vec": "vector_",
    "Spec": "",
    "Transform": "",
    "Gen": "",
    "Rng": "",
    "Stat": "",
    "Dist": "",
    "Mat": "",
}
# The names that this rule makes ambiguous or ugly. A complex twin follows its real form by itself.
NAMES = {
    "SpecRealFft": "spectrum_real_fft",
    "SpecRealInverseFft": "spectrum_real_ifft",
    "SpecComplexInverseFft": "spectrum_complex_ifft",
    "SpecDeconvolve": "spectrum_deconvolve",
    "SpecUnitConvert": "spectrum_unit_convert",
    "SpecSphericalJ": "spherical_bessel_j",
    "SpecSphericalY": "spherical_bessel_y",
    "PowerSpectrumComplex": "auto_power_complex",
    "WinPropertiesOf": "window_properties",
    "MatMultiply": "matrix_multiply",
    "MatMultiplyComplex": "matrix_multiply_complex",
    "MatVectorMultiply": "matrix_vector_multiply",
    "MatVectorMultiplyComplex": "matrix_vector_multiply_complex",
    "MatNorm": "matrix_norm",
    "MatNormComplex": "matrix_norm_complex",
    "MatRank": "matrix_rank",
    "MatRankComplex": "matrix_rank_complex",
    "MatBuildSpecial": "special_matrix",
    "MatBuildSpecialComplex": "special_matrix_complex",
    "MatIsPositiveDefinite": "is_positive_definite",
    "MatIsPositiveDefiniteComplex": "is_positive_definite_complex",
    "ContingencyChiSquare": "contingency_chi_square",
}
# Further names of a function, for those who come from NumPy and SciPy. X_real and X_complex with the same parameters
# also have the name X without being listed here.
ALIASES = {
    "convolve": "convolve_real_by",
    "correlate": "correlate_real_by",
    "ifft": "complex_ifft",
    "ifft_2d": "complex_ifft_2d",
    "det": "determinant",
    "inv": "inverse",
    "pinv": "pseudo_inverse",
    "qr": "qr_method",
    "eig": "eigen_general",
    "eigh": "eigen_symmetric",
}
# Complex twins that go by another name than X_complex of X or of X_real.
TWINS = {
    "convolve_real": "convolve_complex",
    "convolve_real_by": "convolve_complex",
    "correlate_real": "correlate_complex",
    "correlate_real_by": "correlate_complex",
    "solve": "solve_kind_complex",
    "inverse": "inverse_kind_complex",
    "determinant": "determinant_kind_complex",
    "eigen_general": "eigen_complex",
}

# Where one array may have a dimension more than the function takes: the function that takes it.
MANY = {
    "solve": ("b", "solve_many"),
    "solve_kind": ("b", "solve_many"),
    "solve_kind_complex": ("b", "solve_many_complex"),
}

# --- Selections ----------------------------------------------------------------------------------------------------
# class: (what it selects, members, where it applies as (export pattern, argument), the default or None)
SELECTIONS = {
    "Window": (
        "A window function.",
        dict(RECTANGULAR=0, HANNING=1, HAMMING=2, BLACKMAN_HARRIS3=3, EXACT_BLACKMAN=4, BLACKMAN=5, FLAT_TOP=6,
             BLACKMAN_HARRIS4=7, BLACKMAN_HARRIS7=8, LOW_SIDELOBE=9, BLACKMAN_NUTTALL=11, TRIANGLE=30,
             BARTLETT_HANNING=31, BOHMAN=32, PARZEN=33, WELCH=34, KAISER=60, CHEBYSHEV=61, GAUSSIAN=62),
        [("Win.*|SpecHarmonicAnalyzer|FirDesignWindow|FirFilterWindow.*", "window")], None),
    "FirWindow": (
        "The window of a FIR design by its short list.",
        dict(RECTANGULAR=1, TRIANGLE=2, HANNING=3, HAMMING=4, BLACKMAN=5),
        [("FirDesign(Lowpass|Highpass|Bandpass|Bandstop)", "window")], "HAMMING"),
    "FilterKind": (
        "The band that a filter lets pass or stops.",
        dict(LOWPASS=0, HIGHPASS=1, BANDPASS=2, BANDSTOP=3),
        [("Iir.*|FirIdealResponse|FirDesignWindow|FirFilterWindow.*|FirNarrowbandDesign", "kind")], None),
    "Method": (
        "How sums of products are formed.",
        dict(DIRECT=0, TRANSFORM=1),
        [("(Auto)?(Convolve|Correlate).*", "method"), ("TransformChirpZ.*", "method")], "TRANSFORM"),
    "Normalisation": (
        "What a correlation is divided by: nothing, the number of overlapping terms, the longer length.",
        dict(NONE=0, UNBIASED=1, BIASED=2),
        [("(Auto)?Correlate.*", "normalisation")], "NONE"),
    "Shape": (
        "How much of a two-dimensional convolution is wanted.",
        dict(FULL=0, SAME=1, VALID=2),
        [("Convolve2D.*", "shape")], "FULL"),
    "SortOrder": (
        "The direction of a sort.",
        dict(ASCENDING=0, DESCENDING=1),
        [("ArrSort", "direction")], "ASCENDING"),
    "SpectrumKind": (
        "What the values of a spectrum are.",
        dict(POWER=0, AMPLITUDE=1, MAGNITUDE=2),
        [("SpecUnitConvert", "kind")], "POWER"),
    "Display": (
        "The scale on which a spectrum is shown; DBM is decibels relative to 0.6084.",
        dict(LINEAR=0, DECIBEL=1, DBM=2),
        [("SpecUnitConvert", "display")], "LINEAR"),
    "UnitFlags": (
        "The parts of a unit: peak instead of rms, power instead of amplitude, density per hertz. Join them by |.",
        dict(NONE=0, PEAK=1, POWER=2, DENSITY=4),
        [("SpecUnitConvert", "flags")], "NONE"),
    "PhaseMode": (
        "The unit of a phase, and the one it is converted to.",
        dict(RADIANS=0, RADIANS_TO_DEGREES=1, DEGREES=2, DEGREES_TO_RADIANS=3),
        [("SpecUnwrapPhase", "mode")], "RADIANS"),
    "PeakPolarity": (
        "What a peak detector looks for.",
        dict(PEAKS=0, VALLEYS=1),
        [("PeakDetect", "polarity")], "PEAKS"),
    "LevelMethod": (
        "How the two state levels of a waveform are found.",
        dict(HISTOGRAM=0, PEAK=1, AUTO=2),
        [("Pulse.*", "method")], "AUTO"),
    "EdgePolarity": (
        "The direction of an edge; ANY only for the start of a pulse.",
        dict(FALLING=0, RISING=1, ANY=-1),
        [("Pulse.*", "polarity"), ("DetectLevelCrossing", "slope")], "RISING"),
    "ToneOrder": (
        "The order in which tones are listed.",
        dict(FREQUENCY=0, AMPLITUDE=1),
        [("ToneMulti.*", "sort")], "FREQUENCY"),
    "ToneSignal": (
        "The signal that the extended tone measurements give besides.",
        dict(NONE=0, INPUT=1, TONES=2, RESIDUAL=3),
        [("Tone.*Ex", "mode")], "RESIDUAL"),
    "Difference": (
        "The formula of a derivative.",
        dict(CENTRAL2=0, CENTRAL4=1, FORWARD=2, BACKWARD=3),
        [("DifferentiateMethod", "method")], "CENTRAL2"),
    "QuadratureRule": (
        "The rule of an integral over samples.",
        dict(TRAPEZOID=0, SIMPSON=1, SIMPSON38=2, BOOLE=3),
        [("IntegrateSamples", "rule")], "TRAPEZOID"),
    "MatrixKind": (
        "What is known of a matrix.",
        dict(GENERAL=0, POSITIVE_DEFINITE=1, LOWER_TRIANGULAR=2, UPPER_TRIANGULAR=3),
        [("Mat(Solve|Inverse|Determinant).*", "kind")], "GENERAL"),
    "EigenKind": (
        "What is known of a complex matrix.",
        dict(GENERAL=0, HERMITIAN=1),
        [("MatEigenComplex", "kind")], "GENERAL"),
    "MatrixNorm": (
        "The norm of a matrix.",
        dict(TWO=0, ONE=1, FROBENIUS=2, INFINITY=3),
        [("Mat(Norm|ConditionNumber).*", "selector")], "TWO"),
    "VectorNorm": (
        "The norm of a vector; P takes the parameter p.",
        dict(ONE=0, TWO=1, INFINITY=2, MINUS_INFINITY=3, P=4),
        [("VecNorm.*", "selector")], "TWO"),
    "SpecialMatrix": (
        "A matrix that is built from vectors.",
        dict(IDENTITY=0, DIAGONAL=1, TOEPLITZ=2, VANDERMONDE=3, COMPANION=4),
        [("MatBuildSpecial.*", "type")], None),
    "LagMethod": (
        "What a lag product takes for the samples outside the data.",
        dict(AUTOCORRELATION=0, PREWINDOWED=1, POSTWINDOWED=2, COVARIANCE=3, MODIFIED_COVARIANCE=4),
        [("MatLagProduct.*", "method")], "AUTOCORRELATION"),
    "SvdMode": (
        "Whether singular vectors beyond the rank are wanted.",
        dict(FULL=0, ECONOMY=1),
        [("MatSvdMode.*", "mode")], "FULL"),
    "QrMethod": (
        "The reflections or rotations of a QR decomposition.",
        dict(HOUSEHOLDER=0, GIVENS=1, FAST_GIVENS=2),
        [("MatQrMethod", "method")], "HOUSEHOLDER"),
    "PivotMode": (
        "How the columns of a QR decomposition are exchanged, and the form in which that is told.",
        dict(NONE=0, VECTOR=1, MATRIX=2),
        [("MatQrPivot.*", "pivotMode")], "VECTOR"),
    "BalanceJob": (
        "What balancing a matrix does.",
        dict(NONE=0, PERMUTE=1, SCALE=2, BOTH=3),
        [("MatBalance.*", "job")], "BOTH"),
    "Side": (
        "The side on which eigenvectors stand.",
        dict(RIGHT=0, LEFT=1),
        [("MatBalanceBack.*", "side")], "RIGHT"),
    "EigenOrder": (
        "The order of eigenvalues along a diagonal.",
        dict(AS_PRODUCED=0, ASCENDING_REAL=1, DESCENDING_REAL=2, ASCENDING_MODULUS=3, DESCENDING_MODULUS=4),
        [("Mat(Schur|Qz).*", "sort")], "AS_PRODUCED"),
    "RobustMethod": (
        "What a fit minimises.",
        dict(LEAST_SQUARES=0, LEAST_ABSOLUTE_RESIDUALS=1, BISQUARE=2),
        [("Fit(Line|Exponential)Robust|Fit(Power|Logarithm|Gaussian)", "method")], "LEAST_SQUARES"),
    "PolynomialAlgorithm": (
        "The algorithm of a polynomial fit.",
        dict(SINGULAR_VALUES=0, QR=1, LU=2, CHOLESKY=3),
        [("FitPolynomial(Constrained|Weighted)", "algorithm")], "SINGULAR_VALUES"),
    "LinearAlgorithm": (
        "The algorithm of a general linear fit.",
        dict(SINGULAR_VALUES=0, QR=1, QR_GIVENS=2, QR_FAST_GIVENS=3, LU=4, CHOLESKY=5, TRUNCATED_SINGULAR_VALUES=6),
        [("FitGeneralLinear.*", "selector")], "SINGULAR_VALUES"),
    "RemezKind": (
        "What an equiripple design makes.",
        dict(MULTIBAND=1, DIFFERENTIATOR=2, HILBERT=3),
        [("FirRemezDesign", "kind")], "MULTIBAND"),
    "RemezBandsKind": (
        "What an equiripple design makes, where bands are records.",
        dict(MULTIBAND=0, DIFFERENTIATOR=1, HILBERT=2),
        [("FirRemezBands", "kind")], "MULTIBAND"),
    "BoundsType": (
        "The bounds of a fit: of the curve, or of the next observations.",
        dict(CONFIDENCE=0, PREDICTION=1),
        [("FitBounds.*", "type")], "CONFIDENCE"),
    "RangeOf": (
        "The coordinates whose range decides which samples stay.",
        dict(Y=0, X=1, XY=2),
        [("FitRemoveOutOfRange", "mode")], "Y"),
}
# Integers that are 0 or not: bool in Python.
FLAGS = {"unwrap", "shift", "average", "wantVectors", "wantDerivatives", "economy", "reset", "first", "last", "percent",
         "interpolation"}

# --- Defaults ------------------------------------------------------------------------------------------------------
# (export pattern, argument): the default as Python text. Parameters with a default stand behind those without.
DEFAULTS = {
    (".*", "dt"): "1.0",
    (".*", "unwrap|shift|average|economy"): "False",
    (".*", "wantVectors|wantDerivatives"): "True",
    (".*", "fftSize|fftRows|fftCols"): "0",
    ("Transform.*ChirpZ.*", "m"): "0",
    ("Gen(Sine|Square|Triangle|Sawtooth|Arbitrary)Wave", "phase"): "0.0",
    ("GenArbitraryWave", "interpolation"): "True",
    ("Gen.*Noise|Rng.*", "seed"): "0",
    ("Gen.*(Noise|Sequence)", "reset"): "False",
    ("Decimate.*|DetectLevel.*|Peak.*", "reset|first"): "True",
    ("Peak.*", "last"): "True",
    ("DecimateContinuous.*", "offset"): "0",
    ("IntegrateSimpson|Differentiate", "initial|final"): "0.0",
    ("InterpSplineSecondDerivatives", "first|last"): "1e30",
    ("DetectLevelCrossing", "hysteresis"): "0.0",
    ("Pulse.*", "bins"): "256",
    ("Pulse.*", "high"): "90.0",
    ("Pulse.*", "mid"): "50.0",
    ("Pulse.*", "low"): "10.0",
    ("Pulse.*", "percent"): "True",
    ("Pulse.*", "cycle|edge"): "1",
    ("Win.*|Fir.*Window.*", "parameter"): "0.0",
    ("SpecUnitConvert", "df"): "1.0",
    ("SpecUnitConvert|SpecPeakPowerFrequency", "window"): "(1.0, 1.0)",
    ("SpecPeakPowerFrequency", "df"): "1.0",
    ("SpecPeakPowerFrequency", "search"): "-1.0",
    ("SpecPeakPowerFrequency", "span"): "7",
    ("ToneMulti.*", "threshold"): "0.0",
    ("Mat(Rank|PseudoInverse).*", "tolerance"): "-1.0",
    ("StatModes", "intervals"): "0",
    ("VecNorm.*", "p"): "2.0",
    ("MatBuildSpecial.*", "order"): "0",
    ("Fit.*", "tolerance"): "0.0",
    ("FitNonlinear.*", "limit"): "-1",
    ("FitLogarithm|FitBoundsLogarithm", "base"): "0.0",
    ("FitBounds.*", "level"): "0.95",
    ("FirNarrowbandDesign", "center"): "0.0",
    ("Iir(Design|Coefficients).*|Fir(IdealResponse|DesignWindow|FilterWindow|FilterWindowComplex)", "fh"): "0.0",
}

# What an argument means where the table thinks it too plain to say.
MEANINGS = {"x": "the samples", "dt": "time between samples", "n": "the number of elements",
            "maxTones": "the number of tones at most", "weights": "weights of the samples"}

# What is different in Python: export pattern: a sentence.
REMARKS = {
    "PeakThresholdRuns.*": "Here a width of 0 raises ZeroDivisionError, before the call.",
    "FitNonlinear.*": "An exception of the model ends the fit and comes out of it.",
    "Gen(Gamma|Poisson|Binomial|Bernoulli)Noise|Gen(Halton|Weyl)Sequence|DecimateContinuous.*|PeakDetect":
        "There is an object for such a stream, too.",
}

# --- Shapes --------------------------------------------------------------------------------------------------------
# Outputs whose shape the table tells in words, as Python tuples over the table's names.
_CONVOLUTION_2D = ("(rows1, cols1) if shape == 1 else (rows1 - rows2 + 1, cols1 - cols2 + 1) if shape == 2 "
                   "else (rows1 + rows2 - 1, cols1 + cols2 - 1)")
SHAPES = {
    ("Convolve2D.*", "out"): _CONVOLUTION_2D,
    ("Transform(RealFft|ComplexFft|Dct|Dst)", "out"): "(fftSize if fftSize > 0 else n,)",
    ("Transform(Real|Complex)Fft2D", "out"): "(fftRows if fftRows > 0 else rows, fftCols if fftCols > 0 else cols)",
    ("Transform(ChirpZReal|ChirpZComplex|InverseChirpZ)", "out"): "(m if m > 0 else n,)",
    ("MatKronecker.*", "out"): "(rowsA * rowsB, colsA * colsB)",
    ("FirNarrowbandFilter.*", "y"): "(filter.output_count(n),)",
}
# Integers that the caller need not tell: (export pattern, argument): Python text over the table's names.
_COEFFICIENTS = "max(order, 0) * (2 if kind > 1 else 1) + 1"
SIZES = {
    ("IirCoefficients.*", "aSize|bSize"): _COEFFICIENTS,
    ("IirToDirectForm", "aSize|bSize"): "filter.coefficient_count",
    ("StatModes", "count"): "max(n // 2, 1)",
    ("FitRemoveOutOfRange", "capacity"): "n",
}
# Outputs of which only the first elements count: (export pattern, outputs): the argument that tells how many.
FIRST = {
    ("PeakThresholdRuns.*", "indices"): "count",
    ("ToneMulti.*", "freq|amp|phase"): "count",
    ("DecimateContinuous.*", "x"): "count",
    ("StatModes", "modes"): "count",
    ("FitRemove.*", "x|y|weights"): "n",
    ("FitRemoveOutOfRange", "removed"): "removedCount",
}
# Nullable outputs that are only wanted together with a flag; None without it.
WITH = {"vectors": "wantVectors", "derivatives": "wantDerivatives"}
# Nullable inputs that Python requires, since the operation refuses to go without.
REQUIRED = {("Pulse.*", "x")}

# --- Roles ---------------------------------------------------------------------------------------------------------
# Arrays that are read and written and have a part of their own: the memory of a filter, all zeros unless it is given,
# and the start of an iteration. Both come back as results; the arrays given stay as they are.
STATES = {"inputState", "outputState"}
GUESSES = {"coefficients"}
# Complex numbers in two parts: (export pattern, real part, imaginary part): the name in Python. Besides these,
# neighbours called re and im, or ...Re and ...Im, are one.
PAIRS = {
    ("Cx(?!Arr).*", "a", "b"): "x",
    ("Cx(?!Arr).*", "c", "d"): "y",
}
# A real record and its spectrum in place: the real part of the result stands where the record stood.
SPECTRUM_IN_PLACE = {"SpecRealFft": ("x", "im")}
# Pairs of which only the real part is a result.
REAL_RESULT = {"SpecRealInverseFft"}
# Twice one pointer means something of its own here: arrays that merely begin at one place are told apart by a copy.
DISTINCT = {"CorrelateReal", "CorrelateRealBy", "CorrelateRealNormalised"}
# Families whose outputs may be exactly an input; elsewhere a result that is to stand over an input goes through a copy.
OVERLAPPING = {"arrays", "complex", "spectrum"}
