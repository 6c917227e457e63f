#include "tests/support/slots.h"

#include <zel/IZelGround.h>
#include <zel/IZelProperty.h>

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::expectOrder;
using ZelTest::slotOf;

TEST(Slots, IZelProperty)
{
    const auto constMappingNode =
        slotOf<const IMappingNode*(std::int32_t) const>(&IZelProperty::getMappingNode);
    const auto otherMappingNode =
        slotOf<IMappingNode*(std::int32_t)>(&IZelProperty::getMappingNode);
    expectOrder(7, {
                       AT(IZelProperty::getVisible),
                       AT(IZelProperty::setVisible),
                       AT(IZelProperty::getCastShadow),
                       AT(IZelProperty::setCastShadow),
                       AT(IZelProperty::getSmooth),
                       AT(IZelProperty::setSmooth),
                       AT(IZelProperty::getBevel),
                       AT(IZelProperty::setBevel),
                       AT(IZelProperty::getScale),
                       AT(IZelProperty::setScale),
                       AT(IZelProperty::getDiffuseColor),
                       AT(IZelProperty::setDiffuseColor),
                       AT(IZelProperty::getSpecularColor),
                       AT(IZelProperty::setSpecularColor),
                       AT(IZelProperty::getGlossy),
                       AT(IZelProperty::setGlossy),
                       AT(IZelProperty::getTransparentColor),
                       AT(IZelProperty::setTransparentColor),
                       AT(IZelProperty::getReflectionColor),
                       AT(IZelProperty::setReflectionColor),
                       AT(IZelProperty::getDiffuseMapUrl),
                       AT(IZelProperty::setDiffuseMapUrl),
                       AT(IZelProperty::getProjection),
                       AT(IZelProperty::setProjection),
                       AT(IZelProperty::getMappingAxes),
                       AT(IZelProperty::setMappingAxes),
                       AT(IZelProperty::getMapTransparentColor),
                       AT(IZelProperty::setMapTransparentColor),
                       AT(IZelProperty::getMapRepeat),
                       AT(IZelProperty::setMapRepeat),
                       AT(IZelProperty::getMapInvert),
                       AT(IZelProperty::setMapInvert),
                       AT(IZelProperty::getMapSize),
                       AT(IZelProperty::setMapSize),
                       CONST_AT(const IZelTCE*, IZelProperty::getTCE),
                       OTHER_AT(IZelTCE*, IZelProperty::getTCE),
                       AT(IZelProperty::getMapAngle),
                       AT(IZelProperty::setMapAngle),
                       AT(IZelProperty::copyFrom),
                       AT(IZelProperty::getBillboard),
                       AT(IZelProperty::setBillboard),
                       AT(IZelProperty::getNeonColor),
                       AT(IZelProperty::setNeonColor),
                       AT(IZelProperty::getNeonValue),
                       AT(IZelProperty::setNeonValue),
                       AT(IZelProperty::getRefraction),
                       AT(IZelProperty::setRefraction),
                       AT(IZelProperty::getOverloadPropIndex),
                       AT(IZelProperty::setOverloadPropIndex),
                       AT(IZelProperty::getOverloadId),
                       AT(IZelProperty::setOverloadId),
                       AT(IZelProperty::getReceiveShadow),
                       AT(IZelProperty::setReceiveShadow),
                       AT(IZelProperty::getUVDefined),
                       AT(IZelProperty::setUVDefined),
                       AT(IZelProperty::getMapCutAlpha),
                       AT(IZelProperty::setMapCutAlpha),
                       AT(IZelProperty::getReflectionLimit),
                       AT(IZelProperty::setReflectionLimit),
                       AT(IZelProperty::getEmittingColor),
                       AT(IZelProperty::setEmittingColor),
                       AT(IZelProperty::getEmittingPower),
                       AT(IZelProperty::setEmittingPower),
                       AT(IZelProperty::setMapDisplayMode),
                       AT(IZelProperty::getMapDisplayMode),
                       AT(IZelProperty::getMapNormalMapValue),
                       AT(IZelProperty::setMapNormalMapValue),
                       AT(IZelProperty::getNormalMapUrl),
                       AT(IZelProperty::setNormalMapUrl),
                       AT(IZelProperty::getBumpMapUrl),
                       AT(IZelProperty::setBumpMapUrl),
                       AT(IZelProperty::getMapReflectionColor),
                       AT(IZelProperty::setMapReflectionColor),
                       AT(IZelProperty::getMapGlossy),
                       AT(IZelProperty::setMapGlossy),
                       AT(IZelProperty::getMapBump),
                       AT(IZelProperty::setMapBump),
                       AT(IZelProperty::getShaderUrl),
                       AT(IZelProperty::setShaderUrl),
                       AT(IZelProperty::insertMappingNode),
                       AT(IZelProperty::removeMappingNode),
                       {"getMappingNode const", constMappingNode},
                       {"getMappingNode", otherMappingNode},
                   });
}

TEST(Slots, IZelGround)
{
    expectOrder(7,
                {AT(IZelGround::getActive), AT(IZelGround::setActive), AT(IZelGround::getHeight),
                 AT(IZelGround::setHeight), CONST_AT(const IZelProperty*, IZelGround::getProperty),
                 OTHER_AT(IZelProperty*, IZelGround::getProperty)});
}
