#include "examples/furnished_house/describe.h"

#include "examples/shared/CDocument.h"

#include <sstream>

using namespace OvZel;

namespace example {

namespace {

/// Collects values with all their digits, a line each.
class CText {
public:
    CText() { mText.precision(17); }

    // A mesh keeps no sign on a zero; the sum has none.
    CText& operator<<(double number) { return line(number + 0.0); }
    CText& operator<<(float number) { return line(number + 0.0F); }
    CText& operator<<(const CZelPoint& point) { return *this << point.x << point.y << point.z; }
    CText& operator<<(const CZelColor& color)
    {
        return *this << int{color.bytes[1]} << int{color.bytes[2]} << int{color.bytes[3]};
    }
    CText& operator<<(const CZelUUID& id)
    {
        char digits[33];
        id.toText(digits);
        return *this << digits;
    }
    template <class T>
    CText& operator<<(const T& value)
    {
        return line(value);
    }

    std::string text() const { return mText.str(); }

private:
    template <class T>
    CText& line(const T& value)
    {
        mText << value << '\n';
        return *this;
    }

    std::ostringstream mText;
};

template <class T, class Operation>
void forEach(TZelObjectMgr<T>* list, Operation operation)
{
    for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
        operation(*list->getZelObject(i));
}

} // namespace

static void addMaterial(CText& out, IZelProperty& material)
{
    bool repeatX = false, repeatY = false;
    double height = 0.0, width = 0.0;
    material.getMapRepeat(&repeatX, &repeatY);
    material.getMapSize(&height, &width);
    out << nameOf(material) << material.getDiffuseColor() << material.getSpecularColor()
        << material.getTransparentColor() << material.getGlossy() << material.getDiffuseMapUrl()
        << material.getBumpMapUrl() << material.getNormalMapUrl() << material.getProjection()
        << repeatX << repeatY << height << width << material.getUVDefined();
}

static void addMaterials(CText& out, TZelObjectMgr<IZelProperty>* materials)
{
    out << materials->getNbObjects();
    forEach(materials, [&](IZelProperty& material) { addMaterial(out, material); });
}

static void addLoop(CText& out, TZelObjectMgr<CZelVertex>* loop)
{
    out << loop->getNbObjects();
    forEach(loop, [&](CZelVertex& vertex) {
        out << vertex.pointIndex << vertex.flags << vertex.u << vertex.v;
    });
}

static void addMesh(CText& out, IZelZelObjectDefinition& definition)
{
    out << definition.getPoints()->getNbObjects() << definition.getPolygons()->getNbObjects();
    forEach(definition.getPoints(), [&](CZelPoint& point) { out << point; });
    forEach(definition.getPolygons(), [&](IZelPolygon& polygon) {
        out << polygon.getMaterial() << polygon.isSmooth();
        addLoop(out, polygon.getVertices());
        forEach(polygon.getHoles(),
                [&](IZelPolygon::IZelHole& hole) { addLoop(out, hole.getVertices()); });
    });
}

static void addOf(CText& out, IZelLayer& layer)
{
    out << idOf(layer);
}

static void addOf(CText& out, IZelProperty& material)
{
    addMaterial(out, material);
}

static void addOf(CText& out, IZelZelObjectDefinition& definition)
{
    out << idOf(definition) << definition.getClass() << definition.getGeometryLevel();
    addMaterials(out, definition.getProperties());
    addMesh(out, definition);
}

static void addOf(CText& out, IZelObjectInstance& instance)
{
    out << idOf(instance) << instance.getClass() << instance.getLayerId()
        << instance.getTranslation() << instance.getRotation() << instance.getScale();
    if (IZelInternalComponentInstance* placed = instance.asInternalComponentInstance()) {
        out << placed->getComponentUUID();
        addMaterials(out, placed->getProperties());
    }
}

static void addOf(CText& out, IZelCamera& camera)
{
    out << camera.getPosition() << camera.getTarget() << camera.getUp() << camera.getFocal();
    forEach(camera.getViewInfo()->getLayers(), [&](CZelUUID& layer) { out << layer; });
}

template <class T>
static void addAll(CDescription& out, const std::string& kind, TZelObjectMgr<T>* list)
{
    forEach(list, [&](T& object) {
        CText values;
        addOf(values, object);
        out.emplace_back(kind + " " + nameOf(object), values.text());
    });
}

CDescription describe(IZelMgr& scene)
{
    CDescription all;
    addAll(all, "layer", scene.getLayers());
    addAll(all, "material", scene.getProperties());
    addAll(all, "component", scene.getDefinitions());
    addAll(all, "instance", scene.getObjectInstances());
    addAll(all, "camera", scene.getCameras());
    return all;
}

std::string firstDifference(const CDescription& a, const CDescription& b)
{
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
        if (a[i] != b[i])
            return a[i].first;
    return a.size() == b.size() ? "" : "the number of objects";
}

} // namespace example
