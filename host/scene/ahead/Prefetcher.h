// In which direction solution time moves, and what comes next.
#pragma once

#include "host/scene/ahead/PreparedGeometry.h"

#include <memory>
#include <optional>
#include <vector>

namespace corvane::scene {

/// Follows what one frame shows, and has what comes next built ahead.
class Prefetcher {
public:
    explicit Prefetcher(PreparedGeometry& geometry) : m_geometry(geometry) {}

    /// To be called before content is shown: what is built ahead must not use the same meshes.
    void arrive(const PictureContent& content);
    /// To be called when content is shown: has built what is next in the direction of the last
    /// move of time. Nothing before the first move.
    void lookAhead(const host::FrameStyle& style, std::shared_ptr<const SceneDataSet> data,
                   double solutionTime, const PictureContent& shown);
    /// Forgets all.
    void leave();

private:
    void move(const SceneDataSet& data, double solutionTime);

    /// What the content that was asked for depends on.
    struct Wanted {
        std::vector<Recipe> plots;
        std::optional<StreamRequest> streams;

        friend bool operator==(const Wanted&, const Wanted&) = default;
    };

    PreparedGeometry& m_geometry;
    std::vector<int> m_zones;     ///< that are shown
    std::optional<double> m_time; ///< that is shown
    std::optional<double> m_next;
    std::optional<Wanted> m_wanted;
};

} // namespace corvane::scene
