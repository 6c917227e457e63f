#pragma once

#include "xml/tree/CXMLNode.h"

namespace OrvaneXML {

/// A CDATA section and the provider of its bytes. All sections of a tree are on one list, so that a
/// tree that goes finds its providers without a walk.
class CXMLCDataNode final : public CXMLNode {
public:
    explicit CXMLCDataNode(XIXMLData::IXMLCData* provider)
        : CXMLNode(EKind::CData), mProvider(provider)
    {
    }

    /// Owns the provider from the moment that it returns.
    static CXMLCDataNode* Make(CXMLStore& store, XIXMLData::IXMLCData* provider);
    /// Destroys the providers of all sections, for a tree that goes as a whole.
    static void DestroyProviders(CXMLStore& store);

    const char* GetText() const override { return ""; }
    void SetText(const char* text) override;
    CXMLNode* Copy(CXMLStore& store) const override;
    void Release(CXMLStore& store) override;

    XIXMLData::IXMLCData* Provider() const { return mProvider; }
    void SetProvider(XIXMLData::IXMLCData* provider);

private:
    XIXMLData::IXMLCData* mProvider;
    CXMLCDataNode* mNextSection = nullptr;
    CXMLCDataNode* mPreviousSection = nullptr;
};

} // namespace OrvaneXML
