#include "tests/faults/CRounds.h"

#include "tests/faults/CAllocations.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace ZelTest {

namespace {

#if defined(__has_feature)
constexpr bool kIsSanitized = __has_feature(address_sanitizer);
#elif defined(__SANITIZE_ADDRESS__)
constexpr bool kIsSanitized = true;
#else
constexpr bool kIsSanitized = false;
#endif

/// What runs now, for whoever ends the process.
const char* gOperation = "";
const std::string* gFault = nullptr;

[[noreturn]] void tellAndAbort()
{
    CAllocations::disarm();
    std::printf("%s ended the process: %s\n", gOperation, gFault ? gFault->c_str() : "");
    std::fflush(stdout);
    std::abort();
}

} // namespace

CRounds::CRounds(CNamedOperation operation) : mOperation(std::move(operation))
{
    std::set_terminate(tellAndAbort);
    for (int i = 0; i < 2; ++i) { // whatever is made once in a process is made now
        const std::unique_ptr<COperation> made = mOperation.make();
        EXPECT_TRUE(made->run()) << made->lastMessage();
        mNbExpectedMessages = made->nbMessages();
        mExpected = made->result();
        EXPECT_FALSE(mExpected.empty());
        EXPECT_TRUE(made->goesOn());
    }
}

void CRounds::run(const std::string& fault, const CSetUp& setUp, const CStep& before,
                  const CStep& behind)
{
    gOperation = mOperation.name.c_str();
    gFault = &fault;
    const std::int64_t live = CAllocations::live();
    std::unique_ptr<COperation> made = mOperation.make();
    setUp(*made);
    const char* complaint = runMade(*made, before, behind);
    if (!made->goesOn())
        complaint = "what comes next does not work";
    made.reset();
    // A failure that is told to the test takes memory itself.
    const std::int64_t nbLost = CAllocations::live() - live;
    EXPECT_EQ(nbLost, 0) << mOperation.name << ", " << fault << ": blocks leak";
    if (complaint != nullptr)
        ADD_FAILURE() << mOperation.name << ", " << fault << ": " << complaint;
}

const char* CRounds::runMade(COperation& operation, const CStep& before, const CStep& behind)
{
    const int nbBefore = operation.nbMessages();
    bool isGood = false, isThrown = false;
    before();
    try {
        isGood = operation.run();
    } catch (...) {
        isThrown = true;
    }
    behind();
    if (CQuietFeedback* feedback = operation.feedback())
        feedback->failsAt = 0;
    ++mNbRounds;
    const bool isTold = operation.nbMessages() - nbBefore > mNbExpectedMessages;
    if (!isGood) {
        ++mNbRefused;
        if (isThrown && !operation.mayThrow)
            return "an exception reaches the client";
        return isTold || isThrown || operation.isSilent ? nullptr : "nothing tells of the failure";
    }
    ++(isTold ? mNbTold : mNbWhole);
    return isTold || operation.result() == mExpected ? nullptr
                                                     : "something is missing, and nothing tells";
}

void CRounds::report(std::int64_t nbPlaces, const std::string& fault) const
{
    std::printf("%s %s: %lld places, %d tried, %d refused, %d told, %d whole\n",
                mOperation.name.c_str(), fault.c_str(), static_cast<long long>(nbPlaces), mNbRounds,
                mNbRefused, mNbTold, mNbWhole);
}

bool isSanitized()
{
    return kIsSanitized;
}

std::int64_t stepThrough(std::int64_t nbPlaces)
{
    if (std::getenv("ZEL_TEST_FULL") != nullptr)
        return 1;
    const std::int64_t most = kIsSanitized ? 8 : 60;
    return (nbPlaces / most) | 1;
}

} // namespace ZelTest
