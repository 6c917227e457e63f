#include "core/TZelFrontier.h"

#include "core/CBaseObjectMgr.h"
#include "core/CPlace.h"
#include "core/CTable.h"
#include "core/CTime.h"
#include "core/CZelString.h"
#include "core/TSimpleMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/vtable.h"

#include <zel/IZelMgr.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

using namespace OvZel;
using ZelTest::slotOf;

namespace {

template <class I>
void expectObsolete(std::ptrdiff_t first, const char* name)
{
    using TFrontier = TZelFrontier<I>;
    EXPECT_EQ(slotOf(&TFrontier::obsolete1), first) << name;
    EXPECT_EQ(slotOf(&TFrontier::obsolete2), first + 1) << name;
    EXPECT_EQ(slotOf(&TFrontier::obsolete3), first + 2) << name;
}

/// Each of the three calls ends a process of its own.
void expectEnd(void* object, std::ptrdiff_t first)
{
    const char* const told = "ZEL Library is obsolete\n"
                             "Please update ZEL Library and relaunch the application.\n";
    for (std::ptrdiff_t slot = first; slot < first + 3; ++slot)
        EXPECT_EXIT(
            {
                ZelTest::callSlot(object, slot);
                std::_Exit(1);
            },
            testing::ExitedWithCode(0), testing::Eq(told))
            << "slot " << slot;
}

} // namespace

TEST(Frontier, StandsBehindTheLastOperationOfEveryInterface)
{
    expectObsolete<IZelMgr>(53, "IZelMgr"); // 56 slots in all
    expectObsolete<IZelMgrEx>(9, "IZelMgrEx");
    expectObsolete<IZelMgrRef>(11, "IZelMgrRef");
    expectObsolete<IZelObjectLinkRef>(3, "IZelObjectLinkRef");
    expectObsolete<TZelObjectMgr<CZelPoint>>(15, "TZelObjectMgr"); // 18 slots in all
    expectObsolete<IZelFileInfo>(9, "IZelFileInfo");
    expectObsolete<IZelImage>(11, "IZelImage");
    expectObsolete<ITable>(12, "ITable");
    expectObsolete<IZelPolygon>(7, "IZelPolygon");
    expectObsolete<IZelPolygon::IZelHole>(4, "IZelHole"); // behind its destructor
    expectObsolete<IZelQuad>(4, "IZelQuad");
    expectObsolete<IZelString>(8, "IZelString");
    expectObsolete<IZelTime>(10, "IZelTime");
    expectObsolete<IZelPlace>(8, "IZelPlace");
}

TEST(FrontierDeathTest, EveryObsoleteSlotTellsTheUserAndEndsTheProcess)
{
    CTime time;
    CPlace place;
    CZelString text(nullptr);
    expectEnd(static_cast<IZelTime*>(&time), 10);
    expectEnd(static_cast<IZelPlace*>(&place), 8);
    expectEnd(static_cast<IZelString*>(&text), 8);
}

TEST(FrontierDeathTest, OperationsOfSecondBasesTakeNoneOfTheSlots)
{
    ZelTest::CTestDocument document;
    const TZelComPtr owner(new CBaseObjectMgr(document.block(), document.ref()));
    const TZelComPtr points(new TSimpleMgr<CZelPoint>(document.ref()));
    const TZelComPtr table(new CTable(document.ref()));
    expectEnd(static_cast<IZelMgrRef*>(document.ref()), 11);
    expectEnd(static_cast<IZelObjectLinkRef*>(owner.get()), 3);
    expectEnd(static_cast<TZelObjectMgr<CZelPoint>*>(points.get()), 15);
    expectEnd(static_cast<ITable*>(table.get()), 12);
}
