#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelBackgroundPicture.h>
#include <zel/IZelClouds.h>
#include <zel/IZelFog.h>
#include <zel/IZelForeground.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// What surrounds the scene in the views that name it: fog, clouds, a background and a foreground
/// picture.
///
/// Made and owned by its manager. It is saved inside the views that name it; an environment that
/// no view names is not saved. putInXML and initWithXML take the identifier of the file whatever
/// the flag says.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelEnvironment : public IZelXML {
public:
    static constexpr CZelUUID sIID{"11F79C88B9DF4F309F90F6259D5A6998"};

    /// A random identifier in a new environment. Views name their environment by it.
    virtual const CZelUUID& getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    /// "Environment 1" in a new environment; good until the next change.
    virtual const char* getName() const = 0;
    /// Null counts as the empty text.
    virtual void setName(const char* name) = 0;
    /// The parts are never null and live as long as the environment.
    virtual const IZelClouds* getClouds() const = 0;
    virtual IZelClouds* getClouds() = 0;
    /// As getClouds.
    virtual const IZelFog* getFog() const = 0;
    virtual IZelFog* getFog() = 0;
    /// As getClouds.
    virtual const IZelBackgroundPicture* getBackgroundPicture() const = 0;
    virtual IZelBackgroundPicture* getBackgroundPicture() = 0;
    /// As getClouds.
    virtual const IZelForeground* getForeground() const = 0;
    virtual IZelForeground* getForeground() = 0;

protected:
    ~IZelEnvironment() = default;
};

} // namespace OvZel
