#pragma once

#include <zel/IZelBasicData.h>

namespace OvZel {

/// Answers every operation of the basic data with a warning and a failure value.
class CZelEmptyBasicData : public IZelBasicData {
public:
    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) override;
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) override;
    const CZelUUID* getId() const override;
    void setId(const CZelUUID* id) override;
    const char* getName() const override;
    void setName(const char* name) override;
    OrvaneXML::XIXMLElement* getUserXML() override;
    const OrvaneXML::XIXMLElement* getUserXML() const override;
    IUnknown* getUserData(const CZelUUID* key) const override;
    void setUserData(const CZelUUID* key, IUnknown* data) override;
    std::uint32_t getUIValue() const override;
    void setUIValue(std::uint32_t value) override;

protected:
    ~CZelEmptyBasicData() = default;

    /// Sends the text to the warning target, if there is one.
    void warn(const char* text) const;
};

} // namespace OvZel
