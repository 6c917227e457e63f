#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class CZelMgrRef;
class IUnknown;

/// What every counted object carries: identifier, name, client data, and its file form.
///
/// A class that lacks one of these answers with a warning on the feedback and the failure value:
/// null, false, 0, the null identifier or the empty text.
class IZelBasicData {
public:
    /// As IZelXML::putInXML.
    virtual OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) = 0;
    /// As IZelXML::initWithXML.
    virtual bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) = 0;
    /// The identifier; random in a new object. The pointer is good as long as the object.
    virtual const CZelUUID* getId() const = 0;
    /// Null stores the null identifier.
    virtual void setId(const CZelUUID* id) = 0;
    /// The name, empty in a new object; good until the next change of the name.
    virtual const char* getName() const = 0;
    /// A null name warns "CZelBasicData::setName - inName is NULL" and changes nothing.
    virtual void setName(const char* name) = 0;
    /// Two slots that no class implements: a warning and null.
    virtual OrvaneXML::XIXMLElement* getUserXML() = 0;
    virtual const OrvaneXML::XIXMLElement* getUserXML() const = 0;
    /// Client data under a key, without a reference for the caller; null for an unknown key.
    virtual IUnknown* getUserData(const CZelUUID* key) const = 0;
    /// Keeps a reference on the data and releases what stood under the key. Client data lives as
    /// long as the object and is not saved. Its Release may run while the library destroys the
    /// object, with the library's lock held: it must neither throw nor wait for another thread.
    virtual void setUserData(const CZelUUID* key, IUnknown* data) = 0;
    /// A number for the user interface, 0 unless the class says otherwise.
    virtual std::uint32_t getUIValue() const = 0;
    virtual void setUIValue(std::uint32_t value) = 0;
    /// Where the object's warnings go; null without a document. Opaque to clients.
    virtual CZelMgrRef* getWarningTarget() const = 0;

protected:
    ~IZelBasicData() = default;
};

} // namespace OvZel
