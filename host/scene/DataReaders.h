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

/// Reads the formats in the table of MeshFormats.cpp. Several files make one data set of several
/// blocks. Only the first, the middle and the last solution time are read at once, for the ranges
/// of values; the others are read when they are drawn.
class DataReaders : public host::DataReader {
public:
    /// memoryBudget: bytes of meshes that each data set may keep. Statistics may be null.
    explicit DataReaders(std::size_t memoryBudget = defaultMemoryBudget(),
                         std::shared_ptr<SceneStatistics> statistics = nullptr);

    std::vector<host::DataFormat> formats() const override;
    std::shared_ptr<const host::DataSet> read(const std::vector<std::string>& files) override;

private:
    std::size_t m_memoryBudget;
    std::shared_ptr<SceneStatistics> m_statistics;
};

} // namespace corvane::scene
