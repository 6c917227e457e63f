#pragma once

#include <string>

namespace ZelTest {

/// A document with an object of every class and meshes and pictures of a few bytes, as the library
/// saves it. All its objects have their identifiers in it. Made once.
const std::string& fullScene();
/// The first material of it as a shader document, with all that belongs to the material.
const std::string& wholeShader();
/// Its nodes alone, in the older form.
const std::string& nodeShader();

} // namespace ZelTest
