#include "objects/CZelBBObjectInstance.h"

#include "objects/CZelAnimatedObjectInstance.h"
#include "objects/CZelInternalComponentInstance.h"
#include "tests/support/accessors.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

// The values that the delegates of instances have of their own.

namespace {

const CZelUUID kId("0123456789ABCDEF0123456789ABCDEF");

TZelComPtr<CZelObjectInstance> instanceOf(const char* text)
{
    TZelComPtr instance(new CZelObjectInstance(nullptr));
    instance->setClass(text);
    return instance;
}

} // namespace

TEST(BBObjectInstance, ANewOne)
{
    const auto instance = instanceOf("Billboard");
    const IZelBBObjectInstance& billboard = *instance->asBBObjectInstance();
    EXPECT_FALSE(billboard.getOrientWithCamera());
    EXPECT_FALSE(billboard.getVerticalFlip());
    EXPECT_FALSE(billboard.getHorizontalFlip());
    EXPECT_EQ(billboard.getRenderType(), 1);
    EXPECT_EQ(billboard.getShininess(), 0.5);
    EXPECT_EQ(billboard.getRoughness(), 700.0);
    EXPECT_EQ(billboard.getBrightness(), 0.0);
    EXPECT_EQ(billboard.getContrast(), 1.0);
    EXPECT_EQ(billboard.getKind(), 1);
    EXPECT_EQ(billboard.getDefinitionSize(), 100.0);
    EXPECT_STREQ(billboard.getDefinitionName(), "");
    EXPECT_STREQ(billboard.getUrl(), "");
    EXPECT_EQ(billboard.getCurrentConfig(), 0);
    EXPECT_EQ(billboard.getOverloadedProperties()->getNbObjects(), 0);
}

TEST(BBObjectInstance, EveryValueIsStoredAsItComes)
{
    using I = IZelBBObjectInstance;
    const auto instance = instanceOf("Billboard");
    expectAccessors<I>(*instance->asBBObjectInstance(),
                       {ACCESS(I, OrientWithCamera, true), ACCESS(I, VerticalFlip, true),
                        ACCESS(I, HorizontalFlip, true), ACCESS(I, RenderType, 9),
                        ACCESS(I, Shininess, -1.0), ACCESS(I, Roughness, -2.0),
                        ACCESS(I, Brightness, -3.0), ACCESS(I, Contrast, -4.0), ACCESS(I, Kind, -5),
                        ACCESS(I, DefinitionSize, -6.0), ACCESS(I, DefinitionName, "a"),
                        ACCESS(I, Url, "b"), ACCESS(I, CurrentConfig, -7)});
    instance->asBBObjectInstance()->setDefinitionName(nullptr);
    EXPECT_STREQ(instance->asBBObjectInstance()->getDefinitionName(), "");
}

TEST(AnimatedObjectInstance, EveryValueIsStoredAsItComes)
{
    using I = IZelAnimatedObjectInstance;
    const auto instance = instanceOf("AnimatedObject");
    const I& animated = *instance->asAnimatedObjectInstance();
    EXPECT_EQ(animated.getCurrentFrame(), 0);
    EXPECT_EQ(animated.getCurrentTake(), 0);
    EXPECT_EQ(animated.getRealDuration(), 0);
    EXPECT_EQ(animated.getStartFrame(), 0);
    expectAccessors<I>(*instance->asAnimatedObjectInstance(),
                       {ACCESS(I, CurrentFrame, -1), ACCESS(I, CurrentTake, -2),
                        ACCESS(I, RealDuration, -3), ACCESS(I, StartFrame, -4)});
}

TEST(ZelObjectInstance, EveryValueIsStoredAsItComes)
{
    using I = IZelZelObjectInstance;
    const auto instance = instanceOf("ZelObject");
    expectAccessors<I>(*instance->asZelObjectInstance(),
                       {ACCESS(I, Url, "a"), ACCESS(I, CurrentOverload, kId),
                        ACCESS(I, ExternalDefinitionId, kId)});
    EXPECT_EQ(instance->asZelObjectInstance()->getLights()->getNbObjects(), 0);
    EXPECT_EQ(instance->asZelObjectInstance()->getProperties()->getNbObjects(), 0);
}

TEST(InternalComponentInstance, EveryValueIsStoredAsItComes)
{
    using I = IZelInternalComponentInstance;
    const auto instance = instanceOf("ModelObject");
    EXPECT_TRUE(instance->asInternalComponentInstance()->getComponentUUID().isNull());
    expectAccessors<I>(*instance->asInternalComponentInstance(), {ACCESS(I, ComponentUUID, kId)});
    EXPECT_EQ(instance->asInternalComponentInstance()->getProperties()->getNbObjects(), 0);
}
