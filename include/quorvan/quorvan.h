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
 * A 2-D array is row-major without gaps; its functions run over rows * cols elements, a count that is formed in 32
 * bits and wraps: 65536 rows of 65537 columns are 65536 elements, and a count that wraps below 1 is refused.
 * An output may be the same array as an input. Other overlaps work only where elements are just moved: in ArrCopy,
 * ArrSubset and ArrShift.
 * NaN and infinity pass through arithmetic; searches ignore NaN. On an error nothing is written, except in ArrDivide.
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

/** @defgroup complex Complex arithmetic
 * Complex numbers as pairs of doubles, real part first: arguments by value, results by address. Complex arrays are
 * split: one array of real parts, one of imaginary parts.
 * A scalar function writes both parts of its result, or neither on an error. Each operation has its own convention
 * for zero arguments. Squared magnitudes are formed as they stand, and overflow to infinity.
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

/** @defgroup status Status codes
 * Nearly every function returns a status: 0 is success, a positive code a warning with results that are written and
 * usable, a negative code an error. After an error the outputs hold whatever had been written so far.
 * A message may name a limit a little different from the one that is tested; the documentation of each function tells
 * the test.
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

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_H */
