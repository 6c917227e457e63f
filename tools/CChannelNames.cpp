#include "tools/CChannelNames.h"

namespace tool {

static OvZel::IZelInterpolatedValue& valueOf(OvZel::IZelMgr& document)
{
    OvZel::IZelScenario& scenario = *document.getScenarios()->newZelObject(-1);
    return *scenario.getAnimatedElements()->newZelObject(-1)->getInterpolatedValues()->newZelObject(
        -1);
}

CChannelNames::CChannelNames() : mValue(valueOf(*mDocument))
{
    mDocument.feedback().setReceiver([](const std::string&) {}); // such as a channel without a name
}

std::string CChannelNames::written(std::int32_t channel)
{
    mValue.setChannel(channel);
    OrvaneXML::XIXMLElement* place = mDocument->getApplicationData("Channel");
    const OrvaneXML::XIXMLElement* element = place ? mValue.putInXML(place) : nullptr;
    const OrvaneXML::XIXMLAttribute* name =
        element ? element->FindAttribute(element->MakeKey("Type")) : nullptr;
    return name ? name->GetValue() : std::to_string(channel);
}

std::string CChannelNames::text(std::int32_t channel)
{
    const auto known = mNames.find(channel);
    return known != mNames.end() ? known->second : mNames[channel] = written(channel);
}

} // namespace tool
