#include "tests/support/CImportPair.h"

#include <algorithm>
#include <ctime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

// What an import leaves behind: documents that can be used on, no references, and the time it took.

namespace {

using namespace OvZel;
using namespace ZelTest;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kEverything = 0xFFF;

struct ImportAfterwards : testing::Test, CImportPair {
    IZelMgr& to() { return *destination.get(); }
    IZelMgr& from() { return *source.get(); }
};

/// Client data that tells how many objects still hold it.
class CMark : public IUnknown {
public:
    std::int32_t QueryInterface(const CZelUUID&, void**) override { return -1; }
    std::uint32_t AddRef() override { return ++mNbHolders; }
    std::uint32_t Release() override { return --mNbHolders; }
    std::uint32_t getNbHolders() const { return mNbHolders; }

private:
    std::uint32_t mNbHolders = 0;
};

/// Something of every list that an import looks at, on one layer.
void fill(IZelMgr& document)
{
    const CZelUUID layer = idOf(add(document.getLayers(), "Layer"));
    add(addComponent(document, "House", 1).getProperties(), "Oak");
    add(addInstance(document, "House", idOfNumber(1), layer, "ModelObject").getProperties(), "Ash");
    add(document.getGrounds(), "Ground").setActive(true);
    IZelLight& light = add(document.getLights(), "Lamp", idOfNumber(2));
    addId(light.getLightsGroups(), idOf(add(document.getLightsGroups(), "Group", idOfNumber(3))));
    add(document.getHeliodons(), "Sun");
    IZelViewInfo& info = *addView(document.getCameras(), "View").getViewInfo();
    info.setHeliodonName("Sun");
    addId(info.getLayers(), layer);
    addView(document.getParallelViews(), "View");
    addView(document.getViewObjects(), "View");
    add(addView(document.getPanoramas(), "View").getNodes(), "Node");
    IZelScenario& scenario = firstScenario(document);
    addView(scenario.getSequences(), "View");
    IZelAnimatedElement& element = add(scenario.getAnimatedElements());
    element.setId(idOfNumber(2));
    element.setElementType(2);
    IZelInterpolatedValue& value = add(element.getInterpolatedValues());
    value.setChannel(3);
    value.setPathId(idOf(add(document.get3DPaths(), "", idOfNumber(4))));
}

/// The document and one object of every kind, new or with a partner.
std::vector<IZelBasic*> objectsOf(IZelMgr& document)
{
    return {&document,
            document.getLayers()->getZelObject(0),
            document.getDefinitions()->getZelObject(0),
            document.getDefinitions()->getZelObject(0)->getProperties()->getZelObject(0),
            document.getObjectInstances()->getZelObject(0),
            document.getObjectInstances()->getZelObject(0)->getProperties()->getZelObject(0),
            document.getGrounds()->getZelObject(0),
            document.getLights()->getZelObject(0),
            document.getLightsGroups()->getZelObject(0),
            document.getHeliodons()->getZelObject(0),
            document.getCameras()->getZelObject(0),
            document.getParallelViews()->getZelObject(0),
            document.getViewObjects()->getZelObject(0),
            document.getPanoramas()->getZelObject(0)};
}

std::uint32_t put(CMark& mark, IZelMgr& document)
{
    const CZelUUID key = idOfNumber(77);
    for (IZelBasic* object : objectsOf(document))
        object->getBasicData()->setUserData(&key, &mark);
    return mark.getNbHolders();
}

TEST_F(ImportAfterwards, NoObjectOutlivesItsDocument)
{
    CMark mark;
    fill(from());
    add(addComponent(to(), "House", 1).getProperties(), "Oak");
    for (int i = 0; i < 2; ++i) // to new objects, then over them
        import(kEverything);
    EXPECT_EQ(put(mark, to()), 14u);
    EXPECT_EQ(put(mark, from()), 28u);
    EXPECT_THAT(takeMessages(), IsEmpty());
    destination.release();
    EXPECT_EQ(mark.getNbHolders(), 14u);
    source.release();
    EXPECT_EQ(mark.getNbHolders(), 0u);
}

TEST_F(ImportAfterwards, PartnersAreTheSameObjectsAsBefore)
{
    fill(to());
    fill(from());
    std::vector<IZelBasic*> before = objectsOf(to());
    // The materials of an instance are new ones. While the old one is kept, none has its address.
    constexpr std::size_t kMaterial = 5;
    IZelProperty& kept =
        *to().getObjectInstances()->getZelObject(0)->getProperties()->getZelObject(0);
    kept.AddRef();
    ASSERT_EQ(before[kMaterial], &kept);
    import(kEverything);
    std::vector<IZelBasic*> after = objectsOf(to());
    EXPECT_NE(after[kMaterial], &kept);
    before.erase(before.begin() + kMaterial);
    after.erase(after.begin() + kMaterial);
    EXPECT_EQ(after, before);
    kept.Release();
}

TEST_F(ImportAfterwards, TheSourceMayGo)
{
    fill(from());
    import(kEverything);
    const std::string saved = destination.save();
    source.release();
    EXPECT_EQ(destination.save(), saved);
    CClientDocument loaded;
    EXPECT_TRUE(loaded.read(saved));
    EXPECT_EQ(namesOf(loaded->getCameras()), namesOf(to().getCameras()));
    EXPECT_THAT(loaded.takeMessages(), IsEmpty());
}

TEST_F(ImportAfterwards, TheDestinationMayGo)
{
    fill(from());
    import(kEverything);
    IZelLight& light = *to().getLights()->getZelObject(0);
    light.AddRef();
    destination.release();
    EXPECT_EQ(nameOf(light), "Lamp");
    light.Release();
    EXPECT_TRUE(source.write());
}

/// Throws at every message.
class CThrowingFeedback : public IZelFeedback {
public:
    void message(IZelMgr*, const char*) override
    {
        ++nbMessages;
        throw std::runtime_error("no more");
    }
    bool progress(IZelMgr*, std::int32_t, std::int32_t) override { return true; }

    int nbMessages = 0;
};

TEST(ImportFailures, DocumentsStayUsableWhateverTheClientThrows)
{
    CThrowingFeedback feedback;
    IZelMgr* documents[] = {nullptr, nullptr};
    for (IZelMgr*& document : documents)
        IZelMgr::newZelMgr(&document, eVersionZel, &feedback);
    auto& [destination, source] = documents;
    fill(*source);
    addInstance(*source, "bad", idOfNumber(9), CZelUUID()).setPlacementProperty(17); // no label
    IZelMgr::doImportReference(destination, source, kEverything);
    EXPECT_EQ(feedback.nbMessages, 1);
    EXPECT_THROW(IZelMgr::doImportReference(destination, nullptr, kEverything), std::exception);
    EXPECT_THROW(IZelMgr::doImportReference(nullptr, source, kEverything), std::exception);

    CMemoryWriteStream saved;
    EXPECT_TRUE(destination->write(&saved, nullptr));
    CClientDocument loaded;
    EXPECT_TRUE(loaded.read(saved.text));
    EXPECT_THAT(namesOf(loaded->getObjectInstances()), ElementsAre("House"));
    EXPECT_THAT(namesOf(loaded->getCameras()), ElementsAre("View"));

    CMark mark;
    put(mark, *source);
    for (IZelMgr* document : documents)
        document->Release();
    EXPECT_EQ(mark.getNbHolders(), 0u);
}

TEST_F(ImportAfterwards, WithoutAnyLayerAnInstanceIsOnNone)
{
    addInstance(from(), "a", idOfNumber(1), idOfNumber(99));
    import(0x040);
    EXPECT_TRUE(to().getObjectInstances()->getZelObject(0)->getLayerId().isNull());
    EXPECT_TRUE(to().getLayerInfo()->getActiveLayer().isNull());
}

TEST_F(ImportAfterwards, ALoadedResultTakesTheNextExport)
{
    fill(to());
    fill(from());
    import(kEverything);
    CSunlessDocument loaded;
    ASSERT_TRUE(loaded.read(destination.save()));
    source.release();
    CSunlessDocument next;
    fill(*next.get());
    next->getLights()->getZelObject(0)->setPower(3.0);
    IZelMgr::doImportReference(loaded.get(), next.get(), kEverything);
    EXPECT_THAT(namesOf(loaded->getLights()), ElementsAre("Lamp"));
    EXPECT_EQ(loaded->getLights()->getZelObject(0)->getPower(), 3.0);
    EXPECT_THAT(loaded.takeMessages(), IsEmpty());
}

/// What takes time with many objects in both documents.
struct CLoad {
    const char* name;
    std::int32_t flags;
    void (*add)(IZelMgr& document, int number);
};

const CLoad kLoads[] = {
    {"instances", 0x040,
     [](IZelMgr& document, int number) {
         const CZelUUID layer = idOf(add(document.getLayers(), std::to_string(number).c_str()));
         addInstance(document, "", idOfNumber(number), layer).setAttachId(idOfNumber(number));
     }},
    {"materials", 0x001,
     [](IZelMgr& document, int number) {
         const std::string name = std::to_string(number);
         add(addComponent(document, name.c_str(), 1).getProperties(), "Oak");
     }},
    {"heliodons of cameras", 0x080,
     [](IZelMgr& document, int number) {
         const std::string name = std::to_string(number);
         add(document.getHeliodons(), name.c_str());
         add(document.getCameras(), name.c_str()).getViewInfo()->setHeliodonName(name.c_str());
     }},
    {"groups of a light", 0x010,
     [](IZelMgr& document, int number) {
         if (number == 0)
             add(document.getLights(), "Lamp");
         const CZelUUID id = idOf(add(document.getLightsGroups(), "", idOfNumber(number)));
         addId(document.getLights()->getZelObject(0)->getLightsGroups(), id);
     }},
    {"nodes of a panorama", 0x400,
     [](IZelMgr& document, int number) {
         if (number == 0)
             add(document.getPanoramas(), "Walk");
         add(document.getPanoramas()->getZelObject(0)->getNodes(), "", idOfNumber(number));
     }},
};

/// Of processor time, so that a busy machine doesn't count.
double secondsToImport(const CLoad& load, int count)
{
    CImportPair pair;
    for (int i = 0; i < count; ++i)
        for (IZelMgr* document : {pair.destination.get(), pair.source.get()})
            load.add(*document, i);
    const std::clock_t start = std::clock();
    pair.import(load.flags);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(ImportTime, GrowsWithTheLengthOfEveryList)
{
    for (const CLoad& load : kLoads) {
        const double few = secondsToImport(load, 300);
        const double many = secondsToImport(load, 3000);
        // In proportion about 10; a walk for each object makes it about 100.
        EXPECT_LT(many, 45.0 * std::max(few, 0.0005)) << load.name << " " << few;
    }
}

} // namespace
