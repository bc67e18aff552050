// A data set whose meshes are read on demand.
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

/// Identifies a mesh without holding it: the same id means the same mesh, for the lifetime of the
/// program, even if it is read again.
struct MeshId {
    long dataSet = 0;
    int source = 0;
    int block = 0;

    friend bool operator==(const MeshId&, const MeshId&) = default;
    friend auto operator<=>(const MeshId&, const MeshId&) = default;
};

class SceneDataSet : public host::DataSet {
public:
    /// Where the meshes of a block come from: the part of this name, in a source of the cache for
    /// each of its zones.
    struct BlockSource {
        std::string part;
        std::vector<int> sourceOfZone; ///< indices, in the order of the block's zones
    };

    explicit SceneDataSet(std::shared_ptr<MeshCache> cache);

    /// Adds a block and its zones, one for each of the times; a single time makes it static.
    void addBlock(host::Block block, const std::vector<double>& times, BlockSource source);

    /// Sets the variables. Those without any finite value get the range 0..0.
    void setVariables(std::vector<VariableRange> ranges);
    /// The range of values of the variable; 0..0 when there is no such variable.
    ValueRange rangeOf(const VariableRef& variable) const;

    long id() const { return m_id; } ///< MeshId::dataSet of its meshes
    MeshId meshId(int zone) const;   ///< zone: index into zones
    /// Reads the mesh if it is not cached. Null when the file has no such part at that time.
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
