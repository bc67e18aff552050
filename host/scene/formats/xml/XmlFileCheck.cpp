#include "host/scene/formats/xml/XmlFileCheck.h"

#include "host/scene/formats/xml/XmlMeshCheck.h"

#include <algorithm>
#include <filesystem>

namespace corvane::scene {

namespace {

namespace fs = std::filesystem;

/// VTK keeps a list that is as long as the largest index of a block.
constexpr int mostBlocks = 1'000'000;

bool isMesh(const std::string& name) {
    constexpr std::array names{"UnstructuredGrid", "PolyData", "ImageData", "RectilinearGrid",
                               "StructuredGrid"};
    return std::ranges::find(names, name) != names.end();
}

/// The file of a piece or a block, as VTK finds it.
std::string fileOf(const std::string& path, const std::string& name) {
    return (fs::path(path).parent_path() / name).string();
}

/// What a file of one of the pieces holds; nothing when it is not a mesh of this kind alone.
std::optional<XmlMeshSummary> meshIn(const std::string& path, const std::string& kind) {
    FileBytes bytes(path);
    const auto head = readXmlHead(bytes);
    if (!head || head->root.children.size() != 1 || head->root.children.front().name != kind) {
        return std::nullopt;
    }
    return checkXmlMesh(bytes, *head, head->root.children.front());
}

class PiecesCheck {
public:
    PiecesCheck(const std::string& path, const XmlElement& pieces)
        : m_path(path), m_pieces(pieces), m_kind(pieces.name.substr(1)) {}

    FileLook check() {
        std::vector<std::string> files;
        for (const XmlElement& child : m_pieces.children) {
            if (child.name == "Piece") {
                files.push_back(fileOf(m_path, child.attribute("Source")));
            }
        }
        return {areHarmless() ? Certainty::Harmless : Certainty::Unknown, files};
    }

private:
    bool areHarmless() {
        const auto ofPoints = xmlArrayKinds(m_pieces.child("PPointData"));
        const auto ofCells = xmlArrayKinds(m_pieces.child("PCellData"));
        if (!ofPoints || !ofCells || m_pieces.has("TimeValues")) {
            return false;
        }
        m_whole = {Certainty::Harmless, true,        *ofPoints, *ofCells,
                   pointsOf(m_pieces),  std::nullopt};
        if (m_pieces.has("WholeExtent")) {
            m_whole.extent = xmlExtent(m_pieces.attribute("WholeExtent"));
            if (!m_whole.extent) {
                refuse("its extent is not told by six whole numbers");
            }
            expectCountable(*m_whole.extent);
        }
        bool isHarmless = true;
        for (const XmlElement& child : m_pieces.children) {
            isHarmless = (child.name != "Piece" || isHarmlessPiece(child)) && isHarmless;
        }
        return isHarmless;
    }

    static XmlArrayKind pointsOf(const XmlElement& pieces) {
        const XmlElement* const points = pieces.child("PPoints");
        if (points == nullptr || points->children.empty()) {
            return {};
        }
        for (const XmlElement& array : points->children) {
            if (array.number<int>("NumberOfComponents") != 3) {
                refuse("its points have not three coordinates");
            }
        }
        return {points->children.front().attribute("type"), 3};
    }

    /// VTK copies the arrays of pieces as they lie in memory.
    bool isHarmlessPiece(const XmlElement& piece) const {
        const std::string file = fileOf(m_path, piece.attribute("Source"));
        if (!piece.has("Source") || !fs::is_regular_file(file)) {
            return false;
        }
        const auto mesh = meshIn(file, m_kind);
        if (!mesh || mesh->certainty == Certainty::Unknown ||
            !agrees(m_whole.ofPoints, mesh->ofPoints) || !agrees(m_whole.ofCells, mesh->ofCells)) {
            return false;
        }
        // VTK takes it for granted that a piece has points, even where reading them failed.
        const bool needsAll = m_kind == "StructuredGrid" || m_kind == "RectilinearGrid";
        if (needsAll && !mesh->isPlain) {
            return false;
        }
        const bool hasPoints = m_kind != "ImageData" && m_kind != "RectilinearGrid";
        if (hasPoints && mesh->points != m_whole.points) {
            return false;
        }
        return !mesh->extent || isInside(piece, *mesh->extent);
    }

    static bool agrees(const XmlArrayKinds& whole, const XmlArrayKinds& part) {
        return std::ranges::all_of(whole, [&](const auto& array) {
            const auto found = part.find(array.first);
            return found != part.end() && found->second == array.second;
        });
    }

    bool isInside(const XmlElement& piece, const XmlExtent& extent) const {
        if (xmlExtent(piece.attribute("Extent")) != extent || !m_whole.extent) {
            return false;
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::size_t low = 2 * axis;
            const std::size_t high = low + 1;
            if (extent[low] > extent[high] || extent[low] < (*m_whole.extent)[low] ||
                extent[high] > (*m_whole.extent)[high]) {
                return false;
            }
        }
        return true;
    }

    const std::string& m_path;
    const XmlElement& m_pieces;
    std::string m_kind;
    XmlMeshSummary m_whole;
};

Certainty worse(Certainty a, Certainty b) {
    return a == Certainty::Harmless ? b : a;
}

FileLook checkLeaf(const std::string& path) {
    FileBytes bytes(path);
    const auto head = readXmlHead(bytes);
    if (!head || head->root.name != "VTKFile" || head->root.children.size() != 1) {
        return {Certainty::Unknown};
    }
    const XmlElement& element = head->root.children.front();
    if (isMesh(element.name)) {
        return {checkXmlMesh(bytes, *head, element).certainty};
    }
    if (element.name.starts_with('P') && isMesh(element.name.substr(1))) {
        return PiecesCheck(path, element).check();
    }
    return {Certainty::Unknown};
}

/// Blocks in blocks, and the files of the innermost.
void checkBlocks(const std::string& path, const XmlElement& parent, FileLook& look) {
    for (const XmlElement& child : parent.children) {
        const auto index = child.has("index") ? child.number<int>("index") : std::optional(0);
        if (!index || *index < 0 || *index > mostBlocks) {
            refuse("the number of a block is one that cannot be");
        }
        if (child.name == "Block" || child.name == "Piece") {
            checkBlocks(path, child, look);
        } else if (child.name != "DataSet") {
            look.certainty = Certainty::Unknown;
        } else if (child.has("file")) {
            const std::string file = fileOf(path, child.attribute("file"));
            const FileLook leaf =
                fs::is_regular_file(file) ? checkLeaf(file) : FileLook{Certainty::Unknown};
            look.certainty = worse(look.certainty, leaf.certainty);
            look.otherFiles.push_back(file);
            look.otherFiles.insert(look.otherFiles.end(), leaf.otherFiles.begin(),
                                   leaf.otherFiles.end());
        }
    }
}

} // namespace

FileLook checkXmlFile(const std::string& path) {
    FileBytes bytes(path);
    const auto head = readXmlHead(bytes);
    const XmlElement* const blocks = head ? head->root.child("vtkMultiBlockDataSet") : nullptr;
    if (blocks == nullptr || head->root.children.size() != 1 ||
        head->root.number<double>("version").value_or(0.0) < 1.0) {
        return checkLeaf(path);
    }
    FileLook look;
    checkBlocks(path, *blocks, look);
    return look;
}

FileLook checkXmlElements(const std::string& path) {
    FileBytes bytes(path);
    return {readXmlHead(bytes) ? Certainty::Harmless : Certainty::Unknown};
}

} // namespace corvane::scene
