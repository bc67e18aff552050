// Exodus II files.
#include "host/core/base/HostError.h"
#include "host/scene/DataReaders.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/scene/formats/FormatTest.h"
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <vtkUnstructuredGrid.h>
#include <vtk_exodusII.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace corvane::test {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ExodusFileTest : public FormatTest, public testing::WithParamInterface<ExodusKind> {
protected:
    std::string writeBox(const std::string& name = "box.e") const {
        return writeExodusBox(folder.path(), name, GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, ExodusFileTest,
                         testing::Values(ExodusKind::Classic, ExodusKind::Hdf5),
                         [](const testing::TestParamInfo<ExodusKind>& tested) {
                             return tested.param == ExodusKind::Classic ? "Classic" : "Hdf5";
                         });

TEST_P(ExodusFileTest, blocksAreTheElementBlocks) {
    const auto data = reader.read({writeBox()});
    EXPECT_THAT(blockNames(*data), ElementsAre(HasSubstr("box/lower"), HasSubstr("box/upper")));
    EXPECT_THAT(blockDimensions(*data), ElementsAre(3, 3));
    EXPECT_THAT(timesOfBlock(*data, data->blocks.front().name), ElementsAre(0.0, 0.25, 1.5));
    ASSERT_EQ(data->variables.size(), 3U);
    const host::Variable* const p = data->findVariable("p");
    ASSERT_NE(p, nullptr);
    EXPECT_DOUBLE_EQ(p->minimum, 0.0);
    EXPECT_DOUBLE_EQ(p->maximum, 17.0);
    EXPECT_NE(data->findVariable("q"), nullptr);
    const auto isVector = [](const host::Variable& variable) { return variable.components == 3; };
    EXPECT_EQ(std::count_if(data->variables.begin(), data->variables.end(), isVector), 1)
        << "U_X, U_Y and U_Z are one vector";
}

TEST_P(ExodusFileTest, valuesAreThoseOfTheTime) {
    const std::string file = writeBox();
    for (int step = 0; step < 3; ++step) {
        const double time = sampleTimes.at(static_cast<std::size_t>(step));
        const auto parts = readStep(file, step);
        ASSERT_EQ(parts.size(), 2U);
        EXPECT_DOUBLE_EQ(valueAt(*parts[0].mesh, "p", {2.0, 1.0, 1.0}), samplePressure(2.0, time));
        EXPECT_DOUBLE_EQ(cellValue(*parts[1].mesh, "q", 3), 7.0 + time);
    }
}

TEST_P(ExodusFileTest, allItsExtensionsAreKnown) {
    for (const char* const name : {"box.e", "box.exo", "box.ex2", "BOX.EXO"}) {
        EXPECT_EQ(errorOf(writeBox(name)), "") << name;
    }
}

// HDF5 follows the references of a damaged heap to wherever they lead.
TEST(ExodusDamage, heapsThatCrashTheLibraryAreRefused) {
    const TempFolder folder;
    const std::string file = writeExodusBox(folder.path(), "box.e", ExodusKind::Hdf5);
    const std::string whole = folder.read("box.e");
    const auto heap = whole.find("GCOL");
    ASSERT_NE(heap, std::string::npos);
    int refused = 0;
    for (std::size_t at = heap; at < heap + 64; ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(~damaged[at]);
        replaceFile(file, damaged);
        try {
            scene::DataReaders().read({file});
        } catch (const host::HostError& error) {
            EXPECT_THAT(error.what(), HasSubstr("box.e cannot be read: ")) << at;
            ++refused;
        }
    }
    EXPECT_GT(refused, 0);
}

TEST_P(ExodusFileTest, aCutFileIsRefused) {
    const std::string file = writeBox();
    const auto length = std::filesystem::file_size(file);
    cutFile(file, length - 8);
    EXPECT_THAT(errorOf(file), HasSubstr("box.e cannot be read: it is "));
    cutFile(file, length / 2);
    EXPECT_THAT(errorOf(file), HasSubstr("box.e cannot be read: it is "));
    cutFile(file, 3);
    EXPECT_THAT(errorOf(file), HasSubstr("it is no Exodus II file, or a damaged one"));
}

TEST_P(ExodusFileTest, elementsWithoutNodesAreRefused) {
    const std::string file = writeBox();
    int sizeInProgram = sizeof(double);
    int sizeInFile = 0;
    float version = 0.0F;
    const int id = ex_open(file.c_str(), EX_WRITE, &sizeInProgram, &sizeInFile, &version);
    ASSERT_GE(id, 0);
    std::array<int, 32> nodes{};
    nodes.fill(1);
    nodes.back() = 1000000;
    ASSERT_GE(ex_put_conn(id, EX_ELEM_BLOCK, 1, nodes.data(), nullptr, nullptr), 0);
    ex_close(id);
    EXPECT_THAT(errorOf(file), HasSubstr("elements refer to nodes that are not there"));
}

TEST_P(ExodusFileTest, isDrawn) {
    EXPECT_GT(colouredPixels(drawDefaults(writeBox(), 0.25)), 500);
}

class NoExodusFileTest : public FormatTest {};

TEST_F(NoExodusFileTest, otherContentIsRefusedWithoutAWordOnTheTerminal) {
    testing::internal::CaptureStderr();
    EXPECT_THAT(errorOf(folder.write("text.exo", "just some text\n")),
                HasSubstr("text.exo cannot be read: it is no Exodus II file"));
    EXPECT_THAT(errorOf(folder.write("empty.e", "")), HasSubstr("the file is empty"));
    const std::string cgns = writeCgnsBox(folder.path());
    std::filesystem::copy_file(cgns, folder.path() / "other.e");
    EXPECT_THAT(errorOf(folder.file("other.e")), HasSubstr("it is no Exodus II file"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace corvane::test
