#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>

#include <cstdint>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class ITCENode;
class IZelMultiMaps;

/// A layer of images on a surface. What it leaves open shows the material below it, its one child.
///
/// Part of its node, good as long as that. One thread at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IMappingNode {
public:
    /// The tree side of this node; good as long as the node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;

    /// The images by kind, good as long as the node.
    virtual const IZelMultiMaps* getMaps() const = 0;
    virtual IZelMultiMaps* getMaps() = 0;
    /// Other mapping nodes, which this one only names. Their warnings throw the null-pointer
    /// failure while the node belongs to no document.
    virtual std::int32_t getNbLinkedMaps() const = 0;
    /// Good until the list changes. A bad index warns "CMappingNode::getMapLinked - Invalid index"
    /// and gives a null identifier.
    virtual const CZelUUID& getMapLinked(std::int32_t index) const = 0;
    /// A null identifier warns "CMappingNode::addLinkedMap - NULL UUID is Invalid" and is not
    /// added. One that is in the list is added again.
    virtual void addLinkedMap(const CZelUUID& id) = 0;
    /// Removes nothing: it always warns "CMappingNode::removeLinkedMap - Map isn't linked". Linked
    /// maps go with their node.
    virtual void removeLinkedMap(const CZelUUID& id) = 0;

    /// The frame of the image. In a new node the normal is 0, 0, -1, the origin 0, 0, 0, the X axis
    /// -1, 0, 0 and the Y axis 0, -1, 0. None is normalised or checked.
    virtual const CZelPoint& getNormal() const = 0;
    virtual void setNormal(const CZelPoint& vector) = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getOrigin() const = 0;
    virtual void setOrigin(const CZelPoint& vector) = 0;
    /// -1, 0, 0 in a new node.
    virtual const CZelPoint& getXAxis() const = 0;
    virtual void setXAxis(const CZelPoint& vector) = 0;
    /// 0, -1, 0 in a new node.
    virtual const CZelPoint& getYAxis() const = 0;
    virtual void setYAxis(const CZelPoint& vector) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getAngle() const = 0;
    virtual void setAngle(double value) = 0;
    /// Size of the image, 1.0 by 1.0 in a new node; not limited.
    virtual double getHeight() const = 0;
    virtual void setHeight(double value) = 0;
    /// 1.0 in a new node; not limited.
    virtual double getWidth() const = 0;
    virtual void setWidth(double value) = 0;
    /// 0.0 in a new node, like the relief; not limited.
    virtual double getBump() const = 0;
    virtual void setBump(double value) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getRelief() const = 0;
    virtual void setRelief(double value) = 0;
    /// The centre of the image, 0.5 and 0.5 in a new node; kept within 0.0 to 1.0. Nothing warns
    /// here or at any other limit.
    virtual double getXCenter() const = 0;
    virtual void setXCenter(double value) = 0;
    /// 0.5 in a new node; kept within 0.0 to 1.0.
    virtual double getYCenter() const = 0;
    virtual void setYCenter(double value) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getXDelta() const = 0;
    virtual void setXDelta(double value) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getYDelta() const = 0;
    virtual void setYDelta(double value) = 0;
    /// 1000.0 in a new node; kept within 0.0 to 1000.0.
    virtual double getGlossy() const = 0;
    virtual void setGlossy(double value) = 0;
    /// False in a new node, like every yes or no below but the visibility.
    virtual bool getXRepeat() const = 0;
    virtual void setXRepeat(bool flag) = 0;
    /// False in a new node.
    virtual bool getYRepeat() const = 0;
    virtual void setYRepeat(bool flag) = 0;
    /// Black in a new node, like every colour below but that of the mix.
    virtual CZelColor getSpecular() const = 0;
    virtual void setSpecular(const CZelColor& color) = 0;
    /// Black in a new node.
    virtual CZelColor getTransparent() const = 0;
    virtual void setTransparent(const CZelColor& color) = 0;
    /// Black in a new node.
    virtual CZelColor getReflection() const = 0;
    virtual void setReflection(const CZelColor& color) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double value) = 0;
    /// False in a new node.
    virtual bool getCutSet() const = 0;
    virtual void setCutSet(bool flag) = 0;
    /// Without its flag a cut-out colour is not saved.
    virtual bool getCutOut1Flag() const = 0;
    virtual void setCutOut1Flag(bool flag) = 0;
    /// Black in a new node; saved only while its flag is set.
    virtual CZelColor getCutOut1Color() const = 0;
    virtual void setCutOut1Color(const CZelColor& color) = 0;
    /// Without its flag the second colour is not saved either; false in a new node.
    virtual bool getCutOut2Flag() const = 0;
    virtual void setCutOut2Flag(bool flag) = 0;
    /// Black in a new node; saved only while its flag is set.
    virtual CZelColor getCutOut2Color() const = 0;
    virtual void setCutOut2Color(const CZelColor& color) = 0;
    /// False in a new node.
    virtual bool getXInvert() const = 0;
    virtual void setXInvert(bool flag) = 0;
    /// False in a new node.
    virtual bool getYInvert() const = 0;
    virtual void setYInvert(bool flag) = 0;
    /// 0 planetary, 1 orthogonal, 2 vertical, 3 spherical, 4 cylindrical about Y, 5 cylindrical
    /// about X (a new node), 6 by texture coordinates, 7 horizontal, 8 planar. Another number is
    /// stored, but cannot be saved. A property counts these in another way.
    virtual std::int32_t getProjection() const = 0;
    virtual void setProjection(std::int32_t value) = 0;
    /// True in a new node.
    virtual bool getVisible() const = 0;
    virtual void setVisible(bool flag) = 0;
    /// False in a new node.
    virtual bool getMixFlag() const = 0;
    virtual void setMixFlag(bool flag) = 0;
    /// 127, 127, 127 in a new node.
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(const CZelColor& color) = 0;
    /// 0.0 in a new node; kept within 0.0 to 1.0.
    virtual double getMixValue() const = 0;
    virtual void setMixValue(double value) = 0;
    /// False in a new node.
    virtual bool getCutAlpha() const = 0;
    virtual void setCutAlpha(bool flag) = 0;
    /// False in a new node.
    virtual bool getXMirror() const = 0;
    virtual void setXMirror(bool flag) = 0;
    /// False in a new node.
    virtual bool getYMirror() const = 0;
    virtual void setYMirror(bool flag) = 0;
    /// False in a new node.
    virtual bool getAlphaBump() const = 0;
    virtual void setAlphaBump(bool flag) = 0;
    /// False in a new node.
    virtual bool getAlphaTransparency() const = 0;
    virtual void setAlphaTransparency(bool flag) = 0;
    /// False in a new node.
    virtual bool getMIPMAP() const = 0;
    virtual void setMIPMAP(bool flag) = 0;
    /// False in a new node.
    virtual bool getTrilinearFilter() const = 0;
    virtual void setTrilinearFilter(bool flag) = 0;
    /// The setter has the first place of the two.
    virtual void setDisplayMode(bool flag) = 0;
    virtual bool getDisplayMode() const = 0;
    /// 0.0 in a new node; not limited.
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double value) = 0;
    /// 1.0 in a new node; not limited.
    virtual double getContrast() const = 0;
    virtual void setContrast(double value) = 0;
    /// 0 in a new node, like the length of the movie.
    virtual std::int32_t getFrame() const = 0;
    virtual void setFrame(std::int32_t value) = 0;
    /// 0 in a new node.
    virtual std::int32_t getMovieLength() const = 0;
    virtual void setMovieLength(std::int32_t value) = 0;
    /// 0.0 in a new node; not limited.
    virtual double getNormalMap() const = 0;
    virtual void setNormalMap(double value) = 0;
    /// By this other mapping nodes name this one; random in a new node, and apart from the identity
    /// of the node in its tree.
    virtual const CZelUUID& getMappingNodeId() const = 0;
    virtual void setMappingNodeId(const CZelUUID& id) = 0;
    /// The mapping node to which this one belongs; null in a new node.
    virtual const CZelUUID& getParentMappingNodeId() const = 0;
    virtual void setParentMappingNodeId(const CZelUUID& id) = 0;
    /// Adds a child "Node" with this node alone, without the material below it, and returns it;
    /// null after a failure, which goes to the feedback.
    virtual OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) = 0;
    /// Reads this node alone from the first child "Node". False without one, and after a failure,
    /// which goes to the feedback; what was read before it stays.
    virtual bool initWithXML(OrvaneXML::XIXMLElement* element) = 0;
    /// False in a new node.
    virtual bool getGlossyActivated() const = 0;
    virtual void setGlossyActivated(bool flag) = 0;

protected:
    ~IMappingNode() = default;
};

} // namespace OvZel
