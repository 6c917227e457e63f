#pragma once

namespace OrvaneXML {

struct SDecoded {
    char* end;   ///< of what is decoded
    bool isGood; ///< false when a reference is unknown, in front of which it stops
};

/// References become characters and line ends LF; in a value white space becomes blanks. The text
/// is decoded in place, since the result is never longer than the source.
SDecoded decodeText(char* begin, const char* end, bool isValue);

} // namespace OrvaneXML
