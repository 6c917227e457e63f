#include "xml/tree/CXMLElement.h"

#include <stdexcept>

namespace OrvaneXML {

CXMLAttribute* CXMLElement::LastAttribute() const
{
    CXMLAttribute* attribute = mFirstAttribute;
    while (attribute && attribute->mNext)
        attribute = attribute->mNext;
    return attribute;
}

CXMLAttribute* CXMLElement::AppendAttribute(CXMLAttribute* last, const SXMLName* name,
                                            std::string_view value)
{
    CXMLStore& store = Store();
    auto* attribute = store.New<CXMLAttribute>(name, store.NewText(value));
    store.nbBad += name->isBad;
    (last ? last->mNext : mFirstAttribute) = attribute;
    return attribute;
}

XIXMLAttribute* CXMLElement::AddAttribute(XCXMLKey key, const char* value)
{
    if (IsRoot())
        throw std::runtime_error("The root of a tree has no attributes");
    if (XIXMLAttribute* present = FindAttribute(key)) {
        present->SetValue(value);
        return present;
    }
    return AppendAttribute(LastAttribute(), Store().names.Resolve(key), textOrEmpty(value));
}

XIXMLAttribute* CXMLElement::FindAttribute(XCXMLKey key) const
{
    const SXMLName* name = Store().names.Find(key);
    CXMLAttribute* attribute = name ? mFirstAttribute : nullptr;
    while (attribute && attribute->mName != name)
        attribute = attribute->mNext;
    return attribute;
}

bool CXMLElement::RemoveAttribute(XCXMLKey key)
{
    CXMLStore& store = Store();
    const SXMLName* name = store.names.Find(key);
    bool isRemoved = false;
    for (CXMLAttribute** link = &mFirstAttribute; CXMLAttribute* attribute = *link;) {
        if (attribute->mName != name) {
            link = &attribute->mNext;
            continue;
        }
        *link = attribute->mNext;
        attribute->Release(store);
        isRemoved = true;
    }
    return isRemoved;
}

} // namespace OrvaneXML
