/* Eigenvalues and least squares: the modes of a chain of masses and springs beside their closed form, and a parabola
 * through measurements.
 */
#include <math.h>
#include <quorvan/quorvan.h>
#include <stdio.h>

#define MASSES 5
#define POINTS 7

/* Equal masses between walls: 2 on the diagonal, -1 beside it, eigenvalues 4 sin^2(k pi / 12). */
static QvStatus Modes(void) {
    const double pi = 3.141592653589793;
    double stiffness[MASSES * MASSES] = {0}, squares[MASSES], shapes[MASSES * MASSES]; /* row-major */
    for (int i = 0; i < MASSES; ++i) {
        stiffness[i * MASSES + i] = 2;
        if (i > 0) stiffness[i * MASSES + i - 1] = stiffness[(i - 1) * MASSES + i] = -1;
    }
    const QvStatus status = QvMatEigenSymmetric(stiffness, MASSES, 1, squares, shapes);
    for (int k = 0; k < MASSES && status >= 0; ++k)
        printf("mode %d: %.12f, truth %.12f\n", k + 1, sqrt(squares[k]), 2 * sin((k + 1) * pi / 12));
    return status;
}

/* A stone's height over time, least squares of h = h0 + v t - g/2 t^2. */
static QvStatus Parabola(void) {
    const double height[POINTS] = {1.998, 2.454, 2.803, 3.062, 3.213, 3.276, 3.234};
    double design[POINTS * 3], c[3]; /* a row for each point: 1, t, -t^2/2 */
    for (int i = 0; i < POINTS; ++i) {
        const double t = 0.1 * i;
        design[3 * i] = 1;
        design[3 * i + 1] = t;
        design[3 * i + 2] = -0.5 * t * t;
    }
    const QvStatus status = QvMatSolveKind(design, POINTS, 3, height, 0, c); /* 0: a general matrix */
    if (status >= 0) printf("height %.3f m, speed %.2f m/s, gravity %.2f m/s^2\n", c[0], c[1], c[2]);
    return status;
}

int main(void) {
    QvStatus status = Modes();
    if (status >= 0) status = Parabola();
    if (status < 0) fprintf(stderr, "%s\n", QvStatusMessage(status));
    return status < 0;
}
