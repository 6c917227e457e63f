#include "tests/support/CClientDocument.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include <gtest/gtest.h>

// What the probes say about a file that isn't loaded.

namespace {

using OvZel::CZelUUID;
using OvZel::CZelVersion;
using OvZel::IZelMgr;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;

constexpr const char* kId = "0123456789ABCDEF0123456789ABCDEF";
/// One pixel: red 0x11, green 0x22, blue 0x33, opaque.
constexpr const char* kPixel = "00000001000000010000000100000001FF112233";

struct CFormat {
    bool result = false;
    std::int32_t value = -1;
    CZelVersion version{-1, -1, -1};
    std::string label;
    std::int64_t position = -1;
};

CFormat checkFormat(const std::string& text, std::uint32_t labelSize = 64)
{
    CMemoryReadStream stream(text);
    char label[64] = "untouched";
    auto value = IZelMgr::eTooNew;
    CFormat found;
    found.result = IZelMgr::checkFormat2(&stream, &value, &found.version, label, labelSize);
    found.value = value;
    found.label = label;
    found.position = stream.getPosition();
    return found;
}

std::string format(const std::string& library, const std::string& file,
                   const std::string& minVersion, const std::string& safeVersion)
{
    return "<?Zel library=\"" + library + "\" file=\"" + file + "\" min_version=\"" + minVersion +
           "\" safe_version=\"" + safeVersion + "\"?>";
}

TEST(CheckFormat, WhatIsNoDocumentGivesNothing)
{
    const std::string cases[] = {
        "",
        " <?Zel library=\"2.01\" file=\"5.0\"?><Zel.File/>",
        "Zel",
        "<Zel.File/>",
        "<?xml version=\"1.0\"?><Zel.File/>",
        "<?Zel?><Zel.File/>",
        "<Zel.File/><?Zel library=\"2.01\" file=\"5.0\"?>",
        "<?Zel library=\"0.9.9\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>",
        // A version of three parts asks for the whole rest.
        "<?Zel library=\"6.0.6\" file=\"6.0\"?><Zel.File/>",
        "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0\"?>",
        "<?Zel file=\"6.0\" library=\"6.0.6\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>",
        // The first instruction of that name counts.
        "<?Zel?>" + std::string(ZelTest::kFormat),
        "<broken",
    };
    for (const std::string& text : cases) {
        const CFormat found = checkFormat(text);
        EXPECT_FALSE(found.result) << text;
        EXPECT_EQ(found.value, 0) << text;
        EXPECT_EQ(found.version, (CZelVersion{-1, -1, -1})) << text;
        EXPECT_EQ(found.label, "untouched") << text;
        EXPECT_EQ(found.position, 0) << text;
    }
}

TEST(CheckFormat, VersionsDecideFromTheTop)
{
    const struct {
        const char *library, *minVersion, *safeVersion;
        int value;
    } cases[] = {
        {"6.0.6", "6.0.0", "6.0.4", 3}, {"6.0.5", "6.0.0", "6.0.4", 2},
        {"6.0.4", "6.0.0", "6.0.4", 2}, {"6.0.3", "6.0.0", "6.0.4", 1},
        {"5.9.9", "5.0.0", "5.0.0", 1}, {"6.1.0", "6.0.0", "6.0.4", 4},
        {"6.0.7", "6.0.6", "6.0.6", 4}, {"6.1.0", "6.0.0", "6.1.0", 5},
        {"6.0.6", "6.0.0", "6.0.7", 5}, {"6.1.0", "6.1.0", "6.1.0", 6},
        {"6.0.3", "6.0.7", "6.0.4", 6}, {"7.0.0", "6.0.0", "6.0.4", 4},
        {"9.0.0", "6.0.6", "6.0.7", 5},
    };
    for (const auto& item : cases) {
        const CFormat found =
            checkFormat(format(item.library, "6.0", item.minVersion, item.safeVersion) +
                        "<?Application name=\"Vendralis\" version=\"6.0\"?><Zel.File/>");
        const std::string library = std::to_string(found.version.major) + "." +
                                    std::to_string(found.version.minor) + "." +
                                    std::to_string(found.version.patch);
        EXPECT_EQ(library, item.library);
        EXPECT_EQ(found.value, item.value) << item.library << " " << item.minVersion;
        EXPECT_EQ(found.result, item.value != 6) << item.library;
        EXPECT_EQ(found.label, item.value != 6 ? "Vendralis (6.0)" : "untouched");
        EXPECT_EQ(found.position, 0);
    }
}

TEST(CheckFormat, OldDecimalVersions)
{
    const struct {
        const char* text;
        CZelVersion version;
        const char* label;
    } cases[] = {
        {"library=\"2.01\" file=\"5.0\"", {2, 0, 1}, "Vendralis (5.0)"},
        {"library=\"1.0\" file=\"1.5\"", {1, 0, 0}, "Vendralis (1.5)"},
        {"library=\"4.29\" file=\"4.25\"", {4, 2, 9}, "Vendralis (4.2)"},
        // No small number is added to the file generation before it is cut.
        {"library=\"3.00\" file=\"5.1\"", {3, 0, 0}, "Vendralis (5.0)"},
        {"library=\"2.5\" file=\"5.0\" min_version=\"1.0\" safe_version=\"2.0\"",
         {2, 5, 0},
         "Vendralis (5.0)"},
    };
    for (const auto& item : cases) {
        const CFormat found = checkFormat(std::string("<?Zel ") + item.text + "?><Zel.File/>");
        EXPECT_TRUE(found.result) << item.text;
        EXPECT_EQ(found.value, 1) << item.text;
        EXPECT_EQ(found.version, item.version) << item.text;
        EXPECT_EQ(found.label, item.label) << item.text;
    }
}

TEST(CheckFormat, OldDecimalVersionsMayBeTooNewAsWell)
{
    const auto check = [](const char* text) {
        return checkFormat(std::string("<?Zel ") + text + "?><Zel.File/>").value;
    };
    EXPECT_EQ(check("library=\"2.5\" file=\"5.0\" min_version=\"6.1\" safe_version=\"2.0\""), 6);
    EXPECT_EQ(check("library=\"2.5\" file=\"5.0\" min_version=\"6.06\" safe_version=\"6.07\""), 5);
    EXPECT_EQ(check("library=\"6.06\" file=\"5.0\""), 3);
}

TEST(CheckFormat, TheApplicationIsCheckedFirst)
{
    const std::string longName(200, 'V');
    const struct {
        const char *library, *minVersion;
        std::string instruction;
        int value;
    } cases[] = {
        {"6.0.0", "6.0.0", "<?Application name=\"Other\" version=\"1\"?>", 7},
        {"6.9.9", "6.0.0", "<?Application name=\"Other\"?>", 7},
        {"7.0.0", "6.0.0", "<?Application name=\"Other\"?>", 6},
        {"6.0.6", "9.0.0", "<?Application name=\"Other\"?>", 7},
        // The name is cut at its first blank, so that this one is another application too.
        {"6.0.6", "6.0.0", "<?Application name=\"Shape Composer\" version=\"1\"?>", 7},
        {"7.0.0", "6.0.0", "<?Application name=\"Shape Composer\"?>", 6},
        {"6.0.6", "6.0.0", "<?Application name=\"Vendralis Two\"?>", 3},
        {"6.0.6", "6.0.0", "<?Application name=\"Vendralis\"?>", 3},
        {"6.0.6", "6.0.0", "<?Application name=\"vendralis\"?>", 7},
        {"6.0.6", "6.0.0", "<?Application name=\"" + longName + "\"?>", 7},
        {"6.0.6", "6.0.0", "<?Application name=\"\" version=\"\"?>", 3},
        {"6.0.6", "6.0.0", "<?Application version=\"1\"?>", 3},
        {"6.0.6", "6.0.0", "", 3},
        {"1.0.0", "1.0.0", "<?Application name=\"Other\"?>", 1},
        {"1.0.1", "1.0.0", "<?Application name=\"Other\"?>", 7},
        // Behind the first element nobody looks.
        {"6.0.6", "6.0.0", "<Zel.File/><?Application name=\"Other\"?>", 3},
    };
    for (const auto& item : cases) {
        const CFormat found = checkFormat(format(item.library, "6.0", item.minVersion, "6.0.4") +
                                          item.instruction + "<Zel.File/>");
        EXPECT_EQ(found.value, item.value) << item.library << item.instruction;
        EXPECT_EQ(found.result, item.value != 6) << item.library << item.instruction;
    }
}

TEST(CheckFormat, TheApplicationMayStandInFrontOfTheFormat)
{
    EXPECT_EQ(checkFormat("<?Application name=\"Other\"?>" + std::string(ZelTest::kFormat)).value,
              7);
}

TEST(CheckFormat, TheLabelIsCutToItsSize)
{
    const std::string text = std::string(ZelTest::kFormat) + "<Zel.File/>";
    EXPECT_EQ(checkFormat(text, 10).label, "Vendralis");
    EXPECT_EQ(checkFormat(text, 1).label, "");
    EXPECT_EQ(checkFormat(text, 0).label, "untouched");

    CMemoryReadStream stream(text);
    auto value = IZelMgr::eUnknown;
    EXPECT_TRUE(IZelMgr::checkFormat2(&stream, &value, nullptr, nullptr, 0));
    EXPECT_EQ(value, IZelMgr::eSame);
    EXPECT_TRUE(IZelMgr::checkFormat2(&stream, nullptr, nullptr, nullptr, 0));
}

TEST(CheckFormat, StartsWhereTheStreamIsAndGoesBackThere)
{
    CMemoryReadStream stream("junk" + std::string(ZelTest::kFormat) + "<Zel.File/>");
    stream.position = 4;
    auto value = IZelMgr::eUnknown;
    EXPECT_TRUE(IZelMgr::checkFormat2(&stream, &value, nullptr, nullptr, 0));
    EXPECT_EQ(stream.position, 4U);
    EXPECT_EQ(value, IZelMgr::eSame);
}

TEST(CheckFormat, AStreamThatBreaksGivesTheFailureValue)
{
    for (const std::size_t failsAt : {0U, 1U, 20U}) {
        CMemoryReadStream stream(std::string(ZelTest::kFormat) + "<Zel.File/>");
        stream.step = 8;
        stream.failsAt = failsAt;
        auto value = IZelMgr::eSame;
        EXPECT_FALSE(IZelMgr::checkFormat2(&stream, &value, nullptr, nullptr, 0));
        EXPECT_EQ(value, IZelMgr::eUnknown);
        EXPECT_EQ(stream.position, 0U);
    }
    EXPECT_FALSE(IZelMgr::checkFormat2(nullptr, nullptr, nullptr, nullptr, 0));
}

TEST(CheckFormat, AnElementEndsTheSearchAtItsName)
{
    const std::string blanks(100'000, ' ');
    for (const std::string& text :
         {"<Zel.File>" + blanks + "</Zel.File>", "<a b=\"" + blanks + "\"/>", "<a" + blanks + "/>",
          "<?xml version=\"1.0\"?>\n<a>" + blanks + "<b/></a>"}) {
        CMemoryReadStream stream(text);
        stream.failsAt = 12 * 1024;
        stream.failure = [](void*, std::uint32_t) -> std::uint32_t {
            ADD_FAILURE() << "reads on";
            return 0;
        };
        auto value = IZelMgr::eTooNew;
        EXPECT_FALSE(IZelMgr::checkFormat2(&stream, &value, nullptr, nullptr, 0));
        EXPECT_EQ(value, IZelMgr::eUnknown);
    }
}

TEST(CheckFormat, NothingBehindTheInstructionsIsRead)
{
    CMemoryReadStream stream(std::string(ZelTest::kFormat) +
                             "<?Application name=\"Vendralis\"?><Zel.File>" +
                             std::string(1'000'000, ' '));
    stream.failsAt = 500'000;
    auto value = IZelMgr::eUnknown;
    EXPECT_TRUE(IZelMgr::checkFormat2(&stream, &value, nullptr, nullptr, 0));
    EXPECT_EQ(value, IZelMgr::eSame);
}

// Preview

/// "width x height: first pixel", "none" without a picture.
std::string previewOf(const std::string& text)
{
    CMemoryReadStream stream(text);
    OvZel::IZelImage* image = nullptr;
    IZelMgr::readPreviewImage(&image, &stream);
    if (image == nullptr)
        return "none";
    std::uint32_t width = 0, height = 0;
    std::uint8_t* pixels = nullptr;
    image->getImage(&width, &height, &pixels);
    char found[64];
    std::snprintf(found, sizeof found, "%u x %u: %02X%02X%02X%02X", width, height, pixels[0],
                  pixels[1], pixels[2], pixels[3]);
    image->Release();
    return found;
}

TEST(ReadPreviewImage, TheParseEndsAtWhatComesBehindThePicture)
{
    const std::string preview = std::string("<Preview.Image><![CDATA[") + kPixel + "]]>";
    const std::string found = "1 x 1: 112233FF";
    const struct {
        std::string text, found;
    } cases[] = {
        {"<Zel.File>" + preview + "</Preview.Image></Zel.File>", found},
        {ZelTest::kFormat + std::string("<!-- c --><Zel.File>\n ") + preview +
             "</Preview.Image><File.Info/></Zel.File>",
         found},
        {"<Zel.File>" + preview, found}, // what follows may be broken
        {"<Zel.File>" + preview + "<", found},
        {"<Zel.File>" + preview + "text", found},
        {"<Zel.File><Preview.Image> \n<![CDATA[" + std::string(kPixel) + "]]>", found},
        {"<Zel.File><Preview.Image a=\"1\"><![CDATA[" + std::string(kPixel) + "]]>", "none"},
        {"<Zel.File a=\"1\">" + preview, "none"},
        {"<Zel.File>text" + preview, "none"},
        {"<Zel.File><File.Info/>" + preview, "none"},
        {"<Zel.File><Preview.Image/>" + preview, "none"},
        {"<Zel.File><Preview.Image><![CDATA[]]></Preview.Image></Zel.File>", "none"},
        {"<Zel.File><Preview.Image><![CDATA[00000001]]></Preview.Image></Zel.File>", "none"},
        {"<Zel.File><Preview.Image><![CDATA[no picture]]></Preview.Image></Zel.File>", "none"},
        {"<Zel.File/>", "none"},
        {"", "none"},
    };
    for (const auto& item : cases)
        EXPECT_EQ(previewOf(item.text), item.found) << item.text;
}

TEST(ReadPreviewImage, OverwritesWhatStandsInOut)
{
    CMemoryReadStream stream("");
    auto* image = reinterpret_cast<OvZel::IZelImage*>(&stream); // never looked at
    IZelMgr::readPreviewImage(&image, &stream);
    EXPECT_EQ(image, nullptr);
    image = reinterpret_cast<OvZel::IZelImage*>(&stream);
    IZelMgr::readPreviewImage(&image, nullptr);
    EXPECT_EQ(image, nullptr);
    IZelMgr::readPreviewImage(nullptr, &stream);
}

TEST(ReadPreviewImage, ThePictureIsTheCallersAlone)
{
    CMemoryReadStream stream("<Zel.File><Preview.Image><![CDATA[" + std::string(kPixel) + "]]>");
    OvZel::IZelImage* image = nullptr;
    IZelMgr::readPreviewImage(&image, &stream);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->getObjectLink()->getMgrRef(), nullptr);
    image->AddRef();
    image->Release();
    std::uint8_t* pixels = nullptr;
    image->getImage(nullptr, nullptr, &pixels);
    EXPECT_EQ(pixels[0], 0x11);
    image->Release();
}

// File information

struct CFileInfo {
    std::string text; ///< "x y z identifier"
    std::string printed;
};

CFileInfo fileInfoOf(const std::string& text)
{
    CMemoryReadStream stream(text);
    OvZel::IZelFileInfo* info = nullptr;
    testing::internal::CaptureStdout();
    IZelMgr::readFileInfo(&info, &stream);
    CFileInfo found;
    found.printed = testing::internal::GetCapturedStdout();
    EXPECT_EQ(stream.position, 0U) << text;
    if (info == nullptr) {
        found.text = "none";
        return found;
    }
    const double* origin = info->getOrigin();
    const std::string id = ZelTest::textOf(*info->getBasicData()->getId());
    char line[128];
    std::snprintf(line, sizeof line, "%g %g %g %s", origin[0], origin[1], origin[2], id.c_str());
    found.text = line;
    info->Release();
    return found;
}

TEST(ReadFileInfo, WhatIsFoundAndWhatIsPrinted)
{
    const std::string null(32, '0');
    const std::string nothing = "0 0 0 " + null;
    const std::string id = kId;
    const std::string origin = "<Origin X=\"1.5\" Y=\"-2\" Z=\"3\"/>";
    const std::string info = "<File.Info UUID=\"" + id + "\">";
    const auto line = [](const char* text) {
        return std::string("CZelMgr::readOrigin - Exception ") + text + "\n";
    };
    const struct {
        std::string text, found, printed;
    } cases[] = {
        {"<Zel.File>" + info + origin + "</File.Info></Zel.File>", "1.5 -2 3 " + id, ""},
        {"<Zel.File><Preview.Image><![CDATA[x]]></Preview.Image>" + info + origin, "1.5 -2 3 " + id,
         ""},
        // Nobody reads on behind the answer.
        {"<Zel.File>" + info + origin + "<broken", "1.5 -2 3 " + id, ""},
        // Other elements in front end both parses.
        {"<Zel.File><Images/>" + info + origin, nothing, ""},
        {"<Zel.File/>", nothing, ""},
        {"<Zel.File>" + info + "</File.Info></Zel.File>", "0 0 0 " + id, ""},
        {"<Zel.File>" + info + "<Other/>" + origin, "0 0 0 " + id, ""},
        {"<Zel.File><File.Info>" + origin + "</File.Info></Zel.File>", "1.5 -2 3 " + null, ""},
        // The order X, Y, Z is a promise: Z ends it.
        {"<Zel.File>" + info + "<Origin Z=\"3\" X=\"1\"/>", "0 0 3 " + id, ""},
        {"<Zel.File>" + info + "<Origin X=\"1\" Y=\"2\"/></File.Info></Zel.File>", "1 2 0 " + id,
         ""},
        {"<Zel.File>" + info + "<Origin X=\"1\" W=\"2\" Z=\"3\"/>", "1 0 0 " + id,
         line("Unexpected attribute")},
        {"<Zel.File>" + info + "<Origin X=\"no\" Y=\"2\" Z=\"3\"/>", "0 0 0 " + id,
         line("Not a double value")},
        {"<Zel.File><File.Info Name=\"n\" UUID=\"" + id + "\">" + origin, "1.5 -2 3 " + null,
         line("Unexpected attribute")},
        {"<Zel.File><File.Info UUID=\"" + id + "\" Name=\"n\">" + origin, "1.5 -2 3 " + id, ""},
        {"<Zel.File a=\"1\"><File.Info UUID=\"0123\">" + origin, "1.5 -2 3 " + null,
         line("CZelUUID::Hex2Int: Invalid hex value")},
    };
    for (const auto& item : cases) {
        const CFileInfo found = fileInfoOf(item.text);
        EXPECT_EQ(found.text, item.found) << item.text;
        EXPECT_EQ(found.printed, item.printed) << item.text;
    }
}

TEST(ReadFileInfo, SyntaxErrorsArePrintedOnceForEachParse)
{
    const CFileInfo found = fileInfoOf("<Zel.File");
    EXPECT_EQ(found.text, "0 0 0 00000000000000000000000000000000");
    const std::string begin = "CZelMgr::readOrigin - Exception ";
    EXPECT_EQ(found.printed.find(begin), 0U);
    EXPECT_NE(found.printed.find(begin, 1), std::string::npos);
}

TEST(ReadFileInfo, WhatIsNoStandardExceptionHasALineOfItsOwn)
{
    CMemoryReadStream stream("");
    stream.failsAt = 0;
    stream.failure = CMemoryReadStream::throwInt;
    OvZel::IZelFileInfo* info = nullptr;
    testing::internal::CaptureStdout();
    IZelMgr::readFileInfo(&info, &stream);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "CZelMgr::readOrigin - Unknown exception\nCZelMgr::readOrigin - Unknown exception\n");
    ASSERT_NE(info, nullptr);
    EXPECT_TRUE(info->getBasicData()->getId()->isNull());
    info->Release();
}

// Name of the scene

std::string mediaInfoOf(const std::string& text)
{
    CClientDocument document;
    document->getObjectDefinition()->getName()->setText(0x6672, "avant");
    CMemoryReadStream stream(text);
    EXPECT_TRUE(document->readMediaInfo(&stream));
    EXPECT_TRUE(document.takeMessages().empty());
    std::string found;
    const OvZel::IZelString& name = *document->getObjectDefinition()->getName();
    for (std::uint32_t i = 0; i < name.getNbTexts(); ++i) {
        const std::uint32_t key = name.getLanguageKey(i);
        found += static_cast<char>(key >> 8);
        found += static_cast<char>(key & 0xFF);
        found += std::string("=") + name.getText(key) + ";";
    }
    return found;
}

TEST(ReadMediaInfo, TakesTheNameOfTheScenesDefinitionAlone)
{
    const std::string name = "<Name en=\"House\" de=\"Haus\"/>";
    const struct {
        std::string text, found;
    } cases[] = {
        {"<Zel.File><Object.Definition>" + name + "</Object.Definition></Zel.File>",
         "en=House;de=Haus;"},
        {"<Zel.File><Preview.Image><![CDATA[<Name en=\"No\"/>]]></Preview.Image>"
         "<Object.Definition a=\"1\"><Class en=\"ModelObject\"/>" +
             name + "<Setups><Setup><Name en=\"Other\"/></Setup></Setups>",
         "en=House;de=Haus;"},
        {"<Zel.File><InternalComponentDefinitions><InternalComponentDefinition><Object."
         "Definition>" +
             name +
             "</Object.Definition></InternalComponentDefinition>"
             "</InternalComponentDefinitions></Zel.File>",
         "fr=avant;"},
        {"<Zel.File><Object.Definition><A>" + name + "</A></Object.Definition></Zel.File>",
         "fr=avant;"},
        {"<Zel.File><Name en=\"No\"/></Zel.File>", "fr=avant;"},
        {"<Object.Definition>" + name + "</Object.Definition>", "fr=avant;"},
        // What stands in front of an error counts.
        {"<Zel.File><Object.Definition>" + name + "<broken", "en=House;de=Haus;"},
        {"no xml", "fr=avant;"},
        {"", "fr=avant;"},
    };
    for (const auto& item : cases)
        EXPECT_EQ(mediaInfoOf(item.text), item.found) << item.text;
}

TEST(ReadMediaInfo, LeavesEverythingElseAsItIs)
{
    CClientDocument document;
    const std::string before = document.save();
    CMemoryReadStream stream(ZelTest::zelFile("<Object.Definition><Name en=\"House\"/>"
                                              "</Object.Definition><Images><Image><![CDATA[" +
                                              std::string(kPixel) + "]]></Image></Images>"));
    EXPECT_TRUE(document->readMediaInfo(&stream));
    std::string named = before;
    const std::size_t scene = named.find("<Object.Definition ");
    named.replace(named.find("<Name/>", scene), 7, "<Name en=\"House\"/>");
    EXPECT_EQ(document.save(), named);
    EXPECT_EQ(document->getImages()->getNbObjects(), 0);
    EXPECT_EQ(*document->getLibraryVersion(), CZelVersion());
    EXPECT_TRUE(document->readMediaInfo(nullptr));
}

} // namespace
