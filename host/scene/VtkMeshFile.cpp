// Files that one of VTK's readers reads whole.
#include "host/scene/VtkMeshFile.h"

#include "host/scene/MeshParts.h"
#include "host/scene/ReadError.h"
#include "host/scene/VtkMessages.h"

namespace corvane::scene {

std::vector<MeshPart> VtkMeshFile::read(int /*step*/) const {
    checkReadable(path());
    const VtkMessages messages;
    const auto object = readObject();
    if (messages.hasErrors())
        throw readError(path(), messages.reason());
    auto parts = meshParts(object);
    if (parts.empty())
        throw readError(path(), "it holds no mesh");
    return parts;
}

} // namespace corvane::scene
