#pragma once

#include "xml/tree/CXMLNode.h"

namespace OrvaneXML {

/// A text between tags.
class CXMLTextNode final : public CXMLNode {
public:
    explicit CXMLTextNode(const char* text) : CXMLNode(EKind::Text), mText(text) {}

    const char* GetText() const override { return mText; }
    void SetText(const char* text) override { Store().ReplaceText(mText, textOrEmpty(text)); }
    CXMLNode* Copy(CXMLStore& store) const override
    {
        return store.New<CXMLTextNode>(store.NewText(mText));
    }
    void Release(CXMLStore& store) override
    {
        store.FreeText(mText);
        store.pool.Free(this, sizeof *this);
    }

private:
    const char* mText;
};

} // namespace OrvaneXML
