#include "tools/droppedSections.h"

#include "tools/CToolError.h"

#include <zel/IZelMgr.h>

#include <map>

namespace tool {

using OrvaneXML::XIXMLAttribute;
using OrvaneXML::XIXMLElement;

static constexpr const char* kEarlySections[] = {"Heliodon",  "Image",      "Preview",
                                                 "Ambient",   "Atmosphere", "Background",
                                                 "Panoramas", "Current.Id"};

namespace {

// The way into the tree is an element of our own, which a save drops with the rest.
struct CWay {
    explicit CWay(OvZel::IZelMgr& document) : ownTag(document.getApplicationData("Zel.Tool"))
    {
        applicationData = ownTag ? ownTag->GetNode()->GetParent() : nullptr;
        file = applicationData ? applicationData->GetNode()->GetParent() : nullptr;
    }

    XIXMLElement* ownTag;
    XIXMLElement* applicationData;
    XIXMLElement* file;
};

} // namespace

static bool holdsSomething(const XIXMLElement& ownTag, const XIXMLElement& applicationData)
{
    return ownTag.GetFirstNode() || ownTag.GetFirstAttribute() || ownTag.GetNextElement() ||
           applicationData.GetFirstElement() != &ownTag;
}

CDropped droppedSections(OvZel::IZelMgr& document)
{
    CDropped dropped;
    const CWay way(document);
    if (!way.file)
        return dropped;
    for (const char* name : kEarlySections)
        if (way.file->FindElement(way.file->MakeKey(name)))
            dropped.earlySections.emplace_back(name);
    dropped.hasApplicationData = holdsSomething(*way.ownTag, *way.applicationData);
    return dropped;
}

static void reportSection(const std::string& name, const std::string& path)
{
    complain(path + ": the section \"" + name + "\" isn't saved");
}

void reportDroppedSections(OvZel::IZelMgr& document, const std::string& path)
{
    const CDropped dropped = droppedSections(document);
    for (const std::string& name : dropped.earlySections)
        reportSection(name, path);
    if (dropped.hasApplicationData)
        reportSection("Application.Data", path);
}

static XIXMLElement* child(const XIXMLElement* element, const char* name)
{
    return element ? element->FindElement(element->MakeKey(name)) : nullptr;
}

std::vector<std::string> repeatedComponents(OvZel::IZelMgr& document)
{
    std::map<std::string, int> nbWithId;
    for (XIXMLElement* section = child(CWay(document).file, "InternalComponentDefinitions");
         section; section = section->GetNextSame())
        for (XIXMLElement* each = child(section, "InternalComponentDefinition"); each;
             each = each->GetNextSame())
            if (const XIXMLAttribute* id = each->FindAttribute(each->MakeKey("UUID")))
                ++nbWithId[id->GetValue()];
    std::vector<std::string> repeated;
    for (const auto& [id, count] : nbWithId)
        if (count > 1)
            repeated.push_back(id);
    return repeated;
}

} // namespace tool
