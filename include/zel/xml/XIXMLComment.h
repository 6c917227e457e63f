#pragma once

namespace OrvaneXML {

/// The comment view of a node: `<!--text-->`.
///
/// The order of the virtual operations is a promise to compiled clients.
class XIXMLComment {
public:
    /// Never null; valid until it is set again or the node goes.
    virtual const char* GetText() const = 0;
    /// Null counts as the empty text. A text with "-->" in it is stored, but while it is there the
    /// tree cannot be written; one that ends in "-" is written with a blank behind it.
    virtual void SetText(const char* text) = 0;

protected:
    ~XIXMLComment() = default;
};

} // namespace OrvaneXML
