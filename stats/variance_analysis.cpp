#include "stats/variance_analysis.h"

#include <algorithm>

#include "frame/memory.h"
#include "frame/status.h"
#include "stats/distributions.h"
#include "stats/level_slots.h"

namespace quorvan {
namespace {

// 1 - the distribution function; NaN for an F of NaN.
double Significance(double f, Size numerator, Size denominator) {
    double probability;
    DistFCdf(f, static_cast<std::int32_t>(numerator), static_cast<std::int32_t>(denominator), &probability);
    return 1 - probability;
}

Size Magnitude(Count levels) { return levels < 0 ? -Size{levels} : Size{levels}; }

// Whether the factors, of which only the last may be negative, multiply to n. No product leaves 64 bits: one above n
// is not multiplied further.
template <class... Factors>
bool MultiplyTo(Count n, Factors... factors) {
    Size product = 1;
    ((product = product > n ? product : product * factors), ...);
    return product == n;
}

double SumOfSquares(const double* sums, Size n) {
    double total = 0;
    for (Size i = 0; i < n; ++i) total += sums[i] * sums[i];
    return total;
}

bool AllHold(const Count* counts, Size n, Count m) {
    return std::all_of(counts, counts + n, [m](Count count) { return count == m; });
}

void SetRow(AnovaRow& row, double ss, double dof) {
    row.ss = ss;
    row.dof = dof;
    row.ms = ss / dof;
}

}  // namespace

Status AnovaOneWay(const double* y, const Count* level, Count n, Count k, const OneWayResult& out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (k < 2 || k >= n) return status::kLevelCountOutOfRange;
    LevelSlots slots(k);
    const Block<double> sums(k);
    const Block<Count> counts(k);
    if (!slots || !sums || !counts) return status::kOutOfMemory;
    std::fill(sums.get(), sums + k, 0.0);
    std::fill(counts.get(), counts + k, 0);

    double sum = 0, squares = 0;
    for (Count i = 0; i < n; ++i) {
        const Count slot = slots.slot(level[i]);
        if (slot < 0) return status::kFactorLevelOutOfRange;
        sums[slot] += y[i];
        ++counts[slot];
        sum += y[i];
        squares += y[i] * y[i];
    }
    const double correction = sum * sum / n;
    const double total = *out.ssTotal = squares - correction;  // deliberately before the check that follows
    if (std::find(counts.get(), counts + k, 0) != counts + k) return status::kEmptyFactorLevel;

    double between = 0;
    for (Count i = 0; i < k; ++i) between += sums[i] * sums[i] / counts[i];
    const double ssA = between - correction, ssError = total - ssA;
    const double msA = ssA / (k - 1), msError = ssError / (n - k), f = msA / msError;
    *out.ssA = ssA;
    *out.msA = msA;
    *out.f = f;
    *out.significance = Significance(f, k - 1, n - k);
    *out.ssError = ssError;
    *out.msError = msError;
    return status::kSuccess;
}

Status AnovaTwoWay(const double* y, const Count* levelA, const Count* levelB, Count n, Count m, Count levelsA,
                   Count levelsB, AnovaRow table[4], double* const significance[3]) noexcept {
    const Size a = Magnitude(levelsA), b = Magnitude(levelsB);
    if (n < 1) return status::kSamplesNotPositive;
    if (!MultiplyTo(n, a, b, m)) return status::kDataCountNotLevelProduct;
    if (a < 2 || b < 2) return status::kLevelCountOutOfRange;
    if (m == 1 && (levelsA < 0 || levelsB < 0)) return status::kFixedModelRequired;

    LevelSlots slotsA(static_cast<Count>(a)), slotsB(static_cast<Count>(b));
    const Block<double> work(a + b + a * b);
    const Block<Count> counts(a * b);
    if (!slotsA || !slotsB || !work || !counts) return status::kOutOfMemory;
    double *const sumsA = work, *const sumsB = sumsA + a, *const cells = sumsB + b;
    std::fill(work.get(), work + a + b + a * b, 0.0);
    std::fill(counts.get(), counts + a * b, 0);

    double sum = 0, squares = 0;
    for (Count i = 0; i < n; ++i) {
        const Count slotA = slotsA.slot(levelA[i]), slotB = slotsB.slot(levelB[i]);
        if (slotA < 0 || slotB < 0) return status::kFactorLevelOutOfRange;
        sumsA[slotA] += y[i];
        sumsB[slotB] += y[i];
        cells[slotA * b + slotB] += y[i];
        ++counts[slotA * b + slotB];
        sum += y[i];
        squares += y[i] * y[i];
    }
    if (!AllHold(counts, a * b, m)) return status::kUnbalancedData;

    const double correction = sum * sum / n;
    const double total = squares - correction;
    const double within = SumOfSquares(cells, a * b) / m - correction;
    const double ssA = SumOfSquares(sumsA, a) / static_cast<double>(b * m) - correction;
    const double ssB = SumOfSquares(sumsB, b) / static_cast<double>(a * m) - correction;
    const Size dofA = a - 1, dofB = b - 1, dofAB = dofA * dofB, dofError = m == 1 ? dofAB : n - a * b;
    AnovaRow &A = table[0], &B = table[1], &AB = table[2], &error = table[3];
    SetRow(A, ssA, dofA);
    SetRow(B, ssB, dofB);
    if (m == 1) {  // one observation a cell cannot tell interaction from error
        AB = {0, 0, 0, 0};
        SetRow(error, within - ssA - ssB, dofError);
        A.f = A.ms / error.ms;
        B.f = B.ms / error.ms;
        *significance[2] = 0;
    } else {
        SetRow(AB, within - ssA - ssB, dofAB);
        SetRow(error, total - within, dofError);
        A.f = A.ms / (levelsB < 0 ? AB.ms : error.ms);
        B.f = B.ms / (levelsA < 0 ? AB.ms : error.ms);
        AB.f = AB.ms / error.ms;
        *significance[2] = Significance(AB.f, dofAB, dofError);
    }
    // Deliberately the freedom of the error also where F was formed with the interaction.
    *significance[0] = Significance(A.f, dofA, dofError);
    *significance[1] = Significance(B.f, dofB, dofError);
    return status::kSuccess;
}

Status AnovaThreeWay(const double* y, const Count* levelA, const Count* levelB, const Count* levelC, Count n, Count m,
                     Count levelsA, Count levelsB, Count levelsC, AnovaRow table[8],
                     double* const significance[7]) noexcept {
    const Size a = Magnitude(levelsA), b = Magnitude(levelsB), c = Magnitude(levelsC);
    if (n < 1) return status::kSamplesNotPositive;
    if (!MultiplyTo(n, a, b, c, m)) return status::kDataCountNotLevelProduct;
    if (m < 2) return status::kEmptyFactorLevel;
    if (a < 2 || b < 2 || c < 2) return status::kLevelCountOutOfRange;

    enum Row { A, B, C, AB, AC, BC, ABC, kError, kNone };
    const Size sizes[] = {a, b, c, a * b, a * c, b * c, a * b * c};
    Size offsets[8] = {};
    for (int row = A; row <= ABC; ++row) offsets[row + 1] = offsets[row] + sizes[row];
    LevelSlots slotsA(static_cast<Count>(a)), slotsB(static_cast<Count>(b)), slotsC(static_cast<Count>(c));
    const Block<double> sums(offsets[7]);
    const Block<Count> counts(a * b * c);
    if (!slotsA || !slotsB || !slotsC || !sums || !counts) return status::kOutOfMemory;
    std::fill(sums.get(), sums + offsets[7], 0.0);
    std::fill(counts.get(), counts + a * b * c, 0);

    double sum = 0, squares = 0;
    for (Count i = 0; i < n; ++i) {
        const Size slotA = slotsA.slot(levelA[i]), slotB = slotsB.slot(levelB[i]), slotC = slotsC.slot(levelC[i]);
        if (slotA < 0 || slotB < 0 || slotC < 0) return status::kFactorLevelOutOfRange;
        const Size cell = (slotA * b + slotB) * c + slotC;
        const Size places[] = {slotA, slotB, slotC, slotA * b + slotB, slotA * c + slotC, slotB * c + slotC, cell};
        for (int row = A; row <= ABC; ++row) sums[offsets[row] + places[row]] += y[i];
        ++counts[cell];
        sum += y[i];
        squares += y[i] * y[i];
    }
    if (!AllHold(counts, a * b * c, m)) return status::kUnbalancedData;

    // S[row] = sum of squared sums over the observations behind each.
    double S[7];
    for (int row = A; row <= ABC; ++row)
        S[row] = SumOfSquares(sums + offsets[row], sizes[row]) / static_cast<double>(n / sizes[row]);
    const double C0 = sum * sum / n;
    const Size dof[] = {a - 1,
                        b - 1,
                        c - 1,
                        (a - 1) * (b - 1),
                        (a - 1) * (c - 1),
                        (b - 1) * (c - 1),
                        (a - 1) * (b - 1) * (c - 1),
                        (m - 1) * a * b * c};
    const double ss[] = {S[A] - C0,
                         S[B] - C0,
                         S[C] - C0,
                         S[AB] - S[A] - S[B] + C0,
                         S[AC] - S[A] - S[C] + C0,
                         S[BC] - S[B] - S[C] + C0,
                         S[ABC] - S[AB] - S[AC] - S[BC] + S[A] + S[B] + S[C] - C0,
                         squares - S[ABC]};
    for (int row = A; row <= kError; ++row) SetRow(table[row], ss[row], dof[row]);

    // What each row is tested against, by which factors are random (A, B, C by 4, 2, 1); none: no exact test exists.
    constexpr Row kDenominators[8][7] = {
        {kError, kError, kError, kError, kError, kError, kError},  // all fixed
        {AC, BC, kError, ABC, kError, kError, kError},
        {AB, kError, BC, kError, ABC, kError, kError},
        {kNone, BC, BC, ABC, ABC, kError, kError},
        {kError, AB, AC, kError, kError, ABC, kError},
        {AC, kNone, AC, ABC, kError, ABC, kError},
        {AB, AB, kNone, kError, ABC, ABC, kError},
        {kNone, kNone, kNone, ABC, ABC, ABC, kError},
    };
    const int random = (levelsA < 0) * 4 + (levelsB < 0) * 2 + (levelsC < 0);
    for (int row = A; row <= ABC; ++row) {
        const Row against = kDenominators[random][row];
        if (against == kNone) {
            table[row].f = *significance[row] = -1.0;
        } else {
            table[row].f = table[row].ms / table[against].ms;
            *significance[row] = Significance(table[row].f, dof[row], dof[against]);
        }
    }
    return status::kSuccess;
}

}  // namespace quorvan
