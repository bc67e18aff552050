// OpenFOAM cases.
#include "tests/unit/host/scene/formats/FoamCase.h"
#include "tests/unit/host/scene/formats/FormatTest.h"
#include "tests/unit/host/scene/formats/SampleBox.h"

#include "host/core/base/HostError.h"
#include "host/core/files/InputFiles.h"
#include "host/scene/formats/MeshFormats.h"
#include "host/scene/geometry/Geometry.h"

#include <vtkCellType.h>
#include <vtkPointData.h>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace corvane::test {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class OpenFoamFileTest : public FormatTest {};

TEST_F(OpenFoamFileTest, blocksAreTheInsideAndThePatches) {
    const auto data = reader.read({writeFoamBox(folder.path())});
    EXPECT_THAT(blockNames(*data),
                ElementsAre("case/internalMesh", "case/inlet", "case/outlet", "case/walls"));
    EXPECT_THAT(blockDimensions(*data), ElementsAre(3, 2, 2, 2));
    EXPECT_THAT(timesOfBlock(*data, "case/internalMesh"), ElementsAre(0.0, 0.25, 1.5));
    EXPECT_THAT(timesOfBlock(*data, "case/walls"), ElementsAre(0.0, 0.25, 1.5));
    EXPECT_EQ(data->bounds.min, (host::Vec3{0.0, 0.0, 0.0}));
    EXPECT_EQ(data->bounds.max, (host::Vec3{2.0, 2.0, 2.0}));
}

TEST_F(OpenFoamFileTest, pipesInTheCaseAreRefused) {
    for (const char* name : {"0.25/T", "constant/polyMesh/zones"}) {
        const TempFolder caseFolder;
        const std::string file = writeFoamBox(caseFolder.path());
        const std::string pipe = caseFolder.file(name);
        ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
        EXPECT_EQ(errorOf(file), file + " cannot be read: its case has " + pipe +
                                     ", which is not a regular file.");
    }
}

TEST_F(OpenFoamFileTest, theFilesOfTheCaseAreInputs) {
    const std::string marker = writeFoamBox(folder.path());
    reader.read({marker});
    EXPECT_TRUE(host::inputFiles().contains(marker));
    EXPECT_TRUE(host::inputFiles().contains(folder.file("1.5/p")));
    EXPECT_TRUE(host::inputFiles().contains(folder.file("constant/polyMesh/faces")));
    EXPECT_FALSE(host::inputFiles().contains(folder.write("movie.avi", "")));
}

TEST_F(OpenFoamFileTest, variablesAreKnownThoughTheFirstTimeLacksThem) {
    const auto data = reader.read({writeFoamBox(folder.path())});
    const host::Variable* const p = data->findVariable("p");
    const host::Variable* const u = data->findVariable("U");
    ASSERT_NE(p, nullptr);
    ASSERT_NE(u, nullptr);
    EXPECT_EQ(p->components, 1);
    EXPECT_DOUBLE_EQ(p->minimum, 0.5);
    EXPECT_DOUBLE_EQ(p->maximum, 16.5);
    EXPECT_EQ(u->components, 3);
    EXPECT_DOUBLE_EQ(u->maximum, 1.5);
}

TEST_F(OpenFoamFileTest, valuesOfCellsAreCarriedToThePointsAtEachTime) {
    const std::string file = writeFoamBox(folder.path());
    for (int step = 0; step < 3; ++step) {
        const auto inside = readPart(file, step, "internalMesh");
        const double time = sampleTimes.at(static_cast<std::size_t>(step));
        EXPECT_NEAR(valueAt(*inside, "p", {1.0, 1.0, 1.0}), samplePressure(1.0, time), 1e-5);
        const auto inlet = readPart(file, step, "inlet");
        EXPECT_NEAR(valueAt(*inlet, "p", {0.0, 1.0, 1.0}), samplePressure(0.5, time), 1e-5);
        EXPECT_EQ(inlet->GetNumberOfCells(), 4);
    }
}

TEST_F(OpenFoamFileTest, arraysOfPointsAreNotKeptTwice) {
    const std::string file = writeFoamBox(folder.path());
    EXPECT_THAT(arrayNames(*readPart(file, 1, "internalMesh")), ElementsAre("U", "p"));
}

TEST_F(OpenFoamFileTest, timeZeroMayLackVariables) {
    const std::string file = writeFoamBox(folder.path());
    EXPECT_THAT(arrayNames(*readPart(file, 0, "internalMesh")), ElementsAre("p"));
}

TEST_F(OpenFoamFileTest, whatOnlyOpenFoamUnderstandsIsMissingAtTimeZero) {
    const std::string file = writeFoamBox(folder.path());
    const FoamCase foam(folder.path(), foamBox());
    foam.writeField("0", "U",
                    "FoamFile { version 2.0; format ascii; class volVectorField; object U; }\n"
                    "dimensions [0 1 -1 0 0 0 0];\nspeed #calc \"3 + 2\";\n"
                    "internalField uniform ($speed 0 0);\nboundaryField { }\n");
    EXPECT_EQ(errorOf(file), "");
    EXPECT_THAT(arrayNames(*readPart(file, 0, "internalMesh")), ElementsAre("p"));
}

TEST_F(OpenFoamFileTest, aMeshWithoutTimesIsRead) {
    const FoamCase foam(folder.path(), foamBox());
    const auto data = reader.read({writeMarker(folder.path())});
    EXPECT_EQ(data->blocks.size(), 4U);
    EXPECT_THAT(data->variables, IsEmpty());
    EXPECT_FALSE(data->isTransient());
}

TEST_F(OpenFoamFileTest, regionsNameTheirBlocks) {
    const FoamCase foam(folder.path(), foamBox(), "solid");
    foam.writePressure("1");
    EXPECT_THAT(blockNames(*reader.read({writeMarker(folder.path())})),
                ElementsAre("case/solid/internalMesh", "case/solid/inlet", "case/solid/outlet",
                            "case/solid/walls"));
}

TEST_F(OpenFoamFileTest, aDividedCaseIsReadFromItsProcessors) {
    FoamMesh right = foamBox();
    for (host::Vec3& point : right.points) {
        point.x += 2.0;
    }
    FoamCase first(folder.path() / "processor0", foamBox());
    first.joinPatch("outlet", 0, 1);
    FoamCase second(folder.path() / "processor1", right);
    second.joinPatch("inlet", 1, 0);
    for (const char* const time : {"0", "0.5"}) {
        first.writePressure(time);
        second.writePressure(time);
    }
    const std::string file = writeMarker(folder.path());
    const auto data = reader.read({file});
    EXPECT_THAT(blockNames(*data),
                ElementsAre("case/internalMesh", "case/inlet", "case/outlet", "case/walls"));
    EXPECT_EQ(data->bounds.max.x, 4.0);
    const auto inside = readPart(file, 1, "internalMesh");
    EXPECT_EQ(inside->GetNumberOfCells(), 16);
    EXPECT_NEAR(valueAt(*inside, "p", {3.0, 1.0, 1.0}), samplePressure(3.0, 0.5), 1e-5);
    EXPECT_EQ(readPart(file, 1, "inlet")->GetNumberOfCells(), 4);
    EXPECT_EQ(readPart(file, 1, "walls")->GetNumberOfCells(), 32);
}

TEST_F(OpenFoamFileTest, aReassembledCaseIsReadAsAWhole) {
    FoamCase first(folder.path() / "processor0", foamBox());
    first.writePressure("0");
    const std::string file = writeFoamBox(folder.path());
    EXPECT_THAT(timesOfBlock(*reader.read({file}), "case/internalMesh"),
                ElementsAre(0.0, 0.25, 1.5));
}

class RefinementTest : public FormatTest {
protected:
    RefinementTest() {
        const FoamCase foam(folder.path(), foamRefinement());
        foam.writePressure("1");
        m_inside = readPart(writeMarker(folder.path()), 0, "internalMesh");
    }

    vtkSmartPointer<vtkDataSet> m_inside;
};

/// Of polygons in a plane across an axis, by the trapezoids below their edges.
double areaOf(vtkPolyData& polygons, int axis) {
    const int a = (axis + 1) % 3;
    const int b = (axis + 2) % 3;
    double area = 0.0;
    for (vtkIdType i = 0; i < polygons.GetNumberOfCells(); ++i) {
        vtkPoints& points = *polygons.GetCell(i)->GetPoints();
        double twice = 0.0;
        for (vtkIdType n = 0; n < points.GetNumberOfPoints(); ++n) {
            std::array<double, 3> p{};
            std::array<double, 3> q{};
            points.GetPoint(n, p.data());
            points.GetPoint((n + 1) % points.GetNumberOfPoints(), q.data());
            twice += p.at(static_cast<std::size_t>(a)) * q.at(static_cast<std::size_t>(b)) -
                     q.at(static_cast<std::size_t>(a)) * p.at(static_cast<std::size_t>(b));
        }
        area += 0.5 * std::abs(twice);
    }
    return area;
}

TEST_F(RefinementTest, aCellWithManyFacesIsNotTakenApart) {
    ASSERT_EQ(m_inside->GetNumberOfCells(), 5);
    EXPECT_EQ(m_inside->GetCellType(0), VTK_POLYHEDRON);
    EXPECT_EQ(m_inside->GetCellType(1), VTK_HEXAHEDRON);
}

TEST_F(RefinementTest, slicesAreWhole) {
    EXPECT_NEAR(areaOf(*scene::sliceOf(*m_inside, 1, 0.7), 0), 1.0, 1e-6);
    EXPECT_NEAR(areaOf(*scene::sliceOf(*m_inside, 1, 1.2), 0), 1.0, 1e-6);
    EXPECT_NEAR(areaOf(*scene::sliceOf(*m_inside, 2, 0.3), 1), 1.5, 1e-6);
}

TEST_F(RefinementTest, anIsosurfaceCrossesTheLargeCell) {
    // p is 10.5 in the large cell and 11.25 in the small ones; between them it rises along x.
    const auto surface = scene::isoSurfaceOf(*m_inside, "p", 10.6);
    std::array<double, 6> box{};
    surface->GetBounds(box.data());
    EXPECT_GT(surface->GetNumberOfCells(), 0);
    EXPECT_GT(box[0], 0.0);
    EXPECT_LT(box[1], 1.0);
    EXPECT_NEAR(box[3] - box[2], 1.0, 1e-6);
    EXPECT_NEAR(box[5] - box[4], 1.0, 1e-6);
}

TEST_F(OpenFoamFileTest, aMarkerWithoutACaseIsRefused) {
    const std::string file = writeMarker(folder.path());
    EXPECT_THAT(errorOf(file), AllOf(HasSubstr(file + " cannot be read: no OpenFOAM case"),
                                     HasSubstr(folder.file("constant"))));
}

TEST_F(OpenFoamFileTest, aMarkerMayHoldText) {
    const std::string file = writeFoamBox(folder.path());
    replaceFile(file, "anything");
    EXPECT_EQ(errorOf(file), "");
}

TEST_F(OpenFoamFileTest, whatIsNoFileIsRefused) {
    std::filesystem::create_directory(folder.path() / "folder.foam");
    EXPECT_THAT(errorOf(folder.file("folder.foam")), HasSubstr("it is a folder"));
    EXPECT_THAT(errorOf(folder.file("none.foam")), HasSubstr("there is no such file"));
}

TEST_F(OpenFoamFileTest, aMissingMeshIsNamed) {
    const std::string file = writeFoamBox(folder.path());
    std::filesystem::remove(folder.path() / "constant/polyMesh/points");
    EXPECT_THAT(errorOf(file), AllOf(HasSubstr("case.foam cannot be read"), HasSubstr("points")));
    std::filesystem::remove_all(folder.path() / "constant/polyMesh");
    EXPECT_THAT(errorOf(file), HasSubstr("case.foam cannot be read: "));
}

TEST_F(OpenFoamFileTest, aCutFieldIsNamed) {
    const std::string file = writeFoamBox(folder.path());
    cutFile(folder.path() / "0.25/p", 250);
    EXPECT_THAT(errorOf(file), AllOf(HasSubstr("case.foam cannot be read"), HasSubstr("0.25/p")));
    EXPECT_THROW(reader.read({file}), host::HostError);
}

TEST_F(OpenFoamFileTest, aFieldOfAnotherSizeIsRefused) {
    const std::string file = writeFoamBox(folder.path());
    const FoamCase other(folder.path() / "other", foamRefinement());
    other.writePressure("0.25");
    std::filesystem::copy_file(other.fieldFile("0.25", "p"), folder.path() / "0.25/p",
                               std::filesystem::copy_options::overwrite_existing);
    EXPECT_THAT(errorOf(file), HasSubstr("do not match"));
}

TEST_F(OpenFoamFileTest, aTimeThatIsDeletedLaterIsMissed) {
    const auto file = scene::openMeshFile(writeFoamBox(folder.path()));
    ASSERT_THAT(file->times(), ElementsAre(0.0, 0.25, 1.5));
    std::filesystem::remove_all(folder.path() / "0.25");
    EXPECT_NO_THROW(file->read(2));
    try {
        file->read(1);
        ADD_FAILURE() << "another time was read";
    } catch (const host::HostError& error) {
        EXPECT_THAT(error.what(), HasSubstr("the time 0.25 is not there any more"));
    }
}

TEST_F(OpenFoamFileTest, anEmptyTimeHasTheMeshAlone) {
    const std::string file = writeFoamBox(folder.path());
    std::filesystem::remove(folder.path() / "1.5/p");
    std::filesystem::remove(folder.path() / "1.5/U");
    EXPECT_THAT(arrayNames(*readPart(file, 2, "internalMesh")), IsEmpty());
}

TEST_F(OpenFoamFileTest, isDrawnAtEachTime) {
    const std::string file = writeFoamBox(folder.path());
    // "U" colours the slice, and is missing at time 0.
    const auto plain = drawDefaults(file, 0.0);
    EXPECT_GT(drawnPixels(plain), 500);
    EXPECT_EQ(colouredPixels(plain), 0);
    const auto coloured = drawDefaults(file, 1.5);
    EXPECT_GT(colouredPixels(coloured), 500);
}

} // namespace corvane::test
