#include "views/CZelViewInfo.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

using namespace OvZel;

namespace {

constexpr CZelUUID kId{"000102030405060708090A0B0C0D0E0F"};

/// The two operations that give a part give the same one, and never null.
template <class T>
void expectPart(const T* constant, T* plain)
{
    EXPECT_NE(plain, nullptr);
    EXPECT_EQ(constant, plain);
}

} // namespace

TEST(ViewInfo, ANewOne)
{
    TZelComPtr info(new CZelViewInfo(nullptr));
    EXPECT_FALSE(info->getLocked());
    EXPECT_STREQ(info->getHeliodonName(), "Heliodon");
    EXPECT_EQ(info->getUIValue(), 0U);
    EXPECT_FALSE(info->getId()->isNull());
    EXPECT_TRUE(info->getEnvironment().isNull());
    EXPECT_TRUE(info->getGround().isNull());
    EXPECT_EQ(info->getLightsGroups()->getNbObjects(), 0);
    EXPECT_EQ(info->getNeonShaders()->getNbObjects(), 0);
    EXPECT_EQ(info->getLayers()->getNbObjects(), 0);
    EXPECT_EQ(info->getCameraLight()->getKind(), 0);
    EXPECT_EQ(info->getRadiosityLight()->getKind(), 1);
    EXPECT_FALSE(info->getLaser()->getActive());
    EXPECT_TRUE(ZelTest::isSame(info->getLaser()->getNormal(), CZelPoint{0, 0, 1}));
}

TEST(ViewInfo, HandsOutItsParts)
{
    TZelComPtr plain(new CZelViewInfo(nullptr));
    IZelViewInfo* info = plain.get();
    const IZelViewInfo* constant = info;
    expectPart(constant->getBackground(), info->getBackground());
    expectPart(constant->getForeground(), info->getForeground());
    expectPart(constant->getLightsGroups(), info->getLightsGroups());
    expectPart(constant->getCameraLight(), info->getCameraLight());
    expectPart(constant->getRadiosityLight(), info->getRadiosityLight());
    expectPart(constant->getAtmosphere(), info->getAtmosphere());
    expectPart(constant->getDepthOfField(), info->getDepthOfField());
    expectPart(constant->getClippingBox(), info->getClippingBox());
    expectPart(constant->getFilters(), info->getFilters());
    expectPart(constant->getNeonShaders(), info->getNeonShaders());
    expectPart(constant->getBackgroundPicture(), info->getBackgroundPicture());
    expectPart(constant->getLayers(), info->getLayers());
    expectPart(constant->getToneSettings(), info->getToneSettings());
    expectPart(constant->getLaser(), info->getLaser());
    EXPECT_NE(info->getCameraLight(), info->getRadiosityLight());
    EXPECT_NE(info->getLightsGroups(), info->getNeonShaders());
    EXPECT_NE(info->getLayers(), info->getNeonShaders());
    EXPECT_EQ(*info->getLayers()->getObjectIID(), CZelUUID("4F9C1F83DEFB4453B882001C03F72FC0"));
}

TEST(ViewInfo, StoresWhatItIsGiven)
{
    using I = IZelViewInfo;
    TZelComPtr info(new CZelViewInfo(nullptr));
    ZelTest::expectAccessors<I>(*info, {ACCESS(I, Locked, true), ACCESS(I, HeliodonName, "Sun"),
                                        ACCESS(I, Environment, kId), ACCESS(I, Ground, kId)});
    info->setHeliodonName(nullptr);
    EXPECT_STREQ(info->getHeliodonName(), "");
}

TEST(ViewInfo, PartsWarnThroughTheDocument)
{
    ZelTest::CTestDocument document;
    TZelComPtr info(new CZelViewInfo(document.ref()));
    EXPECT_FALSE(info->getLaser()->initWithXML(nullptr, true));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : Unknown exception"});
    info->getBackground()->setLinePower(500.0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Method setLinePower has clipped a value out of range."});
}

TEST(ViewInfo, AnswersToTheFamilyOfCountedObjectsAlone)
{
    TZelComPtr info(new CZelViewInfo(nullptr));
    void* out = nullptr;
    EXPECT_EQ(info->QueryInterface(IZelBasic::sIID, &out), kQueryOk);
    EXPECT_EQ(out, static_cast<IZelViewInfo*>(info.get()));
    info->Release();
    for (const CZelUUID& id : {IZelViewInfo::sIID, CZelUUID("F80CF31F35E5438AB5B31B29044B6A26")})
        EXPECT_EQ(info->QueryInterface(id, &out), kQueryNoInterface);
}
