// Makes a small scene from nothing: a brick wall that stands twice in a room, a lamp, the sun and a
// camera that looks at them. Saves it, loads it and prints what it finds.

#include "examples/shared/CDocument.h"

#include <cstdio>
#include <exception>

using namespace OvZel;
using namespace example;

static void fillBricks(IZelProperty& bricks)
{
    bricks.setDiffuseColor(CZelColor::rgb(178, 84, 60));
    bricks.setDiffuseMapUrl("textures/bricks.png");
    bricks.setProjection(7); // by the coordinates of the mesh
    bricks.setMapRepeat(true, true);
}

// One square, with a texture that covers it four times in width.
static void fillMesh(IZelZelObjectDefinition& wall)
{
    const CZelPoint corners[] = {{0, 0, 0}, {4, 0, 0}, {4, 0, 2.5}, {0, 0, 2.5}};
    const float u[] = {0, 4, 4, 0}, v[] = {0, 0, 1, 1};
    IZelPolygon& polygon = add(wall.getPolygons());
    polygon.setMaterial(0); // the first material of the component
    for (int i = 0; i < 4; ++i) {
        add(wall.getPoints()) = corners[i];
        add(polygon.getVertices()) = {i, CZelVertex::kFlagM, u[i], v[i]};
    }
}

static CZelUUID addWall(CDocument& room)
{
    IZelZelObjectDefinition& wall = add(room->getDefinitions(), "Wall");
    wall.setClass("ModelObject");
    fillBricks(add(wall.getProperties(), "Bricks"));
    fillMesh(wall);
    return idOf(wall);
}

static void placeWall(CDocument& room, const char* name, const CZelUUID& wall,
                      const CZelUUID& layer, const CZelPoint& place, double angle)
{
    IZelObjectInstance& instance = add(room->getObjectInstances(), name);
    instance.setClass("ModelObject"); // brings the interface of the next line
    instance.asInternalComponentInstance()->setComponentUUID(wall);
    instance.setLayerId(layer);
    instance.setTranslation(place);
    instance.setRotation({0, 0, angle});
}

static CZelUUID addLamp(CDocument& room)
{
    const CZelUUID group = idOf(add(room->getLightsGroups(), "Evening"));
    IZelLight& lamp = add(room->getLights(), "Lamp");
    lamp.setPosition({2, 2, 2.2});
    add(lamp.getLightsGroups()) = group;
    return group;
}

// A new document has a sun already.
static void setSun(CDocument& room)
{
    IZelHeliodon& sun = *room->getHeliodons()->getZelObject(0);
    sun.getBasicData()->setName("Afternoon");
    sun.setPlacementKind(2); // by date and place
    sun.getTime()->setHour(16);
}

static void build(CDocument& room)
{
    const CZelUUID wall = addWall(room);
    const CZelUUID walls = idOf(add(room->getLayers(), "Walls"));
    placeWall(room, "South wall", wall, walls, {0, 0, 0}, 0);
    placeWall(room, "West wall", wall, walls, {0, 0, 0}, 1.570796);
    setSun(room);
    IZelCamera& camera = add(room->getCameras(), "From the door");
    camera.setPosition({3.5, 3.5, 1.7});
    camera.setTarget({0, 0, 1.2});
    camera.setUp({0, 0, 1});
    IZelViewInfo& view = *camera.getViewInfo();
    view.setHeliodonName("Afternoon");
    add(view.getLightsGroups()) = addLamp(room);
    add(view.getLayers()) = walls;
}

static void print(CDocument& room)
{
    IZelZelObjectDefinition& wall = *room->getDefinitions()->getZelObject(0);
    const char* texture = wall.getProperties()->getZelObject(0)->getDiffuseMapUrl();
    std::printf("component \"%s\": %d points, texture %s\n", nameOf(wall),
                wall.getPoints()->getNbObjects(), texture);
    for (int i = 0; i < room->getObjectInstances()->getNbObjects(); ++i) {
        IZelObjectInstance& instance = *room->getObjectInstances()->getZelObject(i);
        const CZelUUID& id = instance.asInternalComponentInstance()->getComponentUUID();
        std::printf("instance \"%s\" of %s\n", nameOf(instance),
                    id == idOf(wall) ? nameOf(wall) : "nothing");
    }
    IZelViewInfo& view = *room->getCameras()->getZelObject(0)->getViewInfo();
    std::printf("camera with sun \"%s\", %d group, %d layer\n", view.getHeliodonName(),
                view.getLightsGroups()->getNbObjects(), view.getLayers()->getNbObjects());
}

int main(int argc, char** argv)
{
    try {
        const char* path = argc > 1 ? argv[1] : "a_room.zel";
        CDocument room;
        build(room);
        room.save(path);
        CDocument loaded;
        loaded.load(path);
        print(loaded);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "a_room: %s\n", error.what());
        return 1;
    }
}
