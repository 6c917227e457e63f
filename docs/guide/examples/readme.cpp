#include <zel/IZelMgr.h>
using namespace OvZel;

int main()
{
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, IZelMgr::getZELVersion(), nullptr);
    for (double x : {0.0, 1.0, 2.0})
        *document->getPoints()->newZelObject(-1) = {x, x * x, 0.0};
    IZelPolygon* polygon = document->getPolygons()->newZelObject(-1);
    for (int point : {0, 1, 2})
        polygon->getVertices()->newZelObject(-1)->pointIndex = point;
    document->Release();
}
