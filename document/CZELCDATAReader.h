#pragma once

#include "xml/tree/IXMLCDataReader.h"

#include <zel/IZelExtStorageReader.h>

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
    void readSection(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    void readPreview(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    void readImage(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    void readGeometry(OrvaneXML::XIXMLElement& element, OrvaneXML::XIXMLReadStream& stream);
    CZelImage& imageFor(OrvaneXML::XIXMLElement& element);

    CZEL& mDocument;
    IZelExtStorageReader& mStorage;
    EMode mMode;
    bool mHasImages = false;
};

} // namespace OvZel
