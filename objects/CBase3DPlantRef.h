#pragma once

#include "core/CTime.h"
#include "core/TZelFrontier.h"
#include "objects/plantColors.h"

#include <zel/IZel3DPlantRef.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// What the instances of plants and of groups of plants have in common.
class CBase3DPlantRef : public TZelFrontier<IZel3DPlantRef> {
public:
    bool getHeliodonAttached() const override { return mHeliodonAttached; }
    void setHeliodonAttached(bool attached) override { mHeliodonAttached = attached; }
    const IZelTime* getTime() const override { return &mTime; }
    IZelTime* getTime() override { return &mTime; }
    std::int32_t getColor() const override { return mColor; }
    void setColor(std::int32_t color) override { mColor = color; }

protected:
    explicit CBase3DPlantRef(const CZelXMLGet& data);
    ~CBase3DPlantRef() = default;

    void savePlant(const CZelXMLAdd& data) const;

private:
    CTime mTime;
    std::int32_t mColor = kUndefinedColor;
    bool mHeliodonAttached = false;
};

} // namespace OvZel
