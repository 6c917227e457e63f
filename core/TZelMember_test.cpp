#include "core/TZelMember.h"

#include "core/TZelFrontierObjLink.h"
#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

class INothing {
protected:
    ~INothing() = default;
};

class CPart : public TZelFrontierObjLink<INothing> {
public:
    CPart(IZelObjectLink* owner, std::function<void()> atEnd = nullptr)
        : TZelFrontierObjLink(owner), mAtEnd(std::move(atEnd))
    {
    }
    ~CPart() override
    {
        if (mAtEnd)
            mAtEnd();
    }

private:
    std::function<void()> mAtEnd;
};

} // namespace

TEST(Member, WhoCountsOnItsBlockAndLetsGoDestroysNothing)
{
    int nbEnds = 0;
    std::optional<TZelMember<CPart>> part;
    part.emplace(nullptr, [&] { ++nbEnds; });
    IZelSharedPtrBase* block = part->getSelfWeakPtr();
    block->addRef();
    block->release();
    EXPECT_EQ(nbEnds, 0);
    part.reset();
    EXPECT_EQ(nbEnds, 1);
}

TEST(Member, ABlockThatAClientCountsOutlivesIt)
{
    int nbEnds = 0;
    std::optional<TZelMember<CPart>> part;
    part.emplace(nullptr, [&] { ++nbEnds; });
    IZelSharedPtrBase* block = part->getSelfWeakPtr();
    block->addRef();
    part.reset();
    EXPECT_FALSE(CZelSharedPtrObject::from(block)->isAlive());
    block->release();
    EXPECT_EQ(nbEnds, 1);
}

TEST(Member, ALinkToItReadsNullWhileItEnds)
{
    CTestDocument document;
    std::optional<CPart> inner;
    IZelObjectLink* seen = document.ref();
    std::optional<TZelMember<CPart>> part;
    part.emplace(document.ref(), [&] { seen = inner->getOwnerLink(); });
    inner.emplace(part->getObjectLink());
    EXPECT_EQ(inner->getOwnerLink(), part->getObjectLink());
    part.reset();
    EXPECT_EQ(seen, nullptr);
}
