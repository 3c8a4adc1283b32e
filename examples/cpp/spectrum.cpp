// The strongest line of a recording: one sample a line, so many samples a second.
//
//     spectrum recording.csv 360
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <quorvan/quorvan.hpp>
#include <string>
#include <vector>

// The numbers of a text file, one a line; lines that are no numbers are left out.
static std::vector<double> Read(std::istream& file) {
    std::vector<double> x;
    for (std::string line; std::getline(file, line);) {
        char* end;
        const double value = std::strtod(line.c_str(), &end);
        if (end != line.c_str()) x.push_back(value);
    }
    return x;
}

int main(int argc, char** argv) try {
    if (argc != 3) return std::fprintf(stderr, "usage: spectrum FILE RATE\n"), 2;
    std::ifstream file(argv[1]);
    if (!file) return std::fprintf(stderr, "%s: cannot read\n", argv[1]), 1;
    std::vector<double> x = Read(file), power(x.size() / 2 + 1);
    const double dt = 1 / std::atof(argv[2]);

    const double mean = qv::call(QvStatMean, x, x.size(), qv::out).value();
    for (double& v : x) v -= mean;
    const auto window = qv::call(QvWinApplyScaledPlain, x, x.size(), QV_WINDOW_HANNING, qv::out).value();
    const double df = qv::call(QvSpecPowerSpectrum, x, x.size(), dt, power, qv::out).value();
    // -1: the largest bin; 5: the bins that Hanning's main lobe covers.
    const auto [frequency, peak] =
        qv::call(QvSpecPeakPowerFrequency, power, x.size() / 2, -1, &window, df, 5, qv::out, qv::out).value();
    std::printf("%zu samples, strongest line at %.4f Hz, power %.6g\n", x.size(), frequency, peak);
} catch (const qv::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
