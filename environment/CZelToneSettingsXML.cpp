#include "environment/CZelToneSettings.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelToneSettings::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).ReuseElement("Tone.Settings"));
    addTo(io, out);
    return out.element();
}

bool CZelToneSettings::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Tone.Settings")));
    return true;
}

void CZelToneSettings::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDouble("Lights.Tones", mLightsTones);
    out.AddDouble("Dark.Tones", mDarkTones);
}

void CZelToneSettings::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mLightsTones = in.GetDouble("Lights.Tones");
    mDarkTones = in.GetDouble("Dark.Tones");
}

} // namespace OvZel
