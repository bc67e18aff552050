// A folder for the files of one test.
#include "tests/unit/host/movie/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <system_error>

namespace corvane::movie_test {

namespace {

std::string nameOfTest() {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test.test_suite_name()) + "." + test.name() + ".folder";
    std::replace(name.begin(), name.end(), '/', '.'); // tests with parameters
    return name;
}

} // namespace

TestFolder::TestFolder() : m_folder(std::filesystem::absolute(nameOfTest())) {
    std::filesystem::remove_all(m_folder);
    std::filesystem::create_directories(m_folder);
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

std::vector<std::string> TestFolder::names() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder)) {
        found.push_back(entry.path().filename().string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace corvane::movie_test
