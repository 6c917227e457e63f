#include "xml/CZelXMLGet.h"

#include "core/OvThrow.h"
#include "xml/ownElement.h"
#include "xml/tree/CXMLText.h"

#include <zel/ITable.h>
#include <zel/IZelMgrRef.h>
#include <zel/IZelPlace.h>
#include <zel/IZelString.h>
#include <zel/IZelTime.h>

#include <cstdlib>
#include <cstring>

// The values that are made of several elements or attributes.

namespace OvZel {

using OrvaneXML::SXMLName;
using OrvaneXML::XIXMLElement;

namespace {

std::uint8_t lowByte(std::int32_t value)
{
    return static_cast<std::uint8_t>(static_cast<std::uint32_t>(value));
}

CZelPoint toPoint(const std::array<double, 3>& xyz)
{
    return {xyz[0], xyz[1], xyz[2]};
}

void append(TZelObjectMgr<CZelUUID>& list, const CZelUUID& id)
{
    CZelUUID* entry = list.newZelObject(-1);
    OvThrow::IfNULL(entry, "CZelXMLGet::GetIdList");
    *entry = id;
}

/// The number of elements of the first one's name, counted as far as the limit. A table is never
/// made larger than the entries that the file really has.
std::int32_t countUpTo(std::int32_t limit, XIXMLElement* first)
{
    std::int32_t nb = 0;
    for (; nb < limit && first != nullptr; first = first->GetNextSame())
        ++nb;
    return nb;
}

} // namespace

void CZelXMLGet::GetLanguages(CXMLTag tag, IZelString& string) const
{
    XIXMLElement* found = FindElement(tag);
    if (found == nullptr)
        return;
    string.clear();
    CZelXMLGet(found).ForEachLanguage(
        [&string](std::uint32_t language, const char* text) { string.setText(language, text); });
}

void CZelXMLGet::ForEachLanguage(const std::function<void(std::uint32_t, const char*)>& use) const
{
    ForEachAttribute([&use](const char* name, const char* text) {
        const auto first = static_cast<unsigned char>(name[0]);
        const auto second = static_cast<unsigned char>(first != 0 ? name[1] : '\0');
        use(first * 256U + second, text);
    });
}

void CZelXMLGet::ForEachAttribute(const std::function<void(const char*, const char*)>& use) const
{
    if (const OrvaneXML::CXMLElement* own = ownElement(*mElement))
        return own->Attributes().ForEach(
            [&use](const SXMLName* name, const char* value) { use(name->text(), value); });
    const OrvaneXML::XIXMLAttribute* attribute = mElement->GetFirstAttribute();
    for (; attribute != nullptr; attribute = attribute->GetNext())
        use(attribute->GetKey(), attribute->GetValue());
}

std::array<double, 2> CZelXMLGet::GetCoord2D() const
{
    std::array<double, 2> xy{};
    GetFmtAttribute("X", "%lf", &xy[0]);
    GetFmtAttribute("Y", "%lf", &xy[1]);
    return xy;
}

CZelPoint CZelXMLGet::GetCoord3D() const
{
    CZelPoint point;
    GetFmtAttribute("X", "%lf", &point.x);
    GetFmtAttribute("Y", "%lf", &point.y);
    GetFmtAttribute("Z", "%lf", &point.z);
    return point;
}

double CZelXMLGet::optionalCoord(CXMLTag name, double start) const
{
    const char* text = GetOptionalAttribute(name);
    if (text == nullptr)
        return start;
    double value = 0.0;
    OrvaneXML::scanReal(text, value);
    return value;
}

std::array<double, 3> CZelXMLGet::optionalXYZ(const std::array<double, 3>& start) const
{
    return {optionalCoord("X", start[0]), optionalCoord("Y", start[1]),
            optionalCoord("Z", start[2])};
}

CZelPoint CZelXMLGet::GetPoint(CXMLTag tag, const IZelMgrRef* mgrRef) const
{
    return child(tag).GetPoint(mgrRef);
}

CZelPoint CZelXMLGet::GetPoint(const IZelMgrRef* mgrRef) const
{
    auto xyz = optionalXYZ({0.0, 0.0, 0.0});
    mgrRef->transformPoint(xyz.data());
    return toPoint(xyz);
}

CZelPoint CZelXMLGet::GetVector(CXMLTag tag, const IZelMgrRef* mgrRef) const
{
    auto xyz = child(tag).optionalXYZ({0.0, 0.0, 0.0});
    mgrRef->transformVector(xyz.data());
    return toPoint(xyz);
}

CZelPoint CZelXMLGet::GetDirection(CXMLTag tag, const IZelMgrRef* mgrRef) const
{
    auto xyz = child(tag).optionalXYZ({0.0, 0.0, 1.0});
    mgrRef->transformNormal(xyz.data());
    return toPoint(xyz);
}

std::array<double, 9> CZelXMLGet::GetTriangle(const IZelMgrRef* mgrRef) const
{
    const CZelXMLGet triangle = child("Triangle");
    const CZelPoint p2 = triangle.GetPoint("Pt.2", mgrRef);
    const CZelPoint p1 = triangle.GetPoint("Pt.1", mgrRef);
    const CZelPoint p0 = triangle.GetPoint("Pt.0", mgrRef);
    return {p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, p2.x, p2.y, p2.z};
}

CZelColor CZelXMLGet::GetColor(CXMLTag tag) const
{
    return child(tag).GetColor();
}

CZelColor CZelXMLGet::GetColor() const
{
    const auto part = [this](CXMLTag name) {
        std::int32_t value = 0;
        OrvaneXML::scanInteger(getAttribute(name, "CZelXMLGet::GetFmtAttribute"), value);
        return lowByte(value);
    };
    if (GetOptionalAttribute("R") != nullptr)
        return {{0, part("R"), part("G"), part("B")}};
    return {
        {0, lowByte(GetInteger("Red")), lowByte(GetInteger("Green")), lowByte(GetInteger("Blue"))}};
}

std::array<double, 16> CZelXMLGet::GetZelMatrix(CXMLTag tag) const
{
    std::array<double, 16> m = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    XIXMLElement* line = CZelXMLGet(GetElement(tag)).FindElement("Line");
    for (std::size_t k = 0; k < 4; ++k, line = line->GetNextSame()) {
        OvThrow::IfNULL(line, "CZelXMLGet::GetZelMatrix");
        const OrvaneXML::XIXMLData* text = line->GetFirstText();
        OvThrow::IfNULL(text, "CZelXMLGet::GetZelMatrix");
        const int nbStored =
            text->Scan("%lf, %lf, %lf, %lf", &m[k], &m[4 + k], &m[8 + k], &m[12 + k]);
        OvThrow::IfFalse(nbStored == 4, "CZelXMLGet::GetZelMatrix", tag.text());
    }
    return m;
}

void CZelXMLGet::GetDate(CXMLTag tag, IZelTime& time) const
{
    const CZelXMLGet date = child(tag);
    time.setMonth(date.GetInteger("Month")); // ahead of the day, which is clipped by the month
    time.setDay(date.GetInteger("Day"));
    time.setHour(date.GetInteger("Hour"));
    time.setMinute(date.GetInteger("Minute"));
    if (date.IsElement("Year"))
        time.setYear(date.GetInteger("Year"));
}

void CZelXMLGet::GetPlace(IZelPlace& place) const
{
    const CZelXMLGet in = child("Place");
    const std::int32_t longitude = in.GetInteger("Longitude");
    place.setLongitude(longitude);
    place.setLatitude(in.GetInteger("Latitude"));
    const std::int32_t zone = in.GetInteger("TimeZone");
    // Older files have hours, and longitudes in a smaller unit.
    const bool inHours = zone > -13 && zone < 13 && longitude > -901 && longitude < 901;
    place.setTimeZone(inHours ? zone * 60 : zone);
    place.setDaylight(in.IsElement("Daylight"));
}

void CZelXMLGet::GetTable(CXMLTag tag, ITable& table) const
{
    const CZelXMLGet in(GetElement(tag));
    std::int32_t length = 0;
    in.GetFmtAttribute("Length", "%d", &length);
    XIXMLElement* entry = in.FindElement("Float");
    const std::int32_t nbEntries = countUpTo(length, entry);
    table.setLength(nbEntries);
    for (std::int32_t i = 0; i < nbEntries; ++i, entry = entry->GetNextSame()) {
        double value = 0.0;
        const OrvaneXML::XIXMLData* text = entry->GetFirstText();
        OvThrow::IfNULL(text, "CZelXMLGet::GetTable 2");
        text->Scan("%lf", &value);
        table.setValue(i, static_cast<float>(value));
    }
    if (nbEntries < length)
        OvThrow::SignalNULL("CZelXMLGet::GetTable 1");
}

void CZelXMLGet::GetIdList(CXMLTag listTag, CXMLTag itemTag, TZelObjectMgr<CZelUUID>& list) const
{
    for (std::int32_t i = list.getNbObjects(); i > 0; --i)
        list.removeObject(i - 1);
    XIXMLElement* found = FindElement(listTag);
    if (found == nullptr)
        return;
    // The oldest form: every attribute from "UUID" on is an identifier, whatever its name.
    const CZelXMLGet in(found);
    if (in.GetOptionalAttribute("UUID") != nullptr) {
        bool isBehind = false;
        in.ForEachAttribute([&](const char* name, const char* id) {
            isBehind = isBehind || std::strcmp(name, "UUID") == 0;
            if (isBehind)
                append(list, CZelUUID(id));
        });
        return;
    }
    XIXMLElement* item = in.FindElement(itemTag);
    for (; item != nullptr; item = item->GetNextSame())
        append(list, CZelXMLGet(item).GetUUID("UUID"));
}

} // namespace OvZel
