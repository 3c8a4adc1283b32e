#include "measure/units.h"

#include <cmath>
#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

enum Kind : std::uint32_t { kPowerSpectrum, kAmplitudeSpectrum, kMagnitude };
enum Display : std::uint32_t { kLinear, kDecibel, kDecibelReferred };
enum Flag : std::int32_t { kPeak = 1, kPower = 2, kDensity = 4 };

// The reference of "dBm", in the unit of a power spectrum.
constexpr double kReference = 0.6084;

// What follows the base unit, by the flags; decibels do not tell amplitude from power, densities of power aside.
struct Suffix {
    const char* linear;
    const char* decibel;
};
constexpr Suffix kSuffixes[8] = {
    {"rms", "rms"},           {"pk", "pk"},           {"rms^2", "rms"},         {"pk^2", "pk"},
    {"rms/rtHz", "rms/rtHz"}, {"pk/rtHz", "pk/rtHz"}, {"rms^2/Hz", "rms^2/Hz"}, {"pk^2/Hz", "pk^2/Hz"},
};

void ToDecibels(double* x, Count n, double factor, double reference = 1) noexcept {
    for (Count i = 0; i < n; ++i) x[i] = factor * std::log10(std::fabs(x[i]) / reference);
}

// prefix, base unit, suffix in place of the base unit.
Status RebuildUnit(char* unit, const char* prefix, const char* suffix) noexcept {
    const std::size_t size = std::strlen(unit) + 1;
    Block<char> base(size);
    if (!base) return status::kOutOfMemory;
    std::memcpy(base, unit, size);
    std::strcpy(unit, prefix);
    std::strcat(unit, base);
    std::strcat(unit, suffix);
    return status::kSuccess;
}

}  // namespace

Status SpecUnitConvert(const double* spectrum, Count n, std::uint32_t kind, std::uint32_t display, std::int32_t flags,
                       double df, const WinProperties& window, double* out, char* unit) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (kind > kMagnitude || display > kDecibelReferred || flags < 0 || flags > 7) return status::kInvalidSelection;
    const double perHertz = 1.0 / (df * window.enbw);
    std::memmove(out, spectrum, sizeof(double) * static_cast<std::size_t>(n));

    if (kind == kMagnitude) {
        if (display != kLinear) ToDecibels(out, n, 20);
        std::strcpy(unit, display == kLinear ? "" : "dB");
        return status::kSuccess;
    }

    if (kind == kAmplitudeSpectrum)
        for (Count i = 0; i < n; ++i) out[i] = out[i] * out[i];
    if (flags & kDensity)
        for (Count i = 0; i < n; ++i) out[i] *= perHertz;
    // Deliberate: "dBm" ignores the peak scale, though not the density. The mean in bin 0 has no peak.
    if (flags & kPeak && display != kDecibelReferred)
        for (Count i = 1; i < n; ++i) out[i] *= 2.0;

    if (display == kDecibelReferred) {
        ToDecibels(out, n, 10, kReference);
        std::strcpy(unit, "dBm");
        return status::kSuccess;
    }
    if (display == kDecibel) {
        ToDecibels(out, n, 10);
        return RebuildUnit(unit, "dB", kSuffixes[flags].decibel);
    }
    if (!(flags & kPower))
        for (Count i = 0; i < n; ++i) out[i] = std::sqrt(std::fabs(out[i]));
    return RebuildUnit(unit, "", kSuffixes[flags].linear);
}

}  // namespace quorvan
