#pragma once

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelLayerInfo.h>

#include <map>
#include <string>

namespace OvZel {

/// The active layer and the layers for new objects.
class CZelLayerInfo : public TZelXMLFrontierObjLink<IZelLayerInfo> {
public:
    explicit CZelLayerInfo(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    const CZelUUID& getActiveLayer() const override { return mActiveLayer; }
    void setActiveLayer(const CZelUUID& id) override { mActiveLayer = id; }
    const CZelUUID& getDefaultLayer(const char* objectClass) const override;
    void setDefaultLayer(const char* objectClass, const CZelUUID& id) override;

    /// Replaces the "Layers.Info" of the element.
    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelUUID mActiveLayer;
    std::map<std::string, CZelUUID, std::less<>> mDefaultLayers;
};

} // namespace OvZel
