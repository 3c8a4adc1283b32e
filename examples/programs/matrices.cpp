// Eigenvalues and least squares: the modes of a chain of masses and springs beside their closed form, and a parabola
// through measurements.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <quorvan/quorvan.h>
#include <vector>

namespace {

bool Failed(QvStatus status) {
    if (status < 0) std::fprintf(stderr, "%s\n", QvStatusMessage(status));
    return status < 0;
}

// Five equal masses between walls: 2 on the diagonal, -1 beside it, eigenvalues 4 sin²(k pi / 12).
bool Modes() {
    constexpr int kMasses = 5;
    std::vector<double> stiffness(kMasses * kMasses), squares(kMasses), shapes(kMasses * kMasses);
    for (int i = 0; i < kMasses; ++i) {
        stiffness[i * kMasses + i] = 2;
        if (i > 0) stiffness[i * kMasses + i - 1] = stiffness[(i - 1) * kMasses + i] = -1;
    }
    if (Failed(QvMatEigenSymmetric(stiffness.data(), kMasses, 1, squares.data(), shapes.data()))) return false;
    for (int k = 0; k < kMasses; ++k)
        std::printf("mode %d: %.12f, truth %.12f\n", k + 1, std::sqrt(squares[k]),
                    2 * std::sin((k + 1) * std::acos(-1.0) / 12));
    return true;
}

// A stone's height over time, least squares of h = h0 + v·t - g/2·t².
bool Parabola() {
    const std::vector<double> t{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6},
        height{1.998, 2.454, 2.803, 3.062, 3.213, 3.276, 3.234};
    std::vector<double> design, coefficients(3);
    for (double v : t) design.insert(design.end(), {1, v, -0.5 * v * v});
    if (Failed(QvMatSolveKind(design.data(), static_cast<std::int64_t>(t.size()), 3, height.data(), 0,
                              coefficients.data())))
        return false;
    std::printf("height %.3f m, speed %.2f m/s, gravity %.2f m/s^2\n", coefficients[0], coefficients[1],
                coefficients[2]);
    return true;
}

}  // namespace

int main() { return Modes() && Parabola() ? 0 : 1; }
