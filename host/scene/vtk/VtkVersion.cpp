#include "host/scene/vtk/VtkVersion.h"

#include <vtkVersion.h>

namespace corvane::scene {

std::string vtkVersionText() {
    return vtkVersion::GetVTKVersion();
}

} // namespace corvane::scene
