#pragma once

#include <zel/xml/XCXMLKey.h>

namespace OrvaneXML {

/// One attribute of an element. It belongs to its element and is valid until it is removed.
///
/// The order of the virtual operations is a promise to compiled clients.
class XIXMLAttribute {
public:
    /// The next attribute in file order, or null.
    virtual XIXMLAttribute* GetNext() const = 0;
    /// The name of the attribute.
    virtual XCXMLKey GetKey() const = 0;
    /// Never null; valid until the value is set again.
    virtual const char* GetValue() const = 0;
    /// Reads from the value as XIXMLData::Scan does.
    virtual int Scan(const char* format, ...) const = 0;
    /// Replaces the value as XIXMLData::Print does.
    virtual int Print(const char* format, ...) = 0;

    // Behind the fixed ones:
    /// Null counts as the empty text.
    virtual void SetValue(const char* value) = 0;

protected:
    ~XIXMLAttribute() = default;
};

} // namespace OrvaneXML
