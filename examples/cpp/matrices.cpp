// Eigenvalues and least squares: the modes of a chain of masses and springs beside their closed form, and a parabola
// through measurements.
#include <cmath>
#include <cstdio>
#include <numbers>
#include <quorvan/quorvan.hpp>
#include <vector>

namespace {

// Five equal masses between walls: 2 on the diagonal, -1 beside it, eigenvalues 4 sin²(k pi / 12).
void Modes() {
    constexpr int n = 5;
    std::vector<double> stiffness(n * n), squares(n), shapes(n * n);  // row-major
    for (int i = 0; i < n; ++i) {
        stiffness[i * n + i] = 2;
        if (i > 0) stiffness[i * n + i - 1] = stiffness[(i - 1) * n + i] = -1;
    }
    qv::call(QvMatEigenSymmetric, stiffness, n, 1, squares, shapes).value();
    for (int k = 0; k < n; ++k)
        std::printf("mode %d: %.12f, truth %.12f\n", k + 1, std::sqrt(squares[k]),
                    2 * std::sin((k + 1) * std::numbers::pi / 12));
}

// A stone's height over time, least squares of h = h0 + v·t - g/2·t².
void Parabola() {
    const std::vector<double> t{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
    const std::vector<double> height{1.998, 2.454, 2.803, 3.062, 3.213, 3.276, 3.234};
    std::vector<double> design, c(3);
    for (double v : t) design.insert(design.end(), {1, v, -0.5 * v * v});
    constexpr int kGeneral = 0;
    qv::call(QvMatSolveKind, design, t.size(), 3, height, kGeneral, c).value();
    std::printf("height %.3f m, speed %.2f m/s, gravity %.2f m/s^2\n", c[0], c[1], c[2]);
}

}  // namespace

int main() try {
    Modes();
    Parabola();
} catch (const qv::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
