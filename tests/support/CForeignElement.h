#pragma once

#include <zel/xml/XIXMLElement.h>

namespace ZelTest {

/// An element of a client's own class. It hands everything on to one of the library.
class CForeignElement : public OrvaneXML::XIXMLElement {
public:
    using XIXMLData = OrvaneXML::XIXMLData;
    using XIXMLAttribute = OrvaneXML::XIXMLAttribute;
    using XCXMLKey = OrvaneXML::XCXMLKey;

    explicit CForeignElement(XIXMLElement& element) : mElement(element) {}

    XIXMLData* GetNode() override { return mElement.GetNode(); }
    const XIXMLData* GetNode() const override { return mElement.GetNode(); }
    XCXMLKey MakeKey(const char* name) const override { return mElement.MakeKey(name); }
    void InsertChild(XIXMLData* child, XIXMLData* before) override
    {
        mElement.InsertChild(child, before);
    }
    XIXMLAttribute* AddAttribute(XCXMLKey key, const char* value) override
    {
        return mElement.AddAttribute(key, value);
    }
    XIXMLData* AddInstruction(const char* target, const char* content) override
    {
        return mElement.AddInstruction(target, content);
    }
    void SetCData(XIXMLData::IXMLCData* provider) override { mElement.SetCData(provider); }
    XIXMLData* AddText(const char* text) override { return mElement.AddText(text); }
    XIXMLElement* AddElement(XCXMLKey key) override { return mElement.AddElement(key); }
    XCXMLKey GetKey() const override { return mElement.GetKey(); }
    void SetKey(XCXMLKey key) override { mElement.SetKey(key); }
    XIXMLData* GetFirstText() override { return mElement.GetFirstText(); }
    const XIXMLData* GetFirstText() const override { return mElement.GetFirstText(); }
    XIXMLData* GetFirstNode() const override { return mElement.GetFirstNode(); }
    XIXMLElement* GetFirstElement() const override { return mElement.GetFirstElement(); }
    XIXMLElement* GetNextElement() const override { return mElement.GetNextElement(); }
    XIXMLElement* FindElement(XCXMLKey key) const override { return mElement.FindElement(key); }
    XIXMLElement* GetNextSame() const override { return mElement.GetNextSame(); }
    XIXMLAttribute* GetFirstAttribute() const override { return mElement.GetFirstAttribute(); }
    XIXMLAttribute* FindAttribute(XCXMLKey key) const override
    {
        return mElement.FindAttribute(key);
    }
    XIXMLData* AddComment(const char* text) override { return mElement.AddComment(text); }
    bool RemoveAttribute(XCXMLKey key) override { return mElement.RemoveAttribute(key); }

private:
    XIXMLElement& mElement;
};

} // namespace ZelTest
