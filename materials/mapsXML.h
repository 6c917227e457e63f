#pragma once

#include "materials/CZelSubPart.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

#include <zel/IZelMultiMaps.h>

namespace OvZel {

/// The projections of the nodes that place images.
extern const CZelLabel kProjections[];

/// Adds a child "Maps" with a "URL" for each address.
void addMaps(const CZelXMLAdd& out, const IZelMultiMaps& maps);
/// Takes the "URL" children of the element that `in` wraps, itself a "Maps". Addresses of other
/// kinds stay.
void readMaps(const CZelXMLGet& in, IZelMultiMaps& maps);

/// Adds a child "Sub.Parts" with all sub-parts.
void addSubParts(const CZelXMLAdd& out, TObjectMgr<CZelSubPart, IZelSubPart>& list);
/// Empties the list and fills it from the child "Sub.Parts", or from the form of older files. With
/// neither it stays empty.
void readSubParts(const CZelXMLGet& in, TObjectMgr<CZelSubPart, IZelSubPart>& list);

} // namespace OvZel
