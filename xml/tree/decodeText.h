#pragma once

namespace OrvaneXML {

struct SDecoded {
    char* end;       ///< of what is decoded
    const char* bad; ///< behind the "&" of the first unknown reference, or null
};

/// References become characters and line ends LF; in a value white space becomes blanks. The text
/// is decoded in place, since the result is never longer than the source.
SDecoded decodeText(char* begin, const char* end, bool isValue);

} // namespace OrvaneXML
