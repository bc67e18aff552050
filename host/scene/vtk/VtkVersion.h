// The version of VTK that is loaded.
#pragma once

#include <string>

namespace corvane::scene {

std::string vtkVersionText(); ///< such as "9.1.0"

} // namespace corvane::scene
