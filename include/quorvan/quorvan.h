/* Quorvan: all exported functions. Generated from exports/table by tools/boundary.py; do not edit.
 *
 * Each function has its number, which programs bind, and a readable name: Qv followed by the operation.
 * Sizes are signed 64-bit and must fit 32 bits (else -20046, and nothing is touched); one below the minimum gives
 * -20003 unless the function says otherwise. Null pointers are not detected where a parameter does not allow them.
 */
#ifndef QUORVAN_H
#define QUORVAN_H

#include "quorvan/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup arrays Array primitives
 * @{
 */

/**
 * ArrAdd.
 * Adds two arrays, out[i] = x[i] + y[i].
 * out may be x or y.
 * @param x read, [n]
 * @param y read, [n]
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @code
 * QvArrAdd(x, y, 4, sum);
 * @endcode
 */
QV_API QvStatus ZemFunc3(const double* x, const double* y, int64_t n, double* out);
#define QvArrAdd ZemFunc3

/**
 * ArrAdd2D.
 * Adds two row-major arrays element by element.
 * The element count rows * cols is formed in 32 bits.
 * out may be x or y.
 * @param x read, [rows * cols]
 * @param y read, [rows * cols]
 * @param out written, [rows * cols]
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc4(const double* x, const double* y, int64_t rows, int64_t cols, double* out);
#define QvArrAdd2D ZemFunc4

/** @} */

/** @defgroup gamma Gamma, beta and related functions
 * Scalar functions of real arguments, returned as the value itself: there is no status.
 * A domain fault gives NaN or the infinity that the function's text names; a NaN argument gives NaN.
 * Where an argument goes by address, a null pointer selects the complete function; the address of 0.0 does not.
 * @{
 */

/**
 * SpecBeta.
 * Null x: B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b). At poles NaN or +Inf, as the Gammas give.
 * Otherwise the regularised incomplete beta function I_x(a, b), the integral of t^(a-1) (1-t)^(b-1) from 0 to x over B(a, b).
 * I_x(a, b) is NaN for a <= 0, b <= 0 or x outside [0, 1]; it is 0 at x = 0 and 1 at x = 1.
 * @param a first parameter; above 0 for the incomplete function
 * @param b second parameter; above 0 for the incomplete function
 * @param x read, may be null: upper limit of the integral, 0 to 1; null selects the complete function
 */
QV_API double ZemFunc307(double a, double b, const double* x);
#define QvSpecBeta ZemFunc307

/**
 * SpecFactorial.
 * n! = 1 * 2 * ... * n; NaN below 0, +Inf above 170.
 * n is a number, not a size: it is not narrowed.
 * @param n any integer
 */
QV_API double ZemFunc308(int64_t n);
#define QvSpecFactorial ZemFunc308

/**
 * SpecGamma.
 * Null x: Gamma(a). 0, negative integers and -Inf give NaN; +Inf above 171.624376956302725.
 * Otherwise the regularised incomplete gamma function P(a, x), the integral of t^(a-1) e^-t from 0 to x over Gamma(a).
 * P(a, x) is NaN for a <= 0 or x < 0; it is 0 at x = 0 and 1 at x = +Inf.
 * Gamma at 1 - 2^-52 and at 2 - 2^-52 is given as 0.5; callers rely on the loops that lead there.
 * @param a the argument; above 0 for the incomplete function
 * @param x read, may be null: upper limit of the integral, at least 0; null selects the complete function
 * @code
 * double x = 1.5, gamma = QvSpecGamma(0.5, NULL), p = QvSpecGamma(0.5, &x);
 * @endcode
 */
QV_API double ZemFunc309(double a, const double* x);
#define QvSpecGamma ZemFunc309

/**
 * SpecIncompleteGammaComplement.
 * Q(a, x) = 1 - P(a, x), the integral of t^(a-1) e^-t from x to infinity over Gamma(a).
 * NaN for a <= 0 or x < 0; 1 at x = 0 and 0 at x = +Inf.
 * @param a above 0
 * @param x lower limit of the integral, at least 0
 */
QV_API double ZemFunc310(double a, double x);
#define QvSpecIncompleteGammaComplement ZemFunc310

/**
 * SpecLnFactorial.
 * ln n!
 * @param n any
 */
QV_API double ZemFunc311(uint32_t n);
#define QvSpecLnFactorial ZemFunc311

/**
 * SpecLnGamma.
 * ln |Gamma(x)|. 0, negative integers, and x above 2.556348e305 give +Inf.
 * @param x any
 */
QV_API double ZemFunc312(double x);
#define QvSpecLnGamma ZemFunc312

/**
 * SpecDigamma.
 * psi(x), the derivative of ln Gamma(x). 0, negative integers and -Inf give NaN.
 * @param x any
 */
QV_API double ZemFunc313(double x);
#define QvSpecDigamma ZemFunc313

/**
 * SpecGammaStirling.
 * sqrt(2 pi) x^(x - 1/2) e^-x (1 + 1/(12 x) + ...), Stirling's formula for Gamma(x) with five terms.
 * +Inf above 709.7827128933. Nothing is refused: below 33 the five terms are simply too few.
 * @param x above 0; the formula is meant for x > 33
 */
QV_API double ZemFunc314(double x);
#define QvSpecGammaStirling ZemFunc314

/**
 * SpecDilogarithm.
 * Spence's integral, the integral of -ln t / (t - 1) from 1 to x, which is Li2(1 - x).
 * NaN below 0; pi^2/6 at 0, 0 at 1.
 * @param x at least 0
 */
QV_API double ZemFunc326(double x);
#define QvSpecDilogarithm ZemFunc326

/**
 * SpecZeta.
 * The Riemann zeta function minus 1: the 1 is left out because it would hide the rest for large x.
 * +Inf at 1, 0 from 127 on, NaN below -30.8148.
 * @param x any
 */
QV_API double ZemFunc329(double x);
#define QvSpecZeta ZemFunc329

/** @} */

/** @defgroup status Status codes
 * @{
 */

/**
 * StatusMessage.
 * The text of a status code.
 * Never fails and never returns null; a code without a text gives "Unknown error number".
 * The text belongs to the library.
 */
QV_API const char* ZemFunc240(int32_t code);
#define QvStatusMessage ZemFunc240

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_H */
