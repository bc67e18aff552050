// CGNS files.
#include "tests/unit/host/scene/formats/FormatTest.h"
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <gmock/gmock.h>

namespace corvane::test {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

class CgnsFileTest : public FormatTest {};

TEST_F(CgnsFileTest, blocksAreTheZones) {
    const auto data = reader.read({writeCgnsBox(folder.path())});
    EXPECT_THAT(blockNames(*data), UnorderedElementsAre("box/Base/Box", "box/Base/Beside"));
    EXPECT_THAT(blockDimensions(*data), ElementsAre(3, 3));
    EXPECT_THAT(timesOfBlock(*data, "box/Base/Box"), ElementsAre(0.0, 0.25, 1.5));
    const host::Variable* const p = data->findVariable("p");
    ASSERT_NE(p, nullptr);
    EXPECT_DOUBLE_EQ(p->minimum, 2.5);
    EXPECT_DOUBLE_EQ(p->maximum, 17.0);
    EXPECT_NE(data->findVector("U"), nullptr);
    EXPECT_NE(data->findVariable("T"), nullptr) << "of the second zone alone";
}

TEST_F(CgnsFileTest, valuesAreThoseOfTheTime) {
    const std::string file = writeCgnsBox(folder.path());
    for (int step = 1; step < 3; ++step) {
        const double time = sampleTimes.at(static_cast<std::size_t>(step));
        const auto box = readPart(file, step, "Base/Box");
        EXPECT_DOUBLE_EQ(valueAt(*box, "p", {2.0, 1.0, 1.0}), samplePressure(2.0, time));
        EXPECT_DOUBLE_EQ(valueAt(*box, "U", {2.0, 1.0, 1.0}), 2.0);
        EXPECT_DOUBLE_EQ(cellValue(*readPart(file, step, "Base/Beside"), "T", 0), 7.0);
    }
    EXPECT_THAT(arrayNames(*readPart(file, 0, "Base/Box")), ElementsAre("U"));
}

TEST_F(CgnsFileTest, damagedFilesAreRefusedWithoutAWordOnTheTerminal) {
    testing::internal::CaptureStderr();
    const std::string file = writeCgnsBox(folder.path());
    cutFile(file, std::filesystem::file_size(file) - 8);
    EXPECT_THAT(errorOf(file), HasSubstr("it is no CGNS file, or a damaged one"));
    EXPECT_THAT(errorOf(folder.write("text.cgns", "just some text\n")),
                HasSubstr("text.cgns cannot be read: it is no CGNS file"));
    EXPECT_THAT(errorOf(folder.write("empty.cgns", "")), HasSubstr("the file is empty"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

/// VTK's reader would end the program.
TEST_F(CgnsFileTest, aFileThatContradictsItselfIsRefused) {
    const std::string file = writeCgnsBox(folder.path());
    std::string bytes = folder.read("box.cgns");
    for (std::size_t at = bytes.find("Zone_t"); at != std::string::npos;
         at = bytes.find("Zone_t", at + 1)) {
        bytes.replace(at, 6, "Zonk_t");
    }
    replaceFile(file, bytes);
    EXPECT_THAT(errorOf(file), HasSubstr("box.cgns cannot be read: "));
}

TEST_F(CgnsFileTest, isDrawn) {
    EXPECT_GT(colouredPixels(drawDefaults(writeCgnsBox(folder.path()), 0.25)), 500);
}

} // namespace corvane::test
