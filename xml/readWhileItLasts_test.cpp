#include "xml/readWhileItLasts.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

using OvZel::readWhileItLasts;

TEST(ReadWhileItLasts, EndsAtTheFirstMissingItem)
{
    int nbRead = 0;
    readWhileItLasts([&] {
        ++nbRead;
        throw std::runtime_error("missing");
        ++nbRead;
    });
    EXPECT_EQ(nbRead, 1);
}

TEST(ReadWhileItLasts, LetsOtherFailuresThrough)
{
    EXPECT_THROW(readWhileItLasts([] { throw 1; }), int);
}

TEST(ReadWhileItLasts, MemoryThatRunsOutIsNoMissingItem)
{
    EXPECT_THROW(OvZel::readWhileItLasts([] { throw std::bad_alloc(); }), std::bad_alloc);
}
