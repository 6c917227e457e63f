#include "xml/CZELProvider.h"

#include "tests/support/CTestBlockHost.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/vtable.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::CTestElement;
using ZelTest::messageOf;
using ZelTest::slotOf;

namespace {

class CProvider : public CZELProvider {
public:
    CProvider(IBlockHost* host, std::function<bool()> action)
        : CZELProvider(host), mAction(std::move(action))
    {
    }
    IXMLCData* Clone2() override { return mAction() ? new CProvider(host(), mAction) : nullptr; }
    bool Write2(OrvaneXML::XIXMLWriteStream*, OrvaneXML::XIXMLData*) override { return mAction(); }

private:
    std::function<bool()> mAction;
};

} // namespace

TEST(ZELProvider, AddsItsOperationsBehindThoseOfItsBase)
{
    EXPECT_EQ(slotOf(&CZELProvider::Write), 0);
    EXPECT_EQ(slotOf(&CZELProvider::Clone), 1);
    EXPECT_EQ(slotOf(&CZELProvider::Destroy), 2);
    EXPECT_EQ(slotOf(&CZELProvider::Clone2), 5);
    EXPECT_EQ(slotOf(&CZELProvider::Write2), 6);
}

TEST(ZELProvider, NeedsAHost)
{
    EXPECT_EQ(messageOf([] { CProvider(nullptr, [] { return true; }); }), "");
}

TEST(ZELProvider, SendsTheTextOfAFailure)
{
    struct {
        std::function<bool()> action;
        bool result;
        std::vector<std::string> messages;
    } const cases[] = {
        {[] { return true; }, true, {}},
        {[] { return false; }, false, {}},
        {[]() -> bool { throw std::runtime_error("text"); }, false, {"text"}},
        {[]() -> bool { throw std::runtime_error(""); }, false, {"Unknown exception"}},
        {[]() -> bool { throw 1; }, false, {"Unknown provider writing exception"}},
    };
    for (const auto& test : cases) {
        CTestBlockHost host;
        CProvider provider(&host, test.action);
        EXPECT_EQ(provider.Write(nullptr, nullptr, nullptr), test.result);
        EXPECT_EQ(host.messages, test.messages);
    }
}

TEST(ZELProvider, ACancelIsToldOnceAndEndsTheSave)
{
    CTestBlockHost host;
    host.cancel = true;
    const auto cancelled = [&]() -> bool {
        host.reportProgress(0, 1);
        return true;
    };
    CTestElement document("<E><A/><B/></E>");
    for (auto* child = document.element()->GetFirstElement(); child != nullptr;
         child = child->GetNextElement())
        child->SetCData(new CProvider(&host, cancelled));
    EXPECT_THROW(document.text(), CZelCancelled);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Operation cancelled"});
}

TEST(ZELProvider, AFailedSectionDoesNotEndTheSave)
{
    CTestBlockHost host;
    CTestElement document("<E><A/><B/></E>");
    const auto fail = []() -> bool { throw std::runtime_error("text"); };
    document.element()->GetFirstElement()->SetCData(new CProvider(&host, fail));
    EXPECT_EQ(document.text(), "<E><A><![CDATA[]]></A><B/></E>");
    EXPECT_EQ(host.messages, std::vector<std::string>{"text"});
}

TEST(ZELProvider, CloneGivesNullOnAnyFailure)
{
    CTestBlockHost host;
    CProvider failing(&host, []() -> bool { throw std::runtime_error("text"); });
    CProvider odd(&host, []() -> bool { throw 1; });
    CProvider good(&host, [] { return true; });
    EXPECT_EQ(failing.Clone(), nullptr);
    EXPECT_EQ(odd.Clone(), nullptr);
    OrvaneXML::XIXMLData::IXMLCData* const clone = good.Clone();
    ASSERT_NE(clone, nullptr);
    clone->Destroy();
    EXPECT_TRUE(host.messages.empty());
}
