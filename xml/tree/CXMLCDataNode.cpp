#include "xml/tree/CXMLCDataNode.h"

#include <stdexcept>

namespace OrvaneXML {

CXMLCDataNode* CXMLCDataNode::Make(CXMLStore& store, XIXMLData::IXMLCData* provider)
{
    auto* node = store.New<CXMLCDataNode>(provider);
    node->mNextSection = store.sections;
    if (store.sections)
        store.sections->mPreviousSection = node;
    store.sections = node;
    return node;
}

void CXMLCDataNode::DestroyProviders(CXMLStore& store)
{
    while (CXMLCDataNode* node = store.sections) {
        store.sections = node->mNextSection;
        node->mProvider->Destroy();
    }
}

void CXMLCDataNode::SetText(const char*)
{
    throw std::runtime_error("The bytes of a CDATA section come from its provider");
}

CXMLNode* CXMLCDataNode::Copy(CXMLStore& store) const
{
    XIXMLData::IXMLCData* provider = mProvider->Clone();
    if (!provider)
        return nullptr;
    try {
        return Make(store, provider);
    } catch (...) {
        provider->Destroy();
        throw;
    }
}

void CXMLCDataNode::SetProvider(XIXMLData::IXMLCData* provider)
{
    if (provider == mProvider)
        return;
    XIXMLData::IXMLCData* old = mProvider;
    mProvider = provider;
    old->Destroy();
}

void CXMLCDataNode::Release(CXMLStore& store)
{
    (mPreviousSection ? mPreviousSection->mNextSection : store.sections) = mNextSection;
    if (mNextSection)
        mNextSection->mPreviousSection = mPreviousSection;
    mProvider->Destroy();
    store.pool.Free(this, sizeof *this);
}

} // namespace OrvaneXML
