// Entries of the windows: each real one beside its complex twin.
#include "sources/windows.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc89(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinHanning(x, n); });
}

QV_EXPORT Status ZemFunc430(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinHanning(x, n); });
}

QV_EXPORT Status ZemFunc88(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinHamming(x, n); });
}

QV_EXPORT Status ZemFunc431(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinHamming(x, n); });
}

QV_EXPORT Status ZemFunc15(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBlackmanHarris3(x, n); });
}

QV_EXPORT Status ZemFunc433(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBlackmanHarris3(x, n); });
}

QV_EXPORT Status ZemFunc72(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinExactBlackman(x, n); });
}

QV_EXPORT Status ZemFunc435(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinExactBlackman(x, n); });
}

QV_EXPORT Status ZemFunc14(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBlackman(x, n); });
}

QV_EXPORT Status ZemFunc432(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBlackman(x, n); });
}

QV_EXPORT Status ZemFunc80(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinFlatTop(x, n); });
}

QV_EXPORT Status ZemFunc436(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinFlatTop(x, n); });
}

QV_EXPORT Status ZemFunc336(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBlackmanNuttall(x, n); });
}

QV_EXPORT Status ZemFunc434(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBlackmanNuttall(x, n); });
}

QV_EXPORT Status ZemFunc85(double* x, Size n, const double* a, std::uint32_t count) {
    return narrowed(n, [&](Count n) { return WinCosineSum(x, n, {a, count}); });
}

QV_EXPORT Status ZemFunc437(ComplexRecord* x, Size n, const double* a, std::uint32_t count) {
    return narrowed(n, [&](Count n) { return WinCosineSum(x, n, {a, count}); });
}

QV_EXPORT Status ZemFunc278(double* x, Size n, double ratio) {
    return narrowed(n, [&](Count n) { return WinCosineTaper(x, n, ratio); });
}

QV_EXPORT Status ZemFunc438(ComplexRecord* x, Size n, double ratio) {
    return narrowed(n, [&](Count n) { return WinCosineTaper(x, n, ratio); });
}

QV_EXPORT Status ZemFunc35(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinCosineTaper(x, n, 0.2); });
}

QV_EXPORT Status ZemFunc180(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinTriangle(x, n); });
}

QV_EXPORT Status ZemFunc439(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinTriangle(x, n); });
}

QV_EXPORT Status ZemFunc343(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBartlettHanning(x, n); });
}

QV_EXPORT Status ZemFunc446(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBartlettHanning(x, n); });
}

QV_EXPORT Status ZemFunc344(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBohman(x, n); });
}

QV_EXPORT Status ZemFunc447(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinBohman(x, n); });
}

QV_EXPORT Status ZemFunc345(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinParzen(x, n); });
}

QV_EXPORT Status ZemFunc448(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinParzen(x, n); });
}

QV_EXPORT Status ZemFunc346(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinWelch(x, n); });
}

QV_EXPORT Status ZemFunc449(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinWelch(x, n); });
}

QV_EXPORT Status ZemFunc113(double* x, Size n, double beta) {
    return narrowed(n, [&](Count n) { return WinKaiser(x, n, beta); });
}

QV_EXPORT Status ZemFunc440(ComplexRecord* x, Size n, double beta) {
    return narrowed(n, [&](Count n) { return WinKaiser(x, n, beta); });
}

QV_EXPORT Status ZemFunc280(double* x, Size n, double sigma) {
    return narrowed(n, [&](Count n) { return WinGaussian(x, n, sigma); });
}

QV_EXPORT Status ZemFunc441(ComplexRecord* x, Size n, double sigma) {
    return narrowed(n, [&](Count n) { return WinGaussian(x, n, sigma); });
}

QV_EXPORT Status ZemFunc279(double* x, Size n, double attenuation) {
    return narrowed(n, [&](Count n) { return WinChebyshev(x, n, WinRatioOfDecibels(attenuation)); });
}

QV_EXPORT Status ZemFunc442(ComplexRecord* x, Size n, double attenuation) {
    return narrowed(n, [&](Count n) { return WinChebyshev(x, n, WinRatioOfDecibels(attenuation)); });
}

QV_EXPORT Status ZemFunc74(double* x, Size n, double final) {
    return narrowed(n, [&](Count n) { return WinExponential(x, n, final); });
}

QV_EXPORT Status ZemFunc444(ComplexRecord* x, Size n, double final) {
    return narrowed(n, [&](Count n) { return WinExponential(x, n, final); });
}

QV_EXPORT Status ZemFunc81(double* x, Size n, double duty) {
    return narrowed(n, [&](Count n) { return WinForce(x, n, duty); });
}

QV_EXPORT Status ZemFunc443(ComplexRecord* x, Size n, double duty) {
    return narrowed(n, [&](Count n) { return WinForce(x, n, duty); });
}

QV_EXPORT Status ZemFunc281(double* x, Size n, std::int32_t window, double parameter) {
    return narrowed(n, [&](Count n) { return WinApplySymmetric(x, n, window, parameter); });
}

QV_EXPORT Status ZemFunc429(ComplexRecord* x, Size n, std::int32_t window, double parameter) {
    return narrowed(n, [&](Count n) { return WinApplySymmetric(x, n, window, parameter); });
}

QV_EXPORT Status ZemFunc337(double* x, Size n, std::int32_t window, double parameter, WinProperties* properties) {
    return narrowed(n, [&](Count n) { return WinApplyScaled(x, n, window, parameter, properties); });
}

QV_EXPORT Status ZemFunc428(ComplexRecord* x, Size n, std::int32_t window, double parameter,
                            WinProperties* properties) {
    return narrowed(n, [&](Count n) { return WinApplyScaled(x, n, window, parameter, properties); });
}

QV_EXPORT Status ZemFunc152(double* x, Size n, std::int32_t window, WinProperties* properties) {
    return narrowed(n, [&](Count n) { return WinApplyScaled(x, n, window, 0.0, properties); });
}

QV_EXPORT Status ZemFunc445(Size n, std::int32_t window, double parameter, WinProperties* properties) {
    return narrowed(n, [&](Count n) { return WinPropertiesOf(n, window, parameter, properties); });
}

QV_EXPORT Status ZemFunc282(std::uint32_t window, WinProperties* properties) {
    return WinPropertiesFixed(window, properties);
}

QV_EXPORT Status ZemFunc283(const double* w, std::uint32_t n, WinProperties* properties) {
    return WinPropertiesMeasure(w, n, properties);
}
