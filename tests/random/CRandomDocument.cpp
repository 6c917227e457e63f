#include "tests/random/CRandomDocument.h"

#include <algorithm>
#include <iterator>

namespace ZelTest {

using namespace OvZel;

void CRandomDocument::fill(IZelMgr& document)
{
    // Quotes, and letters of "name" at the start, do not survive in the instruction.
    document.setApplication(random.flag() ? "Vendralis" : "Studio é & <x>", "6.0");
    document.setURL(random.url());
    fillRecords(document);
    fillLists(document);
    // Its own mesh is saved only while the document has no components.
    if (document.getDefinitions()->getNbObjects() == 0)
        fillMesh(*document.getPoints(), *document.getPolygons());
}

// Lists that others name come first, so that references find something.
void CRandomDocument::fillLists(IZelMgr& document)
{
    IZelMgrEx& more = *document.getMgrEx(eVersionZel);
    extend(*document.getLayers());
    extend(*document.getLightsGroups());
    extend(*document.getEnvironments());
    extend(*document.getGrounds());
    extend(*document.getImages());
    extend(*document.getProperties());
    extend(*document.getLights());
    extend(*document.getHeliodons());
    extend(*document.getExternalDefinitions());
    extend(*document.getDefinitions());
    extend(*document.getObjectInstances());
    extend(*document.get3DPaths());
    extend(*document.getCameras());
    extend(*document.getParallelViews());
    extend(*document.getPanoramas());
    extend(*document.getViewObjects());
    extend(*more.getAnimations());
    extend(*more.getBillboards());
    extend(*more.getWorkingViews());
    extend(*document.getScenarios());
}

void CRandomDocument::fillRecords(IZelMgr& document)
{
    fillId(*document.getFileInfo());
    const double origin[] = {random.number(), random.number(), random.number()};
    document.getFileInfo()->setOrigin(origin);
    if (random.flag())
        fill(*document.getPreviewImage());
    fill(*document.getObjectDefinition());
    fill(*document.getHeliodons()->getZelObject(0));
    fill(*document.getLayerInfo());
    fill(*document.getMgrEx(eVersionZel)->getRenderParameters());
    for (std::int32_t i = 0; random.flag(); ++i)
        document.setComment(random.name().c_str(), i);
}

void CRandomDocument::fillBasic(IZelBasic& object)
{
    fillId(object);
    fillName(object);
    fillUIValue(object);
}

void CRandomDocument::fillId(IZelBasic& object)
{
    const CZelUUID id = random.id();
    object.getBasicData()->setId(&id);
}

void CRandomDocument::fillName(IZelBasic& object)
{
    object.getBasicData()->setName(random.text());
}

void CRandomDocument::fillUIValue(IZelBasic& object)
{
    object.getBasicData()->setUIValue(random.word());
}

void CRandomDocument::fill(IZelImage& image)
{
    fillId(image);
    const std::uint32_t width = 1 + random.below(40);
    const std::uint32_t height = 1 + random.below(20);
    std::vector<std::uint8_t> pixels(std::size_t{width} * height * 4);
    // Runs of equal pixels, some of length one.
    std::uint8_t pixel[4] = {};
    for (std::size_t i = 0; i < pixels.size(); i += 4) {
        if (random.once(5))
            std::generate(std::begin(pixel), std::end(pixel), [&] { return random.byte(); });
        std::copy(std::begin(pixel), std::end(pixel), pixels.begin() + static_cast<long>(i));
    }
    image.setImage(width, height, pixels.data());
}

void CRandomDocument::fillMesh(TZelObjectMgr<CZelPoint>& points,
                               TZelObjectMgr<IZelPolygon>& polygons)
{
    for (std::uint32_t left = random.below(12); left > 0; --left)
        fill(*points.newZelObject(-1));
    extend(polygons);
}

void CRandomDocument::fill(IZelPolygon& polygon)
{
    polygon.setMaterial(random.integer());
    for (std::uint32_t left = random.below(6); left > 0; --left)
        fill(*polygon.getVertices()->newZelObject(-1));
    extend(*polygon.getHoles());
    // A smoothed polygon with holes is not saved as such.
    polygon.setSmooth(polygon.getHoles()->getNbObjects() == 0 && random.flag());
}

void CRandomDocument::fill(IZelPolygon::IZelHole& hole)
{
    extend(*hole.getVertices());
}

void CRandomDocument::fill(CZelVertex& vertex)
{
    vertex.pointIndex = random.integer();
    vertex.flags = random.below(4);
    if ((vertex.flags & CZelVertex::kFlagM) != 0) {
        vertex.u = static_cast<float>(random.number(-10.0, 10.0));
        vertex.v = static_cast<float>(random.number(-10.0, 10.0));
    }
}

void CRandomDocument::fill(CZelPoint& point)
{
    point = {random.coordinate(), random.coordinate(), random.coordinate()};
}

void CRandomDocument::fill(CZelUUID& id)
{
    id = random.reference();
}

void CRandomDocument::fill(double& value)
{
    value = random.number();
}

void CRandomDocument::fill(IZelString& text)
{
    constexpr const char* kLanguages[] = {"en", "fr", "de", "ja", "zz"};
    for (const char* language : kLanguages) {
        const auto letter = [&](int i) { return static_cast<std::uint8_t>(language[i]); };
        if (random.flag())
            text.setText(letter(0) * 256U + letter(1), random.text());
    }
}

void CRandomDocument::fill(OrvaneXML::XIXMLElement& element, int depth)
{
    for (std::uint32_t left = random.below(3); left > 0; --left)
        element.AddAttribute(element.MakeKey(random.name().c_str()), random.text());
    if (random.once(4))
        element.AddComment(random.name().c_str());
    if (random.once(4))
        element.AddInstruction(random.name().c_str(), random.name().c_str());
    if (random.flag()) {
        element.AddText(random.text());
        return;
    }
    for (std::uint32_t left = depth > 0 ? random.below(3) : 0; left > 0; --left)
        fill(*element.AddElement(element.MakeKey(random.name().c_str())), depth - 1);
}

} // namespace ZelTest
