#include "xml/tree/CXMLTextFormat.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace OrvaneXML {

namespace {

constexpr int kMaxWidth = 1 << 20;

bool isKnown(const CXMLTextFormat& item)
{
    switch (item.size) {
    case CXMLTextFormat::ESize::Plain:
        return item.letter && std::strchr("duxXfsc%", item.letter);
    case CXMLTextFormat::ESize::Long:
        return item.letter == 'f';
    case CXMLTextFormat::ESize::LongLong:
        return item.letter == 'd' || item.letter == 'u';
    }
    return false;
}

} // namespace

CXMLTextFormat CXMLTextFormat::parse(const char*& format)
{
    CXMLTextFormat item;
    if (*format == '0') {
        item.zeroPad = true;
        ++format;
    }
    for (; *format >= '0' && *format <= '9' && item.width < kMaxWidth; ++format)
        item.width = item.width * 10 + (*format - '0');
    if (*format == 'l') {
        item.size = *++format == 'l' ? ESize::LongLong : ESize::Long;
        if (item.size == ESize::LongLong)
            ++format;
    }
    item.letter = *format;
    if (!isKnown(item))
        refuse(item.letter);
    ++format;
    return item;
}

void CXMLTextFormat::refuse(char letter)
{
    std::string text = "Conversion of a text format not supported: ";
    text += letter ? std::string(1, letter) : std::string("none behind %");
    throw std::runtime_error(text);
}

} // namespace OrvaneXML
