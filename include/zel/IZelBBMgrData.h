#pragma once

#include <zel/IZelBillboard.h>
#include <zel/IZelQuad.h>
#include <zel/IZelTexture.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// One billboard of the document: a picture that stands in the scene on a few triangles.
///
/// Billboards are made and owned by their manager and live no longer than it keeps them.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelBBMgrData : public IZelXML {
public:
    static constexpr CZelUUID sIID{"69CD816C01F74E708B0380DAB7E3C399"};

    /// Good as long as the entry, as the texture.
    virtual const IZelBillboard* getBillboard() const = 0;
    virtual IZelBillboard* getBillboard() = 0;
    /// The triangles.
    virtual const TZelObjectMgr<IZelQuad>* getQuads() const = 0;
    virtual TZelObjectMgr<IZelQuad>* getQuads() = 0;
    /// The handle of the material, 0 in a new entry; the library does not interpret it.
    virtual std::uint64_t getProperty() const = 0;
    /// The file holds the low 32 bits; a handle above them does not survive a save.
    virtual void setProperty(std::uint64_t property) = 0;
    /// The picture; never null, good as long as the entry.
    virtual const IZelTexture* getTexture() const = 0;
    virtual IZelTexture* getTexture() = 0;

protected:
    ~IZelBBMgrData() = default;
};

} // namespace OvZel
