#include "views/TZelViewBasic.h"

#include "core/TComObjectMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "views/CCamera.h"
#include "views/CViewObject.h"
#include "views/CZelPanoramaV2.h"
#include "views/CZelParallelView.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

template <class View>
class ViewBasic : public testing::Test {
};

using CViews = testing::Types<CCamera, CZelPanoramaV2, CZelParallelView, CViewObject>;
TYPED_TEST_SUITE(ViewBasic, CViews);

} // namespace

TYPED_TEST(ViewBasic, AnswersToItsFamilies)
{
    TZelComPtr view(new TypeParam(nullptr));
    for (const CZelUUID& id : {IZelViewBasic::sIID, IZelBasic::sIID, IID_IUnknown}) {
        void* out = nullptr;
        EXPECT_EQ(view->QueryInterface(id, &out), kQueryOk);
        EXPECT_EQ(out, static_cast<IZelViewBasic*>(view.get()));
        EXPECT_EQ(static_cast<IZelViewBasic*>(out)->Release(), 1U);
    }
    void* out = view.get();
    EXPECT_EQ(view->QueryInterface(IZelCamera::sIID, &out), kQueryNoInterface);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(view->QueryInterface(IZelViewBasic::sIID, nullptr), kQueryInvalidArgument);
}

TYPED_TEST(ViewBasic, IsCompleteFromTheStart)
{
    TZelComPtr view(new TypeParam(nullptr));
    const TypeParam& constant = *view.get();
    ASSERT_NE(view->getViewInfo(), nullptr);
    ASSERT_NE(view->getViewOptions(), nullptr);
    EXPECT_EQ(constant.getViewInfo(), view->getViewInfo());
    EXPECT_EQ(constant.getViewOptions(), view->getViewOptions());
    EXPECT_EQ(view->getViewOptions()->getRenderingOpt()->getWidth(), 320);
}

TYPED_TEST(ViewBasic, RenderingOptionsOfAViewInADocumentWarn)
{
    CTestDocument document;
    TZelComPtr view(new TypeParam(document.ref()));
    view->getViewOptions()->getRenderingOpt()->setWidth(-1);
    EXPECT_EQ(view->getViewOptions()->getRenderingOpt()->getWidth(), 0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"class CRenderingOpt: Method setWidth has clipped a value "
                                       "out of range."});
}

TYPED_TEST(ViewBasic, WhoCountsOnAPartOfItDestroysNothing)
{
    TZelComPtr view(new TypeParam(nullptr));
    IZelRenderingOpt* rendering = view->getViewOptions()->getRenderingOpt();
    IZelObjectLink* owner = rendering->getEnginesOptions()->getObjectLink()->getOwnerLink();
    IZelObjectLink* options = owner->getOwnerLink();
    for (IZelObjectLink* part : {owner, options}) {
        part->getSelfWeakPtr()->addRef();
        part->getSelfWeakPtr()->release();
    }
    EXPECT_EQ(owner->getOwnerLink(), options);
    EXPECT_EQ(rendering->getWidth(), 320);
}

TEST(ViewBasicLinks, AKeptViewFindsTheReferenceObjectWithoutItsManager)
{
    CTestDocument document;
    using CCameras = TComObjectMgr<CCamera, IZelCamera>;
    TZelComPtr cameras(new CCameras(document.ref()));
    TZelComPtr camera(cameras->newZelObject(-1));
    TZelComPtr info(camera->getViewInfo());
    cameras.reset();
    EXPECT_EQ(camera->getObjectLink()->getMgrRef(), document.ref());
    camera.reset();
    EXPECT_EQ(info->getObjectLink()->getMgrRef(), document.ref());
    EXPECT_EQ(info->getLightsGroups()->getObjectLink()->getMgrRef(), document.ref());

    info->getLayers()->getZelObject(0);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{"getZelObject: Bad index value"});
    document.die();
    EXPECT_EQ(info->getObjectLink()->getMgrRef()->getMgr(), nullptr);
}

TEST(ViewBasicLinks, AViewWithoutOwnerHasNoDocument)
{
    TZelComPtr camera(new CCamera(nullptr));
    EXPECT_EQ(camera->getObjectLink()->getMgrRef(), nullptr);
    EXPECT_EQ(camera->getViewInfo()->getObjectLink()->getMgrRef(), nullptr);
    ZelTest::CTestElement element;
    EXPECT_EQ(camera->getBasicData()->putInXML(element.element()), nullptr);
    EXPECT_FALSE(camera->getBasicData()->initWithXML(element.element(), true));
}
