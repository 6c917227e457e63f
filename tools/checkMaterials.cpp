#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/forEach.h"
#include "tools/instanceMaterials.h"
#include "tools/nodeTree.h"
#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

#include <map>

namespace tool {

using CMaterials = OvZel::TZelObjectMgr<OvZel::IZelProperty>;

static constexpr std::int32_t kNbMapKinds = 11;

static bool hasAddress(const OvZel::IZelMultiMaps& maps)
{
    for (std::int32_t kind = 1; kind <= kNbMapKinds; ++kind) {
        const char* url = maps.getURL(kind);
        if (url && *url)
            return true;
    }
    return false;
}

template <class T>
static bool allHaveAddresses(OvZel::TZelObjectMgr<T>& images)
{
    for (std::int32_t i = 0; i < images.getNbObjects(); ++i)
        if (!hasAddress(*images.getZelObject(i)))
            return false;
    return images.getNbObjects() > 0;
}

static bool lacksAddress(OvZel::ITCENode& node)
{
    if (OvZel::IMappingNode* mapping = node.asMappingNode())
        return !hasAddress(*mapping->getMaps());
    if (OvZel::IAltitudeNode* altitude = node.asAltitudeNode())
        return !allHaveAddresses(*altitude->getSubParts());
    if (OvZel::IMultiTextureNode* textures = node.asMultiTextureNode())
        return !allHaveAddresses(*textures->getSubParts());
    if (OvZel::IWangTilesNode* tiles = node.asWangTilesNode())
        return !allHaveAddresses(*tiles->getTiles());
    return false;
}

static bool endsEarly(OvZel::ITCENode& node)
{
    if (node.getNodeType() == OvZel::eLeafNode)
        return false;
    for (std::int32_t i = 0; i < node.getNbChilds(); ++i)
        if (node.getChild(i))
            return false;
    return true;
}

static std::string nameOf(OvZel::IZelProperty& property, const std::string& owner, std::int32_t i)
{
    return owner + ": material " + std::to_string(i) + " \"" + property.getBasicData()->getName() +
           "\"";
}

static void checkTree(OvZel::IZelProperty& property, const std::string& name, CFindings& findings)
{
    int nbWithoutAddress = 0;
    bool isCut = endsEarly(*property.getTCE()->getRootNode());
    forEachNode(property, [&](OvZel::ITCENode& node, int) {
        nbWithoutAddress += lacksAddress(node) ? 1 : 0;
        isCut = isCut || endsEarly(node);
    });
    if (nbWithoutAddress > 0)
        findings.add("W109", name + " has nodes with maps without an address: " +
                                 std::to_string(nbWithoutAddress));
    if (isCut)
        findings.add("W113", name + " has a branch that does not end in a leaf");
}

static void checkRepeated(CMaterials& list, const std::string& owner, CFindings& findings)
{
    std::map<std::string, int> nbWithName;
    std::map<OvZel::CZelUUID, int> nbWithId;
    forEach(list, [&](OvZel::IZelProperty& property, std::int32_t) {
        const std::string name = property.getBasicData()->getName();
        const OvZel::CZelUUID id = *property.getBasicData()->getId();
        if (!name.empty() && ++nbWithName[name] == 2)
            findings.add("W111", owner + ": more than one material has the name \"" + name + "\"");
        if (!id.isNull() && ++nbWithId[id] == 2)
            findings.add("W112",
                         owner + ": more than one material has the identifier " + idText(id));
    });
}

static void checkList(CMaterials& list, const std::string& owner, CFindings& findings)
{
    checkRepeated(list, owner, findings);
    forEach(list, [&](OvZel::IZelProperty& property, std::int32_t i) {
        checkTree(property, nameOf(property, owner, i), findings);
    });
}

template <class T>
static void checkOwners(OvZel::TZelObjectMgr<T>& owners, const std::string& kind,
                        CFindings& findings)
{
    forEach(owners, [&](T& owner, std::int32_t) {
        checkList(*owner.getProperties(), kind + idText(*owner.getBasicData()->getId()), findings);
    });
}

void checkMaterials(OvZel::IZelMgr& document, CFindings& findings)
{
    checkList(*document.getProperties(), "the document", findings);
    checkList(*document.getObjectDefinition()->getProperties(), "the scene's definition", findings);
    checkOwners(*document.getDefinitions(), "definition ", findings);
    checkOwners(*document.getExternalDefinitions(), "external definition ", findings);
    forEach(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& each, std::int32_t) {
        const std::string owner = "instance " + idText(*each.getBasicData()->getId());
        forEachMaterialList(each, [&](CMaterials& list) { checkList(list, owner, findings); });
    });
    forEach(*document.getGrounds(), [&](OvZel::IZelGround& ground, std::int32_t) {
        const std::string owner = "ground " + idText(*ground.getBasicData()->getId());
        checkTree(*ground.getProperty(), nameOf(*ground.getProperty(), owner, 0), findings);
    });
}

} // namespace tool
