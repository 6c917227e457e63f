#pragma once

#include "tools/CToolError.h"

#include <zel/CZelVersion.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tool {

struct CFileRun;
class CToolOutput;

/// The commands of the tool. What stops one is thrown as CToolError, what does not is told on
/// standard error.

/// One line for each file, by the probes alone. The worst outcome is the result.
EExit infoCommand(const CFileRun& run, CToolOutput& output);
/// An outline of each list of a document: how many elements, and what matters most in each.
void showCommand(const std::string& file, bool asJson, CToolOutput& output);
/// One line for each finding, by a load. eFindings when there is any, unless something is worse.
EExit checkCommand(const CFileRun& run, CToolOutput& output);
/// The codes that checkCommand gives, one a line, with what each means.
std::string findingCodes();
/// The preview picture as a PNG file, by the probe alone; shrunk to fit into a square of so many
/// pixels a side, unless that is 0.
void previewCommand(const std::string& file, const std::string& png, std::uint32_t side);
struct CRewrite {
    std::string in;
    std::string out;
    std::optional<OvZel::CZelVersion> minVersion; ///< what out claims to be readable by
    bool bare = false;
    bool force = false;
    bool inPlace = false;  ///< of many files: each is replaced by what is saved
    std::string outputDir; ///< of many files: the folder to save in

    bool isOfMany() const { return inPlace || !outputDir.empty(); }
};
/// Load and save. With bare nothing but that; otherwise the preview picture is carried over, and
/// what would lose data of a newer file or of a broken block is refused unless forced.
void rewriteCommand(const CRewrite& request);
/// The same with each file of a run, in its place or under its path below the folder.
EExit rewriteFilesCommand(const CRewrite& request, const CFileRun& run, CToolOutput& output);
struct CDiff {
    std::string a;
    std::string b;
    double tolerance = 1e-6; ///< a share of the number that is compared
    bool asJson = false;
};
/// One line for each thing that differs between two documents. eFindings when there is any.
EExit diffCommand(const CDiff& request, CToolOutput& output);
struct CImport {
    std::string source;
    std::string destination;
    std::string out;
    std::int32_t flags = 0; ///< as IZelMgr::doImportReference has them
    bool isDryRun = false;  ///< tells what would be done, and writes nothing
    bool asJson = false;
};
/// Merges the source into the destination, and tells what became of the objects of each category.
void importCommand(const CImport& request, CToolOutput& output);
struct CFromModel {
    std::string model;
    std::string out;
    std::string preview; ///< a PNG file, or empty for none
    bool isFlat = false; ///< one mesh, without components and instances
};
/// A model becomes a new document with its materials, its meshes as components, an instance for
/// each place of one, and its cameras as views.
void fromModelCommand(const CFromModel& request);
/// The components of a document where its instances place them, and its own mesh, become an OBJ
/// file, with the materials in an MTL file beside it.
void toModelCommand(const std::string& in, const std::string& obj);
struct CShader {
    std::string file;   ///< the document
    std::string name;   ///< of a material of the document, or "#N" for its number
    std::string shader; ///< the shader document to import
    std::string out;
};
/// A material of a document becomes a shader document.
void exportShaderCommand(const CShader& request);
/// A shader document becomes the content of a material, which is added if there is none of that
/// name.
void importShaderCommand(const CShader& request);

} // namespace tool
