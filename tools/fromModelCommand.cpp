#include "tools/commands.h"

#include "tools/CMeshSource.h"
#include "tools/CModelCameras.h"
#include "tools/CProgressBar.h"
#include "tools/CSceneBuilder.h"
#include "tools/CToolDocument.h"
#include "tools/forEach.h"
#include "tools/interrupt.h"
#include "tools/pngFile.h"
#include "tools/stableId.h"

#include <assimp/Importer.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace tool {

using OvZel::CZelUUID;

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
class CModelImport {
public:
    explicit CModelImport(const std::string& model) : mModel(model), mProgress(*new CImportProgress)
    {
        mImporter.SetProgressHandler(&mProgress); // which owns it from here on
        check(mImporter.ReadFile(model, 0U));
    }

    const aiScene& scene() const { return *mImporter.GetScene(); }
    /// In one mesh space every mesh goes where its node puts it.
    void flatten() { check(mImporter.ApplyPostProcessing(aiProcess_PreTransformVertices)); }

private:
    void check(const aiScene* scene)
    {
        mProgress.clearBar();
        checkInterrupt();
        if (!scene)
            throw CToolError(eNotReadable, mModel + ": " + mImporter.GetErrorString());
    }

    const std::string& mModel;
    CImportProgress& mProgress;
    Assimp::Importer mImporter;
};

} // namespace

// By the bytes of the file, since many models of different folders have one name. Tells a file that
// cannot be read from one that is no model, too.
static CZelUUID idOfModel(const std::string& model, const char* kind)
{
    CFileReadStream stream(model);
    std::string bytes(65536, '\0');
    CZelUUID id;
    std::size_t size = bytes.size();
    while (size == bytes.size()) {
        size = stream.read(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        stream.check();
        id = stableId(kind, id, bytes.substr(0, size));
    }
    return id;
}

// Noon of midsummer. A model has no time, and a new document that of its making.
static void setTime(OvZel::IZelTime& time)
{
    time.setMonth(6);
    time.setDay(21);
    time.setHour(12);
    time.setMinute(0);
    time.setYear(2004);
}

// What a new document has from the start.
static void identify(OvZel::IZelMgr& document, const CZelUUID& id)
{
    document.getObjectDefinition()->getBasicData()->setId(&id);
    const CZelUUID fileId = stableId("file", id, "");
    document.getFileInfo()->getBasicData()->setId(&fileId);
    forEach(*document.getHeliodons(), [](OvZel::IZelHeliodon& heliodon, std::int32_t index) {
        const CZelUUID heliodonId = stableId("heliodon", {}, "", static_cast<std::uint64_t>(index));
        heliodon.getBasicData()->setId(&heliodonId);
        setTime(*heliodon.getTime());
    });
}

static void setPreview(OvZel::IZelMgr& document, const std::string& png)
{
    const CPicture picture = readPng(png);
    document.getPreviewImage()->setImage(picture.width, picture.height, picture.pixels.data());
}

static void reportLosses(const std::string& model, const CMeshSource& source,
                         const CSceneBuilder& builder, const CModelCameras& cameras)
{
    if (source.getNbLeftOut() > 0)
        complain(model + ": points and lines, left out: " + std::to_string(source.getNbLeftOut()));
    if (builder.getNbMapsLeftOut() > 0)
        complain(model + ": maps that are in the model itself, left out: " +
                 std::to_string(builder.getNbMapsLeftOut()));
    if (cameras.getNbLeftOut() > 0)
        complain(model + ": cameras of parallel views, left out: " +
                 std::to_string(cameras.getNbLeftOut()));
}

void fromModelCommand(const CFromModel& request)
{
    CToolDocument document;
    if (!request.preview.empty())
        setPreview(*document, request.preview);
    identify(*document, idOfModel(request.model, request.isFlat ? "flat model" : "model"));
    CModelImport import(request.model);
    CModelCameras cameras(import.scene()); // which loses its nodes when it gets flat
    if (request.isFlat)
        import.flatten();
    CMeshSource source(import.scene());
    CSceneBuilder builder(*document, import.scene(), source);
    builder.addMaterials();
    if (request.isFlat)
        builder.addWhole();
    else
        builder.addComponents();
    cameras.addTo(*document);
    reportLosses(request.model, source, builder, cameras);
    document.save(request.out, &source);
}

} // namespace tool
