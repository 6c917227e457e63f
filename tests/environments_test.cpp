#include "tests/support/CClientDocument.h"
#include "tests/support/savedText.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include <zel/IZelCamera.h>
#include <zel/IZelClouds.h>
#include <zel/IZelEnvironment.h>
#include <zel/IZelFog.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelViewInfo.h>
#include <zel/IZelViewObject.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Environments have no section: they travel inside the views that use them.

using namespace OvZel;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelTest::CClientDocument;
using ZelTest::kIdA;
using ZelTest::kIdB;
using ZelTest::kIdC;

namespace {

IZelEnvironment* addEnvironment(CClientDocument& document, const std::string& id, const char* name,
                                double density)
{
    IZelEnvironment* made = document->getEnvironments()->newZelObject(-1);
    made->setId(CZelUUID(id.c_str()));
    made->setName(name);
    made->getFog()->setDensity(density);
    return made;
}

void addCamera(CClientDocument& document, const std::string& environment)
{
    document->getCameras()->newZelObject(-1)->getViewInfo()->setEnvironment(
        CZelUUID(environment.c_str()));
}

/// "first digit of the identifier, name, density" for each.
std::vector<std::string> environmentsOf(CClientDocument& document)
{
    std::vector<std::string> found;
    for (std::int32_t i = 0; i < document->getEnvironments()->getNbObjects(); ++i) {
        IZelEnvironment* each = document->getEnvironments()->getZelObject(i);
        found.push_back(ZelTest::textOf(each->getId()).substr(0, 1) + " " + each->getName() + " " +
                        std::to_string(each->getFog()->getDensity()));
    }
    return found;
}

std::size_t countOf(const std::string& text, const std::string& part)
{
    std::size_t nb = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++nb;
    return nb;
}

} // namespace

TEST(Environments, TravelWithTheViewsThatNameThem)
{
    CClientDocument source;
    addEnvironment(source, kIdA, "Morning", 0.25);
    addEnvironment(source, kIdB, "Nobody's", 0.5);
    addEnvironment(source, kIdC, "Evening", 0.75);
    addCamera(source, kIdC);
    addCamera(source, ZelTest::kNoId);
    const CZelUUID a(kIdA.c_str());
    source->getParallelViews()->newZelObject(-1)->getViewInfo()->setEnvironment(a);
    source->getViewObjects()->newZelObject(-1)->getViewInfo()->setEnvironment(a);
    source.more().getWorkingViews()->newZelObject(-1)->getViewInfo()->setEnvironment(
        CZelUUID(std::string(32, 'D').c_str())); // there is none
    const std::string saved = source.save();
    EXPECT_EQ(countOf(saved, "<Environment UUID=\"" + kIdA), 2U);
    EXPECT_EQ(countOf(saved, "<Environment UUID=\"" + kIdB), 0U);
    EXPECT_EQ(countOf(saved, "<Environment UUID=\"" + kIdC), 1U);
    EXPECT_EQ(countOf(saved, "<Environment"), 3U);
    // It is the last child of the view's information.
    EXPECT_EQ(countOf(ZelTest::flat(saved), "</Environment></View.Info>"), 3U);

    CClientDocument document;
    ASSERT_TRUE(document.read(saved));
    // Cameras are read in front of the other views.
    EXPECT_THAT(environmentsOf(document), ElementsAre("C Evening 0.750000", "A Morning 0.250000"));
    EXPECT_EQ(document->getCameras()->getZelObject(0)->getViewInfo()->getEnvironment(),
              CZelUUID(kIdC.c_str()));
    EXPECT_TRUE(document->getCameras()->getZelObject(1)->getViewInfo()->getEnvironment().isNull());
    EXPECT_EQ(document.save(), saved);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Environments, ALoadChangesThoseThatItNamesAndKeepsTheOthers)
{
    CClientDocument source;
    addEnvironment(source, kIdA, "Morning", 0.25);
    addCamera(source, kIdA);
    const std::string saved = source.save();

    CClientDocument document;
    addEnvironment(document, kIdB, "Mine", 0.5);
    IZelEnvironment* same = addEnvironment(document, kIdA, "Old", 0.125);
    ASSERT_TRUE(document.read(saved));
    EXPECT_THAT(environmentsOf(document), ElementsAre("B Mine 0.500000", "A Morning 0.250000"));
    EXPECT_EQ(document->getEnvironments()->getZelObject(1), same);
    // A view without one inside changes none, though it names one.
    std::string without = ZelTest::flat(saved);
    const std::size_t begin = without.find("<Environment ");
    const std::string close = "</Environment>";
    without.erase(begin, without.find(close) + close.size() - begin);
    same->setName("Kept");
    ASSERT_TRUE(document.read(without));
    EXPECT_THAT(environmentsOf(document), ElementsAre("B Mine 0.500000", "A Kept 0.250000"));
    EXPECT_EQ(document->getCameras()->getZelObject(0)->getViewInfo()->getEnvironment(),
              CZelUUID(kIdA.c_str()));
    EXPECT_TRUE(document.read(ZelTest::zelFile("")));
    EXPECT_EQ(document->getEnvironments()->getNbObjects(), 2);
}

TEST(Environments, OfTwoViewsTheLastOneReadCounts)
{
    CClientDocument source;
    addEnvironment(source, kIdA, "First", 0.25);
    addCamera(source, kIdA);
    addCamera(source, kIdA);
    std::string saved = source.save();
    const std::string name = "<Name en=\"First\"/>";
    const std::size_t second = saved.rfind(name);
    ASSERT_NE(second, saved.find(name));
    saved.replace(second, name.size(), "<Name en=\"Second\"/>");
    CClientDocument document;
    ASSERT_TRUE(document.read(saved));
    EXPECT_THAT(environmentsOf(document), ElementsAre("A Second 0.250000"));
}

TEST(Environments, OneThatWasRemovedIsNoLongerWritten)
{
    CClientDocument document;
    addEnvironment(document, kIdA, "Morning", 0.25);
    addCamera(document, kIdA);
    EXPECT_EQ(countOf(document.save(), "<Environment "), 1U);
    document->getEnvironments()->removeAllObjects();
    EXPECT_EQ(countOf(document.save(), "<Environment "), 0U);
    EXPECT_EQ(countOf(document.written, "Environment=\"" + kIdA + "\""), 1U);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}
