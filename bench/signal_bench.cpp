// Convolution by FFT and windows. Their rivals are SciPy's: bench/run.py puts them beside these times.
//
// A window works in place; each call is given fresh samples by a copy, or the data would shrink to denormals. The copy
// is part of the time, here and on the side of SciPy.
#include <cmath>
#include <cstring>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

struct Lengths {
    std::int64_t n, m;
};

const std::vector<Lengths> kConvolutions = {{100, 100},     {1000, 1000},   {10000, 100},
                                            {10000, 10000}, {100000, 1000}, {100000, 100000}};
const std::vector<std::int64_t> kWindowSizes = {256, 4096, 65536};

struct Window {
    const char* name;
    QvStatus (*apply)(double* x, std::int64_t n);
};

// Parameters as bench/rivals.py gives them to SciPy.
const Window kWindows[] = {
    {"hanning", [](auto x, auto n) { return ZemFunc89(x, n); }},
    {"hamming", [](auto x, auto n) { return ZemFunc88(x, n); }},
    {"blackman", [](auto x, auto n) { return ZemFunc14(x, n); }},
    {"flat_top", [](auto x, auto n) { return ZemFunc80(x, n); }},
    {"triangle", [](auto x, auto n) { return ZemFunc180(x, n); }},
    {"bohman", [](auto x, auto n) { return ZemFunc344(x, n); }},
    {"parzen", [](auto x, auto n) { return ZemFunc345(x, n); }},
    {"kaiser", [](auto x, auto n) { return ZemFunc113(x, n, 8.0); }},
    {"gaussian", [](auto x, auto n) { return ZemFunc280(x, n, 0.2); }},
    {"chebyshev", [](auto x, auto n) { return ZemFunc279(x, n, 80.0); }},
};

// One output against its sum of products: a wrong result must not be timed.
void CheckConvolution(const double* x, Lengths l, const double* y, const double* out) {
    const std::int64_t at = (l.n + l.m - 1) / 2;
    double sum = 0.0, size = 0.0;
    for (std::int64_t i = at < l.m ? 0 : at - l.m + 1; i < l.n && i <= at; ++i) {
        sum += x[i] * y[at - i];
        size += std::fabs(x[i] * y[at - i]);
    }
    if (!(std::fabs(out[at] - sum) < 1e-12 * size)) bench::Refuse("convolution: wrong value");
}

void Convolutions(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "\n   convolution            us\n");
    for (const Lengths l : kConvolutions) {
        Buffer<double> first(l.n), second(l.m), result(l.n + l.m - 1);
        double *x = first, *y = second, *out = result;
        std::memcpy(x, bench::Noise(l.n).data(), static_cast<std::size_t>(l.n) * sizeof(double));
        std::memcpy(y, bench::Noise(l.m, 2).data(), static_cast<std::size_t>(l.m) * sizeof(double));
        bench::Succeeds(ZemFunc32(x, l.n, y, l.m, out), "convolution");
        CheckConvolution(x, l, y, out);
        const std::string size = std::to_string(l.n) + "x" + std::to_string(l.m);
        runner.Add("quorvan", [=] { benchmark::DoNotOptimize(ZemFunc32(x, l.n, y, l.m, out)); });
        std::fprintf(text, "%14s %13.3f\n", size.c_str(), runner.Run("convolve", size)["quorvan"] * 1e6);
        std::fflush(text);
    }
}

void Windows(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "\n  window          size            us\n");
    for (const Window& window : kWindows) {
        for (const std::int64_t n : runner.Sizes(kWindowSizes)) {
            Buffer<double> samples(n), data(n);
            double *x = samples, *out = data;
            std::memcpy(x, bench::Noise(n).data(), static_cast<std::size_t>(n) * sizeof(double));
            bench::Succeeds(window.apply(out, n), window.name);
            const auto apply = window.apply;
            runner.Add("quorvan", [=] {
                std::memcpy(out, x, static_cast<std::size_t>(n) * sizeof(double));
                benchmark::DoNotOptimize(apply(out, n));
            });
            const double seconds = runner.Run(std::string("window_") + window.name, n)["quorvan"];
            std::fprintf(text, "  %-11s %8lld %13.3f\n", window.name, static_cast<long long>(n), seconds * 1e6);
            std::fflush(text);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    Convolutions(runner);
    Windows(runner);
    return runner.Finish();
}
