#include "lighting/CZelLightsGroup.h"

#include "core/TComObjectMgr.h"
#include "core/TObject2Mgr.h"
#include "lighting/CLight.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"
#include "xml/listXML.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

using CGroups = TObject2Mgr<CZelLightsGroup, IZelLightsGroup>;

const char* const kMade = "11112222333344445555666677778888";
const char* const kFile = "00112233445566778899AABBCCDDEEFF";

std::vector<CRow> groupRows()
{
    return {required(raw("Name", "<Name en=\"Garden\"/>", "<Name en=\"\"/>"),
                     "CZelXMLGet::CZelXMLGet - NULL ptr"),
            required(attribute("ID", kFile, kMade), "CZelXMLGet::GetUUID - NULL ptr for tag ID"),
            optional(integer("UI.Value", 5, 0))}; // also written when it is 0
}

} // namespace

TEST(LightsGroupXml, FileForm)
{
    for (const bool getUUID : {true, false}) { // the identifier is that of the file in any case
        CForm form;
        form.getUUID = getUUID;
        checkElement(
            "Lights.Group", groupRows(),
            [](CTestDocument& document) {
                TZelComPtr<CZelLightsGroup> group(new CZelLightsGroup(document.ref()));
                const CZelUUID id(kMade);
                group->setId(&id);
                return group;
            },
            form);
    }
}

TEST(LightsGroupXml, TheNameNeedsItsLanguage)
{
    CTestDocument document;
    CZelXMLIO io(document.ref(), true);
    const TZelComPtr<CZelLightsGroup> group(new CZelLightsGroup(document.ref()));
    const CTestElement file("<E><Lights.Group ID=\"00112233445566778899AABBCCDDEEFF\">"
                            "<Name fr=\"Jardin\"/></Lights.Group></E>");
    EXPECT_EQ(messageOf([&] { group->getXML(io, file.element()); }),
              "CZelXMLGet::GetAttributeLanguage - NULL ptr");
}

TEST(LightsGroupXml, AListIsReplacedByThatOfTheFile)
{
    CTestDocument document;
    CZelXMLIO io(document.ref(), false);
    const TZelComPtr<CGroups> groups(new CGroups(document.ref()));
    EXPECT_EQ(*groups->getObjectIID(), IZelLightsGroup::sIID);
    groups->newZelObject(-1)->getBasicData()->setName("old");

    const CTestElement full("<Lights.Groups><Lights.Group ID=\"00112233445566778899AABBCCDDEEFF\">"
                            "<Name en=\"a\"/></Lights.Group>"
                            "<Lights.Group ID=\"11112222333344445555666677778888\">"
                            "<Name en=\"b\"/><UI.Value>-1</UI.Value></Lights.Group>"
                            "</Lights.Groups>");
    getItems(io, full.element(), "Lights.Group", *groups);
    ASSERT_EQ(groups->getNbObjects(), 2);
    EXPECT_STREQ(groups->at(0)->getName(), "a");
    EXPECT_EQ(textOf(*groups->at(0)->getId()), kFile);
    EXPECT_EQ(groups->at(1)->getUIValue(), 0xFFFFFFFFU);

    const CTestElement empty("<Lights.Groups/>");
    getItems(io, empty.element(), "Lights.Group", *groups);
    EXPECT_EQ(groups->getNbObjects(), 0);
}

TEST(LightsGroup, ARemovedGroupStaysInTheListsOfTheLights)
{
    CTestDocument document;
    const TZelComPtr<CGroups> groups(new CGroups(document.ref()));
    const TZelComPtr<CLight> light(new CLight(document.ref()));
    const CZelUUID id = *groups->newZelObject(-1)->getBasicData()->getId();
    *light->getLightsGroups()->newZelObject(-1) = id;
    groups->removeObject(-1);
    ASSERT_EQ(light->getLightsGroups()->getNbObjects(), 1);
    EXPECT_EQ(*light->getLightsGroups()->getZelObject(0), id);
}

TEST(LightsGroup, BadIndicesWarn)
{
    CTestDocument document;
    const TZelComPtr<CGroups> groups(new CGroups(document.ref()));
    EXPECT_EQ(groups->getZelObject(0), nullptr);
    groups->removeObject(0);
    EXPECT_EQ(document.takeMessages(), (std::vector<std::string>{"getZelObject: Bad index value",
                                                                 "removeObject: Bad index value"}));
}
