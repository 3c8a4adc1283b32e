#include "transforms/fft.h"

#include <cmath>
#include <initializer_list>

#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {

struct FftPlan {
    Count size;
};

FftPlan* FftPlanCreate(Count size) noexcept {
    if (size < 1) return nullptr;
    Block<FftPlan> plan(1);
    if (plan) plan.get()->size = size;
    return plan.release();
}
void FftPlanRelease(FftPlan* plan) noexcept { HeapFree(plan); }
Count FftPlanSize(const FftPlan* plan) noexcept { return plan->size; }

Count FftFastSize(Count n) noexcept {
    for (; n > 1; ++n) {
        Count rest = n;
        for (Count p : {2, 3, 5, 7, 11, 13, 17, 19, 29, 31, 37, 41, 43})
            while (rest % p == 0) rest /= p;
        if (rest == 1) break;
    }
    return n;
}

Status FftComplex(const FftPlan*, const double* inRe, const double* inIm, double* outRe, double* outIm,
                  Count inStride, Count outStride, Count n) noexcept {
    for (Size k = 0; k < n; ++k) {
        double re = 0, im = 0;
        for (Size j = 0; j < n; ++j) {
            const double angle = -kTwoPi * double(j * k % n) / n, c = std::cos(angle), s = std::sin(angle);
            re += inRe[j * inStride] * c - inIm[j * inStride] * s;
            im += inRe[j * inStride] * s + inIm[j * inStride] * c;
        }
        outRe[k * outStride] = re;
        outIm[k * outStride] = im;
    }
    return status::kSuccess;
}
Status FftComplexInverse(const FftPlan* plan, const double* inRe, const double* inIm, double* outRe, double* outIm,
                         Count inStride, Count outStride, Count n) noexcept {
    FftComplex(plan, inIm, inRe, outIm, outRe, inStride, outStride, n);
    for (Size k = 0; k < n; ++k) {
        outRe[k * outStride] /= n;
        outIm[k * outStride] /= n;
    }
    return status::kSuccess;
}
Status FftReal(const FftPlan*, const double* in, double* out, Count inStride, Count outStride, Count n) noexcept {
    for (Size k = 0; k <= n / 2; ++k) {
        double re = 0, im = 0;
        for (Size j = 0; j < n; ++j) {
            const double angle = -kTwoPi * double(j * k % n) / n;
            re += in[j * inStride] * std::cos(angle);
            im += in[j * inStride] * std::sin(angle);
        }
        out[k * outStride] = re;
        if (k > 0 && 2 * k < n) out[(n - k) * outStride] = im;
    }
    return status::kSuccess;
}
Status FftRealInverse(const FftPlan* plan, double* in, double* out, Count inStride, Count outStride,
                      Count n) noexcept {
    for (Size k = 0; k < n; ++k) in[k * inStride] *= 1.0 / n;
    const auto hartley = [n](double* h, Size stride) {
        for (Size k = 1; k < (Size(n) + 1) / 2; ++k) {
            const double a = h[k * stride], b = h[(n - k) * stride];
            h[k * stride] = a - b;
            h[(n - k) * stride] = a + b;
        }
    };
    hartley(in, inStride);
    FftReal(plan, in, out, inStride, outStride, n);
    hartley(out, outStride);
    return status::kSuccess;
}

}  // namespace quorvan
