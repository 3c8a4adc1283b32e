#include "sources/window_tables.h"

#include "frame/status.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

// Hann, Hamming, Blackman and Harris: F. J. Harris, "On the use of windows for harmonic analysis with the discrete
// Fourier transform", Proc. IEEE 66 (1978). Blackman-Nuttall: A. H. Nuttall, "Some windows with very good sidelobe
// behavior", IEEE Trans. ASSP 29 (1981). The five coefficients of the flat top sum to 1.000000001; they are not
// renormalised, deliberately.
struct CosineWindow {
    std::int32_t code;
    std::uint32_t count;
    double a[7];
    WinProperties properties;
};
constexpr CosineWindow kCosineWindows[] = {
    {QV_WINDOW_RECTANGULAR, 1, {1.0}, {1.0, 1.0}},
    {QV_WINDOW_HANNING, 2, {0.5, 0.5}, {1.5, 0.5}},
    {QV_WINDOW_HAMMING, 2, {0.54, 0.46}, {1.362826, 0.54}},
    {QV_WINDOW_BLACKMAN_HARRIS3, 3, {0.42323, 0.49755, 0.07922}, {1.708538, 0.42323}},
    // The printed gain is rounded; scaled data are divided by a[0] itself.
    {QV_WINDOW_EXACT_BLACKMAN,
     3,
     {0.4265907136715391, 0.4965606190885641, 0.07684866723989682},
     {1.693699, 0.42659071367}},
    {QV_WINDOW_BLACKMAN, 3, {0.42, 0.5, 0.08}, {1.726757, 0.42}},
    {QV_WINDOW_FLAT_TOP,
     5,
     {0.215578948, 0.41663158, 0.277263158, 0.083578947, 0.006947368},
     {3.770246506303, 0.215578948}},
    {QV_WINDOW_BLACKMAN_HARRIS4, 4, {0.35875, 0.48829, 0.14128, 0.01168}, {2.004353, 0.35875}},
    {QV_WINDOW_BLACKMAN_HARRIS7,
     7,
     {0.27105140069342415, 0.43329793923448606, 0.21812299954311062, 0.0659254463880309, 0.010811742098372268,
      0.0007765848252250934, 1.3887217350903198e-05},
     {2.631905, 0.27105140069342415}},
    {QV_WINDOW_LOW_SIDELOBE,
     5,
     {0.323215218, 0.471492057, 0.17553428, 0.028497078, 0.001261367},
     {2.215350782519, 0.323215218}},
    {QV_WINDOW_BLACKMAN_NUTTALL, 4, {0.3635819, 0.4891775, 0.1365995, 0.0106411}, {1.9761117, 0.3635819}},
};

// Properties that only WinPropertiesFixed prints; everything else measures these windows.
struct PrintedProperties {
    std::int32_t code;
    WinProperties properties;
};
constexpr PrintedProperties kPrintedProperties[] = {
    {QV_WINDOW_BARTLETT_HANNING, {1.45584787, 0.5}},
    {QV_WINDOW_BOHMAN, {1.78574087544, 0.40528473457}},
    {QV_WINDOW_PARZEN, {1.91746031746, 0.375}},
    {QV_WINDOW_WELCH, {1.2, 0.66666667}},
};

template <class Row, std::size_t kRows>
const Row* Find(const Row (&table)[kRows], std::int64_t code) noexcept {
    for (const Row& row : table)
        if (row.code == code) return &row;
    return nullptr;
}

}  // namespace

WinCoefficients WinCoefficientsOf(std::int32_t code) noexcept {
    const CosineWindow* window = Find(kCosineWindows, code);
    return window ? WinCoefficients{window->a, window->count} : WinCoefficients{nullptr, 0};
}

const WinProperties* WinStoredProperties(std::int32_t code) noexcept {
    const CosineWindow* window = Find(kCosineWindows, code);
    return window ? &window->properties : nullptr;
}

Status WinPropertiesFixed(std::uint32_t code, WinProperties* properties) noexcept {
    if (const CosineWindow* window = Find(kCosineWindows, code)) {
        *properties = window->properties;
        return status::kSuccess;
    }
    if (const PrintedProperties* window = Find(kPrintedProperties, code)) {
        *properties = window->properties;
        return status::kSuccess;
    }
    return status::kInvalidSelection;
}

}  // namespace quorvan
