// Takes what is new in an export over into a document that somebody has worked on.

#include "examples/shared/CDocument.h"

#include <cstdio>

using namespace OvZel;
using namespace example;

static double powerOf(IZelMgr& document, const std::string& name)
{
    for (std::int32_t i = 0; i < document.getLights()->getNbObjects(); ++i)
        if (nameOf(*document.getLights()->getZelObject(i)) == name)
            return document.getLights()->getZelObject(i)->getPower();
    return -1.0;
}

int main()
{
    CDocument tuned;
    add(tuned->getLights(), "Desk").setPower(40.0);
    add(tuned->getLights(), "Candle").setPower(5.0); // the export doesn't have it
    add(tuned->getCameras(), "From the door");

    CDocument fresh;
    add(fresh->getLights(), "Desk").setPower(60.0);
    add(fresh->getLights(), "Ceiling").setPower(100.0);
    add(fresh->getCameras(), "From above");

    // Lights alone: cameras of either side stay as they are.
    IZelMgr::doImportReference(&*tuned, &*fresh, IZelMgr::eImportLights);

    for (const char* name : {"Desk", "Candle", "Ceiling"})
        std::printf("%s %g\n", name, powerOf(*tuned, name));
    const bool isMerged = powerOf(*tuned, "Desk") == 60.0 && powerOf(*tuned, "Candle") == 5.0 &&
                          powerOf(*tuned, "Ceiling") == 100.0;
    return isMerged && tuned->getCameras()->getNbObjects() == 1 ? 0 : 1;
}
