#include "render/CCompressionOpt.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

void CCompressionOpt::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddInteger("Codec", static_cast<std::int32_t>(mCodec)); // "%d" also for the upper half
    out.AddInteger("Depth", mDepth);
    out.AddInteger("Spacial.Quality", mSpacialQuality);
    out.AddInteger("Temporal.Quality", mTemporalQuality);
    out.AddDouble("Frame.Rate", mFrameRate);
    out.AddInteger("Key.Frame.Rate", mKeyFrameRate);
}

void CCompressionOpt::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mCodec = static_cast<std::uint32_t>(in.GetInteger("Codec"));
    mDepth = in.GetInteger("Depth");
    mSpacialQuality = in.GetInteger("Spacial.Quality");
    mTemporalQuality = in.GetInteger("Temporal.Quality");
    mFrameRate = kFrameRate.clip(in.GetDouble("Frame.Rate"));
    mKeyFrameRate = in.GetInteger("Key.Frame.Rate");
}

} // namespace OvZel
