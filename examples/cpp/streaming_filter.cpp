// A lowpass over a stream: text numbers in, text numbers out, in blocks of 64. The filter keeps its state between the
// blocks, so that the cuts do not show.
//
//     streaming_filter 1000 20 < samples > smooth        # rate and cutoff in Hz
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <quorvan/quorvan.hpp>
#include <vector>

int main(int argc, char** argv) try {
    if (argc != 3) return std::fprintf(stderr, "usage: streaming_filter RATE CUTOFF\n"), 2;
    constexpr int kLowpass = 0, kOrder = 4;
    const qv::IirFilter filter(QvIirFilterCreate(kLowpass, kOrder));
    if (!filter) return std::fprintf(stderr, "no filter\n"), 1;
    qv::call(QvIirDesignButterworth, std::atof(argv[1]), std::atof(argv[2]), 0, filter).value();

    std::vector<double> block;
    while (std::cin) {
        block.clear();
        for (double v; block.size() < 64 && std::cin >> v;) block.push_back(v);
        if (block.empty()) break;
        qv::call(QvIirCascadeApply, block, block.size(), filter, block).value();
        for (double v : block) std::printf("%.17g\n", v);
    }
} catch (const qv::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
