// A document for each thread, and an object that outlives its document.

#include "examples/shared/CDocument.h"

#include <cstdio>
#include <thread>

using namespace OvZel;
using namespace example;

static IZelLight* makeLight(const char* name)
{
    CDocument document;
    IZelLight& light = add(document->getLights(), name);
    light.AddRef(); // now it may stay longer than its list
    return &light;
} // the document goes here

int main()
{
    IZelLight* first = nullptr;
    IZelLight* second = nullptr;
    std::thread other([&second] { second = makeLight("Second"); });
    first = makeLight("First");
    other.join();

    bool isGood = true;
    for (IZelLight* light : {first, second}) {
        light->setPower(60.0);
        light->getBasicData()->setName(nullptr); // warns, but no one is there to hear it
        isGood = isGood && light->getObjectLink()->getMgrRef()->getMgr() == nullptr;
        std::printf("%s %g\n", light->getBasicData()->getName(), light->getPower());
    }
    std::thread last([first] { first->Release(); }); // from any thread
    second->Release();
    last.join();
    return isGood ? 0 : 1;
}
