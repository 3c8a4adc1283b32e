// Matrix operations beside bare calls of the LAPACK and BLAS that do their work: what the library adds is the
// transposed copy, the screen, the workspace query and the allocations.
//
// LAPACK overwrites its matrices, so that the bare call, too, is given fresh copies, in blocks made beforehand; its
// workspace has been asked for beforehand. All run on one thread.
#include <cmath>
#include <cstring>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

extern "C" {

void dgesv_(const int* n, const int* nrhs, double* a, const int* lda, int* ipiv, double* b, const int* ldb, int* info);
void dgetrf_(const int* m, const int* n, double* a, const int* lda, int* ipiv, int* info);
void dgetri_(const int* n, double* a, const int* lda, const int* ipiv, double* work, const int* lwork, int* info);
void cblas_dgemm(int order, int transa, int transb, int m, int n, int k, double alpha, const double* a, int lda,
                 const double* b, int ldb, double beta, double* c, int ldc);
void openblas_set_num_threads(int threads) __attribute__((weak));

}  // extern "C"

namespace {

using bench::Buffer;
using bench::Runner;

const std::vector<std::int64_t> kOrders = {8, 64, 512, 1500};

// The arrays of one order, shared by all contenders: a well-conditioned matrix, two more of the same size for results,
// and work areas.
struct Arrays {
    int n;
    Buffer<double> a, out, copy, vector, result, work;
    Buffer<int> pivots;
    int workSize;

    explicit Arrays(int order)
        : n(order),
          a(Square()),
          out(Square()),
          copy(Square()),
          vector(n),
          result(n),
          work(64 * std::int64_t{n}),
          pivots(n),
          workSize(64 * n) {
        std::memcpy(a, bench::Noise(Square()).data(), Bytes());
        for (int i = 0; i < n; ++i) a[i * (std::int64_t{n} + 1)] += std::sqrt(n);
        std::memcpy(vector, bench::Noise(n, 2).data(), sizeof(double) * static_cast<std::size_t>(n));
    }

    std::int64_t Square() const { return std::int64_t{n} * n; }
    std::size_t Bytes() const { return static_cast<std::size_t>(Square()) * sizeof(double); }
    void CopyMatrix() const { std::memcpy(copy, a, Bytes()); }
    void CopyVector() const { std::memcpy(result, vector, sizeof(double) * static_cast<std::size_t>(n)); }
};

struct Operation {
    const char* name;
    QvStatus (*library)(Arrays&);
    int (*bare)(Arrays&);           // LAPACK's info
    double (*difference)(Arrays&);  // between what both left, where results are of order 1
};

double Largest(const double* x, const double* y, std::int64_t count) {
    double largest = 0;
    for (std::int64_t i = 0; i < count; ++i) largest = std::fmax(largest, std::fabs(x[i] - y[i]));
    return largest;
}

// The result of the library stands in `out`; that of the bare call in `copy` or `result`.
const Operation kOperations[] = {
    {"solve", [](Arrays& d) { return ZemFunc114(d.a, d.vector, d.n, d.out); },
     [](Arrays& d) {
         d.CopyMatrix();
         d.CopyVector();
         const int one = 1;
         int info = 0;
         dgesv_(&d.n, &one, d.copy, &d.n, d.pivots, d.result, &d.n, &info);
         return info;
     },
     [](Arrays& d) {  // the bare call takes A for its transpose, but b·(A^-1 b) is the same for both
         double left = 0, right = 0;
         for (int i = 0; i < d.n; ++i) left += d.vector[i] * d.out[i], right += d.vector[i] * d.result[i];
         return left - right;
     }},
    {"inverse", [](Arrays& d) { return ZemFunc105(d.a, d.n, d.out); },
     [](Arrays& d) {
         d.CopyMatrix();
         int info = 0;
         dgetrf_(&d.n, &d.n, d.copy, &d.n, d.pivots, &info);
         if (info == 0) dgetri_(&d.n, d.copy, &d.n, d.pivots, d.work, &d.workSize, &info);
         return info;
     },
     [](Arrays& d) { return Largest(d.out, d.copy, d.Square()); }},
    {"multiply", [](Arrays& d) { return ZemFunc119(d.a, d.a, d.n, d.n, d.n, d.out); },
     [](Arrays& d) {
         cblas_dgemm(101, 111, 111, d.n, d.n, d.n, 1.0, d.a, d.n, d.a, d.n, 0.0, d.copy, d.n);
         return 0;
     },
     [](Arrays& d) { return Largest(d.out, d.copy, d.Square()); }},
};

void BesideLapack(Runner& runner) {
    std::FILE* text = runner.Text();
    std::fprintf(text, "\n  operation    order   quorvan us      bare us   overhead\n");
    for (const Operation& operation : kOperations) {
        for (const std::int64_t order : runner.Sizes(kOrders)) {
            Arrays arrays(static_cast<int>(order));
            bench::Succeeds(operation.library(arrays), operation.name);
            if (operation.bare(arrays) != 0) bench::Refuse(std::string(operation.name) + ": the bare call fails");
            if (!(std::fabs(operation.difference(arrays)) < 1e-9))
                bench::Refuse(std::string(operation.name) + ": wrong");
            runner.Add("quorvan", [&] { benchmark::DoNotOptimize(operation.library(arrays)); });
            runner.Add("bare", [&] { benchmark::DoNotOptimize(operation.bare(arrays)); });
            bench::Times t = runner.Run(std::string("linalg_") + operation.name, order);
            const double overhead = t["quorvan"] / t["bare"] - 1;
            std::fprintf(text, "  %-10s %7lld %12.3f %12.3f %9.1f%%\n", operation.name, static_cast<long long>(order),
                         t["quorvan"] * 1e6, t["bare"] * 1e6, 100 * overhead);
            if (order >= 64) bench::AtMost(text, "    overhead over the bare call", overhead, order < 512 ? 0.2 : 0.05);
            std::fflush(text);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (openblas_set_num_threads) openblas_set_num_threads(1);
    Runner runner(argc, argv);
    BesideLapack(runner);
    return runner.Finish();
}
