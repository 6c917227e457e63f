#include "views/CZelPanoramaV2.h"

#include "xml/listXML.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelPanoramaV2::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("PanoramaV2");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelPanoramaV2::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("PanoramaV2")));
    return true;
}

void CZelPanoramaV2::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddCoord3D("Direction", mDirection);
    out.AddDouble("Focal", mFocal);
    out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
    out.AddInteger("View.Flags", mFlags);
    out.AddCoord3D("Current.Direction", mCurrentDirection);
    out.AddDouble("Current.Focal", mFocal); // again, and nobody reads it
    out.AddUUID("Current.Node.Id", mCurrentNode);
    CZelXMLAdd(out.AddElement("Start.NodeID")).AddUUID("UUID", mStartNode);
    getViewOptions()->addTo(io, CZelXMLAdd(out.AddElement("Options")));
    getViewInfo()->addTo(io, CZelXMLAdd(out.AddElement("View.Info")));
    addItems(io, out.ReuseElement("PanoramaV2.Nodes"), "PanoramaV2.Node", *mNodes);
    addItems(io, out.ReuseElement("PanoV2.Links"), "PanoV2.Link", *mLinks);
    out.AddIdList("Parallel.Views", "Parallel.View", *mParallelViews);
}

void CZelPanoramaV2::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (io.getUUID() && in.GetOptionalAttribute("UUID") != nullptr) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    }
    setName(in.GetAttributeLanguage("Name"));
    if (in.IsElement("Direction"))
        mDirection = in.GetDirection("Direction", io.getMgrRef());
    mFocal = in.GetDouble("Focal");
    setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
    mFlags = in.GetInteger("View.Flags");
    if (in.IsElement("Current.Direction"))
        mCurrentDirection = in.GetDirection("Current.Direction", io.getMgrRef());
    if (in.GetOptionalAttribute("Current.Node.Id") != nullptr)
        mCurrentNode = in.GetUUID("Current.Node.Id");
    mStartNode = CZelXMLGet(in.GetElement("Start.NodeID")).GetUUID("UUID");
    getViewOptions()->getFrom(io, CZelXMLGet(in.GetElement("Options")));
    getViewInfo()->getFrom(io, CZelXMLGet(in.GetElement("View.Info")));
    getRequiredItems(io, in, "PanoramaV2.Nodes", "PanoramaV2.Node", *mNodes);
    getRequiredItems(io, in, "PanoV2.Links", "PanoV2.Link", *mLinks);
    in.GetIdList("Parallel.Views", "Parallel.View", *mParallelViews);
}

} // namespace OvZel
