#include "tests/support/CImportPair.h"

#include <zel/IMappingNode.h>
#include <zel/ITCENode.h>
#include <zel/IZelTCE.h>

#include <gtest/gtest.h>

// Materials in the reference import.

namespace {

using namespace OvZel;
using namespace ZelTest;

constexpr std::int32_t kMaterials = 0x001;

struct ImportMaterials : testing::Test, CImportPair {
    IZelMgr& to() { return *destination.get(); }
    IZelMgr& from() { return *source.get(); }

    /// An instance of a component.
    static IZelObjectInstance& addComponentInstance(IZelMgr& document, const char* name)
    {
        return addInstance(document, name, CZelUUID(), CZelUUID(), "ModelObject");
    }
    /// A material with that scale, an override of the instance's or of its component's.
    static IZelProperty& addOverride(IZelObjectInstance& instance, bool isOwn, const char* name,
                                     double scale)
    {
        IZelProperty& property =
            add(isOwn ? instance.getProperties()
                      : instance.asInternalComponentInstance()->getProperties(),
                name);
        property.setScale(scale);
        return property;
    }
};

TEST_F(ImportMaterials, OverridesPairByInstanceAndNameWithinTheSameKindOfList)
{
    for (const bool isOwn : {false, true}) {
        CImportPair pair;
        add(pair.source->getLayers(), "L");
        addComponent(*pair.source.get(), "C", 0);
        addComponent(*pair.source.get(), "D", 1);
        IZelObjectInstance& there = addComponentInstance(*pair.destination.get(), "House");
        const IZelProperty& oak = addOverride(there, isOwn, "Oak", 1.0);
        const IZelProperty& ash = addOverride(there, isOwn, "Ash", 1.0);
        const IZelProperty& other = addOverride(there, !isOwn, "Oak", 1.0);
        IZelObjectInstance& shed = addComponentInstance(*pair.destination.get(), "Shed");
        const IZelProperty& oakOfShed = addOverride(shed, isOwn, "Oak", 1.0);
        IZelObjectInstance& here = addComponentInstance(*pair.source.get(), "House");
        addOverride(here, isOwn, "Oak", 2.0);
        addOverride(here, isOwn, "Oak", 3.0);
        addOverride(here, isOwn, "Elm", 4.0);
        pair.import(kMaterials);
        EXPECT_EQ(oak.getScale(), 2.0); // the first of that name
        EXPECT_EQ(ash.getScale(), 1.0);
        EXPECT_EQ(other.getScale(), 1.0);
        EXPECT_EQ(oakOfShed.getScale(), 1.0);
        EXPECT_EQ(there.getProperties()->getNbObjects(), isOwn ? 2 : 1); // nothing is added
    }
}

TEST_F(ImportMaterials, TheComponentsOfTheSourceDecideWhatPairs)
{
    struct {
        std::vector<std::int32_t> levels;
        double expected; // an override of an instance with another name
    } cases[] = {
        {{}, 1.0},        // no component: nothing at all
        {{2, 2}, 1.0},    // none that counts
        {{1}, 2.0},       // one: the bare name
        {{2, 0, 2}, 2.0}, // one that counts
        {{1, 1}, 1.0},    // two: the instance's name belongs to it
    };
    for (const auto& each : cases) {
        CImportPair pair;
        add(pair.source->getLayers(), "L");
        for (const std::int32_t level : each.levels)
            addComponent(*pair.source.get(), "C", level);
        IZelObjectInstance& there = addComponentInstance(*pair.destination.get(), "House");
        const IZelProperty& oak = addOverride(there, false, "Oak", 1.0);
        addOverride(addComponentInstance(*pair.source.get(), "Barn"), false, "Oak", 2.0);
        pair.import(kMaterials);
        EXPECT_EQ(oak.getScale(), each.expected) << testing::PrintToString(each.levels);
    }
}

TEST_F(ImportMaterials, WithoutLayersTheDocumentsMaterialsAreTheSource)
{
    addComponent(from(), "C", 1);
    addComponent(from(), "D", 1);
    IZelObjectInstance& house = addComponentInstance(to(), "House");
    const IZelProperty& own = addOverride(house, true, "Oak", 1.0);
    const IZelProperty& ofComponent = addOverride(house, false, "Oak", 1.0);
    const IZelProperty& ash = addOverride(house, false, "Ash", 1.0);
    addOverride(addComponentInstance(from(), "House"), false, "Ash", 3.0);
    add(from().getProperties(), "Oak").setScale(2.0);
    import(kMaterials);
    EXPECT_EQ(own.getScale(), 2.0);
    EXPECT_EQ(ofComponent.getScale(), 2.0);
    EXPECT_EQ(ash.getScale(), 1.0);
}

TEST_F(ImportMaterials, InstancesThatCameInTheSameCallTakeTheirMaterialsToo)
{
    addComponent(from(), "C", 1);
    addOverride(addComponentInstance(from(), "House"), true, "Oak", 3.0);
    add(from().getProperties(), "Oak").setScale(2.0);
    import(kMaterials | 0x040);
    ASSERT_EQ(to().getObjectInstances()->getNbObjects(), 1);
    EXPECT_EQ(
        to().getObjectInstances()->getZelObject(0)->getProperties()->getZelObject(0)->getScale(),
        2.0);
}

/// A new node below the parent.
ITCENode& addNode(IZelProperty& property, ITCENode& parent, eNodeType type)
{
    ITCENode* node = property.getTCE()->createNode(type);
    node->setParent(&parent);
    parent.addChild(node);
    node->Release();
    return *node;
}

/// A mapping node below another one, which it names as its parent.
void addNestedMappings(IZelProperty& property)
{
    ITCENode& root = *property.getTCE()->getRootNode();
    root.removeChild(0);
    ITCENode& outer = addNode(property, root, eMappingNode);
    ITCENode& inner = addNode(property, outer, eMappingNode);
    addNode(property, inner, eLeafNode);
    outer.asMappingNode()->setMappingNodeId(idOfNumber(40));
    inner.asMappingNode()->setMappingNodeId(idOfNumber(41));
    inner.asMappingNode()->setParentMappingNodeId(idOfNumber(40));
}

TEST_F(ImportMaterials, MappingsOfACopyHaveNewIdentitiesAndStillFindTheirParents)
{
    add(from().getLayers(), "L");
    addComponent(from(), "C", 1);
    IZelProperty& oak = addOverride(addComponentInstance(to(), "A"), true, "Oak", 1.0);
    addNestedMappings(addOverride(addComponentInstance(from(), "A"), true, "Oak", 2.0));
    import(kMaterials);
    ASSERT_EQ(oak.getTCE()->getRootNode()->getNbChilds(), 1);
    ITCENode& outer = *oak.getTCE()->getRootNode()->getChild(0);
    ASSERT_NE(outer.asMappingNode(), nullptr);
    const IMappingNode& inner = *outer.getChild(0)->asMappingNode();
    EXPECT_NE(outer.asMappingNode()->getMappingNodeId(), idOfNumber(40));
    EXPECT_NE(inner.getMappingNodeId(), idOfNumber(41));
    EXPECT_EQ(inner.getParentMappingNodeId(), outer.asMappingNode()->getMappingNodeId());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ImportMaterials, WithoutComponentsTheDocumentsMaterialsStandForNothing)
{
    addComponent(from(), "C", 2);
    const IZelProperty& oak = addOverride(addComponentInstance(to(), "House"), false, "Oak", 1.0);
    add(from().getProperties(), "Oak").setScale(2.0);
    import(kMaterials);
    EXPECT_EQ(oak.getScale(), 1.0);
}

TEST_F(ImportMaterials, InstancesOfOtherClassesKeepTheirOverrides)
{
    add(from().getLayers(), "L");
    addComponent(from(), "C", 1);
    IZelProperty& kept = add(addInstance(to(), "A", CZelUUID(), CZelUUID()).getProperties(), "Oak");
    kept.setScale(1.0);
    addOverride(addComponentInstance(from(), "A"), true, "Oak", 2.0);
    import(kMaterials);
    EXPECT_EQ(kept.getScale(), 1.0);
}

TEST_F(ImportMaterials, AnOverwrittenMaterialKeepsIdentifierAndOverload)
{
    add(from().getLayers(), "L");
    addComponent(from(), "C", 1);
    IZelProperty& oak = addOverride(addComponentInstance(to(), "A"), true, "Oak", 1.0);
    const CZelUUID id = idOf(oak);
    oak.setOverloadId(idOfNumber(1));
    addOverride(addComponentInstance(from(), "A"), true, "Oak", 2.0).setOverloadId(idOfNumber(2));
    import(kMaterials);
    EXPECT_EQ(oak.getScale(), 2.0);
    EXPECT_EQ(idOf(oak), id);
    EXPECT_EQ(oak.getOverloadId(), idOfNumber(1));
}

TEST_F(ImportMaterials, DefinitionsPairByTheirNamesInTheCurrentLanguages)
{
    IZelProperty& house = add(addComponent(to(), "House", 2).getProperties(), "Oak");
    IZelProperty& shed = add(addComponent(to(), "Shed", 0).getProperties(), "Oak");
    house.setScale(1.0);
    shed.setScale(1.0);
    from().setLanguage("de");
    IZelZelObjectDefinition& haus = addComponent(from(), "House", 2); // a German name here
    haus.getName()->setText('e' << 8 | 'n', "Shed");
    add(haus.getProperties(), "Oak").setScale(2.0);
    add(haus.getProperties(), "Oak").setScale(3.0);
    import(kMaterials);
    EXPECT_EQ(house.getScale(), 2.0);
    EXPECT_EQ(shed.getScale(), 1.0);
}

TEST_F(ImportMaterials, TheGroundsMaterialComesIfItHasTheSameName)
{
    struct {
        const char* name;
        double expected;
    } cases[] = {{"Grass", 2.0}, {"grass", 1.0}};
    for (const auto& [name, expected] : cases) {
        CImportPair pair;
        IZelGround& there = add(pair.destination->getGrounds());
        there.getProperty()->getBasicData()->setName("Grass");
        there.getProperty()->setScale(1.0);
        there.setHeight(5.0);
        IZelGround& here = add(pair.source->getGrounds());
        here.getProperty()->getBasicData()->setName(name);
        here.getProperty()->setScale(2.0);
        here.getProperty()->setOverloadId(idOfNumber(1));
        const CZelUUID id = idOf(*there.getProperty());
        pair.import(kMaterials);
        EXPECT_EQ(there.getProperty()->getScale(), expected) << name;
        // Copied as a whole, unlike those that go by way of their file form.
        EXPECT_EQ(there.getProperty()->getOverloadId() == idOfNumber(1), expected == 2.0);
        EXPECT_EQ(idOf(*there.getProperty()), id);
        EXPECT_EQ(there.getHeight(), 5.0);
    }
}

TEST_F(ImportMaterials, AGroundThatTheDestinationLacksIsNotMade)
{
    add(from().getGrounds());
    import(kMaterials);
    EXPECT_EQ(to().getGrounds()->getNbObjects(), 0);
}

} // namespace
