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

/** A held FFT plan; see FftPlanCreate. */
typedef struct QvFftPlan QvFftPlan;

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_TYPES_H */
