#include "views/CZelAnimation.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/viewParts.h"

#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::vector<std::string> kInvalid = {"IZelAnimation::setCurrentPath - index invalid"};

void addPaths(CZelAnimation& animation, int nb)
{
    for (int i = 0; i < nb; ++i)
        animation.getPaths()->newZelObject(-1);
}

std::string pathText(const char* name)
{
    CTestDocument document;
    CAnimation path(document.ref());
    path.setName(name);
    path.getViewInfo()->setId(&kFreshInfoId);
    return partText(document, "Camera.Path", path);
}

} // namespace

TEST(Animation, ANewOne)
{
    CZelAnimation animation(nullptr);
    EXPECT_STREQ(animation.getName(), "");
    EXPECT_EQ(animation.getPaths()->getNbObjects(), 0);
    EXPECT_EQ(animation.getCurrentPathIndex(), 0);
    const IZelAnimation& constant = animation;
    EXPECT_EQ(constant.getPaths(), animation.getPaths());
    EXPECT_EQ(constant.getViewOptions(), animation.getViewOptions());
    animation.setName("Tour");
    EXPECT_STREQ(animation.getName(), "Tour");
    animation.setName(nullptr);
    EXPECT_STREQ(animation.getName(), "");
}

TEST(Animation, TheCurrentPathIsBroughtIntoRange)
{
    struct {
        int nbPaths;
        std::int32_t given, kept;
    } const cases[] = {
        {3, 0, 0}, {3, 2, 2},  {3, 3, 3},
        {3, 4, 2}, {3, -1, 0}, {3, std::numeric_limits<std::int32_t>::min(), 0},
        {1, 1, 1}, {1, 2, 0},  {0, 0, 0},
        {0, 1, 0}, {0, -1, 0}, {3, std::numeric_limits<std::int32_t>::max(), 2},
    };
    for (const auto& [nbPaths, given, kept] : cases) {
        SCOPED_TRACE(std::to_string(given) + " of " + std::to_string(nbPaths));
        CTestDocument document;
        CZelAnimation animation(document.ref()), alone(nullptr);
        addPaths(animation, nbPaths);
        addPaths(alone, nbPaths);
        animation.setCurrentPath(given);
        alone.setCurrentPath(given);
        EXPECT_EQ(animation.getCurrentPathIndex(), kept);
        EXPECT_EQ(alone.getCurrentPathIndex(), kept);
        EXPECT_EQ(document.takeMessages(), given == kept ? std::vector<std::string>() : kInvalid);
    }
}

TEST(Animation, ItsOptionsReachTheDocument)
{
    CTestDocument document;
    CZelAnimation animation(document.ref());
    animation.getViewOptions()->getRenderingOpt()->setWidth(-1);
    EXPECT_EQ(document.takeMessages().size(), 1U);
}

TEST(Animation, WhoCountsOnItsOptionsAndLetsGoEndsNothing)
{
    CTestDocument document;
    CZelAnimation animation(document.ref());
    IZelSharedPtrBase* block = animation.getViewOptions()->getSelfWeakPtr();
    block->addRef();
    block->release();
    EXPECT_TRUE(CZelSharedPtrObject::from(block)->isAlive());
}

TEST(AnimationXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(raw("Name", "<Name en=\"Tour\"/>", "<Name en=\"\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        raw("Camera.Paths", elementText("Camera.Paths", pathText("A") + pathText("B")),
            "<Camera.Paths/>"),
        optionsRow(), integer("Current", 2, 0), // the number of paths is no failure
    };
    checkElement<CZelAnimation>("Animation", rows);
}

TEST(AnimationXml, TheCurrentPathIsReadBehindThePaths)
{
    CTestDocument document;
    CZelAnimation animation(document.ref());
    const std::string start = "<E><Animation><Current>";
    const std::string rest = "</Current><Name en=\"N\"/>" + optionsRow().fresh +
                             elementText("Camera.Paths", pathText("A") + pathText("B")) +
                             "</Animation></E>";
    const CTestElement good(start + "1" + rest);
    EXPECT_TRUE(animation.initWithXML(good.element(), true));
    EXPECT_EQ(animation.getCurrentPathIndex(), 1);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
    const CTestElement bad(start + "7" + rest);
    EXPECT_TRUE(animation.initWithXML(bad.element(), true));
    EXPECT_EQ(animation.getPaths()->getNbObjects(), 2); // replaced
    EXPECT_EQ(animation.getCurrentPathIndex(), 1);
    EXPECT_EQ(document.takeMessages(), kInvalid);
}

TEST(AnimationXml, MissingPathsAreEmptiedAndFail)
{
    CTestDocument document;
    CZelAnimation animation(document.ref());
    addPaths(animation, 2);
    const CTestElement file("<E><Animation><Name en=\"N\"/></Animation></E>");
    EXPECT_FALSE(animation.initWithXML(file.element(), true));
    EXPECT_EQ(animation.getPaths()->getNbObjects(), 0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXMLRef::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Camera.Paths"});
}
