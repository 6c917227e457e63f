#pragma once

#include "core/CTime.h"
#include "core/TZelFrontier.h"
#include "core/generateId.h"
#include "objects/plantColors.h"

#include <zel/IZel3DPlant.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The colour of a plant in one span of dates.
class CPlantSetUp final : public TZelFrontier<IZel3DPlant::IPlantSetUp> {
public:
    /// Raises "Can't create UUID" when the system has no random source.
    CPlantSetUp() : mId(generateId()) {}

    const IZelTime* getStartTime() const override { return &mStartTime; }
    IZelTime* getStartTime() override { return &mStartTime; }
    const IZelTime* getEndTime() const override { return &mEndTime; }
    IZelTime* getEndTime() override { return &mEndTime; }
    std::int32_t getColor() const override { return mColor; }
    void setColor(std::int32_t color) override { mColor = color; }
    const CZelUUID& getId() const override { return mId; }
    void setId(const CZelUUID& id) override { mId = id; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CTime mStartTime;
    CTime mEndTime;
    std::int32_t mColor = kUndefinedColor;
    CZelUUID mId;
};

} // namespace OvZel
