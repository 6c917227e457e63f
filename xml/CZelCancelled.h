#pragma once

#include <stdexcept>

namespace OvZel {

/// Raised in a data block when the client cancels the operation.
class CZelCancelled : public std::runtime_error {
public:
    CZelCancelled() : std::runtime_error("Operation cancelled") {}
};

} // namespace OvZel
