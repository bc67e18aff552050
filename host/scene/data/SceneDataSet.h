// A data set whose meshes are read when they are needed.
#pragma once

#include "host/core/page/DataSet.h"
#include "host/scene/data/MeshCache.h"
#include "host/scene/data/VariableRanges.h"
#include "host/scene/data/VariableRef.h"

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <compare>
#include <memory>
#include <string>
#include <vector>

namespace corvane::scene {

/// Tells meshes apart without holding them: the same id means the same mesh, for the life of the
/// program, even when it was read twice.
struct MeshId {
    long dataSet = 0;
    int source = 0;
    int block = 0;

    friend bool operator==(const MeshId&, const MeshId&) = default;
    friend auto operator<=>(const MeshId&, const MeshId&) = default;
};

class SceneDataSet : public host::DataSet {
public:
    /// Where a block's meshes come from: the index into the sources of the cache for each of its
    /// zones, and the name of the part in them.
    struct BlockSource {
        std::string part;
        std::vector<int> sourceOfZone; ///< in the order of the block's zones
    };

    explicit SceneDataSet(std::shared_ptr<MeshCache> cache);

    /// Adds a block and its zones, one for each of the times; a single time makes it static.
    void addBlock(host::Block block, const std::vector<double>& times, BlockSource source);

    /// Sets the variables. Those without any finite value have the range 0..0.
    void setVariables(std::vector<VariableRange> ranges);
    /// The values that plots by this variable meet; 0..0 when there is no such variable.
    ValueRange rangeOf(const VariableRef& variable) const;

    long id() const { return m_id; } ///< MeshId::dataSet of its meshes
    MeshId meshId(int zone) const;   ///< zone: index into zones
    /// Reads the mesh if it is not at hand. Null when the file holds no such part at that time.
    /// Throws host::HostError.
    vtkSmartPointer<vtkDataSet> mesh(int zone) const;

private:
    int sourceOf(int zone) const;

    long m_id;
    std::shared_ptr<MeshCache> m_cache;
    std::vector<std::string> m_partOfBlock;
    std::vector<int> m_sourceOfZone;
    std::vector<VariableRange> m_ranges;
};

} // namespace corvane::scene
