#include "core/CTable.h"

#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

#include <limits>

using namespace OvZel;

namespace {

TZelComPtr<CTable> makeTable(std::initializer_list<float> values)
{
    const TZelComPtr<CTable> table(new CTable(nullptr));
    table->setLength(static_cast<std::int32_t>(values.size()));
    std::int32_t index = 0;
    for (const float value : values)
        table->setValue(index++, value);
    return table;
}

void expectValues(const CTable& table, std::initializer_list<float> values)
{
    ASSERT_EQ(table.getLength(), static_cast<std::int32_t>(values.size()));
    std::int32_t index = 0;
    for (const float value : values)
        EXPECT_EQ(table.getValue(index++), value) << "at " << index - 1;
}

} // namespace

TEST(Table, IsEmptyAtFirst)
{
    expectValues(*makeTable({}), {});
}

TEST(Table, KeepsTheCommonPartWhenItsLengthChanges)
{
    const TZelComPtr<CTable> table = makeTable({1, 2, 3});
    table->setLength(2);
    expectValues(*table, {1, 2});
    table->setLength(4);
    expectValues(*table, {1, 2, 0, 0});
    table->setLength(4);
    expectValues(*table, {1, 2, 0, 0});
    table->setLength(-1);
    expectValues(*table, {});
}

TEST(Table, HasNothingOutsideItsRange)
{
    const TZelComPtr<CTable> table = makeTable({1, 2});
    for (const std::int32_t index : {-1, 2, std::numeric_limits<std::int32_t>::min()}) {
        table->setValue(index, 9);
        EXPECT_EQ(table->getValue(index), 0.0F) << index;
    }
    expectValues(*table, {1, 2});
}

TEST(Table, CopiesAnotherTable)
{
    const TZelComPtr<CTable> source = makeTable({1, 2, 3});
    const TZelComPtr<CTable> copy = makeTable({9});
    copy->copyFrom(source.get());
    expectValues(*copy, {1, 2, 3});
    copy->copyFrom(copy.get());
    expectValues(*copy, {1, 2, 3});
    copy->copyFrom(makeTable({}).get());
    expectValues(*copy, {});
}

TEST(Table, WarnsThroughItsOwner)
{
    ZelTest::CTestDocument document;
    const TZelComPtr<CTable> table(new CTable(document.ref()));
    EXPECT_EQ(table->getObjectLink()->getMgrRef(), document.ref());
    EXPECT_EQ(table->getBasicData()->getWarningTarget(), document.ref());
    EXPECT_STREQ(table->getBasicData()->getName(), "");
    const std::vector<std::string> expected = {
        "CZelEmptyBasicData::getName - This class doesn't implement name"};
    EXPECT_EQ(document.takeMessages(), expected);
}
