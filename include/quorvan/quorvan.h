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
