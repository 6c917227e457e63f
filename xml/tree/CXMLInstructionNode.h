#pragma once

#include "xml/tree/CXMLNode.h"

#include <string_view>

namespace OrvaneXML {

/// A processing instruction, counted in its tree while XML cannot hold its target or content.
class CXMLInstructionNode final : public CXMLNode, public XIXMLInstruction {
public:
    CXMLInstructionNode(const SXMLName* target, const char* content)
        : CXMLNode(EKind::Instruction), mTarget(target), mContent(content)
    {
    }

    static CXMLInstructionNode* Make(CXMLStore& store, const SXMLName* target,
                                     std::string_view content);

    const char* GetText() const override { return mContent; }
    void SetText(const char* text) override;
    XIXMLInstruction* AsInstruction() override { return this; }
    CXMLNode* Copy(CXMLStore& store) const override;
    void Release(CXMLStore& store) override;

    const char* GetTarget() const override { return mTarget->text(); }
    const char* GetContent() const override { return mContent; }
    void SetContent(const char* content) override { SetText(content); }

private:
    bool IsBad() const;

    const SXMLName* mTarget;
    const char* mContent;
};

} // namespace OrvaneXML
