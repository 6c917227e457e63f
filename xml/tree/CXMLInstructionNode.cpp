#include "xml/tree/CXMLInstructionNode.h"

#include <algorithm>
#include <cstring>

namespace OrvaneXML {

namespace {

/// White space in front of the content belongs to the gap behind the target.
std::string_view contentOf(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

} // namespace

CXMLInstructionNode* CXMLInstructionNode::Make(CXMLStore& store, const SXMLName* target,
                                               std::string_view content)
{
    auto* node = store.New<CXMLInstructionNode>(target, store.NewText(contentOf(content)));
    store.nbBad += node->IsBad();
    return node;
}

bool CXMLInstructionNode::IsBad() const
{
    return mTarget->isBad || std::strstr(mContent, "?>") != nullptr;
}

void CXMLInstructionNode::SetText(const char* text)
{
    CXMLStore& store = *mTarget->store;
    const bool wasBad = IsBad();
    store.ReplaceText(mContent, contentOf(textOrEmpty(text)));
    store.nbBad += IsBad();
    store.nbBad -= wasBad;
}

CXMLNode* CXMLInstructionNode::Copy(CXMLStore& store) const
{
    return Make(store, store.names.Resolve(CXMLNames::KeyOf(mTarget)), mContent);
}

void CXMLInstructionNode::Release(CXMLStore& store)
{
    store.nbBad -= IsBad();
    store.FreeText(mContent);
    store.pool.Free(this, sizeof *this);
}

} // namespace OrvaneXML
