#include "environment/CZelEnvironment.h"

#include "core/generateId.h"

namespace OvZel {

CZelEnvironment::CZelEnvironment(IZelObjectLinkRef* owner)
    : TZelXMLFrontierObjLinkRef(owner), mId(generateId()), mFog(this), mClouds(this),
      mBackgroundPicture(this), mForeground(this)
{
}

} // namespace OvZel
