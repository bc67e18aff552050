// A folder for the files of one test.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace corvane::movie_test {

/// Named after the running test, so that a child process that runs the same test finds the same
/// folder. Empty at first; removed at the end.
class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /// An absolute path in the folder.
    std::string path(const std::string& fileName) const { return (m_folder / fileName).string(); }
    const std::filesystem::path& folder() const { return m_folder; }
    /// The names of what is in it, sorted.
    std::vector<std::string> names() const;

private:
    std::filesystem::path m_folder;
};

} // namespace corvane::movie_test
