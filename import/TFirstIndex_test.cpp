#include "import/TFirstIndex.h"

#include "core/TComObjectMgr.h"
#include "objects/CZelLayer.h"
#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

namespace {

using namespace OvZel;

TEST(FirstIndex, FindsTheFirstAndSeesWhatIsAppended)
{
    ZelTest::CTestDocument document;
    const TZelComPtr list(new TComObjectMgr<CZelLayer, IZelLayer>(document.ref()));
    TNameIndex<IZelLayer> index(*list);
    EXPECT_EQ(index.find(""), nullptr);
    IZelLayer* first = list->newZelObject(-1);
    EXPECT_EQ(index.find(CNameOf()(*first)), first);
    first->getBasicData()->setName("a");
    index.forget();
    IZelLayer* second = list->newZelObject(-1);
    second->getBasicData()->setName("a");
    IZelLayer* third = list->newZelObject(-1);
    third->getBasicData()->setName("");
    EXPECT_EQ(index.find("a"), first);
    EXPECT_EQ(index.find(""), third);
    EXPECT_EQ(index.find("A"), nullptr);
    TIdIndex<IZelLayer> ids(*list);
    EXPECT_EQ(ids.find(*second->getBasicData()->getId()), second);
}

} // namespace
