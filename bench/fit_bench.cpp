// Fits and splines. Their rivals are NumPy's polyfit and lstsq and SciPy's curve_fit and CubicSpline: bench/run.py puts
// them beside these times.
#include <cmath>
#include <functional>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

namespace {

using bench::Buffer;
using bench::Runner;

const std::vector<std::int64_t> kSizes = {10, 100, 1000, 10000};

// A model with the coefficients of the data, as bench/rivals.py has it.
struct Model {
    const char* name;
    double (*value)(double x);
    QvStatus (*fit)(const double* x, double* y, std::int64_t n, double* fitted, double* c, double* residue);
};

const Model kModels[] = {
    {"line", [](double x) { return 2 * x + 1; },
     [](auto x, auto y, auto n, auto f, auto c, auto r) {
         return ZemFunc288(x, y, nullptr, n, 0, -1, f, c, c + 1, r);
     }},
    {"exponential", [](double x) { return 1.5 * std::exp(0.6 * x); },
     [](auto x, auto y, auto n, auto f, auto c, auto r) {
         return ZemFunc286(x, y, nullptr, n, 0, -1, f, c, c + 1, r);
     }},
    {"power", [](double x) { return 2 * std::pow(x, 1.3); },
     [](auto x, auto y, auto n, auto f, auto c, auto r) {
         return ZemFunc290(x, y, nullptr, n, 0, -1, f, c, c + 1, r);
     }},
    {"logarithm", [](double x) { return 1.7 * std::log(2.2 * x); },
     [](auto x, auto y, auto n, auto f, auto c, auto r) {
         return ZemFunc289(x, y, nullptr, n, 2.71828, 0, -1, f, c, c + 1, r);
     }},
    {"gaussian", [](double x) { return 3 * std::exp(-0.5 * (x - 2) * (x - 2) / 0.49); },
     [](auto x, auto y, auto n, auto f, auto c, auto r) {
         return ZemFunc287(x, y, nullptr, n, 0, -1, nullptr, f, c, c + 1, c + 2, r);
     }},
};

double Decay(double x, double* a, std::int32_t) { return a[0] * std::exp(a[1] * x); }

void Report(Runner& runner, const std::string& group, std::int64_t n) {
    const double seconds = runner.Run(group, n)["quorvan"];
    std::fprintf(runner.Text(), "  %-18s %9lld %12.3f\n", group.c_str(), static_cast<long long>(n), seconds * 1e6);
    std::fflush(runner.Text());
}

void Fits(Runner& runner, std::int64_t n) {
    Buffer<double> abscissas(n), ordinates(n), curve(n), matrix(8 * n);
    double *x = abscissas, *y = ordinates, *fitted = curve, *design = matrix;
    const std::vector<double> noise = bench::Noise(n), elements = bench::Noise(8 * n, 2);
    const auto fill = [&](double (*value)(double)) {
        for (std::int64_t i = 0; i < n; ++i) {
            x[i] = 0.5 + 3.5 * static_cast<double>(i) / static_cast<double>(n - 1);
            y[i] = value(x[i]) + 0.05 * noise[static_cast<std::size_t>(i)];
        }
    };
    for (std::int64_t i = 0; i < 8 * n; ++i) design[i] = elements[static_cast<std::size_t>(i)];

    fill(kModels[0].value);
    for (const std::int32_t order : {1, 3, 8}) {
        runner.Add("quorvan", [=] {
            double c[9], error;
            bench::Succeeds(ZemFunc137(x, y, n, order, fitted, c, &error), "polynomial");
        });
        Report(runner, "fit_polynomial_" + std::to_string(order), n);
    }
    for (const std::int64_t columns : {3, 8}) {
        runner.Add("quorvan", [=] {
            double c[8];
            bench::Succeeds(ZemFunc239(design, n, columns, y, c, 0), "general");
        });
        Report(runner, "fit_general_" + std::to_string(columns), n);
    }
    runner.Add("quorvan", [=] { bench::Succeeds(ZemFunc164(x, y, n, 1e30, 1e30, fitted), "spline"); });
    Report(runner, "fit_spline", n);
    for (const Model& model : kModels) {
        fill(model.value);
        runner.Add("quorvan", [=] {
            double c[3], residue;
            bench::Succeeds(model.fit(x, y, n, fitted, c, &residue), model.name);
        });
        Report(runner, std::string("fit_") + model.name, n);
    }
    fill(kModels[1].value);
    runner.Add("quorvan", [=] {
        double a[2] = {1, 1}, error;
        bench::Succeeds(ZemFunc130(x, y, fitted, n, Decay, a, 2, &error), "nonlinear");
    });
    Report(runner, "fit_nonlinear", n);
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
    std::fprintf(runner.Text(), "\n  fit                 samples           us\n");
    for (const std::int64_t n : runner.Sizes(kSizes)) Fits(runner, n);
    return runner.Finish();
}
