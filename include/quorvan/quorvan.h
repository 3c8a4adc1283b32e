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
