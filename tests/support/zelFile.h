#pragma once

#include <iomanip>
#include <sstream>
#include <string>

namespace ZelTest {

/// The format instruction of a file by this very library.
inline constexpr const char* kFormat =
    "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>";

/// A file with these sections and the one that every file must have.
inline std::string zelFile(const std::string& sections, const std::string& head = kFormat)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + head + "<Zel.File>" + sections +
           "<Working.Window/></Zel.File>";
}

inline const std::string kIdA(32, 'A');
inline const std::string kIdB(32, 'B');
inline const std::string kIdC(32, 'C');
inline const std::string kNoId(32, '0');

/// The digits of an identifier of its own for each number from 0.
inline std::string numberedId(int number)
{
    std::ostringstream out;
    out << std::hex << std::uppercase << std::setw(32) << std::setfill('0') << number + 1;
    return out.str();
}

/// The bytes of a picture of one red pixel.
inline const std::string kRed = "00000001000000010000000100000001FFFF0000";

/// An element with one CDATA section. The attributes begin with a blank.
inline std::string section(const std::string& tag, const std::string& bytes,
                           const std::string& attributes = "")
{
    return "<" + tag + attributes + "><![CDATA[" + bytes + "]]></" + tag + ">";
}

inline std::string level(int value)
{
    return "<Geometry.Level>" + std::to_string(value) + "</Geometry.Level>";
}

inline std::string component(const std::string& id, const std::string& inside)
{
    return "<InternalComponentDefinition UUID=\"" + id + "\">" + inside +
           "</InternalComponentDefinition>";
}

/// The section with the components.
inline std::string components(const std::string& inside)
{
    return "<InternalComponentDefinitions>" + inside + "</InternalComponentDefinitions>";
}

} // namespace ZelTest
