#include "render/CAnimRenderingOpt.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CAnimRenderingOpt::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    XIXMLElement* options = CZelXMLGet(element).FindElement("Options");
    if (options == nullptr)
        options = CZelXMLAdd(element).AddElement("Options");
    addTo(io, CZelXMLAdd(options));
    return options;
}

bool CAnimRenderingOpt::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Options")));
    return true;
}

void CAnimRenderingOpt::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    mRendering->addTo(io, CZelXMLAdd(out.ReuseElement("Rendering")));
    mCompression.addTo(io, CZelXMLAdd(out.ReuseElement("Compression")));
}

void CAnimRenderingOpt::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mRendering->getFrom(io, CZelXMLGet(in.GetElement("Rendering")));
    if (XIXMLElement* compression = in.FindElement("Compression"))
        mCompression.getFrom(io, CZelXMLGet(compression));
}

} // namespace OvZel
