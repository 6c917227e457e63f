#include "objects/CZelObjectInstance.h"

#include "objects/CDelegateIO.h"
#include "objects/CTransformPause.h"
#include "objects/makeInstanceDelegate.h"

#include <zel/IZel3DPlantRef.h>
#include <zel/IZelAnimatedObjectInstance.h>
#include <zel/IZelBBObjectInstance.h>
#include <zel/IZelGroupInstances.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelObjectLightRef.h>
#include <zel/IZelZelObjectInstance.h>

namespace OvZel {

CZelObjectInstance::CZelObjectInstance(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner)
{
    setUIValue(0xFFFFFFFF); // none chosen
}

void CZelObjectInstance::setClass(const char* text)
{
    const CTransformPause pause(CZelMgrRef::from(getMgrRef()));
    mData.read([&](XIXMLElement* data) {
        changeClass(getMgrRef(), text != nullptr ? text : "", CZelXMLGet(data));
    });
}

void CZelObjectInstance::changeClass(IZelMgrRef* mgrRef, std::string text, const CZelXMLGet& data)
{
    mDelegate.reset();
    mClass = std::move(text);
    CDelegateIO io(mgrRef);
    mDelegate = makeInstanceDelegate(*this, io.get(), data);
}

void CZelObjectInstance::prepareForWrite()
{
    CDelegateIO io(getMgrRef());
    saveDelegate(io.get());
}

void CZelObjectInstance::saveDelegate(CZelXMLIO& io)
{
    if (mDelegate)
        mData.edit([&](XIXMLElement* data) { mDelegate->save(io, CZelXMLAdd(data)); },
                   io.workingTree());
}

const IZelZelObjectInstance* CZelObjectInstance::asZelObjectInstance() const
{
    return dynamic_cast<const IZelZelObjectInstance*>(mDelegate.get());
}

IZelZelObjectInstance* CZelObjectInstance::asZelObjectInstance()
{
    return dynamic_cast<IZelZelObjectInstance*>(mDelegate.get());
}

const IZel3DPlantRef* CZelObjectInstance::as3DPlantRef() const
{
    return dynamic_cast<const IZel3DPlantRef*>(mDelegate.get());
}

IZel3DPlantRef* CZelObjectInstance::as3DPlantRef()
{
    return dynamic_cast<IZel3DPlantRef*>(mDelegate.get());
}

const IZelBBObjectInstance* CZelObjectInstance::asBBObjectInstance() const
{
    return dynamic_cast<const IZelBBObjectInstance*>(mDelegate.get());
}

IZelBBObjectInstance* CZelObjectInstance::asBBObjectInstance()
{
    return dynamic_cast<IZelBBObjectInstance*>(mDelegate.get());
}

const IZelObjectLightRef* CZelObjectInstance::asObjectLightRef() const
{
    return dynamic_cast<const IZelObjectLightRef*>(mDelegate.get());
}

IZelObjectLightRef* CZelObjectInstance::asObjectLightRef()
{
    return dynamic_cast<IZelObjectLightRef*>(mDelegate.get());
}

const IZelAnimatedObjectInstance* CZelObjectInstance::asAnimatedObjectInstance() const
{
    return dynamic_cast<const IZelAnimatedObjectInstance*>(mDelegate.get());
}

IZelAnimatedObjectInstance* CZelObjectInstance::asAnimatedObjectInstance()
{
    return dynamic_cast<IZelAnimatedObjectInstance*>(mDelegate.get());
}

const IZelInternalComponentInstance* CZelObjectInstance::asInternalComponentInstance() const
{
    return dynamic_cast<const IZelInternalComponentInstance*>(mDelegate.get());
}

IZelInternalComponentInstance* CZelObjectInstance::asInternalComponentInstance()
{
    return dynamic_cast<IZelInternalComponentInstance*>(mDelegate.get());
}

const IZelGroupInstances* CZelObjectInstance::asGroupInstances() const
{
    return dynamic_cast<const IZelGroupInstances*>(mDelegate.get());
}

IZelGroupInstances* CZelObjectInstance::asGroupInstances()
{
    return dynamic_cast<IZelGroupInstances*>(mDelegate.get());
}

} // namespace OvZel
