#pragma once

#include <exception>

namespace OvZel {

/// The warning channel of a document. Nothing happens once the document is gone or when it has no
/// feedback; nothing that a feedback throws comes back.
class IZelWarning {
public:
    /// Hands the text to the feedback's message.
    virtual void warning(const char* text) = 0;
    /// Sends "Exception in %s : %s" with the context and the exception's text.
    virtual void exceptionWarning(const char* context, const std::exception& exception) = 0;
    /// Sends "Unknown exception in %s" with the context.
    virtual void unknownExceptionWarning(const char* context) = 0;

protected:
    ~IZelWarning() = default;
};

} // namespace OvZel
