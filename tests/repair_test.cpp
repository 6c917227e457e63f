#include "tests/support/CClientDocument.h"
#include "tests/support/documentLists.h"

#include <zel/IZelAnimatedElement.h>
#include <zel/IZelBackgroundPicture.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelDepthOfField.h>
#include <zel/IZelInterpolatedValue.h>
#include <zel/IZelLensFlare.h>
#include <zel/IZelSequence.h>
#include <zel/IZelSkylight.h>
#include <zel/IZelViewInfo.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Setters store any number; one that means nothing fails the save before the first byte goes out,
// and the client can put it right.

using namespace OvZel;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelTest::CClientDocument;

namespace {

struct CBadValue {
    const char* name;
    const char* message;
    /// Stores the number in the object of the document that has it, which is made by 1.
    std::function<void(CClientDocument&, std::int32_t)> store;
    std::int32_t good = 0;
    std::int32_t bad = 9;
};

/// The only object of a list.
template <class T>
T& only(TZelObjectMgr<T>* list)
{
    return list->getNbObjects() > 0 ? *list->getZelObject(0) : *list->newZelObject(-1);
}

IZelHeliodon& heliodon(CClientDocument& document)
{
    return only(document->getHeliodons());
}

IZelObjectInstance& instance(CClientDocument& document)
{
    return only(document->getObjectInstances());
}

IZelAnimatedElement& element(CClientDocument& document)
{
    return only(only(document->getScenarios()).getAnimatedElements());
}

std::vector<CBadValue> badValues()
{
    using C = CClientDocument;
    using N = std::int32_t;
    return {
        {"light type", "No label for the value (9) [Point..Parallel]",
         [](C& document, N value) { only(document->getLights()).setType(value); }},
        {"shadow type", "No label for the value (-1) [None..Soft]",
         [](C& document, N value) { only(document->getLights()).setShadowType(value); }, 2, -1},
        {"lens flare", "No label for the value (4) [LensFlare1..Standard]",
         [](C& document, N value) { heliodon(document).getLensFlare()->setType(value); }, 3, 4},
        {"sun placement", "No label for the value (3) [Manual..Date.And.Place]",
         [](C& document, N value) { heliodon(document).setPlacementKind(value); }, 2, 3},
        {"sun colours", "No label for the value (2) [Automatic..User]",
         [](C& document, N value) { heliodon(document).setColorType(value); }, 1, 2},
        {"sky type", "No label for the value (9) [Automatic..User]",
         [](C& document, N value) { heliodon(document).getSkylight()->setSkyType(value); }},
        {"parallel view", "No label for the value (3) [Front..Axono]",
         [](C& document, N value) { only(document->getParallelViews()).setType(value); }, 2, 3},
        {"working view", "No label for the value (3) [Front..Axono]",
         [](C& document, N value) { only(document.more().getWorkingViews()).setType(value); }, 1,
         3},
        {"depth of field", "No label for the value (4) [FromPoint..FromDistance]",
         [](C& document, N value) {
             only(document->getCameras()).getViewInfo()->getDepthOfField()->setType(value);
         },
         3, 4},
        {"background of a view", "No label for the value (6) [None..HDRI]",
         [](C& document, N value) {
             only(document->getViewObjects()).getViewInfo()->getBackgroundPicture()->setType(value);
         },
         5, 6},
        {"placement", "No label for the value (2) [Perpendicular..Vertical]",
         [](C& document, N value) { instance(document).setPlacementProperty(value); }, 1, 2},
        {"behaviour", "No label for the value (3) [Normal..FollowOnPathXY]",
         [](C& document, N value) { instance(document).setAnimationBehavior(value); }, 2, 3},
        {"definition of the scene", "No label for the value (2) [Perpendicular..Vertical]",
         [](C& document, N value) { document->getObjectDefinition()->setPlacement(value); }, 0, 2},
        {"component", "No label for the value (5) [Uninitialized..Camera.Target]",
         [](C& document, N value) { only(document->getDefinitions()).setModelOrigin(value); }, 4,
         5},
        {"animated element", "No label for the value (0) [Sequence..Mapping.Node]",
         [](C& document, N value) { element(document).setElementType(value); }, 2, 0},
        {"channel",
         "No label for the value (0) "
         "[Camera.Position..Property.MonteCarlo.RefractionShininess]",
         [](C& document, N value) {
             element(document).setElementType(5);
             only(element(document).getInterpolatedValues()).setChannel(value);
         },
         240, 0},
        {"target of a sequence", "No label for the value (1) [Fixed.Vertex..Object.Instance]",
         [](C& document, N value) {
             only(only(document->getScenarios()).getSequences()).setTargetType(value);
         },
         3, 1},
    };
}

} // namespace

TEST(Repair, ANumberWithoutALabelFailsTheSaveUntilItIsPutRight)
{
    for (const CBadValue& each : badValues()) {
        SCOPED_TRACE(each.name);
        CClientDocument document;
        each.store(document, each.good);
        const std::string good = document.save();
        ASSERT_THAT(document.takeMessages(), IsEmpty());

        each.store(document, each.bad);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        for (int i = 0; i < 2; ++i) {
            EXPECT_FALSE(document.write());
            EXPECT_EQ(document.written, "");
            EXPECT_THAT(document.takeMessages(),
                        ElementsAre(std::string("Error \"") + each.message + "\" while writting"));
        }
        each.store(document, each.good);
        EXPECT_TRUE(document.write());
        EXPECT_EQ(document.written, good);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        CClientDocument other;
        EXPECT_TRUE(other.read(good));
        EXPECT_EQ(other.save(), good);
    }
}

TEST(Repair, RemovingTheObjectDoesAsWell)
{
    CClientDocument document;
    const std::string good = document.save();
    document->getLights()->newZelObject(-1);
    document->getLights()->newZelObject(-1)->setType(9);
    EXPECT_FALSE(document.write());
    EXPECT_EQ(document->getLights()->getNbObjects(), 2); // the lists are as they were
    document->getLights()->removeObject(-1);
    EXPECT_TRUE(document.write());
    document->getLights()->removeObject(-1);
    EXPECT_EQ(document.save(), good);
}

TEST(Repair, AMessageIsToldForTheFirstOfTheFileAlone)
{
    CClientDocument document;
    document->getParallelViews()->newZelObject(-1)->setType(7);
    document->getLights()->newZelObject(-1)->setType(8); // lights stand in front of views
    EXPECT_FALSE(document.write());
    EXPECT_THAT(
        document.takeMessages(),
        ElementsAre("Error \"No label for the value (8) [Point..Parallel]\" while writting"));
}

TEST(Repair, ASaveThatFailsLeavesALoadedFileReadyForTheNext)
{
    CClientDocument source;
    for (const auto& each : ZelTest::documentLists())
        each.add(source);
    source->setComment("kept", 0);
    source->setURL("url");
    CClientDocument document;
    ASSERT_TRUE(document.read(source.save()));
    const std::string good = document.save();
    IZelLight* light = document->getLights()->getZelObject(0);
    light->setType(9);
    EXPECT_FALSE(document.write());
    light->setType(0);
    EXPECT_EQ(document.save(), good);
}

TEST(Repair, SavesThatFailDoNotPileUpSections)
{
    CClientDocument source;
    source->getLights()->newZelObject(-1);
    CClientDocument document;
    ASSERT_TRUE(document.read(source.save()));
    const auto nbSections = [&document] {
        OrvaneXML::XIXMLElement* const file =
            document->getApplicationData("Mine")->GetNode()->GetParent()->GetNode()->GetParent();
        int nb = 0;
        for (auto* each = file->FindElement(file->MakeKey("Lights")); each != nullptr;
             each = each->GetNextSame())
            ++nb;
        return nb;
    };
    EXPECT_EQ(nbSections(), 1);
    document->getLights()->getZelObject(0)->setType(9);
    for (int i = 0; i < 5; ++i) {
        EXPECT_FALSE(document.write());
        EXPECT_LE(nbSections(), 2); // the one that was begun, and that of the file
    }
    document->getLights()->getZelObject(0)->setType(0);
    EXPECT_TRUE(document.write());
    EXPECT_EQ(nbSections(), 1);
}
