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

/// Looks at a polygon whenever it hears of something.
class CLookingFeedback : public ZelTest::CQuietFeedback {
public:
    void message(OvZel::IZelMgr*, const char*) override
    {
        ++nbMessages;
        polygon->getHoles();
    }

    OvZel::IZelPolygon* polygon = nullptr;
};

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

TEST(AllocationOfALoop, FailsWhileTheClientLooksAtThePolygon)
{
    constexpr std::int32_t kCount = 100;
    CLookingFeedback feedback;
    OvZel::IZelMgr* document = nullptr;
    OvZel::IZelMgr::newZelMgr(&document, OvZel::eVersionZel, &feedback);
    auto* const polygons = document->getPolygons();
    OvZel::IZelPolygon* const source = polygons->newZelObject(-1);
    for (std::int32_t i = 0; i < kCount; ++i)
        source->getVertices()->newZelObject(-1)->pointIndex = i;
    for (std::int64_t number = 1, nbFailed = 1; nbFailed > 0; ++number) {
        feedback.polygon = polygons->newZelObject(-1);
        CAllocations::arm(number, CAllocations::eOnce);
        const bool isCopied = feedback.polygon->copy(source);
        CAllocations::disarm();
        nbFailed = CAllocations::nbFailed();
        const std::int32_t count = feedback.polygon->getVertices()->getNbObjects();
        EXPECT_EQ(count, isCopied ? kCount : 0) << number;
        EXPECT_TRUE(isCopied || nbFailed > 0) << number;
        polygons->removeObject(-1);
    }
    EXPECT_GT(feedback.nbMessages, 0);
    document->Release();
}
