#include "animation/CZelKeyFrame.h"

#include "core/OvThrow.h"
#include "core/localToUniversal.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/readWhileItLasts.h"

#include <algorithm>
#include <iterator>

namespace OvZel {

namespace {

constexpr CZelLabel kValueTypes[] = {{"Double", 2}, {"Integer", 4}, {"Boolean", 3},
                                     {"Color", 1},  {"Coord3D", 0}, {"Date", 5},
                                     {"UUID", 6},   {"Enum", 7},    {nullptr, 0}};

constexpr CZelLabel kInterpolationTypes[] = {{"Linear", 0}, {"Square", 1}, {"OneMinusSquare", 2},
                                             {"Sinus", 3},  {"Bezier", 4}, {"DateInterpolation", 5},
                                             {nullptr, 0}};

/// From this version on a date is in universal time and has 64 bits.
constexpr CZelVersion kUniversalDates{5, 1, 1};

std::int64_t dateFrom(const CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag tag)
{
    if (io.isOlderThan(kUniversalDates))
        return localToUniversal(in.GetInteger(tag));
    return in.GetInteger64(tag);
}

CZelUUID idOf(const IZelKeyFrame::uValue& value)
{
    CZelUUID id;
    std::copy(std::begin(value.id), std::end(value.id), id.bytes);
    return id;
}

} // namespace

OrvaneXML::XIXMLElement* CZelKeyFrame::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("KeyFrame");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelKeyFrame::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("KeyFrame")));
    return true;
}

void CZelKeyFrame::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddInteger("Time", mTime);
    out.AddBoolean("Visible", mVisible);
    if (mValueType < eCoord3D || mValueType > eEnum)
        OvThrow::Signal("CZelXMLIO::AddKeyFrame : Unknow value type"); // sic
    out.AddAttributeLabel("Type", kValueTypes, mValueType);
    addValue(out, "Value", mValue);
    addValue(out, "CPBefore", mCPBefore);
    addValue(out, "CPAfter", mCPAfter);
    out.AddAttributeLabel("Interpolation.Type", kInterpolationTypes, mInterpolationType);
    out.AddBoolean("AreLocked", mAreLocked);
}

void CZelKeyFrame::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mTime = in.GetInteger("Time");
    mVisible = in.IsElement("Visible");
    mValueType = in.GetAttributeLabel("Type", kValueTypes);
    getValue(io, in, "Value", mValue);
    getValue(io, in, "CPBefore", mCPBefore);
    getValue(io, in, "CPAfter", mCPAfter);
    readWhileItLasts([&] {
        mInterpolationType = in.GetAttributeLabel("Interpolation.Type", kInterpolationTypes);
        mAreLocked = in.IsElement("AreLocked");
    });
}

void CZelKeyFrame::addValue(const CZelXMLAdd& out, OrvaneXML::CXMLTag tag,
                            const uValue& value) const
{
    switch (mValueType) {
    case eCoord3D:
        out.AddCoord3D(tag, {value.vector[0], value.vector[1], value.vector[2]});
        break;
    case eColor:
        out.AddColor(tag, CZelColor::rgb(value.color[0], value.color[1], value.color[2]));
        break;
    case eDouble:
        out.AddDouble(tag, value.real);
        break;
    case eBoolean:
        out.AddBoolean(tag, value.boolean != 0);
        break;
    case eDate:
        out.AddInteger64(tag, value.date);
        break;
    case eUUID: // an attribute, unlike all others
        out.AddUUID(tag, idOf(value));
        break;
    default:
        out.AddInteger(tag, value.integer);
    }
}

void CZelKeyFrame::getValue(const CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag tag,
                            uValue& value) const
{
    value = {};
    switch (mValueType) {
    case eCoord3D: {
        const CZelPoint vector = in.GetVector(tag, io.getMgrRef());
        value.vector[0] = vector.x;
        value.vector[1] = vector.y;
        value.vector[2] = vector.z;
        break;
    }
    case eColor: {
        const CZelColor color = in.GetColor(tag);
        std::copy(color.bytes + 1, std::end(color.bytes), value.color);
        break;
    }
    case eDouble:
        value.real = in.GetFloat(tag); // with the precision of a float
        break;
    case eBoolean:
        value.boolean = in.IsElement(tag) ? 1 : 0;
        break;
    case eDate:
        value.date = dateFrom(io, in, tag);
        break;
    case eUUID: {
        const CZelUUID id = in.GetUUID(tag);
        std::copy(std::begin(id.bytes), std::end(id.bytes), value.id);
        break;
    }
    case eInteger:
    case eEnum:
        value.integer = in.GetInteger(tag);
        break;
    default:
        OvThrow::Signal("CZelXMLIO::GetKeyFrame : Unknow value type"); // sic
    }
}

} // namespace OvZel
