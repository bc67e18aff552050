// Where streamtraces start.
#pragma once

#include "host/core/page/FrameStyle.h"

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <string>
#include <tuple>

namespace corvane::scene {

/// As host::StreamtraceStyle describes them.
struct StreamSeeds {
    int kind = 1;
    host::Vec3 start;
    host::Vec3 end;
    host::Vec3 corner;
    std::string points;
    int count = 0;

    friend bool operator==(const StreamSeeds&, const StreamSeeds&) = default;
    /// Any order, for maps.
    auto key() const {
        return std::tie(kind, start.x, start.y, start.z, end.x, end.y, end.z, corner.x, corner.y,
                        corner.z, points, count);
    }
    friend bool operator<(const StreamSeeds& a, const StreamSeeds& b) { return a.key() < b.key(); }
};

StreamSeeds streamSeeds(const host::StreamtraceStyle& style);

/// Points without cells. None when the list of points cannot be parsed.
vtkSmartPointer<vtkPolyData> placeSeeds(const StreamSeeds& seeds);

} // namespace corvane::scene
