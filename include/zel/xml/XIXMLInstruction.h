#pragma once

namespace OrvaneXML {

/// The instruction view of a node: `<?target content?>`.
///
/// The texts belong to the tree and are valid until they are set again or the node goes.
/// The order of the virtual operations is a promise to compiled clients.
class XIXMLInstruction {
public:
    /// The word behind "<?"; never null.
    virtual const char* GetTarget() const = 0;
    /// What stands behind the target and its white space; never null.
    virtual const char* GetContent() const = 0;
    /// Null counts as the empty text and leading white space is dropped. A content with "?>" in it
    /// is stored, but while it is there the tree cannot be written.
    virtual void SetContent(const char* content) = 0;

protected:
    ~XIXMLInstruction() = default;
};

} // namespace OrvaneXML
