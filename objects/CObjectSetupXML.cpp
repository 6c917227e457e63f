#include "objects/CObjectSetup.h"

namespace OvZel {

void CObjectSetup::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", mId);
    out.AddLanguages("Name", mName);
}

void CObjectSetup::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mId = in.GetUUID("UUID");
    in.GetLanguages("Name", mName);
}

} // namespace OvZel
