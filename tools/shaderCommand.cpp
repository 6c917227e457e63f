#include "tools/commands.h"

#include "tools/CAtomicFile.h"
#include "tools/CToolDocument.h"
#include "tools/elementText.h"
#include "tools/forEach.h"
#include "tools/loadForSave.h"

#include <zel/IZelMgrEx.h>

#include <charconv>

namespace tool {

using OvZel::IZelProperty;

// "#N" as the number of a material.
static std::optional<std::int32_t> numberOf(const std::string& name)
{
    std::int32_t number = 0;
    if (name.size() < 2 || name[0] != '#')
        return std::nullopt;
    const char* const end = name.data() + name.size();
    const auto [behind, error] = std::from_chars(name.data() + 1, end, number);
    if (error != std::errc() || behind != end || number < 0)
        return std::nullopt;
    return number;
}

// The materials of that name; if there is none, the one of that number.
static std::vector<IZelProperty*> materialsOf(OvZel::IZelMgr& document, const std::string& name)
{
    std::vector<IZelProperty*> found;
    forEach(*document.getProperties(), [&](IZelProperty& property, std::int32_t) {
        if (name == property.getBasicData()->getName())
            found.push_back(&property);
    });
    const std::optional<std::int32_t> number = numberOf(name);
    if (found.empty() && number && *number < document.getProperties()->getNbObjects())
        found.push_back(document.getProperties()->getZelObject(*number));
    return found;
}

// Null if there is none.
static IZelProperty* findMaterial(OvZel::IZelMgr& document, const CShader& request)
{
    const std::vector<IZelProperty*> found = materialsOf(document, request.name);
    if (found.size() > 1)
        throw CToolError(eNotReadable, request.file + ": " + std::to_string(found.size()) +
                                           " materials have the name \"" + request.name +
                                           "\"; #N takes the one of number N, from 0");
    return found.empty() ? nullptr : found[0];
}

[[noreturn]] static void failUnknown(const CShader& request)
{
    throw CToolError(eNotReadable, request.file + ": no material \"" + request.name + "\"");
}

// IZelMgrEx::writeShader leaves name and values out, and what it writes no reader takes. So the
// whole property goes into an element for client data, which is part of no save.
void exportShaderCommand(const CShader& request)
{
    CToolDocument document;
    {
        CFileReadStream stream(request.file);
        document.read(stream, request.file);
    }
    IZelProperty* property = findMaterial(*document, request);
    if (!property)
        failUnknown(request);
    OrvaneXML::XIXMLElement* shader = document->getApplicationData("Zel.Shader");
    while (shader && shader->GetFirstNode())
        shader->GetFirstNode()->Destroy();
    if (!shader || !property->getBasicData()->putInXML(shader))
        throw CToolError(eNotReadable, request.file + ": the material can't be written");
    CAtomicFile file(request.out);
    file.stream().writeText("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + elementText(*shader) +
                            "\n");
    file.commit();
}

static IZelProperty* newMaterial(OvZel::IZelMgr& document, const CShader& request)
{
    if (numberOf(request.name))
        failUnknown(request);
    IZelProperty* property = document.getProperties()->newZelObject(-1);
    if (!property)
        throw CToolError(eNotReadable, request.file + ": a material can't be added");
    property->getBasicData()->setName(request.name.c_str());
    return property;
}

// Name and identifiers stay those of the document: by them the material is found and used there.
static void readInto(OvZel::IZelMgr& document, IZelProperty& property, const CShader& request)
{
    OvZel::IZelBasicData& data = *property.getBasicData();
    const std::string name = data.getName();
    const OvZel::CZelUUID id = *data.getId();
    const OvZel::CZelUUID overloaded = property.getOverloadPropIndex();
    const OvZel::CZelUUID overloadId = property.getOverloadId();

    CFileReadStream stream(request.shader);
    const bool isRead = document.getMgrEx(OvZel::eVersionZel)->readShader(&property, &stream);
    stream.check();
    if (!isRead)
        throw CToolError(eNotReadable, request.shader + ": not readable as a shader");
    data.setName(name.c_str());
    data.setId(&id);
    property.setOverloadPropIndex(overloaded);
    property.setOverloadId(overloadId);
}

void importShaderCommand(const CShader& request)
{
    CToolDocument document;
    loadForSave(document, request.file, "zel rewrite --force makes a file to import into");
    IZelProperty* property = findMaterial(*document, request);
    if (!property)
        property = newMaterial(*document, request);
    readInto(*document, *property, request);
    document.save(request.out);
}

} // namespace tool
