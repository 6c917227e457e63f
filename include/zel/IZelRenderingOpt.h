#pragma once

#include <zel/IZelEngineOptions.h>
#include <zel/IZelRadiosityControl.h>
#include <zel/TZelObjectMgr.h>
#include <zel/xml/XIXMLElement.h>

#include <cstdint>

namespace OvZel {

/// How a view is to be rendered.
///
/// Part of the options of a view: pointers to it are good as long as the view lives. Values out of
/// range are clipped everywhere; the warnings go out in a document only. A file's values pass
/// through the same setters.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelRenderingOpt {
public:
    /// True in new options.
    virtual bool getRaytracing() const = 0;
    virtual void setRaytracing(bool on) = 0;
    /// True in new options.
    virtual bool getShadow() const = 0;
    virtual void setShadow(bool on) = 0;
    /// True in new options.
    virtual bool getTransparency() const = 0;
    virtual void setTransparency(bool on) = 0;
    /// False in new options.
    virtual bool getAlpha() const = 0;
    virtual void setAlpha(bool on) = 0;
    /// 2 in new options.
    virtual std::int32_t getNbReflection() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setNbReflection has
    /// clipped a value out of range.".
    virtual void setNbReflection(std::int32_t nb) = 0;
    /// 6 in new options.
    virtual std::int32_t getNbRefraction() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setNbRefraction has
    /// clipped a value out of range.".
    virtual void setNbRefraction(std::int32_t nb) = 0;
    /// Size of the picture in pixels, 240 by 320 in new options.
    virtual std::int32_t getHeight() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setHeight has clipped a
    /// value out of range.".
    virtual void setHeight(std::int32_t height) = 0;
    /// As getHeight.
    virtual std::int32_t getWidth() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setWidth has clipped a
    /// value out of range.".
    virtual void setWidth(std::int32_t width) = 0;
    /// The part of the picture to render, all 0 in new options. Nothing checks that it lies in the
    /// picture.
    virtual std::int32_t getCropX() const = 0;
    virtual void setCropX(std::int32_t x) = 0;
    /// As getCropX.
    virtual std::int32_t getCropY() const = 0;
    virtual void setCropY(std::int32_t y) = 0;
    /// As getCropX.
    virtual std::int32_t getCropWidth() const = 0;
    virtual void setCropWidth(std::int32_t width) = 0;
    /// As getCropX.
    virtual std::int32_t getCropHeight() const = 0;
    virtual void setCropHeight(std::int32_t height) = 0;
    /// Where the result goes, empty in new options; good until the next change.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;
    /// 0 compressed Pict, 1 Pict, 2 compressed TGA, 3 TGA, 4 BMP, 5 JPEG, 6 compressed QuickTime,
    /// 7 QuickTime, 8 compressed QuickTime VR, 9 QuickTime VR, 10 Real, 11 AVI, 12 Epix, 13 Tiff;
    /// 2 in new options. A save of any other number fails.
    virtual std::int32_t getOutputType() const = 0;
    virtual void setOutputType(std::int32_t type) = 0;
    /// 0 none, 1 good, 2 excellent, 3 special, 4 very high; 0 in new options. A save of any other
    /// number fails.
    virtual std::int32_t getAntialias() const = 0;
    virtual void setAntialias(std::int32_t antialias) = 0;
    /// Whether all pictures of an animation are rendered, true in new options.
    virtual bool getRenderAll() const = 0;
    virtual void setRenderAll(bool on) = 0;
    /// First and last picture to render otherwise, 0 in new options.
    virtual std::int32_t getRenderFirst() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setRenderFirst has
    /// clipped a value out of range.".
    virtual void setRenderFirst(std::int32_t index) = 0;
    /// As getRenderFirst.
    virtual std::int32_t getRenderLast() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setRenderLast has
    /// clipped a value out of range.".
    virtual void setRenderLast(std::int32_t index) = 0;
    /// The same values as those of getRadiosity and the like below, without their limits. Never
    /// null; good as long as the options live.
    virtual const IZelRadiosityControl* getRadiosityControl() const = 0;
    virtual IZelRadiosityControl* getRadiosityControl() = 0;
    /// False in new options.
    virtual bool getUseViewOptions() const = 0;
    virtual void setUseViewOptions(bool on) = 0;
    /// False in new options.
    virtual bool getPreviewAntialias() const = 0;
    virtual void setPreviewAntialias(bool on) = 0;
    /// False in new options.
    virtual bool getHeightWidthLinked() const = 0;
    virtual void setHeightWidthLinked(bool on) = 0;
    /// True in new options.
    virtual bool getScaleOn() const = 0;
    virtual void setScaleOn(bool on) = 0;
    /// 100 in new options.
    virtual std::int32_t getParallelScale() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setParallelScale has
    /// clipped a value out of range.".
    virtual void setParallelScale(std::int32_t scale) = 0;
    /// 72 in new options.
    virtual std::int32_t getImageResolution() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setImageResolution has
    /// clipped a value out of range.".
    virtual void setImageResolution(std::int32_t resolution) = 0;
    /// 1 in new options.
    virtual std::int32_t getPanoramaResolution() const = 0;
    /// Below 0 it becomes 0, with the warning "class CRenderingOpt: Method setPanoramaResolution
    /// has clipped a value out of range.".
    virtual void setPanoramaResolution(std::int32_t resolution) = 0;
    /// False in new options.
    virtual bool getRadiosity() const = 0;
    virtual void setRadiosity(bool on) = 0;
    /// 1.0 in new options.
    virtual double getRadiosityFactor() const = 0;
    /// Below 0.0 it becomes 0.0, as a value that is not a number does, with the warning "class
    /// CRenderingOpt:Method setRadiosityFactor has clipped a value out of range.".
    virtual void setRadiosityFactor(double factor) = 0;
    /// 4.0 in new options.
    virtual double getRadiosityQuality() const = 0;
    /// Outside 0.0 to 2147483647.0 it becomes that limit, not a number 0.0, with the warning
    /// "class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range.".
    virtual void setRadiosityQuality(double quality) = 0;
    /// 1.0 in new options.
    virtual double getContrast() const = 0;
    /// Below 0.0 it becomes 0.0, as a value that is not a number does, with the warning
    /// "CRenderingOpt::setContrast value must be positive".
    virtual void setContrast(double contrast) = 0;
    /// 0.0 in new options.
    virtual double getLuminosity() const = 0;
    /// Outside -1.0 to 1.0 it becomes that limit, not a number -1.0, with the warning
    /// "CRenderingOpt::setLuminosity value must be between -1 and 1.".
    virtual void setLuminosity(double luminosity) = 0;
    /// 96.0 in new options.
    virtual double getLongRange() const = 0;
    virtual void setLongRange(double range) = 0;
    /// 4.0 in new options.
    virtual double getShortRange() const = 0;
    virtual void setShortRange(double range) = 0;
    /// 4.0 in new options.
    virtual double getFirstBounce() const = 0;
    virtual void setFirstBounce(double bounce) = 0;
    /// 1.0 in new options.
    virtual double getNextBounces() const = 0;
    virtual void setNextBounces(double bounces) = 0;
    /// 0.3 in new options.
    virtual double getAttenuation() const = 0;
    virtual void setAttenuation(double attenuation) = 0;
    /// 1.0 in new options.
    virtual double getColorBleeding() const = 0;
    virtual void setColorBleeding(double bleeding) = 0;
    /// The render engine: "com.Orvane.Renderer.VendralisPhysicalEngine" in new options,
    /// "com.Orvane.Renderer.VendralisWhiteModel", "com.Orvane.Renderer.VendralisFastEngine" or any
    /// other text. Good until the next change.
    virtual const char* getRendererIdentifier() const = 0;
    /// Null counts as the empty text.
    virtual void setRendererIdentifier(const char* identifier) = 0;
    /// The element "Extended.Datas", empty in new options, for what the library does not know;
    /// never null. It is saved as it stands. Reading a file that has one replaces it, and a
    /// pointer fetched before is no longer good.
    virtual const OrvaneXML::XIXMLElement* getExtendedData() const = 0;
    virtual OrvaneXML::XIXMLElement* getExtendedData() = 0;
    /// 200 in new options.
    virtual std::int32_t getISO() const = 0;
    virtual void setISO(std::int32_t iso) = 0;
    /// 500 in new options.
    virtual std::int32_t getShutterSpeed() const = 0;
    virtual void setShutterSpeed(std::int32_t speed) = 0;
    /// 0 brightness set by the picture, 1 by ISO and shutter; 1 in new options. A save of any
    /// other number fails.
    virtual std::int32_t getColorBehavior() const = 0;
    virtual void setColorBehavior(std::int32_t behavior) = 0;
    /// The settings of each engine met so far, empty in new options. The list carries no
    /// reference.
    virtual const TZelObjectMgr<IZelEngineOptions>* getEnginesOptions() const = 0;
    virtual TZelObjectMgr<IZelEngineOptions>* getEnginesOptions() = 0;
    /// The settings of the engine that is chosen: the first of the list with the renderer
    /// identifier. If there is none, both add one, with a caches pass count of 2 for the white
    /// model, 1 for the fast engine and 3 for any other. Null only when memory runs out.
    virtual const IZelEngineOptions* getEngineOptions() const = 0;
    virtual IZelEngineOptions* getEngineOptions() = 0;

protected:
    ~IZelRenderingOpt() = default;
};

} // namespace OvZel
