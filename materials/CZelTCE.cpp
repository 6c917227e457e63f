#include "materials/CZelTCE.h"

#include "core/CZelMgrRef.h"
#include "materials/nodeTypes.h"

#include <zel/IZelObjectLink.h>

namespace OvZel {

namespace {

bool isNoShader(const std::string& url)
{
    return url == "file:///" || url == "file://" || url == "file:///noshader" ||
           url == "file://noshader";
}

} // namespace

CZelTCE::CZelTCE(IZelObjectLink* property)
    : TTCENode(nullptr), mProperty(property),
      mName(property != nullptr ? property->getMgrRef() : nullptr)
{
}

void CZelTCE::reportWarning(const char* text)
{
    if (CZelMgrRef* target = CZelMgrRef::from(getMgrRef()))
        target->warning(text != nullptr ? text : "");
}

void CZelTCE::setUrl(const char* url)
{
    mUrl = url != nullptr ? url : "";
    if (isNoShader(mUrl))
        mUrl.clear();
}

ITCENode* CZelTCE::createNode(std::int32_t type)
{
    const TZelComPtr<CTCENode> node = makeNode(this, type);
    if (node)
        node->AddRef(); // the caller's
    else if (type == eRootNode)
        reportWarning("CZelTCE::createNode - eRootNode node cannot be created");
    else
        reportWarning("CZelTCE::createNode - Unknown node type");
    return node.get();
}

} // namespace OvZel
