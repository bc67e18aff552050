// Files that one of VTK's readers reads whole.
#include "host/scene/mesh/VtkMeshFile.h"

#include "host/scene/mesh/MeshCheck.h"
#include "host/scene/mesh/MeshParts.h"
#include "host/scene/mesh/ReadError.h"
#include "host/scene/vtk/VtkMessages.h"

#include <new>
#include <stdexcept>

namespace corvane::scene {

std::vector<MeshPart> VtkMeshFile::read(int /*step*/) const {
    checkReadable(path());
    const VtkMessages messages;
    const auto object = readOrRefuse();
    if (messages.hasErrors() || (areWarningsErrors() && messages.hasWarnings())) {
        throw readError(path(), messages.reason());
    }
    auto parts = meshParts(object);
    if (parts.empty()) {
        throw readError(path(), "it holds no mesh");
    }
    for (const MeshPart& part : parts) {
        if (!isSound(*part.mesh)) {
            throw readError(path(), "it is damaged");
        }
    }
    return parts;
}

vtkSmartPointer<vtkDataObject> VtkMeshFile::readOrRefuse() const {
    try {
        return readObject();
    } catch (const std::bad_alloc&) {
        throw readError(path(), tooLargeReason);
    } catch (const std::length_error&) {
        throw readError(path(), tooLargeReason);
    }
}

} // namespace corvane::scene
