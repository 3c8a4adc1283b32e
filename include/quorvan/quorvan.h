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

/** @defgroup windows Window functions
 * @{
 */

/**
 * WinHanning.
 * Multiplies data by the Hanning window, w[i] = 0.5 - 0.5 cos(2 pi i / n).
 * @param x read and written, [n]: data
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc89(double* x, int64_t n);
#define QvWinHanning ZemFunc89

/**
 * WinHanningComplex (WinHanning).
 * Multiplies complex data by the window of WinHanning.
 * @param x read and written, [n]: data
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc430(QvComplex* x, int64_t n);
#define QvWinHanningComplex ZemFunc430

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_H */
