// EnSight Gold cases (.case).
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <memory>
#include <mutex>

namespace corvane::scene {

class EnSightCase;

/// Reads text and C Binary: the parts of the geometry, with the scalars and vectors of nodes and
/// elements. VTK's own reader crashes on damaged files, or never returns.
class EnSightFile final : public MeshFile {
public:
    explicit EnSightFile(const std::string& path);
    ~EnSightFile() override;

private:
    std::vector<double> readTimes() const override;
    std::vector<MeshPart> readParts(int step) const override;
    const EnSightCase& caseText() const;

    mutable std::once_flag m_caseRead;
    mutable std::unique_ptr<const EnSightCase> m_case;
};

} // namespace corvane::scene
