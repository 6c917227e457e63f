#include "tests/faults/fullScene.h"

#include "tests/support/CClientDocument.h"
#include "tests/support/savedText.h"
#include "tests/toolRun.h"

#include <zel/IZelMgr.h>

#include <stdexcept>

namespace ZelTest {

using namespace OvZel;

namespace {

constexpr std::uint8_t kPixels[] = {255, 1, 2, 3, 255, 1, 2, 3, 255, 4, 5, 6, 255, 7, 8, 9};

template <class I>
void keepFirst(TZelObjectMgr<I>* list, std::int32_t count)
{
    while (list->getNbObjects() > count)
        list->removeObject(-1);
}

void addLoop(TZelObjectMgr<CZelVertex>* vertices, std::initializer_list<std::int32_t> points)
{
    for (const std::int32_t point : points)
        *vertices->newZelObject(-1) = {point, CZelVertex::kFlagM, 0.5F, 0.25F};
}

/// A triangle with a hole.
void replaceMesh(IZelZelObjectDefinition& definition)
{
    definition.getPolygons()->removeAllObjects();
    definition.getPoints()->removeAllObjects();
    for (int i = 0; i < 6; ++i)
        *definition.getPoints()->newZelObject(-1) = {1.0 * i, 0.5 * i * i, 0.25};
    IZelPolygon& polygon = *definition.getPolygons()->newZelObject(-1);
    addLoop(polygon.getVertices(), {0, 1, 2});
    addLoop(polygon.getHoles()->newZelObject(-1)->getVertices(), {3, 4, 5});
}

void thin(IZelMgr& document)
{
    document.getDefinitions()->removeObject(1);
    keepFirst(document.getDefinitions(), 2);
    for (std::int32_t i = 0; i < document.getDefinitions()->getNbObjects(); ++i)
        replaceMesh(*document.getDefinitions()->getZelObject(i));
    for (int i = 0; i < 5; ++i) // of the same class as the sixth
        document.getObjectInstances()->removeObject(0);
    keepFirst(document.getCameras(), 1);
    keepFirst(document.getLights(), 1);
    keepFirst(document.getHeliodons(), 1);
    keepFirst(document.getLayers(), 1);
    document.getImages()->getZelObject(0)->setImage(2, 2, kPixels);
    document.getPreviewImage()->setImage(2, 2, kPixels);
    document.getViewObjects()->newZelObject(-1)->getBasicData()->setName("South");
    document.getMgrEx(eVersionZel)->getAnimations()->newZelObject(-1);
}

std::string made()
{
    CClientDocument document;
    if (!document.read(contents(sample("house.zel"))))
        throw std::runtime_error("the sample cannot be read");
    thin(*document.get());
    std::string text = document.save();
    text.insert(text.rfind("</Zel.File>"), "<Other kind=\"a&amp;b\"><Deep>kept</Deep></Other>");
    text.insert(text.find("<Zel.File"), "<!-- a house -->");
    return text;
}

} // namespace

const std::string& fullScene()
{
    static const std::string text = made();
    return text;
}

const std::string& wholeShader()
{
    static const std::string text = "<Zel.Shader>" +
                                    elementOf(sectionOf(fullScene(), "Properties"), "Property") +
                                    "</Zel.Shader>";
    return text;
}

const std::string& nodeShader()
{
    static const std::string text = [] {
        CClientDocument document;
        document.read(fullScene());
        CMemoryWriteStream stream;
        document.more().writeShader(document->getProperties()->getZelObject(0), &stream);
        const std::string node =
            stream.text.substr(stream.text.find("<Node"),
                               stream.text.rfind("</Zel.Shader>") - stream.text.find("<Node"));
        return "<Orvane.Shader>" + node + "</Orvane.Shader>";
    }();
    return text;
}

} // namespace ZelTest
