#include "host/scene/mesh/VtkMeshFile.h"

#include "host/scene/mesh/MeshParts.h"
#include "host/scene/mesh/ReadError.h"
#include "host/scene/vtk/VtkMessages.h"

namespace corvane::scene {

std::vector<MeshPart> VtkMeshFile::readParts(int /*step*/) const {
    checkReadable(path());
    const VtkMessages messages;
    const auto object = readObject();
    if (messages.hasErrors() || (areWarningsErrors() && messages.hasWarnings())) {
        throw ReadFailure(messages.reason());
    }
    return meshParts(object);
}

} // namespace corvane::scene
