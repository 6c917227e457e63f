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

void CToolDocument::read(CFileReadStream& stream, const std::string& path)
{
    const bool done = mMgr->read(&stream, nullptr);
    stream.check();
    if (!done)
        throw CToolError(eNotReadable, path + ": not readable");
}

void CToolDocument::save(const std::string& target)
{
    CAtomicFile file(target);
    const bool saved = mMgr->write(&file.stream(), nullptr);
    file.check();
    if (!saved)
        throw CToolError(eNotReadable, target + ": the document can't be saved");
    file.commit();
}

} // namespace tool
