#pragma once

#include <zel/xml/XCXMLKey.h>
#include <zel/xml/XIXMLAttribute.h>
#include <zel/xml/XIXMLComment.h>
#include <zel/xml/XIXMLData.h>
#include <zel/xml/XIXMLInstruction.h>

namespace OrvaneXML {

/// An element of the tree, or its root.
///
/// The root stands above the document element. It takes elements, comments and instructions;
/// a text, a section, an attribute or a name given to it throws std::runtime_error.
///
/// A name that is empty or has white space, a control character, a quote, "=", "/", "<" or ">" in
/// it is stored, but while a node has it the tree cannot be written; the same holds for an element
/// whose name begins with "!" or "?". Null texts count as empty, a null key as the empty name.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one.
class XIXMLElement {
public:
    /// This element as a node of its parent.
    virtual XIXMLData* GetNode() = 0;
    virtual const XIXMLData* GetNode() const = 0;
    /// The key of a name in this element's tree, new or known.
    virtual XCXMLKey MakeKey(const char* name) const = 0;
    /// Moves `child` in front of `before`, a child of this element, or behind the last child if
    /// that is null. Both are nodes of this tree. A null child or one of another tree, a `before`
    /// that is no child of this element, and an element put below itself throw std::runtime_error.
    virtual void InsertChild(XIXMLData* child, XIXMLData* before) = 0;
    /// Appends an attribute; the first one that has the key already gets the value in place
    /// instead.
    virtual XIXMLAttribute* AddAttribute(XCXMLKey key, const char* value) = 0;
    /// Appends an instruction. See XIXMLInstruction::SetContent for the content.
    virtual XIXMLData* AddInstruction(const char* target, const char* content) = 0;
    /// Makes `provider` the provider of this element's first CDATA child, which is appended if
    /// there is none. The tree owns it from here on, also when this throws; the one before is
    /// destroyed. Null removes the child. The section is always written, also when its provider
    /// writes nothing.
    virtual void SetCData(XIXMLData::IXMLCData* provider) = 0;
    /// Appends a text node, also for an empty text.
    virtual XIXMLData* AddText(const char* text) = 0;
    /// Appends an element.
    virtual XIXMLElement* AddElement(XCXMLKey key) = 0;
    /// The name of the element.
    virtual XCXMLKey GetKey() const = 0;
    /// Renames the element in place.
    virtual void SetKey(XCXMLKey key) = 0;
    /// The first text child, or null. CDATA is no text.
    virtual XIXMLData* GetFirstText() = 0;
    virtual const XIXMLData* GetFirstText() const = 0;
    /// The first child of any kind, or null.
    virtual XIXMLData* GetFirstNode() const = 0;
    /// The first child that is an element, or null.
    virtual XIXMLElement* GetFirstElement() const = 0;
    /// The next element in the parent, of any name, or null.
    virtual XIXMLElement* GetNextElement() const = 0;
    /// The first child element with this name, or null.
    virtual XIXMLElement* FindElement(XCXMLKey key) const = 0;
    /// The next element in the parent that has this element's name, or null.
    virtual XIXMLElement* GetNextSame() const = 0;
    /// The first attribute in file order, or null.
    virtual XIXMLAttribute* GetFirstAttribute() const = 0;
    /// The first attribute with this name, or null.
    virtual XIXMLAttribute* FindAttribute(XCXMLKey key) const = 0;

    // Behind the fixed ones:
    /// Appends a comment. See XIXMLComment::SetText for the text.
    virtual XIXMLData* AddComment(const char* text) = 0;
    /// Removes every attribute with this name; false if there was none.
    virtual bool RemoveAttribute(XCXMLKey key) = 0;

    /// Unlinks this element from its parent and deletes it with its subtree. On the root see
    /// XIXMLData::Destroy.
    void Destroy() { GetNode()->Destroy(); }

protected:
    ~XIXMLElement() = default;
};

} // namespace OrvaneXML
