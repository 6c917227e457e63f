#include "objects/CZelTexture.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CZelTexture::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddText("URL", mURL.c_str());
    out.AddCoord3D("Origin", mOrigin);
    out.AddCoord3D("X.Axis", mXAxis);
    out.AddCoord3D("Y.Axis", mYAxis);
    out.AddDouble("Width", mWidth);
    out.AddDouble("Height", mHeight);
    if (mCutOut1Used)
        out.AddColor("CutOut1", mCutOut1);
    if (mCutOut2Used)
        out.AddColor("CutOut2", mCutOut2);
    out.AddBoolean("CutSet", mCutSet);
}

void CZelTexture::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mURL = in.GetText("URL");
    mOrigin = in.GetPoint("Origin", io.getMgrRef());
    mXAxis = in.GetVector("X.Axis", io.getMgrRef());
    mYAxis = in.GetVector("Y.Axis", io.getMgrRef());
    mWidth = in.GetDouble("Width");
    mHeight = in.GetDouble("Height");
    mCutOut1Used = in.IsElement("CutOut1");
    if (mCutOut1Used)
        mCutOut1 = in.GetColor("CutOut1");
    mCutOut2Used = in.IsElement("CutOut2");
    if (mCutOut2Used)
        mCutOut2 = in.GetColor("CutOut2");
    mCutSet = in.IsElement("CutSet");
}

} // namespace OvZel
