#include "render/CCompressionOpt.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

#include <limits>

using namespace OvZel;
using namespace ZelTest;

TEST(CompressionOptXml, FileForm)
{
    const std::vector<CRow> rows = {
        integer("Codec", 1, 0x72617720),    integer("Depth", 24, 0),
        integer("Spacial.Quality", 3, 512), integer("Temporal.Quality", 4, 512),
        real("Frame.Rate", 5.5, 25.0),      integer("Key.Frame.Rate", 6, 10),
    };
    checkElement("Compression", rows,
                 [](CTestDocument&) { return std::make_unique<CCompressionOpt>(); });
}

TEST(CompressionOpt, TheFrameRateIsAtLeastOneInSilence)
{
    struct {
        double given, kept;
    } const cases[] = {
        {1.0, 1.0}, {0.99, 1.0}, {-3.0, 1.0}, {std::numeric_limits<double>::quiet_NaN(), 1.0},
        {1e9, 1e9},
    };
    for (const auto& [given, kept] : cases) {
        CCompressionOpt options;
        options.setFrameRate(given);
        EXPECT_EQ(options.getFrameRate(), kept) << given;
    }
}

TEST(CompressionOpt, NothingElseIsClipped)
{
    CCompressionOpt options;
    options.setDepth(-1);
    options.setSpacialQuality(-2);
    options.setTemporalQuality(5000);
    options.setKeyFrameRate(-3);
    EXPECT_EQ(options.getDepth(), -1);
    EXPECT_EQ(options.getSpacialQuality(), -2);
    EXPECT_EQ(options.getTemporalQuality(), 5000);
    EXPECT_EQ(options.getKeyFrameRate(), -3);
}

TEST(CompressionOptXml, AFilesFrameRateIsClippedAndEveryCodecComesBack)
{
    CTestDocument document;
    CZelXMLIO io(document.ref(), false);
    CCompressionOpt options;
    for (const std::uint32_t codec : {0U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        CTestElement file;
        options.setCodec(codec);
        options.addTo(io, CZelXMLAdd(file.element()));
        CCompressionOpt loaded;
        loaded.getFrom(io, CZelXMLGet(file.element()));
        EXPECT_EQ(loaded.getCodec(), codec);
    }
    const CTestElement file("<E><Codec>1</Codec><Depth>1</Depth>"
                            "<Spacial.Quality>1</Spacial.Quality>"
                            "<Temporal.Quality>1</Temporal.Quality><Frame.Rate>0.5</Frame.Rate>"
                            "<Key.Frame.Rate>1</Key.Frame.Rate></E>");
    options.getFrom(io, CZelXMLGet(file.element()));
    EXPECT_EQ(options.getFrameRate(), 1.0);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(CompressionOpt, EveryValueIsStored)
{
    using I = IZelCompressionOpt;
    CCompressionOpt object;
    ZelTest::expectAccessors<I>(object,
                                {ACCESS(I, Codec, 0xFFFFFFFF), ACCESS(I, Depth, 1),
                                 ACCESS(I, SpacialQuality, 2), ACCESS(I, TemporalQuality, 3),
                                 ACCESS(I, FrameRate, 4.0), ACCESS(I, KeyFrameRate, 5)});
}
