// The elements of an XML file of VTK, without their data.
#pragma once

#include "host/core/base/Text.h"
#include "host/scene/mesh/FileBytes.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace corvane::scene {

struct XmlElement {
    std::string name;
    std::map<std::string, std::string> attributes;
    std::vector<XmlElement> children;
    std::uint64_t dataStart = 0; ///< in the file: the first byte of the text that is no space
    std::uint64_t dataEnd = 0;   ///< of the text before the first child

    /// Empty where there is none.
    const std::string& attribute(const std::string& wanted) const;
    bool has(const std::string& wanted) const { return attributes.count(wanted) > 0; }
    /// Nothing where it is missing or is no such number. Writers leave room around numbers.
    template <class Number>
    std::optional<Number> number(const std::string& wanted) const {
        return host::parsedNumber<Number>(host::trimmed(attribute(wanted)));
    }
    /// The last one of the name, as VTK takes it. Null where there is none.
    const XmlElement* child(const std::string& wanted) const;
};

struct XmlHead {
    XmlElement root;
    /// In the file: what offsets count from. Nothing where no data are appended.
    std::optional<std::uint64_t> appendedStart;
    bool isAppendedRaw = false;
};

/// Reads up to the appended data. Nothing when the file holds what is no XML or what VTK's writers
/// do not write: that is for VTK to tell. Throws ReadFailure when elements are nested so deeply
/// that those who walk through them run out of stack.
std::optional<XmlHead> readXmlHead(FileBytes& bytes);

} // namespace corvane::scene
