#include "materials/CZelSubPart.h"

#include "core/OvThrow.h"
#include "materials/copyMaps.h"

#include <cstdio>

namespace OvZel {

void CZelSubPart::CopySubPartsMgr(TZelObjectMgr<IZelSubPart>& destination,
                                  TZelObjectMgr<IZelSubPart>& source)
{
    const std::int32_t nbParts = source.getNbObjects();
    for (std::int32_t i = 0; i < nbParts; ++i) {
        IZelSubPart* copy = destination.newZelObject(-1);
        OvThrow::IfNULL(copy);
        const IZelSubPart& part = *source.getZelObject(i);
        copy->setHeight(part.getHeight());
        copy->setWidth(part.getWidth());
        // One of the few lines for standard output: a clone has no document to warn.
        if (!copyMaps(*copy, part))
            std::puts("CZelSubPart::CopySubPartsMgr - Warning: Sub part without url");
    }
}

} // namespace OvZel
