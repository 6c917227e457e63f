#include "fuzz/check.h"
#include "fuzz/hasLargePicture.h"
#include "tests/support/CClientDocument.h"

// The probes end with an answer, and those that promise it put the stream back.

namespace {

using namespace OvZel;

void probe(const std::string& text, std::size_t step)
{
    ZelTest::CMemoryReadStream stream(text, step);
    IZelMgr::eReadability readability = IZelMgr::eSame;
    CZelVersion version;
    char label[16] = "";
    const bool isReadable =
        IZelMgr::checkFormat2(&stream, &readability, &version, label, sizeof label);
    check(isReadable == (readability != IZelMgr::eUnknown && readability != IZelMgr::eTooNew));
    check(stream.getPosition() == 0);

    IZelFileInfo* info = nullptr;
    IZelMgr::readFileInfo(&info, &stream);
    check(info != nullptr && stream.getPosition() == 0);
    info->Release();

    IZelImage* preview = nullptr;
    IZelMgr::readPreviewImage(&preview, &stream);
    if (preview != nullptr)
        preview->Release();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (hasLargePicture(text))
        return 0;
    probe(text, ZelTest::CMemoryReadStream::kWhole);
    probe(text, 7);
    ZelTest::CClientDocument document;
    ZelTest::CMemoryReadStream stream(text);
    check(document->readMediaInfo(&stream));
    check(document.takeMessages().empty());
    return 0;
}
