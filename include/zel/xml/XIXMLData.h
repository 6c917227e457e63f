#pragma once

#include <zel/xml/XIXMLWriteStream.h>

namespace OrvaneXML {

class XIXMLComment;
class XIXMLElement;
class XIXMLInstruction;

/// Any node of a child list: element, text, comment, instruction or CDATA section.
///
/// Nodes belong to their tree and are always attached; a pointer is valid until the node, or an
/// element above it, is destroyed. A tree and its nodes serve one thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one.
class XIXMLData {
public:
    /// The client's object that gives the bytes of a CDATA section when the tree is written.
    class IXMLCData {
    public:
        /// Writes the section's bytes, without the markers, to `stream`. `node` is the CDATA node,
        /// `reserved` is null. The bytes go out as they are and must not have "]]>" in them.
        /// On false the rest of the tree is still written, and the write of the tree answers false;
        /// an exception stops the write and reaches its caller. The tree must not be changed here.
        virtual bool Write(XIXMLWriteStream* stream, void* reserved, XIXMLData* node) = 0;
        /// A new object for the same data, owned by the caller. Null: the copy of the element gets
        /// no section.
        virtual IXMLCData* Clone() = 0;
        /// Called once, when the node goes or gets another provider.
        virtual void Destroy() { delete this; }

        virtual ~IXMLCData() = default;
    };

    /// The next sibling of any kind, or null.
    virtual XIXMLData* GetNextNode() const = 0;
    /// The text of a text node or comment, the content of an instruction, the first text of an
    /// element; the empty text if there is none and for CDATA. Valid until it is set again.
    virtual const char* GetText() const = 0;
    /// The instruction view, or null for other nodes.
    virtual XIXMLInstruction* AsInstruction() = 0;
    /// Reads values from the text as sscanf does, whatever locale is set, and returns how many were
    /// stored, or -1 when the text ends before the first. Understands `%d %u %x %X %lld %llu %f %lf
    /// %s %c %%`, widths and literal text; any other conversion throws std::runtime_error.
    virtual int Scan(const char* format, ...) const = 0;
    /// Replaces the text by what printf would print in the "C" locale, with the conversions of
    /// Scan, and returns its length. "nan" and "inf" are written as these words.
    virtual int Print(const char* format, ...) = 0;
    /// The element that holds this node; null for the root.
    virtual XIXMLElement* GetParent() const = 0;
    /// A deep copy of this node as the last child of `parent`, which may be of another tree and may
    /// lie below this node. Null when a section's provider cannot be cloned.
    virtual XIXMLData* CloneInto(XIXMLElement* parent) const = 0;

    // Behind the fixed ones:
    /// Replaces the text that GetText gives; an element without text gets a text node. Null counts
    /// as the empty text. Throws std::runtime_error for a CDATA node and for the root.
    virtual void SetText(const char* text) = 0;
    /// The comment view, or null for other nodes.
    virtual XIXMLComment* AsComment() = 0;
    /// The element view, or null for other nodes.
    virtual XIXMLElement* AsElement() = 0;
    /// Unlinks this node from its parent and deletes it with its subtree. The root stays and only
    /// loses its children.
    virtual void Destroy() = 0;

protected:
    ~XIXMLData() = default;
};

} // namespace OrvaneXML
