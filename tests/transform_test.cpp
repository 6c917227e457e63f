#include "tests/support/CClientDocument.h"

#include <zel/IZelAnimation.h>
#include <zel/IZelCamera.h>
#include <zel/IZelClippingBox.h>
#include <zel/IZelLaser.h>
#include <zel/IZelLight.h>
#include <zel/IZelObjectInstance.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelScenario.h>
#include <zel/IZelSequence.h>
#include <zel/IZelViewInfo.h>
#include <zel/IZelViewObject.h>
#include <zel/IZelZelObjectDefinition.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

// The matrix of a document moves what a load brings in: points as points, vectors and directions
// without the translation.

using namespace OvZel;
using testing::IsEmpty;
using ZelTest::CClientDocument;

namespace {

/// x to y, y to -x, and then 10, 20, 30 on.
constexpr double kTurnAndMove[16] = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1};

CZelPoint movedPoint(const CZelPoint& p)
{
    return {10 - p.y, 20 + p.x, 30 + p.z};
}

CZelPoint turnedVector(const CZelPoint& p)
{
    return {-p.y, p.x, p.z};
}

struct CMoved {
    const char* name;
    CZelPoint (*move)(const CZelPoint&);
    std::function<void(IZelMgr&, const CZelPoint&)> set;
    std::function<CZelPoint(IZelMgr&)> get;
};

template <class Object, class Set, class Get>
CMoved moved(const char* name, CZelPoint (*move)(const CZelPoint&), Object object, Set set, Get get)
{
    return {name, move,
            [=](IZelMgr& document, const CZelPoint& value) {
                std::invoke(set, *object(document), value);
            },
            [=](IZelMgr& document) -> CZelPoint { return std::invoke(get, *object(document)); }};
}

const auto kCamera = [](IZelMgr& document) { return document.getCameras()->getZelObject(0); };
const auto kParallel = [](IZelMgr& document) {
    return document.getParallelViews()->getZelObject(0);
};
const auto kWorking = [](IZelMgr& document) {
    return document.getMgrEx(eVersionZel)->getWorkingViews()->getZelObject(0);
};
const auto kViewObject = [](IZelMgr& document) {
    return document.getViewObjects()->getZelObject(0);
};
const auto kLight = [](IZelMgr& document) { return document.getLights()->getZelObject(0); };
const auto kInstance = [](IZelMgr& document) {
    return document.getObjectInstances()->getZelObject(0);
};
const auto kScene = [](IZelMgr& document) { return document.getObjectDefinition(); };
const auto kComponent = [](IZelMgr& document) {
    return document.getDefinitions()->getZelObject(0);
};
const auto kSequence = [](IZelMgr& document) {
    return document.getScenarios()->getZelObject(0)->getSequences()->getZelObject(0);
};

std::vector<CMoved> movedValues()
{
    using D = IZelZelObjectDefinition;
    using I = IZelObjectInstance;
    return {
        moved("light position", movedPoint, kLight, &IZelLight::setPosition,
              &IZelLight::getPosition),
        moved("light target", movedPoint, kLight, &IZelLight::setTarget, &IZelLight::getTarget),
        moved("camera position", movedPoint, kCamera, &IZelCamera::setPosition,
              &IZelCamera::getPosition),
        moved("camera target", movedPoint, kCamera, &IZelCamera::setTarget, &IZelCamera::getTarget),
        moved("camera up", turnedVector, kCamera, &IZelCamera::setUp, &IZelCamera::getUp),
        moved("parallel view position", movedPoint, kParallel, &IZelParallelView::setPosition,
              &IZelParallelView::getPosition),
        moved("parallel view target", movedPoint, kParallel, &IZelParallelView::setTarget,
              &IZelParallelView::getTarget),
        moved("working view position", movedPoint, kWorking, &IZelParallelView::setPosition,
              &IZelParallelView::getPosition),
        moved("view object centre", movedPoint, kViewObject, &IZelViewObject::setCenter,
              &IZelViewObject::getCenter),
        moved("instance normal", turnedVector, kInstance, &I::setNormal, &I::getNormal),
        moved("instance translation", turnedVector, kInstance, &I::setTranslation,
              &I::getTranslation),
        moved("instance rotation", turnedVector, kInstance, &I::setRotation, &I::getRotation),
        moved("instance scale", turnedVector, kInstance, &I::setScale, &I::getScale),
        moved("instance anchor", movedPoint, kInstance, &I::setAnchorPosition,
              &I::getAnchorPosition),
        moved("instance up", turnedVector, kInstance, &I::setUpVector, &I::getUpVector),
        moved("instance path direction", turnedVector, kInstance, &I::setCurrentPathDirection,
              &I::getCurrentPathDirection),
        moved(
            "instance box", movedPoint, kInstance,
            [](I& instance, const CZelPoint& p) {
                instance.setBoundingBox({p, {7, 8, 9}});
            },
            [](I& instance) { return instance.getBoundingBox().minimum; }),
        moved("scene anchor", movedPoint, kScene, &D::setAnchor, &D::getAnchor),
        moved("scene up", turnedVector, kScene, &D::setUp, &D::getUp),
        moved("scene rotation", turnedVector, kScene, &D::setModelRotation, &D::getModelRotation),
        moved("scene position", movedPoint, kScene, &D::setModelPosition, &D::getModelPosition),
        moved("component anchor", movedPoint, kComponent, &D::setAnchor, &D::getAnchor),
        moved("sequence position", movedPoint, kSequence, &IZelSequence::setPosition,
              &IZelSequence::getPosition),
        moved("sequence target", movedPoint, kSequence, &IZelSequence::setTarget,
              &IZelSequence::getTarget),
    };
}

void makeOneOfEach(IZelMgr& document)
{
    document.getCameras()->newZelObject(-1);
    document.getParallelViews()->newZelObject(-1);
    document.getMgrEx(eVersionZel)->getWorkingViews()->newZelObject(-1);
    document.getViewObjects()->newZelObject(-1);
    document.getLights()->newZelObject(-1);
    document.getObjectInstances()->newZelObject(-1);
    document.getDefinitions()->newZelObject(-1);
    document.getScenarios()->newZelObject(-1)->getSequences()->newZelObject(-1);
}

/// A value of its own for each row; no coordinate tells less than another.
CZelPoint valueOf(std::size_t row)
{
    const double base = static_cast<double>(row);
    return {base + 0.25, 2 * base + 0.5, 3 * base + 0.75};
}

std::string fileWithValues()
{
    CClientDocument document;
    makeOneOfEach(*document.get());
    const auto rows = movedValues();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].set(*document.get(), valueOf(i));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    return document.save();
}

void expectEqual(const CZelPoint& found, const CZelPoint& expected)
{
    EXPECT_DOUBLE_EQ(found.x, expected.x);
    EXPECT_DOUBLE_EQ(found.y, expected.y);
    EXPECT_DOUBLE_EQ(found.z, expected.z);
}

} // namespace

TEST(Transform, MovesPointsAndTurnsVectorsThatAreRead)
{
    const std::string file = fileWithValues();
    CClientDocument plain, turned, again;
    ASSERT_TRUE(plain.read(file));
    turned->setMatrix(kTurnAndMove);
    ASSERT_TRUE(turned.read(file));
    ASSERT_TRUE(again.read(turned.save())); // a save moves nothing back
    const auto rows = movedValues();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i].name);
        expectEqual(rows[i].get(*plain.get()), valueOf(i));
        expectEqual(rows[i].get(*turned.get()), rows[i].move(valueOf(i)));
        expectEqual(rows[i].get(*again.get()), rows[i].move(valueOf(i)));
    }
}

TEST(Transform, TouchesNothingThatAClientSetsOrThatStoodThere)
{
    CClientDocument document;
    makeOneOfEach(*document.get());
    document->setMatrix(kTurnAndMove);
    const auto rows = movedValues();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].set(*document.get(), valueOf(i));
    const std::string saved = document.save();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i].name);
        expectEqual(rows[i].get(*document.get()), valueOf(i));
    }
    EXPECT_EQ(document.save(), saved);
}
