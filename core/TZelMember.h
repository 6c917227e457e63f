#pragma once

#include <utility>

namespace OvZel {

/// A part that is a member of its owner, which alone ends it.
///
/// The part has a count on its own control block, so that a client which counts there and lets go
/// destroys nothing, and the block knows of the end before any of the part's fields goes.
template <class Part>
class TZelMember final : public Part {
public:
    template <class... Arguments>
    explicit TZelMember(Arguments&&... arguments) : Part(std::forward<Arguments>(arguments)...)
    {
        this->getBlock()->addRef();
    }
    ~TZelMember() override
    {
        this->getBlock()->resetPtr();
        this->getBlock()->detachRef();
    }
};

} // namespace OvZel
