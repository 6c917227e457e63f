#pragma once

#include "xml/CZelLabel.h"

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>
#include <zel/xml/XIXMLElement.h>

#include <cstdint>

#if defined(__GNUC__)
#define ZEL_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define ZEL_PRINTF(text, first)
#endif

namespace OvZel {

class ITable;
class IZelPlace;
class IZelString;
class IZelTime;

/// Writes values into one element of the tree.
///
/// Children keep the order of the calls; each operation returns the new child. An attribute that is
/// there gets the new value. Failures are std::runtime_error with the text that the caller shows.
/// Numbers have "." and no grouping, reals six decimals.
class CZelXMLAdd {
public:
    using XIXMLElement = OrvaneXML::XIXMLElement;

    /// Raises "CZelXMLAdd::CZelXMLAdd - NULL ptr" on a null element.
    explicit CZelXMLAdd(XIXMLElement* element);

    XIXMLElement* element() const { return mElement; }

    XIXMLElement* AddElement(const char* tag) const;
    /// Destroys every child of this name first, so that a save replaces what a file had.
    XIXMLElement* ReuseElement(const char* tag) const;
    void DestroyElements(const char* tag) const;

    /// An empty child if true; nothing, and null, if false.
    XIXMLElement* AddBoolean(const char* tag, bool value) const;
    XIXMLElement* AddInteger(const char* tag, std::int32_t value) const;
    XIXMLElement* AddInteger64(const char* tag, std::int64_t value) const;
    XIXMLElement* AddDouble(const char* tag, double value) const;
    XIXMLElement* AddFloat(const char* tag, float value) const;
    /// A text of any length; an empty or null one gives the child without text.
    XIXMLElement* AddText(const char* tag, const char* text) const;
    /// At most 2047 characters; conversions as in XIXMLData::Print.
    XIXMLElement* AddFmtData(const char* tag, const char* format, ...) const ZEL_PRINTF(3, 4);

    /// A text of any length; null counts as the empty one.
    void AddAttribute(const char* name, const char* text) const;
    /// At most 2047 characters.
    void AddFmtAttribute(const char* name, const char* format, ...) const ZEL_PRINTF(3, 4);
    /// Raises "No label for the value (%d) [%s..%s]" for a number that the table does not have.
    void AddAttributeLabel(const char* name, const CZelLabel* table, std::int32_t value) const;
    void AddUUID(const char* name, const CZelUUID& id) const;

    XIXMLElement* AddColor(const char* tag, const CZelColor& color) const;
    XIXMLElement* AddCoord2D(const char* tag, double x, double y) const;
    XIXMLElement* AddCoord3D(const char* tag, const CZelPoint& vector) const;
    /// Nine doubles, three corners; the child is "Triangle".
    XIXMLElement* AddTriangle(const double* triangle) const;
    /// Sixteen doubles in row order; each line of the file holds one column.
    XIXMLElement* AddZelMatrix(const char* tag, const double* matrix) const;
    XIXMLElement* AddDate(const char* tag, const IZelTime& time) const;
    /// The child is "Place".
    XIXMLElement* AddPlace(const IZelPlace& place) const;
    XIXMLElement* AddTable(const char* tag, const ITable& table) const;
    /// One attribute per language; a key that is not two letters is left out.
    XIXMLElement* AddLanguages(const char* tag, const IZelString& string) const;
    /// Replaces every child of that name. Null, and no child, if the list is empty.
    XIXMLElement* AddIdList(const char* listTag, const char* itemTag,
                            TZelObjectMgr<CZelUUID>& list) const;

private:
    /// May be null, unlike the result of AddElement.
    XIXMLElement* newChild(const char* tag) const;
    XIXMLElement* addText(const char* tag, const char* text) const;
    void addReal(const char* name, double value) const;
    void addXYZ(const double* xyz) const;

    XIXMLElement* mElement;
};

} // namespace OvZel
