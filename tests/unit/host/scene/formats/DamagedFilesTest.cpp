// Files that end too early, wherever that is.
#include "tests/unit/host/scene/formats/FoamCase.h"
#include "tests/unit/host/scene/formats/FormatTest.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <gmock/gmock.h>

#include <functional>

namespace corvane::test {

using ::testing::HasSubstr;

struct Format {
    const char* name;
    std::function<std::string(const std::filesystem::path&)> write;
};

class DamagedFilesTest : public FormatTest, public testing::WithParamInterface<Format> {
protected:
    static std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file() && entry.file_size() > 0) {
                files.push_back(entry.path());
            }
        }
        return files;
    }
};

INSTANTIATE_TEST_SUITE_P(
    Formats, DamagedFilesTest,
    testing::Values(Format{"OpenFoam", writeFoamBox}, Format{"EnSight", writeEnSightBox},
                    Format{"BinaryEnSight", writeBinaryEnSightBox},
                    Format{
                        "Exodus",
                        [](const std::filesystem::path& folder) { return writeExodusBox(folder); }},
                    Format{"Exodus4",
                           [](const std::filesystem::path& folder) {
                               return writeExodusBox(folder, "box.e", ExodusKind::Hdf5);
                           }},
                    Format{"Cgns", writeCgnsBox}),
    [](const testing::TestParamInfo<Format>& tested) { return tested.param.name; });

TEST_P(DamagedFilesTest, areReadOrRefusedWithOneSentence) {
    const std::string opened = GetParam().write(folder.path());
    ASSERT_EQ(errorOf(opened), "");
    constexpr std::uintmax_t parts = 9;
    int refused = 0;
    for (const auto& file : filesIn(folder.path())) {
        const std::string whole = folder.read(file.lexically_relative(folder.path()).string());
        for (std::uintmax_t part = 0; part < parts; ++part) {
            cutFile(file, whole.size() * part / parts);
            const std::string error = errorOf(opened);
            if (!error.empty()) {
                ++refused;
                EXPECT_THAT(error, HasSubstr(opened + " cannot be read: ")) << file;
                EXPECT_EQ(error.find('\n'), std::string::npos) << error;
            }
            replaceFile(file, whole);
        }
    }
    EXPECT_GT(refused, 0);
    EXPECT_EQ(errorOf(opened), "");
}

} // namespace corvane::test
