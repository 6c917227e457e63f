#include "tests/support/CClientDocument.h"
#include "tests/support/smallScene.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

// Different documents at once, and objects of a document that end on another thread while it loads.
// The thread sanitizer sees it when they meet.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;
using ZelTest::kSmallScene;

namespace {

/// Runs both at once and waits for both.
template <class First, class Second>
void together(First first, Second second)
{
    std::atomic<int> nbReady = 0;
    const auto meet = [&] {
        for (++nbReady; nbReady < 2;)
            std::this_thread::yield();
    };
    std::thread other([&] {
        meet();
        second();
    });
    meet();
    first();
    other.join();
}

std::string rewritten(const std::string& text)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(text));
    document.readCData(text);
    return document.save();
}

void probe()
{
    for (int i = 0; i < 100; ++i) {
        CMemoryReadStream stream(kSmallScene);
        IZelMgr::eReadability readability = IZelMgr::eUnknown;
        EXPECT_TRUE(IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0));
        IZelFileInfo* info = nullptr;
        IZelMgr::readFileInfo(&info, &stream);
        info->Release();
        IZelImage* preview = nullptr;
        IZelMgr::readPreviewImage(&preview, &stream);
        ASSERT_NE(preview, nullptr);
        preview->Release();
    }
}

/// Takes the objects of a document out of it; the references that are returned are the last ones.
std::vector<IUnknown*> takeObjects(IZelMgr& document)
{
    IZelPolygon* polygon = document.getPolygons()->getZelObject(1);
    std::vector<IUnknown*> taken = {
        document.getImages()->getZelObject(0),
        document.getImages()->getZelObject(1),
        document.getDefinitions()->getZelObject(0),
        document.getDefinitions()->getZelObject(1),
        document.getDefinitions()->getZelObject(0)->getPolygons()->getZelObject(0)->getVertices(),
        polygon->getVertices(),
        polygon->getHoles(),
        polygon->getHoles()->getZelObject(0)->getVertices(),
    };
    for (IUnknown* object : taken)
        object->AddRef();
    document.getImages()->removeAllObjects();
    document.getDefinitions()->removeAllObjects();
    document.getPolygons()->removeAllObjects();
    return taken;
}

} // namespace

TEST(DocumentsThread, TwoThreadsLoadAndSaveDifferentDocuments)
{
    const std::string saved = rewritten(kSmallScene);
    const auto run = [&] {
        for (int i = 0; i < 30; ++i)
            EXPECT_EQ(rewritten(kSmallScene), saved);
    };
    together(run, run);
}

TEST(DocumentsThread, ProbesRunWhileADocumentLoads)
{
    CClientDocument document;
    together(
        [&] {
            for (int i = 0; i < 50; ++i)
                EXPECT_TRUE(document.read(kSmallScene));
        },
        probe);
}

TEST(DocumentsThread, LastReferencesAreDroppedWhileTheDocumentLoads)
{
    CClientDocument document;
    ASSERT_TRUE(document.read(kSmallScene));
    for (int i = 0; i < 50; ++i) {
        const std::vector<IUnknown*> objects = takeObjects(*document.get());
        together(
            [&] {
                EXPECT_TRUE(document.read(kSmallScene));
                EXPECT_TRUE(document.write());
            },
            [&] {
                for (IUnknown* object : objects)
                    object->Release();
            });
        EXPECT_EQ(document->getImages()->getNbObjects(), 2);
        EXPECT_EQ(document->getDefinitions()->getNbObjects(), 2);
    }
}

TEST(DocumentsThread, ReferencesComeAndGoWhileTheDocumentEnds)
{
    for (int i = 0; i < 100; ++i) {
        CClientDocument document;
        ASSERT_TRUE(document.read(kSmallScene));
        const std::vector<IUnknown*> objects = takeObjects(*document.get());
        IZelImage* preview = document->getPreviewImage();
        preview->AddRef();
        together([&] { document.release(); },
                 [&] {
                     for (IUnknown* object : objects) {
                         object->AddRef();
                         object->Release();
                         object->Release();
                     }
                     // What belongs to a document that is gone, or is just going, finds none.
                     IZelMgrRef* reference = preview->getObjectLink()->getMgrRef();
                     if (reference != nullptr)
                         reference->getLanguage();
                     preview->Release();
                 });
    }
}
