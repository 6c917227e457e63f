#pragma once

#include "xml/CZelLabel.h"
#include "xml/tree/CXMLTag.h"

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>
#include <zel/xml/XIXMLElement.h>

#include <array>
#include <cstdint>
#include <functional>

#if defined(__GNUC__)
#define ZEL_SCANF(text, first) __attribute__((format(scanf, text, first)))
#else
#define ZEL_SCANF(text, first)
#endif

namespace OvZel {

class ITable;
class IZelMgrRef;
class IZelPlace;
class IZelString;
class IZelTime;

/// Reads values from one element of the tree.
///
/// What is missing raises std::runtime_error; who has a default asks IsElement or FindElement
/// first. A missing element is named ("... - NULL ptr for tag TAG"), a missing child of a value
/// that has parts of its own is "CZelXMLGet::CZelXMLGet - NULL ptr". A text that is no number
/// reads as 0.
class CZelXMLGet {
public:
    using CXMLTag = OrvaneXML::CXMLTag;
    using XIXMLElement = OrvaneXML::XIXMLElement;

    /// Raises "CZelXMLGet::CZelXMLGet - NULL ptr" on a null element.
    explicit CZelXMLGet(XIXMLElement* element);

    XIXMLElement* element() const { return mElement; }

    bool IsElement(CXMLTag tag) const { return FindElement(tag) != nullptr; }
    /// The first child of the name, or null.
    XIXMLElement* FindElement(CXMLTag tag) const;
    /// The first child of the name.
    XIXMLElement* GetElement(CXMLTag tag) const;

    std::int32_t GetInteger(CXMLTag tag) const;
    std::int64_t GetInteger64(CXMLTag tag) const;
    double GetDouble(CXMLTag tag) const;
    float GetFloat(CXMLTag tag) const;
    /// The text of a child, the empty text if it has none. Good until the child changes.
    const char* GetText(CXMLTag tag) const;
    /// Scans the text of the element as XIXMLData::Scan does, and returns as that does.
    static int GetFmtData(XIXMLElement* element, const char* format, ...) ZEL_SCANF(2, 3);

    /// The value, or null. Good until the attribute changes.
    const char* GetOptionalAttribute(CXMLTag name) const;
    int GetFmtAttribute(CXMLTag name, const char* format, ...) const ZEL_SCANF(3, 4);
    /// Digits of either case; "CZelUUID::Hex2Int: Invalid hex value" for anything else.
    CZelUUID GetUUID(CXMLTag name) const;
    /// Raises "Invalid label (%s) [%s..%s]" for a text that the table does not have.
    std::int32_t GetAttributeLabel(CXMLTag name, const CZelLabel* table) const;
    /// The value of the attribute "en" of the child.
    const char* GetAttributeLanguage(CXMLTag tag) const;
    /// Empties the text and fills it from the attributes of the child. Without it nothing changes.
    void GetLanguages(CXMLTag tag, IZelString& string) const;
    /// Calls use(name, value) for each attribute of the wrapped element.
    void ForEachAttribute(const std::function<void(const char*, const char*)>& use) const;
    /// The same by language: the two letters of the name in one number.
    void ForEachLanguage(const std::function<void(std::uint32_t, const char*)>& use) const;

    /// "X" and "Y" of the wrapped element; each is required.
    std::array<double, 2> GetCoord2D() const;
    /// "X", "Y" and "Z" of the wrapped element; each is required and none is transformed.
    CZelPoint GetCoord3D() const;
    /// These five pass through the read transform. A missing coordinate is 0, but 1 for the "Z" of
    /// a direction.
    CZelPoint GetPoint(CXMLTag tag, const IZelMgrRef* mgrRef) const;
    CZelPoint GetVector(CXMLTag tag, const IZelMgrRef* mgrRef) const;
    CZelPoint GetDirection(CXMLTag tag, const IZelMgrRef* mgrRef) const;
    /// As that of a tag, from the wrapped element.
    CZelPoint GetPoint(const IZelMgrRef* mgrRef) const;
    /// Three corners of the child "Triangle".
    std::array<double, 9> GetTriangle(const IZelMgrRef* mgrRef) const;

    /// Attributes "R", "G" and "B", or the children "Red", "Green" and "Blue" of older files.
    CZelColor GetColor(CXMLTag tag) const;
    /// The same of the wrapped element.
    CZelColor GetColor() const;
    /// Sixteen doubles in row order. Four lines are required, each with four numbers.
    std::array<double, 16> GetZelMatrix(CXMLTag tag) const;
    /// Sets part after part. "Year" alone is optional.
    void GetDate(CXMLTag tag, IZelTime& time) const;
    /// Reads the child "Place"; a time zone in hours, as in older files, becomes minutes.
    void GetPlace(IZelPlace& place) const;
    /// A "Length" below 1 gives an empty table. When entries are missing the table keeps those that
    /// the file has.
    void GetTable(CXMLTag tag, ITable& table) const;
    /// Empties the list first, also when the child is missing.
    void GetIdList(CXMLTag listTag, CXMLTag itemTag, TZelObjectMgr<CZelUUID>& list) const;

private:
    const char* getAttribute(CXMLTag name, const char* operation) const;
    double optionalCoord(CXMLTag name, double start) const;
    std::array<double, 3> optionalXYZ(const std::array<double, 3>& start) const;
    CZelXMLGet child(CXMLTag tag) const { return CZelXMLGet(FindElement(tag)); }

    XIXMLElement* mElement;
};

} // namespace OvZel
