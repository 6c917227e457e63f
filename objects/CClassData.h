#pragma once

#include "objects/CPackedElement.h"

#include <functional>
#include <memory>

namespace OrvaneXML {
class XCXMLTree;
}

namespace OvZel {

/// The private data of a definition or an instance: one element of free XML under a root of its
/// own.
///
/// The library looks into it for the classes that it has delegates for, and hands everything else
/// on as it came. A scene has tens of thousands of instances and a tree takes two kilobytes, so the
/// element is kept packed, and is a tree only while a delegate works on it. Once somebody has a
/// pointer into it, it stays a tree.
///
///     CClassData mData{"Instance.Data"};                   // in the shell
///     mData.copyFrom(*in.GetElement("Instance.Data"));     // reading
///     mData.edit([&](XIXMLElement* data) { ... });         // the delegate's save
///     mData.copyInto(*out.element());                      // writing, behind that
class CClassData {
public:
    using XIXMLElement = OrvaneXML::XIXMLElement;
    using CWork = std::function<void(XIXMLElement*)>;
    using CTreePtr = std::unique_ptr<OrvaneXML::XCXMLTree>;

    /// The element is empty at first. The tag is a literal.
    explicit CClassData(const char* tag);
    ~CClassData();
    CClassData(const CClassData&) = delete;
    CClassData& operator=(const CClassData&) = delete;

    /// The element for a client, never null: one that was destroyed is made anew, empty. Good until
    /// the next copyFrom.
    XIXMLElement* element() const;
    /// The text of the first child of that name, empty without it. Good until the child changes.
    const char* getText(const char* tag) const;
    /// Sets the text of the first child of that name, and makes the child if there is none. Null
    /// counts as the empty text.
    void setText(const char* tag, const char* text);
    /// Replaces the element by a copy of that of a file. A section that cannot be copied is left
    /// out.
    void copyFrom(const XIXMLElement& source);
    /// A copy as the last child of that element.
    void copyInto(XIXMLElement& parent) const;

    /// Calls `work` with the element, to be read.
    void read(const CWork& work) const;
    /// Calls `work` with the element, to be changed. What was changed before a failure stays.
    void edit(const CWork& work);
    /// The same, in the tree that many share in turn; see CZelXMLIO::workingTree.
    void edit(const CWork& work, CTreePtr& workingTree);

private:
    XIXMLElement* elementOf(OrvaneXML::XCXMLTree& tree) const;
    /// The tree in which the element stands at the moment, or null.
    OrvaneXML::XCXMLTree* tree() const;
    OrvaneXML::XCXMLTree* edited() const;
    void unpackInto(OrvaneXML::XCXMLTree& tree) const;
    CTreePtr unpacked() const;
    void show() const;

    const char* mTag;
    // One of the two holds the data, and nobody can see which; neither does for an empty element.
    mutable CPackedElement mPacked;
    mutable CTreePtr mTree;
    CTreePtr* mEditTree = nullptr; // where it is edited, and becomes its own if somebody looks
};

} // namespace OvZel
