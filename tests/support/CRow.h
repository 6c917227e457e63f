#pragma once

#include <array>
#include <string>
#include <vector>

/// The file form of a class, stated a second time: a row for each item of its element.
namespace ZelTest {

/// Another text that is read for an item, and what is then written.
struct COldForm {
    std::string read;
    std::string written;
};

/// One item: a child element or an attribute, as the texts that stand for it in the file. An empty
/// text means that the item isn't there.
struct CRow {
    std::string name;
    std::string
        full; ///< in a file in which everything is there and no value is that of a new object
    std::string fresh; ///< as a new object writes it
    /// Written after reading a file that lacks the item and is full otherwise.
    std::string absent;
    std::string message;               ///< the failure without the item; empty if there is none
    std::vector<std::string> alsoGone; ///< items that are there but aren't read without this one
    bool isAttribute = false;
    std::vector<CRow> rows;             ///< the items of a part
    std::vector<std::string> readOrder; ///< of the part; empty if it is that of the rows
    std::string kind;                   ///< what the value is; empty: its texts show it
    std::vector<std::string> words;     ///< all words that it may have
    std::vector<COldForm> oldForms;
};

inline std::string elementText(const std::string& name, const std::string& content)
{
    return content.empty() ? "<" + name + "/>" : "<" + name + ">" + content + "</" + name + ">";
}

/// Any required child; the texts are whole elements, or empty where it isn't written.
inline CRow raw(const std::string& name, const std::string& full, const std::string& fresh)
{
    CRow row;
    row.name = name;
    row.full = full;
    row.fresh = fresh;
    row.message = "CZelXMLGet::GetElement - NULL ptr for tag " + name;
    return row;
}

inline CRow ofKind(CRow row, const std::string& kind)
{
    row.kind = kind;
    return row;
}

inline CRow text(const std::string& name, const std::string& full, const std::string& fresh)
{
    return ofKind(raw(name, elementText(name, full), elementText(name, fresh)), "text");
}

inline CRow real(const std::string& name, double full, double fresh)
{
    return ofKind(text(name, std::to_string(full), std::to_string(fresh)), "real");
}

inline CRow integer(const std::string& name, long long full, long long fresh)
{
    return ofKind(text(name, std::to_string(full), std::to_string(fresh)), "integer");
}

/// An empty element by presence. The full file has what a new object hasn't; absence is false.
inline CRow flag(const std::string& name, bool fresh)
{
    CRow row = raw(name, fresh ? "" : elementText(name, ""), fresh ? elementText(name, "") : "");
    row.message.clear();
    return ofKind(row, "flag");
}

inline CRow color(const std::string& name, std::array<int, 3> full, std::array<int, 3> fresh)
{
    const auto textOf = [&](const std::array<int, 3>& c) {
        return "<" + name + " R=\"" + std::to_string(c[0]) + "\" G=\"" + std::to_string(c[1]) +
               "\" B=\"" + std::to_string(c[2]) + "\"/>";
    };
    CRow row = raw(name, textOf(full), textOf(fresh));
    row.message = "CZelXMLGet::CZelXMLGet - NULL ptr";
    return ofKind(row, "colour");
}

inline CRow xyz(const std::string& name, std::array<double, 3> full, std::array<double, 3> fresh)
{
    const auto textOf = [&](const std::array<double, 3>& v) {
        return "<" + name + " X=\"" + std::to_string(v[0]) + "\" Y=\"" + std::to_string(v[1]) +
               "\" Z=\"" + std::to_string(v[2]) + "\"/>";
    };
    CRow row = raw(name, textOf(full), textOf(fresh));
    row.message = "CZelXMLGet::CZelXMLGet - NULL ptr";
    return ofKind(row, "vector");
}

/// An optional attribute; absent it keeps the value of the object.
inline CRow attribute(const std::string& name, const std::string& full, const std::string& fresh)
{
    CRow row;
    row.name = name;
    row.isAttribute = true;
    row.full = full;
    row.absent = row.fresh = fresh;
    return row;
}

/// A required child with items of its own; made optional, it keeps all values when it is absent.
inline CRow part(const std::string& name, std::vector<CRow> rows,
                 std::vector<std::string> readOrder = {})
{
    CRow row;
    row.name = name;
    row.rows = std::move(rows);
    row.readOrder = std::move(readOrder);
    row.message = "CZelXMLGet::GetElement - NULL ptr for tag " + name;
    return row;
}

/// Its absence leaves the value of the object.
inline CRow optional(CRow row)
{
    row.message.clear();
    row.absent = row.fresh;
    return row;
}

/// Its absence gives another value: the text that is then written.
inline CRow absentGives(CRow row, const std::string& written)
{
    row.message.clear();
    row.absent = written;
    return row;
}

/// Its absence fails with this text.
inline CRow required(CRow row, const std::string& message)
{
    row.message = message;
    return row;
}

/// Nothing but these words is read or written.
inline CRow oneOf(CRow row, std::vector<std::string> words)
{
    row.words = std::move(words);
    return ofKind(std::move(row), "word");
}

/// The text `read` of older files is taken for `written`. For an element they are whole elements.
inline CRow alsoReads(CRow row, const std::string& read, const std::string& written)
{
    row.oldForms.push_back({read, written});
    return row;
}

/// Without this item those are not read either, though they are there.
inline CRow absentAlsoDrops(CRow row, std::vector<std::string> names)
{
    row.alsoGone = std::move(names);
    return row;
}

} // namespace ZelTest
