#pragma once

#include <zel/CZelVersion.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelAnimation;
class IZelBBMgrData;
class IZelParallelView;
class IZelProperty;
class IZelReadStream;
class IZelWriteStream;
struct CZelRenderParameters;

/// What a document offers beside IZelMgr, reached by IZelMgr::getMgrEx.
///
/// It has no count of its own and lives as long as the document. Pointers that it returns carry no
/// reference. One thread at a time.
class IZelMgrEx {
public:
    /// The animations with their camera paths.
    virtual TZelObjectMgr<IZelAnimation>* getAnimations() = 0;
    /// The entries of the billboard manager.
    virtual TZelObjectMgr<IZelBBMgrData>* getBillboards() = 0;
    /// Reads a shader document into the property. With the root "Orvane.Shader" its "Node" replaces
    /// the nodes of the property; with "Zel.Shader" its "Property" is the whole property,
    /// identifiers included. A failure gives a message and false, and leaves the property as far as
    /// it came.
    virtual bool readShader(IZelProperty* property, IZelReadStream* stream) = 0;
    /// Writes the nodes of the property as "Zel.Shader" with a "Node", which readShader does not
    /// take back. A property without nodes, a null property or stream: a message and false.
    virtual bool writeShader(IZelProperty* property, IZelWriteStream* stream) = 0;
    /// Parallel views apart from those of IZelMgr::getParallelViews.
    virtual TZelObjectMgr<IZelParallelView>* getWorkingViews() = 0;
    /// A new free-standing shader, which is never saved with the document; null, with a warning,
    /// when it cannot be made.
    virtual IZelProperty* newShader() = 0;
    /// Removes the given shader if it is the first one of the document; otherwise does nothing.
    virtual void removeShader(IZelProperty* property) = 0;
    /// Part of the document and saved with it; changed in place.
    virtual CZelRenderParameters* getRenderParameters() = 0;
    /// The oldest library version that the running save promises to be readable by; 6.0.0 when no
    /// save runs.
    virtual const CZelVersion* getSaveVersion() const = 0;

protected:
    ~IZelMgrEx() = default;
};

} // namespace OvZel
