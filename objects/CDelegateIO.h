#pragma once

#include "core/CZelMgrRef.h"
#include "core/TZelComPtr.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

/// The frame in which a delegate reads and writes the private data.
///
/// Identifiers in them are always taken: they name the same things as when they were saved. An
/// object without a document has delegates, too; nothing is transformed then.
class CDelegateIO {
public:
    explicit CDelegateIO(IZelMgrRef* mgrRef)
        : mMgrRef(mgrRef != nullptr ? CZelMgrRef::from(mgrRef)
                                    : new CZelMgrRef(nullptr, nullptr, nullptr)),
          mIO(mMgrRef.get(), true)
    {
    }

    CZelXMLIO& get() { return mIO; }

private:
    TZelComPtr<CZelMgrRef> mMgrRef;
    CZelXMLIO mIO;
};

} // namespace OvZel
