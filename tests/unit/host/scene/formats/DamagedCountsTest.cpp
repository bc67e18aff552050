// Files whose counts and offsets are not true. Each line brought the program down once.
#include "tests/mutation/MutationSamples.h"
#include "tests/unit/host/scene/formats/FormatTest.h"

#include "host/core/base/HostError.h"
#include "host/scene/formats/legacy/LegacyCheck.h"
#include "host/scene/formats/surface/ObjCheck.h"
#include "host/scene/formats/surface/StlCheck.h"
#include "host/scene/formats/xml/XmlFileCheck.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace corvane::test {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

std::string writeSample(const std::string& name, const std::filesystem::path& folder) {
    const auto samples = mutationSamples();
    const auto found = std::ranges::find(samples, name, &MutationSample::name);
    if (found == samples.end()) {
        throw std::runtime_error("no sample " + name);
    }
    return found->write(folder);
}

/// What a user is told who opens the file, be it a list of others.
std::string refusalOf(const std::string& file) {
    try {
        scene::DataReaders().read({file});
    } catch (const host::HostError& error) {
        return error.what();
    }
    return {};
}

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (; count > 0; --count) {
        all += text;
    }
    return all;
}

} // namespace

struct Damage {
    std::string sample;
    std::string text; ///< what is replaced where it is found first
    std::string by;
    std::string file{}; ///< of several; empty: the one that is opened
};

class DamagedCountsTest : public FormatTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedCountsTest, areRefusedWithOneSentence) {
    const auto& [sample, text, by, file] = GetParam();
    const std::string opened = writeSample(sample, folder.path());
    ASSERT_EQ(refusalOf(opened), "");
    const std::string damaged =
        file.empty() ? std::filesystem::path(opened).filename().string() : file;
    std::string content = folder.read(damaged);
    const auto at = content.find(text);
    ASSERT_NE(at, std::string::npos) << content.substr(0, 2000);
    folder.write(damaged, content.replace(at, text.size(), by));
    EXPECT_THAT(refusalOf(opened), AllOf(HasSubstr(" cannot be read: "), Not(HasSubstr("\n"))));
}

const std::string largest = "18446744073709551615";
const std::string nested = repeated("<DataSet>", 200'000);

INSTANTIATE_TEST_SUITE_P(
    Xml, DamagedCountsTest,
    testing::Values(
        Damage{"vtu.raw", "NumberOfPoints=\"125\"", "NumberOfPoints=\"-1\""},
        Damage{"vtu.raw", "NumberOfPoints=\"125\"", "NumberOfPoints=\"100000000\""},
        Damage{"vtu.raw", "NumberOfPoints=\"125\"", "NumberOfPoints=\"" + largest + "\""},
        Damage{"vtu.ascii", "NumberOfCells=\"64\"", "NumberOfCells=\"1099511627776\""},
        Damage{"vtu.base64", "NumberOfCells=\"64\"", "NumberOfCells=\"-7\""},
        Damage{"vtu.raw", "offset=\"0\"", "offset=\"-9\""},
        Damage{"vtu.rawlz4", "offset=\"0\"", "offset=\"" + largest + "\""},
        Damage{"vtu.encoded", "offset=\"0\"", "offset=\"4294967296\""},
        Damage{"vtu.raw", "<PointData", nested + "<PointData"},
        Damage{"vtu.ascii", "NumberOfComponents=\"3\"", "NumberOfComponents=\"2147483647\""},
        // What follows the mark of the first array: the number of its blocks, and their size.
        Damage{"vtu.rawzlib", "_\x02", "_\xff"},
        Damage{"vti.rawlzma", std::string("_\x02\0\0\0\0\x02", 7),
               std::string("_\x02\0\0\0\0\0", 7)},
        Damage{"vti.raw", "WholeExtent=\"0 4 0 4 0 4\"", "WholeExtent=\"0 4 0 4 0 2147483647\""},
        Damage{"vti.ascii", "Extent=\"0 4 0 4 0 4\"", "Extent=\"0 4 0 4 0 -2147483648\""},
        Damage{"vtr.raw", "Extent=\"0 4 0 4 0 4\"", "Extent=\"0 4 0 4 0\""},
        Damage{"vts.rawzlib", "<Piece Extent=\"0 4 0 4 0 4\"", "<Piece Extent=\"0 4 0 4 0 9\""},
        Damage{"vtp.raw", "NumberOfPolys=\"6\"", "NumberOfPolys=\"100000000\""},
        Damage{"vtp.ascii", "NumberOfVerts=\"0\"", "NumberOfVerts=\"-1\""},
        Damage{"vtm", "index=\"0\"", "index=\"2147483647\""},
        Damage{"pvtu", "NumberOfComponents=\"3\"/></PPoints>", "/></PPoints>"},
        Damage{"pvtu", "NumberOfPoints=\"125\"", "NumberOfPoints=\"4294967296\"", "piece.vtu"},
        Damage{"pvts", "format=\"binary\"", "format=\"ascii\"", "piece.vts"},
        Damage{"pvti", "WholeExtent=\"0 4 0 4 0 4\"", "WholeExtent=\"0 4 0 4 0 2147483647\""},
        Damage{"pvd", "<Collection>", "<Collection>" + nested}));

INSTANTIATE_TEST_SUITE_P(
    Legacy, DamagedCountsTest,
    testing::Values(Damage{"vtk.grid.text42", "POINTS 125", "POINTS -1"},
                    Damage{"vtk.grid.binary51", "POINTS 125", "POINTS 4611686018427387904"},
                    Damage{"vtk.grid.text42", "CELLS 64 576", "CELLS 64 100"},
                    Damage{"vtk.grid.binary42", "CELLS 64 576", "CELLS 65 576"},
                    Damage{"vtk.grid.binary42", std::string("\0\0\0\x08", 4), "\x7f\xff\xff\xff"},
                    Damage{"vtk.grid.binary51", "CELLS 65 512", "CELLS 65 99999999999"},
                    Damage{"vtk.grid.text51", "CELL_TYPES 64", "CELL_TYPES 2"},
                    Damage{"vtk.grid.binary42", "CELL_TYPES 64", "CELL_TYPES -2147483648"},
                    Damage{"vtk.grid.text42", "FIELD FieldData 1", "FIELD FieldData x"},
                    Damage{"vtk.grid.binary51", "V 3 125", "V -3 125"},
                    Damage{"vtk.grid.binary51", "V 3 125", "V 3 100000000"},
                    Damage{"vtk.image.text51", "DIMENSIONS 5 5 5", "DIMENSIONS 5 5 2147483647"},
                    Damage{"vtk.structured.text42", "DIMENSIONS 5 5 5", "DIMENSIONS 5 5 7"},
                    Damage{"vtk.rectilinear.binary42", "X_COORDINATES 5", "X_COORDINATES 3"},
                    Damage{"vtk.surface.text42", "POLYGONS 6 30", "POLYGONS 6 29"},
                    Damage{"vtk.surface.text51", "0 4 8 12", "0 1 8 12"}));

INSTANTIATE_TEST_SUITE_P(
    Surfaces, DamagedCountsTest,
    testing::Values(Damage{"obj.text", "f 2 3 5", "f 2 3 6"},
                    Damage{"obj.text", "f 2 3 5", "f 2 3 0"},
                    Damage{"obj.text", "f 2 3 5", "f 2 3 -6"},
                    Damage{"obj.text", "f 2 3 5", "f 2 3 99999999999"},
                    Damage{"obj.text", "3/3 4/4", "3/9 4/4"},
                    Damage{"obj.text", "1//2 2//2", "1//-3 2//2"},
                    Damage{"obj.text", "usemtl stone", "usemtl " + std::string(1000, 'x')},
                    Damage{"stl.text", "vertex 0.5", "vertex nan"},
                    Damage{"stl.text", "vertex 0.5", "vertex 1e99"},
                    Damage{"stl.binary", std::string("\x0c\0\0\0", 4), "\xff\xff\xff\x7f"}));

class LooksTest : public FormatTest {};

TEST_F(LooksTest, fiveLinesOfAnObjFile) {
    folder.write("five.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nvn 0 0 1\nf 1//1 2//1 3//1000000\n");
    EXPECT_THAT(refusalOf(folder.file("five.obj")), HasSubstr("names what is not there"));
}

TEST_F(LooksTest, knowThatSoundFilesAreHarmless) {
    using Check = scene::FileLook (*)(const std::string&);
    const std::map<std::string, Check> checks{
        {".vtk", scene::checkLegacyFile}, {".obj", scene::checkObjFile},
        {".stl", scene::checkStlFile},    {".vtu", scene::checkXmlFile},
        {".vtp", scene::checkXmlFile},    {".vti", scene::checkXmlFile},
        {".vtr", scene::checkXmlFile},    {".vts", scene::checkXmlFile},
        {".pvtu", scene::checkXmlFile},   {".pvti", scene::checkXmlFile},
        {".pvts", scene::checkXmlFile},   {".pvd", scene::checkXmlElements}};
    int looked = 0;
    for (const MutationSample& sample : mutationSamples()) {
        const TempFolder own;
        const std::string opened = sample.write(own.path());
        const auto check = checks.find(std::filesystem::path(opened).extension().string());
        if (check == checks.end()) {
            continue;
        }
        // The faces of polyhedra are tried, and structured pieces that have to be decoded.
        const bool isKnown =
            sample.name.find("polyhedron") == std::string::npos && sample.name != "pvts";
        EXPECT_EQ(check->second(opened).certainty == scene::Certainty::Harmless, isKnown)
            << sample.name;
        ++looked;
    }
    EXPECT_GT(looked, 70);
}

TEST_F(LooksTest, aPieceIsAPartOfTheFile) {
    const std::string opened = writeSample("pvtu", folder.path());
    EXPECT_THAT(scene::checkXmlFile(opened).otherFiles, testing::Each(folder.file("piece.vtu")));
}

} // namespace corvane::test
