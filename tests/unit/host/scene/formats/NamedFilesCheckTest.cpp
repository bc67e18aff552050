// Files that VTK's reader of XML files would wait for, or follow in circles.
#include "host/scene/formats/NamedFilesCheck.h"

#include "host/core/files/InputFiles.h"
#include "host/scene/mesh/ReadError.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <vector>

namespace corvane::test {
namespace {

using testing::HasSubstr;

std::string blocksOf(const std::vector<std::string>& files) {
    std::string text = "<VTKFile type=\"vtkMultiBlockDataSet\" version=\"1.0\">\n"
                       " <vtkMultiBlockDataSet>\n  <Block index=\"0\">\n";
    for (const std::string& file : files) {
        text += "   <DataSet index=\"0\" file=\"" + file + "\"/>\n";
    }
    return text + "  </Block>\n </vtkMultiBlockDataSet>\n</VTKFile>\n";
}

std::string piecesOf(const std::string& kind, const std::string& file) {
    return "<VTKFile type=\"" + kind + "\" version=\"0.1\">\n <" + kind + ">\n  <Piece Source=\"" +
           file + "\"/>\n </" + kind + ">\n</VTKFile>\n";
}

class NamedFilesCheckTest : public testing::Test {
protected:
    NamedFilesCheckTest() { EXPECT_EQ(mkfifo(folder.file("pipe.vtu").c_str(), 0600), 0); }

    std::string failureOf(const std::string& file) const {
        try {
            scene::checkNamedFiles(file);
        } catch (const scene::ReadFailure& failure) {
            return failure.what();
        }
        return {};
    }
    std::string refusalOfThePipe() const {
        return "it names " + folder.file("pipe.vtu") + ", which is not a regular file";
    }

    TempFolder folder;
};

TEST_F(NamedFilesCheckTest, pipesAreFoundInBlocks) {
    EXPECT_EQ(failureOf(folder.write("a.vtm", blocksOf({"missing.vtu", "pipe.vtu"}))),
              refusalOfThePipe());
}

TEST_F(NamedFilesCheckTest, pipesAreFoundInPieces) {
    for (const char* kind :
         {"PUnstructuredGrid", "PPolyData", "PImageData", "PRectilinearGrid", "PStructuredGrid"}) {
        EXPECT_EQ(failureOf(folder.write("a.pvtu", piecesOf(kind, "pipe.vtu"))), refusalOfThePipe())
            << kind;
    }
}

TEST_F(NamedFilesCheckTest, pipesAreFoundBehindOtherFiles) {
    folder.write("b.pvtu", piecesOf("PUnstructuredGrid", "pipe.vtu"));
    EXPECT_EQ(failureOf(folder.write("a.vtm", blocksOf({"b.pvtu"}))), refusalOfThePipe());
}

TEST_F(NamedFilesCheckTest, circlesAreFound) {
    const std::string a = folder.write("a.vtm", blocksOf({"b.vtm"}));
    folder.write("b.vtm", blocksOf({"a.vtm"}));
    EXPECT_EQ(failureOf(a), "it names " + a + ", which names itself");
}

TEST_F(NamedFilesCheckTest, aFileMayBeNamedTwice) {
    folder.write("b.vtm", blocksOf({"missing.vtu"}));
    EXPECT_EQ(failureOf(folder.write("a.vtm", blocksOf({"b.vtm", "b.vtm"}))), "");
}

TEST_F(NamedFilesCheckTest, whatIsNamedIsAnInput) {
    folder.write("c.vtu", "mesh");
    folder.write("b.pvtu", piecesOf("PUnstructuredGrid", "c.vtu"));
    EXPECT_EQ(failureOf(folder.write("a.vtm", blocksOf({"b.pvtu"}))), "");
    EXPECT_TRUE(host::inputFiles().contains(folder.file("b.pvtu")));
    EXPECT_TRUE(host::inputFiles().contains(folder.file("c.vtu")));
}

TEST_F(NamedFilesCheckTest, otherFilesAreLeftToTheirReader) {
    EXPECT_EQ(failureOf(folder.write("a.vtu", "<VTKFile type=\"UnstructuredGrid\">")), "");
    EXPECT_EQ(failureOf(folder.write("a.vtm", "<VTKFile type=\"vtkMultiBlockDataSet\"><")), "");
    EXPECT_EQ(failureOf(folder.file("missing.vtm")), "");
}

} // namespace
} // namespace corvane::test
