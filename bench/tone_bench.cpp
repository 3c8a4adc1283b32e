// Tone extraction: samples per second through one call, for one tone and for several. No library in common use extracts
// tones, so the rival is what everyone starts from: the real FFT of the same record alone, here from Quorvan too.
#include <cmath>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

const std::vector<std::int64_t> kSizes = {256, 1024, 4096, 16384, 65536, 1048576};
constexpr std::int32_t kTones = 5;
constexpr double kTurn = 6.283185307179586;

// Tones of falling amplitude between bins, in a little noise.
void Fill(double* x, std::int64_t n, std::int32_t tones) {
    const std::vector<double> noise = bench::Noise(n);
    for (std::int64_t i = 0; i < n; ++i) {
        x[i] = 1e-3 * noise[static_cast<std::size_t>(i)];
        for (std::int32_t k = 0; k < tones; ++k)
            x[i] += std::sin(kTurn * (0.0613 + 0.0877 * k) * static_cast<double>(i) + k) / (k + 1);
    }
}

void Print(Runner& runner, const char* group, std::int64_t n) {
    const bench::Times times = runner.Run(group, n);
    std::FILE* text = runner.Text();
    std::fprintf(text, "  %-16s %8lld", group, static_cast<long long>(n));
    for (const char* contender : {"quorvan", "fft"})
        std::fprintf(text, " %12.1f", static_cast<double>(n) * 1e-6 / times.at(contender));
    std::fprintf(text, " %9.2f\n", times.at("quorvan") / times.at("fft"));
    std::fflush(text);
}

void AddFft(Runner& runner, const double* x, std::int64_t n, QvComplex* bins) {
    runner.Add("fft", [=] { benchmark::DoNotOptimize(ZemFunc262(x, n, n, nullptr, 0, bins)); });
}

void Single(Runner& runner, std::int64_t n) {
    Buffer<double> record(n);
    Buffer<QvComplex> spectrum(n);
    double* x = record;
    Fill(x, n, 1);
    double freq, amp, phase;
    bench::Succeeds(ZemFunc377(x, n, 1.0, nullptr, &freq, &amp, &phase), "single tone");
    if (!(std::fabs(freq - 0.0613) < 0.05 / static_cast<double>(n))) bench::Refuse("single tone: wrong frequency");
    runner.Add("quorvan", [=] {
        double f, a, p;
        benchmark::DoNotOptimize(ZemFunc377(x, n, 1.0, nullptr, &f, &a, &p));
    });
    AddFft(runner, x, n, spectrum);
    Print(runner, "single_tone", n);
}

void Multi(Runner& runner, std::int64_t n) {
    Buffer<double> record(n);
    Buffer<QvComplex> spectrum(n);
    double* x = record;
    Fill(x, n, kTones);
    std::int32_t count = 0;
    double freq[kTones], amp[kTones], phase[kTones];
    bench::Succeeds(ZemFunc379(x, n, 1.0, 0, 0.05, kTones, &count, freq, amp, phase), "several tones");
    if (count != kTones) bench::Refuse("several tones: wrong number");
    for (std::int32_t k = 0; k < kTones; ++k)
        if (!(std::fabs(freq[k] - (0.0613 + 0.0877 * k)) < 0.1 / static_cast<double>(n)))
            bench::Refuse("several tones: wrong frequency");
    runner.Add("quorvan", [=] {
        std::int32_t c;
        double f[kTones], a[kTones], p[kTones];
        benchmark::DoNotOptimize(ZemFunc379(x, n, 1.0, 0, 0.05, kTones, &c, f, a, p));
    });
    AddFft(runner, x, n, spectrum);
    Print(runner, "five_tones", n);
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    std::fprintf(runner.Text(), "\n  millions of samples per second, and time over that of the real FFT alone\n");
    std::fprintf(runner.Text(), "  %-16s %8s %12s %12s %9s\n", "case", "n", "tones", "fft", "ratio");
    for (const std::int64_t n : runner.Sizes(kSizes)) Single(runner, n);
    for (const std::int64_t n : runner.Sizes(kSizes)) Multi(runner, n);
    return runner.Finish();
}
