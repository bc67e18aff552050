#include "host/scene/formats/xml/XmlMeshCheck.h"

#include <vtkCellType.h>

#include <algorithm>
#include <sstream>

namespace corvane::scene {

namespace {

/// VTK compares each array with all others, and asks for the name of each component.
constexpr std::size_t mostArrays = 1000;
constexpr int mostComponents = 1000;
constexpr std::uint64_t mostPoints = std::uint64_t{1} << 40U;
/// Of a mesh that has nothing of any size in its file.
constexpr std::uint64_t mostBarePoints = std::uint64_t{1} << 28U;

bool isStructured(const std::string& kind) {
    return kind == "ImageData" || kind == "RectilinearGrid" || kind == "StructuredGrid";
}

/// What VTK's writers tell of arrays beside their values.
bool isPlainKey(const XmlElement& key) {
    const std::string& location = key.attribute("location");
    const auto length = key.has("length") ? key.number<int>("length") : std::optional(1);
    return key.name == "InformationKey" &&
           (location == "vtkDataArray" || location == "vtkAbstractArray") && length &&
           *length > 0 && *length <= mostComponents;
}

std::optional<XmlArrayKind> kindOf(const XmlElement& array) {
    const bool isSingle = !array.has("NumberOfComponents");
    const auto components = isSingle ? std::optional(1) : array.number<int>("NumberOfComponents");
    constexpr std::array names{"DataArray", "Array", "PDataArray", "PArray"};
    const bool isArray = std::ranges::find(names, array.name) != names.end();
    if (!isArray || !components || *components < 1 || *components > mostComponents ||
        !xmlType(array.attribute("type")) || array.has("TimeStep") ||
        !std::ranges::all_of(array.children, isPlainKey)) {
        return std::nullopt;
    }
    return XmlArrayKind{array.attribute("type"), *components};
}

class MeshCheck {
public:
    MeshCheck(FileBytes& bytes, const XmlHead& head, const XmlElement& mesh)
        : m_bytes(bytes), m_storage(head), m_mesh(mesh), m_kind(mesh.name) {
        m_isOld =
            !head.root.has("version") || head.root.number<double>("version").value_or(0.0) < 2.1;
    }

    XmlMeshSummary check() && {
        if (m_mesh.has("TimeValues")) {
            return unknown();
        }
        checkFields();
        if (isStructured(m_kind)) {
            m_summary.extent = extentOf(m_mesh, "WholeExtent");
        }
        std::vector<const XmlElement*> pieces;
        for (const XmlElement& child : m_mesh.children) {
            if (child.name == "Piece") {
                pieces.push_back(&child);
            }
        }
        if (pieces.empty()) {
            checkPiece(m_mesh);
        }
        for (const XmlElement* const piece : pieces) {
            checkPiece(*piece);
        }
        checkCover();
        return m_summary;
    }

private:
    XmlMeshSummary unknown() {
        m_summary.certainty = Certainty::Unknown;
        return m_summary;
    }

    /// VTK makes room for the whole extent, whatever is in the file.
    void checkCover() {
        if (!m_summary.extent) {
            return;
        }
        const XmlExtent& whole = *m_summary.extent;
        const std::uint64_t points =
            xmlPoints(whole, 0) * xmlPoints(whole, 1) * xmlPoints(whole, 2);
        if (m_pointsOfPieces < points) {
            unknown();
        }
        const bool isBare = m_summary.ofPoints.empty() && m_summary.ofCells.empty();
        if (m_kind != "StructuredGrid" && isBare && points > mostBarePoints) {
            refuse("its extent is larger than can be");
        }
    }

    void checkFields() {
        const XmlElement* const fields = m_mesh.child("FieldData");
        if (fields == nullptr) {
            return;
        }
        for (const XmlElement& array : fields->children) {
            const auto kind = kindOf(array);
            if (!kind) {
                unknown();
                continue;
            }
            // VTK looks at the first value in any case.
            const auto tuples = array.has("NumberOfTuples")
                                    ? array.number<std::int64_t>("NumberOfTuples")
                                    : std::optional<std::int64_t>(0);
            if (!tuples || *tuples < 0) {
                refuse("an array tells a number of values that cannot be");
            }
            expectRoom(array, *kind, static_cast<std::uint64_t>(*tuples));
        }
    }

    XmlExtent extentOf(const XmlElement& element, const std::string& attribute) const {
        const auto extent = xmlExtent(element.attribute(attribute));
        if (!extent) {
            refuse("its extent is not told by six whole numbers");
        }
        expectCountable(*extent);
        return *extent;
    }

    std::uint64_t countOf(const XmlElement& piece, const std::string& attribute) const {
        if (!piece.has(attribute)) {
            return 0;
        }
        const auto count = piece.number<std::int64_t>(attribute);
        if (!count || *count < 0) {
            refuse(attribute + " tells a number that cannot be");
        }
        return static_cast<std::uint64_t>(*count);
    }

    void checkPiece(const XmlElement& piece) {
        std::uint64_t points = 0;
        std::uint64_t cells = 0;
        if (isStructured(m_kind)) {
            countStructured(piece, points, cells);
        } else {
            points = countOf(piece, "NumberOfPoints");
            cells = countCells(piece);
        }
        checkArrays(piece.child("PointData"), points, m_summary.ofPoints);
        checkArrays(piece.child("CellData"), cells, m_summary.ofCells);
        checkPlaces(piece, points);
        m_isFirst = false;
    }

    void countStructured(const XmlElement& piece, std::uint64_t& points, std::uint64_t& cells) {
        const XmlExtent extent = extentOf(piece, piece.name == "Piece" ? "Extent" : "WholeExtent");
        const XmlExtent& whole = *m_summary.extent;
        points = 1;
        cells = 1;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::uint64_t count = xmlPoints(extent, axis);
            if (count > 0 && (extent[2 * axis] < whole[2 * axis] ||
                              extent[2 * axis + 1] > whole[2 * axis + 1])) {
                refuse("a piece is not inside the extent of the whole");
            }
            const bool isFlat = xmlPoints(whole, axis) <= 1;
            points *= count;
            cells *= isFlat ? count : count - std::min<std::uint64_t>(count, 1);
        }
        m_pieceExtent = extent;
        m_pointsOfPieces += points;
    }

    std::uint64_t countCells(const XmlElement& piece) {
        if (m_kind == "UnstructuredGrid") {
            const std::uint64_t cells = countOf(piece, "NumberOfCells");
            checkCells(piece.child("Cells"), cells);
            checkTypes(piece.child("Cells"), cells);
            return cells;
        }
        std::uint64_t cells = 0;
        for (const char* const kind : {"Verts", "Lines", "Strips", "Polys"}) {
            const std::uint64_t count = countOf(piece, std::string("NumberOf") + kind);
            checkCells(piece.child(kind), count);
            cells += count;
        }
        return cells;
    }

    /// Points, or the coordinates of the directions.
    void checkPlaces(const XmlElement& piece, std::uint64_t points) {
        if (m_kind == "ImageData") {
            return;
        }
        const bool isRectilinear = m_kind == "RectilinearGrid";
        const XmlElement* const places = piece.child(isRectilinear ? "Coordinates" : "Points");
        const std::size_t expected = isRectilinear ? 3 : 1;
        if (places == nullptr || places->children.size() != expected) {
            unknown();
            return;
        }
        for (std::size_t i = 0; i < expected; ++i) {
            checkPlace(places->children[i], isRectilinear ? xmlPoints(m_pieceExtent, i) : points);
        }
    }

    void checkPlace(const XmlElement& array, std::uint64_t count) {
        const bool isRectilinear = m_kind == "RectilinearGrid";
        const auto kind = kindOf(array);
        if (!kind) {
            unknown();
            return;
        }
        if (kind->components != (isRectilinear ? 1 : 3)) {
            refuse("its points have not three coordinates");
        }
        if (!m_isFirst && m_summary.points != *kind) {
            unknown();
        }
        m_summary.points = *kind;
        expectRoom(array, *kind, count);
    }

    /// All pieces have the same arrays, since VTK takes the kinds of the first for granted.
    void checkArrays(const XmlElement* parent, std::uint64_t count, XmlArrayKinds& known) {
        const auto kinds = xmlArrayKinds(parent);
        if (!kinds || (!m_isFirst && *kinds != known)) {
            unknown();
            return;
        }
        known = *kinds;
        if (parent == nullptr) {
            return;
        }
        for (const XmlElement& array : parent->children) {
            expectRoom(array, known.at(array.attribute("Name")), count);
        }
    }

    /// That the values can be there.
    void expectRoom(const XmlElement& element, const XmlArrayKind& kind, std::uint64_t tuples) {
        const auto type = xmlType(kind.type);
        const XmlArray array(m_bytes, m_storage, element, *type);
        m_summary.isPlain = m_summary.isPlain && array.isPlain();
        expectRoom(array, element,
                   cappedProduct(tuples, static_cast<std::uint64_t>(kind.components)), *type);
    }

    static void expectRoom(const XmlArray& array, const XmlElement& element, std::uint64_t values,
                           const XmlType& type) {
        const std::uint64_t bytes =
            type.name == "Bit" ? values / 8 : cappedProduct(values, type.size);
        if (bytes > array.capacity()) {
            refuse("the array \"" + element.attribute("Name") +
                   "\" has fewer values than it should");
        }
    }

    /// An array that tells of cells; null where there is none or one that has to be tried.
    const XmlElement* cellArray(const XmlElement& cells, const std::string& name) {
        const XmlElement* found = nullptr;
        for (const XmlElement& array : cells.children) {
            if (array.attribute("Name") != name) {
                continue;
            }
            const auto kind = kindOf(array);
            if (found != nullptr || !kind || kind->components != 1 || array.name != "DataArray" ||
                kind->type == "String" || kind->type == "Bit") {
                unknown();
                return nullptr;
            }
            found = &array;
        }
        if (found == nullptr) {
            unknown();
        }
        return found;
    }

    void checkCells(const XmlElement* cells, std::uint64_t count) {
        if (count == 0) {
            return;
        }
        if (cells == nullptr) {
            unknown();
            return;
        }
        const XmlElement* const offsets = cellArray(*cells, "offsets");
        const XmlElement* const points = cellArray(*cells, "connectivity");
        if (offsets == nullptr || points == nullptr) {
            return;
        }
        const auto offsetType = xmlType(offsets->attribute("type"));
        XmlArray offsetArray(m_bytes, m_storage, *offsets, *offsetType);
        expectRoom(offsetArray, *offsets, count, *offsetType);
        const auto length = offsetArray.integer(count - 1);
        if (!length) {
            unknown();
            return;
        }
        if (*length < 0) {
            refuse("its cells have a negative number of points");
        }
        const auto pointType = xmlType(points->attribute("type"));
        expectRoom(XmlArray(m_bytes, m_storage, *points, *pointType), *points,
                   static_cast<std::uint64_t>(*length), *pointType);
    }

    void checkTypes(const XmlElement* cells, std::uint64_t count) {
        if (cells == nullptr || count == 0) {
            return;
        }
        if (cells->child("faces") != nullptr || hasFaces(*cells)) {
            unknown();
        }
        const XmlElement* const types = cellArray(*cells, "types");
        if (types == nullptr) {
            return;
        }
        const auto type = xmlType(types->attribute("type"));
        XmlArray array(m_bytes, m_storage, *types, *type);
        expectRoom(array, *types, count, *type);
        // In old files VTK reorders the points of cells of higher order, which it trusts to have as
        // many as it thinks.
        if (m_isOld && !array.areBelow(VTK_HIGHER_ORDER_EDGE, count)) {
            unknown();
        }
    }

    static bool hasFaces(const XmlElement& cells) {
        return std::ranges::any_of(cells.children, [](const XmlElement& array) {
            return array.attribute("Name") == "faces" || array.attribute("Name") == "faceoffsets";
        });
    }

    FileBytes& m_bytes;
    XmlStorage m_storage;
    const XmlElement& m_mesh;
    std::string m_kind;
    bool m_isOld = false;
    bool m_isFirst = true;
    XmlExtent m_pieceExtent{};
    std::uint64_t m_pointsOfPieces = 0;
    XmlMeshSummary m_summary;
};

} // namespace

std::optional<XmlExtent> xmlExtent(const std::string& text) {
    std::istringstream stream(text);
    XmlExtent extent{};
    for (std::int64_t& number : extent) {
        std::string word;
        stream >> word;
        const auto read = host::parsedNumber<int>(word);
        if (!read) {
            return std::nullopt;
        }
        number = *read;
    }
    std::string more;
    return stream >> more ? std::nullopt : std::optional(extent);
}

std::uint64_t xmlPoints(const XmlExtent& extent, std::size_t axis) {
    const std::int64_t count = extent[2 * axis + 1] - extent[2 * axis] + 1;
    return count > 0 ? static_cast<std::uint64_t>(count) : 0;
}

void expectCountable(const XmlExtent& extent) {
    std::uint64_t points = 1;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const std::uint64_t count = xmlPoints(extent, axis);
        points = cappedProduct(points, count);
        if (points > mostPoints || count > INT32_MAX) {
            refuse("its extent is larger than can be");
        }
    }
}

std::optional<XmlArrayKinds> xmlArrayKinds(const XmlElement* parent) {
    XmlArrayKinds kinds;
    if (parent == nullptr) {
        return kinds;
    }
    for (const XmlElement& array : parent->children) {
        const auto kind = kindOf(array);
        const bool isNew =
            kind && array.has("Name") && kinds.emplace(array.attribute("Name"), *kind).second;
        if (!isNew || kinds.size() > mostArrays) {
            return std::nullopt;
        }
    }
    return kinds;
}

XmlMeshSummary checkXmlMesh(FileBytes& bytes, const XmlHead& head, const XmlElement& mesh) {
    return MeshCheck(bytes, head, mesh).check();
}

} // namespace corvane::scene
