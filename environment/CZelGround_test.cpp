#include "environment/CZelGround.h"

#include "core/TObject2Mgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/textOf.h"

#include <zel/ITCENode.h>
#include <zel/IZelString.h>

#include <gtest/gtest.h>

namespace {

using namespace OvZel;
using ZelTest::CTestDocument;

TEST(Ground, NewOneLiesBelowTheSceneAndIsNotActive)
{
    CTestDocument document;
    const TZelComPtr<CZelGround> ground(new CZelGround(document.ref()));
    EXPECT_FALSE(ground->getActive());
    EXPECT_EQ(ground->getHeight(), -10.0);
    EXPECT_STREQ(ground->getName(), "");
    ground->setActive(true);
    ground->setHeight(1e300);
    EXPECT_TRUE(ground->getActive());
    EXPECT_EQ(ground->getHeight(), 1e300);
}

TEST(Ground, HasAMaterialOfItsOwn)
{
    CTestDocument document;
    const TZelComPtr<CZelGround> ground(new CZelGround(document.ref()));
    CProperty* property = ground->getProperty();
    ASSERT_NE(property, nullptr);
    EXPECT_EQ(std::as_const(*ground).getProperty(), property);
    EXPECT_STREQ(property->getName(), "Ground Material Name");
    EXPECT_STREQ(property->getTCE()->getName()->getText('e' * 256 + 'n'), "Ground Material Name");
    EXPECT_EQ(property->getDiffuseColor(), CZelColor::rgb(128, 128, 128));
    EXPECT_NE(property->getTCE()->getRootNode()->getChild(0)->asLeafNode(), nullptr);
    EXPECT_TRUE(property->getVisible());
    EXPECT_EQ(property->getScale(), 1.0);
}

TEST(Ground, NamesItsShaderInTheLanguageOfTheDocument)
{
    CTestDocument document;
    document.ref()->setLanguage("fr");
    const TZelComPtr<CZelGround> french(new CZelGround(document.ref())),
        without(new CZelGround(nullptr));
    EXPECT_STREQ(french->getProperty()->getTCE()->getName()->getText('f' * 256 + 'r'),
                 "Ground Material Name");
    EXPECT_EQ(french->getProperty()->getTCE()->getName()->getNbTexts(), 1u);
    EXPECT_STREQ(without->getProperty()->getTCE()->getName()->getText('e' * 256 + 'n'),
                 "Ground Material Name");
}

TEST(Ground, ItsMaterialOutlivesItAndStillFindsTheDocument)
{
    CTestDocument document;
    TZelComPtr<CZelGround> ground(new CZelGround(document.ref()));
    const TZelComPtr<CProperty> property(ground->getProperty());
    EXPECT_EQ(property->getMgrRef(), document.ref());
    ASSERT_NE(property->getOwnerLink(), nullptr);
    EXPECT_EQ(property->getOwnerLink()->getOwnerLink(), ground->getObjectLink());
    ground.reset();
    EXPECT_EQ(property->getOwnerLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(property->getMgrRef(), document.ref());
}

TEST(Ground, StandsInAList)
{
    CTestDocument document;
    const TZelComPtr<TObject2Mgr<CZelGround, IZelGround>> list(
        new TObject2Mgr<CZelGround, IZelGround>(document.ref()));
    ASSERT_NE(list->newZelObject(-1), nullptr);
    EXPECT_EQ(ZelTest::textOf(*list->getObjectIID()), "5DA0F7A7048A4D318FB25F92C1159D7E");
    EXPECT_EQ(list->at(0)->getMgrRef(), document.ref());
}

} // namespace
