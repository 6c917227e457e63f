#pragma once

#include "xml/CZelLabel.h"
#include "xml/tree/CXMLTag.h"

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>
#include <zel/xml/XIXMLElement.h>

#include <cstddef>
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
    using CXMLTag = OrvaneXML::CXMLTag;
    using XIXMLElement = OrvaneXML::XIXMLElement;

    /// Raises "CZelXMLAdd::CZelXMLAdd - NULL ptr" on a null element.
    explicit CZelXMLAdd(XIXMLElement* element);

    XIXMLElement* element() const { return mElement; }

    XIXMLElement* AddElement(CXMLTag tag) const;
    /// Destroys every child of this name first, so that a save replaces what a file had.
    XIXMLElement* ReuseElement(CXMLTag tag) const;
    void DestroyElements(CXMLTag tag) const;
    /// Destroys the element, if it is one, and those of its name behind it.
    static void DestroySame(XIXMLElement* element);

    /// An empty child if true; nothing, and null, if false.
    XIXMLElement* AddBoolean(CXMLTag tag, bool value) const;
    XIXMLElement* AddInteger(CXMLTag tag, std::int32_t value) const;
    XIXMLElement* AddInteger64(CXMLTag tag, std::int64_t value) const;
    XIXMLElement* AddDouble(CXMLTag tag, double value) const;
    XIXMLElement* AddFloat(CXMLTag tag, float value) const;
    /// A text of any length; an empty or null one gives the child without text.
    XIXMLElement* AddText(CXMLTag tag, const char* text) const;
    /// At most 2047 characters; conversions as in XIXMLData::Print.
    XIXMLElement* AddFmtData(CXMLTag tag, const char* format, ...) const ZEL_PRINTF(3, 4);

    /// A text of any length; null counts as the empty one.
    void AddAttribute(CXMLTag name, const char* text) const;
    /// For a language as ForEachLanguage gives it. What is not two letters is left out, since it
    /// would not be the name of an attribute.
    void AddLanguage(std::uint32_t language, const char* text) const;
    /// At most 2047 characters.
    void AddFmtAttribute(CXMLTag name, const char* format, ...) const ZEL_PRINTF(3, 4);
    /// Raises "No label for the value (%d) [%s..%s]" for a number that the table does not have.
    void AddAttributeLabel(CXMLTag name, const CZelLabel* table, std::int32_t value) const;
    void AddUUID(CXMLTag name, const CZelUUID& id) const;

    XIXMLElement* AddColor(CXMLTag tag, const CZelColor& color) const;
    XIXMLElement* AddCoord2D(CXMLTag tag, double x, double y) const;
    XIXMLElement* AddCoord3D(CXMLTag tag, const CZelPoint& vector) const;
    /// Nine doubles, three corners; the child is "Triangle".
    XIXMLElement* AddTriangle(const double* triangle) const;
    /// Sixteen doubles in row order; each line of the file holds one column.
    XIXMLElement* AddZelMatrix(CXMLTag tag, const double* matrix) const;
    XIXMLElement* AddDate(CXMLTag tag, const IZelTime& time) const;
    /// The child is "Place".
    XIXMLElement* AddPlace(const IZelPlace& place) const;
    XIXMLElement* AddTable(CXMLTag tag, const ITable& table) const;
    /// One attribute per language; a key that is not two letters is left out.
    XIXMLElement* AddLanguages(CXMLTag tag, const IZelString& string) const;
    /// Replaces every child of that name. Null, and no child, if the list is empty.
    XIXMLElement* AddIdList(CXMLTag listTag, CXMLTag itemTag, TZelObjectMgr<CZelUUID>& list) const;

private:
    /// May be null, unlike the result of AddElement.
    XIXMLElement* newChild(CXMLTag tag) const;
    XIXMLElement* addText(CXMLTag tag, const char* text) const;
    template <class TValue>
    struct TPart {
        CXMLTag name;
        TValue value;
    };
    /// All attributes of a new child.
    template <class TValue, std::size_t kNb, class TPrint>
    void fill(const TPart<TValue> (&parts)[kNb], TPrint print) const;
    void addXYZ(const double* xyz) const;

    XIXMLElement* mElement;
};

} // namespace OvZel
