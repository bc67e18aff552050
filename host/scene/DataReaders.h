// Reads simulation results from files.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/scene/MemoryBudget.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace corvane::scene {

struct SceneStatistics;

/// Reads VTK's XML files (.vtu .vtp .vti .vtr .vts, .vtm of several blocks, and the parallel .pvtu
/// .pvtp .pvti .pvtr .pvts) and legacy files (.vtk), lists of files through time (.pvd), OpenFOAM
/// cases (.foam), EnSight Gold cases (.case; text and C Binary), Exodus II files (.e .exo .ex2),
/// CGNS files (.cgns), and surfaces in .stl, .ply and .obj files. Files of other names are tried by
/// their content where that tells: VTK's two kinds and PLY.
///
/// Several files make one data set of several blocks. Only the first, the middle and the last
/// solution time are read at once, to know the ranges of values; others when they are drawn.
class DataReaders : public host::DataReader {
public:
    /// memoryBudget: bytes of meshes that each data set may keep. Statistics may be null.
    explicit DataReaders(std::size_t memoryBudget = defaultMemoryBudget(),
                         std::shared_ptr<SceneStatistics> statistics = nullptr);

    std::shared_ptr<const host::DataSet> read(const std::vector<std::string>& files) override;

private:
    std::size_t m_memoryBudget;
    std::shared_ptr<SceneStatistics> m_statistics;
};

} // namespace corvane::scene
