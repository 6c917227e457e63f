#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelPolygon.h>
#include <zel/IZelString.h>
#include <zel/TZelObjectMgr.h>
#include <zel/xml/XIXMLElement.h>

namespace OvZel {

class IZel3DPlant;
class IZelAnimatedObject;
class IZelObjectLight;
class IZelProperty;

/// The shared description of a thing that can be placed in the scene: an internal component with
/// its mesh, a plant, a lamp, a character, or the scene itself.
///
/// Definitions are made and owned by their manager. A pointer from it carries no reference. What
/// belongs to one class alone is free XML, the object data, and for some classes an interface of
/// its own (as3DPlant and so on). AddRef and Release may come from any thread, everything else from
/// one at a time. No setter checks its value, unless told otherwise. The UI value of a new
/// definition is 0xFFFFFFFF.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelZelObjectDefinition : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"D66FB65A4D0D4A4B876154F36A73045E"};

    /// One of the set-ups that a user can pick from.
    class IZelZelObjectSetup {
    public:
        static constexpr CZelUUID sIID{"068EFCD69DBD4CA3964E014A536096A9"};

        /// The name in several languages, part of the set-up.
        virtual const IZelString* getName() const = 0;
        virtual IZelString* getName() = 0;
        /// The identity of the set-up, random in a new one; good until it is set again.
        virtual const CZelUUID& getUUID() const = 0;
        virtual void setUUID(const CZelUUID& id) = 0;

    protected:
        ~IZelZelObjectSetup() = default;
    };

    /// The name in several languages. The name of the basic data is this one in the document's
    /// current language.
    virtual const IZelString* getName() const = 0;
    virtual IZelString* getName() = 0;
    /// "ModelObject" in a new definition; good until the class changes.
    virtual const char* getClass() const = 0;
    /// Any text, null counts as the empty one. "3DPlant", "3DPlantGroupInstances", "LightObject"
    /// and "AnimatedObject" have an interface of their own, which reads the object data as they
    /// stand; that of the class before is gone with what prepareForWrite has not yet saved. The
    /// present class changes nothing. Throws std::exception when the object data of the new class
    /// are bad: the class is set then, and has no interface.
    virtual void setClass(const char* text) = 0;
    /// The point of the object that comes to lie on the point of insertion; 0, 0, 0 in a new one.
    virtual const CZelPoint& getAnchor() const = 0;
    virtual void setAnchor(const CZelPoint& point) = 0;
    /// 0 perpendicular to the surface, 1 vertical (the default).
    virtual std::int32_t getPlacement() const = 0;
    /// Any other number is stored too, but cannot be saved.
    virtual void setPlacement(std::int32_t placement) = 0;
    /// 0, 0, 1 in a new one.
    virtual const CZelPoint& getUp() const = 0;
    virtual void setUp(const CZelPoint& vector) = 0;
    /// The angle of the object when it is inserted; 0.0 in a new one.
    virtual double getInitialAngle() const = 0;
    virtual void setInitialAngle(double angle) = 0;
    /// Three angles of the model as imported, 0, 0, 0 in a new one.
    virtual const CZelPoint& getModelRotation() const = 0;
    virtual void setModelRotation(const CZelPoint& angles) = 0;
    /// The same as a matrix of 16 doubles in row order, the identity in a new one. Matrix and
    /// angles are never derived from each other.
    virtual const double* getModelRotationMatrix() const = 0;
    /// Copies 16 doubles; null changes nothing.
    virtual void setModelRotationMatrix(const double* matrix) = 0;
    /// 0, 0, 0 in a new one.
    virtual const CZelPoint& getModelPosition() const = 0;
    virtual void setModelPosition(const CZelPoint& point) = 0;
    /// 0 uninitialized (the default), 1 centre at the bottom, 2 centre at the top, 3 centre, 4 the
    /// target of the camera.
    virtual std::int32_t getModelOrigin() const = 0;
    /// Any other number is stored too, but cannot be saved.
    virtual void setModelOrigin(std::int32_t origin) = 0;
    /// Brings the object data up to date with the interface of the class; every save does so.
    /// Throws std::exception when a value cannot be written.
    virtual void prepareForWrite() = 0;
    /// The element "Object.Data", which belongs to the definition and is free for the client of a
    /// class that the library has no interface for. Never null, good until the definition is read
    /// again.
    virtual OrvaneXML::XIXMLElement* getObjectData() = 0;
    virtual const OrvaneXML::XIXMLElement* getObjectData() const = 0;
    /// The element "Instance.Data" in it, the pattern of the data of an instance. Never null.
    virtual OrvaneXML::XIXMLElement* getInstanceData() = 0;
    virtual const OrvaneXML::XIXMLElement* getInstanceData() const = 0;
    /// The materials of the definition.
    virtual const TZelObjectMgr<IZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getProperties() = 0;
    /// The mesh. That of the scene's own definition is never saved.
    virtual const TZelObjectMgr<CZelPoint>* getPoints() const = 0;
    virtual TZelObjectMgr<CZelPoint>* getPoints() = 0;
    /// As getPoints.
    virtual const TZelObjectMgr<IZelPolygon>* getPolygons() const = 0;
    virtual TZelObjectMgr<IZelPolygon>* getPolygons() = 0;
    /// A text in several languages, part of the definition.
    virtual const IZelString* getDescription1() const = 0;
    virtual IZelString* getDescription1() = 0;
    /// A second such text.
    virtual const IZelString* getDescription2() const = 0;
    virtual IZelString* getDescription2() = 0;
    /// A third such text.
    virtual const IZelString* getComment() const = 0;
    virtual IZelString* getComment() = 0;
    /// The lights group of the definition, null in a new one. Nothing resolves it.
    virtual const CZelUUID& getLightGroupID() const = 0;
    virtual void setLightGroupID(const CZelUUID& id) = 0;
    /// The set-ups, empty in a new definition; never null, good as long as it.
    virtual const TZelObjectMgr<IZelZelObjectSetup>* getSetups() const = 0;
    virtual TZelObjectMgr<IZelZelObjectSetup>* getSetups() = 0;
    /// The interface of the class, null for another class. It is good until the class changes or
    /// the definition is read again.
    virtual const IZel3DPlant* as3DPlant() const = 0;
    virtual IZel3DPlant* as3DPlant() = 0;
    /// As as3DPlant.
    virtual const IZelObjectLight* asObjectLight() const = 0;
    virtual IZelObjectLight* asObjectLight() = 0;
    /// As as3DPlant.
    virtual const IZelAnimatedObject* asAnimatedObject() const = 0;
    virtual IZelAnimatedObject* asAnimatedObject() = 0;
    /// Level of detail of an internal component, 0 in a new one; any number.
    virtual std::int32_t getGeometryLevel() const = 0;
    virtual void setGeometryLevel(std::int32_t level) = 0;

protected:
    ~IZelZelObjectDefinition() override = default;
};

} // namespace OvZel
