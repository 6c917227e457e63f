#pragma once

#include "tools/CToolError.h"

#include <zel/CZelVersion.h>

#include <optional>
#include <string>
#include <vector>

namespace tool {

class CToolOutput;

/// The commands of the tool. What stops one is thrown as CToolError, what does not is told on
/// standard error.

/// One line for each file, by the probes alone. The worst outcome is the result.
EExit infoCommand(const std::vector<std::string>& files, bool asJson, CToolOutput& output);
/// An outline of each list of a document: how many elements, and what they are called.
void showCommand(const std::string& file, bool asJson, CToolOutput& output);
/// One line for each finding, by a load. eFindings when there is any, unless something is worse.
EExit checkCommand(const std::vector<std::string>& files, bool asJson, CToolOutput& output);
/// The codes that checkCommand gives, one a line, with what each means.
std::string findingCodes();
/// The preview picture as a PNG file, by the probe alone.
void previewCommand(const std::string& file, const std::string& png);
struct CRewrite {
    std::string in;
    std::string out;
    std::optional<OvZel::CZelVersion> minVersion; ///< what out claims to be readable by
    bool bare = false;
    bool force = false;
};
/// Load and save. With bare nothing but that; otherwise the preview picture is carried over, and
/// what would lose data of a newer file or of a broken block is refused unless forced.
void rewriteCommand(const CRewrite& request);
/// A model becomes the mesh of a new document. An empty png means no preview.
void fromModelCommand(const std::string& model, const std::string& out, const std::string& png);
/// The meshes of a document become an OBJ file.
void toModelCommand(const std::string& in, const std::string& obj);

} // namespace tool
