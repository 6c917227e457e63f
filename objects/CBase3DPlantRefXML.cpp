#include "objects/CBase3DPlantRef.h"

#include "objects/renewed.h"
#include "xml/CZelXMLGet.h"
#include "xml/readWhileItLasts.h"

namespace OvZel {

CBase3DPlantRef::CBase3DPlantRef(const CZelXMLGet& data)
{
    // A new instance has nothing to read; that is no failure.
    readWhileItLasts([&] {
        mHeliodonAttached = data.IsElement("Heliodon.Attached");
        data.GetDate("Time", mTime);
        mColor = data.GetAttributeLabel("Color", kPlantColors);
    });
}

void CBase3DPlantRef::savePlant(const CZelXMLAdd& data) const
{
    data.AddBoolean(renewed(data, "Heliodon.Attached"), mHeliodonAttached);
    data.AddDate(renewed(data, "Time"), mTime);
    data.AddAttributeLabel(renewedAttribute(data, "Color"), kPlantColors, mColor);
}

} // namespace OvZel
