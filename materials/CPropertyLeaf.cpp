#include "materials/CProperty.h"

#include <zel/ILeafNode.h>
#include <zel/IMappingNode.h>

namespace OvZel {

namespace {

// Without a leaf. A new leaf has other values in the last two.
constexpr CZelColor kDiffuse = CZelColor::rgb(100, 100, 100);
constexpr CZelColor kBlack;
constexpr double kGlossy = 6.0;
constexpr double kRefraction = 0.0;

} // namespace

CZelColor CProperty::getDiffuseColor() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getDiffuse() : kDiffuse;
}

void CProperty::setDiffuseColor(const CZelColor& color)
{
    needLeaf().setDiffuse(color);
}

CZelColor CProperty::getSpecularColor() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getSpecular() : kBlack;
}

void CProperty::setSpecularColor(const CZelColor& color)
{
    needLeaf().setSpecular(color);
}

double CProperty::getGlossy() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getGlossy() : kGlossy;
}

void CProperty::setGlossy(double glossy)
{
    needLeaf().setGlossy(glossy);
}

CZelColor CProperty::getTransparentColor() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getTransparent() : kBlack;
}

void CProperty::setTransparentColor(const CZelColor& color)
{
    needLeaf().setTransparent(color);
}

CZelColor CProperty::getReflectionColor() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getReflection() : kBlack;
}

void CProperty::setReflectionColor(const CZelColor& color)
{
    needLeaf().setReflection(color);
}

CZelColor CProperty::getNeonColor() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getNeonColor() : kBlack;
}

void CProperty::setNeonColor(const CZelColor& color)
{
    needLeaf().setNeonColor(color);
}

double CProperty::getNeonValue() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getNeonValue() : 0.0;
}

void CProperty::setNeonValue(double value)
{
    needLeaf().setNeonValue(value);
}

double CProperty::getRefraction() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getRefraction() : kRefraction;
}

void CProperty::setRefraction(double refraction)
{
    needLeaf().setRefraction(refraction);
}

CZelColor CProperty::getEmittingColor() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getEmittingColor() : kBlack;
}

void CProperty::setEmittingColor(const CZelColor& color)
{
    needLeaf().setEmittingColor(color);
}

double CProperty::getEmittingPower() const
{
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getEmittingPower() : 0.0;
}

void CProperty::setEmittingPower(double power)
{
    needLeaf().setEmittingPower(power);
}

double CProperty::getReflectionLimit() const
{
    if (const IMappingNode* mapping = findMapping())
        return mapping->getReflectionLimit();
    const ILeafNode* leaf = findLeaf();
    return leaf != nullptr ? leaf->getReflectionLimit() : 0.0;
}

void CProperty::setReflectionLimit(double limit)
{
    if (IMappingNode* mapping = findMapping())
        mapping->setReflectionLimit(limit);
    else
        needLeaf().setReflectionLimit(limit);
}

} // namespace OvZel
