#include "linalg/tall_qr.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

constexpr double kLargest = 1e120, kSmallest = 1e-120;
constexpr int kTurns = 2;
constexpr std::ptrdiff_t kStep = kTurns * kLanes;

double Sum(Wide a, Wide b) {
    a += b;
    double sum = a[0];
    for (int l = 1; l < kLanes; ++l) sum += a[l];
    return sum;
}

// Columns of `rows` elements, a multiple of kStep.
double Dot(const double* x, const double* y, std::ptrdiff_t rows) {
    Wide s[kTurns] = {};
    for (std::ptrdiff_t i = 0; i < rows; i += kStep)
        for (int t = 0; t < kTurns; ++t) s[t] += Load(x + i + t * kLanes) * Load(y + i + t * kLanes);
    return Sum(s[0], s[1]);
}

void Subtract(double* y, double factor, const double* x, std::ptrdiff_t rows) {
    const Wide f = Like(Wide{}, factor);
    for (std::ptrdiff_t i = 0; i < rows; i += kLanes) Store(y + i, Load(y + i) - f * Load(x + i));
}

// Householder reflections (A. S. Householder, 1958) that take the block of rows, column by column, into the triangle
// above it: with alpha the diagonal and c the column, beta = -sign(alpha) |(alpha, c)|, v = (1, c / (alpha - beta)).
void Reflect(double* columns, std::ptrdiff_t stride, std::ptrdiff_t rows, Count n, double* r) {
    for (Count j = 0; j < n; ++j) {
        double* v = columns + j * stride;
        double* row = r + static_cast<std::ptrdiff_t>(j) * (n + 1);
        const double below = Dot(v, v, rows);
        if (below == 0) continue;
        const double alpha = row[j];
        const double beta = -__builtin_copysign(__builtin_sqrt(alpha * alpha + below), alpha);
        const double tau = (beta - alpha) / beta, scale = 1 / (alpha - beta);
        // The first column of all: divided, a row that stands alone (the others weigh 0) leaves zeros without a rest.
        if (alpha == 0)
            for (std::ptrdiff_t i = 0; i < rows; ++i) v[i] /= -beta;
        else
            for (std::ptrdiff_t i = 0; i < rows; ++i) v[i] *= scale;
        row[j] = beta;
        for (Count k = j + 1; k <= n; ++k) {
            double* column = columns + k * stride;
            const double w = tau * (row[k] + Dot(v, column, rows));
            row[k] -= w;
            Subtract(column, w, v, rows);
        }
    }
}

bool Reduce(const double* a, const double* y, const double* weights, Count m, Count n, double* r, double* work) {
    double *columns = work, *largest = columns + kTallQrBlock * (n + 1);
    for (std::ptrdiff_t i = 0; i < static_cast<std::ptrdiff_t>(n) * (n + 1); ++i) r[i] = 0;
    for (Count j = 0; j < n; ++j) largest[j] = 0;
    for (Count first = 0; first < m; first += kTallQrBlock) {
        const Count rows = m - first < kTallQrBlock ? m - first : kTallQrBlock;
        const std::ptrdiff_t padded = (rows + kStep - 1) / kStep * kStep;
        bool inside = true;
        for (Count i = 0; i < rows; ++i, a += n) {
            const double root = weights ? __builtin_sqrt(__builtin_fabs(weights[first + i])) : 1;
            for (Count j = 0; j < n; ++j) {
                const double v = a[j] * root, size = __builtin_fabs(v);
                columns[j * kTallQrBlock + i] = v;
                inside &= size <= kLargest;
                largest[j] = size > largest[j] ? size : largest[j];
            }
            const double right = y[first + i] * root;
            columns[n * kTallQrBlock + i] = right;
            inside &= __builtin_fabs(right) <= kLargest;
        }
        if (!inside) return false;
        for (Count j = 0; j <= n; ++j)
            for (std::ptrdiff_t i = rows; i < padded; ++i) columns[j * kTallQrBlock + i] = 0;
        Reflect(columns, kTallQrBlock, padded, n, r);
    }
    for (Count j = 0; j < n; ++j)
        if (largest[j] != 0 && largest[j] < kSmallest) return false;
    return true;
}

}  // namespace

const TallQr kTallQr = {Reduce};

}  // namespace quorvan::QV_TARGET
