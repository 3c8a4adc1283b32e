// What quorvan.hpp promises; each check that fails is told by its line.
#include <array>
#include <complex>
#include <cstdio>
#include <cstring>
#include <quorvan/quorvan.hpp>
#include <span>
#include <vector>

namespace {

int failures = 0;

void Check(bool holds, int line) {
    if (holds) return;
    std::printf("line %d\n", line);
    ++failures;
}

#define CHECK(...) Check(static_cast<bool>(__VA_ARGS__), __LINE__)

void Values() {
    const std::vector<double> x{1, 2, 3, 6};
    const qv::Result<double> mean = qv::call(QvStatMean, x, x.size(), qv::out);
    CHECK(mean && mean.ok() && mean.status() == 0 && *mean == 3 && mean.value() == 3 && mean.value_or(-1) == 3);
    const auto [again, deviation] =
        qv::call(QvStatMeanStdDev, std::span<const double>(x), std::ssize(x), qv::out, qv::out).value();
    CHECK(again == 3 && deviation * deviation > 3.49 && deviation * deviation < 3.51);

    std::array<double, 4> y{};
    CHECK(qv::call(QvArrAdd, x, x, 4, y).ok());
    CHECK(y == std::array<double, 4>{2, 4, 6, 12});
    CHECK(qv::call(QvWinApplyScaledPlain, y, 4, QV_WINDOW_HANNING, qv::out)->enbw == 1.5);
}

void Statuses() {
    const std::vector<double> x{1, 2};
    const auto none = qv::call(QvStatMean, x, 0, qv::out);
    CHECK(!none && none.status() == -20003 && none.value_or(-1) == -1);
    CHECK(std::strcmp(none.text(), "The number of samples must be > 0.") == 0);
    bool caught = false;
    try {
        (void)none.value();
    } catch (const qv::Error& error) {
        caught = error.code == -20003 && std::strcmp(error.what(), none.text()) == 0;
    }
    CHECK(caught);

    std::vector<double> solution(2);  // of a singular system: a warning, and a solution
    const auto warned = qv::call(QvMatSolveKind, std::vector<double>{1, 1, 1, 1}, 2, 2, x, 0, solution);
    CHECK(warned && warned.status() == 20001 && solution[0] > 0.74 && solution[0] < 0.76);
}

void ComplexData() {
    std::array<std::complex<double>, 8> z{};
    z[1] = {1, 0};
    std::vector<std::complex<double>> spectrum(8);
    const qv::FftPlan plan(QvFftPlanCreate(8));
    CHECK(plan && qv::call(QvTransformComplexFft, z, 8, 0, plan, 0, spectrum));
    CHECK(std::abs(spectrum[2] - std::complex<double>(0, -1)) < 1e-15);
    CHECK(qv::call(QvTransformComplexFft, z, 8, 0, nullptr, 0, spectrum));
}

void Owners() {
    CHECK(!qv::IirFilter(QvIirFilterCreate(4, 1)));
    const qv::IirFilter filter(QvIirFilterCreate(0, 3));
    const qv::IirStateComplex state(QvIirStateComplexCreate(0, 3));
    CHECK(qv::call(QvIirDesignButterworth, 1000, 600, 0, filter).status() == -20023);
    CHECK(qv::call(QvIirDesignButterworth, 1000, 100, 0, filter));
    std::vector<double> x(20, 1.0), y(20);
    std::vector<std::complex<double>> z(20, 1.0);
    CHECK(qv::call(QvIirCascadeApply, x, 20, filter, y) && qv::call(QvIirCascadeApplyComplex, z, 20, filter, state, z));
    CHECK(z[19].real() == y[19] && z[19].imag() == 0);
    CHECK(qv::call(QvIirFilterReset, filter) && filter->reset == 1);
    CHECK(qv::FirNarrowband(QvFirNarrowbandCreate()) != nullptr);

    for (std::size_t i = 0; i < 20; ++i) x[i] = -(static_cast<double>(i) - 9.5) * (static_cast<double>(i) - 9.5);
    double *locations, *amplitudes, *curvatures;
    const auto count = qv::call(QvPeakDetect, x, 20, -100, 5, 0, 1, 1, qv::out, &locations, &amplitudes, &curvatures);
    const qv::Array where(locations), heights(amplitudes), bends(curvatures);
    CHECK(count && *count == 1 && where[0] > 9.49 && where[0] < 9.51 && bends[0] < -1.99);
}

void Scalars() {
    const auto [ai, bi] = qv::call(QvSpecAiry, 0, qv::out, qv::out).value();
    CHECK(ai > 0.355 && ai < 0.3551 && bi > 0.6149 && bi < 0.615);
}

}  // namespace

int main() {
    Values();
    Statuses();
    ComplexData();
    Owners();
    Scalars();
    return failures != 0;
}
