// Whether VTK finds everything where an XML file says it is.
#pragma once

#include "host/scene/mesh/FileCheck.h"

#include <string>

namespace corvane::scene {

/// Looks at a file of any of VTK's XML formats and, where it is made of pieces or blocks, at their
/// files too. Throws ReadFailure.
FileLook checkXmlFile(const std::string& path);

/// Looks at a file that is nothing but elements. Throws ReadFailure.
FileLook checkXmlElements(const std::string& path);

} // namespace corvane::scene
