#pragma once

#include <zel/IZelExtStorageReader.h>

namespace tool {

class CObjWriter;

/// Passes each mesh of a document that is being read straight on to an OBJ file.
class CMeshSink final : public OvZel::IZelExtStorageReader {
public:
    explicit CMeshSink(CObjWriter& writer) : mWriter(writer) {}

    IReader* createGeometryReader(const OvZel::CZelUUID* id, bool isLevelZero) override;

private:
    CObjWriter& mWriter;
};

} // namespace tool
