// The cascade of second-order stages, for real and complex samples. Its rival is SciPy's sosfilt: bench/run.py puts it
// beside these times. Sizes are order x samples; the filter is a Butterworth lowpass as bench/rivals.py gives it to
// SciPy.
#include <cmath>
#include <cstring>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

constexpr int kOrders[] = {2, 4, 8, 12, 16, 20};
const std::vector<std::int64_t> kBlocks = {64, 1024, 16384, 1048576};

// The impulse response of a lowpass sums up to its gain at frequency 0, which is 1: a wrong result must not be timed.
void CheckCascade(QvIirFilter* filter) {
    constexpr std::int64_t kLength = 4000;
    std::vector<double> x(kLength);
    x[0] = 1;
    bench::Succeeds(ZemFunc91(x.data(), kLength, filter, x.data()), "cascade");
    double sum = 0;
    for (const double v : x) sum += v;
    if (!(std::fabs(sum - 1) < 1e-9)) bench::Refuse("cascade: wrong value");
    ZemFunc235(filter);
}

void Cascades(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "\n   order x samples     real, ns   complex, ns   a sample\n");
    for (const int order : kOrders) {
        QvIirFilter* const filter = ZemFunc233(0, order);
        QvIirStateComplex* const state = ZemFunc469(0, order);
        if (!filter || !state) bench::Refuse("no memory");
        bench::Succeeds(ZemFunc18(2.0, 0.3, 0.0, filter), "design");
        CheckCascade(filter);
        for (const std::int64_t n : runner.Sizes(kBlocks)) {
            Buffer<double> samples(2 * n), result(2 * n);
            double *x = samples, *y = result;
            std::memcpy(x, bench::Noise(2 * n).data(), static_cast<std::size_t>(2 * n) * sizeof(double));
            const auto* records = reinterpret_cast<const QvComplex*>(x);
            auto* const out = reinterpret_cast<QvComplex*>(y);
            bench::Succeeds(ZemFunc91(x, n, filter, y), "cascade");
            bench::Succeeds(ZemFunc466(records, n, filter, state, out), "complex cascade");
            const std::string size = std::to_string(order) + "x" + std::to_string(n);
            runner.Add("quorvan", [=] { benchmark::DoNotOptimize(ZemFunc91(x, n, filter, y)); });
            const double real = runner.Run("cascade_real", size)["quorvan"];
            runner.Add("quorvan", [=] { benchmark::DoNotOptimize(ZemFunc466(records, n, filter, state, out)); });
            const double complex = runner.Run("cascade_complex", size)["quorvan"];
            const double scale = 1e9 / static_cast<double>(n);
            std::fprintf(text, "%18s %12.2f %13.2f\n", size.c_str(), real * scale, complex * scale);
            std::fflush(text);
        }
        ZemFunc234(filter);
        ZemFunc470(state);
    }
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    Cascades(runner);
    return runner.Finish();
}
