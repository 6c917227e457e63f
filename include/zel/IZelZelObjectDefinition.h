#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelPolygon.h>
#include <zel/IZelString.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

/// A placeable thing of the scene: an internal component with its mesh, or the scene itself.
///
/// This interface still grows: operations on class, anchor, materials and setups will come between
/// those below, so it is not yet covered by the promise that the order of operations never changes.
class IZelZelObjectDefinition : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"D66FB65A4D0D4A4B876154F36A73045E"};

    /// The name in several languages; IZelMgr says whose name is saved. The name of the basic data
    /// is this one in the document's current language.
    virtual const IZelString* getName() const = 0;
    virtual IZelString* getName() = 0;
    /// The mesh. That of the scene's own definition is never saved.
    virtual const TZelObjectMgr<CZelPoint>* getPoints() const = 0;
    virtual TZelObjectMgr<CZelPoint>* getPoints() = 0;
    virtual const TZelObjectMgr<IZelPolygon>* getPolygons() const = 0;
    virtual TZelObjectMgr<IZelPolygon>* getPolygons() = 0;
    /// Level of detail, 0 in a new definition; any number.
    virtual std::int32_t getGeometryLevel() const = 0;
    virtual void setGeometryLevel(std::int32_t level) = 0;

protected:
    ~IZelZelObjectDefinition() override = default;
};

} // namespace OvZel
