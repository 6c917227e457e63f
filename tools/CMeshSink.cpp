#include "tools/CMeshSink.h"

#include "tools/CObjWriter.h"

#include <zel/IZelPolygon.h>

namespace tool {

namespace {

class CBlock final : public OvZel::IZelExtStorageReader::IReader {
public:
    CBlock(CObjWriter& writer, const OvZel::CZelUUID& id) : mWriter(writer), mId(id) {}

    void setNbPoints(std::int32_t) override { mWriter.startPoints(mId); }
    bool setPoint(const OvZel::CZelPoint* point, std::int32_t) override
    {
        mWriter.addPoint(*point);
        return true;
    }
    void setNbPolygons(std::int32_t) override { mWriter.startPolygons(mId); }
    bool setPolygon(OvZel::IZelPolygon* polygon, std::int32_t) override
    {
        mWriter.addPolygon(*polygon);
        return true;
    }

private:
    CObjWriter& mWriter;
    OvZel::CZelUUID mId;
};

} // namespace

OvZel::IZelExtStorageReader::IReader* CMeshSink::createGeometryReader(const OvZel::CZelUUID* id,
                                                                      bool /*isLevelZero*/)
{
    return new CBlock(mWriter, *id);
}

} // namespace tool
