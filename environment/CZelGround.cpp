#include "environment/CZelGround.h"

#include <zel/IZelString.h>
#include <zel/IZelTCE.h>

namespace OvZel {

CZelGround::CZelGround(IZelObjectLinkRef* owner)
    : TZelXMLCOMObjLinkRef<IZelGround>(owner), mPropertyOwner(new CBaseObjectMgr(getBlock(), this)),
      mProperty(new CProperty(mPropertyOwner.get()))
{
    constexpr const char* kName = "Ground Material Name";
    mProperty->setName(kName);
    mProperty->getTCE()->getName()->setCurrentText(kName);
    mProperty->setDiffuseColor(CZelColor::rgb(128, 128, 128));
}

} // namespace OvZel
