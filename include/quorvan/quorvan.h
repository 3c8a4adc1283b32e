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
