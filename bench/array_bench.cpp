// Element-wise array operations against the copy bandwidth of the same run, and sorting beside std::sort.
//
// Bandwidth counts what an operation must read and write once, 8 bytes an element and array: a copy is 16, an addition
// 24, a sum 8. ArrScale reads its input twice and is counted so. The copy to compare with is the faster of two: memcpy,
// which may write around the cache, and a plain loop, which may not. A sum adds in index order, so one addition waits
// for the one before: its bound is the latency of an addition, not the memory, and the goal leaves it out.
#include <algorithm>
#include <cstring>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Ratios;
using bench::Runner;
using bench::Times;

// 24 KiB, 384 KiB, 6 MiB and 384 MiB in three arrays: first-level cache, second, third, memory.
const std::vector<std::int64_t> kSizes = {1000, 16384, 262144, 16777216};
constexpr std::int64_t kLarge = 16777216;
const std::vector<std::int64_t> kSortSizes = {100, 1000, 10000, 100000, 1000000};
constexpr std::int64_t kSortPool = 100000;

struct Operation {
    const char* name;
    int bytes;  // an element
    QvStatus (*call)(double* x, const double* y, std::int64_t n, double* out);
    bool carried;  // each element waits for the one before
};

const Operation kOperations[] = {
    {"add", 24, [](auto x, auto y, auto n, auto out) { return ZemFunc3(x, y, n, out); }, false},
    {"multiply", 24, [](auto x, auto y, auto n, auto out) { return ZemFunc126(x, y, n, out); }, false},
    {"scale", 24,
     [](auto x, auto, auto n, auto out) {
         double offset, scale;
         return ZemFunc153(x, n, out, &offset, &scale);
     },
     false},
    {"linear_eval", 16, [](auto x, auto, auto n, auto out) { return ZemFunc115(x, n, 1.5, 0.25, out); }, false},
    {"abs", 16, [](auto x, auto, auto n, auto out) { return ZemFunc1(x, n, out); }, false},
    {"sum", 8, [](auto x, auto, auto n, auto out) { return ZemFunc170(x, n, out); }, true},
    {"maxmin", 8,
     [](auto x, auto, auto n, auto out) {
         std::int64_t high, low;
         return ZemFunc120(x, n, out, &high, out + 1, &low);
     },
     false},
};

// A copy by the widest plain loads and stores that this unit was compiled for; the barrier keeps it from becoming a
// call of memcpy.
void LoopCopy(const double* x, std::int64_t n, double* out) {
    typedef double Wide __attribute__((vector_size(32), aligned(32)));
    std::int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        const Wide a = *reinterpret_cast<const Wide*>(x + i), b = *reinterpret_cast<const Wide*>(x + i + 4);
        *reinterpret_cast<Wide*>(out + i) = a;
        *reinterpret_cast<Wide*>(out + i + 4) = b;
        asm volatile("");
    }
    for (; i < n; ++i) out[i] = x[i];
}

void ElementWise(Runner& runner) {
    std::FILE* text = runner.Text();
    Ratios large;
    for (const std::int64_t n : runner.Sizes(kSizes)) {
        Buffer<double> in(n), other(n), result(n);
        double *x = in, *y = other, *out = result;
        const std::vector<double> noise = bench::Noise(2 * n);
        std::copy_n(noise.data(), n, x);
        std::copy_n(noise.data() + n, n, y);

        runner.Add("memcpy", [=] { std::memcpy(out, x, static_cast<std::size_t>(n) * sizeof(double)); });
        runner.Add("loop", [=] { LoopCopy(x, n, out); });
        runner.Add("quorvan", [=] { benchmark::DoNotOptimize(ZemFunc34(x, n, out)); });
        Times copy = runner.Run("array_copy", n);
        const auto rate = [n](int bytes, double seconds) { return static_cast<double>(n * bytes) / seconds * 1e-9; };
        const double memcpyRate = rate(16, copy["memcpy"]), loopRate = rate(16, copy["loop"]);
        const double copyRate = std::max(memcpyRate, loopRate);
        std::fprintf(text, "\n%lld elements: memcpy %.1f GB/s, copy loop %.1f GB/s, ArrCopy %.1f GB/s\n",
                     static_cast<long long>(n), memcpyRate, loopRate, rate(16, copy["quorvan"]));
        std::fprintf(text, "  operation            us     GB/s   of a copy\n");
        for (const Operation& operation : kOperations) {
            bench::Succeeds(operation.call(x, y, n, out), operation.name);
            const auto call = operation.call;
            runner.Add("quorvan", [=] { benchmark::DoNotOptimize(call(x, y, n, out)); });
            const double seconds = runner.Run(std::string("array_") + operation.name, n)["quorvan"];
            const double reached = rate(operation.bytes, seconds);
            std::fprintf(text, "  %-11s %11.3f %8.1f %11.2f\n", operation.name, seconds * 1e6, reached,
                         reached / copyRate);
            std::fflush(text);
            if (n >= kLarge && !operation.carried) large.Add(reached / copyRate);
        }
    }
    std::fprintf(text, "\n");
    if (large.Count() > 0) {
        bench::AtLeast(text, "large arrays, share of the copy bandwidth: geometric mean", large.Mean(), 0.9);
        bench::AtLeast(text, "large arrays, share of the copy bandwidth: least", large.Least(), 0.9);
    }
}

void Sorting(Runner& runner) {
    std::FILE* text = runner.Text();
    Ratios ratios;
    std::fprintf(text, "\n   sorted   quorvan us   std::sort us   ratio\n");
    for (const std::int64_t n : runner.Sizes(kSortSizes)) {
        // Short arrays take turns, or the branch predictor learns the one order by heart.
        const std::int64_t turns = std::max<std::int64_t>(1, kSortPool / n);
        Buffer<double> in(n * turns), result(n);
        double *pool = in, *out = result;
        std::copy_n(bench::Noise(n * turns).data(), n * turns, pool);
        bench::Succeeds(ZemFunc160(pool, n, 0, out), "sort");
        if (!std::is_sorted(out, out + n)) bench::Refuse("sort: not ascending");
        runner.Add("quorvan", [=, turn = std::int64_t{0}]() mutable {
            turn = (turn + 1) % turns;
            benchmark::DoNotOptimize(ZemFunc160(pool + turn * n, n, 0, out));
        });
        runner.Add("std_sort", [=, turn = std::int64_t{0}]() mutable {
            turn = (turn + 1) % turns;
            std::copy_n(pool + turn * n, n, out);
            std::sort(out, out + n);
        });
        Times t = runner.Run("sort", n);
        ratios.Add(t["std_sort"] / t["quorvan"]);
        std::fprintf(text, "%9lld %12.3f %14.3f %7.2f\n", static_cast<long long>(n), t["quorvan"] * 1e6,
                     t["std_sort"] * 1e6, t["std_sort"] / t["quorvan"]);
        std::fflush(text);
    }
    std::fprintf(text, "  %-62s %6.2f\n", "sort over std::sort: geometric mean", ratios.Mean());
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    ElementWise(runner);
    Sorting(runner);
    return runner.Finish();
}
