// The time constant of a discharge: a model function of one's own, fitted to samples with noise.
#include <array>
#include <cmath>
#include <cstdio>
#include <quorvan/quorvan.hpp>
#include <vector>

// A plain function, as C calls it: no exception may leave it.
static double Discharge(double t, double* a, std::int32_t) noexcept { return a[0] * std::exp(-t / a[1]) + a[2]; }

int main() try {
    std::vector<double> t(200), y(200), fitted(200);
    std::array<double, 3> truth{3300, 0.47, 120}, a{1000, 1, 0};  // millivolt, second, millivolt; and a guess

    qv::call(QvGenGaussianNoise, y.size(), 5.0, 42, y).value();
    for (std::size_t i = 0; i < t.size(); ++i) {
        t[i] = 0.01 * static_cast<double>(i);
        y[i] += Discharge(t[i], truth.data(), 3);
    }
    const double error = qv::call(QvFitNonlinear, t, y, fitted, t.size(), Discharge, a, 3, qv::out).value();
    std::printf("amplitude %.2f mV (truth %.0f)\n", a[0], truth[0]);
    std::printf("time constant %.4f s (truth %.2f)\n", a[1], truth[1]);
    std::printf("offset %.2f mV (truth %.0f)\n", a[2], truth[2]);
    std::printf("residue %.2f mV rms (noise 5)\n", std::sqrt(error));
} catch (const qv::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
