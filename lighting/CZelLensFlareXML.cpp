#include "lighting/CZelLensFlare.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

namespace {

// "Standard" is an older word for 0; the first one is written.
constexpr CZelLabel kTypes[] = {{"LensFlare1", 0}, {"LensFlare2", 1}, {"Halo1", 2},
                                {"Halo2", 3},      {"Standard", 0},   {nullptr, 0}};

} // namespace

void CZelLensFlare::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Used", mUsed);
    out.AddAttributeLabel("Type", kTypes, mType);
    out.AddDouble("Size", mSize);
    out.AddDouble("Intensity", mIntensity);
}

void CZelLensFlare::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mUsed = in.IsElement("Used");
    mType = in.GetAttributeLabel("Type", kTypes);
    mSize = in.GetDouble("Size");
    if (in.IsElement("Intensity"))
        mIntensity = in.GetDouble("Intensity");
}

} // namespace OvZel
