#include "animation/CZelSequence.h"

#include "core/TObject2Mgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <cmath>
#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
const std::vector<std::string> kClipped = {"Method setFocal has clipped a value out of range."};

} // namespace

TEST(Sequence, ANewOne)
{
    const TZelComPtr sequence(new CZelSequence(nullptr));
    EXPECT_STREQ(sequence->getName(), "");
    EXPECT_EQ(sequence->getStartFrame(), 0);
    EXPECT_EQ(sequence->getEndFrame(), 250);
    EXPECT_TRUE(isSame(sequence->getPosition(), CZelPoint{50, 50, -60}));
    EXPECT_TRUE(isSame(sequence->getTarget(), CZelPoint{50, 50, 50}));
    EXPECT_EQ(sequence->getViewFlags(), 2);
    EXPECT_EQ(sequence->getRoll(), 0.00001);
    EXPECT_EQ(sequence->getFocal(), 50.0);
    EXPECT_EQ(sequence->getTargetType(), 0);
    EXPECT_EQ(sequence->getTargetDistance(), 100.0);
    EXPECT_EQ(sequence->getHorizontalAngle(), 0.0);
    EXPECT_EQ(sequence->getVerticalAngle(), 0.0);
    EXPECT_TRUE(isSame(sequence->getPathTangent(), CZelPoint{0, 0, 1}));
    EXPECT_TRUE(sequence->getObjectId().isNull());
    EXPECT_FALSE(sequence->getArchitectFlag());
    EXPECT_NE(sequence->getViewInfo(), nullptr);
    EXPECT_NE(sequence->getViewOptions(), nullptr);
}

TEST(Sequence, StoresWhatComes)
{
    using I = IZelSequence;
    const TZelComPtr sequence(new CZelSequence(nullptr));
    expectAccessors<I>(*sequence,
                       {ACCESS(I, StartFrame, -1), ACCESS(I, EndFrame, -2),
                        ACCESS(I, Position, (CZelPoint{1, 2, 3})), ACCESS(I, TargetType, 3),
                        ACCESS(I, Target, (CZelPoint{4, 5, 6})), ACCESS(I, TargetDistance, -7.0),
                        ACCESS(I, HorizontalAngle, 8.0), ACCESS(I, VerticalAngle, 9.0),
                        ACCESS(I, PathTangent, (CZelPoint{1, 0, 0})), ACCESS(I, ViewFlags, -3),
                        ACCESS(I, Roll, -100.0), ACCESS(I, Focal, 500.0),
                        ACCESS(I, ObjectId, CZelUUID("000102030405060708090A0B0C0D0E0F")),
                        ACCESS(I, ArchitectFlag, true)});
}

TEST(Sequence, AnswersToItsFamilies)
{
    TZelComPtr sequence(new CZelSequence(nullptr));
    for (const CZelUUID& id :
         {IZelSequence::sIID, IZelViewBasic::sIID, IZelBasic::sIID, IID_IUnknown}) {
        void* out = nullptr;
        EXPECT_EQ(sequence->QueryInterface(id, &out),
                  id == IZelSequence::sIID ? kQueryNoInterface : kQueryOk);
        if (out != nullptr)
            sequence->Release();
    }
}

TEST(Sequence, ATargetTypeOutsideTheTableIsFixed)
{
    const TZelComPtr sequence(new CZelSequence(nullptr));
    struct {
        std::int32_t given, kept;
    } const cases[] = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 0}, {7, 0}, {-1, 0}};
    for (const auto& [given, kept] : cases) {
        sequence->setTargetType(3);
        sequence->setTargetType(given);
        EXPECT_EQ(sequence->getTargetType(), kept) << given;
    }
}

TEST(Sequence, FlagsAreBitsOfTheViewFlags)
{
    const TZelComPtr sequence(new CZelSequence(nullptr));
    EXPECT_FALSE(sequence->getFlag0());
    EXPECT_TRUE(sequence->getFlag1());
    sequence->setFlag0();
    EXPECT_TRUE(sequence->getFlag0());
    EXPECT_EQ(sequence->getViewFlags(), 3);
    sequence->setFlag0();
    EXPECT_EQ(sequence->getViewFlags(), 3);
    sequence->setFlag1(false);
    EXPECT_EQ(sequence->getViewFlags(), 1);
    EXPECT_FALSE(sequence->getFlag1());
    sequence->setViewFlags(-4);
    EXPECT_FALSE(sequence->getFlag0());
    sequence->setFlag1(true);
    EXPECT_EQ(sequence->getViewFlags(), -2);
}

TEST(Sequence, TheFocalIsClippedInADocument)
{
    struct {
        double given, kept;
        bool warns;
    } const cases[] = {{200, 180, true},       {180, 180, false},      {180.5, 180, true},
                       {0, 0, false},          {-0.5, 0, true},        {-kInfinity, 0, true},
                       {kNotANumber, 0, true}, {kInfinity, 180, true}, {70, 70, false}};
    CTestDocument document;
    const TZelComPtr sequence(new CZelSequence(document.ref()));
    for (const auto& [given, kept, warns] : cases) {
        sequence->setFocal(given);
        EXPECT_EQ(sequence->getFocal(), kept) << given;
        EXPECT_EQ(document.takeMessages(), warns ? kClipped : std::vector<std::string>()) << given;
    }
}

TEST(Sequence, TheFocalIsKeptWithoutADocument)
{
    CTestDocument document;
    const TZelComPtr orphan(new CZelSequence(document.ref()));
    document.die();
    const TZelComPtr alone(new CZelSequence(nullptr));
    for (CZelSequence* sequence : {orphan.get(), alone.get()}) {
        sequence->setFocal(200.0);
        EXPECT_EQ(sequence->getFocal(), 200.0);
        sequence->setFocal(kNotANumber);
        EXPECT_TRUE(std::isnan(sequence->getFocal()));
    }
}

TEST(Sequence, IsHeldByAManagerOfParts)
{
    CTestDocument document;
    using CSequences = TObject2Mgr<CZelSequence, IZelSequence>;
    TZelComPtr sequences(new CSequences(document.ref()));
    TZelComPtr kept(sequences->newZelObject(-1));
    sequences.reset();
    EXPECT_EQ(kept->getEndFrame(), 250);
    EXPECT_EQ(kept->getObjectLink()->getMgrRef(), document.ref());
}
