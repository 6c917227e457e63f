#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelBasic.h>

#include <cstdint>

namespace OvZel {

class IMappingNode;
class IZelReadStream;
class IZelTCE;

/// One named material of the scene: a few values of the surface and a tree of nodes.
///
/// Properties are made and owned by their manager, or by the ground whose material they are. A
/// pointer to one carries no reference. AddRef and Release may come from any thread, everything
/// else from one at a time.
///
/// Most operations are a facade over the tree of getTCE: they look up the leaf node, or the mapping
/// node (the first one on the way from the root, always along the first child, whose isShader is
/// false) and forward to it. A getter never changes the tree; without the node it gives the value
/// told below. A setter makes the node that it needs; it throws when a client has hung a node of
/// the chain below itself, so that there is no end to put a leaf to. Getters with a bool result
/// answer whether there is a mapping node; each of their out arguments may be null.
///
/// Limits are stored in silence. A value that is not a number counts as one below the range.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one.
class IZelProperty : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"CD5B3D7D4175487F9E6AE05DEFC83B5C"};

    /// True in a new property.
    virtual bool getVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// True in a new property.
    virtual bool getCastShadow() const = 0;
    virtual void setCastShadow(bool castShadow) = 0;
    /// 0.01 to 1.0, 1.0 in a new property; outside, the limit is stored.
    virtual double getSmooth() const = 0;
    virtual void setSmooth(double smooth) = 0;
    /// 0.0 to 0.5, 0.0 in a new property; outside, the limit is stored.
    virtual double getBevel() const = 0;
    virtual void setBevel(double bevel) = 0;
    /// At least 0.0, 1.0 in a new property; below, 0.0 is stored.
    virtual double getScale() const = 0;
    virtual void setScale(double scale) = 0;

    /// Of the leaf; R, G, B 100 without one.
    virtual CZelColor getDiffuseColor() const = 0;
    virtual void setDiffuseColor(const CZelColor& color) = 0;
    /// Of the leaf; black without one.
    virtual CZelColor getSpecularColor() const = 0;
    virtual void setSpecularColor(const CZelColor& color) = 0;
    /// Of the leaf, 0.0 to 1000.0; outside, the limit is stored. 6.0 without a leaf, but a new leaf
    /// has 1000.0: the first write of another of its values changes this one.
    virtual double getGlossy() const = 0;
    virtual void setGlossy(double glossy) = 0;
    /// Of the leaf; black without one.
    virtual CZelColor getTransparentColor() const = 0;
    virtual void setTransparentColor(const CZelColor& color) = 0;
    /// Of the leaf; black without one.
    virtual CZelColor getReflectionColor() const = 0;
    virtual void setReflectionColor(const CZelColor& color) = 0;
    /// The diffuse map of the mapping node, the empty text without one. Good until the next change
    /// of the map or the tree.
    virtual const char* getDiffuseMapUrl() const = 0;
    virtual void setDiffuseMapUrl(const char* url) = 0;
    /// 0 orthogonal, 1 planar, 2 vertical, 3 spherical, 4 cylindrical around Y, 5 cylindrical
    /// around X, 6 planetary, 7 by the coordinates of the mesh, 8 horizontal; the numbers of the
    /// mapping node are others. All bits set without a mapping node and for a number that has no
    /// kind here.
    virtual std::uint32_t getProjection() const = 0;
    /// A number above 8 makes the mapping node if there is none and changes nothing else.
    virtual void setProjection(std::uint32_t projection) = 0;
    /// The frame of the mapping node. Without one the arguments are left alone.
    virtual bool getMappingAxes(CZelPoint* origin, CZelPoint* xAxis, CZelPoint* yAxis) const = 0;
    /// Also makes the normal of the mapping node the cross product of the axes, not normalised.
    virtual void setMappingAxes(const CZelPoint& origin, const CZelPoint& xAxis,
                                const CZelPoint& yAxis) = 0;
    /// Of the mapping node. Without one the argument is left alone.
    virtual bool getMapTransparentColor(CZelColor* color) const = 0;
    virtual void setMapTransparentColor(const CZelColor& color) = 0;
    /// Of the mapping node; false and false without one.
    virtual bool getMapRepeat(bool* x, bool* y) const = 0;
    virtual void setMapRepeat(bool x, bool y) = 0;
    /// Of the mapping node; false and false without one.
    virtual bool getMapInvert(bool* x, bool* y) const = 0;
    virtual void setMapInvert(bool x, bool y) = 0;
    /// Of the mapping node, the height first; 1.0 and 1.0 without one.
    virtual bool getMapSize(double* height, double* width) const = 0;
    virtual void setMapSize(double height, double width) = 0;
    /// The tree, never null. The property owns it: a client that keeps its root node longer finds
    /// it cut off from the document.
    virtual const IZelTCE* getTCE() const = 0;
    virtual IZelTCE* getTCE() = 0;
    /// Of the mapping node; 0.0 without one.
    virtual bool getMapAngle(double* angle) const = 0;
    virtual void setMapAngle(double angle) = 0;

    /// Takes everything but the identifier, the client data and the number for the user interface;
    /// the nodes of the new tree keep the identifiers of the old one. A null source and one with an
    /// empty tree give the message "Can load property from another property" and false, and nothing
    /// changes.
    virtual bool copyFrom(const IZelProperty* source) = 0;
    /// False in a new property.
    virtual bool getBillboard() const = 0;
    virtual void setBillboard(bool billboard) = 0;

    /// Of the leaf; black without one.
    virtual CZelColor getNeonColor() const = 0;
    virtual void setNeonColor(const CZelColor& color) = 0;
    /// Of the leaf; 0.0 without one. A negative value is stored as 0.0.
    virtual double getNeonValue() const = 0;
    virtual void setNeonValue(double value) = 0;
    /// Of the leaf, 0.0 to 10.0; outside, the limit is stored. 0.0 without a leaf, but a new leaf
    /// has 1.0.
    virtual double getRefraction() const = 0;
    virtual void setRefraction(double refraction) = 0;

    /// The identifier of the property that this one replaces, for the client to resolve; the null
    /// identifier in a new property.
    virtual const CZelUUID& getOverloadPropIndex() const = 0;
    virtual void setOverloadPropIndex(const CZelUUID& id) = 0;
    /// The set of replacements that this one belongs to, for the client to resolve; the null
    /// identifier in a new property.
    virtual const CZelUUID& getOverloadId() const = 0;
    virtual void setOverloadId(const CZelUUID& id) = 0;
    /// True in a new property.
    virtual bool getReceiveShadow() const = 0;
    virtual void setReceiveShadow(bool receiveShadow) = 0;
    /// False in a new property.
    virtual bool getUVDefined() const = 0;
    virtual void setUVDefined(bool defined) = 0;

    /// Of the mapping node; false without one.
    virtual bool getMapCutAlpha() const = 0;
    virtual void setMapCutAlpha(bool cutAlpha) = 0;
    /// Of the mapping node if there is one, else of the leaf; 0.0 without either. The setter makes
    /// a leaf if there is neither, never a mapping node.
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double limit) = 0;
    /// Of the leaf; black without one.
    virtual CZelColor getEmittingColor() const = 0;
    virtual void setEmittingColor(const CZelColor& color) = 0;
    /// Of the leaf; 0.0 without one.
    virtual double getEmittingPower() const = 0;
    virtual void setEmittingPower(double power) = 0;
    /// Of the mapping node; false without one.
    virtual void setMapDisplayMode(bool mode) = 0;
    virtual bool getMapDisplayMode() const = 0;
    /// Of the mapping node; 0.0 without one.
    virtual double getMapNormalMapValue() const = 0;
    virtual void setMapNormalMapValue(double value) = 0;
    /// As getDiffuseMapUrl.
    virtual const char* getNormalMapUrl() const = 0;
    virtual void setNormalMapUrl(const char* url) = 0;
    /// As getDiffuseMapUrl.
    virtual const char* getBumpMapUrl() const = 0;
    virtual void setBumpMapUrl(const char* url) = 0;
    /// Of the mapping node. Without one the argument is left alone.
    virtual bool getMapReflectionColor(CZelColor* color) const = 0;
    virtual void setMapReflectionColor(const CZelColor& color) = 0;
    /// Of the mapping node, 0.0 to 1000.0; outside, the limit is stored. Without the node the
    /// argument is left alone.
    virtual bool getMapGlossy(double* glossy) const = 0;
    virtual void setMapGlossy(double glossy) = 0;
    /// Of the mapping node. Without one the argument is left alone.
    virtual bool getMapBump(double* bump) const = 0;
    virtual void setMapBump(double bump) = 0;

    /// The URL of the tree: where the shader document came from, empty if from none. Good until the
    /// next change.
    virtual const char* getShaderUrl() const = 0;
    /// Reads the shader document of the stream into this property, as IZelMgrEx::readShader does
    /// and with its messages, and answers whether that went well. Then the URL, which nothing
    /// opens, is stored; after a failure the empty one is. An empty or null URL reads nothing,
    /// empties the stored one and answers true. Without a document nothing is read, the stored one
    /// is emptied and the answer is false.
    virtual bool setShaderUrl(const char* url, IZelReadStream* stream) = 0;

    /// Puts a new mapping node below that of getMappingNode(index - 1), or below the root for 0,
    /// and above what hangs there; if nothing does, it gets a new leaf. Its isShader is true, so
    /// that getMappingNode passes it over until setShader(false). Null if there is no such place.
    virtual IMappingNode* insertMappingNode(std::int32_t index) = 0;
    /// Takes the node of getMappingNode out; its first child moves up, its others go with it. False
    /// if there is none.
    virtual bool removeMappingNode(std::int32_t index) = 0;
    /// The mapping nodes whose isShader is false, counted from 0 along the first child of each node
    /// from the root on; null behind the last. Without a reference for the caller.
    virtual const IMappingNode* getMappingNode(std::int32_t index) const = 0;
    virtual IMappingNode* getMappingNode(std::int32_t index) = 0;

protected:
    ~IZelProperty() override = default;
};

} // namespace OvZel
