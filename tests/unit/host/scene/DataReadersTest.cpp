// Reads each format that is known.
#include "host/scene/DataReaders.h"
#include "host/core/base/HostError.h"
#include "host/scene/data/SceneDataSet.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/scene/MeshFiles.h"
#include "tests/unit/host/scene/SampleMeshes.h"

#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using host::Bounds;
using host::Vec3;

std::shared_ptr<const host::DataSet> read(const std::string& path) {
    return scene::DataReaders().read({path});
}

vtkSmartPointer<vtkDataSet> meshOf(const host::DataSet& data, int zone) {
    return dynamic_cast<const scene::SceneDataSet&>(data).mesh(zone);
}

void expectUnitBox(const Bounds& box) {
    EXPECT_EQ(box, (Bounds{{0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}}));
}

void expectSampleBox(const std::string& path) {
    SCOPED_TRACE(path);
    const auto data = read(path);
    ASSERT_EQ(data->blocks.size(), 1U);
    EXPECT_EQ(data->blocks[0].dimension, 3);
    ASSERT_EQ(data->zones.size(), 1U);
    EXPECT_EQ(data->zones[0].strand, 0);
    EXPECT_FALSE(data->isTransient());
    expectUnitBox(data->bounds);
    ASSERT_NE(data->findVariable("T"), nullptr);
    EXPECT_EQ(data->findVariable("T")->components, 1);
    EXPECT_DOUBLE_EQ(data->findVariable("T")->maximum, 1.0);
    ASSERT_NE(data->findVariable("V"), nullptr);
    EXPECT_EQ(data->findVariable("V")->components, 3);
    ASSERT_NE(data->findVariable("C"), nullptr);
    EXPECT_DOUBLE_EQ(data->findVariable("C")->maximum, 63.0);
    EXPECT_EQ(meshOf(*data, 0)->GetNumberOfCells(), 64);
}

void expectCube(const std::string& path) {
    SCOPED_TRACE(path);
    const auto data = read(path);
    ASSERT_EQ(data->blocks.size(), 1U);
    EXPECT_EQ(data->blocks[0].name, "cube");
    EXPECT_EQ(data->blocks[0].dimension, 2);
    EXPECT_TRUE(data->variables.empty());
    EXPECT_NEAR(data->bounds.min.x, 1.5, 1e-6);
    EXPECT_NEAR(data->bounds.max.z, 4.5, 1e-6);
    EXPECT_GT(meshOf(*data, 0)->GetNumberOfCells(), 0);
}

} // namespace

TEST(Readers, volumesInXmlFiles) {
    const TempFolder folder;
    expectSampleBox(writeMesh(folder, "a.vtu", sampleGrid()));
    expectSampleBox(writeMesh(folder, "a.vti", sampleImage()));
    expectSampleBox(writeMesh(folder, "a.vtr", sampleRectilinearGrid()));
    expectSampleBox(writeMesh(folder, "a.vts", sampleStructuredGrid()));
    expectSampleBox(writeMesh(folder, "a.pvtu", sampleGrid()));
}

TEST(Readers, volumesInLegacyFilesKeepAllArrays) {
    const TempFolder folder;
    expectSampleBox(writeMesh(folder, "grid.vtk", sampleGrid()));
    expectSampleBox(writeMesh(folder, "image.vtk", sampleImage()));
    expectSampleBox(writeMesh(folder, "structured.vtk", sampleStructuredGrid()));
}

TEST(Readers, surfaces) {
    const TempFolder folder;
    const auto cube = sampleCube({2.0, 3.0, 4.0}, 1.0);
    for (const char* name : {"cube.vtp", "cube.vtk", "cube.stl", "cube.ply", "cube.obj"}) {
        expectCube(writeMesh(folder, name, cube));
    }
}

TEST(Readers, extensionsInCapitals) {
    const TempFolder folder;
    const std::string path = writeMesh(folder, "a.vtu", sampleGrid());
    std::filesystem::rename(path, folder.file("A.VTU"));
    expectSampleBox(folder.file("A.VTU"));
}

TEST(Readers, anUnknownExtensionIsReadByItsContent) {
    const TempFolder folder;
    std::filesystem::rename(writeMesh(folder, "a.vtu", sampleGrid()), folder.file("xml.dat"));
    std::filesystem::rename(writeMesh(folder, "a.vtk", sampleGrid()), folder.file("legacy.dat"));
    std::filesystem::rename(writeMesh(folder, "a.ply", sampleCube({2.0, 3.0, 4.0}, 1.0)),
                            folder.file("cube.dat"));
    expectSampleBox(folder.file("xml.dat"));
    expectSampleBox(folder.file("legacy.dat"));
    expectCube(folder.file("cube.dat"));
}

TEST(Readers, anXmlFileIsWhatItSaysInside) {
    const TempFolder folder;
    std::filesystem::rename(writeMesh(folder, "a.vti", sampleImage()), folder.file("b.vtu"));
    expectSampleBox(folder.file("b.vtu"));
}

TEST(Readers, blocksOfATreeAreNamedAfterTheirBranches) {
    const vtkNew<vtkMultiBlockDataSet> inner;
    inner->SetBlock(0, sampleCube({0.0, 0.0, 0.0}, 1.0));
    inner->GetMetaData(0U)->Set(vtkCompositeDataSet::NAME(), "inlet");
    inner->SetBlock(1, sampleCube({5.0, 0.0, 0.0}, 1.0));
    const vtkNew<vtkMultiBlockDataSet> outer;
    outer->SetBlock(0, sampleGrid());
    outer->GetMetaData(0U)->Set(vtkCompositeDataSet::NAME(), "flow");
    outer->SetBlock(1, inner);
    outer->GetMetaData(1U)->Set(vtkCompositeDataSet::NAME(), "walls");
    const TempFolder folder;
    const auto data = read(writeMesh(folder, "engine.vtm", outer));

    ASSERT_EQ(data->blocks.size(), 3U);
    EXPECT_EQ(data->blocks[0].name, "engine/flow");
    EXPECT_EQ(data->blocks[0].dimension, 3);
    EXPECT_EQ(data->blocks[1].name, "engine/walls/inlet");
    EXPECT_EQ(data->blocks[1].dimension, 2);
    EXPECT_EQ(data->blocks[2].name, "engine/walls/block 2");
    EXPECT_EQ(meshOf(*data, 0)->GetNumberOfCells(), 64);
    EXPECT_EQ(meshOf(*data, 2)->GetNumberOfCells(), 6);
}

TEST(Readers, blocksMayComeLate) {
    const TempFolder folder;
    const vtkNew<vtkMultiBlockDataSet> early;
    early->SetBlock(0, sampleGrid(0.0));
    early->GetMetaData(0U)->Set(vtkCompositeDataSet::NAME(), "flow");
    const vtkNew<vtkMultiBlockDataSet> late;
    late->SetBlock(0, sampleGrid(0.0));
    late->GetMetaData(0U)->Set(vtkCompositeDataSet::NAME(), "flow");
    late->SetBlock(1, sampleCube({0.5, 0.5, 0.5}, 0.1));
    late->GetMetaData(1U)->Set(vtkCompositeDataSet::NAME(), "spray");
    writeMesh(folder, "early.vtm", early);
    writeMesh(folder, "late.vtm", late);
    const auto data =
        read(writePvd(folder, "series.pvd", {{0.0, 0, "early.vtm"}, {1.0, 0, "late.vtm"}}));
    ASSERT_EQ(data->blocks.size(), 2U);
    ASSERT_EQ(data->zones.size(), 4U);
    EXPECT_NE(meshOf(*data, 0), nullptr);
    EXPECT_EQ(meshOf(*data, 2), nullptr) << "the spray at the first time";
    ASSERT_NE(meshOf(*data, 3), nullptr);
    EXPECT_EQ(meshOf(*data, 3)->GetNumberOfCells(), 6);
}

TEST(Readers, severalFilesMakeBlocksOfOneDataSet) {
    const TempFolder folder;
    const std::string flow = writeMesh(folder, "flow.vtu", sampleGrid());
    const std::string body = writeMesh(folder, "body.stl", sampleCube({9.0, 0.5, 0.5}, 2.0));
    const auto data = scene::DataReaders().read({flow, body});
    ASSERT_EQ(data->blocks.size(), 2U);
    EXPECT_EQ(data->blocks[0].name, "flow");
    EXPECT_EQ(data->blocks[1].name, "body");
    EXPECT_EQ(data->files, (std::vector<std::string>{flow, body}));
    EXPECT_EQ(data->bounds, (Bounds{{0.0, -0.5, -0.5}, {10.0, 1.5, 1.5}}));
    EXPECT_EQ(meshOf(*data, 1)->GetNumberOfCells(), 12);
}

TEST(Readers, noFilesAreAnError) {
    EXPECT_THROW(scene::DataReaders().read({}), host::HostError);
}

} // namespace corvane::test
