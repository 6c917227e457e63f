#include "views/viewEnvironment.h"

#include "core/OvThrow.h"
#include "environment/CZelEnvironment.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <zel/IZelMgr.h>
#include <zel/IZelMgrRef.h>

namespace OvZel {

namespace {

using CEnvironments = TZelObjectMgr<IZelEnvironment>;

/// Null when the document is gone.
CEnvironments* environmentsOf(const CZelXMLIO& io)
{
    IZelMgr* document = io.getMgrRef()->getMgr();
    return document != nullptr ? document->getEnvironments() : nullptr;
}

/// The library makes every environment, so that each is one of these.
CZelEnvironment* from(IZelEnvironment* environment)
{
    return static_cast<CZelEnvironment*>(environment);
}

CZelEnvironment* find(CEnvironments& environments, const CZelUUID& id)
{
    for (std::int32_t i = 0; i < environments.getNbObjects(); ++i)
        if (CZelEnvironment* each = from(environments.getZelObject(i)); each->getId() == id)
            return each;
    return nullptr;
}

} // namespace

void addViewEnvironment(CZelXMLIO& io, const CZelXMLAdd& out, const CZelUUID& id)
{
    if (id.isNull())
        return;
    CEnvironments* environments = environmentsOf(io);
    if (environments == nullptr)
        return;
    if (const CZelEnvironment* found = find(*environments, id))
        found->addTo(io, CZelXMLAdd(out.AddElement("Environment")));
}

void getViewEnvironment(CZelXMLIO& io, const CZelXMLGet& in)
{
    const CZelUUID id = in.GetUUID("UUID");
    CEnvironments* environments = environmentsOf(io);
    if (environments == nullptr)
        return;
    CZelEnvironment* environment = find(*environments, id);
    if (environment == nullptr)
        environment = from(environments->newZelObject(-1));
    OvThrow::IfNULL(environment);
    environment->getFrom(io, in);
}

} // namespace OvZel
