#include "materials/CLeafNode.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

constexpr CZelLabel kIlluminationModels[] = {{"Phong", 0}, {"Cook.Torrance", 1}, {nullptr, 0}};
constexpr CZelLabel kShapes[] = {{"General", 0}, {"Bulb", 1}, {"Plane", 2}, {nullptr, 0}};

} // namespace

void CLeafNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Shape", kShapes, mValues.shape);
    out.AddColor("Diffuse", mValues.diffuse);
    out.AddColor("Transparent", mValues.transparent);
    out.AddColor("Specular", mValues.specular);
    out.AddColor("Reflection", mValues.reflection);
    out.AddColor("Neon.Color", mValues.neonColor);
    out.AddDouble("Neon.Value", mValues.neonValue);
    out.AddDouble("Refraction", mValues.refraction);
    out.AddDouble("Glossy", mValues.glossy);
    out.AddColor("Emitting.Color", mValues.emittingColor);
    out.AddDouble("Emitting.Power", mValues.emittingPower);
    out.AddDouble("Reflection.Limit", mValues.reflectionLimit);
    out.AddAttributeLabel("Illumination.Model", kIlluminationModels, mValues.illuminationModel);
    out.AddInteger("Glossy.Reflection.Sampling", mValues.glossyReflectionSampling);
    out.AddInteger("Glossy.Refraction.Sampling", mValues.glossyRefractionSampling);
    out.AddDouble("Roughness", mValues.roughness);
    out.AddDouble("Reflectance", mValues.reflectance);
    out.AddInteger("Glossy.Reflection.Shininess", mValues.glossyReflectionShininess);
    out.AddInteger("Glossy.Refraction.Shininess", mValues.glossyRefractionShininess);
}

void CLeafNode::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mValues.diffuse = in.GetColor("Diffuse");
    mValues.transparent = in.GetColor("Transparent");
    mValues.specular = in.GetColor("Specular");
    mValues.reflection = in.GetColor("Reflection");
    if (in.IsElement("Reflection.Limit"))
        mValues.reflectionLimit = in.GetDouble("Reflection.Limit");
    mValues.neonColor = in.GetColor("Neon.Color");
    mValues.neonValue = kNeonValue.clip(in.GetDouble("Neon.Value"));
    setRefraction(in.GetDouble("Refraction"));
    mValues.glossy = kGlossy.clip(in.GetDouble("Glossy"));
    if (in.IsElement("Emitting.Color")) {
        mValues.emittingColor = in.GetColor("Emitting.Color");
        mValues.emittingPower = in.GetDouble("Emitting.Power");
    }
    getIlluminationFrom(in);
    if (const char* shape = in.GetOptionalAttribute("Shape"); shape && *shape)
        mValues.shape = in.GetAttributeLabel("Shape", kShapes);
}

void CLeafNode::getIlluminationFrom(const CZelXMLGet& in)
{
    const char* model = in.GetOptionalAttribute("Illumination.Model");
    if (model == nullptr || *model == '\0')
        return;
    mValues.illuminationModel = in.GetAttributeLabel("Illumination.Model", kIlluminationModels);
    mValues.glossyReflectionSampling = in.GetInteger("Glossy.Reflection.Sampling");
    mValues.glossyRefractionSampling = in.GetInteger("Glossy.Refraction.Sampling");
    mValues.roughness = in.GetDouble("Roughness");
    if (in.IsElement("Reflectance"))
        mValues.reflectance = in.GetDouble("Reflectance");
    if (in.IsElement("Glossy.Reflection.Shininess")) {
        mValues.glossyReflectionShininess = in.GetInteger("Glossy.Reflection.Shininess");
        mValues.glossyRefractionShininess = in.GetInteger("Glossy.Refraction.Shininess");
    }
}

} // namespace OvZel
