#include <gtest/gtest.h>

TEST(ToolSystem, OfPosix)
{
    GTEST_SKIP() << "full and closed outputs, permissions and links are made with a shell of POSIX";
}
