#include "core/OvThrow.h"

#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace OvZel;
using ZelTest::messageOf;

TEST(Throw, SaysWhatIsKnown)
{
    EXPECT_EQ(messageOf([] { OvThrow::SignalNULL("Name", "Tag"); }), "Name - NULL ptr for tag Tag");
    EXPECT_EQ(messageOf([] { OvThrow::SignalNULL("Name"); }), "Name - NULL ptr");
    EXPECT_EQ(messageOf([] { OvThrow::SignalNULL(); }), "");
    EXPECT_EQ(messageOf([] { OvThrow::SignalFalse("Name", "Tag"); }),
              "Name - Assertion failed for tag Tag");
    EXPECT_EQ(messageOf([] { OvThrow::SignalFalse("Name"); }), "Name - Assertion failed");
    EXPECT_EQ(messageOf([] { OvThrow::SignalFalse(); }), "");
}

TEST(Throw, RaisesOnlyOnItsCondition)
{
    int object = 0;
    EXPECT_EQ(messageOf([&] { OvThrow::IfNULL(&object, "Name"); }), "no exception");
    EXPECT_EQ(messageOf([] { OvThrow::IfNULL(nullptr, "Name"); }), "Name - NULL ptr");
    EXPECT_EQ(messageOf([] { OvThrow::IfFalse(true, "Name"); }), "no exception");
    EXPECT_EQ(messageOf([] { OvThrow::IfFalse(false, "Name"); }), "Name - Assertion failed");
}

TEST(Throw, FormatsAndCutsALongText)
{
    EXPECT_EQ(messageOf([] { OvThrow::Signal("%s has %d", "This", 7); }), "This has 7");
    const std::string longText(5000, 'x');
    EXPECT_EQ(messageOf([&] { OvThrow::Signal("%s", longText.c_str()); }),
              longText.substr(0, 2047));
    EXPECT_EQ(messageOf([&] { OvThrow::SignalNULL(longText.c_str()); }), longText.substr(0, 2047));
}

TEST(Throw, AnExceptionWithoutTextIsUnknown)
{
    EXPECT_STREQ(exceptionText(std::runtime_error("text")), "text");
    EXPECT_STREQ(exceptionText(std::runtime_error("")), "Unknown exception");
}
