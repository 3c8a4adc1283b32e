#include "transforms/fft_plan.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <mutex>
#include <utility>

#include "frame/memory.h"
#include "frame/platform.h"
#include "frame/status.h"
#include "transforms/cache_lines.h"
#include "transforms/fft.h"
#include "transforms/fft_plan_record.h"
#include "transforms/kernels/direct_primes.h"
#include "transforms/rader_padded.h"
#include "transforms/twiddles.h"

namespace quorvan {
namespace {

// The live plans, newest first. Guarded by the plan mutex, like every refCount.
FftPlan* plan_list = nullptr;

// The kernel sizes in the order in which they are tried: 10 stands first on purpose, it keeps decimal sizes on one
// kernel. And what a pass of each costs a point, in nanoseconds of a wide machine, fitted to the times of 700 sizes.
struct KernelSize {
    Count size;
    double cost;
};
constexpr KernelSize kKernelSizes[] = {{10, 0.35}, {43, 1.60}, {41, 1.60}, {37, 1.35}, {32, 0.47}, {31, 1.07},
                                       {29, 1.05}, {19, 0.75}, {18, 0.45}, {17, 0.58}, {16, 0.40}, {14, 0.40},
                                       {13, 0.50}, {11, 0.44}, {9, 0.39},  {8, 0.38},  {7, 0.39},  {5, 0.36},
                                       {4, 0.33},  {3, 0.28},  {2, 0.26}};
constexpr Count kFirstLargePrime = 50;

// All bins of n = f m reals in two passes: the lengths m and what a vector of such sequences costs in the first, the
// factors f and what a vector of columns costs in the second, in nanoseconds of the same machine; and what a point
// costs by the levels of a plan.
constexpr KernelSize kRowLengths[] = {{3, 4.6}, {4, 4.6}, {5, 5},   {7, 7.4},   {8, 6.7}, {9, 9.4},   {10, 8},
                                      {11, 14}, {12, 9},  {13, 16}, {14, 11.5}, {15, 11}, {16, 11},   {17, 27},
                                      {18, 18}, {19, 33}, {20, 18}, {21, 21},   {23, 60}, {24, 18.5}, {25, 27},
                                      {27, 29}, {28, 29}, {29, 58}, {30, 29},   {31, 64}, {32, 28},   {33, 46},
                                      {35, 44}, {36, 41}, {39, 58}, {40, 43},   {45, 57}, {50, 95}};
constexpr KernelSize kRowsStages[] = {{2, 4}, {4, 8}, {8, 17}, {10, 24}, {14, 44}, {16, 43}, {18, 61}, {32, 105}};
constexpr double kLevelsCost = 1.1;

FftPlan* CreateUnlocked(Count size) noexcept;
void ReleaseUnlocked(FftPlan* plan) noexcept;

template <class T>
bool Allocate(T*& block, Size count) noexcept {
    block = Block<T>(static_cast<std::size_t>(count)).release();
    return block != nullptr;
}

void Append(FftPlan& plan, Count factor, FactorKind kind) noexcept {
    plan.factors[plan.factorCount] = factor;
    plan.kinds[plan.factorCount++] = kind;
}

void Factorise(FftPlan& plan) noexcept {
    Count rest = plan.size;
    for (const auto& [kernel, cost] : kKernelSizes)
        for (; rest > 1 && rest % kernel == 0; rest /= kernel) Append(plan, kernel, kKernelFactor);
    if (rest >= 9) {
        for (Size divisor = 3; divisor * divisor <= rest; divisor += 2)
            for (; rest % divisor == 0; rest /= static_cast<Count>(divisor))
                Append(plan, static_cast<Count>(divisor), divisor < kFirstLargePrime ? kGenericPrime : kLargePrime);
    }
    if (rest > 1) Append(plan, rest, rest < kFirstLargePrime ? kGenericPrime : kLargePrime);

    for (Count i = 0; i < plan.factorCount; ++i)
        for (Count j = i + 1; j < plan.factorCount; ++j)
            if (plan.factors[j] < plan.factors[i]) {
                std::swap(plan.factors[i], plan.factors[j]);
                std::swap(plan.kinds[i], plan.kinds[j]);
            }
}

Count FactorOf(const FftPlan& plan, const FftSchedule& schedule, Count level) noexcept {
    return level == 0 ? schedule.firstFactor : plan.factors[level];
}

FftSchedule ScheduleOf(const FftPlan& plan, Count size, Count firstFactor, Count lastStage) noexcept {
    const Count last = plan.factorCount - 1;
    FftSchedule schedule = {size, firstFactor, lastStage, size / plan.factors[last], nullptr, 0, 1, nullptr};
    if (schedule.leaves == 1)
        if (const FftKernel* kernel = kFftKernels().kernel(plan.factors[last])) schedule.loneLeaf = kernel->loneLeaf;
    const auto wasteful = [](Count stride) {
        return stride < kFftGroup || (stride % kFftGroup && stride < 4 * kFftGroup);
    };
    while (schedule.groupLevel < last && (schedule.groupLevel < lastStage || wasteful(schedule.groupStride)))
        schedule.groupStride *= FactorOf(plan, schedule, schedule.groupLevel++);
    return schedule;
}

void Schedule(FftPlan& plan) noexcept {
    const Count last = plan.factorCount - 1;
    if (last < 0) return;
    for (Count i = 0, m = plan.size; i <= last; ++i) plan.columns[i] = m /= plan.factors[i];
    plan.whole = ScheduleOf(plan, plan.size, plan.factors[0], 0);
    if (plan.spectrumStage && last > 0) plan.half = ScheduleOf(plan, plan.size / 2, plan.factors[0] / 2, 1);
}

void ChooseKernels(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i) {
        const FftKernel* kernel = kFftKernels().kernel(plan.factors[i]);
        if (!kernel) continue;
        plan.realLeafKernels[i] = kernel->realLeaf;
        plan.realStageKernels[i] = kernel->realStage;
        plan.leafKernels[i] = kernel->leaf;
        plan.stageKernels[i] = kernel->stage;
        if (i > 0) continue;
        plan.spectrumLeaf = kernel->spectrumLeaf;
        plan.spectrumStage = kernel->spectrumStage;
    }
}

// The two passes that cost least, unless the levels of the plan cost less. Each pass goes by whole vectors.
void ChooseSplit(FftPlan& plan) noexcept {
    if (plan.factorCount < 2 || plan.size > kMostRows * kLongestRow) return;
    const FftKernelTable& kernels = kFftKernels();
    const Count width = kernels.blockWidth(INT32_MAX);
    const auto vectors = [width](Count count) { return (count + width - 1) / width; };
    double least = kLevelsCost * plan.size;
    for (const auto& [factor, stageCost] : kRowsStages) {
        if (plan.size % factor) continue;
        for (const auto& [m, rowsCost] : kRowLengths) {
            if (factor * m != plan.size) continue;
            const double cost = vectors(factor) * rowsCost + vectors((m + 1) / 2) * stageCost;
            if (cost >= least) continue;
            least = cost;
            plan.split = {kernels.rows(m), kernels.kernel(factor)->rowsStage, factor, m, {}};
        }
    }
}

Status MakeStages(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i) {
        if (!Allocate(plan.stages[i], 1)) return status::kOutOfMemory;
        std::memset(static_cast<void*>(plan.stages[i]), 0, sizeof(FftStage));
    }
    return status::kSuccess;
}

// How many doubles the stage kernels read for all columns of a stage: blocks of full width, and one that takes the
// rest.
Size BlockedLength(Count f, Count m) noexcept {
    const auto width = kFftKernels().blockWidth;
    const Count rest = m % width(INT32_MAX);
    return 2 * Size(f - 1) * (Size(m) - rest + (rest ? width(rest) : 0));
}

// Tables that follow each other in one block, each from a cache line of its own; from null on they are only measured.
class TableLayout {
public:
    explicit TableLayout(double* start) noexcept : start_(start) {}
    double* Take(Size length) noexcept {
        double* table = start_ ? start_ + used_ : nullptr;
        used_ += WholeLines(length);
        return table;
    }
    Size used() const noexcept { return used_; }

private:
    double* start_;
    Size used_ = 0;
};

// How much to ask for when `used` doubles are touched. glibc gives free memory back to the system as soon as there is
// more of it than twice the largest block that it has seen freed, of those from 128 KiB to 32 MiB: a call whose tables
// and workspaces are of one size would lose all pages at its end, and the next one would fetch them again. So the
// tables of transforms are the largest block by far. Pages that are not touched cost nothing.
Size RoomyLength(Size used) noexcept {
    constexpr Size kFew = 2048, kPad = 20480, kMost = (Size{31} << 20) / sizeof(double);
    return used < kFew ? used : std::max(used, std::min(3 * used + kPad, kMost));
}
Size BareLength(Size used) noexcept { return used; }

// Lays tables out in a new block of the length that `asked` gives. `place` takes a layout and puts the tables where it
// says.
template <class Place>
Status AllocateTables(double*& block, Size (*asked)(Size) noexcept, Place place) noexcept {
    TableLayout measured(nullptr);
    place(measured);
    if (!Allocate(block, asked(measured.used() + kCacheLine))) return status::kOutOfMemory;
    TableLayout layout(LineStart(block));
    place(layout);
    return status::kSuccess;
}

// Calls body(stage, kind, f, m) for all stages but the last, which needs no twiddles.
template <class Body>
void ForTurnedStages(FftPlan& plan, Body body) noexcept {
    for (Count i = 0; i + 1 < plan.factorCount; ++i)
        body(*plan.stages[i], plan.kinds[i], plan.factors[i], plan.columns[i]);
}

void PlaceStated(TableLayout& layout, FftStage& stage, Count f, Count m) noexcept {
    stage.twiddleCos = layout.Take(Size(f - 1) * (m - 1));
    stage.twiddleSin = layout.Take(Size(f - 1) * (m - 1));
}
void FillStated(FftStage& stage, Count f, Count m) noexcept {
    StageTwiddles(kTwoPi / (Size(f) * m), f, m, stage.twiddleCos, stage.twiddleSin);
}

// What the transforms read: the twiddles of each stage in the one order that its routine takes them in.
Status MakeTwiddles(FftPlan& plan) noexcept {
    FftSpectrumSplit& split = plan.split;
    // Two passes by the factors of the plan find the turns of their columns at the beginning of its own table, whose
    // blocks are of full width there but for a few columns in all.
    constexpr Count kFewColumns = 4;
    const bool ownTurns =
        split.rows && (plan.factorCount > 2 || plan.factors[0] != split.factor || split.columns <= kFewColumns);
    const Count width = kFftKernels().blockWidth(INT32_MAX), turned = (split.columns / 2 + width) / width * width;
    const Status status = AllocateTables(plan.tables, RoomyLength, [&](TableLayout& layout) {
        ForTurnedStages(plan, [&](FftStage& stage, Count kind, Count f, Count m) {
            if (kind == kLargePrime)
                PlaceStated(layout, stage, f, m);
            else
                stage.blockedTwiddles = layout.Take(BlockedLength(f, m));
        });
        for (FftSchedule* schedule : {&plan.whole, &plan.half})
            schedule->leafPositions = reinterpret_cast<Count*>(layout.Take((Size(schedule->leaves) + 1) / 2));
        if (ownTurns) split.turns.blockedTwiddles = layout.Take(BlockedLength(split.factor, turned));
    });
    if (status < 0) return status;
    ForTurnedStages(plan, [](FftStage& stage, Count kind, Count f, Count m) {
        if (kind == kLargePrime)
            FillStated(stage, f, m);
        else
            BlockedTwiddles(kTwoPi / (Size(f) * m), f, m, stage.blockedTwiddles);
    });
    if (ownTurns)
        BlockedTwiddles(kTwoPi / plan.size, split.factor, turned, split.turns.blockedTwiddles);
    else if (split.rows)
        split.turns.blockedTwiddles = plan.stages[0]->blockedTwiddles;
    return status::kSuccess;
}

// The twiddles in the plain order where only the blocked one stands, here and in the plans of large primes.
Status StateTwiddles(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i)
        if (plan.stages[i]->raderPlan)
            if (const Status status = StateTwiddles(*plan.stages[i]->raderPlan); status < 0) return status;
    if (plan.statedTables) return status::kSuccess;
    const auto forBlocked = [&plan](auto body) {
        ForTurnedStages(plan, [body](FftStage& stage, Count kind, Count f, Count m) {
            if (kind != kLargePrime) body(stage, f, m);
        });
    };
    const Status status = AllocateTables(plan.statedTables, BareLength, [&](TableLayout& layout) {
        forBlocked([&](FftStage& stage, Count f, Count m) { PlaceStated(layout, stage, f, m); });
    });
    if (status < 0) return status;
    forBlocked(FillStated);
    return status::kSuccess;
}

// What FftSpectrum needs of even sizes where neither two passes nor the first factor serve.
Status TakeRecords(FftPlan& plan) noexcept {
    if (plan.size % 2 || plan.spectrumLeaf || plan.split.rows || plan.recordsPlan) return status::kSuccess;
    const Count half = plan.size / 2;
    if (!plan.recordsTables) {
        double*& turns = plan.recordsTurns.blockedTwiddles;
        const Status status = AllocateTables(plan.recordsTables, BareLength,
                                             [&](TableLayout& layout) { turns = layout.Take(BlockedLength(2, half)); });
        if (status < 0) return status;
        BlockedTwiddles(kTwoPi / plan.size, 2, half, turns);
        plan.spectrumStage = kFftKernels().kernel(2)->spectrumStage;
    }
    plan.recordsPlan = CreateUnlocked(half);
    return plan.recordsPlan ? status::kSuccess : status::kOutOfMemory;
}

Status MakePrimeTables(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i) {
        if (plan.kinds[i] != kGenericPrime) continue;
        FftStage& stage = *plan.stages[i];
        const Count f = plan.factors[i];
        if (!Allocate(stage.primeCos, f) || !Allocate(stage.primeSin, f)) return status::kOutOfMemory;
        UnitCircle(kTwoPi / f, false, f, stage.primeCos, stage.primeSin);
        if (plan.split.columns != f) continue;
        plan.split.turns.primeCos = stage.primeCos;
        plan.split.turns.primeSin = stage.primeSin;
    }
    return status::kSuccess;
}

Count PowerModulo(Count base, Count exponent, Count p) noexcept {
    Size result = 1;
    for (Size square = base; exponent; exponent /= 2, square = square * square % p)
        if (exponent % 2) result = result * square % p;
    return static_cast<Count>(result);
}

// The smallest g whose powers run through 1 to p - 1: no power (p - 1)/q of it, q a prime factor of p - 1, is 1.
Count PrimitiveRoot(Count p) noexcept {
    Count primes[16], count = 0, rest = p - 1;
    for (Size q = 2; q * q <= rest; ++q) {
        if (rest % q) continue;
        primes[count++] = static_cast<Count>(q);
        while (rest % q == 0) rest /= static_cast<Count>(q);
    }
    if (rest > 1) primes[count++] = rest;
    for (Count g = 2; g < p; ++g) {
        Count k = 0;
        while (k < count && PowerModulo(g, (p - 1) / primes[k], p) != 1) ++k;
        if (k == count) return g;
    }
    return 1;
}

// A size from `wanted` up, not much above it, on which the kernels are fast: whole vectors, few passes, few large odd
// factors.
Count PaddedSize(Count wanted) noexcept {
    constexpr Count kStep = 8, kMostCandidates = 4096;
    Count best = FftFastSize(wanted);
    double bestCost = HUGE_VAL;
    Size size = (Size(wanted) + kStep - 1) / kStep * kStep;
    for (Count i = 0; i < kMostCandidates && size <= 0x7FFFFFFF && size <= wanted + Size(wanted) / 4 + kStep;
         ++i, size += kStep) {
        Count rest = static_cast<Count>(size);
        double cost = 0;
        for (const auto& [kernel, pass] : kKernelSizes)
            for (; rest % kernel == 0; rest /= kernel) cost += pass;
        if (rest > 1) continue;
        if (cost * double(size) < bestCost) {
            best = static_cast<Count>(size);
            bestCost = cost * double(size);
        }
    }
    return best;
}

// Rader (1968): the DFT of a prime length p as a cyclic convolution of length p - 1 over the powers of a primitive
// root.
Status MakeLargePrime(FftStage& stage, Count p) noexcept {
    const Count n = p - 1;
    if (!Allocate(stage.raderGather, p) || !Allocate(stage.raderScatter, p) || !Allocate(stage.raderSpectrumRe, n) ||
        !Allocate(stage.raderSpectrumIm, n))
        return status::kOutOfMemory;
    Count *gather = stage.raderGather, *scatter = stage.raderScatter;
    gather[0] = scatter[0] = 0;
    gather[1] = scatter[1] = 1;
    Size power = 1;
    for (Count k = 1, g = PrimitiveRoot(p); k < n; ++k) {
        power = power * g % p;
        scatter[k + 1] = gather[p - k] = static_cast<Count>(power);
    }

    stage.raderPlan = CreateUnlocked(n);
    if (!stage.raderPlan) return status::kOutOfMemory;
    Block<double> circle(2 * std::size_t(n)), sequence(2 * std::size_t(n));
    if (!circle || !sequence) return status::kOutOfMemory;
    UnitCircle(kTwoPi / p, true, n, circle, circle + n);
    for (Count k = 0; k < n; ++k) {
        sequence[k] = circle[scatter[k + 1] - 1] / n;
        sequence[n + k] = circle[n + scatter[k + 1] - 1] / n;
    }
    if (const Status status =
            FftComplex(stage.raderPlan, sequence, sequence + n, stage.raderSpectrumRe, stage.raderSpectrumIm, 1, 1, n);
        status < 0)
        return status;
    const Count last = stage.raderPlan->factorCount - 1, factor = stage.raderPlan->factors[last];
    const bool slow = factor > 19 && factor % 2;
    if (p <= (slow ? kDirectPrimes().largestSlow : kDirectPrimes().largest)) {
        if (!Allocate(stage.directBlock, LinesLength(DirectTableLength(p)))) return status::kOutOfMemory;
        stage.directTable = LineStart(stage.directBlock);
        kDirectPrimes().fillTable(p, circle, circle + n, scatter + 1, stage.directTable);
        return status::kSuccess;
    }
    if (stage.raderPlan->kinds[last] != kLargePrime) return status::kSuccess;
    stage.paddedPlan = CreateUnlocked(PaddedSize(n / 2));
    if (!stage.paddedPlan || !Allocate(stage.paddedBlock, LinesLength(PaddedTableLength(stage))))
        return status::kOutOfMemory;
    return MakePaddedTables(stage, p, sequence);
}

Status MakeLargePrimes(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i)
        if (plan.kinds[i] == kLargePrime)
            if (const Status status = MakeLargePrime(*plan.stages[i], plan.factors[i]); status < 0) return status;
    return status::kSuccess;
}

// Input t = t0 + f0 t1 + f0 f1 t2 + ... starts the leaf that stands at t0 n1 + t1 n2 + t2 n3 + ...
Status MakeLeafPositions(FftPlan& plan) noexcept {
    for (const FftSchedule* schedule : {&plan.whole, &plan.half}) {
        if (schedule->size == 0) continue;
        Count* positions = schedule->leafPositions;
        positions[0] = 0;
        for (Count i = 0, made = 1; i + 1 < plan.factorCount; ++i) {
            const Count f = FactorOf(plan, *schedule, i);
            for (Count t = made; t < made * f; ++t) positions[t] = positions[t - made] + plan.columns[i];
            made *= f;
        }
    }
    return status::kSuccess;
}

void Free(FftPlan* plan) noexcept {
    for (Count i = 0; i < plan->factorCount; ++i) {
        FftStage* stage = plan->stages[i];
        if (!stage) continue;
        ReleaseUnlocked(stage->raderPlan);
        ReleaseUnlocked(stage->paddedPlan);
        HeapFree(stage->paddedBlock);
        HeapFree(stage->directBlock);
        HeapFree(stage->primeCos);
        HeapFree(stage->primeSin);
        HeapFree(stage->raderSpectrumRe);
        HeapFree(stage->raderSpectrumIm);
        HeapFree(stage->raderGather);
        HeapFree(stage->raderScatter);
        HeapFree(stage);
    }
    ReleaseUnlocked(plan->recordsPlan);
    HeapFree(plan->recordsTables);
    HeapFree(plan->tables);
    HeapFree(plan->statedTables);
    HeapFree(plan);
}

Status Build(FftPlan& plan) noexcept {
    using Step = Status (*)(FftPlan&) noexcept;
    for (Step step : {MakeStages, MakeTwiddles, MakePrimeTables, MakeLargePrimes, MakeLeafPositions})
        if (const Status status = step(plan); status < 0) return status;
    return status::kSuccess;
}

FftPlan* CreateUnlocked(Count size) noexcept {
    if (size < 1) return nullptr;
    for (FftPlan* plan = plan_list; plan; plan = plan->next)
        if (plan->size == size) {
            ++plan->refCount;
            return plan;
        }
    FftPlan* plan;
    if (!Allocate(plan, 1)) return nullptr;
    *plan = {};
    plan->size = size;
    Factorise(*plan);
    ChooseKernels(*plan);
    ChooseSplit(*plan);
    Schedule(*plan);
    if (Build(*plan) < 0) {
        Free(plan);
        return nullptr;
    }
    plan->refCount = 1;
    plan->next = plan_list;
    if (plan_list) plan_list->prev = plan;
    plan_list = plan;
    return plan;
}

void ReleaseUnlocked(FftPlan* plan) noexcept {
    if (!plan || --plan->refCount > 0) return;
    (plan->prev ? plan->prev->next : plan_list) = plan->next;
    if (plan->next) plan->next->prev = plan->prev;
    Free(plan);
}

}  // namespace

FftPlan* FftPlanCreate(Count size, FftPlanUse use) noexcept {
    const std::lock_guard lock(PlanMutex());
    FftPlan* plan = CreateUnlocked(size);
    if (!plan) return nullptr;
    if ((use >= FftPlanUse::kSpectra && TakeRecords(*plan) < 0) ||
        (use >= FftPlanUse::kCallers && StateTwiddles(*plan) < 0)) {
        ReleaseUnlocked(plan);
        return nullptr;
    }
    return plan;
}

void FftPlanRelease(FftPlan* plan) noexcept {
    const std::lock_guard lock(PlanMutex());
    ReleaseUnlocked(plan);
}

Count FftPlanSize(const FftPlan* plan) noexcept { return plan->size; }

Count FftFastSize(Count n) noexcept {
    if (n < 2) return n;
    constexpr Count kLargest = 0x7FFFFFFF;
    for (Count size = n;; ++size) {
        Count rest = size;
        for (Count prime : {2, 3, 5, 7, 11, 13, 17, 19, 29, 31, 37, 41, 43})
            while (rest % prime == 0) rest /= prime;
        if (rest == 1) return size;
        if (size == kLargest) return n;  // no fast size fits: any size transforms
    }
}

}  // namespace quorvan
