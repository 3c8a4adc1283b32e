#include "transforms/fft_plan.h"

#include <cmath>
#include <cstring>
#include <mutex>
#include <utility>

#include "frame/memory.h"
#include "frame/platform.h"
#include "frame/status.h"
#include "transforms/fft.h"
#include "transforms/fft_plan_record.h"
#include "transforms/twiddles.h"

namespace quorvan {
namespace {

// The live plans, newest first. Guarded by the plan mutex, like every refCount.
FftPlan* plan_list = nullptr;

// 10 stands first on purpose: it keeps decimal sizes on one kernel.
constexpr Count kKernelSizes[] = {10, 43, 41, 37, 32, 31, 29, 19, 18, 17, 16, 14, 13, 11, 9, 8, 7, 5, 4, 3, 2};
constexpr Count kFirstLargePrime = 50;
constexpr Count kCacheLine = 8;  // doubles

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
    for (Count kernel : kKernelSizes)
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

Status MakeStages(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i) {
        if (!Allocate(plan.stages[i], 1)) return status::kOutOfMemory;
        std::memset(static_cast<void*>(plan.stages[i]), 0, sizeof(FftStage));
    }
    return status::kSuccess;
}

// How many doubles the stage kernels read for all columns of a stage.
Size BlockedLength(Count f, Count m) noexcept {
    const FftKernelTable& kernels = kFftKernels();
    Size length = 0;
    for (Count j = 0; j < m; j += kernels.blockWidth(m - j)) length += 2 * Size(f - 1) * kernels.blockWidth(m - j);
    return length;
}

// The twiddles once more, in the order in which the stage kernels read them.
void FillBlockedTwiddles(FftStage& stage, Count f, Count m) noexcept {
    const FftKernelTable& kernels = kFftKernels();
    double* out = stage.blockedTwiddles;
    for (Count j = 0; j < m;) {
        const Count width = kernels.blockWidth(m - j);
        for (Count lane = 0; lane < width; ++lane) {
            const Count column = j + kernels.laneColumn(width, lane);
            const Size row = Size(column - 1) * (f - 1);
            for (Count r = 0; r < f - 1; ++r) {
                const bool turned = column > 0 && column < m;
                out[2 * width * r + lane] = turned ? stage.twiddleCos[row + r] : 1;
                out[2 * width * r + width + lane] = turned ? stage.twiddleSin[row + r] : 0;
            }
        }
        out += 2 * Size(f - 1) * width;
        j += width;
    }
}

// Lays the twiddles of all stages and then the leaf positions out from `tables` on, and returns how many doubles that
// takes. A null start lays nothing out.
Size PlaceTables(FftPlan& plan, double* tables) noexcept {
    Size used = 0;
    const auto take = [&](double*& table, Size length) {
        if (tables) table = tables + used;
        used += (length + kCacheLine - 1) / kCacheLine * kCacheLine;
    };
    Count m = plan.size;
    for (Count i = 0; i + 1 < plan.factorCount; ++i) {
        FftStage& stage = *plan.stages[i];
        const Count f = plan.factors[i];
        m /= f;
        take(stage.twiddleCos, Size(f - 1) * (m - 1));
        take(stage.twiddleSin, Size(f - 1) * (m - 1));
        if (plan.kinds[i] != kLargePrime) take(stage.blockedTwiddles, BlockedLength(f, m));
    }
    for (FftSchedule* schedule : {&plan.whole, &plan.half}) {
        double* positions = nullptr;
        take(positions, (Size(schedule->leaves) + 1) / 2);
        schedule->leafPositions = reinterpret_cast<Count*>(positions);
    }
    return used;
}

Status MakeTwiddles(FftPlan& plan) noexcept {
    // One block, and a quarter more than is touched: glibc gives free memory back to the system beyond twice the
    // largest block that it has seen. With many blocks, or a workspace as large as the plan beside it, it would do so
    // after every call, and the next call would fetch all pages again.
    const Size used = PlaceTables(plan, nullptr);
    if (!Allocate(plan.tables, used + used / 4 + kCacheLine)) return status::kOutOfMemory;
    const std::size_t past = reinterpret_cast<std::uintptr_t>(plan.tables) / sizeof(double) % kCacheLine;
    PlaceTables(plan, plan.tables + (kCacheLine - past) % kCacheLine);
    Count length = plan.size;
    for (Count i = 0; i + 1 < plan.factorCount; ++i) {
        FftStage& stage = *plan.stages[i];
        const Count f = plan.factors[i], m = length / f;
        StageTwiddles(kTwoPi / length, f, m - 1, stage.twiddleCos, stage.twiddleSin);
        if (stage.blockedTwiddles) FillBlockedTwiddles(stage, f, m);
        length = m;
    }
    return status::kSuccess;
}

Status MakePrimeTables(FftPlan& plan) noexcept {
    for (Count i = 0; i < plan.factorCount; ++i) {
        if (plan.kinds[i] != kGenericPrime) continue;
        FftStage& stage = *plan.stages[i];
        const Count f = plan.factors[i];
        if (!Allocate(stage.primeCos, f) || !Allocate(stage.primeSin, f)) return status::kOutOfMemory;
        UnitCircle(kTwoPi / f, false, f, stage.primeCos, stage.primeSin);
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

// What a pass of one factor costs a point, roughly, in nanoseconds of a wide machine.
double PassCost(Count factor) noexcept { return factor == 32 ? 0.8 : factor <= 18 ? 0.6 : 0.02 * factor + 0.5; }

// A size from `wanted` up, not much above it, on which the kernels are fast: few passes, few large odd factors.
Count PaddedSize(Count wanted) noexcept {
    constexpr Count kStep = 64, kMostCandidates = 4096;
    Count best = FftFastSize(wanted);
    double bestCost = HUGE_VAL;
    Size size = (Size(wanted) + kStep - 1) / kStep * kStep;
    for (Count i = 0; i < kMostCandidates && size <= 0x7FFFFFFF && size <= wanted + Size(wanted) / 4 + kStep;
         ++i, size += kStep) {
        FftPlan candidate = {};
        candidate.size = static_cast<Count>(size);
        Factorise(candidate);
        double cost = 0;
        for (Count k = 0; k < candidate.factorCount; ++k)
            cost += candidate.kinds[k] == kKernelFactor ? PassCost(candidate.factors[k]) : HUGE_VAL;
        if (cost * double(size) < bestCost) {
            best = candidate.size;
            bestCost = cost * double(size);
        }
    }
    return best;
}

// Where the plan of n would recur into further large primes, the cyclic convolution of length n is done on a fast size
// M: with the sequence repeated backwards behind 0, so that its linear convolution holds the cyclic one in 0 to n - 1.
Status MakePaddedConvolution(FftStage& stage, Count n, const double* sequence) noexcept {
    const Size wanted = 2 * Size(n) - 1;
    if (wanted > 0x7FFFFFFF) return status::kSuccess;  // the recursion does it
    const Count size = PaddedSize(static_cast<Count>(wanted));
    stage.paddedPlan = CreateUnlocked(size);
    Block<double> padded(2 * std::size_t(size));
    if (!stage.paddedPlan || !Allocate(stage.paddedSpectrum, 2 * Size(size)) || !padded) return status::kOutOfMemory;
    // The sequence carries 1/n for the inverse of length n; here the inverse is of length `size`.
    const double scale = double(n) / size;
    for (Size k = 0; k < size; ++k) {
        const Size from = k < n ? k : k > size - n ? k - (size - n) : -1;
        padded[2 * k] = from < 0 ? 0 : sequence[from] * scale;
        padded[2 * k + 1] = from < 0 ? 0 : sequence[n + from] * scale;
    }
    return FftComplex(stage.paddedPlan, padded, padded + 1, stage.paddedSpectrum, stage.paddedSpectrum + 1, 2, 2, size);
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
    if (stage.raderPlan->kinds[stage.raderPlan->factorCount - 1] != kLargePrime) return status::kSuccess;
    return MakePaddedConvolution(stage, n, sequence);
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
        HeapFree(stage->paddedSpectrum);
        HeapFree(stage->primeCos);
        HeapFree(stage->primeSin);
        HeapFree(stage->raderSpectrumRe);
        HeapFree(stage->raderSpectrumIm);
        HeapFree(stage->raderGather);
        HeapFree(stage->raderScatter);
        HeapFree(stage);
    }
    HeapFree(plan->tables);
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

FftPlan* FftPlanCreate(Count size) noexcept {
    const std::lock_guard lock(PlanMutex());
    return CreateUnlocked(size);
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
