#include "report.h"

#include <cstdio>

#include "recording.h"

namespace tour {

void Heading(const char* chapter, const char* what) { std::printf("── %s: %s\n\n", chapter, what); }

void Title(const Recording& recording) {
    std::printf("%s: %zu samples, %g per second, %.4g s\n\n", recording.name.c_str(), recording.samples.size(),
                recording.rate, recording.Seconds());
}

void Row(const char* name, double value, const std::string& unit, const std::string& note) {
    std::printf("  %-32s %12.5g  %s%s\n", name, value, unit.c_str(), note.c_str());
}

void TruthColumns() { std::printf("  %-32s %12s %12s %10s\n", "", "reading", "truth", "error"); }

void Compare(const char* name, double value, double truth, const std::string& unit) {
    std::printf("  %-32s %12.7g %12.7g %+10.1e  %s\n", name, value, truth, value - truth, unit.c_str());
}

void BesideColumns() { std::printf("  %-32s %12s %12s\n", "", "reading", "beside it"); }

void Beside(const char* name, double value, double other, const std::string& unit, const char* note) {
    std::printf("  %-32s %12.5g %12.5g  %-6s %s\n", name, value, other, unit.c_str(), note);
}

}  // namespace tour
