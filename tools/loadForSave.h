#pragma once

#include <string>

namespace tool {

class CToolDocument;

/// Loads a document that is to be saved again: the preview picture, which a load leaves aside for
/// most files, is carried over, and sections that a save drops are named on standard error. A file
/// of a newer library, and one with a section that cannot be read, throws CToolError(eNotReadable)
/// unless forced, with what the user can do about it; otherwise as CToolDocument::read.
void loadForSave(CToolDocument& document, const std::string& file, const std::string& remedy,
                 bool force = false);

} // namespace tool
