#pragma once

namespace OrvaneXML {

class CXMLWindow;

/// Skips a document type declaration unread; "<!DOCTYPE" is passed already. Declarations in it nest
/// by their brackets; quotes, comments and instructions may hold unpaired ones.
void skipDoctype(CXMLWindow& window);

} // namespace OrvaneXML
