// The outside of meshes.
#include "host/scene/geometry/Geometry.h"

#include <vtkCellArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <gtest/gtest.h>

#include <array>

namespace corvane::test {
namespace {

/// Two triangles at a right angle, each so many times.
vtkSmartPointer<vtkPolyData> folded(int times) {
    const vtkNew<vtkPoints> points;
    for (const auto& point : {std::array{0.0, 0.0, 0.0}, std::array{1.0, 0.0, 0.0},
                              std::array{0.0, 1.0, 0.0}, std::array{0.0, 0.0, 1.0}}) {
        points->InsertNextPoint(point.data());
    }
    const vtkNew<vtkCellArray> triangles;
    for (; times > 0; --times) {
        triangles->InsertNextCell({0, 1, 2});
        triangles->InsertNextCell({1, 0, 3});
    }
    auto surface = vtkSmartPointer<vtkPolyData>::New();
    surface->SetPoints(points);
    surface->SetPolys(triangles);
    return surface;
}

TEST(SurfaceGeometry, sharpEdgesStaySharp) {
    const auto surface = scene::surfaceOf(*folded(1));
    EXPECT_EQ(surface->GetNumberOfPoints(), 6);
    EXPECT_NE(surface->GetPointData()->GetNormals(), nullptr);
}

// To find edges, all cells of a point are compared with each other.
TEST(SurfaceGeometry, edgesAreNotSoughtWhereTooManyCellsMeet) {
    const auto surface = scene::surfaceOf(*folded(2000));
    EXPECT_EQ(surface->GetNumberOfPoints(), 4);
    EXPECT_NE(surface->GetPointData()->GetNormals(), nullptr);
}

} // namespace
} // namespace corvane::test
