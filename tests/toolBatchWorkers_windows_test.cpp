#include <gtest/gtest.h>

TEST(ToolBatchWorkers, OfPosix)
{
    GTEST_SKIP() << "the tool has no worker processes on Windows";
}
