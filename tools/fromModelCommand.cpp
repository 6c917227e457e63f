#include "tools/commands.h"

#include "tools/CMeshSource.h"
#include "tools/CProgressBar.h"
#include "tools/CToolDocument.h"
#include "tools/interrupt.h"
#include "tools/pngFile.h"

#include <assimp/Importer.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace tool {

namespace {

class CImportProgress final : public Assimp::ProgressHandler {
public:
    bool Update(float part) override
    {
        if (part >= 0) // -1 when the importer does not know
            mBar.show(static_cast<std::int64_t>(part * 100), 100);
        return !isInterrupted();
    }
    void clearBar() { mBar.clear(); }

private:
    CProgressBar mBar;
};

// The importer with the scene that it owns.
class CImport {
public:
    explicit CImport(const std::string& model)
    {
        auto* const progress = new CImportProgress;
        mImporter.SetProgressHandler(progress); // which owns it from here on
        // The document has one mesh space: every mesh goes where its node puts it.
        const aiScene* scene = mImporter.ReadFile(model, aiProcess_PreTransformVertices);
        progress->clearBar();
        checkInterrupt();
        if (!scene)
            throw CToolError(eNotReadable, model + ": " + mImporter.GetErrorString());
    }

    const aiScene& scene() const { return *mImporter.GetScene(); }

private:
    Assimp::Importer mImporter;
};

} // namespace

static void checkReadable(const std::string& model)
{
    char firstByte = 0;
    CFileReadStream stream(model); // tells a file that cannot be read from one that is no model
    stream.read(&firstByte, 1);
    stream.check();
}

void fromModelCommand(const std::string& model, const std::string& out, const std::string& png)
{
    CToolDocument document;
    if (!png.empty()) {
        const CPicture picture = readPng(png);
        document->getPreviewImage()->setImage(picture.width, picture.height, picture.pixels.data());
    }
    checkReadable(model);
    const CImport import(model);
    CMeshSource source(import.scene());
    if (source.getNbLeftOut() > 0)
        complain(model + ": points and lines, left out: " + std::to_string(source.getNbLeftOut()));
    document.save(out, &source);
}

} // namespace tool
