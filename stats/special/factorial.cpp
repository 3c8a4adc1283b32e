#include "stats/special/factorial.h"

#include <limits>

#include "stats/special/gamma.h"
#include "stats/special/ln_gamma.h"

namespace quorvan {
namespace {

// 0! to 33!, each the nearest double.
constexpr double kFactorial[] = {1.0,
                                 1.0,
                                 2.0,
                                 6.0,
                                 24.0,
                                 120.0,
                                 720.0,
                                 5040.0,
                                 40320.0,
                                 362880.0,
                                 3628800.0,
                                 39916800.0,
                                 479001600.0,
                                 6227020800.0,
                                 87178291200.0,
                                 1307674368000.0,
                                 20922789888000.0,
                                 355687428096000.0,
                                 6402373705728000.0,
                                 1.21645100408832e+17,
                                 2.43290200817664e+18,
                                 5.109094217170944e+19,
                                 1.1240007277776077e+21,
                                 2.585201673888498e+22,
                                 6.204484017332394e+23,
                                 1.5511210043330986e+25,
                                 4.0329146112660565e+26,
                                 1.0888869450418352e+28,
                                 3.0488834461171387e+29,
                                 8.841761993739702e+30,
                                 2.6525285981219107e+32,
                                 8.222838654177922e+33,
                                 2.631308369336935e+35,
                                 8.683317618811886e+36};

}  // namespace

double SpecFactorial(std::int64_t n) noexcept {
    if (n < 0) return std::numeric_limits<double>::quiet_NaN();
    if (n <= 33) return kFactorial[n];
    return SpecGamma(static_cast<double>(n) + 1);
}

double SpecLnFactorial(std::uint32_t n) noexcept { return SpecLnGamma(static_cast<double>(n) + 1); }

}  // namespace quorvan
