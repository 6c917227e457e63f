#include "objects/CZelLayerInfo.h"

using OrvaneXML::XIXMLElement;

namespace OvZel {

XIXMLElement* CZelLayerInfo::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).ReuseElement("Layers.Info"));
    addTo(io, out);
    return out.element();
}

bool CZelLayerInfo::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Layers.Info")));
    return true;
}

void CZelLayerInfo::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddUUID("Active.Layer", mActiveLayer);
    const CZelXMLAdd layers(out.AddElement("Default.Layer.Map"));
    layers.AddUUID("Plant3D", getDefaultLayer("3DPlant"));
    layers.AddUUID("ZelObject", getDefaultLayer("ZelObject"));
    layers.AddUUID("Billboard", getDefaultLayer("Billboard"));
    layers.AddUUID("LightObject", getDefaultLayer("LightObject"));
    layers.AddUUID("AnimatedObject", getDefaultLayer("AnimatedObject"));
}

void CZelLayerInfo::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActiveLayer = in.GetUUID("Active.Layer");
    if (!in.IsElement("Default.Layer.Map"))
        return;
    const CZelXMLGet layers(in.GetElement("Default.Layer.Map"));
    const auto take = [&](OrvaneXML::CXMLTag attribute, const char* objectClass) {
        if (layers.GetOptionalAttribute(attribute) != nullptr)
            setDefaultLayer(objectClass, layers.GetUUID(attribute));
    };
    // Older files; the name was given up, since names in XML cannot begin with a digit.
    take("3DPlant", "3DPlant");
    take("3DPlant", "3DPlantGroupInstances");
    take("Plant3D", "3DPlant");
    take("ZelObject", "ZelObject");
    take("Billboard", "Billboard");
    take("LightObject", "LightObject");
    take("AnimatedObject", "AnimatedObject");
}

} // namespace OvZel
