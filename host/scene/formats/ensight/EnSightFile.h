// EnSight Gold cases (.case).
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <memory>
#include <mutex>

namespace corvane::scene {

class EnSightCase;

/// Text and C Binary. The parts of the geometry become parts, with the scalars and vectors of nodes
/// and elements. Read without VTK's reader of this format, which falls over damaged files or reads
/// them without an end.
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
