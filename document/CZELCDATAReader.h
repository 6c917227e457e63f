#pragma once

#include "xml/tree/IXMLCDataReader.h"

#include <zel/CZelUUID.h>
#include <zel/IZelExtStorageReader.h>

#include <map>
#include <string>
#include <unordered_map>

namespace OvZel {

class CZEL;
class CZelImage;

/// Takes every CDATA section of a file into the document while the tree is being read.
///
/// A section that fails gives a message and is skipped; the load goes on. A cancel ends it.
class CZELCDATAReader : public OrvaneXML::IXMLCDataReader {
public:
    /// Of a whole document the pictures replace those that were there; of sections alone each
    /// refills the picture with its identifier.
    enum class EMode { Document, Sections };

    CZELCDATAReader(CZEL& document, IZelExtStorageReader& storage, EMode mode);

    bool ReadCData(OrvaneXML::XIXMLElement* element, OrvaneXML::XIXMLReadStream* stream) override;

private:
    /// The mesh that a geometry block is for: a component, or with a null identifier the document.
    struct CMeshOwner {
        CZelUUID id;
        std::int32_t level = 0;
    };

    /// What is known of a component before all of its element has been read.
    struct CComponent {
        CMeshOwner owner;
        std::string failure;                     ///< the text, if it cannot have a mesh
        OrvaneXML::XIXMLElement* seen = nullptr; ///< the last child that was looked at
        bool isSettled = false;
    };

    void readSection(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    void readPreview(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    void readImage(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    void readGeometry(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    CZelImage& imageFor(OrvaneXML::XIXMLElement& element);
    CZelImage* knownImage(const CZelUUID& id);
    CMeshOwner meshOwner(OrvaneXML::XIXMLElement& element);
    static void settle(OrvaneXML::XIXMLElement& wrapper, CComponent& component);

    CZEL& mDocument;
    IZelExtStorageReader& mStorage;
    EMode mMode;
    bool mHasImages = false;
    // A walk over the pictures, or over the children of a component, for each section would let a
    // file of a few MB keep the library busy for minutes.
    std::map<CZelUUID, std::int32_t> mImageIndex;
    std::int32_t mNbIndexed = 0;
    std::unordered_map<OrvaneXML::XIXMLElement*, CComponent> mComponents;
};

} // namespace OvZel
