#pragma once

namespace OrvaneXML {

/// One conversion of a format, such as `%08X`: what stands between "%" and the letter.
struct CXMLTextFormat {
    enum class ESize { Plain, Long, LongLong };

    bool zeroPad = false;
    int width = 0; // 0 if there is none
    ESize size = ESize::Plain;
    char letter = 0;

    /// Parses behind the "%" and leaves `format` behind the letter. Throws std::runtime_error for
    /// everything that is not understood.
    static CXMLTextFormat parse(const char*& format);
    [[noreturn]] static void refuse(char letter);
};

} // namespace OrvaneXML
