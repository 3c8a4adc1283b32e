// The wish for large pages: nothing but the speed of a block may tell that it was made.
#include <cerrno>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>

#include "frame/platform.h"

namespace quorvan {
namespace {

TEST(LargePages, LeaveTheBlockAndErrnoAsTheyAre) {
    const std::size_t bytes = (std::size_t{40} << 20) + 12345;
    const std::unique_ptr<unsigned char, decltype(&std::free)> owner(static_cast<unsigned char*>(std::malloc(bytes)),
                                                                     std::free);
    unsigned char* const block = owner.get();
    ASSERT_NE(block, nullptr);
    block[0] = 1;
    block[bytes / 2] = 2;
    block[bytes - 1] = 3;
    errno = ERANGE;
    PreferLargePages(block, bytes);
    EXPECT_EQ(errno, ERANGE);
    EXPECT_EQ(block[0], 1);
    EXPECT_EQ(block[bytes / 2], 2);
    EXPECT_EQ(block[bytes - 1], 3);
    for (std::size_t at = 1; at < bytes / 2; at += 4096) block[at] = 4;
    EXPECT_EQ(block[1], 4);
}

TEST(LargePages, OfLessThanAPageDoNothing) {
    unsigned char small[100] = {7};
    for (std::size_t bytes : {std::size_t{0}, std::size_t{1}, sizeof small}) PreferLargePages(small, bytes);
    EXPECT_EQ(small[0], 7);
}

}  // namespace
}  // namespace quorvan
