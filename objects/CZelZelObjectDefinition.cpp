#include "objects/CZelZelObjectDefinition.h"

namespace OvZel {

CZelZelObjectDefinition::CZelZelObjectDefinition(IZelObjectLinkRef* owner)
    : TZelCOMObjLinkRef(owner),
      mNameLink(&mName.emplace(owner != nullptr ? owner->getMgrRef() : nullptr)),
      mPoints(new CPoints(this)), mPolygons(new CPolygons(this))
{
    setUIValue(0xFFFFFFFF); // none chosen
}

} // namespace OvZel
