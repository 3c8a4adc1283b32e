// What becomes of failures that no matrix provokes: routines of the provider are replaced by ones that pass on and then
// report the failure that a test asks for.
#include "linalg/provider.h"
#include "tests/linalg/matrices.h"
#include "tests/support/replaced_routines.h"

namespace {

// The info to report, 0: what the routine itself reports. Reset by the tests.
struct Failures {
    int gesdd = 0, geev = 0, syevd = 0, gees = 0, gges = 0, gebal = 0, tgevc = 0;
    int trexc = 0, tgexc = 0;
    int hgeqz = 0;              // behind a refused exchange only: the one-call form uses it as well
    int refused_exchanges = 0;  // how many are refused; the next ones are made
    bool refused = false;
};
Failures failures;

void Report(int* info, int failure) {
    if (failure != 0) *info = failure;
}

bool Refuse(int* info, int failure) {
    if (failure == 0 || failures.refused_exchanges == 0) return false;
    --failures.refused_exchanges;
    failures.refused = true;
    *info = failure;
    return true;
}

}  // namespace

namespace quorvan::provider {

#define QV_NEXT(name) QV_REPLACED(QV_LAPACK(name))

extern "C" {

QV_REPLACEMENT void QV_LAPACK(dgesdd)(const char* jobz, const Int* m, const Int* n, Real* a, const Int* lda, Real* s,
                                      Real* u, const Int* ldu, Real* vt, const Int* ldvt, Real* work, const Int* lwork,
                                      Int* iwork, Int* info, Length length) {
    QV_NEXT(dgesdd)(jobz, m, n, a, lda, s, u, ldu, vt, ldvt, work, lwork, iwork, info, length);
    Report(info, failures.gesdd);
}
QV_REPLACEMENT void QV_LAPACK(zgesdd)(const char* jobz, const Int* m, const Int* n, Complex* a, const Int* lda, Real* s,
                                      Complex* u, const Int* ldu, Complex* vt, const Int* ldvt, Complex* work,
                                      const Int* lwork, Real* rwork, Int* iwork, Int* info, Length length) {
    QV_NEXT(zgesdd)(jobz, m, n, a, lda, s, u, ldu, vt, ldvt, work, lwork, rwork, iwork, info, length);
    Report(info, failures.gesdd);
}
QV_REPLACEMENT void QV_LAPACK(dgeev)(const char* jobvl, const char* jobvr, const Int* n, Real* a, const Int* lda,
                                     Real* wr, Real* wi, Real* vl, const Int* ldvl, Real* vr, const Int* ldvr,
                                     Real* work, const Int* lwork, Int* info, Length l1, Length l2) {
    QV_NEXT(dgeev)(jobvl, jobvr, n, a, lda, wr, wi, vl, ldvl, vr, ldvr, work, lwork, info, l1, l2);
    Report(info, failures.geev);
}
QV_REPLACEMENT void QV_LAPACK(zgeev)(const char* jobvl, const char* jobvr, const Int* n, Complex* a, const Int* lda,
                                     Complex* w, Complex* vl, const Int* ldvl, Complex* vr, const Int* ldvr,
                                     Complex* work, const Int* lwork, Real* rwork, Int* info, Length l1, Length l2) {
    QV_NEXT(zgeev)(jobvl, jobvr, n, a, lda, w, vl, ldvl, vr, ldvr, work, lwork, rwork, info, l1, l2);
    Report(info, failures.geev);
}
QV_REPLACEMENT void QV_LAPACK(dsyevd)(const char* jobz, const char* uplo, const Int* n, Real* a, const Int* lda,
                                      Real* w, Real* work, const Int* lwork, Int* iwork, const Int* liwork, Int* info,
                                      Length l1, Length l2) {
    QV_NEXT(dsyevd)(jobz, uplo, n, a, lda, w, work, lwork, iwork, liwork, info, l1, l2);
    Report(info, failures.syevd);
}
QV_REPLACEMENT void QV_LAPACK(zheevd)(const char* jobz, const char* uplo, const Int* n, Complex* a, const Int* lda,
                                      Real* w, Complex* work, const Int* lwork, Real* rwork, const Int* lrwork,
                                      Int* iwork, const Int* liwork, Int* info, Length l1, Length l2) {
    QV_NEXT(zheevd)(jobz, uplo, n, a, lda, w, work, lwork, rwork, lrwork, iwork, liwork, info, l1, l2);
    Report(info, failures.syevd);
}
QV_REPLACEMENT void QV_LAPACK(dgees)(const char* jobvs, const char* sort, SelectReal select, const Int* n, Real* a,
                                     const Int* lda, Int* sdim, Real* wr, Real* wi, Real* vs, const Int* ldvs,
                                     Real* work, const Int* lwork, Int* bwork, Int* info, Length l1, Length l2) {
    QV_NEXT(dgees)(jobvs, sort, select, n, a, lda, sdim, wr, wi, vs, ldvs, work, lwork, bwork, info, l1, l2);
    Report(info, failures.gees);
}
QV_REPLACEMENT void QV_LAPACK(zgees)(const char* jobvs, const char* sort, SelectComplex select, const Int* n,
                                     Complex* a, const Int* lda, Int* sdim, Complex* w, Complex* vs, const Int* ldvs,
                                     Complex* work, const Int* lwork, Real* rwork, Int* bwork, Int* info, Length l1,
                                     Length l2) {
    QV_NEXT(zgees)(jobvs, sort, select, n, a, lda, sdim, w, vs, ldvs, work, lwork, rwork, bwork, info, l1, l2);
    Report(info, failures.gees);
}
QV_REPLACEMENT void QV_LAPACK(dgges)(const char* jobvsl, const char* jobvsr, const char* sort, SelectRealPair select,
                                     const Int* n, Real* a, const Int* lda, Real* b, const Int* ldb, Int* sdim,
                                     Real* alphar, Real* alphai, Real* beta, Real* vsl, const Int* ldvsl, Real* vsr,
                                     const Int* ldvsr, Real* work, const Int* lwork, Int* bwork, Int* info, Length l1,
                                     Length l2, Length l3) {
    QV_NEXT(dgges)
    (jobvsl, jobvsr, sort, select, n, a, lda, b, ldb, sdim, alphar, alphai, beta, vsl, ldvsl, vsr, ldvsr, work, lwork,
     bwork, info, l1, l2, l3);
    Report(info, failures.gges);
}
QV_REPLACEMENT void QV_LAPACK(dhgeqz)(const char* job, const char* compq, const char* compz, const Int* n,
                                      const Int* ilo, const Int* ihi, Real* h, const Int* ldh, Real* t, const Int* ldt,
                                      Real* alphar, Real* alphai, Real* beta, Real* q, const Int* ldq, Real* z,
                                      const Int* ldz, Real* work, const Int* lwork, Int* info, Length l1, Length l2,
                                      Length l3) {
    QV_NEXT(dhgeqz)
    (job, compq, compz, n, ilo, ihi, h, ldh, t, ldt, alphar, alphai, beta, q, ldq, z, ldz, work, lwork, info, l1, l2,
     l3);
    if (failures.refused) Report(info, failures.hgeqz);
}
QV_REPLACEMENT void QV_LAPACK(zhgeqz)(const char* job, const char* compq, const char* compz, const Int* n,
                                      const Int* ilo, const Int* ihi, Complex* h, const Int* ldh, Complex* t,
                                      const Int* ldt, Complex* alpha, Complex* beta, Complex* q, const Int* ldq,
                                      Complex* z, const Int* ldz, Complex* work, const Int* lwork, Real* rwork,
                                      Int* info, Length l1, Length l2, Length l3) {
    QV_NEXT(zhgeqz)
    (job, compq, compz, n, ilo, ihi, h, ldh, t, ldt, alpha, beta, q, ldq, z, ldz, work, lwork, rwork, info, l1, l2, l3);
    Report(info, failures.gges);
}
QV_REPLACEMENT void QV_LAPACK(dgebal)(const char* job, const Int* n, Real* a, const Int* lda, Int* ilo, Int* ihi,
                                      Real* scale, Int* info, Length length) {
    QV_NEXT(dgebal)(job, n, a, lda, ilo, ihi, scale, info, length);
    Report(info, failures.gebal);
}
QV_REPLACEMENT void QV_LAPACK(zgebal)(const char* job, const Int* n, Complex* a, const Int* lda, Int* ilo, Int* ihi,
                                      Real* scale, Int* info, Length length) {
    QV_NEXT(zgebal)(job, n, a, lda, ilo, ihi, scale, info, length);
    Report(info, failures.gebal);
}
QV_REPLACEMENT void QV_LAPACK(dtgevc)(const char* side, const char* howmny, const Int* select, const Int* n,
                                      const Real* s, const Int* lds, const Real* p, const Int* ldp, Real* vl,
                                      const Int* ldvl, Real* vr, const Int* ldvr, const Int* mm, Int* m, Real* work,
                                      Int* info, Length l1, Length l2) {
    QV_NEXT(dtgevc)(side, howmny, select, n, s, lds, p, ldp, vl, ldvl, vr, ldvr, mm, m, work, info, l1, l2);
    Report(info, failures.tgevc);
}
QV_REPLACEMENT void QV_LAPACK(ztgevc)(const char* side, const char* howmny, const Int* select, const Int* n,
                                      const Complex* s, const Int* lds, const Complex* p, const Int* ldp, Complex* vl,
                                      const Int* ldvl, Complex* vr, const Int* ldvr, const Int* mm, Int* m,
                                      Complex* work, Real* rwork, Int* info, Length l1, Length l2) {
    QV_NEXT(ztgevc)(side, howmny, select, n, s, lds, p, ldp, vl, ldvl, vr, ldvr, mm, m, work, rwork, info, l1, l2);
    Report(info, failures.tgevc);
}
QV_REPLACEMENT void QV_LAPACK(dtrexc)(const char* compq, const Int* n, Real* t, const Int* ldt, Real* q, const Int* ldq,
                                      Int* ifst, Int* ilst, Real* work, Int* info, Length length) {
    if (!Refuse(info, failures.trexc)) QV_NEXT(dtrexc)(compq, n, t, ldt, q, ldq, ifst, ilst, work, info, length);
}
QV_REPLACEMENT void QV_LAPACK(dtgexc)(const Int* wantq, const Int* wantz, const Int* n, Real* a, const Int* lda,
                                      Real* b, const Int* ldb, Real* q, const Int* ldq, Real* z, const Int* ldz,
                                      Int* ifst, Int* ilst, Real* work, const Int* lwork, Int* info) {
    if (*lwork == -1 || !Refuse(info, failures.tgexc))
        QV_NEXT(dtgexc)(wantq, wantz, n, a, lda, b, ldb, q, ldq, z, ldz, ifst, ilst, work, lwork, info);
}
QV_REPLACEMENT void QV_LAPACK(ztgexc)(const Int* wantq, const Int* wantz, const Int* n, Complex* a, const Int* lda,
                                      Complex* b, const Int* ldb, Complex* q, const Int* ldq, Complex* z,
                                      const Int* ldz, const Int* ifst, Int* ilst, Int* info) {
    if (!Refuse(info, failures.tgexc))
        QV_NEXT(ztgexc)(wantq, wantz, n, a, lda, b, ldb, q, ldq, z, ldz, ifst, ilst, info);
}

}  // extern "C"

}  // namespace quorvan::provider

namespace quorvan::testing::dense {
namespace {

// Fails nothing before a test and after it.
class ProviderFailure : public ::testing::Test {
protected:
    void SetUp() override { failures = Failures{}; }
    void TearDown() override { failures = Failures{}; }

    // Its eigenvalues want exchanges in ascending order.
    const Reals descending_{3, 1, 1, 0, 2, 1, 0, 0, 1}, unit_{1, 0, 0, 0, 1, 0, 0, 0, 1};
    Reals reals_ = Definite<double>(3);
    Records records_ = Definite<ComplexRecord>(3);
    Reals values_ = Output(3), first_ = Output(9), second_ = Output(9), third_ = Output(9), fourth_ = Output(9);
    Records cvalues_ = RecordOutput(3), cfirst_ = RecordOutput(9), csecond_ = RecordOutput(9),
            cthird_ = RecordOutput(9), cfourth_ = RecordOutput(9), cbeta_ = RecordOutput(3);

    void ExpectUnwritten() const {
        EXPECT_TRUE(Untouched(values_) && Untouched(first_) && Untouched(second_) && Untouched(third_) &&
                    Untouched(fourth_));
        EXPECT_TRUE(Untouched(cvalues_) && Untouched(cfirst_) && Untouched(csecond_) && Untouched(cthird_) &&
                    Untouched(cfourth_) && Untouched(cbeta_));
    }
    Status realQz(const Reals& a, const Reals& b, std::uint32_t sort) {
        return ZemFunc256(a, b, 3, sort, first_, second_, third_, fourth_, cvalues_, values_, cfirst_, csecond_);
    }
    Status complexQz(std::uint32_t sort) {
        return ZemFunc257(records_, records_, 3, sort, cfirst_, csecond_, cthird_, cfourth_, cvalues_, cbeta_, nullptr,
                          nullptr);
    }
};

TEST_F(ProviderFailure, OfSingularValuesIsTooManyIterationsEitherWay) {
    for (int info : {1, -4}) {
        failures.gesdd = info;
        EXPECT_EQ(ZemFunc195(reals_, 3, 3, values_), -20062);
        EXPECT_EQ(ZemFunc193(reals_, 3, 3, first_, values_, second_), -20062);
        EXPECT_EQ(ZemFunc246(reals_, 3, 3, 0, first_, values_, second_), -20062);
        EXPECT_EQ(ZemFunc216(records_, 3, 3, cvalues_), -20062);
        EXPECT_EQ(ZemFunc219(records_, 3, 3, cfirst_, cvalues_, csecond_), -20062);
        EXPECT_EQ(ZemFunc247(records_, 3, 3, 0, cfirst_, cvalues_, csecond_), -20062);
    }
    ExpectUnwritten();
}

TEST_F(ProviderFailure, OfEigenvaluesIsTooManyIterationsOrASeriousFailure) {
    for (auto [info, status] : {std::pair<int, Status>{2, -20062}, {-3, -20999}}) {
        failures.geev = failures.syevd = info;
        EXPECT_EQ(ZemFunc201(reals_, 3, 1, cvalues_, cfirst_), status);
        EXPECT_EQ(ZemFunc211(records_, 3, 0, 1, cvalues_, cfirst_), status);
        EXPECT_EQ(ZemFunc202(reals_, 3, 1, values_, first_), status);
    }
    failures.syevd = 1;
    EXPECT_EQ(ZemFunc211(records_, 3, 1, 1, cvalues_, cfirst_), -20062);
    ExpectUnwritten();
    failures.syevd = -1;
    EXPECT_EQ(ZemFunc211(records_, 3, 1, 1, cvalues_, cfirst_), 0) << "ignored for Hermitian matrices";
}

TEST_F(ProviderFailure, OfASchurFormIsTooManyIterationsEitherWay) {
    for (int info : {1, 4, 5, -1}) {  // n + 1 and n + 2 mean something with a selection only
        failures.gees = info;
        EXPECT_EQ(ZemFunc258(reals_, 3, 1, first_, second_, cvalues_), -20062);
        EXPECT_EQ(ZemFunc259(records_, 3, 1, cfirst_, csecond_, cvalues_), -20062);
    }
    ExpectUnwritten();
}

TEST_F(ProviderFailure, OfBalancingIsASeriousFailure) {
    Size low = -77, high = -77;
    Reals scale = Output(3);
    failures.gebal = -3;
    EXPECT_EQ(ZemFunc248(reals_, 3, 3, &low, &high, scale, first_), -20999);
    EXPECT_EQ(ZemFunc249(records_, 3, 3, &low, &high, scale, cfirst_), -20999);
    EXPECT_EQ(low, -77);
    EXPECT_EQ(high, -77);
    ExpectUnwritten();
}

TEST_F(ProviderFailure, OfAPencilIsTooManyIterationsOrASeriousFailure) {
    for (auto [info, status] : {std::pair<int, Status>{2, -20062}, {-3, -20999}}) {
        failures.gges = info;
        EXPECT_EQ(realQz(reals_, reals_, 1), status);
        EXPECT_EQ(complexQz(1), status);
        EXPECT_EQ(ZemFunc252(reals_, reals_, 3, cvalues_, nullptr, nullptr), status);
        EXPECT_EQ(ZemFunc253(records_, records_, 3, cvalues_, nullptr, nullptr), status);
        failures.gges = 0;
        failures.tgevc = info;
        EXPECT_EQ(realQz(reals_, reals_, 0), status);
        failures.tgevc = 0;
    }
    ExpectUnwritten();
}

TEST_F(ProviderFailure, OfASchurExchangeIsAWarningWithAValidFormThatIsPartlyOrdered) {
    failures.trexc = 1;
    failures.refused_exchanges = 1;
    ASSERT_EQ(ZemFunc258(descending_, 3, 1, first_, second_, cvalues_), 20005);
    EXPECT_TRUE(SameElements(second_, descending_)) << "the first exchange was refused";
    for (int i = 0; i < 3; ++i) EXPECT_EQ(cvalues_[i].re, 3 - i);
}

TEST_F(ProviderFailure, OfAnExchangeIsHiddenWhereTheSecondFormCanBeOrdered) {
    failures.tgexc = 1;
    failures.refused_exchanges = 1;
    ASSERT_EQ(realQz(descending_, unit_, 1), 0);
    EXPECT_TRUE(failures.refused);
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(cvalues_[i].re / values_[i], i + 1, Bound(3, 3));
}

TEST_F(ProviderFailure, OfAnExchangeInBothFormsIsAnError) {
    failures.tgexc = 1;
    failures.refused_exchanges = 2;
    EXPECT_EQ(realQz(descending_, unit_, 1), -20073);
    failures.refused_exchanges = 1;
    for (int i = 0; i < 9; ++i) records_[i] = {descending_[i], 0};
    Records unit(9);
    for (int i = 0; i < 9; i += 4) unit[i] = {1, 0};
    EXPECT_EQ(
        ZemFunc257(records_, unit, 3, 1, cfirst_, csecond_, cthird_, cfourth_, cvalues_, cbeta_, nullptr, nullptr),
        -20073)
        << "the complex form has one way only";
    ExpectUnwritten();
}

TEST_F(ProviderFailure, OfTheSecondFormLeavesTheFirstWithAWarning) {
    failures.tgexc = 1;
    failures.refused_exchanges = 1;
    failures.hgeqz = 2;
    ASSERT_EQ(realQz(descending_, unit_, 1), 20005);
    // Valid, and not ordered: the first exchange was refused.
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(cvalues_[i].re / values_[i], 3 - i, Bound(3, 3));
    for (int i = 0; i < 9; ++i) EXPECT_NEAR(std::fabs(first_[i]), descending_[i], Bound(3, 3));
}

TEST_F(ProviderFailure, OfAnExchangeByItsArgumentsIsASeriousFailureWithoutASecondForm) {
    failures.tgexc = -4;
    failures.refused_exchanges = 1;
    EXPECT_EQ(realQz(descending_, unit_, 1), -20999);
    ExpectUnwritten();
}

TEST_F(ProviderFailure, OfTheSecondFormByItsArgumentsIsASeriousFailure) {
    failures.tgexc = 1;
    failures.refused_exchanges = 1;
    failures.hgeqz = -4;
    EXPECT_EQ(realQz(descending_, unit_, 1), -20999);
    ExpectUnwritten();
}

}  // namespace
}  // namespace quorvan::testing::dense
