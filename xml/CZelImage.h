#pragma once

#include "core/TZelCOMObjLinkRef.h"
#include "xml/XCXMLImage.h"
#include "xml/trn_autoptr.h"

#include <zel/IZelImage.h>

namespace OvZel {

/// A bitmap of a document.
class CZelImage : public TZelCOMObjLinkRef<IZelImage> {
public:
    /// The owner may be null.
    explicit CZelImage(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) {}

    void getImage(std::uint32_t* width, std::uint32_t* height, std::uint8_t** pixels) override;
    void setImage(std::uint32_t width, std::uint32_t height, const std::uint8_t* pixels) override;
    // One identifier for both facets.
    const CZelUUID* getId() const override { return CZelBasicData::getId(); }
    void setId(const CZelUUID* id) override { CZelBasicData::setId(id); }

    /// Replaces the bitmap by the one in the stream; on any failure, raised as
    /// XCXMLImage::ReadImage does, the old one stays.
    void readImage(OrvaneXML::XIXMLReadStream& stream);

private:
    trn_autoptr<XCXMLImage> mImage; // null without a bitmap
};

} // namespace OvZel
