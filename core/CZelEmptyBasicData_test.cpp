#include "core/CZelEmptyBasicData.h"

#include "tests/support/CTestDocument.h"

#include <gtest/gtest.h>

#include <functional>

using namespace OvZel;

namespace {

class CNothing : public CZelEmptyBasicData {
public:
    explicit CNothing(CZelMgrRef* target) : mTarget(target) {}
    CZelMgrRef* getWarningTarget() const override { return mTarget; }

private:
    CZelMgrRef* mTarget;
};

struct CCase {
    const char* warning;
    /// Calls the operation; false when the answer isn't the failure value.
    std::function<bool(IZelBasicData&)> call;
};

const CCase kCases[] = {
    {"CZelEmptyBasicData::putInXML - This class doesn't implement XML",
     [](IZelBasicData& data) { return data.putInXML(nullptr) == nullptr; }},
    {"CZelEmptyBasicData::initWithXML - This class doesn't implement XML",
     [](IZelBasicData& data) { return !data.initWithXML(nullptr, true); }},
    {"CZelEmptyBasicData::getId - This class doesn't implement id",
     [](IZelBasicData& data) { return data.getId()->isNull(); }},
    {"CZelEmptyBasicData::getName - This class doesn't implement id", // (sic)
     [](IZelBasicData& data) {
         const CZelUUID id;
         data.setId(&id);
         return true;
     }},
    {"CZelEmptyBasicData::getName - This class doesn't implement name",
     [](IZelBasicData& data) { return data.getName() == std::string(); }},
    {"CZelEmptyBasicData::setName - This class doesn't implement name",
     [](IZelBasicData& data) {
         data.setName("name");
         return true;
     }},
    {"CZelEmptyBasicData::getUserXML - This class doesn't implement user XML",
     [](IZelBasicData& data) { return data.getUserXML() == nullptr; }},
    {"CZelEmptyBasicData::getUserXML - This class doesn't implement user XML",
     [](const IZelBasicData& data) { return data.getUserXML() == nullptr; }},
    {"CZelEmptyBasicData::getUserData - This class doesn't implement user data",
     [](IZelBasicData& data) {
         const CZelUUID key;
         return data.getUserData(&key) == nullptr;
     }},
    {"CZelEmptyBasicData::setUserData - This class doesn't implement user data",
     [](IZelBasicData& data) {
         const CZelUUID key;
         data.setUserData(&key, nullptr);
         return true;
     }},
    {"CZelEmptyBasicData::getUIValue - This class doesn't implement UI value",
     [](IZelBasicData& data) { return data.getUIValue() == 0; }},
    {"CZelEmptyBasicData::setUIValue - This class doesn't implement UI value",
     [](IZelBasicData& data) {
         data.setUIValue(1);
         return true;
     }},
};

} // namespace

TEST(EmptyBasicData, AnswersEverythingWithAWarningAndAFailureValue)
{
    ZelTest::CTestDocument document;
    CNothing data(document.ref());
    for (const CCase& one : kCases) {
        EXPECT_TRUE(one.call(data)) << one.warning;
        EXPECT_EQ(document.takeMessages(), std::vector<std::string>{one.warning});
    }
}

TEST(EmptyBasicData, IsSilentWithoutATarget)
{
    CNothing data(nullptr);
    for (const CCase& one : kCases)
        EXPECT_TRUE(one.call(data)) << one.warning;
}
