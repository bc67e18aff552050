// The variables of data and their ranges.
#include "host/scene/DataReaders.h"
#include "host/scene/data/SceneDataSet.h"
#include "host/scene/data/VariableRef.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/scene/MeshFiles.h"
#include "tests/unit/host/scene/SampleMeshes.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace corvane::test {

namespace {

using scene::ValueRange;
using scene::variableRef;

std::shared_ptr<const scene::SceneDataSet> readGrid(vtkUnstructuredGrid* grid) {
    const TempFolder folder;
    return std::dynamic_pointer_cast<const scene::SceneDataSet>(
        scene::DataReaders().read({writeMesh(folder, "a.vtu", grid)}));
}

void addArray(vtkDataSet& mesh, const char* name, int components, double value) {
    const vtkNew<vtkDoubleArray> array;
    array->SetName(name);
    array->SetNumberOfComponents(components);
    array->SetNumberOfTuples(mesh.GetNumberOfPoints());
    array->Fill(value);
    mesh.GetPointData()->AddArray(array);
}

} // namespace

TEST(Variables, scalarsVectorsAndComponents) {
    const auto data = readGrid(sampleGrid());
    EXPECT_EQ(data->rangeOf(variableRef("T")), (ValueRange{0.0, 1.0}));
    EXPECT_EQ(data->rangeOf(variableRef("C")), (ValueRange{0.0, 63.0}));
    EXPECT_EQ(data->rangeOf(variableRef("V")), (ValueRange{0.0, std::sqrt(14.0)}));
    EXPECT_EQ(data->rangeOf(variableRef("V:X")), (ValueRange{0.0, 1.0}));
    EXPECT_EQ(data->rangeOf(variableRef("V:Y")), (ValueRange{0.0, 2.0}));
    EXPECT_EQ(data->rangeOf(variableRef("V:Z")), (ValueRange{-3.0, 0.0}));
    EXPECT_EQ(data->rangeOf(variableRef("W")), (ValueRange{0.0, 0.0}));
    EXPECT_DOUBLE_EQ(data->findVariable("V")->maximum, std::sqrt(14.0));
}

TEST(Variables, arraysOfOtherKindsAreLeftOut) {
    const auto grid = sampleGrid();
    addArray(*grid, "pair", 2, 1.0);
    addArray(*grid, "tensor", 9, 1.0);
    const auto data = readGrid(grid);
    EXPECT_EQ(data->variables.size(), 3U);
    EXPECT_EQ(data->findVariable("pair"), nullptr);
    EXPECT_EQ(data->findVariable("tensor"), nullptr);
}

TEST(Variables, valuesThatAreNoNumbersHaveNoRange) {
    const auto grid = sampleGrid();
    addArray(*grid, "nan", 1, std::numeric_limits<double>::quiet_NaN());
    addArray(*grid, "nanVector", 3, std::numeric_limits<double>::quiet_NaN());
    addArray(*grid, "some", 1, 5.0);
    grid->GetPointData()->GetArray("some")->SetComponent(0, 0,
                                                         std::numeric_limits<double>::infinity());
    grid->GetPointData()->GetArray("some")->SetComponent(1, 0,
                                                         std::numeric_limits<double>::quiet_NaN());
    const auto data = readGrid(grid);
    EXPECT_EQ(data->rangeOf(variableRef("nan")), (ValueRange{0.0, 0.0}));
    EXPECT_EQ(data->rangeOf(variableRef("nanVector")), (ValueRange{0.0, 0.0}));
    EXPECT_EQ(data->findVariable("nan")->maximum, 0.0);
    EXPECT_EQ(data->rangeOf(variableRef("some")), (ValueRange{5.0, 5.0}));
}

TEST(Variables, rangesCoverFirstMiddleAndLastTime) {
    const TempFolder folder;
    const auto data = scene::DataReaders().read({writeSeries(folder, 5)});
    EXPECT_DOUBLE_EQ(data->findVariable("T")->minimum, 0.0);
    EXPECT_DOUBLE_EQ(data->findVariable("T")->maximum, 5.0);
}

TEST(Variables, namesInStyles) {
    EXPECT_EQ(variableRef("U"), (scene::VariableRef{"U", -1}));
    EXPECT_EQ(variableRef("U:X"), (scene::VariableRef{"U", 0}));
    EXPECT_EQ(variableRef("a:b:Z"), (scene::VariableRef{"a:b", 2}));
    EXPECT_EQ(variableRef("a:b"), (scene::VariableRef{"a:b", -1}));
    EXPECT_EQ(variableRef(""), (scene::VariableRef{"", -1}));
}

TEST(Variables, namesInLegends) {
    const auto data = readGrid(sampleGrid());
    EXPECT_EQ(displayName(variableRef("T"), *data), "T");
    EXPECT_EQ(displayName(variableRef("V"), *data), "|V|");
    EXPECT_EQ(displayName(variableRef("V:Y"), *data), "V Y");
}

} // namespace corvane::test
