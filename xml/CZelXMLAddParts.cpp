#include "xml/CZelXMLAdd.h"

#include "core/OvThrow.h"
#include "xml/ownElement.h"
#include "xml/tree/CXMLText.h"

#include <zel/ITable.h>
#include <zel/IZelPlace.h>
#include <zel/IZelString.h>
#include <zel/IZelTime.h>

#include <string>

// The values that are made of several elements or attributes.

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

bool isLetter(std::uint32_t c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

template <class TValue, std::size_t kNb, class TPrint>
void CZelXMLAdd::fill(const TPart<TValue> (&parts)[kNb], TPrint print) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::CXMLElement* const own = ownElement(*mElement);
    if (own == nullptr) {
        for (const auto& [name, value] : parts)
            AddAttribute(name, print(text, value).data());
        return;
    }
    own->FillAttributes(kNb, [&](auto use) {
        for (const auto& [name, value] : parts)
            use(own->NameOf(name), print(text, value));
    });
}

XIXMLElement* CZelXMLAdd::AddColor(CXMLTag tag, const CZelColor& color) const
{
    const CZelXMLAdd child(newChild(tag));
    const TPart<std::uint8_t> parts[] = {
        {"R", color.bytes[1]}, {"G", color.bytes[2]}, {"B", color.bytes[3]}};
    child.fill(parts, OrvaneXML::printInteger);
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddCoord2D(CXMLTag tag, double x, double y) const
{
    const CZelXMLAdd child(newChild(tag));
    const TPart<double> parts[] = {{"X", x}, {"Y", y}};
    child.fill(parts, OrvaneXML::printReal);
    return child.element();
}

void CZelXMLAdd::addXYZ(const double* xyz) const
{
    const TPart<double> parts[] = {{"X", xyz[0]}, {"Y", xyz[1]}, {"Z", xyz[2]}};
    fill(parts, OrvaneXML::printReal);
}

XIXMLElement* CZelXMLAdd::AddCoord3D(CXMLTag tag, const CZelPoint& vector) const
{
    const double xyz[3] = {vector.x, vector.y, vector.z};
    const CZelXMLAdd child(newChild(tag));
    child.addXYZ(xyz);
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddTriangle(const double* triangle) const
{
    const CZelXMLAdd child(newChild("Triangle"));
    CZelXMLAdd(child.newChild("Pt.0")).addXYZ(triangle);
    CZelXMLAdd(child.newChild("Pt.1")).addXYZ(triangle + 3);
    CZelXMLAdd(child.newChild("Pt.2")).addXYZ(triangle + 6);
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddZelMatrix(CXMLTag tag, const double* matrix) const
{
    const CZelXMLAdd child(newChild(tag));
    for (int k = 0; k < 4; ++k) {
        XIXMLElement* line = child.AddFmtData("Line", "%lf, %lf, %lf, %lf", matrix[k],
                                              matrix[4 + k], matrix[8 + k], matrix[12 + k]);
        CZelXMLAdd(line).AddFmtAttribute("Index", "%d", k);
    }
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddDate(CXMLTag tag, const IZelTime& time) const
{
    const CZelXMLAdd child(newChild(tag));
    child.AddInteger("Month", time.getMonth());
    child.AddInteger("Day", time.getDay());
    child.AddInteger("Hour", time.getHour());
    child.AddInteger("Minute", time.getMinute());
    child.AddInteger("Year", time.getYear());
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddPlace(const IZelPlace& place) const
{
    const CZelXMLAdd child(newChild("Place"));
    child.AddInteger("Longitude", place.getLongitude());
    child.AddInteger("Latitude", place.getLatitude());
    child.AddInteger("TimeZone", place.getTimeZone());
    child.AddBoolean("Daylight", place.getDaylight());
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddTable(CXMLTag tag, const ITable& table) const
{
    const CZelXMLAdd child(newChild(tag));
    const std::int32_t length = table.getLength();
    child.AddFmtAttribute("Length", "%d", length);
    for (std::int32_t i = 0; i < length; ++i)
        child.AddFloat("Float", table.getValue(i));
    return child.element();
}

void CZelXMLAdd::AddLanguage(std::uint32_t language, const char* text) const
{
    if (!isLetter(language >> 8) || !isLetter(language & 0xFF))
        return;
    const std::string name{static_cast<char>(language >> 8), static_cast<char>(language & 0xFF)};
    AddAttribute(name, text);
}

XIXMLElement* CZelXMLAdd::AddLanguages(CXMLTag tag, const IZelString& string) const
{
    const CZelXMLAdd child(newChild(tag));
    const std::uint32_t nbTexts = string.getNbTexts();
    for (std::uint32_t i = 0; i < nbTexts; ++i) {
        const std::uint32_t key = string.getLanguageKey(i);
        child.AddLanguage(key, string.getText(key));
    }
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddIdList(CXMLTag listTag, CXMLTag itemTag,
                                    TZelObjectMgr<CZelUUID>& list) const
{
    DestroyElements(listTag);
    const std::int32_t nbIds = list.getNbObjects();
    if (nbIds < 1)
        return nullptr;
    const CZelXMLAdd child(AddElement(listTag));
    for (std::int32_t i = 0; i < nbIds; ++i)
        CZelXMLAdd(child.AddElement(itemTag)).AddUUID("UUID", *list.getZelObject(i));
    return child.element();
}

} // namespace OvZel
