#include "tests/faults/COperation.h"
#include "tests/faults/CRounds.h"

#include <gtest/gtest.h>

// Each call of the client's stream and of its feedback goes wrong in turn: the operation tells or
// is not harmed, nothing leaks, and what comes next works.

using ZelTest::CFaultAt;
using ZelTest::CNamedOperation;
using ZelTest::COperation;
using ZelTest::CQuietFeedback;
using ZelTest::CRounds;
using ZelTest::CTextReader;
using ZelTest::EFault;
using ZelTest::kFaultNames;

namespace {

/// The calls of a stream, by what they are for.
using CPick = CFaultAt* (*)(COperation&);

CFaultAt* reads(COperation& operation)
{
    CTextReader* stream = operation.reader();
    return stream != nullptr ? &stream->calls : nullptr;
}

CFaultAt* positions(COperation& operation)
{
    CTextReader* stream = operation.reader();
    return stream != nullptr ? &stream->positions : nullptr;
}

CFaultAt* writes(COperation& operation)
{
    return operation.writer() != nullptr ? &operation.writer()->calls : nullptr;
}

int nbCalls(const CNamedOperation& operation, CPick pick)
{
    const std::unique_ptr<COperation> made = operation.make();
    made->run();
    return pick(*made)->nbCalls;
}

int nbReports(const CNamedOperation& operation)
{
    const std::unique_ptr<COperation> made = operation.make();
    CQuietFeedback* feedback = made->feedback();
    if (feedback == nullptr)
        return 0;
    feedback->nbReports = 0;
    made->run();
    return feedback->nbReports;
}

std::vector<CNamedOperation> operationsWith(CPick pick)
{
    std::vector<CNamedOperation> found;
    for (const CNamedOperation& operation : ZelTest::allOperations())
        if (pick(*operation.make()) != nullptr)
            found.push_back(operation);
    return found;
}

void failEach(const CNamedOperation& operation, CPick pick, EFault fault)
{
    const int nb = nbCalls(operation, pick);
    if (nb == 0)
        return; // it never asks for a position
    CRounds rounds(operation);
    for (int number = 1; number <= nb; ++number) {
        rounds.run("call " + std::to_string(number), [&](COperation& made) {
            CFaultAt& calls = *pick(made);
            calls.fault = fault;
            calls.failsAt = number;
        });
    }
    rounds.report(nb, kFaultNames[fault]);
}

class Fault : public testing::TestWithParam<std::tuple<CNamedOperation, EFault>> {
protected:
    const CNamedOperation& operation() const { return std::get<0>(GetParam()); }
    EFault fault() const { return std::get<1>(GetParam()); }
};

std::string nameOf(const testing::TestParamInfo<Fault::ParamType>& item)
{
    return std::get<0>(item.param).name + kFaultNames[std::get<1>(item.param)];
}

} // namespace

class Read : public Fault {};

TEST_P(Read, FailsInTurn)
{
    failEach(operation(), reads, fault());
}

INSTANTIATE_TEST_SUITE_P(Every, Read,
                         testing::Combine(testing::ValuesIn(operationsWith(reads)),
                                          testing::Values(ZelTest::eThrows, ZelTest::eThrowsInt,
                                                          ZelTest::eDeliversNone,
                                                          ZelTest::eDeliversLess)),
                         nameOf);

class Position : public Fault {};

TEST_P(Position, FailsInTurn)
{
    failEach(operation(), positions, fault());
}

INSTANTIATE_TEST_SUITE_P(Every, Position,
                         testing::Combine(testing::ValuesIn(operationsWith(positions)),
                                          testing::Values(ZelTest::eThrows, ZelTest::eThrowsInt)),
                         nameOf);

class Write : public Fault {};

// What a write returns counts for nothing: the client remembers its failure, or throws.
TEST_P(Write, FailsInTurn)
{
    failEach(operation(), writes, fault());
}

INSTANTIATE_TEST_SUITE_P(Every, Write,
                         testing::Combine(testing::ValuesIn(operationsWith(writes)),
                                          testing::Values(ZelTest::eThrows, ZelTest::eThrowsInt,
                                                          ZelTest::eDeliversNone,
                                                          ZelTest::eDeliversLess)),
                         nameOf);

class Progress : public testing::TestWithParam<std::tuple<CNamedOperation, bool>> {};

TEST_P(Progress, StopsTheOperationAtEachReport)
{
    const auto& [operation, throws] = GetParam();
    const int nb = nbReports(operation);
    if (nb == 0)
        return;
    CRounds rounds(operation);
    for (int number = 1; number <= nb; ++number) {
        rounds.run("report " + std::to_string(number), [&, throws = throws](COperation& made) {
            CQuietFeedback& feedback = *made.feedback();
            feedback.failsAt = feedback.nbReports + number;
            feedback.throws = throws;
        });
    }
    EXPECT_EQ(rounds.nbWhole(), 0);
    rounds.report(nb, throws ? "ProgressThrows" : "ProgressCancels");
}

INSTANTIATE_TEST_SUITE_P(
    Every, Progress, testing::Combine(testing::ValuesIn(ZelTest::allOperations()), testing::Bool()),
    [](const testing::TestParamInfo<Progress::ParamType>& item) {
        return std::get<0>(item.param).name + (std::get<1>(item.param) ? "Throws" : "Cancels");
    });
