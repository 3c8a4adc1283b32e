#include "support/runner.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace bench {
namespace {

// Keeps what it is told and prints nothing.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override { all.insert(all.end(), runs.begin(), runs.end()); }

    std::vector<Run> all;
};

[[noreturn]] void Usage(const char* program) {
    std::fprintf(stderr,
                 "usage: %s [--sizes a,b,c] [--benchmark_format=json] [--benchmark_repetitions=n] "
                 "[--benchmark_min_time=seconds]\n",
                 program);
    std::exit(2);
}

std::vector<std::int64_t> ParsedSizes(const char* list, const char* program) {
    std::vector<std::int64_t> sizes;
    for (const char* at = list; *at != '\0';) {
        char* end = nullptr;
        const std::int64_t size = std::strtoll(at, &end, 10);
        if (end == at || size < 1 || (*end != ',' && *end != '\0')) Usage(program);
        sizes.push_back(size);
        at = *end == ',' ? end + 1 : end;
    }
    if (sizes.empty()) Usage(program);
    return sizes;
}

void Goal(std::FILE* text, const std::string& label, double value, double goal, const char* sign, bool met) {
    std::fprintf(text, "  %-62s %6.2f   goal %s %.2f: %s\n", label.c_str(), value, sign, goal, met ? "met" : "missed");
}

}  // namespace

Runner::Runner(int argc, char** argv) {
    // Short repetitions, many of them: on a machine that others share the quiet moments are short. Options of the
    // command line come later and so win.
    static char interleave[] = "--benchmark_enable_random_interleaving=true";
    static char repeat[] = "--benchmark_repetitions=9";
    static char least[] = "--benchmark_min_time=0.01";
    std::vector<char*> arguments{argv[0], interleave, repeat, least};
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--sizes") == 0 && i + 1 < argc) {
            sizes_ = ParsedSizes(argv[++i], argv[0]);
        } else if (std::strncmp(argv[i], "--sizes=", 8) == 0) {
            sizes_ = ParsedSizes(argv[i] + 8, argv[0]);
        } else {
            json_ = json_ || std::strcmp(argv[i], "--benchmark_format=json") == 0;
            arguments.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(arguments.size());
    benchmark::AddCustomContext("compiler", __VERSION__);
    benchmark::Initialize(&count, arguments.data());
    if (count > 1) Usage(argv[0]);
}

std::vector<std::int64_t> Runner::Sizes(std::vector<std::int64_t> usual) const {
    return sizes_.empty() ? usual : sizes_;
}

Times Runner::Run(const std::string& group, const std::string& size) {
    for (auto& [contender, body] : pending_) {
        benchmark::RegisterBenchmark((group + "/" + contender + "/" + size).c_str(), body);
    }
    pending_.clear();
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();

    Times best;
    for (const auto& run : collector.all) {
        if (run.run_type != benchmark::BenchmarkReporter::Run::RT_Iteration) continue;
        if (run.error_occurred) Refuse(run.benchmark_name() + ": " + run.error_message);
        const std::string name = run.run_name.function_name;
        const std::size_t from = group.size() + 1;
        const std::string contender = name.substr(from, name.rfind('/') - from);
        const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
        double& least = best[contender];
        least = least == 0.0 ? seconds : std::min(least, seconds);
        runs_.push_back(run);
    }
    return best;
}

int Runner::Finish() {
    if (json_) {
        benchmark::JSONReporter reporter;
        reporter.SetOutputStream(&std::cout);
        reporter.SetErrorStream(&std::cerr);
        reporter.ReportContext(benchmark::BenchmarkReporter::Context());
        reporter.ReportRuns(runs_);
        reporter.Finalize();
    }
    benchmark::Shutdown();
    return 0;
}

void Ratios::Add(double ratio) {
    logs_ += std::log(ratio);
    least_ = count_ == 0 ? ratio : std::min(least_, ratio);
    most_ = count_ == 0 ? ratio : std::max(most_, ratio);
    ++count_;
}

double Ratios::Mean() const { return count_ == 0 ? 0.0 : std::exp(logs_ / count_); }

void AtLeast(std::FILE* text, const std::string& label, double value, double goal) {
    Goal(text, label, value, goal, ">=", value >= goal);
}

void AtMost(std::FILE* text, const std::string& label, double value, double goal) {
    Goal(text, label, value, goal, "<=", value <= goal);
}

void Refuse(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(1);
}

void Succeeds(std::int32_t status, const std::string& call) {
    if (status != 0) Refuse(call + " gives " + std::to_string(status));
}

std::vector<double> Noise(std::int64_t count, std::uint64_t seed) {
    std::vector<double> values(static_cast<std::size_t>(count));
    std::uint64_t state = seed;
    for (double& value : values) {
        // Knuth's 64-bit linear congruential generator (MMIX); its upper 53 bits.
        state = state * 6364136223846793005u + 1442695040888963407u;
        value = static_cast<double>(state >> 11) * 0x1p-52 - 1.0;
    }
    return values;
}

}  // namespace bench
