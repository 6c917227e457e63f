#include "views/viewEnvironment.h"

#include "environment/CZelEnvironment.h"
#include "tests/support/CClientDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/textOf.h"
#include "views/CCamera.h"

#include <gtest/gtest.h>

// Environments have no section of their own: they travel inside the views that name them.

using namespace OvZel;
using namespace ZelTest;

namespace {

using CMessages = CClientDocument::CMessages;

constexpr CZelUUID kId{"E0000000000000000000000000000001"};
constexpr CZelUUID kOther{"E0000000000000000000000000000002"};

/// A new view of the document that names the environment.
IZelViewInfo& viewOf(CClientDocument& document, const CZelUUID& id)
{
    IZelViewInfo* info = document->getCameras()->newZelObject(-1)->getViewInfo();
    info->setEnvironment(id);
    return *info;
}

IZelEnvironment& environmentOf(CClientDocument& document, const CZelUUID& id, const char* name)
{
    IZelEnvironment* environment = document->getEnvironments()->newZelObject(-1);
    environment->setId(id);
    environment->setName(name);
    return *environment;
}

/// The text of the view information as the object writes it alone.
std::string textOfInfo(IZelViewInfo& info)
{
    CTestElement element;
    EXPECT_NE(info.getBasicData()->putInXML(element.element()), nullptr);
    return element.text();
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

TEST(ViewEnvironment, GoesOutAsTheLastChildOfTheViewThatNamesIt)
{
    CClientDocument document;
    environmentOf(document, kOther, "Dull");
    IZelEnvironment& environment = environmentOf(document, kId, "Bright");
    environment.getForeground()->setURL("trees.png");
    const std::string text = textOfInfo(viewOf(document, kId));
    const std::string opening = "<Environment UUID=\"" + textOf(kId) + "\">";
    const std::size_t start = text.find(opening);
    ASSERT_NE(start, std::string::npos);
    EXPECT_EQ(text.find("<Environment ", start + 1), std::string::npos);
    EXPECT_EQ(text.substr(start + opening.size(), 19), "<Name en=\"Bright\"/>");
    EXPECT_TRUE(endsWith(text, "</Foregroung></Environment></View.Info></E>"));
    EXPECT_EQ(text.find("Dull"), std::string::npos);
    EXPECT_EQ(document.takeMessages(), CMessages());
}

TEST(ViewEnvironment, AViewThatNamesNoneOfTheDocumentHasNoChild)
{
    CClientDocument document;
    environmentOf(document, kId, "Bright");
    environmentOf(document, CZelUUID(), "Nobody's");
    for (const CZelUUID& id : {CZelUUID(), kOther})
        EXPECT_EQ(textOfInfo(viewOf(document, id)).find("<Environment"), std::string::npos);
}

TEST(ViewEnvironment, ComesBackWithItsView)
{
    CClientDocument first;
    environmentOf(first, kId, "Bright").getFog()->setDensity(0.25);
    environmentOf(first, kOther, "Lost");
    viewOf(first, kId);
    viewOf(first, kId);

    CClientDocument second;
    ASSERT_TRUE(second.read(first.save()));
    ASSERT_EQ(second->getEnvironments()->getNbObjects(), 1);
    IZelEnvironment* environment = second->getEnvironments()->getZelObject(0);
    EXPECT_EQ(environment->getId(), kId);
    EXPECT_STREQ(environment->getName(), "Bright");
    EXPECT_EQ(environment->getFog()->getDensity(), 0.25);
    EXPECT_EQ(second->getCameras()->getZelObject(1)->getViewInfo()->getEnvironment(), kId);
    EXPECT_EQ(second.takeMessages(), CMessages());
}

TEST(ViewEnvironment, IsReadIntoTheOneOfItsIdentifierWhateverTheFrameTakes)
{
    CClientDocument first;
    environmentOf(first, kId, "Bright");
    CTestElement element;
    ASSERT_NE(viewOf(first, kId).getBasicData()->putInXML(element.element()), nullptr);

    CClientDocument second;
    environmentOf(second, kOther, "Dull");
    IZelEnvironment& present = environmentOf(second, kId, "Old");
    IZelViewInfo& info = viewOf(second, CZelUUID());
    EXPECT_TRUE(info.getBasicData()->initWithXML(element.element(), false));
    EXPECT_EQ(second->getEnvironments()->getNbObjects(), 2);
    EXPECT_STREQ(present.getName(), "Bright");

    CClientDocument third;
    environmentOf(third, kOther, "Dull");
    EXPECT_TRUE(viewOf(third, CZelUUID()).getBasicData()->initWithXML(element.element(), false));
    ASSERT_EQ(third->getEnvironments()->getNbObjects(), 2);
    EXPECT_EQ(third->getEnvironments()->getZelObject(1)->getId(), kId);
    EXPECT_STREQ(third->getEnvironments()->getZelObject(0)->getName(), "Dull");
}

TEST(ViewEnvironment, AViewWithoutTheChildChangesNone)
{
    CClientDocument first;
    CTestElement element;
    ASSERT_NE(viewOf(first, kId).getBasicData()->putInXML(element.element()), nullptr);

    CClientDocument second;
    environmentOf(second, kId, "Bright");
    IZelViewInfo& info = viewOf(second, CZelUUID());
    EXPECT_TRUE(info.getBasicData()->initWithXML(element.element(), true));
    EXPECT_EQ(info.getEnvironment(), kId);
    EXPECT_EQ(second->getEnvironments()->getNbObjects(), 1);
    EXPECT_STREQ(second->getEnvironments()->getZelObject(0)->getName(), "Bright");
}

TEST(ViewEnvironment, OneWithoutIdentifierFails)
{
    CClientDocument first;
    environmentOf(first, kId, "Bright");
    IZelViewInfo& info = viewOf(first, kId);
    std::string text = textOfInfo(info);
    text.replace(text.find("<Environment UUID"), 17, "<Environment Uuid");
    const CTestElement element(text);
    EXPECT_FALSE(info.getBasicData()->initWithXML(element.element(), true));
    EXPECT_EQ(first.takeMessages(),
              CMessages{"Exception in CZelXMLBasicData::initWithXML : CZelXMLGet::GetUUID - NULL "
                        "ptr for tag UUID"});
    EXPECT_EQ(first->getEnvironments()->getNbObjects(), 1);
}

TEST(ViewEnvironment, AViewThatOutlivesItsDocumentPassesOverIt)
{
    CClientDocument document;
    environmentOf(document, kId, "Bright");
    TZelComPtr info(&viewOf(document, kId));
    const CTestElement element(textOfInfo(*info));
    document.release();
    EXPECT_EQ(textOfInfo(*info).find("<Environment"), std::string::npos);
    EXPECT_TRUE(info->getBasicData()->initWithXML(element.element(), true));
}
