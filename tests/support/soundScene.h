#pragma once

#include <zel/IZelMgr.h>

namespace ZelTest {

template <class T>
T& addNamed(OvZel::TZelObjectMgr<T>& list, const char* name)
{
    T& object = *list.newZelObject(-1);
    object.getBasicData()->setName(name);
    return object;
}

inline OvZel::IZelProperty& addMaterial(OvZel::TZelObjectMgr<OvZel::IZelProperty>& list,
                                        const char* name)
{
    OvZel::IZelProperty& property = addNamed(list, name);
    property.setDiffuseColor(OvZel::CZelColor::rgb(16, 32, 255));
    return property;
}

/// One of each: whatever one object of it names is there.
class CSoundScene {
public:
    explicit CSoundScene(OvZel::IZelMgr& document)
        : material(addMaterial(*document.getProperties(), "Oak")),
          definition(*document.getDefinitions()->newZelObject(-1)),
          external(*document.getExternalDefinitions()->newZelObject(-1)),
          layer(addNamed(*document.getLayers(), "Garden")),
          group(addNamed(*document.getLightsGroups(), "Lamps")),
          light(addNamed(*document.getLights(), "Porch")),
          heliodon(*document.getHeliodons()->getZelObject(0)), // a new document has one
          environment(*document.getEnvironments()->newZelObject(-1)),
          ground(addNamed(*document.getGrounds(), "Meadow")),
          shed(addNamed(*document.getObjectInstances(), "Shed 1")),
          chair(addNamed(*document.getObjectInstances(), "Chair 1")),
          camera(addNamed(*document.getCameras(), "Street"))
    {
        material.setDiffuseMapUrl("oak.jpg");
        heliodon.getBasicData()->setName("Noon");
        fillDefinitions();
        fillLights();
        fillInstances();
        fillCamera();
        document.getLayerInfo()->setActiveLayer(*layer.getBasicData()->getId());
        document.getLayerInfo()->setDefaultLayer("Billboard", *layer.getBasicData()->getId());
    }

    OvZel::IZelProperty& material;              ///< with a map
    OvZel::IZelZelObjectDefinition& definition; ///< a triangle
    OvZel::IZelExternalDefinition& external;
    OvZel::IZelLayer& layer;
    OvZel::IZelLightsGroup& group;
    OvZel::IZelLight& light; ///< a spot
    OvZel::IZelHeliodon& heliodon;
    OvZel::IZelEnvironment& environment;
    OvZel::IZelGround& ground;
    OvZel::IZelObjectInstance& shed;  ///< of the definition
    OvZel::IZelObjectInstance& chair; ///< of the external one, attached to the shed
    OvZel::IZelCamera& camera;

private:
    void fillDefinitions()
    {
        definition.getName()->setCurrentText("Shed");
        for (const OvZel::CZelPoint& point :
             {OvZel::CZelPoint{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {0.0, 3.0, 0.0}})
            *definition.getPoints()->newZelObject(-1) = point;
        OvZel::IZelPolygon& polygon = *definition.getPolygons()->newZelObject(-1);
        for (const int point : {0, 1, 2})
            polygon.getVertices()->newZelObject(-1)->pointIndex = point;
        addMaterial(*definition.getProperties(), "Plank");
        external.setURL("chair.zob");
    }

    void fillLights()
    {
        light.setType(1);
        light.setPosition({1.0, 2.0, 3.5});
        *light.getLightsGroups()->newZelObject(-1) = *group.getBasicData()->getId();
    }

    void fillInstances()
    {
        shed.setClass("ModelObject");
        shed.asInternalComponentInstance()->setComponentUUID(*definition.getBasicData()->getId());
        shed.setLayerId(*layer.getBasicData()->getId());
        shed.setTranslation({10.0, 0.0, -2.5});
        addMaterial(*shed.asInternalComponentInstance()->getProperties(), "Painted plank");
        chair.setClass("ZelObject");
        chair.asZelObjectInstance()->setExternalDefinitionId(*external.getBasicData()->getId());
        chair.setAttachId(*shed.getBasicData()->getId());
    }

    void fillCamera()
    {
        OvZel::IZelViewInfo& info = *camera.getViewInfo();
        info.setHeliodonName("Noon");
        info.setEnvironment(environment.getId());
        info.setGround(*ground.getBasicData()->getId());
        *info.getLightsGroups()->newZelObject(-1) = *group.getBasicData()->getId();
        *info.getLayers()->newZelObject(-1) = *layer.getBasicData()->getId();
    }
};

} // namespace ZelTest
