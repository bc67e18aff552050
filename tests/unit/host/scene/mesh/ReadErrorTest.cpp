// What is said of files that cannot be read.
#include "host/core/base/HostError.h"
#include "host/scene/DataReaders.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/scene/MeshFiles.h"
#include "tests/unit/host/scene/SampleMeshes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <vtkNew.h>

namespace corvane::test {

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// The message of the error; checks that nothing reaches the terminal.
std::string errorOf(const std::string& path) {
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    std::string message = "no error";
    try {
        scene::DataReaders().read({path});
    } catch (const host::HostError& error) {
        message = error.what();
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    return message;
}

auto isSentenceAbout(const std::string& path) {
    return AllOf(StartsWith(path + " cannot be read: "), EndsWith("."), Not(HasSubstr("\n")),
                 Not(HasSubstr("0x")));
}

} // namespace

TEST(ReadError, missingFile) {
    const TempFolder folder;
    const std::string path = folder.file("nothing.vtu");
    EXPECT_EQ(errorOf(path), path + " cannot be read: there is no such file.");
}

TEST(ReadError, folder) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.path() / "a.vtu");
    EXPECT_EQ(errorOf(folder.file("a.vtu")),
              folder.file("a.vtu") + " cannot be read: it is a folder.");
}

TEST(ReadError, pipesAndDevices) {
    const TempFolder folder;
    for (const char* name : {"a.vtu", "a.vtk", "a.stl", "a.pvd", "a.foam", "a.case", "a.e", "a"}) {
        const std::string path = folder.file(name);
        ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
        EXPECT_EQ(errorOf(path), path + " cannot be read: it is not a regular file.");
    }
    EXPECT_EQ(errorOf("/dev/zero"), "/dev/zero cannot be read: it is not a regular file.");
}

TEST(ReadError, emptyFile) {
    const TempFolder folder;
    for (const char* name : {"a.vtu", "a.vtk", "a.stl", "a.pvd", "a.dat"}) {
        const std::string path = folder.write(name, "");
        EXPECT_EQ(errorOf(path), path + " cannot be read: the file is empty.");
    }
}

TEST(ReadError, unknownKind) {
    const TempFolder folder;
    const std::string path = folder.write("a.xyz", "1 2 3\n");
    const std::string message = errorOf(path);
    EXPECT_THAT(message, isSentenceAbout(path));
    EXPECT_THAT(message, HasSubstr("its kind is unknown"));
    EXPECT_THAT(message, AllOf(HasSubstr(" .pvd "), HasSubstr(" .ply "), HasSubstr(" .vtu")));
}

TEST(ReadError, textThatIsNoMesh) {
    const TempFolder folder;
    for (const char* name :
         {"a.vtu", "a.vtp", "a.vtm", "a.vtk", "a.stl", "a.ply", "a.obj", "a.pvd"}) {
        const std::string path = folder.write(name, "This is a letter to my grandmother.\n");
        SCOPED_TRACE(name);
        EXPECT_THAT(errorOf(path), isSentenceAbout(path));
    }
}

TEST(ReadError, truncatedFiles) {
    const TempFolder folder;
    const auto cube = sampleCube({0.0, 0.0, 0.0}, 1.0);
    const std::vector<std::string> files{
        writeMesh(folder, "grid.vtu", sampleGrid()),   writeMesh(folder, "grid.vtk", sampleGrid()),
        writeMesh(folder, "image.vti", sampleImage()), writeMesh(folder, "cube.vtp", cube),
        writeMesh(folder, "cube.stl", cube),           writeMesh(folder, "cube.ply", cube),
    };
    for (const std::string& path : files) {
        const auto size = std::filesystem::file_size(path);
        // Less than a third: what is missing then is more than arrays that nobody counts on.
        for (const auto part : {size / 3, size / 5, size / 9}) {
            std::filesystem::resize_file(path, part);
            SCOPED_TRACE(part);
            EXPECT_THAT(errorOf(path), isSentenceAbout(path));
        }
    }
}

TEST(ReadError, truncatedSurfacesAtEveryLength) {
    const TempFolder folder;
    const std::string path = writeMesh(folder, "a.ply", sampleCube({0.0, 0.0, 0.0}, 1.0));
    for (auto size = std::filesystem::file_size(path) - 1; size > 7; size -= 7) {
        std::filesystem::resize_file(path, size);
        SCOPED_TRACE(size);
        ASSERT_THAT(errorOf(path), isSentenceAbout(path));
    }
}

TEST(ReadError, filesWithoutPoints) {
    const TempFolder folder;
    const vtkNew<vtkUnstructuredGrid> nothing;
    const std::string grid = writeMesh(folder, "a.vtu", nothing);
    EXPECT_THAT(errorOf(grid), isSentenceAbout(grid));
    const std::string blocks =
        folder.write("a.vtm", "<VTKFile type=\"vtkMultiBlockDataSet\" version=\"1.0\">"
                              "<vtkMultiBlockDataSet></vtkMultiBlockDataSet></VTKFile>");
    EXPECT_EQ(errorOf(blocks), blocks + " cannot be read: it holds no mesh.");
}

TEST(ReadError, listThatNamesMissingFiles) {
    const TempFolder folder;
    writeMesh(folder, "a0.vtu", sampleGrid());
    const std::string one = writePvd(folder, "one.pvd", {{0.0, 0, "a0.vtu"}, {1.0, 0, "a1.vtu"}});
    EXPECT_EQ(errorOf(one), one + " cannot be read: it names " + folder.file("a1.vtu") +
                                ", which does not exist.");
    const std::string three =
        writePvd(folder, "three.pvd",
                 {{0.0, 0, "a0.vtu"}, {1.0, 0, "a1.vtu"}, {2.0, 0, "a2.vtu"}, {3.0, 0, "a3.vtu"}});
    EXPECT_EQ(errorOf(three), three + " cannot be read: it names " + folder.file("a1.vtu") +
                                  ", which does not exist and 2 more of its files.");
}

TEST(ReadError, listsThatAreNone) {
    const TempFolder folder;
    const std::string noTime =
        folder.write("time.pvd", "<VTKFile type=\"Collection\"><Collection>"
                                 "<DataSet timestep=\"soon\" file=\"a\"/></Collection></VTKFile>");
    EXPECT_EQ(errorOf(noTime), noTime + " cannot be read: \"soon\" is not a time.");
    const std::string noFile =
        folder.write("file.pvd", "<VTKFile type=\"Collection\"><Collection>"
                                 "<DataSet timestep=\"1\"/></Collection></VTKFile>");
    EXPECT_EQ(errorOf(noFile), noFile + " cannot be read: an entry names no file.");
    const std::string empty = folder.write(
        "empty.pvd", "<VTKFile type=\"Collection\"><Collection></Collection></VTKFile>");
    EXPECT_EQ(errorOf(empty), empty + " cannot be read: its collection is empty.");
    const std::string other =
        folder.write("other.pvd", "<VTKFile type=\"PolyData\"><PolyData/></VTKFile>");
    EXPECT_EQ(errorOf(other), other + " cannot be read: it holds no collection of data sets.");
    const std::string cut = folder.write("cut.pvd", "<VTKFile type=\"Collection\"><Collection>");
    EXPECT_THAT(errorOf(cut), isSentenceAbout(cut));
}

TEST(ReadError, aListInAList) {
    const TempFolder folder;
    writeMesh(folder, "a0.vtu", sampleGrid());
    const std::string inner = writePvd(folder, "inner.pvd", {{0.0, 0, "a0.vtu"}});
    const std::string outer = writePvd(folder, "outer.pvd", {{0.0, 0, "inner.pvd"}});
    EXPECT_EQ(errorOf(outer), inner + " cannot be read: it is a list of files, which cannot be "
                                      "part of another list.");
}

TEST(ReadError, aFileOfAListThatCannotBeRead) {
    const TempFolder folder;
    folder.write("a0.vtu", "no mesh");
    const std::string list = writePvd(folder, "list.pvd", {{0.0, 0, "a0.vtu"}});
    EXPECT_THAT(errorOf(list), isSentenceAbout(folder.file("a0.vtu")));
}

} // namespace corvane::test
