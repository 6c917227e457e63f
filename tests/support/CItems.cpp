#include "tests/support/CItems.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ZelTest {

namespace {

const std::string kNothing;

const std::string& textOf(const CRow& row, CItems::EState state)
{
    switch (state) {
    case CItems::EState::Full:
        return row.full;
    case CItems::EState::Fresh:
        return row.fresh;
    case CItems::EState::Absent:
        return row.absent;
    case CItems::EState::Missing:
    case CItems::EState::Changed:
        break;
    }
    return kNothing;
}

} // namespace

CItems::CItems(std::string tag, const std::vector<CRow>& rows, const CForm& form)
    : mTag(std::move(tag)), mRows(rows)
{
    gather(rows, "", form.readOrder);
    for (std::size_t i = 0; i < size(); ++i)
        if (path(i) == form.guardedFrom)
            mGuarded = i;
    EXPECT_EQ(mGuarded == std::string::npos, form.guardedFrom.empty()) << form.guardedFrom;
}

void CItems::gather(const std::vector<CRow>& rows, const std::string& prefix,
                    const std::vector<std::string>& order)
{
    std::vector<std::string> names = order;
    if (names.empty())
        for (const CRow& row : rows)
            names.push_back(row.name);
    EXPECT_EQ(names.size(), rows.size()) << "the reading order names every item of " << prefix;
    for (const std::string& name : names) {
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&](const CRow& each) { return each.name == name; });
        ASSERT_NE(row, rows.end()) << name;
        mItems.push_back({prefix + name, &*row, EState::Full});
        if (!row->rows.empty())
            gather(row->rows, prefix + name + "/", row->readOrder);
    }
}

const std::string& CItems::itemText(const std::string& path) const
{
    const auto item = std::find_if(mItems.begin(), mItems.end(),
                                   [&](const CItem& each) { return each.path == path; });
    if (item == mItems.end())
        return kNothing;
    return item->state == EState::Changed ? item->changed : textOf(*item->row, item->state);
}

CItems::EState CItems::state(const std::string& path) const
{
    const auto item = std::find_if(mItems.begin(), mItems.end(),
                                   [&](const CItem& each) { return each.path == path; });
    return item != mItems.end() ? item->state : EState::Missing;
}

void CItems::setAll(EState state)
{
    for (CItem& item : mItems)
        item.state = state;
}

void CItems::set(const std::string& path, EState state)
{
    bool found = false;
    for (CItem& item : mItems)
        if (item.path == path || item.path.rfind(path + "/", 0) == 0) {
            item.state = state;
            found = true;
        }
    EXPECT_TRUE(found) << path;
}

void CItems::changeAt(std::size_t place, const std::string& text)
{
    mItems[place].state = EState::Changed;
    mItems[place].changed = text;
}

void CItems::setFrom(std::size_t place, EState state)
{
    for (std::size_t i = place; i < size(); ++i)
        mItems[i].state = state;
}

std::string CItems::element(const std::string& tag, const std::vector<CRow>& rows,
                            const std::string& prefix) const
{
    std::string attributes;
    std::string content;
    for (const CRow& row : rows) {
        const std::string path = prefix + row.name;
        const std::string& text = itemText(path);
        if (!row.rows.empty()) {
            if (state(path) != EState::Missing)
                content += element(row.name, row.rows, path + "/");
        } else if (!row.isAttribute) {
            content += text;
        } else if (!text.empty()) {
            attributes += " " + row.name + "=\"" + text + "\"";
        }
    }
    return content.empty() ? "<" + tag + attributes + "/>"
                           : "<" + tag + attributes + ">" + content + "</" + tag + ">";
}

} // namespace ZelTest
