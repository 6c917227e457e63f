#pragma once

#include "core/CZelMgrRef.h"

namespace OvZel {

/// Switches the read transform off for the length of a scope.
///
/// A delegate's constructor reads the class data the same way for a file and for a client's
/// setClass, but only what comes from a file is transformed:
///
///     void CZelObjectInstance::setClass(const char* text)
///     {
///         const CTransformPause pause(CZelMgrRef::from(getMgrRef()));
///         changeClass(...); // the reader calls this directly
///     }
class CTransformPause {
public:
    /// Null, as without a document, has no transform.
    explicit CTransformPause(CZelMgrRef* mgrRef)
        : mMgrRef(mgrRef), mWasOn(mgrRef != nullptr && mgrRef->switchTransform(false))
    {
    }
    ~CTransformPause()
    {
        if (mWasOn)
            mMgrRef->switchTransform(true);
    }
    CTransformPause(const CTransformPause&) = delete;
    CTransformPause& operator=(const CTransformPause&) = delete;

private:
    CZelMgrRef* mMgrRef;
    bool mWasOn;
};

} // namespace OvZel
