#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// Which layer is active, and which one takes the new objects of each class. Part of the document.
///
/// Identifiers are stored as they come; the library doesn't look for the layers.
/// The order of the virtual operations is a promise to compiled clients.
class IZelLayerInfo : public IZelXML {
public:
    /// Null in a new document; good until it is set again.
    virtual const CZelUUID& getActiveLayer() const = 0;
    virtual void setActiveLayer(const CZelUUID& id) = 0;
    /// The null identifier for a class that has no layer yet; good until the next change. Null
    /// counts as the empty text.
    virtual const CZelUUID& getDefaultLayer(const char* objectClass) const = 0;
    /// Any class text. The file holds those of "3DPlant", "ZelObject", "Billboard", "LightObject"
    /// and "AnimatedObject" alone.
    virtual void setDefaultLayer(const char* objectClass, const CZelUUID& id) = 0;

protected:
    ~IZelLayerInfo() = default;
};

} // namespace OvZel
