#include "tests/support/slots.h"
#include "views/CCamera.h"
#include "views/CViewObject.h"
#include "views/CZelAnimation.h"
#include "views/CZelPanoramaV2.h"
#include "views/CZelParallelView.h"

using namespace OvZel;
using ZelTest::expectMargin;

TEST(SlotsViews, EveryInterfaceEndsWithItsMargin)
{
    expectMargin<CCamera>(AT(IZelCamera::setArchitectFlag));
    expectMargin<CViewObject>(AT(IZelViewObject::setOriginAngle));
    expectMargin<CZelParallelView>(AT(IZelParallelView::setExtraValue));
    expectMargin<CZelViewInfo>(OTHER_AT(IZelLaser*, IZelViewInfo::getLaser));
    expectMargin<CZelCameraLight>(AT(IZelCameraLight::setPower));
    expectMargin<CZelDepthOfField>(AT(IZelDepthOfField::setClearnessSizeInverse));
    expectMargin<CZelClippingBox>(AT(IZelClippingBox::setAngle));
    expectMargin<CZelLaser>(AT(IZelLaser::setDistance));
    expectMargin<CZelInsertionObject>(AT(IZelInsertionObject::setYAxeInverted));
    expectMargin<CZelPanoramaV2>(AT(IZelPanoramaV2::setCurrentDirection));
    expectMargin<CZelPanoNodeV2>(AT(IZelPanoNodeV2::setDirection));
    expectMargin<CZelPanoLinkV2>(AT(IZelPanoLinkV2::setPathId));
    expectMargin<CZelAnimation>(OTHER_AT(IZelViewOpt*, IZelAnimation::getViewOptions));
    expectMargin<CAnimation>(AT(IZelCameraPath::setCurrentTime));
    expectMargin<CCamKey>(AT(IZelCamKey::setTarget));
}
