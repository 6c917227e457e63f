#include <zel/IZelMgr.h>

#include "core/OvThrow.h"
#include "document/CCheckZELCreatorFile.h"
#include "document/CCheckZELFile.h"
#include "document/CReadDocumentUUID.h"
#include "document/CReadOrigin.h"
#include "document/CReadPreviewImage.h"
#include "document/CZEL.h"
#include "document/CZELXMLReadStream.h"
#include "document/versions.h"
#include "import/importReference.h"

#include <cstdio>

namespace OvZel {

namespace {

void tellConstructionFailure(IZelFeedback* feedback, const char* text)
{
    if (feedback == nullptr)
        return;
    try {
        feedback->message(nullptr, text);
    } catch (...) {
        // A client that fails to take a message must not make the factory throw.
    }
}

bool startsWithMarkup(IZelReadStream& stream, std::int64_t start)
{
    char first = 0;
    const bool found = stream.read(&first, 1) == 1 && first == '<';
    stream.setPosition(start);
    return found;
}

/// What the two head parsers find, as far as they come.
struct CHead {
    CCheckZELFile file;
    CCheckZELCreatorFile creator;

    explicit CHead(IZelReadStream& stream)
    {
        const std::int64_t start = stream.getPosition();
        try {
            if (startsWithMarkup(stream, start)) {
                CZELXMLReadStream source(&stream, CZELXMLReadStream::kHead);
                file.ParseHead(&source);
                stream.setPosition(start);
                creator.ParseHead(&source);
            }
        } catch (...) {
            // What was found up to here counts.
        }
        stream.setPosition(start);
    }

    /// Files written before 1.0.1 name no application to be trusted.
    bool isForeign() const
    {
        const std::string& name = creator.application();
        return file.library() >= CZelVersion{1, 0, 1} && !name.empty() && name != "Vendralis" &&
               name != "Shape Composer";
    }
};

IZelMgr::eReadability readabilityOf(const CHead& head)
{
    if (head.isForeign())
        return head.file.library().major > kLibraryVersion.major ? IZelMgr::eTooNew
                                                                 : IZelMgr::eOtherApplication;
    if (head.file.minVersion() > kLibraryVersion)
        return IZelMgr::eTooNew;
    if (head.file.safeVersion() > kLibraryVersion)
        return IZelMgr::eNewerWithLoss;
    if (head.file.library() > kLibraryVersion)
        return IZelMgr::eNewer;
    if (head.file.library() == kLibraryVersion)
        return IZelMgr::eSame;
    return head.file.library() < kSafeVersion ? IZelMgr::eOlder : IZelMgr::eRecent;
}

/// Runs one parse of readFileInfo from the stream's position and puts that back. A parse that stops
/// itself has its answer; any other failure is told, though nothing but the console can hear it.
template <class Parser>
void probe(Parser& parser, IZelReadStream& stream)
{
    const std::int64_t start = stream.getPosition();
    try {
        CZELXMLReadStream source(&stream);
        parser.Parse(&source);
    } catch (const std::exception& exception) {
        if (!parser.isDone())
            std::printf("CZelMgr::readOrigin - Exception %s\n", exception.what());
    } catch (...) {
        std::printf("CZelMgr::readOrigin - Unknown exception\n");
    }
    stream.setPosition(start);
}

} // namespace

void IZelMgr::newZelMgr(IZelMgr** out, EVersionZEL clientVersion, IZelFeedback* feedback)
{
    if (out == nullptr)
        return;
    if (IZelMgr* old = std::exchange(*out, nullptr))
        old->Release();
    try {
        IZelMgr* made = new CZEL(clientVersion, feedback);
        made->AddRef();
        *out = made;
    } catch (const std::exception& exception) {
        tellConstructionFailure(feedback, exceptionText(exception));
    }
}

EVersionZEL IZelMgr::getZELVersion()
{
    return eVersionZel;
}

EExtendedVersionZEL IZelMgr::getExtendedZelVersion()
{
    return eExtendedVersionZel;
}

bool IZelMgr::checkFormat2(IZelReadStream* stream, eReadability* readability, CZelVersion* version,
                           char* label, std::uint32_t labelSize)
{
    if (readability != nullptr)
        *readability = eUnknown;
    if (stream == nullptr)
        return false;
    try {
        const CHead head(*stream);
        if (head.file.library().major == 0)
            return false;
        if (version != nullptr)
            *version = head.file.library();
        const eReadability found = readabilityOf(head);
        if (readability != nullptr)
            *readability = found;
        if (found == eTooNew)
            return false;
        if (label != nullptr && labelSize > 0)
            std::snprintf(label, labelSize, "Vendralis (%d.%d)", head.file.fileMajor(),
                          head.file.fileMinor());
        return true;
    } catch (...) {
        return false; // the client's stream would not go back to its position
    }
}

void IZelMgr::readPreviewImage(IZelImage** out, IZelReadStream* stream)
{
    if (out == nullptr)
        return;
    *out = nullptr;
    if (stream == nullptr)
        return;
    CReadPreviewImage parser;
    try {
        CZELXMLReadStream source(stream);
        parser.Parse(&source);
    } catch (...) {
        // Every parse ends this way; the picture read up to there is the answer.
    }
    if (parser.image()) {
        parser.image()->AddRef();
        *out = parser.image().get();
    }
}

void IZelMgr::readFileInfo(IZelFileInfo** out, IZelReadStream* stream)
{
    if (out == nullptr)
        return;
    *out = nullptr;
    try {
        CReadOrigin origin;
        CReadDocumentUUID id;
        if (stream != nullptr) {
            probe(origin, *stream);
            probe(id, *stream);
        }
        TZelComPtr<CZelFileInfo> info(new CZelFileInfo(nullptr));
        info->setOrigin(origin.origin());
        info->setId(&id.id());
        info->AddRef();
        *out = info.get();
    } catch (...) {
        // The client's stream would not go back to its position: no answer.
    }
}

void IZelMgr::doImportReference(IZelMgr* destination, IZelMgr* source, std::int32_t flags)
{
    importReference(destination, source, flags);
}

} // namespace OvZel
