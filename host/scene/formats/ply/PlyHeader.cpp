#include "host/scene/formats/ply/PlyHeader.h"

#include "host/scene/mesh/ReadError.h"

#include <map>
#include <sstream>
#include <string_view>

namespace corvane::scene {

namespace {

using Format = PlyHeader::Format;
using Type = PlyHeader::Type;

[[noreturn]] void fail(const std::string& line) {
    throw ReadFailure("its header has a line that cannot be understood: \"" + line + "\"");
}

template <class Value>
Value lookUp(const std::map<std::string, Value, std::less<>>& table, const std::string& word,
             const std::string& line) {
    const auto found = table.find(word);
    if (found == table.end()) {
        fail(line);
    }
    return found->second;
}

Type typeOf(const std::string& word, const std::string& line) {
    static const std::map<std::string, Type, std::less<>> types{
        {"char", Type::Int8},       {"int8", Type::Int8},       {"uchar", Type::Uint8},
        {"uint8", Type::Uint8},     {"short", Type::Int16},     {"int16", Type::Int16},
        {"ushort", Type::Uint16},   {"uint16", Type::Uint16},   {"int", Type::Int32},
        {"int32", Type::Int32},     {"uint", Type::Uint32},     {"uint32", Type::Uint32},
        {"float", Type::Float32},   {"float32", Type::Float32}, {"double", Type::Float64},
        {"float64", Type::Float64},
    };
    return lookUp(types, word, line);
}

Format formatOf(const std::string& word, const std::string& line) {
    static const std::map<std::string, Format, std::less<>> formats{
        {"ascii", Format::Ascii},
        {"binary_little_endian", Format::LittleEndian},
        {"binary_big_endian", Format::BigEndian},
    };
    return lookUp(formats, word, line);
}

PlyHeader::Property propertyOf(std::istringstream& words, const std::string& line) {
    PlyHeader::Property property;
    std::string type;
    words >> type;
    if (type == "list") {
        std::string countType;
        words >> countType >> type;
        property.isList = true;
        property.countType = typeOf(countType, line);
    }
    property.type = typeOf(type, line);
    if (!(words >> property.name)) {
        fail(line);
    }
    return property;
}

PlyHeader::Element elementOf(std::istringstream& words, const std::string& line) {
    PlyHeader::Element element;
    if (!(words >> element.name >> element.count) || element.count < 0) {
        fail(line);
    }
    return element;
}

std::string nextLine(std::istream& stream) {
    std::string line;
    if (!std::getline(stream, line)) {
        throw ReadFailure("its header has no end");
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

} // namespace

PlyHeader readPlyHeader(std::istream& stream) {
    if (nextLine(stream) != "ply") {
        throw ReadFailure("it is no PLY file");
    }
    PlyHeader header;
    for (std::string line = nextLine(stream); line != "end_header"; line = nextLine(stream)) {
        std::istringstream words(line);
        std::string keyword;
        words >> keyword;
        if (keyword == "format") {
            words >> keyword;
            header.format = formatOf(keyword, line);
        } else if (keyword == "element") {
            header.elements.push_back(elementOf(words, line));
        } else if (keyword == "property" && !header.elements.empty()) {
            header.elements.back().properties.push_back(propertyOf(words, line));
        } else if (keyword != "comment" && keyword != "obj_info") {
            fail(line);
        }
    }
    return header;
}

} // namespace corvane::scene
