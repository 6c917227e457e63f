// Fifty thousand placed objects of a thousand components, against a plain program.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/SPlainInstance.h"
#include "bench/memoryOf.h"
#include "bench/streams.h"

#include <memory>
#include <string>

namespace ZelBench {

namespace {

std::size_t nbInstances()
{
    return isSmall() ? 500 : 50'000;
}

void addComponent(OvZel::IZelMgr& document, std::size_t number)
{
    OvZel::IZelZelObjectDefinition& component = *document.getDefinitions()->newZelObject(-1);
    component.getName()->setCurrentText(("Chair " + std::to_string(number)).c_str());
    for (double x : {0.0, 1.0, 2.0})
        *component.getPoints()->newZelObject(-1) = {x, x * x, 0.5};
}

void addInstance(OvZel::IZelMgr& document, std::size_t number)
{
    OvZel::IZelObjectInstance& instance = *document.getObjectInstances()->newZelObject(-1);
    const auto place = static_cast<double>(number);
    const auto component =
        static_cast<std::int32_t>(number) % document.getDefinitions()->getNbObjects();
    instance.getBasicData()->setName(
        ("A chair in the hall of the first floor, row 12, number " + std::to_string(number))
            .c_str());
    instance.setClass("ModelObject");
    instance.setTranslation({place / 7, place / 11, 0.25});
    instance.setRotation({0.0, 0.0, place / 13});
    instance.setAnchorPosition({place / 7, place / 11, 0.0});
    instance.setBoundingBox({{place, place, 0.0}, {place + 1.5, place + 2.5, 3.5}});
    instance.asInternalComponentInstance()->setComponentUUID(
        *document.getDefinitions()->getZelObject(component)->getBasicData()->getId());
}

std::string sceneFile()
{
    CDocument document;
    for (std::size_t i = 0; i < nbInstances() / 50; ++i)
        addComponent(*document.get(), i);
    for (std::size_t i = 0; i < nbInstances(); ++i)
        addInstance(*document.get(), i);
    CTextTarget target;
    document->write(&target, nullptr);
    return fileWith("instances.zel", target.text);
}

std::shared_ptr<CDocument> loadOwn(const std::string& path)
{
    return std::make_shared<CDocument>(CDocument::from(CFileSource(path)));
}

std::shared_ptr<std::vector<SPlainInstance>> loadPlain(const std::string& path)
{
    return std::make_shared<std::vector<SPlainInstance>>(readInstances(path));
}

const CRow kLoad("instances_load", [] {
    const std::string path = sceneFile();
    return SPair{[path] { return secondsOf([&] { return loadPlain(path); }); },
                 [path] { return secondsOf([&] { return loadOwn(path); }); }};
});

const CRow kLoadPeak("instances_load_peak", [] {
    const std::string path = sceneFile();
    return SPair{[path] { return memoryOf([&] { return loadPlain(path); }).peak; },
                 [path] { return memoryOf([&] { return loadOwn(path); }).peak; }};
});

const CRow kSave("instances_save", [] {
    const std::string path = sceneFile();
    const std::string plainOut = workPath("plain.out"), ownOut = workPath("own.out");
    return SPair{[plainOut, instances = loadPlain(path)] {
                     return secondsOf([&] {
                         writeInstances(*instances, plainOut);
                         return 0;
                     });
                 },
                 [ownOut, document = loadOwn(path)] {
                     return secondsOf([&] {
                         document->write(CFileTarget(ownOut));
                         return 0;
                     });
                 }};
});

const CRow kBytes("instance_bytes", [] {
    const std::string path = sceneFile();
    const auto count = static_cast<double>(nbInstances());
    return SPair{[path, count] { return memoryOf([&] { return loadPlain(path); }).held / count; },
                 [path, count] { return memoryOf([&] { return loadOwn(path); }).held / count; }};
});

} // namespace

} // namespace ZelBench
