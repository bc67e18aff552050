// Whether a mesh can be worked with.
#include "host/scene/mesh/MeshCheck.h"
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/formats/SampleBox.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <gtest/gtest.h>

namespace corvane::test {

using scene::isSound;

/// One cube as VTK_POLYHEDRON.
vtkSmartPointer<vtkUnstructuredGrid> polyhedron() {
    const vtkNew<vtkPoints> points;
    for (const double z : {0.0, 1.0}) {
        for (const double y : {0.0, 1.0}) {
            for (const double x : {0.0, 1.0}) {
                points->InsertNextPoint(x, y, z);
            }
        }
    }
    const std::vector<vtkIdType> faces{4, 0, 2, 3, 1, 4, 4, 5, 7, 6, 4, 0, 1, 5, 4,
                                       4, 2, 6, 7, 3, 4, 0, 4, 6, 2, 4, 1, 3, 7, 5};
    auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(points);
    grid->InsertNextCell(VTK_POLYHEDRON, 6, faces.data());
    return grid;
}

TEST(MeshCheckTest, wholeMeshesAreSound) {
    EXPECT_TRUE(isSound(*sampleGrid()));
    EXPECT_TRUE(isSound(*sampleImage()));
    EXPECT_TRUE(isSound(*sampleCube({0.0, 0.0, 0.0}, 1.0)));
    EXPECT_TRUE(isSound(*polyhedron()));
    EXPECT_TRUE(isSound(*vtkSmartPointer<vtkUnstructuredGrid>::New()));
}

TEST(MeshCheckTest, cellsMustHaveTheirPoints) {
    for (const vtkIdType wrong : {vtkIdType{-1}, vtkIdType{125}}) {
        const auto grid = sampleGrid();
        const vtkIdType point = wrong;
        grid->InsertNextCell(VTK_VERTEX, 1, &point);
        EXPECT_FALSE(isSound(*grid)) << wrong;
    }
    const auto cube = sampleCube({0.0, 0.0, 0.0}, 1.0);
    const vtkIdType point = cube->GetNumberOfPoints();
    const vtkNew<vtkCellArray> vertices;
    vertices->InsertNextCell(1, &point);
    cube->SetVerts(vertices);
    EXPECT_FALSE(isSound(*cube));
}

TEST(MeshCheckTest, cellsOfSurfacesMustHaveAsManyPointsAsTheirKindAtLeast) {
    using Setter = void (vtkPolyData::*)(vtkCellArray*);
    const std::vector<std::pair<Setter, vtkIdType>> kinds{{&vtkPolyData::SetVerts, 1},
                                                          {&vtkPolyData::SetLines, 2},
                                                          {&vtkPolyData::SetPolys, 3},
                                                          {&vtkPolyData::SetStrips, 3}};
    const std::vector<vtkIdType> points{0, 1, 2};
    for (const auto& [set, least] : kinds) {
        for (vtkIdType count = 0; count <= 3; ++count) {
            const auto cube = sampleCube({0.0, 0.0, 0.0}, 1.0);
            const vtkNew<vtkCellArray> cells;
            cells->InsertNextCell(count, points.data());
            ((*cube).*set)(cells);
            EXPECT_EQ(isSound(*cube), count >= least) << count << " of " << least;
        }
    }
}

TEST(MeshCheckTest, cellsMustHaveAsManyPointsAsTheirKind) {
    const auto grid = sampleGrid();
    grid->GetCellData()->Initialize(); // which would have no values for the new cells
    const std::array<vtkIdType, 3> points{0, 1, 2};
    grid->InsertNextCell(VTK_TRIANGLE, 3, points.data());
    EXPECT_TRUE(isSound(*grid));
    grid->InsertNextCell(VTK_TETRA, 3, points.data());
    EXPECT_FALSE(isSound(*grid));
}

TEST(MeshCheckTest, cellsMustFollowEachOther) {
    for (const auto& [at, wrong] :
         {std::pair{0, 1}, std::pair{1, 100000}, std::pair{1, -1}, std::pair{2, 0}}) {
        const auto grid = sampleGrid();
        grid->GetCells()->GetOffsetsArray()->SetComponent(at, 0, wrong);
        EXPECT_FALSE(isSound(*grid)) << at << ": " << wrong;
    }
}

TEST(MeshCheckTest, facesOfPolyhedraMustHaveTheirPoints) {
    // The number of faces, of the points of the first one, and its first point.
    for (const auto& [at, wrong] : {std::pair{0, 7}, std::pair{1, 100}, std::pair{1, -1},
                                    std::pair{2, 8}, std::pair{2, -1}}) {
        const auto grid = polyhedron();
        grid->GetFaces()->SetValue(at, wrong);
        EXPECT_FALSE(isSound(*grid)) << at << ": " << wrong;
    }
}

TEST(MeshCheckTest, arraysMustHaveAValueForEach) {
    const auto grid = sampleGrid();
    const vtkNew<vtkDoubleArray> tooShort;
    tooShort->SetName("short");
    tooShort->SetNumberOfTuples(grid->GetNumberOfPoints() - 1);
    grid->GetPointData()->AddArray(tooShort);
    EXPECT_FALSE(isSound(*grid));
}

} // namespace corvane::test
