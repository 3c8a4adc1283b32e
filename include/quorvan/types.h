/* Quorvan: the plain types and the linkage macro of the public boundary. C99 and C++. */
#ifndef QUORVAN_TYPES_H
#define QUORVAN_TYPES_H

#include <stdint.h>

#if defined(_WIN32)
#if defined(QUORVAN_BUILDING)
#define QV_API __declspec(dllexport)
#elif defined(QUORVAN_STATIC)
#define QV_API
#else
#define QV_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define QV_API __attribute__((visibility("default")))
#else
#define QV_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** 0 is success, a positive value a warning with valid results, a negative value an error. */
typedef int32_t QvStatus;

/** One complex number; an array of them is an interleaved complex array. */
typedef struct QvComplex {
    double re;
    double im;
} QvComplex;

/** What a window does to a spectrum. */
typedef struct QvWindowProperties {
    double enbw;          /**< equivalent noise bandwidth in bins */
    double coherent_gain; /**< mean of the window */
} QvWindowProperties;

/** Window codes, for every argument called `window`. All other values are refused with -20061. */
enum {
    QV_WINDOW_RECTANGULAR = 0,       /**< leaves the data as they are */
    QV_WINDOW_HANNING = 1,           /**< two-term cosine sum that falls to 0 */
    QV_WINDOW_HAMMING = 2,           /**< two-term cosine sum on a pedestal */
    QV_WINDOW_BLACKMAN_HARRIS3 = 3,  /**< three-term Blackman-Harris */
    QV_WINDOW_EXACT_BLACKMAN = 4,    /**< Blackman with exact zeros at the third and fourth sidelobe */
    QV_WINDOW_BLACKMAN = 5,          /**< Blackman with rounded coefficients */
    QV_WINDOW_FLAT_TOP = 6,          /**< five-term flat top, for amplitudes */
    QV_WINDOW_BLACKMAN_HARRIS4 = 7,  /**< four-term Blackman-Harris */
    QV_WINDOW_BLACKMAN_HARRIS7 = 8,  /**< seven-term Blackman-Harris */
    QV_WINDOW_LOW_SIDELOBE = 9,      /**< five-term cosine sum with low sidelobes */
    QV_WINDOW_BLACKMAN_NUTTALL = 11, /**< four-term Blackman-Nuttall */
    QV_WINDOW_TRIANGLE = 30,         /**< straight edges */
    QV_WINDOW_BARTLETT_HANNING = 31, /**< weighted sum of triangle and Hanning */
    QV_WINDOW_BOHMAN = 32,           /**< half cosine convolved with itself */
    QV_WINDOW_PARZEN = 33,           /**< piecewise cubic */
    QV_WINDOW_WELCH = 34,            /**< parabola */
    QV_WINDOW_KAISER = 60,           /**< parameter: beta */
    QV_WINDOW_CHEBYSHEV = 61,        /**< Dolph-Chebyshev; parameter: sidelobe attenuation in dB, negative for 60 dB */
    QV_WINDOW_GAUSSIAN = 62          /**< parameter: standard deviation as a share of the length, not positive for 0.2 */
};

/** One band of a multiband filter. */
typedef struct QvBand {
    double desired; /**< gain in the band */
    double lower;   /**< lower edge, in the unit of the sampling rate */
    double upper;   /**< upper edge */
    double weight;  /**< weight of the band's error */
} QvBand;

/**
 * The model of a nonlinear fit: its value at x for `count` coefficients. It runs on the caller's thread, must not keep
 * the pointer, and leaves the coefficients as they are.
 */
typedef double (*QvModel)(double x, double* coefficients, int32_t count);

/**
 * A recursive filter with its delay lines; see IirFilterCreate. Its stages have the width w: 2 for lowpass and highpass,
 * 4 for bandpass and bandstop. Stage s is
 *
 *     b[s(w+1)] + b[s(w+1) + 1] z^-1 + ... + b[s(w+1) + w] z^-w
 *     ---------------------------------------------------------
 *          1 + a[s w] z^-1 + ... + a[s w + w - 1] z^-w
 *
 * and there are (order + 1) / 2 of them.
 */
typedef struct QvIirFilter {
    int32_t type;        /**< 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop */
    int32_t order;       /**< order of the analog prototype */
    int32_t reset;       /**< not 0: the next application clears the delay lines, and then this */
    int32_t a_count;     /**< feedback coefficients, w a stage */
    double* a;           /**< feedback coefficients, stage after stage, without the leading 1 */
    int32_t b_count;     /**< feedforward coefficients, w + 1 a stage */
    double* b;           /**< feedforward coefficients, stage after stage */
    int32_t state_count; /**< delay elements, w a stage */
    double* state;       /**< delay lines, stage after stage, newest value first */
} QvIirFilter;

/** The delay lines that complex data needs beside a recursive filter; see IirStateComplexCreate. */
typedef struct QvIirStateComplex {
    int32_t count;     /**< delay elements */
    QvComplex* values; /**< delay lines, stage after stage, newest value first */
} QvIirStateComplex;

/** An interpolated FIR filter: a stretched model in cascade with an image suppressor; see FirNarrowbandCreate. */
typedef struct QvFirNarrowband {
    int32_t mode;             /**< how the request was folded; 3 to 5 add the delayed input to the output */
    int32_t factor;           /**< interpolation factor, the distance of the model's taps; at least 1 */
    int32_t model_count;      /**< taps of the model */
    double* model;            /**< taps of the model */
    int32_t suppressor_count; /**< taps of the image suppressor, 0 where the factor is 1 */
    double* suppressor;       /**< taps of the image suppressor */
} QvFirNarrowband;

/** A held FFT plan; see FftPlanCreate. */
typedef struct QvFftPlan QvFftPlan;

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_TYPES_H */
