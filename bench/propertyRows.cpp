// Twenty thousand materials of five nodes each, against another parser of the same file that only
// makes its tree.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/streams.h"

#include <memory>
#include <pugixml.hpp>

namespace ZelBench {

namespace {

using OvZel::ITCENode;

/// Puts a node of that type between the parent and its first child, if there is one.
ITCENode* insert(OvZel::IZelTCE& tree, ITCENode* parent, std::int32_t type)
{
    ITCENode* node = tree.createNode(type);
    node->setParent(parent);
    if (ITCENode* below = parent->getChild(0)) {
        node->addChild(below);
        below->setParent(node);
    }
    parent->setChild(0, node);
    node->Release(); // the parent has it
    return node;
}

void fill(OvZel::IZelProperty& property, std::size_t number)
{
    const std::string digits = std::to_string(number);
    property.getBasicData()->setName(("Brick " + digits).c_str());
    property.setDiffuseColor(OvZel::CZelColor::rgb(200, 90, static_cast<std::uint8_t>(number)));
    property.setGlossy(static_cast<double>(number) / 100);
    property.setDiffuseMapUrl(("textures/outside/brick/" + digits + ".png").c_str());
    property.setNormalMapUrl(("textures/outside/brick/" + digits + "_n.png").c_str());
    property.setMapSize(1.5, 2.5);
    OvZel::IZelTCE& tree = *property.getTCE();
    ITCENode* root = tree.getRootNode();
    for (std::int32_t type : {OvZel::eMappingNode, OvZel::eFresnelNode, OvZel::eGlazingNode})
        insert(tree, root, type);
}

CDocument withProperties()
{
    CDocument document;
    const std::size_t count = isSmall() ? 200 : 20'000;
    for (std::size_t i = 0; i < count; ++i)
        fill(*document->getProperties()->newZelObject(-1), i);
    return document;
}

std::string propertiesFile()
{
    CTextTarget target;
    withProperties()->write(&target, nullptr);
    return fileWith("properties.zel", target.text);
}

std::shared_ptr<pugi::xml_document> parsePugi(const std::string& path)
{
    auto tree = std::make_shared<pugi::xml_document>();
    if (!tree->load_file(path.c_str()))
        throw std::runtime_error("The other parser can't read the properties");
    return tree;
}

const CRow kLoad("properties_load", [] {
    const std::string path = propertiesFile();
    return SPair{[path] { return secondsOf([&] { return parsePugi(path); }); },
                 [path] { return secondsOf([&] { return CDocument::from(CFileSource(path)); }); }};
});

const CRow kSave("properties_save", [] {
    const std::string path = propertiesFile(), out = workPath("properties.out");
    return SPair{[out, tree = parsePugi(path)] {
                     return secondsOf([&] { return tree->save_file(out.c_str(), "\t"); });
                 },
                 [out, document = std::make_shared<CDocument>(CDocument::from(CFileSource(path)))] {
                     return secondsOf([&] {
                         document->write(CFileTarget(out));
                         return 0;
                     });
                 }};
});

} // namespace

} // namespace ZelBench
