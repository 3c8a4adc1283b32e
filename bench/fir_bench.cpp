// FIR filtering, running medians and the exchange design. Their rivals are SciPy's: bench/run.py puts lfilter,
// fftconvolve, medfilt and remez beside these times.
#include <cmath>
#include <cstring>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

// As bench/rivals.py has them.
const struct {
    std::int64_t n;
    std::int32_t taps;
} kFilters[] = {{1000, 31}, {10000, 101}, {100000, 31}, {100000, 301}, {1000000, 101}};
const struct {
    std::int64_t n;
    std::int32_t rank;
} kMedians[] = {{1000, 2}, {100000, 2}, {100000, 10}, {100000, 50}};
constexpr std::int32_t kExchanges[] = {31, 101, 201, 401};

void Report(Runner& runner, const char* group, const std::string& size, std::int64_t samples) {
    const double seconds = runner.Run(group, size)["quorvan"];
    std::fprintf(runner.Text(), "  %-12s %14s %12.3f", group, size.c_str(), seconds * 1e6);
    if (samples > 0) std::fprintf(runner.Text(), " %14.1f", static_cast<double>(samples) / seconds * 1e-6);
    std::fprintf(runner.Text(), "\n");
    std::fflush(runner.Text());
}

std::string Size(std::int64_t n, std::int64_t width) { return std::to_string(n) + "x" + std::to_string(width); }

// An output in the middle against its sum of products: a wrong result must not be timed.
void Check(const double* x, const double* h, std::int32_t taps, std::int64_t at, double value) {
    double sum = 0.0;
    for (std::int32_t k = 0; k < taps; ++k) sum += h[k] * x[at - k];
    if (!(std::fabs(value - sum) < 1e-12)) bench::Refuse("filter: wrong value");
}

void Filters(Runner& runner) {
    for (const auto& [n, taps] : kFilters) {
        Buffer<double> samples(n), coefficients(taps), past(taps - 1), outputs(n + taps - 1);
        double *x = samples, *h = coefficients, *state = past, *y = outputs;
        const auto length = n;
        const auto count = taps;
        std::memcpy(x, bench::Noise(n).data(), static_cast<std::size_t>(n) * sizeof(double));
        bench::Succeeds(ZemFunc335(0, 1.0, 0.1, 0.0, taps, QV_WINDOW_HAMMING, 0.0, h), "window design");
        const auto direct = [=] {
            std::memset(state, 0, static_cast<std::size_t>(count - 1) * sizeof(double));
            return ZemFunc352(x, length, h, state, count, y);
        };
        const auto window = [=] { return ZemFunc481(x, length, count, 1.0, 0.1, QV_WINDOW_HAMMING, 0.0, y); };
        bench::Succeeds(direct(), "direct filter");
        Check(x, h, taps, n / 2, y[n / 2]);
        runner.Add("quorvan", [=] { benchmark::DoNotOptimize(direct()); });
        Report(runner, "fir_direct", Size(n, taps), n);
        bench::Succeeds(window(), "window filter");
        Check(x, h, taps, n / 2, y[n / 2]);
        runner.Add("quorvan", [=] { benchmark::DoNotOptimize(window()); });
        Report(runner, "fir_window", Size(n, taps), n);
    }
}

void Medians(Runner& runner) {
    for (const auto& [n, rank] : kMedians) {
        Buffer<double> samples(n), outputs(n);
        double *x = samples, *y = outputs;
        std::memcpy(x, bench::Noise(n).data(), static_cast<std::size_t>(n) * sizeof(double));
        const auto length = n;
        const auto side = rank;
        bench::Succeeds(ZemFunc407(x, n, rank, -1, y), "median");
        runner.Add("quorvan", [=] { benchmark::DoNotOptimize(ZemFunc407(x, length, side, -1, y)); });
        Report(runner, "median", Size(n, 2 * rank + 1), n);
    }
}

void Exchanges(Runner& runner) {
    for (const std::int32_t taps : kExchanges) {
        Buffer<double> coefficients(taps);
        double* const h = coefficients;
        double delta = 0.0;
        const double stop = 0.2 + 4.0 / taps;
        bench::Succeeds(ZemFunc69(1.0, 0.2, stop, taps, h, &delta), "exchange");
        runner.Add("quorvan", [=] {
            double error;
            benchmark::DoNotOptimize(ZemFunc69(1.0, 0.2, stop, taps, h, &error));
        });
        Report(runner, "exchange", std::to_string(taps), 0);
    }
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    std::fprintf(runner.Text(), "\n  group                  size           us      Msamples/s\n");
    Filters(runner);
    Medians(runner);
    Exchanges(runner);
    return runner.Finish();
}
