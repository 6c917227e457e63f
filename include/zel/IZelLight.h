#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelBasic.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class IZelLensFlare;
class IZelLightCone;

/// One artificial light of the scene: a point, spot or parallel source.
///
/// The library keeps the values and computes no lighting; units are the renderer's. Where a range
/// is given, a value out of it stores the limit, one that is not a number counts as below, and
/// nothing warns. Values in a file are clipped in the same way. With a type for which no meaning is
/// given the document cannot be saved.
///
/// Lights are made and owned by their manager. A pointer from the manager carries no reference:
/// call AddRef to keep the light longer than the manager keeps it. AddRef and Release may come from
/// any thread, everything else from one at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelLight : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"1254F117563C4EED972802DD0AB0C778"};

    /// 0 point, 1 spot, 2 parallel; 0 in a new light.
    virtual std::int32_t getType() const = 0;
    virtual void setType(std::int32_t type) = 0;
    /// True in a new light.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 255, 255, 255 in a new light.
    virtual CZelColor getColor() const = 0;
    virtual void setColor(const CZelColor& color) = 0;
    /// Strength of the source, 1.0 to 1000000.0; 1200.0 in a new light.
    virtual double getPower() const = 0;
    virtual void setPower(double power) = 0;
    /// Any number, 0.0 in a new light, as the far distance.
    virtual double getDistanceNear() const = 0;
    virtual void setDistanceNear(double distance) = 0;
    /// Any number, 0.0 in a new light.
    virtual double getDistanceFar() const = 0;
    virtual void setDistanceFar(double distance) = 0;
    /// 200, 200, -200 in a new light.
    virtual const CZelPoint& getPosition() const = 0;
    virtual void setPosition(const CZelPoint& position) = 0;
    /// 0, 0, 0 in a new light.
    virtual const CZelPoint& getTarget() const = 0;
    virtual void setTarget(const CZelPoint& target) = 0;
    /// Degrees, 0.0 to 360.0; 20.0 in a new light.
    virtual double getConeAngle() const = 0;
    virtual void setConeAngle(double angle) = 0;
    /// 0.0 to 1.0, 0.5 in a new light.
    virtual double getSharpness() const = 0;
    virtual void setSharpness(double sharpness) = 0;
    /// 0 none, 1 traced, 2 soft; 1 in a new light.
    virtual std::int32_t getShadowType() const = 0;
    virtual void setShadowType(std::int32_t type) = 0;
    /// 0.0 to 1.0, 0.1 in a new light.
    virtual double getShadowPower() const = 0;
    virtual void setShadowPower(double power) = 0;
    /// 0 to 13, 0 in a new light.
    virtual std::int32_t getMapSize() const = 0;
    virtual void setMapSize(std::int32_t size) = 0;
    /// 0.0 to 1.0, 0.3 in a new light.
    virtual double getBias() const = 0;
    virtual void setBias(double bias) = 0;
    /// False in a new light.
    virtual bool getGlobalIllumination() const = 0;
    virtual void setGlobalIllumination(bool used) = 0;
    /// Any number, 0.5 in a new light.
    virtual double getGlobalIlluminationPower() const = 0;
    virtual void setGlobalIlluminationPower(double power) = 0;
    /// Any number, 0 in a new light.
    virtual std::int32_t getGlobalIlluminationQuality() const = 0;
    virtual void setGlobalIlluminationQuality(std::int32_t quality) = 0;
    /// False in a new light.
    virtual bool getLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    /// Identifiers of the groups that the light belongs to. They may name groups that are gone.
    virtual const TZelObjectMgr<CZelUUID>* getLightsGroups() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getLightsGroups() = 0;
    /// Parts of the light, never null and good as long as the light.
    virtual const IZelLensFlare* getLensFlare() const = 0;
    virtual IZelLensFlare* getLensFlare() = 0;
    /// As getLensFlare.
    virtual const IZelLightCone* getLightCone() const = 0;
    virtual IZelLightCone* getLightCone() = 0;
    /// True in a new light.
    virtual bool getRadiosity() const = 0;
    virtual void setRadiosity(bool radiosity) = 0;
    /// 0 the target point, 1 an object; 0 in a new light. Any other number stores 0.
    virtual std::int32_t getTargetType() const = 0;
    virtual void setTargetType(std::int32_t type) = 0;
    /// The object that is the target, the null identifier in a new light. Nothing resolves it.
    virtual const CZelUUID& getObjectId() const = 0;
    virtual void setObjectId(const CZelUUID& id) = 0;
    /// Photometric data, by identifier and by address; null and empty in a new light.
    virtual CZelUUID getIES() const = 0;
    virtual void setIES(CZelUUID id) = 0;
    /// Good until the next change. Null stores the empty text.
    virtual const char* getIESUrl() const = 0;
    virtual void setIESUrl(const char* url) = 0;

protected:
    ~IZelLight() override = default;
};

} // namespace OvZel
