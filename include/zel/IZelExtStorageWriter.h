#pragma once

#include <zel/CZelPoint.h>

#include <cstdint>

namespace OvZel {

class IZelPolygon;

/// Supplies the meshes of a document that is being saved.
class IZelExtStorageWriter {
public:
    /// Supplies one mesh. The library deletes it at the end of the block. What its operations throw
    /// makes the block fail.
    class IWriter {
    public:
        virtual ~IWriter() = default;
        /// A negative number is a failure.
        virtual std::int32_t getNbPoints() = 0;
        /// Fills the point; false cancels the block.
        virtual bool getPoint(CZelPoint* point, std::int32_t index) = 0;
        /// A negative number is a failure.
        virtual std::int32_t getNbPolygons() = 0;
        /// Replaces the content of the polygon; false cancels the block.
        virtual bool getPolygon(IZelPolygon* polygon, std::int32_t index) = 0;
    };

    /// A new supplier for one block, as IZelExtStorageReader::createGeometryReader; null makes the
    /// block fail.
    virtual IWriter* createGeometryWriter(const CZelUUID* id) = 0;

protected:
    ~IZelExtStorageWriter() = default;
};

} // namespace OvZel
