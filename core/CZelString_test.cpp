#include "core/CZelString.h"

#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>

using namespace OvZel;

namespace {

constexpr std::uint32_t kEn = 0x656E;
constexpr std::uint32_t kDe = 0x6465;
constexpr std::uint32_t kFr = 0x6672;

} // namespace

TEST(String, IsEmptyAtFirst)
{
    const CZelString text(nullptr);
    EXPECT_EQ(text.getNbTexts(), 0u);
    EXPECT_EQ(text.getText(kEn), nullptr);
    EXPECT_STREQ(text.getCurrentText(), "");
    EXPECT_EQ(text.getLanguageKey(0), 0u);
}

TEST(String, KeepsItsTextsInTheOrderOfTheirLanguages)
{
    CZelString text(nullptr);
    text.setText(kFr, "rouge");
    text.setText(kEn, "red");
    text.setText(kFr, "vert");
    ASSERT_EQ(text.getNbTexts(), 2u);
    EXPECT_EQ(text.getLanguageKey(0), kFr);
    EXPECT_EQ(text.getLanguageKey(1), kEn);
    EXPECT_EQ(text.getLanguageKey(2), 0u);
    EXPECT_EQ(text.getLanguageKey(0xFFFFFFFF), 0u);
    EXPECT_STREQ(text.getText(kFr), "vert");
}

TEST(String, ANullTextRemovesALanguageOrChangesNothing)
{
    CZelString text(nullptr);
    text.setText(kEn, nullptr);
    EXPECT_EQ(text.getNbTexts(), 0u);
    text.setText(kEn, "red");
    text.setText(kFr, "rouge");
    text.setText(kEn, nullptr);
    ASSERT_EQ(text.getNbTexts(), 1u);
    EXPECT_EQ(text.getLanguageKey(0), kFr);
}

TEST(String, AnEmptyTextIsAText)
{
    CZelString text(nullptr);
    text.setText(kFr, "rouge");
    text.setText(kEn, "");
    EXPECT_EQ(text.getNbTexts(), 2u);
    EXPECT_STREQ(text.getText(kEn), "");
    EXPECT_STREQ(text.getCurrentText(), "");
}

TEST(String, FollowsTheLanguageOfTheDocument)
{
    ZelTest::CTestDocument document;
    CZelString text(document.ref());
    text.setCurrentText("red");
    EXPECT_EQ(text.getLanguageKey(0), kEn);
    document.ref()->setLanguage("de");
    EXPECT_STREQ(text.getCurrentText(), "red") << "the first text stands in";
    text.setCurrentText("rot");
    EXPECT_STREQ(text.getText(kDe), "rot");
    EXPECT_STREQ(text.getCurrentText(), "rot");
    EXPECT_STREQ(text.getText(kEn), "red");
}

TEST(String, IsEnglishWithoutADocument)
{
    CZelString text(nullptr);
    text.setText(kDe, "rot");
    text.setCurrentText("red");
    EXPECT_STREQ(text.getText(kEn), "red");
    EXPECT_STREQ(text.getCurrentText(), "red");
}

TEST(String, CopiesEveryPairInOrderAndNothingElse)
{
    CZelString source(nullptr), copy(nullptr);
    source.setText(kFr, "rouge");
    source.setText(kEn, "");
    copy.setText(kDe, "rot");
    copy.copyFrom(&source);
    ASSERT_EQ(copy.getNbTexts(), 2u);
    EXPECT_EQ(copy.getLanguageKey(0), kFr);
    EXPECT_EQ(copy.getLanguageKey(1), kEn);
    EXPECT_STREQ(copy.getText(kFr), "rouge");
    EXPECT_STREQ(copy.getText(kEn), "");
    copy.copyFrom(&copy);
    EXPECT_EQ(copy.getNbTexts(), 2u);
    copy.copyFrom(nullptr);
    EXPECT_EQ(copy.getNbTexts(), 0u);
}

TEST(String, ClearRemovesEverything)
{
    CZelString text(nullptr);
    text.setText(kEn, "red");
    text.clear();
    EXPECT_EQ(text.getNbTexts(), 0u);
    EXPECT_EQ(text.getText(kEn), nullptr);
}

TEST(String, ManyLanguagesKeepTheirOrderAndTakeNoSearchEach)
{
    constexpr std::uint32_t kNb = 65'536;
    CZelString text(nullptr);
    const std::clock_t start = std::clock();
    for (int round = 0; round < 5; ++round)
        for (std::uint32_t key = kNb; key > 0; --key)
            text.setText(key - 1, std::to_string(key + static_cast<unsigned>(round)).c_str());
    EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC); // a search each takes far more
    ASSERT_EQ(text.getNbTexts(), kNb);
    EXPECT_EQ(text.getLanguageKey(0), kNb - 1);
    EXPECT_EQ(text.getLanguageKey(kNb - 1), 0u);
    EXPECT_STREQ(text.getText(0), "5");
    EXPECT_EQ(text.getText(kNb), nullptr);

    text.setText(kNb - 2, nullptr); // what is behind it moves up
    EXPECT_EQ(text.getText(kNb - 2), nullptr);
    EXPECT_EQ(text.getLanguageKey(1), kNb - 3);
    EXPECT_STREQ(text.getText(0), "5");
    text.clear();
    EXPECT_EQ(text.getText(0), nullptr);
    for (std::uint32_t key = 0; key < 100; ++key)
        text.setText(key, "again");
    EXPECT_EQ(text.getNbTexts(), 100u);
    EXPECT_EQ(text.getLanguageKey(99), 99u);
}
