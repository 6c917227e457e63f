#include "objects/CZelBBMgrData.h"

#include "xml/listXML.h"

namespace OvZel {

CZelBBMgrData::CZelBBMgrData(IZelObjectLinkRef* owner)
    : TZelXMLFrontierObjLinkRef(owner), mBillboard(this), mQuads(new CQuads(this))
{
}

OrvaneXML::XIXMLElement* CZelBBMgrData::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Billboard"));
    addTo(io, out);
    return out.element();
}

bool CZelBBMgrData::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Billboard")));
    return true;
}

void CZelBBMgrData::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    const CZelXMLAdd info(out.AddElement("Mgr.Info"));
    info.AddFmtAttribute("Property", "%08X", static_cast<std::uint32_t>(mProperty));
    addItems(io, info.AddElement("Quads"), "Quad", *mQuads);
    mTexture.addTo(io, CZelXMLAdd(out.AddElement("Texture")));
    mBillboard.addTo(io, CZelXMLAdd(out.AddElement("Bb.Info")));
}

void CZelBBMgrData::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    const CZelXMLGet info(in.GetElement("Mgr.Info"));
    unsigned property = 0;
    info.GetFmtAttribute("Property", "%X", &property);
    mProperty = property;
    getItems(io, info.GetElement("Quads"), "Quad", *mQuads);
    mTexture.getFrom(io, CZelXMLGet(in.GetElement("Texture")));
    mBillboard.getFrom(io, CZelXMLGet(in.GetElement("Bb.Info")));
}

} // namespace OvZel
