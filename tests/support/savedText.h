#pragma once

#include <algorithm>
#include <string>
#include <vector>

// Pieces of what a save gives.

namespace ZelTest {

/// The text without the line ends and tabs between the tags.
inline std::string flat(const std::string& text)
{
    std::string found;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t word = text.find_first_not_of("\n\t", i);
        const bool atTag = word != std::string::npos && text[word] == '<';
        if (word > i && atTag && (i == 0 || text[i - 1] == '>'))
            i = word;
        if (i < text.size() && word != std::string::npos)
            found += text[i];
    }
    return found;
}

/// Where the first element of that name behind the place begins and ends; it holds none of its
/// name.
struct CExtent {
    std::size_t begin, end;
};

inline CExtent extentOf(const std::string& text, const std::string& tag, std::size_t from = 0)
{
    constexpr std::size_t kNone = std::string::npos;
    std::size_t begin = text.find('<' + tag, from);
    while (begin != kNone && std::string(" />").find(text[begin + tag.size() + 1]) == kNone)
        begin = text.find('<' + tag, begin + 1);
    if (begin == kNone)
        return {kNone, kNone};
    const std::size_t head = text.find('>', begin);
    if (text[head - 1] == '/')
        return {begin, head + 1};
    return {begin, text.find("</" + tag + '>', head) + tag.size() + 3};
}

/// The first element of that name without the white space between its tags, "" without one.
inline std::string elementOf(const std::string& text, const std::string& tag)
{
    const CExtent found = extentOf(text, tag);
    if (found.begin == std::string::npos)
        return "";
    return flat(text.substr(found.begin, found.end - found.begin));
}

/// The section of that name right below the file's element, likewise.
inline std::string sectionOf(const std::string& saved, const std::string& tag)
{
    for (std::size_t at = saved.find("\n\t<" + tag); at != std::string::npos;
         at = saved.find("\n\t<" + tag, at + 1)) {
        const std::size_t behind = at + 3 + tag.size();
        if (saved[behind] == '/')
            return '<' + tag + "/>";
        const std::string close = "\n\t</" + tag + '>';
        if (saved[behind] == '>' || saved[behind] == ' ')
            return flat(saved.substr(at + 2, saved.find(close, at) + close.size() - at - 2));
    }
    return "";
}

/// The text with an empty element for each of that name.
inline std::string abbreviated(std::string text, const std::string& tag)
{
    const std::string instead = '<' + tag + "/>";
    for (CExtent found = extentOf(text, tag); found.begin != std::string::npos;
         found = extentOf(text, tag, found.begin + instead.size()))
        text.replace(found.begin, found.end - found.begin, instead);
    return text;
}

/// The names of the elements right below the file's, in their order.
inline std::vector<std::string> sectionNames(const std::string& saved)
{
    std::vector<std::string> names;
    for (std::size_t at = saved.find("\n\t<"); at != std::string::npos;
         at = saved.find("\n\t<", at + 1)) {
        const std::size_t begin = at + 3;
        if (saved[begin] != '/' && saved[begin] != '!')
            names.push_back(saved.substr(begin, saved.find_first_of(" />", begin) - begin));
    }
    return names;
}

/// The saved text with zeros for every identifier that the other text lacks.
inline std::string withoutNewIds(std::string saved, const std::string& source)
{
    constexpr const char* kDigits = "0123456789ABCDEF";
    constexpr std::size_t kLength = 32;
    for (std::size_t at = saved.find_first_of(kDigits); at != std::string::npos;
         at = saved.find_first_of(kDigits, at)) {
        const std::size_t end = std::min(saved.find_first_not_of(kDigits, at), saved.size());
        const std::string digits = saved.substr(at, end - at);
        if (digits.size() == kLength && source.find(digits) == std::string::npos)
            saved.replace(at, kLength, kLength, '0');
        at = end;
    }
    return saved;
}

/// What a save adds behind the fixed elements of a document that lacks it, in the order of the
/// file.
inline const std::vector<std::string> kAddedSections = {"Heliodons",
                                                        "Properties",
                                                        "Billboards",
                                                        "Lights",
                                                        "Lights.Groups",
                                                        "Perspective.Views",
                                                        "Parallel.Views",
                                                        "PanoramasV2",
                                                        "Animations",
                                                        "View.Objects",
                                                        "Object.Definition",
                                                        "Object.Instances",
                                                        "Scenarios",
                                                        "Paths.3D",
                                                        "Grounds",
                                                        "Layers",
                                                        "Layers.Info",
                                                        "Tmp.Render.Parameters",
                                                        "ExternalDefinitions",
                                                        "Working.Window"};

} // namespace ZelTest
