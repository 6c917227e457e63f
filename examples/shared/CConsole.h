#pragma once

#include <zel/IZelFeedback.h>

#include <cstdio>

namespace example {

/// Shows what the library has to say.
class CConsole : public OvZel::IZelFeedback {
public:
    void message(OvZel::IZelMgr*, const char* text) override { std::fprintf(stderr, "%s\n", text); }
    bool progress(OvZel::IZelMgr*, std::int32_t, std::int32_t) override { return true; }
};

} // namespace example
