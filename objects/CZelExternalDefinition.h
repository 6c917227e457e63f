#pragma once

#include "core/TObject2Mgr.h"
#include "materials/CProperty.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelExternalDefinition.h>

#include <string>

namespace OvZel {

/// A definition in a file of its own.
class CZelExternalDefinition : public TZelXMLCOMObjLinkRef<IZelExternalDefinition> {
public:
    using CProperties = TObject2Mgr<CProperty, IZelProperty>;

    explicit CZelExternalDefinition(IZelObjectLinkRef* owner)
        : TZelCOMObjLinkRef(owner), mProperties(new CProperties(this))
    {
    }

    const TZelObjectMgr<IZelProperty>* getProperties() const override { return mProperties.get(); }
    CProperties* getProperties() override { return mProperties.get(); }
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? std::string(url) : ""; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    TZelComPtr<CProperties> mProperties;
    std::string mURL;
};

} // namespace OvZel
