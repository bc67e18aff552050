#include "host/scene/geometry/StreamSeeds.h"

#include "host/core/page/PointList.h"

#include <vtkNew.h>
#include <vtkPoints.h>

#include <algorithm>

namespace corvane::scene {

using host::Vec3;

namespace {

constexpr int mostSeedsPerEdge = 100;

double fraction(int index, int count) {
    return count > 1 ? static_cast<double>(index) / (count - 1) : 0.5;
}

void add(vtkPoints& points, const Vec3& p) {
    points.InsertNextPoint(p.x, p.y, p.z);
}

void addLine(vtkPoints& points, const Vec3& start, const Vec3& end, int count) {
    for (int i = 0; i < count; ++i) {
        add(points, start + fraction(i, count) * (end - start));
    }
}

void addPlane(vtkPoints& points, const StreamSeeds& seeds) {
    const int count = std::min(seeds.count, mostSeedsPerEdge);
    for (int i = 0; i < count; ++i) {
        const Vec3 shift = fraction(i, count) * (seeds.corner - seeds.start);
        addLine(points, seeds.start + shift, seeds.end + shift, count);
    }
}

void addList(vtkPoints& points, const std::string& text) {
    if (const auto list = host::pointsFromText(text)) {
        for (const Vec3& p : *list) {
            add(points, p);
        }
    }
}

} // namespace

StreamSeeds streamSeeds(const host::StreamtraceStyle& style) {
    return {style.seedKind,   style.seedStart,  style.seedEnd,
            style.seedCorner, style.seedPoints, style.seedCount};
}

vtkSmartPointer<vtkPolyData> placeSeeds(const StreamSeeds& seeds) {
    const vtkNew<vtkPoints> points;
    points->SetDataTypeToDouble();
    switch (seeds.kind) {
    case 1:
        addLine(*points, seeds.start, seeds.end, seeds.count);
        break;
    case 2:
        addPlane(*points, seeds);
        break;
    default:
        addList(*points, seeds.points);
    }
    const auto placed = vtkSmartPointer<vtkPolyData>::New();
    placed->SetPoints(points);
    return placed;
}

} // namespace corvane::scene
