#include "objects/C3DPlant.h"

#include "xml/listXML.h"

namespace OvZel {

namespace {

constexpr CZelLabel kPlantTypes[] = {
    {"Undefined", 0}, {"Tree", 1},   {"Flower", 2},     {"Bushes", 3}, {"PottedPlant", 4},
    {"PalmTree", 5},  {"Cactus", 6}, {"WaterPlant", 7}, {"Fern", 8},   {nullptr, 0}};

} // namespace

C3DPlant::C3DPlant(CZelZelObjectDefinition& definition, CZelXMLIO& io, const CZelXMLGet& data)
    : mDefinition(definition), mSetUps(new CSetUps(definition.getObjectLink()))
{
    if (!data.IsElement("Plant.Setups"))
        return;
    mPlantType = data.GetAttributeLabel("Plant.Type", kPlantTypes);
    getItems(io, data.GetElement("Plant.Setups"), "Plant.Setup", *mSetUps);
}

void C3DPlant::save(CZelXMLIO& io, const CZelXMLAdd& data)
{
    data.AddAttributeLabel("Plant.Type", kPlantTypes, mPlantType);
    addItems(io, data.ReuseElement("Plant.Setups"), "Plant.Setup", *mSetUps);
}

} // namespace OvZel
