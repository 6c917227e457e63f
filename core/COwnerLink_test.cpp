#include "core/COwnerLink.h"

#include "core/CBaseObjectMgr.h"
#include "core/TZelFrontierObjLink.h"
#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

#include <memory>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

class INothing {
protected:
    ~INothing() = default;
};

class CPart : public TZelFrontierObjLink<INothing> {
public:
    explicit CPart(IZelObjectLink* owner) : TZelFrontierObjLink(owner) {}
};

} // namespace

TEST(OwnerLink, IsNullWithoutAnOwner)
{
    const COwnerLink link(nullptr);
    EXPECT_EQ(link.get(), nullptr);
    EXPECT_EQ(link.getMgrRef(), nullptr);
}

TEST(OwnerLink, ReadsNullOnceThePlainOwnerIsGone)
{
    CTestDocument document;
    auto whole = std::make_unique<CPart>(document.ref());
    const CPart part(whole.get());
    EXPECT_EQ(part.getOwnerLink(), whole->getObjectLink());
    EXPECT_EQ(part.getMgrRef(), document.ref());
    whole.reset();
    EXPECT_EQ(part.getOwnerLink(), nullptr);
    EXPECT_EQ(part.getMgrRef(), nullptr);
}

TEST(OwnerLink, FindsTheDocumentOverSeveralOwners)
{
    CTestDocument document;
    const CPart outer(document.ref()), middle(outer.getOwnerLink()), inner(nullptr);
    EXPECT_EQ(middle.getMgrRef(), document.ref());
    EXPECT_EQ(inner.getMgrRef(), nullptr);
}

TEST(OwnerLink, KeepsACountedOwnerAlive)
{
    CTestDocument document;
    TZelComPtr owner(new CBaseObjectMgr(document.block(), document.ref()));
    const CPart part(owner.get());
    CBaseObjectMgr* address = owner.get();
    owner.reset();
    document.die();
    ASSERT_EQ(part.getOwnerLink(), address);
    ASSERT_NE(part.getMgrRef(), nullptr);
    EXPECT_EQ(part.getMgrRef()->getMgr(), nullptr);
}

TEST(OwnerLink, TheReferenceObjectOfADeadDocumentStillAnswers)
{
    CTestDocument document;
    const CPart part(document.ref());
    document.die();
    ASSERT_NE(part.getMgrRef(), nullptr);
    EXPECT_EQ(part.getMgrRef(), part.getOwnerLink());
    EXPECT_EQ(part.getMgrRef()->getMgr(), nullptr);
}
