#include "materials/CProperty.h"

#include "core/OvThrow.h"
#include "materials/copyTree.h"

#include <zel/IZelMgr.h>

#include <stdexcept>
#include <string>

namespace OvZel {

namespace {

IZelObjectLinkRef* checked(IZelObjectLinkRef* owner)
{
    if (owner == nullptr || owner->getSelfWeakPtr() == nullptr)
        throw std::runtime_error("TZelWeakPtr::getSharedPtr - Shared pointer is NULL");
    return owner;
}

} // namespace

CProperty::CProperty(IZelObjectLinkRef* owner)
    : TZelXMLCOMObjLinkRef<IZelProperty>(checked(owner)), mTCE(new CZelTCE(this))
{
    setName("Material #0");
}

CProperty::~CProperty()
{
    // A client may keep the tree.
    mTCE->forgetProperty();
}

ITCENode& CProperty::root() const
{
    return *mTCE;
}

bool CProperty::copyFrom(const IZelProperty* source)
{
    try {
        OvThrow::IfNULL(source);
        copyValues(static_cast<const CProperty&>(*source));
        return true;
    } catch (...) {
        warn("Can load property from another property"); // (sic)
        return false;
    }
}

void CProperty::copyValues(const CProperty& source)
{
    copyTree(*mTCE, *source.mTCE);
    setName(source.getName());
    mVisible = source.mVisible;
    mCastShadow = source.mCastShadow;
    mBillboard = source.mBillboard;
    mSmooth = source.mSmooth;
    mBevel = source.mBevel;
    mScale = source.mScale;
    mOverloadPropIndex = source.mOverloadPropIndex;
    mOverloadId = source.mOverloadId;
    mReceiveShadow = source.mReceiveShadow;
    mUVDefined = source.mUVDefined;
}

bool CProperty::setShaderUrl(const char* url, IZelReadStream* stream)
{
    // A copy: the text may be that of this very tree, which the document replaces.
    const std::string given = url != nullptr ? url : "";
    const bool isLoaded = given.empty() || loadShader(stream);
    mTCE->setUrl(isLoaded ? given.c_str() : "");
    return isLoaded;
}

bool CProperty::loadShader(IZelReadStream* stream)
{
    IZelMgrRef* mgrRef = getMgrRef();
    IZelMgr* document = mgrRef != nullptr ? mgrRef->getMgr() : nullptr;
    IZelMgrEx* more = document != nullptr ? document->getMgrEx(eVersionZel) : nullptr;
    return more != nullptr && more->readShader(this, stream);
}

} // namespace OvZel
