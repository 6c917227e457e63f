#include "tests/support/slots.h"

#include <zel/IZel3DPath.h>
#include <zel/IZelAnimatedElement.h>
#include <zel/IZelAnimation.h>
#include <zel/IZelBezierPoint.h>
#include <zel/IZelCamKey.h>
#include <zel/IZelCameraPath.h>
#include <zel/IZelInterpolatedValue.h>
#include <zel/IZelKeyFrame.h>
#include <zel/IZelPanoLinkV2.h>
#include <zel/IZelPanoNodeV2.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelScenario.h>
#include <zel/IZelScenarioTimeGuide.h>
#include <zel/IZelSequence.h>
#include <zel/IZelSnd.h>

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::expectOrder;

namespace {

/// Both operations of a name that hand out a part: the constant one first.
#define BOTH_AT(part, operation) CONST_AT(const part*, operation), OTHER_AT(part*, operation)

template <class T>
using TList = TZelObjectMgr<T>;

constexpr std::ptrdiff_t kBehindBasic = 7;
constexpr std::ptrdiff_t kBehindView = 11;
constexpr std::ptrdiff_t kBehindXML = 2;

} // namespace

TEST(SlotsAnimation, IZelKeyFrame)
{
    using I = IZelKeyFrame;
    expectOrder(0,
                {AT(I::putInXML), AT(I::initWithXML), AT(I::getValueType), AT(I::setValueType),
                 AT(I::getValue), AT(I::setValue), AT(I::getTime), AT(I::setTime), AT(I::isVisible),
                 AT(I::setVisible), AT(I::getInterpolationType), AT(I::setInterpolationType),
                 AT(I::getCPBefore), AT(I::setCPBefore), AT(I::getCPAfter), AT(I::setCPAfter),
                 AT(I::getAreLocked), AT(I::setAreLocked)});
}

TEST(SlotsAnimation, IZelInterpolatedValue)
{
    using I = IZelInterpolatedValue;
    expectOrder(kBehindXML,
                {AT(I::getChannel), AT(I::setChannel),
                 BOTH_AT(TList<IZelKeyFrame>, I::getKeyFrames),
                 BOTH_AT(IZelKeyFrame, I::getDefaultValue), AT(I::getLoop), AT(I::setLoop),
                 AT(I::getNbLoops), AT(I::setNbLoops), AT(I::getPathId), AT(I::setPathId)});
}

TEST(SlotsAnimation, IZelBezierPoint)
{
    using I = IZelBezierPoint;
    expectOrder(kBehindXML,
                {AT(I::getPosition), AT(I::setPosition), AT(I::getCPBefore), AT(I::setCPBefore),
                 AT(I::getCPAfter), AT(I::setCPAfter), AT(I::getAreLocked), AT(I::setAreLocked)});
}

TEST(SlotsAnimation, IZel3DPath)
{
    using I = IZel3DPath;
    expectOrder(kBehindBasic, {AT(I::isClosed), AT(I::setClosed),
                               BOTH_AT(TList<IZelBezierPoint>, I::getBezierPoints)});
}

TEST(SlotsAnimation, IZelScenario)
{
    using I = IZelScenario;
    expectOrder(kBehindXML,
                {AT(I::getName), AT(I::setName), BOTH_AT(TList<IZelSequence>, I::getSequences),
                 BOTH_AT(TList<IZelAnimatedElement>, I::getAnimatedElements),
                 AT(I::getCurrentFrame), AT(I::setCurrentFrame), AT(I::getCurrentSequence),
                 AT(I::setCurrentSequence), BOTH_AT(TList<IZelSnd>, I::getSnds), AT(I::getMaxTime),
                 AT(I::setMaxTime), AT(I::getFPS), AT(I::setFPS), AT(I::setStartVisibleTime),
                 AT(I::getStartVisibleTime), AT(I::setEndVisibleTime), AT(I::getEndVisibleTime),
                 BOTH_AT(TList<IZelScenarioTimeGuide>, I::getTimeGuides)});
}

TEST(SlotsAnimation, IZelSequence)
{
    using I = IZelSequence;
    expectOrder(kBehindView, {AT(I::getStartFrame),
                              AT(I::setStartFrame),
                              AT(I::getEndFrame),
                              AT(I::setEndFrame),
                              AT(I::getPosition),
                              AT(I::setPosition),
                              AT(I::getTargetType),
                              AT(I::setTargetType),
                              AT(I::getTarget),
                              AT(I::setTarget),
                              AT(I::getTargetDistance),
                              AT(I::setTargetDistance),
                              AT(I::getHorizontalAngle),
                              AT(I::setHorizontalAngle),
                              AT(I::getVerticalAngle),
                              AT(I::setVerticalAngle),
                              AT(I::getPathTangent),
                              AT(I::setPathTangent),
                              AT(I::getFlag0),
                              AT(I::setFlag0),
                              AT(I::getFlag1),
                              AT(I::setFlag1),
                              AT(I::getViewFlags),
                              AT(I::setViewFlags),
                              AT(I::getRoll),
                              AT(I::setRoll),
                              AT(I::getFocal),
                              AT(I::setFocal),
                              AT(I::getObjectId),
                              AT(I::setObjectId),
                              AT(I::getArchitectFlag),
                              AT(I::setArchitectFlag)});
}

TEST(SlotsAnimation, IZelAnimatedElement)
{
    using I = IZelAnimatedElement;
    expectOrder(kBehindXML,
                {AT(I::getId), AT(I::setId), AT(I::getElementType), AT(I::setElementType),
                 BOTH_AT(TList<IZelInterpolatedValue>, I::getInterpolatedValues)});
}

TEST(SlotsAnimation, IZelSnd)
{
    using I = IZelSnd;
    expectOrder(0, {AT(I::getId), AT(I::setId), AT(I::getURL), AT(I::setURL), AT(I::getStartFrame),
                    AT(I::setStartFrame)});
}

TEST(SlotsAnimation, IZelScenarioTimeGuide)
{
    expectOrder(0, {AT(IZelScenarioTimeGuide::getTime), AT(IZelScenarioTimeGuide::setTime)});
}

TEST(SlotsAnimation, IZelPanoramaV2)
{
    using I = IZelPanoramaV2;
    expectOrder(kBehindView,
                {BOTH_AT(TList<IZelPanoLinkV2>, I::getLinks),
                 BOTH_AT(TList<IZelPanoNodeV2>, I::getNodes), AT(I::getStartNode),
                 AT(I::setStartNode), AT(I::getDirection), AT(I::setDirection), AT(I::getFocal),
                 AT(I::setFocal), AT(I::getCurrentNode), AT(I::setCurrentNode), AT(I::getFlags),
                 AT(I::setFlags), BOTH_AT(TList<CZelUUID>, I::getParallelViews),
                 AT(I::getCurrentDirection), AT(I::setCurrentDirection)});
}

TEST(SlotsAnimation, IZelPanoNodeV2)
{
    using I = IZelPanoNodeV2;
    expectOrder(kBehindBasic,
                {AT(I::getPosition), AT(I::setPosition), AT(I::getDirection), AT(I::setDirection)});
}

TEST(SlotsAnimation, IZelPanoLinkV2)
{
    using I = IZelPanoLinkV2;
    expectOrder(kBehindBasic, {AT(I::getStart), AT(I::setStart), AT(I::getEnd), AT(I::setEnd),
                               AT(I::getPathId), AT(I::setPathId)});
}

TEST(SlotsAnimation, IZelCameraPath)
{
    using I = IZelCameraPath;
    expectOrder(kBehindXML, {AT(I::getName),
                             AT(I::setName),
                             AT(I::getViewFlag),
                             AT(I::setViewFlag),
                             AT(I::getActive),
                             AT(I::setActive),
                             AT(I::getDuration),
                             AT(I::setDuration),
                             AT(I::getNbXImage),
                             AT(I::setNbXImage),
                             AT(I::getSpeedOn),
                             AT(I::setSpeedOn),
                             AT(I::getSpeed),
                             AT(I::setSpeed),
                             AT(I::getPathClosed),
                             AT(I::setPathClosed),
                             BOTH_AT(TList<CZelPoint>, I::getPoints),
                             BOTH_AT(TList<IZelCamKey>, I::getKeys),
                             BOTH_AT(IZelViewInfo, I::getViewInfo),
                             AT(I::getCurrentTime),
                             AT(I::setCurrentTime)});
}

TEST(SlotsAnimation, IZelAnimation)
{
    using I = IZelAnimation;
    expectOrder(kBehindXML,
                {AT(I::getName), AT(I::setName), BOTH_AT(TList<IZelCameraPath>, I::getPaths),
                 AT(I::getCurrentPathIndex), AT(I::setCurrentPath),
                 BOTH_AT(IZelViewOpt, I::getViewOptions)});
}

TEST(SlotsAnimation, IZelCamKey)
{
    using I = IZelCamKey;
    expectOrder(0, {AT(I::getPitch),
                    AT(I::setPitch),
                    AT(I::getFocal),
                    AT(I::setFocal),
                    AT(I::getKeyType),
                    AT(I::setKeyType),
                    AT(I::getFadingDuration),
                    AT(I::setFadingDuration),
                    AT(I::getFadingImages),
                    AT(I::setFadingImages),
                    AT(I::getHorizontalAngle),
                    AT(I::setHorizontalAngle),
                    AT(I::getVerticalAngle),
                    AT(I::setVerticalAngle),
                    AT(I::getAnticipation),
                    AT(I::setAnticipation),
                    AT(I::getBezierSection),
                    AT(I::setBezierSection),
                    AT(I::getBezierT),
                    AT(I::setBezierT),
                    AT(I::getBezierTransition),
                    AT(I::setBezierTransition),
                    AT(I::getBezierTransitionT),
                    AT(I::setBezierTransitionT),
                    AT(I::getTarget),
                    AT(I::setTarget)});
}
