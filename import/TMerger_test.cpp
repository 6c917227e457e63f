#include "import/TMerger.h"

#include "core/TComObjectMgr.h"
#include "objects/CZelLayer.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/messageOf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace OvZel;
using testing::ElementsAre;
using testing::IsEmpty;

/// A layer that cannot be written when it is named "mute". When the source is named "torn" it is
/// read half-way, and has another name then.
class CFrailLayer : public CZelLayer {
public:
    using CZelLayer::CZelLayer;

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override
    {
        if (std::string(getName()) == "mute")
            OvThrow::Signal("mute");
        return CZelLayer::addXML(io, element);
    }
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override
    {
        CZelLayer::getXML(io, element);
        if (std::string(getName()) != "torn")
            return true;
        setName("half");
        OvThrow::Signal("torn");
    }
};

/// Makes so many layers and no more.
class CShortList : public TComObjectMgr<CFrailLayer, IZelLayer> {
public:
    using TComObjectMgr::TComObjectMgr;

    IZelLayer* newZelObject(std::int32_t index) override
    {
        return room-- > 0 ? TComObjectMgr::newZelObject(index) : nullptr;
    }

    int room = 100;
};

class Merger : public testing::Test {
protected:
    IZelLayer& add(CShortList& list, const char* name, std::uint32_t value = 0)
    {
        IZelLayer& layer = *list.newZelObject(-1);
        layer.getBasicData()->setName(name);
        layer.getBasicData()->setUIValue(value);
        return layer;
    }
    std::vector<std::pair<std::string, std::uint32_t>> content()
    {
        std::vector<std::pair<std::string, std::uint32_t>> all;
        for (std::int32_t i = 0; i < destination->getNbObjects(); ++i) {
            IZelBasicData& data = *destination->getZelObject(i)->getBasicData();
            all.emplace_back(data.getName(), data.getUIValue());
        }
        return all;
    }

    ZelTest::CTestDocument document;
    TZelComPtr<CShortList> destination{new CShortList(document.ref())};
    TZelComPtr<CShortList> source{new CShortList(document.ref())};
    TMerger<IZelLayer, CNameOf> merger{*destination};
};

TEST_F(Merger, WhatCannotBeWrittenMakesNothing)
{
    const auto copy = merger.merge(add(*source, "mute"));
    EXPECT_EQ(copy.object, nullptr);
    EXPECT_FALSE(copy.isComplete);
    EXPECT_THAT(content(), IsEmpty());
    EXPECT_EQ(document.takeMessages().size(), 1u);
}

TEST_F(Merger, WhatCannotBeReadStaysAsFarAsItCame)
{
    const auto copy = merger.merge(add(*source, "torn", 1));
    EXPECT_FALSE(copy.isComplete);
    EXPECT_THAT(content(), ElementsAre(std::pair("half", 1u)));
    EXPECT_EQ(copy.object, destination->getZelObject(0));
}

TEST_F(Merger, ANameLostHalfWayPairsNoMore)
{
    add(*destination, "torn");
    merger.merge(add(*source, "torn", 1));
    merger.merge(add(*source, "half", 2)); // the name that it has now
    EXPECT_THAT(content(), ElementsAre(std::pair("half", 2u)));
    merger.merge(add(*source, "torn", 3)); // is nobody's name
    EXPECT_THAT(content(), ElementsAre(std::pair("half", 2u), std::pair("half", 3u)));
}

TEST_F(Merger, AListThatMakesNothingRaises)
{
    destination->room = 1;
    merger.merge(add(*source, "a"));
    IZelLayer& second = add(*source, "b");
    EXPECT_EQ(ZelTest::messageOf([&] { merger.merge(second); }), "");
    merger.merge(add(*source, "a", 5)); // the list is as good as before
    EXPECT_THAT(content(), ElementsAre(std::pair("a", 5u)));
}

TEST_F(Merger, MergeByNameIsDoneWithCompleteCopiesAlone)
{
    for (const char* name : {"a", "mute", "torn", "b"})
        add(*source, name);
    std::vector<std::string> done;
    mergeByName<IZelLayer>(*destination, *source, [&](IZelLayer& copy, IZelLayer& original) {
        EXPECT_EQ(CNameOf()(copy), CNameOf()(original));
        done.push_back(CNameOf()(copy));
    });
    EXPECT_THAT(done, ElementsAre("a", "b"));
}

} // namespace
