#pragma once

#include <zel/IZelBasic.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelAtmosphere;
class IZelBackground;
class IZelBackgroundPicture;
class IZelCameraLight;
class IZelClippingBox;
class IZelDepthOfField;
class IZelFilters;
class IZelForeground;
class IZelLaser;
class IZelToneSettings;

/// How a view looks, and what it uses of the document.
///
/// Settings objects are parts: owned by the view information, never null, good as long as it. Sun,
/// environment, ground, light groups, shaders and layers are only named, by text or identifier:
/// nothing checks that they are there, and removing one changes nothing here.
///
/// Its identifier and the number for the user interface are saved with the view, which has none of
/// its own in the file.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelViewInfo : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"06A1B7FD65AB4B5FADA10FEF43CDD3E9"};

    /// False in a new one.
    virtual bool getLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    /// Not saved with the view: its own putInXML and initWithXML are the only file form.
    virtual const IZelBackground* getBackground() const = 0;
    virtual IZelBackground* getBackground() = 0;
    /// The picture in front of the view.
    virtual const IZelForeground* getForeground() const = 0;
    virtual IZelForeground* getForeground() = 0;
    /// Identifiers of the light groups that are lit.
    virtual const TZelObjectMgr<CZelUUID>* getLightsGroups() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getLightsGroups() = 0;
    /// Name of the sun, "Heliodon" in a new one, whether the document has it or not. Good until the
    /// next change; null counts as the empty text.
    virtual const char* getHeliodonName() const = 0;
    virtual void setHeliodonName(const char* name) = 0;
    /// The light at the eye of this view.
    virtual const IZelCameraLight* getCameraLight() const = 0;
    virtual IZelCameraLight* getCameraLight() = 0;
    /// The light at the eye for a rendering with radiosity.
    virtual const IZelCameraLight* getRadiosityLight() const = 0;
    virtual IZelCameraLight* getRadiosityLight() = 0;
    /// Not saved with the view, as the background.
    virtual const IZelAtmosphere* getAtmosphere() const = 0;
    virtual IZelAtmosphere* getAtmosphere() = 0;
    /// What is sharp and what is not.
    virtual const IZelDepthOfField* getDepthOfField() const = 0;
    virtual IZelDepthOfField* getDepthOfField() = 0;
    /// The box outside which nothing is shown.
    virtual const IZelClippingBox* getClippingBox() const = 0;
    virtual IZelClippingBox* getClippingBox() = 0;
    /// Identifier of the environment, null in a new one. An environment that no view names is not
    /// saved: it goes into the file with the views that use it.
    virtual const CZelUUID& getEnvironment() const = 0;
    virtual void setEnvironment(const CZelUUID& id) = 0;
    /// The filters that work on the finished picture.
    virtual const IZelFilters* getFilters() const = 0;
    virtual IZelFilters* getFilters() = 0;
    /// Identifiers of the materials that glow in this view.
    virtual const TZelObjectMgr<CZelUUID>* getNeonShaders() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getNeonShaders() = 0;
    /// The picture behind the view.
    virtual const IZelBackgroundPicture* getBackgroundPicture() const = 0;
    virtual IZelBackgroundPicture* getBackgroundPicture() = 0;
    /// Identifiers of the layers that are visible.
    virtual const TZelObjectMgr<CZelUUID>* getLayers() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getLayers() = 0;
    /// How light and dark tones are shown.
    virtual const IZelToneSettings* getToneSettings() const = 0;
    virtual IZelToneSettings* getToneSettings() = 0;
    /// Identifier of the ground, null in a new one.
    virtual const CZelUUID& getGround() const = 0;
    virtual void setGround(const CZelUUID& id) = 0;
    /// The laser plane of this view.
    virtual const IZelLaser* getLaser() const = 0;
    virtual IZelLaser* getLaser() = 0;

protected:
    ~IZelViewInfo() override = default;
};

} // namespace OvZel
