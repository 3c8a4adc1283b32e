// Singular values, eigenvalues and QR beside the bare calls of the provider that they stand on.
//
// A bare call works on a copy of the same matrix, which is part of its time, in a work area that was asked for and
// allocated once beforehand; for the eigenvectors of a general matrix it is given the columns as its rows stand, so
// that both iterate alike. What the library adds is the screen of its input, its own work areas, and the way between
// row and column order. One thread: the provider's own threads are switched off before it starts.
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

extern "C" {
void dgesdd_(const char*, const int*, const int*, double*, const int*, double*, double*, const int*, double*,
             const int*, double*, const int*, int*, int*, std::size_t);
void dsyevd_(const char*, const char*, const int*, double*, const int*, double*, double*, const int*, int*, const int*,
             int*, std::size_t, std::size_t);
void dgeev_(const char*, const char*, const int*, double*, const int*, double*, double*, double*, const int*, double*,
            const int*, double*, const int*, int*, std::size_t, std::size_t);
void dgelqf_(const int*, const int*, double*, const int*, double*, double*, const int*, int*);
void dorglq_(const int*, const int*, const int*, double*, const int*, const double*, double*, const int*, int*);
}

namespace {

using bench::Buffer;
using bench::Ratios;
using bench::Runner;

const std::vector<std::int64_t> kSizes = {8, 64, 512, 1500};

// What one size needs, for all contenders; a is symmetric where the operation wants it, and `same` is what the bare
// call copies.
struct Matrices {
    int n;
    std::size_t bytes;
    double *a, *same, *copy, *u, *v, *values, *imaginary, *work;
    int *integers, lwork, liwork;
};

struct Operation {
    const char* name;
    bool symmetric;
    QvStatus (*quorvan)(const Matrices& m);
    int (*lapack)(const Matrices& m, int lwork, int liwork);  // the provider's info
};

const Operation kOperations[] = {
    {"svd", false, [](const Matrices& m) { return ZemFunc193(m.a, m.n, m.n, m.u, m.values, m.v); },
     [](const Matrices& m, int lwork, int) {
         int info;
         dgesdd_("S", &m.n, &m.n, m.copy, &m.n, m.values, m.u, &m.n, m.v, &m.n, m.work, &lwork, m.integers, &info, 1);
         return info;
     }},
    {"singular_values", false, [](const Matrices& m) { return ZemFunc195(m.a, m.n, m.n, m.values); },
     [](const Matrices& m, int lwork, int) {
         int info;
         dgesdd_("N", &m.n, &m.n, m.copy, &m.n, m.values, m.u, &m.n, m.v, &m.n, m.work, &lwork, m.integers, &info, 1);
         return info;
     }},
    {"symmetric_eigen", true, [](const Matrices& m) { return ZemFunc202(m.a, m.n, 1, m.values, m.u); },
     [](const Matrices& m, int lwork, int liwork) {
         int info;
         dsyevd_("V", "L", &m.n, m.copy, &m.n, m.values, m.work, &lwork, m.integers, &liwork, &info, 1, 1);
         return info;
     }},
    {"general_eigen", false,
     [](const Matrices& m) {
         return ZemFunc201(m.a, m.n, 1, reinterpret_cast<QvComplex*>(m.values), reinterpret_cast<QvComplex*>(m.u));
     },
     [](const Matrices& m, int lwork, int) {
         int info;
         dgeev_("N", "V", &m.n, m.copy, &m.n, m.values, m.imaginary, nullptr, &m.n, m.v, &m.n, m.work, &lwork, &info, 1,
                1);
         return info;
     }},
    {"qr", false, [](const Matrices& m) { return ZemFunc192(m.a, m.n, m.n, 0, m.u, m.v); },
     [](const Matrices& m, int lwork, int) {
         int info;
         dgelqf_(&m.n, &m.n, m.copy, &m.n, m.values, m.work, &lwork, &info);
         dorglq_(&m.n, &m.n, &m.n, m.copy, &m.n, m.values, m.work, &lwork, &info);
         return info;
     }},
};

// The size of the work area: the larger answer, where there are two calls.
void Query(const Operation& operation, Matrices& m) {
    double answer[1] = {0};
    int integer[1] = {0};
    Matrices query = m;
    query.work = answer;
    query.integers = integer;
    operation.lapack(query, -1, -1);
    m.lwork = static_cast<int>(answer[0]) + 64 * m.n;
    m.liwork = integer[0] > 8 * m.n ? integer[0] : 8 * m.n;
}

// The trace stays under a similarity, and singular values keep the Frobenius norm: a wrong result must not be timed.
void Check(const Operation& operation, const Matrices& m) {
    const std::string name = operation.name;
    double expected = 0, found = 0, size = 0;
    for (int i = 0; i < m.n; ++i) {
        for (int j = 0; j < m.n; ++j) size += m.a[i * m.n + j] * m.a[i * m.n + j];
        expected += m.a[i * m.n + i];
        if (name == "symmetric_eigen") found += m.values[i];
        if (name == "general_eigen") found += m.values[2 * i];
        if (name == "svd" || name == "singular_values") found += m.values[i] * m.values[i];
        if (name == "qr")
            for (int j = i; j < m.n; ++j) found += m.v[i * m.n + j] * m.v[i * m.n + j];
    }
    if (!name.ends_with("eigen")) expected = size;
    if (!(std::fabs(found - expected) < 1e-12 * m.n * (size + 1))) bench::Refuse(name + ": wrong values");
}

void Run(Runner& runner, const Operation& operation, std::int64_t size) {
    const auto elements = static_cast<std::size_t>(size * size);
    Buffer<double> a(elements), same(elements), copy(elements), u(2 * elements), v(elements), values(2 * size),
        imaginary(size);
    Matrices m{static_cast<int>(size),
               elements * sizeof(double),
               a,
               same,
               copy,
               u,
               v,
               values,
               imaginary,
               nullptr,
               nullptr,
               0,
               0};
    std::memcpy(m.a, bench::Noise(size * size).data(), m.bytes);
    for (std::int64_t i = 0; operation.symmetric && i < size; ++i)
        for (std::int64_t j = 0; j < i; ++j) m.a[i * size + j] = m.a[j * size + i];
    const bool turned = std::strcmp(operation.name, "general_eigen") == 0;
    for (std::int64_t i = 0; i < size; ++i)
        for (std::int64_t j = 0; j < size; ++j) m.same[i * size + j] = turned ? m.a[j * size + i] : m.a[i * size + j];
    std::memcpy(m.copy, m.same, m.bytes);
    Query(operation, m);
    Buffer<double> work(static_cast<std::size_t>(m.lwork));
    Buffer<int> integers(static_cast<std::size_t>(m.liwork));
    m.work = work;
    m.integers = integers;

    const auto bare = [=] {
        std::memcpy(m.copy, m.same, m.bytes);
        return operation.lapack(m, m.lwork, m.liwork);
    };
    if (bare() != 0) bench::Refuse(std::string(operation.name) + ": the bare call fails");
    bench::Succeeds(operation.quorvan(m), operation.name);
    Check(operation, m);
    runner.Add("quorvan", [=] { benchmark::DoNotOptimize(operation.quorvan(m)); });
    runner.Add("lapack", [=] { benchmark::DoNotOptimize(bare()); });
    auto times = runner.Run(operation.name, size);
    std::fprintf(runner.Text(), "  %-16s %6lld %12.2f %12.2f %9.3f\n", operation.name, static_cast<long long>(size),
                 times["quorvan"] * 1e6, times["lapack"] * 1e6, times["quorvan"] / times["lapack"]);
    std::fflush(runner.Text());
}

}  // namespace

int main(int argc, char** argv) {
    if (!std::getenv("OPENBLAS_NUM_THREADS")) {
        // It is read when the provider is loaded, which was before main.
        setenv("OPENBLAS_NUM_THREADS", "1", 1);
        execv("/proc/self/exe", argv);
    }
    Runner runner(argc, argv);
    std::fprintf(runner.Text(), "\n  operation             n   quorvan us    lapack us  over bare\n");
    for (const Operation& operation : kOperations)
        for (const std::int64_t n : runner.Sizes(kSizes)) Run(runner, operation, n);
    return runner.Finish();
}
