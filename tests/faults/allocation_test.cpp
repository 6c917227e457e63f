#include "tests/faults/CAllocations.h"
#include "tests/faults/COperation.h"
#include "tests/faults/CRounds.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

// Each request for memory of an operation fails in turn: nothing is lost in silence, nothing leaks,
// and what comes next works.

using ZelTest::CAllocations;
using ZelTest::CNamedOperation;
using ZelTest::COperation;
using ZelTest::CRounds;

namespace {

/// The failure of one request, and what came of it.
void failOne(CRounds& rounds, std::int64_t number, CAllocations::EMode mode)
{
    const auto before = [&] { CAllocations::arm(number, mode); };
    const auto behind = [] { CAllocations::disarm(); };
    rounds.run(
        "request " + std::to_string(number), [](COperation&) {}, before, behind);
}

std::int64_t nbRequests(const CNamedOperation& operation)
{
    const std::unique_ptr<COperation> made = operation.make();
    CAllocations::arm(std::numeric_limits<std::int64_t>::max(), CAllocations::eOnce);
    made->run();
    return CAllocations::disarm();
}

class Allocation : public testing::TestWithParam<std::tuple<CNamedOperation, CAllocations::EMode>> {
};

std::string nameOf(const testing::TestParamInfo<Allocation::ParamType>& item)
{
    const bool isOnce = std::get<1>(item.param) == CAllocations::eOnce;
    return std::get<0>(item.param).name + (isOnce ? "Once" : "Onward");
}

} // namespace

TEST_P(Allocation, FailsInTurn)
{
    const auto& [operation, mode] = GetParam();
    CRounds rounds(operation);
    const std::int64_t nb = nbRequests(operation);
    for (std::int64_t number = 1; number <= nb; number += ZelTest::stepThrough(nb)) {
        failOne(rounds, number, mode);
        EXPECT_GT(CAllocations::nbFailed(), 0) << number;
    }
    rounds.report(nb, mode == CAllocations::eOnce ? "Once" : "Onward");
}

INSTANTIATE_TEST_SUITE_P(Every, Allocation,
                         testing::Combine(testing::ValuesIn(ZelTest::allOperations()),
                                          testing::Values(CAllocations::eOnce,
                                                          CAllocations::eOnward)),
                         nameOf);
