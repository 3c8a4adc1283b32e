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
 * Operations on arrays of doubles: filling, moving, arithmetic, sums, extremes, scaling and sorting.
 *
 *     out[i] = x[i] op y[i]                        op: + - * /
 *     scaled      out[i] = (x[i] - (max + min) / 2) / ((max - min) / 2)       in [-1, 1]
 *     normalised  out[i] = (x[i] - mean) / deviation,   deviation = sqrt(sum (x[i] - mean)^2 / n)
 *     linear      out[i] = a x[i] + b
 *     polynomial  out[i] = sum over j of coef[j] x[i]^j
 *
 * A 2-D array is row-major without gaps; its functions run over rows * cols elements, a count that is formed in 32
 * bits and wraps: 65536 rows of 65537 columns are 65536 elements, and a count that wraps below 1 is refused.
 *
 * An output may be the same array as an input. Other overlaps work only where elements are just moved: in ArrCopy,
 * ArrSubset and ArrShift.
 *
 * NaN and infinity pass through arithmetic; searches ignore NaN. On an error nothing is written, except in
 * ArrDivide.
 * @{
 */

/**
 * ArrClear.
 * Sets all elements to +0.0.
 * @param x written, [n]: the array
 * @param n the number of elements
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc29(double* x, int64_t n);
#define QvArrClear ZemFunc29

/**
 * ArrFill.
 * Sets all elements to one value, x[i] = value.
 * @param x written, [n]: the array
 * @param n the number of elements
 * @param value what every element becomes
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc155(double* x, int64_t n, double value);
#define QvArrFill ZemFunc155

/**
 * ArrCopy.
 * Copies an array byte by byte, so that NaN keep their bits.
 * @param x read, [n]: the source
 * @param n the number of elements
 * @param out written, [n]: the copy
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc34(const double* x, int64_t n, double* out);
#define QvArrCopy ZemFunc34

/**
 * ArrSubset.
 * Copies a part of an array, out[i] = x[index + i].
 * A part that ends with the array, index + length = n, is allowed.
 * The conditions are tested in the order of the statuses below.
 * @param x read, [n]: the source
 * @param n the number of elements
 * @param index the first element to take, from 0
 * @param length how many elements to take
 * @param out written, [length]: the elements taken
 * @retval -20003 n is below 1
 * @retval -20017 index is below 0, or n or more
 * @retval -20003 length is below 1
 * @retval -20018 index + length is above n
 */
QV_API QvStatus ZemFunc169(const double* x, int64_t n, int64_t index, int64_t length, double* out);
#define QvArrSubset ZemFunc169

/**
 * ArrReverse.
 * Reverses the order of the elements, out[i] = x[n - 1 - i].
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc149(double* x, int64_t n, double* out);
#define QvArrReverse ZemFunc149

/**
 * ArrShift.
 * Shifts the elements, out[i] = x[i - shift]; vacated places become 0.
 * A shift by n or -n is allowed and leaves zeros only.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param shift places to move, upwards when positive
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 * @retval -20102 shift is above n or below -n
 */
QV_API QvStatus ZemFunc156(double* x, int64_t n, int64_t shift, double* out);
#define QvArrShift ZemFunc156

/**
 * ArrSort.
 * Sorts an array. NaN come first in both directions.
 * A NaN that has to move becomes the quiet NaN 0x7FF8000000000000; those that stand in front already keep their bits.
 * The order of +0.0 and -0.0 among themselves is not specified.
 * Takes O(n log n) steps on any input and no memory.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param direction 0: ascending; anything else: descending
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc160(double* x, int64_t n, uint32_t direction, double* out);
#define QvArrSort ZemFunc160

/**
 * ArrAdd.
 * Adds two arrays, out[i] = x[i] + y[i].
 * out may be x or y.
 * @param x read, [n]: the first operand
 * @param y read, [n]: the second operand
 * @param n the number of elements
 * @param out written, [n]: the result
 * @retval -20003 n is below 1
 * @code
 * QvArrAdd(x, y, 4, sum);
 * @endcode
 */
QV_API QvStatus ZemFunc3(const double* x, const double* y, int64_t n, double* out);
#define QvArrAdd ZemFunc3

/**
 * ArrAdd2D.
 * The 2-D form of ArrAdd.
 * The element count rows * cols is formed in 32 bits.
 * out may be x or y.
 * @param x read, [rows * cols]: the first operand
 * @param y read, [rows * cols]: the second operand
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols]: the result
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc4(const double* x, const double* y, int64_t rows, int64_t cols, double* out);
#define QvArrAdd2D ZemFunc4

/**
 * ArrSubtract.
 * Subtracts an array from another, out[i] = x[i] - y[i].
 * out may be x or y.
 * @param x read, [n]: the first operand
 * @param y read, [n]: the second operand
 * @param n the number of elements
 * @param out written, [n]: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc167(const double* x, const double* y, int64_t n, double* out);
#define QvArrSubtract ZemFunc167

/**
 * ArrSubtract2D.
 * The 2-D form of ArrSubtract.
 * The element count rows * cols is formed in 32 bits.
 * out may be x or y.
 * @param x read, [rows * cols]: the first operand
 * @param y read, [rows * cols]: the second operand
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols]: the result
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc168(const double* x, const double* y, int64_t rows, int64_t cols, double* out);
#define QvArrSubtract2D ZemFunc168

/**
 * ArrMultiply.
 * Multiplies two arrays element by element, out[i] = x[i] * y[i].
 * out may be x or y.
 * @param x read, [n]: the first operand
 * @param y read, [n]: the second operand
 * @param n the number of elements
 * @param out written, [n]: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc126(const double* x, const double* y, int64_t n, double* out);
#define QvArrMultiply ZemFunc126

/**
 * ArrMultiply2D.
 * The 2-D form of ArrMultiply.
 * The element count rows * cols is formed in 32 bits.
 * out may be x or y.
 * @param x read, [rows * cols]: the first operand
 * @param y read, [rows * cols]: the second operand
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols]: the result
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc127(const double* x, const double* y, int64_t rows, int64_t cols, double* out);
#define QvArrMultiply2D ZemFunc127

/**
 * ArrDivide.
 * Divides two arrays, out[i] = x[i] / y[i].
 * Stops at the first y[i] that is zero, of either sign: the earlier quotients are written, the later places untouched.
 * out may be x or y.
 * @param x read, [n]: the dividends
 * @param y read, [n]: the divisors
 * @param n the number of elements
 * @param out written, [n]: the quotients
 * @retval -20003 n is below 1
 * @retval -20060 a divisor is zero
 */
QV_API QvStatus ZemFunc57(const double* x, const double* y, int64_t n, double* out);
#define QvArrDivide ZemFunc57

/**
 * ArrDivide2D.
 * The 2-D form of ArrDivide.
 * The element count rows * cols is formed in 32 bits.
 * Unlike elsewhere, a size below 1 is found before one that does not fit 32 bits.
 * out may be x or y.
 * @param x read, [rows * cols]: the dividends
 * @param y read, [rows * cols]: the divisors
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols]: the quotients
 * @retval -20003 rows, cols or the element count is below 1
 * @retval -20060 a divisor is zero
 */
QV_API QvStatus ZemFunc58(const double* x, const double* y, int64_t rows, int64_t cols, double* out);
#define QvArrDivide2D ZemFunc58

/**
 * ArrNegate.
 * Flips the sign of every element, out[i] = -x[i]. That of NaN and zeros too.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc128(double* x, int64_t n, double* out);
#define QvArrNegate ZemFunc128

/**
 * ArrAbs.
 * Clears the sign of every element, out[i] = |x[i]|. That of NaN too.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc1(double* x, int64_t n, double* out);
#define QvArrAbs ZemFunc1

/**
 * ArrSum.
 * The sum of the elements, added from 0.0 in index order.
 * @param x read, [n]: the terms
 * @param n the number of elements
 * @param sum written: the sum
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc170(const double* x, int64_t n, double* sum);
#define QvArrSum ZemFunc170

/**
 * ArrSum2D.
 * The 2-D form of ArrSum.
 * The element count rows * cols is formed in 32 bits.
 * @param x read, [rows * cols]: the terms
 * @param rows the number of rows
 * @param cols the number of columns
 * @param sum written: the sum
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc171(const double* x, int64_t rows, int64_t cols, double* sum);
#define QvArrSum2D ZemFunc171

/**
 * ArrProduct.
 * The product of the elements, multiplied from 1.0 in index order.
 * @param x read, [n]: the factors
 * @param n the number of elements
 * @param product written: the product
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc140(const double* x, int64_t n, double* product);
#define QvArrProduct ZemFunc140

/**
 * ArrMaxMin.
 * The largest and the smallest element with their places. NaN are ignored; infinities are ordinary values.
 * Where all elements are NaN, both values are NaN and both places -1.
 * @param x read, [n]: the signal
 * @param n the number of elements
 * @param max written: the largest element
 * @param maxIndex written: the first place where it stands
 * @param min written: the smallest element
 * @param minIndex written: the first place where it stands
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc120(const double* x, int64_t n, double* max, int64_t* maxIndex, double* min, int64_t* minIndex);
#define QvArrMaxMin ZemFunc120

/**
 * ArrMaxMin2D.
 * The 2-D form of ArrMaxMin; first is meant in row-major order.
 * The element count rows * cols is formed in 32 bits.
 * Where all elements are NaN, both values are NaN and all four places -1.
 * @param x read, [rows * cols]: the signal
 * @param rows the number of rows
 * @param cols the number of columns
 * @param max written: the largest element
 * @param maxRow written: the row where it first stands
 * @param maxCol written: its column there
 * @param min written: the smallest element
 * @param minRow written: the row where it first stands
 * @param minCol written: its column there
 * @retval -20003 rows, cols or the element count is below 1
 */
QV_API QvStatus ZemFunc121(const double* x, int64_t rows, int64_t cols, double* max, int64_t* maxRow, int64_t* maxCol, double* min, int64_t* minRow, int64_t* minCol);
#define QvArrMaxMin2D ZemFunc121

/**
 * ArrScale.
 * Maps a signal to the range from -1 to 1: scale = (max - min) * 0.5, offset = scale + min, out[i] = (x[i] - offset) * (1 / scale).
 * A scale whose reciprocal is not finite counts as flat: then scale = 1, offset = max and out[i] = x[i] - offset.
 * In both cases x[i] = out[i] * scale + offset leads back, up to rounding.
 * NaN stay NaN. Where all elements are NaN, so are offset and scale, and out stays unwritten.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param out written, [n], may be null: the result
 * @param offset written: the middle between the extremes
 * @param scale written: half the distance between them, or 1 for a flat signal
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc153(double* x, int64_t n, double* out, double* offset, double* scale);
#define QvArrScale ZemFunc153

/**
 * ArrScale2D.
 * The 2-D form of ArrScale.
 * The element count rows * cols is formed in 32 bits.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [rows * cols]: the signal, replaced by the result when out is null
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols], may be null: the result
 * @param offset written: the middle between the extremes
 * @param scale written: half the distance between them, or 1 for a flat signal
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc154(double* x, int64_t rows, int64_t cols, double* out, double* offset, double* scale);
#define QvArrScale2D ZemFunc154

/**
 * ArrQuickScale.
 * Scales a signal by its peak magnitude, out[i] = x[i] * (1 / peak).
 * A peak of 0, where all elements are zero or NaN, copies x as it is.
 * An infinite peak gives 0 for finite elements and NaN for infinite ones.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param out written, [n], may be null: the result
 * @param peak written: the largest magnitude, NaN ignored
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc143(double* x, int64_t n, double* out, double* peak);
#define QvArrQuickScale ZemFunc143

/**
 * ArrQuickScale2D.
 * The 2-D form of ArrQuickScale.
 * The element count rows * cols is formed in 32 bits.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [rows * cols]: the signal, replaced by the result when out is null
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols], may be null: the result
 * @param peak written: the largest magnitude, NaN ignored
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc144(double* x, int64_t rows, int64_t cols, double* out, double* peak);
#define QvArrQuickScale2D ZemFunc144

/**
 * ArrNormalize.
 * Brings a signal to mean 0 and population standard deviation 1, out[i] = (x[i] - mean) * (1 / stdDev).
 * The mean comes first, the deviation from it in a second pass; both add in index order.
 * A flat signal has stdDev 0 and becomes NaN, with status 0.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param out written, [n], may be null: the result
 * @param mean written: sum of x / n
 * @param stdDev written: sqrt(sum of (x - mean)^2 / n)
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc132(double* x, int64_t n, double* out, double* mean, double* stdDev);
#define QvArrNormalize ZemFunc132

/**
 * ArrNormalize2D.
 * The 2-D form of ArrNormalize.
 * The element count rows * cols is formed in 32 bits.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [rows * cols]: the signal, replaced by the result when out is null
 * @param rows the number of rows
 * @param cols the number of columns
 * @param out written, [rows * cols], may be null: the result
 * @param mean written: sum of x / n
 * @param stdDev written: sqrt(sum of (x - mean)^2 / n)
 * @retval -20003 rows, cols or the element count is below 1
 */
QV_API QvStatus ZemFunc133(double* x, int64_t rows, int64_t cols, double* out, double* mean, double* stdDev);
#define QvArrNormalize2D ZemFunc133

/**
 * ArrLinearEval.
 * Evaluates a straight line at every element, out[i] = a * x[i] + b.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param a the factor
 * @param b the offset
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc115(double* x, int64_t n, double a, double b, double* out);
#define QvArrLinearEval ZemFunc115

/**
 * ArrLinearEval2D.
 * The 2-D form of ArrLinearEval.
 * The element count rows * cols is formed in 32 bits.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [rows * cols]: the signal, replaced by the result when out is null
 * @param rows the number of rows
 * @param cols the number of columns
 * @param a the factor
 * @param b the offset
 * @param out written, [rows * cols], may be null: the result
 * @retval -20003 the element count is below 1
 */
QV_API QvStatus ZemFunc116(double* x, int64_t rows, int64_t cols, double a, double b, double* out);
#define QvArrLinearEval2D ZemFunc116

/**
 * ArrPolyEval.
 * Evaluates a polynomial at every element, out[i] = coef[0] + coef[1]*x[i] + ... + coef[count-1]*x[i]^(count-1).
 * Each power is the one before times x[i], and the terms are added in ascending order; this is not Horner's rule and rounds differently.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param coef read, [count]: the coefficients, in ascending order
 * @param count the number of coefficients
 * @param out written, [n], may be null: the result
 * @retval -20003 n or count is below 1
 */
QV_API QvStatus ZemFunc135(double* x, int64_t n, const double* coef, int32_t count, double* out);
#define QvArrPolyEval ZemFunc135

/**
 * ArrPolyEval2D.
 * The 2-D form of ArrPolyEval.
 * The element count rows * cols is formed in 32 bits.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [rows * cols]: the signal, replaced by the result when out is null
 * @param rows the number of rows
 * @param cols the number of columns
 * @param coef read, [count]: the coefficients, in ascending order
 * @param count the number of coefficients
 * @param out written, [rows * cols], may be null: the result
 * @retval -20003 the element count or count is below 1
 */
QV_API QvStatus ZemFunc136(double* x, int64_t rows, int64_t cols, const double* coef, int32_t count, double* out);
#define QvArrPolyEval2D ZemFunc136

/**
 * ArrClip.
 * Limits every element: upper where x[i] > upper, else lower where lower > x[i], else x[i].
 * NaN elements pass unchanged, and so does everything at a limit that is NaN.
 * A null out, or out equal to x, replaces x.
 * @param x read and written, [n]: the signal, replaced by the result when out is null
 * @param n the number of elements
 * @param upper the upper limit
 * @param lower the lower limit
 * @param out written, [n], may be null: the result
 * @retval -20003 n is below 1
 * @retval -20019 lower is above upper
 */
QV_API QvStatus ZemFunc30(double* x, int64_t n, double upper, double lower, double* out);
#define QvArrClip ZemFunc30

/** @} */

/** @defgroup bessel Bessel, Airy, Struve and Kelvin functions
 * Solutions of Bessel's, Airy's, Struve's and Kelvin's equations for real arguments: fields in cylinders and
 * spheres, modulation, diffraction, the skin effect.
 *
 *     J, Y    x^2 y" + x y' + (x^2 - v^2) y = 0
 *     I, K    x^2 y" + x y' - (x^2 + v^2) y = 0
 *     j, y    spherical: sqrt(pi / (2 x)) J(n + 1/2, x),  sqrt(pi / (2 x)) Y(n + 1/2, x)
 *     H       x^2 y" + x y' + (x^2 - v^2) y = 4 (x/2)^(v + 1) / (sqrt(pi) Gamma(v + 1/2))
 *     Ai, Bi  y" = x y
 *     ber(x) + i bei(x) = J(n, x e^(3 pi i / 4)),    ker(x) + i kei(x) = e^(-n pi i / 2) K(n, x e^(pi i / 4))
 *
 * Values are returned as such or written to the caller's doubles: there is no status. A domain fault gives NaN or
 * the infinity that the function's text names; a NaN argument gives NaN in every result. Arguments in radians. The
 * accuracy, region by region, stands in docs/accuracy.md.
 * @{
 */

/**
 * SpecBesselJ.
 * The Bessel function of the first kind J of real order. Series, recurrences and expansions for large argument or order.
 * Whole orders take negative orders and arguments by parity; other orders give NaN for x < 0.
 * At 0: 1 for order 0, 0 for higher and for whole orders, an infinity for others below 0. At infinity 0.
 * @param order any real number
 * @param x any for a whole order, at least 0 for others
 * @code
 * double j = QvSpecBesselJ(0.5, 2.0), y = QvSpecBesselY(1.0, 2.0);
 * @endcode
 */
QV_API double ZemFunc302(double order, double x);
#define QvSpecBesselJ ZemFunc302

/**
 * SpecBesselY.
 * The Bessel function of the second kind Y of real order, (cos(pi v) J(v) - J(-v)) / sin(pi v), in its limit for whole v.
 * NaN for orders below -200 and for x < 0; -Inf at 0, 0 at infinity.
 * @param order at least -200; taken as whole within 1e-8 of a whole number
 * @param x at least 0
 */
QV_API double ZemFunc301(double order, double x);
#define QvSpecBesselY ZemFunc301

/**
 * SpecSphericalJ.
 * The spherical Bessel function j, sqrt(pi / (2 x)) J(n + 1/2, x); order 0 is sin(x) / x. Negative x by parity.
 * At 0: 1 for order 0, else 0. At infinity 0.
 * @param n the order
 * @param x any
 */
QV_API double ZemFunc303(uint32_t n, double x);
#define QvSpecSphericalJ ZemFunc303

/**
 * SpecSphericalY.
 * The spherical Bessel function y, sqrt(pi / (2 x)) Y(n + 1/2, x). NaN for x < 0, -Inf at 0, 0 at infinity.
 * @param n the order
 * @param x at least 0
 */
QV_API double ZemFunc304(uint32_t n, double x);
#define QvSpecSphericalY ZemFunc304

/**
 * SpecBesselI.
 * The modified Bessel function of the first kind I of real order; I(-n) = I(n) for whole orders.
 * NaN for orders below -200, and for x < 0 unless the order is whole. At 0: 1 for order 0, else 0, also for orders below 0.
 * @param order at least -200
 * @param x any for a whole order, at least 0 for others
 */
QV_API double ZemFunc305(double order, double x);
#define QvSpecBesselI ZemFunc305

/**
 * SpecBesselK.
 * The modified Bessel function of the second kind K of whole order, by recurrence from orders 0 and 1.
 * NaN for x < 0, +Inf at 0, 0 at infinity.
 * @param n the order
 * @param x at least 0
 */
QV_API double ZemFunc306(uint32_t n, double x);
#define QvSpecBesselK ZemFunc306

/**
 * SpecStruve.
 * The Struve function H, by its power series, its expansion for large x, or the one with the smaller estimate of its error.
 * Whole orders take negative x by parity; other orders give NaN for x < 0. At 0 and at infinity the limit.
 * @param order any real number
 * @param x any for a whole order, at least 0 for others
 */
QV_API double ZemFunc328(double order, double x);
#define QvSpecStruve ZemFunc328

/**
 * SpecAiry.
 * The two Airy functions. Above 103.892 Ai is 0 and Bi +Inf; at -Inf both are 0.
 * @param x any
 * @param ai written: the Airy function Ai(x)
 * @param bi written: the Airy function Bi(x)
 */
QV_API void ZemFunc330(double x, double* ai, double* bi);
#define QvSpecAiry ZemFunc330

/**
 * SpecKelvinBe.
 * The Kelvin functions ber and bei of order n: ber + i bei = J(n, x e^(3 pi i / 4)).
 * At 0: ber is 1 for n = 0, else 0, and bei 0. NaN at infinity, where they oscillate and grow.
 * @param x any; negative by parity
 * @param n the order
 * @param out written: real part ber, imaginary part bei
 */
QV_API void ZemFunc333(double x, uint32_t n, QvComplex* out);
#define QvSpecKelvinBe ZemFunc333

/**
 * SpecKelvinKe.
 * The Kelvin functions ker and kei of order n: ker + i kei = e^(-n pi i / 2) K(n, x e^(pi i / 4)).
 * At 0: ker is +Inf, and kei has its limit, -pi/4 for n = 0. NaN for x < 0; both are 0 at infinity.
 * @param x at least 0
 * @param n the order
 * @param out written: real part ker, imaginary part kei
 */
QV_API void ZemFunc334(double x, uint32_t n, QvComplex* out);
#define QvSpecKelvinKe ZemFunc334

/** @} */

/** @defgroup complex Complex arithmetic
 * Complex numbers as pairs of doubles, real part first: arguments by value, results by address. Complex arrays are
 * split: one array of real parts, one of imaginary parts.
 *
 *     (a + bi)(c + di) = (a c - b d) + (b c + a d) i
 *     magnitude = sqrt(re^2 + im^2),  phase = atan2(im, re) in radians, in [-pi, pi]
 *     sqrt, log and powers are those of the principal branch, cut along the negative real axis
 *
 * A scalar function writes both parts of its result, or neither on an error. Each operation has its own convention
 * for zero arguments. Squared magnitudes are formed as they stand, and overflow to infinity.
 *
 * An output array may be any of the input arrays, also crosswise: every element is read whole before it is written.
 * @{
 */

/**
 * CxAdd.
 * Adds two complex numbers: (a + c, b + d).
 * @param a the real part of the first operand
 * @param b its imaginary part
 * @param c the real part of the second operand
 * @param d its imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 */
QV_API QvStatus ZemFunc38(double a, double b, double c, double d, double* re, double* im);
#define QvCxAdd ZemFunc38

/**
 * CxSubtract.
 * Subtracts two complex numbers: (a - c, b - d).
 * @param a the real part of the first operand
 * @param b its imaginary part
 * @param c the real part of the second operand
 * @param d its imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 */
QV_API QvStatus ZemFunc51(double a, double b, double c, double d, double* re, double* im);
#define QvCxSubtract ZemFunc51

/**
 * CxMultiply.
 * Multiplies two complex numbers: (a*c - b*d, b*c + a*d).
 * @param a the real part of the first operand
 * @param b its imaginary part
 * @param c the real part of the second operand
 * @param d its imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 * @code
 * QvCxMultiply(0, 1, 0, 1, &re, &im);
 * @endcode
 */
QV_API QvStatus ZemFunc46(double a, double b, double c, double d, double* re, double* im);
#define QvCxMultiply ZemFunc46

/**
 * CxDivide.
 * Divides two complex numbers after R. L. Smith (Comm. ACM 5, 1962).
 * If |c| >= |d|: r = d/c, den = r*d + c, re = (r*b + a)/den, im = (b - r*a)/den; otherwise r = c/d, den = r*c + d, re = (r*a + b)/den, im = (r*b - a)/den.
 * A divisor of zero gives NaN in both parts and status 0, unlike CxReciprocal.
 * @param a the real part of the first operand
 * @param b its imaginary part
 * @param c the real part of the second operand
 * @param d its imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 */
QV_API QvStatus ZemFunc40(double a, double b, double c, double d, double* re, double* im);
#define QvCxDivide ZemFunc40

/**
 * CxReciprocal.
 * The reciprocal of a complex number by the plain formula: with m = a*a + b*b, (a/m, -(b/m)).
 * The square can overflow or underflow where CxDivide would not.
 * @param a the real part
 * @param b the imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 * @retval -20060 both parts are zero
 */
QV_API QvStatus ZemFunc49(double a, double b, double* re, double* im);
#define QvCxReciprocal ZemFunc49

/**
 * CxSqrt.
 * The principal square root of a complex number: magnitude sqrt(sqrt(a*a + b*b)), phase atan2(b, a) / 2.
 * Where a*a + b*b is zero, both parts are 0.
 * @param a the real part
 * @param b the imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 */
QV_API QvStatus ZemFunc50(double a, double b, double* re, double* im);
#define QvCxSqrt ZemFunc50

/**
 * CxExp.
 * The exponential of a complex number: e = exp(a), (e * cos b, e * sin b).
 * Where b is 0, the imaginary part is exactly 0.
 * @param a the real part
 * @param b the imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 */
QV_API QvStatus ZemFunc42(double a, double b, double* re, double* im);
#define QvCxExp ZemFunc42

/**
 * CxLog.
 * The natural logarithm of a complex number: (ln(a*a + b*b) / 2, atan2(b, a)).
 * @param a the real part
 * @param b the imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 * @retval -20060 a*a + b*b is zero
 */
QV_API QvStatus ZemFunc44(double a, double b, double* re, double* im);
#define QvCxLog ZemFunc44

/**
 * CxLog10.
 * The decimal logarithm of a complex number: (log10(a*a + b*b) / 2, atan2(b, a) * 0.434294481903252).
 * @param a the real part
 * @param b the imaginary part
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 * @retval -20060 a*a + b*b is zero
 */
QV_API QvStatus ZemFunc45(double a, double b, double* re, double* im);
#define QvCxLog10 ZemFunc45

/**
 * CxPow.
 * Raises a complex number to a real power: with m = a*a + b*b, magnitude m^(p/2), phase p * atan2(b, a).
 * Where m is zero, any p but 0 gives 0, also a negative one.
 * @param a the real part
 * @param b the imaginary part
 * @param p the exponent
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 * @retval -20060 a*a + b*b and p are zero
 */
QV_API QvStatus ZemFunc48(double a, double b, double p, double* re, double* im);
#define QvCxPow ZemFunc48

/**
 * CxToPolar.
 * Magnitude and phase of a complex number.
 * Zero, of any sign, has magnitude 0 and phase 0.
 * @param re the real part
 * @param im the imaginary part
 * @param magnitude written: sqrt(re*re + im*im)
 * @param phase written: atan2(im, re), in radians from -pi to pi
 */
QV_API QvStatus ZemFunc172(double re, double im, double* magnitude, double* phase);
#define QvCxToPolar ZemFunc172

/**
 * CxFromPolar.
 * The complex number of a magnitude and a phase: (magnitude * cos phase, magnitude * sin phase).
 * @param magnitude the magnitude
 * @param phase the phase in radians
 * @param re written: the real part of the result
 * @param im written: the imaginary part of the result
 */
QV_API QvStatus ZemFunc174(double magnitude, double phase, double* re, double* im);
#define QvCxFromPolar ZemFunc174

/**
 * CxArrAdd.
 * Adds two complex arrays, element by element as CxAdd.
 * @param aRe read, [n]: real parts of the first operand
 * @param aIm read, [n]: its imaginary parts
 * @param bRe read, [n]: real parts of the second operand
 * @param bIm read, [n]: its imaginary parts
 * @param n the number of elements
 * @param outRe written, [n]: real parts of the result
 * @param outIm written, [n]: its imaginary parts
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc39(const double* aRe, const double* aIm, const double* bRe, const double* bIm, int64_t n, double* outRe, double* outIm);
#define QvCxArrAdd ZemFunc39

/**
 * CxArrSubtract.
 * Subtracts two complex arrays, element by element as CxSubtract.
 * @param aRe read, [n]: real parts of the first operand
 * @param aIm read, [n]: its imaginary parts
 * @param bRe read, [n]: real parts of the second operand
 * @param bIm read, [n]: its imaginary parts
 * @param n the number of elements
 * @param outRe written, [n]: real parts of the result
 * @param outIm written, [n]: its imaginary parts
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc52(const double* aRe, const double* aIm, const double* bRe, const double* bIm, int64_t n, double* outRe, double* outIm);
#define QvCxArrSubtract ZemFunc52

/**
 * CxArrMultiply.
 * Multiplies two complex arrays, element by element as CxMultiply.
 * @param aRe read, [n]: real parts of the first operand
 * @param aIm read, [n]: its imaginary parts
 * @param bRe read, [n]: real parts of the second operand
 * @param bIm read, [n]: its imaginary parts
 * @param n the number of elements
 * @param outRe written, [n]: real parts of the result
 * @param outIm written, [n]: its imaginary parts
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc47(const double* aRe, const double* aIm, const double* bRe, const double* bIm, int64_t n, double* outRe, double* outIm);
#define QvCxArrMultiply ZemFunc47

/**
 * CxArrDivide.
 * Divides two complex arrays, element by element as CxDivide.
 * Does not stop at a zero divisor: its quotient is NaN.
 * @param aRe read, [n]: real parts of the first operand
 * @param aIm read, [n]: its imaginary parts
 * @param bRe read, [n]: real parts of the second operand
 * @param bIm read, [n]: its imaginary parts
 * @param n the number of elements
 * @param outRe written, [n]: real parts of the result
 * @param outIm written, [n]: its imaginary parts
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc41(const double* aRe, const double* aIm, const double* bRe, const double* bIm, int64_t n, double* outRe, double* outIm);
#define QvCxArrDivide ZemFunc41

/**
 * CxArrToPolar.
 * Magnitudes and phases of a complex array, element by element as CxToPolar.
 * A null output stands for the input in its place, each of the two by itself.
 * @param re read and written, [n]: real parts, replaced by the magnitudes when outMagnitude is null
 * @param im read and written, [n]: imaginary parts, replaced by the phases when outPhase is null
 * @param n the number of elements
 * @param outMagnitude written, [n], may be null: magnitudes
 * @param outPhase written, [n], may be null: phases in radians from -pi to pi
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc173(double* re, double* im, int64_t n, double* outMagnitude, double* outPhase);
#define QvCxArrToPolar ZemFunc173

/**
 * CxArrFromPolar.
 * The complex array of given magnitudes and phases, element by element as CxFromPolar.
 * A null output stands for the input in its place, each of the two by itself.
 * @param magnitude read and written, [n]: magnitudes, replaced by the real parts when outRe is null
 * @param phase read and written, [n]: phases in radians, replaced by the imaginary parts when outIm is null
 * @param n the number of elements
 * @param outRe written, [n], may be null: real parts
 * @param outIm written, [n], may be null: imaginary parts
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc232(double* magnitude, double* phase, int64_t n, double* outRe, double* outIm);
#define QvCxArrFromPolar ZemFunc232

/**
 * CxArrLinearEval.
 * Evaluates a complex straight line at every element, out[i] = a * z[i] + b, by CxMultiply and then CxAdd.
 * A null output stands for the input in its place, each of the two by itself.
 * @param re read and written, [n]: real parts of z, replaced by those of the result when outRe is null
 * @param im read and written, [n]: imaginary parts of z, replaced by those of the result when outIm is null
 * @param n the number of elements
 * @param aRe the real part of the factor
 * @param aIm its imaginary part
 * @param bRe the real part of the offset
 * @param bIm its imaginary part
 * @param outRe written, [n], may be null: real parts of the result
 * @param outIm written, [n], may be null: its imaginary parts
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc43(double* re, double* im, int64_t n, double aRe, double aIm, double bRe, double bIm, double* outRe, double* outIm);
#define QvCxArrLinearEval ZemFunc43

/** @} */

/** @defgroup convolution Convolution and correlation
 * What a linear system does to a signal, how alike two signals are at every shift, and the way back from a response
 * to its cause.
 *
 *     convolution    (x * y)[l] = sum over i of x[i] y[l - i],                       l = 0 to n + m - 2
 *     correlation    r[n - 1 + l] = sum over i of conj(x[i]) y[i + l],               l = -(n - 1) to m - 1
 *     deconvolution  x * h = y solved for h
 *
 * The full result has n + m - 1 elements; lag 0 of a correlation stands at index n - 1. A positive lag means that y
 * comes later than x. Method 0 adds the products themselves, method 1 works through Fourier transforms of a fast
 * length, or of blocks of the longer sequence where that is faster; functions without a method use transforms. Outputs
 * must not overlap inputs.
 *
 * Normalisation of correlations: 0 none, 1 unbiased (each lag divided by its number of overlapping terms), 2 biased
 * (all divided by the longer length).
 * @{
 */

/**
 * ConvolveReal.
 * The linear convolution, out[l] = sum over i of x[i] y[l - i].
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param out written, [n + m - 1]: the convolution
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 * @code
 * QvConvolveReal(signal, 1000, taps, 21, filtered);
 * @endcode
 */
QV_API QvStatus ZemFunc32(const double* x, int64_t n, const double* y, int64_t m, double* out);
#define QvConvolveReal ZemFunc32

/**
 * ConvolveRealBy (ConvolveReal).
 * The linear convolution, out[l] = sum over i of x[i] y[l - i].
 * A method other than 0 and 1 does nothing and succeeds.
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param method 0: direct; 1: by transforms
 * @param out written, [n + m - 1]: the convolution
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc372(const double* x, int64_t n, const double* y, int64_t m, int32_t method, double* out);
#define QvConvolveRealBy ZemFunc372

/**
 * ConvolveComplex.
 * The linear convolution, out[l] = sum over i of x[i] y[l - i].
 * Nothing is conjugated.
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param method 0: direct; 1: by transforms
 * @param out written, [n + m - 1]: the convolution
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20061 the method is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc391(const QvComplex* x, int64_t n, const QvComplex* y, int64_t m, uint32_t method, QvComplex* out);
#define QvConvolveComplex ZemFunc391

/**
 * CorrelateReal.
 * The cross-correlation, out[n - 1 + l] = sum over i of x[i] y[i + l].
 * If x and y are one pointer, it is the autocorrelation of the n elements, 2 n - 1 of them, whatever m.
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param out written, [n + m - 1]: the correlation
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc33(const double* x, int64_t n, const double* y, int64_t m, double* out);
#define QvCorrelateReal ZemFunc33

/**
 * CorrelateRealBy (CorrelateReal).
 * The cross-correlation, out[n - 1 + l] = sum over i of x[i] y[i + l].
 * A method other than 0 and 1 does nothing and succeeds.
 * With method 1, if x and y are one pointer, it is the autocorrelation of the n elements, 2 n - 1 of them, whatever m.
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param method 0: direct; 1: by transforms
 * @param out written, [n + m - 1]: the correlation
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc373(const double* x, int64_t n, const double* y, int64_t m, int32_t method, double* out);
#define QvCorrelateRealBy ZemFunc373

/**
 * CorrelateRealNormalised (CorrelateReal).
 * The cross-correlation, out[n - 1 + l] = sum over i of x[i] y[i + l].
 * A method other than 0 and 1 correlates nothing, and what stands in out is normalised; this also follows a failure.
 * With method 1, if x and y are one pointer, it is the autocorrelation of the n elements, 2 n - 1 of them, whatever m.
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param method 0: direct; 1: by transforms
 * @param normalisation 0 none, 1 unbiased, 2 biased
 * @param out read and written, [n + m - 1]: the correlation
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 * @retval -20061 the normalisation is above 2; the raw result is written
 */
QV_API QvStatus ZemFunc376(const double* x, int64_t n, const double* y, int64_t m, int32_t method, uint32_t normalisation, double* out);
#define QvCorrelateRealNormalised ZemFunc376

/**
 * AutoCorrelateReal (CorrelateReal).
 * The autocorrelation, out[n - 1 + l] = sum over i of x[i] x[i + l].
 * @param x read, [n]: the sequence
 * @param n its length
 * @param normalisation 0 none, 1 unbiased, 2 biased
 * @param out written, [2 * n - 1]: the autocorrelation
 * @retval -20003 n is below 1
 * @retval -20046 2n - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 * @retval -20061 the normalisation is unknown; the raw result is written
 */
QV_API QvStatus ZemFunc424(const double* x, int64_t n, int32_t normalisation, double* out);
#define QvAutoCorrelateReal ZemFunc424

/**
 * CorrelateComplex.
 * The cross-correlation, out[n - 1 + l] = sum over i of conj(x[i]) y[i + l].
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param method 0: direct; 1: by transforms
 * @param out written, [n + m - 1]: the correlation
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20061 the method is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc421(const QvComplex* x, int64_t n, const QvComplex* y, int64_t m, uint32_t method, QvComplex* out);
#define QvCorrelateComplex ZemFunc421

/**
 * CorrelateComplexNormalised (CorrelateComplex).
 * The cross-correlation, out[n - 1 + l] = sum over i of conj(x[i]) y[i + l].
 * @param x read, [n]: the first sequence
 * @param n its length
 * @param y read, [m]: the second sequence
 * @param m its length
 * @param method 0: direct; 1: by transforms
 * @param normalisation 0 none, 1 unbiased, 2 biased
 * @param out written, [n + m - 1]: the correlation
 * @retval -20003 n or m is below 1
 * @retval -20046 n + m - 1 exceeds 2^31 - 1
 * @retval -20061 the method is above 1; or the normalisation is above 2, and the raw result is written
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc490(const QvComplex* x, int64_t n, const QvComplex* y, int64_t m, uint32_t method, uint32_t normalisation, QvComplex* out);
#define QvCorrelateComplexNormalised ZemFunc490

/**
 * AutoCorrelateComplex.
 * The autocorrelation, out[n - 1 + l] = sum over i of conj(x[i]) x[i + l].
 * @param x read, [n]: the sequence
 * @param n its length
 * @param normalisation 0 none, 1 unbiased, 2 biased
 * @param out written, [2 * n - 1]: the autocorrelation
 * @retval -20003 n is below 1
 * @retval -20046 2n - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 * @retval -20061 the normalisation is unknown; the raw result is written
 */
QV_API QvStatus ZemFunc425(const QvComplex* x, int64_t n, int32_t normalisation, QvComplex* out);
#define QvAutoCorrelateComplex ZemFunc425

/**
 * Deconvolve.
 * Finds the sequence whose convolution with x is y, by dividing spectra; by long division where the spectrum of x comes too near to zero.
 * @param y read, [n]: the product of the convolution
 * @param n its length
 * @param x read, [m]: the known factor
 * @param m its length
 * @param out written, [n - m + 1]: the other factor
 * @retval -20003 n or m is below 1
 * @retval -20008 m is above n
 * @retval -20046 n exceeds 2^30
 * @retval -20060 all elements of x are 0; nothing is written
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc54(const double* y, int64_t n, const double* x, int64_t m, double* out);
#define QvDeconvolve ZemFunc54

/**
 * Convolve2DReal.
 * The linear convolution of two arrays, out(r, c) = sum over i, j of x(i, j) y(r - i, c - j).
 * Shape 2 has (rows1 - rows2 + 1) x (cols1 - cols2 + 1) elements.
 * Checked in the order of the statuses.
 * @param x read, [rows1 * cols1]: the first array, row-major
 * @param rows1 its rows
 * @param cols1 its columns
 * @param y read, [rows2 * cols2]: the second array, row-major
 * @param rows2 its rows
 * @param cols2 its columns
 * @param shape 0: all; 1: rows1 x cols1, from row rows2 / 2 and column cols2 / 2; 2: what no padding has touched
 * @param method 0: direct; 1: by transforms
 * @param out written, [(rows1 + rows2 - 1) * (cols1 + cols2 - 1)]: the convolution, row-major, as much of it as the shape has
 * @retval -20003 a size is below 1
 * @retval -20061 the shape is above 2, or the method above 1
 * @retval -20008 shape 2, and y has more rows or columns than x
 * @retval -20046 the full result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc392(const double* x, int64_t rows1, int64_t cols1, const double* y, int64_t rows2, int64_t cols2, uint32_t shape, uint32_t method, double* out);
#define QvConvolve2DReal ZemFunc392

/**
 * Convolve2DComplex.
 * The linear convolution of two arrays, out(r, c) = sum over i, j of x(i, j) y(r - i, c - j).
 * Shape 2 has (rows1 - rows2 + 1) x (cols1 - cols2 + 1) elements.
 * Checked in the order of the statuses.
 * @param x read, [rows1 * cols1]: the first array, row-major
 * @param rows1 its rows
 * @param cols1 its columns
 * @param y read, [rows2 * cols2]: the second array, row-major
 * @param rows2 its rows
 * @param cols2 its columns
 * @param shape 0: all; 1: rows1 x cols1, from row rows2 / 2 and column cols2 / 2; 2: what no padding has touched
 * @param method 0: direct; 1: by transforms
 * @param out written, [(rows1 + rows2 - 1) * (cols1 + cols2 - 1)]: the convolution, row-major, as much of it as the shape has
 * @retval -20003 a size is below 1
 * @retval -20061 the shape is above 2, or the method above 1
 * @retval -20008 shape 2, and y has more rows or columns than x
 * @retval -20046 the full result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc393(const QvComplex* x, int64_t rows1, int64_t cols1, const QvComplex* y, int64_t rows2, int64_t cols2, uint32_t shape, uint32_t method, QvComplex* out);
#define QvConvolve2DComplex ZemFunc393

/**
 * Correlate2DReal.
 * The cross-correlation of two arrays, sum over i, j of x(i, j) y(i + r, j + c), with lag (0, 0) at row rows1 - 1 and column cols1 - 1.
 * @param x read, [rows1 * cols1]: the first array, row-major
 * @param rows1 its rows
 * @param cols1 its columns
 * @param y read, [rows2 * cols2]: the second array, row-major
 * @param rows2 its rows
 * @param cols2 its columns
 * @param method 0: direct; 1: by transforms
 * @param out written, [(rows1 + rows2 - 1) * (cols1 + cols2 - 1)]: the correlation, row-major
 * @retval -20003 a size is below 1
 * @retval -20061 the method is above 1
 * @retval -20046 the full result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc422(const double* x, int64_t rows1, int64_t cols1, const double* y, int64_t rows2, int64_t cols2, uint32_t method, double* out);
#define QvCorrelate2DReal ZemFunc422

/**
 * Correlate2DComplex.
 * The cross-correlation of two arrays, sum over i, j of conj(x(i, j)) y(i + r, j + c), with lag (0, 0) at row rows1 - 1 and column cols1 - 1.
 * @param x read, [rows1 * cols1]: the first array, row-major
 * @param rows1 its rows
 * @param cols1 its columns
 * @param y read, [rows2 * cols2]: the second array, row-major
 * @param rows2 its rows
 * @param cols2 its columns
 * @param method 0: direct; 1: by transforms
 * @param out written, [(rows1 + rows2 - 1) * (cols1 + cols2 - 1)]: the correlation, row-major
 * @retval -20003 a size is below 1
 * @retval -20061 the method is above 1
 * @retval -20046 the full result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc423(const QvComplex* x, int64_t rows1, int64_t cols1, const QvComplex* y, int64_t rows2, int64_t cols2, uint32_t method, QvComplex* out);
#define QvCorrelate2DComplex ZemFunc423

/**
 * AutoCorrelate2DReal (Correlate2DReal).
 * The autocorrelation of an array, sum over i, j of x(i, j) x(i + r, j + c), with lag (0, 0) in the middle.
 * @param x read, [rows * cols]: the array, row-major
 * @param rows its rows
 * @param cols its columns
 * @param out written, [(2 * rows - 1) * (2 * cols - 1)]: the autocorrelation, row-major
 * @retval -20003 rows or cols is below 1
 * @retval -20046 the full result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc426(const double* x, int64_t rows, int64_t cols, double* out);
#define QvAutoCorrelate2DReal ZemFunc426

/**
 * AutoCorrelate2DComplex (Correlate2DComplex).
 * The autocorrelation of an array, sum over i, j of conj(x(i, j)) x(i + r, j + c), with lag (0, 0) in the middle.
 * @param x read, [rows * cols]: the array, row-major
 * @param rows its rows
 * @param cols its columns
 * @param out written, [(2 * rows - 1) * (2 * cols - 1)]: the autocorrelation, row-major
 * @retval -20003 rows or cols is below 1
 * @retval -20046 the full result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc427(const QvComplex* x, int64_t rows, int64_t cols, QvComplex* out);
#define QvAutoCorrelate2DComplex ZemFunc427

/** @} */

/** @defgroup decompositions Matrix decompositions
 * A matrix as a product of simpler ones: for solving, for rank and condition, as the first step towards
 * eigenvalues.
 *
 *     singular values  A = U diag(s) V^H     s descending, at least 0; one vector a column of U and of V
 *     LU               P A = L U             L unit lower, U upper triangular, rows exchanged
 *     Cholesky         A = R^H R             R upper triangular with a positive diagonal
 *     QR               A = Q R, A P = Q R    Q^H Q = 1, R upper triangular, columns exchanged by P
 *     Hessenberg       A = Q H Q^H           H zero below its first subdiagonal
 *     balancing        B = D^-1 P^-1 A P D   P a permutation, D diagonal with powers of two
 *
 * Real and complex matrices; ^H is the transpose of real ones, the conjugate transpose of complex ones. V itself is
 * returned, not its transpose. A matrix is a pointer and its sizes, row-major without gaps. Inputs are copied
 * before they are worked on: an output may be the input itself. On an error the outputs stay as they are.
 * @{
 */

/**
 * MatSingularValues.
 * The singular values of a matrix.
 * By divide and conquer (Gu and Eisenstat, 1995).
 * An output may be the input itself.
 * @param a read, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param s written, [min(m, n)]: the singular values, descending
 * @retval -20003 m or n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 the matrix has an element that is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc195(const double* a, int64_t m, int64_t n, double* s);
#define QvMatSingularValues ZemFunc195

/**
 * MatSingularValuesComplex (MatSingularValues).
 * The singular values of a matrix.
 * By divide and conquer (Gu and Eisenstat, 1995).
 * An output may be the input itself.
 * @param a read, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param s written, [min(m, n)]: the singular values, descending, as pairs with zero imaginary parts
 * @retval -20003 m or n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 the matrix has an element that is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc216(const QvComplex* a, int64_t m, int64_t n, QvComplex* s);
#define QvMatSingularValuesComplex ZemFunc216

/**
 * MatSvd.
 * The singular value decomposition A = U diag(s) V^T in economy form.
 * By divide and conquer (Gu and Eisenstat, 1995).
 * An output may be the input itself.
 * @param a read, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param u written, [m * min(m, n)]: U, row-major, one left singular vector a column
 * @param s written, [min(m, n)]: the singular values, descending
 * @param v written, [n * min(m, n)]: V, row-major, one right singular vector a column
 * @retval -20003 m or n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 the matrix has an element that is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @code
 * double a[6] = {1, 2, 3, 4, 5, 6}, u[6], s[2], v[4];
 * QvMatSvd(a, 3, 2, u, s, v);
 * @endcode
 */
QV_API QvStatus ZemFunc193(const double* a, int64_t m, int64_t n, double* u, double* s, double* v);
#define QvMatSvd ZemFunc193

/**
 * MatSvdComplex (MatSvd).
 * The singular value decomposition A = U diag(s) V^H in economy form.
 * By divide and conquer (Gu and Eisenstat, 1995).
 * An output may be the input itself.
 * @param a read, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param u written, [m * min(m, n)]: U, row-major, one left singular vector a column
 * @param s written, [min(m, n)]: the singular values, descending, as pairs with zero imaginary parts
 * @param v written, [n * min(m, n)]: V, row-major, one right singular vector a column
 * @retval -20003 m or n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 the matrix has an element that is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc219(const QvComplex* a, int64_t m, int64_t n, QvComplex* u, QvComplex* s, QvComplex* v);
#define QvMatSvdComplex ZemFunc219

/**
 * MatSvdMode.
 * The singular value decomposition A = U diag(s) V^T.
 * With U or V null only the singular values are computed, whatever the mode.
 * By divide and conquer (Gu and Eisenstat, 1995).
 * An output may be the input itself.
 * @param a read, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param mode 0: full, U m by m and V n by n; 1: economy
 * @param u written, [m * (m if mode == 0 else min(m, n))], may be null: U, row-major, one left singular vector a column
 * @param s written, [min(m, n)]: the singular values, descending
 * @param v written, [n * (n if mode == 0 else min(m, n))], may be null: V, row-major, one right singular vector a column
 * @retval -20003 m or n is below 1
 * @retval -20061 the mode is neither 0 nor 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 the matrix has an element that is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc246(const double* a, int64_t m, int64_t n, int32_t mode, double* u, double* s, double* v);
#define QvMatSvdMode ZemFunc246

/**
 * MatSvdModeComplex (MatSvdMode).
 * The singular value decomposition A = U diag(s) V^H.
 * With U or V null only the singular values are computed, whatever the mode.
 * By divide and conquer (Gu and Eisenstat, 1995).
 * An output may be the input itself.
 * @param a read, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param mode 0: full, U m by m and V n by n; 1: economy
 * @param u written, [m * (m if mode == 0 else min(m, n))], may be null: U, row-major, one left singular vector a column
 * @param s written, [min(m, n)]: the singular values, descending, as pairs with zero imaginary parts
 * @param v written, [n * (n if mode == 0 else min(m, n))], may be null: V, row-major, one right singular vector a column
 * @retval -20003 m or n is below 1
 * @retval -20061 the mode is neither 0 nor 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 the matrix has an element that is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc247(const QvComplex* a, int64_t m, int64_t n, int32_t mode, QvComplex* u, QvComplex* s, QvComplex* v);
#define QvMatSvdModeComplex ZemFunc247

/**
 * MatLu.
 * The factors P A = L U with partial pivoting.
 * @param a read and written, [n * n]: the matrix, row-major; becomes its factors: U on and above the diagonal, below it L without its unit diagonal
 * @param n its rows and columns
 * @param pivots written, [n], may be null: row i was interchanged with row pivots[i], for i = 0, 1, ...; from 0
 * @param parity written: 1 where the number of interchanges is odd, otherwise 0
 * @retval 20003 the matrix is singular: U has a zero on its diagonal; the factors are valid
 * @retval -20003 n is below 1; parity stays as it is
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308; nothing is written
 * @retval -20001 memory is exhausted; a stays as it is
 */
QV_API QvStatus ZemFunc118(double* a, int64_t n, int64_t* pivots, uint32_t* parity);
#define QvMatLu ZemFunc118

/**
 * MatLuComplex (MatLu).
 * The factors P A = L U with partial pivoting.
 * @param a read and written, [n * n]: the matrix, row-major; becomes its factors: U on and above the diagonal, below it L without its unit diagonal
 * @param n its rows and columns
 * @param pivots written, [n], may be null: row i was interchanged with row pivots[i], for i = 0, 1, ...; from 0
 * @param parity written: 1 where the number of interchanges is odd, otherwise 0
 * @retval 20003 the matrix is singular: U has a zero on its diagonal; the factors are valid
 * @retval -20003 n is below 1; parity stays as it is
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308; nothing is written
 * @retval -20001 memory is exhausted; a stays as it is
 */
QV_API QvStatus ZemFunc213(QvComplex* a, int64_t n, int64_t* pivots, uint32_t* parity);
#define QvMatLuComplex ZemFunc213

/**
 * MatCholesky.
 * The Cholesky factor, A = R^T R with R upper triangular and a positive diagonal.
 * @param a read and written, [n * n]: the matrix, row-major; only its upper triangle is factored, but all of it must be finite
 * @param n its rows and columns
 * @param out written, [n * n], may be null: R, row-major, zero below its diagonal; null: over a
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20071 the matrix is not positive definite; nothing is written
 */
QV_API QvStatus ZemFunc196(double* a, int64_t n, double* out);
#define QvMatCholesky ZemFunc196

/**
 * MatCholeskyComplex (MatCholesky).
 * The Cholesky factor, A = R^H R with R upper triangular and a positive diagonal.
 * @param a read and written, [n * n]: the matrix, row-major; only its upper triangle is factored, but all of it must be finite
 * @param n its rows and columns
 * @param out written, [n * n], may be null: R, row-major, zero below its diagonal; null: over a
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20071 the matrix is not positive definite; nothing is written
 */
QV_API QvStatus ZemFunc210(QvComplex* a, int64_t n, QvComplex* out);
#define QvMatCholeskyComplex ZemFunc210

/**
 * MatQrMethod.
 * The full decomposition A = Q R with an orthogonal Q.
 * Method 0 clears R below its diagonal; methods 1 and 2 leave what rounding leaves there, of the order of the double epsilon.
 * The methods may differ in the signs of rows of R and columns of Q; method 1 and 2 pass over a column of zeros and are then in echelon form.
 * Fast Givens rotations after Gentleman (1973); Golub and Van Loan, Matrix Computations.
 * @param a read and written, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param method 0: Householder reflections; 1: Givens rotations; 2: fast Givens rotations
 * @param q written, [m * m], may be null: Q, row-major; null: not formed
 * @param r written, [m * n], may be null: R, row-major; null: over a
 * @retval -20003 m or n is below 1
 * @retval -20061 the method is above 2
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc192(double* a, int64_t m, int64_t n, uint32_t method, double* q, double* r);
#define QvMatQrMethod ZemFunc192

/**
 * MatQrPivot.
 * The decomposition A P = Q R with column pivoting (Businger and Golub, 1965): the diagonal of R falls in magnitude.
 * @param a read and written, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param pivotMode 0: the columns as they stand; 1: by the largest remaining column, p a vector; 2: the same, p a matrix
 * @param economy 0: Q is m by m; otherwise Q has min(m, n) columns
 * @param p written, [n * n if pivotMode == 2 else n], may be null: the index, from 0, of the column of A that comes j-th; in mode 2 the matrix with p(index, j) = 1
 * @param q written, [m * (min(m, n) if economy else m)], may be null: Q, row-major; null: not formed
 * @param r written, [(min(m, n) if economy else m) * n], may be null: R, row-major, zero below its diagonal; null: over a
 * @retval -20003 m or n is below 1
 * @retval -20061 the pivot mode is above 2
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc243(double* a, int64_t m, int64_t n, uint32_t pivotMode, uint32_t economy, int64_t* p, double* q, double* r);
#define QvMatQrPivot ZemFunc243

/**
 * MatQrPivotComplex (MatQrPivot).
 * The decomposition A P = Q R with column pivoting (Businger and Golub, 1965): the diagonal of R falls in magnitude.
 * @param a read and written, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param pivotMode 0: the columns as they stand; 1: by the largest remaining column, p a vector; 2: the same, p a matrix
 * @param economy 0: Q is m by m; otherwise Q has min(m, n) columns
 * @param p written, [n * n if pivotMode == 2 else n], may be null: the index, from 0, of the column of A that comes j-th; in mode 2 the matrix with p(index, j) = 1
 * @param q written, [m * (min(m, n) if economy else m)], may be null: Q, row-major; null: not formed
 * @param r written, [(min(m, n) if economy else m) * n], may be null: R, row-major, zero below its diagonal; null: over a
 * @retval -20003 m or n is below 1
 * @retval -20061 the pivot mode is above 2
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc245(QvComplex* a, int64_t m, int64_t n, uint32_t pivotMode, uint32_t economy, int64_t* p, QvComplex* q, QvComplex* r);
#define QvMatQrPivotComplex ZemFunc245

/**
 * MatQrComplex.
 * The full decomposition A = Q R with a unitary Q.
 * @param a read and written, [m * n]: the matrix, row-major
 * @param m its rows
 * @param n its columns
 * @param q written, [m * m], may be null: Q, row-major; null: not formed
 * @param r written, [m * n], may be null: R, row-major, zero below its diagonal; null: over a
 * @retval -20003 m or n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc228(QvComplex* a, int64_t m, int64_t n, QvComplex* q, QvComplex* r);
#define QvMatQrComplex ZemFunc228

/**
 * MatHessenberg.
 * The Hessenberg form, A = Q H Q^T, by Householder reflections.
 * @param a read and written, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param h written, [n * n], may be null: H, row-major, zero below its first subdiagonal; null: over a
 * @param q written, [n * n]: Q, row-major
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc254(double* a, int64_t n, double* h, double* q);
#define QvMatHessenberg ZemFunc254

/**
 * MatHessenbergComplex (MatHessenberg).
 * The Hessenberg form, A = Q H Q^H, by Householder reflections.
 * @param a read and written, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param h written, [n * n], may be null: H, row-major, zero below its first subdiagonal; null: over a
 * @param q written, [n * n]: Q, row-major
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc255(QvComplex* a, int64_t n, QvComplex* h, QvComplex* q);
#define QvMatHessenbergComplex ZemFunc255

/**
 * MatBalance.
 * Permutes and scales a matrix by a similarity that brings rows and columns to like norms (Parlett and Reinsch, 1969).
 * The factors are powers of two, so that scaling rounds nothing.
 * @param a read and written, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param job 0: none; 1: permutation; 2: scaling; 3: both
 * @param low written: the first row, from 0, of the part that is not triangular
 * @param high written: its last row
 * @param scale written, [n]: from low to high the factors of rows and columns; elsewhere the number, from 1, of the row that was interchanged
 * @param balanced written, [n * n], may be null: the balanced matrix, row-major; null: over a
 * @retval -20003 n is below 1
 * @retval -20061 the job is above 3
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc248(double* a, int64_t n, uint32_t job, int64_t* low, int64_t* high, double* scale, double* balanced);
#define QvMatBalance ZemFunc248

/**
 * MatBalanceComplex (MatBalance).
 * Permutes and scales a matrix by a similarity that brings rows and columns to like norms (Parlett and Reinsch, 1969).
 * The factors are powers of two, so that scaling rounds nothing.
 * @param a read and written, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param job 0: none; 1: permutation; 2: scaling; 3: both
 * @param low written: the first row, from 0, of the part that is not triangular
 * @param high written: its last row
 * @param scale written, [n]: from low to high the factors of rows and columns; elsewhere the number, from 1, of the row that was interchanged
 * @param balanced written, [n * n], may be null: the balanced matrix, row-major; null: over a
 * @retval -20003 n is below 1
 * @retval -20061 the job is above 3
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc249(QvComplex* a, int64_t n, uint32_t job, int64_t* low, int64_t* high, double* scale, QvComplex* balanced);
#define QvMatBalanceComplex ZemFunc249

/**
 * MatBalanceBack.
 * Transforms the eigenvectors of a balanced matrix to those of the matrix that was balanced.
 * @param v read and written, [n * n]: the eigenvectors of the balanced matrix, row-major, one a column
 * @param n rows and columns
 * @param job as it was balanced
 * @param side 0: right eigenvectors; 1: left ones
 * @param low as balancing gave it
 * @param high as balancing gave it
 * @param scale read, [n]: as balancing gave it
 * @param out written, [n * n], may be null: the eigenvectors of the matrix itself; null: over v
 * @retval -20003 n is below 1
 * @retval -20061 the job is above 3 or the side above 1
 * @retval -20046 the matrix has more than 2^31 - 1 elements
 * @retval -20017 not 0 <= low <= high < n, or scale names a row outside the matrix
 * @retval -20001 memory is exhausted
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc250(double* v, int64_t n, uint32_t job, uint32_t side, int64_t low, int64_t high, const double* scale, double* out);
#define QvMatBalanceBack ZemFunc250

/**
 * MatBalanceBackComplex (MatBalanceBack).
 * Transforms the eigenvectors of a balanced matrix to those of the matrix that was balanced.
 * @param v read and written, [n * n]: the eigenvectors of the balanced matrix, row-major, one a column
 * @param n rows and columns
 * @param job as it was balanced
 * @param side 0: right eigenvectors; 1: left ones
 * @param low as balancing gave it
 * @param high as balancing gave it
 * @param scale read, [n]: as balancing gave it
 * @param out written, [n * n], may be null: the eigenvectors of the matrix itself; null: over v
 * @retval -20003 n is below 1
 * @retval -20061 the job is above 3 or the side above 1
 * @retval -20046 the matrix has more than 2^31 - 1 elements
 * @retval -20017 not 0 <= low <= high < n, or scale names a row outside the matrix
 * @retval -20001 memory is exhausted
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc251(QvComplex* v, int64_t n, uint32_t job, uint32_t side, int64_t low, int64_t high, const double* scale, QvComplex* out);
#define QvMatBalanceBackComplex ZemFunc251

/** @} */

/** @defgroup direct_filters Direct-form and smoothing filters
 * Filters that take plain coefficient arrays: difference equations, smoothing by local polynomials, running
 * medians.
 *
 *     a[0] y[t] = b[0] x[t] + b[1] x[t - 1] + ... - a[1] y[t - 1] - a[2] y[t - 2] - ...
 *     H(z) = (b[0] + b[1] z^-1 + ...) / (a[0] + a[1] z^-1 + ...)
 *
 * Coefficients stand in ascending delay, those of the feedback with the sign of the denominator; a[0] is a true
 * divisor and need not be 1. The caller holds the state: the last nb - 1 inputs and the last na - 1 outputs, the
 * oldest first. Zeros start from rest; handing the same arrays back continues a stream, and a stream may be cut
 * anywhere.
 *
 *     Savitzky-Golay  y[t] = p(0), p the polynomial of least squares through x[t - side] ... x[t + side]
 *     median          y[t] = median of x[t - leftRank] ... x[t + rightRank]
 *
 * Savitzky-Golay filters and symmetric medians do not delay the signal.
 * @{
 */

/**
 * FilterFir.
 * Filters without feedback, y[t] = b[0] x[t] + b[1] x[t - 1] + ...
 * Each sum is added in this order, so that blocks give the bits of the whole.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param b read, [nb]: the numerator
 * @param inputState read and written, [nb - 1]: the last inputs, the oldest first
 * @param nb the length of b
 * @param y written, [n]: the output; may be x
 * @retval -20003 n or nb is below 1
 * @code
 * double state[2] = {0, 0}, b[3] = {0.25, 0.5, 0.25};
 * QvFilterFir(x, 1000, b, state, 3, y);
 * @endcode
 */
QV_API QvStatus ZemFunc352(const double* x, int64_t n, const double* b, double* inputState, int32_t nb, double* y);
#define QvFilterFir ZemFunc352

/**
 * FilterDirect.
 * Filters with feedback, a[0] y[t] = b[0] x[t] + b[1] x[t - 1] + ... - a[1] y[t - 1] - ...
 * Outputs of magnitude 2.2250738585072014e-308 and below become 0; without feedback they stay.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param a read, [na], may be null: the denominator; null: no feedback
 * @param outputState read and written, [na - 1], may be null: the last outputs, the oldest first; null: no feedback
 * @param na the length of a; below 1: no feedback
 * @param b read, [nb]: the numerator
 * @param inputState read and written, [nb - 1]: the last inputs, the oldest first
 * @param nb the length of b
 * @param y written, [n]: the output; may be x
 * @retval -20003 n or nb is below 1
 */
QV_API QvStatus ZemFunc92(const double* x, int64_t n, const double* a, double* outputState, int32_t na, const double* b, double* inputState, int32_t nb, double* y);
#define QvFilterDirect ZemFunc92

/**
 * FilterFirComplex.
 * Filters complex samples with real coefficients and without feedback.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param b read, [nb]: the numerator
 * @param inputState read and written, [nb - 1]: the last inputs, the oldest first
 * @param nb the length of b
 * @param y written, [n]: the output; may be x
 * @retval -20003 n or nb is below 1
 */
QV_API QvStatus ZemFunc353(const QvComplex* x, int64_t n, const double* b, QvComplex* inputState, int32_t nb, QvComplex* y);
#define QvFilterFirComplex ZemFunc353

/**
 * FilterDirectComplex.
 * Filters complex samples with real coefficients and feedback; the parts are separate streams.
 * A part of magnitude 2.2250738585072014e-308 and below becomes 0; without feedback it stays.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param a read, [na], may be null: the denominator; null: no feedback
 * @param outputState read and written, [na - 1], may be null: the last outputs, the oldest first; null: no feedback
 * @param na the length of a; below 1: no feedback
 * @param b read, [nb]: the numerator
 * @param inputState read and written, [nb - 1]: the last inputs, the oldest first
 * @param nb the length of b
 * @param y written, [n]: the output; may be x
 * @retval -20003 n or nb is below 1
 */
QV_API QvStatus ZemFunc354(const QvComplex* x, int64_t n, const double* a, QvComplex* outputState, int32_t na, const double* b, QvComplex* inputState, int32_t nb, QvComplex* y);
#define QvFilterDirectComplex ZemFunc354

/**
 * FilterZeroPhase.
 * Filters forwards and backwards: no phase, and the square of the amplitude response.
 * The signal stands between max(na, nb) zeros on both sides, and both passes start from rest.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param a read, [na]: the denominator
 * @param na the length of a
 * @param b read, [nb]: the numerator
 * @param nb the length of b
 * @param y written, [n]: the output; may be x
 * @retval -20003 n, na or nb is below 1
 * @retval -20046 the padded signal exceeds 2^31 - 1 samples
 * @retval -20001 memory is exhausted
 * @code
 * QvFilterZeroPhase(ecg, 1000, a, 3, b, 3, smooth);
 * @endcode
 */
QV_API QvStatus ZemFunc385(const double* x, int64_t n, const double* a, int32_t na, const double* b, int32_t nb, double* y);
#define QvFilterZeroPhase ZemFunc385

/**
 * SavitzkyGolayDesign.
 * The least-squares polynomial filters of a frame.
 * The polynomial's argument counts samples from the middle: k! times row k of derivatives is the k-th derivative there
 * for a sampling interval of 1. A. Savitzky and M. J. E. Golay, Anal. Chem. 36 (1964). On an error nothing is written.
 * @param order the order of the polynomials
 * @param side the samples on each side of the middle: frames have N = 2 side + 1
 * @param weights read, [2 * side + 1], may be null: the weights of the samples of a frame, by magnitude; null: all 1
 * @param wantDerivatives not 0: derivatives are written
 * @param smoother written, [(2 * side + 1) * (2 * side + 1)]: row i is the filter for the sample at position i of a frame
 * @param derivatives written, [(order + 1) * (2 * side + 1)], may be null: row k gives the coefficient of the k-th power
 * @retval -20063 the order is below 1
 * @retval -20037 2 side + 1 is not above the order
 * @retval -20046 2 side + 1 exceeds 2^31 - 1
 * @retval -20068 a weight is not finite, or a power of a position overflows
 * @retval -20041 the normal equations are singular, as with too few samples of any weight
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc355(int32_t order, int32_t side, const double* weights, int32_t wantDerivatives, double* smoother, double* derivatives);
#define QvSavitzkyGolayDesign ZemFunc355

/**
 * SavitzkyGolayFilter.
 * Smooths by the least-squares polynomial of each frame.
 * There is no padding: the first and the last `side` samples come from the polynomials of the first and the last frame.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param order the order of the polynomials
 * @param side the samples on each side of the middle: frames have N = 2 side + 1
 * @param weights read, [2 * side + 1], may be null: the weights of the samples of a frame, by magnitude; null: all 1
 * @param y written, [n]: the output; may be x
 * @retval -20063 the order is below 1
 * @retval -20037 2 side + 1 is not above the order
 * @retval -20008 n is below 2 side + 1
 * @retval -20068 a weight is not finite, or a power of a position overflows
 * @retval -20041 the normal equations are singular, as with too few samples of any weight
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc356(const double* x, int64_t n, int32_t order, int32_t side, const double* weights, double* y);
#define QvSavitzkyGolayFilter ZemFunc356

/**
 * SavitzkyGolayFilterComplex.
 * Smooths the two parts of complex samples, each as a real signal.
 * There is no padding: the first and the last `side` samples come from the polynomials of the first and the last frame.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param order the order of the polynomials
 * @param side the samples on each side of the middle: frames have N = 2 side + 1
 * @param weights read, [2 * side + 1], may be null: the weights of the samples of a frame, by magnitude; null: all 1
 * @param y written, [n]: the output; may be x
 * @retval -20063 the order is below 1
 * @retval -20037 2 side + 1 is not above the order
 * @retval -20008 n is below 2 side + 1
 * @retval -20068 a weight is not finite, or a power of a position overflows
 * @retval -20041 the normal equations are singular, as with too few samples of any weight
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc357(const QvComplex* x, int64_t n, int32_t order, int32_t side, const double* weights, QvComplex* y);
#define QvSavitzkyGolayFilterComplex ZemFunc357

/**
 * FilterMedian.
 * The running median, y[t] = median of x[t - leftRank .. t + rightRank].
 * Beyond both ends stand zeros. An even window gives the mean of its two middle values. NaN sorts below all numbers.
 * @param x read, [n]: the input
 * @param n the number of samples
 * @param leftRank the samples before each one in its window
 * @param rightRank the samples behind it; negative: as many as before
 * @param y written, [n]: the output; may be x
 * @retval -20003 n is below 0
 * @retval -20032 the left rank is negative
 * @retval -20008 n is above 0 and not above the right rank
 * @retval -20046 the window exceeds 2^31 - 1 samples
 * @retval -20001 memory is exhausted
 * @code
 * QvFilterMedian(x, 1000, 2, -1, y);
 * @endcode
 */
QV_API QvStatus ZemFunc407(const double* x, int64_t n, int32_t leftRank, int32_t rightRank, double* y);
#define QvFilterMedian ZemFunc407

/** @} */

/** @defgroup distributions Probability distributions
 * Probabilities and critical values of tests: the error function, and the normal, Student's t, chi-square and F
 * distributions with their inverses.
 *
 *     erf(x)        2 / sqrt(pi) integral of exp(-t^2) from 0 to x,     erfc(x) = 1 - erf(x)
 *     normal        P(x) = integral of exp(-t^2 / 2) / sqrt(2 pi) from -infinity to x
 *     Student's t   1 - I_w(k/2, 1/2) / 2 for t >= 0,                   w = k / (k + t^2)
 *     chi-square    P(k/2, x/2), the regularised incomplete gamma function
 *     F             I_w(k1/2, k2/2),                                    w = k1 x / (k2 + k1 x)
 *
 * All are lower tails, the probability of a value at or below the argument; I is the regularised incomplete beta
 * function and k counts degrees of freedom. An inverse takes a probability and gives the quantile.
 *
 * The normal pair are short closed formulas, right to 1.2e-5 and 4.5e-4. The inverses of the other distributions
 * bisect with a fixed tolerance of 1e-4 and give the lower end of the last bracket: they are made for critical
 * values, not for digits. After a status the output is as it was, except where NaN is told. A NaN probability gives
 * -20053.
 * @{
 */

/**
 * DistErf.
 * The error function, 2 / sqrt(pi) times the integral of exp(-t^2) from 0 to x. Always succeeds.
 * Method: rational approximations, Cephes Math Library, S. L. Moshier.
 * @param out written: from -1 to 1; NaN for NaN
 */
QV_API QvStatus ZemFunc70(double x, double* out);
#define QvDistErf ZemFunc70

/**
 * DistErfc.
 * The complementary error function, 1 - erf(x), without cancellation for large x. Always succeeds.
 * Below exp(-709.78), from x of 26.64 on, it is 0.
 * Method: rational approximations, Cephes Math Library, S. L. Moshier.
 * @param out written: from 2 to 0; NaN for NaN
 */
QV_API QvStatus ZemFunc71(double x, double* out);
#define QvDistErfc ZemFunc71

/**
 * DistNormalCdf.
 * The distribution function of the standard normal distribution, right to 1.2e-5. Always succeeds.
 * Method: Abramowitz and Stegun (1964), 26.2.16.
 * @param x in standard deviations from the mean
 * @param out written: the probability of a value at or below x
 * @code
 * double p;
 * QvDistNormalCdf(1.96, &p);
 * @endcode
 */
QV_API QvStatus ZemFunc134(double x, double* out);
#define QvDistNormalCdf ZemFunc134

/**
 * DistNormalInverse.
 * The quantile of the standard normal distribution, right to 4.5e-4. That of 0.5 is near 0, not exactly 0.
 * Method: Abramowitz and Stegun (1964), 26.2.23.
 * @param p a probability, 0 to 1
 * @param out written: the quantile; -Inf for 0, +Inf for 1
 * @retval -20053 p is outside [0, 1] or NaN
 */
QV_API QvStatus ZemFunc106(double p, double* out);
#define QvDistNormalInverse ZemFunc106

/**
 * DistTCdf.
 * The distribution function of Student's t distribution, from the incomplete beta function.
 * @param dof degrees of freedom
 * @param out written: the probability of a value at or below t
 * @retval -20052 dof is below 1
 * @retval -20104 t is NaN; out is NaN
 */
QV_API QvStatus ZemFunc181(double t, int32_t dof, double* out);
#define QvDistTCdf ZemFunc181

/**
 * DistTInverse.
 * The quantile of Student's t distribution, by bisection between -10000 and 10000; no other quantile lies outside.
 * @param p a probability, 0 to 1
 * @param dof degrees of freedom
 * @param out written: the quantile, within 1e-4 below it; -Inf for 0, +Inf for 1
 * @retval -20052 dof is below 1
 * @retval -20053 p is outside [0, 1] or NaN
 */
QV_API QvStatus ZemFunc107(double p, int32_t dof, double* out);
#define QvDistTInverse ZemFunc107

/**
 * DistChiSquareCdf.
 * The distribution function of the chi-square distribution, from the incomplete gamma function. It is 0 up to 0.
 * @param dof degrees of freedom; 0 is allowed and gives NaN above 0
 * @param out written: the probability of a value at or below x
 * @retval -20052 dof is below 0
 */
QV_API QvStatus ZemFunc190(double x, int32_t dof, double* out);
#define QvDistChiSquareCdf ZemFunc190

/**
 * DistChiSquareInverse.
 * The quantile of the chi-square distribution, by bisection. The upper end of the bracket grows in steps of 5000.
 * @param p a probability, 0 to 1
 * @param dof degrees of freedom
 * @param out written: the quantile, within 1e-4 below it; 0 for 0, +Inf for 1
 * @retval -20053 p is outside [0, 1] or NaN
 * @retval -20052 dof is below 1
 */
QV_API QvStatus ZemFunc108(double p, int32_t dof, double* out);
#define QvDistChiSquareInverse ZemFunc108

/**
 * DistFCdf.
 * The distribution function of the F distribution, from the incomplete beta function. It is 0 up to 0.
 * @param dof1 degrees of freedom of the numerator
 * @param dof2 degrees of freedom of the denominator
 * @param out written: the probability of a value at or below x
 * @retval -20052 dof1 or dof2 is below 1
 * @retval -20104 x is NaN; out is NaN
 */
QV_API QvStatus ZemFunc83(double x, int32_t dof1, int32_t dof2, double* out);
#define QvDistFCdf ZemFunc83

/**
 * DistFInverse.
 * The quantile of the F distribution, by bisection between 1e-6 and 10000; no other quantile lies outside.
 * @param p a probability, 0 to 1
 * @param dof1 degrees of freedom of the numerator
 * @param dof2 degrees of freedom of the denominator
 * @param out written: the quantile, within 1e-4 below it; 0 for 0, +Inf for 1
 * @retval -20052 dof1 or dof2 is below 1
 * @retval -20053 p is outside [0, 1] or NaN
 */
QV_API QvStatus ZemFunc104(double p, int32_t dof1, int32_t dof2, double* out);
#define QvDistFInverse ZemFunc104

/** @} */

/** @defgroup eigenproblems Eigenproblems
 * Modes, stability and resonances: eigenvalues and eigenvectors of one matrix and of a pair of matrices, and the
 * Schur forms behind them with the eigenvalues in a chosen order along the diagonal.
 *
 *     eigenvalues              A v = lambda v
 *     generalised              A v = lambda B v,     lambda = alpha / beta
 *     Schur form               A = Q T Q^H,          T upper triangular; real: with 2 x 2 blocks for conjugate pairs
 *     generalised Schur form   A = Q S Z^H,  B = Q T Z^H
 *
 * Matrices are row-major without gaps; eigenvectors stand one a column, normalised as LAPACK does it: to a
 * Euclidean length of 1, those of a pair of matrices to a largest |re| + |im| of 1. Inputs are copied before they
 * are worked on. On an error the outputs stay as they are.
 *
 * Orders: 0 as produced, 1 ascending and 2 descending real part, 3 ascending and 4 descending modulus. Equal ones
 * keep their places.
 * @{
 */

/**
 * MatEigenGeneral.
 * The eigenvalues of a real matrix, A x = lambda x, by the QR algorithm.
 * @param a read, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param wantVectors 0: eigenvalues alone; 1: vectors too
 * @param values written, [n]: the eigenvalues; pairs stand together, the one with the positive imaginary part first
 * @param vectors written, [n * n], may be null: the right eigenvectors, of Euclidean length 1; not used without vectors
 * @retval -20003 n is below 1
 * @retval -20061 wantVectors is above 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @retval -20999 the provider fails
 * @code
 * double a[4] = {0, 1, -1, 0};
 * QvComplex values[2], vectors[4];
 * QvMatEigenGeneral(a, 2, 1, values, vectors);
 * @endcode
 */
QV_API QvStatus ZemFunc201(const double* a, int64_t n, uint32_t wantVectors, QvComplex* values, QvComplex* vectors);
#define QvMatEigenGeneral ZemFunc201

/**
 * MatEigenSymmetric.
 * The eigenvalues of a symmetric matrix, by divide and conquer (Cuppen, 1981).
 * Symmetry is not tested: the lower triangle is not used.
 * @param a read, [n * n]: the matrix, row-major; its upper triangle counts, but all of it must be finite
 * @param n its rows and columns
 * @param wantVectors 0: eigenvalues alone; 1: vectors too
 * @param values written, [n]: the eigenvalues, ascending
 * @param vectors written, [n * n], may be null: the eigenvectors, orthonormal; not used without vectors
 * @retval -20003 n is below 1
 * @retval -20061 wantVectors is above 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc202(const double* a, int64_t n, uint32_t wantVectors, double* values, double* vectors);
#define QvMatEigenSymmetric ZemFunc202

/**
 * MatEigenComplex.
 * The eigenvalues of a complex matrix, A x = lambda x.
 * @param a read, [n * n]: the matrix, row-major; of a Hermitian one the upper triangle counts
 * @param n its rows and columns
 * @param kind 0: general; 1: Hermitian
 * @param wantVectors 0: eigenvalues alone; 1: vectors too
 * @param values written, [n]: the eigenvalues; of a Hermitian matrix ascending, with zero imaginary parts
 * @param vectors written, [n * n], may be null: the right eigenvectors, of Euclidean length 1; not used without vectors
 * @retval -20003 n is below 1
 * @retval -20061 the kind is neither 0 nor 1, or wantVectors is above 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc211(const QvComplex* a, int64_t n, int32_t kind, uint32_t wantVectors, QvComplex* values, QvComplex* vectors);
#define QvMatEigenComplex ZemFunc211

/**
 * MatSchur.
 * The Schur form, A = Q T Q^T, ordered by exchanges of neighbours (Bai and Demmel, 1993).
 * With an order, a pair whose imaginary part is rounding alone (at most n epsilon beside its real part, and epsilon beside the sum of all eigenvalues) becomes two real eigenvalues: its block is cleared beside the diagonal.
 * @param a read, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param sort the order of the eigenvalues, 0 to 4
 * @param vectors written, [n * n], may be null: Q, row-major; null: not formed
 * @param t written, [n * n]: T, row-major, triangular but for a block of two rows for each pair
 * @param values written, [n]: the eigenvalues in the order of the diagonal of T
 * @retval 20005 two eigenvalues are too close for an exchange; the form is valid, its order not complete
 * @retval -20061 the order is above 4; tested first
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc258(const double* a, int64_t n, uint32_t sort, double* vectors, double* t, QvComplex* values);
#define QvMatSchur ZemFunc258

/**
 * MatSchurComplex (MatSchur).
 * The Schur form, A = Q T Q^H, ordered by exchanges of neighbours (Bai and Demmel, 1993).
 * @param a read, [n * n]: the matrix, row-major
 * @param n its rows and columns
 * @param sort the order of the eigenvalues, 0 to 4
 * @param vectors written, [n * n], may be null: Q, row-major; null: not formed
 * @param t written, [n * n]: T, row-major, triangular
 * @param values written, [n]: the eigenvalues in the order of the diagonal of T
 * @retval 20005 two eigenvalues are too close for an exchange; the form is valid, its order not complete
 * @retval -20061 the order is above 4; tested first
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 */
QV_API QvStatus ZemFunc259(const QvComplex* a, int64_t n, uint32_t sort, QvComplex* vectors, QvComplex* t, QvComplex* values);
#define QvMatSchurComplex ZemFunc259

/**
 * MatEigenGeneralised.
 * The generalised eigenvalues, A x = lambda B x, by the QZ method (Moler and Stewart, 1973).
 * Where beta is 0 the quotient is what the division gives: an infinite real part, and NaN for 0 / 0.
 * @param a read, [n * n]: the matrix A, row-major
 * @param b read, [n * n]: the matrix B, row-major
 * @param n their rows and columns
 * @param values written, [n]: the eigenvalues alpha / beta
 * @param right written, [n * n], may be null: the right eigenvectors; null: not formed
 * @param left written, [n * n], may be null: the left eigenvectors, y^H A = lambda y^H B; null: not formed
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc252(const double* a, const double* b, int64_t n, QvComplex* values, QvComplex* right, QvComplex* left);
#define QvMatEigenGeneralised ZemFunc252

/**
 * MatEigenGeneralisedComplex (MatEigenGeneralised).
 * The generalised eigenvalues, A x = lambda B x, by the QZ method (Moler and Stewart, 1973).
 * Where beta is 0 the quotient is what the division gives: both parts NaN.
 * @param a read, [n * n]: the matrix A, row-major
 * @param b read, [n * n]: the matrix B, row-major
 * @param n their rows and columns
 * @param values written, [n]: the eigenvalues alpha / beta
 * @param right written, [n * n], may be null: the right eigenvectors; null: not formed
 * @param left written, [n * n], may be null: the left eigenvectors, y^H A = lambda y^H B; null: not formed
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @retval -20999 the provider fails
 */
QV_API QvStatus ZemFunc253(const QvComplex* a, const QvComplex* b, int64_t n, QvComplex* values, QvComplex* right, QvComplex* left);
#define QvMatEigenGeneralisedComplex ZemFunc253

/**
 * MatQz.
 * The generalised Schur form A = Q S Z^T, B = Q T Z^T by the QZ method (Moler and Stewart, 1973), ordered by exchanges of neighbours (Kagstrom, 1993).
 * Infinite eigenvalues come last in ascending and first in descending order.
 * Exchanges keep the quotients; alpha and beta are those that were found before the exchanges.
 * @param a read, [n * n]: the matrix A, row-major
 * @param b read, [n * n]: the matrix B, row-major
 * @param n their rows and columns
 * @param sort the order of the eigenvalues, 0 to 4
 * @param s written, [n * n]: S, row-major, upper triangular, but for a block of two rows for each pair
 * @param t written, [n * n]: T, row-major, upper triangular
 * @param q written, [n * n], may be null: Q, row-major; null: not formed
 * @param z written, [n * n], may be null: Z, row-major; null: not formed
 * @param alpha written, [n]: the numerators of the eigenvalues, in the order of the diagonal
 * @param beta written, [n]: their denominators; 0 for an infinite eigenvalue
 * @param right written, [n * n], may be null: the right eigenvectors, beta A x = alpha B x; null: not formed
 * @param left written, [n * n], may be null: the left eigenvectors, beta y^H A = alpha y^H B; null: not formed
 * @retval 20005 a first form cannot be ordered and a second does not converge; the first is given, its order not complete
 * @retval -20061 the order is above 4; tested first
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge, or with vectors a pair is so nearly real that it has none; nothing is written
 * @retval -20999 the provider fails
 * @retval -20073 eigenvalues are too close to be exchanged, in a second form that is tried as well; nothing is written
 */
QV_API QvStatus ZemFunc256(const double* a, const double* b, int64_t n, uint32_t sort, double* s, double* t, double* q, double* z, QvComplex* alpha, double* beta, QvComplex* right, QvComplex* left);
#define QvMatQz ZemFunc256

/**
 * MatQzComplex (MatQz).
 * The generalised Schur form A = Q S Z^H, B = Q T Z^H by the QZ method (Moler and Stewart, 1973), ordered by exchanges of neighbours (Kagstrom, 1993).
 * Infinite eigenvalues come last in ascending and first in descending order.
 * Exchanges keep the quotients; alpha and beta are those that were found before the exchanges.
 * @param a read, [n * n]: the matrix A, row-major
 * @param b read, [n * n]: the matrix B, row-major
 * @param n their rows and columns
 * @param sort the order of the eigenvalues, 0 to 4
 * @param s written, [n * n]: S, row-major, upper triangular
 * @param t written, [n * n]: T, row-major, upper triangular
 * @param q written, [n * n], may be null: Q, row-major; null: not formed
 * @param z written, [n * n], may be null: Z, row-major; null: not formed
 * @param alpha written, [n]: the numerators of the eigenvalues, in the order of the diagonal
 * @param beta written, [n]: their denominators, with zero imaginary parts; 0 for an infinite eigenvalue
 * @param right written, [n * n], may be null: the right eigenvectors, beta A x = alpha B x; null: not formed
 * @param left written, [n * n], may be null: the left eigenvectors, beta y^H A = alpha y^H B; null: not formed
 * @retval -20061 the order is above 4; tested first
 * @retval -20003 n is below 1
 * @retval -20046 a matrix has more than 2^31 - 1 elements
 * @retval -20068 an element is NaN or infinite, the largest double, or at or below -1.7976931348623e308
 * @retval -20001 memory is exhausted
 * @retval -20062 the iteration did not converge; nothing is written
 * @retval -20999 the provider fails
 * @retval -20073 eigenvalues are too close to be exchanged; nothing is written
 */
QV_API QvStatus ZemFunc257(const QvComplex* a, const QvComplex* b, int64_t n, uint32_t sort, QvComplex* s, QvComplex* t, QvComplex* q, QvComplex* z, QvComplex* alpha, QvComplex* beta, QvComplex* right, QvComplex* left);
#define QvMatQzComplex ZemFunc257

/** @} */

/** @defgroup elliptic Elliptic, hypergeometric and integral functions
 * Arc lengths, pendulums and filter theory (elliptic), asymptotic and special solutions (hypergeometric),
 * diffraction, transients and antennas (integrals), of real arguments.
 *
 *     F(phi, m) = integral of dt / sqrt(1 - m sin^2 t) from 0 to phi,      K(m) = F(pi/2, m)
 *     E(phi, m) = integral of sqrt(1 - m sin^2 t) dt from 0 to phi,        E(m) = E(pi/2, m)
 *     sn u = sin phi, cn u = cos phi, dn u = sqrt(1 - m sin^2 phi),        where F(phi, m) = u
 *     C(x) = integral of cos(pi t^2 / 2) from 0 to x,   S(x) = integral of sin(pi t^2 / 2)
 *     1F1(a; b; x) = sum of (a)_k / (b)_k x^k / k!,     2F1(a, b; c; x) = sum of (a)_k (b)_k / (c)_k x^k / k!
 *
 * The elliptic functions take the parameter m = k^2, not the modulus k; angles in radians. The hypergeometric
 * functions take x before the parameters; (a)_k = a (a + 1) ... (a + k - 1). Where an argument goes by address, a
 * null pointer selects the complete integral; the address of 0.0 does not.
 *
 * Values are returned as such or written to the caller's doubles: there is no status. A domain fault gives NaN or
 * the infinity that the function's text names; a NaN argument gives NaN, in every output.
 * @{
 */

/**
 * SpecEllipticK.
 * The elliptic integral of the first kind, complete or incomplete.
 * Null phi: K(m), the integral of 1/sqrt(1 - m sin^2 t) from 0 to pi/2. pi/2 at m = 0, +Inf at m = 1.
 * Otherwise F(phi, m), the same integral from 0 to phi: odd in phi, F(phi + pi) = F(phi) + 2 K. At m = 1 infinite from |phi| = pi/2 on.
 * NaN for m outside [0, 1].
 * Rational forms in 1 - m with its logarithm; the descending Landen transformation (Moshier 1989, ellpk and ellik).
 * @param m the parameter, 0 to 1
 * @param phi read, may be null: the amplitude in radians; null selects the complete integral
 * @code
 * double phi = 0.5, k = QvSpecEllipticK(0.25, NULL), f = QvSpecEllipticK(0.25, &phi);
 * @endcode
 */
QV_API double ZemFunc318(double m, const double* phi);
#define QvSpecEllipticK ZemFunc318

/**
 * SpecEllipticE.
 * The elliptic integral of the second kind, complete or incomplete.
 * Null phi: E(m), the integral of sqrt(1 - m sin^2 t) from 0 to pi/2. pi/2 at m = 0, 1 at m = 1.
 * Otherwise E(phi, m), the same integral from 0 to phi: odd in phi, E(phi + pi) = E(phi) + 2 E.
 * NaN for m outside [0, 1]. Method as for the first kind (Moshier 1989, ellpe and ellie).
 * @param m the parameter, 0 to 1
 * @param phi read, may be null: the amplitude in radians; null selects the complete integral
 */
QV_API double ZemFunc319(double m, const double* phi);
#define QvSpecEllipticE ZemFunc319

/**
 * SpecJacobiElliptic.
 * The Jacobian elliptic functions. All outputs are NaN for m outside [0, 1] and for infinite u (but for m = 1).
 * Arithmetic-geometric mean with at most nine steps; expansions in m below 1e-9 and in 1 - m from 0.999999999 on (Moshier 1989, ellpj).
 * @param u the argument
 * @param m the parameter, 0 to 1
 * @param sn written: sn(u|m) = sin phi
 * @param cn written: cn(u|m) = cos phi
 * @param dn written: dn(u|m) = sqrt(1 - m sin^2 phi)
 * @param phi written, may be null: the amplitude, F(phi, m) = u, in radians
 */
QV_API void ZemFunc332(double u, double m, double* sn, double* cn, double* dn, double* phi);
#define QvSpecJacobiElliptic ZemFunc332

/**
 * SpecDawson.
 * Dawson's integral, e^(-x^2) times the integral of e^(t^2) from 0 to x. Odd; 0.5413 at most, near 1/(2x) for large x.
 * Rational forms with cuts at 3.25 and 6.25, 1/(2x) above 1e9 (Moshier 1989, dawsn).
 * @param x any
 */
QV_API double ZemFunc320(double x);
#define QvSpecDawson ZemFunc320

/**
 * SpecFresnel.
 * The Fresnel integrals, both odd. Above |x| = 36974 both are 0.5 with the sign of x.
 * Rational forms, by auxiliary functions from x^2 = 2.5625 on (Moshier 1989, fresnl).
 * @param x any
 * @param s written: S(x), the integral of sin(pi t^2/2) from 0 to x
 * @param c written: C(x), the integral of cos(pi t^2/2) from 0 to x
 */
QV_API void ZemFunc331(double x, double* s, double* c);
#define QvSpecFresnel ZemFunc331

/**
 * SpecExpIntegralN.
 * E_n(x), the integral of e^(-x t) / t^n from 1 to infinity. NaN for x < 0 or n < 0.
 * 0 above x = 709.7827128933; at x = 0 1/(n - 1), +Inf for n < 2.
 * Power series up to x = 1, continued fraction above, an asymptotic form for n above 5000 (Moshier 1989, expn).
 * @param x at least 0
 * @param n the order, at least 0
 */
QV_API double ZemFunc321(double x, int32_t n);
#define QvSpecExpIntegralN ZemFunc321

/**
 * SpecSineIntegral.
 * Si(x), the integral of sin(t)/t from 0 to x. Odd; pi/2 at +Inf.
 * Rational forms with cuts at 4 and 8, pi/2 - cos(x)/x above 1e9 (Moshier 1989, sici).
 * @param x any
 */
QV_API double ZemFunc322(double x);
#define QvSpecSineIntegral ZemFunc322

/**
 * SpecCosineIntegral.
 * Ci(x) = gamma + ln|x| + the integral of (cos(t) - 1)/t from 0 to x. -Inf at 0; at negative x the real part, the value at |x|.
 * Rational forms with cuts at 4 and 8, sin(x)/x above 1e9 (Moshier 1989, sici).
 * @param x any
 */
QV_API double ZemFunc323(double x);
#define QvSpecCosineIntegral ZemFunc323

/**
 * SpecHyperbolicSineIntegral.
 * Shi(x), the integral of sinh(t)/t from 0 to x. Odd; infinite above |x| = 88, well before a double would overflow.
 * Power series up to 8, Chebyshev sums above (Moshier 1989, shichi).
 * @param x any
 */
QV_API double ZemFunc325(double x);
#define QvSpecHyperbolicSineIntegral ZemFunc325

/**
 * SpecHyperbolicCosineIntegral.
 * Chi(x) = gamma + ln|x| + the integral of (cosh(t) - 1)/t from 0 to x. -Inf at 0, +Inf above |x| = 88; at negative x the value at |x|.
 * Power series up to 8, Chebyshev sums above (Moshier 1989, shichi).
 * @param x any
 */
QV_API double ZemFunc324(double x);
#define QvSpecHyperbolicCosineIntegral ZemFunc324

/**
 * SpecHyperg1F1.
 * Kummer's confluent hypergeometric function 1F1(a; b; x) = 1 + a/b x + a(a+1)/(b(b+1)) x^2/2! + ...
 * +Inf for b = 0, -1, -2, ... unless a ends the series before. NaN for infinite parameters, and where no digit would be right.
 * Power series, Kummer's transformation or asymptotic form, the best by its estimated error (Moshier 1989, hyperg).
 * @param x any
 * @param a upper parameter
 * @param b lower parameter
 */
QV_API double ZemFunc316(double x, double a, double b);
#define QvSpecHyperg1F1 ZemFunc316

/**
 * SpecHypergU.
 * Tricomi's confluent hypergeometric function U(a, b, x), which falls like x^-a.
 * Complex at x < 0, and NaN there unless it is a polynomial (times a whole power of x); at x = 0 infinite for b >= 1.
 * Two 1F1 or their limit for whole b (Abramowitz and Stegun 13.1.3, 13.1.6), the asymptotic series, or the integral 13.2.5.
 * @param x at least 0
 * @param a first parameter
 * @param b second parameter
 */
QV_API double ZemFunc317(double x, double a, double b);
#define QvSpecHypergU ZemFunc317

/**
 * SpecHyperg2F1.
 * Gauss's hypergeometric function 2F1(a, b; c; x) = 1 + a b/c x + a(a+1) b(b+1)/(c(c+1)) x^2/2! + ..., continued to x <= 1.
 * +Inf for c = 0, -1, -2, ... unless a or b ends the series before. NaN for x > 1 unless it is a polynomial (times a whole
 * power of 1 - x), and where no digit would be right. At x = 1 infinite for c - a - b <= 0.
 * Power series up to 0.9, in powers of 1 - x above, by x/(x - 1) below -0.2 (Moshier 1989, hyp2f1).
 * @param x at most 1; any where the function is a polynomial
 * @param a first upper parameter
 * @param b second upper parameter
 * @param c lower parameter
 * @code
 * double log2 = QvSpecHyperg2F1(-1.0, 1.0, 1.0, 2.0); // ln(1 - x)/-x at x = -1
 * @endcode
 */
QV_API double ZemFunc386(double x, double a, double b, double c);
#define QvSpecHyperg2F1 ZemFunc386

/**
 * SpecHyperg2F1Transformed.
 * The same function 2F1(a, b; c; x) with the transformation to x/(x - 1) below -0.5.
 * @param x at most 1; any where the function is a polynomial
 * @param a first upper parameter
 * @param b second upper parameter
 * @param c lower parameter
 */
QV_API double ZemFunc315(double x, double a, double b, double c);
#define QvSpecHyperg2F1Transformed ZemFunc315

/**
 * SpecParabolicCylinder.
 * The parabolic cylinder function D_v(x), from two reciprocal Gammas and Kummer's series, to some 2e-9 for small arguments.
 * x = +Inf gives 0. x = -Inf gives 0 for whole v >= 0, +Inf for v < 0, and else +Inf or -Inf as the whole part of v is odd or even.
 * NaN for v = +Inf at finite x, and wherever a sum leaves the range of a double.
 * @param x the argument
 * @param v the order
 */
QV_API double ZemFunc327(double x, double v);
#define QvSpecParabolicCylinder ZemFunc327

/** @} */

/** @defgroup filter_objects Filter objects and the cascade engine
 * Recursive filters for streams: an object keeps the coefficients and the delay lines of its stages, and a signal
 * that is cut into blocks comes out as it would in one piece, to the last bit.
 *
 *     H(z) = product over the stages of (b[0] + b[1] z^-1 + ... + b[w] z^-w) / (1 + a[0] z^-1 + ... + a[w - 1] z^-w)
 *     t  = v - a[0] d[0] - a[1] d[1] - ... - a[w - 1] d[w - 1]
 *     v' = t b[0] + b[1] d[0] + b[2] d[1] + ... + b[w] d[w - 1]
 *     d[1 ...] = d[0 ...],  d[0] = t
 *
 * Each sample v goes through a stage with the coefficients a and b and the delay line d in this way (direct form
 * II; sums from the left) and v' into the next stage. The width w is 2 for lowpass and highpass, 4 for bandpass and
 * bandstop, and there are (order + 1) / 2 stages. The leading 1 of the denominator is not stored; signs are those
 * of the denominator. The caller may read the record: stage s has its a at s w, its b at s (w + 1), its d at s w
 * with the newest value first.
 *
 * A filter is created, designed (see iir_design), and then applied to any number of blocks; MemoryRelease gives the
 * object back. What enters a delay line or leaves the last stage becomes 0 where its magnitude is
 * 2.2250738585072014e-308 or less: a decaying response ends in zeros and does not slow down on denormals. An object
 * belongs to one thread at a time.
 * @{
 */

/**
 * IirFilterCreate.
 * Creates a filter with its delay lines at 0. Its coefficients are not set before it is designed.
 * Null for another kind, for an order below 1, and when memory runs out.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param order order of the analog prototype, at least 1; band kinds have twice this order
 * @code
 * QvIirFilter* filter = QvIirFilterCreate(0, 4);
 * double x[5] = {1}, y[5];
 * QvIirDesignButterworth(1000, 100, 0, filter);
 * QvIirCascadeApply(x, 5, filter, y);
 * QvIirFilterRelease(filter);
 * @endcode
 */
QV_API QvIirFilter* ZemFunc233(uint32_t kind, int32_t order);
#define QvIirFilterCreate ZemFunc233

/**
 * IirStateComplexCreate.
 * Creates the delay lines with which a filter is applied to complex data, all 0.
 * Null for a kind above 3, for an order below 1, and when memory runs out.
 * @param kind of the filter that it will be used with
 * @param order of the filter that it will be used with
 */
QV_API QvIirStateComplex* ZemFunc469(uint32_t kind, int32_t order);
#define QvIirStateComplexCreate ZemFunc469

/**
 * IirFilterReset.
 * Makes the next application, and only that one, start from delay lines of 0.
 * The delay lines cleared are those of that application: the filter's own, or the ones for complex data.
 * @param filter handle, may be null: the filter
 */
QV_API void ZemFunc235(QvIirFilter* filter);
#define QvIirFilterReset ZemFunc235

/**
 * IirCascadeApply.
 * Filters the next block of a signal. y may be x.
 * A pending reset is done first, also when n is then refused. After an error no sample is written.
 * @param x read, [n]: the signal
 * @param n its length
 * @param filter handle: the filter, designed
 * @param y written, [n]: the filtered signal
 * @retval -20066 the counts of the record do not fit together; a pending reset stays pending
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc91(const double* x, int64_t n, QvIirFilter* filter, double* y);
#define QvIirCascadeApply ZemFunc91

/**
 * IirCascadeApplyComplex.
 * Filters the next block of a complex signal: its real and its imaginary part, each by itself. y may be x.
 * A pending reset of the filter is done first, also when n is then refused. After an error no sample is written.
 * @param x read, [n]: the signal
 * @param n its length
 * @param filter handle: the filter, designed
 * @param state handle: the delay lines, of the same kind and order
 * @param y written, [n]: the filtered signal
 * @retval -20066 the counts of the two records do not fit together; a pending reset stays pending
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc466(const QvComplex* x, int64_t n, QvIirFilter* filter, QvIirStateComplex* state, QvComplex* y);
#define QvIirCascadeApplyComplex ZemFunc466

/** @} */

/** @defgroup fir_equiripple Equiripple FIR design
 * Linear-phase filters whose peak weighted error is the least possible: the Parks-McClellan algorithm with the
 * Remez exchange on a grid of 16 points to each cosine function (J. H. McClellan, T. W. Parks and L. R. Rabiner,
 * IEEE Trans. Audio Electroacoust. 21, 1973).
 *
 *     H(f) = sum over i of h[i] exp(-2 pi i f i / fs)
 *     multiband                    h[i] =  h[taps - 1 - i],   minimises max W(f) | |H(f)| - D(f) |
 *     differentiator, Hilbert      h[i] = -h[taps - 1 - i]
 *
 * Frequencies are in the unit of the sampling rate fs; D and W are the desired value and the weight of each band.
 * The delay is (taps - 1)/2 samples. The weighted error reaches plus and minus delta in turn; in a band its size is
 * delta / weight, a ripple of 20 lg(1 + delta / weight) dB. After an error h is not written.
 *
 * A design has at most 2045 functions (taps/2, and one more for an odd multiband filter). It takes at most 99
 * passes. Statuses are tested in the order in which they are listed.
 * @{
 */

/**
 * FirRemezDesign.
 * Designs a filter for any number of bands.
 * Multiband filters and differentiators begin at 0; filters end at fs/2, Hilbert transformers leave out 0. Antisymmetric
 * filters of odd length are zero at fs/2 and must end before: by 0.01 or 0.001 in the unit of fs. A slope below 0.0001
 * has its absolute error weighted.
 * @param bands the number of bands
 * @param desired read, [bands]: the gain of each band; for a differentiator the slope over f/fs
 * @param weights read, [bands]: the weight of each band's error; for a differentiator of the relative error
 * @param fs the sampling rate
 * @param edges read, [2 * bands]: lower and upper edge of each band, ascending
 * @param kind 1 multiband filter, 2 differentiator, 3 Hilbert transformer; others antisymmetric, without checks
 * @param taps the number of coefficients, at least 3
 * @param h written, [taps]: the coefficients
 * @param delta written: the peak weighted error
 * @retval -20031 taps is below 3
 * @retval -20003 bands is below 1
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative
 * @retval -20031 a weight or gain is not finite
 * @retval -20023 a weight is not above 0 or a gain is negative
 * @retval -20020 the last edge is above fs/2
 * @retval -20023 the edges do not ascend
 * @retval -20031 the first or last edge is not what the kind wants
 * @retval -20033 a multiband filter of even length has a gain in its last band
 * @retval -20031 an antisymmetric filter has 3 taps, or a Hilbert transformer less than 6
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 * @code
 * double gain[2] = {1, 0}, weight[2] = {1, 10}, edges[4] = {0, 100, 150, 500}, h[41], delta;
 * QvFirRemezDesign(2, gain, weight, 1000.0, edges, 1, 41, h, &delta);
 * @endcode
 */
QV_API QvStatus ZemFunc65(int32_t bands, const double* desired, const double* weights, double fs, const double* edges, int32_t kind, int32_t taps, double* h, double* delta);
#define QvFirRemezDesign ZemFunc65

/**
 * FirRemezBands.
 * FirRemezDesign with a record for each band, and kinds that count from 0.
 * @param taps the number of coefficients, at least 3
 * @param fs the sampling rate
 * @param bands read, [count]: gain, lower edge, upper edge and weight of each band
 * @param count the number of bands
 * @param kind 0 multiband filter, 1 differentiator, 2 Hilbert transformer
 * @param h written, [taps]: the coefficients
 * @param delta written: the peak weighted error
 * @retval -20031 taps is below 3, count is below 1, or a value of a record is infinite
 * @retval -20001 memory is exhausted
 * @retval -20023 as FirRemezDesign, which also refuses NaN (-20031)
 * @retval -20020 the last edge is above fs/2
 * @retval -20033 a multiband filter of even length has a gain in its last band
 * @retval -20031 the design is refused or fails, as in FirRemezDesign
 */
QV_API QvStatus ZemFunc408(int32_t taps, double fs, const QvBand* bands, int64_t count, int32_t kind, double* h, double* delta);
#define QvFirRemezBands ZemFunc408

/**
 * FirRemezLowpass.
 * A lowpass with equal weights.
 * @param fs the sampling rate
 * @param fpass edge of the passband
 * @param fstop edge of the stopband
 * @param taps the number of coefficients, at least 3
 * @param h written, [taps]: the coefficients
 * @param delta written: the peak weighted error
 * @retval -20031 taps is below 3
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 * @code
 * QvFirRemezLowpass(1000.0, 100.0, 150.0, 41, h, &delta);
 * @endcode
 */
QV_API QvStatus ZemFunc69(double fs, double fpass, double fstop, int32_t taps, double* h, double* delta);
#define QvFirRemezLowpass ZemFunc69

/**
 * FirRemezHighpass.
 * A highpass with equal weights.
 * @param fs the sampling rate
 * @param fstop edge of the stopband
 * @param fpass edge of the passband
 * @param taps the number of coefficients, at least 3
 * @param h written, [taps]: the coefficients
 * @param delta written: the peak weighted error
 * @retval -20031 taps is below 3
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc68(double fs, double fstop, double fpass, int32_t taps, double* h, double* delta);
#define QvFirRemezHighpass ZemFunc68

/**
 * FirRemezBandpass.
 * A bandpass with equal weights.
 * @param fs the sampling rate
 * @param f1 end of the lower stopband
 * @param f2 begin of the passband
 * @param f3 end of the passband
 * @param f4 begin of the upper stopband
 * @param taps the number of coefficients, at least 3
 * @param h written, [taps]: the coefficients
 * @param delta written: the peak weighted error
 * @retval -20031 taps is below 3
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc66(double fs, double f1, double f2, double f3, double f4, int32_t taps, double* h, double* delta);
#define QvFirRemezBandpass ZemFunc66

/**
 * FirRemezBandstop.
 * A bandstop with equal weights.
 * @param fs the sampling rate
 * @param f1 end of the lower passband
 * @param f2 begin of the stopband
 * @param f3 end of the stopband
 * @param f4 begin of the upper passband
 * @param taps the number of coefficients, at least 3
 * @param h written, [taps]: the coefficients
 * @param delta written: the peak weighted error
 * @retval -20031 taps is below 3
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc67(double fs, double f1, double f2, double f3, double f4, int32_t taps, double* h, double* delta);
#define QvFirRemezBandstop ZemFunc67

/**
 * FirRemezFilterLowpass.
 * Designs a lowpass with equal weights and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3
 * @param fs the sampling rate
 * @param fpass edge of the passband
 * @param fstop edge of the stopband
 * @param y written, [n + taps - 1]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc472(const double* x, int64_t n, int32_t taps, double fs, double fpass, double fstop, double* y);
#define QvFirRemezFilterLowpass ZemFunc472

/**
 * FirRemezFilterHighpass.
 * Designs a highpass with equal weights and filters samples with it, by Fourier transforms.
 * Unlike the design, it makes an even number of taps odd: y then has n + taps samples.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3; an even number is raised by one
 * @param fs the sampling rate
 * @param fstop edge of the stopband
 * @param fpass edge of the passband
 * @param y written, [n + taps - taps % 2]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc473(const double* x, int64_t n, int32_t taps, double fs, double fstop, double fpass, double* y);
#define QvFirRemezFilterHighpass ZemFunc473

/**
 * FirRemezFilterBandpass.
 * Designs a bandpass with equal weights and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3
 * @param fs the sampling rate
 * @param f1 end of the lower stopband
 * @param f2 begin of the passband
 * @param f3 end of the passband
 * @param f4 begin of the upper stopband
 * @param y written, [n + taps - 1]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc474(const double* x, int64_t n, int32_t taps, double fs, double f1, double f2, double f3, double f4, double* y);
#define QvFirRemezFilterBandpass ZemFunc474

/**
 * FirRemezFilterBandstop.
 * Designs a bandstop with equal weights and filters samples with it, by Fourier transforms.
 * Unlike the design, it makes an even number of taps odd: y then has n + taps samples.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3; an even number is raised by one
 * @param fs the sampling rate
 * @param f1 end of the lower passband
 * @param f2 begin of the stopband
 * @param f3 end of the stopband
 * @param f4 begin of the upper passband
 * @param y written, [n + taps - taps % 2]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc475(const double* x, int64_t n, int32_t taps, double fs, double f1, double f2, double f3, double f4, double* y);
#define QvFirRemezFilterBandstop ZemFunc475

/**
 * FirRemezFilterComplexLowpass.
 * Designs a lowpass with equal weights and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3
 * @param fs the sampling rate
 * @param fpass edge of the passband
 * @param fstop edge of the stopband
 * @param y written, [n + taps - 1]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc476(const QvComplex* x, int64_t n, int32_t taps, double fs, double fpass, double fstop, QvComplex* y);
#define QvFirRemezFilterComplexLowpass ZemFunc476

/**
 * FirRemezFilterComplexHighpass.
 * Designs a highpass with equal weights and filters complex samples with it, by Fourier transforms.
 * Unlike the design, it makes an even number of taps odd: y then has n + taps samples.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3; an even number is raised by one
 * @param fs the sampling rate
 * @param fstop edge of the stopband
 * @param fpass edge of the passband
 * @param y written, [n + taps - taps % 2]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc477(const QvComplex* x, int64_t n, int32_t taps, double fs, double fstop, double fpass, QvComplex* y);
#define QvFirRemezFilterComplexHighpass ZemFunc477

/**
 * FirRemezFilterComplexBandpass.
 * Designs a bandpass with equal weights and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3
 * @param fs the sampling rate
 * @param f1 end of the lower stopband
 * @param f2 begin of the passband
 * @param f3 end of the passband
 * @param f4 begin of the upper stopband
 * @param y written, [n + taps - 1]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc478(const QvComplex* x, int64_t n, int32_t taps, double fs, double f1, double f2, double f3, double f4, QvComplex* y);
#define QvFirRemezFilterComplexBandpass ZemFunc478

/**
 * FirRemezFilterComplexBandstop.
 * Designs a bandstop with equal weights and filters complex samples with it, by Fourier transforms.
 * Unlike the design, it makes an even number of taps odd: y then has n + taps samples.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients, at least 3; an even number is raised by one
 * @param fs the sampling rate
 * @param f1 end of the lower passband
 * @param f2 begin of the stopband
 * @param f3 end of the stopband
 * @param f4 begin of the upper passband
 * @param y written, [n + taps - taps % 2]: the output: the whole convolution; must not overlap x
 * @retval -20003 n is below 1
 * @retval -20031 taps is below 3
 * @retval -20046 the result exceeds 2^31 - 1 samples
 * @retval -20031 fs is not finite
 * @retval -20023 fs is not above 0
 * @retval -20031 an edge is not finite
 * @retval -20023 an edge is negative, or the edges do not ascend from 0 to fs/2
 * @retval -20020 fs is so small (below 4.5e-308) that its half rounds up
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc479(const QvComplex* x, int64_t n, int32_t taps, double fs, double f1, double f2, double f3, double f4, QvComplex* y);
#define QvFirRemezFilterComplexBandstop ZemFunc479

/** @} */

/** @defgroup fir_narrowband Narrowband FIR design
 * Filters with a very narrow transition, as two stages with few multiplications: a model filter whose taps stand
 * `factor` samples apart, and an image suppressor that removes the copies of its response (Y. Neuvo, Dong C.-Y. and
 * S. K. Mitra, IEEE Trans. Acoust. Speech Signal Process. 32, 1984).
 *
 *     H(z) = G(z^factor) S(z),     G the model, S the suppressor
 *
 * The factor with the least sum of Kaiser's order estimates is taken; where none gains, a single filter is
 * designed. Both stages are equiripple and each spends at most half of the deviation, so that the cascade stays
 * within it. Bands beyond fs/4 are mirrored, or designed as the complement, whose output is added to the delayed
 * input. Frequencies are in the unit of the sampling rate fs. Taps are symmetric, in ascending delay.
 *
 * The record belongs to the caller, between FirNarrowbandCreate and FirNarrowbandRelease, and takes one design.
 * @{
 */

/**
 * FirNarrowbandCreate.
 * A record with all fields zero; null when memory is exhausted.
 */
QV_API QvFirNarrowband* ZemFunc491(void);
#define QvFirNarrowbandCreate ZemFunc491

/**
 * FirNarrowbandRelease.
 * Frees both arrays of taps and the record.
 * @param filter handle, may be null: the record; null does nothing
 */
QV_API void ZemFunc492(QvFirNarrowband* filter);
#define QvFirNarrowbandRelease ZemFunc492

/**
 * FirNarrowbandDesign.
 * Designs a filter into the record; arrays that it held are not freed.
 * Lowpass and bandpass want f1 < f2, highpass and bandstop f1 > f2. Each stage begins with the estimated order and
 * grows by a twentieth until its error is small enough.
 * @param fs the sampling rate
 * @param f1 edge of the passband of a lowpass or highpass; full width of the passband about the centre
 * @param f2 edge of the stopband of a lowpass or highpass; full width of the stopband about the centre
 * @param center centre of a bandpass or bandstop, inside 0 to fs/2; else ignored
 * @param ripple linear deviation of the passband
 * @param attenuation of the stopband, in dB
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param filter handle: a fresh record; changed on success alone
 * @retval -20031 a width, an edge, the centre or a deviation is out of its range, the kind is above 3, or an order is negative
 * @retval -20001 memory is exhausted, or a stage needs more than 2045 cosine functions
 * @retval -20023 a band reaches beyond 0 or fs/2
 * @retval -20031 the exchange fails
 * @code
 * QvFirNarrowband* filter = QvFirNarrowbandCreate();
 * QvFirNarrowbandDesign(1000.0, 10.0, 12.0, 0.0, 0.01, 60.0, 0, filter);
 * @endcode
 */
QV_API QvStatus ZemFunc409(double fs, double f1, double f2, double center, double ripple, double attenuation, uint32_t kind, QvFirNarrowband* filter);
#define QvFirNarrowbandDesign ZemFunc409

/**
 * FirNarrowbandFilter.
 * Filters samples: the whole convolution with both stages, in modes 3 to 5 added to the delayed input.
 * The products are added themselves, without transforms. Modes outside 0 to 5 add no input.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param filter handle: a designed record
 * @param y written, []: the output: n + model_count - 1 samples for a factor of 1, otherwise (model_count - 1) factor + n + suppressor_count - 1; must not overlap x
 * @retval -20003 n, or a number of taps, is below 1
 * @retval -20046 the output exceeds 2^31 - 1 samples
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc410(const double* x, int64_t n, QvFirNarrowband* filter, double* y);
#define QvFirNarrowbandFilter ZemFunc410

/**
 * FirNarrowbandFilterComplex.
 * Filters the two parts of complex samples as two real signals.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param filter handle: a designed record
 * @param y written, []: the output, as long as that of FirNarrowbandFilter; must not overlap x
 * @retval -20003 n, or a number of taps, is below 1
 * @retval -20046 the output exceeds 2^31 - 1 samples
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc411(const QvComplex* x, int64_t n, QvFirNarrowband* filter, QvComplex* y);
#define QvFirNarrowbandFilterComplex ZemFunc411

/** @} */

/** @defgroup fir_windows FIR design by window
 * Finite impulse responses: the ideal response of a lowpass (kind 0), highpass (1), bandpass (2) or bandstop (3),
 * cut to the wanted number of taps and multiplied by a symmetric window (A. V. Oppenheim and R. W. Schafer,
 * Discrete-Time Signal Processing, chapter 7).
 *
 *     t = i - (taps - 1)/2,   W = 2 pi f / fs
 *     lowpass    h[i] = w[i] sin(W t) / (pi t),                 W / pi at t = 0
 *     highpass   h[i] = w[i] (delta(t) - sin(W t) / (pi t))
 *     bandpass   h[i] = w[i] (sin(Wh t) - sin(Wl t)) / (pi t)
 *     bandstop   h[i] = w[i] (delta(t) - (sin(Wh t) - sin(Wl t)) / (pi t))
 *     y[l] = sum over i of h[i] x[l - i]
 *
 * The passband is not scaled to a gain of exactly 1; at the cutoffs the gain is near 1/2. Frequencies are in the
 * unit of the sampling rate fs. Taps are symmetric about the middle, in ascending delay; the delay is (taps - 1)/2.
 * After an error h is undefined. The filters write the whole convolution, with both transients, and y must not
 * overlap x. Statuses are tested in the order in which they are listed.
 * @{
 */

/**
 * FirIdealResponse.
 * The ideal response, without a window.
 * The angles of the sines are accumulated from tap to tap.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param fs the sampling rate
 * @param fl the cutoff of a lowpass or highpass, the lower edge of a band
 * @param fh the upper edge of a band; else ignored
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @retval -20061 the kind is above 3
 * @retval -20021 taps is below 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh in a band kind
 * @retval -20033 taps is even in a highpass or bandstop: the response would be 0 at fs/2
 */
QV_API QvStatus ZemFunc79(uint32_t kind, double fs, double fl, double fh, int32_t taps, double* h);
#define QvFirIdealResponse ZemFunc79

/**
 * FirDesignWindow.
 * The ideal response under a window of any code. One tap is left as it is, whatever the window.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param fs the sampling rate
 * @param fl the cutoff of a lowpass or highpass, the lower edge of a band
 * @param fh the upper edge of a band; else ignored
 * @param taps the number of coefficients
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param h written, [taps]: the coefficients
 * @retval -20061 the kind is above 3
 * @retval -20021 taps is below 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh in a band kind
 * @retval -20033 taps is even in a highpass or bandstop: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 * @code
 * double h[63];
 * QvFirDesignWindow(0, 1000.0, 40.0, 0.0, 63, QV_WINDOW_BLACKMAN, 0.0, h);
 * @endcode
 */
QV_API QvStatus ZemFunc335(uint32_t kind, double fs, double fl, double fh, int32_t taps, int32_t window, double parameter, double* h);
#define QvFirDesignWindow ZemFunc335

/**
 * FirDesignLowpass.
 * A lowpass under one of five windows, whose short codes are not those of QV_WINDOW_.
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param window 1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
 * @retval -20021 taps is below 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20001 memory is exhausted
 * @code
 * QvFirDesignLowpass(1000.0, 40.0, 63, h, 4);
 * @endcode
 */
QV_API QvStatus ZemFunc189(double fs, double fc, int32_t taps, double* h, int32_t window);
#define QvFirDesignLowpass ZemFunc189

/**
 * FirDesignHighpass.
 * A highpass under one of five windows, whose short codes are not those of QV_WINDOW_.
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param window 1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
 * @retval -20021 taps is below 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc188(double fs, double fc, int32_t taps, double* h, int32_t window);
#define QvFirDesignHighpass ZemFunc188

/**
 * FirDesignBandpass.
 * A bandpass under one of five windows, whose short codes are not those of QV_WINDOW_.
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param window 1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
 * @retval -20021 taps is below 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc186(double fs, double fl, double fh, int32_t taps, double* h, int32_t window);
#define QvFirDesignBandpass ZemFunc186

/**
 * FirDesignBandstop.
 * A bandstop under one of five windows, whose short codes are not those of QV_WINDOW_.
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param window 1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman; any other: Hamming
 * @retval -20021 taps is below 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc187(double fs, double fl, double fh, int32_t taps, double* h, int32_t window);
#define QvFirDesignBandstop ZemFunc187

/**
 * FirDesignKaiserLowpass.
 * A lowpass under a Kaiser window.
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param beta of the window; negative: 4.5
 * @retval -20021 taps is below 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc112(double fs, double fc, int32_t taps, double* h, double beta);
#define QvFirDesignKaiserLowpass ZemFunc112

/**
 * FirDesignKaiserHighpass.
 * A highpass under a Kaiser window.
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param beta of the window; negative: 4.5
 * @retval -20021 taps is below 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc111(double fs, double fc, int32_t taps, double* h, double beta);
#define QvFirDesignKaiserHighpass ZemFunc111

/**
 * FirDesignKaiserBandpass.
 * A bandpass under a Kaiser window.
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param beta of the window; negative: 4.5
 * @retval -20021 taps is below 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc109(double fs, double fl, double fh, int32_t taps, double* h, double beta);
#define QvFirDesignKaiserBandpass ZemFunc109

/**
 * FirDesignKaiserBandstop.
 * A bandstop under a Kaiser window.
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param taps the number of coefficients
 * @param h written, [taps]: the coefficients
 * @param beta of the window; negative: 4.5
 * @retval -20021 taps is below 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc110(double fs, double fl, double fh, int32_t taps, double* h, double beta);
#define QvFirDesignKaiserBandstop ZemFunc110

/**
 * FirFilterWindow.
 * Designs any kind as FirDesignWindow does and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param fs the sampling rate
 * @param fl the cutoff of a lowpass or highpass, the lower edge of a band
 * @param fh the upper edge of a band; else ignored
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20061 the kind is above 3
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh in a band kind
 * @retval -20033 taps is even in a highpass or bandstop: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 * @code
 * QvFirFilterWindow(x, 1000, 63, 2, 1000.0, 40.0, 60.0, QV_WINDOW_KAISER, 6.0, y);  // 1062 samples
 * @endcode
 */
QV_API QvStatus ZemFunc480(const double* x, int64_t n, int32_t taps, uint32_t kind, double fs, double fl, double fh, int32_t window, double parameter, double* y);
#define QvFirFilterWindow ZemFunc480

/**
 * FirFilterWindowLowpass.
 * Designs a lowpass as FirDesignWindow does and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc481(const double* x, int64_t n, int32_t taps, double fs, double fc, int32_t window, double parameter, double* y);
#define QvFirFilterWindowLowpass ZemFunc481

/**
 * FirFilterWindowHighpass.
 * Designs a highpass as FirDesignWindow does and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc482(const double* x, int64_t n, int32_t taps, double fs, double fc, int32_t window, double parameter, double* y);
#define QvFirFilterWindowHighpass ZemFunc482

/**
 * FirFilterWindowBandpass.
 * Designs a bandpass as FirDesignWindow does and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc483(const double* x, int64_t n, int32_t taps, double fs, double fl, double fh, int32_t window, double parameter, double* y);
#define QvFirFilterWindowBandpass ZemFunc483

/**
 * FirFilterWindowBandstop.
 * Designs a bandstop as FirDesignWindow does and filters samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc484(const double* x, int64_t n, int32_t taps, double fs, double fl, double fh, int32_t window, double parameter, double* y);
#define QvFirFilterWindowBandstop ZemFunc484

/**
 * FirFilterWindowComplex.
 * Designs any kind as FirDesignWindow does and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param fs the sampling rate
 * @param fl the cutoff of a lowpass or highpass, the lower edge of a band
 * @param fh the upper edge of a band; else ignored
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20061 the kind is above 3
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh in a band kind
 * @retval -20033 taps is even in a highpass or bandstop: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc485(const QvComplex* x, int64_t n, int32_t taps, uint32_t kind, double fs, double fl, double fh, int32_t window, double parameter, QvComplex* y);
#define QvFirFilterWindowComplex ZemFunc485

/**
 * FirFilterWindowComplexLowpass.
 * Designs a lowpass as FirDesignWindow does and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc486(const QvComplex* x, int64_t n, int32_t taps, double fs, double fc, int32_t window, double parameter, QvComplex* y);
#define QvFirFilterWindowComplexLowpass ZemFunc486

/**
 * FirFilterWindowComplexHighpass.
 * Designs a highpass as FirDesignWindow does and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fc the cutoff frequency, 6 dB down
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 fc is above fs/2
 * @retval -20023 fs or fc is not above 0
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc487(const QvComplex* x, int64_t n, int32_t taps, double fs, double fc, int32_t window, double parameter, QvComplex* y);
#define QvFirFilterWindowComplexHighpass ZemFunc487

/**
 * FirFilterWindowComplexBandpass.
 * Designs a bandpass as FirDesignWindow does and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc488(const QvComplex* x, int64_t n, int32_t taps, double fs, double fl, double fh, int32_t window, double parameter, QvComplex* y);
#define QvFirFilterWindowComplexBandpass ZemFunc488

/**
 * FirFilterWindowComplexBandstop.
 * Designs a bandstop as FirDesignWindow does and filters complex samples with it, by Fourier transforms.
 * @param x read, [n]: the samples
 * @param n the number of samples
 * @param taps the number of coefficients
 * @param fs the sampling rate
 * @param fl the lower edge
 * @param fh the upper edge
 * @param window a QV_WINDOW_ code
 * @param parameter of a Kaiser, Chebyshev or Gaussian window, as WinApplySymmetric takes it
 * @param y written, [n + taps - 1]: the output
 * @retval -20003 n is below 1
 * @retval -20021 taps is below 1
 * @retval -20046 n + taps - 1 exceeds 2^31 - 1
 * @retval -20020 an edge is above fs/2
 * @retval -20023 fs or an edge is not above 0, or fl is not below fh
 * @retval -20033 taps is even: the response would be 0 at fs/2
 * @retval -20061 the window is none that can be symmetric, and taps is above 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc489(const QvComplex* x, int64_t n, int32_t taps, double fs, double fl, double fh, int32_t window, double parameter, QvComplex* y);
#define QvFirFilterWindowComplexBandstop ZemFunc489

/** @} */

/** @defgroup fit_bounds Fit bounds, goodness of fit and sample removal
 * What goes around a fit: bands about a fitted line, exponential, power, logarithm or Gaussian, whose coefficients
 * come in as arguments; three numbers for its goodness; and the removal of samples before it.
 *
 *     G   = (sum of |w| J J')^+,     J the column of derivatives of the model by its p coefficients
 *     s^2 = sum of |w| (f - y)^2 / (n - p)
 *     confidence (type 0)   f +- t s sqrt(J' G J)
 *     prediction (type 1)   f +- t s sqrt(J' G J + 1/|w|)
 *     goodness              sse = sum of w (y - f)^2,  R^2 = 1 - sse / sum of w (y - mean)^2,  rmse = sqrt(sse / dof)
 *
 * A confidence band is where the mean response lies with the given probability, a prediction band where a new
 * observation does. Both come from the linearised model; t is the quantile of Student's distribution with n - p
 * degrees of freedom for a probability of (1 + level)/2.
 * @{
 */

/**
 * FitBoundsLine.
 * The band of a fitted line, y = slope x + intercept. The method is exact for normal errors.
 * On an error the bands stay unwritten; with type 0 the half-widths become 0, except for -20061 and -20046.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; their sign counts in the information matrix of a confidence band; null: all 1
 * @param n the number of samples
 * @param type 0 the confidence band, 1 the prediction band
 * @param level the probability, between 0 and 1
 * @param slope the slope
 * @param intercept the intercept
 * @param upper written, [n]: the upper band
 * @param lower written, [n]: the lower band
 * @param slopeHalfWidth written: of the confidence interval of slope; type 0 only
 * @param interceptHalfWidth written: of the confidence interval of intercept; type 0 only
 * @retval -20061 the type is above 1
 * @retval -20007 n is below 3
 * @retval -20068 a coefficient, or a derivative times a weight, is not finite
 * @retval -20053 the level is not between 0 and 1
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 * @code
 * QvFitLine(x, y, n, curve, &slope, &intercept, &error);
 * QvFitBoundsLine(x, y, NULL, n, 0, 0.95, slope, intercept, upper, lower, &ds, &di);
 * @endcode
 */
QV_API QvStatus ZemFunc293(const double* x, const double* y, const double* weights, int64_t n, uint32_t type, double level, double slope, double intercept, double* upper, double* lower, double* slopeHalfWidth, double* interceptHalfWidth);
#define QvFitBoundsLine ZemFunc293

/**
 * FitBoundsExponential.
 * The band of a fitted exponential, y = a exp(b x). The derivatives are exp(b x) and a x exp(b x).
 * On an error the bands stay unwritten; with type 0 the half-widths become 0, except for -20061 and -20046.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; null: all 1
 * @param n the number of samples
 * @param type 0 the confidence band, 1 the prediction band
 * @param level the probability, between 0 and 1
 * @param a the factor
 * @param b the rate
 * @param upper written, [n]: the upper band
 * @param lower written, [n]: the lower band
 * @param aHalfWidth written: of the confidence interval of a; type 0 only
 * @param bHalfWidth written: of the confidence interval of b; type 0 only
 * @retval -20061 the type is above 1
 * @retval -20007 n is below 3
 * @retval -20068 a coefficient, or a derivative times a weight, is not finite
 * @retval -20053 the level is not between 0 and 1
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc291(const double* x, const double* y, const double* weights, int64_t n, uint32_t type, double level, double a, double b, double* upper, double* lower, double* aHalfWidth, double* bHalfWidth);
#define QvFitBoundsExponential ZemFunc291

/**
 * FitBoundsPower.
 * The band of a fitted power, y = a x^b. The derivatives are x^b and a x^b ln x.
 * On an error the bands stay unwritten; with type 0 the half-widths become 0, except for -20061 and -20046.
 * @param x read, [n]: the abscissas, above 0
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; null: all 1
 * @param n the number of samples
 * @param type 0 the confidence band, 1 the prediction band
 * @param level the probability, between 0 and 1
 * @param a the factor
 * @param b the exponent
 * @param upper written, [n]: the upper band
 * @param lower written, [n]: the lower band
 * @param aHalfWidth written: of the confidence interval of a; type 0 only
 * @param bHalfWidth written: of the confidence interval of b; type 0 only
 * @retval -20061 the type is above 1
 * @retval -20007 n is below 3
 * @retval -20068 a coefficient, or a derivative times a weight, is not finite
 * @retval -20053 the level is not between 0 and 1
 * @retval -20140 an abscissa is at or below 0
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc295(const double* x, const double* y, const double* weights, int64_t n, uint32_t type, double level, double a, double b, double* upper, double* lower, double* aHalfWidth, double* bHalfWidth);
#define QvFitBoundsPower ZemFunc295

/**
 * FitBoundsLogarithm.
 * The band of a fitted logarithm, y = a log(b x). The derivatives are log(b x) and a / (b ln base).
 * On an error the bands stay unwritten; with type 0 the half-widths become 0, except for -20061 and -20046.
 * @param x read, [n]: the abscissas, of the sign of b
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; null: all 1
 * @param n the number of samples
 * @param base the base; 2.71828, or at or below 0: the natural logarithm; 10: the common one
 * @param type 0 the confidence band, 1 the prediction band
 * @param level the probability, between 0 and 1
 * @param a the factor
 * @param b the scale of x
 * @param upper written, [n]: the upper band
 * @param lower written, [n]: the lower band
 * @param aHalfWidth written: of the confidence interval of a; type 0 only
 * @param bHalfWidth written: of the confidence interval of b; type 0 only
 * @retval -20061 the type is above 1
 * @retval -20007 n is below 3
 * @retval -20068 a coefficient, or a derivative times a weight, is not finite
 * @retval -20053 the level is not between 0 and 1
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc294(const double* x, const double* y, const double* weights, int64_t n, double base, uint32_t type, double level, double a, double b, double* upper, double* lower, double* aHalfWidth, double* bHalfWidth);
#define QvFitBoundsLogarithm ZemFunc294

/**
 * FitBoundsGaussian.
 * The band of a fitted Gaussian, y = a exp(-((x - m) / s)^2 / 2). The derivatives are e, a z e / s and a z^2 e / s with z = (x - m) / s, e = exp(-z^2 / 2).
 * On an error the bands stay unwritten; with type 0 the half-widths become 0, except for -20061 and -20046.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; null: all 1
 * @param n the number of samples
 * @param type 0 the confidence band, 1 the prediction band
 * @param level the probability, between 0 and 1
 * @param amplitude a
 * @param centre m
 * @param width s, not 0
 * @param upper written, [n]: the upper band
 * @param lower written, [n]: the lower band
 * @param amplitudeHalfWidth written: of the confidence interval of amplitude; type 0 only
 * @param centreHalfWidth written: of the confidence interval of centre; type 0 only
 * @param widthHalfWidth written: of the confidence interval of width; type 0 only
 * @retval -20061 the type is above 1
 * @retval -20069 n is below 4
 * @retval -20026 the width is 0
 * @retval -20068 a coefficient, or a derivative times a weight, is not finite
 * @retval -20053 the level is not between 0 and 1
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc292(const double* x, const double* y, const double* weights, int64_t n, uint32_t type, double level, double amplitude, double centre, double width, double* upper, double* lower, double* amplitudeHalfWidth, double* centreHalfWidth, double* widthHalfWidth);
#define QvFitBoundsGaussian ZemFunc292

/**
 * FitGoodness.
 * Sum of squared errors, coefficient of determination and root mean squared error of a fit.
 * The mean is that of y without weights. On an error nothing is written.
 * @param y read, [n]: the ordinates
 * @param fitted read, [n]: the fitted curve
 * @param weights read, [n], may be null: the weights, with their sign; null: all 1
 * @param n the number of samples
 * @param dof the degrees of freedom, below n; below 1: n - 2
 * @param sse written: sum of w (y - f)^2
 * @param rSquare written: 1 - sse / sum of w (y - mean)^2; of a constant y 1 for sse = 0, infinity otherwise
 * @param rmse written: sqrt(sse / dof)
 * @retval -20006 n is below 2
 * @retval -20052 dof is n or above
 */
QV_API QvStatus ZemFunc284(const double* y, const double* fitted, const double* weights, int64_t n, int64_t dof, double* sse, double* rSquare, double* rmse);
#define QvFitGoodness ZemFunc284

/**
 * FitRemoveOutOfRange.
 * Removes the samples that do not lie strictly inside the range.
 * The three counts are written whatever the status, except for -20046. With -20010, and -20003 for nothing to remove,
 * they tell what would be kept and removed while the arrays stay; after other errors n is 0 and the others are the
 * former n. A sample of NaN stays.
 * @param x read and written, [n]: the abscissas; those kept stand in front
 * @param y read and written, [n]: the ordinates
 * @param weights read and written, [n], may be null: the weights
 * @param n read and written: in the number of samples, out of those kept
 * @param mode 0 by y, 1 by x, 2 by x and y
 * @param limits read, [limitCount]: the range, in either order; in mode 2 that of x, then that of y
 * @param limitCount at least 2, in mode 2 at least 4
 * @param removed written, [capacity]: the indices of the samples removed, ascending
 * @param capacity read and written: in the room for indices, out the number of samples removed
 * @param removedCount written: the number of samples removed
 * @retval -20046 n or capacity does not fit 32 bits
 * @retval -20003 n or limitCount is below 1; or there is nothing to remove
 * @retval -20061 the mode is above 2
 * @retval -20006 modes 0 and 1: fewer than two limits
 * @retval -20069 mode 2: fewer than four limits
 * @retval -20068 a limit is NaN
 * @retval -20010 there are more samples to remove than capacity
 * @code
 * int64_t n = 5, room = 5, count, gone[5];
 * double range[2] = {0, 10}, x[5] = {1, 2, 3, 4, 5}, y[5] = {1, -1, 9, 10, 3};
 * QvFitRemoveOutOfRange(x, y, NULL, &n, 0, range, 2, gone, &room, &count);  // keeps 1, 3, 5; gone are 1, 3
 * @endcode
 */
QV_API QvStatus ZemFunc297(double* x, double* y, double* weights, int64_t* n, uint32_t mode, const double* limits, int32_t limitCount, int64_t* removed, int64_t* capacity, int64_t* removedCount);
#define QvFitRemoveOutOfRange ZemFunc297

/**
 * FitRemoveByIndex.
 * Removes samples by their indices. On an error nothing is written.
 * @param x read and written, [n]: the abscissas; those kept stand in front
 * @param y read and written, [n]: the ordinates
 * @param weights read and written, [n], may be null: the weights
 * @param n read and written: in the number of samples, out of those kept
 * @param indices read, [count]: the samples to remove, in any order; one may be named more than once
 * @param count the number of indices
 * @retval -20046 n, count or an index does not fit 32 bits
 * @retval -20003 n or count is below 1
 * @retval -20017 an index is not from 0 to n - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc296(double* x, double* y, double* weights, int64_t* n, const int64_t* indices, int64_t count);
#define QvFitRemoveByIndex ZemFunc296

/** @} */

/** @defgroup gamma Gamma, beta and related functions
 * Factorials and their continuations, the incomplete functions behind the distributions, and two sums of number
 * theory.
 *
 *     Gamma(x) = integral of t^(x - 1) e^-t from 0 to infinity,     n! = Gamma(n + 1)
 *     P(a, x) = integral of t^(a - 1) e^-t from 0 to x / Gamma(a),  Q = 1 - P
 *     B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b)
 *     I_x(a, b) = integral of t^(a - 1) (1 - t)^(b - 1) from 0 to x / B(a, b)
 *     psi(x) = Gamma'(x) / Gamma(x),   zeta(x) - 1 = sum of k^-x from k = 2 on
 *     dilogarithm = integral of -ln t / (t - 1) from 1 to x = Li2(1 - x)
 *
 * Scalar functions of real arguments, returned as the value itself: there is no status. A domain fault gives NaN or
 * the infinity that the function's text names; a NaN argument gives NaN. Where an argument goes by address, a null
 * pointer selects the complete function; the address of 0.0 does not.
 * @{
 */

/**
 * SpecBeta.
 * The beta function, or the regularised incomplete one.
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
 * The gamma function, or the regularised incomplete one.
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

/** @defgroup generators Waveform generators
 * Test signals: each fills an array of n samples with a deterministic waveform and keeps no state of its own.
 *
 *     sine       amp sin(2 pi freq i + phase)
 *     chirp      amp sin((i (f2 - f1) pi / n + 2 pi f1) i)        from f1 to f2
 *     ramp       first + i (last - first) / (n - 1)
 *     sinc       amp sin(pi t) / (pi t)                            t = i dt - delay
 *     Gaussian modulated sine   amp exp(a u^2) cos(2 u)    u = pi centre t,  a = -5 bandwidth^2 / (attenuation ln 10)
 *     Gaussian monopulse        2 sqrt(e) amp u exp(-2 u^2)   u = pi centre t
 *
 * The periodic waves take their phase in degrees by address and leave there the phase of the sample behind the
 * last, in [0, 360), so that the next call goes on without a break. Frequencies are in cycles per sample: a tone of
 * f hertz at a rate of fs has f / fs. The patterns draw one shape over the whole array. The pulses are functions of
 * t = i dt - delay, with delay in the unit of dt and frequencies in the unit of 1/dt.
 *
 * The first check that fails, in the order of the status lists, decides; then neither output nor phase is written.
 * @{
 */

/**
 * GenSineWave.
 * Sine wave, out[i] = amp sin(2 pi freq i + phase).
 * The samples come from a coupled recurrence of sine and cosine; sines are held within [-|amp|, |amp|].
 * @param n samples
 * @param amp amplitude
 * @param freq cycles per sample
 * @param phase read and written: degrees, of the first sample; then of the sample behind the last
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @code
 * double phase = 0;
 * QvGenSineWave(1000, 1.0, 0.01, &phase, out);  // ten cycles; the next call goes on from phase
 * @endcode
 */
QV_API QvStatus ZemFunc159(int64_t n, double amp, double freq, double* phase, double* out);
#define QvGenSineWave ZemFunc159

/**
 * GenSinePattern.
 * Sine of a number of cycles over the array: GenSineWave with the frequency cycles / n.
 * @param n samples
 * @param amp amplitude
 * @param phase degrees, of the first sample
 * @param cycles cycles in the array, any number
 * @param out written, [n]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc158(int64_t n, double amp, double phase, double cycles, double* out);
#define QvGenSinePattern ZemFunc158

/**
 * GenSquareWave.
 * Square wave: amp while the phase is below 3.6 duty degrees, then -amp.
 * The phase of sample i is i 360 freq + phase, computed afresh for each sample.
 * @param n samples
 * @param amp the high level; the low one is -amp
 * @param freq cycles per sample
 * @param phase read and written: degrees, of the first sample; then of the sample behind the last
 * @param duty percent of the period at amp, clamped into [0, 100]
 * @param out written, [n]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc165(int64_t n, double amp, double freq, double* phase, double duty, double* out);
#define QvGenSquareWave ZemFunc165

/**
 * GenTriangleWave.
 * Triangle wave: 0 at phase 0, amp at 90 degrees, -amp at 270 degrees, straight between.
 * The phase of sample i is i 360 freq + phase, computed afresh for each sample.
 * @param n samples
 * @param amp amplitude
 * @param freq cycles per sample
 * @param phase read and written: degrees, of the first sample; then of the sample behind the last
 * @param out written, [n]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc179(int64_t n, double amp, double freq, double* phase, double* out);
#define QvGenTriangleWave ZemFunc179

/**
 * GenSawtoothWave.
 * Sawtooth wave: rises from 0 at phase 0 towards amp at 180 degrees, jumps to -amp and rises back to 0.
 * The phase of sample i is i 360 freq + phase, computed afresh for each sample.
 * @param n samples
 * @param amp amplitude
 * @param freq cycles per sample
 * @param phase read and written: degrees, of the first sample; then of the sample behind the last
 * @param out written, [n]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc151(int64_t n, double amp, double freq, double* phase, double* out);
#define QvGenSawtoothWave ZemFunc151

/**
 * GenArbitraryWave.
 * Plays the period stored in a table.
 * The phase is accumulated from sample to sample in units of table cells.
 * A size below 1 gives zeros and a phase of 0. Positions beyond 2^53 periods stay within the table.
 * @param n samples
 * @param amp factor of the table's values
 * @param freq cycles per sample
 * @param phase read and written: degrees, of the first sample; then of the sample behind the last
 * @param table read, [size]: one period
 * @param size of the table
 * @param interpolation 1 interpolates linearly, from the last cell towards the first; else the cell as it is
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20068 phase or freq is infinite or NaN
 */
QV_API QvStatus ZemFunc9(int64_t n, double amp, double freq, double* phase, const double* table, int64_t size, int32_t interpolation, double* out);
#define QvGenArbitraryWave ZemFunc9

/**
 * GenChirp.
 * Sine with a linearly changing frequency, out[i] = amp sin((i (f2 - f1) pi / n + 2 pi f1) i).
 * @param n samples
 * @param amp amplitude
 * @param f1 cycles per sample at the first sample
 * @param f2 cycles per sample at sample n, the one behind the last
 * @param out written, [n]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc28(int64_t n, double amp, double f1, double f2, double* out);
#define QvGenChirp ZemFunc28

/**
 * GenPulsePattern.
 * Rectangular pulse: amp at the width samples from delay on, 0 elsewhere.
 * delay + width may be n; a width of 0 leaves zeros. -20046 follows if delay or width does not fit 32 bits.
 * @param n samples
 * @param amp height
 * @param delay first sample of the pulse
 * @param width samples in the pulse
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20014 delay or width is negative, or delay + width exceeds n
 */
QV_API QvStatus ZemFunc141(int64_t n, double amp, int64_t delay, int64_t width, double* out);
#define QvGenPulsePattern ZemFunc141

/**
 * GenImpulsePattern.
 * Impulse: amp at the sample index, 0 elsewhere. -20046 follows if index does not fit 32 bits.
 * @param n samples
 * @param amp height
 * @param index sample of the impulse
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20017 index is outside 0 to n - 1
 */
QV_API QvStatus ZemFunc93(int64_t n, double amp, int64_t index, double* out);
#define QvGenImpulsePattern ZemFunc93

/**
 * GenRampPattern.
 * Linear ramp, out[i] = first + i (last - first) / (n - 1).
 * One sample is allowed if first equals last.
 * @param n samples
 * @param first value of the first sample
 * @param last value of the last sample, exactly
 * @param out written, [n]
 * @retval -20006 n is below 2
 */
QV_API QvStatus ZemFunc145(int64_t n, double first, double last, double* out);
#define QvGenRampPattern ZemFunc145

/**
 * GenTrianglePattern.
 * One isosceles triangle from 0 at the first sample; an odd n ends on 0, an even one just before.
 * @param n samples
 * @param amp peak, at sample n / 2
 * @param out written, [n]
 * @retval -20006 n is below 2
 */
QV_API QvStatus ZemFunc178(int64_t n, double amp, double* out);
#define QvGenTrianglePattern ZemFunc178

/**
 * GenSincPattern.
 * Sinc pulse, out[i] = amp sin(pi t) / (pi t) with t = i dt - delay.
 * @param n samples
 * @param amp peak
 * @param delay time of the peak, in the unit of dt
 * @param dt time between samples
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20016 dt is not positive
 */
QV_API QvStatus ZemFunc157(int64_t n, double amp, double delay, double dt, double* out);
#define QvGenSincPattern ZemFunc157

/**
 * GenPeriodicSincPattern.
 * Periodic sinc (Dirichlet kernel), out[i] = amp sin(order x) / (order sin x) with x = (i dt - delay) / 2.
 * Where |sin x| is at most 2.220446049250313e-16 the value is amp, also for an even order where the limit is -amp.
 * @param n samples
 * @param amp peak
 * @param delay time of a peak, in the unit of dt
 * @param dt time between samples
 * @param order of the Dirichlet kernel
 * @param out written, [n]
 * @retval -20140 order is below 1
 * @retval -20003 n is below 1
 * @retval -20016 dt is not positive
 */
QV_API QvStatus ZemFunc349(int64_t n, double amp, double delay, double dt, int32_t order, double* out);
#define QvGenPeriodicSincPattern ZemFunc349

/**
 * GenGaussianModulatedSine.
 * Sine under a Gaussian, out[i] = amp exp(a u^2) cos(2 u) with u = pi centre t.
 * The width follows from a = -5 bandwidth^2 / (attenuation ln 10).
 * @param n samples
 * @param amp peak
 * @param delay time of the peak, in the unit of dt
 * @param dt time between samples
 * @param centre frequency of the sine, in 1 / unit of dt
 * @param bandwidth width of the band as a share of centre
 * @param attenuation dB, of the spectrum at the edges of the band
 * @param out written, [n]
 * @retval -20140 centre, bandwidth or attenuation is not positive
 * @retval -20003 n is below 1
 * @retval -20016 dt is not positive
 */
QV_API QvStatus ZemFunc348(int64_t n, double amp, double delay, double dt, double centre, double bandwidth, double attenuation, double* out);
#define QvGenGaussianModulatedSine ZemFunc348

/**
 * GenGaussianMonopulse.
 * Gaussian monopulse, out[i] = 2 sqrt(e) amp u exp(-2 u^2) with u = pi centre t.
 * @param n samples
 * @param amp extreme values amp and -amp
 * @param delay time of the zero between them, in the unit of dt
 * @param dt time between samples
 * @param centre frequency, in 1 / unit of dt
 * @param out written, [n]
 * @retval -20140 centre is not positive
 * @retval -20003 n is below 1
 * @retval -20016 dt is not positive
 */
QV_API QvStatus ZemFunc347(int64_t n, double amp, double delay, double dt, double centre, double* out);
#define QvGenGaussianMonopulse ZemFunc347

/**
 * GenSkewedTrianglePulse.
 * Triangular pulse: rises from 0 at t = 0 to amp at t = skew width and falls to 0 at t = width; 0 elsewhere.
 * A skew of 0 starts at amp, a skew of 1 ends at amp.
 * @param n samples
 * @param amp height of the apex
 * @param delay start of the pulse, in the unit of dt
 * @param dt time between samples
 * @param width of the pulse, in the unit of dt
 * @param skew place of the apex as a share of width, 0 to 1
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20140 width is not positive
 * @retval -20016 dt is not positive
 * @retval -20053 skew is outside 0 to 1
 */
QV_API QvStatus ZemFunc350(int64_t n, double amp, double delay, double dt, double width, double skew, double* out);
#define QvGenSkewedTrianglePulse ZemFunc350

/** @} */

/** @defgroup iir_design IIR design and one-shot IIR filters
 * Recursive filters of six families and four kinds, into a filter object, as coefficients, or applied at once. An
 * analog lowpass prototype with its cutoff at 1 rad/s goes, pole pair by pole pair, through the bilinear transform
 * with prewarped edges into stages of second order (lowpass, highpass) or of fourth order (bandpass, bandstop,
 * which have twice the order of the prototype). No polynomial of high degree is formed, so that high orders stay
 * accurate.
 *
 *     s = (1 - z^-1) / (1 + z^-1),   w = tan(pi f / fs),   B = wh - wl,   P = wl wh
 *     lowpass s / w,   highpass w / s,   bandpass (s^2 + P) / (B s),   bandstop B s / (s^2 + P)   for its s
 *     Butterworth         |H|^2 = 1 / (1 + W^(2 N))                       3 dB down at the edges
 *     Bessel              H = B_N(0) / B_N(s), reverse Bessel polynomial  scaled to 3 dB down at the edges
 *     Chebyshev           |H|^2 = 1 / (1 + e^2 T_N(W)^2)                  e^2 = 10^(ripple/10) - 1
 *     inverse Chebyshev   |H|^2 = 1 / (1 + 1 / (e^2 T_N(1/W)^2))          e^2 = 1 / (10^(attenuation/10) - 1)
 *     elliptic            |H|^2 = 1 / (1 + e^2 R_N(W)^2)                  e^2 = 10^(ripple/10) - 1
 *     even pole           poles -sqrt(1 - x^2) +- i x,  x = 1 - (2k + 1)/N,  k = 0, 1, ...;  -1 for odd N
 *
 * H is the prototype of order N, W its frequency and R_N the elliptic rational function; "for its s" reads: in
 * place of the s of the prototype. Frequencies are in the unit of fs, the sampling rate. Kinds: 0 lowpass, 1
 * highpass, 2 bandpass, 3 bandstop; the first two have their cutoff in fl (or fc) and ignore fh. Ripple and
 * attenuation are in dB, above 0. The passband peaks at 0 dB. The edges of Chebyshev and elliptic filters are the
 * end of the passband, where the ripple is reached for the last time; that of inverse Chebyshev filters is the
 * begin of the stopband, where the attenuation is first reached. The even-pole family has poles on the unit circle
 * with equally spaced imaginary parts; it is not 3 dB down at its edges.
 *
 * Designs check in the order of their statuses. The one-shot filters of real arrays check their sizes and levels
 * elsewhere, and accept a cutoff of fs/2, which the designs refuse with -20023.
 * @{
 */

/**
 * IirDesignEvenPole.
 * Designs an even-pole filter: poles on the unit circle with equally spaced imaginary parts.
 * Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error they are unchanged.
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param filter handle: the filter; its kind and order are those wanted
 * @retval -20021 the order of the record is below 1
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20061 the kind of the record is above 3
 * @retval -20066 the record has too few coefficients for its order
 */
QV_API QvStatus ZemFunc12(double fs, double fl, double fh, QvIirFilter* filter);
#define QvIirDesignEvenPole ZemFunc12

/**
 * IirDesignButterworth.
 * Designs a Butterworth filter, maximally flat in the passband and 3 dB down at the edges.
 * Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error they are unchanged.
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param filter handle: the filter; its kind and order are those wanted
 * @retval -20021 the order of the record is below 1
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20061 the kind of the record is above 3
 * @retval -20066 the record has too few coefficients for its order
 * @code
 * QvIirFilter* filter = QvIirFilterCreate(2, 3);
 * QvIirDesignButterworth(1000, 8, 13, filter);  // the alpha band of an EEG
 * QvIirFilterRelease(filter);
 * @endcode
 */
QV_API QvStatus ZemFunc18(double fs, double fl, double fh, QvIirFilter* filter);
#define QvIirDesignButterworth ZemFunc18

/**
 * IirDesignBessel.
 * Designs a Bessel filter, of maximally flat delay before the transform to digital form, and 3 dB down at the edges.
 * Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error they are unchanged.
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param filter handle: the filter; its kind and order are those wanted
 * @retval -20021 the order of the record is below 1
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20061 the kind of the record is above 3
 * @retval -20066 the record has too few coefficients for its order
 * @retval -20001 memory is exhausted
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 */
QV_API QvStatus ZemFunc471(double fs, double fl, double fh, QvIirFilter* filter);
#define QvIirDesignBessel ZemFunc471

/**
 * IirDesignChebyshev.
 * Designs a Chebyshev filter, of equal ripple in the passband, whose peaks are at 0 dB.
 * Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error they are unchanged.
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param ripple ripple of the passband in dB
 * @param filter handle: the filter; its kind and order are those wanted
 * @retval -20021 the order of the record is below 1
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20061 the kind of the record is above 3
 * @retval -20066 the record has too few coefficients for its order
 */
QV_API QvStatus ZemFunc24(double fs, double fl, double fh, double ripple, QvIirFilter* filter);
#define QvIirDesignChebyshev ZemFunc24

/**
 * IirDesignInverseChebyshev.
 * Designs an inverse Chebyshev filter, of equal ripple in the stopband.
 * Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error they are unchanged.
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param attenuation attenuation of the stopband in dB
 * @param filter handle: the filter; its kind and order are those wanted
 * @retval -20021 the order of the record is below 1
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 a frequency is above fs/2
 * @retval -20061 the kind of the record is above 3
 * @retval -20066 the record has too few coefficients for its order
 */
QV_API QvStatus ZemFunc98(double fs, double fl, double fh, double attenuation, QvIirFilter* filter);
#define QvIirDesignInverseChebyshev ZemFunc98

/**
 * IirDesignElliptic.
 * Designs an elliptic filter, of equal ripple in passband and stopband.
 * Writes the coefficients and nothing else: the delay lines go on, unless the filter is reset. After an error they are unchanged.
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param filter handle: the filter; its kind and order are those wanted
 * @retval -20021 the order of the record is below 1
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20061 the kind of the record is above 3
 * @retval -20066 the record has too few coefficients for its order
 */
QV_API QvStatus ZemFunc61(double fs, double fl, double fh, double ripple, double attenuation, QvIirFilter* filter);
#define QvIirDesignElliptic ZemFunc61

/**
 * IirCoefficientsEvenPole.
 * Designs an even-pole filter: poles on the unit circle with equally spaced imaginary parts, as one transfer function.
 * Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param order order of the analog prototype
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param a written, [aSize]: denominator, a[0] = 1, in ascending powers of z^-1
 * @param aSize room in a
 * @param b written, [bSize]: numerator
 * @param bSize room in b
 * @retval -20001 memory is exhausted, or there is no such kind or order
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20066 an array is too short
 */
QV_API QvStatus ZemFunc13(int32_t kind, int32_t order, double fs, double fl, double fh, double* a, int32_t aSize, double* b, int32_t bSize);
#define QvIirCoefficientsEvenPole ZemFunc13

/**
 * IirCoefficientsButterworth.
 * Designs a Butterworth filter, maximally flat in the passband and 3 dB down at the edges, as one transfer function.
 * Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param order order of the analog prototype
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param a written, [aSize]: denominator, a[0] = 1, in ascending powers of z^-1
 * @param aSize room in a
 * @param b written, [bSize]: numerator
 * @param bSize room in b
 * @retval -20001 memory is exhausted, or there is no such kind or order
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20066 an array is too short
 * @code
 * double a[3], b[3];
 * QvIirCoefficientsButterworth(0, 2, 4, 1, 0, a, 3, b, 3);  // b = 0.2929, 0.5858, 0.2929; a = 1, 0, 0.1716
 * @endcode
 */
QV_API QvStatus ZemFunc19(int32_t kind, int32_t order, double fs, double fl, double fh, double* a, int32_t aSize, double* b, int32_t bSize);
#define QvIirCoefficientsButterworth ZemFunc19

/**
 * IirCoefficientsChebyshev.
 * Designs a Chebyshev filter, of equal ripple in the passband, whose peaks are at 0 dB, as one transfer function.
 * Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param order order of the analog prototype
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param ripple ripple of the passband in dB
 * @param a written, [aSize]: denominator, a[0] = 1, in ascending powers of z^-1
 * @param aSize room in a
 * @param b written, [bSize]: numerator
 * @param bSize room in b
 * @retval -20001 memory is exhausted, or there is no such kind or order
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20066 an array is too short
 */
QV_API QvStatus ZemFunc25(int32_t kind, int32_t order, double fs, double fl, double fh, double ripple, double* a, int32_t aSize, double* b, int32_t bSize);
#define QvIirCoefficientsChebyshev ZemFunc25

/**
 * IirCoefficientsInverseChebyshev.
 * Designs an inverse Chebyshev filter, of equal ripple in the stopband, as one transfer function.
 * Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param order order of the analog prototype
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param attenuation attenuation of the stopband in dB
 * @param a written, [aSize]: denominator, a[0] = 1, in ascending powers of z^-1
 * @param aSize room in a
 * @param b written, [bSize]: numerator
 * @param bSize room in b
 * @retval -20001 memory is exhausted, or there is no such kind or order
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 a frequency is above fs/2
 * @retval -20066 an array is too short
 */
QV_API QvStatus ZemFunc99(int32_t kind, int32_t order, double fs, double fl, double fh, double attenuation, double* a, int32_t aSize, double* b, int32_t bSize);
#define QvIirCoefficientsInverseChebyshev ZemFunc99

/**
 * IirCoefficientsElliptic.
 * Designs an elliptic filter, of equal ripple in passband and stopband, as one transfer function.
 * Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.
 * @param kind 0 lowpass, 1 highpass, 2 bandpass, 3 bandstop
 * @param order order of the analog prototype
 * @param fs sampling rate
 * @param fl lower edge, or the cutoff
 * @param fh upper edge of a band; ignored for kinds 0 and 1
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param a written, [aSize]: denominator, a[0] = 1, in ascending powers of z^-1
 * @param aSize room in a
 * @param b written, [bSize]: numerator
 * @param bSize room in b
 * @retval -20001 memory is exhausted, or there is no such kind or order
 * @retval -20023 fs or a frequency is 0 or below, fl is not below fh, or a cutoff is not below fs/2
 * @retval -20020 a frequency is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20066 an array is too short
 */
QV_API QvStatus ZemFunc62(int32_t kind, int32_t order, double fs, double fl, double fh, double ripple, double attenuation, double* a, int32_t aSize, double* b, int32_t bSize);
#define QvIirCoefficientsElliptic ZemFunc62

/**
 * IirToDirectForm.
 * Multiplies the stages of a filter up to one transfer function.
 * Writes order + 1 coefficients to each array, 2 order + 1 for a band; what lies behind them is unchanged.
 * @param filter handle, may be null: the filter, designed
 * @param a written, [aSize]: denominator, a[0] = 1, in ascending powers of z^-1
 * @param aSize room in a
 * @param b written, [bSize]: numerator
 * @param bSize room in b
 * @retval -20066 the filter is null
 * @retval -20021 the order of the record is below 1
 * @retval -20061 the kind of the record is none of the four
 * @retval -20066 the counts of the record do not fit together, or an array is too short
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc236(QvIirFilter* filter, double* a, int32_t aSize, double* b, int32_t bSize);
#define QvIirToDirectForm ZemFunc236

/**
 * IirFilterButterworthLowpass.
 * Filters a signal from rest with a Butterworth lowpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20020 fc is above fs/2
 * @code
 * QvIirFilterButterworthLowpass(x, 1000, 360, 40, 4, 0);  // in place
 * @endcode
 */
QV_API QvStatus ZemFunc21(double* x, int64_t n, double fs, double fc, int32_t order, double* y);
#define QvIirFilterButterworthLowpass ZemFunc21

/**
 * IirFilterButterworthHighpass.
 * Filters a signal from rest with a Butterworth highpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc20(double* x, int64_t n, double fs, double fc, int32_t order, double* y);
#define QvIirFilterButterworthHighpass ZemFunc20

/**
 * IirFilterButterworthBandpass.
 * Filters a signal from rest with a Butterworth bandpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc16(double* x, int64_t n, double fs, double fl, double fh, int32_t order, double* y);
#define QvIirFilterButterworthBandpass ZemFunc16

/**
 * IirFilterButterworthBandstop.
 * Filters a signal from rest with a Butterworth bandstop, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc17(double* x, int64_t n, double fs, double fl, double fh, int32_t order, double* y);
#define QvIirFilterButterworthBandstop ZemFunc17

/**
 * IirFilterChebyshevLowpass.
 * Filters a signal from rest with a Chebyshev lowpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20024 the ripple is 0 or below
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc27(double* x, int64_t n, double fs, double fc, double ripple, int32_t order, double* y);
#define QvIirFilterChebyshevLowpass ZemFunc27

/**
 * IirFilterChebyshevHighpass.
 * Filters a signal from rest with a Chebyshev highpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20024 the ripple is 0 or below
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc26(double* x, int64_t n, double fs, double fc, double ripple, int32_t order, double* y);
#define QvIirFilterChebyshevHighpass ZemFunc26

/**
 * IirFilterChebyshevBandpass.
 * Filters a signal from rest with a Chebyshev bandpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20024 the ripple is 0 or below
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc22(double* x, int64_t n, double fs, double fl, double fh, double ripple, int32_t order, double* y);
#define QvIirFilterChebyshevBandpass ZemFunc22

/**
 * IirFilterChebyshevBandstop.
 * Filters a signal from rest with a Chebyshev bandstop, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20024 the ripple is 0 or below
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc23(double* x, int64_t n, double fs, double fl, double fh, double ripple, int32_t order, double* y);
#define QvIirFilterChebyshevBandstop ZemFunc23

/**
 * IirFilterInverseChebyshevLowpass.
 * Filters a signal from rest with an inverse Chebyshev lowpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the stopband
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc101(double* x, int64_t n, double fs, double fc, double attenuation, int32_t order, double* y);
#define QvIirFilterInverseChebyshevLowpass ZemFunc101

/**
 * IirFilterInverseChebyshevHighpass.
 * Filters a signal from rest with an inverse Chebyshev highpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the stopband
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc100(double* x, int64_t n, double fs, double fc, double attenuation, int32_t order, double* y);
#define QvIirFilterInverseChebyshevHighpass ZemFunc100

/**
 * IirFilterInverseChebyshevBandpass.
 * Filters a signal from rest with an inverse Chebyshev bandpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc96(double* x, int64_t n, double fs, double fl, double fh, double attenuation, int32_t order, double* y);
#define QvIirFilterInverseChebyshevBandpass ZemFunc96

/**
 * IirFilterInverseChebyshevBandstop.
 * Filters a signal from rest with an inverse Chebyshev bandstop, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc97(double* x, int64_t n, double fs, double fl, double fh, double attenuation, int32_t order, double* y);
#define QvIirFilterInverseChebyshevBandstop ZemFunc97

/**
 * IirFilterEllipticLowpass.
 * Filters a signal from rest with an elliptic lowpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc64(double* x, int64_t n, double fs, double fc, double ripple, double attenuation, int32_t order, double* y);
#define QvIirFilterEllipticLowpass ZemFunc64

/**
 * IirFilterEllipticHighpass.
 * Filters a signal from rest with an elliptic highpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or fc is 0 or below
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20020 fc is above fs/2
 */
QV_API QvStatus ZemFunc63(double* x, int64_t n, double fs, double fc, double ripple, double attenuation, int32_t order, double* y);
#define QvIirFilterEllipticHighpass ZemFunc63

/**
 * IirFilterEllipticBandpass.
 * Filters a signal from rest with an elliptic bandpass, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc59(double* x, int64_t n, double fs, double fl, double fh, double ripple, double attenuation, int32_t order, double* y);
#define QvIirFilterEllipticBandpass ZemFunc59

/**
 * IirFilterEllipticBandstop.
 * Filters a signal from rest with an elliptic bandstop, section by section in direct form I.
 * Takes no memory. Denormals are not flushed. Otherwise like a filter object, to within rounding.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20003 n is below 1
 * @retval -20021 the order is below 1
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20020 fh is above fs/2
 */
QV_API QvStatus ZemFunc60(double* x, int64_t n, double fs, double fl, double fh, double ripple, double attenuation, int32_t order, double* y);
#define QvIirFilterEllipticBandstop ZemFunc60

/**
 * IirFilterBesselLowpass.
 * Designs a Bessel lowpass and applies it, from rest, to a signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc399(double* x, int64_t n, double fs, double fc, int32_t order, double* y);
#define QvIirFilterBesselLowpass ZemFunc399

/**
 * IirFilterBesselHighpass.
 * Designs a Bessel highpass and applies it, from rest, to a signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc400(double* x, int64_t n, double fs, double fc, int32_t order, double* y);
#define QvIirFilterBesselHighpass ZemFunc400

/**
 * IirFilterBesselBandpass.
 * Designs a Bessel bandpass and applies it, from rest, to a signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc401(double* x, int64_t n, double fs, double fl, double fh, int32_t order, double* y);
#define QvIirFilterBesselBandpass ZemFunc401

/**
 * IirFilterBesselBandstop.
 * Designs a Bessel bandstop and applies it, from rest, to a signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc402(double* x, int64_t n, double fs, double fl, double fh, int32_t order, double* y);
#define QvIirFilterBesselBandstop ZemFunc402

/**
 * IirFilterComplexButterworthLowpass.
 * Designs a Butterworth lowpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc450(QvComplex* x, int64_t n, double fs, double fc, int32_t order, QvComplex* y);
#define QvIirFilterComplexButterworthLowpass ZemFunc450

/**
 * IirFilterComplexButterworthHighpass.
 * Designs a Butterworth highpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc451(QvComplex* x, int64_t n, double fs, double fc, int32_t order, QvComplex* y);
#define QvIirFilterComplexButterworthHighpass ZemFunc451

/**
 * IirFilterComplexButterworthBandpass.
 * Designs a Butterworth bandpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc452(QvComplex* x, int64_t n, double fs, double fl, double fh, int32_t order, QvComplex* y);
#define QvIirFilterComplexButterworthBandpass ZemFunc452

/**
 * IirFilterComplexButterworthBandstop.
 * Designs a Butterworth bandstop and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc453(QvComplex* x, int64_t n, double fs, double fl, double fh, int32_t order, QvComplex* y);
#define QvIirFilterComplexButterworthBandstop ZemFunc453

/**
 * IirFilterComplexChebyshevLowpass.
 * Designs a Chebyshev lowpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20024 the ripple is 0 or below
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc454(QvComplex* x, int64_t n, double fs, double fc, double ripple, int32_t order, QvComplex* y);
#define QvIirFilterComplexChebyshevLowpass ZemFunc454

/**
 * IirFilterComplexChebyshevHighpass.
 * Designs a Chebyshev highpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20024 the ripple is 0 or below
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc455(QvComplex* x, int64_t n, double fs, double fc, double ripple, int32_t order, QvComplex* y);
#define QvIirFilterComplexChebyshevHighpass ZemFunc455

/**
 * IirFilterComplexChebyshevBandpass.
 * Designs a Chebyshev bandpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc456(QvComplex* x, int64_t n, double fs, double fl, double fh, double ripple, int32_t order, QvComplex* y);
#define QvIirFilterComplexChebyshevBandpass ZemFunc456

/**
 * IirFilterComplexChebyshevBandstop.
 * Designs a Chebyshev bandstop and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc457(QvComplex* x, int64_t n, double fs, double fl, double fh, double ripple, int32_t order, QvComplex* y);
#define QvIirFilterComplexChebyshevBandstop ZemFunc457

/**
 * IirFilterComplexInverseChebyshevLowpass.
 * Designs an inverse Chebyshev lowpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the stopband
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20025 the attenuation is 0 or below
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc458(QvComplex* x, int64_t n, double fs, double fc, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexInverseChebyshevLowpass ZemFunc458

/**
 * IirFilterComplexInverseChebyshevHighpass.
 * Designs an inverse Chebyshev highpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the stopband
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20025 the attenuation is 0 or below
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc459(QvComplex* x, int64_t n, double fs, double fc, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexInverseChebyshevHighpass ZemFunc459

/**
 * IirFilterComplexInverseChebyshevBandpass.
 * Designs an inverse Chebyshev bandpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 fh is above fs/2
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc460(QvComplex* x, int64_t n, double fs, double fl, double fh, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexInverseChebyshevBandpass ZemFunc460

/**
 * IirFilterComplexInverseChebyshevBandstop.
 * Designs an inverse Chebyshev bandstop and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20025 the attenuation is 0 or below
 * @retval -20020 fh is above fs/2
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc461(QvComplex* x, int64_t n, double fs, double fl, double fh, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexInverseChebyshevBandstop ZemFunc461

/**
 * IirFilterComplexEllipticLowpass.
 * Designs an elliptic lowpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc462(QvComplex* x, int64_t n, double fs, double fc, double ripple, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexEllipticLowpass ZemFunc462

/**
 * IirFilterComplexEllipticHighpass.
 * Designs an elliptic highpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc edge of the passband
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc463(QvComplex* x, int64_t n, double fs, double fc, double ripple, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexEllipticHighpass ZemFunc463

/**
 * IirFilterComplexEllipticBandpass.
 * Designs an elliptic bandpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc464(QvComplex* x, int64_t n, double fs, double fl, double fh, double ripple, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexEllipticBandpass ZemFunc464

/**
 * IirFilterComplexEllipticBandstop.
 * Designs an elliptic bandstop and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param ripple ripple of the passband in dB
 * @param attenuation attenuation of the stopband in dB
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20024 the ripple is 0 or below
 * @retval -20025 the attenuation is 0 or below
 * @retval -20028 the ripple is not below the attenuation
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc465(QvComplex* x, int64_t n, double fs, double fl, double fh, double ripple, double attenuation, int32_t order, QvComplex* y);
#define QvIirFilterComplexEllipticBandstop ZemFunc465

/**
 * IirFilterComplexBesselLowpass.
 * Designs a Bessel lowpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc403(QvComplex* x, int64_t n, double fs, double fc, int32_t order, QvComplex* y);
#define QvIirFilterComplexBesselLowpass ZemFunc403

/**
 * IirFilterComplexBesselHighpass.
 * Designs a Bessel highpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fc cutoff
 * @param order order of the analog prototype
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or fc is 0 or below, or fc is fs/2 or above
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc404(QvComplex* x, int64_t n, double fs, double fc, int32_t order, QvComplex* y);
#define QvIirFilterComplexBesselHighpass ZemFunc404

/**
 * IirFilterComplexBesselBandpass.
 * Designs a Bessel bandpass and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc405(QvComplex* x, int64_t n, double fs, double fl, double fh, int32_t order, QvComplex* y);
#define QvIirFilterComplexBesselBandpass ZemFunc405

/**
 * IirFilterComplexBesselBandstop.
 * Designs a Bessel bandstop and applies it, from rest, to both parts of a complex signal, as a filter object would be.
 * @param x read and written, [n]: the signal, replaced by the result when y is null
 * @param n its length
 * @param fs sampling rate
 * @param fl lower edge
 * @param fh upper edge
 * @param order order of the analog prototype, half that of the filter
 * @param y written, [n], may be null: the filtered signal
 * @retval -20021 the order is below 1
 * @retval -20001 memory is exhausted
 * @retval -20023 fs or a frequency is 0 or below, or fl is not below fh
 * @retval -20020 fh is above fs/2
 * @retval -20062 the poles or the cutoff were not found: the order is too high
 * @retval -20063 the order is so high (beyond 150 or so) that its polynomial leaves the range of doubles
 * @retval -20116 the cutoff was not found
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc406(QvComplex* x, int64_t n, double fs, double fl, double fh, int32_t order, QvComplex* y);
#define QvIirFilterComplexBesselBandstop ZemFunc406

/** @} */

/** @defgroup integration Integration of sampled data
 * The definite integral of equally spaced samples by a closed Newton-Cotes rule. Each rule takes as many whole
 * panels as fit; the samples left over at the end go through the next lower rule that fits them, so that every
 * sample counts.
 *
 *     0 trapezoid       dt / 2    (x0 + x1)                                 a panel of 1 interval
 *     1 Simpson         dt / 3    (x0 + 4 x1 + x2)                          of 2
 *     2 Simpson 3/8     3 dt / 8  (x0 + 3 x1 + 3 x2 + x3)                   of 3
 *     3 Boole           2 dt / 45 (7 x0 + 32 x1 + 12 x2 + 32 x3 + 7 x4)     of 4
 *
 * dt is the distance of the samples; the result is in the unit of x times that of dt.
 * @{
 */

/**
 * IntegrateSamples.
 * The definite integral from the first sample to the last.
 * The rules are exact for polynomials of degree 1, 3, 3 and 5 where whole panels fit (Abramowitz and Stegun 25.4).
 * On an error the result stays unwritten.
 * @param x read, [n]: the samples
 * @param n their number, at least rule + 2
 * @param dt the sampling interval; its sign does not matter
 * @param rule 0: trapezoid; 1: Simpson; 2: Simpson's 3/8; 3: Boole
 * @param result written: the integral, in units of x times units of dt
 * @retval -20008 n is below 2, 3, 4, 5 for rule 0, 1, 2, 3
 * @retval -20061 the rule is above 3
 * @code
 * QvIntegrateSamples(power, 1000, 1e-3, 1, &energy);
 * @endcode
 */
QV_API QvStatus ZemFunc230(const double* x, int64_t n, double dt, uint32_t rule, double* result);
#define QvIntegrateSamples ZemFunc230

/** @} */

/** @defgroup interpolation Interpolation
 * The value between samples: by the one polynomial or the one diagonal rational function through all of them, by a
 * cubic spline in two stages (second derivatives once, then as many points as wanted), or by a smoothing spline,
 * which weighs the fit of the samples against the curvature.
 *
 *     h = x[i + 1] - x[i],   A = (x[i + 1] - u) / h,   B = 1 - A
 *     spline(u) = A y[i] + B y[i + 1] + ((A^3 - A) y"[i] + (B^3 - B) y"[i + 1]) h^2 / 6
 *     smoothing: balance sum of w (y - s)^2 + (1 - balance) integral of lambda s"^2 is least
 *
 * Abscissas ascend in the splines. A balance of 1 goes through the samples, one of 0 gives the line of least
 * squares.
 * @{
 */

/**
 * InterpPolynomial.
 * The value of the polynomial of degree n - 1 through all samples.
 * Neville's scheme, along the path of corrections nearest the point. On an error nothing is written.
 * @param x read, [n]: the abscissas, distinct, in any order
 * @param y read, [n]: the ordinates
 * @param n the number of samples
 * @param point where the value is wanted
 * @param result written: the value
 * @param error written: an estimate of its error: the last correction; 0 for one sample
 * @retval -20003 n is below 1
 * @retval -20049 two abscissas are equal
 * @retval -20001 memory is exhausted
 * @code
 * double x[3] = {0, 1, 3}, y[3] = {1, 2, 10}, value, error;
 * QvInterpPolynomial(x, y, 3, 2, &value, &error);  // 5
 * @endcode
 */
QV_API QvStatus ZemFunc138(const double* x, const double* y, int64_t n, double point, double* result, double* error);
#define QvInterpPolynomial ZemFunc138

/**
 * InterpRational.
 * The value of the diagonal rational function through all samples.
 * The scheme of R. Bulirsch and J. Stoer (Numer. Math. 6, 1964). At a sample the value is that sample. On an error
 * nothing is written.
 * @param x read, [n]: the abscissas, distinct, in any order
 * @param y read, [n]: the ordinates
 * @param n the number of samples
 * @param point where the value is wanted
 * @param result written: the value
 * @param error written: an estimate of its error: the last correction; 0 for one sample and at a sample
 * @retval -20003 n is below 1
 * @retval -20050 the function has a pole at the point
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc146(const double* x, const double* y, int64_t n, double point, double* result, double* error);
#define QvInterpRational ZemFunc146

/**
 * InterpSplineSecondDerivatives.
 * The second derivatives of the interpolating cubic spline, for QvInterpSplineEvaluate.
 * At a natural end the second derivative is 0. One sample gives 0. On -20049 the array holds partial values.
 * @param x read, [n]: the abscissas, ascending or descending
 * @param y read, [n]: the ordinates
 * @param n the number of samples
 * @param first the first derivative at the first sample; above 9.9e29: a natural end
 * @param last the first derivative at the last sample; above 9.9e29: a natural end
 * @param second written, [n]: the second derivatives of the spline at the samples
 * @retval -20003 n is below 1
 * @retval -20049 two of three consecutive abscissas are equal
 * @retval -20001 memory is exhausted
 * @code
 * QvInterpSplineSecondDerivatives(x, y, n, 1e30, 1e30, second);
 * QvInterpSplineEvaluate(x, y, second, n, 2.5, &value);
 * @endcode
 */
QV_API QvStatus ZemFunc164(const double* x, const double* y, int64_t n, double first, double last, double* second);
#define QvInterpSplineSecondDerivatives ZemFunc164

/**
 * InterpSplineEvaluate.
 * The value of a cubic spline. Beyond the samples the end interval goes on.
 * @param x read, [n]: the abscissas, ascending or descending
 * @param y read, [n]: the ordinates
 * @param second read, [n]: the second derivatives at the samples
 * @param n the number of samples
 * @param point where the value is wanted
 * @param result written: the value
 * @retval -20003 n is below 1
 * @retval -20049 the interval at the point has the width 0, as one sample has
 */
QV_API QvStatus ZemFunc163(const double* x, const double* y, const double* second, int64_t n, double point, double* result);
#define QvInterpSplineEvaluate ZemFunc163

/**
 * InterpSmoothingSpline.
 * The values at the samples of the cubic smoothing spline, which minimises
 * balance sum of w (y - s)^2 + (1 - balance) integral of lambda s''^2.
 * C. H. Reinsch, Numer. Math. 10 (1967). A balance outside 0 to 1 becomes 8 / (8 + g^3) with g = (x[n - 1] - x[0]) / n.
 * A balance of exactly 1 copies y. Two samples leave the output untouched. On an error nothing is written, except that a
 * balance of 1 copies before it finds equal abscissas.
 * @param x read, [n], may be null: the abscissas, strictly ascending
 * @param y read and written, [n]: the ordinates; the smoothed values when out is null
 * @param weights read, [n], may be null: the weights of the samples, by magnitude; null: all 1
 * @param n the number of samples
 * @param balance from 0, the least-squares line, to 1, interpolation; outside, it is chosen from the mean interval
 * @param smoothness read, [n - 1], may be null: the weights of the intervals' curvature, by magnitude; null: all 1
 * @param out written, [n], may be null: the smoothed values; null: over y
 * @retval -20006 n is below 2
 * @retval -20002 x is null
 * @retval -20049 the abscissas do not ascend strictly; with a balance of 1: two of three consecutive ones are equal
 * @retval -20141 a weight of a sample or of an interval is 0
 * @retval -20041 the system is singular (seven samples and more)
 * @retval -20062 the solver did not converge (fewer than seven samples)
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc285(const double* x, double* y, const double* weights, int64_t n, double balance, const double* smoothness, double* out);
#define QvInterpSmoothingSpline ZemFunc285

/** @} */

/** @defgroup linear_fits Linear and polynomial fits
 * Least squares for models that are linear in their coefficients: any design matrix, and polynomials of which some
 * coefficients may be fixed.
 *
 *     f[i] = sum over j of X[i, j] c[j],        minimises sum of ((y[i] - f[i]) / deviation[i])^2
 *     polynomial: f[i] = c[0] + c[1] x[i] + ... + c[order] x[i]^order,    minimises sum of |w[i]| (y[i] - f[i])^2
 *     error = sum of weight (y - f)^2 / n,      covariance = (X' W X)^-1
 *
 * A design has m rows and n columns, row-major; row i holds the basis functions at observation i. Coefficients of
 * polynomials stand in ascending power. Weights count by magnitude, a deviation of 0 as a weight of 1.
 *
 * The fitted curve and the error are produced together: of the general fit and of the polynomials without fixed
 * coefficients one alone is not written.
 * @{
 */

/**
 * FitGeneralLinear.
 * The coefficients c that minimise |y - X c|.
 * 0 and 6 give the solution of smallest norm: 0 drops singular values of 0, 6 those at or below m s(0) 2.2e-16. The
 * normal equations (4, 5) are faster for many observations and square the condition number. NaN in y shows in the
 * coefficients; NaN in the design too with selector 4.
 * @param design read, [m * n]: the basis functions at the observations
 * @param m the number of observations, at least n
 * @param n the number of coefficients
 * @param y read, [m]: the observations
 * @param coefficients written, [n]: the coefficients
 * @param selector 0 singular values; 1, 2, 3 QR; 4 LU, 5 Cholesky of the normal equations; 6 singular values truncated
 * @retval -20021 n is below 1
 * @retval -20037 m is below n
 * @retval -20061 the selector is above 6
 * @retval -20046 the design has more than 2^31 - 1 elements
 * @retval -20041 selectors 1 to 4: the system is singular, exactly
 * @retval -20071 selector 5: the normal matrix is not positive definite
 * @retval -20068 an element of the design (selectors 0 to 3, 6) or of the normal matrix (5) is not finite
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 * @code
 * double design[6] = {1, 0, 1, 1, 1, 2}, y[3] = {1, 3, 5}, c[2];
 * QvFitGeneralLinear(design, 3, 2, y, c, 0);  // 1 and 2: y = 1 + 2 x
 * @endcode
 */
QV_API QvStatus ZemFunc239(const double* design, int64_t m, int64_t n, const double* y, double* coefficients, uint32_t selector);
#define QvFitGeneralLinear ZemFunc239

/**
 * FitGeneralLinearEx.
 * The coefficients that minimise the sum of ((y - X c) / deviation)^2.
 * With the selectors 4 and 5 the covariance is written before the coefficients are solved for.
 * @param design read, [m * n]: the basis functions at the observations
 * @param m the number of observations, at least n
 * @param n the number of coefficients
 * @param y read, [m]: the observations
 * @param deviations read, [m], may be null: the standard deviations of the observations; 0 weighs 1; null: all 1
 * @param selector as for QvFitGeneralLinear
 * @param fitted written, [m], may be null: the fitted curve, X c; only together with the error
 * @param coefficients written, [n]: the coefficients
 * @param covariance written, [n * n], may be null: the covariance of the coefficients, (X' W X)^-1 with W the weights
 * @param meanSquaredError written, may be null: sum of w (y - f)^2 / m; only together with the curve
 * @retval -20021 n is below 1
 * @retval -20037 m is below n
 * @retval -20061 the selector is above 6
 * @retval -20046 the design has more than 2^31 - 1 elements
 * @retval -20041 selectors 1 to 4: the system is singular, exactly
 * @retval -20071 selector 5: the normal matrix is not positive definite
 * @retval -20068 a scaled element of the design (selectors 0 to 3, 6) or of the normal matrix (5; 4 with a covariance) is not finite
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc86(const double* design, int64_t m, int64_t n, const double* y, const double* deviations, uint32_t selector, double* fitted, double* coefficients, double* covariance, double* meanSquaredError);
#define QvFitGeneralLinearEx ZemFunc86

/**
 * FitPolynomial.
 * The polynomial of least squares, by singular values. Powers above 25 are not fitted: their coefficients are 0.
 * @param x read and written, [n]: the abscissas; the fitted curve when fitted is null and the error is wanted
 * @param y read, [n]: the ordinates
 * @param n the number of samples, more than the order
 * @param order the degree of the polynomial
 * @param fitted written, [n], may be null: the fitted curve; only together with the error
 * @param coefficients written, [order + 1]: the coefficients in ascending power
 * @param meanSquaredError written, may be null: sum of (y - f)^2 / n
 * @retval -20103 the order is negative
 * @retval -20037 n is not above the order
 * @retval -20046 n times the number of powers is above 2^31 - 1
 * @retval -20068 a power of an abscissa is not finite
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 * @retval 20031 the order is above 25
 * @code
 * double x[4] = {0, 1, 2, 3}, y[4] = {1, 2, 5, 10}, curve[4], c[3], error;
 * QvFitPolynomial(x, y, 4, 2, curve, c, &error);  // 1, 0, 1
 * @endcode
 */
QV_API QvStatus ZemFunc137(double* x, const double* y, int64_t n, int32_t order, double* fitted, double* coefficients, double* meanSquaredError);
#define QvFitPolynomial ZemFunc137

/**
 * FitPolynomialConstrained.
 * The polynomial of least squares among those with the given coefficients.
 * Powers above 25 are not fitted, unless fewer than two below are free: then up to the second free one. Without given
 * coefficients a curve without an error is not written.
 * @param x read and written, [n]: the abscissas; the fitted curve when fitted is null and the error is wanted
 * @param y read, [n]: the ordinates
 * @param n the number of samples, more than the order less fixedCount
 * @param order the degree of the polynomial
 * @param fixedOrders read, [fixedCount], may be null: the powers whose coefficients are given; others than 0 to order do nothing
 * @param fixedValues read, [fixedCount], may be null: their coefficients; of several for one power the last holds
 * @param fixedCount the number of given coefficients
 * @param algorithm 0 singular values, 1 QR, 2 LU and 3 Cholesky of the normal equations
 * @param fitted written, [n], may be null: the fitted curve; give the error with it
 * @param coefficients written, [order + 1]: the coefficients in ascending power
 * @param meanSquaredError written, may be null: sum of (y - f)^2 / n
 * @retval -20061 the algorithm is above 3
 * @retval -20103 the order or fixedCount is negative
 * @retval -20037 n is not above the order less fixedCount, or below the number of free coefficients
 * @retval -20046 n times the number of free powers is above 2^31 - 1
 * @retval -20041 algorithms 1 and 2: the system is singular, exactly
 * @retval -20071 algorithm 3: the normal matrix is not positive definite
 * @retval -20068 a power of an abscissa is not finite (algorithm 2 does not test it)
 * @retval -20062 the singular values did not converge
 * @retval -20003 all coefficients are given, the curve or the error is wanted, and n is below 1
 * @retval -20001 memory is exhausted
 * @retval 20031 the order is above 25
 */
QV_API QvStatus ZemFunc298(double* x, const double* y, int64_t n, int32_t order, const int32_t* fixedOrders, const double* fixedValues, int32_t fixedCount, uint32_t algorithm, double* fitted, double* coefficients, double* meanSquaredError);
#define QvFitPolynomialConstrained ZemFunc298

/**
 * FitPolynomialWeighted.
 * QvFitPolynomialConstrained with weights.
 * @param x read and written, [n]: the abscissas; the fitted curve when fitted is null and the error is wanted
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights; null: all 1
 * @param n the number of samples, more than the order less fixedCount
 * @param order the degree of the polynomial
 * @param fixedOrders read, [fixedCount], may be null: the powers whose coefficients are given; others than 0 to order do nothing
 * @param fixedValues read, [fixedCount], may be null: their coefficients; of several for one power the last holds
 * @param fixedCount the number of given coefficients
 * @param algorithm 0 singular values, 1 QR, 2 LU and 3 Cholesky of the normal equations
 * @param fitted written, [n], may be null: the fitted curve; give the error with it
 * @param coefficients written, [order + 1]: the coefficients in ascending power
 * @param meanSquaredError written, may be null: sum of |w| (y - f)^2 / n
 * @retval -20061 the algorithm is above 3
 * @retval -20103 the order or fixedCount is negative
 * @retval -20037 n is not above the order less fixedCount, or below the number of free coefficients
 * @retval -20046 n times the number of free powers is above 2^31 - 1
 * @retval -20041 algorithms 1 and 2: the system is singular, exactly
 * @retval -20071 algorithm 3: the normal matrix is not positive definite
 * @retval -20068 a power of an abscissa times its weight is not finite (algorithm 2 does not test it)
 * @retval -20062 the singular values did not converge
 * @retval -20003 all coefficients are given, the curve or the error is wanted, and n is below 1
 * @retval -20001 memory is exhausted
 * @retval 20031 the order is above 25
 */
QV_API QvStatus ZemFunc361(double* x, const double* y, const double* weights, int64_t n, int32_t order, const int32_t* fixedOrders, const double* fixedValues, int32_t fixedCount, uint32_t algorithm, double* fitted, double* coefficients, double* meanSquaredError);
#define QvFitPolynomialWeighted ZemFunc361

/** @} */

/** @defgroup matrices Solving, inversion and matrix operations
 * Linear systems, inverses, determinants, norms and products of dense matrices.
 *
 *     A x = b,   A X = B;   a matrix that is not square: |A x - b| is least, and of those x the shortest
 *     norms       two: s(0),  one: largest column sum,  Frobenius: sqrt(sum |a|^2),  infinity: largest row sum
 *     condition   s(0) / s(last), or |A| |A^-1| in the other norms
 *     pseudo-inverse A^+ = V diag(1 / s) U^H over the singular values s above the tolerance
 *
 * Matrices are row-major without gaps: element (i, j) of m by n stands at i n + j. Complex functions take pairs at
 * the same places. The work is done by LAPACK and BLAS, with 32-bit integers.
 *
 * The kind of a matrix is 0 general, 1 symmetric (Hermitian) positive definite, 2 lower triangular, 3 upper
 * triangular; of kinds 1 to 3 one triangle is read. Where a matrix is screened, an element that is NaN, infinite,
 * the largest double, or -1.7976931348623e308 or below gives -20068.
 * @{
 */

/**
 * MatSolveMany.
 * Solves A X = B for a matrix of the kind that is named.
 * Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
 * Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle.
 * In kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
 * x may be a or b.
 * @param a read, [m * n]: the matrix A
 * @param m rows of A
 * @param n columns of A
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param b read, [m * rhsCount]: the right-hand sides, one a column
 * @param rhsCount right-hand sides
 * @param x written, [n * rhsCount]: the solutions, one a column
 * @retval -20040 kinds 1 to 3: m and n differ
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is above 3
 * @retval -20068 kind 0: a or b does not pass the screen; kind 1: a does not
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20041 kinds 2 and 3: a diagonal element is tiny or 0
 * @retval -20062 kind 0: the singular values do not converge
 * @retval 20001 kind 0: the rank is below min(m, n); the solution is valid
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 * @code
 * double a[] = {2, 1, 1, 3}, b[] = {3, 5}, x[2];
 * QvMatSolveMany(a, 2, 2, 1, b, 1, x);  // x = {0.8, 1.4}
 * @endcode
 */
QV_API QvStatus ZemFunc241(const double* a, int64_t m, int64_t n, uint32_t kind, const double* b, int64_t rhsCount, double* x);
#define QvMatSolveMany ZemFunc241

/**
 * MatSolveManyComplex (MatSolveMany).
 * Solves A X = B for a matrix of the kind that is named.
 * Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
 * Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle.
 * In kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
 * x may be a or b.
 * @param a read, [m * n]: the matrix A
 * @param m rows of A
 * @param n columns of A
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param b read, [m * rhsCount]: the right-hand sides, one a column
 * @param rhsCount right-hand sides
 * @param x written, [n * rhsCount]: the solutions, one a column
 * @retval -20040 kinds 1 to 3: m and n differ
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is above 3
 * @retval -20068 kind 0: a or b does not pass the screen; kind 1: a does not
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20041 kinds 2 and 3: a diagonal element is tiny or 0
 * @retval -20062 kind 0: the singular values do not converge
 * @retval 20001 kind 0: the rank is below min(m, n); the solution is valid
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc242(const QvComplex* a, int64_t m, int64_t n, uint32_t kind, const QvComplex* b, int64_t rhsCount, QvComplex* x);
#define QvMatSolveManyComplex ZemFunc242

/**
 * MatSolveKind.
 * Solves A x = b: MatSolveMany with one right-hand side.
 * Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
 * Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle.
 * In kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
 * x may be a or b.
 * @param a read, [m * n]: the matrix A
 * @param m rows of A
 * @param n columns of A
 * @param b read, [m]: the right-hand side
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param x written, [n]: the solution
 * @retval -20040 kinds 1 to 3: m and n differ
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is above 3
 * @retval -20068 kind 0: a or b does not pass the screen; kind 1: a does not
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20041 kinds 2 and 3: a diagonal element is tiny or 0
 * @retval -20062 kind 0: the singular values do not converge
 * @retval 20001 kind 0: the rank is below min(m, n); the solution is valid
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc197(const double* a, int64_t m, int64_t n, const double* b, uint32_t kind, double* x);
#define QvMatSolveKind ZemFunc197

/**
 * MatSolveKindComplex (MatSolveKind).
 * Solves A x = b: MatSolveMany with one right-hand side.
 * Kind 0 takes any shape and gives the least-squares solution of minimum norm, by dgelsd or the singular values.
 * Kind 1 factors by Cholesky and reads the lower triangle; kinds 2 and 3 substitute in the packed triangle.
 * In kinds 2 and 3 a diagonal element at or below 2.22e-16 times the largest magnitude of the triangle is singular.
 * x may be a or b.
 * @param a read, [m * n]: the matrix A
 * @param m rows of A
 * @param n columns of A
 * @param b read, [m]: the right-hand side
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param x written, [n]: the solution
 * @retval -20040 kinds 1 to 3: m and n differ
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is above 3
 * @retval -20068 kind 0: a or b does not pass the screen; kind 1: a does not
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20041 kinds 2 and 3: a diagonal element is tiny or 0
 * @retval -20062 kind 0: the singular values do not converge
 * @retval 20001 kind 0: the rank is below min(m, n); the solution is valid
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc218(const QvComplex* a, int64_t m, int64_t n, const QvComplex* b, uint32_t kind, QvComplex* x);
#define QvMatSolveKindComplex ZemFunc218

/**
 * MatSolve.
 * Solves the square system A x = b by LU factors with partial pivoting (dgesv).
 * Nothing is screened; x and b are written on success only.
 * @param a read, [n * n]: the matrix A
 * @param b read and written, [n]: the right-hand side
 * @param n order
 * @param x written, [n], may be null: the solution; null: over b
 * @retval -20003 a size is below 1
 * @retval -20041 the matrix is singular
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 * @code
 * QvMatSolve(a, b, 3, NULL);  // b becomes the solution
 * @endcode
 */
QV_API QvStatus ZemFunc114(const double* a, double* b, int64_t n, double* x);
#define QvMatSolve ZemFunc114

/**
 * MatSolveUpperTriangular.
 * Solves R x = b by back substitution from the last row up.
 * x may be b.
 * @param r read, [n * n]: the upper triangle R; the rest is not read
 * @param b read and written, [n]: the right-hand side
 * @param n order
 * @param x written, [n], may be null: the solution; null: over b
 * @retval -20003 a size is below 1
 * @retval -20041 a diagonal element is exactly 0; the elements of x below it are written
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 */
QV_API QvStatus ZemFunc11(const double* r, double* b, int64_t n, double* x);
#define QvMatSolveUpperTriangular ZemFunc11

/**
 * MatSolveUnitLower.
 * Solves L x = P b with a unit lower triangle by forward substitution.
 * The interchanges are those of an LU factorisation; x may be b.
 * @param l read, [n * n]: the triangle below the diagonal; the rest is not read, the diagonal stands for ones
 * @param b read and written, [n]: the right-hand side
 * @param n order
 * @param x written, [n], may be null: the solution; null: over b
 * @param pivots read, [n], may be null: element i of b changes places with element pivots[i], for i from 0 on; null: none do
 * @retval -20003 a size is below 1
 * @retval -20046 a size, an element count or a pivot exceeds 2^31 - 1; nothing is touched
 * @retval -20017 a pivot is outside 0 to n - 1; nothing is written
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc82(const double* l, double* b, int64_t n, double* x, const int64_t* pivots);
#define QvMatSolveUnitLower ZemFunc82

/**
 * MatInverse.
 * The inverse of a square matrix by LU factors (dgetrf, dgetri).
 * Nothing is screened; the result is written on success only. out may be a.
 * @param a read and written, [n * n]: the matrix
 * @param n order
 * @param out written, [n * n], may be null: the inverse; null: over a
 * @retval -20003 a size is below 1
 * @retval -20041 the matrix is singular
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc105(double* a, int64_t n, double* out);
#define QvMatInverse ZemFunc105

/**
 * MatInverseKind.
 * The inverse of a square matrix of the kind that is named.
 * Kind 0 goes by LU factors; kind 1 by Cholesky from the upper triangle, mirrored; kinds 2 and 3 invert their
 * triangle and clear the other.
 * The result is written on success only. out may be a.
 * @param a read and written, [n * n]: the matrix
 * @param n order
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param out written, [n * n], may be null: the inverse; null: over a
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is below 0 or above 3
 * @retval -20068 kinds 0 and 1: the matrix does not pass the screen
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20041 the matrix is singular
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc198(double* a, int64_t n, int32_t kind, double* out);
#define QvMatInverseKind ZemFunc198

/**
 * MatInverseKindComplex (MatInverseKind).
 * The inverse of a square matrix of the kind that is named.
 * Kind 0 goes by LU factors; kind 1 by Cholesky from the upper triangle, mirrored; kinds 2 and 3 invert their
 * triangle and clear the other.
 * The result is written on success only. out may be a.
 * @param a read and written, [n * n]: the matrix
 * @param n order
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param out written, [n * n], may be null: the inverse; null: over a
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is below 0 or above 3
 * @retval -20068 kinds 0 and 1: the matrix does not pass the screen
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20041 the matrix is singular
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc212(QvComplex* a, int64_t n, int32_t kind, QvComplex* out);
#define QvMatInverseKindComplex ZemFunc212

/**
 * MatDeterminant.
 * The determinant of a square matrix: MatDeterminantKind with kind 0.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param out written: the determinant; NaN on an error
 * @retval -20003 a size is below 1
 * @retval -20068 the matrix does not pass the screen
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc55(const double* a, int64_t n, double* out);
#define QvMatDeterminant ZemFunc55

/**
 * MatDeterminantKind.
 * The determinant of a square matrix of the kind that is named.
 * Order 2 is a00 a11 - a01 a10 for every kind. Otherwise: kind 0 the signed product of the pivots, exactly 0 for a
 * singular matrix, which is no error; kind 1 the square of the product of the Cholesky diagonal, from the upper
 * triangle; kinds 2 and 3 the product of the diagonal.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param out written: the determinant; NaN on an error, 0 with -20071
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is above 3
 * @retval -20068 the matrix does not pass the screen
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 * @code
 * double det, a[] = {4, 2, 0, 1, 3, 1, 0, 2, 5};
 * QvMatDeterminantKind(a, 3, 0, &det);  // 42
 * @endcode
 */
QV_API QvStatus ZemFunc204(const double* a, int64_t n, uint32_t kind, double* out);
#define QvMatDeterminantKind ZemFunc204

/**
 * MatDeterminantKindComplex (MatDeterminantKind).
 * The determinant of a square matrix of the kind that is named.
 * Order 2 is a00 a11 - a01 a10 for every kind. Otherwise: kind 0 the signed product of the pivots, exactly 0 for a
 * singular matrix, which is no error; kind 1 the square of the product of the Cholesky diagonal, from the upper
 * triangle; kinds 2 and 3 the product of the diagonal.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param kind 0 general, 1 positive definite, 2 lower triangular, 3 upper triangular
 * @param out written: the determinant; NaN on an error, 0 with -20071
 * @retval -20003 a size is below 1
 * @retval -20061 the kind is above 3
 * @retval -20068 the matrix does not pass the screen
 * @retval -20071 kind 1: the matrix is not positive definite
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc220(const QvComplex* a, int64_t n, uint32_t kind, QvComplex* out);
#define QvMatDeterminantKindComplex ZemFunc220

/**
 * MatTrace.
 * The trace of a square matrix, added in order.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param out written: the sum of the diagonal
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 */
QV_API QvStatus ZemFunc175(const double* a, int64_t n, double* out);
#define QvMatTrace ZemFunc175

/**
 * MatTraceComplex (MatTrace).
 * The trace of a square matrix, added in order.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param out written: the sum of the diagonal
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 */
QV_API QvStatus ZemFunc225(const QvComplex* a, int64_t n, QvComplex* out);
#define QvMatTraceComplex ZemFunc225

/**
 * MatNorm.
 * A norm of a matrix.
 * 0: the largest singular value; 1: the largest column sum of magnitudes; 2: the root of the sum of all squared
 * magnitudes; 3: the largest row sum.
 * @param a read, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param selector 0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm
 * @param out written: the norm; NaN on an error
 * @retval -20003 a size is below 1
 * @retval -20061 the selector is above 3
 * @retval -20068 the matrix does not pass the screen
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc206(const double* a, int64_t m, int64_t n, uint32_t selector, double* out);
#define QvMatNorm ZemFunc206

/**
 * MatNormComplex (MatNorm).
 * A norm of a matrix.
 * 0: the largest singular value; 1: the largest column sum of magnitudes; 2: the root of the sum of all squared
 * magnitudes; 3: the largest row sum.
 * @param a read, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param selector 0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm
 * @param out written: the norm; NaN on an error
 * @retval -20003 a size is below 1
 * @retval -20061 the selector is above 3
 * @retval -20068 the matrix does not pass the screen
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc223(const QvComplex* a, int64_t m, int64_t n, uint32_t selector, double* out);
#define QvMatNormComplex ZemFunc223

/**
 * MatConditionNumber.
 * The condition number of a matrix.
 * 0: the largest over the smallest singular value, of any shape; 1 to 3: the norm of A times the norm of its
 * inverse.
 * A singular matrix has +Inf, which is no error.
 * @param a read, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param selector 0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm
 * @param out written: the condition number; NaN on an error
 * @retval -20003 a size is below 1
 * @retval -20061 the selector is above 3
 * @retval -20068 the matrix does not pass the screen
 * @retval -20040 selectors 1 to 3: m and n differ
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc205(const double* a, int64_t m, int64_t n, uint32_t selector, double* out);
#define QvMatConditionNumber ZemFunc205

/**
 * MatConditionNumberComplex (MatConditionNumber).
 * The condition number of a matrix.
 * 0: the largest over the smallest singular value, of any shape; 1 to 3: the norm of A times the norm of its
 * inverse.
 * A singular matrix has +Inf, which is no error.
 * @param a read, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param selector 0 two-norm, 1 one-norm, 2 Frobenius, 3 infinity-norm
 * @param out written: the condition number; NaN on an error
 * @retval -20003 a size is below 1
 * @retval -20061 the selector is above 3
 * @retval -20068 the matrix does not pass the screen
 * @retval -20040 selectors 1 to 3: m and n differ
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc222(const QvComplex* a, int64_t m, int64_t n, uint32_t selector, double* out);
#define QvMatConditionNumberComplex ZemFunc222

/**
 * MatRank.
 * The number of singular values strictly above a tolerance.
 * @param a read, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param tolerance absolute; negative: max(m, n) s(0) 2.220446049250313e-16
 * @param rank written: the rank; -1 on an error
 * @retval -20003 a size is below 1
 * @retval -20068 the matrix does not pass the screen
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc207(const double* a, int64_t m, int64_t n, double tolerance, int64_t* rank);
#define QvMatRank ZemFunc207

/**
 * MatRankComplex (MatRank).
 * The number of singular values strictly above a tolerance.
 * @param a read, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param tolerance absolute; negative: max(m, n) s(0) 2.220446049250313e-16
 * @param rank written: the rank; -1 on an error
 * @retval -20003 a size is below 1
 * @retval -20068 the matrix does not pass the screen
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc215(const QvComplex* a, int64_t m, int64_t n, double tolerance, int64_t* rank);
#define QvMatRankComplex ZemFunc215

/**
 * MatPseudoInverse.
 * The Moore-Penrose pseudo-inverse, V S+ U^H of the economy singular value decomposition.
 * Singular values at or below the tolerance count as 0. out may be a; it is written on success only.
 * @param a read and written, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param tolerance absolute; negative: max(m, n) s(0) 2.220446049250313e-16
 * @param out written, [n * m], may be null: the pseudo-inverse; null: over a
 * @retval -20003 a size is below 1
 * @retval -20068 the matrix does not pass the screen
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc200(double* a, int64_t m, int64_t n, double tolerance, double* out);
#define QvMatPseudoInverse ZemFunc200

/**
 * MatPseudoInverseComplex (MatPseudoInverse).
 * The Moore-Penrose pseudo-inverse, V S+ U^H of the economy singular value decomposition.
 * Singular values at or below the tolerance count as 0. out may be a; it is written on success only.
 * @param a read and written, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param tolerance absolute; negative: max(m, n) s(0) 2.220446049250313e-16
 * @param out written, [n * m], may be null: the pseudo-inverse; null: over a
 * @retval -20003 a size is below 1
 * @retval -20068 the matrix does not pass the screen
 * @retval -20062 the singular values do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc229(QvComplex* a, int64_t m, int64_t n, double tolerance, QvComplex* out);
#define QvMatPseudoInverseComplex ZemFunc229

/**
 * MatIsPositiveDefinite.
 * Tests for positive definiteness.
 * A matrix that differs from its (conjugate) transpose in one bit, or holds a NaN, is not, and no eigenvalue is
 * computed. Otherwise each eigenvalue must exceed 2.220446049250313e-16 times the largest magnitude of them.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param flag written: 1 if the matrix is positive definite, else 0
 * @retval -20003 n is below 1; flag is untouched
 * @retval -20068 the symmetric matrix does not pass the screen
 * @retval -20062 the eigenvalues do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc209(const double* a, int64_t n, uint32_t* flag);
#define QvMatIsPositiveDefinite ZemFunc209

/**
 * MatIsPositiveDefiniteComplex (MatIsPositiveDefinite).
 * Tests for positive definiteness.
 * A matrix that differs from its (conjugate) transpose in one bit, or holds a NaN, is not, and no eigenvalue is
 * computed. Otherwise each eigenvalue must exceed 2.220446049250313e-16 times the largest magnitude of them.
 * @param a read, [n * n]: the matrix
 * @param n order
 * @param flag written: 1 if the matrix is positive definite, else 0
 * @retval -20003 n is below 1; flag is untouched
 * @retval -20068 the symmetric matrix does not pass the screen
 * @retval -20062 the eigenvalues do not converge
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc226(const QvComplex* a, int64_t n, uint32_t* flag);
#define QvMatIsPositiveDefiniteComplex ZemFunc226

/**
 * MatMultiply.
 * The product A B.
 * Without rows or columns nothing is done; without an inner size the product is 0. out may be a or b.
 * @param a read, [rowsA * colsA]: the matrix A
 * @param b read, [colsA * colsB]: the matrix B
 * @param rowsA rows of A
 * @param colsA columns of A, rows of B
 * @param colsB columns of B
 * @param out written, [rowsA * colsB]: the product
 * @retval -20004 a size is below 0
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 * @code
 * QvMatMultiply(a, b, 2, 3, 4, out);  // 2 by 3 times 3 by 4
 * @endcode
 */
QV_API QvStatus ZemFunc119(const double* a, const double* b, int64_t rowsA, int64_t colsA, int64_t colsB, double* out);
#define QvMatMultiply ZemFunc119

/**
 * MatMultiplyComplex (MatMultiply).
 * The product A B.
 * Without rows or columns nothing is done; without an inner size the product is 0. out may be a or b.
 * @param a read, [rowsA * colsA]: the matrix A
 * @param b read, [colsA * colsB]: the matrix B
 * @param rowsA rows of A
 * @param colsA columns of A, rows of B
 * @param colsB columns of B
 * @param out written, [rowsA * colsB]: the product
 * @retval -20004 a size is below 0
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 */
QV_API QvStatus ZemFunc214(const QvComplex* a, const QvComplex* b, int64_t rowsA, int64_t colsA, int64_t colsB, QvComplex* out);
#define QvMatMultiplyComplex ZemFunc214

/**
 * MatVectorMultiply.
 * The product A x. y may be a or x.
 * @param a read, [m * n]: the matrix
 * @param x read, [n]: the vector
 * @param m rows
 * @param n columns
 * @param y written, [m]: the product
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where y is an input
 */
QV_API QvStatus ZemFunc370(const double* a, const double* x, int64_t m, int64_t n, double* y);
#define QvMatVectorMultiply ZemFunc370

/**
 * MatVectorMultiplyComplex (MatVectorMultiply).
 * The product A x. y may be a or x.
 * @param a read, [m * n]: the matrix
 * @param x read, [n]: the vector
 * @param m rows
 * @param n columns
 * @param y written, [m]: the product
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where y is an input
 */
QV_API QvStatus ZemFunc371(const QvComplex* a, const QvComplex* x, int64_t m, int64_t n, QvComplex* y);
#define QvMatVectorMultiplyComplex ZemFunc371

/**
 * VecDot.
 * The sum of x[i] y[i]; nothing is conjugated.
 * @param x read, [n]: a vector
 * @param y read, [n]: a vector
 * @param n elements
 * @param out written: the sum of x[i] y[i]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc191(const double* x, const double* y, int64_t n, double* out);
#define QvVecDot ZemFunc191

/**
 * VecDotComplex (VecDot).
 * The sum of x[i] y[i]; nothing is conjugated.
 * @param x read, [n]: a vector
 * @param y read, [n]: a vector
 * @param n elements
 * @param out written: the sum of x[i] y[i]
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc221(const QvComplex* x, const QvComplex* y, int64_t n, QvComplex* out);
#define QvVecDotComplex ZemFunc221

/**
 * VecOuterProduct.
 * The outer product, out[i ny + j] = x[i] y[j]; nothing is conjugated. out may be x or y.
 * @param x read, [nx]: a vector
 * @param nx its elements, the rows of the result
 * @param y read, [ny]: a vector
 * @param ny its elements, the columns of the result
 * @param out written, [nx * ny]: the products
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 */
QV_API QvStatus ZemFunc203(const double* x, int64_t nx, const double* y, int64_t ny, double* out);
#define QvVecOuterProduct ZemFunc203

/**
 * VecOuterProductComplex (VecOuterProduct).
 * The outer product, out[i ny + j] = x[i] y[j]; nothing is conjugated. out may be x or y.
 * @param x read, [nx]: a vector
 * @param nx its elements, the rows of the result
 * @param y read, [ny]: a vector
 * @param ny its elements, the columns of the result
 * @param out written, [nx * ny]: the products
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 */
QV_API QvStatus ZemFunc224(const QvComplex* x, int64_t nx, const QvComplex* y, int64_t ny, QvComplex* out);
#define QvVecOuterProductComplex ZemFunc224

/**
 * MatKronecker.
 * The Kronecker product: the block matrix of the a(i, j) B. out may be a or b.
 * @param a read, [rowsA * colsA]: the matrix A
 * @param b read, [rowsB * colsB]: the matrix B
 * @param rowsA rows of A
 * @param colsA columns of A
 * @param rowsB rows of B
 * @param colsB columns of B
 * @param out written, [rowsA * rowsB * colsA * colsB]: rowsA rowsB by colsA colsB
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 */
QV_API QvStatus ZemFunc358(const double* a, const double* b, int64_t rowsA, int64_t colsA, int64_t rowsB, int64_t colsB, double* out);
#define QvMatKronecker ZemFunc358

/**
 * MatKroneckerComplex (MatKronecker).
 * The Kronecker product: the block matrix of the a(i, j) B. out may be a or b.
 * @param a read, [rowsA * colsA]: the matrix A
 * @param b read, [rowsB * colsB]: the matrix B
 * @param rowsA rows of A
 * @param colsA columns of A
 * @param rowsB rows of B
 * @param colsB columns of B
 * @param out written, [rowsA * rowsB * colsA * colsB]: rowsA rowsB by colsA colsB
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 */
QV_API QvStatus ZemFunc359(const QvComplex* a, const QvComplex* b, int64_t rowsA, int64_t colsA, int64_t rowsB, int64_t colsB, QvComplex* out);
#define QvMatKroneckerComplex ZemFunc359

/**
 * MatTranspose.
 * The transpose. out may be a.
 * @param a read and written, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param out written, [n * m], may be null: the transpose; null: over a
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, in place
 */
QV_API QvStatus ZemFunc177(double* a, int64_t m, int64_t n, double* out);
#define QvMatTranspose ZemFunc177

/**
 * MatConjugateTranspose (MatTranspose).
 * The conjugate transpose. out may be a.
 * @param a read and written, [m * n]: the matrix
 * @param m rows
 * @param n columns
 * @param out written, [n * m], may be null: the conjugate transpose; null: over a
 * @retval -20003 a size is below 1
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, in place
 */
QV_API QvStatus ZemFunc217(QvComplex* a, int64_t m, int64_t n, QvComplex* out);
#define QvMatConjugateTranspose ZemFunc217

/**
 * MatBuildSpecial.
 * Builds a matrix from vectors.
 * 1: first on the diagonal. 2: firstLength by secondLength, first[i - j] on and below the diagonal, second[j - i]
 * above; second[0] is not used. 3: row i holds first[i] to the powers firstLength - 1 down to 0. 4: firstLength - 1
 * square, -first[k + 1] / first[0] in the first row and ones below the diagonal.
 * Only the sizes that a type uses are looked at. out may be one of the vectors.
 * @param type 0 identity, 1 diagonal, 2 Toeplitz, 3 Vandermonde, 4 companion
 * @param order of the identity
 * @param first read, [firstLength], may be null: diagonal, first column, nodes or coefficients; not read for the identity
 * @param firstLength its elements
 * @param second read, [secondLength], may be null: first row of the Toeplitz matrix; not read for other types
 * @param secondLength its elements
 * @param out written, [order * order if type == 0 else firstLength * secondLength if type == 2 else (firstLength - 1) * (firstLength - 1) if type == 4 else firstLength * firstLength]: the matrix
 * @retval -20003 a size that the type uses is below 1
 * @retval -20006 type 4: firstLength is below 2
 * @retval -20061 the type is above 4
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 * @code
 * double c[] = {1, -6, 11, -6}, out[9];
 * QvMatBuildSpecial(4, 0, c, 4, NULL, 0, out);  // eigenvalues 1, 2, 3
 * @endcode
 */
QV_API QvStatus ZemFunc208(uint32_t type, int64_t order, const double* first, int64_t firstLength, const double* second, int64_t secondLength, double* out);
#define QvMatBuildSpecial ZemFunc208

/**
 * MatBuildSpecialComplex (MatBuildSpecial).
 * Builds a matrix from vectors.
 * 1: first on the diagonal. 2: firstLength by secondLength, first[i - j] on and below the diagonal, second[j - i]
 * above; second[0] is not used. 3: row i holds first[i] to the powers firstLength - 1 down to 0. 4: firstLength - 1
 * square, -first[k + 1] / first[0] in the first row and ones below the diagonal.
 * Only the sizes that a type uses are looked at. out may be one of the vectors.
 * @param type 0 identity, 1 diagonal, 2 Toeplitz, 3 Vandermonde, 4 companion
 * @param order of the identity
 * @param first read, [firstLength], may be null: diagonal, first column, nodes or coefficients; not read for the identity
 * @param firstLength its elements
 * @param second read, [secondLength], may be null: first row of the Toeplitz matrix; not read for other types
 * @param secondLength its elements
 * @param out written, [order * order if type == 0 else firstLength * secondLength if type == 2 else (firstLength - 1) * (firstLength - 1) if type == 4 else firstLength * firstLength]: the matrix
 * @retval -20003 a size that the type uses is below 1
 * @retval -20006 type 4: firstLength is below 2
 * @retval -20061 the type is above 4
 * @retval -20046 a size, or the element count of a matrix, exceeds 2^31 - 1; nothing is touched
 * @retval -20001 memory is exhausted, where out is an input
 */
QV_API QvStatus ZemFunc227(uint32_t type, int64_t order, const QvComplex* first, int64_t firstLength, const QvComplex* second, int64_t secondLength, QvComplex* out);
#define QvMatBuildSpecialComplex ZemFunc227

/**
 * VecNorm.
 * The p-norm of a vector: the p-th root of the sum of the p-th powers of the magnitudes.
 * +Inf gives the largest magnitude, -Inf the smallest, both over the elements that are numbers.
 * @param x read, [n]: the vector
 * @param n its elements
 * @param selector 0: p = 1; 1: p = 2; 2: p = +Inf; 3: p = -Inf; 4: the argument p
 * @param p any number but 0; used by selector 4
 * @param out written: the norm
 * @retval -20061 the selector is above 4
 * @retval -20003 n is below 1
 * @retval -20068 p is NaN
 * @retval -20141 p is 0
 */
QV_API QvStatus ZemFunc394(const double* x, int64_t n, uint32_t selector, double p, double* out);
#define QvVecNorm ZemFunc394

/**
 * VecNormComplex (VecNorm).
 * The p-norm of a vector: the p-th root of the sum of the p-th powers of the magnitudes.
 * +Inf gives the largest magnitude, -Inf the smallest, both over the elements that are numbers.
 * @param x read, [n]: the vector
 * @param n its elements
 * @param selector 0: p = 1; 1: p = 2; 2: p = +Inf; 3: p = -Inf; 4: the argument p
 * @param p any number but 0; used by selector 4
 * @param out written: the norm
 * @retval -20061 the selector is above 4
 * @retval -20003 n is below 1
 * @retval -20068 p is NaN
 * @retval -20141 p is 0
 */
QV_API QvStatus ZemFunc395(const QvComplex* x, int64_t n, uint32_t selector, double p, double* out);
#define QvVecNormComplex ZemFunc395

/** @} */

/** @defgroup memory Release of memory
 * A few operations hand out blocks that belong to the caller from then on: filter objects, delay lines of complex
 * data, and arrays whose length only the operation knows. Each is one block of memory, and one entry, known under
 * three numbers, gives any of them back. All other arrays are the caller's own from the start.
 *
 * Plans and narrowband filters are more than one block and have releases of their own, FftPlanRelease and
 * FirNarrowbandRelease. Each block goes back once; free of the C library is not the way.
 * @{
 */

/**
 * MemoryRelease.
 * Frees one block that the library handed out, whatever it holds.
 * A null pointer is ignored.
 * @param block handle, may be null: a block that the library handed out and that has not been released yet
 * @code
 * double* block = 0;
 * QvMemoryRelease(block);
 * @endcode
 */
QV_API void ZemFunc234(void* block);
#define QvMemoryRelease ZemFunc234

/**
 * IirFilterRelease.
 * Frees a filter object: the same entry as ZemFunc234.
 * @param block handle, may be null: a block that the library handed out and that has not been released yet
 */
QV_API void ZemFunc238(void* block);
#define QvIirFilterRelease ZemFunc238

/**
 * IirStateComplexRelease.
 * Frees the delay lines for complex data: the same entry as ZemFunc234.
 * @param block handle, may be null: a block that the library handed out and that has not been released yet
 */
QV_API void ZemFunc470(void* block);
#define QvIirStateComplexRelease ZemFunc470

/** @} */

/** @defgroup model_fits Line, exponential, power, logarithm and Gaussian fits
 * Five fixed models, each by three methods: for samples with ordinary noise, and for samples with outliers.
 *
 *     line         f = a x + b
 *     exponential  f = a exp(b x)
 *     power        f = a x^b
 *     logarithm    f = a log(b x)
 *     Gaussian     f = a exp(-((x - m) / s)^2 / 2)
 *     0 least squares             sum of |w| (y - f)^2
 *     1 least absolute residuals  sum of |w| |y - f|
 *     2 bisquare                  least squares with the weights |w| max(1 - u^2, 0)^2,  u = r / (4.685 deviation)
 *
 * Least squares: closed forms, Gauss-Newton steps, or steps up the gradient. Least absolute residuals: reweighted
 * least squares, for a line weighted medians; the best of the last fit, the one before and the first is kept.
 * Bisquare (Beaton and Tukey, 1974): samples beyond 4.685 robust deviations lose their weight; it ends when one of
 * the coefficients changes by no more than the tolerance, relatively, and after 50 refits.
 *
 * On an error nothing is written. The fits are not made for NaN in x or y, which shows in the results.
 * @{
 */

/**
 * FitLine.
 * The line of least squares, y = a x + b. Equal abscissas give what the division by 0 gives, and no error.
 * @param x read, [n]: the abscissas
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the error is wanted
 * @param n the number of samples
 * @param fitted written, [n], may be null: the fitted curve; give the error with it
 * @param slope written: a of y = a x + b
 * @param intercept written: b
 * @param meanSquaredError written, may be null: sum of (y - f)^2 / n
 * @retval -20006 n is below 2
 * @retval -20001 memory is exhausted
 * @code
 * double x[3] = {0, 1, 2}, y[3] = {1, 3, 5}, curve[3], slope, intercept, error;
 * QvFitLine(x, y, 3, curve, &slope, &intercept, &error);  // 2 and 1
 * @endcode
 */
QV_API QvStatus ZemFunc117(const double* x, double* y, int64_t n, double* fitted, double* slope, double* intercept, double* meanSquaredError);
#define QvFitLine ZemFunc117

/**
 * FitLineRobust.
 * The line y = a x + b by one of three methods.
 * The methods 1 and 2 draw two samples' line exactly, whatever the weights, with the residue 0. Method 1 alternates
 * weighted medians of slope and intercept.
 * @param x read, [n]: the abscissas
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the residue is wanted
 * @param weights read, [n], may be null: the weights, by magnitude; all 0 or null: all 1
 * @param n the number of samples
 * @param method 0 least squares, 1 least absolute residuals, 2 bisquare
 * @param tolerance the relative change at which the iteration ends (1: of the error, 2: of a coefficient); at or below 0: 0.0001
 * @param fitted written, [n], may be null: the fitted curve; give the residue with it
 * @param slope written: a of y = a x + b
 * @param intercept written: b
 * @param residue written, may be null: sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n
 * @retval -20061 the method is above 2
 * @retval -20006 n is below 2
 * @retval -20068 a weight is NaN, or the leverages overflow (method 2)
 * @retval -20141 all weights but one are 0
 * @retval -20055 method 1: two and more abscissas are 0
 * @retval -20104 methods 1 and 2: a residual is NaN
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc288(const double* x, double* y, const double* weights, int64_t n, uint32_t method, double tolerance, double* fitted, double* slope, double* intercept, double* residue);
#define QvFitLineRobust ZemFunc288

/**
 * FitExponential.
 * The exponential y = a exp(b x) by the line through (x, ln |y|) with the weights y^2, without iteration.
 * Samples of the sign of the minority, and zeros, take no part; a tie takes the positive ones.
 * @param x read, [n]: the abscissas
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the error is wanted
 * @param n the number of samples
 * @param fitted written, [n], may be null: the fitted curve; give the error with it
 * @param a written: a of y = a exp(b x)
 * @param b written: b, per unit of x
 * @param meanSquaredError written, may be null: sum of (y - f)^2 / n
 * @retval -20006 n is below 2
 * @retval -20037 fewer than two samples have the sign of the majority
 * @retval -20068 an abscissa or an ordinate of that sign is not finite
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc73(const double* x, double* y, int64_t n, double* fitted, double* a, double* b, double* meanSquaredError);
#define QvFitExponential ZemFunc73

/**
 * FitExponentialRobust.
 * The model y = a exp(b x) by one of three methods.
 * Least squares starts from the line through (x, ln |y|) of the samples with the sign of the majority and makes at most
 * 101 Gauss-Newton steps. Method 1 makes at most 50 refits of at most 51 steps.
 * @param x read, [n]: the abscissas
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the residue is wanted
 * @param weights read, [n], may be null: the weights, by magnitude; all 0 or null: all 1
 * @param n the number of samples
 * @param method 0 least squares, 1 least absolute residuals, 2 bisquare
 * @param tolerance the relative change at which the iteration ends (0, 1: of the error, 2: of a coefficient); at or below 0: 0.0001
 * @param fitted written, [n], may be null: the fitted curve; give the residue with it
 * @param a written: a of y = a exp(b x)
 * @param b written: b, per unit of x
 * @param residue written, may be null: sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n
 * @retval -20061 the method is above 2
 * @retval -20006 n is below 2
 * @retval -20068 a weight is NaN, or an abscissa or a derivative is not finite
 * @retval -20141 all weights but one are 0
 * @retval -20037 fewer than two samples have the sign of the majority
 * @retval -20104 methods 1 and 2: a residual is NaN
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc286(const double* x, double* y, const double* weights, int64_t n, uint32_t method, double tolerance, double* fitted, double* a, double* b, double* residue);
#define QvFitExponentialRobust ZemFunc286

/**
 * FitPower.
 * The model y = a x^b by one of three methods.
 * Least squares starts from the line through (ln x, ln |y|) of the samples with the sign of the majority and makes at most
 * 101 Gauss-Newton steps. Method 1 makes at most 50 refits of at most 51 steps.
 * @param x read, [n]: the abscissas, above 0
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the residue is wanted
 * @param weights read, [n], may be null: the weights, by magnitude; all 0 or null: all 1
 * @param n the number of samples
 * @param method 0 least squares, 1 least absolute residuals, 2 bisquare
 * @param tolerance the relative change at which the iteration ends (0, 1: of the error, 2: of a coefficient); at or below 0: 0.0001
 * @param fitted written, [n], may be null: the fitted curve; give the residue with it
 * @param a written: a of y = a x^b
 * @param b written: b, the exponent
 * @param residue written, may be null: sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n
 * @retval -20061 the method is above 2
 * @retval -20006 n is below 2
 * @retval -20068 a weight is NaN, or an abscissa or a derivative is not finite
 * @retval -20141 all weights but one are 0
 * @retval -20140 an abscissa is at or below 0
 * @retval -20037 fewer than two samples have the sign of the majority
 * @retval -20104 methods 1 and 2: a residual is NaN
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc290(const double* x, double* y, const double* weights, int64_t n, uint32_t method, double tolerance, double* fitted, double* a, double* b, double* residue);
#define QvFitPower ZemFunc290

/**
 * FitLogarithm.
 * The model y = a log(b x) by one of three methods, each over the line through (log |x|, y).
 * With a = 0, b is the sign of x.
 * @param x read, [n]: the abscissas, all above or all below 0
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the residue is wanted
 * @param weights read, [n], may be null: the weights, by magnitude; all 0 or null: all 1
 * @param n the number of samples
 * @param base the base; 2.71828, or at or below 0: the natural logarithm; 10: the common one
 * @param method 0 least squares, 1 least absolute residuals, 2 bisquare
 * @param tolerance the relative change at which the iteration ends (1: of the error, 2: of a coefficient); at or below 0: 0.0001
 * @param fitted written, [n], may be null: the fitted curve; give the residue with it
 * @param a written: a of y = a log(b x)
 * @param b written: b, of the sign of x
 * @param residue written, may be null: sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n
 * @retval -20061 the method is above 2
 * @retval -20006 n is below 2
 * @retval -20068 a weight is NaN, or the leverages overflow (method 2)
 * @retval -20141 all weights but one are 0
 * @retval -20036 an abscissa is 0, or they differ in sign (the text speaks of y)
 * @retval -20104 methods 1 and 2: a residual is NaN
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc289(const double* x, double* y, const double* weights, int64_t n, double base, uint32_t method, double tolerance, double* fitted, double* a, double* b, double* residue);
#define QvFitLogarithm ZemFunc289

/**
 * FitGaussian.
 * The Gaussian y = a exp(-((x - m) / s)^2 / 2) by one of three methods.
 * Without a guess the peak and the samples above a tenth of it give the start; a peak that stands alone gives the
 * result, with its neighbours. At most 501 steps up the gradient, halved while the error grows. The residue of least
 * squares is that of the last trial, which may have been rejected, unless the start was best.
 * @param x read, [n]: the abscissas
 * @param y read and written, [n]: the ordinates; the fitted curve when fitted is null and the residue is wanted
 * @param weights read, [n], may be null: the weights, by magnitude; all 0 or null: all 1
 * @param n the number of samples
 * @param method 0 least squares, 1 least absolute residuals, 2 bisquare
 * @param tolerance the relative change at which the iteration ends (0, 1: of the error, 2: of a coefficient); at or below 0: 0.0001
 * @param guess read, [3], may be null: amplitude, centre and width to start from; one that is not finite: none
 * @param fitted written, [n], may be null: the fitted curve; give the residue with it
 * @param amplitude written: a of y = a exp(-((x - m) / s)^2 / 2)
 * @param centre written: m
 * @param width written: s, at least 0
 * @param residue written, may be null: sum of |w| (y - f)^2 / n; of least absolute residuals the sum of |w (y - f)| / n
 * @retval -20061 the method is above 2
 * @retval -20007 n is below 3
 * @retval -20068 a weight is NaN, or an abscissa is not finite
 * @retval -20141 all weights but one or two are 0
 * @retval -20026 the width is 0, or a lone peak lacks a neighbour of its sign on one side
 * @retval -20104 methods 1 and 2: a residual is NaN
 * @retval -20062 the singular values did not converge
 * @retval -20001 memory is exhausted
 * @code
 * double x[5] = {-2, -1, 0, 1, 2}, y[5] = {0.27, 1.21, 2, 1.21, 0.27}, curve[5], a, m, s, residue;
 * QvFitGaussian(x, y, NULL, 5, 0, -1, NULL, curve, &a, &m, &s, &residue);  // about 2, 0, 1
 * @endcode
 */
QV_API QvStatus ZemFunc287(const double* x, double* y, const double* weights, int64_t n, uint32_t method, double tolerance, const double* guess, double* fitted, double* amplitude, double* centre, double* width, double* residue);
#define QvFitGaussian ZemFunc287

/** @} */

/** @defgroup multiple_roots Multiple polynomial roots and lag products
 * The roots of complex polynomials whose multiple roots are to come back as such, and the normal matrices of linear
 * prediction.
 *
 *     c[0] + c[1] z + ... + c[n - 1] z^(n - 1) = c[n - 1] product over the distinct roots of (z - z[k])^m[k]
 *     R = X^H X,   row t of X: x[t], x[t - 1], ..., x[t - p]
 *
 * Coefficients stand in ascending power. A root of multiplicity m is listed m times.
 * @{
 */

/**
 * PolyRootsMultiple.
 * The roots of a complex polynomial, with multiple roots kept together.
 * The multiplicities come from approximate greatest common divisors with the derivative, found by singular values at a
 * tolerance of 1e-10; with them held fixed the roots are refined by Gauss-Newton steps, on which a multiple root is as
 * well conditioned as a simple one (Z. Zeng, Math. Comp. 74, 2005). Roots that lie closer than their coefficients can
 * tell come back as one multiple root. High zero coefficients lower the degree; the rest of roots stays unwritten.
 * @param c read, [n]: the coefficients in ascending powers, the constant first
 * @param n their number
 * @param roots written, [n - 1]: the roots, each as often as its multiplicity says, the root 0 last
 * @retval -20003 n is below 1
 * @retval -20063 a coefficient is NaN, infinite or of the largest magnitude
 * @retval -20111 all coefficients are 0
 * @retval -20021 the polynomial is a constant
 * @retval -20062 the refinement or an eigenvalue did not converge; nothing is written
 * @retval -20068 a coefficient divided by the leading one, or the refinement, leaves the range of doubles, from degree 3 on
 * @retval -20001 memory is exhausted
 * @code
 * QvComplex c[4] = {{-1, 0}, {3, 0}, {-3, 0}, {1, 0}};
 * QvPolyRootsMultiple(c, 4, roots);  // 1, three times
 * @endcode
 */
QV_API QvStatus ZemFunc300(const QvComplex* c, uint32_t n, QvComplex* roots);
#define QvPolyRootsMultiple ZemFunc300

/**
 * MatLagProduct.
 * The normal matrix of linear prediction, unscaled: X^H X of the matrix X whose row t holds x[t], x[t - 1], ..., x[t
 * - p].
 * Rows t: method 0 from 0 to n + p - 1, method 1 from 0 to n - 1, method 2 from p to n + p - 1, with 0 outside x;
 * methods 3 and 4 from p to n - 1.
 * Method 4 adds each row once more, conjugated and backwards. out may be x.
 * After S. M. Kay, Modern Spectral Estimation, 1988.
 * @param x read, [n]: the samples
 * @param n their count
 * @param p the largest lag
 * @param method 0 autocorrelation, 1 prewindowed, 2 postwindowed, 3 covariance, 4 modified covariance
 * @param out written, [(p + 1) * (p + 1)]: the product X^H X
 * @retval -20003 n is below 1
 * @retval -20059 p is below 0
 * @retval -20037 methods 3 and 4: p is not below n
 * @retval -20061 the method is above 4
 * @retval -20046 a size or the element count of out exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 * @code
 * double r[4], x[] = {1, 2, 3};
 * QvMatLagProduct(x, 3, 1, 0, r);  // {14, 8, 8, 14}
 * @endcode
 */
QV_API QvStatus ZemFunc415(const double* x, int64_t n, int64_t p, uint32_t method, double* out);
#define QvMatLagProduct ZemFunc415

/**
 * MatLagProductComplex (MatLagProduct).
 * The normal matrix of linear prediction, unscaled: X^H X of the matrix X whose row t holds x[t], x[t - 1], ..., x[t
 * - p].
 * Rows t: method 0 from 0 to n + p - 1, method 1 from 0 to n - 1, method 2 from p to n + p - 1, with 0 outside x;
 * methods 3 and 4 from p to n - 1.
 * Method 4 adds each row once more, conjugated and backwards. out may be x.
 * After S. M. Kay, Modern Spectral Estimation, 1988.
 * @param x read, [n]: the samples
 * @param n their count
 * @param p the largest lag
 * @param method 0 autocorrelation, 1 prewindowed, 2 postwindowed, 3 covariance, 4 modified covariance
 * @param out written, [(p + 1) * (p + 1)]: the product X^H X
 * @retval -20003 n is below 1
 * @retval -20059 p is below 0
 * @retval -20037 methods 3 and 4: p is not below n
 * @retval -20061 the method is above 4
 * @retval -20046 a size or the element count of out exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc416(const QvComplex* x, int64_t n, int64_t p, uint32_t method, QvComplex* out);
#define QvMatLagProductComplex ZemFunc416

/** @} */

/** @defgroup nonlinear_fit Nonlinear fit
 * Levenberg-Marquardt fits of a model y = f(x; a) that the caller supplies as a function; the gradient is taken by
 * central differences.
 *
 *     minimises chi^2 = sum of w (y - f(x; a))^2
 *     step:  (J' W J + lambda diag(J' W J)) delta = J' W (y - f),     a + delta is taken where chi^2 falls
 *
 * The guess in the coefficients decides which minimum is found: begin within a factor of a few, and with the right
 * signs. The model runs on the caller's thread, in the order of the samples, coefficient by coefficient. While a
 * derivative is taken one coefficient is moved in place; it is put back exactly. A model must return: one that
 * leaves by longjmp or by an exception leaks the library's work memory, and that is its own fault.
 * @{
 */

/**
 * FitNonlinear.
 * Fits the coefficients of a model to samples, without a limit to the iterations.
 * The fit ends at the second small change of chi-square since a rejected step, below 0.001 or 1e-5 of it; scale data
 * whose chi-square is that small. A model that becomes NaN or infinite ends the fit quietly with what was accepted.
 * K. Levenberg, Quart. Appl. Math. 2 (1944); D. W. Marquardt, SIAM J. 11 (1963).
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param fitted written, [n], may be null: the model at x; written only together with meanSquaredError
 * @param n the number of samples
 * @param model the model
 * @param coefficients read and written, [m]: in: the initial guess; out: the result
 * @param m the number of coefficients
 * @param meanSquaredError written, may be null: the mean of (f - y)^2; written only together with fitted
 * @retval -20003 n or m is below 1
 * @retval -20037 n is below m
 * @retval -20062 a solver did not converge
 * @retval -20001 memory is exhausted
 * @code
 * double decay(double x, double* a, int32_t m) { return a[0] * exp(-a[1] * x); }
 * double a[2] = {1, 0.1}, error;
 * QvFitNonlinear(x, y, fitted, n, decay, a, 2, &error);
 * @endcode
 */
QV_API QvStatus ZemFunc130(const double* x, const double* y, double* fitted, int64_t n, QvModel model, double* coefficients, int32_t m, double* meanSquaredError);
#define QvFitNonlinear ZemFunc130

/**
 * FitNonlinearAlias (FitNonlinear).
 * The same entry as ZemFunc130.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param fitted written, [n], may be null: the model at x; written only together with meanSquaredError
 * @param n the number of samples
 * @param model the model
 * @param coefficients read and written, [m]: in: the initial guess; out: the result
 * @param m the number of coefficients
 * @param meanSquaredError written, may be null: the mean of (f - y)^2; written only together with fitted
 */
QV_API QvStatus ZemFunc339(const double* x, const double* y, double* fitted, int64_t n, QvModel model, double* coefficients, int32_t m, double* meanSquaredError);
#define QvFitNonlinearAlias ZemFunc339

/**
 * FitNonlinearLimited.
 * The fit with a limit to its iterations.
 * A limit of 0 takes no step: the outputs describe the guess.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param fitted written, [n], may be null: the model at x; written only together with meanSquaredError
 * @param n the number of samples
 * @param limit the number of iterations at most; negative: no limit
 * @param model the model
 * @param coefficients read and written, [m]: in: the initial guess; out: the result
 * @param m the number of coefficients
 * @param meanSquaredError written, may be null: the mean of (f - y)^2; written only together with fitted
 * @retval -20003 n or m is below 1
 * @retval -20037 n is below m
 * @retval -20062 at the limit the last two values of chi-square differ by 1e-6 of the smaller or more; the results are written
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc131(const double* x, const double* y, double* fitted, int64_t n, int32_t limit, QvModel model, double* coefficients, int32_t m, double* meanSquaredError);
#define QvFitNonlinearLimited ZemFunc131

/**
 * FitNonlinearLimitedAlias (FitNonlinearLimited).
 * The same entry as ZemFunc131.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param fitted written, [n], may be null: the model at x; written only together with meanSquaredError
 * @param n the number of samples
 * @param limit the number of iterations at most; negative: no limit
 * @param model the model
 * @param coefficients read and written, [m]: in: the initial guess; out: the result
 * @param m the number of coefficients
 * @param meanSquaredError written, may be null: the mean of (f - y)^2; written only together with fitted
 */
QV_API QvStatus ZemFunc338(const double* x, const double* y, double* fitted, int64_t n, int32_t limit, QvModel model, double* coefficients, int32_t m, double* meanSquaredError);
#define QvFitNonlinearLimitedAlias ZemFunc338

/**
 * FitNonlinearWeighted.
 * The fit with weights.
 * Weights that are all 0 fit like no weights. Without fitted there is no mean squared error. On an error neither is
 * written; iterations is 0 then, or tells how far the fit came.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; a sample of weight 0 is left out of the fit; null: all 1
 * @param fitted written, [n], may be null: the model at all x
 * @param n the number of samples
 * @param limit the number of iterations at most; negative: no limit
 * @param model the model
 * @param coefficients read and written, [m]: in: the initial guess; out: the result
 * @param m the number of coefficients
 * @param meanSquaredError written, may be null: the mean over all n of |w| (f - y)^2; needs fitted
 * @param iterations written, may be null: the number of iterations
 * @retval -20068 a weight is NaN or infinite
 * @retval -20003 n or m is below 1
 * @retval -20037 fewer than m samples have a weight
 * @retval -20062 at the limit the last two values of chi-square differ by 1e-6 of the smaller or more
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc374(const double* x, const double* y, const double* weights, double* fitted, int64_t n, int32_t limit, QvModel model, double* coefficients, int32_t m, double* meanSquaredError, int32_t* iterations);
#define QvFitNonlinearWeighted ZemFunc374

/**
 * FitNonlinearWeightedAlias (FitNonlinearWeighted).
 * The same entry as ZemFunc374.
 * @param x read, [n]: the abscissas
 * @param y read, [n]: the ordinates
 * @param weights read, [n], may be null: the weights, by magnitude; a sample of weight 0 is left out of the fit; null: all 1
 * @param fitted written, [n], may be null: the model at all x
 * @param n the number of samples
 * @param limit the number of iterations at most; negative: no limit
 * @param model the model
 * @param coefficients read and written, [m]: in: the initial guess; out: the result
 * @param m the number of coefficients
 * @param meanSquaredError written, may be null: the mean over all n of |w| (f - y)^2; needs fitted
 * @param iterations written, may be null: the number of iterations
 */
QV_API QvStatus ZemFunc375(const double* x, const double* y, const double* weights, double* fitted, int64_t n, int32_t limit, QvModel model, double* coefficients, int32_t m, double* meanSquaredError, int32_t* iterations);
#define QvFitNonlinearWeightedAlias ZemFunc375

/** @} */

/** @defgroup peaks Peak and level detection
 * Two detectors that walk a signal: runs of samples at or above a level, and peaks or valleys of parabolas fitted
 * to a sliding window.
 *
 *     window of width samples:  p(t) = c0 + c1 t + c2 t^2,  least squares
 *     peak: slope c1 changes from + to -;  location t = -c1 / (2 c2),  amplitude p(t),  second derivative 2 c2
 *
 * Both also take a signal in consecutive blocks: each thread has one stream of either, which needs no handle.
 * Positions are in samples and count from the start of the stream; those of peaks lie between samples.
 *
 * Statuses are tested in the order in which they are listed.
 * @{
 */

/**
 * PeakThresholdRuns.
 * Finds where a signal stays at or above a threshold for at least `width` samples. NaN is below every threshold.
 * A width of 0 divides by zero, which ends the process on most machines.
 * @param x read, [n]: the signal
 * @param n its length
 * @param threshold samples at or above it form runs
 * @param width least length of a run, below n; it must not be 0, which is not tested
 * @param indices written, [n / width + 1], may be null: the first samples of the runs, as many as count tells
 * @param count written: the number of runs
 * @retval -20003 n / width + 1 is below 1; nothing is written
 * @retval -20001 memory is exhausted; nothing is written
 * @retval -20003 n is below 1; count is 0
 * @retval -20013 the width is below 1, or not below n; count is 0
 * @code
 * int64_t starts[101], count;
 * QvPeakThresholdRuns(x, 1000, 0.5, 10, starts, &count);
 * @endcode
 */
QV_API QvStatus ZemFunc237(const double* x, int64_t n, double threshold, int64_t width, int64_t* indices, int64_t* count);
#define QvPeakThresholdRuns ZemFunc237

/**
 * PeakThresholdRunsStream.
 * The same in consecutive blocks: a run may go on from block to block, and is told once, when it has reached the width.
 * After a failure the stream stays as it was, also with reset, and nothing is written.
 * The width may change from block to block. Positions have 32 bits, and wrap.
 * @param x read, [n]: the next block of the signal
 * @param n its length, also 0
 * @param threshold samples at or above it form runs
 * @param width least length of a run, 1 to 2^30
 * @param reset other than 0: the block is the first of a new stream
 * @param last other than 0: the stream ends with this block
 * @param indices written, [n / width + 1], may be null: the first samples of the runs, as many as count tells
 * @param count written: the number of runs that have reached the width within this block
 * @retval -20001 memory is exhausted
 * @retval -20003 n is below 0
 * @retval -20013 the width is below 1 or above 2^30
 */
QV_API QvStatus ZemFunc493(const double* x, int64_t n, double threshold, int64_t width, int32_t reset, int32_t last, int64_t* indices, int64_t* count);
#define QvPeakThresholdRunsStream ZemFunc493

/**
 * PeakDetect.
 * Finds peaks or valleys from the parabolas c0 + c1 t + c2 t^2 that fit each window best (least squares), where their
 * slope changes its sign from one window to the next. The apex must lie within the middle half of the window. Windows of
 * 3 and 4 samples are judged by their curvature alone.
 * Of peaks less than one sample apart the higher stands, of valleys the lower. This is not done across blocks.
 * The last window of a block waits for the next one; call with last to have all, also to end a stream.
 * The three arrays belong to the caller, who releases each with QvMemoryRelease; they are null where nothing was found and
 * after every failure, which also ends the stream.
 * @param x read, [n]: the next block of the signal
 * @param n its length, at least the width
 * @param threshold peaks must be above it, valleys below
 * @param width of the window, 3 to 2^30, the same for all blocks of a stream
 * @param polarity 0 peaks, 1 valleys; others find nothing
 * @param first other than 0: the block begins a new stream
 * @param last other than 0: the stream ends with this block
 * @param count written: the number of peaks
 * @param locations set to an array of the library, null when it is empty, [count]: their positions in samples, between samples too
 * @param amplitudes set to an array of the library, null when it is empty, [count]: their heights
 * @param secondDerivatives set to an array of the library, null when it is empty, [count]: of the parabola, per sample squared
 * @retval -20061 the width is below 3 or above 2^30
 * @retval -20001 memory is exhausted
 * @retval -20013 the block is shorter than the width
 * @retval -20064 first is 0, and there is no stream
 * @retval -20058 the width is not that of the stream
 * @code
 * int64_t count;
 * double *locations, *heights, *curvatures;
 * QvPeakDetect(x, n, 0.5, 9, 0, 1, 1, &count, &locations, &heights, &curvatures);
 * QvMemoryRelease(locations);
 * @endcode
 */
QV_API QvStatus ZemFunc194(const double* x, int64_t n, double threshold, int64_t width, uint32_t polarity, uint32_t first, int32_t last, int64_t* count, double** locations, double** amplitudes, double** secondDerivatives);
#define QvPeakDetect ZemFunc194

/** @} */

/** @defgroup plans FFT plans
 * A plan holds everything that transforms of one length need. All users of a length share one plan, and a plan
 * lives as long as somebody holds it: a program that transforms one length again and again holds a plan and spares
 * the building of its tables. Any length from 1 up has a plan; those whose prime factors are all small run fastest.
 *
 *     QvFftPlan* plan = QvFftPlanCreate(1024);
 *     for (...) QvTransformRealFft(frame, 1024, 0, plan, 0, spectrum);
 *     QvFftPlanRelease(plan);
 *
 * A plan is never changed, so any number of threads may use it at once. Where a function takes a plan, null makes
 * one for the call; the results are the same.
 * @{
 */

/**
 * FftPlanCreate.
 * A plan for transforms of this length, to be given back with FftPlanRelease.
 * Two calls with one length return the same plan; each needs its own release.
 * Null if the size does not fit 32 bits, is below 1, or memory ran out.
 * @param size the length of the transforms in points
 * @code
 * QvFftPlan* plan = QvFftPlanCreate(1024);
 * QvTransformRealFft(x, 1024, 0, plan, 0, spectrum);
 * QvFftPlanRelease(plan);
 * @endcode
 */
QV_API QvFftPlan* ZemFunc260(int64_t size);
#define QvFftPlanCreate ZemFunc260

/**
 * FftPlanRelease.
 * Gives a plan back; the last release frees it.
 * @param plan handle, may be null: the plan; null is ignored
 */
QV_API void ZemFunc261(QvFftPlan* plan);
#define QvFftPlanRelease ZemFunc261

/** @} */

/** @defgroup polynomial_roots Polynomial roots with their multiplicities
 * The roots of a real polynomial, found in a way that keeps multiple roots together: first the structure of
 * multiplicities, through a chain of approximate greatest common divisors of the polynomial and its derivative,
 * then the distinct roots as simple roots of a divisor. The method is for accuracy on low and moderate degrees.
 *
 *     c[0] + c[1] z + ... + c[n - 1] z^(n - 1) = c[n - 1] product over the distinct roots of (z - z[k])^m[k]
 *
 * Coefficients stand in ascending power. A root of multiplicity m is listed m times.
 * @{
 */

/**
 * PolyRootsReal.
 * The roots of a real polynomial, with multiple roots kept together.
 * Z. Zeng, Math. Comp. 74 (2005), at a tolerance of 1e-10; degrees 1 and 2 directly. Where no consistent structure is
 * found, the eigenvalues of the companion matrix. High zero coefficients lower the degree; the rest of roots stays
 * unwritten.
 * @param c read, [n]: the coefficients in ascending powers, the constant first
 * @param n their number
 * @param roots written, [n - 1]: the roots, each as often as its multiplicity says, the root 0 last
 * @retval -20003 n is below 1
 * @retval -20063 a coefficient is NaN, infinite or of the largest magnitude
 * @retval -20111 all coefficients are 0
 * @retval -20021 the polynomial is a constant
 * @retval -20062 an eigenvalue or a singular value did not converge; nothing is written
 * @retval -20068 a coefficient divided by the leading one leaves the range of doubles, from degree 3 on
 * @retval -20001 memory is exhausted
 * @code
 * double c[4] = {-1, 3, -3, 1};
 * QvPolyRootsReal(c, 4, roots);  // 1, three times
 * @endcode
 */
QV_API QvStatus ZemFunc299(const double* c, uint32_t n, QvComplex* roots);
#define QvPolyRootsReal ZemFunc299

/** @} */

/** @defgroup polynomial_zeros Complex polynomial zeros
 * All zeros of a polynomial with real coefficients, one after the other.
 *
 *     c[0] z^(m - 1) + c[1] z^(m - 2) + ... + c[m - 1] = 0
 *     z <- z - p(z) / p'(z),  shortened and turned while |p| does not fall
 *
 * A walk downhill on |p(z)| with limited and turned Newton steps, pure Newton steps near the zero, and deflation
 * (K. Madsen, BIT 13, 1973). Plain and fast, without a notion of multiplicity: a zero of multiplicity m comes back
 * as m neighbours, some eps^(1/m) apart. Coefficients stand in descending power, the highest first.
 * @{
 */

/**
 * PolyZeros.
 * The zeros of a polynomial with real coefficients.
 * Zero coefficients at the high end lower the degree: there are as many zeros as the degree says, and the rest of z stays
 * unwritten. After an error z holds the zeros found so far. Conjugate zeros need not stand side by side.
 * @param c read, [m]: the coefficients, the highest power first
 * @param m their number
 * @param z written, [m - 1]: the zeros in the order found, those at 0 first
 * @retval -20003 m is below 1
 * @retval -20063 a coefficient is NaN, or the polynomial is a constant
 * @retval -20062 a search found no way down at one point
 * @retval -20116 a derivative became NaN: the coefficients are too large or too far apart
 * @retval -20001 memory is exhausted
 * @code
 * double c[3] = {1, -3, 2};
 * QvPolyZeros(c, 3, zeros);  // 2 and 1
 * @endcode
 */
QV_API QvStatus ZemFunc231(const double* c, int32_t m, QvComplex* z);
#define QvPolyZeros ZemFunc231

/** @} */

/** @defgroup pulse_parameters Shape of a single pulse
 * The levels and the timing of the first pulse in a record, all by one call.
 *
 *     level p = lower + p/100 (upper - lower),      p = 10, 50, 90
 *     delay: the first crossing of level 50,  width: from there to the next one
 *     rise and fall: from level 10 to level 90 and back,  slew = 0.8 (top - base) / rise
 *
 * Times are in samples from the start of the record, cut to whole ones; slew is per sample. A pulse that goes down
 * has its base above its top.
 * @{
 */

/**
 * PulseParameters.
 * Levels and timing of the first pulse in a record.
 * The levels are the centres of the fullest of 101 equal bins between the extremes, one looked for from each end, of
 * equally full bins the outermost. A pulse goes down when its first sample is above level50.
 * Times are interpolated between samples, and the slew rate is made of them; then they are truncated to whole samples.
 * Where an edge does not end, its time lasts to the end of the record; the last sample never counts as a crossing.
 * NaN is passed over, but not as first sample.
 * @param x read, [n]: the waveform, with one pulse
 * @param n its length
 * @param amplitude written: top - base; negative for a pulse that goes down
 * @param level90 written: 90 percent of the way from the lower to the upper level
 * @param level50 written: 50 percent
 * @param level10 written: 10 percent
 * @param top written: the level of the pulse; the lower one for a pulse that goes down
 * @param base written: the level around the pulse; the upper one for a pulse that goes down
 * @param overshoot written: the largest sample above the upper level
 * @param undershoot written: the smallest sample below the lower level
 * @param delay written: samples from the start of the record to the first crossing of level50
 * @param width written: samples from there to the next crossing of level50
 * @param rise written: samples of the first edge between level10 and level90
 * @param fall written: samples of the second edge between them
 * @param slew written: 0.8 amplitude / rise; 1e30 for a rise of 0
 * @retval -20003 n is below 1; nothing is written
 * @retval -20116 a time has no value within the record, which includes every constant signal; the four times are 0
 * @code
 * double amplitude, level[3], top, base, overshoot, undershoot, slew;
 * int64_t delay, width, rise, fall;
 * QvPulseParameters(x, n, &amplitude, &level[2], &level[1], &level[0], &top, &base, &overshoot, &undershoot, &delay,
 * &width, &rise, &fall, &slew);
 * @endcode
 */
QV_API QvStatus ZemFunc142(const double* x, int64_t n, double* amplitude, double* level90, double* level50, double* level10, double* top, double* base, double* overshoot, double* undershoot, int64_t* delay, int64_t* width, int64_t* rise, int64_t* fall, double* slew);
#define QvPulseParameters ZemFunc142

/** @} */

/** @defgroup pulses Pulse and transition measurements
 * Pulse and transition measurements: a waveform is taken as a signal between two states. Its state levels are found
 * first; then references between them, the crossings of the references, and from these the timing of pulses and
 * edges.
 *
 *     reference   low + percent/100 (high - low)
 *     crossing    i + (level - x[i]) / (x[i + 1] - x[i])
 *     duty cycle  width / period
 *     slew rate   (high reference - low reference) / duration
 *
 * Times are in samples from the start of the record, interpolated linearly between samples.
 *
 * Level methods: 0 histogram, the fullest bins of the lower and of the upper two fifths, of equally full ones the
 * outermost; 1 peak, the extremes; 2 autoselect, the modes of the histogram where each holds more than 5 percent of
 * the samples, the extremes otherwise. A mode is given as the centre of its bin.
 *
 * References go in as high, mid, low, absolute or in percent of the amplitude above the low level. Percent are
 * converted in place, and the absolute levels come out once more as low, mid, high, after every error but -20046,
 * -20317 and -20001. The method is looked at only where levels are measured. Polarity: 0 falling, 1 rising.
 *
 * The warning 20021 tells of a mode with less than 5 percent of the samples; it has no text in StatusMessage.
 * Statuses are tested in the order in which they are listed. Behind -20001, outputs that an error leaves without a
 * value are 0; before it nothing is written.
 * @{
 */

/**
 * PulseStateLevels.
 * The two state levels of a waveform.
 * The histogram has equal bins from the smallest to the largest sample; a sample is in bin floor((x - min) / width).
 * @param x read, [n], may be null: the waveform
 * @param n its length
 * @param method 0 histogram, 1 peak, 2 autoselect
 * @param bins of the histogram, for every method at least 1
 * @param high written: the upper state level
 * @param low written: the lower state level
 * @param amplitude written: high - low
 * @retval -20317 bins is below 1
 * @retval -20001 memory is exhausted
 * @retval -20312 n is below 1, or x is null
 * @retval -20316 the method is above 2
 * @retval -20309 all samples are equal; not with method 1
 * @retval 20021 method 0, and a mode holds less than 5 percent of the samples
 * @code
 * double high, low, amplitude;
 * QvPulseStateLevels(x, n, 0, 256, &high, &low, &amplitude);
 * @endcode
 */
QV_API QvStatus ZemFunc363(const double* x, int64_t n, uint32_t method, int64_t bins, double* high, double* low, double* amplitude);
#define QvPulseStateLevels ZemFunc363

/**
 * PulseCycleTiming.
 * Period, width and duty cycle of one pulse of a train.
 * A crossing of mid counts when the signal has been on the other side of mid - h or mid + h since the one before, with h
 * the smaller of high - mid and mid - low; this keeps noise from counting twice.
 * 2 cycle + 1 crossings are needed.
 * @param x read, [n], may be null: the waveform
 * @param n its length
 * @param polarity of the start of the pulse: 0 falling, 1 rising, -1 the first of any
 * @param cycle number of the pulse, from 1
 * @param high read and written: upper reference
 * @param mid read and written: middle reference, whose crossings bound the pulse
 * @param low read and written: lower reference
 * @param percent other than 0: the references are in percent
 * @param method of the state levels, for references in percent
 * @param bins of the histogram, at least 1
 * @param period written: samples between the crossings 2 cycle - 1 and 2 cycle + 1, whatever the polarity
 * @param duration written: samples from the start to the end of the pulse
 * @param duty written: duration / period
 * @param centre written: the middle of the pulse, in samples
 * @param lowOut written: low, absolute
 * @param midOut written: mid, absolute
 * @param highOut written: high, absolute
 * @retval -20046 2 cycle + 1 does not fit 32 bits
 * @retval -20317 bins is below 1
 * @retval -20001 memory is exhausted
 * @retval -20323 cycle is below 1
 * @retval -20312 n is below 1, or x is null
 * @retval -20316 percent, and the method is above 2
 * @retval -20309 percent with method 0 or 2, and all samples are equal
 * @retval -20313 mid is above high or below low
 * @retval -20311 memory for the crossings is exhausted
 * @retval -20308 there are fewer crossings, or none that the polarity names
 * @retval 20021 percent with method 0, and a mode holds less than 5 percent of the samples
 */
QV_API QvStatus ZemFunc364(const double* x, int64_t n, int32_t polarity, int64_t cycle, double* high, double* mid, double* low, int32_t percent, uint32_t method, int64_t bins, double* period, double* duration, double* duty, double* centre, double* lowOut, double* midOut, double* highOut);
#define QvPulseCycleTiming ZemFunc364

/**
 * PulseCycleAverage.
 * Mean and root mean square over one period, from the start of a pulse of any polarity.
 * The period is found as by PulseCycleTiming, start and length are rounded to samples, and a period that would end
 * behind the record is moved back to its end.
 * @param x read, [n], may be null: the waveform
 * @param n its length
 * @param cycle number of the pulse, from 1
 * @param high read and written: upper reference
 * @param mid read and written: middle reference, whose crossings bound the pulse
 * @param low read and written: lower reference
 * @param percent other than 0: the references are in percent
 * @param method of the state levels, for references in percent
 * @param bins of the histogram, at least 1
 * @param mean written: of the samples of one period
 * @param rms written: root mean square of the samples of one period
 * @param start written: of the period, in samples
 * @param end written: of the period, in samples
 * @param lowOut written: low, absolute
 * @param midOut written: mid, absolute
 * @param highOut written: high, absolute
 * @retval -20046 2 cycle + 1 does not fit 32 bits
 * @retval -20317 bins is below 1
 * @retval -20001 memory is exhausted
 * @retval -20323 cycle is below 1
 * @retval -20312 n is below 1, or x is null
 * @retval -20316 percent, and the method is above 2
 * @retval -20309 percent with method 0 or 2, and all samples are equal
 * @retval -20313 mid is above high or below low
 * @retval -20311 memory for the crossings is exhausted
 * @retval -20308 there are fewer than 2 cycle + 1 crossings
 * @retval -20319 the period rounds to no sample; start and end are written
 * @retval 20021 percent with method 0, and a mode holds less than 5 percent of the samples
 */
QV_API QvStatus ZemFunc365(const double* x, int64_t n, int64_t cycle, double* high, double* mid, double* low, int32_t percent, uint32_t method, int64_t bins, double* mean, double* rms, double* start, double* end, double* lowOut, double* midOut, double* highOut);
#define QvPulseCycleAverage ZemFunc365

/**
 * PulseTransition.
 * Timing and slew rate of one edge, and the ringing before and behind it.
 * Ringing is measured from the modes of the histogram, whatever the method, and is 0 within the bin of the mode. It is
 * looked for half way to the neighbouring edges, at most three durations away, and not where the edge itself moves.
 * What has been found before an error stays in its output.
 * @param x read, [n], may be null: the waveform
 * @param n its length
 * @param polarity of the edge: 0 falling, 1 rising
 * @param edge number of the edge of that polarity, from 1
 * @param high read and written: upper reference
 * @param mid read and written: middle reference
 * @param low read and written: lower reference
 * @param percent other than 0: the references are in percent
 * @param method of the state levels
 * @param bins of the histogram, at least 1
 * @param slew written: (high - low) / duration, in the unit of x per sample, positive for falling edges too
 * @param duration written: samples between the crossings of both references
 * @param firstTime written: the earlier of these crossings, in samples
 * @param secondTime written: the later of these crossings, in samples
 * @param lowOut written: low, absolute
 * @param midOut written: mid, absolute
 * @param highOut written: high, absolute
 * @param preUndershoot written: below the level before the edge, in percent of the distance of the modes
 * @param preOvershoot written: above the level before the edge
 * @param postUndershoot written: below the level behind the edge
 * @param postOvershoot written: above the level behind the edge
 * @retval -20046 2 edge + 1 does not fit 32 bits
 * @retval -20317 bins is below 1
 * @retval -20001 memory is exhausted
 * @retval -20323 edge is below 1
 * @retval -20312 n is below 1, or x is null
 * @retval -20316 the method is above 2
 * @retval -20309 all samples are equal; with method 1 after the first cause of -20313
 * @retval -20313 mid is above high or below low; or, after -20311, low is not below high
 * @retval -20311 memory for the edges is exhausted
 * @retval -20310 there are too few edges, or none of that polarity
 * @retval -20312 no sample is left to look for ringing
 * @retval -20326 the duration is not above 0
 * @retval 20021 a mode holds less than 5 percent of the samples
 */
QV_API QvStatus ZemFunc366(const double* x, int64_t n, int32_t polarity, int64_t edge, double* high, double* mid, double* low, int32_t percent, uint32_t method, int64_t bins, double* slew, double* duration, double* firstTime, double* secondTime, double* lowOut, double* midOut, double* highOut, double* preUndershoot, double* preOvershoot, double* postUndershoot, double* postOvershoot);
#define QvPulseTransition ZemFunc366

/** @} */

/** @defgroup random Noise, low-discrepancy sequences and shuffles
 * Noise of several distributions, sequences that fill the unit interval evenly, and shuffles.
 *
 *     core       u = frac(s1 / 30269 + s2 / 30307 + s3 / 30323),  s1 <- 171 s1 mod 30269,  s2 <- 172 s2,  s3 <- 170 s3
 *     uniform    u in [0, 1)
 *     white      (u - 1/2) 2 amplitude
 *     Gaussian   deviation v sqrt(-2 ln q / q),   q = v^2 + w^2 < 1 from two uniforms in [-1, 1)
 *     Halton     digits of 0, 1, 2, ... in the base, mirrored at the point
 *     Weyl       frac(i step)
 *
 * Each generator keeps a stream of its own for each thread: kinds called in turn do not disturb each other, and two
 * threads never share one. The core adds three congruential generators modulo 1 (Wichmann and Hill 1982).
 *
 * A seed alone: a positive one restarts the stream at every call, 0 goes on (at first from the fixed default), a
 * negative one takes the clock on the thread's first call of that generator and goes on later. The seed is applied
 * before n is tested.
 *
 * A seed with a reset: the first call of the thread and every call with a reset start the stream anew, from the
 * seed if it is positive, else from the fixed default, also for negative seeds; any other call goes on whatever its
 * seed.
 *
 * Seeding from the clock goes through srand and rand of the C library, whose state the process shares where the
 * system has it so. Four seeds (multiples of 16384) make every draw 0; what could then never end refuses them with
 * -20061.
 * @{
 */

/**
 * GenUniformNoise.
 * Uniform noise in [0, 1): draws of the core generator.
 * @param n samples
 * @param seed positive restarts, 0 goes on, negative takes the clock once
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 * @code
 * double out[1000];
 * QvGenUniformNoise(1000, 7, out);  // the same samples at every call
 * QvGenUniformNoise(1000, 0, out);  // goes on behind them
 * @endcode
 */
QV_API QvStatus ZemFunc182(int64_t n, int32_t seed, double* out);
#define QvGenUniformNoise ZemFunc182

/**
 * GenWhiteNoise.
 * Uniform white noise in [-amplitude, amplitude): (u - 0.5) (2 amplitude) for draws u.
 * @param n samples
 * @param amplitude half the width; its sign is kept
 * @param seed positive restarts, 0 goes on, negative takes the clock once
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc185(int64_t n, double amplitude, int32_t seed, double* out);
#define QvGenWhiteNoise ZemFunc185

/**
 * GenGaussianNoise.
 * Normal noise of mean 0 by the polar method (Marsaglia and Bray 1964).
 * Deviates come in pairs; the second one waits for the next output, also of a later call.
 * @param n samples
 * @param deviation standard deviation; any number, it is a plain factor
 * @param seed positive restarts and drops the waiting deviate, 0 goes on, negative takes the clock once
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20061 the stream stands at 0
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc84(int64_t n, double deviation, int32_t seed, double* out);
#define QvGenGaussianNoise ZemFunc84

/**
 * GenPeriodicRandomNoise.
 * Noise of period n: the sum of cosines of one amplitude and random phases at all lines between zero frequency and half
 * the sampling rate, without both.
 * @param n samples, one period
 * @param amplitude of each spectral line
 * @param seed positive restarts, 0 goes on, negative takes the clock once
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc387(int64_t n, double amplitude, int32_t seed, double* out);
#define QvGenPeriodicRandomNoise ZemFunc387

/**
 * RngShuffleReal.
 * Puts an array in random order (Fisher and Yates, from the last place down). The draws do not depend on perm.
 * @param data read and written, [n]
 * @param n elements
 * @param seed positive restarts, 0 goes on, negative takes the clock once
 * @param perm written, [n], may be null: perm[i] is the input element that now stands at place i
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc396(double* data, int64_t n, int32_t seed, int64_t* perm);
#define QvRngShuffleReal ZemFunc396

/**
 * RngShuffleComplex.
 * RngShuffleReal for complex numbers, with a stream of its own.
 * @param data read and written, [n]
 * @param n elements
 * @param seed positive restarts, 0 goes on, negative takes the clock once
 * @param perm written, [n], may be null: perm[i] is the input element that now stands at place i
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc397(QvComplex* data, int64_t n, int32_t seed, int64_t* perm);
#define QvRngShuffleComplex ZemFunc397

/**
 * RngShuffleInt.
 * RngShuffleReal for integers, with a stream of its own.
 * @param data read and written, [n]
 * @param n elements
 * @param seed positive restarts, 0 goes on, negative takes the clock once
 * @param perm written, [n], may be null: perm[i] is the input element that now stands at place i
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc398(int32_t* data, int64_t n, int32_t seed, int64_t* perm);
#define QvRngShuffleInt ZemFunc398

/**
 * GenGammaNoise.
 * Gamma variates of integer order: -ln of a product of uniform draws below order 6, else rejection under a Lorentzian
 * (Ahrens and Dieter 1974).
 * @param n samples
 * @param order the waiting time for so many events of rate 1
 * @param seed of a first or resetting call
 * @param reset not 0 starts the stream anew
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20140 order is below 1
 * @retval -20061 the stream stands at 0, from order 6 on
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc388(int64_t n, int32_t order, int32_t seed, int32_t reset, double* out);
#define QvGenGammaNoise ZemFunc388

/**
 * GenPoissonNoise.
 * Poisson variates, whole numbers: a product of uniform draws against exp(-mean) below a mean of 12, else rejection
 * under a Lorentzian.
 * @param n samples
 * @param mean events expected
 * @param seed of a first or resetting call
 * @param reset not 0 starts the stream anew
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20061 mean is negative, infinite or NaN, or so large that ln Gamma(mean + 1) overflows
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc389(int64_t n, double mean, int32_t seed, int32_t reset, double* out);
#define QvGenPoissonNoise ZemFunc389

/**
 * GenBinomialNoise.
 * Binomial variates, numbers of successes: by single trials below 25 of them, by the Poisson product for a mean below
 * 1 of the rarer outcome, else by rejection under a Lorentzian.
 * @param n samples
 * @param trials in one sample
 * @param probability of a success
 * @param seed of a first or resetting call
 * @param reset not 0 starts the stream anew
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20059 trials is negative
 * @retval -20053 probability is outside [0, 1]
 * @retval -20061 probability is NaN
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc390(int64_t n, int32_t trials, double probability, int32_t seed, int32_t reset, int32_t* out);
#define QvGenBinomialNoise ZemFunc390

/**
 * GenBernoulliNoise.
 * Ones with the given probability, else zeros: 1 where probability - 0.5 exceeds white noise of amplitude 0.5.
 * @param n samples
 * @param probability of a 1
 * @param seed of a first or resetting call
 * @param reset not 0 starts the stream anew
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20053 probability is outside [0, 1]
 * @retval -20061 probability is NaN
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc414(int64_t n, double probability, int32_t seed, int32_t reset, int32_t* out);
#define QvGenBernoulliNoise ZemFunc414

/**
 * GenHaltonSequence.
 * The radical inverse of consecutive integers (van der Corput 1935, Halton 1960): their digits in the base, mirrored at
 * the point. It starts with 0 and fills [0, 1) evenly.
 * The integers have 32 bits and turn negative behind 2^31 - 1; then a reset is needed.
 * @param n samples
 * @param base its absolute value counts; taken on the first or a resetting call
 * @param reset not 0 starts at 0 with this base
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20061 the base in force is 0, 1 or -1; nothing changes
 * @retval -20059 the sequence has used up the integers
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc412(int64_t n, int32_t base, int32_t reset, double* out);
#define QvGenHaltonSequence ZemFunc412

/**
 * GenWeylSequence.
 * The multiples of a step modulo 1 (Weyl 1916), accumulated. It starts with 0 and fills [0, 1) evenly if the step is
 * irrational.
 * @param n samples
 * @param step its absolute value counts; taken on the first or a resetting call
 * @param reset not 0 starts at 0 with this step
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20059 the stored value is negative
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc413(int64_t n, double step, int32_t reset, double* out);
#define QvGenWeylSequence ZemFunc413

/** @} */

/** @defgroup spectrum Spectrum measurements
 * From time records to spectra, and from spectra to numbers. Records have any length n, not only powers of two.
 *
 *     X[k] = sum over j of x[j] exp(-2 pi i j k / n),          x[j] = (1/n) sum over k of X[k] exp(2 pi i j k / n)
 *     two-sided power   S[k] = |X[k]|^2 / n^2                  cross power  Sxy[k] = conj(X[k]) Y[k] / n^2
 *     one-sided power   G[0] = S[0],  G[k] = 2 S[k]            a sine of amplitude A on a bin reads A^2 / 2
 *     amplitude         sqrt(G[k])                             root mean square: A / sqrt(2)
 *     transfer          H[k] = Y[k] / X[k],  over frames: sum Sxy / sum Sxx
 *     coherence         |sum Sxy|^2 / (sum Sxx sum Syy)
 *     frequency of bin k: k df,   df = 1 / (n dt)
 *
 * Two-sided spectra are split real arrays of n bins with zero frequency at 0. One-sided spectra hold the bins 0 to
 * n/2 - 1, never the Nyquist bin, and bin 0 also for n = 1. dt is the time between samples; powers are in the unit
 * of x squared, phases in radians and those of a cosine. A window is divided out by its coherent gain where tones
 * are read (WinApplyScaledPlain does it), by its noise bandwidth where powers of several bins are added.
 *
 * Outputs may be the inputs. After an error the outputs are unspecified.
 * @{
 */

/**
 * SpecRealFft.
 * The two-sided spectrum of a real record, unscaled.
 * @param x read and written, [n]: the record, then the real part of its spectrum
 * @param im written, [n]: the imaginary part of the spectrum
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 * @code
 * QvSpecRealFft(x, im, n);
 * @endcode
 */
QV_API QvStatus ZemFunc147(double* x, double* im, int64_t n);
#define QvSpecRealFft ZemFunc147

/**
 * SpecRealInverseFft.
 * The real record of a two-sided spectrum, with the factor 1/n.
 * The spectrum is taken as that of a real record: the real part is read up to n/2, the imaginary part behind it.
 * A single sample is its own spectrum, and nothing is touched.
 * @param re read and written, [n]: the real part of the spectrum, then the record
 * @param im read and written, [n]: the imaginary part of the spectrum; its content afterwards is unspecified
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc148(double* re, double* im, int64_t n);
#define QvSpecRealInverseFft ZemFunc148

/**
 * SpecComplexInverseFft.
 * The complex record of a two-sided spectrum, with the factor 1/n.
 * @param re read and written, [n]: the real part of the spectrum, then of the record
 * @param im read and written, [n]: the imaginary part of the spectrum, then of the record
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc102(double* re, double* im, int64_t n);
#define QvSpecComplexInverseFft ZemFunc102

/**
 * SpecAutoPower.
 * The two-sided auto power spectrum of a real record, |X[k]|^2 / n^2.
 * @param x read and written, [n]: the record, then its power spectrum in the unit of x squared
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc161(double* x, int64_t n);
#define QvSpecAutoPower ZemFunc161

/**
 * SpecCrossPower.
 * The two-sided cross power spectrum of two real records, conj(X[k]) Y[k] / n^2.
 * @param x read, [n]
 * @param y read, [n]
 * @param re written, [n]: in the unit of x times that of y
 * @param im written, [n]: in the unit of x times that of y
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc36(const double* x, const double* y, int64_t n, double* re, double* im);
#define QvSpecCrossPower ZemFunc36

/**
 * SpecAmplitudePhase.
 * The one-sided amplitude and phase spectrum of a real record.
 * Inner bins give the rms amplitude of a sine component, |X[k]| sqrt(2) / n; bin 0 gives the magnitude of the mean
 * with the phase 0 or pi. The phase is that of a cosine.
 * @param x read, [n]
 * @param unwrap other than 0: the phases are unwrapped as by SpecUnwrapRadians
 * @param dt time between samples
 * @param amp written, [max(n / 2, 1)]: root mean square amplitude, in the unit of x
 * @param phase written, [max(n / 2, 1)]: radians
 * @param df written: in the unit of 1/dt
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc5(const double* x, int64_t n, int32_t unwrap, double dt, double* amp, double* phase, double* df);
#define QvSpecAmplitudePhase ZemFunc5

/**
 * SpecPowerSpectrum.
 * The one-sided power spectrum of a real record: S[0], then 2 S[k], with S as of SpecAutoPower.
 * @param x read, [n]
 * @param dt time between samples
 * @param power written, [max(n / 2, 1)]: in the unit of x squared
 * @param df written: in the unit of 1/dt
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc10(const double* x, int64_t n, double dt, double* power, double* df);
#define QvSpecPowerSpectrum ZemFunc10

/**
 * SpecCrossPowerPolar.
 * The one-sided cross power spectrum of two real records: |S[0]|, then 2 |S[k]|, with S as of SpecCrossPower.
 * @param x read, [n]
 * @param y read, [n]
 * @param dt time between samples
 * @param mag written, [max(n / 2, 1)]: in the unit of x times that of y
 * @param phase written, [max(n / 2, 1)]: radians, of y against x
 * @param df written: in the unit of 1/dt
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc37(const double* x, const double* y, int64_t n, double dt, double* mag, double* phase, double* df);
#define QvSpecCrossPowerPolar ZemFunc37

/**
 * SpecTransferFunction.
 * The one-sided transfer function H[k] = Y[k] / X[k] from stimulus X to response Y.
 * A bin where the stimulus has nothing gives infinities or NaN, without a status.
 * @param stimulus read, [n]
 * @param response read, [n]
 * @param dt time between samples
 * @param mag written, [max(n / 2, 1)]: in the unit of the response over that of the stimulus
 * @param phase written, [max(n / 2, 1)]: radians
 * @param df written: in the unit of 1/dt
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc176(const double* stimulus, const double* response, int64_t n, double dt, double* mag, double* phase, double* df);
#define QvSpecTransferFunction ZemFunc176

/**
 * SpecDeconvolve.
 * Undoes a circular convolution: the record whose spectrum is that of the signal over that of the divisor.
 * A zero in the divisor's spectrum gives infinities or NaN, without a status.
 * @param divisor read, [n]
 * @param signal read, [n]
 * @param out written, [n]
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc94(const double* divisor, const double* signal, int64_t n, double* out);
#define QvSpecDeconvolve ZemFunc94

/**
 * SpecNetworkAnalysis.
 * Cross power, transfer function, coherence and impulse response of a network, averaged over frames.
 * With Sxx, Syy and Sxy the sums of the auto and cross power spectra over all frames: the transfer function is
 * Sxy / Sxx, the impulse response its inverse transform, the coherence |Sxy|^2 / (Sxx Syy), the cross power
 * |Sxy| / frames with its inner bins doubled. With one frame every coherence is 1. A bin where the stimulus has nothing
 * gives NaN, and with it a whole impulse response of NaN.
 * @param stimulus read, [frames * n]: frame after frame
 * @param response read, [frames * n]: frame after frame
 * @param n samples in a frame
 * @param dt time between samples
 * @param crossMag written, [max(n / 2, 1)]: cross power, in the unit of the stimulus times that of the response
 * @param crossPhase written, [max(n / 2, 1)]: radians
 * @param transferMag written, [max(n / 2, 1)]: in the unit of the response over that of the stimulus
 * @param transferPhase written, [max(n / 2, 1)]: radians
 * @param coherence written, [max(n / 2, 1)]: from 0 to 1
 * @param impulse written, [n]: impulse response
 * @param df written: in the unit of 1/dt
 * @retval -20003 n is below 1, or frames is
 * @retval -20046 frames * n does not fit 32 bits
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc129(const double* stimulus, const double* response, int64_t n, int64_t frames, double dt, double* crossMag, double* crossPhase, double* transferMag, double* transferPhase, double* coherence, double* impulse, double* df);
#define QvSpecNetworkAnalysis ZemFunc129

/**
 * SpecUnitConvert.
 * Converts a spectrum into the unit in which it is to be shown, and completes the text of the unit.
 * An amplitude spectrum is squared first; density divides by df times the noise bandwidth; peak doubles all but
 * bin 0; then the linear display takes the square root where amplitudes are wanted, decibels are 10 log10. For "V"
 * the unit becomes "Vrms", "Vpk", "Vrms^2", "Vpk^2", "Vrms/rtHz", "Vpk/rtHz", "Vrms^2/Hz" or "Vpk^2/Hz" by the flags 0
 * to 7, with "dB" in front for decibels, where the flags 2 and 3 keep "dBVrms" and "dBVpk".
 * Display 2 ignores the peak flag and replaces the unit by "dBm". A plain magnitude passes with an empty unit, or
 * becomes 20 log10 in "dB".
 * @param spectrum read, [n]
 * @param kind 0 power spectrum, 1 amplitude spectrum, 2 plain magnitude
 * @param display 0 linear, 1 decibel, 2 decibel to 0.6084 ("dBm")
 * @param flags 0 to 7: bit 0 peak instead of rms, bit 1 power instead of amplitude, bit 2 density per hertz
 * @param df step between bins
 * @param window read: only the equivalent noise bandwidth is read
 * @param out written, [n]
 * @param unit read and written, []: the base unit, NUL-terminated, then the full one; with room for the longest: 10 characters more
 * @retval -20003 n is below 1; nothing is written
 * @retval -20061 kind is above 2, display is above 2, or flags lies outside 0 to 7; nothing is written
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc162(const double* spectrum, int64_t n, uint32_t kind, uint32_t display, int32_t flags, double df, const QvWindowProperties* window, double* out, char* unit);
#define QvSpecUnitConvert ZemFunc162

/**
 * SpecUnwrapPhase.
 * Removes the jumps by whole periods from a phase, in place, and converts it where the mode says so.
 * Every value is moved by a multiple of the period to within half a period of the new value before it; an exact half
 * period goes down.
 * @param phase read and written, [n]: in radians or degrees, by mode
 * @param mode 0 radians; 1 radians to degrees; 2 degrees; 3 degrees to radians; any other is 0
 * @retval -20008 n is below 1
 */
QV_API QvStatus ZemFunc368(double* phase, int64_t n, uint32_t mode);
#define QvSpecUnwrapPhase ZemFunc368

/**
 * SpecUnwrapRadians (SpecUnwrapPhase).
 * Removes the jumps by 2 pi from a phase, in place.
 * @param phase read and written, [n]: radians
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc183(double* phase, int64_t n);
#define QvSpecUnwrapRadians ZemFunc183

/**
 * SpecPeakPowerFrequency.
 * Power and frequency of a spectral peak, from the bins around it.
 * The power is their sum over the noise bandwidth of the window, the frequency their centre of mass. Bins outside the
 * spectrum are left out; a search outside it takes the largest bin. Without a positive sum the frequency is that of
 * the centre bin.
 * @param power read, [n]: one-sided power spectrum
 * @param search the frequency to look at, in the unit of df; negative: the largest bin
 * @param window read: only the equivalent noise bandwidth is read
 * @param df step between bins
 * @param span bins to sum: at least 3, an even number is taken as the next odd one
 * @param frequency written: in the unit of df
 * @param peakPower written: in the unit of power
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc139(const double* power, int64_t n, double search, const QvWindowProperties* window, double df, int64_t span, double* frequency, double* peakPower);
#define QvSpecPeakPowerFrequency ZemFunc139

/**
 * SpecAcDcEstimate.
 * Estimates the alternating and the direct part of a signal that need not hold whole periods.
 * The mean is taken off, the rest multiplied by a Hanning window; of its mean m and variance v,
 * ac = sqrt((v - m^2 / 2) / 0.375) and dc = 2 m + mean.
 * @param x read, [n]
 * @param ac written: root mean square of the alternating part, in the unit of x
 * @param dc written: mean, in the unit of x
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc2(const double* x, int64_t n, double* ac, double* dc);
#define QvSpecAcDcEstimate ZemFunc2

/** @} */

/** @defgroup statistics Descriptive statistics
 * Summaries of a data array: location, spread, shape, histogram and modes.
 *
 *     mean = sum x / n                      variance = sum (x - mean)^2 / n
 *     rms = sqrt(sum x^2 / n)               moment k = sum (x - mean)^k / n
 *     bin i of a histogram: base + i w <= x < base + (i + 1) w,   w = (top - base) / intervals
 *
 * The data are the whole population: variances, deviations and moments divide by n, never by n - 1. Sums are added
 * in index order. NaN and infinities propagate where nothing else is said.
 * @{
 */

/**
 * StatMean.
 * The arithmetic mean, sum(x) / n.
 * @param x read, [n]
 * @param mean written: in the unit of x
 * @retval -20003 n is below 1
 * @code
 * double mean;
 * QvStatMean(x, n, &mean);
 * @endcode
 */
QV_API QvStatus ZemFunc122(const double* x, int64_t n, double* mean);
#define QvStatMean ZemFunc122

/**
 * StatRms.
 * The root mean square, sqrt(sum(x^2) / n).
 * @param x read, [n]
 * @param rms written: in the unit of x
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc150(const double* x, int64_t n, double* rms);
#define QvStatRms ZemFunc150

/**
 * StatRmsComplex.
 * The root mean square of complex data, sqrt(sum(re^2 + im^2) / n).
 * @param x read, [n]
 * @param rms written: in the unit of x
 * @retval -20003 n is below 1; rms is NaN
 */
QV_API QvStatus ZemFunc369(const QvComplex* x, int64_t n, double* rms);
#define QvStatRmsComplex ZemFunc369

/**
 * StatMeanVariance.
 * Mean and variance in one pass, mean = sum(x) / n and variance = sum(x^2) / n - mean^2.
 * The difference cancels where the mean is large beside the deviation, and rounding can take the variance of a
 * constant signal a little below 0; StatMeanStdDev takes a second pass instead.
 * @param x read, [n]
 * @param mean written: in the unit of x
 * @param variance written: in the unit of x squared
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc184(const double* x, int64_t n, double* mean, double* variance);
#define QvStatMeanVariance ZemFunc184

/**
 * StatMeanStdDev.
 * Mean and standard deviation in two passes, mean = sum(x) / n, then deviation = sqrt(sum((x - mean)^2) / n).
 * @param x read, [n]
 * @param mean written: in the unit of x
 * @param deviation written: in the unit of x
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc166(const double* x, int64_t n, double* mean, double* deviation);
#define QvStatMeanStdDev ZemFunc166

/**
 * StatMoment.
 * The central moment, sum((x - mean)^order) / n, with each power by repeated multiplication.
 * @param x read, [n]
 * @param order taken as a signed number
 * @param moment written: in the unit of x to the power of order
 * @retval -20003 n is below 1
 * @retval -20021 order is below 1
 */
QV_API QvStatus ZemFunc125(const double* x, int64_t n, uint32_t order, double* moment);
#define QvStatMoment ZemFunc125

/**
 * StatMedian.
 * The middle of the sorted data; for even n the mean of the two middle elements.
 * Method: quickselect (Hoare, 1961) on a copy, in linear time on average.
 * @param x read, [n]
 * @param median written: in the unit of x
 * @retval -20003 n is below 1
 * @retval -20104 an element is NaN; median is NaN
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc123(const double* x, int64_t n, double* median);
#define QvStatMedian ZemFunc123

/**
 * StatHistogram.
 * Counts samples over equal bins between base and top.
 * A bin is closed at its lower end and open at its upper end, the last one also closed at top. Samples outside, and
 * those that rounding puts behind the last bin, are dropped; so are NaN. With base equal to top the last bin holds
 * all n samples, whatever their values, and every centre is base.
 * counts may be null when only the centres are wanted.
 * @param x read, [n]
 * @param base lower end of the first bin, in the unit of x
 * @param top upper end of the last bin, in the unit of x
 * @param counts written, [intervals], may be null: samples in each bin
 * @param centres written, [intervals]: the middle of each bin, in the unit of x
 * @retval -20101 base is above top
 * @retval -20003 n is below 1, or intervals is
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc90(const double* x, int64_t n, double base, double top, int64_t* counts, double* centres, int64_t intervals);
#define QvStatHistogram ZemFunc90

/**
 * StatModeOfHistogram.
 * The centre of the fullest bin of the histogram of StatHistogram, the first of equally full ones.
 * When all samples lie outside, the centre of the first bin.
 * @param x read, [n]
 * @param base lower end of the first bin, in the unit of x
 * @param top upper end of the last bin, in the unit of x
 * @param mode written: in the unit of x
 * @retval -20003 intervals is below 1, which is tested first, or n is
 * @retval -20101 base is above top
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc124(const double* x, int64_t n, double base, double top, int64_t intervals, double* mode);
#define QvStatModeOfHistogram ZemFunc124

/**
 * StatModes.
 * All values that occur most often, in ascending order; the first ones that fit are written.
 * With intervals below 1 values count as equal within a relative 2.2e-16 of the smallest of them, which is the mode;
 * with intervals at 1 or above the modes are the centres of the fullest bins between the smallest and the largest
 * value. Nothing that occurs only once is a mode, but data that are all equal have their one value as the mode. A
 * single sample has no mode. A negative room counts as none.
 * @param x read, [n]
 * @param modes written, [count]: in the unit of x
 * @param count read and written: the room in modes, then the number of modes found, which can be larger
 * @retval -20003 n is below 1; count is 0
 * @retval -20001 memory is exhausted; count is 0
 */
QV_API QvStatus ZemFunc340(const double* x, int64_t n, int64_t intervals, double* modes, int64_t* count);
#define QvStatModes ZemFunc340

/** @} */

/** @defgroup status Status codes
 * What a call says of itself: 0 is success, a positive code a warning with results that are written and usable, a
 * negative code an error. After an error the outputs hold whatever had been written so far.
 *
 *     QvStatus status = QvSpecPowerSpectrum(x, n, dt, power, &df);
 *     if (status < 0) fprintf(stderr, "%s\n", QvStatusMessage(status));
 *
 * A message may name a limit a little different from the one that is tested; the documentation of each function
 * tells the test.
 * @{
 */

/**
 * StatusMessage.
 * The text of a status code.
 * Never fails and never returns null; a code without a text gives "Unknown error number".
 * The text belongs to the library and stays valid while it is loaded.
 * @param code a status that a function returned
 * @code
 * puts(QvStatusMessage(QvArrAdd(x, y, n, sum)));
 * @endcode
 */
QV_API const char* ZemFunc240(int32_t code);
#define QvStatusMessage ZemFunc240

/** @} */

/** @defgroup time_domain Time-domain operations
 * Integration, differentiation, decimation and level crossings of sampled signals.
 *
 *     integral     out[i] = out[i - 1] + (x[i - 1] + 4 x[i] + x[i + 1]) dt / 6
 *     derivative   out[i] = (x[i + 1] - x[i - 1]) / (2 dt)
 *     decimation   out[i] = x[i factor],  or the mean of x[i factor] ... x[(i + 1) factor - 1]
 *     crossing     rising: armed below level - |hysteresis|, found at or above level
 *
 * dt is the time between samples; the samples in front of the first and behind the last are arguments.
 *
 * The continuous forms take an endless signal block by block; where the blocks are cut makes no difference. They
 * keep their state for each thread and operation, so that a thread runs one stream an operation; a first call on a
 * thread starts as a reset does.
 * @{
 */

/**
 * IntegrateSimpson.
 * The running integral by the rule of Simpson: out[i] = out[i - 1] + (x[i - 1] + 4 x[i] + x[i + 1]) dt / 6.
 * @param x read and written, [n]: samples
 * @param n samples
 * @param dt sampling interval
 * @param initial the sample in front of the first
 * @param final the sample behind the last
 * @param out written, [n], may be null: the integral; null writes over x
 * @retval -20003 n is below 1
 * @retval -20016 dt is 0 or negative
 * @code
 * QvIntegrateSimpson(speed, n, 0.01, speed[0], speed[n - 1], distance);
 * @endcode
 */
QV_API QvStatus ZemFunc95(double* x, int64_t n, double dt, double initial, double final, double* out);
#define QvIntegrateSimpson ZemFunc95

/**
 * Differentiate.
 * The derivative by central differences: out[i] = (x[i + 1] - x[i - 1]) (0.5 / dt).
 * @param x read and written, [n]: samples
 * @param n samples
 * @param dt sampling interval
 * @param initial the sample in front of the first
 * @param final the sample behind the last
 * @param out written, [n], may be null: the derivative; null writes over x
 * @retval -20003 n is below 1
 * @retval -20016 dt is 0 or negative
 */
QV_API QvStatus ZemFunc56(double* x, int64_t n, double dt, double initial, double final, double* out);
#define QvDifferentiate ZemFunc56

/**
 * DifferentiateMethod.
 * The derivative by differences: (x[i + 1] - x[i - 1]) / 2, (8 x[i + 1] - x[i + 2] - 8 x[i - 1] + x[i - 2]) / 12,
 * x[i + 1] - x[i] or x[i] - x[i - 1], over dt.
 * The factor is formed once as a reciprocal.
 * @param x read and written, [n]: samples
 * @param n samples
 * @param dt sampling interval
 * @param initial read, [nInitial]: the samples in front of the first, in order; the first ones given count
 * @param nInitial at least 1, 2, 0, 1 for the methods 0 to 3
 * @param final read, [nFinal]: the samples behind the last, in order
 * @param nFinal at least 1, 2, 1, 0 for the methods 0 to 3
 * @param method 0 central of second order, 1 central of fourth order, 2 forward, 3 backward
 * @param out written, [n], may be null: the derivative; null writes over x
 * @retval -20003 n is below 1, or a boundary array of method 0, 2 or 3 is too short
 * @retval -20016 dt is 0 or negative
 * @retval -20006 a boundary array of method 1 has fewer than two values
 * @retval -20061 method is above 3
 */
QV_API QvStatus ZemFunc367(double* x, int64_t n, double dt, const double* initial, int64_t nInitial, const double* final, int64_t nFinal, uint32_t method, double* out);
#define QvDifferentiateMethod ZemFunc367

/**
 * Decimate.
 * Reduces the sampling rate: one result for each whole block of factor samples; the tail is dropped.
 * @param x read, [n]: samples
 * @param n samples
 * @param factor samples that make one result
 * @param average 0 takes the first sample of each block, anything else its mean
 * @param out written, [n / factor]: the results
 * @retval -20003 n is below 1
 * @retval -20022 factor is below 1 or above n
 */
QV_API QvStatus ZemFunc53(const double* x, int64_t n, int64_t factor, uint32_t average, double* out);
#define QvDecimate ZemFunc53

/**
 * DecimateComplex.
 * Decimate for complex samples.
 * @param x read and written, [n]: samples
 * @param n samples
 * @param factor samples that make one result
 * @param average 0 takes the first sample of each block, anything else its mean
 * @param out written, [n / factor], may be null: the results; null writes over x
 * @retval -20003 n is below 1
 * @retval -20022 factor is below 1 or above n
 */
QV_API QvStatus ZemFunc360(QvComplex* x, int64_t n, int64_t factor, uint32_t average, QvComplex* out);
#define QvDecimateComplex ZemFunc360

/**
 * DecimateContinuous.
 * Decimates an endless signal block by block, in place: all results together are those of Decimate on the joined
 * signal.
 * With averaging and a block that ends before the offset the count may be negative: there are no results.
 * @param x read and written, [n]: a block of the signal; its results stand at the begin
 * @param n samples in this block, at least 1 and otherwise any number
 * @param factor samples that make one result; taken on the first or a resetting call
 * @param average 0 takes the first sample of each group, anything else its mean
 * @param offset samples to skip at the begin of the signal; taken on the first or a resetting call
 * @param reset not 0 starts a new signal
 * @param count written: results of this block
 * @retval -20003 n is below 1; nothing changes
 * @retval -20140 the factor in force is below 1; count is 0
 * @retval -20059 the offset in force is negative
 * @retval -20001 memory is exhausted
 * @code
 * int64_t count;
 * QvDecimateContinuous(block, 1024, 10, 1, 0, 0, &count);  // block[0] to block[count - 1]
 * @endcode
 */
QV_API QvStatus ZemFunc417(double* x, int64_t n, int64_t factor, uint32_t average, int32_t offset, int32_t reset, int64_t* count);
#define QvDecimateContinuous ZemFunc417

/**
 * DecimateContinuousComplex.
 * DecimateContinuous for complex samples, with a state of its own.
 * @param x read and written, [n]: a block of the signal; its results stand at the begin
 * @param n samples in this block, at least 1 and otherwise any number
 * @param factor samples that make one result; taken on the first or a resetting call
 * @param average 0 takes the first sample of each group, anything else its mean
 * @param offset samples to skip at the begin of the signal; taken on the first or a resetting call
 * @param reset not 0 starts a new signal
 * @param count written: results of this block
 * @retval -20003 n is below 1; nothing changes
 * @retval -20140 the factor in force is below 1; count is 0
 * @retval -20059 the offset in force is negative
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc418(QvComplex* x, int64_t n, int64_t factor, uint32_t average, int32_t offset, int32_t reset, int64_t* count);
#define QvDecimateContinuousComplex ZemFunc418

/**
 * DetectLevelCrossing.
 * The first crossing of a level in a block. Rising: a sample below level - |hysteresis| arms, a later one at or above
 * the level is the crossing. Falling: above level + |hysteresis|, then at or below the level.
 * The rest of the block is not looked at, and the next crossing needs arming again.
 * @param x read, [n]: a block of the signal
 * @param n samples in this block, 0 or more
 * @param level the level to cross
 * @param hysteresis its absolute value counts
 * @param slope 1 rising, 0 falling; any other finds nothing
 * @param reset not 0 starts a new signal
 * @param index written: of the crossing in this block, -1 if there is none
 * @param found written: 1 if there is one, else 0
 * @retval -20004 n is negative; a reset has been done
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc419(const double* x, int64_t n, double level, double hysteresis, int32_t slope, int32_t reset, int64_t* index, int32_t* found);
#define QvDetectLevelCrossing ZemFunc419

/**
 * DetectLevelCrossings.
 * DetectLevelCrossing for several signals at once, with states of their own.
 * @param x read, [channels * n]: one row of n samples a channel
 * @param channels signals
 * @param n samples of each signal in this block
 * @param levels read, [channels]: the levels to cross
 * @param hysteresis read, [channels]: their absolute values count
 * @param slopes read, [channels]: 1 rising, 0 falling; any other finds nothing
 * @param reset not 0 starts new signals
 * @param indices written, [channels]: of the crossings in this block, -1 where there is none
 * @param found written, [channels]: 1 where there is one, else 0
 * @retval -20003 channels or n is below 1
 * @retval -20058 channels differs from what the stream was started with
 * @retval -20001 memory is exhausted; a start that found none needs a reset
 */
QV_API QvStatus ZemFunc420(const double* x, int64_t channels, int64_t n, const double* levels, const double* hysteresis, const int32_t* slopes, int32_t reset, int64_t* indices, int32_t* found);
#define QvDetectLevelCrossings ZemFunc420

/** @} */

/** @defgroup tones Harmonic and tone analysis
 * Sinusoids in data, to much better accuracy than one bin of a spectrum: the harmonics in a given power spectrum, a
 * fundamental and its harmonics in a time record, and the extraction of one or several tones.
 *
 *     real record      x[j] = amp sin(2 pi freq j dt + phase)
 *     complex record   x[j] = amp / 2 exp(i (2 pi freq j dt + phase))
 *     distortion             thd = 100 sqrt(amp[1]^2 + amp[2]^2 + ...) / amp[0]
 *     distortion and noise   100 sqrt(power without the fundamental / power), the mean left out of both
 *
 * dt is the time between samples; frequencies are in the unit of 1/dt, phases in degrees at sample 0, not
 * normalised. Amplitudes are peak amplitudes, those of SpecHarmonicAnalyzer root mean square ones. A complex
 * exponential of modulus A reads 2A, since the scale is that of a real record, half of which stands at the negative
 * frequency; the synthesis of the modes 2 and 3 takes that half again.
 *
 * Extraction takes a spectrum under a Hanning window and solves for the frequency at which two and three bins
 * around a peak tell the same amplitude; tones of real records are modelled together with their image at the
 * negative frequency, and several tones are refined together. Without noise the frequency of a single tone is right
 * to 1e-9 of the rate, up to 1e7 samples; in noise its deviation is 1.7 to 3 times the Cramer-Rao bound. Less than
 * half a bin below half the rate, or above minus half of it, a tone of a complex record can read up to half a bin
 * off. Less than 0.8 bins below half the rate a tone of a real record of odd length can read a bin or more off, by
 * its phase; of an even length it reads right up to there. Where noise draws the fit of a real record onto 0 or half
 * the rate, amplitude and phase have no meaning, and can be NaN.
 *
 * Tones of complex records have frequencies from -1/(2 dt) on. A mode of the extended forms tells what they give
 * besides: 0 nothing, 1 the input, 2 the synthesised tones, 3 the input without the tones; and the spectrum of that
 * in decibels. After a failure all scalar outputs are 0, and so are out and spectrum.
 * @{
 */

/**
 * SpecHarmonicAnalyzer.
 * The harmonics in a power spectrum, with frequencies interpolated by the shape of the window.
 * A fundamental outside the spectrum, or in the main lobe of bin 0, is replaced by the largest bin beyond that lobe.
 * Harmonics that the spectrum does not reach are 0. A distortion that would divide by zero is 1e9.
 * With c the half-width of the window's main lobe, rounded up, the fundamental has the bins less than c away from its
 * own in thdPlusNoise, which deliberately leaves the outermost of its lobe to the noise. It is right for a tone on a
 * bin, with the fundamental told to that bin; a tone between bins reads up to 14 percent under a Hanning window from its
 * leakage alone, and more where fundamental is a bin off. SpecToneHarmonics has no such floor.
 * Method: bisection for the offset at which the window's response has the ratio of the two largest bins.
 * @param power read, [n]: a one-sided power spectrum
 * @param fftSize points of the transform that it is of; below 1: 2n
 * @param harmonics how many, the fundamental included
 * @param window code of the window that it was taken through, 0 to 8
 * @param fs sampling rate
 * @param fundamental in the unit of fs
 * @param amp written, [harmonics]: root mean square amplitudes
 * @param freq written, [harmonics]: in the unit of fs
 * @param thd written: harmonics in percent of the fundamental
 * @param thdPlusNoise written: all but the fundamental in percent of the whole, from amplitudes
 * @retval -20003 n is below 1; or it is not above the half-width of the main lobe, rounded up, and the fundamental is not in it
 * @retval -20067 fs or fundamental is 0
 * @retval -20061 the window is above 8
 */
QV_API QvStatus ZemFunc87(const double* power, int64_t n, int64_t fftSize, int32_t harmonics, uint32_t window, double fs, double fundamental, double* amp, double* freq, double* thd, double* thdPlusNoise);
#define QvSpecHarmonicAnalyzer ZemFunc87

/**
 * SpecToneHarmonics.
 * A fundamental, its harmonics and the distortion of a time record.
 * The fundamental is the largest bin near the guess, interpolated under a Hanning window without the leakage of its
 * image; it is synthesised and subtracted, and the harmonics are taken from the rest. Those beyond fs/2 stay 0.
 * After a failure, what has not been found is 0; a number of harmonics below 1 is turned into theirs once the
 * fundamental is known, and before that both arrays stay as they are.
 * @param x read, [n]
 * @param harmonics how many, the fundamental included; below 1: all up to fs/2, n at most
 * @param fs sampling rate
 * @param fundamental a guess, in the unit of fs, right to 5 percent of fs
 * @param amp written, [harmonics if max(harmonics, 1) == harmonics else n]: peak amplitudes
 * @param freq written, [harmonics if max(harmonics, 1) == harmonics else n]: in the unit of fs
 * @param thd written: harmonics in percent of the fundamental
 * @param thdPlusNoise written: what is left without the fundamental in percent of the whole, by root mean squares about the mean
 * @retval -20003 n is below 1
 * @retval -20059 fs or fundamental is not above 0
 * @retval -20001 memory is exhausted
 * @retval -20017 the largest bin near the fundamental, or near a harmonic, is the last one
 * @retval -20060 a tone is not finite; or x is constant; or the fundamental has no amplitude
 * @retval -20020 a tone lies outside 0 to fs/2
 */
QV_API QvStatus ZemFunc362(const double* x, int64_t n, int32_t harmonics, double fs, double fundamental, double* amp, double* freq, double* thd, double* thdPlusNoise);
#define QvSpecToneHarmonics ZemFunc362

/**
 * ToneSingleReal.
 * The strongest tone of a real record.
 * A band in which no bin lies is taken as the bin nearest to its middle; one outside the spectrum, or of no width, as
 * the whole spectrum. Silence has the amplitude 0.
 * @param x read, [n]
 * @param search read, [2], may be null: a centre in the unit of 1/dt and a half-width in percent of the sampling rate; null: everywhere
 * @param freq written
 * @param amp written
 * @param phase written
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0; 0 is allowed, and frequencies are then infinite
 * @retval -20001 memory is exhausted
 * @code
 * double freq, amp, phase;
 * QvToneSingleReal(x, 1000, 1e-4, NULL, &freq, &amp, &phase);
 * @endcode
 */
QV_API QvStatus ZemFunc377(const double* x, int64_t n, double dt, const double* search, double* freq, double* amp, double* phase);
#define QvToneSingleReal ZemFunc377

/**
 * ToneSingleRealEx.
 * The strongest tone of a real record, with the signal or what remains of it.
 * @param x read, [n]
 * @param search read, [2], may be null: as for ToneSingleReal
 * @param mode 0 to 3
 * @param freq written
 * @param amp written
 * @param phase written
 * @param out written, [n], may be null: the signal that the mode tells
 * @param outDt written: dt
 * @param spectrum written, [(n + 1) / 2], may be null: of it, in decibels of squared rms amplitudes
 * @param f0 written: the first frequency of the spectrum, 0
 * @param df written: the step between its frequencies
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20061 the mode is above 3
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc378(const double* x, int64_t n, double dt, const double* search, uint32_t mode, double* freq, double* amp, double* phase, double* out, double* outDt, double* spectrum, double* f0, double* df);
#define QvToneSingleRealEx ZemFunc378

/**
 * ToneMultiReal.
 * The strongest tones of a real record.
 * The first count elements of the arrays are written. Tones should be some bins apart: closer ones show one peak.
 * @param x read, [n]
 * @param sort 1: by falling amplitude; any other: by rising frequency
 * @param threshold the least amplitude
 * @param count written: the number of tones found
 * @param freq written, [maxTones]
 * @param amp written, [maxTones]
 * @param phase written, [maxTones]
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20140 maxTones is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc379(const double* x, int64_t n, double dt, uint32_t sort, double threshold, int32_t maxTones, int32_t* count, double* freq, double* amp, double* phase);
#define QvToneMultiReal ZemFunc379

/**
 * ToneMultiRealEx.
 * The strongest tones of a real record, with the signal or what remains of it.
 * @param x read, [n]
 * @param sort 1: by falling amplitude; any other: by rising frequency
 * @param mode 0 to 3
 * @param threshold the least amplitude
 * @param count written: the number of tones found
 * @param freq written, [maxTones]
 * @param amp written, [maxTones]
 * @param phase written, [maxTones]
 * @param out written, [n], may be null: the signal that the mode tells
 * @param outDt written: dt
 * @param spectrum written, [(n + 1) / 2], may be null: of it, in decibels of squared rms amplitudes
 * @param f0 written: the first frequency of the spectrum, 0
 * @param df written: the step between its frequencies
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20061 the mode is above 3
 * @retval -20140 maxTones is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc380(const double* x, int64_t n, double dt, uint32_t sort, uint32_t mode, double threshold, int32_t maxTones, int32_t* count, double* freq, double* amp, double* phase, double* out, double* outDt, double* spectrum, double* f0, double* df);
#define QvToneMultiRealEx ZemFunc380

/**
 * ToneSingleComplex.
 * The strongest tone of a complex record.
 * @param x read, [n]
 * @param search read, [2], may be null: a centre in the unit of 1/dt and a half-width in percent of the sampling rate; null: everywhere
 * @param freq written
 * @param amp written: twice the modulus of the exponential
 * @param phase written
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc381(const QvComplex* x, int64_t n, double dt, const double* search, double* freq, double* amp, double* phase);
#define QvToneSingleComplex ZemFunc381

/**
 * ToneSingleComplexEx.
 * The strongest tone of a complex record, with the signal or what remains of it.
 * @param x read, [n]
 * @param search read, [2], may be null: as for ToneSingleComplex
 * @param mode 0 to 3
 * @param freq written
 * @param amp written: twice the modulus of the exponential
 * @param phase written
 * @param out written, [n], may be null: the signal that the mode tells
 * @param outDt written: dt
 * @param spectrum written, [n], may be null: of it, in decibels, from the most negative frequency on
 * @param f0 written: the first frequency of the spectrum, -(n/2) df
 * @param df written: the step between its frequencies
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20061 the mode is above 3
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc382(const QvComplex* x, int64_t n, double dt, const double* search, uint32_t mode, double* freq, double* amp, double* phase, QvComplex* out, double* outDt, double* spectrum, double* f0, double* df);
#define QvToneSingleComplexEx ZemFunc382

/**
 * ToneMultiComplex.
 * The strongest tones of a complex record.
 * @param x read, [n]
 * @param sort 1: by falling amplitude; any other: by rising frequency
 * @param threshold the least amplitude
 * @param count written: the number of tones found
 * @param freq written, [maxTones]
 * @param amp written, [maxTones]: twice the moduli of the exponentials
 * @param phase written, [maxTones]
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20140 maxTones is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc383(const QvComplex* x, int64_t n, double dt, uint32_t sort, double threshold, int32_t maxTones, int32_t* count, double* freq, double* amp, double* phase);
#define QvToneMultiComplex ZemFunc383

/**
 * ToneMultiComplexEx.
 * The strongest tones of a complex record, with the signal or what remains of it.
 * @param x read, [n]
 * @param sort 1: by falling amplitude; any other: by rising frequency
 * @param mode 0 to 3
 * @param threshold the least amplitude
 * @param count written: the number of tones found
 * @param freq written, [maxTones]
 * @param amp written, [maxTones]: twice the moduli of the exponentials
 * @param phase written, [maxTones]
 * @param out written, [n], may be null: the signal that the mode tells
 * @param outDt written: dt
 * @param spectrum written, [n], may be null: of it, in decibels, from the most negative frequency on
 * @param f0 written: the first frequency of the spectrum, -(n/2) df
 * @param df written: the step between its frequencies
 * @retval -20007 n is below 3
 * @retval -20016 dt is below 0
 * @retval -20061 the mode is above 3
 * @retval -20140 maxTones is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc384(const QvComplex* x, int64_t n, double dt, uint32_t sort, uint32_t mode, double threshold, int32_t maxTones, int32_t* count, double* freq, double* amp, double* phase, QvComplex* out, double* outDt, double* spectrum, double* f0, double* df);
#define QvToneMultiComplexEx ZemFunc384

/** @} */

/** @defgroup transforms Transforms
 * Fourier, cosine, sine, Hartley, Hilbert and chirp-Z transforms of any length, without a power-of-two rule.
 *
 *     Fourier    X[k] = sum over j of x[j] exp(-2 pi i j k / N)
 *     inverse    x[j] = (1/N) sum over k of X[k] exp(2 pi i j k / N)
 *     cosine     X[k] = c(k) sqrt(2/N) sum over j of x[j] cos(pi k (2j + 1) / (2N)),    c(0) = 1 / sqrt(2), else 1
 *     sine       X[k - 1] = sum over j of x[j] sin(pi k (j + 1) / (N + 1)),  k = 1 to N,    inverse with 2 / (N + 1)
 *     Hartley    X[k] = sum over j of x[j] (cos + sin)(2 pi j k / N),   inverse with 1/N
 *     Hilbert    positive frequencies times -i, negative times i: cos becomes sin
 *     chirp-Z    X[k] = sum over j of x[j] a^-j w^(j k)
 *
 * Forward Fourier transforms are unscaled; inverses carry 1/N. The frequency of bin k is k / (N dt), above N / 2
 * read as (k - N) / (N dt). In shifted order of N bins X[0] stands at index N / 2 (integer division), X[k] at N / 2
 * + k, X[-k] at N / 2 - k; of an even N, index 0 holds X[N / 2]. 2-D arrays are row-major.
 *
 * Outputs must not overlap inputs, except where a function says so.
 * @{
 */

/**
 * TransformRealFft.
 * The full spectrum of real data, X[k] = sum over j of x[j] exp(-2 pi i j k / L).
 * The output is the only workspace.
 * @param x read, [n]: the samples
 * @param n how many samples there are
 * @param fftSize the length of the transform; below 1: n. The input is padded with zeros, or cut
 * @param plan handle, may be null: a plan of the transform's length, or null to have one made for the call
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle, at the length / 2
 * @param out written, [fftSize if fftSize > 0 else n]: the spectrum, one record for each bin
 * @retval -20003 n is below 1
 * @retval -20070 the plan is of another length
 * @retval -20001 memory is exhausted
 * @code
 * QvTransformRealFft(x, 1024, 0, NULL, 0, spectrum);
 * @endcode
 */
QV_API QvStatus ZemFunc262(const double* x, int64_t n, int64_t fftSize, QvFftPlan* plan, int32_t shift, QvComplex* out);
#define QvTransformRealFft ZemFunc262

/**
 * TransformComplexFft.
 * The spectrum of complex data, X[k] = sum over j of x[j] exp(-2 pi i j k / L).
 * If memory for reordering runs out, the spectrum is left in natural order.
 * @param x read, [n]: the samples
 * @param n how many samples there are
 * @param fftSize the length of the transform; below 1: n. The input is padded with zeros, or cut
 * @param plan handle, may be null: a plan of the transform's length, or null to have one made for the call
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle, at the length / 2
 * @param out written, [fftSize if fftSize > 0 else n]: the spectrum, one record for each bin
 * @retval -20003 n is below 1
 * @retval -20070 the plan is of another length
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc263(const QvComplex* x, int64_t n, int64_t fftSize, QvFftPlan* plan, int32_t shift, QvComplex* out);
#define QvTransformComplexFft ZemFunc263

/**
 * TransformRealIfft.
 * The real data of a spectrum, the inverse of TransformRealFft.
 * Only the bins from frequency 0 to n / 2 are read; of bin 0, and of bin n / 2 of an even n, only the real part.
 * @param X read, [n]: the spectrum of real data
 * @param n how many bins and samples there are
 * @param plan handle, may be null: a plan of the transform's length, or null to have one made for the call
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle, at the length / 2
 * @param out written, [n]: the samples
 * @retval -20003 n is below 0
 * @retval -20070 the plan is of another length
 * @retval -20001 memory is exhausted, or n is 0 and no plan is given
 */
QV_API QvStatus ZemFunc264(const QvComplex* X, int64_t n, QvFftPlan* plan, int32_t shift, double* out);
#define QvTransformRealIfft ZemFunc264

/**
 * TransformComplexIfft.
 * The inverse of TransformComplexFft, x[j] = (1/n) sum over k of X[k] exp(2 pi i j k / n).
 * @param X read, [n]: the spectrum
 * @param n how many bins and samples there are
 * @param plan handle, may be null: a plan of the transform's length, or null to have one made for the call
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle, at the length / 2
 * @param out written, [n]: the samples
 * @retval -20003 n is below 0
 * @retval -20070 the plan is of another length
 * @retval -20001 memory is exhausted, or n is 0 and no plan is given
 */
QV_API QvStatus ZemFunc265(const QvComplex* X, int64_t n, QvFftPlan* plan, int32_t shift, QvComplex* out);
#define QvTransformComplexIfft ZemFunc265

/**
 * TransformRealFft2D.
 * The two-dimensional spectrum of real data; each dimension is padded with zeros or cut to its length.
 * The output is the only large workspace.
 * @param x read, [rows * cols]: the samples, row-major
 * @param rows rows of the input
 * @param cols columns of the input
 * @param fftRows rows of the transform; below 1: rows
 * @param fftCols columns of the transform; below 1: cols
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle of both dimensions
 * @param out written, [(fftRows if fftRows > 0 else rows) * (fftCols if fftCols > 0 else cols)]: the spectrum, row-major
 * @retval -20003 rows or cols is below 1
 * @retval -20046 the result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc266(const double* x, int64_t rows, int64_t cols, int64_t fftRows, int64_t fftCols, int32_t shift, QvComplex* out);
#define QvTransformRealFft2D ZemFunc266

/**
 * TransformComplexFft2D.
 * The two-dimensional spectrum of complex data; each dimension is padded with zeros or cut to its length.
 * The output is the only large workspace.
 * @param x read, [rows * cols]: the samples, row-major
 * @param rows rows of the input
 * @param cols columns of the input
 * @param fftRows rows of the transform; below 1: rows
 * @param fftCols columns of the transform; below 1: cols
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle of both dimensions
 * @param out written, [(fftRows if fftRows > 0 else rows) * (fftCols if fftCols > 0 else cols)]: the spectrum, row-major
 * @retval -20003 rows or cols is below 1
 * @retval -20046 the result has more than 2^31 - 1 elements
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc267(const QvComplex* x, int64_t rows, int64_t cols, int64_t fftRows, int64_t fftCols, int32_t shift, QvComplex* out);
#define QvTransformComplexFft2D ZemFunc267

/**
 * TransformRealIfft2D.
 * The real data of a two-dimensional spectrum; only the rows from frequency 0 to rows / 2 are read.
 * @param X read, [rows * cols]: the spectrum, row-major
 * @param rows rows of both arrays
 * @param cols columns of both arrays
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle of both dimensions
 * @param out written, [rows * cols]: the samples, row-major
 * @retval -20003 rows or cols is below 1
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc268(const QvComplex* X, int64_t rows, int64_t cols, int32_t shift, double* out);
#define QvTransformRealIfft2D ZemFunc268

/**
 * TransformComplexIfft2D.
 * The inverse of TransformComplexFft2D.
 * @param X read, [rows * cols]: the spectrum, row-major
 * @param rows rows of both arrays
 * @param cols columns of both arrays
 * @param shift 0: natural order, X[0] first; otherwise X[0] in the middle of both dimensions
 * @param out written, [rows * cols]: the samples, row-major
 * @retval -20003 rows or cols is below 1
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc269(const QvComplex* X, int64_t rows, int64_t cols, int32_t shift, QvComplex* out);
#define QvTransformComplexIfft2D ZemFunc269

/**
 * TransformSplitFft.
 * The forward transform of split complex data, in place and unscaled.
 * @param re read and written, [n]: real parts
 * @param im read and written, [n]: imaginary parts
 * @param n the length of the transform
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc77(double* re, double* im, int64_t n);
#define QvTransformSplitFft ZemFunc77

/**
 * TransformDct.
 * The orthonormal cosine transform of type II,
 * out[k] = c(k) sqrt(2/L) sum over j of x[j] cos(pi k (2j + 1) / (2L)), c(0) = 1/sqrt(2), else 1.
 * @param x read, [n]: the samples
 * @param n how many samples there are
 * @param fftSize the length of the transform; below 1: n. The input is padded with zeros, or cut
 * @param out written, [fftSize if fftSize > 0 else n]: the transform; it may be x where that has room
 * @retval -20046 2 L does not fit 32 bits, with L the length of the transform
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc270(const double* x, int64_t n, int64_t fftSize, double* out);
#define QvTransformDct ZemFunc270

/**
 * TransformIdct.
 * The exact inverse of TransformDct (the orthonormal cosine transform of type III).
 * @param x read, [n]: the transform
 * @param n its length
 * @param out written, [n]: the samples; it may be x
 * @retval -20046 2 n does not fit 32 bits
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc271(const double* x, int64_t n, double* out);
#define QvTransformIdct ZemFunc271

/**
 * TransformDst.
 * The sine transform of type I, unnormalised,
 * out[k-1] = sum over j of x[j] sin(pi k (j + 1) / (L + 1)), k = 1 to L.
 * @param x read, [n]: the samples
 * @param n how many samples there are
 * @param fftSize the length of the transform; below 1: n. The input is padded with zeros, or cut
 * @param out written, [fftSize if fftSize > 0 else n]: the transform; it may be x where that has room
 * @retval -20046 2 L + 2 does not fit 32 bits, with L the length of the transform
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc272(const double* x, int64_t n, int64_t fftSize, double* out);
#define QvTransformDst ZemFunc272

/**
 * TransformIdst.
 * The exact inverse of TransformDst, which carries the whole factor 2/(n + 1).
 * @param x read, [n]: the transform
 * @param n its length
 * @param out written, [n]: the samples; it may be x
 * @retval -20046 2 n + 2 does not fit 32 bits
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc273(const double* x, int64_t n, double* out);
#define QvTransformIdst ZemFunc273

/**
 * TransformDct2D.
 * TransformDct of all rows, then columns.
 * @param x read, [rows * cols]: the input, row-major
 * @param rows rows of both arrays
 * @param cols columns of both arrays
 * @param out written, [rows * cols]: the result; it may be x
 * @retval -20046 2 rows or 2 cols does not fit 32 bits
 * @retval -20003 rows or cols is below 1
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc274(const double* x, int64_t rows, int64_t cols, double* out);
#define QvTransformDct2D ZemFunc274

/**
 * TransformIdct2D.
 * TransformIdct of all columns, then rows.
 * @param x read, [rows * cols]: the input, row-major
 * @param rows rows of both arrays
 * @param cols columns of both arrays
 * @param out written, [rows * cols]: the result; it may be x
 * @retval -20046 2 rows or 2 cols does not fit 32 bits
 * @retval -20003 rows or cols is below 1
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc275(const double* x, int64_t rows, int64_t cols, double* out);
#define QvTransformIdct2D ZemFunc275

/**
 * TransformDst2D.
 * TransformDst of all rows, then columns.
 * @param x read, [rows * cols]: the input, row-major
 * @param rows rows of both arrays
 * @param cols columns of both arrays
 * @param out written, [rows * cols]: the result; it may be x
 * @retval -20046 2 rows + 2 or 2 cols + 2 does not fit 32 bits
 * @retval -20003 rows or cols is below 1
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc276(const double* x, int64_t rows, int64_t cols, double* out);
#define QvTransformDst2D ZemFunc276

/**
 * TransformIdst2D.
 * TransformIdst of all rows, then columns.
 * @param x read, [rows * cols]: the input, row-major
 * @param rows rows of both arrays
 * @param cols columns of both arrays
 * @param out written, [rows * cols]: the result; it may be x
 * @retval -20046 2 rows + 2 or 2 cols + 2 does not fit 32 bits
 * @retval -20003 rows or cols is below 1
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc277(const double* x, int64_t rows, int64_t cols, double* out);
#define QvTransformIdst2D ZemFunc277

/**
 * TransformHartley.
 * The Hartley transform in place, X[k] = sum over j of x[j] (cos + sin)(2 pi j k / n), unnormalised.
 * Applied twice it gives n times the input.
 * @param x read and written, [n]: the data
 * @param n how many elements there are
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc78(double* x, int64_t n);
#define QvTransformHartley ZemFunc78

/**
 * TransformInverseHartley.
 * TransformHartley times 1/n: its inverse.
 * @param x read and written, [n]: the data
 * @param n how many elements there are
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc103(double* x, int64_t n);
#define QvTransformInverseHartley ZemFunc103

/**
 * TransformHilbert.
 * The Hilbert transform in place: positive frequencies are multiplied by -i, so that a cosine becomes a sine.
 * The mean, and of an even n the component at n / 2, vanish; n = 1 gives 0.
 * @param x read and written, [n]: the data
 * @param n how many elements there are
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc75(double* x, int64_t n);
#define QvTransformHilbert ZemFunc75

/**
 * TransformInverseHilbert.
 * TransformHilbert with its sign changed: the inverse for data without the components that vanish.
 * @param x read and written, [n]: the data
 * @param n how many elements there are
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc76(double* x, int64_t n);
#define QvTransformInverseHilbert ZemFunc76

/**
 * TransformChirpZReal.
 * The z-transform of real data along a spiral, X[j] = sum over k of x[k] a^-k w^(j k).
 * The sum itself costs n * m powers; Bluestein's algorithm (1970) is fast, and loses accuracy where |w| is far from 1.
 * Checked in the order of the statuses, a before w.
 * @param x read, [n]: the samples
 * @param n how many samples there are
 * @param a where the spiral starts
 * @param w the ratio of neighbouring points
 * @param method 0: the sum itself; 1: Bluestein's algorithm
 * @param m how many points of the spiral; below 1: n
 * @param out written, [m if m > 0 else n]: the transform
 * @retval -20003 n is below 1
 * @retval -20061 the method is above 1
 * @retval -20068 a or w is not finite
 * @retval -20141 |a|^2 or |w|^2 is 0
 * @retval -20046 method 1 and 2n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc341(const double* x, int64_t n, QvComplex a, QvComplex w, uint32_t method, int64_t m, QvComplex* out);
#define QvTransformChirpZReal ZemFunc341

/**
 * TransformChirpZComplex.
 * The z-transform of complex data along a spiral, X[j] = sum over k of x[k] a^-k w^(j k).
 * The sum itself costs n * m powers; Bluestein's algorithm (1970) is fast, and loses accuracy where |w| is far from 1.
 * Checked in the order of the statuses, a before w.
 * @param x read, [n]: the samples
 * @param n how many samples there are
 * @param a where the spiral starts
 * @param w the ratio of neighbouring points
 * @param method 0: the sum itself; 1: Bluestein's algorithm
 * @param m how many points of the spiral; below 1: n
 * @param out written, [m if m > 0 else n]: the transform
 * @retval -20003 n is below 1
 * @retval -20061 the method is above 1
 * @retval -20068 a or w is not finite
 * @retval -20141 |a|^2 or |w|^2 is 0
 * @retval -20046 method 1 and 2n + m - 1 exceeds 2^31 - 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc342(const QvComplex* x, int64_t n, QvComplex a, QvComplex w, uint32_t method, int64_t m, QvComplex* out);
#define QvTransformChirpZComplex ZemFunc342

/**
 * TransformInverseChirpZ.
 * Recovers x from X[j] = sum over k of x[k] a^-k w^(j k), in closed form.
 * With more points than samples, those whose nodes lie nearest to the unit circle are used.
 * @param X read and written, [n]: points of a chirp-Z transform; the first m are overwritten if out is null
 * @param n how many points there are
 * @param a where the spiral starts
 * @param w the ratio of neighbouring points
 * @param out written, [m if m > 0 else n], may be null: the samples
 * @param m how many samples; below 1: n
 * @retval -20003 n is below 1
 * @retval -20068 a or w is not finite
 * @retval -20141 |a|^2 or |w|^2 is 0
 * @retval -20008 m is above n
 * @retval -20046 2m - 1 exceeds 2^31 - 1
 * @retval -20116 two of the nodes w^0 to w^(m-1) coincide; nothing is written
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc351(QvComplex* X, int64_t n, QvComplex a, QvComplex w, QvComplex* out, int64_t m);
#define QvTransformInverseChirpZ ZemFunc351

/**
 * PowerSpectrumComplex.
 * The two-sided power spectrum of complex data, out[k] = |X[k]|^2 / n^2.
 * @param x read, [n]: the samples
 * @param n how many there are
 * @param out written, [n]: the power of each bin, natural order
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc467(const QvComplex* x, int64_t n, double* out);
#define QvPowerSpectrumComplex ZemFunc467

/**
 * CrossPowerComplex.
 * The two-sided cross power spectrum of complex data, out[k] = conj(X[k]) Y[k] / n^2.
 * @param x read, [n]: the first samples
 * @param y read, [n]: the second samples
 * @param n how many there are
 * @param out written, [n]: the cross power of each bin, natural order
 * @retval -20003 n is below 1
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc468(const QvComplex* x, const QvComplex* y, int64_t n, QvComplex* out);
#define QvCrossPowerComplex ZemFunc468

/** @} */

/** @defgroup variance_analysis Analysis of variance and contingency
 * Whether groups of observations differ by more than chance: analysis of variance with one, two and three factors,
 * and the chi-square test of a contingency table.
 *
 *     one factor   ssA = sum over levels of n_i (mean_i - mean)^2,   ssError = sum of (y - mean_i)^2
 *     F = (ssA / (levels - 1)) / (ssError / (n - levels))
 *     contingency  chi^2 = sum of (count - expected)^2 / expected,   expected = row sum * column sum / total
 *
 * The level of an observation is any integer that fits 32 bits, not an index: levels are numbered as they are first
 * seen. In the forms with two and three factors every cell holds the same number of observations, and the number of
 * levels of a factor carries a sign: positive for a fixed factor, negative for a random one.
 *
 * A table holds rows of four numbers: sum of squares, degrees of freedom, mean square, F. The last row is that of
 * the error; its F is never written. A significance is the probability of an F at least as large by chance. All
 * sums are taken in one pass, so about as many digits are lost as the squared ratio of mean to deviation has.
 *
 * Statuses stand in the order in which they are tested.
 * @{
 */

/**
 * AnovaOneWay.
 * One-way analysis of variance. The levels need not have equally many observations.
 * An f of NaN, from data without any variance, gives a significance of NaN.
 * @param y read, [n]: the observations
 * @param level read, [n]: the level of each
 * @param levels how many distinct levels there are
 * @param ssA written: sum of squares between the levels
 * @param msA written: its mean square, with levels - 1 degrees of freedom
 * @param f written: msA / msError
 * @param significance written: of f
 * @param ssError written: sum of squares within the levels
 * @param msError written: its mean square, with n - levels degrees of freedom
 * @param ssTotal written: sum of squares about the mean
 * @retval -20046 a level does not fit 32 bits; so does a size
 * @retval -20003 n is below 1
 * @retval -20042 levels is below 2, or not below n
 * @retval -20001 memory is exhausted
 * @retval -20043 there are more distinct levels than told; nothing is written
 * @retval -20044 there are fewer; ssTotal is written
 * @code
 * QvAnovaOneWay(y, instrument, 25, 5, &ssA, &msA, &f, &significance, &ssError, &msError, &ssTotal);
 * @endcode
 */
QV_API QvStatus ZemFunc6(const double* y, const int64_t* level, int64_t n, int64_t levels, double* ssA, double* msA, double* f, double* significance, double* ssError, double* msError, double* ssTotal);
#define QvAnovaOneWay ZemFunc6

/**
 * AnovaTwoWay.
 * Two-way analysis of variance of balanced data.
 * F of A has the mean square of AB as its denominator if B is random, else that of the error; F of B likewise. All three
 * significances take the degrees of freedom of the error for the denominator, in mixed models too.
 * With one observation a cell the interaction serves as the error, and the row AB and sigAB are 0.
 * @param y read, [n]: the observations
 * @param levelA read, [n]: the level of factor A of each
 * @param levelB read, [n]: the level of factor B of each
 * @param perCell observations in each cell
 * @param levelsA levels of A, negative for a random factor
 * @param levelsB levels of B, negative for a random factor
 * @param table written, [16]: rows A, B, AB, error
 * @param sigA written: significance of A
 * @param sigB written: significance of B
 * @param sigAB written: significance of the interaction
 * @retval -20046 a level does not fit 32 bits; so does a size
 * @retval -20003 n is below 1
 * @retval -20045 n is not perCell |levelsA| |levelsB|
 * @retval -20042 a factor has fewer than 2 levels
 * @retval -20048 perCell is 1 and a factor is random
 * @retval -20001 memory is exhausted
 * @retval -20043 a factor has more distinct levels than told
 * @retval -20047 a cell holds another number of observations
 */
QV_API QvStatus ZemFunc7(const double* y, const int64_t* levelA, const int64_t* levelB, int64_t n, int64_t perCell, int64_t levelsA, int64_t levelsB, double* table, double* sigA, double* sigB, double* sigAB);
#define QvAnovaTwoWay ZemFunc7

/**
 * AnovaThreeWay.
 * Three-way analysis of variance of balanced data.
 * The denominator of each F follows from which factors are random: the row whose expected mean square has the same
 * terms but for the tested one. Where there is none, F and the significance are -1.
 * @param y read, [n]: the observations
 * @param levelA read, [n]: the level of factor A of each
 * @param levelB read, [n]: the level of factor B of each
 * @param levelC read, [n]: the level of factor C of each
 * @param perCell observations in each cell, at least 2
 * @param levelsA levels of A, negative for a random factor
 * @param levelsB levels of B, negative for a random factor
 * @param levelsC levels of C, negative for a random factor
 * @param table written, [32]: rows A, B, C, AB, AC, BC, ABC, error
 * @param sigA written: significance of A
 * @param sigB written: significance of B
 * @param sigC written: significance of C
 * @param sigAB written: significance of AB
 * @param sigAC written: significance of AC
 * @param sigBC written: significance of BC
 * @param sigABC written: significance of ABC
 * @retval -20046 a level does not fit 32 bits; so does a size
 * @retval -20003 n is below 1
 * @retval -20045 n is not perCell |levelsA| |levelsB| |levelsC|
 * @retval -20044 perCell is below 2
 * @retval -20042 a factor has fewer than 2 levels
 * @retval -20001 memory is exhausted
 * @retval -20043 a factor has more distinct levels than told
 * @retval -20047 a cell holds another number of observations
 */
QV_API QvStatus ZemFunc8(const double* y, const int64_t* levelA, const int64_t* levelB, const int64_t* levelC, int64_t n, int64_t perCell, int64_t levelsA, int64_t levelsB, int64_t levelsC, double* table, double* sigA, double* sigB, double* sigC, double* sigAB, double* sigAC, double* sigBC, double* sigABC);
#define QvAnovaThreeWay ZemFunc8

/**
 * ContingencyChiSquare.
 * Tests whether the rows and the columns of a table of counts are independent.
 * A row or a column of zeros divides by zero: the results are not finite.
 * @param rows taken as a signed number
 * @param cols taken as a signed number
 * @param counts read, [rows * cols]: the table, row-major
 * @param chiSquare written: the sum of (observed - expected)^2 / expected
 * @param significance written: the probability of at least that much by chance
 * @retval -20056 rows or cols is negative
 * @retval -20055 rows or cols is below 2
 * @retval -20046 rows * cols exceeds 2^31 - 1
 * @retval -20056 a count is negative
 * @retval -20001 memory is exhausted
 */
QV_API QvStatus ZemFunc31(uint32_t rows, uint32_t cols, const int32_t* counts, double* chiSquare, double* significance);
#define QvContingencyChiSquare ZemFunc31

/** @} */

/** @defgroup windows Window functions
 * Windows taper a record towards its ends, so that tones between the bins of its spectrum leak less. They multiply
 * data in place, real arrays or complex ones, where one factor serves both parts of a sample.
 *
 *     cosine sums     w[i] = sum over k of (-1)^k a[k] cos(2 pi k i / n)
 *     Hanning         0.5, 0.5                     Blackman-Harris, 3 terms   0.42323, 0.49755, 0.07922
 *     Hamming         0.54, 0.46                   Blackman-Harris, 4 terms   0.35875, 0.48829, 0.14128, 0.01168
 *     Blackman        0.42, 0.5, 0.08              Blackman-Nuttall  0.3635819, 0.4891775, 0.1365995, 0.0106411
 *     exact Blackman  7938, 9240, 1430 / 18608
 *     flat top        0.215578948, 0.41663158, 0.277263158, 0.083578947, 0.006947368
 *     coherent gain = sum w / n,       equivalent noise bandwidth = n sum w^2 / (sum w)^2  in bins
 *
 * Most are periodic: w[k] = w[n - k], and w[0] would be the first sample of the next period. The symmetric form,
 * for filter design, is WinApplySymmetric. Codes are the QV_WINDOW_... constants of quorvan/types.h. The coherent
 * gain is what a window makes of the amplitude of a tone on a bin; the scaled forms divide by it.
 *
 * The cosine sums take one sine for each coefficient and a rotation for each pair of samples. After an error the
 * data are unchanged.
 * @{
 */

/**
 * WinHanning.
 * Multiplies data by the Hanning window, w[i] = 0.5 - 0.5 cos(2 pi i / n).
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 * @code
 * double x[4] = {1, 1, 1, 1};
 * QvWinHanning(x, 4);  // 0, 0.5, 1, 0.5
 * @endcode
 */
QV_API QvStatus ZemFunc89(double* x, int64_t n);
#define QvWinHanning ZemFunc89

/**
 * WinHanningComplex (WinHanning).
 * Multiplies complex data by the window of WinHanning: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc430(QvComplex* x, int64_t n);
#define QvWinHanningComplex ZemFunc430

/**
 * WinHamming.
 * Multiplies data by the Hamming window, w[i] = 0.54 - 0.46 cos(2 pi i / n).
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc88(double* x, int64_t n);
#define QvWinHamming ZemFunc88

/**
 * WinHammingComplex (WinHamming).
 * Multiplies complex data by the window of WinHamming: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc431(QvComplex* x, int64_t n);
#define QvWinHammingComplex ZemFunc431

/**
 * WinBlackmanHarris3.
 * Multiplies data by the three-term Blackman-Harris window, the cosine sum of 0.42323, 0.49755, 0.07922.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc15(double* x, int64_t n);
#define QvWinBlackmanHarris3 ZemFunc15

/**
 * WinBlackmanHarris3Complex (WinBlackmanHarris3).
 * Multiplies complex data by the window of WinBlackmanHarris3: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc433(QvComplex* x, int64_t n);
#define QvWinBlackmanHarris3Complex ZemFunc433

/**
 * WinExactBlackman.
 * Multiplies data by the exact Blackman window, the cosine sum of 7938/18608, 9240/18608, 1430/18608.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc72(double* x, int64_t n);
#define QvWinExactBlackman ZemFunc72

/**
 * WinExactBlackmanComplex (WinExactBlackman).
 * Multiplies complex data by the window of WinExactBlackman: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc435(QvComplex* x, int64_t n);
#define QvWinExactBlackmanComplex ZemFunc435

/**
 * WinBlackman.
 * Multiplies data by the Blackman window, the cosine sum of 0.42, 0.5, 0.08.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc14(double* x, int64_t n);
#define QvWinBlackman ZemFunc14

/**
 * WinBlackmanComplex (WinBlackman).
 * Multiplies complex data by the window of WinBlackman: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc432(QvComplex* x, int64_t n);
#define QvWinBlackmanComplex ZemFunc432

/**
 * WinFlatTop.
 * Multiplies data by the flat top window, the cosine sum of 0.215578948, 0.41663158, 0.277263158,
 * 0.083578947, 0.006947368.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc80(double* x, int64_t n);
#define QvWinFlatTop ZemFunc80

/**
 * WinFlatTopComplex (WinFlatTop).
 * Multiplies complex data by the window of WinFlatTop: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc436(QvComplex* x, int64_t n);
#define QvWinFlatTopComplex ZemFunc436

/**
 * WinBlackmanNuttall.
 * Multiplies data by the Blackman-Nuttall window, the cosine sum of 0.3635819, 0.4891775, 0.1365995, 0.0106411.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc336(double* x, int64_t n);
#define QvWinBlackmanNuttall ZemFunc336

/**
 * WinBlackmanNuttallComplex (WinBlackmanNuttall).
 * Multiplies complex data by the window of WinBlackmanNuttall: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc434(QvComplex* x, int64_t n);
#define QvWinBlackmanNuttallComplex ZemFunc434

/**
 * WinCosineSum.
 * Multiplies data by w[i] = sum over k of (-1)^k a[k] cos(2 pi k i / n).
 * n = 1, and a single coefficient of exactly 1, leave the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @param a read, [count]: coefficients, all positive for the usual windows
 * @param count number of coefficients, any
 * @retval -20003 n is below 1, or count is 0 and n above 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc85(double* x, int64_t n, const double* a, uint32_t count);
#define QvWinCosineSum ZemFunc85

/**
 * WinCosineSumComplex (WinCosineSum).
 * Multiplies complex data by the window of WinCosineSum: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param a read, [count]: coefficients, all positive for the usual windows
 * @param count number of coefficients, any
 * @retval -20003 n is below 1, or count is 0 and n above 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc437(QvComplex* x, int64_t n, const double* a, uint32_t count);
#define QvWinCosineSumComplex ZemFunc437

/**
 * WinCosineTaper.
 * Fades the share ratio of the samples, half at each end, by sin^2(pi i / (2 m)), m = ratio n / 2 cut to an integer.
 * Symmetric: sample i and sample n - 1 - i have one factor; the two outermost become 0.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @param ratio share of the samples; from 1 on the Hanning window, up to 0 nothing
 * @retval -20003 n is below 1
 * @retval -20001 out of memory, with a ratio of 1 or more
 */
QV_API QvStatus ZemFunc278(double* x, int64_t n, double ratio);
#define QvWinCosineTaper ZemFunc278

/**
 * WinCosineTaperComplex (WinCosineTaper).
 * Multiplies complex data by the window of WinCosineTaper: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param ratio share of the samples; from 1 on the Hanning window, up to 0 nothing
 * @retval -20003 n is below 1
 * @retval -20001 out of memory, with a ratio of 1 or more
 */
QV_API QvStatus ZemFunc438(QvComplex* x, int64_t n, double ratio);
#define QvWinCosineTaperComplex ZemFunc438

/**
 * WinCosineTaper20.
 * Fades a tenth of the samples at each end: WinCosineTaper with the ratio 0.2.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc35(double* x, int64_t n);
#define QvWinCosineTaper20 ZemFunc35

/**
 * WinTriangle.
 * Multiplies data by the triangle window, w[k] = w[n - k] = 2 k / n.
 * n = 1 makes the sample 0.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc180(double* x, int64_t n);
#define QvWinTriangle ZemFunc180

/**
 * WinTriangleComplex (WinTriangle).
 * Multiplies complex data by the window of WinTriangle: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc439(QvComplex* x, int64_t n);
#define QvWinTriangleComplex ZemFunc439

/**
 * WinBartlettHanning.
 * Multiplies data by the Bartlett-Hanning window, w[k] = 0.62 - 0.48 |k/n - 0.5| - 0.38 cos(2 pi k / n), w[0] = 0.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc343(double* x, int64_t n);
#define QvWinBartlettHanning ZemFunc343

/**
 * WinBartlettHanningComplex (WinBartlettHanning).
 * Multiplies complex data by the window of WinBartlettHanning: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc446(QvComplex* x, int64_t n);
#define QvWinBartlettHanningComplex ZemFunc446

/**
 * WinBohman.
 * Multiplies data by the Bohman window, w[k] = w[n - k] = sin(2 pi k / n) / pi - (2 k / n) cos(2 pi k / n).
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc344(double* x, int64_t n);
#define QvWinBohman ZemFunc344

/**
 * WinBohmanComplex (WinBohman).
 * Multiplies complex data by the window of WinBohman: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc447(QvComplex* x, int64_t n);
#define QvWinBohmanComplex ZemFunc447

/**
 * WinParzen.
 * Multiplies data by the Parzen window; with d = |2 k / n - 1|,
 * w[k] = 2 (1 - d)^3 where d > 0.5, else 1 - 6 d^2 + 6 d^3.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc345(double* x, int64_t n);
#define QvWinParzen ZemFunc345

/**
 * WinParzenComplex (WinParzen).
 * Multiplies complex data by the window of WinParzen: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc448(QvComplex* x, int64_t n);
#define QvWinParzenComplex ZemFunc448

/**
 * WinWelch.
 * Multiplies data by the Welch window, w[k] = 1 - (2 k / n - 1)^2.
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc346(double* x, int64_t n);
#define QvWinWelch ZemFunc346

/**
 * WinWelchComplex (WinWelch).
 * Multiplies complex data by the window of WinWelch: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @retval -20003 n is below 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc449(QvComplex* x, int64_t n);
#define QvWinWelchComplex ZemFunc449

/**
 * WinKaiser.
 * Multiplies data by the Kaiser window, w[k] = I0(beta sqrt(1 - (1 - 2 k / n)^2)) / I0(beta).
 * I0 is its power series up to the first term of at most 1e-8, at most 25 terms.
 * n = 1 multiplies by 1 / I0(beta).
 * @param x read and written, [n]: data
 * @param n samples
 * @param beta shape, not checked; about pi times half the main lobe in bins
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc113(double* x, int64_t n, double beta);
#define QvWinKaiser ZemFunc113

/**
 * WinKaiserComplex (WinKaiser).
 * Multiplies complex data by the window of WinKaiser: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param beta shape, not checked; about pi times half the main lobe in bins
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc440(QvComplex* x, int64_t n, double beta);
#define QvWinKaiserComplex ZemFunc440

/**
 * WinGaussian.
 * Multiplies data by the Gaussian window, w[k] = exp(-(k - n/2)^2 / (2 (sigma (n + 1))^2)).
 * n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @param sigma standard deviation as a share of the length; not positive means 0.2
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc280(double* x, int64_t n, double sigma);
#define QvWinGaussian ZemFunc280

/**
 * WinGaussianComplex (WinGaussian).
 * Multiplies complex data by the window of WinGaussian: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param sigma standard deviation as a share of the length; not positive means 0.2
 * @retval -20003 n is below 1
 */
QV_API QvStatus ZemFunc441(QvComplex* x, int64_t n, double sigma);
#define QvWinGaussianComplex ZemFunc441

/**
 * WinChebyshev.
 * Multiplies data by the Dolph-Chebyshev window: the narrowest main lobe over sidelobes of one height.
 * Built by a transform of n + 1 samples, of which the last is left off. n = 1 leaves the data unchanged.
 * @param x read and written, [n]: data
 * @param n samples
 * @param attenuation dB, of the sidelobes below the main lobe; negative means 0
 * @retval -20003 n is below 1
 * @retval -20046 n is 2^31 - 1, where the n + 1 samples of the window exceed 32 bits
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc279(double* x, int64_t n, double attenuation);
#define QvWinChebyshev ZemFunc279

/**
 * WinChebyshevComplex (WinChebyshev).
 * Multiplies complex data by the window of WinChebyshev: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param attenuation dB, of the sidelobes below the main lobe; negative means 0
 * @retval -20003 n is below 1
 * @retval -20046 n is 2^31 - 1, where the n + 1 samples of the window exceed 32 bits
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc442(QvComplex* x, int64_t n, double attenuation);
#define QvWinChebyshevComplex ZemFunc442

/**
 * WinExponential.
 * Multiplies data by a factor that falls from 1 to final by equal ratios, exp(i ln(final) / (n - 1)).
 * @param x read and written, [n]: data
 * @param n samples
 * @param final factor of the last sample
 * @retval -20006 n is below 2
 * @retval -20027 final is not positive
 */
QV_API QvStatus ZemFunc74(double* x, int64_t n, double final);
#define QvWinExponential ZemFunc74

/**
 * WinExponentialComplex (WinExponential).
 * Multiplies complex data by the window of WinExponential: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param final factor of the last sample
 * @retval -20006 n is below 2
 * @retval -20027 final is not positive
 */
QV_API QvStatus ZemFunc444(QvComplex* x, int64_t n, double final);
#define QvWinExponentialComplex ZemFunc444

/**
 * WinForce.
 * Keeps the first duty percent of the samples, duty n / 100 cut to an integer, and clears the others.
 * @param x read and written, [n]: data
 * @param n samples
 * @param duty percent; below 0 clears all, above 100 nothing
 * @retval -20006 n is below 2
 */
QV_API QvStatus ZemFunc81(double* x, int64_t n, double duty);
#define QvWinForce ZemFunc81

/**
 * WinForceComplex (WinForce).
 * Multiplies complex data by the window of WinForce: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param duty percent; below 0 clears all, above 100 nothing
 * @retval -20006 n is below 2
 */
QV_API QvStatus ZemFunc443(QvComplex* x, int64_t n, double duty);
#define QvWinForceComplex ZemFunc443

/**
 * WinApplySymmetric.
 * Multiplies data by the symmetric form of a window, whose last sample equals its first.
 * A negative parameter means 60 dB for Chebyshev and 0.2 for Gaussian.
 * n = 1 leaves the data unchanged, whatever the code.
 * @param x read and written, [n]: data
 * @param n samples
 * @param window QV_WINDOW_...
 * @param parameter beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
 * @retval -20003 n is below 1
 * @retval -20061 the window code is unknown and n above 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc281(double* x, int64_t n, int32_t window, double parameter);
#define QvWinApplySymmetric ZemFunc281

/**
 * WinApplySymmetricComplex (WinApplySymmetric).
 * Multiplies complex data by the window of WinApplySymmetric: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param window QV_WINDOW_...
 * @param parameter beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
 * @retval -20003 n is below 1
 * @retval -20061 the window code is unknown and n above 1
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc429(QvComplex* x, int64_t n, int32_t window, double parameter);
#define QvWinApplySymmetricComplex ZemFunc429

/**
 * WinApplyScaled.
 * Multiplies data by a window divided by its coherent gain, so that a sine keeps its amplitude in the spectrum.
 * The properties of the rectangle and the cosine sums are printed ones, the others are measured on the window.
 * A negative parameter means 60 dB for Chebyshev and 0.2 for Gaussian.
 * A window that is 0 everywhere, as the triangle of one sample is, has NaN properties and makes the data NaN; that is
 * no error.
 * After -20046 the properties are untouched.
 * @param x read and written, [n]: data
 * @param n samples
 * @param window QV_WINDOW_...
 * @param parameter beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
 * @param properties written: of the window, not of the data; both NaN after an error
 * @retval -20004 n is negative
 * @retval -20061 the window code is unknown
 * @retval -20003 n is 0 and the window is neither the rectangle nor a cosine sum
 * @retval -20001 out of memory
 * @code
 * QvWindowProperties properties;
 * QvWinApplyScaled(x, n, QV_WINDOW_KAISER, 8.6, &properties);
 * @endcode
 */
QV_API QvStatus ZemFunc337(double* x, int64_t n, int32_t window, double parameter, QvWindowProperties* properties);
#define QvWinApplyScaled ZemFunc337

/**
 * WinApplyScaledComplex (WinApplyScaled).
 * Multiplies complex data by the window of WinApplyScaled: one factor for both parts.
 * @param x read and written, [n]: data
 * @param n samples
 * @param window QV_WINDOW_...
 * @param parameter beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
 * @param properties written: of the window, not of the data; both NaN after an error
 * @retval -20004 n is negative
 * @retval -20061 the window code is unknown
 * @retval -20003 n is 0 and the window is neither the rectangle nor a cosine sum
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc428(QvComplex* x, int64_t n, int32_t window, double parameter, QvWindowProperties* properties);
#define QvWinApplyScaledComplex ZemFunc428

/**
 * WinApplyScaledPlain.
 * Multiplies data by a window divided by its coherent gain: WinApplyScaled with the parameter 0.
 * @param x read and written, [n]: data
 * @param n samples
 * @param window QV_WINDOW_...
 * @param properties written: of the window, not of the data; both NaN after an error
 * @retval -20004 n is negative
 * @retval -20061 the window code is unknown
 * @retval -20003 n is 0 and the window is neither the rectangle nor a cosine sum
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc152(double* x, int64_t n, int32_t window, QvWindowProperties* properties);
#define QvWinApplyScaledPlain ZemFunc152

/**
 * WinPropertiesOf.
 * The properties of a window of n samples in its periodic form, as WinApplyScaled tells them.
 * Those of the rectangle and the cosine sums are printed ones and do not depend on n, the others are measured.
 * A negative parameter means 60 dB for Chebyshev and 0.2 for Gaussian.
 * @param n samples
 * @param window QV_WINDOW_...
 * @param parameter beta (Kaiser), attenuation in dB (Chebyshev), sigma (Gaussian); else not used
 * @param properties written: both NaN after an error
 * @retval -20003 n is below 1
 * @retval -20061 the window code is unknown
 * @retval -20001 out of memory
 */
QV_API QvStatus ZemFunc445(int64_t n, int32_t window, double parameter, QvWindowProperties* properties);
#define QvWinPropertiesOf ZemFunc445

/**
 * WinPropertiesFixed.
 * The printed properties of a window: the rectangle, the cosine sums, Bartlett-Hanning, Bohman, Parzen, Welch.
 * @param window QV_WINDOW_...
 * @param properties written: untouched after an error
 * @retval -20061 the window has no printed properties
 */
QV_API QvStatus ZemFunc282(uint32_t window, QvWindowProperties* properties);
#define QvWinPropertiesFixed ZemFunc282

/**
 * WinPropertiesMeasure.
 * Measures a window: coherent_gain is its mean, enbw is n times the sum of squares over the squared sum, in bins.
 * @param w read, [n]: a window
 * @param n number of samples, all 32 bits of it
 * @param properties written: both NaN after an error
 * @retval -20003 n is 0
 */
QV_API QvStatus ZemFunc283(const double* w, uint32_t n, QvWindowProperties* properties);
#define QvWinPropertiesMeasure ZemFunc283

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_H */
