#include "host/scene/formats/surface/StlCheck.h"

#include "host/core/base/Text.h"
#include "host/scene/mesh/FileBytes.h"

#include <vtksys/SystemTools.hxx>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace corvane::scene {

namespace {

constexpr std::uint64_t headerLength = 80;
constexpr std::size_t triangleLength = 50;

bool isSpace(int byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

std::string wordOf(FileBytes& bytes) {
    constexpr std::size_t longest = 64;
    std::string word;
    while (isSpace(bytes.peek())) {
        bytes.next();
    }
    while (bytes.peek() != FileBytes::end && !isSpace(bytes.peek())) {
        const char byte = static_cast<char>(bytes.next());
        if (word.size() < longest) {
            word.push_back(byte);
        }
    }
    return word;
}

void expectFinite(float coordinate) {
    if (!std::isfinite(coordinate)) {
        refuse("a corner of a triangle is no point");
    }
}

/// What is no number at all is for VTK to tell.
void checkText(FileBytes& bytes) {
    for (std::string word = wordOf(bytes); !word.empty(); word = wordOf(bytes)) {
        if (host::lowerCase(word) != "vertex") {
            continue;
        }
        for (int axis = 0; axis < 3; ++axis) {
            expectFinite(std::strtof(wordOf(bytes).c_str(), nullptr));
        }
    }
}

void checkBinary(FileBytes& bytes) {
    std::uint32_t told = 0;
    bytes.seek(headerLength);
    if (!bytes.read(&told, sizeof told)) {
        refuse("the file ends before its data do");
    }
    // Many programs tell a wrong number, and VTK reads what is there.
    constexpr std::uint64_t tolerance = 1000;
    const std::uint64_t triangles = bytes.left() / triangleLength;
    if (static_cast<std::int32_t>(told) > 0 && told > 2 * triangles + tolerance) {
        refuse("it tells of more triangles than it holds");
    }
    std::array<char, triangleLength> triangle{};
    while (bytes.read(triangle.data(), triangle.size())) {
        constexpr std::size_t numbers = 12; // the normal, and three corners
        std::array<float, numbers> values{};
        std::memcpy(values.data(), triangle.data(), sizeof values);
        for (std::size_t i = 3; i < numbers; ++i) {
            expectFinite(values[i]);
        }
    }
}

/// As VTK's reader tells the two kinds apart.
bool isText(const std::string& path) {
    return vtksys::SystemTools::DetectFileType(path.c_str()) == vtksys::SystemTools::FileTypeText;
}

} // namespace

FileLook checkStlFile(const std::string& path) {
    FileBytes bytes(path);
    if (isText(path)) {
        checkText(bytes);
    } else {
        checkBinary(bytes);
    }
    return {Certainty::Harmless};
}

} // namespace corvane::scene
