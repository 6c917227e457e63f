#pragma once

#include <zel/CZelPoint.h>

#include <cstdint>

namespace OvZel {

class IZelPolygon;

/// Receives the meshes of a document that is being read, so that a client can keep them outside.
class IZelExtStorageReader {
public:
    /// Receives one mesh. The library deletes it at the end of the block. What its operations throw
    /// makes the block fail.
    class IReader {
    public:
        virtual ~IReader() = default;
        /// The number that the file claims, told before the first point; not to be trusted.
        virtual void setNbPoints(std::int32_t count) = 0;
        /// Points come in file order, already transformed; false cancels the block.
        virtual bool setPoint(const CZelPoint* point, std::int32_t index) = 0;
        /// As setNbPoints, for polygons.
        virtual void setNbPolygons(std::int32_t count) = 0;
        /// The polygon is good for this call only; false cancels the block.
        virtual bool setPolygon(IZelPolygon* polygon, std::int32_t index) = 0;
    };

    /// A new receiver for one block of the mesh of a component, or of the document's own mesh when
    /// all bytes of the identifier are zero. isLevelZero is true for the document's own mesh and
    /// for components of geometry level 0. Null makes the block fail.
    virtual IReader* createGeometryReader(const CZelUUID* id, bool isLevelZero) = 0;

protected:
    ~IZelExtStorageReader() = default;
};

} // namespace OvZel
