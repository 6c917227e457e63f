#pragma once

#include "tests/support/vtable.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

// Compiled clients call operations by their slots. A change of one breaks every one of them.

namespace ZelTest {

struct CSlot {
    const char* name;
    std::ptrdiff_t slot;
};

/// The operations follow each other from the first slot on, without a gap.
inline void expectOrder(std::ptrdiff_t first, const std::vector<CSlot>& slots)
{
    for (const CSlot& entry : slots)
        EXPECT_EQ(entry.slot, first++) << entry.name;
}

/// The margin of three slots stands right behind the last operation of the class's interface.
template <class Class>
void expectMargin(const CSlot& last)
{
    EXPECT_EQ(slotOf(&Class::obsolete1), last.slot + 1) << last.name;
    EXPECT_EQ(slotOf(&Class::obsolete2), last.slot + 2) << last.name;
    EXPECT_EQ(slotOf(&Class::obsolete3), last.slot + 3) << last.name;
}

} // namespace ZelTest

#define AT(operation)                                                                              \
    ZelTest::CSlot                                                                                 \
    {                                                                                              \
#operation, ZelTest::slotOf(&operation)                                                    \
    }
/// One of two operations of a name: the constant one.
#define CONST_AT(result, operation)                                                                \
    ZelTest::CSlot                                                                                 \
    {                                                                                              \
#operation " const", ZelTest::slotOf < result() const>(&operation)                         \
    }
/// One of two operations of a name: the other one.
#define OTHER_AT(result, operation)                                                                \
    ZelTest::CSlot                                                                                 \
    {                                                                                              \
#operation, ZelTest::slotOf < result()>(&operation)                                        \
    }
