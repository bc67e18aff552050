// The header of a PLY file.
#pragma once

#include <istream>
#include <string>
#include <vector>

namespace corvane::scene {

struct PlyHeader {
    enum class Format { Ascii, LittleEndian, BigEndian };
    enum class Type { Int8, Uint8, Int16, Uint16, Int32, Uint32, Float32, Float64 };

    struct Property {
        std::string name;
        Type type = Type::Float32;
        bool isList = false;
        Type countType = Type::Uint8; ///< of a list
    };
    struct Element {
        std::string name;
        long count = 0;
        std::vector<Property> properties;
    };

    Format format = Format::Ascii;
    std::vector<Element> elements;
};

/// Afterwards the stream is at the first value. Throws ReadFailure.
PlyHeader readPlyHeader(std::istream& stream);

} // namespace corvane::scene
