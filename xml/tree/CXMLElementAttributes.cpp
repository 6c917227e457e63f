#include "xml/tree/CXMLElement.h"

#include <stdexcept>

namespace OrvaneXML {

namespace {

void refuseRoot(const CXMLElement& element)
{
    if (element.IsRoot())
        throw std::runtime_error("The root of a tree has no attributes");
}

} // namespace

XIXMLAttribute* CXMLElement::AddAttribute(XCXMLKey key, const char* value)
{
    refuseRoot(*this);
    if (XIXMLAttribute* present = FindAttribute(key)) {
        present->SetValue(value);
        return present;
    }
    CXMLStore& store = Store();
    return mAttributes.AppendObject(store, store.names.Resolve(key), textOrEmpty(value));
}

void CXMLElement::SetAttribute(const SXMLName* name, std::string_view value)
{
    refuseRoot(*this);
    if (!mAttributes.Replace(Store(), name, value))
        mAttributes.Append(Store(), name, value);
}

XIXMLAttribute* CXMLElement::FindAttribute(XCXMLKey key) const
{
    CXMLStore& store = Store();
    const SXMLName* name = store.names.Find(key);
    // A name that is not there is no reason to make objects.
    if (!name || !mAttributes.ValueOf(name))
        return nullptr;
    CXMLAttribute* attribute = mAttributes.First(store);
    while (attribute->Name() != name)
        attribute = attribute->Next();
    return attribute;
}

bool CXMLElement::RemoveAttribute(XCXMLKey key)
{
    CXMLStore& store = Store();
    const SXMLName* name = store.names.Find(key);
    return name && mAttributes.Remove(store, name);
}

} // namespace OrvaneXML
