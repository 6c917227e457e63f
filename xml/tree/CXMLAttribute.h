#pragma once

#include "xml/tree/CXMLStore.h"

#include <zel/xml/XIXMLAttribute.h>

namespace OrvaneXML {

/// One attribute, in the pool of its tree.
class CXMLAttribute final : public XIXMLAttribute {
public:
    CXMLAttribute(const SXMLName* name, const char* value) : mValue(value), mName(name) {}

    XIXMLAttribute* GetNext() const override { return mNext; }
    XCXMLKey GetKey() const override { return CXMLNames::KeyOf(mName); }
    const char* GetValue() const override { return mValue; }
    int Scan(const char* format, ...) const override;
    int Print(const char* format, ...) override;
    void SetValue(const char* value) override;

    const SXMLName* Name() const { return mName; }
    const char* Value() const { return mValue; }
    CXMLAttribute* Next() const { return mNext; }
    void Release(CXMLStore& store);

private:
    friend class CXMLAttributes;

    CXMLAttribute* mNext = nullptr;
    const char* mValue;
    const SXMLName* mName;
};

} // namespace OrvaneXML
