#include "environment/CZelToneSettings.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

TEST(ToneSettingsXml, FileForm)
{
    checkElement<CZelToneSettings>("Tone.Settings",
                                   {real("Lights.Tones", 1.5, 0.0), real("Dark.Tones", -2.5, 0.0)});
}

TEST(ToneSettingsXml, TheWriterReplacesEveryEarlierOne)
{
    CTestDocument document;
    CZelToneSettings tones(document.ref());
    CTestElement target("<E><Tone.Settings>a</Tone.Settings><Other/><Tone.Settings/></E>");
    ASSERT_NE(tones.putInXML(target.element()), nullptr);
    EXPECT_NE(target.text().find("<E><Other/><Tone.Settings><Lights.Tones>0.000000</Lights.Tones>"
                                 "<Dark.Tones>0.000000</Dark.Tones></Tone.Settings></E>"),
              std::string::npos)
        << target.text();
}

TEST(ToneSettings, EveryValueIsStoredAsItComes)
{
    using I = IZelToneSettings;
    CZelToneSettings object(nullptr);
    ZelTest::expectAccessors<I>(object, {ACCESS(I, LightsTones, -1.0), ACCESS(I, DarkTones, -2.0)});
}
