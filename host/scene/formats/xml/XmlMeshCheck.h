// Whether VTK finds everything where an XML file says it is.
#pragma once

#include "host/scene/formats/xml/XmlArray.h"
#include "host/scene/mesh/FileCheck.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace corvane::scene {

/// First and last index in each of the three directions.
using XmlExtent = std::array<std::int64_t, 6>;
std::optional<XmlExtent> xmlExtent(const std::string& text);
/// In one direction; 0 for an empty one.
std::uint64_t xmlPoints(const XmlExtent& extent, std::size_t axis);
/// Throws ReadFailure when the numbers of its points and cells cannot be counted.
void expectCountable(const XmlExtent& extent);

/// What the arrays of a mesh are, for those that put several meshes together.
struct XmlArrayKind {
    std::string type;
    int components = 1;

    friend bool operator==(const XmlArrayKind&, const XmlArrayKind&) = default;
};
/// By the name of the array.
using XmlArrayKinds = std::map<std::string, XmlArrayKind>;
/// Of the children of such an element. Nothing where there are some that VTK does not expect.
std::optional<XmlArrayKinds> xmlArrayKinds(const XmlElement* parent);

struct XmlMeshSummary {
    Certainty certainty = Certainty::Harmless;
    bool isPlain = true; ///< reading the arrays cannot fail
    XmlArrayKinds ofPoints;
    XmlArrayKinds ofCells;
    XmlArrayKind points;
    std::optional<XmlExtent> extent; ///< of structured meshes
};

/// Looks at the mesh in an element such as "UnstructuredGrid". Throws ReadFailure.
XmlMeshSummary checkXmlMesh(FileBytes& bytes, const XmlHead& head, const XmlElement& mesh);

} // namespace corvane::scene
