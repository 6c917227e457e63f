#pragma once

#include "core/TZelComPtr.h"
#include "xml/listXML.h"

#include <zel/IZelObjectLink.h>

namespace OvZel {

/// A list that is made when somebody asks for it. Most lists of an instance are empty and nobody
/// ever looks at them; a list costs more than the rest of such an instance.
template <class Mgr>
class TLazyMgr {
public:
    /// The list, made with that owner if it is not there yet.
    Mgr* get(IZelObjectLink* owner) const
    {
        if (!mMgr)
            mMgr = TZelComPtr<Mgr>(new Mgr(owner));
        return mMgr.get();
    }

    void addItems(CZelXMLIO& io, OrvaneXML::XIXMLElement* container,
                  OrvaneXML::CXMLTag itemTag) const
    {
        if (mMgr)
            OvZel::addItems(io, container, itemTag, *mMgr);
    }
    void getItems(CZelXMLIO& io, OrvaneXML::XIXMLElement* container, OrvaneXML::CXMLTag itemTag,
                  IZelObjectLink* owner)
    {
        if (mMgr || CZelXMLGet(container).IsElement(itemTag))
            OvZel::getItems(io, container, itemTag, *get(owner));
    }

private:
    mutable TZelComPtr<Mgr> mMgr; // nobody can see whether it is there
};

} // namespace OvZel
