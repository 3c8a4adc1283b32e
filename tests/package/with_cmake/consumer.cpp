// The least program in C++: fails unless the library links, loads and adds.
#include <array>
#include <cstdint>
#include <cstdio>

#include "quorvan/quorvan.h"

int main() {
    const std::array<double, 4> x = {1.0, 2.0, 3.0, 4.0};
    std::array<double, 4> sum{};
    const QvStatus status = QvArrAdd(x.data(), x.data(), static_cast<std::int64_t>(x.size()), sum.data());
    std::printf("%s %g\n", QvStatusMessage(status), sum[3]);
    return status == 0 && sum == std::array<double, 4>{2.0, 4.0, 6.0, 8.0} ? 0 : 1;
}
