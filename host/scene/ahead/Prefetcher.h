// Prefetches the geometry of the next solution time of a frame.
#pragma once

#include "host/scene/ahead/PreparedGeometry.h"

#include <memory>
#include <optional>
#include <vector>

namespace corvane::scene {

/// Follows the solution times that one frame shows, and has the geometry of the next one built in
/// the background.
class Prefetcher {
public:
    explicit Prefetcher(PreparedGeometry& geometry) : m_geometry(geometry) {}

    /// To be called before content is shown: stops background work that uses the same meshes.
    void beforeShowing(const PictureContent& content);
    /// To be called after content was shown: prefetches the next time in the direction in which
    /// time last moved. Does nothing before time has moved.
    void prefetch(const host::FrameStyle& style, std::shared_ptr<const SceneDataSet> data,
                  double solutionTime, const PictureContent& shown);
    /// Stops, and forgets everything. To be called before other data are shown.
    void reset();

private:
    void followTime(const SceneDataSet& data, double solutionTime);

    /// What the prefetched geometry depends on.
    struct Wanted {
        std::vector<Recipe> plots;
        std::optional<StreamRequest> streams;

        friend bool operator==(const Wanted&, const Wanted&) = default;
    };

    PreparedGeometry& m_geometry;
    std::vector<int> m_zones;       ///< currently shown
    std::optional<double> m_time;   ///< currently shown
    std::optional<double> m_next;   ///< the time to prefetch
    std::optional<Wanted> m_wanted; ///< already requested
};

} // namespace corvane::scene
