#pragma once

namespace OvZel {

class CZelXMLAdd;
class CZelXMLIO;

/// What one class of definitions or instances adds to its shell: made by setClass from the class
/// text, owned by the shell, gone with the class.
///
/// A delegate reads the private data of its shell in its constructor, writes them in save, and
/// keeps a plain pointer to the shell, never a count. A new one is one line in
/// makeDefinitionDelegate or makeInstanceDelegate.
class IObjectDelegate {
public:
    virtual ~IObjectDelegate() = default;
    IObjectDelegate(const IObjectDelegate&) = delete;
    IObjectDelegate& operator=(const IObjectDelegate&) = delete;

    /// Writes the state into the private data; may run any number of times.
    virtual void save(CZelXMLIO&, const CZelXMLAdd&) {}

protected:
    IObjectDelegate() = default;
};

} // namespace OvZel
