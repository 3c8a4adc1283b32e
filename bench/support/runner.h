// Times contenders for the same work in one run and keeps the best of several repetitions of each.
//
// Google Benchmark measures. The runner registers the contenders of one size, interleaves their repetitions at random
// so that a disturbance of the machine meets all of them alike, and takes the minimum, which is what the code costs
// when nothing else runs. Names are group/contender/size; bench/run.py joins on them.
#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// Best CPU seconds of one call, by contender. Unset contenders read as 0.
using Times = std::map<std::string, double>;

class Runner {
public:
    // Takes --sizes a,b,c and every --benchmark_ option; any other argument ends the program with the usage.
    Runner(int argc, char** argv);

    // The sizes of the command line, or these.
    std::vector<std::int64_t> Sizes(std::vector<std::int64_t> usual) const;
    bool SizesGiven() const { return !sizes_.empty(); }

    template <typename Call>
    void Add(const std::string& contender, Call call) {
        pending_.emplace_back(contender, [call](benchmark::State& state) mutable {
            for (auto _ : state) {
                call();
                benchmark::ClobberMemory();
            }
        });
    }

    // Times all that was added since the last run, under this group and size, and forgets them.
    Times Run(const std::string& group, const std::string& size);
    Times Run(const std::string& group, std::int64_t size) { return Run(group, std::to_string(size)); }

    // With --benchmark_format=json all measurements go to standard output; tables then go to standard error.
    int Finish();
    std::FILE* Text() const { return json_ ? stderr : stdout; }

private:
    std::vector<std::int64_t> sizes_;
    std::vector<std::pair<std::string, std::function<void(benchmark::State&)>>> pending_;
    std::vector<benchmark::BenchmarkReporter::Run> runs_;
    bool json_ = false;
};

// Geometric mean and extremes of ratios.
class Ratios {
public:
    void Add(double ratio);
    double Mean() const;
    double Least() const { return least_; }
    double Most() const { return most_; }
    int Count() const { return count_; }

private:
    double logs_ = 0.0, least_ = 0.0, most_ = 0.0;
    int count_ = 0;
};

// Prints "label: value (goal >= bound: met)"; the other direction for AtMost. Nothing is asserted.
void AtLeast(std::FILE* text, const std::string& label, double value, double goal);
void AtMost(std::FILE* text, const std::string& label, double value, double goal);

// Ends the program: a contender that fails or is wrong must not be timed.
[[noreturn]] void Refuse(const std::string& reason);
void Succeeds(std::int32_t status, const std::string& call);

// Values in [-1, 1), the same in every run.
std::vector<double> Noise(std::int64_t count, std::uint64_t seed = 1);

}  // namespace bench
