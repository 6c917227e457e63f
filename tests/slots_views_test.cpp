#include "tests/support/slots.h"

#include <zel/IZelCamera.h>
#include <zel/IZelCameraLight.h>
#include <zel/IZelClippingBox.h>
#include <zel/IZelDepthOfField.h>
#include <zel/IZelInsertionObject.h>
#include <zel/IZelLaser.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelViewInfo.h>
#include <zel/IZelViewObject.h>

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::expectOrder;

namespace {

/// Both operations of a name that hand out a part: the constant one first.
#define BOTH_AT(part, operation) CONST_AT(const part*, operation), OTHER_AT(part*, operation)

using CIds = TZelObjectMgr<CZelUUID>;

constexpr std::ptrdiff_t kBehindBasic = 7;
constexpr std::ptrdiff_t kBehindView = 11;
constexpr std::ptrdiff_t kBehindXML = 2;

} // namespace

TEST(SlotsViews, IZelViewBasic)
{
    expectOrder(kBehindBasic, {BOTH_AT(IZelViewInfo, IZelViewBasic::getViewInfo),
                               BOTH_AT(IZelViewOpt, IZelViewBasic::getViewOptions)});
}

TEST(SlotsViews, IZelViewInfo)
{
    expectOrder(kBehindBasic, {AT(IZelViewInfo::getLocked),
                               AT(IZelViewInfo::setLocked),
                               BOTH_AT(IZelBackground, IZelViewInfo::getBackground),
                               BOTH_AT(IZelForeground, IZelViewInfo::getForeground),
                               BOTH_AT(CIds, IZelViewInfo::getLightsGroups),
                               AT(IZelViewInfo::getHeliodonName),
                               AT(IZelViewInfo::setHeliodonName),
                               BOTH_AT(IZelCameraLight, IZelViewInfo::getCameraLight),
                               BOTH_AT(IZelCameraLight, IZelViewInfo::getRadiosityLight),
                               BOTH_AT(IZelAtmosphere, IZelViewInfo::getAtmosphere),
                               BOTH_AT(IZelDepthOfField, IZelViewInfo::getDepthOfField),
                               BOTH_AT(IZelClippingBox, IZelViewInfo::getClippingBox),
                               AT(IZelViewInfo::getEnvironment),
                               AT(IZelViewInfo::setEnvironment),
                               BOTH_AT(IZelFilters, IZelViewInfo::getFilters),
                               BOTH_AT(CIds, IZelViewInfo::getNeonShaders),
                               BOTH_AT(IZelBackgroundPicture, IZelViewInfo::getBackgroundPicture),
                               BOTH_AT(CIds, IZelViewInfo::getLayers),
                               BOTH_AT(IZelToneSettings, IZelViewInfo::getToneSettings),
                               AT(IZelViewInfo::getGround),
                               AT(IZelViewInfo::setGround),
                               BOTH_AT(IZelLaser, IZelViewInfo::getLaser)});
}

TEST(SlotsViews, IZelCameraLight)
{
    expectOrder(kBehindXML, {AT(IZelCameraLight::getUsed), AT(IZelCameraLight::setUsed),
                             AT(IZelCameraLight::getKind), AT(IZelCameraLight::setKind),
                             AT(IZelCameraLight::getColor), AT(IZelCameraLight::setColor),
                             AT(IZelCameraLight::getPower), AT(IZelCameraLight::setPower)});
}

TEST(SlotsViews, IZelDepthOfField)
{
    expectOrder(kBehindXML,
                {AT(IZelDepthOfField::getUsed), AT(IZelDepthOfField::setUsed),
                 AT(IZelDepthOfField::getType), AT(IZelDepthOfField::setType),
                 AT(IZelDepthOfField::getClearnessPoint), AT(IZelDepthOfField::setClearnessPoint),
                 AT(IZelDepthOfField::getClearnessDistanceInverse),
                 AT(IZelDepthOfField::setClearnessDistanceInverse),
                 AT(IZelDepthOfField::getClearnessSizeInverse),
                 AT(IZelDepthOfField::setClearnessSizeInverse)});
}

TEST(SlotsViews, IZelClippingBox)
{
    expectOrder(kBehindXML, {AT(IZelClippingBox::getMinimum), AT(IZelClippingBox::setMinimum),
                             AT(IZelClippingBox::getMaximum), AT(IZelClippingBox::setMaximum),
                             AT(IZelClippingBox::getVisible), AT(IZelClippingBox::setVisible),
                             AT(IZelClippingBox::getActive), AT(IZelClippingBox::setActive),
                             AT(IZelClippingBox::getPivot), AT(IZelClippingBox::setPivot),
                             AT(IZelClippingBox::getAngle), AT(IZelClippingBox::setAngle)});
}

TEST(SlotsViews, IZelLaser)
{
    expectOrder(kBehindXML,
                {AT(IZelLaser::getActive), AT(IZelLaser::setActive), AT(IZelLaser::getNormal),
                 AT(IZelLaser::setNormal), AT(IZelLaser::getReference), AT(IZelLaser::setReference),
                 AT(IZelLaser::getDistance), AT(IZelLaser::setDistance)});
}

TEST(SlotsViews, IZelCamera)
{
    expectOrder(kBehindView, {AT(IZelCamera::getPosition),
                              AT(IZelCamera::setPosition),
                              AT(IZelCamera::getTarget),
                              AT(IZelCamera::setTarget),
                              AT(IZelCamera::getFlag0),
                              AT(IZelCamera::setFlag0),
                              AT(IZelCamera::getFlag1),
                              AT(IZelCamera::setFlag1),
                              AT(IZelCamera::getRoll),
                              AT(IZelCamera::setRoll),
                              AT(IZelCamera::getFocal),
                              AT(IZelCamera::setFocal),
                              AT(IZelCamera::getViewFlags),
                              AT(IZelCamera::setViewFlags),
                              BOTH_AT(IZelInsertionObject, IZelCamera::getInsertionObject),
                              AT(IZelCamera::getTargetType),
                              AT(IZelCamera::setTargetType),
                              AT(IZelCamera::getObjectId),
                              AT(IZelCamera::setObjectId),
                              AT(IZelCamera::getUp),
                              AT(IZelCamera::setUp),
                              AT(IZelCamera::getUpIsSet),
                              AT(IZelCamera::getArchitectFlag),
                              AT(IZelCamera::setArchitectFlag)});
}

TEST(SlotsViews, IZelParallelView)
{
    expectOrder(kBehindView,
                {AT(IZelParallelView::getType), AT(IZelParallelView::setType),
                 AT(IZelParallelView::getViewFlags), AT(IZelParallelView::setViewFlags),
                 AT(IZelParallelView::getNorthAngle), AT(IZelParallelView::setNorthAngle),
                 AT(IZelParallelView::getSize), AT(IZelParallelView::setSize),
                 AT(IZelParallelView::getPosition), AT(IZelParallelView::setPosition),
                 AT(IZelParallelView::getTarget), AT(IZelParallelView::setTarget),
                 AT(IZelParallelView::getSpecialShading), AT(IZelParallelView::setSpecialShading),
                 AT(IZelParallelView::getExtraValue), AT(IZelParallelView::setExtraValue)});
}

TEST(SlotsViews, IZelViewObject)
{
    expectOrder(kBehindView,
                {AT(IZelViewObject::getViewFlags),       AT(IZelViewObject::setViewFlags),
                 AT(IZelViewObject::getFocal),           AT(IZelViewObject::setFocal),
                 AT(IZelViewObject::getCenter),          AT(IZelViewObject::setCenter),
                 AT(IZelViewObject::getRadius),          AT(IZelViewObject::setRadius),
                 AT(IZelViewObject::getHorizontalAngle), AT(IZelViewObject::setHorizontalAngle),
                 AT(IZelViewObject::getVerticalAngle),   AT(IZelViewObject::setVerticalAngle),
                 AT(IZelViewObject::getHorizontalStep),  AT(IZelViewObject::setHorizontalStep),
                 AT(IZelViewObject::getVerticalStep),    AT(IZelViewObject::setVerticalStep),
                 AT(IZelViewObject::getHorizontalShift), AT(IZelViewObject::setHorizontalShift),
                 AT(IZelViewObject::getVerticalShift),   AT(IZelViewObject::setVerticalShift),
                 AT(IZelViewObject::getHorizontalStart), AT(IZelViewObject::setHorizontalStart),
                 AT(IZelViewObject::getVerticalStart),   AT(IZelViewObject::setVerticalStart),
                 AT(IZelViewObject::getOriginAngle),     AT(IZelViewObject::setOriginAngle)});
}

TEST(SlotsViews, IZelInsertionObject)
{
    using I = IZelInsertionObject;
    const std::vector<ZelTest::CSlot> slots = {
        AT(I::getActive),
        AT(I::setActive),
        AT(I::getAxesPosition),
        AT(I::setAxesPosition),
        {"get normalised", ZelTest::slotOf<void(std::int32_t, CZelPoint2D*) const>(
                               &I::getVanishingLinesPointsPosition)},
        {"get pixels", ZelTest::slotOf<void(std::int32_t, CZelPixel2D*) const>(
                           &I::getVanishingLinesPointsPosition)},
        {"set normalised", ZelTest::slotOf<void(std::int32_t, const CZelPoint2D&)>(
                               &I::setVanishingLinesPointsPosition)},
        {"set pixels", ZelTest::slotOf<void(std::int32_t, const CZelPixel2D&)>(
                           &I::setVanishingLinesPointsPosition)},
        AT(I::setValue),
        AT(I::getValue),
        AT(I::addToAccumulator),
        AT(I::getAccumulator),
        AT(I::resetAccumulator),
        AT(I::setPictureSize),
        AT(I::getPictureSize),
        AT(I::getAngle),
        AT(I::getFlagA),
        AT(I::setFlagE),
        AT(I::getFlagE),
        AT(I::setSixValue),
        AT(I::resetSixValues),
        AT(I::getSixValue),
        AT(I::setFlagA),
        AT(I::setFlagB),
        AT(I::getFlagB),
        AT(I::setFlagC),
        AT(I::getFlagC),
        AT(I::setFlagD),
        AT(I::getFlagD),
        AT(I::saveSnapshot),
        AT(I::restoreSnapshot),
        AT(I::getPerpectiveToolPosition),
        AT(I::setPerpectiveToolPosition),
        AT(I::getReperePosition),
        AT(I::setReperePosition),
        AT(I::getSizeAxis),
        AT(I::setSizeAxis),
        AT(I::getAxesVisibility),
        AT(I::setAxesVisibility),
        AT(I::getModelVisibility),
        AT(I::setModelVisibility),
        AT(I::getPerspectiveToolVisibility),
        AT(I::setPerspectiveToolVisibility),
        AT(I::getYAxeInverted),
        AT(I::setYAxeInverted),
    };
    expectOrder(kBehindXML, slots);
}
