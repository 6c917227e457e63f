// One material by its facade, one by its tree, and a walk over both.

#include "examples/shared/CDocument.h"

#include <cstdio>

using namespace OvZel;
using namespace example;

static void makeBricks(IZelProperty& bricks)
{
    bricks.setDiffuseColor(CZelColor::rgb(178, 84, 60)); // makes the leaf
    bricks.setDiffuseMapUrl("textures/bricks.png");      // makes the mapping node above it
    bricks.setMapRepeat(true, true);
}

static void addLeaf(IZelTCE& tree, ITCENode& parent, const CZelColor& color)
{
    ITCENode* leaf = tree.createNode(eLeafNode);
    leaf->asLeafNode()->setDiffuse(color);
    leaf->setParent(&parent); // to know the parent and to be its child are two things
    parent.addChild(leaf);
    leaf->Release(); // the tree keeps a reference of its own
}

static void makeChess(IZelProperty& chess)
{
    IZelTCE& tree = *chess.getTCE();
    ITCENode* squares = tree.createNode(eChessNode); // its parent is the root already
    tree.getRootNode()->addChild(squares);
    addLeaf(tree, *squares, CZelColor::rgb(20, 20, 20));
    addLeaf(tree, *squares, CZelColor::rgb(240, 240, 240));
    squares->Release();
}

static int print(IZelProperty& material)
{
    int nbNodes = 0;
    std::printf("\"%s\":", nameOf(material));
    for (ITCENode* node = material.getTCE()->getRootNode(); node; node = node->getChild(0)) {
        std::printf(" %d", node->getNodeType());
        if (IMappingNode* mapping = node->asMappingNode())
            std::printf(" (%s)", mapping->getMaps()->getURL(1));
        ++nbNodes;
    }
    std::printf("\n");
    return nbNodes;
}

int main(int argc, char** argv)
{
    const std::string folder = argc > 1 ? argv[1] : ".";
    CDocument document;
    makeBricks(add(document->getProperties(), "Bricks"));
    makeChess(add(document->getProperties(), "Chess"));
    document.save(folder + "/materials.zel");

    CDocument loaded;
    loaded.load(folder + "/materials.zel");
    for (std::int32_t i = 0; i < loaded->getProperties()->getNbObjects(); ++i)
        if (print(*loaded->getProperties()->getZelObject(i)) != 3)
            return 1;
}
