#include "materials/CProperty.h"

#include "core/OvThrow.h"
#include "materials/CLeafNode.h"
#include "materials/CTCENodeXML.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CProperty::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Property"));
    addTo(io, out);
    return out.element();
}

bool CProperty::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Property")));
    return true;
}

void CProperty::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddBoolean("Visible", mVisible);
    out.AddBoolean("Cast.Shadow", mCastShadow);
    out.AddBoolean("Receive.Shadow", mReceiveShadow);
    out.AddBoolean("UV.Defined", mUVDefined);
    out.AddBoolean("Billboard", mBillboard);
    out.AddDouble("Smooth", mSmooth);
    out.AddDouble("Bevel", mBevel);
    out.AddDouble("Scale", mScale);
    out.AddText("URL", mTCE->getUrl());
    if (!mTCE->getShaderId().isNull())
        out.AddUUID("Shader.Id", mTCE->getShaderId());
    out.AddLanguages("Shader.Name", *mTCE->getName());
    if (mTCE->getUIValue() != 0)
        out.AddInteger("TCE.UI.Value", static_cast<std::int32_t>(mTCE->getUIValue()));
    out.AddText("Editor.Name", mTCE->getEditorName());
    writeNode(io, CZelXMLAdd(out.AddElement("Node")));
    out.AddUUID("Id", *getId());
    out.AddUUID("Overload.Prop.Index", mOverloadPropIndex);
    out.AddUUID("Overload.Id", mOverloadId);
    if (getUIValue() != 0)
        out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
}

void CProperty::writeNode(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    if (root().getNbChilds() > 0)
        return addNode(io, out, root().getChild(0));
    // The file form has no empty tree. A leaf with what the getters answer stands for it, without
    // an identity, so that two saves of one document are alike.
    const TZelComPtr<CLeafNode> leaf(new CLeafNode(&root()));
    leaf->setId(CZelUUID());
    leaf->setDiffuse(getDiffuseColor());
    leaf->setGlossy(getGlossy());
    leaf->setRefraction(getRefraction());
    addNode(io, out, leaf.get());
}

void CProperty::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    // The nodes come first, but a failure behind them leaves the old ones in the tree.
    const TZelComPtr<CTCENode> node = readNode(io, CZelXMLGet(in.GetElement("Node")));
    setName(in.GetAttributeLanguage("Name"));
    mVisible = in.IsElement("Visible");
    mCastShadow = in.IsElement("Cast.Shadow") || in.IsElement("Shadow"); // the older name
    mReceiveShadow = in.IsElement("Receive.Shadow");
    mUVDefined = in.IsElement("UV.Defined");
    mBillboard = in.IsElement("Billboard");
    setSmooth(in.GetDouble("Smooth"));
    if (in.IsElement("Bevel"))
        setBevel(in.GetDouble("Bevel"));
    setScale(in.GetDouble("Scale"));
    mTCE->setUrl(in.GetText("URL"));
    if (in.GetOptionalAttribute("Shader.Id") != nullptr)
        mTCE->setShaderId(in.GetUUID("Shader.Id"));
    if (in.IsElement("Editor.Name"))
        mTCE->setEditorName(in.GetText("Editor.Name"));
    in.GetLanguages("Shader.Name", *mTCE->getName());
    if (in.IsElement("TCE.UI.Value"))
        mTCE->setUIValue(static_cast<std::uint32_t>(in.GetInteger("TCE.UI.Value")));
    if (!node)
        OvThrow::Signal("Can't root's child"); // (sic)
    root().setChild(0, node.get());
    if (io.getUUID()) {
        const CZelUUID id = in.GetUUID("Id");
        setId(&id);
        mOverloadPropIndex = in.GetUUID("Overload.Prop.Index");
        mOverloadId = in.GetUUID("Overload.Id");
    }
    if (in.IsElement("UI.Value"))
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
}

TZelComPtr<CTCENode> CProperty::readNode(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (io.getUUID())
        return getNode(io, in, &root());
    // Mapping nodes get new identities here and still find their parents by those in the file. The
    // table is for this property alone: another one may have the same.
    struct COwnIdentities {
        explicit COwnIdentities(CZelXMLIO& frame) : io(frame) { io.setIdentities(&own); }
        ~COwnIdentities() { io.setIdentities(before); }

        CZelXMLIO& io;
        CZelXMLIO::CIdentities own;
        CZelXMLIO::CIdentities* before = io.identities();
    } identities(io);
    return getNode(io, in, &root());
}

} // namespace OvZel
