// A folder that lives as long as a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace corvane::test {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "corvane-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot make a folder like " + pattern);
        m_path = pattern;
    }

    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }

    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;

    std::string path() const { return m_path.string(); }
    std::string file(std::string const& name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

inline std::string contentOf(std::string const& fileName) {
    std::ifstream stream(fileName, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeContent(std::string const& fileName, std::string const& content) {
    std::ofstream(fileName, std::ios::binary) << content;
}

} // namespace corvane::test
