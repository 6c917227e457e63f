#pragma once

#include "tests/support/CTestFeedback.h"

#include <functional>
#include <utility>
#include <vector>

namespace ZelTest {

/// Collects messages and progress; what is done at a progress call, the test says.
class CStepFeedback : public CTestFeedback {
public:
    bool progress(OvZel::IZelMgr* document, std::int32_t position, std::int32_t total) override
    {
        lastDocument = document;
        reports.emplace_back(position, total);
        return onProgress ? onProgress() : true;
    }

    std::vector<std::pair<std::int32_t, std::int32_t>> reports;
    std::function<bool()> onProgress;
};

} // namespace ZelTest
