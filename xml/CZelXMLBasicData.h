#pragma once

#include "core/CZelBasicData.h"

namespace OvZel {

class CZelXMLGet;
class CZelXMLIO;

/// Basic data of an object that can be written alone.
class CZelXMLBasicData : public CZelBasicData {
public:
    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) override;
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) override;

    /// Adds a child with the object's own tag, fills it and returns it.
    virtual OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) = 0;
    /// Reads the first child with the object's own tag.
    virtual bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) = 0;

protected:
    ~CZelXMLBasicData() = default;

    /// Takes the attribute "UUID" if it is there and identifiers are taken from the file.
    void getOptionalId(const CZelXMLIO& io, const CZelXMLGet& in);
};

} // namespace OvZel
