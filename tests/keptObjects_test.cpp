#include "tests/support/CClientDocument.h"

#include <zel/IZel3DPath.h>
#include <zel/IZelAnimation.h>
#include <zel/IZelBBMgrData.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelCamera.h>
#include <zel/IZelEnvironment.h>
#include <zel/IZelExternalDefinition.h>
#include <zel/IZelGround.h>
#include <zel/IZelHeliodon.h>
#include <zel/IZelImage.h>
#include <zel/IZelLayer.h>
#include <zel/IZelLight.h>
#include <zel/IZelLightsGroup.h>
#include <zel/IZelObjectInstance.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelProperty.h>
#include <zel/IZelScenario.h>
#include <zel/IZelViewObject.h>
#include <zel/IZelXML.h>
#include <zel/IZelZelObjectDefinition.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

// An object that a client keeps is good when its list has lost it, and when the document is gone.
// The address sanitizer sees it when it isn't, and when the last reference leaves something.

using namespace OvZel;
using OrvaneXML::XIXMLElement;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelTest::CClientDocument;

namespace {

/// What every object can be asked for, whatever its class.
struct CKeptObject {
    const char* name = nullptr;
    IUnknown* object = nullptr;
    IZelBasicData* data = nullptr;
    std::function<void()> remove;
};

template <class T>
CKeptObject kept(const char* name, TZelObjectMgr<T>* list)
{
    T* object = list->newZelObject(-1);
    object->AddRef();
    return {name, object, object->getBasicData(), [list] { list->removeObject(-1); }};
}

/// One of each class that has a count.
std::vector<CKeptObject> keepAll(CClientDocument& document)
{
    return {
        kept("camera", document->getCameras()),
        kept("property", document->getProperties()),
        kept("light", document->getLights()),
        kept("view object", document->getViewObjects()),
        kept("parallel view", document->getParallelViews()),
        kept("heliodon", document->getHeliodons()),
        kept("lights group", document->getLightsGroups()),
        kept("instance", document->getObjectInstances()),
        kept("3D path", document->get3DPaths()),
        kept("ground", document->getGrounds()),
        kept("layer", document->getLayers()),
        kept("definition", document->getDefinitions()),
        kept("panorama", document->getPanoramas()),
        kept("external definition", document->getExternalDefinitions()),
        kept("working view", document.more().getWorkingViews()),
        kept("image", document->getImages()),
    };
}

template <class Data>
void useForm(Data& data, CClientDocument& host)
{
    XIXMLElement* own = host->getApplicationData("Own");
    XIXMLElement* made = data.putInXML(own);
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(data.initWithXML(own, true));
    made->Destroy();
}

void useObject(const CKeptObject& each, CClientDocument& host)
{
    void* again = nullptr;
    ASSERT_EQ(each.object->QueryInterface(IID_IUnknown, &again), kQueryOk);
    each.object->Release();
    each.data->setName("kept");
    EXPECT_STREQ(each.data->getName(), "kept");
    each.data->setUIValue(7);
    EXPECT_EQ(each.data->getUIValue(), 7U);
    EXPECT_FALSE(each.data->getId()->isNull());
    if (std::string(each.name) != "image") // which has no form of its own
        useForm(*each.data, host);
}

/// Keeps a list, which has some objects.
template <class T>
std::function<void(CClientDocument&)> keptList(TZelObjectMgr<T>* list)
{
    list->AddRef();
    list->newZelObject(-1);
    list->newZelObject(-1);
    return [list](CClientDocument& host) {
        const std::int32_t nb = list->getNbObjects();
        EXPECT_GE(nb, 2);
        T* made = list->newZelObject(-1);
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(list->getZelObject(nb), made);
        if constexpr (std::is_base_of_v<IZelXML, T>)
            useForm(*made, host);
        EXPECT_EQ(list->getZelObject(nb + 1), nullptr); // would warn
        list->removeObject(0);
        list->moveObject(nb - 1, 0);
        EXPECT_EQ(list->getZelObject(0), made);
        list->removeAllObjects();
        EXPECT_EQ(list->getNbObjects(), 0);
        list->Release();
    };
}

} // namespace

TEST(KeptObjects, AreGoodWhenTheirListHasLostThem)
{
    CClientDocument host, document;
    for (const CKeptObject& each : keepAll(document)) {
        SCOPED_TRACE(each.name);
        each.remove();
        useObject(each, host);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        each.object->Release();
    }
    EXPECT_TRUE(document.write());
}

TEST(KeptObjects, AreGoodBehindTheEndOfTheirDocument)
{
    for (const bool isRemoved : {false, true}) {
        CClientDocument host, document;
        const std::vector<CKeptObject> all = keepAll(document);
        for (const CKeptObject& each : all)
            if (isRemoved)
                each.remove();
        document.release();
        for (const CKeptObject& each : all) {
            SCOPED_TRACE(each.name);
            useObject(each, host);
        }
        for (const CKeptObject& each : all)
            each.object->Release();
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        EXPECT_THAT(host.takeMessages(), IsEmpty());
    }
}

TEST(KeptObjects, TellNobodyOnceTheDocumentIsGone)
{
    CClientDocument document;
    const std::vector<CKeptObject> all = keepAll(document);
    for (const CKeptObject& each : all) {
        SCOPED_TRACE(each.name);
        each.data->setName(nullptr);
        EXPECT_THAT(document.takeMessages(),
                    ElementsAre("CZelBasicData::setName - inName is NULL"));
    }
    document.release();
    for (const CKeptObject& each : all) {
        SCOPED_TRACE(each.name);
        each.data->setName(nullptr);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        each.object->Release();
    }
}

TEST(KeptObjects, ListsAreGoodBehindTheEndOfTheirDocument)
{
    CClientDocument host, document;
    const std::vector<std::function<void(CClientDocument&)>> lists = {
        keptList(document->getCameras()),
        keptList(document->getProperties()),
        keptList(document->getLights()),
        keptList(document->getViewObjects()),
        keptList(document->getParallelViews()),
        keptList(document->getHeliodons()),
        keptList(document->getLightsGroups()),
        keptList(document->getObjectInstances()),
        keptList(document->getScenarios()),
        keptList(document->get3DPaths()),
        keptList(document->getEnvironments()),
        keptList(document->getGrounds()),
        keptList(document->getLayers()),
        keptList(document->getDefinitions()),
        keptList(document->getPanoramas()),
        keptList(document->getExternalDefinitions()),
        keptList(document.more().getAnimations()),
        keptList(document.more().getBillboards()),
        keptList(document.more().getWorkingViews()),
        keptList(document->getImages()),
    };
    document.release();
    for (std::size_t i = 0; i < lists.size(); ++i) {
        SCOPED_TRACE(i);
        lists[i](host);
    }
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    EXPECT_THAT(host.takeMessages(), IsEmpty());
}
