// The dense linear algebra provider: the BLAS and LAPACK routines that the library calls, and no others, with the types
// it uses. 32-bit integers; every argument of LAPACK by reference, a hidden length behind the arguments for each
// character argument, as Fortran compilers pass it (a provider without hidden lengths ignores them).
//
// Call them through linalg/lapack.h, which takes values and picks the real or complex twin by type.
#pragma once

#include <cstddef>

#include "frame/platform.h"
#include "frame/types.h"

namespace quorvan::provider {

enum class Order : int { kRowMajor = 101, kColumnMajor = 102 };
enum class Transposition : int { kNone = 111, kTransposed = 112, kConjugated = 113 };

using Int = Count;
using Real = double;
using Complex = ComplexRecord;
using Length = std::size_t;

// A choice of eigenvalues during a Schur factorisation; the library passes none.
using SelectReal = Int (*)(const Real*, const Real*);
using SelectRealPair = Int (*)(const Real*, const Real*, const Real*);
using SelectComplex = Int (*)(const Complex*);

extern "C" {

// Level 1.
void cblas_dcopy(Int n, const Real* x, Int incx, Real* y, Int incy);
void cblas_daxpy(Int n, Real alpha, const Real* x, Int incx, Real* y, Int incy);
Real cblas_ddot(Int n, const Real* x, Int incx, const Real* y, Int incy);
Real cblas_dnrm2(Int n, const Real* x, Int incx);
std::size_t cblas_idamax(Int n, const Real* x, Int incx);
void cblas_zcopy(Int n, const void* x, Int incx, void* y, Int incy);
void cblas_zaxpy(Int n, const void* alpha, const void* x, Int incx, void* y, Int incy);
Real cblas_dznrm2(Int n, const void* x, Int incx);
void cblas_zdotc_sub(Int n, const void* x, Int incx, const void* y, Int incy, void* out);
void cblas_zdotu_sub(Int n, const void* x, Int incx, const void* y, Int incy, void* out);

// Levels 2 and 3.
void cblas_dgemv(Order order, Transposition trans, Int m, Int n, Real alpha, const Real* a, Int lda, const Real* x,
                 Int incx, Real beta, Real* y, Int incy);
void cblas_zgemv(Order order, Transposition trans, Int m, Int n, const void* alpha, const void* a, Int lda,
                 const void* x, Int incx, const void* beta, void* y, Int incy);
void cblas_dgemm(Order order, Transposition transa, Transposition transb, Int m, Int n, Int k, Real alpha,
                 const Real* a, Int lda, const Real* b, Int ldb, Real beta, Real* c, Int ldc);
void cblas_zgemm(Order order, Transposition transa, Transposition transb, Int m, Int n, Int k, const void* alpha,
                 const void* a, Int lda, const void* b, Int ldb, const void* beta, void* c, Int ldc);

// Utility.
Real QV_LAPACK(dlapy2)(const Real* x, const Real* y);

// Factorisation and solution.
void QV_LAPACK(dgetrf)(const Int* m, const Int* n, Real* a, const Int* lda, Int* ipiv, Int* info);
void QV_LAPACK(zgetrf)(const Int* m, const Int* n, Complex* a, const Int* lda, Int* ipiv, Int* info);
void QV_LAPACK(dgetri)(const Int* n, Real* a, const Int* lda, const Int* ipiv, Real* work, const Int* lwork, Int* info);
void QV_LAPACK(zgetri)(const Int* n, Complex* a, const Int* lda, const Int* ipiv, Complex* work, const Int* lwork,
                       Int* info);
void QV_LAPACK(dgesv)(const Int* n, const Int* nrhs, Real* a, const Int* lda, Int* ipiv, Real* b, const Int* ldb,
                      Int* info);
void QV_LAPACK(dgbsv)(const Int* n, const Int* kl, const Int* ku, const Int* nrhs, Real* ab, const Int* ldab, Int* ipiv,
                      Real* b, const Int* ldb, Int* info);
void QV_LAPACK(dpotrf)(const char* uplo, const Int* n, Real* a, const Int* lda, Int* info, Length);
void QV_LAPACK(zpotrf)(const char* uplo, const Int* n, Complex* a, const Int* lda, Int* info, Length);
void QV_LAPACK(dpotri)(const char* uplo, const Int* n, Real* a, const Int* lda, Int* info, Length);
void QV_LAPACK(zpotri)(const char* uplo, const Int* n, Complex* a, const Int* lda, Int* info, Length);
void QV_LAPACK(dposv)(const char* uplo, const Int* n, const Int* nrhs, Real* a, const Int* lda, Real* b, const Int* ldb,
                      Int* info, Length);
void QV_LAPACK(zposv)(const char* uplo, const Int* n, const Int* nrhs, Complex* a, const Int* lda, Complex* b,
                      const Int* ldb, Int* info, Length);
void QV_LAPACK(dtrtri)(const char* uplo, const char* diag, const Int* n, Real* a, const Int* lda, Int* info, Length,
                       Length);
void QV_LAPACK(ztrtri)(const char* uplo, const char* diag, const Int* n, Complex* a, const Int* lda, Int* info, Length,
                       Length);
void QV_LAPACK(dtptrs)(const char* uplo, const char* trans, const char* diag, const Int* n, const Int* nrhs,
                       const Real* ap, Real* b, const Int* ldb, Int* info, Length, Length, Length);
void QV_LAPACK(ztptrs)(const char* uplo, const char* trans, const char* diag, const Int* n, const Int* nrhs,
                       const Complex* ap, Complex* b, const Int* ldb, Int* info, Length, Length, Length);

// QR, LQ, least squares.
void QV_LAPACK(dgeqp3)(const Int* m, const Int* n, Real* a, const Int* lda, Int* jpvt, Real* tau, Real* work,
                       const Int* lwork, Int* info);
void QV_LAPACK(zgeqp3)(const Int* m, const Int* n, Complex* a, const Int* lda, Int* jpvt, Complex* tau, Complex* work,
                       const Int* lwork, Real* rwork, Int* info);
void QV_LAPACK(dorgqr)(const Int* m, const Int* n, const Int* k, Real* a, const Int* lda, const Real* tau, Real* work,
                       const Int* lwork, Int* info);
void QV_LAPACK(zungqr)(const Int* m, const Int* n, const Int* k, Complex* a, const Int* lda, const Complex* tau,
                       Complex* work, const Int* lwork, Int* info);
void QV_LAPACK(dgelqf)(const Int* m, const Int* n, Real* a, const Int* lda, Real* tau, Real* work, const Int* lwork,
                       Int* info);
void QV_LAPACK(zgelqf)(const Int* m, const Int* n, Complex* a, const Int* lda, Complex* tau, Complex* work,
                       const Int* lwork, Int* info);
void QV_LAPACK(dorglq)(const Int* m, const Int* n, const Int* k, Real* a, const Int* lda, const Real* tau, Real* work,
                       const Int* lwork, Int* info);
void QV_LAPACK(zunglq)(const Int* m, const Int* n, const Int* k, Complex* a, const Int* lda, const Complex* tau,
                       Complex* work, const Int* lwork, Int* info);
void QV_LAPACK(dgelsd)(const Int* m, const Int* n, const Int* nrhs, Real* a, const Int* lda, Real* b, const Int* ldb,
                       Real* s, const Real* rcond, Int* rank, Real* work, const Int* lwork, Int* iwork, Int* info);

// Singular values.
void QV_LAPACK(dgesdd)(const char* jobz, const Int* m, const Int* n, Real* a, const Int* lda, Real* s, Real* u,
                       const Int* ldu, Real* vt, const Int* ldvt, Real* work, const Int* lwork, Int* iwork, Int* info,
                       Length);
void QV_LAPACK(zgesdd)(const char* jobz, const Int* m, const Int* n, Complex* a, const Int* lda, Real* s, Complex* u,
                       const Int* ldu, Complex* vt, const Int* ldvt, Complex* work, const Int* lwork, Real* rwork,
                       Int* iwork, Int* info, Length);

// Eigenvalues.
void QV_LAPACK(dgeev)(const char* jobvl, const char* jobvr, const Int* n, Real* a, const Int* lda, Real* wr, Real* wi,
                      Real* vl, const Int* ldvl, Real* vr, const Int* ldvr, Real* work, const Int* lwork, Int* info,
                      Length, Length);
void QV_LAPACK(zgeev)(const char* jobvl, const char* jobvr, const Int* n, Complex* a, const Int* lda, Complex* w,
                      Complex* vl, const Int* ldvl, Complex* vr, const Int* ldvr, Complex* work, const Int* lwork,
                      Real* rwork, Int* info, Length, Length);
void QV_LAPACK(dsyevd)(const char* jobz, const char* uplo, const Int* n, Real* a, const Int* lda, Real* w, Real* work,
                       const Int* lwork, Int* iwork, const Int* liwork, Int* info, Length, Length);
void QV_LAPACK(zheevd)(const char* jobz, const char* uplo, const Int* n, Complex* a, const Int* lda, Real* w,
                       Complex* work, const Int* lwork, Real* rwork, const Int* lrwork, Int* iwork, const Int* liwork,
                       Int* info, Length, Length);
void QV_LAPACK(dgees)(const char* jobvs, const char* sort, SelectReal select, const Int* n, Real* a, const Int* lda,
                      Int* sdim, Real* wr, Real* wi, Real* vs, const Int* ldvs, Real* work, const Int* lwork,
                      Int* bwork, Int* info, Length, Length);
void QV_LAPACK(zgees)(const char* jobvs, const char* sort, SelectComplex select, const Int* n, Complex* a,
                      const Int* lda, Int* sdim, Complex* w, Complex* vs, const Int* ldvs, Complex* work,
                      const Int* lwork, Real* rwork, Int* bwork, Int* info, Length, Length);
void QV_LAPACK(dgebal)(const char* job, const Int* n, Real* a, const Int* lda, Int* ilo, Int* ihi, Real* scale,
                       Int* info, Length);
void QV_LAPACK(zgebal)(const char* job, const Int* n, Complex* a, const Int* lda, Int* ilo, Int* ihi, Real* scale,
                       Int* info, Length);
void QV_LAPACK(dgebak)(const char* job, const char* side, const Int* n, const Int* ilo, const Int* ihi,
                       const Real* scale, const Int* m, Real* v, const Int* ldv, Int* info, Length, Length);
void QV_LAPACK(zgebak)(const char* job, const char* side, const Int* n, const Int* ilo, const Int* ihi,
                       const Real* scale, const Int* m, Complex* v, const Int* ldv, Int* info, Length, Length);
void QV_LAPACK(dgehrd)(const Int* n, const Int* ilo, const Int* ihi, Real* a, const Int* lda, Real* tau, Real* work,
                       const Int* lwork, Int* info);
void QV_LAPACK(zgehrd)(const Int* n, const Int* ilo, const Int* ihi, Complex* a, const Int* lda, Complex* tau,
                       Complex* work, const Int* lwork, Int* info);
void QV_LAPACK(dorghr)(const Int* n, const Int* ilo, const Int* ihi, Real* a, const Int* lda, const Real* tau,
                       Real* work, const Int* lwork, Int* info);
void QV_LAPACK(zunghr)(const Int* n, const Int* ilo, const Int* ihi, Complex* a, const Int* lda, const Complex* tau,
                       Complex* work, const Int* lwork, Int* info);
void QV_LAPACK(dtrexc)(const char* compq, const Int* n, Real* t, const Int* ldt, Real* q, const Int* ldq, Int* ifst,
                       Int* ilst, Real* work, Int* info, Length);
void QV_LAPACK(ztrexc)(const char* compq, const Int* n, Complex* t, const Int* ldt, Complex* q, const Int* ldq,
                       const Int* ifst, const Int* ilst, Int* info, Length);

// Generalised eigenproblem.
void QV_LAPACK(dgges)(const char* jobvsl, const char* jobvsr, const char* sort, SelectRealPair select, const Int* n,
                      Real* a, const Int* lda, Real* b, const Int* ldb, Int* sdim, Real* alphar, Real* alphai,
                      Real* beta, Real* vsl, const Int* ldvsl, Real* vsr, const Int* ldvsr, Real* work,
                      const Int* lwork, Int* bwork, Int* info, Length, Length, Length);
void QV_LAPACK(dgghrd)(const char* compq, const char* compz, const Int* n, const Int* ilo, const Int* ihi, Real* a,
                       const Int* lda, Real* b, const Int* ldb, Real* q, const Int* ldq, Real* z, const Int* ldz,
                       Int* info, Length, Length);
void QV_LAPACK(zgghrd)(const char* compq, const char* compz, const Int* n, const Int* ilo, const Int* ihi, Complex* a,
                       const Int* lda, Complex* b, const Int* ldb, Complex* q, const Int* ldq, Complex* z,
                       const Int* ldz, Int* info, Length, Length);
void QV_LAPACK(dhgeqz)(const char* job, const char* compq, const char* compz, const Int* n, const Int* ilo,
                       const Int* ihi, Real* h, const Int* ldh, Real* t, const Int* ldt, Real* alphar, Real* alphai,
                       Real* beta, Real* q, const Int* ldq, Real* z, const Int* ldz, Real* work, const Int* lwork,
                       Int* info, Length, Length, Length);
void QV_LAPACK(zhgeqz)(const char* job, const char* compq, const char* compz, const Int* n, const Int* ilo,
                       const Int* ihi, Complex* h, const Int* ldh, Complex* t, const Int* ldt, Complex* alpha,
                       Complex* beta, Complex* q, const Int* ldq, Complex* z, const Int* ldz, Complex* work,
                       const Int* lwork, Real* rwork, Int* info, Length, Length, Length);
void QV_LAPACK(dtgevc)(const char* side, const char* howmny, const Int* select, const Int* n, const Real* s,
                       const Int* lds, const Real* p, const Int* ldp, Real* vl, const Int* ldvl, Real* vr,
                       const Int* ldvr, const Int* mm, Int* m, Real* work, Int* info, Length, Length);
void QV_LAPACK(ztgevc)(const char* side, const char* howmny, const Int* select, const Int* n, const Complex* s,
                       const Int* lds, const Complex* p, const Int* ldp, Complex* vl, const Int* ldvl, Complex* vr,
                       const Int* ldvr, const Int* mm, Int* m, Complex* work, Real* rwork, Int* info, Length, Length);
void QV_LAPACK(dtgexc)(const Int* wantq, const Int* wantz, const Int* n, Real* a, const Int* lda, Real* b,
                       const Int* ldb, Real* q, const Int* ldq, Real* z, const Int* ldz, Int* ifst, Int* ilst,
                       Real* work, const Int* lwork, Int* info);
void QV_LAPACK(ztgexc)(const Int* wantq, const Int* wantz, const Int* n, Complex* a, const Int* lda, Complex* b,
                       const Int* ldb, Complex* q, const Int* ldq, Complex* z, const Int* ldz, const Int* ifst,
                       Int* ilst, Int* info);

}  // extern "C"

}  // namespace quorvan::provider
