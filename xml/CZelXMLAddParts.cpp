#include "xml/CZelXMLAdd.h"

#include "core/OvThrow.h"

#include <zel/ITable.h>
#include <zel/IZelPlace.h>
#include <zel/IZelString.h>
#include <zel/IZelTime.h>

// The values that are made of several elements or attributes.

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

bool isLetter(std::uint32_t c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

XIXMLElement* CZelXMLAdd::AddColor(const char* tag, const CZelColor& color) const
{
    const CZelXMLAdd child(newChild(tag));
    child.AddFmtAttribute("R", "%d", color.bytes[1]);
    child.AddFmtAttribute("G", "%d", color.bytes[2]);
    child.AddFmtAttribute("B", "%d", color.bytes[3]);
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddCoord2D(const char* tag, double x, double y) const
{
    const CZelXMLAdd child(newChild(tag));
    child.addReal("X", x);
    child.addReal("Y", y);
    return child.element();
}

void CZelXMLAdd::addXYZ(const double* xyz) const
{
    addReal("X", xyz[0]);
    addReal("Y", xyz[1]);
    addReal("Z", xyz[2]);
}

XIXMLElement* CZelXMLAdd::AddCoord3D(const char* tag, const CZelPoint& vector) const
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

XIXMLElement* CZelXMLAdd::AddZelMatrix(const char* tag, const double* matrix) const
{
    const CZelXMLAdd child(newChild(tag));
    for (int k = 0; k < 4; ++k) {
        XIXMLElement* line = child.AddFmtData("Line", "%lf, %lf, %lf, %lf", matrix[k],
                                              matrix[4 + k], matrix[8 + k], matrix[12 + k]);
        CZelXMLAdd(line).AddFmtAttribute("Index", "%d", k);
    }
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddDate(const char* tag, const IZelTime& time) const
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

XIXMLElement* CZelXMLAdd::AddTable(const char* tag, const ITable& table) const
{
    const CZelXMLAdd child(newChild(tag));
    const std::int32_t length = table.getLength();
    child.AddFmtAttribute("Length", "%d", length);
    for (std::int32_t i = 0; i < length; ++i)
        child.AddFloat("Float", table.getValue(i));
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddLanguages(const char* tag, const IZelString& string) const
{
    const CZelXMLAdd child(newChild(tag));
    const std::uint32_t nbTexts = string.getNbTexts();
    for (std::uint32_t i = 0; i < nbTexts; ++i) {
        const std::uint32_t key = string.getLanguageKey(i);
        // Anything but two letters would not be the name of an attribute.
        if (!isLetter(key >> 8) || !isLetter(key & 0xFF))
            continue;
        const char name[3] = {static_cast<char>(key >> 8), static_cast<char>(key & 0xFF), '\0'};
        child.AddAttribute(name, string.getText(key));
    }
    return child.element();
}

XIXMLElement* CZelXMLAdd::AddIdList(const char* listTag, const char* itemTag,
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
