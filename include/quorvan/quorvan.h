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

/** @defgroup convolution Convolution and correlation
 * Linear convolution, (x * y)[l] = sum over i of x[i] y[l - i], with n + m - 1 results; correlation, which is the
 * convolution of the reversed and conjugated x with y and has lag 0 at index n - 1; and deconvolution.
 * Method 0 adds the products themselves, method 1 works through Fourier transforms of a fast length; functions without
 * a method use transforms. Outputs must not overlap inputs.
 * Normalisation of correlations: 0 none, 1 unbiased (each lag divided by its number of overlapping terms), 2 biased (all
 * divided by the longer length).
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
 * If x and y are one pointer, it is the autocorrelation of the n elements, whatever m.
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
 * With method 1, if x and y are one pointer, it is the autocorrelation of the n elements, whatever m.
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
 * With method 1, if x and y are one pointer, it is the autocorrelation of the n elements, whatever m.
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
 * AutoCorrelateComplex (CorrelateComplex).
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

/** @defgroup plans FFT plans
 * A plan holds everything that transforms of one length need. All users of a length share one plan, and a plan lives
 * as long as somebody holds it: a program that transforms one length again and again holds a plan and spares the
 * building of its tables. Any length from 1 up has a plan; those whose prime factors are all small run fastest.
 * A plan is never changed, so any number of threads may use it at once.
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

/** @defgroup transforms Transforms
 * Fourier, cosine, sine, Hartley, Hilbert and chirp-Z transforms of any length, without a power-of-two rule.
 * Forward: X[k] = sum over j of x[j] exp(-2 pi i j k / N), unscaled; inverses carry 1/N.
 * In shifted order of N bins X[0] stands at index N / 2 (integer division), X[k] at N / 2 + k, X[-k] at N / 2 - k; of
 * an even N, index 0 holds X[N / 2].
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
 * @param out written, [fftSize]: the spectrum, one record for each bin; n records for an fftSize below 1
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
 * @param out written, [fftSize]: the spectrum, one record for each bin; n records for an fftSize below 1
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
 * @param out written, [fftRows * fftCols]: the spectrum, row-major
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
 * @param out written, [fftRows * fftCols]: the spectrum, row-major
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
 * @param out written, [fftSize]: the transform; n elements for an fftSize below 1. It may be x where that has room
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
 * @param out written, [fftSize]: the transform; n elements for an fftSize below 1. It may be x where that has room
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
 * @param out written, [m]: the transform; n records for an m below 1
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
 * @param out written, [m]: the transform; n records for an m below 1
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
 * @param out written, [m], may be null: the samples; n records for an m below 1
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

#ifdef __cplusplus
}
#endif

#endif /* QUORVAN_H */
