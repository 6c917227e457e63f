#include "objects/CZelTake.h"

namespace OvZel {

namespace {

constexpr CZelLabel kTakeTypes[] = {{"Predefined", 0}, {"OnPath", 1}, {nullptr, 0}};

} // namespace

void CZelTake::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddInteger("Duration", mDuration);
    out.AddInteger("FPS", mFPS);
    out.AddText("Name", mName.c_str());
    out.AddDouble("Z.Min", mZMin);
    out.AddAttributeLabel("Type", kTakeTypes, mType);
    out.AddDouble("Z.Angle", mZAngle);
}

void CZelTake::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mDuration = in.GetInteger("Duration");
    mFPS = in.GetInteger("FPS");
    mName = in.GetText("Name");
    mZMin = in.GetDouble("Z.Min");
    mType = in.GetAttributeLabel("Type", kTakeTypes);
    mZAngle = in.GetDouble("Z.Angle");
}

} // namespace OvZel
