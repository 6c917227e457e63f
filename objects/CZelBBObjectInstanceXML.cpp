#include "objects/CZelBBObjectInstance.h"

#include "objects/renewed.h"
#include "xml/readWhileItLasts.h"

namespace OvZel {

namespace {

constexpr CZelLabel kRenderTypes[] = {{"Normal", 0}, {"Display", 1}, {nullptr, 0}};
// The last label is not that of the billboard's own kind.
constexpr CZelLabel kKinds[] = {{"Flat", 0}, {"Uniface", 1}, {"Multiface", 2}, {nullptr, 0}};

} // namespace

CZelBBObjectInstance::CZelBBObjectInstance(CZelObjectInstance& owner, CZelXMLIO& io,
                                           const CZelXMLGet& data)
    : CZelZelObjectInstance(owner, io, data)
{
    // A new instance has nothing to read; that is no failure.
    readWhileItLasts([&] {
        mOrientWithCamera = data.IsElement("Orient.With.Camera");
        mVerticalFlip = data.IsElement("Vertical.Flip");
        mHorizontalFlip = data.IsElement("Horizontal.Flip");
        mRenderType = data.GetAttributeLabel("Render.Type", kRenderTypes);
        mShininess = data.GetDouble("Shininess");
        mBrightness = data.GetDouble("Brightness");
        mRoughness = data.GetDouble("Roughness");
        mContrast = data.GetDouble("Contrast");
        mKind = data.GetAttributeLabel("Kind", kKinds);
        mDefinitionSize = data.GetDouble("Definition.Size");
        mDefinitionName = data.GetText("Definition.Name");
        mCurrentConfig = data.GetInteger("Current.Config");
        mOverloadedProperties.getItems(io, data.GetElement("Overloaded.Properties"), "Property",
                                       &instance());
    });
}

void CZelBBObjectInstance::save(CZelXMLIO& io, const CZelXMLAdd& data)
{
    CZelZelObjectInstance::save(io, data);
    data.AddBoolean(renewed(data, "Orient.With.Camera"), mOrientWithCamera);
    data.AddBoolean(renewed(data, "Vertical.Flip"), mVerticalFlip);
    data.AddBoolean(renewed(data, "Horizontal.Flip"), mHorizontalFlip);
    data.AddAttributeLabel(renewedAttribute(data, "Render.Type"), kRenderTypes, mRenderType);
    data.AddDouble(renewed(data, "Shininess"), mShininess);
    data.AddDouble(renewed(data, "Roughness"), mRoughness);
    data.AddDouble(renewed(data, "Brightness"), mBrightness);
    data.AddDouble(renewed(data, "Contrast"), mContrast);
    data.AddAttributeLabel(renewedAttribute(data, "Kind"), kKinds, mKind);
    data.AddDouble(renewed(data, "Definition.Size"), mDefinitionSize);
    data.AddText(renewed(data, "Definition.Name"), mDefinitionName.c_str());
    data.AddInteger(renewed(data, "Current.Config"), mCurrentConfig);
    mOverloadedProperties.addItems(io, data.ReuseElement("Overloaded.Properties"), "Property");
}

} // namespace OvZel
