#include "animation/CZelScenario.h"

#include "xml/listXML.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelScenario::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Scenario");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelScenario::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Scenario")));
    return true;
}

void CZelScenario::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", mName.c_str());
    out.AddInteger("Current.Frame", mCurrentFrame);
    out.AddInteger("Current.Sequence", mCurrentSequence);
    out.AddInteger("Max.Time", mMaxTime);
    out.AddInteger("FPS", mFPS);
    out.AddInteger("Start.Visible.Time", mStartVisibleTime);
    out.AddInteger("End.Visible.Time", mEndVisibleTime);
    addItems(io, out.ReuseElement("Sequences"), "Sequence", *mSequences);
    addItems(io, out.ReuseElement("Animated.Elements"), "Animated.Element", *mAnimatedElements);
    addItems(io, out.ReuseElement("Time.Guides"), "Time.Guide", *mTimeGuides);
    addItems(io, out.ReuseElement("Snds"), "Snd", *mSnds);
}

void CZelScenario::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mName = in.GetAttributeLanguage("Name");
    mCurrentFrame = in.GetInteger("Current.Frame");
    mCurrentSequence = in.GetInteger("Current.Sequence");
    if (in.IsElement("Max.Time"))
        mMaxTime = in.GetInteger("Max.Time");
    if (in.IsElement("FPS"))
        mFPS = in.GetInteger("FPS");
    if (in.IsElement("Start.Visible.Time"))
        mStartVisibleTime = in.GetInteger("Start.Visible.Time");
    if (in.IsElement("End.Visible.Time"))
        mEndVisibleTime = in.GetInteger("End.Visible.Time");
    getOptionalItems(io, in, "Sequences", "Sequence", *mSequences);
    getOptionalItems(io, in, "Animated.Elements", "Animated.Element", *mAnimatedElements);
    getOptionalItems(io, in, "Time.Guides", "Time.Guide", *mTimeGuides);
    getOptionalItems(io, in, "Snds", "Snd", *mSnds);
}

} // namespace OvZel
