#include "tools/droppedSections.h"

#include "tools/CToolError.h"

#include <zel/IZelMgr.h>

namespace tool {

using OrvaneXML::XIXMLElement;

static constexpr const char* kEarlySections[] = {"Heliodon",  "Image",      "Preview",
                                                 "Ambient",   "Atmosphere", "Background",
                                                 "Panoramas", "Current.Id"};

static void reportSection(const char* name, const std::string& path)
{
    complain(path + ": the section \"" + name + "\" isn't saved");
}

static bool holdsSomething(const XIXMLElement& ownTag, const XIXMLElement& applicationData)
{
    return ownTag.GetFirstNode() || ownTag.GetFirstAttribute() || ownTag.GetNextElement() ||
           applicationData.GetFirstElement() != &ownTag;
}

void reportDroppedSections(OvZel::IZelMgr& document, const std::string& path)
{
    // The way into the tree is an element of our own, which the save drops with the rest.
    XIXMLElement* ownTag = document.getApplicationData("Zel.Tool");
    XIXMLElement* applicationData = ownTag ? ownTag->GetNode()->GetParent() : nullptr;
    XIXMLElement* file = applicationData ? applicationData->GetNode()->GetParent() : nullptr;
    if (!file)
        return;
    for (const char* name : kEarlySections)
        if (file->FindElement(file->MakeKey(name)))
            reportSection(name, path);
    if (holdsSomething(*ownTag, *applicationData))
        reportSection("Application.Data", path);
}

} // namespace tool
