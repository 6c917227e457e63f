#include "core/OvThrow.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace OvZel;

namespace {

template <class Action>
std::string textOf(Action action)
{
    try {
        action();
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
    return "nothing raised";
}

} // namespace

TEST(Throw, SaysWhatIsKnown)
{
    EXPECT_EQ(textOf([] { OvThrow::SignalNULL("Name", "Tag"); }), "Name - NULL ptr for tag Tag");
    EXPECT_EQ(textOf([] { OvThrow::SignalNULL("Name"); }), "Name - NULL ptr");
    EXPECT_EQ(textOf([] { OvThrow::SignalNULL(); }), "");
    EXPECT_EQ(textOf([] { OvThrow::SignalFalse("Name", "Tag"); }),
              "Name - Assertion failed for tag Tag");
    EXPECT_EQ(textOf([] { OvThrow::SignalFalse("Name"); }), "Name - Assertion failed");
    EXPECT_EQ(textOf([] { OvThrow::SignalFalse(); }), "");
}

TEST(Throw, RaisesOnlyOnItsCondition)
{
    int object = 0;
    EXPECT_EQ(textOf([&] { OvThrow::IfNULL(&object, "Name"); }), "nothing raised");
    EXPECT_EQ(textOf([] { OvThrow::IfNULL(nullptr, "Name"); }), "Name - NULL ptr");
    EXPECT_EQ(textOf([] { OvThrow::IfFalse(true, "Name"); }), "nothing raised");
    EXPECT_EQ(textOf([] { OvThrow::IfFalse(false, "Name"); }), "Name - Assertion failed");
}

TEST(Throw, FormatsAndCutsALongText)
{
    EXPECT_EQ(textOf([] { OvThrow::Signal("%s has %d", "This", 7); }), "This has 7");
    const std::string longText(5000, 'x');
    EXPECT_EQ(textOf([&] { OvThrow::Signal("%s", longText.c_str()); }), longText.substr(0, 2047));
    EXPECT_EQ(textOf([&] { OvThrow::SignalNULL(longText.c_str()); }), longText.substr(0, 2047));
}

TEST(Throw, AnExceptionWithoutTextIsUnknown)
{
    EXPECT_STREQ(exceptionText(std::runtime_error("text")), "text");
    EXPECT_STREQ(exceptionText(std::runtime_error("")), "Unknown exception");
}
