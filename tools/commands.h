#pragma once

#include "tools/CToolError.h"

#include <string>
#include <vector>

namespace tool {

class CToolOutput;

/// The commands of the tool. What stops one is thrown as CToolError, what does not is told on
/// standard error.

/// One line for each file, by the probes alone. The worst outcome is the result.
EExit infoCommand(const std::vector<std::string>& files, bool asJson, CToolOutput& output);
/// The preview picture as a PNG file, by the probe alone.
void previewCommand(const std::string& file, const std::string& png);
/// Load and save. With bare nothing but that; otherwise the preview picture is carried over.
void rewriteCommand(const std::string& in, const std::string& out, bool bare);
/// A model becomes the mesh of a new document. An empty png means no preview.
void fromModelCommand(const std::string& model, const std::string& out, const std::string& png);
/// The meshes of a document become an OBJ file.
void toModelCommand(const std::string& in, const std::string& obj);

} // namespace tool
