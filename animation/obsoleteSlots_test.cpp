#include "animation/CZel3DPath.h"
#include "animation/CZelScenario.h"
#include "tests/support/slots.h"

using namespace OvZel;
using ZelTest::expectMargin;

TEST(SlotsOfAnimation, EveryInterfaceEndsWithItsMargin)
{
    expectMargin<CZelKeyFrame>(AT(IZelKeyFrame::setAreLocked));
    expectMargin<CZelInterpolatedValue>(AT(IZelInterpolatedValue::setPathId));
    expectMargin<CZelBezierPoint>(AT(IZelBezierPoint::setAreLocked));
    expectMargin<CZel3DPath>(
        OTHER_AT(TZelObjectMgr<IZelBezierPoint>*, IZel3DPath::getBezierPoints));
    expectMargin<CZelScenario>(
        OTHER_AT(TZelObjectMgr<IZelScenarioTimeGuide>*, IZelScenario::getTimeGuides));
    expectMargin<CZelSequence>(AT(IZelSequence::setArchitectFlag));
    expectMargin<CZelAnimatedElement>(OTHER_AT(TZelObjectMgr<IZelInterpolatedValue>*,
                                               IZelAnimatedElement::getInterpolatedValues));
    expectMargin<CZelSnd>(AT(IZelSnd::setStartFrame));
    expectMargin<CZelScenarioTimeGuide>(AT(IZelScenarioTimeGuide::setTime));
}
