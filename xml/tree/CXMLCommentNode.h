#pragma once

#include "xml/tree/CXMLNode.h"

#include <cstring>
#include <string_view>

namespace OrvaneXML {

/// A comment, counted in its tree while it has the end mark in its text.
class CXMLCommentNode final : public CXMLNode, public XIXMLComment {
public:
    explicit CXMLCommentNode(const char* text) : CXMLNode(EKind::Comment), mText(text) {}

    static CXMLCommentNode* Make(CXMLStore& store, std::string_view text)
    {
        auto* node = store.New<CXMLCommentNode>(store.NewText(text));
        store.nbBad += node->IsBad();
        return node;
    }

    const char* GetText() const override { return mText; }
    void SetText(const char* text) override
    {
        CXMLStore& store = Store();
        const bool wasBad = IsBad();
        store.ReplaceText(mText, textOrEmpty(text));
        store.nbBad += IsBad();
        store.nbBad -= wasBad;
    }
    XIXMLComment* AsComment() override { return this; }
    CXMLNode* Copy(CXMLStore& store) const override { return Make(store, mText); }
    void Release(CXMLStore& store) override
    {
        store.nbBad -= IsBad();
        store.FreeText(mText);
        store.pool.Free(this, sizeof *this);
    }

private:
    bool IsBad() const { return std::strstr(mText, "-->") != nullptr; }

    const char* mText;
};

} // namespace OrvaneXML
