#pragma once

#include <zel/CZelBox.h>
#include <zel/IZelBasic.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class IZel3DPlantRef;
class IZelAnimatedObjectInstance;
class IZelBBObjectInstance;
class IZelGroupInstances;
class IZelInternalComponentInstance;
class IZelObjectLightRef;
class IZelProperty;
class IZelZelObjectInstance;

/// One placed occurrence of something in the scene: a component, an object from a file, a
/// billboard, a plant, a group, a lamp, a character.
///
/// Every value is stored as it was given, unless told otherwise: the library follows no link
/// between instances and computes no transform. What is particular to a class is in the delegate
/// that the class brings along, and in the free element "Instance.Data".
///
/// Instances are made and owned by their manager. A pointer from the manager carries no reference:
/// call AddRef to keep the instance longer than the manager keeps it. AddRef and Release may come
/// from any thread, everything else from one at a time. The UI value of a new instance is
/// 0xFFFFFFFF.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelObjectInstance : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"A0993482906A4F35B5818FBC15823458"};

    /// The class, empty in a new instance. Good until the next change of the class.
    virtual const char* getClass() const = 0;
    /// Drops the present delegate, with whatever it had not saved, stores the text and makes the
    /// delegate of that class, which reads "Instance.Data". The same class again does so too.
    /// "ModelObject", "ZelObject", "3DPlant", "Billboard", "LightObject", "AnimatedObject",
    /// "GroupInstances" and "3DPlantGroupInstances" have one, any other text has none; null counts
    /// as the empty text. When reading fails the exception reaches the caller: the class is then
    /// set, without a delegate.
    virtual void setClass(const char* text) = 0;
    /// The object that this one stands on; null in a new instance. Any identifier, also its own.
    virtual const CZelUUID& getAttachId() const = 0;
    virtual void setAttachId(const CZelUUID& id) = 0;
    /// 0, 0, 0 in a new instance.
    virtual void setTranslation(const CZelPoint& translation) = 0;
    virtual const CZelPoint& getTranslation() const = 0;
    /// 0, 0, 0 in a new instance; order and unit of the three are the clients'.
    virtual void setRotation(const CZelPoint& rotation) = 0;
    virtual const CZelPoint& getRotation() const = 0;
    /// 1, 1, 1 in a new instance.
    virtual void setScale(const CZelPoint& scale) = 0;
    virtual const CZelPoint& getScale() const = 0;
    /// The triangle of the attached object under the anchor; -1, none, in a new instance.
    virtual std::int32_t getTriangleId() const = 0;
    virtual void setTriangleId(std::int32_t id) = 0;
    /// The surface normal at the anchor; 0, 0, 1 in a new instance.
    virtual const CZelPoint& getNormal() const = 0;
    virtual void setNormal(const CZelPoint& normal) = 0;
    /// The point of the scene where the instance is put; 0, 0, 0 in a new one.
    virtual const CZelPoint& getAnchorPosition() const = 0;
    virtual void setAnchorPosition(const CZelPoint& position) = 0;
    /// 0, 0, 1 in a new instance.
    virtual const CZelPoint& getUpVector() const = 0;
    virtual void setUpVector(const CZelPoint& up) = 0;
    /// 0 "Perpendicular", 1 "Vertical"; 1 in a new instance. Any number is stored, but one without
    /// a label fails the next save.
    virtual std::int32_t getPlacementProperty() const = 0;
    virtual void setPlacementProperty(std::int32_t placement) = 0;
    /// 0.0 in a new instance.
    virtual double getInitialAngle() const = 0;
    virtual void setInitialAngle(double angle) = 0;
    /// -1, -1, -1 to 1, 1, 1 in a new instance. A file without a box gives one turned inside out:
    /// the largest double as minimum, the smallest positive one as maximum.
    virtual const CZelBox& getBoundingBox() const = 0;
    virtual void setBoundingBox(const CZelBox& box) = 0;
    /// Locks of the user's, false in a new instance; the library enforces neither.
    virtual bool getCoordinatesLocked() const = 0;
    virtual void setCoordinatesLocked(bool locked) = 0;
    /// As getCoordinatesLocked.
    virtual bool getScaleLocked() const = 0;
    virtual void setScaleLocked(bool locked) = 0;
    /// Writes the state of the delegate, if there is one, into "Instance.Data". Every save of the
    /// instance does so. A number without a label raises "No label for the value (%d) [%s..%s]".
    virtual void prepareForWrite() = 0;
    /// The free data of the class; never null. A delegate sees a change of it only at the next
    /// setClass. Good as long as the instance is not read anew.
    virtual OrvaneXML::XIXMLElement* getInstanceData() = 0;
    virtual const OrvaneXML::XIXMLElement* getInstanceData() const = 0;
    /// The delegate by its interfaces; null for one that it does not have. Good until the class is
    /// set again or the instance is read anew.
    virtual const IZelZelObjectInstance* asZelObjectInstance() const = 0;
    virtual IZelZelObjectInstance* asZelObjectInstance() = 0;
    /// As asZelObjectInstance.
    virtual const IZel3DPlantRef* as3DPlantRef() const = 0;
    virtual IZel3DPlantRef* as3DPlantRef() = 0;
    /// As asZelObjectInstance.
    virtual const IZelBBObjectInstance* asBBObjectInstance() const = 0;
    virtual IZelBBObjectInstance* asBBObjectInstance() = 0;
    /// As asZelObjectInstance.
    virtual const IZelObjectLightRef* asObjectLightRef() const = 0;
    virtual IZelObjectLightRef* asObjectLightRef() = 0;
    /// As asZelObjectInstance.
    virtual const IZelAnimatedObjectInstance* asAnimatedObjectInstance() const = 0;
    virtual IZelAnimatedObjectInstance* asAnimatedObjectInstance() = 0;
    /// As asZelObjectInstance.
    virtual const IZelInternalComponentInstance* asInternalComponentInstance() const = 0;
    virtual IZelInternalComponentInstance* asInternalComponentInstance() = 0;
    /// 0 "Normal", 1 "FollowOnPath", 2 "FollowOnPathXY"; 0 in a new instance. Stored and saved as
    /// the placement is.
    virtual std::int32_t getAnimationBehavior() const = 0;
    virtual void setAnimationBehavior(std::int32_t behavior) = 0;
    /// 0, 0, 0 in a new instance.
    virtual const CZelPoint& getCurrentPathDirection() const = 0;
    virtual void setCurrentPathDirection(const CZelPoint& direction) = 0;
    /// Whether the instance serves as a target; false in a new one.
    virtual bool getTarget() const = 0;
    virtual void setTarget(bool target) = 0;
    /// 0.0 to 1.0, 0.0 in a new instance.
    virtual double getTransparency() const = 0;
    /// Below 0.0 or above 1.0 the limit is stored. Nothing warns.
    virtual void setTransparency(double transparency) = 0;
    /// Null in a new instance.
    virtual const CZelUUID& getLayerId() const = 0;
    virtual void setLayerId(const CZelUUID& id) = 0;
    /// Whether the materials differ from those of the definition; false in a new instance.
    virtual bool getMaterialsDifferents() const = 0;
    virtual void setMaterialsDifferents(bool differ) = 0;
    /// Null in a new instance; the meaning is the clients'.
    virtual const CZelUUID& getOverloadId() const = 0;
    virtual void setOverloadId(const CZelUUID& id) = 0;
    /// As asZelObjectInstance.
    virtual const IZelGroupInstances* asGroupInstances() const = 0;
    virtual IZelGroupInstances* asGroupInstances() = 0;
    /// True in a new instance.
    virtual bool getVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// False in a new instance.
    virtual bool getOptimised() const = 0;
    virtual void setOptimised(bool optimised) = 0;
    /// Whether the instance is a part of another one; false in a new one.
    virtual bool getSubInstance() const = 0;
    virtual void setSubInstance(bool subInstance) = 0;
    /// The material overrides of this instance, beside those of its delegate.
    virtual const TZelObjectMgr<IZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getProperties() = 0;

protected:
    ~IZelObjectInstance() override = default;
};

} // namespace OvZel
