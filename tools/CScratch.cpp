#include "tools/CScratch.h"

#include "tools/CToolError.h"

#include <zel/IZelMgr.h>
#include <zel/xml/XIXMLElement.h>

namespace tool {

CScratch::CScratch(OvZel::IZelMgr& document)
    : mElement(document.getApplicationData("Zel.Tool.Scratch"))
{
    if (!mElement)
        throw CToolError(eIoError, "a document has no place for data of the tool");
    clear();
}

CScratch::~CScratch()
{
    clear();
}

OrvaneXML::XIXMLElement& CScratch::write(const CObjectList& list, const CListedObject& object)
{
    clear();
    OrvaneXML::XIXMLElement* element = object.write(*mElement);
    if (!element)
        throw CToolError(eNotReadable, list.name + ": \"" + object.name +
                                           "\" can't be compared, since it can't be saved");
    return *element;
}

void CScratch::clear()
{
    while (OrvaneXML::XIXMLData* node = mElement->GetFirstNode())
        node->Destroy();
}

} // namespace tool
