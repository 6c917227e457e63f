#include "views/CZelPanoramaV2.h"

#include "core/TComObjectMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

CZelUUID idOf(int number)
{
    CZelUUID id;
    id.bytes[15] = static_cast<std::uint8_t>(number);
    return id;
}

void addNode(CZelPanoramaV2& panorama, int number)
{
    const CZelUUID id = idOf(number);
    panorama.getNodes()->append()->setId(&id);
}

void addLink(CZelPanoramaV2& panorama, int start, int end, const char* name)
{
    CZelPanoLinkV2* link = panorama.getLinks()->append();
    link->setStart(idOf(start));
    link->setEnd(idOf(end));
    link->setName(name);
}

std::string namesOfLinks(const CZelPanoramaV2& panorama)
{
    std::string names;
    for (std::int32_t i = 0; i < panorama.getLinks()->size(); ++i)
        names += panorama.getLinks()->at(i)->getName();
    return names;
}

} // namespace

TEST(Panorama, ANewOne)
{
    const TZelComPtr panorama(new CZelPanoramaV2(nullptr));
    EXPECT_STREQ(panorama->getName(), "PanoramaV2");
    EXPECT_EQ(panorama->getNodes()->getNbObjects(), 0);
    EXPECT_EQ(panorama->getLinks()->getNbObjects(), 0);
    EXPECT_EQ(panorama->getParallelViews()->getNbObjects(), 0);
    EXPECT_TRUE(panorama->getStartNode().isNull());
    EXPECT_TRUE(panorama->getCurrentNode().isNull());
    EXPECT_TRUE(isSame(panorama->getDirection(), CZelPoint{0, 0, 1}));
    EXPECT_TRUE(isSame(panorama->getCurrentDirection(), CZelPoint{0, 0, 1}));
    EXPECT_EQ(panorama->getFocal(), 50.0);
    EXPECT_EQ(panorama->getFlags(), 0);
    const IZelPanoramaV2& constant = *panorama;
    EXPECT_EQ(constant.getNodes(), panorama->getNodes());
    EXPECT_EQ(constant.getLinks(), panorama->getLinks());
    EXPECT_EQ(constant.getParallelViews(), panorama->getParallelViews());
}

TEST(Panorama, StoresWhatComes)
{
    using I = IZelPanoramaV2;
    CTestDocument document;
    const TZelComPtr panorama(new CZelPanoramaV2(document.ref()));
    expectAccessors<I>(*panorama,
                       {ACCESS(I, StartNode, idOf(1)), ACCESS(I, Direction, (CZelPoint{1, 2, 3})),
                        ACCESS(I, Focal, -200.0), ACCESS(I, CurrentNode, idOf(2)),
                        ACCESS(I, Flags, -1), ACCESS(I, CurrentDirection, (CZelPoint{4, 5, 6}))});
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(Panorama, NodesAndLinksStoreWhatComes)
{
    using Node = IZelPanoNodeV2;
    using Link = IZelPanoLinkV2;
    const TZelComPtr panorama(new CZelPanoramaV2(nullptr));
    Node* node = panorama->getNodes()->newZelObject(-1);
    EXPECT_TRUE(isSame(node->getPosition(), CZelPoint{0, 0, 0}));
    EXPECT_TRUE(isSame(node->getDirection(), CZelPoint{0, 0, 1}));
    expectAccessors<Node>(*node, {ACCESS(Node, Position, (CZelPoint{1, 2, 3})),
                                  ACCESS(Node, Direction, (CZelPoint{4, 5, 6}))});
    Link* link = panorama->getLinks()->newZelObject(-1);
    EXPECT_TRUE(link->getStart().isNull() && link->getEnd().isNull() && link->getPathId().isNull());
    expectAccessors<Link>(*link, {ACCESS(Link, Start, idOf(1)), ACCESS(Link, End, idOf(2)),
                                  ACCESS(Link, PathId, idOf(3))});
}

TEST(Panorama, ANodeThatAClientKeepsOutlivesItsList)
{
    CTestDocument document;
    TZelComPtr panorama(new CZelPanoramaV2(document.ref()));
    const TZelComPtr node(panorama->getNodes()->newZelObject(-1));
    const TZelComPtr link(panorama->getLinks()->newZelObject(-1));
    EXPECT_FALSE(node->getBasicData()->getId()->isNull());
    panorama.reset();
    EXPECT_TRUE(isSame(node->getDirection(), CZelPoint{0, 0, 1}));
    EXPECT_TRUE(link->getStart().isNull());
}

TEST(Panorama, RemovesTheLinksThatLeadNowhere)
{
    const TZelComPtr panorama(new CZelPanoramaV2(nullptr));
    addNode(*panorama, 1);
    addNode(*panorama, 2);
    addLink(*panorama, 1, 2, "a");
    addLink(*panorama, 1, 3, "b"); // a node of another panorama
    addLink(*panorama, 2, 1, "c");
    addLink(*panorama, 3, 2, "d");
    addLink(*panorama, 0, 0, "e");
    addLink(*panorama, 2, 2, "f");
    panorama->getLinks()->at(0)->setPathId(idOf(9)); // of which nothing is asked
    panorama->removeDanglingLinks();
    EXPECT_EQ(namesOfLinks(*panorama), "acf");
    panorama->removeDanglingLinks();
    EXPECT_EQ(namesOfLinks(*panorama), "acf");
}

TEST(Panorama, WithoutNodesNoLinkIsLeft)
{
    CTestDocument document;
    const TZelComPtr panorama(new CZelPanoramaV2(document.ref()));
    addLink(*panorama, 1, 2, "a");
    addLink(*panorama, 0, 0, "b");
    panorama->removeDanglingLinks();
    EXPECT_EQ(panorama->getLinks()->getNbObjects(), 0);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}
