// Peak detection, level runs and pulse measurements, in samples a second. The rival of the peaks is SciPy's find_peaks:
// bench/run.py puts it beside these times.
#include <algorithm>
#include <cmath>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

const std::vector<std::int64_t> kSizes = {1000, 100000, 1000000};
// 3 has its own fit matrix, and finds what find_peaks finds; wider windows smooth.
const std::int64_t kWidths[] = {3, 9, 31};
constexpr std::int64_t kBins = 256;

void Report(Runner& runner, const std::string& group, std::int64_t n) {
    const double seconds = runner.Run(group, n)["quorvan"];
    std::fprintf(runner.Text(), "  %-18s %9lld %12.3f %14.1f\n", group.c_str(), static_cast<long long>(n),
                 seconds * 1e6, static_cast<double>(n) / seconds * 1e-6);
    std::fflush(runner.Text());
}

std::int64_t Peaks(const double* x, std::int64_t n, std::int64_t width) {
    std::int64_t count = 0;
    double* arrays[3];
    bench::Succeeds(ZemFunc194(x, n, 0, width, 0, 1, 1, &count, arrays, arrays + 1, arrays + 2), "peaks");
    for (double* array : arrays) ZemFunc234(array);
    return count;
}

void Detectors(Runner& runner, std::int64_t n) {
    Buffer<double> noise(n);
    double* x = noise;
    std::copy_n(bench::Noise(n).data(), n, x);
    for (const std::int64_t width : kWidths) {
        if (Peaks(x, n, width) < 1) bench::Refuse("peaks: none found");
        runner.Add("quorvan", [=] { benchmark::DoNotOptimize(Peaks(x, n, width)); });
        Report(runner, "peaks_" + std::to_string(width), n);
    }
    Buffer<std::int64_t> indices(n / 2 + 1);
    std::int64_t* starts = indices;
    runner.Add("quorvan", [=] {
        std::int64_t count;
        benchmark::DoNotOptimize(ZemFunc237(x, n, 0, 2, starts, &count));
    });
    Report(runner, "level_runs", n);
}

// A trapezoidal wave of 100 samples a period with noise; what is looked for lies near its end.
void Pulses(Runner& runner, std::int64_t n) {
    Buffer<double> wave(n);
    double* x = wave;
    const std::vector<double> noise = bench::Noise(n);
    for (std::int64_t i = 0; i < n; ++i) {
        const double level = (std::fabs(static_cast<double>(i % 100) - 70) - 20) / 10;
        x[i] = std::clamp(level, 0.0, 1.0) + 0.01 * noise[static_cast<std::size_t>(i)];
    }
    const std::int64_t cycle = std::max<std::int64_t>(n / 100 - 2, 1);

    for (const auto& [method, name] : {std::pair{0u, "levels_histogram"}, std::pair{1u, "levels_peak"}}) {
        runner.Add("quorvan", [=, method = method] {
            double high, low, amplitude;
            bench::Succeeds(ZemFunc363(x, n, method, kBins, &high, &low, &amplitude), "levels");
        });
        Report(runner, name, n);
    }
    runner.Add("quorvan", [=] {
        double high = 90, mid = 50, low = 10, out[7];
        bench::Succeeds(ZemFunc364(x, n, -1, cycle, &high, &mid, &low, 1, 0, kBins, out, out + 1, out + 2, out + 3,
                                   out + 4, out + 5, out + 6),
                        "timing");
    });
    Report(runner, "cycle_timing", n);
    runner.Add("quorvan", [=] {
        double high = 90, mid = 50, low = 10, out[11];
        bench::Succeeds(ZemFunc366(x, n, 1, cycle, &high, &mid, &low, 1, 0, kBins, out, out + 1, out + 2, out + 3,
                                   out + 4, out + 5, out + 6, out + 7, out + 8, out + 9, out + 10),
                        "transition");
    });
    Report(runner, "transition", n);
    runner.Add("quorvan", [=] {
        double out[9];
        std::int64_t times[4];
        benchmark::DoNotOptimize(ZemFunc142(x, n, out, out + 1, out + 2, out + 3, out + 4, out + 5, out + 6, out + 7,
                                            times, times + 1, times + 2, times + 3, out + 8));
    });
    Report(runner, "pulse_parameters", n);
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    std::fprintf(runner.Text(), "\n  measurement         samples           us   10^6 samples/s\n");
    for (const std::int64_t n : runner.Sizes(kSizes)) {
        Detectors(runner, n);
        Pulses(runner, n);
    }
    return runner.Finish();
}
