#include "core/CZelMgrRef.h"

#include "tests/support/CTestDocument.h"

#include <zel/IZelBasic.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

using namespace OvZel;
using ZelTest::CTestDocument;

namespace {

using CMessages = std::vector<std::string>;

const std::vector<double> kIdentity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
const std::vector<double> kAllTwos(16, 2.0);

/// No element equals the identity's but the one at the place.
std::vector<double> agreeingAt(std::size_t place)
{
    std::vector<double> matrix = kAllTwos;
    matrix[place] = kIdentity[place];
    return matrix;
}

bool isActive(const CZelMgrRef& ref)
{
    double point[3] = {1, 2, 3};
    ref.transformPoint(point);
    return point[0] != 1 || point[1] != 2 || point[2] != 3;
}

class CThrowingFeedback : public IZelFeedback {
public:
    void message(IZelMgr*, const char*) override
    {
        ++nbCalls;
        throw 7;
    }
    bool progress(IZelMgr*, std::int32_t, std::int32_t) override { return true; }

    int nbCalls = 0;
};

} // namespace

TEST(MgrRef, IsTheEndOfTheChainOfLinks)
{
    CTestDocument document;
    CZelMgrRef* ref = document.ref();
    EXPECT_EQ(ref->getMgrRef(), ref);
    EXPECT_EQ(ref->getOwnerLink(), nullptr);
    EXPECT_EQ(ref->getCOMWeakPtr(), document.block());
    EXPECT_EQ(ref->getSelfWeakPtr(), document.block());
}

TEST(MgrRef, FindsTheDocumentWhileItLives)
{
    CTestDocument document;
    const TZelComPtr<CZelMgrRef> kept(document.ref());
    EXPECT_EQ(kept->getMgr(), CTestDocument::address());
    document.die();
    EXPECT_EQ(kept->getMgr(), nullptr);
}

TEST(MgrRef, RaisesWithoutABlock)
{
    const TZelComPtr<CZelMgrRef> ref(new CZelMgrRef(nullptr, nullptr, nullptr));
    try {
        ref->getMgr();
        FAIL() << "nothing raised";
    } catch (const std::runtime_error& failure) {
        EXPECT_STREQ(failure.what(), "TZelWeakPtr::getSharedPtr - Shared pointer is NULL");
    }
}

TEST(MgrRef, AnswersToTheIdentifierOfItsFamily)
{
    CTestDocument document;
    for (const CZelUUID& accepted : {IID_IUnknown, IZelObjectLinkRef::sIID}) {
        void* out = nullptr;
        EXPECT_EQ(document.ref()->QueryInterface(accepted, &out), kQueryOk);
        EXPECT_EQ(out, static_cast<IZelMgrRef*>(document.ref()));
        document.ref()->Release();
    }
    void* out = &document;
    EXPECT_EQ(document.ref()->QueryInterface(IZelBasic::sIID, &out), kQueryNoInterface);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(document.ref()->QueryInterface(IID_IUnknown, nullptr), kQueryInvalidArgument);
}

TEST(MgrRef, TakesALanguageOfTwoCharacters)
{
    CTestDocument document;
    EXPECT_STREQ(document.ref()->getLanguage(), "en");
    EXPECT_EQ(document.ref()->languageKey(), 0x656Eu);
    for (const char* wrong : {"fra", "f", "", static_cast<const char*>(nullptr)}) {
        document.ref()->setLanguage(wrong);
        EXPECT_STREQ(document.ref()->getLanguage(), "en");
        EXPECT_EQ(document.takeMessages(), CMessages{"IZelMgr::setLanguage - Invalid language"});
    }
    document.ref()->setLanguage("fr");
    EXPECT_STREQ(document.ref()->getLanguage(), "fr");
    EXPECT_EQ(document.ref()->languageKey(), 0x6672u);
    EXPECT_EQ(document.takeMessages(), CMessages{});
}

TEST(MgrRef, HasTheIdentityAndNoTransformAtFirst)
{
    CTestDocument document;
    EXPECT_TRUE(std::equal(kIdentity.begin(), kIdentity.end(), document.ref()->getMatrix()));
    EXPECT_FALSE(isActive(*document.ref()));
}

TEST(MgrRef, OneElementOfTheIdentitySwitchesTheTransformOn)
{
    CTestDocument document;
    CZelMgrRef& ref = *document.ref();
    for (std::size_t place = 0; place < 16; ++place) {
        ref.setMatrix(agreeingAt(place).data());
        EXPECT_TRUE(isActive(ref)) << place;
        ref.setMatrix(kAllTwos.data());
        EXPECT_FALSE(isActive(ref)) << "behind " << place;
        EXPECT_EQ(ref.getMatrix()[place], 2.0);
    }
}

TEST(MgrRef, TransformsRowVectorsInPlace)
{
    CTestDocument document;
    const double matrix[16] = {1, 2, 3, 50, 5, 6, 7, 60, 9, 10, 11, 70, 1000, 2000, 3000, 80};
    document.ref()->setMatrix(matrix);
    double point[3] = {1, 10, 100}, vector[3] = {1, 10, 100}, normal[3] = {1, 10, 100};
    document.ref()->transformPoint(point);
    document.ref()->transformVector(vector);
    document.ref()->transformNormal(normal);
    const double expected[3] = {951, 1062, 1173};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(vector[i], expected[i]);
        EXPECT_EQ(normal[i], expected[i]);
        EXPECT_EQ(point[i], expected[i] + 1000 * (i + 1));
    }
}

TEST(MgrRef, LeavesCoordinatesAloneWithoutATransform)
{
    CTestDocument document;
    document.ref()->setMatrix(kAllTwos.data());
    double values[3] = {1, 2, 3};
    document.ref()->transformPoint(values);
    document.ref()->transformVector(values);
    document.ref()->transformNormal(values);
    EXPECT_EQ(values[0], 1);
    EXPECT_EQ(values[1], 2);
    EXPECT_EQ(values[2], 3);
}

TEST(MgrRef, SendsWarningsToTheFeedback)
{
    ZelTest::CTestFeedback feedback;
    TSharedPtr<int>* block = new TSharedPtr<int>(new int);
    block->addRef();
    const TZelComPtr<CZelMgrRef> ref(new CZelMgrRef(CTestDocument::address(), block, &feedback));
    ref->warning("text");
    EXPECT_EQ(feedback.lastDocument, CTestDocument::address());
    ref->exceptionWarning("Some::place", std::runtime_error("reason"));
    ref->exceptionWarning("Some::place", std::runtime_error(""));
    ref->unknownExceptionWarning("Some::place");
    const CMessages expected = {"text", "Exception in Some::place : reason",
                                "Exception in Some::place : Unknown exception",
                                "Unknown exception in Some::place"};
    EXPECT_EQ(feedback.take(), expected);
    block->release();
    ref->warning("nobody hears this");
    ref->exceptionWarning("nor", std::runtime_error("this"));
    ref->unknownExceptionWarning("nor this");
    EXPECT_EQ(feedback.take(), CMessages{});
}

TEST(MgrRef, SwallowsWhatTheFeedbackThrows)
{
    CThrowingFeedback feedback;
    TSharedPtr<int>* block = new TSharedPtr<int>(new int);
    block->addRef();
    const TZelComPtr<CZelMgrRef> ref(new CZelMgrRef(nullptr, block, &feedback));
    EXPECT_NO_THROW(ref->warning("text"));
    EXPECT_NO_THROW(ref->exceptionWarning("place", std::runtime_error("reason")));
    EXPECT_NO_THROW(ref->unknownExceptionWarning("place"));
    EXPECT_EQ(feedback.nbCalls, 3);
    block->release();
}

TEST(MgrRef, IsSilentWithoutAFeedback)
{
    TSharedPtr<int>* block = new TSharedPtr<int>(new int);
    block->addRef();
    const TZelComPtr<CZelMgrRef> ref(new CZelMgrRef(nullptr, block, nullptr));
    EXPECT_NO_THROW(ref->warning("text"));
    block->release();
}

TEST(MgrRef, TellsADeveloperThatItDiesBeforeItsDocument)
{
    TSharedPtr<int>* block = new TSharedPtr<int>(new int);
    block->addRef();
    auto* early = new CZelMgrRef(nullptr, block, nullptr);
    early->AddRef();
    testing::internal::CaptureStdout();
    early->Release();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "CZelMgrRef::~CZelMgrRef - Called while always refered by it's ZelMgr ???\n");

    auto* late = new CZelMgrRef(nullptr, block, nullptr);
    late->AddRef();
    block->release();
    testing::internal::CaptureStdout();
    late->Release();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}
