// Complex and real FFT beside FFTW: one thread, the same buffers, interleaved, out of place.
//
//     fft_bench                       the usual sizes, and primes
//     fft_bench --sizes 1024,4096     these sizes only
//
// Contenders: held (a plan kept over all calls), fresh (a null plan: tables are built and freed in each call),
// estimate and measure (FFTW's planning rigours, plan kept), planned (FFTW: plan by estimate, execute, destroy, in each
// call). Each ratio is time of FFTW over time of Quorvan: above 1, Quorvan is faster. The real transform gives all n
// bins, FFTW's r2c only n / 2 + 1.
#include <cmath>
#include <cstring>
#include <fftw3.h>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Ratios;
using bench::Runner;
using bench::Times;

const std::vector<std::int64_t> kSizes = {16,   60,   64,   100,   128,   256,   360,    512,    1000,   1009,
                                          1024, 4096, 4099, 10007, 16384, 65536, 100000, 262144, 1048576};
const std::vector<std::int64_t> kPrimes = {53, 59, 61, 67, 71, 97, 101, 127, 197, 251, 499, 1009, 2039, 4099, 10007};

fftw_complex* AsFftw(QvComplex* p) { return reinterpret_cast<fftw_complex*>(p); }

// What differs between the complex and the real transform. Bins: how many of them FFTW gives.
struct ComplexFft {
    using Input = QvComplex;
    static constexpr const char* kGroup = "complex_fft";
    static constexpr int kDoubles = 2;
    static std::int64_t Bins(std::int64_t n) { return n; }
    static QvStatus Transform(const Input* x, std::int64_t n, QvFftPlan* plan, QvComplex* out) {
        return ZemFunc263(x, n, n, plan, 0, out);
    }
    static fftw_plan Plan(Input* x, std::int64_t n, QvComplex* out, unsigned rigour) {
        return fftw_plan_dft_1d(static_cast<int>(n), AsFftw(x), AsFftw(out), FFTW_FORWARD, rigour);
    }
};

struct RealFft {
    using Input = double;
    static constexpr const char* kGroup = "real_fft";
    static constexpr int kDoubles = 1;
    static std::int64_t Bins(std::int64_t n) { return n / 2 + 1; }
    static QvStatus Transform(const Input* x, std::int64_t n, QvFftPlan* plan, QvComplex* out) {
        return ZemFunc262(x, n, n, plan, 0, out);
    }
    static fftw_plan Plan(Input* x, std::int64_t n, QvComplex* out, unsigned rigour) {
        return fftw_plan_dft_r2c_1d(static_cast<int>(n), x, AsFftw(out), rigour);
    }
};

// Relative distance in the 2-norm.
double Distance(const QvComplex* a, const QvComplex* b, std::int64_t n) {
    double difference = 0.0, norm = 0.0;
    for (std::int64_t k = 0; k < n; ++k) {
        const double re = a[k].re - b[k].re, im = a[k].im - b[k].im;
        difference += re * re + im * im;
        norm += b[k].re * b[k].re + b[k].im * b[k].im;
    }
    return std::sqrt(difference / norm);
}

template <typename Kind>
Times Measure(Runner& runner, const std::string& group, std::int64_t n, bool plansPerCall) {
    using Input = typename Kind::Input;
    Buffer<Input> in(n);
    Buffer<QvComplex> out(n), expected(n);
    // The measuring planner writes over its arrays and leaves what it learnt where the estimating one would find it.
    fftw_forget_wisdom();
    const fftw_plan estimate = Kind::Plan(in, n, out, FFTW_ESTIMATE);
    const fftw_plan measure = Kind::Plan(in, n, out, FFTW_MEASURE);
    fftw_forget_wisdom();
    QvFftPlan* held = ZemFunc260(n);
    if (estimate == nullptr || measure == nullptr || held == nullptr) bench::Refuse("no plan");
    const std::vector<double> noise = bench::Noise(n * Kind::kDoubles);
    std::memcpy(in.get(), noise.data(), noise.size() * sizeof(double));

    // A wrong transform must not be timed. Both round at about 1e-16 log2 n; a wrong bin shows at 1e-3 or more.
    fftw_execute(estimate);
    std::memcpy(expected.get(), out.get(), static_cast<std::size_t>(Kind::Bins(n)) * sizeof(QvComplex));
    for (QvFftPlan* plan : {held, static_cast<QvFftPlan*>(nullptr)}) {
        const QvStatus status = Kind::Transform(in, n, plan, out);
        const double distance = Distance(out, expected, Kind::Bins(n));
        if (status != 0 || !(distance < 1e-13)) {
            bench::Refuse(group + " of " + std::to_string(n) + ": status " + std::to_string(status) +
                          ", distance from FFTW " + std::to_string(distance));
        }
    }

    Input* x = in;
    QvComplex* y = out;
    runner.Add("held", [=] { benchmark::DoNotOptimize(Kind::Transform(x, n, held, y)); });
    runner.Add("estimate", [=] { fftw_execute(estimate); });
    runner.Add("measure", [=] { fftw_execute(measure); });
    Times times = runner.Run(group, n);
    // While a plan is held a null plan finds it: fresh is timed when it is gone.
    ZemFunc261(held);
    if (plansPerCall) {
        runner.Add("fresh", [=] { benchmark::DoNotOptimize(Kind::Transform(x, n, nullptr, y)); });
        runner.Add("planned", [=] {
            const fftw_plan plan = Kind::Plan(x, n, y, FFTW_ESTIMATE);
            fftw_execute(plan);
            fftw_destroy_plan(plan);
        });
        times.merge(runner.Run(group, n));
    }
    fftw_destroy_plan(estimate);
    fftw_destroy_plan(measure);
    return times;
}

// Time of the real over time of the complex transform, both by one plan into one array, in one run: what the machine
// does besides meets both alike.
double RealOverComplex(Runner& runner, std::int64_t n) {
    Buffer<QvComplex> in(n), out(n);
    QvFftPlan* plan = ZemFunc260(n);
    if (plan == nullptr) bench::Refuse("no plan");
    const std::vector<double> noise = bench::Noise(2 * n);
    std::memcpy(in.get(), noise.data(), noise.size() * sizeof(double));
    const QvComplex* z = in;
    const double* x = &in.get()->re;
    QvComplex* y = out;
    runner.Add("complex", [=] { benchmark::DoNotOptimize(ComplexFft::Transform(z, n, plan, y)); });
    runner.Add("real", [=] { benchmark::DoNotOptimize(RealFft::Transform(x, n, plan, y)); });
    Times times = runner.Run("real_beside_complex", n);
    ZemFunc261(plan);
    return times["real"] / times["complex"];
}

// One row: microseconds of a held plan, and the ratios.
void PrintRow(std::FILE* text, Times& t) {
    std::fprintf(text, " %11.3f %9.2f %8.2f %11.3f %8.2f", t["held"] * 1e6, t["estimate"] / t["held"],
                 t["measure"] / t["held"], t["fresh"] * 1e6, t["planned"] / t["fresh"]);
}

void UsualSizes(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "          | complex                                            | real\n");
    std::fprintf(text,
                 "     size |     held us  estimate  measure    fresh us  planned |     held us  estimate  measure"
                 "    fresh us  planned | real/complex\n");
    Ratios complexEstimate, complexMeasure, realEstimate, realMeasure, realOverComplex;
    for (const std::int64_t n : runner.Sizes(kSizes)) {
        Times c = Measure<ComplexFft>(runner, ComplexFft::kGroup, n, true);
        Times r = Measure<RealFft>(runner, RealFft::kGroup, n, true);
        complexEstimate.Add(c["estimate"] / c["held"]);
        complexMeasure.Add(c["measure"] / c["held"]);
        realEstimate.Add(r["estimate"] / r["held"]);
        realMeasure.Add(r["measure"] / r["held"]);
        const double share = RealOverComplex(runner, n);
        if (n % 2 == 0) realOverComplex.Add(share);
        std::fprintf(text, "%9lld |", static_cast<long long>(n));
        PrintRow(text, c);
        std::fprintf(text, " |");
        PrintRow(text, r);
        std::fprintf(text, " | %12.2f\n", share);
        std::fflush(text);
    }
    std::fprintf(text, "\n");
    bench::AtLeast(text, "complex, held, over FFTW ESTIMATE: geometric mean", complexEstimate.Mean(), 1.0);
    bench::AtLeast(text, "complex, held, over FFTW ESTIMATE: least", complexEstimate.Least(), 0.6);
    if (realOverComplex.Count() > 0) {
        bench::AtMost(text, "real over complex time, even sizes: geometric mean", realOverComplex.Mean(), 0.65);
        bench::AtMost(text, "real over complex time, even sizes: most", realOverComplex.Most(), 0.65);
    }
    std::fprintf(text, "  %-62s %6.2f\n", "complex, held, over FFTW MEASURE: geometric mean", complexMeasure.Mean());
    std::fprintf(text, "  %-62s %6.2f\n", "real, held, over FFTW ESTIMATE: geometric mean", realEstimate.Mean());
    std::fprintf(text, "  %-62s %6.2f\n\n", "real, held, over FFTW MEASURE: geometric mean", realMeasure.Mean());
}

void Primes(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "prime size | complex held us  estimate  measure\n");
    Ratios measure;
    for (const std::int64_t n : kPrimes) {
        Times t = Measure<ComplexFft>(runner, "prime_fft", n, false);
        measure.Add(t["measure"] / t["held"]);
        std::fprintf(text, "%10lld | %15.3f %9.2f %8.2f\n", static_cast<long long>(n), t["held"] * 1e6,
                     t["estimate"] / t["held"], t["measure"] / t["held"]);
        std::fflush(text);
    }
    std::fprintf(text, "\n");
    bench::AtLeast(text, "primes from 53 up, held, over FFTW MEASURE: geometric mean", measure.Mean(), 2.0);
    bench::AtLeast(text, "primes from 53 up, held, over FFTW MEASURE: least", measure.Least(), 2.0);
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    benchmark::AddCustomContext("fftw", fftw_version);
    UsualSizes(runner);
    if (!runner.SizesGiven()) Primes(runner);
    return runner.Finish();
}
