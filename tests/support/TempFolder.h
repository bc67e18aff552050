// A folder that lives as long as the object.
#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace corvane::test {

class TempFolder {
public:
    TempFolder(); ///< empty, under a name of its own
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// The absolute name of a file in it, which need not exist.
    std::string file(const std::string& name) const { return (m_path / name).string(); }
    /// Makes a file in it, and gives its name.
    std::string write(const std::string& name, const std::string& content) const;
    std::string read(const std::string& name) const; ///< throws std::runtime_error without the file
    std::set<std::string> names() const;             ///< of what lies in it
    bool has(const std::string& name) const { return std::filesystem::exists(m_path / name); }
    bool hasParts() const; ///< of files in the making

private:
    std::filesystem::path m_path;
};

} // namespace corvane::test
