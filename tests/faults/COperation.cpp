#include "tests/faults/COperation.h"

#include "tests/faults/fullScene.h"
#include "tests/support/savedText.h"

namespace ZelTest {

using namespace OvZel;

namespace {

constexpr std::size_t kRoom = 1 << 17;

/// The text with zeros for identifiers that a load or import has made.
std::string stable(const std::string& saved)
{
    return withoutNewIds(saved, fullScene());
}

/// What a document gives that has loaded the scene.
const std::string& loadedScene()
{
    static const std::string text = stable(CQuietDocument(fullScene()).save());
    return text;
}

bool isLoadable(CQuietDocument& document)
{
    return document.read(fullScene()) && stable(document.save()) == loadedScene();
}

class COnDocument : public COperation {
public:
    std::string result() override { return stable(document->save()); }
    bool goesOn() override { return isLoadable(*document); }
    int nbMessages() override { return document->feedback.nbMessages; }
    const char* lastMessage() override { return document->feedback.last; }
    CQuietFeedback* feedback() override { return &document->feedback; }

protected:
    std::unique_ptr<CQuietDocument> document = std::make_unique<CQuietDocument>();
};

class CNewDocument : public COperation {
public:
    ~CNewDocument() override { release(); }
    bool run() override
    {
        IZelMgr::newZelMgr(&mDocument, eVersionZel, &mFeedback);
        return mDocument != nullptr;
    }
    std::string result() override
    {
        CTextWriter stream(kRoom);
        return mDocument->write(&stream, nullptr) ? withoutNewIds(stream.text, "") : "";
    }
    bool goesOn() override { return run(); }
    int nbMessages() override { return mFeedback.nbMessages; }
    const char* lastMessage() override { return mFeedback.last; }

private:
    void release()
    {
        if (mDocument != nullptr)
            mDocument->Release();
    }

    CQuietFeedback mFeedback;
    IZelMgr* mDocument = nullptr;
};

class CLoad : public COnDocument {
public:
    bool run() override { return (*document)->read(&mStream, nullptr); }
    CTextReader* reader() override { return &mStream; }

private:
    CTextReader mStream{fullScene(), kStep};
};

/// Over what is there.
class CLoadAgain : public CLoad {
public:
    CLoadAgain() { document->read(fullScene()); }
};

class CReadSections : public COnDocument {
public:
    CReadSections() { document->read(fullScene()); }
    bool run() override
    {
        const int before = document->feedback.nbMessages;
        (*document)->readCData(&mStream, nullptr);
        return document->feedback.nbMessages == before;
    }
    CTextReader* reader() override { return &mStream; }

private:
    CTextReader mStream{fullScene(), kStep};
};

class CSave : public COnDocument {
public:
    CSave() { document->read(fullScene()); }
    bool run() override { return (*document)->write(&mStream, nullptr); }
    std::string result() override { return stable(mStream.text); }
    bool goesOn() override
    {
        return stable(document->save()) == loadedScene() && isLoadable(*document);
    }
    CTextWriter* writer() override { return &mStream; }

private:
    CTextWriter mStream{kRoom};
};

/// The questions that need no document.
class CProbe : public COperation {
public:
    CProbe() { isSilent = true; }
    bool goesOn() override
    {
        CTextReader stream(fullScene());
        CZelVersion version;
        return IZelMgr::checkFormat2(&stream, nullptr, &version, nullptr, 0) && version.major == 6;
    }
    int nbMessages() override { return 0; }
    const char* lastMessage() override { return ""; }
    CTextReader* reader() override { return &mStream; }

protected:
    CTextReader mStream{fullScene(), kStep};
};

class CCheckFormat : public CProbe {
public:
    bool run() override
    {
        return IZelMgr::checkFormat2(&mStream, &mReadability, &mVersion, mLabel, sizeof mLabel);
    }
    std::string result() override
    {
        return std::to_string(mReadability) + ' ' + std::to_string(mVersion.major) + ' ' + mLabel;
    }

private:
    IZelMgr::eReadability mReadability = IZelMgr::eSame;
    CZelVersion mVersion;
    char mLabel[64] = "";
};

class CFileInfo : public CProbe {
public:
    ~CFileInfo() override
    {
        if (mInfo != nullptr)
            mInfo->Release();
    }
    bool run() override
    {
        IZelMgr::readFileInfo(&mInfo, &mStream);
        // What is not found is told by a zero, and by a line on standard output.
        return mInfo != nullptr && !mInfo->getBasicData()->getId()->isNull() &&
               mInfo->getOrigin()[2] != 0.0;
    }
    std::string result() override
    {
        const double* origin = mInfo->getOrigin();
        std::string text = std::to_string(origin[0]) + ' ' + std::to_string(origin[2]);
        for (const std::uint8_t byte : mInfo->getBasicData()->getId()->bytes)
            text += ' ' + std::to_string(byte);
        return text;
    }

private:
    IZelFileInfo* mInfo = nullptr;
};

class CPreview : public CProbe {
public:
    ~CPreview() override
    {
        if (mImage != nullptr)
            mImage->Release();
    }
    bool run() override
    {
        IZelMgr::readPreviewImage(&mImage, &mStream);
        return mImage != nullptr;
    }
    std::string result() override
    {
        std::uint32_t width = 0, height = 0;
        std::uint8_t* pixels = nullptr;
        mImage->getImage(&width, &height, &pixels);
        std::string text = std::to_string(width) + 'x' + std::to_string(height);
        for (std::uint32_t i = 0; i < width * height * 4; ++i)
            text += ' ' + std::to_string(pixels[i]);
        return text;
    }

private:
    IZelImage* mImage = nullptr;
};

class CMediaInfo : public COnDocument {
public:
    CMediaInfo() { isSilent = true; }
    bool run() override
    {
        (*document)->readMediaInfo(&mStream);
        const char* name = (*document)->getObjectDefinition()->getName()->getText(0x656E);
        return name != nullptr && *name != '\0';
    }
    std::string result() override
    {
        return (*document)->getObjectDefinition()->getName()->getText(0x656E);
    }
    CTextReader* reader() override { return &mStream; }

private:
    CTextReader mStream{fullScene(), kStep};
};

class CImport : public COnDocument {
public:
    explicit CImport(bool intoFull) : mSource(fullScene())
    {
        mayThrow = true;
        if (intoFull)
            document->read(fullScene());
    }
    bool run() override
    {
        IZelMgr::doImportReference(document->get(), mSource.get(), 0xFFF);
        return nbMessages() == 0;
    }
    bool goesOn() override { return isLoadable(*document) && isLoadable(mSource); }
    int nbMessages() override
    {
        return document->feedback.nbMessages + mSource.feedback.nbMessages;
    }

private:
    CQuietDocument mSource;
};

class COnShader : public COnDocument {
public:
    COnShader() { document->read(fullScene()); }

protected:
    IZelProperty* property() const { return (*document)->getProperties()->getZelObject(0); }
};

class CReadShader : public COnShader {
public:
    explicit CReadShader(const std::string& text) : mStream(text, kStep) {}
    bool run() override { return document->more().readShader(property(), &mStream); }
    CTextReader* reader() override { return &mStream; }

private:
    CTextReader mStream;
};

class CWriteShader : public COnShader {
public:
    bool run() override { return document->more().writeShader(property(), &mStream); }
    std::string result() override { return stable(mStream.text); }
    CTextWriter* writer() override { return &mStream; }

private:
    CTextWriter mStream{kRoom};
};

template <class T, class... Arguments>
CNamedOperation named(const char* name, Arguments... arguments)
{
    return {name, [arguments...] { return std::make_unique<T>(arguments...); }};
}

} // namespace

std::string CQuietDocument::save() const
{
    CTextWriter stream(kRoom);
    return mDocument->write(&stream, nullptr) ? stream.text : "";
}

const std::vector<CNamedOperation>& allOperations()
{
    static const std::vector<CNamedOperation> operations = {
        named<CNewDocument>("newZelMgr"),
        named<CLoad>("read"),
        named<CLoadAgain>("readAgain"),
        named<CReadSections>("readCData"),
        named<CSave>("write"),
        named<CCheckFormat>("checkFormat2"),
        named<CFileInfo>("readFileInfo"),
        named<CPreview>("readPreviewImage"),
        named<CMediaInfo>("readMediaInfo"),
        named<CImport>("importIntoEmpty", false),
        named<CImport>("importIntoFull", true),
        {"readShaderWhole", [] { return std::make_unique<CReadShader>(wholeShader()); }},
        {"readShaderNodes", [] { return std::make_unique<CReadShader>(nodeShader()); }},
        named<CWriteShader>("writeShader"),
    };
    return operations;
}

} // namespace ZelTest
