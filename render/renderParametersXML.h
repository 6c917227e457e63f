#pragma once

#include <zel/CZelRenderParameters.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The file form of the render parameters, inside "Tmp.Render.Parameters".
void addRenderParameters(const CZelRenderParameters& parameters, CZelXMLAdd out);
/// What the element lacks stays as the record has it, but for the flags, which presence decides.
void getRenderParameters(CZelRenderParameters& parameters, const CZelXMLGet& in);

} // namespace OvZel
