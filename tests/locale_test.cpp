#include "tests/support/CClientDocument.h"
#include "tests/support/environment.h"
#include "tests/support/smallScene.h"
#include "tests/toolRun.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>

// Numbers in files have a point, whatever the host program has set.

using namespace OvZel;
using ZelTest::CClientDocument;
using ZelTest::kSmallScene;

extern "C" {
[[gnu::weak]] void __lsan_disable();
[[gnu::weak]] void __lsan_enable();
}

namespace {

/// "1.234,5" in the locale of C++, which needs no help from the system.
class CCommas : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/// The C library never frees the path of its locales, which the leak check would tell.
class CLeakPause {
public:
    CLeakPause()
    {
        if (__lsan_disable != nullptr)
            __lsan_disable();
    }
    ~CLeakPause()
    {
        if (__lsan_enable != nullptr)
            __lsan_enable();
    }
    CLeakPause(const CLeakPause&) = delete;
    CLeakPause& operator=(const CLeakPause&) = delete;
};

/// A locale with a decimal comma for the C library: one of the system or else one made in the
/// folder. Empty when neither is to be had.
std::string commaLocale(const CTempFolder& folder)
{
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8", "German"})
        if (std::setlocale(LC_ALL, name) != nullptr)
            return name;
    runProgram({"localedef", "-i", "de_DE", "-f", "UTF-8", folder.file("de_DE.UTF-8")});
    ZelTest::setEnvironment("LOCPATH", folder.file("").c_str());
    const CLeakPause pause;
    const bool isMade = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    return isMade ? "de_DE.UTF-8" : "";
}

/// All that a client gets to see, with everything that is printed or scanned in it.
std::string everything()
{
    std::string all;
    const auto add = [&](const std::string& text) { all += text + '\n'; };
    CClientDocument document;
    add(document.read(kSmallScene) ? "read" : "not read");
    const CZelPoint* point = document->getPoints()->getZelObject(1);
    add(std::to_string(static_cast<int>(point->x * 1000)));
    add(std::to_string(static_cast<int>(document->getFileInfo()->getOrigin()[1] * 1000)));
    CZelPoint* changed = document->getDefinitions()->getZelObject(0)->getPoints()->getZelObject(0);
    *changed = {1234567.875, 123456789012345.0, -1234.5};
    CZelRenderParameters* parameters = document.more().getRenderParameters();
    add(std::to_string(static_cast<int>(parameters->entries[0].value * 1000)));
    parameters->entries[1].value = 1234567.125;
    add(document.save());
    for (const std::string& message : document.takeMessages())
        add(message);
    return all;
}

std::string probed()
{
    std::string all;
    for (const char* instruction :
         {"library=\"2.01\" file=\"5.5\"",
          "library=\"6.0.6\" file=\"6.2\" min_version=\"6.0.0\" safe_version=\"6.0.4\""}) {
        ZelTest::CMemoryReadStream stream(std::string("<?Zel ") + instruction + "?>" +
                                          (std::strchr(kSmallScene, '\n') + 1));
        CZelVersion version;
        char label[40] = "";
        IZelMgr::checkFormat2(&stream, nullptr, &version, label, sizeof label);
        all += std::to_string(version.patch) + label + '\n';
        IZelFileInfo* info = nullptr;
        IZelMgr::readFileInfo(&info, &stream);
        for (int i = 0; i < 3; ++i)
            all += std::to_string(static_cast<int>(info->getOrigin()[i] * 1000)) + '\n';
        info->Release();
    }
    return all;
}

class Locale : public testing::Test {
protected:
    Locale() : mPlain(everything()), mPlainProbes(probed()) {}
    ~Locale() override
    {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, "C");
        ZelTest::setEnvironment("LOCPATH", nullptr);
    }

    void expectNoChange() const
    {
        EXPECT_EQ(everything(), mPlain);
        EXPECT_EQ(probed(), mPlainProbes);
    }

    std::string mPlain;
    std::string mPlainProbes;
    CTempFolder mFolder;
};

} // namespace

TEST_F(Locale, NumbersAreReadAndWrittenAtAll)
{
    EXPECT_NE(mPlain.find("1234567.875"), std::string::npos);
    EXPECT_NE(mPlain.find("-1234.5"), std::string::npos);
    EXPECT_NE(mPlain.find("Y=\"-2.250000\""), std::string::npos);
    EXPECT_NE(mPlain.find("<Double2>1234567.125000</Double2>"), std::string::npos);
    EXPECT_EQ(mPlainProbes, "1Vendralis (5.5)\n1500\n-2250\n3000\n"
                            "6Vendralis (6.2)\n1500\n-2250\n3000\n");
}

TEST_F(Locale, ACommaInCppChangesNothing)
{
    std::locale::global(std::locale(std::locale::classic(), new CCommas));
    std::ostringstream host;
    host << 1234.5;
    ASSERT_EQ(host.str(), "1.234,5");
    expectNoChange();
}

TEST_F(Locale, ACommaInCChangesNothing)
{
    const std::string name = commaLocale(mFolder);
    if (name.empty())
        GTEST_SKIP() << "no locale with a decimal comma, and none can be made here";
    char host[16];
    std::snprintf(host, sizeof host, "%.1f", 1234.5);
    ASSERT_STREQ(host, "1234,5");
    expectNoChange();
    {
        const CLeakPause pause;
        try {
            std::locale::global(std::locale(name.c_str()));
        } catch (const std::runtime_error&) {
            return; // on Windows C++ has no locale but the classic one
        }
    }
    expectNoChange();
}
