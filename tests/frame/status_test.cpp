// The texts of all status codes, in the order of the table: of a code that stands there twice the first row answers.
#include "frame/status.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

#include "quorvan/quorvan.h"

namespace quorvan::testing {
namespace {

struct Row {
    std::int32_t code;
    const char* text;
};

// clang-format off
constexpr Row kRows[] = {
    {20030, "Warning: The input matrix has at least one element with a value of Inf or NaN."},
    {20012, "Warning: The input polynomial is empty."},
    {20011, "Warning: The input standard deviation is invalid."},
    {20010, "Warning: The sizes of the input arrays do not meet the specified conditions."},
    {20006, "Warning: The computation result might be inaccurate."},
    {20005, "Warning: Reordering can not be performed"},
    {20004, "Warning: Matrices or vectors do not have the same size."},
    {20003, "Warning: The matrix is singular."},
    {20002, "Warning: The number of samples must be greater than zero."},
    {20001, "Warning: The matrix is rank deficient."},
    {20031, "Warning: The maximum allowable order has been exceeded."},
    {0, "The call was successful."},
    {-20001, "There is not enough memory to perform the specified routine."},
    {-20002, "The input sequences must be the same size."},
    {-20003, "The number of samples must be > 0."},
    {-20004, "The number of samples must be >= 0."},
    {-20005, "The number of samples must be >= 1."},
    {-20006, "The number of samples must be >= 2."},
    {-20007, "The number of samples must be >= 3."},
    {-20008, "The input arrays do not contain the correct number of data values for this function."},
    {-20009, "The size of the input array must be a power of two:  size = 2^m, 0 < m < 23."},
    {-20010, "The maximum allowable transform size has been exceeded."},
    {-20011, "The duty cycle must be equal to or fall between 0 and 100: 0 <= duty cycle <= 100."},
    {-20012, "The number of cycles must be > 0 and <= the number of samples."},
    {-20013, "The width must meet: 0 < width < samples."},
    {-20014, "The following conditions must be met:  0 <= (delay + width) < samples."},
    {-20015, "dt must be >= 0."},
    {-20016, "dt must be > 0."},
    {-20017, "The following condition must be met:  0 <= index < samples."},
    {-20018, "The following condition must be met:  0 <= (index + length) < samples."},
    {-20019, "The upper value must be >= the lower value."},
    {-20020, "The cut-off frequency, fc, must meet:  0 <= fc <= fs/2."},
    {-20021, "The order must be > 0."},
    {-20022, "The decimating factor must meet:  0 < decimating factor <= samples."},
    {-20023, "The following conditions must be met:  0 < f_low <= f_high <= fs/2."},
    {-20024, "The ripple amplitude must be > 0."},
    {-20025, "The attenuation must be > 0."},
    {-20026, "The width must be > 0."},
    {-20027, "The final value must be > 0."},
    {-20028, "The attenuation value must be greater than the ripple amplitude."},
    {-20029, "The step-size, u, must meet:  0 <= u <= 0.1."},
    {-20030, "The leakage coefficient, leak, and step-size parameter, u, must meet:  0 <= leak <= u."},
    {-20031, "The filter cannot be designed with the specified input values."},
    {-20032, "The rank of the filter must meet:  1 <= (2*rank + 1) <= size."},
    {-20033, "The number of coefficients must be odd for this filter."},
    {-20034, "The number of coefficients must be even for this filter."},
    {-20035, "The standard deviation must be greater than zero for normalization."},
    {-20036, "The elements of the Y Values array must be nonzero and either all positive or all negative."},
    {-20037, "The number of data points in the Y Values array must be greater than the order."},
    {-20038, "The number of intervals must be > 0."},
    {-20039, "The number of columns in the first matrix is not equal to the number of rows in the second matrix or vector."},
    {-20040, "The input matrix must be a square matrix."},
    {-20041, "The system of equations cannot be solved because the input matrix is singular."},
    {-20042, "The number of levels is out of range."},
    {-20043, "The level of factors is outside the allowable range of some data."},
    {-20044, "Zero observations were made at some level of a factor."},
    {-20045, "The total number of data points must be equal to the product of levels/each factor * observations/cell."},
    {-20046, "There is an overflow in the calculation"},
    {-20047, "The data is unbalanced. All cells must contain the same number of observations."},
    {-20048, "The Random Effect model was requested when the Fixed Effect model is required."},
    {-20049, "The x-values must be distinct."},
    {-20050, "The interpolating function has a pole at the requested value."},
    {-20051, "All values in the first column of X matrix must be one."},
    {-20052, "The degree of freedom must be greater than zero and less than the length of the input sequence."},
    {-20053, "The probability must be between zero and one."},
    {-20054, "The probability must be greater than or equal to zero and less than one."},
    {-20055, "The number of categories or samples must be greater than one."},
    {-20056, "The contingency table has a negative number."},
    {-20057, "The parameter to the beta function should be 0 < p < 1"},
    {-20058, "Invalid number of dimensions or dependent variables"},
    {-20059, "Negative number error"},
    {-20060, "Divide by zero error."},
    {-20061, "The selection is invalid."},
    {-20062, "The maximum number of iterations was exceeded."},
    {-20063, "The coefficients of the polynomial are invalid."},
    {-20064, "The internal memory state of this function was not initialized correctly."},
    {-20065, "The elements in the vector can not be all zero."},
    {-20066, "The information in IIR filter structure is not correct."},
    {-20067, "The input fundamental frequency or sampling rate is equal to zero."},
    {-20068, "Input parameters has at least one element that is Inf, NaN, DBL_MAX, or DBL_MIN"},
    {-20069, "The number of samples must be greater than or equal to four."},
    {-20070, "Matrices must have the same size."},
    {-20071, "The input matrix is not positive definite."},
    {-20072, "The logarithm of the input matrix cannot be computed."},
    {-20073, "The eigenvalues cannot be reordered because some of them are too close."},
    {-20074, "Reordering eigenvalues changed some complex ones."},
    {-20075, "The filter buffer overflows."},
    {-20076, "The resample point cannot be calculated with the signal behind that of the input."},
    {-20077, "The time points are not in ascending order."},
    {-20078, "This functionality is not supported on this platform."},
    {-20101, "Parameter must meet the condition Top > Base"},
    {-20102, "The shifts must meet: |shifts| < samples."},
    {-20103, "The order must be greater than or equal to zero."},
    {-20104, "Input parameters have at least one NaN element."},
    {-20111, "The input polynomial coefficients are all zeros."},
    {-20112, "Poly real zeros counter: start is a root."},
    {-20113, "Poly real zeros counter: end is a root."},
    {-20114, "The start value of the poly real zeros counter is greater than the end value."},
    {-20115, "The FFT size must be greater than zero."},
    {-20116, "Feasible solution not found."},
    {-20117, "Loss of Significance."},
    {-20140, "The number is negative or zero."},
    {-20141, "The number is zero."},
    {-20999, "Serious algorithm failure. Call Corvelix support."},
    {-20068, "Input parameters has at least one element that is Inf, NaN, DBL_MAX, or DBL_MIN"},
    {-20118, "The input is greater than 1 or less than -1."},
    {-20119, "The number of samples is not equal to three."},
    {-20308, "Not enough crosspoints and cycles meet the measurement requirement."},
    {-20309, "The waveform amplitude is zero."},
    {-20310, "Not enough edge times and cycles meet the measurement requirement."},
    {-20311, "There is not enough space left to perform the specified routine."},
    {-20312, "No waveform input."},
    {-20313, "Expected high reference level >= middle reference level >= low reference level."},
    {-20314, "The reference unit must be either absolute(0) or percent(1)."},
    {-20315, "The dt of waveform <= 0.0."},
    {-20316, "The method must be either histogram(0) or peak(1) or autoselect(2)."},
    {-20317, "The histogram size <= 0."},
    {-20318, "The parameter is undefined."},
    {-20319, "The period of waveform is too short."},
    {-20320, "The result is not available."},
    {-20321, "Invalid session."},
    {-20322, "Invalid attribute input."},
    {-20323, "Invalid number of edge times."},
    {-20324, "Duplicate measurement ID."},
    {-20325, "Invalid measurement number."},
    {-20312, "No waveform input."},
    {-20326, "The slope is infinite."},
    {-20327, "An exception has occurred."},
    {-20328, "Wrong section."},
    {-20329, "The cursor structure pointer is NULL."},
    {-20330, "The result pointer is NULL."},
    {-20331, "The reference levels or the percent level settings are NULL."},
    {-20332, "Invalid number of threads."},
    {-20120, "The size of analysis workspace has already been set."},
    {-20121, "The analysis workspace has already been enabled."},
    {-20122, "The analysis workspace is empty."},
    {-20123, "The analysis workspace is not empty."},
    {-20124, "The analysis workspace has been locked."},
    {-20125, "The analysis workspace can not be unlocked."},
    {-20126, "There is not enough space left to perform the specified routine in the analysis workspace."},
};
// clang-format on

constexpr int kRowCount = sizeof kRows / sizeof *kRows;
static_assert(kRowCount == 140);

TEST(StatusMessage, GivesTheTextOfEveryRow) {
    for (const Row& row : kRows) EXPECT_STREQ(ZemFunc240(row.code), row.text) << row.code;
}

TEST(StatusMessage, KnowsNoCodeWithoutARow) {
    std::set<std::int32_t> known;
    for (const Row& row : kRows) known.insert(row.code);
    EXPECT_EQ(known.size(), 138u);
    for (std::int32_t code = -21100; code <= 20200; ++code) {
        const bool unknown = std::strcmp(ZemFunc240(code), "Unknown error number") == 0;
        EXPECT_EQ(unknown, known.count(code) == 0) << code;
    }
    EXPECT_STREQ(ZemFunc240(INT32_MIN), "Unknown error number");
    EXPECT_STREQ(ZemFunc240(INT32_MAX), "Unknown error number");
}

TEST(StatusMessage, AnswersForSuccessWarningsAndSeriousFailures) {
    EXPECT_STREQ(ZemFunc240(0), "The call was successful.");
    EXPECT_STREQ(ZemFunc240(20001), "Warning: The matrix is rank deficient.");
    EXPECT_STREQ(ZemFunc240(-20999), "Serious algorithm failure. Call Corvelix support.");
}

TEST(StatusMessage, DoesNotKnowOneNorTheWarningOfThePulseMeasurements) {
    EXPECT_STREQ(ZemFunc240(1), "Unknown error number");
    EXPECT_STREQ(ZemFunc240(20021), "Unknown error number");
    EXPECT_EQ(status::kWarnPulseLevels, 20021);
}

TEST(StatusMessage, KeepsDoubleBlanks) {
    EXPECT_NE(std::strstr(ZemFunc240(-20009), "two:  size"), nullptr);
    EXPECT_NE(std::strstr(ZemFunc240(-20014), "met:  0 <="), nullptr);
}

// The rows themselves, of which the lookup shows only the first of each pair.
TEST(StatusTable, HoldsItsRowsInOrderWithTwoOfThemRepeated) {
    constexpr Row kTable[] = {
#define QV_STATUS(symbol, code, text) {code, text},
#define QV_STATUS_AGAIN(symbol, text) {status::symbol, text},
#include "frame/status_table.inc"
#undef QV_STATUS_AGAIN
#undef QV_STATUS
    };
    ASSERT_EQ(sizeof kTable / sizeof *kTable, 140u);
    std::map<std::int32_t, std::vector<int>> places;
    for (int i = 0; i < kRowCount; ++i) {
        EXPECT_EQ(kTable[i].code, kRows[i].code) << "row " << i + 1;
        EXPECT_STREQ(kTable[i].text, kRows[i].text) << "row " << i + 1;
        places[kTable[i].code].push_back(i + 1);
    }
    EXPECT_EQ(places[-20068], (std::vector<int>{80, 105}));
    EXPECT_EQ(places[-20312], (std::vector<int>{112, 126}));
}

TEST(StatusMessage, AnswersWithTheFirstOfTwoRows) {
    for (std::int32_t code : {-20068, -20312}) {
        const char* first = nullptr;
        for (const Row& row : kRows)
            if (row.code == code && !first) first = row.text;
        EXPECT_STREQ(ZemFunc240(code), first);
        EXPECT_EQ(ZemFunc240(code), ZemFunc240(code)) << "the text does not move";
    }
}

TEST(Later, KeepsAnEarlierErrorAndTakesALaterOne) {
    EXPECT_EQ(Later(0, 0), 0);
    EXPECT_EQ(Later(0, 20001), 20001);
    EXPECT_EQ(Later(20001, 20003), 20001);
    EXPECT_EQ(Later(20001, 0), 20001);
    EXPECT_EQ(Later(20001, -20001), -20001);
    EXPECT_EQ(Later(0, -20001), -20001);
    EXPECT_EQ(Later(-20003, -20001), -20003);
    EXPECT_EQ(Later(-20003, 0), -20003);
}

}  // namespace
}  // namespace quorvan::testing
