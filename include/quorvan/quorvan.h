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

/** @defgroup direct_filters Direct-form and smoothing filters
 * Filters that take plain coefficient arrays. The transfer function of the direct form is
 * (b[0] + b[1] z^-1 + ...) / (a[0] + a[1] z^-1 + ...); a[0] is a true divisor and need not be 1. The caller holds the
 * state: the last nb - 1 inputs and the last na - 1 outputs, the oldest first. Zeros start from rest; handing the same
 * arrays back continues a stream, and a stream may be cut anywhere.
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
 * @retval -20041 too few samples have a weight
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
 * @retval -20041 too few samples have a weight
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
 * @retval -20041 too few samples have a weight
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

/** @defgroup fir_equiripple Equiripple FIR design
 * Linear-phase filters whose peak weighted error is the least possible: the Parks-McClellan algorithm with the Remez
 * exchange on a grid of 16 points to each cosine function (J. H. McClellan, T. W. Parks and L. R. Rabiner, IEEE Trans.
 * Audio Electroacoust. 21, 1973). Frequencies are in the unit of the sampling rate fs.
 * Multiband filters are symmetric; differentiators and Hilbert transformers are antisymmetric. The weighted error
 * reaches plus and minus delta in turn; in a band its size is delta / weight. After an error h is not written.
 * A design has at most 2045 functions (taps/2, and one more for an odd multiband filter). It takes at most 99 passes.
 * Statuses are tested in the order in which they are listed.
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
 * @retval -20001 the design would have more than 2045 functions, or memory is exhausted
 * @retval -20031 the exchange fails: extremal points coincide, the error shrinks, or 99 passes do not suffice; delta then tells the error so far
 */
QV_API QvStatus ZemFunc479(const QvComplex* x, int64_t n, int32_t taps, double fs, double f1, double f2, double f3, double f4, QvComplex* y);
#define QvFirRemezFilterComplexBandstop ZemFunc479

/** @} */

/** @defgroup fir_narrowband Narrowband FIR design
 * Filters with a very narrow transition, as two stages with few multiplications: a model filter whose taps stand
 * `factor` samples apart, and an image suppressor that removes the copies of its response (Y. Neuvo, Dong C.-Y. and
 * S. K. Mitra, IEEE Trans. Acoust. Speech Signal Process. 32, 1984). The factor with the least sum of Kaiser's order
 * estimates is taken; where none gains, a single filter is designed. Both stages are equiripple and each spends at most
 * half of the deviation, so that the cascade stays within it. Bands beyond fs/4 are mirrored, or designed as the
 * complement, whose output is added to the delayed input.
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
 * Finite impulse responses: the ideal response of a lowpass (kind 0), highpass (1), bandpass (2) or bandstop (3), cut
 * to the wanted number of taps and multiplied by a symmetric window (A. V. Oppenheim and R. W. Schafer, Discrete-Time
 * Signal Processing, chapter 7). With t = i - (taps - 1)/2 and w = 2 pi f/fs the lowpass is sin(w t)/(pi t), the
 * bandpass the difference of two lowpasses; highpass and bandstop are a unit pulse less these. The passband is not
 * scaled to a gain of exactly 1.
 * Frequencies are in the unit of the sampling rate fs. Taps are symmetric about the middle; the delay is (taps - 1)/2.
 * After an error h is undefined. The filters write the whole convolution, with both transients, and y must not overlap
 * x. Statuses are tested in the order in which they are listed.
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

/** @defgroup generators Waveform generators
 * Each fills an array of n samples with a deterministic signal and keeps no state of its own.
 * The periodic waves take their phase in degrees by address and leave there the phase of the sample behind the
 * last, in [0, 360), so that the next call goes on without a break. Frequencies are in cycles per sample.
 * The patterns draw one shape over the whole array. The pulses are functions of t = i dt - delay.
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

/** @defgroup integration Integration of sampled data
 * The definite integral of equally spaced samples by a closed Newton-Cotes rule. Each rule takes as many whole panels as
 * fit; the samples left over at the end go through the next lower rule that fits them, so that every sample counts.
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
 * The value between samples: by the one polynomial or the one diagonal rational function through all of them, by a cubic
 * spline in two stages (second derivatives once, then as many points as wanted), or by a smoothing spline, which weighs
 * the fit of the samples against the curvature.
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

/** @defgroup matrices Solving, inversion and matrix operations
 * Matrices are row-major without gaps: element (i, j) of m by n stands at i n + j. Complex functions take pairs
 * at the
 * same places. The work is done by LAPACK and BLAS, with 32-bit integers.
 * The kind of a matrix is 0 general, 1 symmetric (Hermitian) positive definite, 2 lower triangular, 3 upper
 * triangular;
 * of kinds 1 to 3 one triangle is read.
 * Where a matrix is screened, an element that is NaN, infinite, the largest double, or -1.7976931348623e308 or
 * below
 * gives -20068.
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

/** @defgroup multiple_roots Multiple polynomial roots and lag products
 * @{
 */

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
 * central differences. The model runs on the caller's thread, in the order of the samples, coefficient by coefficient.
 * While a derivative is taken one coefficient is moved in place; it is put back exactly. A model must return: one that
 * leaves by longjmp or by an exception leaks the library's work memory, and that is its own fault.
 * @{
 */

/**
 * FitNonlinear.
 * Fits the coefficients of a model to samples, without a limit to the iterations.
 * The fit ends at the second small change of chi-square in a row, with small below 0.001 or below 1e-5 of it; scale data
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
 * Two detectors that walk a signal: runs of samples at or above a level, and peaks or valleys of parabolas fitted to a
 * sliding window. Both also take a signal in consecutive blocks: each thread has one stream of either, which needs no
 * handle. Positions count from the start of the stream.
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

/** @defgroup polynomial_zeros Complex polynomial zeros
 * All zeros of a polynomial, one after the other: a walk downhill on |p(z)| with limited and turned Newton steps, pure
 * Newton steps near the zero, and deflation (K. Madsen, BIT 13, 1973). Plain and fast, without a notion of multiplicity.
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
 * A waveform is taken as a signal between two states. Its state levels are found first; then references between them,
 * the crossings of the references, and from these the timing of pulses and edges. Times are in samples from the start
 * of the record, interpolated linearly between samples.
 * Level methods: 0 histogram, the fullest bins of the lower and of the upper two fifths, of equally full ones the
 * outermost; 1 peak, the extremes; 2 autoselect, the modes of the histogram where each holds more than 5 percent of
 * the samples, the extremes otherwise. A mode is given as the centre of its bin.
 * References go in as high, mid, low, absolute or in percent of the amplitude above the low level. Percent are
 * converted in place, and the absolute levels come out once more as low, mid, high, after every error but -20046, -20317
 * and -20001. The method is looked at only where levels are measured. Polarity: 0 falling, 1 rising.
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

/** @defgroup spectrum Spectrum measurements
 * From time records to spectra, and from spectra to numbers. Records have any length n, not only powers of two.
 * Forward transforms are unscaled, X[k] = sum of x[j] exp(-2 pi i j k / n); inverses carry 1/n; power spectra carry
 * 1/n^2. Two-sided spectra are split real arrays of n bins with zero frequency at 0. One-sided spectra hold the bins
 * 0 to n/2 - 1, never the Nyquist bin, and bin 0 also for n = 1; their inner bins carry the power of both sides.
 * The step between bins is df = 1 / (n dt), with dt the time between samples. Phases are in radians. Outputs may be
 * the inputs. After an error the outputs are unspecified.
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
 * Summaries of a data array. The data are the whole population: variances, deviations and moments divide by n,
 * never by n - 1. Sums are added in index order. NaN and infinities propagate where nothing else is said.
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

/** @defgroup windows Window functions
 * Windows multiply data in place, real arrays or complex ones, where one factor serves both parts of a sample.
 * Most are periodic: w[k] = w[n - k], and w[0] would be the first sample of the next period. The symmetric form,
 * for filter design, is WinApplySymmetric. Codes are the QV_WINDOW_... constants of quorvan/types.h.
 * The cosine sums take one sine for each coefficient and a rotation for each pair of samples.
 * After an error the data are unchanged.
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
