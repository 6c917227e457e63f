#include "materials/TFresnelNode.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

#include <zel/IFresnelDiffuseNode.h>
#include <zel/IFresnelNode.h>

namespace OvZel {

template <class I>
void TFresnelNode<I>::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDouble("Min.Reflection", mMinReflection);
    out.AddDouble("Power.Factor", mPowerFactor);
}

template <class I>
void TFresnelNode<I>::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    setMinReflection(in.GetDouble("Min.Reflection"));
    mPowerFactor = in.GetDouble("Power.Factor");
}

template void TFresnelNode<IFresnelNode>::addTo(CZelXMLIO&, const CZelXMLAdd&) const;
template void TFresnelNode<IFresnelNode>::getFrom(CZelXMLIO&, const CZelXMLGet&);
template void TFresnelNode<IFresnelDiffuseNode>::addTo(CZelXMLIO&, const CZelXMLAdd&) const;
template void TFresnelNode<IFresnelDiffuseNode>::getFrom(CZelXMLIO&, const CZelXMLGet&);

} // namespace OvZel
