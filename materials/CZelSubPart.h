#pragma once

#include "core/TObjectMgr.h"
#include "core/TZelFrontier.h"
#include "materials/CMapUrls.h"

#include <zel/IZelSubPart.h>

namespace OvZel {

/// One of several images of a node. Its maps take any kind and never warn.
class CZelSubPart final : public TZelFrontier<IZelSubPart> {
public:
    const char* getURL(std::int32_t kind) const override { return mUrls.get(kind); }
    void setURL(std::int32_t kind, const char* url) override { mUrls.set(kind, url); }
    double getHeight() const override { return mHeight; }
    void setHeight(double height) override { mHeight = height; }
    double getWidth() const override { return mWidth; }
    void setWidth(double width) override { mWidth = width; }

    /// Appends a copy of each entry of the source, with the kinds that are saved.
    static void CopySubPartsMgr(TZelObjectMgr<IZelSubPart>& destination,
                                TZelObjectMgr<IZelSubPart>& source);

private:
    CMapUrls mUrls;
    double mHeight = 1.0;
    double mWidth = 1.0;
};

} // namespace OvZel
