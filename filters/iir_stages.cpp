#include "filters/iir_stages.h"

#include <cmath>

namespace quorvan {
namespace {

// Lowpass: s = (1/w) (1 - z^-1) / (1 + z^-1). Highpass: its reciprocal, which for poles and zeros that are replaced by
// their own reciprocals is the same denominator.
IirStage OfRealPole(bool high, double w, double rho, double h) {
    const double x = high ? 1 / rho * w : rho * w;
    const double b0 = (high ? h : h * x) / (1 + x);
    return {{-(1 - x) / (1 + x)}, {b0, high ? -b0 : b0}};
}

IirStage OfPair(bool high, double w, const PrototypeSection& section) {
    const bool zeros = section.shape == PrototypeSection::kPairWithZeros;
    const double h = section.h, square = section.zeta * section.zeta;
    const double sigma = high ? section.sigma / section.q : section.sigma, q = high ? 1 / section.q : section.q;
    const double c = 2 * sigma * w, Q = q * (w * w), D = 1 + c + Q;
    IirStage stage = {{-2 * (1 - Q) / D, (1 - c + Q) / D}, {}};
    double* const b = stage.b;
    if (zeros || high) {
        const double Z = !zeros ? 0 : (high ? 1 / square : square) * (w * w);
        const double g = high ? h : h * Q / Z;
        b[0] = g * (1 + Z) / D;
        b[1] = -2 * g * (1 - Z) / D;
    } else {
        b[0] = h * Q / D;
        b[1] = 2 * b[0];
    }
    b[2] = b[0];
    return stage;
}

// Bandpass: s = ((1 + P) + 2 (P - 1) z^-1 + (1 + P) z^-2) / (B (1 - z^-2)). Bandstop: its reciprocal.
IirStage OfBandRealPole(bool stop, double B, double P, double rho, double h) {
    const double x = stop ? B / rho : rho * B, D = 1 + x + P;
    IirStage stage = {{-2 * (1 - P) / D, (1 - x + P) / D}, {}};
    stage.b[0] = h * (stop ? 1 + P : x) / D;
    stage.b[1] = stop ? h * stage.a[0] : 0;
    stage.b[2] = stop ? stage.b[0] : -stage.b[0];
    return stage;
}

IirStage OfBandPair(bool stop, double B, double P, const PrototypeSection& section) {
    const bool zeros = section.shape == PrototypeSection::kPairWithZeros;
    const double h = section.h, square = section.zeta * section.zeta;
    const double sigma = stop ? section.sigma / section.q : section.sigma, q = stop ? 1 / section.q : section.q;
    const double c = 2 * sigma * B, R = q * (B * B) + 2 * P, PP = P * P;
    const double D = 1 + c + R + c * P + PP, e = 2 * c * (1 - P);
    IirStage stage = {
        {(4 * PP - 4 - e) / D, (6 - 2 * R + 6 * PP) / D, (4 * PP - 4 + e) / D, (1 - c + R - c * P + PP) / D}, {}};
    double* const b = stage.b;
    if (zeros || stop) {
        const double Z = (!zeros ? 0 : (stop ? 1 / square : square) * (B * B)) + 2 * P;
        const double g = stop ? h : h * q / square;
        b[0] = b[4] = g * (1 + Z + PP) / D;
        b[1] = b[3] = -4 * g * (1 - PP) / D;
        b[2] = g * (6 - 2 * Z + 6 * PP) / D;
    } else {
        b[0] = b[4] = h * q * (B * B) / D;
        b[1] = b[3] = 0;
        b[2] = -2 * b[0];
    }
    return stage;
}

// Two stages of half the width as one.
IirStage Product(const IirStage& x, const IirStage& y, int half) {
    IirStage product = {};
    for (int i = 0; i <= half; ++i)
        for (int j = 0; j <= half; ++j) {
            product.b[i + j] += x.b[i] * y.b[j];
            if (i + j > 0) product.a[i + j - 1] += (i > 0 ? x.a[i - 1] : 1) * (j > 0 ? y.a[j - 1] : 1);
        }
    return product;
}

}  // namespace

IirWarp IirPrewarp(std::uint32_t kind, double fs, double fl, double fh) noexcept {
    const double low = std::tan(kPi * fl / fs);
    if (!IsBand(kind)) return {low, 0, 0};
    const double high = std::tan(kPi * fh / fs);
    return {0, high - low, high * low};
}

IirStage IirStageOf(std::uint32_t kind, const IirWarp& warp, const PrototypeSection& section) noexcept {
    const bool band = IsBand(kind), reciprocal = kind == kHighpass || kind == kBandstop;
    const auto real_pole = [&](double rho, double h) {
        return band ? OfBandRealPole(reciprocal, warp.B, warp.P, rho, h) : OfRealPole(reciprocal, warp.w, rho, h);
    };
    switch (section.shape) {
        case PrototypeSection::kRealPole: return real_pole(section.rho, section.h);
        case PrototypeSection::kTwoRealPoles:
            return Product(real_pole(section.rho, section.h), real_pole(section.rho2, 1), StageWidth(kind) / 2);
        default: return band ? OfBandPair(reciprocal, warp.B, warp.P, section) : OfPair(reciprocal, warp.w, section);
    }
}

}  // namespace quorvan
