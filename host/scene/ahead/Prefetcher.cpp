#include "host/scene/ahead/Prefetcher.h"

#include <utility>

namespace corvane::scene {

void Prefetcher::beforeShowing(const PictureContent& content) {
    if (content.zones == m_zones) {
        return;
    }
    m_geometry.cancel(this);
    m_zones = content.zones;
    m_wanted.reset();
}

void Prefetcher::prefetch(const host::FrameStyle& style, std::shared_ptr<const SceneDataSet> data,
                          double solutionTime, const PictureContent& shown) {
    followTime(*data, solutionTime);
    if (!m_next) {
        return;
    }
    const PictureContent next = contentAt(style, *data, *m_next);
    Wanted wanted{{}, next.streams};
    for (const PlotRequest& request : next.plots) {
        wanted.plots.push_back(request.recipe);
    }
    if (m_wanted == wanted) {
        return;
    }
    m_geometry.prepare(this, std::move(data), next, shown);
    m_wanted = std::move(wanted);
}

void Prefetcher::reset() {
    m_geometry.cancel(this);
    m_zones.clear();
    m_time.reset();
    m_next.reset();
    m_wanted.reset();
}

void Prefetcher::followTime(const SceneDataSet& data, double solutionTime) {
    const std::optional<double> before = std::exchange(m_time, solutionTime);
    if (before && *before != solutionTime) {
        m_next =
            solutionTime > *before ? timeAfter(data, solutionTime) : timeBefore(data, solutionTime);
    }
}

} // namespace corvane::scene
