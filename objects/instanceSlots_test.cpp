#include "objects/CZelBBMgrData.h"
#include "objects/CZelBBObjectInstance.h"
#include "tests/support/slots.h"

#include <zel/IZel3DPlant.h>
#include <zel/IZel3DPlantRef.h>
#include <zel/IZelAnimatedObjectInstance.h>
#include <zel/IZelGroupInstances.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelObjectLightRef.h>

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::callSlot;
using ZelTest::slotOf;

namespace {

/// The first of the obsolete slots, which is the number of those ahead.
template <class I>
std::ptrdiff_t nbSlots()
{
    EXPECT_EQ(slotOf(&TZelFrontier<I>::obsolete3), slotOf(&TZelFrontier<I>::obsolete1) + 2);
    return slotOf(&TZelFrontier<I>::obsolete1);
}

} // namespace

TEST(Slots, ObsoleteOnesEndTheInterfacesOfInstancesAndBillboards)
{
    EXPECT_EQ(nbSlots<IZelObjectInstance>(), 7 + 24 * 2 + 9 * 2 + 1);
    EXPECT_EQ(nbSlots<IZelZelObjectInstance>(), 12);
    EXPECT_EQ(nbSlots<IZelGroupInstances>(), 4);
    EXPECT_EQ(nbSlots<IZelInternalComponentInstance>(), 6);
    EXPECT_EQ(nbSlots<IZelObjectLightRef>(), 2);
    EXPECT_EQ(nbSlots<IZelAnimatedObjectInstance>(), 12);
    EXPECT_EQ(nbSlots<IZelBBObjectInstance>(), 30);
    EXPECT_EQ(nbSlots<IZel3DPlantRef>(), 8);
    EXPECT_EQ(nbSlots<IZel3DPlant>(), 6);
    EXPECT_EQ(nbSlots<IZel3DPlant::IPlantSetUp>(), 8);
    EXPECT_EQ(nbSlots<IZelBBMgrData>(), 10);
    EXPECT_EQ(nbSlots<IZelBillboard>(), 12);
    EXPECT_EQ(nbSlots<IZelBillboard::IZelBBName>(), 4);
    EXPECT_EQ(nbSlots<IZelTexture>(), 22);
}

TEST(Slots, ABillboardInstanceAnswersInThoseOfBothItsInterfaces)
{
    const TZelComPtr instance(new CZelObjectInstance(nullptr));
    instance->setClass("Billboard");
    IZelZelObjectInstance* object = instance->asZelObjectInstance();
    IZelBBObjectInstance* billboard = instance->asBBObjectInstance();
    object->setUrl("one");
    billboard->setUrl("two");
    EXPECT_STREQ(callSlot<const char*>(object, 2), "one");
    EXPECT_STREQ(callSlot<const char*>(billboard, 24), "two");
    EXPECT_EQ(callSlot<IZelObjectInstance*>(object, 1), instance.get());
    EXPECT_EQ(callSlot<IZelObjectInstance*>(billboard, 1), instance.get());
}
