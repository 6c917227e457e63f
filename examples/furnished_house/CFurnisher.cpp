#include "examples/furnished_house/CFurnisher.h"

#include "examples/shared/CDocument.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace OvZel;

namespace example {

CFurnisher::CFurnisher(IZelMgr& scene, std::string folder)
    : mScene(scene), mFolder(std::move(folder))
{
}

// A file keeps six decimals, so what is compared after a load must not have more.
static double rounded(double number)
{
    return std::round(number * 1e6) / 1e6 + 0.0; // and no zero below zero
}

static CZelPoint rounded(const CZelPoint& point)
{
    return {rounded(point.x), rounded(point.y), rounded(point.z)};
}

static void extend(CZelBox& box, const CZelPoint& point)
{
    box.minimum = {std::min(box.minimum.x, point.x), std::min(box.minimum.y, point.y),
                   std::min(box.minimum.z, point.z)};
    box.maximum = {std::max(box.maximum.x, point.x), std::max(box.maximum.y, point.y),
                   std::max(box.maximum.z, point.z)};
}

static CZelBox copyPoints(TZelObjectMgr<CZelPoint>& from, TZelObjectMgr<CZelPoint>& to)
{
    const std::int32_t count = from.getNbObjects();
    to.reserve(count);
    CZelBox box{*from.getZelObject(0), *from.getZelObject(0)};
    for (std::int32_t i = 0; i < count; ++i) {
        const CZelPoint& point = *from.getZelObject(i);
        extend(box, point);
        add(&to) = point;
    }
    return box;
}

static void copyPolygons(TZelObjectMgr<IZelPolygon>& from, TZelObjectMgr<IZelPolygon>& to)
{
    for (std::int32_t i = 0; i < from.getNbObjects(); ++i)
        if (!add(&to).copy(from.getZelObject(i)))
            throw std::runtime_error("no memory for a polygon");
}

// Polygons name their material by its number in the list, so the order must stay.
static void copyMaterials(TZelObjectMgr<IZelProperty>& from, TZelObjectMgr<IZelProperty>& to)
{
    for (std::int32_t i = 0; i < from.getNbObjects(); ++i)
        add(&to).copyFrom(from.getZelObject(i));
}

CFurnisher::CComponent CFurnisher::addComponent(const std::string& model)
{
    CDocument document;
    document.load(mFolder + "/" + model + ".zel");
    if (document->getPoints()->getNbObjects() == 0)
        throw std::runtime_error(model + ": no points");

    IZelZelObjectDefinition& definition = add(mScene.getDefinitions(), model);
    definition.setClass("ModelObject");
    copyMaterials(*document->getProperties(), *definition.getProperties());
    copyPolygons(*document->getPolygons(), *definition.getPolygons());
    return {idOf(definition), copyPoints(*document->getPoints(), *definition.getPoints())};
}

const CFurnisher::CComponent& CFurnisher::componentOf(const std::string& model)
{
    const auto known = mComponents.find(model);
    if (known != mComponents.end())
        return known->second;
    return mComponents[model] = addComponent(model);
}

const CZelUUID& CFurnisher::layerOf(const std::string& room)
{
    const auto known = mLayers.find(room);
    if (known != mLayers.end())
        return known->second;
    return mLayers[room] = idOf(add(mScene.getLayers(), room));
}

// How much a side of the model has to grow to the size that is wanted. A flat one stays flat.
static double scaleOf(double centimetres, double minimum, double maximum)
{
    return maximum > minimum ? centimetres / 100.0 / (maximum - minimum) : 1.0;
}

static CZelPoint scaleOf(const CPiece& piece, const CZelBox& box)
{
    return rounded({scaleOf(piece.centimetres.x, box.minimum.x, box.maximum.x),
                    scaleOf(piece.centimetres.y, box.minimum.y, box.maximum.y),
                    scaleOf(piece.centimetres.z, box.minimum.z, box.maximum.z)});
}

// From where scale and angle take the middle of the bottom to where it has to be.
static CZelPoint translationOf(const CPiece& piece, const CZelBox& box, const CZelPoint& scale,
                               double angle)
{
    const double x = scale.x * (box.minimum.x + box.maximum.x) / 2.0;
    const double y = scale.y * box.minimum.y;
    const double z = scale.z * (box.minimum.z + box.maximum.z) / 2.0;
    return rounded({piece.place.x - x * std::cos(angle) - z * std::sin(angle), piece.place.y - y,
                    piece.place.z + x * std::sin(angle) - z * std::cos(angle)});
}

void CFurnisher::place(const CPiece& piece)
{
    const CComponent& component = componentOf(piece.model);
    const double angle = rounded(piece.angle * std::acos(-1.0) / 180.0);
    const CZelPoint scale = scaleOf(piece, component.box);

    IZelObjectInstance& instance = add(mScene.getObjectInstances(), piece.model);
    instance.setClass("ModelObject");
    instance.asInternalComponentInstance()->setComponentUUID(component.id);
    instance.setLayerId(layerOf(piece.room));
    instance.setRotation({0.0, angle, 0.0});
    instance.setScale(scale);
    instance.setTranslation(translationOf(piece, component.box, scale, angle));
}

void CFurnisher::addCamera()
{
    IZelCamera& camera = add(mScene.getCameras(), "Garden");
    camera.setPosition({18.0, 5.0, 14.0});
    camera.setTarget({6.0, 2.0, -4.0});
    camera.setUp({0.0, 1.0, 0.0});
    for (std::int32_t i = 0; i < mScene.getLayers()->getNbObjects(); ++i)
        add(camera.getViewInfo()->getLayers()) = idOf(*mScene.getLayers()->getZelObject(i));
}

} // namespace example
