// The generic symmetric DFT for the prime factors 23 and 47, on the cosine and sine tables of their stage.
//
// With h = p/2, sums a[j] = x[j] + x[p-j] and differences b[j] = x[j] - x[p-j]:
//     X[k], X[p-k] = x[0] + sum over j of cos(2 pi j k / p) a[j]  -+  i sum over j of sin(2 pi j k / p) b[j].
#include "transforms/kernels/entries.h"

namespace quorvan::QV_TARGET {
namespace {

template <int p>
struct GenericPrime {
    static constexpr int kSize = p;
    static constexpr int h = p / 2;

    // Each out(k, cosine sum of a, sine sum of b) gives the sums of the pair k, p - k; the sines are negated.
    template <class V, class Out>
    static void Sums(const FftStage& stage, const V* a, const V* b, const Out& out) {
        for (int k = 1; k <= h; ++k) {
            V even = a[0], odd = V{};
            for (int j = 1, q = k; j <= h; ++j) {
                even += stage.primeCos[q] * a[j];
                odd += stage.primeSin[q] * b[j];
                q += k;
                if (q >= p) q -= p;
            }
            out(k, even, odd);
        }
    }

    template <class V, class In, class Out>
    static void Complex(const FftStage& stage, const In& in, const Out& out) {
        V aRe[h + 1], aIm[h + 1], bRe[h + 1], bIm[h + 1], oddRe[h + 1], evenRe[h + 1];
        in(0, aRe[0], aIm[0]);
        V totalRe = aRe[0], totalIm = aIm[0];
        for (int k = 1; k <= h; ++k) {
            V re, im, mirrorRe, mirrorIm;
            in(k, re, im);
            in(p - k, mirrorRe, mirrorIm);
            aRe[k] = re + mirrorRe, aIm[k] = im + mirrorIm;
            bRe[k] = re - mirrorRe, bIm[k] = im - mirrorIm;
            totalRe += aRe[k], totalIm += aIm[k];
        }
        out(0, totalRe, totalIm);
        Sums(stage, aRe, bIm, [&](int k, V even, V odd) { evenRe[k] = even, oddRe[k] = odd; });
        Sums(stage, aIm, bRe, [&](int k, V even, V odd) {
            out(k, evenRe[k] - oddRe[k], even + odd);
            out(p - k, evenRe[k] + oddRe[k], even - odd);
        });
    }

    template <class V, class Out>
    static void RealFrom(const FftStage& stage, const V* x, const Out& out) {
        V a[h + 1], b[h + 1];
        a[0] = x[0];
        V total = x[0];
        for (int k = 1; k <= h; ++k) {
            a[k] = x[k] + x[p - k];
            b[k] = x[k] - x[p - k];
            total += a[k];
        }
        out(0, total, V{});
        Sums(stage, a, b, out);
    }

    template <class V, class In, class Out>
    static void Real(const FftStage& stage, const In& in, const Out& out) {
        V x[p];
        for (int k = 0; k < p; ++k) x[k] = in(k);
        RealFrom(stage, x, out);
    }

    // Half a bin further up: the sum over t of x[t] exp(-i pi t (2k + 1) / p) is the conjugate of bin h - k of the
    // DFT of (-1)^t x[t].
    template <class V, class In, class Out>
    static void Middle(const FftStage& stage, const In& in, const Out& out) {
        V x[p];
        for (int k = 0; k < p; ++k) x[k] = k % 2 ? -in(k) : in(k);
        RealFrom(stage, x, [&](int k, V re, V im) { out(h - k, re, -im); });
    }
};

}  // namespace

extern const FftKernel kDft23;
const FftKernel kDft23 = kEntries<GenericPrime<23>>;
extern const FftKernel kDft47;
const FftKernel kDft47 = kEntries<GenericPrime<47>>;

}  // namespace quorvan::QV_TARGET
