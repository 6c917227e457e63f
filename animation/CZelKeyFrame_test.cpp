#include "animation/CZelKeyFrame.h"

#include "tests/support/accessors.h"

#include <cstring>

using namespace OvZel;
using namespace ZelTest;

namespace {

using uValue = IZelKeyFrame::uValue;

uValue vectorOf(double x, double y, double z)
{
    uValue value;
    value.vector[0] = x;
    value.vector[1] = y;
    value.vector[2] = z;
    return value;
}

bool areBytesSame(const uValue& a, const uValue& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

TEST(KeyFrame, ANewOneIsAnIntegerOfZero)
{
    const CZelKeyFrame frame(nullptr);
    EXPECT_EQ(frame.getTime(), 0);
    EXPECT_EQ(frame.getValueType(), 4);
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(frame.getInterpolationType(), 0);
    EXPECT_TRUE(frame.getAreLocked());
    const uValue zero = vectorOf(0, 0, 0);
    for (const uValue* value : {&frame.getValue(), &frame.getCPBefore(), &frame.getCPAfter()})
        EXPECT_TRUE(areBytesSame(*value, zero));
}

TEST(KeyFrame, StoresWhatComes)
{
    CZelKeyFrame frame(nullptr);
    expectAccessors<IZelKeyFrame>(
        frame,
        {ACCESS(IZelKeyFrame, ValueType, -1), ACCESS(IZelKeyFrame, Time, -5),
         access("Visible", &IZelKeyFrame::isVisible, &IZelKeyFrame::setVisible, false),
         ACCESS(IZelKeyFrame, InterpolationType, 99), ACCESS(IZelKeyFrame, AreLocked, false)});
}

TEST(KeyFrame, AValueIsAll24BytesAndDoesNotFollowTheKind)
{
    CZelKeyFrame frame(nullptr);
    const uValue value = vectorOf(1.5, -2.5, 3.5);
    const uValue before = vectorOf(4.5, 5.5, 6.5);
    const uValue after = vectorOf(7.5, 8.5, 9.5);
    frame.setValue(value);
    frame.setCPBefore(before);
    frame.setCPAfter(after);
    for (std::int32_t type = -1; type <= 8; ++type) {
        frame.setValueType(type);
        EXPECT_TRUE(areBytesSame(frame.getValue(), value)) << type;
        EXPECT_TRUE(areBytesSame(frame.getCPBefore(), before)) << type;
        EXPECT_TRUE(areBytesSame(frame.getCPAfter(), after)) << type;
    }
}

TEST(KeyFrame, EveryKindStartsAtTheFirstByte)
{
    const uValue value{};
    for (const void* member :
         {static_cast<const void*>(value.vector), static_cast<const void*>(value.color),
          static_cast<const void*>(&value.real), static_cast<const void*>(&value.boolean),
          static_cast<const void*>(&value.integer), static_cast<const void*>(&value.date),
          static_cast<const void*>(value.id)})
        EXPECT_EQ(member, &value);
}
