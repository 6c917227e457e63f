#include "lighting/CZelLensFlare.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const auto kNew = [](CTestDocument&) { return std::make_unique<CZelLensFlare>(); };

CTestElement flareFile(const std::string& type)
{
    return CTestElement("<Lens.Flare Type=\"" + type + "\"><Size>1</Size></Lens.Flare>");
}

} // namespace

TEST(LensFlareXml, FileForm)
{
    checkElement("Lens.Flare",
                 {flag("Used", false),
                  alsoReads(oneOf(required(attribute("Type", "Halo2", "LensFlare1"),
                                           "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
                                  {"LensFlare1", "LensFlare2", "Halo1", "Halo2"}),
                            "Standard", "LensFlare1"),
                  real("Size", 2.5, 1.0), optional(real("Intensity", 3.5, 1.0))},
                 kNew);
}

TEST(LensFlareXml, AnOlderWordForTheFirstTypeIsReadAndNotWritten)
{
    struct {
        const char* read;
        std::int32_t type;
        const char* written;
    } cases[] = {{"LensFlare1", 0, "LensFlare1"},
                 {"LensFlare2", 1, "LensFlare2"},
                 {"Halo1", 2, "Halo1"},
                 {"Halo2", 3, "Halo2"},
                 {"Standard", 0, "LensFlare1"}};
    CTestDocument document;
    CZelXMLIO io(document.ref(), true);
    for (const auto& each : cases) {
        CZelLensFlare flare;
        flare.setType(each.type == 0 ? 1 : 0);
        flare.getFrom(io, CZelXMLGet(flareFile(each.read).element()));
        EXPECT_EQ(flare.getType(), each.type) << each.read;
        const CTestElement target;
        flare.addTo(io, CZelXMLAdd(target.element()));
        EXPECT_STREQ(CZelXMLGet(target.element()).GetOptionalAttribute("Type"), each.written);
    }
}

TEST(LensFlareXml, AnUnknownTypeIsNeitherReadNorWritten)
{
    CTestDocument document;
    CZelXMLIO io(document.ref(), true);
    CZelLensFlare flare;
    EXPECT_EQ(messageOf([&] { flare.getFrom(io, CZelXMLGet(flareFile("halo1").element())); }),
              "Invalid label (halo1) [LensFlare1..Standard]");
    flare.setType(4);
    const CTestElement target;
    EXPECT_EQ(messageOf([&] { flare.addTo(io, CZelXMLAdd(target.element())); }),
              "No label for the value (4) [LensFlare1..Standard]");
}

TEST(LensFlare, EveryValueIsStoredAsItComes)
{
    CZelLensFlare flare;
    expectAccessors<IZelLensFlare>(
        flare, {ACCESS(IZelLensFlare, Used, true), ACCESS(IZelLensFlare, Type, -7),
                ACCESS(IZelLensFlare, Size, -1.0), ACCESS(IZelLensFlare, Intensity, -2.0)});
}
