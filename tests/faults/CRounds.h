#pragma once

#include "tests/faults/COperation.h"

#include <cstdint>
#include <functional>
#include <string>

namespace ZelTest {

/// One operation many times, each time with another fault. Fails the test when a fault is neither
/// told nor without effect, when memory leaks and when what comes next does not work.
class CRounds {
public:
    using CStep = std::function<void()>;
    using CSetUp = std::function<void(COperation&)>;

    /// Runs it without a fault first, for what is to be expected.
    explicit CRounds(CNamedOperation operation);

    /// A round. The operation is made, set up and runs between the two steps.
    void run(
        const std::string& fault, const CSetUp& setUp, const CStep& before = [] {},
        const CStep& behind = [] {});
    /// A line with the figures, also for the report of the test.
    void report(std::int64_t nbPlaces, const std::string& fault) const;
    int nbWhole() const { return mNbWhole; }

private:
    /// What is wrong, or null.
    const char* runMade(COperation& operation, const CStep& before, const CStep& behind);

    CNamedOperation mOperation;
    std::string mExpected; ///< the result without a fault
    int mNbExpectedMessages = 0;
    int mNbRounds = 0;
    int mNbRefused = 0; ///< false, null or an exception
    int mNbTold = 0;    ///< true, and a message about what is missing
    int mNbWhole = 0;   ///< true, and nothing is missing
};

/// Whether this program and the tool are watched by a sanitizer, and several times slower.
bool isSanitized();

/// Every how many places a fault is tried: all with ZEL_TEST_FULL, else so that a normal run of the
/// tests stays short. Odd, so that no pattern of two hides one half.
std::int64_t stepThrough(std::int64_t nbPlaces);

} // namespace ZelTest
