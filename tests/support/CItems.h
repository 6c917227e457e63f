#pragma once

#include "tests/support/CRow.h"

#include <string>
#include <vector>

namespace ZelTest {

/// What the rows can't say about an element.
struct CForm {
    /// The names of all items in the order of reading, where it isn't that of the rows.
    std::vector<std::string> readOrder = {};
    /// From this item on in reading order a missing one ends the reading in silence.
    std::string guardedFrom = {};
    /// Whether identifiers in the file replace those of the object.
    bool getUUID = true;
    /// Which of the elements of this tag it is; empty if all are alike.
    std::string which = {};
};

/// The single items of an element, those of parts included, with their state in one file.
class CItems {
public:
    enum class EState { Full, Fresh, Absent, Missing, Changed };

    CItems(std::string tag, const std::vector<CRow>& rows, const CForm& form);

    // Items are counted in the order of reading, a part ahead of its items.
    std::size_t size() const { return mItems.size(); }
    const std::string& path(std::size_t place) const { return mItems[place].path; }
    const CRow& row(std::size_t place) const { return *mItems[place].row; }
    bool isPart(std::size_t place) const { return !row(place).rows.empty(); }
    bool isSilent(std::size_t place) const { return place >= mGuarded; }

    void setAll(EState state);
    /// The item and, if it is a part, all in it.
    void set(const std::string& path, EState state);
    void setAt(std::size_t place, EState state) { set(path(place), state); }
    /// The item has this text, whatever its row says.
    void changeAt(std::size_t place, const std::string& text);
    /// This item and all that are read behind it.
    void setFrom(std::size_t place, EState state);
    std::string text() const { return "<E>" + element(mTag, mRows, "") + "</E>"; }

private:
    struct CItem {
        std::string path;
        const CRow* row;
        EState state;
        std::string changed = {};
    };

    void gather(const std::vector<CRow>& rows, const std::string& prefix,
                const std::vector<std::string>& order);
    std::string element(const std::string& tag, const std::vector<CRow>& rows,
                        const std::string& prefix) const;
    const std::string& itemText(const std::string& path) const;
    EState state(const std::string& path) const;

    std::string mTag;
    const std::vector<CRow>& mRows;
    std::vector<CItem> mItems;
    std::size_t mGuarded = std::string::npos;
};

} // namespace ZelTest
