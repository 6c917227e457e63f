#include "tools/commands.h"

#include "tools/CMeshFiller.h"
#include "tools/CToolDocument.h"
#include "tools/pngFile.h"

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace tool {

static const aiScene& importModel(Assimp::Importer& importer, const std::string& model)
{
    char firstByte = 0;
    CFileReadStream stream(model); // tells a file that cannot be read from one that is no model
    stream.read(&firstByte, 1);
    stream.check();

    // The document has one mesh space: every mesh goes where its node puts it.
    const aiScene* scene = importer.ReadFile(model, aiProcess_PreTransformVertices);
    if (!scene)
        throw CToolError(eNotReadable, model + ": " + importer.GetErrorString());
    return *scene;
}

void fromModelCommand(const std::string& model, const std::string& out, const std::string& png)
{
    CToolDocument document;
    if (!png.empty()) {
        const CPicture picture = readPng(png);
        document->getPreviewImage()->setImage(picture.width, picture.height, picture.pixels.data());
    }
    Assimp::Importer importer;
    CMeshFiller filler(*document);
    filler.addScene(importModel(importer, model));
    importer.FreeScene();
    if (filler.getNbLeftOut() > 0)
        complain(model + ": points and lines, left out: " + std::to_string(filler.getNbLeftOut()));
    document.save(out);
}

} // namespace tool
