#pragma once

#include <zel/IZelTime.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelZelObjectDefinition;

/// A plant that changes with the seasons: what a definition of the class "3DPlant" or
/// "3DPlantGroupInstances" has of its own.
///
/// It belongs to its definition and goes with it or with its class.
/// The order of the virtual operations is a promise to compiled clients.
class IZel3DPlant {
public:
    /// A span of dates and the colour in that span. Which one holds on a day is the client's
    /// business.
    class IPlantSetUp {
    public:
        static constexpr CZelUUID sIID{"AE92E7E3E3674EE58903EF7135AABA0F"};

        /// Part of the set-up.
        virtual const IZelTime* getStartTime() const = 0;
        virtual IZelTime* getStartTime() = 0;
        /// Part of the set-up.
        virtual const IZelTime* getEndTime() const = 0;
        virtual IZelTime* getEndTime() = 0;
        /// -1 undefined (the default), 0 white, 1 red, 2 orange, 3 rose, 4 purple, 5 light blue,
        /// 6 dark blue, 7 yellow, 8 brown.
        virtual std::int32_t getColor() const = 0;
        /// Any other number is stored too, but cannot be saved.
        virtual void setColor(std::int32_t color) = 0;
        /// Random in a new set-up; good until it is set again.
        virtual const CZelUUID& getId() const = 0;
        virtual void setId(const CZelUUID& id) = 0;

    protected:
        ~IPlantSetUp() = default;
    };

    /// The definition itself, without a reference for the caller.
    virtual const IZelZelObjectDefinition* getDefinition() const = 0;
    virtual IZelZelObjectDefinition* getDefinition() = 0;
    /// 0 undefined (the default), 1 tree, 2 flower, 3 bushes, 4 potted plant, 5 palm tree,
    /// 6 cactus, 7 water plant, 8 fern.
    virtual std::int32_t getPlantType() const = 0;
    /// Any other number is stored too, but cannot be saved.
    virtual void setPlantType(std::int32_t type) = 0;
    /// The set-ups by date, empty in a new plant; never null, good as long as the plant.
    virtual const TZelObjectMgr<IPlantSetUp>* getPlantSetUps() const = 0;
    virtual TZelObjectMgr<IPlantSetUp>* getPlantSetUps() = 0;

protected:
    ~IZel3DPlant() = default;
};

} // namespace OvZel
