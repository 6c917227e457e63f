#pragma once

#include "core/CZelString.h"
#include "core/TZelFrontierObjLinkRef.h"
#include "core/generateId.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <zel/IZelZelObjectDefinition.h>

namespace OvZel {

/// A set-up of a definition.
class CObjectSetup : public TZelFrontierObjLinkRef<IZelZelObjectDefinition::IZelZelObjectSetup> {
public:
    /// Raises "Can't create UUID" when there is no identifier to be had.
    explicit CObjectSetup(IZelObjectLinkRef* owner)
        : TZelFrontierObjLinkRef(owner), mName(getMgrRef()), mId(generateId())
    {
    }

    const IZelString* getName() const override { return &mName; }
    IZelString* getName() override { return &mName; }
    const CZelUUID& getUUID() const override { return mId; }
    void setUUID(const CZelUUID& id) override { mId = id; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelString mName;
    CZelUUID mId;
};

} // namespace OvZel
