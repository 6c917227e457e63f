#include "materials/CProperty.h"

#include <zel/IMappingNode.h>
#include <zel/IZelMultiMaps.h>

#include <iterator>

namespace OvZel {

namespace {

// Kinds of maps.
constexpr std::int32_t kDiffuse = 1;
constexpr std::int32_t kBump = 7;
constexpr std::int32_t kNormal = 8;

// The facade has numbers of its own for the projections; these are the node's for them.
constexpr std::int32_t kProjections[] = {1, 8, 2, 3, 4, 5, 0, 6, 7};
constexpr std::uint32_t kNoProjection = 0xFFFFFFFF;

template <class T>
void give(T* out, const T& value)
{
    if (out != nullptr)
        *out = value;
}

CZelPoint cross(const CZelPoint& a, const CZelPoint& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

} // namespace

const char* CProperty::mapUrl(std::int32_t kind) const
{
    const IMappingNode* mapping = findMapping();
    return mapping != nullptr ? mapping->getMaps()->getURL(kind) : "";
}

void CProperty::setMapUrl(std::int32_t kind, const char* url)
{
    needMapping().getMaps()->setURL(kind, url);
}

const char* CProperty::getDiffuseMapUrl() const
{
    return mapUrl(kDiffuse);
}

void CProperty::setDiffuseMapUrl(const char* url)
{
    setMapUrl(kDiffuse, url);
}

const char* CProperty::getNormalMapUrl() const
{
    return mapUrl(kNormal);
}

void CProperty::setNormalMapUrl(const char* url)
{
    setMapUrl(kNormal, url);
}

const char* CProperty::getBumpMapUrl() const
{
    return mapUrl(kBump);
}

void CProperty::setBumpMapUrl(const char* url)
{
    setMapUrl(kBump, url);
}

std::uint32_t CProperty::getProjection() const
{
    const IMappingNode* mapping = findMapping();
    if (mapping == nullptr)
        return kNoProjection;
    for (std::uint32_t i = 0; i < std::size(kProjections); ++i)
        if (kProjections[i] == mapping->getProjection())
            return i;
    return kNoProjection;
}

void CProperty::setProjection(std::uint32_t projection)
{
    IMappingNode& mapping = needMapping();
    if (projection < std::size(kProjections))
        mapping.setProjection(kProjections[projection]);
}

bool CProperty::getMappingAxes(CZelPoint* origin, CZelPoint* xAxis, CZelPoint* yAxis) const
{
    const IMappingNode* mapping = findMapping();
    if (mapping == nullptr)
        return false;
    give(origin, mapping->getOrigin());
    give(xAxis, mapping->getXAxis());
    give(yAxis, mapping->getYAxis());
    return true;
}

void CProperty::setMappingAxes(const CZelPoint& origin, const CZelPoint& xAxis,
                               const CZelPoint& yAxis)
{
    // A client may hand in the node's own axes.
    const CZelPoint normal = cross(xAxis, yAxis);
    IMappingNode& mapping = needMapping();
    mapping.setOrigin(origin);
    mapping.setXAxis(xAxis);
    mapping.setYAxis(yAxis);
    mapping.setNormal(normal);
}

bool CProperty::getMapTransparentColor(CZelColor* color) const
{
    const IMappingNode* mapping = findMapping();
    if (mapping != nullptr)
        give(color, mapping->getTransparent());
    return mapping != nullptr;
}

void CProperty::setMapTransparentColor(const CZelColor& color)
{
    needMapping().setTransparent(color);
}

bool CProperty::getMapRepeat(bool* x, bool* y) const
{
    const IMappingNode* mapping = findMapping();
    give(x, mapping != nullptr && mapping->getXRepeat());
    give(y, mapping != nullptr && mapping->getYRepeat());
    return mapping != nullptr;
}

void CProperty::setMapRepeat(bool x, bool y)
{
    IMappingNode& mapping = needMapping();
    mapping.setXRepeat(x);
    mapping.setYRepeat(y);
}

bool CProperty::getMapInvert(bool* x, bool* y) const
{
    const IMappingNode* mapping = findMapping();
    give(x, mapping != nullptr && mapping->getXInvert());
    give(y, mapping != nullptr && mapping->getYInvert());
    return mapping != nullptr;
}

void CProperty::setMapInvert(bool x, bool y)
{
    IMappingNode& mapping = needMapping();
    mapping.setXInvert(x);
    mapping.setYInvert(y);
}

bool CProperty::getMapSize(double* height, double* width) const
{
    const IMappingNode* mapping = findMapping();
    give(height, mapping != nullptr ? mapping->getHeight() : 1.0);
    give(width, mapping != nullptr ? mapping->getWidth() : 1.0);
    return mapping != nullptr;
}

void CProperty::setMapSize(double height, double width)
{
    IMappingNode& mapping = needMapping();
    mapping.setHeight(height);
    mapping.setWidth(width);
}

bool CProperty::getMapAngle(double* angle) const
{
    const IMappingNode* mapping = findMapping();
    give(angle, mapping != nullptr ? mapping->getAngle() : 0.0);
    return mapping != nullptr;
}

void CProperty::setMapAngle(double angle)
{
    needMapping().setAngle(angle);
}

bool CProperty::getMapCutAlpha() const
{
    const IMappingNode* mapping = findMapping();
    return mapping != nullptr && mapping->getCutAlpha();
}

void CProperty::setMapCutAlpha(bool cutAlpha)
{
    needMapping().setCutAlpha(cutAlpha);
}

bool CProperty::getMapDisplayMode() const
{
    const IMappingNode* mapping = findMapping();
    return mapping != nullptr && mapping->getDisplayMode();
}

void CProperty::setMapDisplayMode(bool mode)
{
    needMapping().setDisplayMode(mode);
}

double CProperty::getMapNormalMapValue() const
{
    const IMappingNode* mapping = findMapping();
    return mapping != nullptr ? mapping->getNormalMap() : 0.0;
}

void CProperty::setMapNormalMapValue(double value)
{
    needMapping().setNormalMap(value);
}

bool CProperty::getMapReflectionColor(CZelColor* color) const
{
    const IMappingNode* mapping = findMapping();
    if (mapping != nullptr)
        give(color, mapping->getReflection());
    return mapping != nullptr;
}

void CProperty::setMapReflectionColor(const CZelColor& color)
{
    needMapping().setReflection(color);
}

bool CProperty::getMapGlossy(double* glossy) const
{
    const IMappingNode* mapping = findMapping();
    if (mapping != nullptr)
        give(glossy, mapping->getGlossy());
    return mapping != nullptr;
}

void CProperty::setMapGlossy(double glossy)
{
    needMapping().setGlossy(glossy);
}

bool CProperty::getMapBump(double* bump) const
{
    const IMappingNode* mapping = findMapping();
    if (mapping != nullptr)
        give(bump, mapping->getBump());
    return mapping != nullptr;
}

void CProperty::setMapBump(double bump)
{
    needMapping().setBump(bump);
}

} // namespace OvZel
