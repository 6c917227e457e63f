#pragma once

#include <zel/IZelCompressionOpt.h>
#include <zel/IZelRenderingOpt.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// The options of a view: how it is rendered and how a film of it is compressed.
///
/// putInXML puts both into the child "Options" of the element, which is made if there is none;
/// initWithXML needs "Options" and "Rendering" in it, and takes "Compression" if it is there.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelViewOpt : public IZelXML {
public:
    /// Never null; good as long as the view lives.
    virtual const IZelRenderingOpt* getRenderingOpt() const = 0;
    virtual IZelRenderingOpt* getRenderingOpt() = 0;
    /// As getRenderingOpt.
    virtual const IZelCompressionOpt* getCompressionOpt() const = 0;
    virtual IZelCompressionOpt* getCompressionOpt() = 0;

protected:
    ~IZelViewOpt() = default;
};

} // namespace OvZel
