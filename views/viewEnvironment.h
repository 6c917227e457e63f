#pragma once

namespace OvZel {

struct CZelUUID;
class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

// Environments belong to the document but have no section of their own: each goes into the file
// with the views that name it.

/// Adds the document's environment of that identifier, if there is one.
void addViewEnvironment(CZelXMLIO& io, const CZelXMLAdd& out, const CZelUUID& id);
/// Reads into the document's environment of the identifier in the file, or into a new one.
void getViewEnvironment(CZelXMLIO& io, const CZelXMLGet& in);

} // namespace OvZel
