// Lists of files through time.
#include "host/scene/formats/PvdFile.h"
#include "host/core/base/HostError.h"
#include "host/core/files/InputFiles.h"
#include "host/scene/DataReaders.h"
#include "host/scene/data/SceneDataSet.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/scene/MeshFiles.h"
#include "tests/unit/host/scene/SampleMeshes.h"

#include <vtkDataArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace corvane::test {

TEST(Pvd, partsTimesAndFiles) {
    const TempFolder folder;
    const auto parts = scene::readPvd(writeSeries(folder, 3));
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0].name, "flow");
    ASSERT_EQ(parts[0].steps.size(), 3U);
    EXPECT_EQ(parts[0].steps[2].time, 2.0);
    EXPECT_EQ(parts[0].steps[2].path, folder.file("flow_2.vtu"));
    EXPECT_EQ(parts[1].name, "body");
    EXPECT_EQ(parts[1].steps[2].path, folder.file("body.vtp"));
}

TEST(Pvd, stepsAreSortedAndTheLastEntryOfATimeCounts) {
    const TempFolder folder;
    for (const char* name : {"a.vtu", "b.vtu", "c.vtu"}) {
        folder.write(name, "x");
    }
    const auto parts = scene::readPvd(
        writePvd(folder, "list.pvd", {{2.0, 0, "a.vtu"}, {-1.0, 0, "b.vtu"}, {2.0, 0, "c.vtu"}}));
    ASSERT_EQ(parts.size(), 1U);
    ASSERT_EQ(parts[0].steps.size(), 2U);
    EXPECT_EQ(parts[0].steps[0].path, folder.file("b.vtu"));
    EXPECT_EQ(parts[0].steps[1].path, folder.file("c.vtu"));
    EXPECT_EQ(parts[0].name, "list");
}

TEST(Pvd, namelessPartsAreNumbered) {
    const TempFolder folder;
    folder.write("a.vtu", "x");
    const auto parts =
        scene::readPvd(writePvd(folder, "list.pvd", {{0.0, 0, "a.vtu"}, {0.0, 7, "a.vtu"}}));
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0].name, "list 0");
    EXPECT_EQ(parts[1].name, "list 7");
}

TEST(Pvd, aListThatNamesItselfIsRefused) {
    const TempFolder folder;
    const std::string list = writePvd(
        folder, "list.pvd", {{0.0, 0, "../" + folder.path().filename().string() + "/list.pvd"}});
    try {
        scene::readPvd(list);
        FAIL();
    } catch (const host::HostError& error) {
        EXPECT_EQ(error.what(), list + " cannot be read: it names itself as one of its files.");
    }
}

TEST(Pvd, aPipeInAListIsRefused) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.file("a.vtu").c_str(), 0600), 0);
    const std::string list = writePvd(folder, "list.pvd", {{0.0, 0, "a.vtu"}});
    try {
        scene::DataReaders().read({list});
        FAIL();
    } catch (const host::HostError& error) {
        EXPECT_EQ(error.what(),
                  folder.file("a.vtu") + " cannot be read: it is not a regular file.");
    }
}

TEST(Pvd, listsAndTheirFilesAreInputs) {
    const TempFolder folder;
    scene::DataReaders().read({writeSeries(folder, 3)});
    for (const char* name : {"series.pvd", "flow_0.vtu", "flow_2.vtu", "body.vtp"}) {
        EXPECT_TRUE(host::inputFiles().contains(folder.file(name))) << name;
    }
}

TEST(Pvd, absoluteFileNames) {
    const TempFolder folder;
    const TempFolder elsewhere;
    const std::string mesh = elsewhere.write("a.vtu", "x");
    const auto parts = scene::readPvd(writePvd(folder, "list.pvd", {{0.0, 0, mesh}}));
    EXPECT_EQ(parts.at(0).steps.at(0).path, mesh);
}

TEST(Pvd, blocksThatChangeHaveStrandsAndOthersHaveNone) {
    const TempFolder folder;
    const auto data = scene::DataReaders().read({writeSeries(folder, 3)});
    ASSERT_EQ(data->blocks.size(), 2U);
    EXPECT_EQ(data->blocks[0].name, "flow");
    EXPECT_EQ(data->blocks[1].name, "body");
    EXPECT_EQ(data->blocks[1].dimension, 2);

    ASSERT_EQ(data->zones.size(), 4U);
    for (int step = 0; step < 3; ++step) {
        const host::Zone& zone = data->zones[static_cast<std::size_t>(step)];
        EXPECT_EQ(zone.block, 0);
        EXPECT_EQ(zone.solutionTime, step);
        EXPECT_GT(zone.strand, 0);
        EXPECT_EQ(zone.strand, data->zones[0].strand);
    }
    EXPECT_EQ(data->zones[3].block, 1);
    EXPECT_EQ(data->zones[3].strand, 0);
    EXPECT_TRUE(data->isTransient());
}

TEST(Pvd, eachZoneHasTheMeshOfItsTime) {
    const TempFolder folder;
    const auto data = scene::DataReaders().read({writeSeries(folder, 4)});
    const auto& series = dynamic_cast<const scene::SceneDataSet&>(*data);
    for (int zone = 0; zone < 4; ++zone) {
        double range[2] = {};
        series.mesh(zone)->GetPointData()->GetArray("T")->GetRange(range);
        EXPECT_EQ(range[0], zone);
        EXPECT_EQ(range[1], zone + 1.0);
    }
    EXPECT_EQ(series.mesh(4)->GetNumberOfCells(), 6);
}

TEST(Pvd, aPartThatIsMissingAtATimeIsNoMesh) {
    const TempFolder folder;
    const vtkNew<vtkMultiBlockDataSet> both;
    both->SetBlock(0, sampleGrid());
    both->SetBlock(1, sampleCube({0.0, 0.0, 0.0}, 1.0));
    const vtkNew<vtkMultiBlockDataSet> one;
    one->SetBlock(0, sampleGrid(1.0));
    writeMesh(folder, "a0.vtm", both);
    writeMesh(folder, "a1.vtm", one);
    const auto data = scene::DataReaders().read(
        {writePvd(folder, "list.pvd", {{0.0, 0, "a0.vtm"}, {1.0, 0, "a1.vtm"}})});
    ASSERT_EQ(data->blocks.size(), 2U);
    ASSERT_EQ(data->zones.size(), 4U);
    const auto& series = dynamic_cast<const scene::SceneDataSet&>(*data);
    EXPECT_NE(series.mesh(2), nullptr);
    EXPECT_EQ(series.mesh(3), nullptr);
}

} // namespace corvane::test
