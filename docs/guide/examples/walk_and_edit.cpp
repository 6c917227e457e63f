// Fills lists, walks along them, moves, renames and removes.

#include "examples/shared/CDocument.h"

#include <cstdio>

using namespace OvZel;
using namespace example;

static void print(IZelMgr& document)
{
    TZelObjectMgr<IZelLight>* lights = document.getLights();
    for (std::int32_t i = 0; i < lights->getNbObjects(); ++i) {
        IZelLight* light = lights->getZelObject(i);
        std::printf("%d \"%s\" power %g\n", i, light->getBasicData()->getName(), light->getPower());
    }
}

int main()
{
    CDocument document;
    TZelObjectMgr<IZelLight>* lights = document->getLights();
    for (const char* name : {"Desk", "Floor", "Ceiling"})
        lights->newZelObject(-1)->getBasicData()->setName(name); // -1: behind the last

    lights->getZelObject(0)->setPower(0.25); // below the range: the limit 1 is stored
    lights->moveObject(2, 0);
    lights->getZelObject(1)->getBasicData()->setName("Table");
    lights->removeObject(2);
    print(*document);

    // What names a light elsewhere, by its identifier, is the client's to follow.
    const CZelUUID group = idOf(add(document->getLightsGroups(), "Evening"));
    for (std::int32_t i = 0; i < lights->getNbObjects(); ++i)
        *lights->getZelObject(i)->getLightsGroups()->newZelObject(-1) = group;

    const bool isGood = lights->getNbObjects() == 2 && lights->getZelObject(1)->getPower() == 1.0;
    return isGood ? 0 : 1;
}
