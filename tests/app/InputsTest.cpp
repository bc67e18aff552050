// No output goes over a file that its run reads.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace corvane::test;
using testing::HasSubstr;

namespace {

class Inputs : public testing::Test {
protected:
    void expectRefusal(const std::vector<std::string>& arguments, const std::string& output) {
        const ProgramResult result = runProgram(arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.errors, HasSubstr("Cannot write " + output +
                                             ": this run reads that file; choose another name."));
    }
    std::vector<std::string> flightWith(const std::string& option, const std::string& file) const {
        auto arguments = shortRun(folder, folder.file("flight.avi"));
        arguments[0] = data;
        arguments.insert(arguments.end(), {option, file});
        return arguments;
    }
    /// A macro that makes a movie of this name from d.vtp.
    std::string macroFor(const std::string& movie) const {
        return folder.write("scene.mcr",
                            "$!READDATA \"d.vtp\"\n"
                            "$!EXTCOMMAND \"Key Frame Animation\" "
                            "\"OpenSettingsFile FileName=\\\"${MACRO_FOLDER}/short.keyframe\\\"\"\n"
                            "$!EXPORTSETUP ExportFName = \"" +
                                movie +
                                "\"\n"
                                "$!EXTCOMMAND \"Key Frame Animation\" "
                                "\"Animate AnimationDestination=ToFile\"\n");
    }

    TempFolder folder;
    const std::string body = readFile(exampleFile("wake/body.vtp"));
    const std::string data = folder.write("d.vtp", body);
};

TEST_F(Inputs, areNotOverwrittenByATrace) {
    expectRefusal(flightWith("--trace", data), data);
    EXPECT_TRUE(readFile(data) == body);
    EXPECT_FALSE(folder.has("flight.avi"));
}

TEST_F(Inputs, areNotOverwrittenByARecord) {
    const std::string flight = folder.file("short.keyframe");
    expectRefusal(flightWith("--record", flight), flight);
    EXPECT_EQ(readFile(flight), shortFlight());
}

TEST_F(Inputs, areNotOverwrittenByAMovie) {
    folder.write("short.keyframe", shortFlight());
    for (const char* name : {"d.vtp", "scene.mcr"}) {
        const std::string movie = folder.file(name);
        const std::string macro = macroFor(movie);
        const std::string before = readFile(movie);
        expectRefusal({"--batch", "--macro", macro}, movie);
        EXPECT_TRUE(readFile(movie) == before);
    }
}

TEST_F(Inputs, areKnownByAnySpelling) {
    fs::create_directory(folder.file("sub"));
    fs::create_symlink(data, folder.file("link.mcr"));
    fs::create_hard_link(data, folder.file("twin.mcr"));
    for (const char* name : {"sub/../d.vtp", "link.mcr", "twin.mcr"}) {
        expectRefusal(flightWith("--record", folder.file(name)), folder.file(name));
        EXPECT_TRUE(readFile(data) == body);
    }
}

TEST_F(Inputs, areTheFilesThatTheDataName) {
    const std::string blocks =
        folder.write("blocks.vtm", "<VTKFile type=\"vtkMultiBlockDataSet\" version=\"1.0\">"
                                   "<vtkMultiBlockDataSet><DataSet index=\"0\" file=\"d.vtp\"/>"
                                   "</vtkMultiBlockDataSet></VTKFile>");
    auto arguments = flightWith("--record", data);
    arguments[0] = blocks;
    expectRefusal(arguments, data);
    EXPECT_TRUE(readFile(data) == body);
}

TEST_F(Inputs, areAddOns) {
    const std::string addOn = builtFile("tests/libraries/BadAddOn.so");
    const std::string before = readFile(addOn);
    auto arguments = flightWith("--record", addOn);
    arguments.insert(arguments.end(), {"--add-on", addOn});
    expectRefusal(arguments, addOn);
    EXPECT_TRUE(readFile(addOn) == before);
}

} // namespace
