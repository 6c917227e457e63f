#include "objects/CZelZelObjectDefinition.h"

#include "core/OvThrow.h"
#include "geometry/CPointsProvider.h"
#include "geometry/CPolygonsProvider.h"
#include "objects/TMeshBlock.h"
#include "xml/listXML.h"
#include "xml/readWhileItLasts.h"

using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

constexpr CZelLabel kModelOrigins[] = {{"Uninitialized", 0}, {"CenterXYBottom", 1},
                                       {"CenterXYTop", 2},   {"CenterXY", 3},
                                       {"Camera.Target", 4}, {nullptr, 0}};

} // namespace

XIXMLElement* CZelZelObjectDefinition::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    return mClass == "ModelObject" ? addWrapper(io, element) : addDefinition(io, element);
}

XIXMLElement* CZelZelObjectDefinition::addWrapper(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("InternalComponentDefinition"));
    out.AddUUID("UUID", *getId());
    out.AddInteger("Geometry.Level", mGeometryLevel);
    IZelMgrRef& mgrRef = *io.getMgrRef();
    out.AddElement("Points")->SetCData(
        new TMeshBlock<CPointsProvider>(mgrRef, *mPoints, *mPolygons));
    out.AddElement("Polygons")
        ->SetCData(new TMeshBlock<CPolygonsProvider>(mgrRef, *mPoints, *mPolygons));
    addDefinition(io, out.element());
    return out.element();
}

bool CZelZelObjectDefinition::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    if (mClass != "ModelObject") {
        getDefinition(io, element);
        return true;
    }
    XIXMLElement* wrapper = CZelXMLGet(element).FindElement("InternalComponentDefinition");
    if (wrapper == nullptr)
        OvThrow::Signal("CZelZelObjectDefinition::initWithXML : "
                        "cannot find internal component definition node");
    const CZelXMLGet in(wrapper);
    const CZelUUID id = in.GetUUID("UUID");
    if (io.getUUID())
        setId(&id);
    mGeometryLevel = in.GetInteger("Geometry.Level");
    getDefinition(io, wrapper);
    return true;
}

XIXMLElement* CZelZelObjectDefinition::addDefinition(CZelXMLIO& io, XIXMLElement* parent)
{
    const CZelXMLAdd out(CZelXMLAdd(parent).ReuseElement("Object.Definition"));
    addTo(io, out);
    return out.element();
}

void CZelZelObjectDefinition::getDefinition(CZelXMLIO& io, XIXMLElement* parent)
{
    XIXMLElement* element = CZelXMLGet(parent).FindElement("Object.Definition");
    if (element != nullptr)
        getFrom(io, CZelXMLGet(element));
}

void CZelZelObjectDefinition::addTo(CZelXMLIO& io, const CZelXMLAdd& out)
{
    if (mClass.empty())
        return;
    saveDelegate(io);
    CZelXMLAdd(out.AddElement("Class")).AddAttribute("en", mClass.c_str());
    out.AddUUID("UUID", *getId());
    out.AddLanguages("Name", *mName);
    out.AddCoord3D("Anchor", mAnchor);
    out.AddAttributeLabel("Placement", kPlacements, mPlacement);
    out.AddCoord3D("Up", mUp);
    out.AddDouble("Initial.Angle", mInitialAngle);
    addItems(io, out.AddElement("Properties"), "Property", *mProperties);
    out.AddUUID("LightGroupID", mLightGroupId);
    out.AddCoord3D("Model.Rotation", mModelRotation);
    out.AddZelMatrix("Model.Rotation.Matrixs", mModelRotationMatrix.data()); // (sic)
    out.AddCoord3D("Model.Position", mModelPosition);
    out.AddLanguages("Description1", mDescription1);
    out.AddLanguages("Description2", mDescription2);
    out.AddLanguages("Comment", mComment);
    out.AddInteger("UIValue", static_cast<std::int32_t>(getUIValue()));
    out.AddAttributeLabel("Model.Origin", kModelOrigins, mModelOrigin);
    addItems(io, out.AddElement("Setups"), "Setup", *mSetups);
    mData.copyInto(*out.element());
}

void CZelZelObjectDefinition::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (!in.IsElement("Class"))
        return;
    const CZelXMLGet data(in.GetElement("Object.Data"));
    mData.copyFrom(*data.element());
    if (io.getUUID() && in.GetOptionalAttribute("UUID") != nullptr) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    }
    in.GetLanguages("Name", *mName);
    mAnchor = in.GetPoint("Anchor", io.getMgrRef());
    mPlacement = in.GetAttributeLabel("Placement", kPlacements);
    mUp = in.GetDirection("Up", io.getMgrRef());

    // One block in the order in which the format grew.
    readWhileItLasts([&] {
        mInitialAngle = in.GetDouble("Initial.Angle");
        mModelRotation = in.GetVector("Model.Rotation", io.getMgrRef());
        mModelPosition = in.GetPoint("Model.Position", io.getMgrRef());
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UIValue")));
        mModelOrigin = in.GetAttributeLabel("Model.Origin", kModelOrigins);
        mModelRotationMatrix = in.GetZelMatrix("Model.Rotation.Matrixs"); // (sic)
    });
    in.GetLanguages("Comment", mComment);
    in.GetLanguages("Description1", mDescription1);
    in.GetLanguages("Description2", mDescription2);
    if (in.IsElement("Properties"))
        getItems(io, in.GetElement("Properties"), "Property", *mProperties);
    if (in.IsElement("Setups"))
        getItems(io, in.GetElement("Setups"), "Setup", *mSetups);
    mLightGroupId = in.GetUUID("LightGroupID");
    // Last, since the delegate of the class reads the object data; a new one also for the same
    // class, since these data are new.
    changeClass(io.getMgrRef(), in.GetAttributeLanguage("Class"), data);
}

} // namespace OvZel
