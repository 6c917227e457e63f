#pragma once

#include <zel/IZelFeedback.h>

#include <cstdio>
#include <cstring>

namespace ZelTest {

/// Hears a document without taking memory, which may have run out.
class CQuietFeedback : public OvZel::IZelFeedback {
public:
    void message(OvZel::IZelMgr*, const char* text) override
    {
        ++nbMessages;
        std::snprintf(last, sizeof last, "%s", text);
    }

    bool progress(OvZel::IZelMgr*, std::int32_t, std::int32_t) override
    {
        if (++nbReports != failsAt)
            return true;
        if (throws)
            throw 1;
        return false;
    }

    int nbMessages = 0;
    int nbReports = 0;
    int failsAt = 0; ///< the number of the report that cancels or throws, from 1
    bool throws = false;
    char last[512] = "";
};

} // namespace ZelTest
