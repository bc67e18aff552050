// What is written for people names every extension of a data file, and no other one.
#include "host/scene/DataReaders.h"
#include "tests/support/Folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>

namespace corvane::test {

namespace {

using Extensions = std::set<std::string>;

/// The text of the document between two of its words.
std::string passage(const std::string& document, const std::string& from, const std::string& to) {
    std::ifstream stream(sourceFile(document));
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    const auto begin = text.find(from);
    const auto end = text.find(to, begin + from.size());
    if (begin == std::string::npos || end == std::string::npos) {
        throw std::runtime_error(document + " has no passage from " + from + " to " + to);
    }
    return text.substr(begin + from.size(), end - begin - from.size());
}

/// What the pattern captures wherever it matches, as extensions.
Extensions extensionsIn(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern);
    Extensions extensions;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match) {
        extensions.insert("." + match->str(1));
    }
    return extensions;
}

Extensions readable() {
    Extensions extensions;
    for (const host::DataFormat& format : scene::DataReaders().formats()) {
        extensions.insert(format.extensions.begin(), format.extensions.end());
    }
    return extensions;
}

} // namespace

TEST(DocumentedFormats, readme) {
    EXPECT_EQ(extensionsIn(passage("README.md", "**Reads**", "**Draws**"), "\\.([a-z0-9]+)[ `]"),
              readable());
}

TEST(DocumentedFormats, manualPage) {
    const std::string text = passage("docs/corvane.1", "The data files", ".SH OPTIONS");
    EXPECT_EQ(extensionsIn(text, " \\.([a-z0-9]+)\\b"), readable());
}

TEST(DocumentedFormats, completion) {
    const std::string text =
        passage("packaging/corvane.bash-completion", "local data=", "COMPREPLY");
    EXPECT_EQ(extensionsIn(text, "[\"|]([a-z0-9]+)(?=[\"|])"), readable());
}

} // namespace corvane::test
