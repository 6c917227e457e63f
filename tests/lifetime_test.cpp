#include "tests/support/CClientDocument.h"
#include "tests/support/smallScene.h"

#include <gtest/gtest.h>

#include <functional>

// What a client keeps stays good: counted objects outlive their document and the content that a
// further load replaces. The address sanitizer sees it when they don't.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::kSmallScene;

namespace {

constexpr const char* kOtherScene =
    "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?><Zel.File>"
    "<Image><![CDATA[000000010000000100000001000000010A0B0C0D]]></Image>"
    "<Points><![CDATA[1 9 9 9]]></Points><Polygons><![CDATA[1 p 0 1 0]]></Polygons>"
    "<Working.Window/></Zel.File>";

/// A reference that goes with the test.
template <class T>
class CKept {
public:
    explicit CKept(T* object) : mObject(object) { mObject->AddRef(); }
    CKept(CKept&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
    CKept& operator=(CKept&&) = delete;
    ~CKept()
    {
        if (mObject != nullptr)
            mObject->Release();
    }
    T* operator->() const { return mObject; }
    T* get() const { return mObject; }

private:
    T* mObject;
};

template <class T>
CKept(T*) -> CKept<T>;

/// Everything that an object without a document can be asked for its basics.
void useBasics(IZelBasic& object)
{
    IZelBasicData* data = object.getBasicData();
    ASSERT_NE(data, nullptr);
    data->getId();
    data->getName();
    data->setName("kept");
    data->setUIValue(data->getUIValue());
    data->getUserData(&IZelBasic::sIID);
    if (data->getWarningTarget() != nullptr)
        data->setName(nullptr); // warns
    IZelObjectLink* link = object.getObjectLink();
    ASSERT_NE(link, nullptr);
    link->getOwnerLink();
    if (IZelSharedPtrBase* block = link->getSelfWeakPtr()) {
        block->addWeakRef();
        block->releaseWeakRef();
    }
    if (IZelMgrRef* reference = link->getMgrRef()) {
        reference->getLanguage();
        reference->getMgr();
    }
    void* again = nullptr;
    EXPECT_EQ(object.QueryInterface(IID_IUnknown, &again), kQueryOk);
    object.Release();
}

template <class T>
void useList(TZelObjectMgr<T>& list)
{
    useBasics(list);
    const std::int32_t nb = list.getNbObjects();
    for (std::int32_t i = 0; i < nb; ++i)
        EXPECT_NE(list.getZelObject(i), nullptr);
    EXPECT_EQ(list.getZelObject(nb), nullptr); // warns
    list.newZelObject(-1);
    EXPECT_EQ(list.getNbObjects(), nb + 1);
    list.moveObject(nb, 0);
    list.removeObject(0);
    list.reserve(nb + 10);
}

void useImage(IZelImage& image)
{
    useBasics(image);
    std::uint32_t width = 0, height = 0;
    std::uint8_t* pixels = nullptr;
    image.getImage(&width, &height, &pixels);
    ASSERT_NE(pixels, nullptr);
    unsigned sum = 0;
    for (std::size_t i = 0; i < std::size_t{4} * width * height; ++i)
        sum += pixels[i];
    EXPECT_GT(sum, 0U);
    const std::uint8_t pixel[4] = {1, 2, 3, 4};
    image.setImage(1, 1, pixel);
}

void usePolygons(TZelObjectMgr<IZelPolygon>& polygons)
{
    IZelPolygon* first = polygons.getZelObject(0);
    ASSERT_NE(first, nullptr);
    useList(*first->getVertices());
    IZelPolygon* made = polygons.newZelObject(-1);
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->copy(first));
    useList(*made->getHoles());
    useList(polygons);
}

void useDefinition(IZelZelObjectDefinition& definition)
{
    useBasics(definition);
    definition.getName()->setText(0x656E, "kept");
    definition.getName()->getCurrentText();
    useList(*definition.getPoints());
    if (definition.getPolygons()->getNbObjects() > 0)
        usePolygons(*definition.getPolygons());
}

using CUse = std::function<void()>;

/// A use of the kept object, at the time when it is called.
template <class T>
CUse later(T* object, void (*use)(T&))
{
    auto kept = std::make_shared<CKept<T>>(object);
    return [kept, use] { use(*kept->get()); };
}

/// One of each kind of object that a client can keep.
std::vector<CUse> keepAll(IZelMgr& document)
{
    IZelZelObjectDefinition* component = document.getDefinitions()->getZelObject(0);
    IZelPolygon* withHole = document.getPolygons()->getZelObject(1);
    IZelPolygon::IZelHole* hole = withHole->getHoles()->getZelObject(0);
    return {
        later<TZelObjectMgr<CZelPoint>>(document.getPoints(), useList),
        later<TZelObjectMgr<IZelPolygon>>(document.getPolygons(), usePolygons),
        later<TZelObjectMgr<IZelImage>>(document.getImages(), useList),
        later<TZelObjectMgr<IZelZelObjectDefinition>>(document.getDefinitions(), useList),
        later<IZelImage>(document.getImages()->getZelObject(0), useImage),
        later<IZelImage>(document.getPreviewImage(), useImage),
        later<IZelFileInfo>(document.getFileInfo(),
                            [](IZelFileInfo& info) {
                                useBasics(info);
                                info.setOrigin(info.getOrigin());
                            }),
        later<IZelZelObjectDefinition>(document.getObjectDefinition(), useDefinition),
        later<IZelZelObjectDefinition>(component, useDefinition),
        later<TZelObjectMgr<CZelPoint>>(component->getPoints(), useList),
        later<TZelObjectMgr<IZelPolygon>>(component->getPolygons(), usePolygons),
        later<TZelObjectMgr<CZelVertex>>(withHole->getVertices(), useList),
        later<TZelObjectMgr<IZelPolygon::IZelHole>>(withHole->getHoles(), useList),
        later<TZelObjectMgr<CZelVertex>>(hole->getVertices(), useList),
        later<IZelMgrRef>(document.getObjectLink()->getMgrRef(),
                          [](IZelMgrRef& reference) {
                              reference.setLanguage("de");
                              reference.setLanguage("long"); // warns
                              double point[3] = {1, 2, 3};
                              reference.transformPoint(point);
                              if (reference.getMgr() != nullptr)
                                  reference.getMgr()->getURL();
                          }),
    };
}

/// Some uses answer with a warning on purpose; that is not what is looked at here.
void useAll(const std::vector<CUse>& uses)
{
    for (std::size_t i = 0; i < uses.size(); ++i) {
        SCOPED_TRACE("object " + std::to_string(i));
        uses[i]();
    }
}

} // namespace

TEST(Lifetime, ObjectsAreGoodBehindTheEndOfTheirDocument)
{
    std::vector<CUse> uses;
    {
        CClientDocument document;
        ASSERT_TRUE(document.read(kSmallScene));
        uses = keepAll(*document.get());
    } // with the feedback, which nothing may call any more
    useAll(uses);
    while (!uses.empty()) {
        uses.pop_back();
        useAll(uses);
    }
}

TEST(Lifetime, ObjectsAreGoodBehindASecondRead)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    const std::vector<CUse> uses = keepAll(*document.get());
    ASSERT_TRUE(document.read(kOtherScene));
    useAll(uses);
    ASSERT_TRUE(document.read(kSmallScene));
    EXPECT_TRUE(document.write());
    useAll(uses);
}

TEST(Lifetime, ObjectsAreGoodBehindAFailedRead)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    const std::vector<CUse> uses = keepAll(*document.get());
    const std::string text = kSmallScene;
    for (std::size_t length = text.size() / 2; length < text.size(); length += 200) {
        document.read(text.substr(0, length));
        document.readCData(kOtherScene);
    }
    useAll(uses);
    document.release();
    useAll(uses);
}

TEST(Lifetime, TheReferenceObjectFindsNoDocumentOnceItIsGone)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    const CKept image(document->getImages()->getZelObject(0));
    const CKept reference(image->getObjectLink()->getMgrRef());
    EXPECT_EQ(reference->getMgr(), document.get());
    document.takeMessages();
    document.release();
    EXPECT_EQ(reference->getMgr(), nullptr);
    image->getBasicData()->setName(nullptr);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{}); // warns nobody
}

TEST(Lifetime, TheFeedbackMayEndTheLastOtherReference)
{
    // The document is held by the call's own client only; the objects go while messages are sent.
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    std::vector<CUse> uses = keepAll(*document.get());
    document.feedback.onProgress = [&] {
        if (!uses.empty())
            uses.pop_back();
        return true;
    };
    EXPECT_TRUE(document.read(kSmallScene));
    EXPECT_TRUE(document.write());
    document.feedback.onProgress = {};
    EXPECT_TRUE(document.read(kOtherScene));
}
