#pragma once

#include "core/OvThrow.h"
#include "xml/tree/XCXMLTree.h"

#include <zel/IZelBasic.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelXML.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

/// What became of a copy: no object when the source could not be written, an object that isn't
/// complete when the copy could not be read to its end.
template <class I>
struct TCopy {
    I* object = nullptr;
    bool isComplete = false;
};

/// The file form of an object: that of a counted one is in its basic data.
inline IZelBasicData& fileFormOf(IZelBasic& object)
{
    return *object.getBasicData();
}

inline IZelXML& fileFormOf(IZelXML& object)
{
    return object;
}

/// Copies by way of the file form, so that the copy keeps what that form doesn't hold, its own
/// identifier above all. target gives the object to copy to, and is asked only once the source has
/// been written; raises when it gives null.
template <class I, class Target>
TCopy<I> copyThroughXML(I& source, Target&& target)
{
    OrvaneXML::XCXMLTree tree;
    if (fileFormOf(source).putInXML(tree.GetRoot()) == nullptr)
        return {};
    I* object = target();
    OvThrow::IfNULL(object);
    return {object, fileFormOf(*object).initWithXML(tree.GetRoot(), false)};
}

/// Copies to a new object behind the last of the list.
template <class I>
TCopy<I> copyToNew(I& source, TZelObjectMgr<I>& list)
{
    return copyThroughXML(source, [&] { return list.newZelObject(-1); });
}

} // namespace OvZel
