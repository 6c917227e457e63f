#include "render/CAnimRenderingOpt.h"

#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kCompression =
    "<Compression><Codec>1</Codec><Depth>2</Depth><Spacial.Quality>3</Spacial.Quality>"
    "<Temporal.Quality>4</Temporal.Quality><Frame.Rate>5</Frame.Rate>"
    "<Key.Frame.Rate>6</Key.Frame.Rate></Compression>";

std::vector<std::string> tagsOf(OrvaneXML::XIXMLElement* element)
{
    std::vector<std::string> tags;
    for (auto* child = element->GetFirstElement(); child != nullptr;
         child = child->GetNextElement())
        tags.emplace_back(child->GetKey());
    return tags;
}

} // namespace

TEST(ViewOptXml, TheElementThatIsThereIsUsed)
{
    using TTags = std::vector<std::string>;
    struct {
        const char* before;
        TTags after, options;
    } const cases[] = {
        {"<E/>", {"Options"}, {"Rendering", "Compression"}},
        {"<E><A/><Options><X/></Options><B/></E>",
         {"A", "Options", "B"},
         {"X", "Rendering", "Compression"}},
        {"<E><Options><Compression/><Rendering/><Y/><Rendering/></Options></E>",
         {"Options"},
         {"Y", "Rendering", "Compression"}},
    };
    for (const auto& [before, after, options] : cases) {
        CTestDocument document;
        CAnimRenderingOpt view(document.ref());
        const CTestElement target(before);
        OrvaneXML::XIXMLElement* written = view.putInXML(target.element());
        ASSERT_NE(written, nullptr) << before;
        EXPECT_STREQ(written->GetKey(), "Options");
        EXPECT_EQ(tagsOf(target.element()), after) << before;
        EXPECT_EQ(tagsOf(written), options) << before;
    }
}

TEST(ViewOptXml, OptionsAndRenderingAreRequiredCompressionIsNot)
{
    struct {
        std::string xml, message;
        double rate;
    } const cases[] = {
        {"<E/>", "CZelXMLGet::GetElement - NULL ptr for tag Options", 25.0},
        {"<E><Options>" + kCompression + "</Options></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag Rendering", 25.0},
        {"<E><Options><Rendering/></Options></E>", "", 25.0},
        {"<E><Options><Rendering/>" + kCompression + "</Options></E>", "", 5.0},
        {"<E><Options><Rendering/><Compression/></Options></E>",
         "CZelXMLGet::GetElement - NULL ptr for tag Codec", 25.0},
    };
    for (const auto& [xml, message, rate] : cases) {
        CTestDocument document;
        CAnimRenderingOpt view(document.ref());
        const CTestElement source(xml);
        EXPECT_EQ(view.initWithXML(source.element(), false), message.empty()) << xml;
        EXPECT_EQ(view.getCompressionOpt()->getFrameRate(), rate) << xml;
        const std::vector<std::string> failure = {"Exception in CZelXML::initWithXML : " + message};
        EXPECT_EQ(document.takeMessages(), message.empty() ? std::vector<std::string>() : failure)
            << xml;
    }
}

TEST(ViewOptXml, BothPartsComeBack)
{
    CTestDocument document;
    CAnimRenderingOpt view(document.ref());
    view.getRenderingOpt()->setWidth(1);
    view.getRenderingOpt()->getEngineOptions()->setCaustic(true);
    view.getCompressionOpt()->setDepth(2);
    CTestElement file;
    ASSERT_NE(view.putInXML(file.element()), nullptr);
    CAnimRenderingOpt loaded(document.ref());
    ASSERT_TRUE(loaded.initWithXML(file.element(), false));
    EXPECT_EQ(loaded.getRenderingOpt()->getWidth(), 1);
    EXPECT_TRUE(loaded.getRenderingOpt()->getEngineOptions()->getCaustic());
    EXPECT_EQ(loaded.getCompressionOpt()->getDepth(), 2);
}

TEST(ViewOpt, InADocumentAClippedValueWarns)
{
    CTestDocument document;
    CAnimRenderingOpt inside(document.ref()), outside(nullptr);
    inside.getRenderingOpt()->setWidth(-1);
    outside.getRenderingOpt()->setWidth(-1);
    EXPECT_EQ(inside.getRenderingOpt()->getWidth(), 0);
    EXPECT_EQ(outside.getRenderingOpt()->getWidth(), 0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{
                  "class CRenderingOpt: Method setWidth has clipped a value out of range."});
}

TEST(ViewOpt, TheEnginesListReachesTheDocument)
{
    CTestDocument document;
    CAnimRenderingOpt view(document.ref());
    EXPECT_EQ(view.getRenderingOpt()->getEnginesOptions()->getZelObject(0), nullptr);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{"getZelObject: Bad index value"});
    IZelEngineOptions* engine = view.getRenderingOpt()->getEngineOptions();
    ASSERT_NE(engine, nullptr);
    EXPECT_EQ(engine->getDevValues()->getZelObject(0), nullptr);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{"getZelObject: Bad index value"});
}

TEST(ViewOpt, BothSlotsGiveOnePart)
{
    CAnimRenderingOpt view(nullptr);
    const CAnimRenderingOpt& constant = view;
    EXPECT_EQ(constant.getRenderingOpt(), view.getRenderingOpt());
    EXPECT_EQ(constant.getCompressionOpt(), view.getCompressionOpt());
}

TEST(ViewOpt, AListOfEnginesThatAClientKeepsOutlivesIt)
{
    CTestDocument document;
    auto view = std::make_unique<CAnimRenderingOpt>(document.ref());
    const TZelComPtr engines(view->getRenderingOpt()->getEnginesOptions());
    const TZelComPtr values(view->getRenderingOpt()->getEngineOptions()->getDevValues());
    view.reset();
    EXPECT_EQ(engines->getObjectLink()->getOwnerLink(), nullptr);
    EXPECT_EQ(engines->getObjectLink()->getMgrRef(), document.ref());
    ASSERT_NE(engines->newZelObject(-1), nullptr);
    EXPECT_EQ(engines->getNbObjects(), 2);
    engines->removeAllObjects();
    EXPECT_EQ(values->getObjectLink()->getOwnerLink(), nullptr);
    *values->newZelObject(-1) = 2.5;
    EXPECT_EQ(values->getNbObjects(), 1);
    EXPECT_EQ(engines->getZelObject(9), nullptr);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>{"getZelObject: Bad index value"});
    document.die();
    EXPECT_EQ(engines->getZelObject(9), nullptr);
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}
