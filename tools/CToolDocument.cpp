#include "tools/CToolDocument.h"

#include "tools/CAtomicFile.h"
#include "tools/CToolError.h"

namespace tool {

CToolDocument::CToolDocument()
{
    OvZel::IZelMgr::newZelMgr(mMgr.out(), OvZel::eVersionZel, &mFeedback);
    if (!mMgr)
        throw CToolError(eIoError, "can't make a document");
}

void CToolDocument::read(CFileReadStream& stream, const std::string& path,
                         OvZel::IZelExtStorageReader* reader)
{
    const bool done = mMgr->read(&stream, reader);
    mFeedback.clearBar();
    stream.check();
    if (!done)
        throw CToolError(eNotReadable, path + ": not readable");
}

void CToolDocument::save(const std::string& target, OvZel::IZelExtStorageWriter* writer,
                         const OvZel::CZelVersion* version)
{
    CAtomicFile file(target);
    const bool saved = mMgr->writeVersion(&file.stream(), writer, version);
    mFeedback.clearBar();
    file.check();
    if (!saved)
        throw CToolError(eNotReadable, target + ": the document can't be saved");
    file.commit();
}

} // namespace tool
