// Random generators, sequences and shuffles, each beside the same recurrence in plain C: one draw after the other, as
// the formulas stand. NumPy's generators come from the Python side.
//
// Every call restarts its stream from a seed, so that all repetitions draw the same numbers.
#include <cmath>
#include <cstring>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

const std::vector<std::int64_t> kSizes = {1000, 100000};
constexpr std::int32_t kSeed = 7;
constexpr double kStep = 0.6180339887498949;

struct Plain {
    std::int32_t x, y, z;
};

Plain PlainSeed(std::int32_t seed) {
    const std::int32_t y = (seed * 8191) & 0x3FFF;
    return {seed, y, (y * 8191) & 0x3FFF};
}

double PlainUniform(Plain* s) {
    s->x = 171 * s->x % 30269;
    s->y = 172 * s->y % 30307;
    s->z = 170 * s->z % 30323;
    const double v = s->y * 3.2995677566238825e-5 + s->x * 3.3037100664045725e-5 + s->z * 3.297826732183491e-5;
    return v - std::floor(v);
}

void PlainUniforms(std::int64_t n, double* out) {
    Plain s = PlainSeed(kSeed);
    for (std::int64_t i = 0; i < n; ++i) out[i] = PlainUniform(&s);
}

void PlainGaussian(std::int64_t n, double* out) {
    Plain s = PlainSeed(kSeed);
    for (std::int64_t i = 0; i < n; ++i) {
        double u1, u2, q;
        do {
            u1 = 2 * PlainUniform(&s) - 1;
            u2 = 2 * PlainUniform(&s) - 1;
            q = u2 * u2 + u1 * u1;
        } while (q >= 1 || q == 0);
        const double f = std::sqrt(-2 * std::log(q) / q);
        out[i] = f * u2;
        if (++i < n) out[i] = f * u1;
    }
}

void PlainGamma(std::int64_t n, double* out) {
    Plain s = PlainSeed(kSeed);
    for (std::int64_t i = 0; i < n; ++i) {
        double product = 1;
        for (int k = 0; k < 3; ++k) product *= PlainUniform(&s);
        out[i] = -std::log(product);
    }
}

void PlainPoisson(std::int64_t n, double* out) {
    Plain s = PlainSeed(kSeed);
    const double limit = std::exp(-4.0);
    for (std::int64_t i = 0; i < n; ++i) {
        double k = -1, t = 1;
        do {
            k += 1;
            t *= PlainUniform(&s);
        } while (t > limit);
        out[i] = k;
    }
}

void PlainHalton(std::int64_t n, double* out) {
    for (std::int32_t i = 0; i < n; ++i) {
        double sum = 0, w = 1.0 / 3;
        for (std::int32_t m = i; m != 0; m /= 3, w *= 1.0 / 3) sum += m % 3 * w;
        out[i] = sum;
    }
}

void PlainWeyl(std::int64_t n, double* out) {
    double v = 0;
    for (std::int64_t i = 0; i < n; ++i) {
        v -= std::floor(v);
        out[i] = v;
        v += kStep;
    }
}

void PlainShuffle(std::int64_t n, double* data) {
    Plain s = PlainSeed(kSeed);
    for (std::int64_t i = n - 1; i >= 1; --i) std::swap(data[i], data[std::int64_t(PlainUniform(&s) * double(i + 1))]);
}

struct Generator {
    const char* name;
    QvStatus (*quorvan)(std::int64_t n, double* out);
    void (*plain)(std::int64_t n, double* out);  // null: timed without a rival here
};

// Parameters as bench/rivals.py gives them to NumPy.
const Generator kGenerators[] = {
    {"uniform", [](auto n, double* out) { return ZemFunc182(n, kSeed, out); }, PlainUniforms},
    {"gaussian", [](auto n, double* out) { return ZemFunc84(n, 1.0, kSeed, out); }, PlainGaussian},
    {"gamma", [](auto n, double* out) { return ZemFunc388(n, 3, kSeed, 1, out); }, PlainGamma},
    {"gamma_large", [](auto n, double* out) { return ZemFunc388(n, 30, kSeed, 1, out); }, nullptr},
    {"poisson", [](auto n, double* out) { return ZemFunc389(n, 4.0, kSeed, 1, out); }, PlainPoisson},
    {"poisson_large", [](auto n, double* out) { return ZemFunc389(n, 40.0, kSeed, 1, out); }, nullptr},
    {"halton", [](auto n, double* out) { return ZemFunc412(n, 3, 1, out); }, PlainHalton},
    {"weyl", [](auto n, double* out) { return ZemFunc413(n, kStep, 1, out); }, PlainWeyl},
    {"shuffle", [](auto n, double* data) { return ZemFunc396(data, n, kSeed, nullptr); }, PlainShuffle},
};

void Generators(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "\n      generator          size   ns a value  plain C / quorvan\n");
    for (const Generator& generator : kGenerators)
        for (const std::int64_t n : runner.Sizes(kSizes)) {
            Buffer<double> result(n), reference(n);
            double *out = result, *plain = reference;
            for (std::int64_t i = 0; i < n; ++i) out[i] = plain[i] = double(i);
            bench::Succeeds(generator.quorvan(n, out), generator.name);
            if (generator.plain) {
                generator.plain(n, plain);
                if (std::memcmp(out, plain, static_cast<std::size_t>(n) * sizeof(double)) != 0)
                    bench::Refuse(std::string(generator.name) + ": not what plain C draws");
                runner.Add("plain", [=] { generator.plain(n, plain); });
            }
            runner.Add("quorvan", [=] { benchmark::DoNotOptimize(generator.quorvan(n, out)); });
            auto times = runner.Run("random_" + std::string(generator.name), n);
            const double own = times["quorvan"];
            std::fprintf(text, "%15s %13lld %12.3f", generator.name, static_cast<long long>(n), own * 1e9 / double(n));
            if (generator.plain) std::fprintf(text, " %18.2f", times["plain"] / own);
            std::fprintf(text, "\n");
            std::fflush(text);
        }
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    Generators(runner);
    return runner.Finish();
}
