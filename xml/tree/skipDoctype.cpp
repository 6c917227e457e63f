#include "xml/tree/skipDoctype.h"

#include "xml/tree/CXMLWindow.h"

namespace OrvaneXML {

namespace {

void skipThrough(CXMLWindow& window, std::string_view mark)
{
    for (std::size_t nb = 0; nb < mark.size();) {
        const char c = window.Drop();
        if (c == mark[nb])
            ++nb;
        else if (!(nb == 2 && c == mark[1])) // "--->" ends a comment too, "??>" an instruction
            nb = c == mark[0] ? 1 : 0;
    }
}

} // namespace

void skipDoctype(CXMLWindow& window)
{
    for (std::size_t depth = 1; depth > 0;) {
        const char c = window.Drop();
        if (c == '"' || c == '\'')
            skipThrough(window, {&c, 1});
        else if (c == '<' && window.StartsWith("!--"))
            window.Skip(3), skipThrough(window, "-->");
        else if (c == '<' && window.StartsWith("?"))
            skipThrough(window, "?>");
        else if (c == '<')
            ++depth;
        else if (c == '>')
            --depth;
    }
}

} // namespace OrvaneXML
