#include "host/scene/mesh/MeshFile.h"

#include "host/scene/mesh/MeshCheck.h"
#include "host/scene/mesh/ReadError.h"

namespace corvane::scene {

const std::vector<double>& MeshFile::times() const {
    std::call_once(m_timesRead,
                   [this] { m_times = withReadErrors(m_path, [this] { return readTimes(); }); });
    return m_times;
}

std::vector<MeshPart> MeshFile::read(int step) const {
    return withReadErrors(m_path, [this, step] {
        auto parts = readParts(step);
        refuseUnusable(parts);
        return parts;
    });
}

void MeshFile::refuseUnusable(const std::vector<MeshPart>& parts) const {
    if (parts.empty()) {
        throw ReadFailure("it holds no mesh");
    }
    for (const MeshPart& part : parts) {
        if (!isSound(*part.mesh)) {
            throw ReadFailure(part.name.empty() ? "it is damaged"
                                                : "its mesh \"" + part.name + "\" is damaged");
        }
    }
}

} // namespace corvane::scene
