#include "objects/CZelZelObjectDefinition.h"

#include "objects/CDelegateIO.h"
#include "objects/CTransformPause.h"
#include "objects/findOrAdd.h"
#include "objects/makeDefinitionDelegate.h"

#include <zel/IZel3DPlant.h>
#include <zel/IZelAnimatedObject.h>
#include <zel/IZelObjectLight.h>

#include <algorithm>

using OrvaneXML::XIXMLElement;

namespace OvZel {

CZelZelObjectDefinition::CZelZelObjectDefinition(IZelObjectLinkRef* owner)
    : TZelCOMObjLinkRef(owner), mNameLink(&mName.emplace(getMgrRef())),
      mProperties(new CProperties(this)), mPolygons(new CPolygons(this)),
      mPoints(new CPoints(this)), mDescription1(getMgrRef()), mDescription2(getMgrRef()),
      mComment(getMgrRef()), mSetups(new CSetups(this))
{
    setUIValue(0xFFFFFFFF); // none chosen
    mData.edit([](XIXMLElement* data) { findOrAdd(*data, "Instance.Data"); });
}

void CZelZelObjectDefinition::setClass(const char* text)
{
    std::string fresh = text != nullptr ? text : "";
    if (fresh == mClass)
        return;
    const CTransformPause pause(CZelMgrRef::from(getMgrRef()));
    mData.read(
        [&](XIXMLElement* data) { changeClass(getMgrRef(), std::move(fresh), CZelXMLGet(data)); });
}

void CZelZelObjectDefinition::changeClass(IZelMgrRef* mgrRef, std::string text,
                                          const CZelXMLGet& data)
{
    mDelegate.reset();
    mClass = std::move(text);
    CDelegateIO io(mgrRef);
    mDelegate = makeDefinitionDelegate(*this, io.get(), data);
}

void CZelZelObjectDefinition::setModelRotationMatrix(const double* matrix)
{
    if (matrix != nullptr)
        std::copy_n(matrix, 16, mModelRotationMatrix.begin());
}

void CZelZelObjectDefinition::prepareForWrite()
{
    CDelegateIO io(getMgrRef());
    saveDelegate(io.get());
}

void CZelZelObjectDefinition::saveDelegate(CZelXMLIO& io)
{
    if (mDelegate)
        mData.edit([&](XIXMLElement* data) { mDelegate->save(io, CZelXMLAdd(data)); },
                   io.workingTree());
}

XIXMLElement* CZelZelObjectDefinition::getInstanceData()
{
    return findOrAdd(*mData.element(), "Instance.Data");
}

const XIXMLElement* CZelZelObjectDefinition::getInstanceData() const
{
    return findOrAdd(*mData.element(), "Instance.Data");
}

const IZel3DPlant* CZelZelObjectDefinition::as3DPlant() const
{
    return dynamic_cast<const IZel3DPlant*>(mDelegate.get());
}

IZel3DPlant* CZelZelObjectDefinition::as3DPlant()
{
    return dynamic_cast<IZel3DPlant*>(mDelegate.get());
}

const IZelObjectLight* CZelZelObjectDefinition::asObjectLight() const
{
    return dynamic_cast<const IZelObjectLight*>(mDelegate.get());
}

IZelObjectLight* CZelZelObjectDefinition::asObjectLight()
{
    return dynamic_cast<IZelObjectLight*>(mDelegate.get());
}

const IZelAnimatedObject* CZelZelObjectDefinition::asAnimatedObject() const
{
    return dynamic_cast<const IZelAnimatedObject*>(mDelegate.get());
}

IZelAnimatedObject* CZelZelObjectDefinition::asAnimatedObject()
{
    return dynamic_cast<IZelAnimatedObject*>(mDelegate.get());
}

} // namespace OvZel
