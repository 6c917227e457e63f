#pragma once

#include "document/CHeadParser.h"

#include <string>

namespace OvZel {

/// Finds the name of the application that wrote a file, cut at its first white space.
class CCheckZELCreatorFile : public CHeadParser {
public:
    /// Empty when there is none.
    const std::string& application() const { return mApplication; }

private:
    bool Instruction(const char* target, const char* content) override;

    std::string mApplication;
};

} // namespace OvZel
