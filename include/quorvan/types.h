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

/** A held FFT plan; see FftPlanCreate. */
typedef struct QvFftPlan QvFftPlan;

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_TYPES_H */
