#pragma once

#include "xml/tree/CXMLScanner.h"

namespace OrvaneXML {

/// The bytes of the CDATA section at which a scanner stands, and then their end.
class CXMLSectionStream final : public XIXMLReadStream {
public:
    explicit CXMLSectionStream(CXMLScanner& scanner) : mScanner(scanner) {}

    std::uint32_t Read(void* buffer, std::uint32_t size) override
    {
        mIsTouched = true;
        return mScanner.ReadSection(buffer, size);
    }
    /// Whether anything was ever asked for.
    bool IsTouched() const { return mIsTouched; }

private:
    CXMLScanner& mScanner;
    bool mIsTouched = false;
};

} // namespace OrvaneXML
