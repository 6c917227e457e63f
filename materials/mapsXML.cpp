#include "materials/mapsXML.h"

#include "core/OvThrow.h"

#include <string>

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

// Both labels of 4 are read.
constexpr CZelLabel kMapKinds[] = {{"Diffuse", 1},     {"Specular", 2},  {"Glossy", 3},
                                   {"Reflection", 4},  {"Refletion", 4}, // (sic)
                                   {"Environment", 5}, {"Alpha", 6},     {"Bump", 7},
                                   {"Normal.Map", 8},  {"Neon", 9},      {"Relief", 10},
                                   {"Movie", 11},      {nullptr, 0}};

CZelSubPart& appendFrom(const CZelXMLGet& maps, TObjectMgr<CZelSubPart, IZelSubPart>& list)
{
    CZelSubPart* part = list.append();
    OvThrow::IfNULL(part);
    readMaps(maps, *part);
    return *part;
}

void getOlderSubParts(const CZelXMLGet& in, TObjectMgr<CZelSubPart, IZelSubPart>& list)
{
    int number = 0;
    for (XIXMLElement* maps = in.FindElement("Maps"); maps != nullptr; maps = maps->GetNextSame()) {
        CZelSubPart& part = appendFrom(CZelXMLGet(maps), list);
        const std::string texture = "Texture" + std::to_string(++number);
        part.setHeight(in.GetDouble(texture + "Height"));
        part.setWidth(in.GetDouble(texture + "Width"));
    }
}

} // namespace

const CZelLabel kProjections[] = {{"Planetary", 0},  {"Orthogonal", 1},    {"Vertical", 2},
                                  {"Spherical", 3},  {"Y.Cylindrical", 4}, {"X.Cylindrical", 5},
                                  {"Mapping.UV", 6}, {"Horizontal", 7},    {"Planar", 8},
                                  {nullptr, 0}};

void addMaps(const CZelXMLAdd& out, const IZelMultiMaps& maps)
{
    const CZelXMLAdd list(out.AddElement("Maps"));
    for (std::int32_t kind = CMapUrls::kFirstKind; kind <= CMapUrls::kLastKind; ++kind) {
        const char* url = maps.getURL(kind);
        if (url != nullptr && *url != '\0')
            CZelXMLAdd(list.AddText("URL", url)).AddAttributeLabel("Type", kMapKinds, kind);
    }
}

void readMaps(const CZelXMLGet& in, IZelMultiMaps& maps)
{
    for (XIXMLElement* url = in.FindElement("URL"); url != nullptr; url = url->GetNextSame())
        maps.setURL(CZelXMLGet(url).GetAttributeLabel("Type", kMapKinds),
                    url->GetNode()->GetText());
}

void addSubParts(const CZelXMLAdd& out, TObjectMgr<CZelSubPart, IZelSubPart>& list)
{
    const CZelXMLAdd container(out.AddElement("Sub.Parts"));
    for (std::int32_t i = 0; i < list.size(); ++i) {
        const CZelXMLAdd part(container.AddElement("Sub.Part"));
        addMaps(part, *list.at(i));
        part.AddDouble("Width", list.at(i)->getWidth());
        part.AddDouble("Height", list.at(i)->getHeight());
    }
}

void readSubParts(const CZelXMLGet& in, TObjectMgr<CZelSubPart, IZelSubPart>& list)
{
    list.removeAllObjects();
    if (!in.IsElement("Sub.Parts"))
        return getOlderSubParts(in, list);
    XIXMLElement* child = CZelXMLGet(in.GetElement("Sub.Parts")).FindElement("Sub.Part");
    for (; child != nullptr; child = child->GetNextSame()) {
        const CZelXMLGet get(child);
        CZelSubPart& part = appendFrom(CZelXMLGet(get.GetElement("Maps")), list);
        part.setHeight(get.GetDouble("Height"));
        part.setWidth(get.GetDouble("Width"));
    }
}

} // namespace OvZel
