#include "tests/support/saveTable.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace ZelTest {

namespace {

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        result += c;
    }
    return result + '"';
}

template <class Items, class ToText>
std::string list(const Items& items, ToText toText)
{
    std::string result;
    for (const auto& item : items)
        result += (result.empty() ? "" : ", ") + toText(item);
    return '[' + result + ']';
}

std::string textOf(const COldForm& form)
{
    return list(std::vector<std::string>{form.read, form.written}, quoted);
}

std::string textOf(const CRow& row)
{
    return "{\"name\": " + quoted(row.name) + ", \"kind\": " + quoted(row.kind) +
           ", \"attribute\": " + (row.isAttribute ? "true" : "false") +
           ", \"full\": " + quoted(row.full) + ", \"fresh\": " + quoted(row.fresh) +
           ", \"absent\": " + quoted(row.absent) + ", \"message\": " + quoted(row.message) +
           ", \"alsoGone\": " + list(row.alsoGone, quoted) +
           ", \"words\": " + list(row.words, quoted) + ", \"oldForms\": " +
           list(row.oldForms, [](const COldForm& each) { return textOf(each); }) +
           ", \"readOrder\": " + list(row.readOrder, quoted) +
           ", \"rows\": " + list(row.rows, [](const CRow& each) { return textOf(each); }) + '}';
}

void saveLine(const std::string& line)
{
    const char* path = std::getenv("ZEL_FORMAT_TABLES");
    if (path == nullptr || *path == '\0')
        return;
    std::ofstream file(path, std::ios::app);
    file << line << '\n';
    EXPECT_TRUE(file.good()) << path;
}

} // namespace

void saveTable(const std::string& tag, const std::vector<CRow>& rows, const CForm& form)
{
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    saveLine("{\"file\": " + quoted(test.file()) + ", \"tag\": " + quoted(tag) + ", \"which\": " +
             quoted(form.which) + ", \"readOrder\": " + list(form.readOrder, quoted) +
             ", \"guardedFrom\": " + quoted(form.guardedFrom) +
             ", \"rows\": " + list(rows, [](const CRow& each) { return textOf(each); }) + "}");
}

void saveWords(const std::string& name, const std::vector<std::string>& words)
{
    saveLine("{\"name\": " + quoted(name) + ", \"words\": " + list(words, quoted) + "}");
}

} // namespace ZelTest
