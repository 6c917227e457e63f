#pragma once

#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class IZelObjectInstance;
class IZelProperty;

/// What an instance of the class "Billboard" has beyond IZelZelObjectInstance. Part of its
/// instance. Every number is stored as it was given; one that has labels, but none for this value,
/// fails the next save.
class IZelBBObjectInstance {
public:
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;
    /// False in a new instance.
    virtual bool getOrientWithCamera() const = 0;
    virtual void setOrientWithCamera(bool orient) = 0;
    /// False in a new instance.
    virtual bool getVerticalFlip() const = 0;
    virtual void setVerticalFlip(bool flip) = 0;
    /// False in a new instance.
    virtual bool getHorizontalFlip() const = 0;
    virtual void setHorizontalFlip(bool flip) = 0;
    /// 0 "Normal", 1 "Display"; 1 in a new instance.
    virtual std::int32_t getRenderType() const = 0;
    virtual void setRenderType(std::int32_t type) = 0;
    /// 0.5 in a new instance.
    virtual double getShininess() const = 0;
    virtual void setShininess(double shininess) = 0;
    /// 700.0 in a new instance.
    virtual double getRoughness() const = 0;
    virtual void setRoughness(double roughness) = 0;
    /// 0.0 in a new instance.
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double brightness) = 0;
    /// 1.0 in a new instance.
    virtual double getContrast() const = 0;
    virtual void setContrast(double contrast) = 0;
    /// 0 "Flat", 1 "Uniface", 2 "Multiface"; 1 in a new instance.
    virtual std::int32_t getKind() const = 0;
    virtual void setKind(std::int32_t kind) = 0;
    /// 100.0 in a new instance.
    virtual double getDefinitionSize() const = 0;
    virtual void setDefinitionSize(double size) = 0;
    /// Names what is shown; empty in a new instance. Nothing resolves it. Good until its next
    /// change.
    virtual const char* getDefinitionName() const = 0;
    /// Null counts as the empty text, as in setUrl.
    virtual void setDefinitionName(const char* name) = 0;
    /// The text of the child "URL" of "Instance.Data", kept there alone; empty without it. It has
    /// nothing to do with the "Url" of IZelZelObjectInstance. Good until that element changes.
    virtual const char* getUrl() const = 0;
    virtual void setUrl(const char* url) = 0;
    /// 0 in a new instance.
    virtual std::int32_t getCurrentConfig() const = 0;
    virtual void setCurrentConfig(std::int32_t config) = 0;
    /// Materials in place of those of the billboard.
    virtual const TZelObjectMgr<IZelProperty>* getOverloadedProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getOverloadedProperties() = 0;

protected:
    ~IZelBBObjectInstance() = default;
};

} // namespace OvZel
