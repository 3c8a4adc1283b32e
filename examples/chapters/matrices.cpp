#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "heart.h"
#include "report.h"

namespace tour {
namespace {

// Each year's sunspots from the two years before, as far as least squares can: u(t) = a u(t-1) + b u(t-2) + c.
struct Recurrence {
    double a, b, c;
};

struct System {
    std::vector<double> rows, right;  // three columns a year

    std::int64_t Years() const { return Size(right); }
};

System MakeSystem(const Series& series, double from, double to) {
    System system;
    for (std::size_t i = 2; i < series.y.size(); ++i) {
        if (series.x[i - 2] < from || series.x[i] > to) continue;
        system.rows.insert(system.rows.end(), {series.y[i - 1], series.y[i - 2], 1.0});
        system.right.push_back(series.y[i]);
    }
    return system;
}

Recurrence Solve(const System& system) {
    constexpr std::uint32_t kGeneral = 0;
    double x[3];
    Check(QvMatSolveMany(system.rows.data(), system.Years(), 3, kGeneral, system.right.data(), 1, x));
    return {x[0], x[1], x[2]};
}

// The same by the pseudo-inverse.
Recurrence SolveByInverse(const System& system) {
    std::vector<double> rows = system.rows, inverse(rows.size());
    constexpr double kDefault = -1.0;
    double x[3];
    Check(QvMatPseudoInverse(rows.data(), system.Years(), 3, kDefault, inverse.data()));
    Check(QvMatMultiply(inverse.data(), system.right.data(), 3, system.Years(), 1, x));
    return {x[0], x[1], x[2]};
}

void PrintRecurrence() {
    // The record of G. U. Yule, Phil. Trans. R. Soc. A 226 (1927), who had the weighing of these numbers by hand.
    const double from = 1749.0, to = 1924.0, yuleA = 1.34254, yuleB = -0.65504;
    const System system = MakeSystem(ReadSeries(Example("sunspots.csv")), from, to);
    const Recurrence found = Solve(system), again = SolveByInverse(system);

    // A pair of eigenvalues r exp(+-i phi) swings with the period 2 pi / phi and falls by r a year.
    const double companion[4] = {found.a, found.b, 1.0, 0.0};
    QvComplex values[2];
    Check(QvMatEigenGeneral(companion, 2, 0, values, nullptr));
    const double modulus = std::hypot(values[0].re, values[0].im);
    const double period = 2.0 * std::numbers::pi / std::atan2(values[0].im, values[0].re);
    const double yulePeriod = 2.0 * std::numbers::pi / std::acos(yuleA / (2.0 * std::sqrt(-yuleB)));

    BesideColumns();
    Beside("sunspots from last year's", found.a, yuleA, "", "Yule 1927, by hand");
    Beside("  and from the year's before", found.b, yuleB, "", "Yule 1927");
    Beside("  constant of the recurrence", found.c, again.c, "spots", "the same by the pseudo-inverse");
    Beside("eigenvalues: a cycle of", period, yulePeriod, "years", "Yule 1927");
    Beside("  that falls, by the year, to", modulus, std::sqrt(-found.b), "", "root of the determinant");
}

// Each row one beat, 0.2 s to both sides of its place.
std::vector<double> CutBeats(const Recording& recording, const BeatTrain& beats, std::size_t cols) {
    std::vector<double> rows;
    const auto side = static_cast<std::ptrdiff_t>(cols / 2);
    for (const double position : beats.positions) {
        const auto middle = static_cast<std::ptrdiff_t>(std::lround(position));
        if (middle < side || middle + side >= Size(recording.samples)) continue;
        const auto at = recording.samples.begin() + middle;
        rows.insert(rows.end(), at - side, at + side + 1);
    }
    return rows;
}

void RemoveMeanBeat(std::vector<double>& beats, std::size_t cols) {
    const std::size_t rows = beats.size() / cols;
    for (std::size_t j = 0; j < cols; ++j) {
        double mean = 0.0;
        for (std::size_t i = 0; i < rows; ++i) mean += beats[i * cols + j];
        mean /= static_cast<double>(rows);
        for (std::size_t i = 0; i < rows; ++i) beats[i * cols + j] -= mean;
    }
}

// The shapes of which heartbeats are made: eigenvectors of the covariance of their samples (K. Karhunen, M. Loeve).
void PrintShapes() {
    const Recording recording = Electrocardiogram();
    const std::size_t cols = 145;
    std::vector<double> beats = CutBeats(WithoutWander(recording), FindBeats(recording), cols);
    RemoveMeanBeat(beats, cols);
    const auto m = Size(beats) / static_cast<std::int64_t>(cols), n = static_cast<std::int64_t>(cols);

    std::vector<double> singular(static_cast<std::size_t>(std::min(m, n)));
    Check(QvMatSingularValues(beats.data(), m, n, singular.data()));
    std::vector<double> transposed(beats.size()), covariance(cols * cols), values(cols);
    Check(QvMatTranspose(beats.data(), m, n, transposed.data()));
    Check(QvMatMultiply(transposed.data(), beats.data(), n, m, n, covariance.data()));
    Check(QvMatEigenSymmetric(covariance.data(), n, 0, values.data(), nullptr));
    double trace;
    Check(QvMatTrace(covariance.data(), n, &trace));

    const auto share = [&](std::size_t k) { return 100.0 * values[cols - 1 - k] / trace; };
    const auto shareBySingular = [&](std::size_t k) { return 100.0 * singular[k] * singular[k] / trace; };
    Beside("beats differ in one shape by", share(0), shareBySingular(0), "%", "singular values, squared");
    Beside("  in a second one by", share(1), shareBySingular(1), "%", "singular values, squared");
    Beside("  in a third one by", share(2), shareBySingular(2), "%", "singular values, squared");
}

}  // namespace

void Matrices() {
    Heading("matrices", "least squares and eigenvalues on sunspots and heartbeats");
    PrintRecurrence();
    PrintShapes();
}

}  // namespace tour
