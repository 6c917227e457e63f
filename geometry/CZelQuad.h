#pragma once

#include "core/TZelFrontierObjLinkRef.h"

#include <zel/IZelQuad.h>

#include <algorithm>
#include <array>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// One triangle of a billboard.
class CZelQuad : public TZelFrontierObjLinkRef<IZelQuad> {
public:
    explicit CZelQuad(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) {}

    const double* getTriangle() const override { return mTriangle.data(); }
    void setTriangle(const double* triangle) override
    {
        if (triangle != nullptr)
            std::copy_n(triangle, mTriangle.size(), mTriangle.begin());
    }
    std::int64_t getQuadId() const override { return mQuadId; }
    void setQuadId(std::int64_t id) override { mQuadId = id; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::array<double, 9> mTriangle{};
    std::int64_t mQuadId = -1;
};

} // namespace OvZel
