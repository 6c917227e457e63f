#include "materials/CZelMultiMaps.h"

#include "materials/CZelSubPart.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OvZel;
using ZelTest::CTestDocument;
using CMessages = std::vector<std::string>;

TEST(ZelMultiMaps, HoldAnAddressForEachKind)
{
    CTestDocument document;
    CZelMultiMaps maps(document.ref());
    for (std::int32_t kind = 1; kind <= 11; ++kind) {
        EXPECT_STREQ(maps.getURL(kind), "");
        maps.setURL(kind, std::to_string(kind).c_str());
    }
    for (std::int32_t kind = 1; kind <= 11; ++kind)
        EXPECT_EQ(maps.getURL(kind), std::to_string(kind));
    maps.setURL(3, nullptr);
    EXPECT_STREQ(maps.getURL(3), "");
    EXPECT_EQ(document.takeMessages(), CMessages());
}

TEST(ZelMultiMaps, WarnOfOtherKinds)
{
    CTestDocument document;
    CZelMultiMaps maps(document.ref());
    for (const std::int32_t kind : {0, 12, -1}) {
        EXPECT_EQ(maps.getURL(kind), nullptr);
        maps.setURL(kind, "a");
        EXPECT_EQ(document.takeMessages(), (CMessages{"CZelMultiMaps::getURL - Invalid map type",
                                                      "CZelMultiMaps::setURL - Invalid map type"}));
    }
}

TEST(ZelMultiMaps, RaiseWhenThereIsNobodyToWarn)
{
    CZelMultiMaps maps;
    EXPECT_EQ(ZelTest::messageOf([&] { maps.getURL(0); }), "");
    EXPECT_EQ(ZelTest::messageOf([&] { maps.setURL(12, "a"); }), "");
    EXPECT_EQ(ZelTest::messageOf([&] { maps.setURL(11, "a"); }), "no exception");
}

TEST(ZelMultiMaps, WarnThroughTheOwnerOfTheirList)
{
    CTestDocument document;
    const TZelComPtr<CMultiMapsMgr> list(new CMultiMapsMgr(document.ref()));
    EXPECT_EQ(list->newZelObject(-1)->getURL(0), nullptr);
    EXPECT_EQ(document.takeMessages(), CMessages{"CZelMultiMaps::getURL - Invalid map type"});
}

TEST(ZelSubPart, TakesAnyKindAndNeverWarns)
{
    CZelSubPart part;
    EXPECT_EQ(part.getURL(0), nullptr);
    EXPECT_EQ(part.getURL(1), nullptr);
    part.setURL(0, "a");
    part.setURL(99, nullptr);
    EXPECT_STREQ(part.getURL(0), "a");
    EXPECT_STREQ(part.getURL(99), "");
    EXPECT_EQ(part.getWidth(), 1.0);
    EXPECT_EQ(part.getHeight(), 1.0);
    part.setWidth(-2.0);
    part.setHeight(3.0);
    EXPECT_EQ(part.getWidth(), -2.0);
    EXPECT_EQ(part.getHeight(), 3.0);
}

TEST(ZelMultiMaps, ListsAreCopiedBehindWhatIsThere)
{
    const TZelComPtr<CMultiMapsMgr> source(new CMultiMapsMgr(nullptr));
    const TZelComPtr<CMultiMapsMgr> target(new CMultiMapsMgr(nullptr));
    target->newZelObject(-1);
    source->newZelObject(-1)->setURL(7, "bump");
    source->newZelObject(-1);
    source->newZelObject(-1)->setURL(11, "movie");
    testing::internal::CaptureStdout();
    CZelMultiMaps::CopyMultiMapsMgr(*target, *source);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "CZelMultiMaps::CopyMultiMapsMgr - Warning: Sub part without url\n");
    ASSERT_EQ(target->size(), 4);
    EXPECT_STREQ(target->at(1)->getURL(7), "bump");
    EXPECT_STREQ(target->at(2)->getURL(7), "");
    EXPECT_STREQ(target->at(3)->getURL(11), "movie");
}

TEST(ZelSubPart, ListsAreCopiedWithTheKindsThatAreSaved)
{
    using CSubParts = TObjectMgr<CZelSubPart, IZelSubPart>;
    const TZelComPtr<CSubParts> source(new CSubParts(nullptr));
    const TZelComPtr<CSubParts> target(new CSubParts(nullptr));
    IZelSubPart* part = source->newZelObject(-1);
    part->setURL(1, "one");
    part->setURL(2, "");
    part->setURL(12, "twelve");
    part->setWidth(2.0);
    part->setHeight(3.0);
    source->newZelObject(-1)->setURL(0, "zero");
    testing::internal::CaptureStdout();
    CZelSubPart::CopySubPartsMgr(*target, *source);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "CZelSubPart::CopySubPartsMgr - Warning: Sub part without url\n");
    ASSERT_EQ(target->size(), 2);
    EXPECT_STREQ(target->at(0)->getURL(1), "one");
    EXPECT_EQ(target->at(0)->getURL(2), nullptr);
    EXPECT_EQ(target->at(0)->getURL(12), nullptr);
    EXPECT_EQ(target->at(0)->getWidth(), 2.0);
    EXPECT_EQ(target->at(0)->getHeight(), 3.0);
    EXPECT_EQ(target->at(1)->getURL(0), nullptr);
}
