// A folder that lives as long as the object.
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace corvane::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    std::string name = (fs::temp_directory_path() / "corvane-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("No folder could be made in " + name);
    }
    m_path = name;
}

TempFolder::~TempFolder() {
    // Tests take permissions away to see writing fail.
    std::error_code ignored;
    fs::permissions(m_path, fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(m_path, ignored);
}

std::string TempFolder::write(const std::string& name, const std::string& content) const {
    std::ofstream stream(m_path / name, std::ios::binary);
    stream << content;
    stream.close();
    if (!stream) {
        throw std::runtime_error("Cannot write " + file(name));
    }
    return file(name);
}

std::string TempFolder::read(const std::string& name) const {
    std::ifstream stream(m_path / name, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("Cannot read " + file(name));
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::set<std::string> TempFolder::names() const {
    std::set<std::string> all;
    for (const auto& entry : fs::directory_iterator(m_path)) {
        all.insert(entry.path().filename().string());
    }
    return all;
}

bool TempFolder::hasParts() const {
    const std::set<std::string> all = names();
    return std::any_of(all.begin(), all.end(),
                       [](const std::string& name) { return name.ends_with(".part"); });
}

} // namespace corvane::test
