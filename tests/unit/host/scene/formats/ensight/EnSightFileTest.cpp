// EnSight cases.
#include "tests/unit/host/scene/formats/FormatTest.h"
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <vtkUnstructuredGrid.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace corvane::test {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class EnSightFileTest : public FormatTest {
protected:
    std::string writeCase(const std::string& variables) const {
        return folder.write("made.case", "FORMAT\ntype: ensight gold\nGEOMETRY\nmodel: box.geo\n"
                                         "VARIABLE\n" +
                                             variables);
    }
};

TEST_F(EnSightFileTest, blocksAreTheParts) {
    const auto data = reader.read({writeEnSightBox(folder.path())});
    EXPECT_THAT(blockNames(*data), ElementsAre("box/fluid", "box/inlet"));
    EXPECT_THAT(blockDimensions(*data), ElementsAre(3, 2));
    EXPECT_THAT(timesOfBlock(*data, "box/fluid"), ElementsAre(0.0, 0.25, 1.5));
    const host::Variable* const p = data->findVariable("p");
    const host::Variable* const q = data->findVariable("q");
    ASSERT_NE(p, nullptr);
    ASSERT_NE(q, nullptr);
    EXPECT_DOUBLE_EQ(p->minimum, 0.0);
    EXPECT_DOUBLE_EQ(p->maximum, 17.0);
    EXPECT_DOUBLE_EQ(q->maximum, 8.5);
    EXPECT_NE(data->findVector("U"), nullptr);
}

TEST_F(EnSightFileTest, valuesAreThoseOfTheTime) {
    const std::string file = writeEnSightBox(folder.path());
    for (int step = 0; step < 3; ++step) {
        const double time = sampleTimes.at(static_cast<std::size_t>(step));
        const auto fluid = readPart(file, step, "fluid");
        EXPECT_NEAR(valueAt(*fluid, "p", {2.0, 1.0, 1.0}), samplePressure(2.0, time), 1e-4);
        EXPECT_NEAR(valueAt(*fluid, "U", {2.0, 1.0, 1.0}), 2.0, 1e-6);
        EXPECT_NEAR(cellValue(*fluid, "q", 5), 5.0 + time, 1e-4);
    }
}

TEST_F(EnSightFileTest, binaryCasesAreRead) {
    const std::string file = writeBinaryEnSightBox(folder.path());
    const auto data = reader.read({file});
    EXPECT_EQ(data->blocks.size(), 2U);
    EXPECT_THAT(blockDimensions(*data), ElementsAre(3, 3));
    EXPECT_THAT(timesOfBlock(*data, data->blocks.front().name), ElementsAre(0.0, 1.0, 2.0));
    const auto parts = readStep(file, 1);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_NE(parts[0].name, parts[1].name);
    EXPECT_NEAR(valueAt(*parts[0].mesh, "p_n", {2.0, 1.0, 1.0}), samplePressure(2.0, 1.0), 1e-5);
    EXPECT_NEAR(cellValue(*parts[1].mesh, "q_c", 0), 5.0, 1e-5);
}

TEST_F(EnSightFileTest, aCaseWithoutTimesIsRead) {
    writeEnSightBox(folder.path());
    const std::string file = writeCase("scalar per node: p box.p.0\n");
    const auto data = reader.read({file});
    EXPECT_FALSE(data->isTransient());
    EXPECT_NEAR(valueAt(*readPart(file, 0, "fluid"), "p", {2.0, 0.0, 0.0}), 2.0, 1e-6);
}

TEST_F(EnSightFileTest, aFileNameThatBeginsWithADigitIsNoTimeSet) {
    writeEnSightBox(folder.path());
    std::filesystem::rename(folder.path() / "box.geo", folder.path() / "2box.geo");
    const std::string file =
        folder.write("made.case", "FORMAT\ntype: ensight gold\nGEOMETRY\nmodel: 2box.geo\n"
                                  "VARIABLE\nscalar per node: p box.p.0\n");
    EXPECT_NEAR(valueAt(*readPart(file, 0, "fluid"), "p", {2.0, 0.0, 0.0}), 2.0, 1e-6);
}

TEST_F(EnSightFileTest, variablesOfPartsThatAreMissingAreRefused) {
    const std::string file = writeEnSightBox(folder.path());
    // The second part is cut off, and the variables still have values for it.
    const std::string geometry = folder.read("box.geo");
    replaceFile(folder.file("box.geo"), geometry.substr(0, geometry.rfind("part")));
    EXPECT_THAT(errorOf(file), HasSubstr("the part 2, which the geometry does not have"));
}

TEST_F(EnSightFileTest, binaryVariablesOfPartsThatAreMissingAreRefused) {
    const std::string file = writeBinaryEnSightBox(folder.path());
    const std::string geometry = folder.read("box.0.00000.geo");
    replaceFile(folder.file("box.0.00000.geo"), geometry.substr(0, geometry.rfind("part")));
    EXPECT_THAT(errorOf(file), HasSubstr("the part 2, which the geometry does not have"));
}

TEST_F(EnSightFileTest, aMissingFileIsNamed) {
    const std::string file = writeEnSightBox(folder.path());
    std::filesystem::remove(folder.path() / "box.p.1");
    EXPECT_THAT(errorOf(file), AllOf(HasSubstr("box.case cannot be read"), HasSubstr("box.p.1")));
    std::filesystem::remove(folder.path() / "box.geo");
    EXPECT_THAT(errorOf(file), AllOf(HasSubstr("box.case cannot be read"), HasSubstr("box.geo")));
}

TEST_F(EnSightFileTest, whatIsNoCaseIsRefused) {
    EXPECT_THAT(errorOf(folder.write("text.case", "just some text\n")),
                HasSubstr("text.case cannot be read: "));
    EXPECT_THAT(errorOf(folder.write("empty.case", "")), HasSubstr("the file is empty"));
}

TEST_F(EnSightFileTest, aLineThatDescribesNoVariableIsNamed) {
    writeEnSightBox(folder.path());
    for (const char* const line :
         {"scalar per", "scalar per node: 1 p", "scalar per edge: 1 p box.p.0", "p box.p.0"}) {
        EXPECT_THAT(errorOf(writeCase(line)), HasSubstr("its line 6 describes no variable"))
            << line;
    }
}

TEST_F(EnSightFileTest, linesWithAndWithoutTimeSetsAreUnderstood) {
    writeEnSightBox(folder.path());
    EXPECT_EQ(errorOf(writeCase("# comment\n\nscalar per node: p box.p.0\n"
                                "constant per case: density 1.2\n")),
              "");
}

/// One case of each kind of mesh, written by hand.
class EnSightMeshTest : public FormatTest {
protected:
    static constexpr const char* header = "title\n\nnode id off\nelement id given\n";

    std::string writeGeometry(const std::string& parts, const std::string& variables = "") const {
        folder.write("made.geo", header + parts);
        return folder.write("made.case", "FORMAT\ntype: ensight gold\nGEOMETRY\nmodel: made.geo\n"
                                         "VARIABLE\n" +
                                             variables);
    }
    static std::string coordinates(const std::string& x, const std::string& y,
                                   const std::string& z) {
        const auto count = std::count(x.begin(), x.end(), ' ') + 1;
        return "part\n1\nmade\ncoordinates\n" + std::to_string(count) + "\n" + x + "\n" + y + "\n" +
               z + "\n";
    }
};

TEST_F(EnSightMeshTest, blocksOfThreeKinds) {
    folder.write("made.c", "c\npart\n1\nblock\n5\npart\n3\nblock\n6\n7\n");
    const std::string file =
        writeGeometry("part\n1\neven\nblock uniform\n2 2 2\n0 0 0\n1 1 1\n"
                      "part\n2\nstraight\nblock rectilinear\n2 2 1\n0 3\n0 4\n0\n"
                      "part\n3\nbent\nblock\n3 2 1\n0 1 2 0 1 2\n0 0 0 1 1 2\n0 0 0 0 0 0\n",
                      "scalar per element: c made.c\n");
    EXPECT_EQ(readPart(file, 0, "even")->GetNumberOfPoints(), 8);
    EXPECT_DOUBLE_EQ(cellValue(*readPart(file, 0, "even"), "c", 0), 5.0);
    EXPECT_DOUBLE_EQ(readPart(file, 0, "straight")->GetBounds()[3], 4.0);
    EXPECT_THAT(arrayNames(*readPart(file, 0, "straight")), ElementsAre());
    EXPECT_DOUBLE_EQ(readPart(file, 0, "bent")->GetBounds()[3], 2.0);
    EXPECT_DOUBLE_EQ(cellValue(*readPart(file, 0, "bent"), "c", 1), 7.0);
}

TEST_F(EnSightMeshTest, polygonsAndPolyhedra) {
    const std::string file =
        writeGeometry(coordinates("0 1 0 0", "0 0 1 0", "0 0 0 1") +
                      "nsided\n1\n10\n3\n1 2 3\nnfaced\n1\n11\n4\n3\n3\n3\n3\n1 3 2\n1 2 4\n2 3 4\n"
                      "1 4 3\n");
    const auto mesh = readPart(file, 0, "made");
    ASSERT_EQ(mesh->GetNumberOfCells(), 2);
    EXPECT_EQ(mesh->GetCellType(0), VTK_POLYGON);
    EXPECT_EQ(mesh->GetCellType(1), VTK_POLYHEDRON);
    EXPECT_EQ(mesh->GetCell(1)->GetNumberOfFaces(), 4);
}

TEST_F(EnSightMeshTest, theBaseOfAWedgeLooksOutwards) {
    const std::string file = writeGeometry(
        coordinates("0 1 0 0 1 0", "0 0 1 0 0 1", "0 0 0 1 1 1") + "penta6\n1\n1\n1 2 3 4 5 6\n");
    const auto mesh = readPart(file, 0, "made");
    vtkCell& wedge = *mesh->GetCell(0);
    EXPECT_EQ(wedge.GetCellType(), VTK_WEDGE);
    EXPECT_EQ(wedge.GetPointId(1), 2);
    EXPECT_EQ(wedge.GetPointId(4), 5);
}

TEST_F(EnSightMeshTest, cellsOfNeighboursAreLeftOutWithTheirValues) {
    folder.write("made.c", "c\npart\n1\ng_tria3\n8\ntria3\n9\n");
    const std::string file = writeGeometry(coordinates("0 1 0", "0 0 1", "0 0 0") +
                                               "g_tria3\n1\n1\n1 2 3\ntria3\n1\n2\n1 2 3\n",
                                           "scalar per element: c made.c\n");
    const auto mesh = readPart(file, 0, "made");
    ASSERT_EQ(mesh->GetNumberOfCells(), 1);
    EXPECT_DOUBLE_EQ(cellValue(*mesh, "c", 0), 9.0);
}

TEST_F(EnSightMeshTest, severalTimesInOneFileAreTakenApart) {
    folder.write("made.c", "BEGIN TIME STEP\nc\npart\n1\ntria3\n8\nEND TIME STEP\n"
                           "BEGIN TIME STEP\nc\npart\n1\ntria3\n9\nEND TIME STEP\n");
    const std::string file =
        writeGeometry(coordinates("0 1 0", "0 0 1", "0 0 0") + "tria3\n1\n2\n1 2 3\n",
                      "scalar per element: 1 1 c made.c\nTIME\ntime set: 1\nnumber of steps: 2\n"
                      "time values:\n0.5\n1.5\nFILE\nfile set: 1\nnumber of steps: 2\n");
    EXPECT_DOUBLE_EQ(cellValue(*readPart(file, 0, "made"), "c", 0), 8.0);
    EXPECT_DOUBLE_EQ(cellValue(*readPart(file, 1, "made"), "c", 0), 9.0);
}

TEST_F(EnSightMeshTest, whatCannotBeReadIsNamed) {
    const std::string triangle = coordinates("0 1 0", "0 0 1", "0 0 0") + "tria3\n1\n1\n";
    EXPECT_THAT(errorOf(writeGeometry(triangle + "1 2 4\n")),
                HasSubstr("made.geo has cells with nodes that are not there."));
    EXPECT_THAT(errorOf(writeGeometry(triangle + "1 2\n")),
                HasSubstr("made.geo ends before its data do."));
    EXPECT_THAT(errorOf(writeGeometry(triangle + "1 2 x\n")), HasSubstr("what is no number"));
    EXPECT_THAT(errorOf(writeGeometry("part\n1\na\nblock iblanked\n")),
                HasSubstr("\"iblanked\", which cannot be read"));
    const std::string file = writeGeometry(triangle + "1 2 3\n");
    EXPECT_EQ(errorOf(file), "");
    folder.write("made.geo", "Fortran Binary");
    EXPECT_THAT(errorOf(file), HasSubstr("in the binary form of Fortran"));
    folder.write("made.case", "FORMAT\ntype: ensight\nGEOMETRY\nmodel: made.geo\n");
    EXPECT_THAT(errorOf(file), HasSubstr("it is no EnSight Gold case"));
}

TEST_F(EnSightFileTest, isDrawn) {
    EXPECT_GT(colouredPixels(drawDefaults(writeEnSightBox(folder.path()), 0.25)), 500);
}

} // namespace corvane::test
